// Angles between lines and between segments.
#include <cmath>

#include "chords.hpp"
#include "kxgeom/geometry.h"
#include "line.hpp"

namespace {

// Two segments' directions as the turn from one to the other: cosine and sine of an angle up to 180 degrees. A cosine
// near zero is a right angle. False when one has no direction.
bool turn_between(const line_2d *s, const line_2d *t, kx::vec2 &turn) {
  if (!s || !t) return false;
  const kx::vec2 d = kx::span(*s), e = kx::span(*t);
  if (kx::vanishes(d) || kx::vanishes(e)) return false;
  const kx::vec2 u = kx::unit(d), v = kx::unit(e);
  turn = {kx::dot(u, v), std::fabs(kx::cross(u, v))};
  if (kx::near_zero(turn.x)) turn = {0.0, 1.0};
  return true;
}

}  // namespace

double KX_CALL kx_angletwolines(int32_t mode, const ile_2d *first, const ile_2d *second) {
  if (!first || !second) return 0.0;
  ile_2d g = *first, h = *second;
  if (!kx::normalize(g) || !kx::normalize(h)) return 0.0;
  double k = std::fabs(g.a * h.a + g.b * h.b);
  if (k > 1.0) k = 1.0;  // by rounding
  const bool right = k <= kx::tolerance;
  switch (mode) {
    case 0: return right ? 90.0 : std::acos(k) * kx::degrees_per_radian;
    case 1: return right ? kx::half_pi : std::acos(k);
    case 2: return right ? 0.0 : k;
    // The factor goes to the cosine, not to the angle, on purpose: what hosts have stored was made so.
    default: return right ? kx::half_pi : std::acos(k * kx::radians_per_degree);
  }
}

double KX_CALL kx_angle_diff(double a1, double a2) { return kx::greater(a1, a2) ? a2 + (360.0 - a1) : a2 - a1; }

double KX_CALL kx_angle_lines_cos(const line_2d *first, const line_2d *second) {
  kx::vec2 turn;
  if (!turn_between(first, second, turn)) return 0.0;
  return std::fmax(-1.0, std::fmin(1.0, turn.x));
}

double KX_CALL kx_angle_lines_deg(const line_2d *first, const line_2d *second) {
  kx::vec2 turn;
  return turn_between(first, second, turn) ? kx::degrees_of(turn) : 0.0;
}

double KX_CALL kx_angle_lines_rad(const line_2d *first, const line_2d *second) {
  kx::vec2 turn;
  if (!turn_between(first, second, turn)) return 0.0;
  return turn.x == 0.0 ? kx::half_pi : std::atan2(turn.y, turn.x);
}
