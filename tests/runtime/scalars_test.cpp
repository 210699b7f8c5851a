#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <numeric>

#include "kxgeom/runtime.h"

TEST(scalars, integers) {
  for (int a : {0, 1, 12, 1 << 30, INT32_MAX})
    for (int b : {0, 1, 18, 1 << 29, INT32_MAX}) {
      EXPECT_EQ(kx_gcd(a, b), std::gcd(a, b)) << a << ' ' << b;
      EXPECT_TRUE(kx_imax(a, b, 7) == std::max({a, b, 7}) && kx_imin(5, a, b) == std::min({5, a, b}));
    }
  EXPECT_EQ(kx_gcd(-4, 6) + kx_gcd(6, -4) + kx_gcd(0, INT32_MIN), 3);
}

TEST(scalars, conversions_use_the_constants_as_written) {
  EXPECT_TRUE(kx_degrees(1.0) == 57.2957795131 && kx_radian(1.0) == 0.01745329252);
  EXPECT_EQ(kx_sumsqrdparms(3.0, -4.0), 25.0);
  double a = 1.0, b = 2.0;
  kx_exchange(&a, &b);
  EXPECT_TRUE(a == 2.0 && b == 1.0);
}

TEST(scalars, quadratic) {
  double r1 = 9.0, r2 = 9.0;
  for (const auto &[a, b, c] : {std::array{0.0, 1.0, 1.0}, {1e-7, 1.0, 1.0}, {1.0, 0.0, 1.0}, {1.0, 0.0, 2.6e-8}})
    EXPECT_EQ(kx_quadratic_eq(a, b, c, &r1, &r2), 1);
  EXPECT_TRUE(r1 == 9.0 && r2 == 9.0);
  EXPECT_TRUE(kx_quadratic_eq(1.0, -3.0, 2.0, &r1, &r2) == 0 && r1 == 2.0 && r2 == 1.0);
  EXPECT_TRUE(kx_quadratic_eq(-2.0, 0.0, 8.0, &r1, &r2) == 0 && r1 == -2.0 && r2 == 2.0);
  EXPECT_TRUE(kx_quadratic_eq(1.0, 0.0, 2.4e-8, &r1, &r2) == 0 && std::isnan(r1) && std::isnan(r2));
}
