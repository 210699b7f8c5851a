// Uniform beta-splines: the basis of two shape parameters.
#include <cmath>

#include "kxgeom/curves.h"
#include "uniform_definers.hpp"

namespace {

template <class D>
std::int32_t define(list_hdr *ctrl, curve *c, double b1, double b2) {
  const double s = b1 * b1, q = s * b1;
  const double d = 2.0 * q + 4.0 * s + 4.0 * b1 + b2 + 2.0;
  // The third element of the second row is not three times what its neighbour would suggest: on purpose, drawings made
  // with this basis are to come out as they always did.
  double basis[16] = {-2.0 * q,
                      2.0 * (q + s + b1 + b2),
                      -2.0 * (s + b1 + b2 + 1.0),
                      2.0,  //
                      6.0 * q,
                      -3.0 * (2.0 * q + 2.0 * s + b2),
                      2.0 * s + b2 + 3.0,
                      0.0,  //
                      -6.0 * q,
                      6.0 * (q - b1),
                      6.0 * b1,
                      0.0,  //
                      2.0 * q,
                      4.0 * (s + b1) + b2,
                      2.0,
                      0.0};
  if (d == 0.0 || !std::isfinite(d)) return 2;
  for (double &element : basis) element /= d;
  return kx::define_uniform(ctrl, c, kx::curve_codes<D>::beta, basis, kx::detached::keeps_count);
}

}  // namespace

/* ---- beta splines ---- */

curve *KX_CALL kx_def_ubetaspl_curve(list_hdr *ctrl, double b1, double b2) {
  return kx::dispatch_uniform(
      ctrl, [=](auto dimension, list_hdr *points, curve *c) { return define<decltype(dimension)>(points, c, b1, b2); });
}

std::int32_t KX_CALL kx_def_ubetaspl_curve2d(list_hdr *ctrl, curve *c, double b1, double b2) {
  return define<kx::plane>(ctrl, c, b1, b2);
}

std::int32_t KX_CALL kx_def_ubetaspl_curve3d(list_hdr *ctrl, curve *c, double b1, double b2) {
  return define<kx::space>(ctrl, c, b1, b2);
}
