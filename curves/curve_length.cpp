// The length of curves of every kind, and the point at a length.
#include <algorithm>
#include <limits>

#include "kxgeom/curves.h"
#include "piece_calculus.hpp"

namespace {

using kx::plane;
using kx::space;

constexpr double epsilon = std::numeric_limits<double>::epsilon();
constexpr double rounding = 1e-14;  // of a length: what its sums may be off, however fine the intervals

struct measured {
  double length, error;
};

// How fast a piece runs by its local parameter.
template <class D, int Components>
class speed_of_piece {
 public:
  void take(const kx::weighted<typename D::vector> *piece, int n) {
    kx::weighted<typename D::vector> steps[kx::max_piece_points];
    for (int j = 0; j < n; ++j) steps[j] = static_cast<double>(n) * (piece[j + 1] + (-1.0) * piece[j]);
    derivative_.take(steps, n - 1);
    if constexpr (weights) place_.take(piece, n);
  }

  // The speed at kx::lanes parameters.
  void at(const double *u, double *speed) const {
    double first[Components * kx::lanes], homogeneous[Components * kx::lanes];
    evaluate(derivative_, u, first);
    if constexpr (weights) evaluate(place_, u, homogeneous);
    for (int l = 0; l < kx::lanes; ++l) {
      auto v = kx::read(first + Components * l, typename D::vector{});
      if constexpr (weights) {
        const double *a = homogeneous + Components * l;
        const double w = a[dimension], dw = first[Components * l + dimension];
        v = (v - (dw / w) * kx::read(a, typename D::vector{})) / w;
      }
      speed[l] = kx::length(v);
    }
  }
  double at(double u) const {
    const double same[kx::lanes] = {u, u, u, u};
    double speed[kx::lanes];
    at(same, speed);
    return speed[0];
  }

 private:
  static constexpr int dimension = kx::dimension_of<D>;
  static constexpr bool weights = Components > dimension;

  static void evaluate(const kx::piece_polynomial<Components> &p, const double *u, double *out) {
    if (p.degree == 0) {
      for (int i = 0; i < Components * kx::lanes; ++i) out[i] = p.c[0][i % Components];
    } else {
      p.degree == 2 ? kx::points_at<Components, Components, 2>(p, u, out)
                    : kx::points_at<Components, Components, 0>(p, u, out);
    }
  }

  kx::piece_polynomial<Components> derivative_, place_;
};

// Kronrod's rule of 15 points over -1 to 1 and, within it, Gauss's of 7; symmetric, the middle last, and an idle one
// that makes the points a whole number of lanes.
constexpr double nodes[8] = {0.991455371120812639206854697526329, 0.949107912342758524526189684047851,
                             0.864864423359769072789712788640926, 0.741531185599394439863864773280788,
                             0.586087235467691130294144691258590, 0.405845151377397166906606412076961,
                             0.207784955007898467600689403773245, 0.0};
constexpr double kronrod[8] = {0.022935322010529224963732008058970, 0.063092092629978553290700663189204,
                               0.104790010322250183839876322541518, 0.140653259715525918745189590510238,
                               0.169004726639267902826583426598550, 0.190350578064785409913256402421014,
                               0.204432940075298892414161999234649, 0.209482141084727828012999174891714};
constexpr double gauss[8] = {0.0, 0.129484966168869693270611432679082, 0.0, 0.279705391489276667901467771423780,
                             0.0, 0.381830050505118944950369775488975, 0.0, 0.417959183673469387755102040816327};

// One interval by both rules; the error is their difference, far more than that of the better one.
template <class Speed>
measured by_rules(const Speed &speed, double from, double to) {
  const double middle = 0.5 * (from + to), half = 0.5 * (to - from);
  double u[16], v[16];
  for (int i = 0; i < 8; ++i) {
    u[i] = middle - half * nodes[i];
    u[8 + i] = middle + half * nodes[i];
  }
  for (int i = 0; i < 16; i += kx::lanes) speed.at(u + i, v + i);
  double fine = kronrod[7] * v[7], coarse = gauss[7] * v[7];
  for (int i = 0; i < 7; ++i) {
    fine += kronrod[i] * (v[i] + v[8 + i]);
    coarse += gauss[i] * (v[i] + v[8 + i]);
  }
  return {half * fine, half * std::fabs(fine - coarse)};
}

// What is left to spend on one piece.
struct effort {
  int intervals = 2000;
  double floor;  // an error that rounding covers
};

// Halves the interval until the error is allowed; each half may have half of it.
template <class Speed>
measured integrate(const Speed &speed, double from, double to, double allowed, int depth, effort &left) {
  const measured all = by_rules(speed, from, to);
  if (all.error <= std::max(allowed, left.floor) || depth == 0 || left.intervals < 2 || std::isnan(all.error))
    return all;
  left.intervals -= 2;
  const double middle = 0.5 * (from + to);
  const measured a = integrate(speed, from, middle, 0.5 * allowed, depth - 1, left);
  const measured b = integrate(speed, middle, to, 0.5 * allowed, depth - 1, left);
  return {a.length + b.length, a.error + b.error};
}

constexpr int deepest = 45;

// One piece of a curve, ready to be measured.
template <class D, int Components>
class piece_length {
 public:
  piece_length(const kx::bezier_pieces<D> &pieces, std::int32_t i) {
    typename kx::bezier_pieces<D>::point piece[kx::max_piece_points];
    pieces.piece(i, piece);
    const int n = pieces.degree();
    speed_.take(piece, n);
    double polygon = 0.0;
    for (int j = 0; j < n; ++j) polygon += kx::length(kx::projected(piece[j + 1]) - kx::projected(piece[j]));
    floor_ = 0.05 * rounding * polygon;
  }

  measured between(double from, double to, double allowed) const {
    effort left{.floor = floor_};
    return integrate(speed_, from, to, allowed, deepest, left);
  }

  // The local parameter at a length from `from`, which is at most the rest of the piece: Newton's steps, within
  // brackets that every step narrows.
  double find(double from, double length, double allowed, double &error) const {
    double low = from, high = 1.0, u = from, rest = length;
    for (int step = 0; step < 100 && std::fabs(rest) > std::max(0.25 * allowed, floor_); ++step) {
      (rest > 0.0 ? low : high) = u;
      const double speed = speed_.at(u);
      double next = speed > 0.0 ? u + rest / speed : high;
      if (!(next > low && next < high)) next = next >= high && step == 0 ? high : 0.5 * (low + high);
      if (next == u) break;
      const measured moved = between(std::min(u, next), std::max(u, next), 0.05 * allowed);
      rest -= next > u ? moved.length : -moved.length;
      error += moved.error;
      u = next;
    }
    return u;
  }

 private:
  speed_of_piece<D, Components> speed_;
  double floor_;
};

// The length between two places, the first one before the second.
template <int Components, class D>
measured measure(const kx::bezier_pieces<D> &pieces, double from, double to, double allowed) {
  const std::int32_t first = pieces.find(from), last = pieces.find(to);
  const double share = allowed / (last - first + 1.0);
  measured sum{0.0, 0.0};
  for (std::int32_t i = first; i <= last; ++i) {
    const double a = i == first ? pieces.local(i, from) : 0.0, b = i == last ? pieces.local(i, to) : 1.0;
    if (a >= b) continue;
    const measured part = piece_length<D, Components>(pieces, i).between(a, b, share);
    sum = {sum.length + part.length, sum.error + part.error};
  }
  return sum;
}

std::int32_t judge(double error, double allowed, double length) {
  return error <= std::max(allowed, 10.0 * rounding * length) ? 0 : kx::too_much;
}

template <class D>
std::int32_t length_between(const curve *c, double from, double to, double allowed, double &length, double *error) {
  kx::bezier_pieces<D> pieces;
  if (const std::int32_t fault = pieces.open(c)) return fault;
  if (!kx::take_into_range(pieces, from) || !kx::take_into_range(pieces, to)) return kx::bad_parameter;
  if (from > to) std::swap(from, to);
  constexpr int dimension = kx::dimension_of<D>;
  const measured all = pieces.rational() ? measure<dimension + 1>(pieces, from, to, allowed)
                                         : measure<dimension>(pieces, from, to, allowed);
  length = all.length;
  const double with_rounding = all.error + rounding * all.length;
  if (error) *error = with_rounding;
  return judge(with_rounding, allowed, all.length);
}

// Goes on from a place until the length is used up. Backwards, the way is that from the start that is so much shorter.
template <int Components, class D>
std::int32_t walk(const kx::bezier_pieces<D> &pieces, double from, double length, double allowed, double &t) {
  double rest = length, error = 0.0, whole = 0.0;
  if (length < 0.0) {
    const measured before = measure<Components>(pieces, pieces.from(), from, 0.25 * allowed);
    rest += before.length;
    whole = before.length;
    error = before.error;
    from = pieces.from();
    if (rest < -std::max(allowed, 10.0 * rounding * whole)) return kx::bad_value;
    rest = std::max(rest, 0.0);
  }
  const double share = 0.25 * allowed / pieces.count();
  for (std::int32_t i = pieces.find(from);; ++i) {
    const piece_length<D, Components> piece(pieces, i);
    const double a = from > pieces.start(i) ? pieces.local(i, from) : 0.0;
    const measured all = piece.between(a, 1.0, share);
    const bool here = rest < all.length, last = i + 1 == pieces.count();
    whole += here ? rest : all.length;
    if (here) {
      t = pieces.global(i, piece.find(a, rest, 0.25 * allowed, error));
    } else if (last) {
      if (rest - all.length > std::max(allowed, 10.0 * rounding * whole)) return kx::bad_value;
      t = pieces.to();
    }
    if (here || last) return judge(error, allowed, whole);
    rest -= all.length;
    error += all.error;
  }
}

template <class D>
std::int32_t at_length(const curve *c, double from, double length, double allowed, double *t,
                       typename D::point *point) {
  if (t == nullptr) return kx::no_argument;
  if (!(allowed >= 0.0) || !std::isfinite(length)) return kx::bad_value;
  kx::bezier_pieces<D> pieces;
  if (const std::int32_t fault = pieces.open(c)) return fault;
  if (!kx::take_into_range(pieces, from)) return kx::bad_parameter;
  constexpr int dimension = kx::dimension_of<D>;
  double found = from;
  const std::int32_t fault = pieces.rational() ? walk<dimension + 1>(pieces, from, length, allowed, found)
                                               : walk<dimension>(pieces, from, length, allowed, found);
  if (fault != 0 && fault != kx::too_much) return fault;
  *t = found;
  if (point) {
    double at[dimension];
    kx::fill_points(
        pieces, 1, [=](std::int32_t) { return found; }, at);
    *point = D::make_point(kx::read(at, typename D::vector{}));
  }
  return fault;
}

}  // namespace

/* ---- curve length ---- */

std::int32_t KX_CALL kx_curve_length(const curve *c, double from, double to, double allowed, double *length,
                                     double *error) {
  if (length == nullptr) return kx::no_argument;
  if (!(allowed >= 0.0)) return kx::bad_value;
  const std::int32_t fault = length_between<plane>(c, from, to, allowed, *length, error);
  return fault == kx::other_dimension ? length_between<space>(c, from, to, allowed, *length, error) : fault;
}

std::int32_t KX_CALL kx_curve_atlength_2d(const curve *c, double from, double length, double allowed, double *t,
                                          pnt_2d *pnt) {
  return at_length<plane>(c, from, length, allowed, t, pnt);
}

std::int32_t KX_CALL kx_curve_atlength_3d(const curve *c, double from, double length, double allowed, double *t,
                                          pnt_3d *pnt) {
  return at_length<space>(c, from, length, allowed, t, pnt);
}
