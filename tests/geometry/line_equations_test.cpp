#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "kxgeom/geometry.h"

namespace {

TEST(LineEquations, GoThroughTheirPoints) {
  std::mt19937 random(1);
  std::uniform_real_distribution<double> coordinate(-50, 50);
  for (int run = 0; run < 100; ++run) {
    const pnt_2d p{coordinate(random), coordinate(random)}, q{coordinate(random), coordinate(random)};
    ile_2d i{}, back{};
    ple_2d f{};
    ASSERT_EQ(kx_lineequation(run ? run + 1 : 0, &p, &q, &i, nullptr), 0);
    ASSERT_EQ(kx_lineequation(1, &p, &q, nullptr, &f), 0);
    EXPECT_NEAR(i.a * p.x + i.b * p.y + i.c, 0, 1e-11);
    EXPECT_TRUE(i.a == p.y - q.y && i.b == q.x - p.x);
    EXPECT_TRUE(f.x0 == p.x && f.y0 == p.y && f.dx == q.x - p.x && f.dy == q.y - p.y);
    // To the implicit form the same line; back the foot of the perpendicular from the origin, and a unit direction.
    ASSERT_EQ(kx_convlineeq(1, &back, &f), 0);
    EXPECT_NEAR(+back.c, +i.c, 1e-11);
    ASSERT_EQ(kx_convlineeq(0, &i, &f), 0);
    EXPECT_NEAR(i.a * f.x0 + i.b * f.y0 + i.c, 0, 1e-10);
    EXPECT_NEAR(f.x0 * f.dx + f.y0 * f.dy, 0, 1e-12);
    EXPECT_NEAR(f.dx * f.dx + f.dy * f.dy, 1, 1e-14);
    EXPECT_GT(f.dx * i.b, f.dy * i.a);
    ASSERT_EQ(kx_normal_ile(&i), 0);
    EXPECT_NEAR(i.a * i.a + i.b * i.b, 1, 1e-14);
    EXPECT_NEAR(-i.c, std::hypot(+f.x0, +f.y0), 1e-12);
    EXPECT_NEAR(kx_abscissa(0, &i, nullptr, q.y) + kx_abscissa(1, nullptr, &f, 2), q.x + f.x0 + 2 * f.dx, 1e-9);
    EXPECT_NEAR(kx_ordinate(0, &i, nullptr, q.x) + kx_ordinate(1, nullptr, &f, 2), q.y + f.y0 + 2 * f.dy, 1e-9);
  }
}

TEST(LineEquations, CoincidingPointsShortcutAndModes) {
  const pnt_2d o{0, 0}, close{1e-7, -1e-7}, off{1e-6, 0};
  ile_2d i{7, 7, 7}, shortcut{2, 1, -4}, none{1e-7, -1e-7, 1}, level{0, 2, -4};
  ple_2d f{7, 7, 7, 7};
  EXPECT_TRUE(kx_lineeq_ile(&o, &close, &i) == 2 && kx_lineeq_ple(&o, &close, &f) == 2 && i.a == 7 && f.x0 == 7);
  EXPECT_TRUE(kx_lineequation(7, &o, &off, &i, &f) == 0 && i.b == 1e-6 && f.x0 == 7);
  ASSERT_EQ(kx_convlineeq(0, &shortcut, &f), 0);
  EXPECT_TRUE(f.x0 == 8 && f.y0 == 4 && f.dx == 1 && f.dy == -2);
  EXPECT_TRUE(kx_convlineeq(0, &none, &f) == 3 && kx_convlineeq(2, &shortcut, &f) == 1);
  EXPECT_EQ(kx_normalizeline(2, &shortcut, &f), 1);
  EXPECT_EQ(kx_normalizeline(1, nullptr, &f), 0);
  EXPECT_TRUE(f.x0 == 8 && std::fabs(f.dy + 2 / std::sqrt(5.0)) < 1e-15);
  f.dx = f.dy = 2e-4;
  EXPECT_EQ(kx_normal_ple(&f), 4);
  EXPECT_TRUE(kx_convlineeq(0, &level, &f) == 0 && f.x0 == 0 && f.y0 == 2 && f.dx == 1 && f.dy == 0);
}

TEST(LineEquations, NormalPointsFromTheOriginToTheLine) {
  const double table[][7] = {
      // line, result, normalised line
      {0, 2, 0, 0, 0, 1, 0},           {0, -2, 0, 0, 0, 1, 0},          {3, 4, 10, 0, -.6, -.8, -2},
      {3, 4, -10, 0, .6, .8, -2},      {0, -1, 1e-7, 0, 0, 1, -1e-7},   {0, -1, 2e-7, 0, 0, 1, -2e-7},
      {0, -1, -2e-7, 0, 0, -1, -2e-7}, {-2, -1e-7, 0, 0, -1, -5e-8, 0}, {3e-4, 0, 1, 3, 3e-4, 0, 1}};
  for (const auto &row : table) {
    ile_2d line{row[0], row[1], row[2]};
    EXPECT_EQ(kx_normalizeline(0, &line, nullptr), row[3]);
    EXPECT_NEAR(std::hypot(line.a - row[4], line.b - row[5], line.c - row[6]), 0, 4e-15) << &row - table;
  }
}

}  // namespace
