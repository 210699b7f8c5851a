// Elementary transforms, multiplied onto the right of the caller's matrix.
#include "kxgeom/transform.h"
#include "records/vector.hpp"
#include "transform/matrix.hpp"

namespace {

template <int N>
void scale_onto(double *matrix, double (&factor)[N - 1], const double (&fixed)[N - 1]) {
  kx::drop_small_factors(factor);
  kx::multiply_onto(matrix, kx::scaling<N>(factor, fixed));
}

// About the x, y or z axis: 0, 1 or 2.
kx::matrix<4> rotation_about(int axis, kx::turn t) { return kx::rotation<4>((axis + 1) % 3, (axis + 2) % 3, t); }

// About a directed line: the line is brought onto the z axis by way of the xz plane and back.
int32_t rotate_about_line(const kx::vec3 &p, const kx::vec3 &q, kx::turn t, double *matrix) {
  const kx::vec3 d = q - p;
  const double len = kx::length(d);
  if (len <= kx::tolerance) return 57;
  const auto [a, b, c] = d / len;
  const double dyz = std::sqrt(c * c + b * b);
  kx::multiply_onto(matrix, kx::translation<4>({-p.x, -p.y, -p.z}));
  if (dyz <= kx::tolerance) {
    // On purpose the same sense whether the line points along x or against it: hosts count on it.
    kx::multiply_onto(matrix, rotation_about(0, t));
  } else {
    kx::multiply_onto(matrix, rotation_about(0, {b / dyz, c / dyz}));
    kx::multiply_onto(matrix, rotation_about(1, {-a, dyz}));
    kx::multiply_onto(matrix, rotation_about(2, t));
    kx::multiply_onto(matrix, rotation_about(1, {a, dyz}));
    kx::multiply_onto(matrix, rotation_about(0, {-b / dyz, c / dyz}));
  }
  kx::multiply_onto(matrix, kx::translation<4>({p.x, p.y, p.z}));
  return 0;
}

}  // namespace

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

void KX_CALL kx_translatematrix3d(double dx, double dy, double dz, double *matrix) {
  if (matrix) kx::multiply_onto(matrix, kx::translation<4>({dx, dy, dz}));
}

void KX_CALL kx_rotationmatrix2d(double angle_deg, const pnt_2d *center, double *matrix) {
  if (!center || !matrix) return;
  const kx::turn t(angle_deg);
  kx::matrix<3> e = kx::rotation<3>(0, 1, t);
  e.m[2][0] = (1.0 - t.c) * center->x + t.s * center->y;
  e.m[2][1] = center->y - (t.c * center->y + t.s * center->x);
  kx::multiply_onto(matrix, e);
}

int32_t KX_CALL kx_rotationmatrix3d(int32_t axis, double angle_deg, const line_3d *axis_line, double *matrix) {
  if (!matrix) return 0;
  if (axis == 3) {
    if (!axis_line) return 57;
    const line_3d &l = *axis_line;
    return rotate_about_line({l.x1, l.y1, l.z1}, {l.x2, l.y2, l.z2}, kx::turn(angle_deg), matrix);
  }
  // An unknown axis turns about x on purpose: hosts pass any code for their default.
  kx::multiply_onto(matrix, rotation_about(axis == 1 || axis == 2 ? axis : 0, kx::turn(angle_deg)));
  return 0;
}

void KX_CALL kx_scalematrix2d(double sx, double sy, const pnt_2d *fixed, double *matrix) {
  double factor[2] = {sx, sy};
  if (fixed && matrix) scale_onto<3>(matrix, factor, {fixed->x, fixed->y});
}

int32_t KX_CALL kx_scalematrix3d(double sx, double sy, double sz, const pnt_3d *fixed, double *matrix) {
  double factor[3] = {sx, sy, sz};
  if (fixed && matrix) scale_onto<4>(matrix, factor, {fixed->x, fixed->y, fixed->z});
  return 0;
}

void KX_CALL kx_shearmatrix2d(int32_t mode, double factor, double *matrix) {
  if (matrix) kx::multiply_onto(matrix, kx::shear<3>(mode == 1 ? 0 : 1, {factor}));
}

void KX_CALL kx_shearmatrix3d(int32_t mode, double f1, double f2, double *matrix) {
  if (matrix) kx::multiply_onto(matrix, kx::shear<4>(mode == 1 || mode == 2 ? mode : 0, {f1, f2}));
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

void KX_CALL kx_reflectmatrix3d(int32_t mode, double *matrix) {
  if (!matrix) return;
  const int axis = mode == 1 || mode == 2 ? mode : 0;  // every other mode mirrors x on purpose
  kx::matrix<4> e = kx::identity<4>();
  e.m[axis][axis] = -1.0;
  kx::multiply_onto(matrix, e);
}
