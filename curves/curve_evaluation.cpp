// Points and derivatives of curves of every kind.
#include <algorithm>

#include "kxgeom/curves.h"
#include "piece_calculus.hpp"

namespace {

using kx::plane;
using kx::space;

constexpr std::int32_t highest_order = 30;

template <class D>
std::int32_t range(const curve *c, double &from, double &to) {
  kx::bezier_pieces<D> pieces;
  if (const std::int32_t fault = pieces.open(c)) return fault;
  from = pieces.from();
  to = pieces.to();
  return 0;
}

// Point and derivatives by the curve's parameter; orders above the degree of a curve without weights are 0.
template <class D>
std::int32_t derivatives(const curve *c, double t, std::int32_t order, typename D::vector *out) {
  kx::bezier_pieces<D> pieces;
  if (const std::int32_t fault = pieces.open(c)) return fault;
  if (!kx::take_into_range(pieces, t)) return kx::bad_parameter;
  const std::int32_t i = pieces.find(t);
  using point = typename kx::bezier_pieces<D>::point;
  point piece[kx::max_piece_points], a[highest_order + 1] = {};
  pieces.piece(i, piece);
  const int n = pieces.degree();
  kx::homogeneous_derivatives(piece, n, pieces.local(i, t), std::min(n, order), a);
  const double h = pieces.end(i) - pieces.start(i);
  for (int k = 1; k <= std::min(n, order); ++k) {
    for (int r = 0; r < k; ++r) a[k] = {a[k].point / h, a[k].weight / h};
  }
  kx::project_derivatives(a, order, out);
  return 0;
}

template <class D>
std::int32_t point_at(const curve *c, double t, typename D::point *out) {
  if (out == nullptr) return kx::no_argument;
  typename D::vector at;
  const std::int32_t fault = derivatives<D>(c, t, 0, &at);
  if (fault == 0) *out = D::make_point(at);
  return fault;
}

template <class D>
std::int32_t derivatives_at(const curve *c, double t, std::int32_t order, double *out) {
  if (out == nullptr) return kx::no_argument;
  if (order < 0 || order > highest_order) return kx::bad_value;
  typename D::vector rows[highest_order + 1];
  const std::int32_t fault = derivatives<D>(c, t, order, rows);
  if (fault != 0) return fault;
  for (std::int32_t k = 0; k <= order; ++k) out = kx::write(rows[k], out);
  return 0;
}

template <class D>
std::int32_t points_at(const curve *c, const double *t, std::int32_t count, double *out) {
  if (t == nullptr || out == nullptr) return kx::no_argument;
  if (count < 0) return kx::bad_value;
  kx::bezier_pieces<D> pieces;
  if (const std::int32_t fault = pieces.open(c)) return fault;
  for (std::int32_t i = 0; i < count; ++i) {
    double at = t[i];
    if (!kx::take_into_range(pieces, at)) return kx::bad_parameter;
  }
  kx::fill_points(
      pieces, count, [t](std::int32_t i) { return t[i]; }, out);
  return 0;
}

}  // namespace

/* ---- curve evaluation ---- */

std::int32_t KX_CALL kx_curve_range(const curve *c, double *from, double *to) {
  if (from == nullptr || to == nullptr) return kx::no_argument;
  const std::int32_t fault = range<plane>(c, *from, *to);
  return fault == kx::other_dimension ? range<space>(c, *from, *to) : fault;
}

std::int32_t KX_CALL kx_curve_pnt_2d(const curve *c, double t, pnt_2d *pnt) { return point_at<plane>(c, t, pnt); }

std::int32_t KX_CALL kx_curve_pnt_3d(const curve *c, double t, pnt_3d *pnt) { return point_at<space>(c, t, pnt); }

std::int32_t KX_CALL kx_curve_derivs_2d(const curve *c, double t, std::int32_t order, double *out) {
  return derivatives_at<plane>(c, t, order, out);
}

std::int32_t KX_CALL kx_curve_derivs_3d(const curve *c, double t, std::int32_t order, double *out) {
  return derivatives_at<space>(c, t, order, out);
}

std::int32_t KX_CALL kx_curve_pntsat_2d(const curve *c, const double *t, std::int32_t count, double *xy) {
  return points_at<plane>(c, t, count, xy);
}

std::int32_t KX_CALL kx_curve_pntsat_3d(const curve *c, const double *t, std::int32_t count, double *xyz) {
  return points_at<space>(c, t, count, xyz);
}
