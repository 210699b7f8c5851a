// Catmull-Rom splines with a tension, sampled from one list into another.
#include "blended_points.hpp"
#include "kxgeom/curves.h"
#include "kxgeom/records.h"
#include "kxgeom/runtime.h"

namespace {

template <class D>
std::int32_t sample(std::int32_t n, const list_hdr *points, std::int32_t resolution, double a, std::int32_t *out_count,
                    list_hdr *out) {
  const auto weigh = [a](double t) {
    const double t2 = t * t, t3 = t2 * t;
    return std::array<double, 4>{-a * t3 + 2.0 * a * t2 - a * t, (2.0 - a) * t3 + (a - 3.0) * t2 + 1.0,
                                 (a - 2.0) * t3 + (3.0 - 2.0 * a) * t2 + a * t, a * t3 - a * t2};
  };
  // The end is the third point itself, whatever the tension would make of it.
  return kx::append_blended<D>(n, points, kx::blending<4>(resolution, weigh, {0.0, 0.0, 1.0, 0.0}), out_count, out);
}

}  // namespace

/* ---- catmull rom ---- */

list_hdr *KX_CALL kx_catrom_curve(std::int32_t n, const list_hdr *points, std::int32_t resolution, double a,
                                  std::int32_t *out_count) {
  return kx::new_point_list(points, out_count, [=](auto dimension, list_hdr *out) {
    const auto work = std::is_same_v<decltype(dimension), kx::plane> ? kx_catrom_curve_2d : kx_catrom_curve_3d;
    return work(n, points, resolution, a, out_count, out);
  });
}

std::int32_t KX_CALL kx_catrom_curve_2d(std::int32_t n, const list_hdr *points, std::int32_t resolution, double a,
                                        std::int32_t *out_count, list_hdr *out) {
  return sample<kx::plane>(n, points, resolution, a, out_count, out);
}

// Says what the plane function only answers: hosts of the space function show it to their users.
std::int32_t KX_CALL kx_catrom_curve_3d(std::int32_t n, const list_hdr *points, std::int32_t resolution, double a,
                                        std::int32_t *out_count, list_hdr *out) {
  const std::int32_t code = sample<kx::space>(n, points, resolution, a, out_count, out);
  if (code == kx::wrong_point_count) kx_display_msg("BADCNT", code, "kx_catrom_curve_3d");
  return code;
}
