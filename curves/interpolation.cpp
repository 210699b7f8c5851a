// Interpolation: B-spline curves through given points, their control points found with the banded solver.
#include <algorithm>
#include <cmath>
#include <cstdint>

#include "curve_record.hpp"
#include "kxgeom/curves.h"
#include "pending_list.hpp"
#include "records/vector.hpp"
#include "runtime/memory.hpp"
#include "runtime/tolerance.hpp"
#include "transform/band_solver.hpp"

namespace {

using kx::plane;
using kx::space;

// The first n points of a list; 0 of them when one of these is no point or not finite.
template <class D>
std::int32_t read_points(const list_hdr &list, std::int32_t tag, std::int32_t n, typename D::vector *out) {
  std::int32_t read = 0;
  for (const list_item &item : kx::items(&list)) {
    if (read == n) break;
    if (!kx::readable_as(item, tag)) return 0;
    const pnt_3d p = kx::read_point(item.data, tag);
    if (!std::isfinite(p.x) || !std::isfinite(p.y) || !std::isfinite(p.z)) return 0;
    out[read++] = D::read(p);
  }
  return read == n ? n : 0;
}

// A curve of the dimension's B-spline kind with these control points, and knots where there are some; null after the
// memory message. The lists built here are the curve's as soon as it is defined.
template <class D>
curve *define(const typename D::vector *ctrl, std::int32_t n, const double *knots, std::int32_t knot_count,
              std::int32_t degree) {
  kx::pending_list points_made, numbers_made;
  for (std::int32_t i = 0; i < n; ++i) {
    if (!points_made.add_vertex<D>(ctrl[i])) return nullptr;
  }
  for (std::int32_t i = 0; i < knot_count; ++i) {
    if (!numbers_made.add_number(knots[i])) return nullptr;
  }
  list_hdr points = {}, numbers = {};
  points_made.move_behind(points);
  numbers_made.move_behind(numbers);
  curve *made = nullptr;
  if constexpr (std::is_same_v<D, space>) {
    made = degree ? kx_def_nubspl_curve3d(&points, &numbers, degree, 1) : kx_def_ubspl_curve3d(&points);
  } else if ((made = kx_create_curve())) {
    degree ? kx_def_nubspl_curve2d(&points, &numbers, degree, 1, made) : kx_def_ubspl_curve2d(&points, made);
  }
  // What was not taken over: nothing, or all when there is no curve.
  kx::release_items(points);
  kx::release_items(numbers);
  return made;
}

// Uniform cubic: between its ends the curve meets point i where its control points d satisfy d[i-1] + 4d[i] + d[i+1] =
// 6p[i]. Its curvature vanishes at the ends, which are control points themselves.
template <class D>
curve *uniform_through(const list_hdr &list, std::int32_t tag, const char *location) {
  using vector = typename D::vector;
  const std::int32_t n = list.count;
  const kx::scratch<vector> right(n), ctrl(std::int64_t{n} + 2);
  const kx::scratch<double> rows(3 * std::int64_t{n});
  if (!right || !ctrl || !rows) {
    kx::report_no_memory(location);
    return nullptr;
  }
  if (read_points<D>(list, tag, n, right.data()) == 0) return nullptr;
  const kx::band<double> band{rows.data(), n, 1};
  for (std::int32_t i = 0; i < n; ++i) {
    const bool end = i == 0 || i == n - 1;
    double *row = band.row(i);
    row[0] = row[2] = end ? 0.0 : 1.0;
    row[1] = end ? 1.0 : 4.0;
    if (!end) right[i] = 6.0 * right[i];
  }
  if (!kx::factor(band)) return nullptr;
  vector *d = ctrl.data() + 1;
  kx::substitute({rows.data(), n, 1}, right.data(), d);
  ctrl[0] = 2.0 * d[0] - d[1];
  d[n] = 2.0 * d[n - 1] - d[n - 2];
  return define<D>(ctrl.data(), n + 2, nullptr, 0, 0);
}

// The span s of a parameter u on knots that have degree-fold ends: k[s+p-1] <= u < k[s+p], the last one at the end.
std::int32_t span_of(const double *k, std::int32_t spans, std::int32_t p, double u, std::int32_t from) {
  std::int32_t s = from;
  while (s + 1 < spans && u >= k[s + p]) ++s;
  return s;
}

// Of a degree, over parameters that advance by the chords: each inner knot is the mean of `degree` parameters in a row,
// so that every basis function has a point of its own and the matrix keeps to a band of half the width degree - 1.
template <class D>
curve *chordal_through(const list_hdr &list, std::int32_t tag, std::int32_t n, std::int32_t p, const char *location) {
  using vector = typename D::vector;
  const std::int32_t knot_count = n + p - 1, m = p - 1;
  const kx::scratch<vector> points(n), ctrl(n);
  const kx::scratch<double> u(n), knots(knot_count), rows((2 * std::int64_t{m} + 1) * n);
  if (!points || !ctrl || !u || !knots || !rows) {
    kx::report_no_memory(location);
    return nullptr;
  }
  if (read_points<D>(list, tag, n, points.data()) == 0) return nullptr;
  u[0] = 0.0;
  for (std::int32_t i = 1; i < n; ++i) {
    const double chord = length(points[i] - points[i - 1]);
    if (!(chord > kx::tolerance) || !std::isfinite(chord)) return nullptr;
    u[i] = u[i - 1] + chord;
  }
  if (!std::isfinite(u[n - 1])) return nullptr;
  for (std::int32_t i = 0; i < p; ++i) {
    knots[i] = 0.0;
    knots[n - 1 + i] = u[n - 1];
  }
  for (std::int32_t j = 1; j < n - p; ++j) {
    double sum = 0.0;
    for (std::int32_t i = j; i < j + p; ++i) sum += u[i];
    knots[p - 1 + j] = sum / p;
  }
  std::fill(rows.data(), rows.data() + (2 * std::int64_t{m} + 1) * n, 0.0);
  const kx::band<double> band{rows.data(), n, m};
  std::int32_t s = 0;
  for (std::int32_t i = 0; i < n; ++i) {
    double basis[kx::max_degree + 1];
    s = span_of(knots.data(), n - p, p, u[i], s);
    kx_basisfunctions(knots.data(), s + p - 1, p, u[i], 0, basis);
    for (std::int32_t j = 0; j <= p; ++j) {
      if (std::abs(s + j - i) <= m) band(i, s + j) = basis[j];
    }
  }
  if (m > 0 && !kx::factor(band)) return nullptr;
  kx::substitute({rows.data(), n, m}, points.data(), ctrl.data());
  return define<D>(ctrl.data(), n, knots.data(), knot_count, p);
}

}  // namespace

curve *KX_CALL kx_curve_thru_points(const list_hdr *points) {
  constexpr const char *location = "kx_curve_thru_points";
  const std::int32_t tag = kx::datatype(points);
  if (!kx::is_point(tag) || points->count < 2 || points->count > INT32_MAX - 2) return nullptr;
  return kx::is_plane_point(tag) ? uniform_through<plane>(*points, tag, location)
                                 : uniform_through<space>(*points, tag, location);
}

curve *KX_CALL kx_curve_thru_npoints(const list_hdr *points, std::int32_t n, std::int32_t degree) {
  constexpr const char *location = "kx_curve_thru_npoints";
  const std::int32_t tag = kx::datatype(points);
  if (!kx::is_point(tag) || n < 2 || n > points->count || n > INT32_MAX - kx::max_degree) return nullptr;
  if (degree < 1 || degree > kx::max_degree) return nullptr;
  const std::int32_t p = std::min(degree, n - 1);
  return kx::is_plane_point(tag) ? chordal_through<plane>(*points, tag, n, p, location)
                                 : chordal_through<space>(*points, tag, n, p, location);
}
