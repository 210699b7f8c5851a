// Self intersection: whether a boundary crosses or touches itself, and whether a list is a proper polygon.
#include <cmath>
#include <cstdint>

#include "edge_sweep.hpp"
#include "edge_tree.hpp"
#include "geometry/line.hpp"
#include "kxgeom/polygon.h"
#include "plane_points.hpp"
#include "ray.hpp"
#include "records/direction.hpp"
#include "runtime/tolerance.hpp"

namespace {

using kx::vec2;

bool same_bits(vec2 p, vec2 q) { return p.x == q.x && p.y == q.y; }

// Whether two edges meet where one of them has no end. Edges that share an end meet there alone, whatever rounding
// says; and the same edge once more, in either direction, is none that could be crossed.
bool meet_amiss(const vec2 *a, const vec2 *b) {
  const kx::segment_crossing c(a[0], a[1], b[0], b[1]);
  if (!c.hit) return false;
  if (same_bits(a[0], b[0]) || same_bits(a[0], b[1]) || same_bits(a[1], b[0]) || same_bits(a[1], b[1])) return false;
  if (kx::same_point(a[0], b[0]) && kx::same_point(a[1], b[1])) return false;
  if (kx::same_point(a[0], b[1]) && kx::same_point(a[1], b[0])) return false;
  const vec2 p = c.point(), q = kx::snapped(b[0] + c.u * (b[1] - b[0]));
  return !(kx::same_point(p, a[0]) || kx::same_point(p, a[1])) || !(kx::same_point(q, b[0]) || kx::same_point(q, b[1]));
}

enum class verdict { sound, crossed, no_memory };

// Whether no two edges can cross because all are parallel within the tolerance of a crossing: the cross product of two
// is at most twice the largest one with the longest edge.
bool all_parallel(const vec2 *points, std::int32_t edges) {
  vec2 longest{0.0, 0.0};
  for (std::int32_t i = 0; i < edges; ++i) {
    const vec2 d = points[i + 1] - points[i];
    if (kx::dot(d, d) > kx::dot(longest, longest)) longest = d;
  }
  double most = 0.0;
  for (std::int32_t i = 0; i < edges; ++i) {
    const double c = std::fabs(kx::cross(longest, points[i + 1] - points[i]));
    if (!(c <= most)) most = c;
  }
  return 2.0 * most <= 0.99 * kx::tolerance;
}

// Boxes find the candidates in the order of the boundary, which is all that most polygons need. Long edges side by side
// have too many boxes in common: those are left to a sweep; and what that cannot decide for want of distance, to the
// boxes again.
verdict examine(const vec2 *points, std::int32_t edges, const char *location) {
  const auto amiss = [points](std::int32_t i, std::int32_t k) { return meet_amiss(points + i, points + k); };
  const kx::edge_tree tree(points, edges, location);
  if (!tree) return verdict::no_memory;
  auto found = tree.pairs(20000 + 2 * std::int64_t{edges}, amiss);
  if (found == kx::edge_tree::outcome::too_much) {
    switch (kx::edge_sweep::run(points, edges, amiss)) {
      case kx::edge_sweep::outcome::apart: return verdict::sound;
      case kx::edge_sweep::outcome::met: return verdict::crossed;
      case kx::edge_sweep::outcome::no_memory: kx::report_no_memory(location); return verdict::no_memory;
      case kx::edge_sweep::outcome::undecided: break;
    }
    if (all_parallel(points, edges)) return verdict::sound;
    found = tree.pairs(INT64_MAX, amiss);
  }
  return found == kx::edge_tree::outcome::stopped ? verdict::crossed : verdict::sound;
}

// Three points in one line: seen from the leftmost, the other two lie in the same direction.
bool in_one_line(const kx::point_array &p) {
  if (kx::equal(p[0].x, p[1].x) && kx::equal(p[1].x, p[2].x) && kx::equal(p[0].x, p[2].x)) return true;
  if (kx::equal(p[0].y, p[1].y) && kx::equal(p[1].y, p[2].y) && kx::equal(p[0].y, p[2].y)) return true;
  if (kx::same_point(p[0], p[1]) || kx::same_point(p[1], p[2]) || kx::same_point(p[0], p[2])) return true;
  int left = 0;
  for (int i = 1; i < 3; ++i) left = p[i].x < p[left].x ? i : left;
  const double a = kx::direction_degrees(p[left], p[(left + 1) % 3]);
  const double b = kx::direction_degrees(p[left], p[(left + 2) % 3]);
  // Both point to the right: just above and just below the axis is the same direction, too.
  return kx::equal(a, b) || kx::equal(std::fabs(a - b), 360.0);
}

}  // namespace

int32_t KX_CALL kx_self_intersecting_polygon(list_hdr *polygon, int32_t closed) {
  const kx::point_array points(polygon, "kx_self_intersecting_polygon");
  if (!points || points.count() < 3) return 0;
  const std::int32_t last = points.count() - 1;
  if (points.count() == 3) {
    if (in_one_line(points)) return 1;
  } else {
    if (!closed && kx::same_point(points[0], points[last])) return 1;
    if (examine(points.data(), last, "kx_self_intersecting_polygon") == verdict::crossed) return 1;
  }
  polygon->current = polygon->head;
  return 0;
}

int32_t KX_CALL kx_check_poly(const list_hdr *polygon) {
  const kx::point_array points(polygon, "kx_check_poly");
  if (!points) return 0;
  std::int32_t n = points.count();
  if (n > 1 && kx::same_point(points[0], points[n - 1])) --n;
  if (n < 3) return 0;
  bool turns = false;
  for (std::int32_t i = 0; i < n; ++i) {
    const vec2 before = points[i ? i - 1 : n - 1], at = points[i], after = points[i + 1 < n ? i + 1 : 0];
    if (!kx::finite(at) || kx::same_point(before, at)) return 0;
    turns = turns || std::fabs(kx::cross(at - before, after - at)) > kx::tolerance;
  }
  if (!turns) return 0;
  // The closing edge is one like the others here.
  const vec2 *ring = points.count() == n ? points.ring() : points.data();
  return examine(ring, n, "kx_check_poly") == verdict::sound;
}
