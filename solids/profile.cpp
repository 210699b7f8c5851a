// The outline of a swept body: read, checked and copied.
#include "solids/profile.hpp"

#include <algorithm>
#include <cmath>

#include "geometry/line.hpp"
#include "kxgeom/list.h"
#include "kxgeom/records.h"
#include "list/items.hpp"
#include "list/point_kind.hpp"

namespace {

// Twice the signed area, seen from the first point: far from the origin it keeps its digits.
double twice_area(const kx::vec2 *p, std::int32_t n) {
  double sum = 0.0;
  for (std::int32_t i = 2; i < n; ++i) sum += kx::cross(p[i - 1] - p[0], p[i] - p[0]);
  return sum;
}

// Whether an edge runs back over the one before: that crosses nothing, but leaves no body on either side.
bool folds_back(kx::vec2 before, kx::vec2 at, kx::vec2 after) {
  const kx::vec2 in = at - before, out = after - at;
  constexpr double sine = 1e-9;
  return kx::dot(in, out) < 0.0 && std::fabs(kx::cross(in, out)) <= sine * kx::length(in) * kx::length(out);
}

}  // namespace

// For the points of a list; none for a list of another kind or too long a one.
std::int64_t kx::profile::room(const list_hdr *list) {
  const std::int32_t tag = datatype(list);
  if (!is_point(tag)) return 0;
  std::int64_t n = 0;
  for (const list_item &item : items(list)) n += readable_as(item, tag);
  return n <= KX_SOLID_VERTICES_MOST ? n : 0;
}

kx::profile::profile(const list_hdr *list, std::int64_t room, second coordinate, snap to, const char *location)
    : points_(room + 1) {
  if (!points_) report_no_memory(location);
  if (!points_ || room == 0) return;
  read(list, coordinate, to);
  proper_ = check(location);
  if (proper_ && twice_area(data(), count_) < 0.0) std::reverse(points_.data(), points_.data() + count_);
}

void kx::profile::read(const list_hdr *list, second coordinate, snap to) {
  const std::int32_t tag = datatype(list);
  const bool upright = coordinate == second::z && is_space_point(tag);
  for (const list_item &item : items(list)) {
    if (!readable_as(item, tag)) continue;
    const pnt_3d at = read_point(item.data, tag);
    vec2 p{at.x, upright ? at.z : at.y};
    if (to == snap::to_axis) p.x = snapped(p.x);
    if (count_ == 0 || !same_point(points_[count_ - 1], p)) points_[count_++] = p;
  }
  while (count_ > 1 && same_point(points_[count_ - 1], points_[0])) --count_;
}

// The test for polygons reads lists: one is made of the points, in two blocks.
bool kx::profile::check(const char *location) const {
  if (count_ < 3) return false;
  const scratch<pnt_2d> records(count_);
  const scratch<list_item> links(count_);
  if (!records || !links) {
    report_no_memory(location);
    return false;
  }
  list_hdr list = {};
  for (std::int32_t i = 0; i < count_; ++i) {
    records[i] = {points_[i].x, points_[i].y};
    links[i] = {&records[i], KX_PNT_2D, nullptr, nullptr};
    link_last(list, &links[i]);
  }
  if (kx_check_poly(&list) == 0) return false;
  for (std::int32_t i = 0; i < count_; ++i) {
    if (folds_back(points_[i ? i - 1 : count_ - 1], points_[i], points_[i + 1 < count_ ? i + 1 : 0])) return false;
  }
  return true;
}

kx::profile_copy::profile_copy(const list_hdr *list) : list_(ll_create_list()) {
  if (list_ == nullptr) return;
  const std::int32_t tag = datatype(list);
  for (const list_item &item : items(list)) {
    if (!readable_as(item, tag)) continue;
    void *record = create_point(tag, read_point(item.data, tag), read_seqnr(item.data, tag));
    if (record && append(*list_, record, tag)) continue;
    release(record);
    kx_purge_polygon(list_);
    list_ = nullptr;
    return;
  }
}

kx::profile_copy::~profile_copy() {
  if (list_) kx_purge_polygon(list_);
}
