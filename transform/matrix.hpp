// Homogeneous matrices of the plane (N = 3) and of space (N = 4): row-major, points are row vectors on the left, the
// translation is in the last row. Written once for both sizes.
#pragma once

#include <cmath>
#include <cstring>

#include "kxgeom/types.h"
#include "runtime/tolerance.hpp"

namespace kx {

// An elementary transform, made on the stack and then multiplied onto the caller's matrix.
template <int N>
struct matrix {
  double m[N][N];
};

template <int N>
constexpr matrix<N> identity() {
  matrix<N> e{};
  for (int i = 0; i < N; ++i) e.m[i][i] = 1.0;
  return e;
}

template <int N>
void move_matrix(const double *from, double *to) {
  if (from && to) std::memmove(to, from, N * N * sizeof(double));
}

// m becomes m*e: what m did, then what e does. The product is summed from the first column on, in a copy, so e may be
// m.
template <int N>
void multiply_onto(double *m, const double *e) {
  double product[N * N];
  for (int i = 0; i < N; ++i) {
    for (int j = 0; j < N; ++j) {
      double sum = m[N * i] * e[j];
      for (int k = 1; k < N; ++k) sum += m[N * i + k] * e[N * k + j];
      product[N * i + j] = sum;
    }
  }
  move_matrix<N>(product, m);
}

template <int N>
void multiply_onto(double *m, const matrix<N> &e) {
  multiply_onto<N>(m, &e.m[0][0]);
}

template <int N>
matrix<N> translation(const double (&move)[N - 1]) {
  matrix<N> e = identity<N>();
  for (int i = 0; i < N - 1; ++i) e.m[N - 1][i] = move[i];
  return e;
}

template <int N>
matrix<N> scaling(const double (&factor)[N - 1], const double (&fixed)[N - 1]) {
  matrix<N> e = identity<N>();
  for (int i = 0; i < N - 1; ++i) {
    e.m[i][i] = factor[i];
    e.m[N - 1][i] = (1.0 - factor[i]) * fixed[i];
  }
  return e;
}

// Row u shears column v: coordinate v grows by factor times coordinate u.
template <int N>
matrix<N> shear(int u, int v, double factor) {
  matrix<N> e = identity<N>();
  e.m[u][v] = factor;
  return e;
}

// The sine and cosine of an angle in degrees.
struct turn {
  explicit turn(double angle_deg)
      : s(std::sin(angle_deg * radians_per_degree)), c(std::cos(angle_deg * radians_per_degree)) {}
  double s, c;
};

// A turn from axis u towards axis v about the origin: the plane's is <3>(0, 1), about z, x and y <4>(0, 1), (1, 2), (2,
// 0).
template <int N>
matrix<N> rotation(int u, int v, turn t) {
  matrix<N> e = identity<N>();
  e.m[u][u] = t.c;
  e.m[u][v] = t.s;
  e.m[v][u] = -t.s;
  e.m[v][v] = t.c;
  return e;
}

// The plane drops its factors only together, so that one alone can collapse or mirror an axis. Signed on purpose: hosts
// rely on two negative factors changing nothing.
inline void drop_small_factors(double (&factor)[2]) {
  if (factor[0] <= tolerance && factor[1] <= tolerance) factor[0] = factor[1] = 1.0;
}

inline pnt_2d transformed(const double *m, pnt_2d p) {
  return {m[0] * p.x + m[3] * p.y + m[6], m[1] * p.x + m[4] * p.y + m[7]};
}

inline double det22(double a, double b, double c, double d) { return a * d - b * c; }

// The map of a window onto a viewport.
struct window_map {
  window_map(const rect_2d &window, const rect_2d &viewport)
      : sx((viewport.x2 - viewport.x1) / (window.x2 - window.x1)),
        sy((viewport.y2 - viewport.y1) / (window.y2 - window.y1)),
        from{window.x1, window.y1},
        to{viewport.x1, viewport.y1} {}
  pnt_2d operator()(pnt_2d p) const { return {sx * (p.x - from.x) + to.x, sy * (p.y - from.y) + to.y}; }

  double sx, sy;
  pnt_2d from, to;
};

}  // namespace kx
