// Polygons as lists of points: copied, numbered, searched, exchanged with arrays, freed.
#include <gtest/gtest.h>

#include <cstring>
#include <new>
#include <vector>

#include "kxgeom/list.h"
#include "kxgeom/records.h"
#include "list/point_kind.hpp"
#include "support/faults.hpp"

namespace {

void *make(int32_t tag, int i) {
  if (kx::is_point(tag)) return kx::create_point(tag, {i + 0.25, -1.0 * i, 3.0 * i}, 10 + i);
  if (tag == 81) return new (kx_create_rnumber()) rnumber{i + 0.25};
  return new (kx_create_inumber()) inumber{i};
}

list_hdr *make_list(int32_t tag, int n) {
  list_hdr *list = ll_create_list();
  for (int i = 0; i < n; ++i) ll_add_list_item(list, 1, make(tag, i), tag);
  return list;
}

std::vector<int32_t> numbers(const list_hdr *list) {
  std::vector<int32_t> seqnrs;
  for (const list_item *i = list->head; i; i = i->next) seqnrs.push_back(static_cast<poly_2d *>(i->data)->seqnr);
  return seqnrs;
}

TEST(polygon_lists, copies_hold_the_same_bytes_in_records_of_their_own) {
  const std::pair<int32_t, std::size_t> kinds[] = {{50, 16}, {51, 24}, {62, 20}, {63, 28}, {81, 8}, {82, 4}};
  for (const auto &[tag, size] : kinds) {
    list_hdr *source = make_list(tag, 4), *copy = make_list(tag, 1);
    ll_set_list_currpntr(source, 3);
    ASSERT_EQ(kx_copy_polygon(source, copy), 4);
    EXPECT_TRUE(source->current == source->head);
    const list_item *from = source->head;
    for (const list_item *to = copy->head->next; to; to = to->next, from = from->next) {
      EXPECT_TRUE(to->datatype == tag && to->data != from->data);
      EXPECT_EQ(std::memcmp(to->data, from->data, size), 0);
    }
    EXPECT_EQ(kx_copy_polygon(copy, copy), 5) << "a list copied onto itself doubles";
    EXPECT_TRUE(kx_clear_polygon(copy) == 10 && copy->head == nullptr);
    EXPECT_EQ(kx_purge_polygon(copy) + kx_purge_polygon(source), 0) << "the first one empty";
  }
}

TEST(polygon_lists, other_kinds_are_refused_and_kept) {
  for (int32_t tag : {60, 78}) {
    list_hdr *list = ll_create_list(), *other = ll_create_list();
    char data[200];
    ll_add_list_item(list, 1, data, tag);
    EXPECT_TRUE(kx_copy_polygon(list, other) == 0 && kx_merge_polygon(list, other, 1, 0) == 0) << tag;
    EXPECT_TRUE(kx_purge_polygon(list) == 9 && kx_clear_polygon(list) == 0 && kx_delete_polygon(list, 0) == 0) << tag;
    EXPECT_EQ(+list->count, 1);
    ll_pop_list(list);
    EXPECT_EQ(ll_purge_list(list) + ll_purge_list(other), 0);
  }
}

TEST(polygon_lists, numbers_are_found_given_and_merged) {
  list_hdr *list = make_list(63, 4), *other = ll_create_list();
  EXPECT_TRUE(kx_find_polygon_seqnr(list, 12) == 1 && list->current == list->tail->prev);
  static_cast<poly_3d *>(list->head->data)->seqnr = 12;
  EXPECT_TRUE(kx_find_polygon_seqnr(list, 12) == 1 && list->current == list->tail->prev)
      << "the current item is tested first";
  EXPECT_TRUE(kx_find_polygon_seqnr(list, 99) == 0 && list->current == list->head);
  ll_set_list_currpntr(list, 2);
  EXPECT_EQ(kx_renum_polygon(list, 4, 100, -5), 3) << "from the current item";
  EXPECT_EQ(numbers(list), (std::vector<int32_t>{12, 100, 95, 90}));
  EXPECT_TRUE(kx_renum_polygon(list, 1, INT32_MAX, 1) == 1 && kx_renum_polygon(list, 0, INT32_MAX, 1) == 4);
  EXPECT_EQ(numbers(list)[1], INT32_MIN);
  EXPECT_TRUE(kx_merge_polygon(list, other, 1, 0) == 1 && kx_merge_polygon(list, other, 0, 5) == 1);
  EXPECT_EQ(numbers(other), (std::vector<int32_t>{INT32_MIN, INT32_MAX})) << "the number after the tail's";
  list_hdr *plane = make_list(50, 2);
  EXPECT_EQ(kx_merge_polygon(plane, other, 1, 0), 0) << "another kind";
  EXPECT_EQ(kx_find_polygon_seqnr(plane, 0) + kx_renum_polygon(plane, 0, 0, 1), 0);
  ll_set_list_currpntr(plane, 0);
  EXPECT_TRUE(kx_delete_polygon(plane, 2) == 1 && plane->current == plane->tail);
  EXPECT_TRUE(kx_delete_polygon(plane, 4) == 1 && kx_delete_polygon(plane, 0) == 0);
  for (list_hdr *l : {list, other, plane}) EXPECT_EQ(kx_purge_polygon(l), 0);
}

TEST(polygon_lists, heaps_and_lists_hold_the_points_of_arrays) {
  const pnt_3d space[] = {{1, 2, 3}, {4, 5, 6}, {7, 8, 9}};
  const pnt_2d plane[] = {{1, 2}, {4, 5}, {7, 8}};
  list_hdr *list = make_list(62, 2);
  EXPECT_EQ(kx_put_xypolyheap(plane, 3, list), 5);
  EXPECT_EQ(numbers(list), (std::vector<int32_t>{10, 11, 0, 1, 2}));
  EXPECT_TRUE(kx_put_xypolyheap(plane, -1, list) == 5 && kx_put_xypolyheap(plane, 0, list) == 0);
  kx_purge_polygon(list);
  for (int32_t tag : {50, 51, 62, 63}) {
    list = kx_pnt3d_array_to_list(space, 3, tag, 7, -2);
    ASSERT_NE(list, nullptr);
    if (tag >= 62) EXPECT_EQ(numbers(list), (std::vector<int32_t>{7, 5, 3}));
    pnt_3d back[4];
    pnt_2d flat[4];
    int32_t room = 2;
    EXPECT_TRUE(kx_get_xyzpolyheap(list, back, &room) == 0 && room == 2) << "too small: nothing written";
    room = 4;
    EXPECT_TRUE(kx_get_xyzpolyheap(list, back, &room) == 3 && kx_get_xypolyheap(list, flat, &room) == 3);
    for (int i = 0; i < 3; ++i) {
      EXPECT_EQ(+back[i].z, tag == 51 || tag == 63 ? space[i].z : 0);
      EXPECT_EQ(back[i].y + flat[i].x, space[i].y + plane[i].x);
    }
    EXPECT_TRUE(list->current == list->head);
    kx_purge_polygon(list);
  }
  EXPECT_TRUE(!kx_pnt2d_array_to_list(plane, 3, 81, 0, 1) && !kx_pnt2d_array_to_list(plane, 0, 62, 0, 1));
  list = make_list(50, 2);
  static_cast<void>(ll_add_list_item(list, 0, kx_create_pnt_3d(), 51));  // mixed: read as pnt_3d throughout
  pnt_2d two[3];
  int32_t room = 3;
  EXPECT_EQ(kx_get_xypolyheap(list, two, &room), 1);
  EXPECT_EQ(ll_purge_all_items(list), 3);
}

TEST(polygon_lists, without_memory_what_was_made_so_far_stays) {
  const pnt_2d points[] = {{1, 2}, {3, 4}};
  const std::string item = "Memory Error: ll_add_list_item";
  struct lists {
    list_hdr *source = make_list(63, 2), *destination = make_list(63, 1);
  };
  const auto copied = [&](int n, lists l, int32_t result) {
    EXPECT_EQ(result, n ? -1 : 2);
    EXPECT_EQ(+l.destination->count, n == 0 ? 3 : 1 + (n - 1) / 2);
    EXPECT_TRUE(n == 0 || faults::messages().at(0) == (n % 2 ? "Memory Error: kx_create_poly_3D" : item));
    kx_purge_polygon(l.source), kx_purge_polygon(l.destination);
  };
  const auto copy = [](lists l) { return kx_copy_polygon(l.source, l.destination); };
  EXPECT_EQ(faults::fail_each_allocation([] { return lists(); }, copy, copied), 4);
  list_hdr *list = make_list(62, 1);  // an item that cannot be added is left out
  faults::clear_messages();
  faults::watch(2);
  EXPECT_EQ(kx_put_xypolyheap(points, 2, list), 2);
  faults::unwatch();
  EXPECT_EQ(faults::messages(), (std::vector{item, std::string("Memory Error: kx_put_xypolyheap")}));
  faults::watch(3);  // a point that cannot be made empties the list
  EXPECT_EQ(kx_put_xypolyheap(points, 2, list), 0);
  faults::unwatch();
  EXPECT_EQ(ll_purge_list(list), 0);
}

}  // namespace
