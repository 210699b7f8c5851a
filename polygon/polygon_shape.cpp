// Polygon shape: convex or not, which way it runs, how far it extends.
#include <algorithm>
#include <cmath>
#include <cstdint>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

#include "geometry/line.hpp"
#include "kxgeom/polygon.h"
#include "kxgeom/runtime.h"
#include "plane_points.hpp"
#include "records/direction.hpp"
#include "records/output.hpp"
#include "runtime/tolerance.hpp"

namespace {

constexpr std::int32_t too_few_points = 41, no_points = 42;
enum type : std::int32_t { collinear = 0, concave = 1, convex = 2 };

// The senses in which a boundary turns, seen so far.
struct bends {
  bool left = false, right = false;

  void add(double turn) {
    left = left || turn > kx::tolerance;
    right = right || turn < -kx::tolerance;
  }
  std::int32_t type() const { return left && right ? concave : left || right ? convex : collinear; }
};

double turn(kx::vec2 before, kx::vec2 at, kx::vec2 after) {
  return (after.y - at.y) * (at.x - before.x) - (after.x - at.x) * (at.y - before.y);
}
double turn(const pnt_2d &before, const pnt_2d &at, const pnt_2d &after) {
  return turn(kx::value(before), kx::value(at), kx::value(after));
}

// Adds the turns at v[0] to v[n - 1]; what is before and after them is there.
void add_turns(bends &b, const pnt_2d *v, std::int32_t n) {
  std::int32_t i = 0;
#ifdef __SSE2__
  // Two turns at a time, by the same arithmetic: products of a step with the next one's components exchanged.
  const __m128d tolerance = _mm_set1_pd(kx::tolerance), minus = _mm_set1_pd(-kx::tolerance);
  const auto load = [v](std::int32_t k) { return _mm_loadu_pd(&v[k].x); };
  const auto crossed = [](__m128d d, __m128d next) { return _mm_mul_pd(d, _mm_shuffle_pd(next, next, 1)); };
  __m128d left = _mm_setzero_pd(), right = left, at = load(0), step = _mm_sub_pd(at, load(-1));
  for (; i + 2 <= n; i += 2) {
    const __m128d second = load(i + 1), third = load(i + 2);
    const __m128d next = _mm_sub_pd(second, at), after = _mm_sub_pd(third, second);
    const __m128d p = crossed(step, next), q = crossed(next, after);
    const __m128d turns = _mm_sub_pd(_mm_unpacklo_pd(p, q), _mm_unpackhi_pd(p, q));
    left = _mm_or_pd(left, _mm_cmpgt_pd(turns, tolerance));
    right = _mm_or_pd(right, _mm_cmplt_pd(turns, minus));
    at = third;
    step = after;
  }
  b.left = b.left || _mm_movemask_pd(left) != 0;
  b.right = b.right || _mm_movemask_pd(right) != 0;
#endif
  for (; i < n; ++i) b.add(turn(v[i - 1], v[i], v[i + 1]));
}

}  // namespace

int32_t KX_CALL kx_polygontype(const pnt_2d *polygon, int32_t count, int32_t *type) {
  if (!polygon || !type || count < 3) return too_few_points;
  bends b;
  b.add(turn(polygon[count - 1], polygon[0], polygon[1]));
  b.add(turn(polygon[count - 2], polygon[count - 1], polygon[0]));
  constexpr std::int32_t batch = 128;
  for (std::int32_t first = 1; first < count - 1 && b.type() != concave; first += batch)
    add_turns(b, polygon + first, std::min(batch, count - 1 - first));
  *type = b.type();
  return 0;
}

int32_t KX_CALL kx_polygontypel(const list_hdr *polygon, int32_t *type) {
  if (!type) return too_few_points;
  kx::vec2 first{}, second{}, before{}, at{};
  std::int32_t count = 0;
  bends b;
  for (const kx::vec2 p : kx::plane_points(polygon)) {
    if (count == 0) first = p;
    if (count == 1) second = p;
    if (count >= 2) b.add(turn(before, at, p));
    before = at;
    at = p;
    ++count;
  }
  if (count < 3) return too_few_points;
  b.add(turn(before, at, first));
  b.add(turn(at, first, second));
  *type = b.type();
  return 0;
}

// Judged at the first vertex alone, on purpose: hosts ask about a corner that they know to be convex.
int32_t KX_CALL kx_get_poly2d_dir(const list_hdr *polygon) {
  kx::vec2 first{}, second{}, last{};
  std::int32_t count = 0;
  for (const kx::vec2 p : kx::plane_points(polygon)) {
    if (count == 0) first = p;
    if (count == 1) second = p;
    last = p;
    ++count;
  }
  if (count < 3) return -1;
  return kx::less(kx::pseudo_angle(first, second), kx::pseudo_angle(first, last));
}

int32_t KX_CALL kx_poly_xy_maxmin(const list_hdr *polygon, rect_2d *extents) {
  if (!extents) return 0;
  bool any = false;
  rect_2d r{};
  for (const kx::vec2 p : kx::plane_points(polygon)) {
    if (std::isnan(p.x) || std::isnan(p.y)) continue;
    if (!any) r = {p.x, p.y, p.x, p.y};
    any = true;
    r = {p.x < r.x1 ? p.x : +r.x1, p.y < r.y1 ? p.y : +r.y1, p.x > r.x2 ? p.x : +r.x2, p.y > r.y2 ? p.y : +r.y2};
  }
  if (any) *extents = r;
  return any;
}

int32_t KX_CALL kx_extremepnts(const pnt_2d *pnts, int32_t count, pnt_2d *leftmost, pnt_2d *rightmost, pnt_2d *lowest,
                               pnt_2d *highest) {
  const pnt_2d *left = nullptr, *right = nullptr, *low = nullptr, *high = nullptr;
  for (std::int32_t i = 0; pnts && i < count; ++i) {
    const pnt_2d *p = pnts + i;
    if (std::isnan(p->x) || std::isnan(p->y)) continue;
    if (!left || p->x < left->x) left = p;
    if (!right || p->x > right->x) right = p;
    if (!low || p->y < low->y) low = p;
    if (!high || p->y > high->y) high = p;
  }
  if (!left) {
    kx_display_msg("BADPNTS", no_points, "kx_extremepnts");
    return no_points;
  }
  // All are read before any is written: an output may be one of the points.
  const pnt_2d found[] = {*left, *right, *low, *high};
  kx::put(leftmost, found[0]);
  kx::put(rightmost, found[1]);
  kx::put(lowest, found[2]);
  kx::put(highest, found[3]);
  return 0;
}

int32_t KX_CALL kx_find_smallest_xy(const pnt_2d *pnts, int32_t count) {
  std::int32_t left = -1, smallest = -1;
  for (std::int32_t i = 0; pnts && i < count; ++i) {
    if (std::isnan(pnts[i].x) || std::isnan(pnts[i].y)) continue;
    if (left < 0 || pnts[i].x < pnts[left].x) left = i;
  }
  for (std::int32_t i = 0; left >= 0 && i < count; ++i) {
    if (!kx::equal(pnts[i].x, pnts[left].x) || std::isnan(pnts[i].y)) continue;
    if (smallest < 0 || pnts[i].y < pnts[smallest].y) smallest = i;
  }
  // An infinite abscissa equals nothing within tolerance, not even itself.
  return smallest < 0 ? left : smallest;
}
