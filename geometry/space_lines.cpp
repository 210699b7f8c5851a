// Lines of space: their equations, distances, angles and crossings.
#include "geometry/space_line.hpp"
#include "geometry/status.hpp"
#include "kxgeom/geometry.h"
#include "kxgeom/runtime.h"
#include "records/output.hpp"

using kx::relation;
using kx::space_line;
using kx::vec3;

namespace {

// Whether a point of a line with this parameter counts: a segment ends, a line does not.
bool holds(const ple_3d *, double) { return true; }
bool holds(const line_3d *, double t) { return kx::in_unit_interval(t); }

// Tells how two lines lie, writes the point of the first at which they meet and counts it.
template <class First, class Second>
int32_t meet(const First *a, const Second *b, pnt_3d *pnt, int32_t *lie) {
  if (!a || !b || !pnt) return 0;
  const space_line first = kx::carrier(*a);
  const kx::line_pair pair(first, kx::carrier(*b));
  kx::put(lie, static_cast<int32_t>(pair.lie));
  if (pair.lie != relation::meet || !holds(a, pair.s) || !holds(b, pair.t)) return 0;
  *pnt = kx::record(kx::snapped(first.at(pair.s)));
  return 1;
}

double distance(const pnt_3d *pnt, const line_3d *seg) {
  if (!pnt || !seg) return 0.0;
  const space_line line = kx::carrier(*seg);
  const vec3 p = kx::value(*pnt);
  return kx::vanishes(line.along) ? length(p - line.from) : line.distance(p);
}

double distance(const pnt_3d *pnt, const ple_3d *line) {
  if (!pnt || !line || !kx::has_direction(kx::carrier(*line).along)) return 0.0;
  return kx::carrier(*line).distance(kx::value(*pnt));
}

}  // namespace

int32_t KX_CALL kx_lineeqspace(const pnt_3d *p1, const pnt_3d *p2, ple_3d *line) {
  if (!p1 || !p2 || !line) return kx::wrong_argument;
  const vec3 p = kx::value(*p1), d = kx::value(*p2) - p;
  if (kx::vanishes(d)) return kx::coincident;
  *line = {p.x, p.y, p.z, d.x, d.y, d.z};
  return kx::done;
}

int32_t KX_CALL kx_normallineeqspace(ple_3d *line) {
  if (!line) return kx::wrong_argument;
  const auto [from, along] = kx::carrier(*line);
  if (!kx::has_direction(along)) {
    // The location lacks two letters of the name: it is what hosts have always been shown.
    kx_display_msg("BADPECOEFF", kx::no_direction, "kx_normlineeqspace");
    return kx::no_direction;
  }
  const vec3 unit = along / length(along);
  *line = {from.x, from.y, from.z, unit.x, unit.y, unit.z};
  return kx::done;
}

int32_t KX_CALL kx_mplinespace(const line_3d *seg, pnt_3d *pnt) {
  if (!seg || !pnt) return kx::wrong_argument;
  *pnt = kx::record(kx::carrier(*seg).at(0.5));
  return kx::done;
}

double KX_CALL kx_distancespace(const pnt_3d *p, const pnt_3d *q) {
  return p && q ? length(kx::value(*q) - kx::value(*p)) : 0.0;
}

double KX_CALL kx_distpntlinespace(int32_t mode, const pnt_3d *pnt, const ple_3d *line, const line_3d *seg) {
  switch (mode) {
    case 0: return distance(pnt, line);
    case 1: return distance(pnt, seg);
    default: return 0.0;
  }
}

double KX_CALL kx_distpntlnsp_ls(const pnt_3d *pnt, const line_3d *seg) { return distance(pnt, seg); }

double KX_CALL kx_distpntlnsp_ple(const pnt_3d *pnt, const ple_3d *line) { return distance(pnt, line); }

double KX_CALL kx_distlinespace(const ple_3d *first, const ple_3d *second) {
  return first && second ? kx::line_pair(kx::carrier(*first), kx::carrier(*second)).gap : 0.0;
}

double KX_CALL kx_anglelinesspace(int32_t mode, const ple_3d *first, const ple_3d *second) {
  if (!first || !second) return 0.0;
  return kx::acute_angle(mode, kx::carrier(*first).along, kx::carrier(*second).along);
}

int32_t KX_CALL kx_intlinespace(int32_t mode, const ple_3d *line1, const ple_3d *line2, const line_3d *seg1,
                                const line_3d *seg2, pnt_3d *pnt, int32_t *lie) {
  switch (mode) {
    case 0: return meet(line1, line2, pnt, lie);
    case 1: return meet(seg1, seg2, pnt, lie);
    case 2: return meet(line1, seg1, pnt, lie);
    default: return 0;
  }
}

int32_t KX_CALL kx_intlinespace_ls(const line_3d *first, const line_3d *second, pnt_3d *pnt) {
  return meet(first, second, pnt, nullptr);
}

int32_t KX_CALL kx_intlinespace_ple(const ple_3d *first, const ple_3d *second, pnt_3d *pnt) {
  return meet(first, second, pnt, nullptr);
}
