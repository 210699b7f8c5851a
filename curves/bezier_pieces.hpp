// Every kind of curve as a row of Bezier pieces with weights, each over an interval of the curve's parameter.
#pragma once

#include <cstdint>

#include "de_boor.hpp"
#include "kxgeom/types.h"
#include "records/dimension.hpp"
#include "runtime/memory.hpp"

namespace kx {

inline constexpr int max_piece_points = max_bezier_degree + 1;

// What is wrong with a curve; the numbers that the functions on any curve answer.
enum curve_fault : std::int32_t {
  sound_curve = 0,
  no_curve = 1,         // null, or without control points
  too_few_points = 2,   // or a degree out of range
  other_dimension = 3,  // or of no known type
  bad_knots = 4,        // too few, decreasing, not finite, or no span among them
  bad_points = 5,       // an item that is no point, or a coordinate that is not finite or beyond 1e60
  bad_weights = 6,      // fewer than points, or one outside 1e-60 to 1e60
  no_memory_for_curve = 80
};

// A curve read once from its lists into one block. Control points are kept in homogeneous form, weight 1 where the kind
// has none; the Bezier points of a piece are made when they are asked for.
//
// Piece i of a uniform curve has the parameters i to i + 1 and comes of the points i to i + 3 through the curve's
// basis, of a uniform Bezier curve of the points 4i to 4i + 3. The pieces of the non-uniform kinds are the spans of
// some length, however short: span s lies between the knots s+p-1 and s+p and comes of the points s to s + p. A
// rational Bezier curve is one piece over 0 to 1. Neighbouring pieces have their joint in common but for rounding, save
// where knots, basis or groups of points let the curve jump.
template <class D>
class bezier_pieces {
 public:
  using vector = typename D::vector;
  using point = weighted<vector>;

  bezier_pieces() = default;
  ~bezier_pieces() { release(block_); }
  bezier_pieces(const bezier_pieces &) = delete;
  bezier_pieces &operator=(const bezier_pieces &) = delete;

  // Reads and checks the whole record; a curve_fault, without a message. To be called once; only after sound_curve does
  // anything else here make sense.
  std::int32_t open(const curve *c);

  std::int32_t count() const { return count_; }
  std::int32_t degree() const { return degree_; }
  bool rational() const { return rational_; }

  double start(std::int32_t i) const { return knots_ ? knots_[offset(i) + degree_ - 1] : i; }
  double end(std::int32_t i) const { return knots_ ? knots_[offset(i) + degree_] : i + 1; }
  double from() const { return start(0); }
  double to() const { return end(count_ - 1); }

  // The piece that a parameter between from() and to() belongs to: at a joint the one that begins there.
  std::int32_t find(double t) const;
  // The same for parameters that come in order: `near` is the piece of the one before.
  std::int32_t find(double t, std::int32_t near) const {
    while (near + 1 < count_ && t >= end(near)) ++near;
    return t < start(near) ? find(t) : near;
  }
  // Where in piece i a parameter lies, 0 to 1.
  double local(std::int32_t i, double t) const {
    const double a = start(i), u = (t - a) / (end(i) - a);
    return u > 0.0 ? (u < 1.0 ? u : 1.0) : 0.0;
  }
  double global(std::int32_t i, double u) const {
    const double a = start(i), b = end(i);
    return u < 1.0 ? a + u * (b - a) : b;
  }

  // The degree() + 1 Bezier points of piece i.
  void piece(std::int32_t i, point *out) const;

 private:
  std::int32_t offset(std::int32_t i) const { return spans_ ? spans_[i] : i * stride_; }
  std::int32_t open_uniform(const curve &c, std::int32_t stride);
  std::int32_t open_knotted(const curve &c, bool weights);
  std::int32_t open_rational_bezier(const curve &c);
  bool create(std::int64_t points, std::int64_t knots, std::int64_t spans);
  std::int32_t read_points(const curve &c, std::int64_t n);
  std::int32_t apply_weights(const curve &c, std::int64_t n);

  void *block_ = nullptr;
  point *points_ = nullptr;
  double *knots_ = nullptr;
  std::int32_t *spans_ = nullptr;
  std::int32_t count_ = 0, degree_ = 0, stride_ = 0;
  bool rational_ = false, has_basis_ = false;
  double blend_[4][4] = {};  // from the four control points of a uniform piece to its Bezier points
};

// The Bezier points of a knot span, in place of its control points: the first knot that bounds it is inserted until it
// counts in full, then the other one. k[p-1] and k[p] bound the span, and no quotient is less than the part of the span
// of which it speaks: nothing is divided by 0. A Degree above 0 is the degree known to the compiler.
template <int Degree, class P>
inline void bezier_of_span(P *d, int degree, const double *k) {
  const int p = Degree > 0 ? Degree : degree;
  const double a = k[p - 1], b = k[p];
#pragma GCC unroll 3
  for (int r = 1; r <= p; ++r) {
#pragma GCC unroll 3
    for (int j = 0; j <= p - r; ++j) {
      const double low = k[j + r - 1], part = (a - low) / (k[j + p] - low);
      d[j] = (1.0 - part) * d[j] + part * d[j + 1];
    }
  }
#pragma GCC unroll 3
  for (int r = 1; r < p; ++r) {
#pragma GCC unroll 3
    for (int j = p; j > r; --j) {
      const double part = (b - a) / (k[p + j - r] - a);
      d[j] = (1.0 - part) * d[j - 1] + part * d[j];
    }
  }
}

// One step of de Casteljau: the n points at u between the n + 1 points d.
template <class P>
inline void casteljau_step(P *d, int n, double u) {
  const double v = 1.0 - u;
  for (int j = 0; j < n; ++j) d[j] = v * d[j] + u * d[j + 1];
}

// Cuts a piece of degree n at u: `low` becomes the part up to u, `high` the rest; low may be the piece itself.
template <class P>
inline void cut(const P *piece, int n, double u, P *low, P *high) {
  for (int j = 0; j <= n; ++j) high[j] = piece[j];
  low[0] = high[0];
  for (int r = 1; r <= n; ++r) {
    casteljau_step(high, n - r + 1, u);
    low[r] = high[0];
  }
}

// The point of a piece at u, by de Casteljau.
template <class P>
inline P point_of_piece(const P *piece, int n, double u) {
  P d[max_piece_points];
  for (int j = 0; j <= n; ++j) d[j] = piece[j];
  for (int r = n; r > 0; --r) casteljau_step(d, r, u);
  return d[0];
}

extern template class bezier_pieces<plane>;
extern template class bezier_pieces<space>;

}  // namespace kx
