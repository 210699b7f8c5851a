// Sampling NURBS curves.
#include "knot_spans.hpp"
#include "kxgeom/curves.h"

namespace {

using kx::curve_codes;
using kx::plane;
using kx::space;

constexpr const char *no_knots_location(plane) { return "mk_nurb_curve2d - 2"; }
constexpr const char *no_knots_location(space) { return "mk_nurb_curve3d - 2"; }

// The samples of one span; weighted_at(u, t) is the weighted point at the parameter u, the part t of the span.
template <class D, class At>
std::int32_t sample_span(curve &c, double start, double h, std::int64_t steps, std::uint32_t &number, At weighted_at) {
  const auto none = D::make_vector({}, 0.0);
  const auto parts = static_cast<double>(steps);
  for (std::int64_t j = 0; j <= steps; ++j) {
    const auto part = static_cast<double>(j);
    const double u = part * h / parts + start;
    typename D::vector at;
    if (!kx::project(weighted_at(u, part / parts), at)) return 5;
    const kx::sample<D> sample = kx::append_sample<D>(c);
    if (sample.point == nullptr) return 80;
    *sample.point = D::make_vertex(static_cast<std::int32_t>(number++), at);
    *sample.stats = {u, none, none, none};
  }
  return 0;
}

template <class D>
std::int32_t make(curve *c, const kx::span_request &asked) {
  using point = kx::weighted<typename D::vector>;
  const auto sample = [](curve &of, const point *points, const double *knots, std::int64_t steps,
                         std::uint32_t &number) {
    const int p = of.degree;
    const double start = knots[p - 1], h = knots[p] - start;
    if (p == 3) {
      const kx::cubic<point> span = kx::cubic_of_span(points, knots);
      return sample_span<D>(of, start, h, steps, number, [&](double, double t) { return span.at(t); });
    }
    const kx::inverse_differences inverse(p, knots);
    return sample_span<D>(of, start, h, steps, number, [&](double u, double) {
      point d[kx::max_degree + 1];
      for (int i = 0; i <= p; ++i) d[i] = points[i];
      return kx::de_boor<0>(d, p, inverse.parts_at(u, p, knots));
    });
  };
  return kx::make_spans<D, point>(c, curve_codes<D>::nurbs, asked, no_knots_location(D{}), sample);
}

}  // namespace

/* ---- nurbs curves ---- */

std::int32_t KX_CALL kx_mk_nurb_curve(curve *c, std::int32_t skip, std::int32_t skip_enable, std::int32_t n_spans,
                                      std::int32_t steps) {
  if (c == nullptr) return 1;
  if (c->curve_type == curve_codes<plane>::nurbs) return kx_mk_nurb_curve2d(c, skip, skip_enable, n_spans, steps);
  if (c->curve_type == curve_codes<space>::nurbs) return kx_mk_nurb_curve3d(c, skip, skip_enable, n_spans, steps);
  return 3;
}

std::int32_t KX_CALL kx_mk_nurb_curve2d(curve *c, std::int32_t skip, std::int32_t skip_enable, std::int32_t n_spans,
                                        std::int32_t steps) {
  return make<plane>(c, {skip, skip_enable, n_spans, steps});
}

std::int32_t KX_CALL kx_mk_nurb_curve3d(curve *c, std::int32_t skip, std::int32_t skip_enable, std::int32_t n_spans,
                                        std::int32_t steps) {
  return make<space>(c, {skip, skip_enable, n_spans, steps});
}
