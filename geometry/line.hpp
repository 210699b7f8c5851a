// Lines of the plane on values: segments, implicit and parametric lines, their crossings and tests. The exported
// functions of this room stand on these, and inner loops of the rooms above call them directly.
#pragma once

#include <cmath>

#include "kxgeom/types.h"
#include "records/vector.hpp"
#include "runtime/tolerance.hpp"

namespace kx {

// ---- points and segments ----

inline vec2 value(const pnt_2d &p) { return {p.x, p.y}; }
inline vec2 start(const line_2d &s) { return {s.x1, s.y1}; }
inline vec2 end(const line_2d &s) { return {s.x2, s.y2}; }
inline vec2 span(const line_2d &s) { return {s.x2 - s.x1, s.y2 - s.y1}; }
inline line_2d segment(vec2 from, vec2 to) { return {from.x, from.y, to.x, to.y}; }

// Positive when b lies counter-clockwise from a.
inline double cross(vec2 a, vec2 b) { return a.x * b.y - a.y * b.x; }

// Both components near zero: a step that leads nowhere.
inline bool vanishes(vec2 v) { return near_zero(v.x) && near_zero(v.y); }
inline bool same_point(vec2 p, vec2 q) { return vanishes(p - q); }

inline double snapped(double a) { return near_zero(a) ? 0.0 : a; }
inline vec2 snapped(vec2 p) { return {snapped(p.x), snapped(p.y)}; }

// Within the upright rectangle over two opposite corners, widened by the tolerance of the sides' own coordinates.
inline bool in_box(vec2 a, vec2 b, vec2 p) {
  return greater_equal(p.x, min(a.x, b.x)) && less_equal(p.x, max(a.x, b.x)) && greater_equal(p.y, min(a.y, b.y)) &&
         less_equal(p.y, max(a.y, b.y));
}

// A point of the segment itself: in its widened box, and no further than the tolerance from its carrier, or from the
// start of a segment whose ends coincide. Distances are taken from the start: they keep their digits far from the
// origin.
inline bool point_on_segment(vec2 a, vec2 b, vec2 p) {
  if (!in_box(a, b, p)) return false;
  const vec2 d = b - a;
  return vanishes(d) ? near_zero(length(p - a)) : std::fabs(cross(d, p - a)) <= tolerance * length(d);
}
inline bool point_on_segment(const line_2d &s, vec2 p) { return point_on_segment(start(s), end(s), p); }

// ---- line equations ----

// The carrier of two different points, not normalised.
inline ile_2d implicit_line(vec2 p, vec2 q) { return {p.y - q.y, q.x - p.x, p.x * q.y - p.y * q.x}; }
inline ple_2d parametric_line(vec2 p, vec2 q) { return {p.x, p.y, q.x - p.x, q.y - p.y}; }

// What the line's equation gives for a point: its signed distance when the line is normalised.
inline double at(const ile_2d &line, vec2 p) { return line.a * p.x + line.b * p.y + line.c; }
inline vec2 at(const ple_2d &line, double t) { return {line.x0 + t * line.dx, line.y0 + t * line.dy}; }

// Unit normal pointing from the origin to the line; for a line through the origin b >= 0. False, and the line as it
// was, when it has no direction.
inline bool normalize(ile_2d &line) {
  const double q = line.a * line.a + line.b * line.b;
  if (near_zero(q)) return false;
  double f = 1.0 / std::sqrt(q);
  if (line.c > tolerance) f = -f;
  if (near_zero(line.c) && line.b < -tolerance) f = -f;
  line = {line.a * f, line.b * f, line.c * f};
  return true;
}

// ---- crossings: the point is written only when there is one ----

inline bool intersect_ile(const ile_2d &g, const ile_2d &h, pnt_2d &point) {
  if (near_zero(g.a - h.a) && near_zero(g.b - h.b) && near_zero(g.c - h.c)) return false;
  const double d = g.a * h.b - g.b * h.a;
  if (!(std::fabs(d) > tolerance)) return false;
  point = {(h.c * g.b - g.c * h.b) / d, (h.a * g.c - h.c * g.a) / d};
  return true;
}

inline bool intersect_ple(const ple_2d &g, const ple_2d &h, pnt_2d &point) {
  const double d = h.dx * g.dy - h.dy * g.dx;
  if (!(std::fabs(d) > tolerance)) return false;
  const double dx = h.x0 - g.x0, dy = h.y0 - g.y0;
  const vec2 p = snapped(at(g, (dy * h.dx - dx * h.dy) / d));
  point = {p.x, p.y};
  return true;
}

// Two numbers side by side in one register; each is computed as a double of its own would be.
using lanes = double __attribute__((vector_size(16)));
inline lanes twice(double v) { return lanes{v, v}; }
inline auto near_zero(lanes v) { return (v >= twice(-tolerance)) & (v <= twice(tolerance)); }

// Where two segments cross. Made for random pairs, of which most do not: x and y, and then the parameters on the first
// and on the second segment, go side by side, and all tests come before the one decision. Parallel segments divide
// by 1.
struct segment_crossing {
  vec2 place;   // on the first segment, or on its carrier when there is no hit
  double s, u;  // the parameters
  bool hit;     // within both segments

  segment_crossing(vec2 a1, vec2 a2, vec2 b1, vec2 b2) {
    const lanes from{a1.x, a1.y}, other{b1.x, b1.y};
    const lanes a = lanes{a2.x, a2.y} - from, b = lanes{b2.x, b2.y} - other, e = other - from;
    const lanes products = lanes{a[1], a[0]} * b;
    const double d = products[0] - products[1];
    const bool crossing = std::fabs(d) > tolerance;
    const lanes su = (twice(e[1]) * lanes{b[0], a[0]} - twice(e[0]) * lanes{b[1], a[1]}) / twice(crossing ? d : 1.0);
    const auto on = (su >= twice(-tolerance)) & (su <= twice(1.0 + allowance(1.0)));
    const lanes p = from + twice(su[0]) * a, found = near_zero(p) ? twice(0.0) : p;
    place = {found[0], found[1]};
    s = su[0];
    u = su[1];
    hit = (int{crossing} & static_cast<int>(on[0] & on[1] & 1)) != 0;
  }

  vec2 point() const { return place; }
};

inline bool intersect_ls(vec2 a1, vec2 a2, vec2 b1, vec2 b2, pnt_2d &point) {
  const segment_crossing c(a1, a2, b1, b2);
  pnt_2d elsewhere;
  pnt_2d *const targets[] = {&elsewhere, &point};  // looked up, as a plain choice would be compiled to a branch
  *targets[int{c.hit}] = {c.place.x, c.place.y};
  return c.hit;
}
inline bool intersect_ls(const line_2d &a, const line_2d &b, pnt_2d &point) {
  return intersect_ls(start(a), end(a), start(b), end(b), point);
}

// The product of the sides of a on which the ends of b lie: positive when both lie on the same side.
inline double sides(vec2 a1, vec2 a2, vec2 b1, vec2 b2) {
  const vec2 d = a2 - a1;
  return ((b2.y - a2.y) * d.x - (b2.x - a2.x) * d.y) * ((b1.y - a1.y) * d.x - (b1.x - a1.x) * d.y);
}

// Whether two segments touch or cross, collinear ones included wherever they lie on their line.
inline bool touch(vec2 a1, vec2 a2, vec2 b1, vec2 b2) {
  return sides(a1, a2, b1, b2) <= tolerance && sides(b1, b2, a1, a2) <= tolerance;
}

}  // namespace kx
