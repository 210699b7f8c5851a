// Bezier curves in Bernstein form and by de Casteljau's construction, for points in the plane, in space and weighted.
#pragma once

#include <cstdint>

#include "curve_record.hpp"
#include "runtime/tolerance.hpp"

namespace kx {

struct factorial_table {
  double of[max_bezier_degree + 1] = {1.0};

  constexpr factorial_table() {
    for (int n = 1; n <= max_bezier_degree; ++n) of[n] = of[n - 1] * n;
  }
};
inline constexpr factorial_table factorials;

inline double binomial(int n, int i) { return factorials.of[n] / (factorials.of[i] * factorials.of[n - i]); }

// The first half of a curve is evaluated from its tail, the second from its head: the ratio of t and 1 - t that carries
// the sum on is never above 1, and neither end divides by zero. The half itself belongs to the first.
inline bool in_first_half(double t) { return less_equal(t, 0.5); }

// x^n by squaring, in an order that depends on n alone: every build has the same bits.
template <class T>
inline T power(T x, int n) {
  T product(1.0);
  for (; n > 0; n /= 2, x = x * x) {
    if (n % 2 == 1) product = product * x;
  }
  return product;
}

// A curve of points V: sum of c[i] (1 - t)^(degree - i) t^i.
template <class V>
struct bernstein_form {
  int degree;
  V c[max_bezier_degree + 1];  // binomials times control points

  bernstein_form(const V *p, int n) : degree(n) {
    for (int i = 0; i <= n; ++i) c[i] = binomial(n, i) * p[i];
  }

  V at(double t) const {
    const bool first = in_first_half(t);
    const double base = first ? 1.0 - t : t, s = (first ? t : 1.0 - t) / base;
    V v = first ? c[degree] : c[0];
    for (int i = 1; i <= degree; ++i) v = c[first ? degree - i : i] + s * v;
    return power(base, degree) * v;
  }
};

// One corner of de Casteljau's triangle: afterwards q[0] is the point where the two parts meet and q[0] to q[degree]
// are the control points of the part that ends in the old q[degree]. `ahead` is the share of each point's successor.
template <class V>
inline void cut(V *q, int degree, double ahead, double here) {
  for (int r = 1; r <= degree; ++r) {
    for (int i = 0; i <= degree - r; ++i) q[i] = ahead * q[i + 1] + here * q[i];
  }
}

}  // namespace kx
