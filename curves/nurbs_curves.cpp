// Sampling NURBS curves.
#include "curve_record.hpp"
#include "de_boor.hpp"
#include "kxgeom/curves.h"

namespace {

using kx::curve_codes;
using kx::plane;
using kx::space;

constexpr const char *no_knots_location(plane) { return "mk_nurb_curve2d - 2"; }
constexpr const char *no_knots_location(space) { return "mk_nurb_curve3d - 2"; }

kx::vec2 to_dimension(const pnt_3d &p, plane) { return {p.x, p.y}; }
kx::vec3 to_dimension(const pnt_3d &p, space) { return {p.x, p.y, p.z}; }

// A control point of any kind; a tag of the host's own stands for the dimension's vertex. False when there is no
// record.
template <class D>
bool read_control_point(const list_item *item, typename D::vector &v) {
  if (item == nullptr) return false;
  const std::int32_t tag = kx::is_point(item->datatype) ? item->datatype : D::vertex_tag;
  if (!kx::readable_as(*item, tag)) return false;
  v = to_dimension(kx::read_point(item->data, tag), D{});
  return true;
}

bool read_number(const list_item *item, double &value) {
  if (item == nullptr || !kx::readable_as(*item, KX_RNUMBER)) return false;
  value = static_cast<const rnumber *>(item->data)->value;
  return true;
}

const list_item *next(const list_item *item) { return item ? item->next : nullptr; }

// Reads `count` knots as the list's cursor yields them, `skip` after the head and from the tail round to the head,
// where it leaves the cursor behind the last one. False when an item holds no number.
bool read_knots(list_hdr &list, std::int32_t skip, std::int64_t count, double *knots) {
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

// The samples of one span from its weighted points; knots[p-1] and knots[p] bound it.
template <class D, int Degree>
std::int32_t sample_span(curve &c, const kx::weighted<typename D::vector> *points, const double *knots,
                         std::int64_t steps, std::uint32_t &number) {
  const int p = Degree > 0 ? Degree : c.degree;
  const auto none = D::make_vector({}, 0.0);
  const kx::inverse_differences inverse(p, knots);
  const double start = knots[p - 1], h = knots[p] - start;
  for (std::int64_t j = 0; j <= steps; ++j) {
    const double u = static_cast<double>(j) * h / static_cast<double>(steps) + start;
    if (kx::below_range(u)) return 5;
    kx::weighted<typename D::vector> d[Degree > 0 ? Degree + 1 : kx::max_degree + 1];
    for (int i = 0; i <= p; ++i) d[i] = points[i];
    typename D::vector at;
    if (!kx::project(kx::de_boor<Degree>(d, p, inverse.parts_at(u, p, knots)), at)) return 5;
    const kx::sample<D> sample = kx::append_sample<D>(c);
    if (sample.point == nullptr) return 80;
    *sample.point = D::make_vertex(static_cast<std::int32_t>(number++), at);
    *sample.stats = {u, none, none, none};
  }
  return 0;
}

template <class D>
std::int32_t sample_spans(curve &c, const double *knots, std::int32_t n_spans) {
  const std::int32_t p = c.degree;
  const std::int64_t steps = c.span_steps == 0 ? 1 : c.span_steps;
  const list_item *point = c.ctrl_pnts->head, *weight = c.weights->head;
  std::uint32_t number = 0;
  for (std::int32_t s = 0; s < n_spans; ++s, ++knots, point = next(point), weight = next(weight)) {
    if (knots[p] - knots[p - 1] <= kx::tolerance) continue;
    kx::weighted<typename D::vector> points[kx::max_degree + 1];
    const list_item *at = point, *factor = weight;
    for (std::int32_t i = 0; i <= p; ++i, at = next(at), factor = next(factor)) {
      typename D::vector v;
      double w;
      if (!read_control_point<D>(at, v) || !read_number(factor, w)) return 5;
      points[i] = {w * v, w};
    }
    const std::int32_t code = p == 3 ? sample_span<D, 3>(c, points, knots, steps, number)
                                     : sample_span<D, 0>(c, points, knots, steps, number);
    if (code != 0) return code;
  }
  return 0;
}

template <class D>
std::int32_t make(curve *c, std::int32_t skip, std::int32_t skip_enable, std::int32_t n_spans, std::int32_t steps) {
  if (c == nullptr || c->ctrl_pnts == nullptr || c->knots == nullptr || c->weights == nullptr) return 1;
  const std::int32_t p = c->degree;
  if (p < 1 || p > kx::max_degree) return 2;
  if (c->curve_type != curve_codes<D>::nurbs) return 3;
  if (kx::empty(c->ctrl_pnts)) return 1;
  if (kx::empty(c->knots)) return 5;
  if (kx::empty(c->weights)) return 6;
  if (skip < 1 || skip_enable < 1) skip = 0;
  if (std::int64_t{c->ctrl_pnts->count} - (skip > 0 ? skip - 1 : 0) < p + 1) return 2;
  const std::int64_t m = std::int64_t{n_spans} + 2 * p - 2;
  if (c->knots->count <= m) return 4;
  if (!kx::create_outputs(*c)) return 80;

  const kx::scratch<double> knots(m < 0 ? 1 : m + 1);
  if (!knots) {
    kx::report_no_memory(no_knots_location(D{}));
    return 80;
  }
  c->ctrl_pnts->current = c->ctrl_pnts->head;
  c->weights->current = c->weights->head;
  // Only the knots are passed over; hosts that skip have always counted their points from the head.
  if (!read_knots(*c->knots, skip, m + 1, knots.data())) return 5;
  if (steps != 0) c->span_steps = steps;
  return sample_spans<D>(*c, knots.data(), n_spans);
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
  return make<plane>(c, skip, skip_enable, n_spans, steps);
}

std::int32_t KX_CALL kx_mk_nurb_curve3d(curve *c, std::int32_t skip, std::int32_t skip_enable, std::int32_t n_spans,
                                        std::int32_t steps) {
  return make<space>(c, skip, skip_enable, n_spans, steps);
}
