// Arcs and ellipses as chords: how many, in which directions, and onto the caller's list all or none.
#pragma once

#include <cmath>
#include <cstdint>

#include "kxgeom/types.h"
#include "list/items.hpp"
#include "list/point_kind.hpp"
#include "records/vector.hpp"
#include "runtime/memory.hpp"
#include "runtime/tolerance.hpp"
#include "status.hpp"

namespace kx {

inline constexpr double full_turn = 360.0;
inline constexpr double widest_chord = 120.0;  // degrees: a circle stays a polygon however coarse the tolerance
inline constexpr std::int32_t most_chords = 1000000;
inline constexpr double default_flatness = 1e-3;  // of the radius, for a tolerance that is none

// A sweep of a turn or more, or as good as one, is exactly one turn.
inline double whole_turn_at_most(double sweep_deg) {
  return std::fabs(sweep_deg) >= full_turn - tolerance ? std::copysign(full_turn, sweep_deg) : sweep_deg;
}

// The least number of equal chords that stay within tol of their arc; 0 for no sweep. A chord over the angle w stands
// off by radius*(1 - cos(w/2)) = 2*radius*sin(w/4)^2: as a sine it keeps its digits for the smallest tol/radius.
inline std::int32_t chord_count(double radius, double sweep_deg, double tol) {
  const double flatness = tol > tolerance ? tol / radius : default_flatness;
  const double half_sine = std::sqrt(flatness < 1.0 ? 0.5 * flatness : 0.5);
  const double widest = 4.0 * std::asin(half_sine) / radians_per_degree;
  // A count that is whole but for rounding and the degree's eleven digits is taken as whole.
  constexpr double rounding = 1e-11;
  const double count =
      std::ceil(std::fabs(sweep_deg) / (widest < widest_chord ? widest : widest_chord) * (1.0 - rounding));
  return count < most_chords ? static_cast<std::int32_t>(count) : most_chords;
}

// The unit vector at an angle in degrees. Only what is left of the angle beside the nearest quadrant limit is turned
// into radians: exact on multiples of 90, and the degree's eleven digits cost a few 1e-12 at most, anywhere on the
// turn.
inline vec2 direction_at(double deg) {
  deg = std::fmod(deg, full_turn);
  const double quadrant = std::floor(deg / 90.0 + 0.5);
  const double rest = (deg - 90.0 * quadrant) * radians_per_degree;
  const double c = std::cos(rest), s = std::sin(rest);
  switch (static_cast<int>(quadrant) & 3) {
    case 0: return {c, s};
    case 1: return {-s, c};
    case 2: return {-c, -s};
    default: return {s, -c};
  }
}

// The angle of a vector in degrees, -180 to 180: exact on multiples of 45, elsewhere what direction_at turns back.
inline double degrees_of(vec2 v) {
  const double ax = std::fabs(v.x), ay = std::fabs(v.y);
  const double slope = ay > ax ? ax / ay : ay / ax;
  constexpr double tan_eighth = 0.41421356237309503;  // from the nearer of 0 and 45 degrees on
  double deg = slope > tan_eighth ? 45.0 + std::atan((slope - 1.0) / (slope + 1.0)) / radians_per_degree
                                  : std::atan(slope) / radians_per_degree;
  if (ay > ax) deg = 90.0 - deg;
  if (v.x < 0.0) deg = 180.0 - deg;
  return v.y < 0.0 ? -deg : deg;
}

// The points of one call: gathered apart from the caller's list and handed over at the end, so that a call that fails
// leaves nothing behind.
class point_run {
 public:
  // Continues the numbers of the list, wrapping around after the largest one.
  explicit point_run(list_hdr &target)
      : target_(target),
        next_(target.head ? static_cast<std::uint32_t>(read_seqnr(target.tail->data, KX_POLY_2D)) + 1 : 0) {}
  ~point_run() { release_items(fresh_); }
  point_run(const point_run &) = delete;
  point_run &operator=(const point_run &) = delete;

  // Whether a list can be continued. Its ends tell: looking at every item would make a long polyline, appended segment
  // by segment, quadratic.
  static bool accepts(const list_hdr *list) {
    return list && (!list->head || (is_vertex(list->head) && is_vertex(list->tail)));
  }

  // False when the memory is exhausted.
  bool add(vec2 p) {
    poly_2d *record = create_poly_2d();
    if (!record) return false;
    *record = {static_cast<std::int32_t>(next_++), p.x, p.y};
    if (append(fresh_, record, KX_POLY_2D)) return true;
    release(record);
    return false;
  }

  std::int32_t hand_over() {
    if (target_.head) {
      target_.tail->next = fresh_.head;
      fresh_.head->prev = target_.tail;
      fresh_.head = target_.head;
      fresh_.count += target_.count;
    }
    move_items(fresh_, target_);
    return done;
  }

 private:
  static bool is_vertex(const list_item *item) { return item && item->datatype == KX_POLY_2D && item->data; }

  list_hdr &target_;
  list_hdr fresh_{};
  std::uint32_t next_;
};

// A circle or ellipse as the points centre + cos(u)*p + sin(u)*q.
struct conic_frame {
  vec2 centre, p, q;
  double longest;  // the longer semi-axis, which decides about chords

  bool finite() const {
    return std::isfinite(std::fabs(centre.x) + longest) && std::isfinite(std::fabs(centre.y) + longest);
  }
  vec2 at(double u_deg) const {
    const vec2 d = direction_at(u_deg);
    return centre + (d.x * p + d.y * q);
  }
};

// Appends the chords' ends from start_deg through sweep_deg; a whole turn ends on its first point, bit for bit. The
// frame is sound and the list accepted; the status.
inline std::int32_t append_conic(const conic_frame &frame, double start_deg, double sweep_deg, double tol,
                                 list_hdr &pnts) {
  if (!std::isfinite(start_deg) || !std::isfinite(sweep_deg) || !frame.finite()) return wrong_value;
  const double start = std::fmod(start_deg, full_turn), sweep = whole_turn_at_most(sweep_deg);
  const std::int32_t chords = chord_count(frame.longest, sweep, tol);
  const bool closed = std::fabs(sweep) == full_turn;
  const vec2 first = frame.at(start);
  point_run run(pnts);
  if (!run.add(first)) return no_memory;
  for (std::int32_t i = 1; i <= chords; ++i) {
    const vec2 p = closed && i == chords ? first : frame.at(start + sweep * i / chords);
    if (!run.add(p)) return no_memory;
  }
  return run.hand_over();
}

}  // namespace kx
