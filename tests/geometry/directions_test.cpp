#include <gtest/gtest.h>

#include <cmath>

#include "kxgeom/geometry.h"
#include "kxgeom/runtime.h"

namespace {

const double degree = std::acos(-1.0) / 180;

double pseudo(double dx, double dy, int mode = 0) {
  const pnt_2d from{0, 0}, to{dx, dy};
  return kx_arcangle(mode, &from, &to);
}

TEST(Directions, PseudoAngleAndAngleGrowTogether) {
  double last = -1, last_angle = -1;
  for (double deg = 0; deg < 360; deg += 0.25) {
    const double x = std::cos(deg * degree), y = std::sin(deg * degree), now = pseudo(x, y), angle = pseudo(x, y, 1);
    for (double size : {1e-3, 1e200}) EXPECT_NEAR(pseudo(size * x, size * y), now, 1e-12) << deg;
    EXPECT_TRUE(now > last && angle > last_angle);
    EXPECT_NEAR(angle, deg, 1e-10);
    EXPECT_NEAR(now, kx_parmtanhangle(0, deg), 1e-10);
    EXPECT_NEAR(kx_angleparmtan(1, now), deg * degree, 1e-10);
    last = now, last_angle = angle;
  }
}

TEST(Directions, AreExactOnTheAxesAndZeroForNone) {
  const double table[][4] = {// step, pseudo-angle, degrees
                             {1, 1e-7, 0, 0},    {-1e-7, 1, 1, 90},   {-1, -1e-7, 2, 180}, {1e-7, -1, 3, 270},
                             {1e-7, 1e-7, 0, 0}, {INFINITY, 1, 0, 0}, {1e300, -2e-7, 0, 0}};
  for (const auto &row : table)
    EXPECT_TRUE(pseudo(row[0], row[1]) == row[2] && pseudo(row[0], row[1], 1) == row[3]) << &row - table;
  EXPECT_TRUE(kx_angleparmtan(0, 7) == 270 && kx_angleparmtan(0, -1) == 270 && kx_angleparmtan(0, 4) == 0);
}

TEST(Directions, LeadToPoints) {
  const pnt_2d o{1, 2};
  pnt_2d p{};
  pnt_3d s{1, 2, 3}, e{};
  for (double deg = -400; deg < 400; deg += 12.5) {
    ASSERT_EQ(kx_pntangledist(&o, deg, 5, &p), 0);
    EXPECT_NEAR(kx_distance(&o, &p), 5, 1e-14);
    EXPECT_NEAR(std::remainder(kx_arcangle(1, &o, &p) - deg, 360), 0, 1e-9);
    ASSERT_EQ(kx_pntangledist_3d(&s, deg, 90, 5, &e), 0);
    EXPECT_TRUE(e.x == p.x && e.y == p.y && e.z == 3);
    ASSERT_EQ(kx_pntangledist_3d(&s, deg, 60, -5, &e), 0);
    EXPECT_NEAR(e.z, 0.5, 1e-10);
    EXPECT_NEAR(kx_distance_3d(&s, &e), 5, 1e-14);
    EXPECT_NEAR((e.x - 1) * (p.y - 2), (e.y - 2) * (p.x - 1), 1e-12);
  }
  EXPECT_TRUE(kx_pntangledist(&o, 270, 5, &p) == 0 && p.x == 1 && p.y == -3);
}

TEST(Directions, VectorsOfThePlane) {
  const pnt_2d from{1, 1}, to{-2, 5}, close{1, 1 + 9e-8};
  vector_2d v{}, u{}, n{};
  line_2d s{};
  pnt_2d p{};
  ASSERT_EQ(kx_line_to_vector_2d(from, to, &v), 0);
  EXPECT_TRUE(v.i == -3 && v.j == 4 && v.length == 5 && v.direction == kx_arcangle(1, &from, &to));
  ASSERT_EQ(kx_vector_to_line_2d(&from, &v, &s) + kx_point_on_vector(&from, &v, 0.5, &p), 0);
  EXPECT_TRUE(s.x1 == 1 && s.y1 == 1 && s.x2 == -2 && s.y2 == 5 && p.x == -0.5 && p.y == 3);
  ASSERT_EQ(kx_normalvector2d(&v, &n), 0);
  EXPECT_TRUE(n.i == -4 && n.j == -3 && n.length == 5);
  EXPECT_NEAR(n.direction - v.direction, 90, 1e-12);
  ASSERT_EQ(kx_unitvector2d(&v, &u), 0);
  EXPECT_TRUE(u.length == 1 && std::hypot(u.i + 0.6, u.j - 0.8) < 1e-15 &&
              std::fabs(u.direction - v.direction) < 1e-12);
  const vector_2d still{0, 0, 6e-8, 8e-8}, moving{0, 0, 6.1e-8, 8e-8};
  EXPECT_TRUE(kx_unitvector2d(&still, &u) == 4 && kx_unitvector2d(&moving, &u) == 0);
  EXPECT_EQ(kx_line_to_vector_2d(from, close, &v), 2);
}

}  // namespace
