#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "kxgeom/geometry.h"

namespace {

constexpr double nan = std::numeric_limits<double>::quiet_NaN();

TEST(PointsOnLines, AreMadeByRatioAndDistance) {
  const line_2d s{1, 1, 4, 5};
  pnt_2d p{}, q{4, 5};
  EXPECT_TRUE(kx_pointdvln(&s, 3, -1, &p) == 0 && p.x == 5.5 && p.y == 7);
  EXPECT_EQ(kx_point_on_line(&s, -10, &p) + kx_midpoint(&p, &q, &q), 0);
  EXPECT_NEAR(std::hypot(p.x + 5, p.y + 7) + std::hypot(q.x + 0.5, q.y + 1), 0, 1e-14);
}

TEST(PointsOnLines, AreRecognisedWithinTheTolerance) {
  const double table[][5] = {// across and along the segment; on it, side of it
                             {0.9e-7, 0.5, 1, 0}, {1.1e-7, 0.5, 0, 1},   {-1.1e-7, 0.5, 0, -1}, {0, -9e-8, 1, 0},
                             {0, -1.1e-7, 0, 0},  {0, 1 + 1.9e-7, 1, 0}, {0, 1 + 2.1e-7, 0, 0}, {5, 0.5, 0, 1},
                             {nan, 0.5, 0, 0},    {0, nan, 0, 0}};
  for (const auto &row : table) {
    const pnt_2d up{-row[0], row[1]}, p{row[1], row[0]};
    const line_2d level{0, 0, 1, 0}, round{1, 0, 0, 0}, upright{0, 0, 0, 1};
    const int row_number = static_cast<int>(&row - table);
    EXPECT_TRUE(kx_pointonline(&p, &level) == row[2] && kx_lineloc(&level, &p) == row[3]) << row_number;
    EXPECT_TRUE(kx_pointonline(&p, &round) == row[2] && kx_lineloc(&round, &p) == -row[3]) << row_number;
    EXPECT_TRUE(kx_pointonline(&up, &upright) == row[2] && kx_lineloc(&upright, &up) == row[3]) << row_number;
  }
  // A slanted segment far away: the distance counts, not the product, and the origin costs no digits.
  const line_2d far{1e6, 1e6, 1e6 + 3000, 1e6 + 4000}, spot{1, 1, 1, 1}, brief{1, 1, 1, 1 + 9e-8};
  const pnt_2d on{1e6 + 1500, 1e6 + 2000}, off{1e6 + 1500 - 8e-7, 1e6 + 2000 + 6e-7}, at{1, 1 + 9e-8}, by{1, 1 + 2e-7};
  EXPECT_TRUE(kx_pointonline(&on, &far) && !kx_pointonline(&off, &far) && kx_lineloc(&far, &off) == 1);
  EXPECT_TRUE(kx_pointonline(&at, &spot) && !kx_pointonline(&by, &spot) && kx_lineloc(&brief, &on) == 0);
}

TEST(PointsOnLines, OrientedSegmentsRunByXThenY) {
  const double table[][5] = {
      {3, 1, 2, 9, 1}, {2, 9, 3, 1, 0}, {2, 5, 2 - 1e-7, 6, 0}, {2, 6, 2, 5, 1}, {2, 2, 2, 2, 0}};
  for (const auto &row : table) {
    line_2d s{row[0], row[1], row[2], row[3]};
    EXPECT_EQ(kx_orient_line(&s), row[4]) << &row - table;
    EXPECT_TRUE(s.x1 == row[row[4] ? 2 : 0] && s.y2 == row[row[4] ? 1 : 3]) << &row - table;
    EXPECT_EQ(kx_orient_line(&s), 0);
  }
}

}  // namespace
