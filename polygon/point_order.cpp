// Point order: polygons turned round, points looked up, and lists converted from one kind of point to another.
#include <cmath>
#include <cstdint>
#include <utility>

#include "geometry/line.hpp"
#include "kxgeom/polygon.h"
#include "list/items.hpp"
#include "list/point_kind.hpp"
#include "plane_points.hpp"

namespace {

// Twice the signed area, seen from the first vertex: far from the origin it keeps its digits.
class area {
 public:
  void add(kx::vec2 p) {
    if (count_++ == 0) first_ = last_ = p;
    twice_ += kx::cross(last_ - first_, p - first_);
    last_ = p;
  }
  std::int32_t count() const { return count_; }
  // 1 counter-clockwise, 0 clockwise, -1 when the area tells neither.
  std::int32_t direction() const {
    if (count_ < 3 || !(std::fabs(twice_) > kx::tolerance)) return -1;
    return twice_ > 0.0;
  }
  bool closed() const { return kx::same_point(first_, last_); }

 private:
  kx::vec2 first_{}, last_{};
  double twice_ = 0.0;
  std::int32_t count_ = 0;
};

// The first vertex stays the first one; where the last repeats it, it stays repeated.
void turn_round(const list_hdr &list, bool closed) {
  list_item *front = list.head, *back = list.tail;
  if (!closed) front = front->next;
  while (front && front != back) {
    const list_item kept = *front;
    front->data = back->data;
    front->datatype = back->datatype;
    back->data = kept.data;
    back->datatype = kept.datatype;
    if (front->next == back) return;
    front = front->next;
    back = back->prev;
  }
}

area measure(const list_hdr *polygon) {
  area a;
  for (const kx::vec2 p : kx::plane_points(polygon)) a.add(p);
  return a;
}

}  // namespace

int32_t KX_CALL kx_orderpolygon(pnt_2d *polygon, int32_t count, int32_t direction) {
  if (!polygon) return 0;
  area a;
  for (std::int32_t i = 0; i < count; ++i) a.add(kx::value(polygon[i]));
  if (a.direction() < 0) return 0;
  if (a.direction() == (direction != 0)) return 1;
  for (std::int32_t i = a.closed() ? 0 : 1, j = count - 1; i < j; ++i, --j) std::swap(polygon[i], polygon[j]);
  return 1;
}

int32_t KX_CALL kx_orderpolygonl(list_hdr *polygon, int32_t direction) {
  const area a = measure(polygon);
  if (a.direction() < 0) return 0;
  if (a.direction() != (direction != 0)) turn_round(*polygon, a.closed());
  return 1;
}

int32_t KX_CALL kx_reverse_xy_poly(list_hdr *polygon) {
  const area a = measure(polygon);
  if (a.count() < 3) return 0;
  turn_round(*polygon, a.closed());
  return 1;
}

int32_t KX_CALL kx_match_point(const pnt_2d *p, const list_hdr *points) {
  if (!p) return 0;
  for (const kx::vec2 q : kx::plane_points(points)) {
    if (kx::same_point(kx::value(*p), q)) return 1;
  }
  return 0;
}

list_hdr *KX_CALL kx_morph_polyline(const list_hdr *polyline, int32_t mode) {
  const std::int32_t tag = kx::datatype(polyline);
  if (!kx::is_point(tag) || !kx::is_point(mode)) return nullptr;
  auto *list = kx::create<list_hdr>("ll_create_list");
  if (!list) return nullptr;
  for (const list_item &item : kx::items(polyline)) {
    if (!kx::readable_as(item, tag)) continue;
    const std::int32_t seqnr = kx::is_polygon_point(tag) ? kx::read_seqnr(item.data, tag) : list->count;
    void *record = kx::create_point(mode, kx::read_point(item.data, tag), seqnr);
    if (record && kx::append(*list, record, mode)) continue;
    kx::release(record);
    kx::release_items(*list);
    kx::release(list);
    return nullptr;
  }
  return list;
}
