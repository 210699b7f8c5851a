// Points along circles, arcs and bulged polyline segments.
#include "geometry/chords.hpp"
#include "kxgeom/geometry.h"

namespace {

bool is_radius(double r) { return std::isfinite(r) && r > kx::tolerance; }

int32_t append_arc(const circle_2d *circle, double start_deg, double sweep_deg, double tol, list_hdr *pnts) {
  if (!circle || !kx::point_run::accepts(pnts)) return kx::wrong_argument;
  const double r = circle->r;
  if (!is_radius(r)) return kx::wrong_value;
  return kx::append_conic({{circle->x, circle->y}, {r, 0.0}, {0.0, r}, r}, start_deg, sweep_deg, tol, *pnts);
}

// The arc over the chord from..from + chord.
struct bulge_arc {
  kx::vec2 from, chord;
  double half_angle;  // half the included angle in radians, with the bulge's sign
  double half_sine;   // its sine, from the bulge itself: sharp where the arc is nearly a whole turn
  kx::vec2 to_centre;
  double radius, sweep_deg;

  // The point after the fraction f of the arc. Its chord from the start is at half its angle to the start's tangent, so
  // it is the whole chord turned and shortened: no digits are lost to a centre far away.
  kx::vec2 at(double f) const {
    const double part = half_angle * f, turn = part - half_angle;
    const double ratio = std::sin(part) / half_sine, c = std::cos(turn), s = std::sin(turn);
    return from + ratio * (c * chord + s * kx::normal(chord));
  }
};

// Fills in the arc; the status.
int32_t make_bulge_arc(const pnt_2d &from, const pnt_2d &to, double bulge, bulge_arc &arc) {
  arc.from = {from.x, from.y};
  arc.chord = kx::vec2{to.x, to.y} - arc.from;
  const double length = kx::length(arc.chord);
  if (!std::isfinite(length) || !std::isfinite(bulge)) return kx::wrong_value;
  if (kx::near_zero(length)) return kx::coincident;
  if (kx::near_zero(bulge)) return kx::wrong_value;
  const double inverse = 1.0 / bulge;
  arc.half_angle = 2.0 * std::atan(bulge);
  arc.half_sine = 2.0 / (inverse + bulge);
  arc.to_centre = 0.5 * arc.chord + 0.25 * (inverse - bulge) * kx::normal(arc.chord);
  arc.radius = 0.25 * length * std::fabs(inverse + bulge);
  arc.sweep_deg = 4.0 * kx::degrees_of({1.0, bulge});
  const kx::vec2 centre = arc.from + arc.to_centre;
  const bool sound = is_radius(arc.radius) && std::isfinite(std::fabs(centre.x) + arc.radius) &&
                     std::isfinite(std::fabs(centre.y) + arc.radius);
  return sound ? kx::done : kx::wrong_value;
}

}  // namespace

double KX_CALL kx_arclength(const arc_2d *arc) {
  constexpr int32_t degrees = 1, no_angle = 2;
  if (!arc || arc->mode == no_angle) return 0.0;
  return std::fabs(arc->r * (arc->mode == degrees ? arc->value_1 * kx::radians_per_degree : arc->value_1));
}

int32_t KX_CALL kx_arc_pntcount(double radius, double sweep_deg, double tol) {
  if (!is_radius(radius) || !std::isfinite(sweep_deg)) return 0;
  return kx::chord_count(radius, kx::whole_turn_at_most(sweep_deg), tol) + 1;
}

int32_t KX_CALL kx_arcpnts_2d(const circle_2d *circle, double start_deg, double sweep_deg, double tol, list_hdr *pnts) {
  return append_arc(circle, start_deg, sweep_deg, tol, pnts);
}

int32_t KX_CALL kx_circlepnts_2d(const circle_2d *circle, double tol, list_hdr *pnts) {
  return append_arc(circle, 0.0, kx::full_turn, tol, pnts);
}

int32_t KX_CALL kx_arc_bulge_2d(const pnt_2d *from, const pnt_2d *to, double bulge, circle_2d *circle,
                                double *start_deg, double *sweep_deg) {
  if (!from || !to || !circle || !start_deg || !sweep_deg) return kx::wrong_argument;
  bulge_arc arc;
  const int32_t status = make_bulge_arc(*from, *to, bulge, arc);
  if (status != kx::done) return status;
  const kx::vec2 centre = arc.from + arc.to_centre;
  *circle = {centre.x, centre.y, arc.radius};
  *start_deg = kx::degrees_of({-arc.to_centre.x, -arc.to_centre.y});
  *sweep_deg = arc.sweep_deg;
  return kx::done;
}

int32_t KX_CALL kx_bulgepnts_2d(const pnt_2d *from, const pnt_2d *to, double bulge, double tol, list_hdr *pnts) {
  if (!from || !to || !kx::point_run::accepts(pnts)) return kx::wrong_argument;
  const kx::vec2 a{from->x, from->y}, b{to->x, to->y};
  if (!std::isfinite(a.x) || !std::isfinite(a.y) || !std::isfinite(b.x) || !std::isfinite(b.y)) return kx::wrong_value;
  kx::point_run run(*pnts);
  if (!kx::near_zero(bulge)) {
    bulge_arc arc;
    const int32_t status = make_bulge_arc(*from, *to, bulge, arc);
    if (status != kx::done) return status;
    const int32_t chords = kx::chord_count(arc.radius, arc.sweep_deg, tol);
    for (int32_t i = 1; i < chords; ++i) {
      if (!run.add(arc.at(static_cast<double>(i) / chords))) return kx::no_memory;
    }
  }
  return run.add(b) ? run.hand_over() : kx::no_memory;
}
