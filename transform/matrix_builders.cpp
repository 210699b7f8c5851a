// Elementary transforms, multiplied onto the right of the caller's matrix.
#include "kxgeom/transform.h"
#include "transform/matrix.hpp"

void KX_CALL kx_getidmatrix2d(double *matrix) {
  static constexpr kx::matrix<3> identity = kx::identity<3>();
  kx::move_matrix<3>(&identity.m[0][0], matrix);
}

void KX_CALL kx_getidmatrix3d(double *matrix) {
  static constexpr kx::matrix<4> identity = kx::identity<4>();
  kx::move_matrix<4>(&identity.m[0][0], matrix);
}

void KX_CALL kx_translatematrix2d(double dx, double dy, double *matrix) {
  if (matrix) kx::multiply_onto(matrix, kx::translation<3>({dx, dy}));
}

void KX_CALL kx_rotationmatrix2d(double angle_deg, const pnt_2d *center, double *matrix) {
  if (!center || !matrix) return;
  const kx::turn t(angle_deg);
  kx::matrix<3> e = kx::rotation<3>(0, 1, t);
  e.m[2][0] = (1.0 - t.c) * center->x + t.s * center->y;
  e.m[2][1] = center->y - (t.c * center->y + t.s * center->x);
  kx::multiply_onto(matrix, e);
}

void KX_CALL kx_scalematrix2d(double sx, double sy, const pnt_2d *fixed, double *matrix) {
  if (!fixed || !matrix) return;
  double factor[2] = {sx, sy};
  kx::drop_small_factors(factor);
  kx::multiply_onto(matrix, kx::scaling<3>(factor, {fixed->x, fixed->y}));
}

void KX_CALL kx_shearmatrix2d(int32_t mode, double factor, double *matrix) {
  if (matrix) kx::multiply_onto(matrix, mode == 1 ? kx::shear<3>(0, 1, factor) : kx::shear<3>(1, 0, factor));
}

void KX_CALL kx_reflectmatrix2d(int32_t mode, double *matrix) {
  if (!matrix) return;
  kx::matrix<3> e = kx::identity<3>();
  switch (mode) {
    case 1: e.m[0][0] = -1.0; break;
    case 2: e.m[0][0] = e.m[1][1] = -1.0; break;
    case 3:
    case 4:
      e.m[0][0] = e.m[1][1] = 0.0;
      e.m[0][1] = e.m[1][0] = mode == 3 ? 1.0 : -1.0;
      break;
    // Every other mode mirrors y on purpose: hosts pass 0 for it.
    default: e.m[1][1] = -1.0;
  }
  kx::multiply_onto(matrix, e);
}
