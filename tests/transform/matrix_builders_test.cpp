#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <random>
#include <utility>
#include <vector>

#include "kxgeom/transform.h"
#include "records/vector.hpp"

namespace {

using build = std::function<void(double *)>;

pnt_2d mapped(const double *m, const pnt_2d &p) {
  pnt_2d to;
  return kx_transformpnt2d(m, &p, &to), to;
}
pnt_3d mapped(const double *m, const pnt_3d &p) {
  pnt_3d to;
  return kx_transformpnt3d(m, &p, &to), to;
}
double off(const pnt_2d &a, const pnt_2d &b) { return std::hypot(a.x - b.x, a.y - b.y); }
double off(const pnt_3d &a, const pnt_3d &b) { return std::hypot(a.x - b.x, a.y - b.y, a.z - b.z); }

// Each builder alone takes p where it is wanted, and any two act in call order.
template <class Point>
void check(const Point &p, const std::vector<std::pair<build, Point>> &table) {
  constexpr int n = sizeof(Point) / sizeof(double) + 1;
  const auto identity = [](double *m) { n == 3 ? kx_getidmatrix2d(m) : kx_getidmatrix3d(m); };
  for (const auto &[first, want] : table) {
    for (const auto &[second, unused] : table) {
      double m[16], both[16], alone[16];
      identity(m), identity(both), identity(alone);
      first(m), first(both), second(both), second(alone);
      EXPECT_LE(off(mapped(m, p), want), 1e-8) << want.x << " " << want.y;
      for (int r = 0; r < n; ++r) EXPECT_EQ(m[n * r + n - 1], r == n - 1);
      EXPECT_LE(off(mapped(both, p), mapped(alone, mapped(m, p))), 1e-9) << want.x << " " << unused.x;
    }
  }
}

TEST(MatrixBuilders, OfThePlane) {
  const pnt_2d centre{1, 1}, origin{0, 0};
  const auto reflect = [](int mode) { return [=](double *m) { kx_reflectmatrix2d(mode, m); }; };
  check<pnt_2d>({2, 3}, {{[](double *m) { kx_translatematrix2d(5, -1, m); }, {7, 2}},
                         {[&](double *m) { kx_rotationmatrix2d(90, &centre, m); }, {-1, 2}},
                         {[&](double *m) { kx_scalematrix2d(2, 3, &centre, m); }, {3, 7}},
                         {[&](double *m) { kx_scalematrix2d(1e-7, -4, &centre, m); }, {2, 3}},
                         {[&](double *m) { kx_scalematrix2d(0, 2, &centre, m); }, {1, 5}},
                         {[&](double *m) { kx_scalematrix2d(-1, 1.1e-7, &origin, m); }, {-2, 3.3e-7}},
                         {[](double *m) { kx_shearmatrix2d(1, 10, m); }, {2, 23}},
                         {[](double *m) { kx_shearmatrix2d(0, 10, m); }, {32, 3}},
                         {reflect(2), {-2, -3}},
                         {reflect(3), {3, 2}},
                         {reflect(4), {-3, -2}}});
}

TEST(MatrixBuilders, OfSpace) {
  const pnt_3d fixed{1, 1, 2};
  const line_3d along{1, 1, 0, 2, 1, 0}, upwards{1, 1, 1, 1, 1, 9}, diagonal{0, 0, 0, 2, 2, 2};
  const auto turn = [](int axis, double deg, const line_3d *line) {
    return [=](double *m) { kx_rotationmatrix3d(axis, deg, line, m); };
  };
  const auto scale = [&](double x, double y, double z) {
    return [=, &fixed](double *m) { kx_scalematrix3d(x, y, z, &fixed, m); };
  };
  const auto shear = [](int mode) { return [=](double *m) { kx_shearmatrix3d(mode, 10, 100, m); }; };
  const auto reflect = [](int mode) { return [=](double *m) { kx_reflectmatrix3d(mode, m); }; };
  check<pnt_3d>({2, 3, 5}, {{[](double *m) { kx_translatematrix3d(5, -1, 7, m); }, {7, 2, 12}},
                            {turn(0, 90, nullptr), {2, -5, 3}},
                            {turn(1, 90, nullptr), {5, 3, -2}},
                            {turn(2, 90, nullptr), {-3, 2, 5}},
                            {turn(3, 90, &along), {2, -4, 2}},
                            {turn(3, 90, &upwards), {-1, 2, 5}},
                            {turn(3, 120, &diagonal), {5, 2, 3}},
                            {scale(1.1e-7, 1, 0), {1 + 1.1e-7, 3, 5}},
                            {shear(1), {32, 3, 305}},
                            {shear(2), {52, 503, 5}},
                            {shear(0), {2, 23, 205}},
                            {reflect(1), {2, -3, 5}},
                            {reflect(2), {2, 3, -5}},
                            {reflect(-1), {-2, 3, 5}}});
}

TEST(MatrixBuilders, AnyAxisAgreesWithRodrigues) {
  std::mt19937 random(5);
  std::uniform_real_distribution<double> value(-5, 5);
  for (int run = 0; run < 200; ++run) {
    const line_3d line{value(random), value(random), value(random), value(random), value(random), value(random)};
    const pnt_3d p{value(random), value(random), value(random)};
    const double angle = 100 * value(random);
    double m[16];
    kx_getidmatrix3d(m);
    ASSERT_EQ(kx_rotationmatrix3d(3, angle, &line, m), 0);
    pnt_3d got;
    kx_transformpnt3d(m, &p, &got);
    const kx::vec3 from{line.x1, line.y1, line.z1}, v = kx::vec3{p.x, p.y, p.z} - from;
    const kx::vec3 k = kx::unit(kx::vec3{line.x2, line.y2, line.z2} - from);
    const double s = std::sin(angle * 0.01745329252), c = std::cos(angle * 0.01745329252);
    const kx::vec3 want = from + c * v + s * kx::cross(k, v) + ((1 - c) * kx::dot(k, v)) * k;
    ASSERT_LE(kx::length(want - kx::vec3{got.x, got.y, got.z}), 1e-11);
  }
}

TEST(MatrixBuilders, AShortAxisTurnsNothing) {
  double m[16] = {1};
  const line_3d dot{1, 2, 3, 1 + 1e-8, 2, 3}, shortest{0, 0, 0, 0, 0, 1.01e-7};
  EXPECT_TRUE(kx_rotationmatrix3d(3, 90, &dot, m) == 57 && m[0] == 1);
  kx_getidmatrix3d(m);
  EXPECT_EQ(kx_rotationmatrix3d(3, 180, &shortest, m), 0);
  EXPECT_NEAR(m[0], -1, 1e-9);  // and not NaN
}

}  // namespace
