// Sampling and evaluating the uniform cubic curves.
#include <cmath>

#include "curve_record.hpp"
#include "curve_statistics.hpp"
#include "kxgeom/curves.h"
#include "runtime/tolerance.hpp"

namespace {

using kx::plane;
using kx::space;
using kx::vec2;
using kx::vec3;

// A segment as a cubic: point(t) = t^3 c[0] + t^2 c[1] + t c[2] + c[3].
template <class V>
struct segment {
  V c[4];

  segment(const curve &of, const V *g) {
    for (int i = 0; i < 16; i += 4)
      c[i / 4] = of.basis[i] * g[0] + of.basis[i + 1] * g[1] + of.basis[i + 2] * g[2] + of.basis[i + 3] * g[3];
  }
};

// Point and unit vectors of a segment at t.
template <class D>
inline typename D::vector evaluate(const segment<typename D::vector> &s, double t, typename D::stats &stats) {
  const auto *c = s.c;
  const double t2 = t * t, t3 = t2 * t;
  stats = kx::statistics<D>(t, (3.0 * t2) * c[0] + (2.0 * t) * c[1] + c[2], (6.0 * t) * c[0] + 2.0 * c[1]);
  return t3 * c[0] + t2 * c[1] + t * c[2] + c[3];
}

// Reads a control point as the dimension's vertex record, on purpose for every tag: a shorter record, such as a pnt_2d,
// is continued with zero bytes, as hosts know it. False when there is no record.
template <class D>
bool read_control_point(const list_item &item, typename D::vector &v) {
  if (kx::readable_as(item, D::vertex_tag)) {
    v = D::read(*static_cast<const typename D::vertex *>(item.data));
    return true;
  }
  const std::size_t known = kx::record_size(item.datatype);
  if (item.data == nullptr || known == 0) return false;
  typename D::vertex bytes{};
  std::memcpy(&bytes, item.data, known);
  v = D::read(bytes);
  return true;
}

// Control points one after the other, as the list's cursor yields them: after the tail it is at the head again.
template <class D>
class control_reader {
 public:
  explicit control_reader(const list_hdr &list) : head_(list.head), at_(list.head) {}
  bool next(typename D::vector &v) {
    const bool read = read_control_point<D>(*at_, v);
    at_ = at_->next ? at_->next : head_;
    return read;
  }
  list_item *position() const { return at_; }

 private:
  list_item *head_, *at_;
};

constexpr const char *count_location(plane) { return "kx_mk_ucurve2d"; }
constexpr const char *count_location(space) { return "kx_mk_ucurve3d"; }

template <class D>
std::int32_t make(curve *c, double step) {
  using vector = typename D::vector;
  if (c == nullptr) return 1;
  if (!kx::create_outputs(*c)) return 80;
  c->step = step = step > kx::tolerance && std::isfinite(step) ? step : 0.1;
  const bool bezier = c->curve_type == kx::curve_codes<D>::bezier;
  std::int32_t n = kx::item_count(c->ctrl_pnts);
  if (n < 4) return 2;
  if (bezier) n -= n % 4;
  if ((n - 3) / step >= kx::most_list_samples) {
    kx::report_no_memory(count_location(D{}));
    return 80;
  }

  control_reader<D> control(*c->ctrl_pnts);
  vector g[4];
  for (vector &v : g) {
    if (!control.next(v)) return 2;
  }
  std::uint32_t number = 0;
  for (std::int32_t k = 3;; ++k) {
    const segment<vector> s(*c, g);
    for (double t = 0.0; kx::less_equal(t, 1.0); t += step, ++number) {
      // The joint is the end of the segment before, and takes a number all the same: hosts count tries by it.
      if (k > 3 && kx::near_zero(t)) continue;
      const kx::sample<D> sample = kx::append_sample<D>(*c);
      if (sample.point == nullptr) return 80;
      *sample.point = D::make_vertex(static_cast<std::int32_t>(number), evaluate<D>(s, t, *sample.stats));
    }
    if (k == n - 1) break;
    // A Bezier curve reads four new points and has as many segments as the others on purpose: when the groups of four
    // are used up the reading goes round. Hosts take the first n / 4 segments and leave the rest.
    const int fresh = bezier ? 4 : 1;
    for (int i = 0; i < 4 - fresh; ++i) g[i] = g[i + fresh];
    for (int i = 4 - fresh; i < 4; ++i) {
      if (!control.next(g[i])) return 2;
    }
  }
  c->ctrl_pnts->current = control.position();
  return 0;
}

}  // namespace

/* ---- uniform curves ---- */

std::int32_t KX_CALL kx_mk_ucurve(curve *c, double step) {
  if (c == nullptr || c->ctrl_pnts == nullptr) return 80;
  const std::int32_t tag = kx::datatype(c->ctrl_pnts);
  if (!kx::is_point(tag)) return -1;
  return kx::is_plane_point(tag) ? kx_mk_ucurve2d(c, step) : kx_mk_ucurve3d(c, step);
}

std::int32_t KX_CALL kx_mk_ucurve2d(curve *c, double step) { return make<plane>(c, step); }

std::int32_t KX_CALL kx_mk_ucurve3d(curve *c, double step) { return make<space>(c, step); }

std::int32_t KX_CALL kx_eval_t_on_ucurve2d(const curve *c, double t, poly_2d *const *ctrl, pnt_2d *point,
                                           vector_2d *tangent, vector_2d *second, vector_2d *normal) {
  if (c == nullptr || ctrl == nullptr) return 40;
  vec2 g[4];
  for (int i = 0; i < 4; ++i) {
    if (ctrl[i] == nullptr) return 40;
    g[i] = plane::read(*ctrl[i]);
  }
  if (!kx::in_unit_interval(t)) return 2;
  curve_stats_2d stats;
  const vec2 at = evaluate<plane>(segment<vec2>(*c, g), t, stats);
  if (point) *point = plane::make_point(at);
  if (tangent) *tangent = stats.tangent;
  if (second) *second = stats.second;
  if (normal) *normal = stats.normal;
  return 0;
}
