// The direction from one point to another, as a pseudo-angle for comparing and as an angle; and the vector record that
// holds it.
#pragma once

#include <cmath>

#include "records/vector.hpp"
#include "runtime/quarter_turn.hpp"
#include "runtime/tolerance.hpp"

namespace kx {

// 0 up to 4, exactly 0, 1, 2 and 3 on the axes; 0 when the points coincide.
inline double pseudo_angle(vec2 from, vec2 to) { return pseudo_angle(to.x - from.x, to.y - from.y); }

// The angle of a pseudo-angle, in degrees or radians by the quarter and the unit's size per radian: exact on the axes,
// and never past the quarter it lies in, although the unit's constants have eleven digits. 0 when it is not finite;
// whole turns too many are taken off.
inline double angle_of_pseudo(double pseudo, double quarter, double per_radian) {
  if (!(pseudo >= 0.0 && pseudo < 4.0)) [[unlikely]] {
    if (!std::isfinite(pseudo)) return 0.0;
    pseudo = std::fmod(pseudo, 4.0);
    if (pseudo < 0.0) pseudo += 4.0;
    if (pseudo >= 4.0) return 0.0;
  }
  const double quarters = static_cast<int>(pseudo);
  const double rest = 2.0 * std::atan(pseudo - quarters) * per_radian;
  return quarter * quarters + (rest < quarter ? rest : quarter);
}

inline double degrees_of_pseudo(double pseudo) { return angle_of_pseudo(pseudo, 90.0, degrees_per_radian); }
inline double direction_degrees(vec2 from, vec2 to) { return degrees_of_pseudo(pseudo_angle(from, to)); }

// The angle that the direction field holds: of i and j, in degrees counter-clockwise from x; 0 when upright.
inline double azimuth(vec3 v) { return direction_degrees({0.0, 0.0}, {v.x, v.y}); }

// A vector record with all its fields.
inline vector_3d whole_record(vec3 v, double len) { return {azimuth(v), len, v.x, v.y, v.z}; }
inline vector_3d whole_record(vec3 v) { return whole_record(v, length(v)); }

}  // namespace kx
