#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <random>
#include <vector>

#include "kxgeom/transform.h"
#include "records/vector.hpp"

namespace {

struct plane {
  using point = pnt_2d;
  static constexpr int n = 3;
  static constexpr auto identity = kx_getidmatrix2d;
  static constexpr auto move = kx_movematrix2d;
  static constexpr auto transform = kx_transformpnt2d;
  static double distance(const point &a, const point &b) { return std::hypot(a.x - b.x, a.y - b.y); }
};

struct space {
  using point = pnt_3d;
  static constexpr int n = 4;
  static constexpr auto identity = kx_getidmatrix3d;
  static constexpr auto move = kx_movematrix3d;
  static constexpr auto transform = kx_transformpnt3d;
  static double distance(const point &a, const point &b) { return std::hypot(a.x - b.x, a.y - b.y, a.z - b.z); }
};

template <class D>
struct builder {
  std::function<void(double *)> build;
  typename D::point want;  // where p goes
};

// Each builder alone maps p, and any two act in call order.
template <class D>
void check(const typename D::point &p, const std::vector<builder<D>> &table) {
  const auto map = [](const double *m, const typename D::point &from) {
    typename D::point to;
    D::transform(m, &from, &to);
    return to;
  };
  constexpr int size = D::n * D::n;
  for (const builder<D> &first : table) {
    double m[size], both[size], alone[size];
    D::identity(m);
    first.build(m);
    EXPECT_LE(D::distance(map(m, p), first.want), 1e-8) << &first - &table[0];
    for (int r = 0; r < D::n; ++r) EXPECT_EQ(m[D::n * r + D::n - 1], r == D::n - 1);
    for (const builder<D> &second : table) {
      D::move(m, both);
      second.build(both);
      D::identity(alone);
      second.build(alone);
      EXPECT_LE(D::distance(map(both, p), map(alone, map(m, p))), 1e-9)
          << &first - &table[0] << " " << &second - &table[0];
    }
    first.build(nullptr);  // does nothing
  }
}

TEST(MatrixBuilders, OfThePlane) {
  const pnt_2d centre{1, 1}, origin{0, 0};
  const auto reflect = [](int mode) { return [=](double *m) { kx_reflectmatrix2d(mode, m); }; };
  check<plane>({2, 3}, {{[](double *m) { kx_translatematrix2d(5, -1, m); }, {7, 2}},
                        {[&](double *m) { kx_rotationmatrix2d(90, &centre, m); }, {-1, 2}},
                        {[&](double *m) { kx_rotationmatrix2d(-90, &origin, m); }, {3, -2}},
                        {[&](double *m) { kx_scalematrix2d(2, 3, &centre, m); }, {3, 7}},
                        {[&](double *m) { kx_scalematrix2d(1e-7, -4, &centre, m); }, {2, 3}},
                        {[&](double *m) { kx_scalematrix2d(0, 2, &centre, m); }, {1, 5}},
                        {[&](double *m) { kx_scalematrix2d(-1, 1.1e-7, &origin, m); }, {-2, 3.3e-7}},
                        {[](double *m) { kx_shearmatrix2d(1, 10, m); }, {2, 23}},
                        {[](double *m) { kx_shearmatrix2d(0, 10, m); }, {32, 3}},
                        {reflect(-1), {2, -3}},
                        {reflect(0), {2, -3}},
                        {reflect(1), {-2, 3}},
                        {reflect(2), {-2, -3}},
                        {reflect(3), {3, 2}},
                        {reflect(4), {-3, -2}}});
}

TEST(MatrixBuilders, OfSpace) {
  const pnt_3d fixed{1, 1, 2};
  const line_3d along{1, 1, 0, 2, 1, 0}, against{1, 1, 0, 0, 1, 0}, upwards{1, 1, 1, 1, 1, 9},
      diagonal{0, 0, 0, 2, 2, 2};
  const auto turn = [](int axis, double angle, const line_3d *line) {
    return [=](double *m) { kx_rotationmatrix3d(axis, angle, line, m); };
  };
  const auto scale = [&](double x, double y, double z) {
    return [=, &fixed](double *m) { kx_scalematrix3d(x, y, z, &fixed, m); };
  };
  const auto shear = [](int mode) { return [=](double *m) { kx_shearmatrix3d(mode, 10, 100, m); }; };
  const auto reflect = [](int mode) { return [=](double *m) { kx_reflectmatrix3d(mode, m); }; };
  check<space>({2, 3, 5}, {{[](double *m) { kx_translatematrix3d(5, -1, 7, m); }, {7, 2, 12}},
                           {turn(0, 90, nullptr), {2, -5, 3}},
                           {turn(1, 90, nullptr), {5, 3, -2}},
                           {turn(2, 90, nullptr), {-3, 2, 5}},
                           {turn(-1, 90, nullptr), {2, -5, 3}},
                           {turn(4, 90, nullptr), {2, -5, 3}},
                           {turn(3, 90, &along), {2, -4, 2}},
                           {turn(3, 90, &against), {2, -4, 2}},
                           {turn(3, 90, &upwards), {-1, 2, 5}},
                           {turn(3, 120, &diagonal), {5, 2, 3}},
                           {scale(2, 3, 4), {3, 7, 14}},
                           {scale(1e-7, -4, 2), {2, 3, 8}},
                           {scale(1.1e-7, 1, 0), {1 + 1.1e-7, 3, 5}},
                           {shear(1), {32, 3, 305}},
                           {shear(2), {52, 503, 5}},
                           {shear(0), {2, 23, 205}},
                           {shear(3), {2, 23, 205}},
                           {reflect(1), {2, -3, 5}},
                           {reflect(2), {2, 3, -5}},
                           {reflect(0), {-2, 3, 5}},
                           {reflect(-1), {-2, 3, 5}}});
}

TEST(MatrixBuilders, AnyAxisAgreesWithRodriguesAndKeepsDistances) {
  std::mt19937 random(5);
  std::uniform_real_distribution<double> value(-5, 5);
  for (int run = 0; run < 200; ++run) {
    const line_3d line{value(random), value(random), value(random), value(random), value(random), value(random)};
    const pnt_3d p{value(random), value(random), value(random)}, q{line.x1, line.y1, line.z1};
    const double angle = 100 * value(random);
    double m[16];
    kx_getidmatrix3d(m);
    ASSERT_EQ(kx_rotationmatrix3d(3, angle, &line, m), 0);
    pnt_3d got;
    kx_transformpnt3d(m, &p, &got);
    const kx::vec3 from{q.x, q.y, q.z}, v = kx::vec3{p.x, p.y, p.z} - from;
    const kx::vec3 k = kx::unit(kx::vec3{line.x2, line.y2, line.z2} - from);
    const double s = std::sin(angle * 0.01745329252), c = std::cos(angle * 0.01745329252);
    const kx::vec3 want = from + c * v + s * kx::cross(k, v) + ((1 - c) * kx::dot(k, v)) * k;
    ASSERT_LE(kx::length(want - kx::vec3{got.x, got.y, got.z}), 1e-11);
    ASSERT_NEAR(kx::length(kx::vec3{got.x, got.y, got.z} - from), kx::length(v), 1e-12);
  }
}

TEST(MatrixBuilders, AShortAxisTurnsNothing) {
  double m[16], before[16];
  for (int i = 0; i < 16; ++i) m[i] = before[i] = i;
  const line_3d dot{1, 2, 3, 1 + 1e-8, 2, 3}, shortest{0, 0, 0, 0, 0, 1.01e-7};
  EXPECT_EQ(kx_rotationmatrix3d(3, 90, &dot, m), 57);
  EXPECT_EQ(kx_rotationmatrix3d(3, 90, nullptr, m), 57);
  for (int i = 0; i < 16; ++i) EXPECT_EQ(m[i], before[i]);
  EXPECT_EQ(kx_rotationmatrix3d(3, 90, &shortest, m), 0);
  EXPECT_NEAR(m[0], -1, 1e-9);  // and not NaN
}

}  // namespace
