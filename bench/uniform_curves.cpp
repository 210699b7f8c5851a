// A uniform cubic B-spline of 1000 control points, sampled at ten steps a segment with its unit tangent and unit second
// derivative, or the point alone into an array. The peers' rows of order 2 compute both derivatives as we must; those
// of order 0 the point alone.
#include <memory>

#include "curve_rows.hpp"
#include "kxgeom/curves.h"
#include "kxgeom/list.h"
#include "spline_peers.hpp"

namespace {

constexpr int control_count = 1000;
constexpr double step = 0.1;

pnt_2d blend(const pnt_2d *p, double t) {
  const double s = 1.0 - t;
  const double w[4] = {s * s * s / 6.0, ((3.0 * t - 6.0) * t * t + 4.0) / 6.0, ((3.0 * s - 6.0) * s * s + 4.0) / 6.0,
                       t * t * t / 6.0};
  pnt_2d sum = {0.0, 0.0};
  for (int i = 0; i < 4; ++i) sum = {sum.x + w[i] * p[i].x, sum.y + w[i] * p[i].y};
  return sum;
}

curve *define(const bench::samples &points) {
  curve *c = kx_create_curve();
  list_hdr *list = bench::point_list(points);
  kx_def_ubspl_curve2d(list, c);
  ll_purge_list(list);
  return c;
}

}  // namespace

void bench::add_rows() {
  const std::string family = "uniform_curve/1k/";
  spline s{control_points(control_count), {}, {}, {}};
  for (int i = 0; i < control_count + 4; ++i) s.knots.push_back(i);
  samples want;
  for (int segment = 0; segment < control_count - 3; ++segment) {
    double t = 0.0;
    for (int i = 0; i <= 10; ++i, t += step) {
      if (segment > 0 && i == 0) continue;  // a joint is sampled once
      want.push_back(blend(&s.points[static_cast<std::size_t>(segment)], t));
      s.parameters.push_back(segment + 3 + t);
    }
  }
  add_floors(family, want.size());
  add_peers(family, s, want, 0);
  add_peers(family, s, want, 2);
  add_maker(family, want,
            {"make", [points = s.points] { return define(points); }, [](curve *c) { return kx_mk_ucurve2d(c, step); }});

  // Points alone into an array, the record read anew in each pass.
  const std::shared_ptr<curve> c(define(s.points), kx_purge_curve);
  std::vector<double> parameters = s.parameters;
  for (double &t : parameters) t -= 3.0;
  add_array_row(family + "kx:kx_curve_pntsat_2d", want, [=](samples &out) {
    kx_curve_pntsat_2d(c.get(), parameters.data(), static_cast<std::int32_t>(out.size()), &out[0].x);
  });
  add_array_row(family + "kx:kx_curve_steps_2d", want, [=](samples &out) {
    std::int32_t count;
    kx_curve_steps_2d(c.get(), 10, static_cast<std::int32_t>(out.size()), &out[0].x, &count);
  });
}
