// Products and real roots of polynomials in Bernstein's form over 0 to 1.
#pragma once

#include <cmath>
#include <limits>

#include "bezier_pieces.hpp"

namespace kx {

inline constexpr int max_product_degree = 4 * max_bezier_degree;

// A polynomial by its coefficients times the binomials: so the coefficients of a product are a plain convolution.
// Beside each stands the size of what it was made of, which tells how much of it may be rounding.
struct bernstein {
  int degree = 0;
  double c[max_product_degree + 1] = {}, size[max_product_degree + 1] = {};

  bernstein() = default;
  // From the degree + 1 plain coefficients value(0) .. value(degree) and their sizes.
  template <class Value, class Size>
  bernstein(int n, Value value, Size size_of) : degree(n) {
    double binomial = 1.0;
    for (int j = 0; j <= n; ++j) {
      c[j] = binomial * value(j);
      size[j] = binomial * size_of(j);
      binomial = binomial * (n - j) / (j + 1);
    }
  }
  template <class Value>
  bernstein(int n, Value value) : bernstein(n, value, [&](int j) { return std::fabs(value(j)); }) {}

  // Adds the product of two, whose degrees sum to this one's, times a factor.
  void add_product(const bernstein &a, const bernstein &b, double factor) {
    for (int i = 0; i <= a.degree; ++i) {
      const double f = factor * a.c[i], s = std::fabs(factor) * a.size[i];
      for (int j = 0; j <= b.degree; ++j) {
        c[i + j] += f * b.c[j];
        size[i + j] += s * b.size[j];
      }
    }
  }

  bernstein derivative() const {
    const plain_coefficients p(*this);
    const auto value = [&](int j) { return degree * (p.value[j + 1] - p.value[j]); };
    return {degree - 1, value, [&](int j) { return degree * (p.size[j + 1] + p.size[j]); }};
  }

  // The coefficients without the binomials; those that are rounding alone are 0.
  void plain(double *out) const {
    const plain_coefficients p(*this);
    for (int j = 0; j <= degree; ++j) out[j] = std::fabs(p.value[j]) > roundings * p.size[j] ? p.value[j] : 0.0;
  }

 private:
  static constexpr double roundings = 8.0 * std::numeric_limits<double>::epsilon();

  struct plain_coefficients {
    double value[max_product_degree + 1] = {}, size[max_product_degree + 1] = {};
    explicit plain_coefficients(const bernstein &b) {
      double binomial = 1.0;
      for (int j = 0; j <= b.degree; ++j) {
        value[j] = b.c[j] / binomial;
        size[j] = b.size[j] / binomial;
        binomial = binomial * (b.degree - j) / (j + 1);
      }
    }
  };
};

// The derivative of x / w times the square of w.
inline bernstein quotient_slope(const bernstein &x, const bernstein &w) {
  bernstein slope;
  slope.degree = x.degree + w.degree - 1;
  slope.add_product(x.derivative(), w, 1.0);
  slope.add_product(x, w.derivative(), -1.0);
  return slope;
}

// Finds where a polynomial of plain coefficients changes its sign. A root of even order may be found or not: nothing
// changes there.
class root_finder {
 public:
  explicit root_finder(const bernstein &polynomial) : degree_(polynomial.degree) { polynomial.plain(plain_); }

  // Calls visit(u) for each root between 0 and 1, the ends excepted.
  template <class Visit>
  void find(Visit visit) {
    halve(plain_, 0.0, 1.0, deepest, visit);
  }

 private:
  static constexpr int deepest = 48;
  int degree_;
  double plain_[max_product_degree + 1];
  int intervals_ = 4000;  // more than roots that are any need; what is rounding alone ends with them

  static int sign(double x) { return x > 0.0 ? 1 : (x < 0.0 ? -1 : 0); }

  // Whether both ends stand out from the rounding of the whole, so that a root between them can be told.
  bool ends_are_clear(const double *g) const {
    double largest = 0.0;
    for (int j = 0; j <= degree_; ++j) largest = std::fmax(largest, std::fabs(g[j]));
    return std::fmin(std::fabs(g[0]), std::fabs(g[degree_])) > 1e-14 * largest;
  }

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
    if (changes == 1 && ends_are_clear(g)) {
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
