// Products and real roots of polynomials in Bernstein's form over 0 to 1.
#pragma once

#include <cmath>

#include "bezier_pieces.hpp"

namespace kx {

inline constexpr int max_product_degree = 4 * max_bezier_degree;

// A polynomial by its coefficients times the binomials: so the coefficients of a product are a plain convolution.
struct bernstein {
  int degree = 0;
  double c[max_product_degree + 1] = {};

  bernstein() = default;
  // From the degree + 1 plain coefficients value(0) .. value(degree).
  template <class Value>
  bernstein(int n, Value value) : degree(n) {
    double binomial = 1.0;
    for (int j = 0; j <= n; ++j) {
      c[j] = binomial * value(j);
      binomial = binomial * (n - j) / (j + 1);
    }
  }

  // Adds the product of two, whose degrees sum to this one's, times a factor.
  void add_product(const bernstein &a, const bernstein &b, double factor) {
    for (int i = 0; i <= a.degree; ++i) {
      const double f = factor * a.c[i];
      for (int j = 0; j <= b.degree; ++j) c[i + j] += f * b.c[j];
    }
  }

  void plain(double *out) const {
    double binomial = 1.0;
    for (int j = 0; j <= degree; ++j) {
      out[j] = c[j] / binomial;
      binomial = binomial * (degree - j) / (j + 1);
    }
  }
};

// The derivative of a polynomial given by its n + 1 plain coefficients.
template <class Value>
inline bernstein derivative_of(int n, Value value) {
  return {n - 1, [&](int j) { return n * (value(j + 1) - value(j)); }};
}

inline double largest_coefficient(const bernstein &b) {
  double plain[max_product_degree + 1], largest = 0.0;
  b.plain(plain);
  for (int j = 0; j <= b.degree; ++j) largest = std::fmax(largest, std::fabs(plain[j]));
  return largest;
}

// Finds where a polynomial of plain coefficients changes its sign. A root of even order may be found or not: nothing
// changes there. Coefficients up to `noise` count as 0.
class root_finder {
 public:
  root_finder(int degree, double noise) : degree_(degree), noise_(noise) {}

  // Calls visit(u) for each root between 0 and 1, the ends excepted.
  template <class Visit>
  void find(const double *coefficients, Visit visit) {
    halve(coefficients, 0.0, 1.0, deepest, visit);
  }

 private:
  static constexpr int deepest = 48;
  int degree_;
  double noise_;
  int intervals_ = 4000;  // more than roots that are any need; what is rounding alone ends with them

  int sign(double x) const { return x > noise_ ? 1 : (x < -noise_ ? -1 : 0); }

  double value(const double *g, double u) const {
    const double v = 1.0 - u;
    double power = 1.0, binomial = 1.0, sum = g[0];
    for (int j = 1; j <= degree_; ++j) {
      power *= u;
      binomial = binomial * (degree_ - j + 1) / j;
      sum = sum * v + binomial * power * g[j];
    }
    return sum;
  }

  // The only root of g between 0 and 1, whose ends are of different signs: the rule of false position, halving where
  // that drags.
  double single(const double *g) const {
    double low = 0.0, high = 1.0, at_low = g[0], at_high = g[degree_];
    double u = 0.5;
    for (int step = 0; step < 100 && high - low > 1e-16; ++step) {
      const double width = high - low, slope = at_high - at_low;
      u = slope != 0.0 ? low - at_low * (width / slope) : 0.5 * (low + high);
      if (step % 3 == 2 || !(u > low && u < high)) u = 0.5 * (low + high);
      const double at = value(g, u);
      if (at == 0.0 || u == low || u == high) break;
      if ((at > 0.0) == (g[0] > 0.0)) {
        low = u;
        at_low = at;
        if (high - low > 0.5 * width) at_high *= 0.5;
      } else {
        high = u;
        at_high = at;
        if (high - low > 0.5 * width) at_low *= 0.5;
      }
    }
    return u;
  }

  template <class Visit>
  void halve(const double *g, double from, double to, int depth, Visit &visit) {
    int changes = 0, last = 0;
    for (int j = 0; j <= degree_; ++j) {
      const int s = sign(g[j]);
      if (s == 0) continue;
      changes += last != 0 && s != last;
      last = s;
    }
    if (changes == 0) return;
    // As many roots as the signs change, or fewer by an even number.
    if (changes == 1 && sign(g[0]) != 0 && sign(g[degree_]) != 0) {
      visit(from + (to - from) * single(g));
      return;
    }
    const double middle = 0.5 * (from + to);
    if (depth == 0 || intervals_ < 2) {
      visit(middle);
      return;
    }
    intervals_ -= 2;
    double low[max_product_degree + 1], high[max_product_degree + 1];
    high[0] = g[0];
    for (int j = 1; j <= degree_; ++j) high[j] = g[j];
    low[0] = high[0];
    for (int r = 1; r <= degree_; ++r) {
      for (int j = 0; j <= degree_ - r; ++j) high[j] = 0.5 * (high[j] + high[j + 1]);
      low[r] = high[0];
    }
    // A root in the very middle is in neither half.
    if (sign(high[0]) == 0) visit(middle);
    halve(low, from, middle, depth - 1, visit);
    halve(high, middle, to, depth - 1, visit);
  }
};

}  // namespace kx
