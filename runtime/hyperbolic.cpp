// Hyperbolic functions, from the two exponentials as they come, and their inverses, scaled like angles in degrees.
#include <cmath>

#include "bad_parameter.hpp"
#include "kxgeom/runtime.h"
#include "tolerance.hpp"

double KX_CALL kx_hsine(double x) { return (std::exp(x) - std::exp(-x)) / 2.0; }

double KX_CALL kx_hcosine(double x) { return (std::exp(-x) + std::exp(x)) / 2.0; }

double KX_CALL kx_htangent(double x) {
  const double up = std::exp(x), down = std::exp(-x);
  return (up - down) / (up + down);
}

double KX_CALL kx_hsecant(double x) { return 2.0 / (std::exp(-x) + std::exp(x)); }

double KX_CALL kx_hcosecant(double x) {
  if (kx::near_zero(x)) return kx::bad_parameter("kx_hcosecant");
  return 2.0 / (std::exp(x) - std::exp(-x));
}

double KX_CALL kx_hcotangent(double x) {
  if (kx::near_zero(x)) return kx::bad_parameter("kx_hcotangent");
  const double up = std::exp(x), down = std::exp(-x);
  return (down + up) / (up - down);
}

double KX_CALL kx_archsine(double x) { return std::log(x + std::sqrt(x * x + 1.0)) * kx::degrees_per_radian; }

double KX_CALL kx_archcosine(double x) {
  if (kx::equal(x, 1.0)) return std::log(x) * kx::degrees_per_radian;
  if (kx::less(x, 1.0)) return 0.0;
  return std::log(x + std::sqrt(x * x - 1.0)) * kx::degrees_per_radian;
}

double KX_CALL kx_archtangent(double x) {
  if (kx::greater_equal(x * x, 1.0)) return kx::bad_parameter("kx_archtangent");
  return 0.5 * std::log((1.0 + x) / (1.0 - x)) * kx::degrees_per_radian;
}

double KX_CALL kx_archcotangent(double x) {
  if (kx::less_equal(x * x, 1.0)) return 0.0;
  return 0.5 * std::log((x + 1.0) / (x - 1.0)) * kx::degrees_per_radian;
}

double KX_CALL kx_archsecant(double x) {
  if (x <= kx::tolerance || kx::greater(x, 1.0)) return kx::bad_parameter("kx_archsecant");
  return std::log((1.0 + std::sqrt(1.0 - x * x)) / x) * kx::degrees_per_radian;
}

double KX_CALL kx_archcosecant(double x) {
  if (kx::near_zero(x)) return 0.0;
  const double s = x > kx::tolerance ? 1.0 : -1.0;
  return std::log((s * std::sqrt(x * x + 1.0) + 1.0) / x) * kx::degrees_per_radian;
}
