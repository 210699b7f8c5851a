// Point in polygon: one point at a time, nothing kept and nothing allocated.
#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

#include "geometry/line.hpp"
#include "kxgeom/polygon.h"
#include "plane_points.hpp"
#include "ray.hpp"
#include "runtime/tolerance.hpp"

namespace {

// Below this every abscissa is the first one to be found. It is no bound for a host's coordinates.
constexpr double left_of_all = -1.7e200;

// Vertices are judged a block at a time, one bit each.
constexpr int block = 64;
using bits = std::uint64_t;

// Which of up to 64 vertices lie above a height.
bits above(const pnt_2d *v, std::int32_t n, double y) {
  bits all = 0;
  std::int32_t i = 0;
#ifdef __SSE2__
  const __m128d height = _mm_set1_pd(y);
  const auto two = [&](const pnt_2d *p) {
    return _mm_cmpgt_pd(_mm_unpackhi_pd(_mm_loadu_pd(&p[0].x), _mm_loadu_pd(&p[1].x)), height);
  };
  const auto four = [&](const pnt_2d *p) {
    return _mm_castps_si128(_mm_shuffle_ps(_mm_castpd_ps(two(p)), _mm_castpd_ps(two(p + 2)), _MM_SHUFFLE(2, 0, 2, 0)));
  };
  for (; i + 16 <= n; i += 16) {
    const __m128i low = _mm_packs_epi32(four(v + i), four(v + i + 4));
    const __m128i high = _mm_packs_epi32(four(v + i + 8), four(v + i + 12));
    all |= static_cast<bits>(static_cast<unsigned>(_mm_movemask_epi8(_mm_packs_epi16(low, high)))) << i;
  }
  for (; i + 2 <= n; i += 2) all |= static_cast<bits>(_mm_movemask_pd(two(v + i))) << i;
#endif
  for (; i < n; ++i) all |= bits{v[i].y > y} << i;
  return all;
}

// The vertices that follow, each compared with the rightmost one so far: one that is as far right within tolerance
// takes its place, so the maximum may come down a little.
void advance_rightmost(const pnt_2d *v, std::int32_t from, std::int32_t to, double &x, std::int32_t &index) {
  double least = x - kx::allowance(x);
  for (std::int32_t i = from; i < to; ++i) {
    if (!(least <= v[i].x)) continue;
    index = i;
    x = v[i].x;
    least = x - kx::allowance(x);
  }
}

// The same answer as advance_rightmost over all vertices, block by block: those before the last of the largest
// abscissas have no influence, and those after its block only when one of them comes near.
class rightmost_search {
 public:
  void look_at(const pnt_2d *v, std::int32_t from, std::int32_t to) {
    double four[4] = {left_of_all, left_of_all, left_of_all, left_of_all};
    std::int32_t i = from;
    for (; i + 4 <= to; i += 4) {
      for (int k = 0; k < 4; ++k) four[k] = v[i + k].x > four[k] ? v[i + k].x : four[k];
    }
    for (; i < to; ++i) four[0] = v[i].x > four[0] ? v[i].x : four[0];
    const double here = std::max(std::max(four[0], four[1]), std::max(four[2], four[3]));
    if (here >= largest_) {
      largest_ = here;
      later_ = left_of_all;
      block_ = from;
    } else if (here > later_) {
      later_ = here;
    }
  }

  std::int32_t index(const pnt_2d *v, std::int32_t n) const {
    std::int32_t index = 0;
    double x = left_of_all;
    const std::int32_t end = std::min(block_ + block, n);
    advance_rightmost(v, block_, end, x, index);
    if (x - kx::allowance(x) <= later_) advance_rightmost(v, end, n, x, index);
    return index;
  }

 private:
  double largest_ = left_of_all, later_ = left_of_all;
  std::int32_t block_ = 0;
};

// Of edges whose ends lie on different sides of a height.
constexpr auto not_level = kx::ray_edge::slope::not_level;

// The edges that end at the vertices of a block and cross: `now` says which of those lie above, `before` is the vertex
// ahead of the block and was_above its bit.
bool odd_crossings(kx::vec2 p, const pnt_2d &before, bits was_above, const pnt_2d *v, std::int32_t n, bits now) {
  bool odd = false;
  bits change = now ^ (now << 1 | was_above);
  if (n < block) change &= (bits{1} << n) - 1;
  for (; change; change &= change - 1) {
    const int k = std::countr_zero(change);
    odd ^= kx::ray_edge(kx::value(k ? v[k - 1] : before), kx::value(v[k]), not_level).crossed_from(p);
  }
  return odd;
}

// Stores the rightmost vertex in the same pass if an index is given: a large polygon comes from memory once.
[[gnu::noinline]] bool odd_crossings_of_blocks(kx::vec2 p, const pnt_2d *v, std::int32_t n, std::int32_t *index) {
  bool odd = false;
  rightmost_search search;
  bits was_above = v[n - 1].y > p.y ? 1 : 0;
  const pnt_2d *before = v + n - 1;
  for (std::int32_t first = 0; first < n; first += block) {
    const pnt_2d *here = v + first;
    const std::int32_t m = std::min(block, n - first);
    const bits now = above(here, m, p.y);
    odd ^= odd_crossings(p, *before, was_above, here, m, now);
    was_above = now >> (m - 1);
    before = here + m - 1;
    if (index && n > block) search.look_at(v, first, first + m);
  }
  if (index) *index = search.index(v, n);
  return odd;
}

// The same in one plain loop: of a small polygon most is what surrounds the work. Both tests are for the rare case, and
// let a NaN through to where it is settled.
bool odd_crossings_of_few(kx::vec2 p, const pnt_2d *v, std::int32_t n, std::int32_t *index) {
  bool was_above = !(v[n - 1].y <= p.y);
  bool odd = false;
  double least = index ? left_of_all : INFINITY;
  const auto look_at = [&](const pnt_2d &before, const pnt_2d &at) {
    const bool is_above = !(at.y <= p.y);
    if (is_above != was_above) {
      odd ^= kx::ray_edge(kx::value(before), kx::value(at), not_level).crossed_from(p);
      was_above = is_above;
    }
    if (!(least > at.x)) [[unlikely]] {
      if (!index || std::isnan(at.x)) return;
      *index = static_cast<std::int32_t>(&at - v);
      least = at.x - kx::allowance(at.x);
    }
  };
  look_at(v[n - 1], v[0]);
  for (std::int32_t i = 1; i < n; ++i) look_at(v[i - 1], v[i]);
  return odd;
}

// What one walk along a polygon list tells about a point.
struct standing {
  std::int32_t points = 0;
  bool odd = false;  // crossings of the ray
  bool on = false;   // some edge
};

// Where a coordinate lies beside the band that the boundary test could reach about the point's own: 1 above, 2 below.
class band {
 public:
  explicit band(double own) : low_(own - 2.0 * kx::allowance(own)), high_(own + 2.0 * kx::allowance(own)) {}
  int side(double c) const { return int{c > high_} | int{c < low_} << 1; }
  bool above(double c, double d) const { return c > high_ && d > high_; }
  bool below(double c, double d) const { return c < low_ && d < low_; }

 private:
  double low_, high_;
};

// The point between two bands: only edges that reach both are looked at closely.
class stand_point {
 public:
  explicit stand_point(kx::vec2 p) : p_(p), across_(p.x), along_(p.y) {}

  int side(kx::vec2 q) const { return along_.side(q.y); }

  void meet(kx::vec2 a, kx::vec2 b, standing &s) const {
    if (across_.below(a.x, b.x)) return;
    s.odd ^= kx::ray_edge(a, b).crossed_from(p_);
    if (!across_.above(a.x, b.x)) s.on = s.on || kx::point_on_segment(a, b, p_);
  }

 private:
  kx::vec2 p_;
  band across_, along_;
};

// The last edge closes the polygon. Stops as soon as the boundary is met if that alone decides.
standing stand(const kx::plane_points &polygon, kx::vec2 p, bool boundary_decides) {
  standing s;
  auto it = polygon.begin();
  if (!(it != polygon.end()) || !kx::finite(p)) return s;
  const stand_point here(p);
  const kx::vec2 first = *it;
  const int first_side = here.side(first);
  kx::vec2 last = first;
  int side = first_side;
  s.points = 1;
  for (++it; it != polygon.end(); ++it) {
    const kx::vec2 next = *it;
    const int next_side = here.side(next);
    if ((side & next_side) == 0) {
      here.meet(last, next, s);
      if (s.on && boundary_decides) return s;
    }
    last = next;
    side = next_side;
    ++s.points;
  }
  if ((side & first_side) == 0) here.meet(last, first, s);
  return s;
}

}  // namespace

int32_t KX_CALL kx_inpolygon(const pnt_2d *p, const pnt_2d *polygon, const int32_t *count, int32_t *rightmost_index) {
  if (!p || !polygon || !count || *count < 3) return 0;
  const std::int32_t n = *count - (kx::same_point(kx::value(polygon[0]), kx::value(polygon[*count - 1])) ? 1 : 0);
  // Vertex 0 is looked for again each time, on purpose: hosts pass 0 for "not known yet".
  std::int32_t *index = rightmost_index && *rightmost_index == 0 ? rightmost_index : nullptr;
  const kx::vec2 q = kx::value(*p);
  constexpr std::int32_t few = 16;
  return (n < few ? odd_crossings_of_few(q, polygon, n, index) : odd_crossings_of_blocks(q, polygon, n, index)) &&
         kx::finite(q);
}

int32_t KX_CALL kx_inpolygonl(const pnt_2d *p, const list_hdr *polygon) {
  if (!p) return 0;
  const standing s = stand(kx::plane_points(polygon), kx::value(*p), true);
  return s.points >= 3 && s.odd && !s.on;
}

int32_t KX_CALL kx_inonpolygonl(const pnt_2d *p, const list_hdr *polygon) {
  if (!p) return 0;
  const standing s = stand(kx::plane_points(polygon), kx::value(*p), false);
  return s.points >= 3 && (s.odd || s.on);
}

int32_t KX_CALL kx_onpolygonl(const pnt_2d *p, const list_hdr *polygon) {
  return p && stand(kx::plane_points(polygon), kx::value(*p), true).on;
}
