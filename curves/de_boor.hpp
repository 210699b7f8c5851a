// de Boor's scheme on one knot span, for plain and for weighted points.
#pragma once

#include <cmath>
#include <cstdint>

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

// The span's point at t, from its degree + 1 points d, which are used up; knots[degree-1] and knots[degree] bound the
// span. A Degree above 0 is the degree known to the compiler.
template <int Degree, class V>
inline V de_boor(V *d, int degree, const double *knots, double t) {
  const int p = Degree > 0 ? Degree : degree;
  for (int r = 1; r <= p; ++r) {
    for (int j = p; j >= r; --j) {
      const double above = knots[j + p - r];
      const double a = (above - t) / (above - knots[j - 1]);
      d[j] = a * d[j - 1] + (1.0 - a) * d[j];
    }
  }
  return d[p];
}

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
