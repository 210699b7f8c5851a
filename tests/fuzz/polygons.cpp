// Any two polygons: lists stay linked, one point and many get the same answer, and what is said of a polygon holds for
// it turned round, begun elsewhere and mirrored.
#include <vector>

#include "input.hpp"

namespace {

// The same points begun at another vertex, turned round, or with x and y exchanged.
list_hdr *changed(const std::vector<pnt_2d> &points, std::size_t first, bool backwards, bool mirrored) {
  list_hdr *list = ll_create_list();
  for (std::size_t i = 0; i < points.size(); ++i) {
    const pnt_2d p = points[(first + (backwards ? points.size() - i : i)) % points.size()];
    poly_2d *record = kx_create_poly_2d();
    kx_set_poly_2d(mirrored ? p.y : p.x, mirrored ? p.x : p.y, 0, record);
    ll_add_list_item(list, 1, record, KX_POLY_2D);
  }
  return list;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  fuzz::input in(data, size);
  const std::int32_t n = in.below(24);
  std::vector<pnt_2d> corners;
  for (std::int32_t i = 0; i < n; ++i) corners.push_back(in.point());
  list_hdr *polygon = changed(corners, 0, false, false);
  list_hdr *other = in.points(in.below(24), fuzz::point_tags[in.below(4)]);
  list_hdr *found = ll_create_list();
  const std::int32_t asked = other->count;

  bool distinct = n >= 3, moderate = true;
  for (std::size_t i = 0; i < corners.size(); ++i) {
    distinct = distinct && kx_samepnt(&corners[i], &corners[i]);
    // Products of larger coordinates overflow; NaN is no coordinate.
    moderate = moderate && std::fabs(corners[i].x) < 1e12 && std::fabs(corners[i].y) < 1e12;
    for (std::size_t k = 0; k < i; ++k) distinct = distinct && !kx_samepnt(&corners[i], &corners[k]);
  }

  for (const list_item *item = other->head; item; item = item->next) {
    other->current = const_cast<list_item *>(item);
    const pnt_2d p = ll_get_pnt2d(other, 4);
    moderate = moderate && std::fabs(p.x) < 1e12 && std::fabs(p.y) < 1e12;
  }

  std::int32_t many = 0, few = 0;
  kx_pnts_inonpolyl(other, polygon, &many, found);
  for (const list_item *item = other->head; item; item = item->next) {
    other->current = const_cast<list_item *>(item);
    const pnt_2d p = ll_get_pnt2d(other, 4);
    few += kx_inonpolygonl(&p, polygon) == 1;
    if (n >= 3 && moderate && kx_onpolygonl(&p, polygon) == 0) {
      std::vector<pnt_2d> ring = corners;
      std::int32_t count = n, at = 0;
      const std::int32_t inside = kx_inpolygon(&p, ring.data(), &count, &at);
      REQUIRE(inside == kx_inpolygonl(&p, polygon));
      for (const bool backwards : {false, true}) {
        list_hdr *same = changed(corners, static_cast<std::size_t>(in.below(n)), backwards, false);
        REQUIRE(kx_inpolygonl(&p, same) == inside);
        fuzz::drop(same);
      }
    }
  }
  REQUIRE(n < 3 || !moderate || many == few);
  REQUIRE(other->count == asked);
  for (const std::int32_t closed : {0, 1}) {
    const auto first = static_cast<std::size_t>(n ? in.below(n) : 0);
    list_hdr *same = changed(corners, first, closed == 1, false), *mirrored = changed(corners, first, false, true);
    // Where points coincide, the first and the last may count as one in one of the two only.
    if (distinct) REQUIRE(kx_same_poly(polygon, same) == 1);
    kx_self_intersecting_polygon(mirrored, closed);
    fuzz::drop(same);
    fuzz::drop(mirrored);
  }
  kx_check_poly(polygon);
  kx_inside_poly(polygon, other);
  kx_outside_poly(polygon, other);
  list_hdr *crossings = ll_create_list();
  kx_intersect_poly(polygon, other, crossings);
  kx_orderpolygonl(polygon, in.below(3) - 1);
  for (list_hdr *list : {polygon, other, found, crossings}) {
    REQUIRE(list->head == nullptr || fuzz::linked(list));
    fuzz::drop(list);
  }
  return 0;
}
