// What the makers of the non-uniform curves share: reading points, numbers and knots from a curve's lists, going from
// span to span, and a cubic span as a polynomial.
#pragma once

#include <cstdint>
#include <type_traits>

#include "curve_record.hpp"
#include "de_boor.hpp"
#include "list/items.hpp"
#include "list/point_kind.hpp"

namespace kx {

inline vec2 to_dimension(const pnt_3d &p, plane) { return {p.x, p.y}; }
inline vec3 to_dimension(const pnt_3d &p, space) { return {p.x, p.y, p.z}; }

// A control point of any kind; a tag of the host's own stands for the dimension's vertex. False when there is no
// record.
template <class D>
inline bool read_any_point(const list_item *item, typename D::vector &v) {
  if (item == nullptr) return false;
  const std::int32_t tag = is_point(item->datatype) ? item->datatype : D::vertex_tag;
  if (!readable_as(*item, tag)) return false;
  v = to_dimension(read_point(item->data, tag), D{});
  return true;
}

inline bool read_number(const list_item *item, double &value) {
  if (item == nullptr || !readable_as(*item, KX_RNUMBER)) return false;
  value = static_cast<const rnumber *>(item->data)->value;
  return true;
}

inline const list_item *next(const list_item *item) { return item ? item->next : nullptr; }

// Reads `count` knots as the list's cursor yields them, `skip` after the head and from the tail round to the head,
// where it leaves the cursor behind the last one. False when an item holds no number.
inline bool read_knots(list_hdr &list, std::int32_t skip, std::int64_t count, double *knots) {
  list_item *item = list.head;
  const auto step = [&] {
    item = item->next;
    if (item == nullptr) item = list.head;
  };
  for (std::int32_t i = 0; i < skip; ++i) step();
  for (std::int64_t i = 0; i < count; ++i, step()) {
    if (!read_number(item, knots[i])) return false;
  }
  list.current = item;
  return true;
}

// The control point of a span, and the weighted one.
template <class D>
inline bool read_control(const list_item *point, const list_item *, typename D::vector &v) {
  return read_any_point<D>(point, v);
}
template <class D>
inline bool read_control(const list_item *point, const list_item *weight, weighted<typename D::vector> &v) {
  double w;
  if (!read_any_point<D>(point, v.point) || !read_number(weight, w)) return false;
  v = {w * v.point, w};
  return true;
}

// What a maker is asked for.
struct span_request {
  std::int32_t skip, skip_enable, n_spans, steps;
};

// Samples all spans of a curve of degree p = c->degree; V is the control point, plain or weighted, and
// sample(c, points, knots, steps, number) appends the samples of one span to the curve: from its p + 1 points and its
// 2p knots, of which knots[p-1] and knots[p] bound it. The codes are those of the exported makers, 6 for weighted ones
// only.
template <class D, class V, class Sample>
std::int32_t make_spans(curve *c, std::int32_t type, span_request asked, const char *location, Sample sample) {
  constexpr bool rational = !std::is_same_v<V, typename D::vector>;
  if (c == nullptr || c->ctrl_pnts == nullptr || c->knots == nullptr || (rational && c->weights == nullptr)) return 1;
  const std::int32_t p = c->degree;
  if (p < 1 || p > max_degree) return 2;
  if (c->curve_type != type) return 3;
  if (empty(c->ctrl_pnts)) return 1;
  if (empty(c->knots)) return 5;
  if (rational && empty(c->weights)) return 6;
  const std::int32_t skip = asked.skip < 1 || asked.skip_enable < 1 ? 0 : asked.skip;
  if (std::int64_t{c->ctrl_pnts->count} - (skip > 0 ? skip - 1 : 0) < p + 1) return 2;
  const std::int64_t m = std::int64_t{asked.n_spans} + 2 * p - 2;
  if (c->knots->count <= m) return 4;
  if (!create_outputs(*c)) return 80;

  const scratch<double> array(m < 0 ? 1 : m + 1);
  const std::int64_t noted = asked.steps != 0 ? asked.steps : c->span_steps, steps = noted == 0 ? 1 : noted;
  if (!array || (asked.n_spans > 0 && steps >= most_list_samples / asked.n_spans)) {
    report_no_memory(location);
    return 80;
  }
  c->ctrl_pnts->current = c->ctrl_pnts->head;
  if (rational) c->weights->current = c->weights->head;
  // Only the knots are passed over; hosts that skip have always counted their points from the head.
  if (!read_knots(*c->knots, skip, m + 1, array.data())) return 5;
  if (asked.steps != 0) c->span_steps = asked.steps;

  const double *knots = array.data();
  const list_item *point = c->ctrl_pnts->head, *weight = rational ? c->weights->head : nullptr;
  std::uint32_t number = 0;
  for (std::int32_t s = 0; s < asked.n_spans; ++s, ++knots, point = next(point), weight = next(weight)) {
    if (knots[p] - knots[p - 1] <= tolerance) continue;
    V points[max_degree + 1];
    const list_item *at = point, *factor = weight;
    for (std::int32_t i = 0; i <= p; ++i, at = next(at), factor = next(factor)) {
      if (!read_control<D>(at, factor, points[i])) return 5;
    }
    if (below_range(knots[p - 1])) return 5;
    if (const std::int32_t code = sample(*c, points, knots, steps, number)) return code;
  }
  return 0;
}

// A cubic as point(t) = t^3 c[0] + t^2 c[1] + t c[2] + c[3].
template <class V>
struct cubic {
  V c[4];

  V at(double t) const { return t * (t * (t * c[0] + c[1]) + c[2]) + c[3]; }
};

// The cubic over t = 0..1 of a span of degree 3, from its four points d, plain or weighted, and its six knots, of which
// k[2] and k[3] bound it.
template <class V>
inline cubic<V> cubic_of_span(const V *d, const double *k) {
  const auto between = [](const V &p, const V &q, double from, double to, double at) {
    const double part = (at - from) / (to - from);
    return (1.0 - part) * p + part * q;
  };
  const double a = k[2], b = k[3];
  const V b1 = between(d[1], d[2], k[1], k[4], a), b2 = between(d[1], d[2], k[1], k[4], b);
  const V b0 = between(between(d[0], d[1], k[0], b, a), b1, k[1], b, a);
  const V b3 = between(b2, between(d[2], d[3], a, k[5], b), a, k[4], b);
  return {{b3 + (-1.0) * b0 + 3.0 * (b1 + (-1.0) * b2), 3.0 * (b2 + (-2.0) * b1 + b0), 3.0 * (b1 + (-1.0) * b0), b0}};
}

}  // namespace kx
