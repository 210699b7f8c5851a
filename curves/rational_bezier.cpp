// Rational Bezier curves: defining, evaluating, sampling and cutting them.
#include <algorithm>
#include <cmath>

#include "bernstein.hpp"
#include "control_points.hpp"
#include "curve_record.hpp"
#include "curve_statistics.hpp"
#include "de_boor.hpp"
#include "kxgeom/curves.h"
#include "pending_list.hpp"

namespace {

using kx::curve_codes;
using kx::plane;
using kx::space;
using kx::weighted;

constexpr std::int32_t most_points = kx::max_bezier_degree + 1;

// ---- reading ----

// The weighted control points of a curve. The codes are those of the maker; 0 and points[0] to points[degree] on
// success.
template <class D>
std::int32_t read_weighted(const curve *c, weighted<typename D::vector> *points) {
  if (c == nullptr || c->ctrl_pnts == nullptr || c->weights == nullptr) return 1;
  if (c->degree < 1 || c->degree > kx::max_bezier_degree) return 2;
  if (c->curve_type != curve_codes<D>::rational_bezier) return 3;
  if (kx::empty(c->ctrl_pnts)) return 1;
  if (kx::empty(c->weights)) return 6;
  const list_item *point = c->ctrl_pnts->head, *weight = c->weights->head;
  for (std::int32_t i = 0; i <= c->degree; ++i, point = kx::next(point), weight = kx::next(weight)) {
    typename D::vector v;
    double w;
    if (!kx::read_any_point<D>(point, v)) return 2;
    if (!kx::read_number(weight, w)) return 6;
    points[i] = {w * v, w};
  }
  return 0;
}

// ---- evaluating ----

// The weighted curve of one degree less that is its derivative.
template <class V>
void differentiate(weighted<V> *p, int degree) {
  for (int i = 0; i < degree; ++i) p[i] = static_cast<double>(degree) * (p[i + 1] + -1.0 * p[i]);
}

// A weighted curve and its first two derivatives; the point is the quotient of the weighted point and its weight.
template <class D>
class rational {
 public:
  using V = typename D::vector;

  // The control points are used up.
  rational(weighted<V> *p, int degree)
      : at_(p, degree), first_(derivative(p, degree)), second_(derivative(p, std::max(degree - 1, 0))) {}

  // False where the weight is none to divide by.
  bool point(double t, V &v) const { return kx::project(at_.at(t), v); }

  bool point(double t, V &v, typename D::stats &stats) const {
    const weighted<V> h = at_.at(t), h1 = first_.at(t), h2 = second_.at(t);
    if (!kx::project(h, v)) return false;
    const V d1 = (h1.point - h1.weight * v) / h.weight;
    const V d2 = (h2.point - (2.0 * h1.weight) * d1 - h2.weight * v) / h.weight;
    stats = kx::statistics<D>(t, d1, d2);
    return true;
  }

 private:
  static kx::bernstein_form<weighted<V>> derivative(weighted<V> *p, int degree) {
    if (degree == 0) p[0] = {};
    differentiate(p, degree);
    return {p, std::max(degree - 1, 0)};
  }

  kx::bernstein_form<weighted<V>> at_, first_, second_;
};

template <class D>
std::int32_t evaluate(const curve *c, double t, typename D::vector &v) {
  weighted<typename D::vector> points[most_points];
  if (const std::int32_t code = read_weighted<D>(c, points)) return code;
  if (!kx::in_unit_interval(t)) return 4;
  return kx::project(kx::bernstein_form<weighted<typename D::vector>>(points, c->degree).at(t), v) ? 0 : 5;
}

template <class D>
std::int32_t make(curve *c, double step) {
  weighted<typename D::vector> points[most_points];
  if (const std::int32_t code = read_weighted<D>(c, points)) return code;
  step = step > kx::tolerance && std::isfinite(step) ? step : 0.1;
  if (kx::less_equal(kx::most_samples * step, 1.0)) return 7;
  if (!kx::create_outputs(*c)) return 80;
  c->step = step;
  const rational<D> form(points, c->degree);
  for (std::int32_t number = 0;; ++number) {
    double t = number * step;
    if (!kx::less_equal(t, 1.0)) return 0;
    if (kx::equal(t, 1.0)) t = 1.0;  // the end itself, whatever the step rounds to
    typename D::vector v;
    typename D::stats stats;
    if (!form.point(t, v, stats)) return 5;
    const kx::sample<D> sample = kx::append_sample<D>(*c);
    if (sample.point == nullptr) return 80;
    *sample.point = D::make_vertex(number, v);
    *sample.stats = stats;
  }
}

// ---- defining ----

template <class D>
std::int32_t define(list_hdr *ctrl, list_hdr *weights, curve *c) {
  if (c == nullptr) return 4;
  c->curve_type = curve_codes<D>::rational_bezier;
  const std::int32_t points = kx::item_count(ctrl);
  if (points < 2) return 1;
  if (kx::item_count(weights) < points) return 2;
  if (points > most_points) return 3;
  c->ctrl_pnts = kx::existing_or_new(c->ctrl_pnts);
  if (c->ctrl_pnts) c->weights = kx::existing_or_new(c->weights);
  if (!c->ctrl_pnts || !c->weights) return 80;
  // Both are detached before either is filled: a header of the curve itself may be among them.
  const list_hdr taken = kx::take_items(ctrl, kx::detached::is_zero),
                 factors = kx::take_items(weights, kx::detached::is_zero);
  kx::replace_items(*c->ctrl_pnts, taken);
  kx::replace_items(*c->weights, factors);
  c->degree = points - 1;
  return 0;
}

// ---- cutting ----

// Back to a control point and its weight. A weight of 0 stands for a point that has no say: with nothing left of it,
// any place is right.
template <class V>
bool control_point(const weighted<V> &w, V &v) {
  if (w.weight == 0.0 && kx::dot(w.point, w.point) == 0.0) {
    v = V{};
    return true;
  }
  return kx::project(w, v);
}

struct part {
  kx::pending_list points, weights;
};

// 0, 5 for a control point without weight, or 80.
template <class D>
std::int32_t fill(part &to, const weighted<typename D::vector> *q, std::int32_t degree) {
  for (std::int32_t i = 0; i <= degree; ++i) {
    typename D::vector v;
    if (!control_point(q[i], v)) return 5;
    if (!to.points.add_vertex<D>(v) || !to.weights.add_number(q[i].weight)) return 80;
  }
  return 0;
}

template <class D>
std::int32_t subdivide(const curve *c, double t, curve *first_part, curve *second_part) {
  if (first_part == nullptr || second_part == nullptr) return 40;
  if (!first_part->ctrl_pnts || !first_part->weights || !second_part->ctrl_pnts || !second_part->weights) return 40;
  weighted<typename D::vector> first[most_points], second[most_points];
  if (read_weighted<D>(c, second) != 0) return 40;
  const std::int32_t degree = c->degree;
  std::reverse_copy(second, second + degree + 1, first);  // backwards, as every Bezier curve's first part
  kx::cut(first, degree, 1.0 - t, t);
  kx::cut(second, degree, t, 1.0 - t);
  part backwards, forwards;
  if (const std::int32_t code = fill<D>(forwards, second, degree)) return code;
  if (const std::int32_t code = fill<D>(backwards, first, degree)) return code;
  forwards.points.move_behind(*second_part->ctrl_pnts);
  forwards.weights.move_behind(*second_part->weights);
  backwards.points.move_before(*first_part->ctrl_pnts);
  backwards.weights.move_before(*first_part->weights);
  return 0;
}

}  // namespace

/* ---- rational bezier ---- */

curve *KX_CALL kx_def_ratbezier_curve(list_hdr *ctrl, list_hdr *weights) {
  const std::int32_t tag = kx::datatype(ctrl);
  if (!kx::is_point(tag)) return nullptr;
  curve *c = kx_create_curve();
  if (c == nullptr) return nullptr;
  const auto define_it = kx::is_plane_point(tag) ? kx_def_ratbezier_curve2d : kx_def_ratbezier_curve3d;
  if (define_it(ctrl, weights, c) == 0) return c;
  kx::dispose(c);
  return nullptr;
}

std::int32_t KX_CALL kx_def_ratbezier_curve2d(list_hdr *ctrl, list_hdr *weights, curve *c) {
  return define<plane>(ctrl, weights, c);
}

std::int32_t KX_CALL kx_def_ratbezier_curve3d(list_hdr *ctrl, list_hdr *weights, curve *c) {
  return define<space>(ctrl, weights, c);
}

std::int32_t KX_CALL kx_mk_ratbezier_curve(curve *c, double step) {
  if (c == nullptr) return 1;
  if (c->curve_type == curve_codes<plane>::rational_bezier) return kx_mk_rat_bezier_2d(c, step);
  if (c->curve_type == curve_codes<space>::rational_bezier) return kx_mk_rat_bezier_3d(c, step);
  return 3;
}

std::int32_t KX_CALL kx_mk_rat_bezier_2d(curve *c, double step) { return make<plane>(c, step); }

std::int32_t KX_CALL kx_mk_rat_bezier_3d(curve *c, double step) { return make<space>(c, step); }

std::int32_t KX_CALL kx_eval_pntonratbezier(const curve *c, double t, pnt_3d *point) {
  if (point == nullptr) return 40;
  kx::vec3 v{};
  std::int32_t code;
  if (c != nullptr && c->curve_type == curve_codes<space>::rational_bezier) {
    code = evaluate<space>(c, t, v);
  } else {
    kx::vec2 flat{};
    code = evaluate<plane>(c, t, flat);
    v = {flat.x, flat.y, 0.0};
  }
  if (code == 0) *point = space::make_point(v);
  return code;
}

std::int32_t KX_CALL kx_sub_ratbezier_curve(const curve *c, double t, curve *first_part, curve *second_part) {
  if (c == nullptr || first_part == nullptr || second_part == nullptr) return -1;
  const std::int32_t tag = kx::datatype(c->ctrl_pnts);
  if (!kx::is_point(tag)) return -1;
  return kx::is_plane_point(tag) ? kx_sub_ratbezier_curve2d(c, t, first_part, second_part)
                                 : kx_sub_ratbezier_curve3d(c, t, first_part, second_part);
}

std::int32_t KX_CALL kx_sub_ratbezier_curve2d(const curve *c, double t, curve *first_part, curve *second_part) {
  return subdivide<plane>(c, t, first_part, second_part);
}

std::int32_t KX_CALL kx_sub_ratbezier_curve3d(const curve *c, double t, curve *first_part, curve *second_part) {
  return subdivide<space>(c, t, first_part, second_part);
}
