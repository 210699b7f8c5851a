#include <gtest/gtest.h>

#include <cmath>

#include "kxgeom/runtime.h"

TEST(quadrants, angles_directions_and_points_agree) {
  const pnt_2d from{10.0, -4.0};
  for (int step = 0; step < 24; ++step)
    for (double off : {-0.5, -1e-9, 0.0, 1e-9, 0.5}) {
      const double degrees = step * 15 + off, radians = degrees * 0.01745329252;
      const int octant = static_cast<int>(std::floor((degrees + 1e-6) / 45) + 8) % 8 + 1, quadrant = (octant + 1) / 2;
      const pnt_2d d{3 * std::cos(radians), 3 * std::sin(radians)}, p{from.x + d.x, from.y + d.y};
      for (int turns : {0, 1, -3, 40000}) {
        const double deg = degrees + 360.0 * turns, rad = radians + 6.2831853072 * turns;
        EXPECT_TRUE(kx_quadrant_deg(deg) == quadrant && kx_octant_deg(deg) == octant) << deg;
        EXPECT_TRUE(kx_quadrant_rad(rad) == quadrant && kx_octant_rad(rad) == octant) << deg;
      }
      EXPECT_TRUE(kx_quadrant(d.x, d.y) == quadrant && kx_octant(d.x, d.y) == octant) << degrees;
      EXPECT_TRUE(kx_quadrant_pnt(&from, &p) == quadrant && kx_octant_pnt(&from, &p) == octant) << degrees;
      EXPECT_EQ(kx_octant_pnt(nullptr, &d), octant) << degrees;
    }
}

TEST(quadrants, no_direction) {
  EXPECT_EQ(kx_quadrant(1e-7, -1e-7) + kx_octant(0.0, 0.0) + kx_quadrant(INFINITY, 1.0) + kx_octant(NAN, 1.0), 0);
  EXPECT_EQ(kx_octant(1.00000005e-7, 9e-8), 1);  // an axis before a diagonal
}

TEST(quadrants, pseudo_angle) {
  for (int degrees = 0; degrees < 360; degrees += 7) {
    const double value = kx_parmtanhangle(0, degrees), rest = degrees % 90 * 0.01745329252;
    EXPECT_NEAR(value, degrees / 90 + std::sin(rest) / (1 + std::cos(rest)), 1e-12);
    EXPECT_NEAR(kx_parmtanhangle(1, (degrees - 720) * 0.01745329252), value, 1e-6);
  }
  for (int axis = 0; axis < 4; ++axis)
    for (double off : {-0.9e-7, 0.0, 0.9e-7}) EXPECT_EQ(kx_parmtanhangle(0, axis * 90 + off), axis);
}
