// de Boor's scheme on one knot span, for plain and for weighted points.
#pragma once

#include <cmath>
#include <cstdint>

#include "curve_record.hpp"
#include "runtime/tolerance.hpp"

namespace kx {

// A point times its weight, and the weight.
template <class V>
struct weighted {
  V point;
  double weight;
};

template <class V>
inline weighted<V> operator+(const weighted<V> &a, const weighted<V> &b) {
  return {a.point + b.point, a.weight + b.weight};
}
template <class V>
inline weighted<V> operator*(double s, const weighted<V> &v) {
  return {s * v.point, s * v.weight};
}

// The point of a span from its degree + 1 points d, which are used up. part(r, j) is the share of d[j-1] in step r, the
// rest being that of d[j]. A Degree above 0 is the degree known to the compiler.
template <int Degree, class V, class Part>
inline V de_boor(V *d, int degree, Part part) {
  const int p = Degree > 0 ? Degree : degree;
#pragma GCC unroll 3
  for (int r = 1; r <= p; ++r) {
#pragma GCC unroll 3
    for (int j = p; j >= r; --j) {
      const double a = part(r, j);
      d[j] = a * d[j - 1] + (1.0 - a) * d[j];
    }
  }
  return d[p];
}

// The shares at t; knots[degree-1] and knots[degree] bound the span.
inline auto parts_at(double t, int degree, const double *knots) {
  return [=](int r, int j) {
    const double above = knots[j + degree - r];
    return (above - t) / (above - knots[j - 1]);
  };
}

// The knot differences of a span, inverted once for all its points.
struct inverse_differences {
  double of[max_degree][max_degree];

  inverse_differences(int degree, const double *knots) {
    for (int r = 1; r <= degree; ++r) {
      for (int j = r; j <= degree; ++j) of[r - 1][j - 1] = 1.0 / (knots[j + degree - r] - knots[j - 1]);
    }
  }
  // parts_at, to the last bit or two.
  auto parts_at(double t, int degree, const double *knots) const {
    return [=, this](int r, int j) { return (knots[j + degree - r] - t) * of[r - 1][j - 1]; };
  }
};

// Back from the weighted point; false when its weight is none to divide by.
template <class V>
inline bool project(const weighted<V> &w, V &point) {
  if (near_zero(w.weight) || !std::isfinite(w.weight)) return false;
  point = w.point / w.weight;
  return true;
}

// Parameters below the range of all knot vectors are refused, a trace below 0 is not.
inline bool below_range(double t) { return t < -tolerance; }

}  // namespace kx
