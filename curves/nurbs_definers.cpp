// Defining the non-uniform B-splines and NURBS: control points, knots, weights, degree.
#include "curve_record.hpp"
#include "kxgeom/curves.h"
#include "kxgeom/runtime.h"

namespace {

using kx::curve_codes;
using kx::detached;
using kx::plane;
using kx::space;

bool valid_degree(std::int32_t degree) { return degree >= 1 && degree <= kx::max_degree; }

// 0 when a B-spline can be made of these, otherwise the plane definer's code.
std::int32_t check_bspline(const list_hdr *ctrl, const list_hdr *knots, std::int32_t degree) {
  if (kx::item_count(knots) <= std::int64_t{kx::item_count(ctrl)} + degree - 2) return 1;
  return valid_degree(degree) ? 0 : 2;
}

// Takes the lists over; all are detached before any is filled, so that a header of the curve itself may be among them.
// False, nothing changed, when the curve lacks a list and none can be created.
bool fill(curve &c, list_hdr *ctrl, list_hdr *knots, list_hdr *weights, detached how, std::int32_t degree,
          std::int32_t steps) {
  c.ctrl_pnts = kx::existing_or_new(c.ctrl_pnts);
  if (c.ctrl_pnts) c.knots = kx::existing_or_new(c.knots);
  if (c.ctrl_pnts && c.knots) c.weights = kx::existing_or_new(c.weights);
  if (!c.ctrl_pnts || !c.knots || !c.weights) return false;
  const list_hdr points = kx::take_items(ctrl, how), values = kx::take_items(knots, how),
                 factors = kx::take_items(weights, how);
  kx::replace_items(*c.ctrl_pnts, points);
  kx::replace_items(*c.knots, values);
  kx::replace_items(*c.weights, factors);
  c.degree = degree;
  c.span_steps = steps;
  return true;
}

template <class D>
std::int32_t define_nurbs(list_hdr *ctrl, list_hdr *knots, list_hdr *weights, std::int32_t degree, std::int32_t option,
                          curve *c) {
  if (c == nullptr) return 4;
  c->curve_type = curve_codes<D>::nurbs;
  // The number of knots is the maker's affair: unlike the B-spline's, hosts may define first and complete the knots
  // later.
  const std::int32_t points = kx::item_count(ctrl);
  if (points < std::int64_t{degree} + 1) return 1;
  if (kx::item_count(weights) < points) return 2;
  if (!valid_degree(degree)) return 3;
  return fill(*c, ctrl, knots, weights, detached::is_zero, degree, option == 0 ? 1 : option) ? 0 : 80;
}

}  // namespace

/* ---- nurbs definers ---- */

std::int32_t KX_CALL kx_def_nubspl_curve2d(list_hdr *ctrl, list_hdr *knots, std::int32_t degree, std::int32_t option,
                                           curve *c) {
  if (c == nullptr) return 4;
  c->curve_type = curve_codes<plane>::nonuniform_bspline;
  if (const std::int32_t code = check_bspline(ctrl, knots, degree)) return code;
  return fill(*c, ctrl, knots, nullptr, detached::keeps_count, degree, option) ? 0 : 80;
}

// Creates the curve itself and speaks up where the plane definer answers a code: its hosts have no code to look at.
curve *KX_CALL kx_def_nubspl_curve3d(list_hdr *ctrl, list_hdr *knots, std::int32_t degree, std::int32_t option) {
  curve *c = kx_create_curve();
  if (c == nullptr) return nullptr;
  c->curve_type = curve_codes<space>::nonuniform_bspline;
  const std::int32_t code = check_bspline(ctrl, knots, degree);
  if (code == 0 && fill(*c, ctrl, knots, nullptr, detached::keeps_count, degree, option)) return c;
  kx::dispose(c);
  if (code != 0) kx_display_msg(code == 1 ? "BADKNOTSEQ" : "BADDEG", 0, "kx_def_nubspl_curve3d");
  return nullptr;
}

curve *KX_CALL kx_def_nubspl_curve(list_hdr *ctrl, list_hdr *knots, std::int32_t degree, std::int32_t option) {
  const std::int32_t tag = kx::datatype(ctrl);
  if (kx::is_space_point(tag)) return kx_def_nubspl_curve3d(ctrl, knots, degree, option);
  curve *c = kx::is_plane_point(tag) ? kx_create_curve() : nullptr;
  if (c == nullptr || kx_def_nubspl_curve2d(ctrl, knots, degree, option, c) == 0) return c;
  kx::dispose(c);
  return nullptr;
}

curve *KX_CALL kx_def_nurb_curve(list_hdr *ctrl, list_hdr *knots, list_hdr *weights, std::int32_t degree,
                                 std::int32_t option) {
  const std::int32_t tag = kx::datatype(ctrl);
  if (!kx::is_point(tag)) return nullptr;
  curve *c = kx_create_curve();
  if (c == nullptr) return nullptr;
  const auto define = kx::is_plane_point(tag) ? kx_def_nurb_curve2d : kx_def_nurb_curve3d;
  if (define(ctrl, knots, weights, degree, option, c) == 0) return c;
  kx::dispose(c);
  return nullptr;
}

std::int32_t KX_CALL kx_def_nurb_curve2d(list_hdr *ctrl, list_hdr *knots, list_hdr *weights, std::int32_t degree,
                                         std::int32_t option, curve *c) {
  return define_nurbs<plane>(ctrl, knots, weights, degree, option, c);
}

std::int32_t KX_CALL kx_def_nurb_curve3d(list_hdr *ctrl, list_hdr *knots, list_hdr *weights, std::int32_t degree,
                                         std::int32_t option, curve *c) {
  return define_nurbs<space>(ctrl, knots, weights, degree, option, c);
}
