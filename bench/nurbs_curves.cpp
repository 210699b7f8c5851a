// A NURBS curve of degree 3 and 1000 control points, clamped, with uneven knots and weights, sampled at ten steps a
// span with both ends of each span. Only the point is computed, here and by the peers.
#include <algorithm>
#include <memory>

#include "curve_rows.hpp"
#include "kxgeom/curves.h"
#include "kxgeom/list.h"
#include "spline_peers.hpp"

namespace {

constexpr int control_count = 1000, degree = 3, spans = control_count - degree, steps = 10;

bench::spline make_spline() {
  bench::spline s{bench::control_points(control_count), {}, std::vector<double>(degree + 1, 0.0), {}};
  for (int i = 0; i < control_count; ++i) s.weights.push_back(1.25 + 0.75 * std::sin(1.3 * i));
  for (int i = 0; i < spans; ++i) s.knots.push_back(s.knots.back() + 1.0 + 0.5 * std::cos(2.1 * i));
  s.knots.insert(s.knots.end(), degree, s.knots.back());
  return s;
}

// The point from the basis functions of the span that begins at knot `at`: another way than the makers go.
pnt_2d evaluate(const bench::spline &s, std::size_t at, double u) {
  double basis[degree + 1] = {1.0};
  for (std::size_t j = 1; j <= degree; ++j) {
    double saved = 0.0;
    for (std::size_t r = 0; r < j; ++r) {
      const double right = s.knots[at + r + 1], left = s.knots[at + 1 + r - j];
      const double part = basis[r] / (right - left);
      basis[r] = saved + (right - u) * part;
      saved = (u - left) * part;
    }
    basis[j] = saved;
  }
  double x = 0.0, y = 0.0, w = 0.0;
  for (std::size_t i = 0; i <= degree; ++i) {
    const std::size_t control = at - degree + i;
    const double factor = basis[i] * s.weights[control];
    x += factor * s.points[control].x;
    y += factor * s.points[control].y;
    w += factor;
  }
  return {x / w, y / w};
}

curve *define(const bench::spline &s) {
  curve *c = kx_create_curve();
  list_hdr *points = bench::point_list(s.points);
  // The knot vector of a list lacks the first and the last knot of the textbooks.
  list_hdr *knots = bench::number_list({s.knots.begin() + 1, s.knots.end() - 1});
  list_hdr *weights = bench::number_list(s.weights);
  kx_def_nurb_curve2d(points, knots, weights, degree, steps, c);
  for (list_hdr *list : {points, knots, weights}) ll_purge_list(list);
  return c;
}

}  // namespace

void bench::add_rows() {
  const std::string family = "nurbs_curve/1k/";
  spline s = make_spline();
  samples want;
  for (std::size_t at = degree; at < control_count; ++at) {
    const double start = s.knots[at], h = s.knots[at + 1] - start;
    for (int j = 0; j <= steps; ++j) {
      const double u = std::min(j * h / steps + start, s.knots.back());
      want.push_back(evaluate(s, at, u));
      s.parameters.push_back(u);
    }
  }
  add_floors(family, want.size());
  add_peers(family, s, want, 0);
  add_maker(family, want,
            {"make", [s] { return define(s); }, [](curve *c) { return kx_mk_nurb_curve2d(c, 0, 0, spans, steps); }});

  // The evaluator alone, on the same spans: no list, no block.
  add_array_row(family + "kx:kx_rat_deboor_2d", want, [s](samples &out) {
    std::size_t i = 0;
    for (std::size_t at = degree; at < control_count; ++at) {
      poly_2d records[degree + 1];
      poly_2d *control[degree + 1];
      for (std::size_t k = 0; k <= degree; ++k) {
        const pnt_2d &p = s.points[at - degree + k];
        records[k] = {0, p.x, p.y};
        control[k] = &records[k];
      }
      for (int j = 0; j <= steps; ++j, ++i) {
        kx_rat_deboor_2d(s.parameters[i], degree, control, &s.weights[at - degree], &s.knots[at - degree + 1], &out[i]);
      }
    }
  });

  // Any parameters into an array, the record read anew in each pass.
  const std::shared_ptr<curve> c(define(s), kx_purge_curve);
  add_array_row(family + "kx:kx_curve_pntsat_2d", want, [c, t = s.parameters](samples &out) {
    kx_curve_pntsat_2d(c.get(), t.data(), static_cast<std::int32_t>(out.size()), &out[0].x);
  });
}
