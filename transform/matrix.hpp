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

// Coordinate u shears the others: each grows by its factor times coordinate u, in the order of the axes.
template <int N>
matrix<N> shear(int u, const double (&factor)[N - 2]) {
  matrix<N> e = identity<N>();
  for (int v = 0, next = 0; v < N - 1; ++v) {
    if (v != u) e.m[u][v] = factor[next++];
  }
  return e;
}

// The sine and cosine of an angle in degrees.
struct turn {
  explicit turn(double angle_deg)
      : s(std::sin(angle_deg * radians_per_degree)), c(std::cos(angle_deg * radians_per_degree)) {}
  turn(double sine, double cosine) : s(sine), c(cosine) {}
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

// Space drops each small factor by itself, negative ones included: a body is neither flattened nor mirrored by scaling.
inline void drop_small_factors(double (&factor)[3]) {
  for (double &f : factor) {
    if (f <= tolerance) f = 1.0;
  }
}

inline pnt_2d transformed(const double *m, pnt_2d p) {
  return {m[0] * p.x + m[3] * p.y + m[6], m[1] * p.x + m[4] * p.y + m[7]};
}

inline pnt_3d transformed(const double *m, pnt_3d p) {
  return {m[0] * p.x + m[4] * p.y + m[8] * p.z + m[12],  //
          m[1] * p.x + m[5] * p.y + m[9] * p.z + m[13],  //
          m[2] * p.x + m[6] * p.y + m[10] * p.z + m[14]};
}

// Vertices keep their numbers.
inline poly_2d transformed(const double *m, const poly_2d &p) {
  const pnt_2d image = transformed(m, pnt_2d{p.x, p.y});
  return {p.seqnr, image.x, image.y};
}

inline poly_3d transformed(const double *m, const poly_3d &p) {
  const pnt_3d image = transformed(m, pnt_3d{p.x, p.y, p.z});
  return {p.seqnr, image.x, image.y, image.z};
}

inline double det22(double a, double b, double c, double d) { return a * d - b * c; }

// Row by row.
inline double det33(double a, double b, double c, double d, double e, double f, double g, double h, double i) {
  return a * (e * i - f * h) - d * (b * i - c * h) + g * (b * f - c * e);
}

// The determinant of what a space matrix has outside row r and column c.
inline double minor33(const double *m, int r, int c) {
  const double *row[3];
  int col[3];
  for (int i = 0; i < 3; ++i) {
    row[i] = m + 4 * (i < r ? i : i + 1);
    col[i] = i < c ? i : i + 1;
  }
  return det33(row[0][col[0]], row[0][col[1]], row[0][col[2]],  //
               row[1][col[0]], row[1][col[1]], row[1][col[2]],  //
               row[2][col[0]], row[2][col[1]], row[2][col[2]]);
}

inline matrix<4> adjugate(const double *m) {
  matrix<4> out;
  for (int r = 0; r < 4; ++r) {
    for (int c = 0; c < 4; ++c) out.m[c][r] = (r + c) % 2 ? -minor33(m, r, c) : minor33(m, r, c);
  }
  return out;
}

// By the first row, in two pairs.
inline double det44(const double *m) {
  return (m[0] * minor33(m, 0, 0) - m[1] * minor33(m, 0, 1)) + (m[2] * minor33(m, 0, 2) - m[3] * minor33(m, 0, 3));
}

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
