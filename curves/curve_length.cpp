// The length of curves of every kind, and the point at a length.
#include <algorithm>
#include <limits>

#include "bernstein_roots.hpp"
#include "kxgeom/curves.h"
#include "piece_calculus.hpp"

namespace {

using kx::plane;
using kx::space;

constexpr double epsilon = std::numeric_limits<double>::epsilon();
constexpr double rounding = 1e-14;  // of a length: what its sums may be off, however fine the intervals

struct measured {
  double length = 0.0, error = 0.0;
  double floor = 0.0;  // an error that no effort brings down
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
    const auto start = kx::projected(piece[0]);
    double polygon = 0.0, farthest = kx::length(start);
    for (int j = 0; j < n; ++j) {
      const auto next = kx::projected(piece[j + 1]);
      polygon += kx::length(next - kx::projected(piece[j]));
      farthest = std::max(farthest, kx::length(next));
    }
    // Told from its start, a piece far away loses no digits to the products with its weights.
    for (int j = 0; j <= n; ++j) piece[j].point = piece[j].point - piece[j].weight * start;
    speed_.take(piece, n);
    floor_ = 0.05 * rounding * polygon + 4.0 * epsilon * farthest;
    if (polygon > 100.0 * epsilon * farthest && may_stop(piece, n)) find_slowest(piece, n);
  }

  // What the rounding of the coordinates alone may make.
  double floor() const { return floor_; }

  measured between(double from, double to, double allowed) const {
    effort left{.floor = floor_};
    measured sum;
    const double share = allowed / (slow_count_ + 1);
    for (int i = 0; i <= slow_count_ && from < to; ++i) {
      const double next = i < slow_count_ ? std::min(slow_[i], to) : to;
      if (next <= from) continue;
      const measured part = integrate(speed_, from, next, share, deepest, left);
      sum = {sum.length + part.length, sum.error + part.error};
      from = next;
    }
    return sum;
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
  using point = typename kx::bezier_pieces<D>::point;
  static constexpr int most_slow = 64;

  // Whether the piece may come near to a stop: not when all legs of its control polygon go its chord's way.
  static bool may_stop(const point *piece, int n) {
    const auto chord = kx::projected(piece[n]) - kx::projected(piece[0]);
    const double length = kx::length(chord);
    double slowest = HUGE_VAL, fastest = 0.0;
    for (int j = 0; j < n; ++j) {
      const auto leg = kx::projected(piece[j + 1]) - kx::projected(piece[j]);
      slowest = std::min(slowest, kx::dot(leg, chord));
      fastest = std::max(fastest, kx::length(leg));
    }
    return !(slowest > 0.1 * fastest * length);
  }

  // Where the speed is least, weights left aside. A curve that stops there, as at a cusp, has a speed with a kink,
  // which both rules miss when it lies between an end and the outermost node: so kinks are made ends.
  void find_slowest(const point *piece, int n) {
    const bool rational = Components > kx::dimension_of<D>;
    const kx::bernstein w(n, [&](int j) { return piece[j].weight; });
    kx::bernstein product;
    for (int k = 0; k < kx::dimension_of<D>; ++k) {
      const kx::bernstein x(n, [&](int j) { return kx::component(piece[j].point, k); });
      const kx::bernstein first = rational ? kx::quotient_slope(x, w) : x.derivative();
      if (first.degree == 0) return;
      product.degree = 2 * first.degree - 1;
      product.add_product(first, first.derivative(), 1.0);
    }
    kx::root_finder(product).find([this](double u) {
      if (slow_count_ < most_slow) slow_[slow_count_++] = u;
    });
    std::sort(slow_, slow_ + slow_count_);
  }

  speed_of_piece<D, Components> speed_;
  double floor_;
  double slow_[most_slow];
  int slow_count_ = 0;
};

// The length between two places, the first one before the second.
template <int Components, class D>
measured measure(const kx::bezier_pieces<D> &pieces, double from, double to, double allowed) {
  const std::int32_t first = pieces.find(from), last = pieces.find(to);
  const double share = allowed / (last - first + 1.0);
  measured sum;
  for (std::int32_t i = first; i <= last; ++i) {
    const double a = i == first ? pieces.local(i, from) : 0.0, b = i == last ? pieces.local(i, to) : 1.0;
    if (a >= b) continue;
    const piece_length<D, Components> piece(pieces, i);
    const measured part = piece.between(a, b, share);
    sum = {sum.length + part.length, sum.error + part.error, sum.floor + piece.floor()};
  }
  return sum;
}

double slack(const measured &m, double allowed) { return std::max(allowed, 10.0 * (rounding * m.length + m.floor)); }

std::int32_t judge(const measured &m, double allowed) {
  return m.error + m.floor + rounding * m.length <= slack(m, allowed) ? 0 : kx::too_much;
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
  if (error) *error = all.error + all.floor + rounding * all.length;
  return judge(all, allowed);
}

// Goes on from a place until the length is used up. Backwards, the way is that from the start that is so much shorter.
template <int Components, class D>
std::int32_t walk(const kx::bezier_pieces<D> &pieces, double from, double length, double allowed, double &t) {
  double rest = length;
  measured way;
  if (length < 0.0) {
    way = measure<Components>(pieces, pieces.from(), from, 0.25 * allowed);
    rest += way.length;
    from = pieces.from();
    if (rest < -slack(way, allowed)) return kx::bad_value;
    rest = std::max(rest, 0.0);
  }
  const double share = 0.25 * allowed / pieces.count();
  for (std::int32_t i = pieces.find(from);; ++i) {
    const piece_length<D, Components> piece(pieces, i);
    const double a = from > pieces.start(i) ? pieces.local(i, from) : 0.0;
    const measured all = piece.between(a, 1.0, share);
    const bool here = rest < all.length, last = i + 1 == pieces.count();
    way = {way.length + (here ? rest : all.length), way.error + all.error, way.floor + piece.floor()};
    if (here) {
      t = pieces.global(i, piece.find(a, rest, 0.25 * allowed, way.error));
    } else if (last) {
      if (rest - all.length > slack(way, allowed)) return kx::bad_value;
      t = pieces.to();
    }
    if (here || last) return judge(way, allowed);
    rest -= all.length;
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
