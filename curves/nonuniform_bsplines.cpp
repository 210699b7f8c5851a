// Sampling non-uniform B-splines.
#include "curve_statistics.hpp"
#include "knot_spans.hpp"
#include "kxgeom/curves.h"

namespace {

using kx::curve_codes;
using kx::plane;
using kx::space;

constexpr const char *no_knots_location(plane) { return "kx_mk_nubspline_2d"; }
constexpr const char *no_knots_location(space) { return "kx_mk_nubspline_3d"; }

// A point with the first and second derivative by the curve's parameter.
template <class V>
struct jet {
  V point, first, second;
};

// From the cubic over a span of length 1 / rate.
template <class V>
jet<V> jet_at(const kx::cubic<V> &span, double rate, double t) {
  const V *c = span.c;
  return {span.at(t), rate * (t * (3.0 * t * c[0] + 2.0 * c[1]) + c[2]), (rate * rate) * (6.0 * t * c[0] + 2.0 * c[1])};
}

// From the points of a span by de Boor's scheme, which has the derivatives in its last two steps: the differences of
// what it blends, over the knot differences it blends by.
template <class V>
jet<V> jet_at(const V *points, int p, const double *knots, const kx::inverse_differences &inverse, double u) {
  const auto part = inverse.parts_at(u, p, knots);
  const auto slope = [&](const V *d, int r, int j) { return (p * inverse.of[r - 1][j - 1]) * (d[j] - d[j - 1]); };
  V d[kx::max_degree + 1];
  for (int i = 0; i <= p; ++i) d[i] = points[i];
  V first{}, second{};
  for (int r = 1; r <= p; ++r) {
    if (r == p - 1) second = ((p - 1) * inverse.of[p - 1][p - 1]) * (slope(d, r, p) - slope(d, r, p - 1));
    if (r == p) first = slope(d, r, p);
    for (int j = p; j >= r; --j) {
      const double a = part(r, j);
      d[j] = a * d[j - 1] + (1.0 - a) * d[j];
    }
  }
  return {d[p], first, second};
}

// The samples of one span; at(u, t) is the jet at the parameter u, the part t of the span.
template <class D, class At>
std::int32_t sample_span(curve &c, double start, double h, std::int64_t steps, std::uint32_t &number, At at) {
  const auto parts = static_cast<double>(steps);
  for (std::int64_t j = 0; j <= steps; ++j) {
    const auto part = static_cast<double>(j);
    const double u = part * h / parts + start;
    const jet<typename D::vector> here = at(u, part / parts);
    const kx::sample<D> sample = kx::append_sample<D>(c);
    if (sample.point == nullptr) return 80;
    *sample.point = D::make_vertex(static_cast<std::int32_t>(number++), here.point);
    *sample.stats = kx::statistics<D>(u, here.first, here.second);
  }
  return 0;
}

template <class D>
std::int32_t make(curve *c, const kx::span_request &asked) {
  using vector = typename D::vector;
  const auto sample = [](curve &of, const vector *points, const double *knots, std::int64_t steps,
                         std::uint32_t &number) {
    const int p = of.degree;
    // Knots out of order, infinite or no numbers would be divided by.
    if (!std::isfinite(knots[2 * p - 1] - knots[0])) return 5;
    for (int i = 1; i < 2 * p; ++i) {
      if (!(knots[i - 1] <= knots[i])) return 5;
    }
    const double start = knots[p - 1], h = knots[p] - start;
    if (p == 3) {
      const kx::cubic<vector> span = kx::cubic_of_span(points, knots);
      const double rate = 1.0 / h;
      return sample_span<D>(of, start, h, steps, number, [&](double, double t) { return jet_at(span, rate, t); });
    }
    const kx::inverse_differences inverse(p, knots);
    return sample_span<D>(of, start, h, steps, number,
                          [&](double u, double) { return jet_at(points, p, knots, inverse, u); });
  };
  return kx::make_spans<D, vector>(c, curve_codes<D>::nonuniform_bspline, asked, no_knots_location(D{}), sample);
}

}  // namespace

/* ---- nonuniform bsplines ---- */

std::int32_t KX_CALL kx_mk_nubspline(curve *c, std::int32_t skip, std::int32_t skip_enable, std::int32_t n_spans,
                                     std::int32_t steps) {
  if (c == nullptr) return 1;
  if (c->curve_type == curve_codes<plane>::nonuniform_bspline)
    return kx_mk_nubspline_2d(c, skip, skip_enable, n_spans, steps);
  if (c->curve_type == curve_codes<space>::nonuniform_bspline)
    return kx_mk_nubspline_3d(c, skip, skip_enable, n_spans, steps);
  return 3;
}

std::int32_t KX_CALL kx_mk_nubspline_2d(curve *c, std::int32_t skip, std::int32_t skip_enable, std::int32_t n_spans,
                                        std::int32_t steps) {
  return make<plane>(c, {skip, skip_enable, n_spans, steps});
}

std::int32_t KX_CALL kx_mk_nubspline_3d(curve *c, std::int32_t skip, std::int32_t skip_enable, std::int32_t n_spans,
                                        std::int32_t steps) {
  return make<space>(c, {skip, skip_enable, n_spans, steps});
}
