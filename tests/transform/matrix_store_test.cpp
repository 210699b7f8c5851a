#include <gtest/gtest.h>

#include <string>

#include "kxgeom/list.h"
#include "kxgeom/transform.h"
#include "list/items.hpp"
#include "support/faults.hpp"

namespace {

struct plane {
  using record = matrixrec2d;
  static constexpr int size = 9, tag = KX_MATRIXREC2D;
  static constexpr auto store = kx_storematrix2d;
  static constexpr auto restore = kx_restorematrix2d;
  static constexpr auto dispose = kx_disposematrix2d;
  static constexpr const char *text = "Memory Error: kx_storematrix2d";
};

struct space {
  using record = matrixrec3d;
  static constexpr int size = 16, tag = KX_MATRIXREC3D;
  static constexpr auto store = kx_storematrix3d;
  static constexpr auto restore = kx_restorematrix3d;
  static constexpr auto dispose = kx_disposematrix3d;
  static constexpr const char *text = "Memory Error: storematrix3d";
};

template <class Kind>
struct MatrixStore : testing::Test {
  static std::int32_t store(list_hdr *list, std::int32_t id, double value) {
    double matrix[Kind::size];
    for (int i = 0; i < Kind::size; ++i) matrix[i] = value + i;
    return Kind::store(list, id, matrix);
  }
  // The numbers and first elements of all items, in order, a bar behind the current one.
  static std::string text(const list_hdr *list) {
    std::string out;
    for (list_item &item : kx::items(list)) {
      const auto *record = static_cast<const typename Kind::record *>(item.data);
      EXPECT_EQ(item.datatype, Kind::tag);
      const double first = record ? record->matrix[0] : 0, last = record ? record->matrix[Kind::size - 1] : 0;
      EXPECT_TRUE(!record || last == first + Kind::size - 1);
      out += record ? std::to_string(record->id) + ":" + std::to_string(static_cast<int>(first)) : "-";
      out += &item == list->current ? "| " : " ";
    }
    return out;
  }
};
using kinds = testing::Types<plane, space>;
TYPED_TEST_SUITE(MatrixStore, kinds, );

TYPED_TEST(MatrixStore, OverwritesAndAppendsAgain) {
  const bool in_space = TypeParam::size == 16;
  list_hdr *list = ll_create_list();
  EXPECT_EQ(this->store(list, 5, 10), 0);
  EXPECT_EQ(this->text(list), "5:10| ");
  EXPECT_EQ(this->store(list, 5, 20), 0);  // a match on the last item
  EXPECT_EQ(this->text(list), in_space ? "5:20 5:20| " : "5:20| ");
  if (!in_space) this->store(list, 7, 20);
  EXPECT_EQ(this->store(list, 6, 30), 0);  // no match
  EXPECT_EQ(this->text(list), in_space ? "6:30 6:30 6:30| " : "6:30 6:30 6:30| ");
  EXPECT_EQ(list->head->data, list->tail->data);

  auto *own = new (kx::allocate(sizeof(typename TypeParam::record))) typename TypeParam::record{};
  own->id = 9;
  for (int i = 0; i < TypeParam::size; ++i) own->matrix[i] = i;
  ll_add_list_item(list, 0, own, TypeParam::tag);
  EXPECT_EQ(this->store(list, 9, 40), 0);
  EXPECT_EQ(this->text(list), "9:40| 6:30 6:30 6:30 ");
  EXPECT_EQ(this->store(list, 6, 50), 0);  // the first match
  EXPECT_EQ(this->text(list), "9:40 6:50| 6:50 6:50 ");
  EXPECT_EQ(this->store(list, 9, 60), 0);  // stands before the current item
  EXPECT_EQ(this->text(list), "9:40 9:60 9:60 9:60 9:60| ");

  ll_add_list_item(list, 0, nullptr, TypeParam::tag);
  double out[16] = {};
  EXPECT_EQ(TypeParam::restore(list, 8, out), 1);
  EXPECT_TRUE(out[0] == 0 && list->current == list->head);
  EXPECT_EQ(TypeParam::restore(list, 9, out), 0);
  EXPECT_EQ(this->text(list), "- 9:40| 9:60 9:60 9:60 9:60 ");
  EXPECT_TRUE(out[0] == 40 && out[TypeParam::size - 1] == 39 + TypeParam::size);
  ll_set_list_currpntr(list, 0);
  ll_set_list_currpntr(list, 2);
  ll_rearrange_list(list, 0);  // the doubles no longer side by side
  EXPECT_EQ(TypeParam::dispose(list), 0);
  list_hdr empty{};
  EXPECT_TRUE(TypeParam::restore(&empty, 1, out) == 1 && TypeParam::dispose(&empty) == 6);
}

TYPED_TEST(MatrixStore, WithoutMemoryTheRecordsStay) {
  const auto setup = [&] {
    list_hdr *list = ll_create_list();
    this->store(list, 1, 10);
    return list;
  };
  const auto check = [&](int n, list_hdr *list, std::int32_t result) {
    const char *const texts[] = {"", TypeParam::text, "Memory Error: ll_add_list_item"};
    EXPECT_EQ(result, n ? 80 : 0);
    EXPECT_EQ(n ? faults::messages().back() : "", texts[n]);
    EXPECT_EQ(this->text(list), n ? "1:10| " : "2:20 2:20| ");
    TypeParam::dispose(list);
  };
  const auto call = [&](list_hdr *list) { return this->store(list, 2, 20); };
  EXPECT_EQ(faults::fail_each_allocation(setup, call, check), 2);
}

}  // namespace
