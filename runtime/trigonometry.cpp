// Trigonometric functions of radians and their inverses in degrees.
#include <cmath>

#include "bad_parameter.hpp"
#include "kxgeom/runtime.h"
#include "tolerance.hpp"

namespace {

// |x| less whole turns, taken off one by one, as their rounding is part of the results; a number so large that this
// would take long, or never end, is reduced by one remainder.
double reduced(double x) {
  constexpr double far_off = 1e5;
  double r = std::fabs(x);
  if (r >= far_off) [[unlikely]]
    r = std::fmod(r, kx::two_pi);
  const double limit = kx::two_pi + kx::allowance(kx::two_pi);
  while (r > limit) r -= kx::two_pi;
  return r;
}

bool sine_vanishes(double r) { return kx::equal(r, kx::pi) || kx::equal(r, kx::two_pi) || kx::near_zero(r); }

double with_sign_of(double x, double result) { return x > kx::tolerance ? result : -result; }

// A polar angle in degrees from -90 to 270, and never a near miss of 0.
double folded(double a) {
  if (kx::near_zero(360.0 - a)) return 0.0;
  if (kx::less_equal(a, 270.0)) return a;
  return kx::near_zero(a - 360.0) ? 0.0 : a - 360.0;
}

}  // namespace

double KX_CALL kx_secant(double x) {
  if (std::isinf(x)) return kx::bad_parameter("kx_secant");
  const double r = reduced(x);
  if (kx::equal(r, kx::half_pi) || kx::equal(r, kx::three_half_pi)) return kx::bad_parameter("kx_secant");
  if (kx::near_zero(x)) return 1.0;
  // The sign of the angle goes over to the result, although the secant is even: hosts count on it.
  return with_sign_of(x, 1.0 / std::cos(r));
}

double KX_CALL kx_cosecant(double x) {
  if (std::isinf(x)) return kx::bad_parameter("kx_cosecant");
  const double r = reduced(x);
  if (sine_vanishes(r)) return kx::bad_parameter("kx_cosecant");
  return with_sign_of(x, 1.0 / std::sin(r));
}

double KX_CALL kx_cotangent(double x) {
  if (std::isinf(x)) return kx::bad_parameter("kx_cotangent");
  const double r = reduced(x);
  if (sine_vanishes(r)) return kx::bad_parameter("kx_cotangent");
  return with_sign_of(x, 1.0 / (std::sin(r) / std::cos(r)));
}

double KX_CALL kx_arcsin(double x) {
  if (kx::near_zero(x)) return 0.0;
  if (kx::near_zero(x - 1.0)) return 90.0;
  if (kx::near_zero(x + 1.0)) return -90.0;
  return folded(kx_arctan(1.0, x / std::sqrt(1.0 - x * x)));
}

double KX_CALL kx_arccos(double x) {
  if (kx::near_zero(x)) return 90.0;
  if (kx::near_zero(x - 1.0)) return 0.0;
  if (kx::near_zero(x + 1.0)) return 180.0;
  return folded(kx_arctan(x / std::sqrt(1.0 - x * x), 1.0));
}

double KX_CALL kx_arctan(double dx, double dy) {
  if (kx::near_zero(dx)) {
    if (kx::near_zero(dy)) return 0.0;
    return dy <= kx::tolerance ? 270.0 : 90.0;
  }
  if (kx::near_zero(dy)) return dx <= 0.0 ? 180.0 : 0.0;
  const double a = std::atan(std::fabs(dy / dx)) * kx::degrees_per_radian;
  if (dx <= kx::tolerance) return dy > kx::tolerance ? 180.0 - a : 180.0 + a;
  if (dy > kx::tolerance) return a;
  const double below = 360.0 - a;
  return below == 360.0 ? 0.0 : below;  // an angle too small for the subtraction to show
}

double KX_CALL kx_arccotangent(double x) { return (kx::half_pi - std::atan(x)) * kx::degrees_per_radian; }

double KX_CALL kx_arcsecant(double x) {
  if (kx::equal(x, 1.0)) return 0.0;
  if (kx::equal(x, -1.0)) return -180.0;
  if (kx::greater(x, -1.0) && kx::less(x, 1.0)) return kx::bad_parameter("kx_arcsecant");
  const double t = std::acos(1.0 / std::fabs(x));
  return (kx::greater_equal(x, -1.0) ? t : -(kx::pi - t)) * kx::degrees_per_radian;
}

double KX_CALL kx_arccosecant(double x) {
  if (kx::equal(x, 1.0)) return 90.0;
  if (kx::equal(x, -1.0)) return -90.0;
  if (kx::greater(x, -1.0) && kx::less(x, 1.0)) return 0.0;  // silent, unlike its sister: hosts probe with it
  const double t = std::asin(1.0 / std::fabs(x));
  return (kx::greater_equal(x, -1.0) ? t : -(kx::pi - t)) * kx::degrees_per_radian;
}
