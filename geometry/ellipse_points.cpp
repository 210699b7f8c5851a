// Points along ellipses and elliptic arcs.
#include "geometry/chords.hpp"
#include "kxgeom/geometry.h"

namespace {

int32_t append_elliptic_arc(const ellipse_2d *ellipse, double axis_deg, double start_deg, double sweep_deg, double tol,
                            list_hdr *pnts) {
  if (!ellipse || !kx::point_run::accepts(pnts)) return kx::wrong_argument;
  const double a = ellipse->a, b = ellipse->b;
  if (!(a > kx::tolerance) || !(b > kx::tolerance) || !std::isfinite(axis_deg)) return kx::wrong_value;
  const kx::vec2 axis = kx::direction_at(axis_deg);
  const kx::conic_frame frame{{ellipse->x, ellipse->y}, a * axis, b * kx::normal(axis), a > b ? a : b};
  return kx::append_conic(frame, start_deg, sweep_deg, tol, *pnts);
}

}  // namespace

int32_t KX_CALL kx_ellipsepnts_2d(const ellipse_2d *ellipse, double axis_deg, double tol, list_hdr *pnts) {
  return append_elliptic_arc(ellipse, axis_deg, 0.0, kx::full_turn, tol, pnts);
}

int32_t KX_CALL kx_elliptic_arc_2d(const ellipse_2d *ellipse, double axis_deg, double start_deg, double sweep_deg,
                                   double tol, list_hdr *pnts) {
  return append_elliptic_arc(ellipse, axis_deg, start_deg, sweep_deg, tol, pnts);
}
