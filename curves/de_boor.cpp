// Points of B-splines and NURBS on one knot span.
#include "de_boor.hpp"

#include "curve_record.hpp"
#include "kxgeom/curves.h"

namespace {

// What is wrong with the arguments of an evaluation; 0 nothing.
template <class R>
std::int32_t check(double t, std::int32_t degree, R *const *ctrl, const double *knots, const void *out) {
  if (ctrl == nullptr || knots == nullptr || out == nullptr) return 40;
  if (kx::below_range(t) || degree < 0 || degree > kx::max_degree) return 2;
  for (std::int32_t i = 0; i <= degree; ++i) {
    if (ctrl[i] == nullptr) return 40;
  }
  return 0;
}

template <class D>
std::int32_t polynomial(double t, std::int32_t degree, typename D::vertex *const *ctrl, const double *knots,
                        typename D::point *out) {
  if (const std::int32_t code = check(t, degree, ctrl, knots, out)) return code;
  typename D::vector d[kx::max_degree + 1];
  for (std::int32_t i = 0; i <= degree; ++i) d[i] = D::read(*ctrl[i]);
  *out = D::make_point(kx::de_boor<0>(d, degree, kx::parts_at(t, degree, knots)));
  return 0;
}

template <class D>
std::int32_t rational(double t, std::int32_t degree, typename D::vertex *const *ctrl, const double *weights,
                      const double *knots, typename D::point *out) {
  if (weights == nullptr) return 40;
  if (const std::int32_t code = check(t, degree, ctrl, knots, out)) return code;
  kx::weighted<typename D::vector> d[kx::max_degree + 1];
  for (std::int32_t i = 0; i <= degree; ++i) d[i] = {weights[i] * D::read(*ctrl[i]), weights[i]};
  typename D::vector point;
  if (!kx::project(kx::de_boor<0>(d, degree, kx::parts_at(t, degree, knots)), point)) return 3;
  *out = D::make_point(point);
  return 0;
}

}  // namespace

/* ---- de boor ---- */

std::int32_t KX_CALL kx_deboor_2d(double t, std::int32_t degree, poly_2d *const *ctrl, const double *knots,
                                  pnt_2d *out) {
  return polynomial<kx::plane>(t, degree, ctrl, knots, out);
}

std::int32_t KX_CALL kx_deboor_3d(double t, std::int32_t degree, poly_3d *const *ctrl, const double *knots,
                                  pnt_3d *out) {
  return polynomial<kx::space>(t, degree, ctrl, knots, out);
}

std::int32_t KX_CALL kx_rat_deboor_2d(double t, std::int32_t degree, poly_2d *const *ctrl, const double *weights,
                                      const double *knots, pnt_2d *out) {
  return rational<kx::plane>(t, degree, ctrl, weights, knots, out);
}

std::int32_t KX_CALL kx_rat_deboor_3d(double t, std::int32_t degree, poly_3d *const *ctrl, const double *weights,
                                      const double *knots, pnt_3d *out) {
  return rational<kx::space>(t, degree, ctrl, weights, knots, out);
}
