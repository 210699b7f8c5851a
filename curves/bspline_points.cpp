// Uniform B-splines, cubic and quadratic, sampled from one list into another.
#include "blended_points.hpp"
#include "kxgeom/curves.h"
#include "kxgeom/records.h"

namespace {

using kx::plane;
using kx::space;

kx::blending<4> cubic(std::int32_t resolution) {
  constexpr double sixth = 1.0 / 6.0;
  const auto weigh = [](double t) {
    const double s = 1.0 - t, t2 = t * t, t3 = t2 * t;
    return std::array<double, 4>{s * s * s * sixth, (3.0 * t3 - 6.0 * t2 + 4.0) * sixth,
                                 (-3.0 * t3 + 3.0 * t2 + 3.0 * t + 1.0) * sixth, t3 * sixth};
  };
  return {resolution, weigh, weigh(1.0)};
}

kx::blending<3> quadratic(std::int32_t resolution) {
  const auto weigh = [](double t) {
    const double s = 1.0 - t;
    return std::array<double, 3>{0.5 * s * s, 0.5 + s * t, 0.5 * t * t};
  };
  return {resolution, weigh, weigh(1.0)};
}

// The points of an array one after the other.
template <class V>
struct array_points {
  const V *at;
  bool next(V &v) {
    v = *at++;
    return true;
  }
};

// Two points of our own, each the mirror image of an end's neighbour in the end, make a cubic B-spline begin and end at
// the ends of the list, along its first and last leg.
template <class D>
std::int32_t sample_from_end_to_end(std::int32_t n, const list_hdr &points, std::int32_t resolution,
                                    std::int32_t *out_count, list_hdr &out) {
  using vector = typename D::vector;
  if (n < 2 || n > kx::item_count(&points)) return kx::wrong_point_count;
  const kx::scratch<vector> all(std::int64_t{n} + 2);
  if (!all) {
    kx::report_no_memory("kx_bspline_spep");
    return 80;
  }
  kx::list_points<D> from(points);
  for (std::int64_t i = 1; i <= n; ++i) {
    if (!from.next(all[i])) return 40;
  }
  const vector first = all[1], last = all[n];
  all[0] = 2.0 * first - all[2];
  all[std::int64_t{n} + 1] = 2.0 * last - all[std::int64_t{n} - 1];
  const array_points<vector> reader{all.data()};
  if (const auto code = kx::append_blended<D>(n + 2, reader, cubic(resolution), out_count, out)) return code;
  // The ends to the last bit, which the blend may round.
  *static_cast<typename D::vertex *>(out.head->data) = D::make_vertex(0, first);
  *static_cast<typename D::vertex *>(out.tail->data) = D::make_vertex(out.count - 1, last);
  return 0;
}

}  // namespace

/* ---- bspline points ---- */

list_hdr *KX_CALL kx_bspline_curve(std::int32_t n, const list_hdr *points, std::int32_t resolution,
                                   std::int32_t *out_count) {
  return kx::new_point_list(points, out_count, [=](auto dimension, list_hdr *out) {
    return kx::append_blended<decltype(dimension)>(n, points, cubic(resolution), out_count, out);
  });
}

std::int32_t KX_CALL kx_bspline_2d(std::int32_t n, const list_hdr *points, std::int32_t resolution,
                                   std::int32_t *out_count, list_hdr *out) {
  return kx::append_blended<plane>(n, points, cubic(resolution), out_count, out);
}

std::int32_t KX_CALL kx_bspline_3d(std::int32_t n, const list_hdr *points, std::int32_t resolution,
                                   std::int32_t *out_count, list_hdr *out) {
  return kx::append_blended<space>(n, points, cubic(resolution), out_count, out);
}

list_hdr *KX_CALL kx_bspline_spep(std::int32_t n, const list_hdr *points, std::int32_t resolution,
                                  std::int32_t *out_count) {
  return kx::new_point_list(points, out_count, [=](auto dimension, list_hdr *out) {
    return sample_from_end_to_end<decltype(dimension)>(n, *points, resolution, out_count, *out);
  });
}

list_hdr *KX_CALL kx_quad_bspline(std::int32_t n, const list_hdr *points, std::int32_t resolution,
                                  std::int32_t *out_count) {
  return kx::new_point_list(points, out_count, [=](auto dimension, list_hdr *out) {
    return kx::append_blended<decltype(dimension)>(n, points, quadratic(resolution), out_count, out);
  });
}

std::int32_t KX_CALL kx_quad_bspline_2d(std::int32_t n, const list_hdr *points, std::int32_t resolution,
                                        std::int32_t *out_count, list_hdr *out) {
  return kx::append_blended<plane>(n, points, quadratic(resolution), out_count, out);
}

std::int32_t KX_CALL kx_quad_bspline_3d(std::int32_t n, const list_hdr *points, std::int32_t resolution,
                                        std::int32_t *out_count, list_hdr *out) {
  return kx::append_blended<space>(n, points, quadratic(resolution), out_count, out);
}
