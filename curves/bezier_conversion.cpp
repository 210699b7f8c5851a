// B-splines, plain and rational, into Bezier curves.
#include "bezier_pieces.hpp"
#include "curve_record.hpp"
#include "kxgeom/curves.h"

namespace {

using kx::plane;
using kx::space;

constexpr std::int32_t no_room = 7;

bool append_number(list_hdr &list, double value) {
  rnumber *record = kx::create_rnumber();
  if (record == nullptr) return false;
  *record = {value};
  if (kx::append(list, record, KX_RNUMBER)) return true;
  kx::release(record);
  return false;
}

// The matrix of a cubic Bezier curve.
constexpr double cubic_basis[16] = {-1, 3, -3, 1, 3, -6, 3, 0, -3, 3, 0, 0, 1, 0, 0, 0};

// One piece as a curve of its own; null, nothing left behind, after the memory message.
template <class D>
curve *create_piece(const kx::bezier_pieces<D> &pieces, std::int32_t i) {
  curve *c = kx_create_curve();
  if (c == nullptr) return nullptr;
  const std::int32_t p = pieces.degree();
  // The record of polynomial Bezier curves is sampled as cubics; the rational one holds any degree.
  const bool cubic = p == 3 && !pieces.rational();
  c->curve_type = cubic ? kx::curve_codes<D>::bezier : kx::curve_codes<D>::rational_bezier;
  c->degree = p;
  if (cubic) std::memcpy(c->basis, cubic_basis, sizeof c->basis);
  typename kx::bezier_pieces<D>::point points[kx::max_piece_points];
  pieces.piece(i, points);
  bool made = append_number(*c->knots, pieces.start(i)) && append_number(*c->knots, pieces.end(i));
  for (std::int32_t j = 0; made && j <= p; ++j) {
    const auto &[point, weight] = points[j];
    made = kx::append_vertex<D>(*c->ctrl_pnts, static_cast<std::uint32_t>(j), point / weight) &&
           (cubic || append_number(*c->weights, weight));
  }
  if (made) return c;
  kx::dispose(c);
  return nullptr;
}

template <class D>
std::int32_t convert(const curve *c, curve **out, std::int32_t room, std::int32_t *count, const char *location) {
  kx::bezier_pieces<D> pieces;
  const std::int32_t fault = pieces.open(c);
  if (fault == kx::no_memory_for_curve) kx::report_no_memory(location);
  if (fault != kx::sound_curve) return fault;
  if (count) *count = pieces.count();
  if (out == nullptr) return kx::sound_curve;
  if (room < pieces.count()) return no_room;
  for (std::int32_t i = 0; i < pieces.count(); ++i) {
    out[i] = create_piece(pieces, i);
    if (out[i] != nullptr) continue;
    for (; i >= 0; --i) {
      kx::dispose(out[i]);
      out[i] = nullptr;
    }
    return kx::no_memory_for_curve;
  }
  return kx::sound_curve;
}

// Every polynomial kind but the Bezier curve itself.
template <class D>
bool is_bspline(std::int32_t type) {
  using codes = kx::curve_codes<D>;
  return type == codes::bspline || type == codes::catrom || type == codes::beta || type == codes::nonuniform_bspline;
}

template <class D>
std::int32_t convert_bspline(const curve *c, curve **out, std::int32_t room, std::int32_t *count,
                             const char *location) {
  if (count) *count = 0;
  if (c != nullptr && !is_bspline<D>(c->curve_type)) return kx::other_dimension;
  return convert<D>(c, out, room, count, location);
}

template <class D>
std::int32_t convert_nurbs(const curve *c, curve **out, std::int32_t room, std::int32_t *count, const char *location) {
  if (count) *count = 0;
  if (c != nullptr && c->curve_type != kx::curve_codes<D>::nurbs) return kx::other_dimension;
  return convert<D>(c, out, room, count, location);
}

}  // namespace

/* ---- bezier conversion ---- */

std::int32_t KX_CALL kx_bspl_to_bezier_curve(const curve *c, curve **pieces, std::int32_t room, std::int32_t *count) {
  const bool in_space = c && is_bspline<space>(c->curve_type);
  return in_space ? kx_bspl_to_bezier_curve3d(c, pieces, room, count)
                  : kx_bspl_to_bezier_curve2d(c, pieces, room, count);
}

std::int32_t KX_CALL kx_bspl_to_bezier_curve2d(const curve *c, curve **pieces, std::int32_t room, std::int32_t *count) {
  return convert_bspline<plane>(c, pieces, room, count, "kx_bspl_to_bezier_curve2d");
}

std::int32_t KX_CALL kx_bspl_to_bezier_curve3d(const curve *c, curve **pieces, std::int32_t room, std::int32_t *count) {
  return convert_bspline<space>(c, pieces, room, count, "kx_bspl_to_bezier_curve3d");
}

std::int32_t KX_CALL kx_rat_bspl_to_bezier_curve(const curve *c, curve **pieces, std::int32_t room,
                                                 std::int32_t *count) {
  const bool in_space = c && c->curve_type == kx::curve_codes<space>::nurbs;
  return in_space ? kx_rat_bspl_to_bezier_curve3d(c, pieces, room, count)
                  : kx_rat_bspl_to_bezier_curve2d(c, pieces, room, count);
}

std::int32_t KX_CALL kx_rat_bspl_to_bezier_curve2d(const curve *c, curve **pieces, std::int32_t room,
                                                   std::int32_t *count) {
  return convert_nurbs<plane>(c, pieces, room, count, "kx_rat_bspl_to_bezier_curve2d");
}

std::int32_t KX_CALL kx_rat_bspl_to_bezier_curve3d(const curve *c, curve **pieces, std::int32_t room,
                                                   std::int32_t *count) {
  return convert_nurbs<space>(c, pieces, room, count, "kx_rat_bspl_to_bezier_curve3d");
}
