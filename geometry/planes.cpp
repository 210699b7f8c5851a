// Planes: their equations, what lies on them and what crosses them.
#include <algorithm>

#include "geometry/space_line.hpp"
#include "geometry/status.hpp"
#include "kxgeom/geometry.h"
#include "kxgeom/runtime.h"
#include "records/output.hpp"

using kx::relation;
using kx::vec3;

namespace {

constexpr int32_t on_one_line = 24, no_plane = 25;

bool has_normal(const planeeq &plane) { return kx::has_direction(kx::normal(plane)); }

planeeq plane_through(vec3 p, vec3 normal) { return {normal.x, normal.y, normal.z, -kx::dot(normal, p)}; }

double at(const planeeq &plane, vec3 p) { return kx::dot(kx::normal(plane), p) + plane.d; }

// The plane of two points and a direction.
int32_t plane_along(vec3 along, vec3 p, vec3 q, planeeq &plane) {
  const vec3 chord = q - p;
  if (kx::vanishes(chord)) return on_one_line;
  const vec3 normal = cross(chord, along);
  if (!(length(normal) > kx::tolerance * length(along))) return on_one_line;
  plane = plane_through(p, normal);
  return kx::done;
}

// The sign that a normalised plane has: d not positive; through the origin, the last of a, b and c that is not zero
// positive.
bool points_to_the_plane(const planeeq &unit) {
  if (!kx::near_zero(unit.d)) return unit.d < 0.0;
  if (!kx::near_zero(unit.c)) return unit.c > 0.0;
  return kx::near_zero(unit.b) ? unit.a > 0.0 : unit.b > 0.0;
}

[[gnu::cold]] int32_t bad_plane(const char *location) {
  kx_display_msg("BADPLANE", no_plane, location);
  return no_plane;
}

// A line through a plane: how they lie, and the parameter of the crossing when they meet.
struct piercing {
  relation lie;
  double t = 0.0;

  piercing(const kx::space_line &line, const planeeq &plane) {
    const vec3 n = kx::normal(plane);
    if (!kx::has_direction(line.along)) {
      lie = relation::no_direction;
    } else if (!has_normal(plane)) {
      lie = relation::no_plane;
    } else if (kx::perpendicular(n, line.along)) {
      const double off = at(plane, line.from) / length(n);
      lie = kx::near_zero(off) ? relation::coincident : relation::parallel;
    } else {
      t = -at(plane, line.from) / dot(n, line.along);
      lie = relation::meet;
    }
  }
};

// Tells how they lie, writes the point and counts it.
template <class Line>
int32_t pierce(const Line *line, bool within_segment, const planeeq *plane, pnt_3d *pnt, int32_t *lie) {
  if (!line || !plane || !pnt) return 0;
  const kx::space_line carrier = kx::carrier(*line);
  const piercing p(carrier, *plane);
  kx::put(lie, static_cast<int32_t>(p.lie));
  if (p.lie != relation::meet || (within_segment && !kx::in_unit_interval(p.t))) return 0;
  *pnt = kx::record(carrier.at(p.t));
  return 1;
}

}  // namespace

int32_t KX_CALL kx_planeequation(int32_t mode, const line_3d *seg, const ple_3d *line, const pnt_3d *p1,
                                 const pnt_3d *p2, const pnt_3d *p3, planeeq *plane) {
  switch (mode) {
    case 0: return kx_planeeq_3p(p1, p2, p3, plane);
    case 1: return kx_planeeq_2pple(line, p1, p2, plane);
    case 2: return kx_planeeq_pnl(line, p1, plane);
    case 3: return kx_planeeq_2pls(seg, p1, p2, plane);
    case 4: return kx_planeeq_pnls(seg, p1, plane);
    default: return kx::wrong_argument;
  }
}

int32_t KX_CALL kx_planeeq_3p(const pnt_3d *p1, const pnt_3d *p2, const pnt_3d *p3, planeeq *plane) {
  if (!p1 || !p2 || !p3 || !plane) return kx::wrong_argument;
  const vec3 p = kx::value(*p1), q = kx::value(*p2), r = kx::value(*p3), u = q - p, v = r - p, w = r - q;
  if (kx::vanishes(u) || kx::vanishes(v) || kx::vanishes(w)) return on_one_line;
  // The lowest height of the triangle decides: the same whatever the order of the points, and sound for small ones.
  const vec3 normal = cross(u, v);
  if (!(length(normal) > kx::tolerance * std::max({length(u), length(v), length(w)}))) return on_one_line;
  *plane = plane_through(p, normal);
  return kx::done;
}

int32_t KX_CALL kx_planeeq_2pple(const ple_3d *line, const pnt_3d *p1, const pnt_3d *p2, planeeq *plane) {
  if (!line || !p1 || !p2 || !plane) return kx::wrong_argument;
  const vec3 along = kx::carrier(*line).along;
  if (!kx::has_direction(along)) return kx::no_direction;
  return plane_along(along, kx::value(*p1), kx::value(*p2), *plane);
}

int32_t KX_CALL kx_planeeq_pnl(const ple_3d *line, const pnt_3d *pnt, planeeq *plane) {
  if (!line || !pnt || !plane) return kx::wrong_argument;
  const vec3 along = kx::carrier(*line).along;
  if (!kx::has_direction(along)) return kx::no_direction;
  *plane = plane_through(kx::value(*pnt), along);
  return kx::done;
}

int32_t KX_CALL kx_planeeq_2pls(const line_3d *seg, const pnt_3d *p1, const pnt_3d *p2, planeeq *plane) {
  if (!seg || !p1 || !p2 || !plane) return kx::wrong_argument;
  const vec3 along = kx::carrier(*seg).along;
  if (kx::vanishes(along)) return kx::coincident;
  return plane_along(along, kx::value(*p1), kx::value(*p2), *plane);
}

int32_t KX_CALL kx_planeeq_pnls(const line_3d *seg, const pnt_3d *pnt, planeeq *plane) {
  if (!seg || !pnt || !plane) return kx::wrong_argument;
  const vec3 along = kx::carrier(*seg).along;
  if (kx::vanishes(along)) return kx::coincident;
  *plane = plane_through(kx::value(*pnt), along);
  return kx::done;
}

int32_t KX_CALL kx_normalizeplane(planeeq *plane) {
  if (!plane) return kx::wrong_argument;
  if (!has_normal(*plane)) return bad_plane("kx_normalizeplane");
  const double len = length(kx::normal(*plane));
  const planeeq unit{plane->a / len, plane->b / len, plane->c / len, plane->d / len};
  *plane = points_to_the_plane(unit) ? unit : planeeq{-unit.a, -unit.b, -unit.c, -unit.d};
  return kx::done;
}

int32_t KX_CALL kx_parallelplanes(const planeeq *plane, double d, planeeq *first, planeeq *second) {
  if (!plane || !first || !second) return kx::wrong_argument;
  const planeeq p = *plane;
  if (!has_normal(p)) return bad_plane("kx_parallelplanes");
  const double e = length(kx::normal(p)) * std::fabs(d);
  *first = {p.a, p.b, p.c, p.d + e};
  *second = {p.a, p.b, p.c, p.d - e};
  return kx::done;
}

int32_t KX_CALL kx_normal_to_plane(const planeeq *plane, vector_3d *normal) {
  if (!plane || !normal) return kx::wrong_argument;
  if (!has_normal(*plane)) return no_plane;
  const vec3 n = kx::normal(*plane);
  *normal = kx::whole_record(n / length(n), 1.0);
  return kx::done;
}

int32_t KX_CALL kx_plane_pnt(const planeeq *plane, const pnt_3d *pnt, pnt_3d *foot) {
  if (!plane || !pnt || !foot) return kx::wrong_argument;
  if (!has_normal(*plane)) return no_plane;
  const vec3 n = kx::normal(*plane), p = kx::value(*pnt);
  *foot = kx::record(p - at(*plane, p) / dot(n, n) * n);
  return kx::done;
}

double KX_CALL kx_distpntplane(const pnt_3d *pnt, const planeeq *plane) {
  if (!pnt || !plane || !has_normal(*plane)) return 0.0;
  return at(*plane, kx::value(*pnt)) / length(kx::normal(*plane));
}

double KX_CALL kx_angletwoplanes(int32_t mode, const planeeq *first, const planeeq *second) {
  if (!first || !second) return 0.0;
  return kx::acute_angle(mode, kx::normal(*first), kx::normal(*second));
}

double KX_CALL kx_anglelineplane(int32_t mode, const ple_3d *line, const planeeq *plane) {
  if (!line || !plane) return 0.0;
  vec3 u = kx::carrier(*line).along, n = kx::normal(*plane);
  if (!kx::has_direction(u) || !kx::has_direction(n)) return 0.0;
  u = u / length(u);
  n = n / length(n);
  return kx::acute_angle(mode, std::fabs(dot(u, n)), length(cross(u, n)));
}

int32_t KX_CALL kx_inttwoplanes(const planeeq *first, const planeeq *second, ple_3d *line) {
  if (!first || !second || !line) return 0;
  const vec3 n1 = kx::normal(*first), n2 = kx::normal(*second), g = cross(n1, n2);
  if (!(dot(g, g) > kx::tolerance)) return 0;
  const vec3 p = cross(second->d * n1 - first->d * n2, g) / dot(g, g);
  *line = {p.x, p.y, p.z, g.x, g.y, g.z};
  return 1;
}

int32_t KX_CALL kx_intthreeplanes(const planeeq *first, const planeeq *second, const planeeq *third, pnt_3d *pnt) {
  if (!first || !second || !third || !pnt) return 0;
  const auto [a1, b1, c1, d1] = *first;
  const auto [a2, b2, c2, d2] = *second;
  const auto [a3, b3, c3, d3] = *third;
  const double m1 = c3 * b2 - c2 * b3, m2 = a2 * c3 - c2 * a3, m3 = a2 * b3 - a3 * b2;
  const double det = m1 * a1 - m2 * b1 + m3 * c1;
  if (!(std::fabs(det) > kx::tolerance)) return 0;
  const double r1 = c3 * d2 - c2 * d3, r2 = d2 * b3 - d3 * b2, r3 = a2 * d3 - a3 * d2;
  *pnt = {(r1 * b1 - m1 * d1 - r2 * c1) / det, (m2 * d1 - r1 * a1 - r3 * c1) / det,
          (r2 * a1 + r3 * b1 - m3 * d1) / det};
  return 1;
}

int32_t KX_CALL kx_intlineplane(int32_t mode, const ple_3d *line, const line_3d *seg, const planeeq *plane, pnt_3d *pnt,
                                int32_t *lie) {
  switch (mode) {
    case 0: return pierce(line, false, plane, pnt, lie);
    case 1: return pierce(seg, true, plane, pnt, lie);
    default: return 0;
  }
}

int32_t KX_CALL kx_intlineplane_ls(const line_3d *seg, const planeeq *plane, pnt_3d *pnt) {
  return pierce(seg, true, plane, pnt, nullptr);
}

int32_t KX_CALL kx_intlineplane_ple(const ple_3d *line, const planeeq *plane, pnt_3d *pnt) {
  return pierce(line, false, plane, pnt, nullptr);
}
