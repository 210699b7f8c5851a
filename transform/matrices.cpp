// Products, copies, determinants and inverses.
#include "kxgeom/transform.h"
#include "transform/matrix.hpp"

namespace {

// The adjugate divided by the determinant. Without an inverse the host still gets the adjugate, on purpose.
template <int Size>
int32_t inverse_from(const double *adjugate, double det, double *out) {
  const bool singular = kx::near_zero(det);
  for (int i = 0; i < Size; ++i) out[i] = singular ? adjugate[i] : adjugate[i] / det;
  return singular ? 1 : 0;
}

}  // namespace

void KX_CALL kx_mat33mult(const double *a, double *b) {
  if (a && b) kx::multiply_onto<3>(b, a);
}

// Writes b while it reads a, and kx_mat_mult sums up in c while it reads both: unlike the plane's product these are no
// good in place. Hosts have their own copies around them, and the bits must stay.
void KX_CALL kx_mat44mult(const double *a, double *b) {
  if (!a || !b) return;
  double before[16];
  kx::move_matrix<4>(b, before);
  for (int i = 0; i < 4; ++i) {
    for (int j = 0; j < 4; ++j) {
      double sum = before[4 * i] * a[j];
      for (int k = 1; k < 4; ++k) sum += before[4 * i + k] * a[4 * k + j];
      b[4 * i + j] = sum;
    }
  }
}

void KX_CALL kx_mat_mult(const double *a, const double *b, double *c) {
  if (!a || !b || !c) return;
  for (int i = 0; i < 4; ++i) {
    for (int j = 0; j < 4; ++j) {
      c[4 * i + j] = 0.0;
      for (int k = 0; k < 4; ++k) c[4 * i + j] += a[4 * i + k] * b[4 * k + j];
    }
  }
}

void KX_CALL kx_mult_vector(const double *m, const double *v, double *out) {
  if (!m || !v || !out) return;
  double sums[4];
  for (int j = 0; j < 4; ++j) {
    sums[j] = v[0] * m[j];
    for (int k = 1; k < 4; ++k) sums[j] += v[k] * m[4 * k + j];
  }
  std::memcpy(out, sums, sizeof sums);
}

void KX_CALL kx_movematrix2d(const double *from, double *to) { kx::move_matrix<3>(from, to); }

void KX_CALL kx_movematrix3d(const double *from, double *to) { kx::move_matrix<4>(from, to); }

double KX_CALL kx_get_det22(double a, double b, double c, double d) { return kx::det22(a, b, c, d); }

double KX_CALL kx_get_det33(double a, double b, double c, double d, double e, double f, double g, double h, double i) {
  return kx::det33(a, b, c, d, e, f, g, h, i);
}

double KX_CALL kx_get_det44(const double *m) { return m ? kx::det44(m) : 0.0; }

void KX_CALL kx_get_adjoint_matrix3d(const double *m, double *out) {
  if (!m || !out) return;
  const kx::matrix<4> adjugate = kx::adjugate(m);
  kx::move_matrix<4>(&adjugate.m[0][0], out);
}

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
  return inverse_from<9>(adjugate, det, out);
}

int32_t KX_CALL kx_getinversematrix3d(const double *m, double *out) {
  if (!m || !out) return 1;
  const double det = kx::det44(m);
  const kx::matrix<4> adjugate = kx::adjugate(m);
  return inverse_from<16>(&adjugate.m[0][0], det, out);
}

double KX_CALL kx_inverse(double x) { return std::fabs(x) > kx::tolerance ? 1.0 / x : 0.0; }
