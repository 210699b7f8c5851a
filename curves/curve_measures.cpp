// The nearest point, the curvature and the box of curves of every kind.
#include <algorithm>
#include <limits>

#include "bernstein_roots.hpp"
#include "kxgeom/curves.h"
#include "piece_calculus.hpp"

namespace {

using kx::plane;
using kx::space;

// What a square may be off by rounding.
constexpr double noise = 8.0 * std::numeric_limits<double>::epsilon();

// ---- nearest point ----

// The nearest place so far.
struct nearest_place {
  double squared = HUGE_VAL;
  std::int32_t piece = 0;
  double u = 0.0;
};

// The search for the point nearest to a given one. Places are told from the given point and directions from the
// piece's own start: so neither loses digits to how far away the other is.
template <class D>
class nearest_search {
 public:
  using vector = typename D::vector;
  using point = kx::weighted<vector>;

  nearest_search(const kx::bezier_pieces<D> &pieces, vector target)
      : pieces_(pieces), target_(target), n_(pieces.degree()) {}

  nearest_place run() {
    for (std::int32_t i = 0; i < pieces_.count(); ++i) {
      load(i);
      consider(kx::projected(piece_[0]), i, 0.0);
      consider(kx::projected(piece_[n_]), i, 1.0);
    }
    // The piece with the nearest end first: then most of the others are out of the question.
    const std::int32_t first = best_.piece;
    search(first);
    for (std::int32_t i = 0; i < pieces_.count(); ++i) {
      if (i != first) search(i);
    }
    polish();
    return best_;
  }

  vector at_best() {
    load(best_.piece);
    return place(best_.u);
  }

 private:
  void load(std::int32_t i) {
    pieces_.piece(i, shape_);
    const vector start = kx::projected(shape_[0]);
    for (int j = 0; j <= n_; ++j) {
      const point p = shape_[j];
      piece_[j] = {p.point - p.weight * target_, p.weight};
      shape_[j] = {p.point - p.weight * start, p.weight};
    }
  }

  vector place(double u) const { return kx::projected(kx::point_of_piece(piece_, n_, u)); }

  void consider(vector at, std::int32_t i, double u) {
    const double squared = kx::dot(at, at);
    if (squared < best_.squared) best_ = {squared, i, u};
  }

  // Whether the box of the control points is no nearer than the best place.
  bool out_of_question() const {
    const vector start = kx::projected(piece_[0]);
    double squared = 0.0;
    for (int k = 0; k < kx::dimension_of<D>; ++k) {
      double least = kx::component(start, k), most = least;
      for (int j = 1; j <= n_; ++j) {
        const double x = kx::component(piece_[j].point, k) / piece_[j].weight;
        least = std::min(least, x);
        most = std::max(most, x);
      }
      const double away = least > 0.0 ? least : std::min(most, 0.0);
      squared += away * away;
    }
    return squared >= best_.squared;
  }

  // Places where the line to the origin is at right angles to the piece: the roots of the product of point and
  // derivative, weights multiplied out.
  void search(std::int32_t i) {
    load(i);
    if (out_of_question()) return;
    const bool rational = pieces_.rational();
    const int n = n_;
    const kx::bernstein w(n, [&](int j) { return piece_[j].weight; });
    kx::bernstein product;
    product.degree = rational ? 3 * n - 1 : 2 * n - 1;
    for (int k = 0; k < kx::dimension_of<D>; ++k) {
      const double given = 2.0 * std::fabs(kx::component(target_, k));
      const auto from_target = [&](int j) { return kx::component(piece_[j].point, k); };
      const auto size = [&](int j) { return std::fabs(from_target(j)) + given * piece_[j].weight; };
      const kx::bernstein a(n, from_target, size);
      const kx::bernstein x(n, [&](int j) { return kx::component(shape_[j].point, k); });
      product.add_product(a, rational ? kx::quotient_slope(x, w) : x.derivative(), 1.0);
    }
    kx::root_finder(product).find([&](double u) { consider(place(u), i, u); });
  }

  // Newton's steps on the product itself. Far away the distance alone cannot tell between places near the foot.
  void polish() {
    load(best_.piece);
    for (int step = 0; step < 4; ++step) {
      const auto shape = kx::jet_of_piece(shape_, n_, best_.u);
      const vector here = place(best_.u);
      const double product = kx::dot(here, shape.first);
      const double slope = kx::dot(shape.first, shape.first) + kx::dot(here, shape.second);
      if (!(slope > 0.0)) return;
      const double u = std::clamp(best_.u - product / slope, 0.0, 1.0);
      const vector next = place(u);
      const double squared = kx::dot(next, next);
      const bool squarer = std::fabs(kx::dot(next, kx::jet_of_piece(shape_, n_, u).first)) < std::fabs(product);
      if (!squarer || squared > best_.squared * (1.0 + noise)) return;
      best_ = {squared, best_.piece, u};
    }
  }

  const kx::bezier_pieces<D> &pieces_;
  vector target_;
  int n_;
  point piece_[kx::max_piece_points], shape_[kx::max_piece_points];
  nearest_place best_;
};

template <class D>
std::int32_t closest(const curve *c, const typename D::point *given, double *t, typename D::point *nearest,
                     double *distance) {
  if (given == nullptr) return kx::no_argument;
  const auto target = D::read(*given);
  for (int k = 0; k < kx::dimension_of<D>; ++k) {
    if (!(std::fabs(kx::component(target, k)) <= 1e60)) return kx::bad_value;
  }
  kx::bezier_pieces<D> pieces;
  if (const std::int32_t fault = pieces.open(c)) return fault;
  nearest_search<D> search(pieces, target);
  const nearest_place place = search.run();
  const auto away = search.at_best();
  if (t) *t = pieces.global(place.piece, place.u);
  if (nearest) *nearest = D::make_point(target + away);
  if (distance) *distance = kx::length(away);
  return 0;
}

// ---- curvature ----

// The curvature with its sign, and the way to its centre times its square.
struct bend2 {
  double curvature;
  kx::vec2 to_centre;
};
struct bend3 {
  double curvature;
  kx::vec3 to_centre;
};

bend2 bend(kx::vec2 first, kx::vec2 second, double speed) {
  const kx::vec2 tangent = first / speed;
  const double k = kx::dot(kx::normal(tangent), second) / speed / speed;
  return {k, k * kx::normal(tangent)};
}

bend3 bend(kx::vec3 first, kx::vec3 second, double speed) {
  const kx::vec3 tangent = first / speed;
  const kx::vec3 across = (second - kx::dot(second, tangent) * tangent) / speed / speed;
  return {kx::length(across), across};
}

template <class D>
std::int32_t curvature_at(const curve *c, double t, double *curvature, typename D::point *centre) {
  if (curvature == nullptr) return kx::no_argument;
  kx::bezier_pieces<D> pieces;
  if (const std::int32_t fault = pieces.open(c)) return fault;
  if (!kx::take_into_range(pieces, t)) return kx::bad_parameter;
  const std::int32_t i = pieces.find(t);
  typename kx::bezier_pieces<D>::point piece[kx::max_piece_points];
  pieces.piece(i, piece);
  const int n = pieces.degree();
  double size = 0.0;  // of the piece
  for (int j = 0; j < n; ++j) size += kx::length(kx::projected(piece[j + 1]) - kx::projected(piece[j]));
  const auto place = kx::jet_of_piece(piece, n, pieces.local(i, t));
  const double speed = kx::length(place.first);
  if (!(speed > 1e-12 * size)) return kx::bad_value;
  const auto found = bend(place.first, place.second, speed);
  *curvature = found.curvature;
  const double squared = found.curvature * found.curvature;
  if (centre) *centre = D::make_point(squared > 0.0 ? place.at + found.to_centre / squared : place.at);
  return 0;
}

// ---- box ----

// A coordinate's smallest and largest value.
struct extent {
  double least = HUGE_VAL, most = -HUGE_VAL;

  void widen(double x) {
    least = std::min(least, x);
    most = std::max(most, x);
  }
  bool holds(double x) const { return x >= least && x <= most; }
};

// Widens an extent by one coordinate of a piece: its ends, and the inner roots of its derivative when the control
// points reach beyond what is known.
template <class V>
void widen(extent &e, const kx::weighted<V> *piece, int n, bool rational, int k) {
  const auto x = [&](int j) { return kx::component(piece[j].point, k); };
  const auto w = [&](int j) { return piece[j].weight; };
  e.widen(x(0) / w(0));
  e.widen(x(n) / w(n));
  bool inside = true;
  for (int j = 1; j < n; ++j) inside = inside && e.holds(x(j) / w(j));
  if (inside) return;
  const kx::bernstein values(n, x);
  const kx::bernstein slope = rational ? kx::quotient_slope(values, {n, w}) : values.derivative();
  kx::root_finder(slope).find(
      [&](double u) { e.widen(kx::component(kx::projected(kx::point_of_piece(piece, n, u)), k)); });
}

template <class D>
std::int32_t box(const curve *c, typename D::point *low, typename D::point *high) {
  if (low == nullptr || high == nullptr) return kx::no_argument;
  kx::bezier_pieces<D> pieces;
  if (const std::int32_t fault = pieces.open(c)) return fault;
  extent of[kx::dimension_of<D>];
  double least[kx::dimension_of<D>], most[kx::dimension_of<D>];
  for (std::int32_t i = 0; i < pieces.count(); ++i) {
    typename kx::bezier_pieces<D>::point piece[kx::max_piece_points];
    pieces.piece(i, piece);
    for (int k = 0; k < kx::dimension_of<D>; ++k) widen(of[k], piece, pieces.degree(), pieces.rational(), k);
  }
  for (int k = 0; k < kx::dimension_of<D>; ++k) {
    least[k] = of[k].least;
    most[k] = of[k].most;
  }
  *low = D::make_point(kx::read(least, typename D::vector{}));
  *high = D::make_point(kx::read(most, typename D::vector{}));
  return 0;
}

}  // namespace

/* ---- curve measures ---- */

std::int32_t KX_CALL kx_curve_closest_2d(const curve *c, const pnt_2d *pnt, double *t, pnt_2d *nearest,
                                         double *distance) {
  return closest<plane>(c, pnt, t, nearest, distance);
}

std::int32_t KX_CALL kx_curve_closest_3d(const curve *c, const pnt_3d *pnt, double *t, pnt_3d *nearest,
                                         double *distance) {
  return closest<space>(c, pnt, t, nearest, distance);
}

std::int32_t KX_CALL kx_curve_curvature_2d(const curve *c, double t, double *curvature, pnt_2d *centre) {
  return curvature_at<plane>(c, t, curvature, centre);
}

std::int32_t KX_CALL kx_curve_curvature_3d(const curve *c, double t, double *curvature, pnt_3d *centre) {
  return curvature_at<space>(c, t, curvature, centre);
}

std::int32_t KX_CALL kx_curve_box_2d(const curve *c, pnt_2d *low, pnt_2d *high) { return box<plane>(c, low, high); }

std::int32_t KX_CALL kx_curve_box_3d(const curve *c, pnt_3d *low, pnt_3d *high) { return box<space>(c, low, high); }
