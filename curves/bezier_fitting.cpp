// Cubic Bezier pieces through the neighbourhood of many points.
#include <algorithm>
#include <cmath>

#include "control_points.hpp"
#include "curve_record.hpp"
#include "kxgeom/curves.h"
#include "pending_list.hpp"

namespace {

using kx::plane;
using kx::space;

// ---- tangents ----

// The tangent of a run of points at p: towards the next point at its start, back to the one before at its end, and
// between its neighbours, also backwards, inside. Too short a one is left as long as it is.
enum tangent_mode : std::int32_t { at_start = 0, at_end = 1, inside = 2 };

template <class V>
V tangent(V before, V at, V after, std::int32_t mode) {
  const V d = mode == at_start ? after - at : mode == at_end ? before - at : 0.5 * ((before - at) + (at - after));
  const double length = kx::length(d);
  return length <= kx::tolerance ? d : d / length;
}

template <class V>
V unit_or_none(V d) {
  const double length = kx::length(d);
  return length > 0.0 ? d / length : V{};
}

// For points closer than the tolerance of the exported tangents: only coinciding ones have no direction.
template <class V>
V unit_tangent(V before, V at, V after, std::int32_t mode) {
  return unit_or_none(tangent(before, at, after, mode));
}

// ---- one piece ----

template <class V>
struct cubic {
  V p[4];

  V at(double u) const {
    const double s = 1.0 - u;
    return (s * s * s) * p[0] + (3.0 * s * s * u) * p[1] + (3.0 * s * u * u) * p[2] + (u * u * u) * p[3];
  }
  V first_derivative(double u) const {
    const double s = 1.0 - u;
    return (3.0 * s * s) * (p[1] - p[0]) + (6.0 * s * u) * (p[2] - p[1]) + (3.0 * u * u) * (p[3] - p[2]);
  }
  V second_derivative(double u) const {
    return (6.0 * (1.0 - u)) * ((p[2] - p[1]) - (p[1] - p[0])) + (6.0 * u) * ((p[3] - p[2]) - (p[2] - p[1]));
  }
};

// One end of a run: its unit tangent into the run, which the piece has to keep unless nothing joins it there.
template <class V>
struct run_end {
  V tangent;
  bool open;
};

// A run of points that one piece is to follow.
template <class V>
struct run {
  std::ptrdiff_t first, last;
  run_end<V> start, end;
};

// Chord lengths from the first point, as parts of their sum, which is handed back.
template <class V>
double set_parameters(const V *d, const run<V> &r, double *u) {
  u[r.first] = 0.0;
  for (std::ptrdiff_t i = r.first + 1; i <= r.last; ++i) u[i] = u[i - 1] + kx::length(d[i] - d[i - 1]);
  const double total = u[r.last];
  const double count = static_cast<double>(r.last - r.first);
  for (std::ptrdiff_t i = r.first + 1; i < r.last; ++i)
    u[i] = total > 0.0 ? u[i] / total : static_cast<double>(i - r.first) / count;
  u[r.last] = 1.0;
  return total;
}

const kx::vec2 *axes(kx::vec2) {
  static constexpr kx::vec2 all[] = {{1.0, 0.0}, {0.0, 1.0}};
  return all;
}
const kx::vec3 *axes(kx::vec3) {
  static constexpr kx::vec3 all[] = {{1.0, 0.0, 0.0}, {0.0, 1.0, 0.0}, {0.0, 0.0, 1.0}};
  return all;
}
constexpr int most_unknowns = 6;

// The two ways from the ends of a piece to its inner control points.
template <class V>
struct handles {
  V start{}, end{};
};

// The least-squares problem of the handles: a bound one has one unknown, its length along the tangent; a free one has
// its components.
template <class V>
class least_squares {
 public:
  least_squares(const run<V> &r, bool free_start, bool free_end) {
    add_unknowns(r.start.tangent, free_start, false);
    add_unknowns(r.end.tangent, free_end, true);
  }

  // Adds a point at the parameter t; `rest` is what the ends of the piece leave of it. What is left along a unit vector
  // counts but for `share`: there the point's parameter can still give way.
  void add(double t, V rest, V along, double share) {
    const double s = 1.0 - t, b[2] = {3.0 * s * s * t, 3.0 * s * t * t};
    const auto turned = [=](V v) { return v - ((1.0 - share) * dot(v, along)) * along; };
    for (int i = 0; i < count_; ++i) {
      const V v = b[unknown_[i].end] * turned(unknown_[i].direction);
      y_[i] += dot(v, rest);
      for (int j = 0; j <= i; ++j) a_[i][j] += b[unknown_[j].end] * dot(v, unknown_[j].direction);
    }
  }

  // By Cholesky's factors; false where the points do not tell.
  bool solve(handles<V> &h) {
    for (int i = 0; i < count_; ++i) {
      const double least = 1e-9 * a_[i][i];
      for (int j = 0; j <= i; ++j) {
        for (int k = 0; k < j; ++k) a_[i][j] -= a_[i][k] * a_[j][k];
        if (j < i) a_[i][j] /= a_[j][j];
      }
      if (!(a_[i][i] > least)) return false;
      a_[i][i] = std::sqrt(a_[i][i]);
      for (int k = 0; k < i; ++k) y_[i] -= a_[i][k] * y_[k];
      y_[i] /= a_[i][i];
    }
    h = {};
    for (int i = count_ - 1; i >= 0; --i) {
      for (int k = i + 1; k < count_; ++k) y_[i] -= a_[k][i] * y_[k];
      y_[i] /= a_[i][i];
      V &handle = unknown_[i].end ? h.end : h.start;
      handle = handle + y_[i] * unknown_[i].direction;
    }
    return true;
  }

 private:
  struct unknown {
    V direction;
    int end;  // 0 for the start, 1 for the end
  };

  void add_unknowns(V tangent, bool free, bool end) {
    if (!free) unknown_[count_++] = {tangent, end};
    for (std::size_t i = 0; free && i < sizeof(V) / sizeof(double); ++i) unknown_[count_++] = {axes(tangent)[i], end};
  }

  int count_ = 0;
  unknown unknown_[most_unknowns] = {};
  double a_[most_unknowns][most_unknowns] = {}, y_[most_unknowns] = {};
};

// Whether a handle leads into the run, and neither nowhere nor beyond all points.
template <class V>
bool sensible(V handle, V tangent, double shortest, double longest) {
  const double along = dot(handle, tangent);
  return along > shortest && kx::length(handle) <= longest;
}

// Little, or the piece hardly moves along itself; not nothing, or a straight run would leave its handles open.
constexpr double share_along = 0.002;

// The piece of a run: with its open ends free where there are enough points to tell, else with the tangents, else with
// thirds of the chord on them, as for two points. A piece that is near already tells how the points may give way.
template <class V>
cubic<V> approximate(const V *d, const run<V> &r, const double *u, double longest, const cubic<V> *near) {
  const V from = d[r.first], to = d[r.last];
  const double distance = kx::length(to - from);
  const bool many = r.last - r.first > 4, any_open = r.start.open || r.end.open;
  for (const bool free : {true, false}) {
    if (free && !(many && any_open)) continue;
    least_squares<V> problem(r, free && r.start.open, free && r.end.open);
    for (std::ptrdiff_t i = r.first + 1; i < r.last; ++i) {
      const double t = u[i];
      // the shares of the end points, b0 + b1 and b2 + b3, add up to 1
      const V rest = (d[i] - from) - (t * t * (3.0 - 2.0 * t)) * (to - from);
      problem.add(t, rest, near ? unit_or_none(near->first_derivative(t)) : V{}, near ? share_along : 1.0);
    }
    handles<V> h;
    if (problem.solve(h) && sensible(h.start, r.start.tangent, 1e-6 * distance, longest) &&
        sensible(h.end, r.end.tangent, 1e-6 * distance, longest))
      return {{from, from + h.start, to + h.end, to}};
  }
  return {{from, from + (distance / 3.0) * r.start.tangent, to + (distance / 3.0) * r.end.tangent, to}};
}

// One step of Newton's method for each point's parameter towards the foot of its perpendicular.
template <class V>
void improve_parameters(const V *d, const run<V> &r, const cubic<V> &piece, double *u) {
  for (std::ptrdiff_t i = r.first + 1; i < r.last; ++i) {
    const V away = piece.at(u[i]) - d[i], q1 = piece.first_derivative(u[i]), q2 = piece.second_derivative(u[i]);
    const double slope = dot(q1, q1) + dot(away, q2);
    if (slope > 0.0) u[i] = std::clamp(u[i] - dot(away, q1) / slope, 0.0, 1.0);
  }
}

// How far the worst point is off, and the worst one of those where the run may be split: a quarter of it stays on
// either side. That makes for fewer pieces, and splitting ends after few levels whatever the points are.
struct deviation {
  double worst;
  std::ptrdiff_t split;
};

template <class V>
deviation measure(const V *d, const run<V> &r, const cubic<V> &piece, const double *u) {
  const std::ptrdiff_t count = r.last - r.first, margin = std::max<std::ptrdiff_t>(1, count / 4);
  double worst = 0.0, worst_inside = -1.0;
  std::ptrdiff_t split = r.first + count / 2;
  for (std::ptrdiff_t i = r.first + 1; i < r.last; ++i) {
    const V away = piece.at(u[i]) - d[i];
    const double square = dot(away, away);
    worst = std::max(worst, square);
    if (square > worst_inside && i - r.first >= margin && r.last - i >= margin) {
      worst_inside = square;
      split = i;
    }
  }
  return {std::sqrt(worst), split};
}

// ---- all pieces ----

constexpr int most_improvements = 16;  // of one piece
constexpr int most_waiting = 128;      // runs: splitting takes under 100 levels for any count of 32 bits

template <class V>
cubic<V> fit(const V *d, const run<V> &r, double tolerance, double *u, deviation &off) {
  const double length = set_parameters(d, r, u);
  cubic<V> piece = approximate<V>(d, r, u, length, nullptr);
  off = measure(d, r, piece, u);
  for (int n = 0; n < most_improvements && off.worst > tolerance; ++n) {
    improve_parameters(d, r, piece, u);
    const cubic<V> next = approximate(d, r, u, length, &piece);
    improve_parameters(d, r, next, u);
    const deviation next_off = measure(d, r, next, u);
    if (!(next_off.worst < 0.99 * off.worst)) break;
    piece = next;
    off = next_off;
  }
  return piece;
}

// Splits a run; the tangents at the split are opposite, and where the points turn back on themselves each side has its
// own.
template <class V>
void split(const V *d, const run<V> &r, std::ptrdiff_t at, run<V> &left, run<V> &right) {
  V back = unit_tangent(d[at - 1], d[at], d[at + 1], inside), on = -1.0 * back;
  if (dot(back, back) == 0.0) {
    back = unit_tangent(d[at - 1], d[at], d[at + 1], at_end);
    on = unit_tangent(d[at - 1], d[at], d[at + 1], at_start);
  }
  left = {r.first, at, r.start, {back, false}};
  right = {at, r.last, {on, false}, r.end};
}

template <class D>
std::int32_t fit_all(const typename D::vector *d, std::ptrdiff_t n, double tolerance, double *u,
                     kx::pending_list &made) {
  using V = typename D::vector;
  const std::ptrdiff_t last = n - 1;
  run<V> waiting[most_waiting];
  int count = 0;
  waiting[count++] = {0,
                      last,
                      {unit_tangent(d[0], d[0], d[1], at_start), true},
                      {unit_tangent(d[last - 1], d[last], d[last], at_end), true}};
  while (count > 0) {
    const run<V> r = waiting[--count];
    deviation off;
    const cubic<V> piece = fit(d, r, tolerance, u, off);
    if (off.worst <= tolerance) {  // as it is with no points between the ends
      for (const V &p : piece.p) {
        if (!made.add_vertex<D>(p)) return 80;
      }
    } else {
      run<V> left, right;
      split(d, r, off.split, left, right);
      waiting[count++] = right;
      waiting[count++] = left;
    }
  }
  return 0;
}

// Larger coordinates are refused, well before their squares would overflow.
bool in_range(double x) { return std::fabs(x) <= 1e100; }
bool in_range(kx::vec2 v) { return in_range(v.x) && in_range(v.y); }
bool in_range(kx::vec3 v) { return in_range(v.x) && in_range(v.y) && in_range(v.z); }

bool same(kx::vec2 a, kx::vec2 b) { return a.x == b.x && a.y == b.y; }
bool same(kx::vec3 a, kx::vec3 b) { return a.x == b.x && a.y == b.y && a.z == b.z; }

// Of a list that is not empty.
template <class D>
std::int32_t fit_list(const list_hdr *points, double tolerance, list_hdr *pieces) {
  using V = typename D::vector;
  std::ptrdiff_t count = 0;
  for ([[maybe_unused]] const list_item &item : kx::items(points)) ++count;
  const kx::scratch<V> d(count);
  const kx::scratch<double> u(count);
  if (!d || !u) {
    kx::report_no_memory("kx_fit_bezcurve");
    return 80;
  }
  std::ptrdiff_t n = 0;
  for (const list_item &item : kx::items(points)) {
    V v;
    if (!kx::read_any_point<D>(&item, v)) return 40;
    if (!in_range(v)) return 3;
    if (n == 0 || !same(v, d[n - 1])) d[n++] = v;
  }
  if (n < 2) return 1;
  kx::pending_list made;
  const std::int32_t code = fit_all<D>(d.data(), n, tolerance, u.data(), made);
  if (code == 0) made.move_behind(*pieces);
  return code;
}

}  // namespace

/* ---- bezier fitting ---- */

std::int32_t KX_CALL kx_compute_bez_tangent(const pnt_2d *points, std::int32_t i, std::int32_t mode, pnt_2d *out) {
  if (points == nullptr || out == nullptr) return 40;
  if (mode < at_start || mode > inside) return mode < INT32_MIN + 2 ? INT32_MIN : mode - 2;
  if (i < (mode == at_start ? 0 : 1)) return 40;
  const pnt_2d *at = points + i;
  const kx::vec2 here = plane::read(*at);
  const kx::vec2 before = mode == at_start ? here : plane::read(at[-1]),
                 after = mode == at_end ? here : plane::read(at[1]);
  *out = plane::make_point(tangent(before, here, after, mode));
  return 0;
}

std::int32_t KX_CALL kx_fit_bezcurve(const list_hdr *points, double tolerance, list_hdr *pieces) {
  if (points == nullptr || pieces == nullptr) return 40;
  if (!(tolerance >= 0.0)) return 2;
  if (kx::empty(points)) return 1;
  const std::int32_t tag = kx::datatype(points);
  if (!kx::is_point(tag)) return 40;
  return kx::is_plane_point(tag) ? fit_list<plane>(points, tolerance, pieces)
                                 : fit_list<space>(points, tolerance, pieces);
}
