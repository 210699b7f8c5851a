// The record family: what a host that declares the records itself sees, and what the accessors make of it.
#include "kxgeom/records.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstring>
#include <variant>

#include "support/faults.hpp"

namespace {

// A record's bytes as a host would read them: doubles and integers in field order.
std::string bytes(std::initializer_list<std::variant<double, int32_t>> fields) {
  std::string all;
  for (const auto &field : fields)
    std::visit([&](auto v) { all.append(reinterpret_cast<const char *>(&v), sizeof v); }, field);
  return all;
}

template <class R, class Set>
std::string set(Set setter) {
  R record;
  setter(&record);
  return {reinterpret_cast<const char *>(&record), sizeof record};
}

TEST(records, setters_write_every_field_where_hosts_look_for_it) {
  EXPECT_EQ(set<pnt_2d>([](auto *r) { kx_set_pnt_2d(1, 2, r); }), bytes({1.0, 2.0}));
  EXPECT_EQ(set<poly_2d>([](auto *r) { kx_set_poly_2d(1, 2, 7, r); }), bytes({7, 1.0, 2.0}));
  EXPECT_EQ(set<poly_3d>([](auto *r) { kx_set_poly_3d(1, 2, 3, 7, r); }), bytes({7, 1.0, 2.0, 3.0}));
  EXPECT_EQ(set<line_3d>([](auto *r) { kx_set_line_3d(1, 2, 3, 4, 5, 6, r); }), bytes({1.0, 2.0, 3.0, 4.0, 5.0, 6.0}));
  EXPECT_EQ(set<ple_2d>([](auto *r) { kx_set_ple(1, 2, 3, 4, r); }), bytes({1.0, 3.0, 2.0, 4.0}));
  EXPECT_EQ(set<ple_3d>([](auto *r) { kx_set_ples(1, 2, 3, 4, 5, 6, r); }), bytes({1.0, 3.0, 5.0, 2.0, 4.0, 6.0}));
  EXPECT_EQ(set<vector_2d>([](auto *r) { kx_set_vector_2d(1, 2, 3, 4, r); }), bytes({3.0, 4.0, 1.0, 2.0}));
  EXPECT_EQ(set<vector_3d>([](auto *r) { kx_set_vector_3d(1, 2, 3, 4, 5, r); }), bytes({4.0, 5.0, 1.0, 2.0, 3.0}));
  EXPECT_EQ(set<arc_2d>([](auto *r) { kx_set_arc_2d(1, 2, 3, 4, 5, 6, r); }), bytes({1.0, 2.0, 3.0, 4, 5.0, 6.0}));
  EXPECT_EQ(set<parabola_2d>([](auto *r) { kx_set_parabola_2d(1, 2, 3, 4, 5, r); }), bytes({1.0, 2.0, 3.0, 4, 5.0}));
  EXPECT_EQ(set<hyperbola_2d>([](auto *r) { kx_set_hyperbola_2d(1, 2, 3, 4, 5, 6, r); }),
            bytes({1.0, 2.0, 3.0, 4.0, 5, 6.0}));
  const int32_t integers[] = {11, 12};
  const auto two_integers = std::bit_cast<double>(integers);
  EXPECT_EQ(set<dwg_rec_2d>([=](auto *r) { kx_set_dwgrec_2d(1, 2, two_integers, r); }), bytes({1.0, 2.0, 11, 12}));
}

TEST(records, getters_read_in_field_order_through_every_shared_entry) {
  double a, b, c, d, e, f;
  int32_t n;
  const std::string six = bytes({1.0, 2.0, 3.0, 4.0, 5.0, 6.0}), with_integer = bytes({1.0, 2.0, 3.0, 4.0, 5, 6.0});
  kx_get_ellipse_2d(&a, &b, &c, &d, &e, &f, reinterpret_cast<const ellipse_2d *>(six.data()));
  EXPECT_EQ(a + 10 * b + 100 * c + 1000 * d + 10000 * e + 100000 * f, 654321);
  kx_get_hyperbola_2d(&a, &b, &c, &d, &n, &f, reinterpret_cast<const hyperbola_2d *>(with_integer.data()));
  EXPECT_EQ(a + 10 * b + 100 * c + 1000 * d + 10000 * n + 100000 * f, 654321);
  const poly_3d p{9, 2, 3, 4};
  kx_get_poly_3d(&n, &a, &b, &c, &p);
  EXPECT_EQ(n + 10 * a + 100 * b + 1000 * c, 4329);
}

TEST(records, the_larger_axis_of_an_ellipse_comes_first) {
  for (const double b : {2.0, 3.0, 3 + 3.99e-7, 3 + 4.1e-7}) {
    ellipse_2d ellipse{0, 0, 0, 0, 8, 9};
    kx_set_ellipse_2d(1, 2, 3, b, &ellipse);
    const bool swapped = b > 3 + 4e-7;
    EXPECT_TRUE(ellipse.a == (swapped ? b : 3) && ellipse.b == (swapped ? 3 : b)) << b;
    EXPECT_EQ(ellipse.value_1 * 10 + ellipse.value_2, 89) << "the setter leaves the two values alone";
  }
}

// Every create function: a zeroed record, and on a full heap null after its own name in the memory message.
TEST(records, create_gives_a_zeroed_record_or_its_name) {
  const struct {
    const char *name;
    void *(*create)();
    std::size_t size;
  } kinds[] = {
#define NAMED(text, k) {text, [] { return static_cast<void *>(kx_create_##k()); }, sizeof(k)}
#define KIND(k) NAMED("kx_create_" #k, k)
      KIND(pnt_2d),      KIND(pnt_3d),         KIND(poly_2d),       NAMED("kx_create_poly_3D", poly_3d),
      KIND(cylcoord),    KIND(sphercoord),     KIND(polarcoord),    KIND(vector_2d),
      KIND(vector_3d),   KIND(line_2d),        KIND(line_3d),       KIND(ile_2d),
      KIND(ple_2d),      KIND(ple_3d),         KIND(planeeq),       KIND(rect_2d),
      KIND(rect_3d),     KIND(triag_2d),       KIND(triangle),      KIND(circle_2d),
      KIND(ellipse_2d),  KIND(arc_2d),         KIND(parabola_2d),   KIND(hyperbola_2d),
      KIND(dwg_rec_2d),  KIND(rnumber),        KIND(inumber),       KIND(matrixrec2d),
      KIND(matrixrec3d), KIND(curve_stats_2d), KIND(curve_stats_3d)};
  for (const auto &kind : kinds) {
    const auto check = [&](int n, int, void *made) {
      ASSERT_EQ(made == nullptr, n > 0) << kind.name;
      EXPECT_TRUE(n == 0 || faults::messages() == std::vector{std::string("Memory Error: ") + kind.name}) << kind.name;
      const unsigned char zero[sizeof(curve_stats_3d) + 8] = {};
      EXPECT_TRUE(!made || std::memcmp(made, zero, kind.size) == 0) << kind.name;
      kx_purge_pnt_2d(static_cast<pnt_2d *>(made));
    };
    EXPECT_EQ(faults::fail_each_allocation([] { return 0; }, [&](int) { return kind.create(); }, check), 1);
  }
}

TEST(records, arrays_have_one_element_more_and_clear_n_bytes) {
  pnt_2d *array = kx_create_pnt_2d_array(20);
  for (int i = 0; i < 20; ++i) EXPECT_EQ(reinterpret_cast<char *>(array)[i], 0);
  EXPECT_EQ(kx_set_array_pnt_2d(1, 2, 20, array), array + 20);
  double x = 0, y = 0;
  kx_get_array_pnt_2d(&x, &y, 20, array);
  EXPECT_EQ(x + 10 * y, 21);
  kx_purge_pnt_2d_array(array);
  void **handles = kx_create_handle_array(0);
  EXPECT_EQ(kx_set_array_handle(&x, 0, handles), handles);
  void *read = nullptr;
  kx_get_array_handle(&read, 0, handles);
  EXPECT_EQ(read, &x);
  kx_purge_handle_array(handles);
  EXPECT_EQ(kx_create_pnt_3d_array(-1), nullptr);
}

}  // namespace
