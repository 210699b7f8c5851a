// Where lines and segments of the plane cross.
#include <cmath>

#include "kxgeom/geometry.h"
#include "line.hpp"

namespace {

bool intersect_pil(const ile_2d &g, const ple_2d &h, pnt_2d &point) {
  const double d = g.a * h.dx + g.b * h.dy;
  if (!(std::fabs(d) > kx::tolerance)) return false;
  const double w = h.dy * h.x0 - h.y0 * h.dx;
  point = {(w * g.b - g.c * h.dx) / d, -(g.c * h.dy + w * g.a) / d};
  return true;
}

// In the box of the segment, its ends taken in the order of x.
bool within(const line_2d &s, kx::vec2 p) {
  const kx::vec2 a = kx::start(s), b = kx::end(s);
  return kx::greater(a.x, b.x) ? kx::in_box(b, a, p) : kx::in_box(a, b, p);
}

bool accept(bool crossing, const line_2d &s, const pnt_2d &found, pnt_2d &point) {
  if (!crossing || !within(s, kx::value(found))) return false;
  point = found;
  return true;
}

bool intersect_ils(const ile_2d &g, const line_2d &s, pnt_2d &point) {
  const kx::vec2 a = kx::start(s), b = kx::end(s);
  if (kx::same_point(a, b)) {
    // A segment that is a point must meet the line's equation to the last bit, on purpose: it is there to recognise
    // the very points a line was made of.
    if (g.a * a.x + g.b * a.y != -g.c) return false;
    point = {a.x, a.y};
    return true;
  }
  pnt_2d found{};
  return accept(kx::intersect_ile(g, kx::implicit_line(a, b), found), s, found, point);
}

bool intersect_pls(const ple_2d &g, const line_2d &s, pnt_2d &point) {
  const kx::vec2 a = kx::start(s), b = kx::end(s);
  if (kx::same_point(a, b)) {
    // A segment that is a point is looked for between the parameters 0 and 1, coordinate by coordinate; an upright or
    // level line does not find it. Both on purpose, for the same hosts.
    if (g.dx == 0.0 || g.dy == 0.0) return false;
    if (!kx::in_unit_interval((a.x - g.x0) / g.dx) || !kx::in_unit_interval((a.y - g.y0) / g.dy)) return false;
    point = {a.x, a.y};
    return true;
  }
  pnt_2d found{};
  return accept(kx::intersect_ple(g, kx::parametric_line(a, b), found), s, found, point);
}

constexpr int32_t x_axis = 1, y_axis = 2;

}  // namespace

int32_t KX_CALL kx_intersect(int32_t mode, const ile_2d *ile1, const ile_2d *ile2, const ple_2d *ple1,
                             const ple_2d *ple2, const line_2d *segment1, const line_2d *segment2, pnt_2d *point,
                             int32_t *count) {
  int32_t found = 0, result = 0;
  switch (mode) {
    case 0: result = found = kx_intersect_ile(ile1, ile2, point); break;
    case 1: result = found = kx_intersect_ple(ple1, ple2, point); break;
    case 2: result = found = kx_intersect_pil(ile1, ple1, point); break;
    case 3: result = found = kx_intersect_ls(segment1, segment2, point); break;
    case 4: result = found = kx_intersect_ils(ile1, segment1, point); break;
    case 5: result = found = kx_intersect_pls(ple1, segment1, point); break;
    default: result = mode;  // a wrong mode is answered with itself, unlike elsewhere: hosts show it
  }
  if (count) *count = found;
  return result;
}

int32_t KX_CALL kx_intersect_ile(const ile_2d *first, const ile_2d *second, pnt_2d *point) {
  return first && second && point && kx::intersect_ile(*first, *second, *point);
}

int32_t KX_CALL kx_intersect_ple(const ple_2d *first, const ple_2d *second, pnt_2d *point) {
  return first && second && point && kx::intersect_ple(*first, *second, *point);
}

int32_t KX_CALL kx_intersect_pil(const ile_2d *ile, const ple_2d *ple, pnt_2d *point) {
  return ile && ple && point && intersect_pil(*ile, *ple, *point);
}

int32_t KX_CALL kx_intersect_ls(const line_2d *first, const line_2d *second, pnt_2d *point) {
  return first && second && point && kx::intersect_ls(*first, *second, *point);
}

int32_t KX_CALL kx_intersect_ils(const ile_2d *ile, const line_2d *segment, pnt_2d *point) {
  return ile && segment && point && intersect_ils(*ile, *segment, *point);
}

int32_t KX_CALL kx_intersect_pls(const ple_2d *ple, const line_2d *segment, pnt_2d *point) {
  return ple && segment && point && intersect_pls(*ple, *segment, *point);
}

int32_t KX_CALL kx_intersectls(const pnt_2d *a1, const pnt_2d *a2, const pnt_2d *b1, const pnt_2d *b2, pnt_2d *point) {
  if (!a1 || !a2 || !b1 || !b2 || !point) return 0;
  return kx::intersect_ls(kx::value(*a1), kx::value(*a2), kx::value(*b1), kx::value(*b2), *point);
}

int32_t KX_CALL kx_intersectf(const line_2d *first, const line_2d *second) {
  return first && second && kx::touch(kx::start(*first), kx::end(*first), kx::start(*second), kx::end(*second));
}

int32_t KX_CALL kx_axisintersect(int32_t axis, const ile_2d *line, pnt_2d *point) {
  if (!line || !point || (axis != x_axis && axis != y_axis)) return 0;
  const double along = axis == x_axis ? line->a : line->b;
  if (!(std::fabs(along) > kx::tolerance)) return 0;
  const double at = (0.0 - line->c) / along;
  *point = axis == x_axis ? pnt_2d{at, 0.0} : pnt_2d{0.0, at};
  return 1;
}

int32_t KX_CALL kx_axisintersect_ls(int32_t axis, const line_2d *segment, pnt_2d *point) {
  if (!segment || !point || (axis != x_axis && axis != y_axis)) return 0;
  const kx::vec2 a = kx::start(*segment), d = kx::span(*segment);
  const double off = axis == x_axis ? a.y : a.x, step = axis == x_axis ? d.y : d.x;
  if (!(std::fabs(step) > kx::tolerance)) return 0;
  const double s = (0.0 - off) / step;
  if (!kx::in_unit_interval(s)) return 0;
  *point = axis == x_axis ? pnt_2d{kx::snapped(a.x + s * d.x), 0.0} : pnt_2d{0.0, kx::snapped(a.y + s * d.y)};
  return 1;
}
