// Points on curves of either dimension, as points of space: with their derivatives, and of plain polynomials.
#include <algorithm>
#include <cstdint>

#include "curve_record.hpp"
#include "geometry/space_line.hpp"
#include "kxgeom/curves.h"
#include "piece_calculus.hpp"
#include "records/output.hpp"
#include "runtime/tolerance.hpp"

namespace {

using kx::plane;
using kx::space;
using kx::vec3;

vec3 in_space(kx::vec2 v) { return {v.x, v.y, 0.0}; }
vec3 in_space(vec3 v) { return v; }

// The point and `order` derivatives by the curve's own parameter, of piece i at u.
template <class D>
void derivatives(const kx::bezier_pieces<D> &pieces, std::int32_t i, double u, std::int32_t order, vec3 *out) {
  using vector = typename D::vector;
  kx::weighted<vector> piece[kx::max_piece_points], homogeneous[kx::max_piece_points] = {};
  vector v[kx::max_piece_points];
  pieces.piece(i, piece);
  kx::homogeneous_derivatives(piece, pieces.degree(), u, std::min(order, pieces.degree()), homogeneous);
  kx::project_derivatives(homogeneous, order, v);
  const double per_unit = 1.0 / (pieces.end(i) - pieces.start(i));
  double factor = 1.0;
  for (std::int32_t k = 0; k <= order; ++k, factor *= per_unit) out[k] = factor * in_space(v[k]);
}

template <class D>
std::int32_t at_parameter(const curve *c, double t, std::int32_t order, vec3 *out) {
  kx::bezier_pieces<D> pieces;
  if (const std::int32_t fault = pieces.open(c)) return fault;
  if (!kx::take_into_range(pieces, t)) return kx::bad_parameter;
  const std::int32_t i = pieces.find(t);
  derivatives(pieces, i, pieces.local(i, t), order, out);
  return 0;
}

template <class D>
std::int32_t on_segment(const curve *c, std::int32_t segment, double t, std::int32_t order, vec3 *out) {
  kx::bezier_pieces<D> pieces;
  if (const std::int32_t fault = pieces.open(c)) return fault;
  if (segment < 0 || segment >= pieces.count()) return kx::bad_parameter;
  if (!kx::greater_equal(t, 0.0) || !kx::less_equal(t, 1.0)) return kx::bad_parameter;
  derivatives(pieces, segment, std::clamp(t, 0.0, 1.0), order, out);
  return 0;
}

// f<D>(), D being the dimension of the curve's kind.
template <class F>
std::int32_t in_its_dimension(F f) {
  const std::int32_t fault = f(plane());
  return fault == kx::other_dimension ? f(space()) : fault;
}

bool is_uniform(std::int32_t type) { return (type >= 83 && type <= 88) || type == 91 || type == 92; }

}  // namespace

std::int32_t KX_CALL kx_polynomial_pnt(const pnt_3d *coef, std::int32_t degree, double t, pnt_3d *pnt) {
  if (coef == nullptr || pnt == nullptr) return kx::no_argument;
  if (degree < 0 || degree > kx::max_bezier_degree) return kx::bad_value;
  vec3 v = kx::value(coef[0]);
  for (std::int32_t i = 1; i <= degree; ++i) v = t * v + kx::value(coef[i]);
  *pnt = kx::record(v);
  return 0;
}

std::int32_t KX_CALL kx_eval_pointoncurve(const curve *c, double t, pnt_3d *pnt) {
  if (pnt == nullptr) return kx::no_argument;
  return kx_eval_derivsoncurve(c, t, 0, pnt);
}

std::int32_t KX_CALL kx_eval_derivsoncurve(const curve *c, double t, std::int32_t order, pnt_3d *out) {
  if (out == nullptr) return kx::no_argument;
  if (order < 0 || order > kx::max_bezier_degree) return kx::bad_value;
  vec3 v[kx::max_piece_points] = {};
  const std::int32_t fault = in_its_dimension([&](auto d) { return at_parameter<decltype(d)>(c, t, order, v); });
  for (std::int32_t k = 0; fault == 0 && k <= order; ++k) out[k] = kx::record(v[k]);
  return fault;
}

std::int32_t KX_CALL kx_eval_derivs_ucurve(const curve *c, std::int32_t segment, double t, pnt_3d *pnt,
                                           vector_3d *first, vector_3d *second, vector_3d *third) {
  if (c && !is_uniform(c->curve_type)) return kx::other_dimension;
  vec3 v[4] = {};
  const std::int32_t fault = in_its_dimension([&](auto d) { return on_segment<decltype(d)>(c, segment, t, 3, v); });
  if (fault) return fault;
  kx::put(pnt, kx::record(v[0]));
  kx::put(first, kx::whole_record(v[1]));
  kx::put(second, kx::whole_record(v[2]));
  kx::put(third, kx::whole_record(v[3]));
  return 0;
}
