#include <gtest/gtest.h>

#include <cmath>

#include "kxgeom/geometry.h"

namespace {

const double degree = std::acos(-1.0) / 180;

line_2d at_angle(double deg, double length) {
  return {3, -2, 3 + length * std::cos(deg * degree), -2 + length * std::sin(deg * degree)};
}

TEST(LineAngles, BetweenLinesInEveryMode) {
  for (double deg = -360; deg <= 360; deg += 7.5) {
    const double acute = std::fabs(deg - 180 * std::round(deg / 180)), k = std::cos(acute * degree);
    const bool right = acute == 90;  // has exactly the constants
    const ile_2d g{0, -3, 1}, h{5 * std::sin(deg * degree), -5 * std::cos(deg * degree), 2};
    EXPECT_NEAR(kx_angletwolines(0, &g, &h), acute, right ? 0 : 2e-6);
    EXPECT_NEAR(kx_angletwolines(1, &g, &h), right ? 1.5707963268 : acute * degree, right ? 0 : 3e-8);
    EXPECT_NEAR(kx_angletwolines(2, &g, &h), right ? 0 : k, right ? 0 : 1e-15);
    EXPECT_NEAR(kx_angletwolines(3, &g, &h), right ? 1.5707963268 : std::acos(k * 0.01745329252), right ? 0 : 1e-15);
  }
  const ile_2d x{0, 1, 0}, almost{1, 9e-8, -1}, beyond{1, 1.1e-7, -1};
  EXPECT_EQ(kx_angletwolines(0, &x, &almost), 90);
  EXPECT_NEAR(kx_angletwolines(2, &x, &beyond), 1.1e-7, 1e-20);
  for (double a = -3; a < 3; a += 0.1) {
    const ile_2d line{a, 0.7, 2};  // a cosine that rounds above 1 is 1
    EXPECT_NEAR(kx_angletwolines(0, &line, &line), 0, 2e-6);
  }
}

TEST(LineAngles, DifferencesTurnOnePastTheTolerance) {
  EXPECT_NEAR(kx_angle_diff(350, 10), 20, 1e-12);
  EXPECT_NEAR(kx_angle_diff(90, 90 - 9e-6), -9e-6, 1e-12);
}

TEST(LineAngles, BetweenDirectedSegments) {
  const line_2d spot{1, 1, 1, 1};
  for (double from : {0.0, 200.0})
    for (double turn = -180; turn <= 180; turn += 5) {
      const line_2d s = at_angle(from, 0.01), t = at_angle(from + turn, 300);
      const double want = std::fabs(turn);
      EXPECT_NEAR(kx_angle_lines_deg(&s, &t), want, want == 90 ? 0 : 1e-9);
      EXPECT_NEAR(kx_angle_lines_rad(&s, &t), want == 90 ? 1.5707963268 : want * degree, want == 90 ? 0 : 1e-10);
      EXPECT_NEAR(kx_angle_lines_cos(&s, &t), std::cos(want * degree), 1e-12);
      EXPECT_LE(std::fabs(kx_angle_lines_cos(&s, &t)), 1);
      EXPECT_EQ(kx_angle_lines_cos(&s, &spot) + kx_angle_lines_deg(&spot, &t) + kx_angle_lines_rad(&s, &spot), 0);
    }
}

}  // namespace
