// The banded solver of the curve interpolation, for hosts with systems of their own.
#include "transform/band_solver.hpp"

#include "kxgeom/transform.h"

int32_t KX_CALL kx_ludecomposition(double *band, int32_t n, int32_t m) {
  if (n == 1 || m == 0) return 0;  // on purpose also for a zero element: hosts solve one equation by the division alone
  if (!band || n < 1 || m < 0) return 1;
  return kx::factor({band, n, m}) ? 0 : 1;
}

int32_t KX_CALL kx_forbacksubstitution(const double *band, int32_t n, int32_t m, double *b, double *x) {
  if (band && b && x && n > 0 && m >= 0) kx::substitute({band, n, m}, b, x);
  return 0;
}
