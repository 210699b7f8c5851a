#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <random>
#include <vector>

#include "kxgeom/transform.h"
#include "records/vector.hpp"

namespace {

TEST(MatrixBuilders, MapAPointAndActInCallOrder) {
  const pnt_2d centre{1, 1}, origin{0, 0}, p{2, 3};
  struct builder {
    std::function<void(double *)> build;
    pnt_2d want;  // where (2, 3) goes
  };
  std::vector<builder> table = {{[](double *m) { kx_translatematrix2d(5, -1, m); }, {7, 2}},
                                {[&](double *m) { kx_rotationmatrix2d(90, &centre, m); }, {-1, 2}},
                                {[&](double *m) { kx_rotationmatrix2d(-90, &origin, m); }, {3, -2}},
                                {[&](double *m) { kx_scalematrix2d(2, 3, &centre, m); }, {3, 7}},
                                {[&](double *m) { kx_scalematrix2d(1e-7, -4, &centre, m); }, {2, 3}},
                                {[&](double *m) { kx_scalematrix2d(0, 2, &centre, m); }, {1, 5}},
                                {[&](double *m) { kx_scalematrix2d(-1, 1.1e-7, &origin, m); }, {-2, 3.3e-7}},
                                {[](double *m) { kx_shearmatrix2d(1, 10, m); }, {2, 23}},
                                {[](double *m) { kx_shearmatrix2d(0, 10, m); }, {32, 3}}};
  const pnt_2d reflected[] = {{2, -3}, {2, -3}, {-2, 3}, {-2, -3}, {3, 2}, {-3, -2}};  // by modes from -1
  for (int mode = -1; mode < 5; ++mode)
    table.push_back({[mode](double *m) { kx_reflectmatrix2d(mode, m); }, reflected[mode + 1]});
  const auto map = [](const double *m, const pnt_2d &from) {
    pnt_2d to;
    kx_transformpnt2d(m, &from, &to);
    return to;
  };
  const auto expect_same = [&](const pnt_2d &a, const pnt_2d &b, const builder &first, const builder &second) {
    EXPECT_LE(std::hypot(a.x - b.x, a.y - b.y), 1e-9) << &first - &table[0] << ", " << &second - &table[0];
  };
  for (const builder &first : table) {
    double m[9], both[9], alone[9];
    kx_getidmatrix2d(m);
    first.build(m);
    expect_same(map(m, p), first.want, first, first);
    EXPECT_TRUE(m[2] == 0 && m[5] == 0 && m[8] == 1);
    for (const builder &second : table) {
      kx_movematrix2d(m, both);
      second.build(both);
      kx_getidmatrix2d(alone);
      second.build(alone);
      expect_same(map(both, p), map(alone, map(m, p)), first, second);
    }
    first.build(nullptr);  // does nothing
  }
}

TEST(MatrixBuilders, OfSpaceMapAPointAndActInCallOrder) {
  const pnt_3d fixed{1, 1, 2}, p{2, 3, 5};
  const line_3d along{1, 1, 0, 2, 1, 0}, against{1, 1, 0, 0, 1, 0}, upwards{1, 1, 1, 1, 1, 9},
      diagonal{0, 0, 0, 2, 2, 2};
  struct builder {
    std::function<void(double *)> build;
    pnt_3d want;  // where (2, 3, 5) goes
  };
  const auto turn = [](int axis, double angle, const line_3d *line) {
    return [=](double *m) { kx_rotationmatrix3d(axis, angle, line, m); };
  };
  const auto scale = [&](double x, double y, double z) {
    return [=, &fixed](double *m) { kx_scalematrix3d(x, y, z, &fixed, m); };
  };
  const auto shear = [](int mode) { return [=](double *m) { kx_shearmatrix3d(mode, 10, 100, m); }; };
  const auto reflect = [](int mode) { return [=](double *m) { kx_reflectmatrix3d(mode, m); }; };
  const std::vector<builder> table = {{[](double *m) { kx_translatematrix3d(5, -1, 7, m); }, {7, 2, 12}},
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
                                      {reflect(-1), {-2, 3, 5}}};
  const auto map = [](const double *m, const pnt_3d &from) {
    pnt_3d to;
    kx_transformpnt3d(m, &from, &to);
    return to;
  };
  const auto expect_same = [&](const pnt_3d &a, const pnt_3d &b, const builder &first, const builder &second) {
    EXPECT_LE(std::hypot(a.x - b.x, a.y - b.y, a.z - b.z), 1e-7) << &first - &table[0] << ", " << &second - &table[0];
  };
  for (const builder &first : table) {
    double m[16], both[16], alone[16];
    kx_getidmatrix3d(m);
    first.build(m);
    expect_same(map(m, p), first.want, first, first);
    EXPECT_TRUE(m[3] == 0 && m[7] == 0 && m[11] == 0 && m[15] == 1);
    for (const builder &second : table) {
      kx_movematrix3d(m, both);
      second.build(both);
      kx_getidmatrix3d(alone);
      second.build(alone);
      expect_same(map(both, p), map(alone, map(m, p)), first, second);
    }
    first.build(nullptr);  // does nothing
  }
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

TEST(MatrixBuilders, SpaceIdentity) {
  double m[16], copy[16];
  kx_getidmatrix3d(m);
  kx_movematrix3d(m, copy);
  for (int i = 0; i < 16; ++i) EXPECT_EQ(copy[i], i % 5 == 0 ? 1 : 0);
}

}  // namespace
