#include <gtest/gtest.h>

#include <cmath>

#include "kxgeom/geometry.h"

namespace {

const double degree = std::acos(-1.0) / 180;

line_2d at_angle(double deg, double length) {
  return {3, -2, 3 + length * std::cos(deg * degree), -2 + length * std::sin(deg * degree)};
}

TEST(LineAngles, BetweenLinesInEveryMode) {
  for (double deg = -720; deg <= 720; deg += 7.5) {
    const double acute = std::fabs(deg - 180 * std::round(deg / 180)), k = std::cos(acute * degree);
    const ile_2d g{0, -3, 1}, h{5 * std::sin(deg * degree), -5 * std::cos(deg * degree), 2};
    if (acute == 90) {
      EXPECT_EQ(kx_angletwolines(0, &g, &h), 90);
      EXPECT_EQ(kx_angletwolines(1, &g, &h), 1.5707963268);
      EXPECT_EQ(kx_angletwolines(2, &g, &h), 0);
      EXPECT_EQ(kx_angletwolines(3, &g, &h), 1.5707963268);
      continue;
    }
    EXPECT_NEAR(kx_angletwolines(0, &g, &h), acute, 2e-6);
    EXPECT_NEAR(kx_angletwolines(1, &g, &h), acute * degree, 3e-8);
    EXPECT_NEAR(kx_angletwolines(2, &g, &h), k, 1e-15);
    EXPECT_NEAR(kx_angletwolines(-1, &g, &h), std::acos(k * 0.01745329252), 1e-15);
  }
}

TEST(LineAngles, BetweenLinesAtTheEdges) {
  const ile_2d x{0, 1, 0}, almost{1, 9e-8, -1}, beyond{1, 1.1e-7, -1}, obtuse{1, -9e-8, -1}, none{1e-4, 1e-4, 5};
  EXPECT_EQ(kx_angletwolines(0, &x, &almost), 90);
  EXPECT_EQ(kx_angletwolines(2, &x, &obtuse), 0);
  EXPECT_LT(kx_angletwolines(0, &x, &beyond), 90);
  EXPECT_NEAR(kx_angletwolines(2, &x, &beyond), 1.1e-7, 1e-20);
  EXPECT_EQ(kx_angletwolines(0, &none, &x) + kx_angletwolines(1, &x, &none) + kx_angletwolines(0, &x, nullptr), 0);
  EXPECT_TRUE(none.a == 1e-4 && almost.c == -1);
  for (double a = -3; a < 3; a += 0.1) {
    const ile_2d line{a, 0.7, 2};  // a cosine that rounds above 1 is 1
    EXPECT_NEAR(kx_angletwolines(0, &line, &line), 0, 2e-6);
  }
}

TEST(LineAngles, Differences) {
  const double table[][3] = {
      {350, 10, 20}, {10, 350, 340}, {90, 90, 0}, {90, 90 - 9e-6, -9e-6}, {90, 90 - 1e-5, 360 - 1e-5}};
  for (const auto &row : table) EXPECT_NEAR(kx_angle_diff(row[0], row[1]), row[2], 1e-12) << &row - table;
}

TEST(LineAngles, BetweenDirectedSegments) {
  const line_2d spot{1, 1, 1, 1};
  for (double from : {0.0, 33.0, 200.0})
    for (double turn = -180; turn <= 180; turn += 5) {
      const line_2d s = at_angle(from, 0.01), t = at_angle(from + turn, 300);
      const double want = std::fabs(turn);
      EXPECT_NEAR(kx_angle_lines_deg(&s, &t), want, 1e-9);
      EXPECT_NEAR(kx_angle_lines_deg(&t, &s), want, 1e-9);
      EXPECT_NEAR(kx_angle_lines_rad(&s, &t), want * degree, 1e-10);
      EXPECT_NEAR(kx_angle_lines_cos(&s, &t), std::cos(want * degree), 1e-12);
      EXPECT_LE(std::fabs(kx_angle_lines_cos(&s, &t)), 1);
      if (want == 90) EXPECT_TRUE(kx_angle_lines_deg(&s, &t) == 90 && kx_angle_lines_rad(&s, &t) == 1.5707963268);
      EXPECT_EQ(kx_angle_lines_cos(&s, &spot) + kx_angle_lines_deg(&spot, &t) + kx_angle_lines_rad(&s, nullptr), 0);
    }
}

}  // namespace
