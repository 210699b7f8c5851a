// Distances between points, and of points from lines.
#include <cmath>

#include "kxgeom/geometry.h"
#include "line.hpp"

namespace {

// Of a point from the carrier of two points, positive on the side away from the origin; 0 when they make no carrier.
double signed_distance(kx::vec2 p, kx::vec2 a, kx::vec2 b) {
  ile_2d carrier = kx::implicit_line(a, b);
  return kx::normalize(carrier) ? kx::at(carrier, p) : 0.0;
}

double distance_from(const ple_2d &line, kx::vec2 p) {
  const double dx = line.dx, dy = line.dy, l = dx * dx + dy * dy;
  if (kx::near_zero(l)) return 0.0;
  const double ux = p.x - line.x0, uy = p.y - line.y0;
  return kx::length(kx::vec2{ux * (dy * dy) - dx * dy * uy, uy * (dx * dx) - dx * dy * ux}) / l;
}

}  // namespace

double KX_CALL kx_distance(const pnt_2d *p, const pnt_2d *q) {
  return p && q ? kx::length(kx::value(*q) - kx::value(*p)) : 0.0;
}

double KX_CALL kx_distance_3d(const pnt_3d *p, const pnt_3d *q) {
  if (!p || !q) return 0.0;
  const kx::vec3 d{q->x - p->x, q->y - p->y, q->z - p->z};
  // Points closer than the tolerance are one point here, although their distance in the plane is told as it is.
  return kx::near_zero(d.x) && kx::near_zero(d.y) && kx::near_zero(d.z) ? 0.0 : kx::length(d);
}

double KX_CALL kx_distpntln_ile(const pnt_2d *p, const ile_2d *line) {
  return p && line ? kx::at(*line, kx::value(*p)) : 0.0;
}

double KX_CALL kx_distpntln_ls(const pnt_2d *p, const line_2d *segment) {
  if (!p || !segment) return 0.0;
  const kx::vec2 point = kx::value(*p), a = kx::start(*segment), b = kx::end(*segment);
  return kx::same_point(a, b) ? kx::length(a - point) : signed_distance(point, a, b);
}

double KX_CALL kx_distpntline(int32_t mode, const pnt_2d *p, const pnt_2d *start, const pnt_2d *end, const ile_2d *ile,
                              const ple_2d *ple) {
  if (!p) return 0.0;
  const kx::vec2 point = kx::value(*p);
  if (mode == 0 && ile) return kx::at(*ile, point);
  if (mode == 1 && ple) return distance_from(*ple, point);
  if (mode != 2 || !start || !end) return 0.0;
  // Coinciding points are no line here, while kx_distpntln_ls takes them for the point that they are.
  return signed_distance(point, kx::value(*start), kx::value(*end));
}
