// The place of a point in rectangular, cylindrical, spherical and direction coordinates, on values. Angles are exact
// radians: the short constants of the library are for comparing them, not for turning by them.
#pragma once

#include <cmath>
#include <numbers>

#include "kxgeom/types.h"

namespace kx {

inline pnt_3d rectangular(const cylcoord &c) { return {c.r * std::cos(c.theta), c.r * std::sin(c.theta), c.z}; }

inline pnt_3d rectangular(const sphercoord &s) {
  const double across = std::sin(s.phi);
  return {s.r * (across * std::cos(s.theta)), s.r * (across * std::sin(s.theta)), s.r * std::cos(s.phi)};
}

inline pnt_3d rectangular(const polarcoord &p) {
  return {p.r * std::cos(p.alpha), p.r * std::cos(p.beta), p.r * std::cos(p.gamma)};
}

// The angle of (x, y) from the x axis, 0 to a full turn. Adding zero takes the sign off a zero: it turns nothing round.
inline double full_azimuth(double x, double y) {
  const double angle = std::atan2(y + 0.0, x + 0.0);
  return angle < 0.0 ? angle + 2.0 * std::numbers::pi : angle;
}

// The angle from an axis, 0 to half a turn, of what lies so far along it and so far, not negative, off it. Unlike an
// arc cosine it keeps the digits near the axis.
inline double angle_from_axis(double along, double off) { return std::atan2(off, along + 0.0); }

inline cylcoord cylindrical(const pnt_3d &p) { return {std::hypot(p.x, p.y), full_azimuth(p.x, p.y), p.z}; }
inline cylcoord cylindrical(const sphercoord &s) { return {s.r * std::sin(s.phi), s.theta, s.r * std::cos(s.phi)}; }

inline sphercoord spherical(const pnt_3d &p) {
  const double off = std::hypot(p.x, p.y);
  return {std::hypot(off, p.z), full_azimuth(p.x, p.y), angle_from_axis(p.z, off)};
}

// An azimuth within one turn is kept; another one, or one seen from behind, is brought there.
inline sphercoord spherical(const cylcoord &c) {
  const bool kept = c.r >= 0.0 && c.theta >= 0.0 && c.theta <= 2.0 * std::numbers::pi;
  const pnt_3d p = rectangular(c);
  return {std::hypot(c.r, c.z), kept ? c.theta : full_azimuth(p.x, p.y), angle_from_axis(c.z, std::fabs(c.r))};
}

inline polarcoord polar(const pnt_3d &p) {
  return {std::hypot(std::hypot(p.x, p.y), p.z), angle_from_axis(p.x, std::hypot(p.y, p.z)),
          angle_from_axis(p.y, std::hypot(p.z, p.x)), angle_from_axis(p.z, std::hypot(p.x, p.y))};
}

}  // namespace kx
