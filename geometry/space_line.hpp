// Lines and planes of space on values: the tests and steps on which the exported functions stand.
#pragma once

#include <cmath>
#include <cstdint>
#include <limits>

#include "kxgeom/types.h"
#include "records/direction.hpp"
#include "records/vector.hpp"
#include "runtime/tolerance.hpp"

namespace kx {

inline vec3 normal(const planeeq &p) { return {p.a, p.b, p.c}; }

inline bool vanishes(vec3 v) { return near_zero(v.x) && near_zero(v.y) && near_zero(v.z); }

// What snaps a crossing to the coordinate planes.
inline vec3 snapped(vec3 p) {
  return {near_zero(p.x) ? 0.0 : p.x, near_zero(p.y) ? 0.0 : p.y, near_zero(p.z) ? 0.0 : p.z};
}

// A length that can be divided by; NaN and infinity are none.
inline bool is_length(double len) { return len > tolerance && len <= std::numeric_limits<double>::max(); }
inline bool has_direction(vec3 v) { return is_length(length(v)); }

// At most 1e-7 radians apart, in either sense. NaN counts as parallel: nothing can be divided by its sine.
inline bool parallel(vec3 u, vec3 v) { return !(length(cross(u, v)) > tolerance * length(u) * length(v)); }
inline bool perpendicular(vec3 u, vec3 v) { return !(std::fabs(dot(u, v)) > tolerance * length(u) * length(v)); }

// A line: one of its points and its direction, of any length.
struct space_line {
  vec3 from, along;

  vec3 at(double t) const { return from + t * along; }
  double distance(vec3 p) const { return length(cross(p - from, along)) / length(along); }
};

inline space_line carrier(const ple_3d &line) { return {{line.x0, line.y0, line.z0}, {line.dx, line.dy, line.dz}}; }
inline space_line carrier(const line_3d &s) { return {{s.x1, s.y1, s.z1}, {s.x2 - s.x1, s.y2 - s.y1, s.z2 - s.z1}}; }

// How two lines, or a line and a plane, lie to each other. Hosts know the numbers.
enum class relation : std::int32_t {
  skew = 0,
  meet = 1,
  parallel = 2,
  coincident = 3,
  no_direction = 4,
  no_plane = 25
};

// Two lines: how they lie, how far apart, and the parameters of the points where each is nearest to the other (0 unless
// they are skew or meet).
struct line_pair {
  relation lie;
  double gap = 0.0, s = 0.0, t = 0.0;

  line_pair(const space_line &a, const space_line &b) {
    if (!has_direction(a.along) || !has_direction(b.along)) {
      lie = relation::no_direction;
      return;
    }
    const vec3 w = b.from - a.from;
    if (kx::parallel(a.along, b.along)) {
      gap = a.distance(b.from);
      lie = near_zero(gap) ? relation::coincident : relation::parallel;
      return;
    }
    const vec3 n = cross(a.along, b.along);
    gap = std::fabs(dot(w, n)) / length(n);
    s = dot(cross(w, b.along), n) / dot(n, n);
    t = dot(cross(w, a.along), n) / dot(n, n);
    lie = near_zero(gap) ? relation::meet : relation::skew;
  }
};

// An angle of 0 to 90 degrees, given by two legs of a right triangle, neither negative, in the unit of the mode: 0
// degrees, 1 radians, 2 the cosine; 0.0 for other modes. The legs keep the digits of small angles, which an arc cosine
// loses; a right angle, within tolerance, has exactly the constants that hosts compare with.
inline double acute_angle(std::int32_t mode, double opposite, double adjacent) {
  const double cosine = adjacent / std::sqrt(opposite * opposite + adjacent * adjacent);
  const bool right = near_zero(cosine);
  switch (mode) {
    case 0: return right ? 90.0 : std::atan2(opposite, adjacent) * degrees_per_radian;
    case 1: return right ? half_pi : std::atan2(opposite, adjacent);
    case 2: return right ? 0.0 : cosine;
    default: return 0.0;
  }
}

// The same of two directions; 0.0 when one of them is none.
inline double acute_angle(std::int32_t mode, vec3 u, vec3 v) {
  if (!has_direction(u) || !has_direction(v)) return 0.0;
  u = u / length(u);
  v = v / length(v);
  return acute_angle(mode, length(cross(u, v)), std::fabs(dot(u, v)));
}

}  // namespace kx
