// Scalar helpers: integers, conversions, the quadratic equation.
#include <bit>
#include <cmath>
#include <cstdint>

#include "kxgeom/runtime.h"
#include "tolerance.hpp"

namespace {

// A positive number halved as often as it can be.
int32_t odd_part(int32_t n) { return n >> std::countr_zero(static_cast<std::uint32_t>(n)); }

}  // namespace

int32_t KX_CALL kx_imax(int32_t i, int32_t j, int32_t k) {
  const int32_t largest = i >= j ? i : j;
  return largest >= k ? largest : k;
}

int32_t KX_CALL kx_imin(int32_t i, int32_t j, int32_t k) {
  const int32_t smallest = i <= j ? i : j;
  return smallest <= k ? smallest : k;
}

int32_t KX_CALL kx_gcd(int32_t a, int32_t b) {
  if (a < 0 || b < 0) return 1;
  if (a == 0 || b == 0) return a | b;
  const int twos = std::countr_zero(static_cast<std::uint32_t>(a | b));
  a = odd_part(a);
  b = odd_part(b);
  while (a != b) (a > b ? a : b) = odd_part(a > b ? a - b : b - a);
  return a << twos;
}

double KX_CALL kx_degrees(double radians) { return radians * kx::degrees_per_radian; }

double KX_CALL kx_radian(double degrees) { return degrees * kx::radians_per_degree; }

void KX_CALL kx_exchange(double *a, double *b) {
  if (!a || !b) return;
  const double kept = *a;
  *a = *b;
  *b = kept;
}

double KX_CALL kx_sumsqrdparms(double a, double b) { return a * a + b * b; }

int32_t KX_CALL kx_quadratic_eq(double a, double b, double c, double *r1, double *r2) {
  if (!r1 || !r2 || kx::near_zero(a)) return 1;
  const double d = b * b - 4.0 * a * c;
  if (d < -kx::tolerance) return 1;
  // A d just below zero is not raised to zero, on purpose: two NaN tell a host that the curves almost touch.
  const double s = std::sqrt(d);
  *r1 = (s - b) / (2.0 * a);
  *r2 = (-b - s) / (2.0 * a);
  return 0;
}
