// Points of the curves whose every segment blends a few consecutive points of a list by the same weights.
#pragma once

#include <array>
#include <cstdint>

#include "curve_record.hpp"
#include "knot_spans.hpp"
#include "kxgeom/records.h"
#include "runtime/tolerance.hpp"

namespace kx {

inline constexpr std::int32_t wrong_point_count = 33;

// The parameter step of a resolution code.
constexpr double resolution_step(std::int32_t resolution) {
  switch (resolution) {
    case 0: return 0.01;
    case 1: return 0.02;
    case 2: return 0.04;
    case 4: return 0.1;
    case 5: return 0.2;
    case 6: return 0.5;
    default: return 0.05;
  }
}

// The weights of the points of a segment: at each parameter before its end, and at the end, where the curve stops.
template <int Points>
struct blending {
  using weights = std::array<double, Points>;
  static constexpr int most_steps = 101;

  weights inside[most_steps], at_end;
  int steps = 0;

  template <class Weigh>
  blending(std::int32_t resolution, Weigh weigh, const weights &end) : at_end(end) {
    const double step = resolution_step(resolution);
    for (double t = 0.0; less(t, 1.0); t += step) inside[steps++] = weigh(t);
  }
};

template <int Points, class V>
inline V blend(const std::array<double, static_cast<std::size_t>(Points)> &w, const V *g) {
  V sum = w[0] * g[0];
#pragma GCC unroll 4
  for (std::size_t i = 1; i < Points; ++i) sum = sum + w[i] * g[i];
  return sum;
}

// The points of a list one after the other.
template <class D>
class list_points {
 public:
  explicit list_points(const list_hdr &list) : at_(list.head) {}
  bool next(typename D::vector &v) {
    if (!read_any_point<D>(at_, v)) return false;
    at_ = at_->next;
    return true;
  }

 private:
  const list_item *at_;
};

// Appends the points of all segments that n points make, and the end of the last one; tells how many. 0; 40 when a
// point has no record; 80 without memory; the list is emptied then.
template <class D, int Points, class Reader>
std::int32_t append_blended(std::int32_t n, Reader from, const blending<Points> &by, std::int32_t *out_count,
                            list_hdr &out) {
  typename D::vector g[Points] = {};
  std::uint32_t number = 0;
  const auto fail = [&out](std::int32_t code) {
    kx_clear_polygon(&out);
    return code;
  };
  for (std::int32_t i = 0; i < n; ++i) {
    if (!from.next(g[Points - 1])) return fail(40);
    if (i >= Points - 1) {
      for (int k = 0; k < by.steps; ++k) {
        if (!append_vertex<D>(out, number++, blend<Points>(by.inside[k], g))) return fail(80);
      }
      if (i == n - 1 && !append_vertex<D>(out, number++, blend<Points>(by.at_end, g))) return fail(80);
    }
    for (int k = 1; k < Points; ++k) g[k - 1] = g[k];
  }
  if (out_count) *out_count = static_cast<std::int32_t>(number);
  return 0;
}

// The same from the first n points of a list. 1 for a null list; 33 for too few points or more than the list has.
template <class D, int Points>
std::int32_t append_blended(std::int32_t n, const list_hdr *points, const blending<Points> &by, std::int32_t *out_count,
                            list_hdr *out) {
  if (out_count) *out_count = 0;
  if (points == nullptr || out == nullptr) return 1;
  if (n < Points || n > item_count(points)) return wrong_point_count;
  return append_blended<D>(n, list_points<D>(*points), by, out_count, *out);
}

// A new list that fill(plane or space by the points' datatype, list) fills; null, nothing left behind, when it cannot.
template <class Fill>
list_hdr *new_point_list(const list_hdr *points, std::int32_t *out_count, Fill fill) {
  if (out_count) *out_count = 0;
  const std::int32_t tag = datatype(points);
  list_hdr *out = is_point(tag) ? ll_create_list() : nullptr;
  if (out == nullptr) return nullptr;
  if ((is_plane_point(tag) ? fill(plane{}, out) : fill(space{}, out)) == 0) return out;
  kx_purge_polygon(out);
  return nullptr;
}

}  // namespace kx
