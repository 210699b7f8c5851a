// A curve of every kind, filled without the definers, and a second way to its points.
#pragma once

#include <functional>

#include "curve_lists.hpp"

namespace every_kind {

using curve_lists::owner;

inline constexpr int32_t plane_types[] = {83, 85, 87, 91, 93, 94, 96}, space_types[] = {84, 86, 88, 92, 98, 95, 97};

inline bool in_space(int32_t type) { return std::count(std::begin(space_types), std::end(space_types), type) > 0; }
inline bool knotted(int32_t type) { return type == 93 || type == 98 || type == 94 || type == 95; }
inline bool one_piece(int32_t type) { return type == 96 || type == 97; }

// Beta-splines have the basis of bias 1 and tension 0, whose rows make them jump at each joint.
inline void set_basis(curve *c) {
  const double bases[][17] = {{6, -1, 3, -3, 1, 3, -6, 3, 0, -3, 0, 3, 0, 1, 4, 1, 0},
                              {1, -1, 3, -3, 1, 3, -6, 3, 0, -3, 3, 0, 0, 1, 0, 0, 0},
                              {2, -1, 3, -3, 1, 2, -5, 4, -1, -1, 0, 1, 0, 0, 2, 0, 0},
                              {12, -2, 6, -6, 2, 6, -12, 5, 0, -6, 0, 6, 0, 2, 8, 2, 0}};
  const double *b = bases[c->curve_type > 90 ? 3 : (c->curve_type - 83) / 2];
  for (int i = 0; i < 16; ++i) c->basis[i] = b[i + 1] / b[0];
}

// Of degree 2 and 5 without numbers in the control points.
inline curve *make(int32_t type, const std::vector<pnt_3d> &points, int degree, const std::vector<double> &knots = {},
                   const std::vector<double> &weights = {}) {
  curve *c = kx_create_curve();
  c->curve_type = type;
  c->degree = degree;
  const bool plain = degree == 2 || degree == 5;
  const int32_t tag = in_space(type) ? (plain ? KX_PNT_3D : KX_POLY_3D) : plain ? KX_PNT_2D : KX_POLY_2D;
  for (const pnt_3d &p : points) kx::append(*c->ctrl_pnts, kx::create_point(tag, p, 7), tag);
  const auto fill = [](list_hdr *list, const std::vector<double> &values) {
    for (double v : values) kx::append(*list, new (kx_create_rnumber()) rnumber{v}, KX_RNUMBER);
  };
  fill(c->knots, knots);
  fill(c->weights, weights);
  if (type < 93) set_basis(c);
  return c;
}

// A wavy curve of any kind: uneven knots of which one is double, some before and behind the range, uneven weights.
inline curve *wavy(int32_t type, int degree = 3, int n = 9) {
  std::vector<pnt_3d> points;
  std::vector<double> knots, weights;
  for (int i = 0; i < n; ++i) {
    points.push_back({i + std::sin(5.0 * i), 3 * std::sin(1.7 * i), std::cos(1.1 * i) * i});
    weights.push_back(1 + 0.8 * std::sin(2.0 * i));
  }
  for (int i = 0; i < n + degree - 1; ++i) knots.push_back(i == degree + 1 ? knots.back() : i + 0.3 * std::sin(i));
  return make(type, points, one_piece(type) ? n - 1 : (knotted(type) ? degree : 3), knots, weights);
}

struct piece {
  double start, end;
  std::function<pnt_3d(double)> at;
};

// The pieces of a curve: uniform kinds through the basis, the others through kx_rat_deboor_3d.
inline std::vector<piece> pieces(const curve *c) {
  std::vector<poly_3d> points;
  std::vector<double> knots, weights;
  for (const list_item &i : kx::items(c->ctrl_pnts)) {
    const pnt_3d p = kx::read_point(i.data, i.datatype);
    points.push_back({0, p.x, p.y, p.z});
  }
  for (const rnumber &k : curve_lists::records<rnumber>(c->knots)) knots.push_back(k.value);
  for (const rnumber &w : curve_lists::records<rnumber>(c->weights)) weights.push_back(w.value);
  if (c->curve_type == 93 || c->curve_type == 98) weights.assign(points.size(), 1.0);
  const int p = c->degree;
  if (one_piece(c->curve_type)) {
    knots.assign(static_cast<size_t>(p), 0.0);
    knots.resize(2 * static_cast<size_t>(p), 1.0);
  }
  std::vector<piece> all;
  if (c->curve_type < 93) {
    const size_t stride = c->curve_type == 85 || c->curve_type == 86 ? 4 : 1;
    std::vector<double> basis(c->basis, c->basis + 16);
    for (size_t i = 0; i + 4 <= points.size(); i += stride) {
      const double start = static_cast<double>(all.size());
      all.push_back({start, start + 1, [=](double t) {
                       pnt_3d sum{};
                       const double u = t - start, power[4] = {u * u * u, u * u, u, 1};
                       for (size_t j = 0; j < 16; ++j) {
                         const poly_3d &q = points[i + j % 4];
                         const double f = basis[j] * power[j / 4];
                         sum = {sum.x + f * q.x, sum.y + f * q.y, sum.z + f * q.z};
                       }
                       return sum;
                     }});
    }
    return all;
  }
  for (size_t s = 0; s + static_cast<size_t>(p) < points.size(); ++s) {
    const double *k = &knots[s] + p;
    if (k[-1] == k[0]) continue;
    all.push_back({k[-1], k[0], [=](double t) {
                     poly_3d g[16], *ctrl[16];
                     for (size_t i = 0; i <= static_cast<size_t>(p); ++i) *(ctrl[i] = &g[i]) = points[s + i];
                     pnt_3d out;
                     EXPECT_EQ(kx_rat_deboor_3d(t, p, ctrl, &weights[s], &knots[s], &out), 0);
                     return out;
                   }});
  }
  return all;
}

inline double apart(const pnt_3d &a, const pnt_3d &b) { return std::hypot(a.x - b.x, a.y - b.y, a.z - b.z); }

// What the plane and the space function of a pair answer, with three coordinates.
inline pnt_3d widened(const pnt_2d &p) { return {p.x, p.y, 0}; }
inline std::vector<pnt_3d> widened(const std::vector<double> &flat, bool space) {
  std::vector<pnt_3d> all;
  for (size_t i = 0, d = space ? 3 : 2; i + d <= flat.size(); i += d)
    all.push_back({flat[i], flat[i + 1], space ? flat[i + 2] : 0});
  return all;
}

inline pnt_3d point(const curve *c, double t) {
  pnt_2d flat{};
  pnt_3d p{};
  EXPECT_EQ(in_space(c->curve_type) ? kx_curve_pnt_3d(c, t, &p) : kx_curve_pnt_2d(c, t, &flat), 0);
  return in_space(c->curve_type) ? p : widened(flat);
}

// A point and n derivatives.
inline std::vector<pnt_3d> derivatives(const curve *c, double t, int32_t n) {
  const bool space = in_space(c->curve_type);
  std::vector<double> flat((static_cast<size_t>(n) + 1) * (space ? 3 : 2));
  EXPECT_EQ(space ? kx_curve_derivs_3d(c, t, n, flat.data()) : kx_curve_derivs_2d(c, t, n, flat.data()), 0);
  return widened(flat, space);
}

struct range {
  double from, to;
  explicit range(const curve *c) { EXPECT_EQ(kx_curve_range(c, &from, &to), 0); }
};

// Calls test(curve) for a wavy curve of every kind and several degrees.
template <class Test>
void for_each_curve(Test test, std::initializer_list<int> degrees = {1, 2, 3, 5}) {
  for (const auto &types : {plane_types, space_types})
    for (int i = 0; i < 7; ++i)
      for (int degree : degrees) {
        const int32_t type = types[i];
        if (degree != 3 && !knotted(type) && !one_piece(type)) continue;
        SCOPED_TRACE(testing::Message() << "type " << type << " degree " << degree);
        test(owner{wavy(type, degree, one_piece(type) ? degree + 1 : std::max(9, degree + 4))});
      }
}

// A whole circle of radius r: four pieces of a rational curve of degree 2.
inline curve *circle(double r, bool space = false) {
  const double h = std::sqrt(0.5);
  std::vector<pnt_3d> points;
  std::vector<double> weights;
  for (int i = 0; i < 9; ++i) {
    const int x[] = {1, 1, 0, -1, -1, -1, 0, 1}, j = i % 8;
    points.push_back({r * x[j], r * x[(j + 6) % 8], 0.0});
    weights.push_back(i % 2 ? h : 1.0);
  }
  return make(space ? 95 : 94, points, 2, {0, 0, 1, 1, 2, 2, 3, 3, 4, 4}, weights);
}

}  // namespace every_kind
