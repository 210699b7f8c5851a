// Points of a segment and of its carrier: made, and recognised.
#include <cmath>
#include <utility>

#include "kxgeom/geometry.h"
#include "kxgeom/runtime.h"
#include "line.hpp"
#include "status.hpp"

int32_t KX_CALL kx_midpoint(const pnt_2d *p, const pnt_2d *q, pnt_2d *middle) {
  if (!p || !q || !middle) return kx::wrong_argument;
  *middle = {0.5 * p->x + 0.5 * q->x, 0.5 * p->y + 0.5 * q->y};
  return kx::done;
}

int32_t KX_CALL kx_pointdvln(const line_2d *segment, double m, double n, pnt_2d *point) {
  if (!segment || !point) return kx::wrong_argument;
  if (!std::isfinite(m + n) || kx::near_zero(m + n)) return kx::wrong_value;
  const double t = m / (m + n);
  const kx::vec2 p = kx::start(*segment) + t * kx::span(*segment);
  *point = {p.x, p.y};
  return kx::done;
}

int32_t KX_CALL kx_point_on_line(const line_2d *segment, double distance, pnt_2d *point) {
  if (!segment || !point) return kx::wrong_argument;
  const kx::vec2 d = kx::span(*segment);
  if (kx::vanishes(d)) return kx::coincident;
  const kx::vec2 p = kx::start(*segment) + distance * kx::unit(d);
  *point = {p.x, p.y};
  return kx::done;
}

int32_t KX_CALL kx_pointonline(const pnt_2d *p, const line_2d *segment) {
  return p && segment && kx::point_on_segment(*segment, kx::value(*p));
}

int32_t KX_CALL kx_lineloc(const line_2d *segment, const pnt_2d *p) {
  if (!segment || !p) return 0;
  const kx::vec2 d = kx::span(*segment);
  if (kx::vanishes(d)) return 0;
  const double side = kx::cross(d, kx::value(*p) - kx::start(*segment)), on = kx::tolerance * kx::length(d);
  return int32_t{side > on} - int32_t{side < -on};
}

int32_t KX_CALL kx_orient_line(line_2d *segment) {
  if (!segment) return 0;
  const pnt_2d from{segment->x1, segment->y1}, to{segment->x2, segment->y2};
  if (kx_smallerpnt(&from, &to) || !kx_smallerpnt(&to, &from)) return 0;
  *segment = {to.x, to.y, from.x, from.y};
  return 1;
}
