// Lines at right angles, parallel, or in the middle between points or lines.
#include <cmath>

#include "kxgeom/geometry.h"
#include "line.hpp"
#include "status.hpp"

namespace {

ile_2d sum(const ile_2d &g, const ile_2d &h, double sign) {
  return {g.a + sign * h.a, g.b + sign * h.b, g.c + sign * h.c};
}

}  // namespace

void KX_CALL kx_parallellines(const ile_2d *line, double distance, ile_2d *first, ile_2d *second) {
  if (!line || !first || !second) return;
  const auto [a, b, c] = *line;
  const double e = std::sqrt(a * a + b * b) * std::fabs(distance);
  *first = {a, b, c + e};
  *second = {a, b, c - e};
}

int32_t KX_CALL kx_perpendicular(const line_2d *first, const line_2d *second) {
  if (!first || !second) return 0;
  constexpr int32_t no_length = 7, vertical = 8;
  double m1, m2;
  const int32_t code1 = kx_slope(first, &m1), code2 = kx_slope(second, &m2);
  if (code1 == no_length || code2 == no_length) return 0;
  if (code1 == vertical) return kx::near_zero(m2);  // which a vertical's is not
  if (code2 == vertical) return kx::near_zero(m1);
  return kx::equal(m1 * m2, -1.0);
}

void KX_CALL kx_linepntperpend(const ile_2d *line, const pnt_2d *p, ile_2d *perpendicular) {
  if (!line || !p || !perpendicular) return;
  const double a = line->a, b = line->b;
  *perpendicular = {b, -a, a * p->y - b * p->x};
}

void KX_CALL kx_linepntparallel(ile_2d *parallel, const pnt_2d *p, const ile_2d *line) {
  if (!parallel || !p || !line) return;
  const double a = line->a, b = line->b;
  *parallel = {a, b, -(a * p->x + b * p->y)};
}

int32_t KX_CALL kx_linebisector(const pnt_2d *p1, const pnt_2d *p2, ile_2d *bisector) {
  if (!p1 || !p2 || !bisector) return kx::wrong_argument;
  const kx::vec2 p = kx::value(*p1), q = kx::value(*p2), d = p - q;
  if (kx::vanishes(d)) return kx::coincident;
  *bisector = {d.x, d.y, -0.5 * (kx::dot(p, p) - kx::dot(q, q))};
  return kx::done;
}

int32_t KX_CALL kx_bisector_two_lines(const ile_2d *line1, const ile_2d *line2, ile_2d *first, ile_2d *second) {
  if (!line1 || !line2 || !first || !second) return 0;
  ile_2d g = *line1, h = *line2;
  if (!kx::normalize(g) || !kx::normalize(h)) return 0;
  // Normals that point to one side of each other: their sum is the normal of the acute angle's bisector.
  const double sign = g.a * h.a + g.b * h.b < 0.0 ? -1.0 : 1.0;
  ile_2d acute = sum(g, h, sign), obtuse = sum(g, h, -sign);
  kx::normalize(acute);
  *first = acute;
  if (std::fabs(g.a * h.b - g.b * h.a) <= kx::tolerance) return 1;
  kx::normalize(obtuse);
  *second = obtuse;
  return 2;
}
