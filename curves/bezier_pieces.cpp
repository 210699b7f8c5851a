// Reading curves of every kind as Bezier pieces.
#include "bezier_pieces.hpp"

#include <algorithm>
#include <cmath>
#include <limits>

#include "curve_record.hpp"

namespace kx {
namespace {

// What is larger, and its inverse as a weight, is refused: products of a few of them stay finite.
constexpr double largest = 1e60;

bool within_reach(double x) { return std::fabs(x) <= largest; }

bool is_weight(double w) { return w >= 1.0 / largest && w <= largest; }

vec2 drop(const pnt_3d &p, plane) { return {p.x, p.y}; }
vec3 drop(const pnt_3d &p, space) { return {p.x, p.y, p.z}; }

// A control point of any of the four kinds; false when it is none or out of reach.
template <class D>
bool read_within_reach(const list_item &item, typename D::vector &v) {
  if (item.data == nullptr || !is_point(item.datatype)) return false;
  const pnt_3d p = read_point(item.data, item.datatype);
  v = drop(p, D{});
  return within_reach(p.x) && within_reach(p.y) && within_reach(p.z);
}

// The first n numbers of a list, each to pass a test.
template <class Test>
bool read_numbers(const list_hdr *list, std::int64_t n, double *out, Test test) {
  for (const list_item &item : items(list)) {
    if (n == 0) break;
    if (item.data == nullptr || item.datatype != KX_RNUMBER) return false;
    *out = static_cast<const rnumber *>(item.data)->value;
    if (!test(*out)) return false;
    ++out;
    --n;
  }
  return n == 0;
}

// From the coefficients of t^3, t^2, t and 1 (the rows of a basis) to Bezier points.
void blend_of_basis(const curve &c, double (*blend)[4]) {
  for (int k = 0; k < 4; ++k) {
    const double c0 = c.basis[k], c1 = c.basis[4 + k], c2 = c.basis[8 + k], c3 = c.basis[12 + k];
    blend[0][k] = c3;
    blend[1][k] = c3 + c2 / 3.0;
    blend[2][k] = c3 + (2.0 * c2 + c1) / 3.0;
    blend[3][k] = c3 + c2 + c1 + c0;
  }
}

}  // namespace

template <class D>
bool bezier_pieces<D>::create(std::int64_t points, std::int64_t knots, std::int64_t spans) {
  // Each of the numbers comes of counting a list, so that the sum in bytes is far from overflowing 64 bits.
  const std::int64_t bytes = points * std::int64_t{sizeof(point)} + knots * 8 + spans * 4;
  block_ = allocate(array_bytes(bytes, 1));
  if (block_ == nullptr) return false;
  points_ = static_cast<point *>(block_);
  auto *rest = reinterpret_cast<double *>(points_ + points);
  if (knots > 0) knots_ = rest;
  if (spans > 0) spans_ = reinterpret_cast<std::int32_t *>(rest + knots);
  return true;
}

template <class D>
std::int32_t bezier_pieces<D>::read_points(const curve &c, std::int64_t n) {
  point *out = points_;
  for (const list_item &item : items(c.ctrl_pnts)) {
    if (n == 0) break;
    if (!read_within_reach<D>(item, out->point)) return bad_points;
    out->weight = 1.0;
    ++out;
    --n;
  }
  return n == 0 ? sound_curve : too_few_points;
}

template <class D>
std::int32_t bezier_pieces<D>::apply_weights(const curve &c, std::int64_t n) {
  rational_ = true;
  point *out = points_;
  for (const list_item &item : items(c.weights)) {
    if (n == 0) break;
    if (item.data == nullptr || item.datatype != KX_RNUMBER) return bad_weights;
    const double w = static_cast<const rnumber *>(item.data)->value;
    if (!is_weight(w)) return bad_weights;
    *out = {w * out->point, w};
    ++out;
    --n;
  }
  return n == 0 ? sound_curve : bad_weights;
}

template <class D>
std::int32_t bezier_pieces<D>::open_uniform(const curve &c, std::int32_t stride) {
  const std::int32_t n = item_count(c.ctrl_pnts);
  if (n < 4) return too_few_points;
  degree_ = 3;
  stride_ = stride;
  has_basis_ = true;
  count_ = stride == 1 ? n - 3 : n / 4;
  for (int i = 0; i < 16; ++i) {  // by index: the record is packed, none of its fields may be referred to
    if (!within_reach(c.basis[i])) return bad_points;
  }
  blend_of_basis(c, blend_);
  if (!create(n, 0, 0)) return no_memory_for_curve;
  return read_points(c, n);
}

template <class D>
std::int32_t bezier_pieces<D>::open_knotted(const curve &c, bool weights) {
  const std::int32_t n = item_count(c.ctrl_pnts), p = c.degree;
  if (p < 1 || p > max_degree || n <= p) return too_few_points;
  const std::int64_t m = std::int64_t{n} + p - 1;
  if (item_count(c.knots) < m) return bad_knots;
  degree_ = p;
  if (!create(n, m, n - p)) return no_memory_for_curve;
  if (const std::int32_t fault = read_points(c, n)) return fault;
  double before = -largest;
  const auto in_order = [&before](double k) {
    const bool ordered = k >= before && k <= largest;
    before = k;
    return ordered;
  };
  if (!read_numbers(c.knots, m, knots_, in_order)) return bad_knots;
  for (std::int32_t s = 0; s < n - p; ++s) {
    if (knots_[s + p - 1] < knots_[s + p]) spans_[count_++] = s;
  }
  if (count_ == 0) return bad_knots;
  return weights ? apply_weights(c, n) : sound_curve;
}

template <class D>
std::int32_t bezier_pieces<D>::open_rational_bezier(const curve &c) {
  const std::int32_t p = c.degree;
  if (p < 1 || p > max_bezier_degree || item_count(c.ctrl_pnts) <= p) return too_few_points;
  degree_ = p;
  count_ = 1;
  if (!create(p + 1, 0, 0)) return no_memory_for_curve;
  if (const std::int32_t fault = read_points(c, p + 1)) return fault;
  return apply_weights(c, p + 1);
}

template <class D>
std::int32_t bezier_pieces<D>::open(const curve *c) {
  if (c == nullptr || empty(c->ctrl_pnts)) return no_curve;
  // Type codes: those of the plane, then those of space.
  constexpr bool in_space = D::point_tag == KX_PNT_3D;
  switch (c->curve_type) {
    case in_space ? 84: 83 : case in_space ? 88 : 87 : case in_space ? 92 : 91 : return open_uniform(*c, 1);
    case in_space ? 86: 85 : return open_uniform(*c, 4);
    case in_space ? 98: 93 : return open_knotted(*c, false);
    case in_space ? 95: 94 : return open_knotted(*c, true);
    case in_space ? 97: 96 : return open_rational_bezier(*c);
    default: return other_dimension;
  }
}

template <class D>
std::int32_t bezier_pieces<D>::find(double t) const {
  if (knots_ == nullptr) {
    if (!(t > 0.0)) return 0;
    return t < count_ ? static_cast<std::int32_t>(t) : count_ - 1;
  }
  std::int32_t low = 0, high = count_;  // the piece is in low .. high - 1
  while (high - low > 1) {
    const std::int32_t middle = low + (high - low) / 2;
    (t >= start(middle) ? low : high) = middle;
  }
  return low;
}

template <class D>
void bezier_pieces<D>::piece(std::int32_t i, point *out) const {
  const point *d = points_ + offset(i);
  if (has_basis_) {
    for (int j = 0; j < 4; ++j) {
      const double *b = blend_[j];
      out[j] = {b[0] * d[0].point + b[1] * d[1].point + b[2] * d[2].point + b[3] * d[3].point, 1.0};
    }
    return;
  }
  for (int j = 0; j <= degree_; ++j) out[j] = d[j];
  if (knots_ == nullptr) return;
  const double *k = knots_ + offset(i);
  degree_ == 3 ? bezier_of_span<3>(out, 3, k) : bezier_of_span<0>(out, degree_, k);
}

template class bezier_pieces<plane>;
template class bezier_pieces<space>;

}  // namespace kx
