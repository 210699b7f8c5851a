// Products, copies, determinants and inverses.
#include "kxgeom/transform.h"
#include "transform/matrix.hpp"

void KX_CALL kx_mat33mult(const double *a, double *b) {
  if (a && b) kx::multiply_onto<3>(b, a);
}

void KX_CALL kx_movematrix2d(const double *from, double *to) { kx::move_matrix<3>(from, to); }

void KX_CALL kx_movematrix3d(const double *from, double *to) { kx::move_matrix<4>(from, to); }

double KX_CALL kx_get_det22(double a, double b, double c, double d) { return kx::det22(a, b, c, d); }

int32_t KX_CALL kx_getinversematrix2d(const double *m, double *out) {
  if (!m || !out) return 1;
  using kx::det22;
  const double m00 = m[0], m01 = m[1], m02 = m[2];
  const double m10 = m[3], m11 = m[4], m12 = m[5];
  const double m20 = m[6], m21 = m[7], m22 = m[8];
  const double c00 = det22(m11, m21, m12, m22), c01 = det22(m10, m20, m12, m22), c02 = det22(m10, m20, m11, m21);
  const double adjugate[9] = {c00,  -det22(m01, m21, m02, m22), det22(m01, m11, m02, m12),   //
                              -c01, det22(m00, m20, m02, m22),  -det22(m00, m10, m02, m12),  //
                              c02,  -det22(m00, m20, m01, m21), det22(m00, m10, m01, m11)};
  const double det = m00 * c00 - m01 * c01 + m02 * c02;
  // Without an inverse the host still gets the adjugate, on purpose.
  const bool singular = kx::near_zero(det);
  for (int i = 0; i < 9; ++i) out[i] = singular ? adjugate[i] : adjugate[i] / det;
  return singular ? 1 : 0;
}
