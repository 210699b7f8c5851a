// How one segment lies to another, as a code: the table stands in the header.
#include <cmath>

#include "geometry/line.hpp"
#include "kxgeom/geometry.h"

namespace {

using kx::vec2;

// A's frame: A's start is the origin, x runs along A. The coordinates are projections onto A's vector, not products of
// a rotation: no angle is computed, and both builds give the same bits. A point has no direction of its own, it borrows
// B's; so a point on B is found however B is turned.
struct frame {
  vec2 origin, along;
  double unit, length;  // of the direction; of A, 0 when it is a point

  frame(const line_2d &a, const line_2d &b) : origin(kx::start(a)), along(kx::span(a)) {
    const bool point = kx::vanishes(along);
    if (point) along = kx::vanishes(kx::span(b)) ? vec2{1.0, 0.0} : kx::span(b);
    unit = kx::length(along);
    length = point ? 0.0 : unit;
  }

  double x(vec2 v) const { return kx::dot(along, v) / unit; }
  double y(vec2 v) const { return kx::cross(along, v) / unit; }
};

// ---- on one line ----

enum zone { before, start, inside, end, past };

// Where x lies along a segment from 0 to length. Of a segment so short that x is at both its ends, it is at the start.
zone zone_of(double x, double length) {
  if (kx::near_zero(x)) return start;
  if (kx::equal(x, length)) return end;
  return x < 0.0 ? before : x > length ? past : inside;
}

// B's start in the row, its end in the column. 14 stands for three codes: with it, against it, or a point.
constexpr int32_t on_segment[5][5] = {
    {0, 10, 11, 12, 15}, {20, 122, 13, 120, 16}, {21, 23, 14, 17, 18}, {22, 121, 27, 123, 19}, {25, 26, 28, 29, 0}};

// The same when A is a point, at its own start.
constexpr int32_t on_point[5][5] = {{0, 125, 0, 0, 8}, {124, 120, 0, 0, 124}, {}, {}, {8, 125, 0, 0, 0}};

int32_t overlap(double x1, double x2, double length) {
  const zone from = zone_of(x1, length), to = zone_of(x2, length);
  if (length == 0.0) return on_point[from][to];
  if (from == inside && to == inside && !(x2 - x1 > kx::tolerance)) return kx::near_zero(x2 - x1) ? 9 : 24;
  return on_segment[from][to];
}

// ---- crossing ----

enum place { at_start, at_end, between };

// A crossing that the segment's parameter admits a little outside is at that end, however long the segment.
place place_of(double x, double length) {
  if (x <= kx::tolerance) return at_start;
  return kx::greater_equal(x, length) ? at_end : between;
}

// The place on A in the row, on B in the column.
constexpr int32_t crossing_group[3][3] = {{50, 60, 110}, {30, 40, 100}, {70, 80, 90}};

// Which way B heads, counter-clockwise from A's own direction.
int32_t heading(bool left, double run) {
  const int32_t turn = kx::near_zero(run) ? 1 : run > 0.0 ? 0 : 2;
  return left ? turn : 5 - turn;
}

}  // namespace

int32_t KX_CALL kx_linerelationship(const line_2d *a, const line_2d *b, pnt_2d *pnt) {
  if (!a || !b) return 0;
  const frame f(*a, *b);
  const vec2 b1 = kx::start(*b) - f.origin, b2 = kx::end(*b) - f.origin, span = kx::span(*b);
  const double length_b = kx::length(span);
  if (!std::isfinite(f.unit + length_b)) return 0;
  if (kx::near_zero(f.y(b1)) && kx::near_zero(f.y(b2))) return overlap(f.x(b1), f.x(b2), f.length);
  if (f.length == 0.0) return 0;
  const kx::segment_crossing crossing(kx::start(*a), kx::end(*a), kx::start(*b), kx::end(*b));
  if (!crossing.hit) return 0;
  if (pnt) *pnt = {crossing.point().x, crossing.point().y};
  const place on_a = place_of(crossing.s * f.length, f.length), on_b = place_of(crossing.u * length_b, length_b);
  return crossing_group[on_a][on_b] + heading(f.y(span) > 0.0, f.x(span));
}
