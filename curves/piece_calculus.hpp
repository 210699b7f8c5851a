// Points and derivatives on Bezier pieces, one parameter at a time and many in a row; and how a call on a curve begins.
#pragma once

#include <cmath>
#include <cstdint>

#include "bezier_pieces.hpp"
#include "runtime/tolerance.hpp"

namespace kx {

// What else the functions on any curve answer, beside a curve_fault.
enum query_fault : std::int32_t {
  bad_parameter = 7,  // outside the curve's range or no number
  bad_value = 8,      // a count, tolerance, length or order out of range, or no answer at this place
  too_much = 9,       // samples, or steps of an iteration
  no_argument = 40
};

template <class D>
inline constexpr int dimension_of = sizeof(typename D::vector) / sizeof(double);

// A parameter that passes an end by no more than the end's allowance is the end; false when it lies outside.
template <class D>
inline bool take_into_range(const bezier_pieces<D> &pieces, double &t) {
  const double a = pieces.from(), b = pieces.to();
  if (!greater_equal(t, a) || !less_equal(t, b)) return false;
  t = t < a ? a : (t > b ? b : t);
  return true;
}

// Writes a vector as plain numbers and yields the place behind them.
inline double *write(vec2 v, double *out) {
  out[0] = v.x;
  out[1] = v.y;
  return out + 2;
}
inline double *write(vec3 v, double *out) {
  out[0] = v.x;
  out[1] = v.y;
  out[2] = v.z;
  return out + 3;
}

inline double component(vec2 v, int i) { return i == 0 ? v.x : v.y; }
inline double component(vec3 v, int i) { return i == 0 ? v.x : (i == 1 ? v.y : v.z); }

inline vec2 read(const double *from, vec2) { return {from[0], from[1]}; }
inline vec3 read(const double *from, vec3) { return {from[0], from[1], from[2]}; }

template <class V>
inline V projected(const weighted<V> &w) {
  return w.point / w.weight;
}

// A piece and its derivatives by the local parameter at u, in homogeneous form: orders 0 to `order`, which is at most
// the degree n.
template <class P>
inline void homogeneous_derivatives(const P *piece, int n, double u, int order, P *out) {
  P d[max_piece_points];
  for (int j = 0; j <= n; ++j) d[j] = piece[j];
  for (int r = n; r > order; --r) casteljau_step(d, r, u);
  // With k + 1 points left, their k-th difference times n!/(n-k)! is the derivative of order k.
  for (int k = order; k >= 0; --k) {
    P difference[max_piece_points];
    difference[0] = d[0];
    for (int j = 1; j <= k; ++j) difference[j] = d[j];
    double factor = 1.0;
    for (int r = 0; r < k; ++r) {
      for (int j = 0; j < k - r; ++j) difference[j] = difference[j + 1] + (-1.0) * difference[j];
      factor *= n - r;
    }
    out[k] = factor * difference[0];
    if (k > 0) casteljau_step(d, k, u);
  }
}

// Derivatives of the quotient point/weight from those of both.
template <class V>
inline void project_derivatives(const weighted<V> *a, int order, V *out) {
  for (int k = 0; k <= order; ++k) {
    V v = a[k].point;
    double binomial = 1.0;
    for (int i = 1; i <= k; ++i) {
      binomial = binomial * (k - i + 1) / i;
      v = v - (binomial * a[i].weight) * out[k - i];
    }
    out[k] = v / a[0].weight;
  }
}

// The point with the first two derivatives by the local parameter.
template <class V>
struct jet {
  V at, first, second;
};

template <class V>
inline jet<V> jet_of_piece(const weighted<V> *piece, int n, double u) {
  weighted<V> a[3] = {};
  homogeneous_derivatives(piece, n, u, n < 2 ? n : 2, a);
  V out[3];
  project_derivatives(a, 2, out);
  return {out[0], out[1], out[2]};
}

// A piece made ready for many points: its coordinates times the binomials, weight last where there is one.
template <int Components>
struct piece_polynomial {
  int degree = 1;
  double c[max_piece_points][Components] = {};

  template <class V>
  void take(const weighted<V> *piece, int n) {
    degree = n;
    double binomial = 1.0;
    for (int j = 0; j <= n; ++j) {
      put(binomial * piece[j], c[j]);
      binomial = binomial * (n - j) / (j + 1);
    }
  }

 private:
  static void put(const weighted<vec2> &w, double *out) {
    out[0] = w.point.x;
    out[1] = w.point.y;
    if constexpr (Components == 3) out[2] = w.weight;
  }
  static void put(const weighted<vec3> &w, double *out) {
    out[0] = w.point.x;
    out[1] = w.point.y;
    out[2] = w.point.z;
    if constexpr (Components == 4) out[3] = w.weight;
  }
};

// So many parameters are treated side by side, in loops that compilers turn into vector instructions.
inline constexpr int lanes = 4;

// The points at u[0 .. lanes-1] of a piece, written to out as Dimension numbers each. A Degree above 0 is the degree
// known to the compiler. Bernstein's form by Horner: sums of terms of which none is larger than the points.
template <int Dimension, int Components, int Degree>
inline void points_at(const piece_polynomial<Components> &p, const double *u, double *out) {
  const int n = Degree > 0 ? Degree : p.degree;
  double v[lanes], power[lanes], sum[Components][lanes];
  for (int l = 0; l < lanes; ++l) {
    v[l] = 1.0 - u[l];
    power[l] = u[l];
    for (int d = 0; d < Components; ++d) sum[d][l] = p.c[0][d] * v[l];
  }
#pragma GCC unroll 3
  for (int j = 1; j < n; ++j) {
    for (int d = 0; d < Components; ++d) {
      for (int l = 0; l < lanes; ++l) sum[d][l] = (sum[d][l] + power[l] * p.c[j][d]) * v[l];
    }
    for (int l = 0; l < lanes; ++l) power[l] *= u[l];
  }
  for (int d = 0; d < Components; ++d) {
    for (int l = 0; l < lanes; ++l) sum[d][l] += power[l] * p.c[n][d];
  }
  if constexpr (Components > Dimension) {
    double inverse[lanes];
    for (int l = 0; l < lanes; ++l) inverse[l] = 1.0 / sum[Dimension][l];
    for (int d = 0; d < Dimension; ++d) {
      for (int l = 0; l < lanes; ++l) sum[d][l] *= inverse[l];
    }
  }
  for (int l = 0; l < lanes; ++l) {
    for (int d = 0; d < Dimension; ++d) out[Dimension * l + d] = sum[d][l];
  }
}

template <int Dimension, int Components, int Degree>
inline void points_of_piece_of(const piece_polynomial<Components> &p, const double *u, int count, double *out) {
  int i = 0;
  for (; i + lanes <= count; i += lanes) points_at<Dimension, Components, Degree>(p, u + i, out + Dimension * i);
  if (i == count) return;
  double rest[Dimension * lanes];
  points_at<Dimension, Components, Degree>(p, u + i, rest);
  for (int j = 0; j < Dimension * (count - i); ++j) out[Dimension * i + j] = rest[j];
}

// The points of a piece at `count` local parameters. u may be read up to the next multiple of `lanes`.
template <int Dimension, int Components>
inline void points_of_piece(const piece_polynomial<Components> &p, const double *u, int count, double *out) {
  p.degree == 3 ? points_of_piece_of<Dimension, Components, 3>(p, u, count, out)
                : points_of_piece_of<Dimension, Components, 0>(p, u, count, out);
}

// The points at the parameters t(0) .. t(count-1), which are in the curve's range or beyond it by its allowance. Those
// that follow each other on one piece are evaluated together.
template <int Components, class D, class Parameters>
inline void fill_points_of(const bezier_pieces<D> &pieces, std::int32_t count, Parameters t, double *out) {
  constexpr int dimension = dimension_of<D>, most = 64;
  piece_polynomial<Components> polynomial;
  double u[most] = {};
  std::int32_t at = 0, ready = -1;
  int run = 0;
  double start = 0.0, length = 1.0, low = 0.0, high = 0.0;  // of the piece that is ready
  for (std::int32_t i = 0; i < count; ++i) {
    const double here = t(i);
    if (ready < 0 || run == most || !(here >= low && here < high)) {
      points_of_piece<dimension>(polynomial, u, run, out);
      out += dimension * run;
      run = 0;
      at = pieces.find(here, at);
      if (at != ready) {
        weighted<typename D::vector> piece[max_piece_points];
        pieces.piece(at, piece);
        polynomial.take(piece, pieces.degree());
        ready = at;
        start = pieces.start(at);
        length = pieces.end(at) - start;
        low = at == 0 ? -HUGE_VAL : start;
        high = at + 1 == pieces.count() ? HUGE_VAL : pieces.end(at);
      }
    }
    const double part = (here - start) / length;
    u[run++] = part < 0.0 ? 0.0 : (part > 1.0 ? 1.0 : part);
  }
  points_of_piece<dimension>(polynomial, u, run, out);
}

template <class D, class Parameters>
inline void fill_points(const bezier_pieces<D> &pieces, std::int32_t count, Parameters t, double *out) {
  pieces.rational() ? fill_points_of<dimension_of<D> + 1>(pieces, count, t, out)
                    : fill_points_of<dimension_of<D>>(pieces, count, t, out);
}

}  // namespace kx
