#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "kxgeom/geometry.h"
#include "kxgeom/runtime.h"

namespace {

constexpr double nan = std::numeric_limits<double>::quiet_NaN(), inf = std::numeric_limits<double>::infinity();
const double degree = std::acos(-1.0) / 180;

double pseudo(double dx, double dy, int mode = 0) {
  const pnt_2d from{0, 0}, to{dx, dy};
  return kx_arcangle(mode, &from, &to);
}

TEST(Directions, PseudoAngleAndAngleGrowTogether) {
  double last = -1, last_angle = -1;
  for (double deg = 0; deg < 360; deg += 0.25) {
    const double x = std::cos(deg * degree), y = std::sin(deg * degree);
    for (double size : {1e-3, 1.0, 1e200}) EXPECT_NEAR(pseudo(size * x, size * y), pseudo(x, y), 1e-12) << deg;
    const double now = pseudo(x, y), angle = pseudo(x, y, 1);
    EXPECT_GT(now, last);
    EXPECT_GT(angle, last_angle);
    EXPECT_NEAR(angle, deg, 1e-10);
    EXPECT_NEAR(now, kx_parmtanhangle(0, deg), 1e-10);
    EXPECT_NEAR(kx_angleparmtan(1, now), deg * degree, 1e-10);
    last = now, last_angle = angle;
  }
  EXPECT_NEAR(pseudo(1, 1), std::sqrt(2.0) - 1, 1e-15);
}

TEST(Directions, AreExactOnTheAxesAndZeroForNone) {
  const double table[][4] = {// step, pseudo-angle, degrees
                             {5, 0, 0, 0},       {0, 2, 1, 90},     {-1, 0, 2, 180},     {0, -7, 3, 270},
                             {1, 1e-7, 0, 0},    {-1e-7, 1, 1, 90}, {-1, -1e-7, 2, 180}, {1e-7, -1, 3, 270},
                             {1e-7, 1e-7, 0, 0}, {inf, 1, 0, 0},    {1, nan, 0, 0},      {1e300, -2e-7, 0, 0}};
  for (const auto &row : table) {
    EXPECT_EQ(pseudo(row[0], row[1]), row[2]) << &row - table;
    EXPECT_EQ(pseudo(row[0], row[1], 1), row[3]) << &row - table;
  }
  EXPECT_EQ(pseudo(0, 1, 2) + kx_arcangle(0, nullptr, nullptr), 0);
  const double angles[][3] = {{0, 4, 0},
                              {0, 7, 270},
                              {0, -1, 270},
                              {0, nan, 0},
                              {0, inf, 0},
                              {1, 1, 1.5707963268},
                              {1, 3, 3 * 1.5707963268},
                              {0, -1e-300, 0}};
  for (const auto &row : angles) EXPECT_EQ(kx_angleparmtan(static_cast<int>(row[0]), row[1]), row[2]) << &row - angles;
  EXPECT_TRUE(kx_angleparmtan(0, std::nextafter(2.0, 0.0)) <= 180 &&
              kx_angleparmtan(0, std::nextafter(4.0, 0.0)) <= 360);
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
  ASSERT_EQ(kx_pntangledist(&o, 270, 5, &p), 0);
  EXPECT_TRUE(p.x == 1 && p.y == -3);
  EXPECT_EQ(kx_pntangledist(&o, inf, 1, &p) + kx_pntangledist(&o, 1, nan, &p), 6);
  EXPECT_EQ(kx_pntangledist_3d(&s, 0, nan, 1, &e) + kx_pntangledist_3d(&s, 0, 0, 1, nullptr), 4);
  EXPECT_TRUE(p.x == 1 && kx_pntangledist(nullptr, 0, 1, &p) == 1);
}

TEST(Directions, VectorsOfThePlane) {
  const pnt_2d from{1, 1}, to{-2, 5}, close{1, 1 + 9e-8};
  vector_2d v{}, u{}, n{};
  line_2d s{};
  pnt_2d p{};
  ASSERT_EQ(kx_line_to_vector_2d(from, to, &v), 0);
  EXPECT_TRUE(v.i == -3 && v.j == 4 && v.length == 5 && v.direction == kx_arcangle(1, &from, &to));
  ASSERT_EQ(kx_vector_to_line_2d(&from, &v, &s), 0);
  EXPECT_TRUE(s.x1 == 1 && s.y1 == 1 && s.x2 == -2 && s.y2 == 5);
  ASSERT_EQ(kx_point_on_vector(&from, &v, 0.5, &p), 0);
  EXPECT_TRUE(p.x == -0.5 && p.y == 3);
  ASSERT_EQ(kx_normalvector2d(&v, &n), 0);
  EXPECT_TRUE(n.i == -4 && n.j == -3 && n.length == 5);
  EXPECT_NEAR(n.direction - v.direction, 90, 1e-12);
  u = v;
  ASSERT_EQ(kx_unitvector2d(&u, &u), 0);
  EXPECT_NEAR(+u.i, -0.6, 1e-15);
  EXPECT_NEAR(+u.j, 0.8, 1e-15);
  EXPECT_EQ(+u.length, 1);
  EXPECT_NEAR(+u.direction, +v.direction, 1e-12);
  const vector_2d still{0, 0, 6e-8, 8e-8}, moving{0, 0, 6.1e-8, 8e-8};
  EXPECT_EQ(kx_unitvector2d(&still, &u), 4);
  EXPECT_EQ(kx_line_to_vector_2d(from, close, &v), 2);
  EXPECT_TRUE(u.length == 1 && v.length == 5);
  EXPECT_EQ(kx_unitvector2d(&moving, &u), 0);
  EXPECT_NEAR(std::hypot(+u.i, +u.j), 1, 1e-15);
  for (double i = 1; i < 30; ++i) {
    const vector_2d any{0, 0, i, 7};
    EXPECT_TRUE(kx_unitvector2d(&any, &u) == 0 && u.length == 1);
  }
  EXPECT_EQ(kx_unitvector2d(nullptr, &u) + kx_normalvector2d(&v, nullptr) + kx_line_to_vector_2d(from, to, nullptr) +
                kx_vector_to_line_2d(&from, nullptr, &s) + kx_point_on_vector(nullptr, &v, 1, &p),
            5);
}

}  // namespace
