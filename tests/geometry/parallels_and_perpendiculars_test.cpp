#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "kxgeom/geometry.h"

namespace {

double distance(ile_2d line, pnt_2d p) {
  EXPECT_EQ(kx_normal_ile(&line), 0);
  return std::fabs(kx_distpntln_ile(&p, &line));
}

TEST(Parallels, AndPerpendicularsThroughPointsAndInBetween) {
  std::mt19937 random(3);
  std::uniform_real_distribution<double> number(-20, 20);
  for (int run = 0; run < 200; ++run) {
    const ile_2d g{number(random), number(random), number(random)}, h{number(random), number(random), number(random)};
    const pnt_2d p{number(random), number(random)}, q{number(random), number(random)};
    const double d = number(random), y = number(random), on = kx_ordinate_ile(&g, y);
    ile_2d first{}, second{};
    kx_parallellines(&g, d, &first, &second);
    EXPECT_NEAR(distance(first, {y, on}), std::fabs(d), 1e-9);
    EXPECT_NEAR(distance(second, {y, on}), std::fabs(d), 1e-9);
    EXPECT_TRUE(first.a == g.a && second.b == g.b && first.c > g.c && second.c < g.c);
    kx_linepntperpend(&g, &p, &first);
    kx_linepntparallel(&second, &p, &g);
    EXPECT_NEAR(distance(first, p) + distance(second, p), 0, 1e-9);
    EXPECT_TRUE(kx_angletwolines(0, &first, &g) == 90 && second.a == g.a && second.b == g.b);
    ASSERT_EQ(kx_linebisector(&p, &q, &first), 0);
    const pnt_2d there{kx_abscissa_ile(&first, y), y};
    EXPECT_NEAR(kx_distance(&there, &p), kx_distance(&there, &q), 1e-8);
    EXPECT_GT(kx_distpntln_ile(&p, &first), 0);
    // Equally far from both lines; the first halves the acute angle.
    ASSERT_EQ(kx_bisector_two_lines(&g, &h, &first, &second), 2);
    for (const ile_2d &b : {first, second}) {
      const pnt_2d mid{kx_abscissa_ile(&b, y), y};
      EXPECT_NEAR(distance(g, mid), distance(h, mid), 1e-7);
    }
    EXPECT_NEAR(2 * kx_angletwolines(0, &first, &g), kx_angletwolines(0, &g, &h), 1e-5);
    EXPECT_EQ(kx_angletwolines(0, &first, &second), 90);
  }
}

TEST(Parallels, BisectorsOfParallelLinesAndOfNone) {
  const ile_2d low{0, 2, -2}, high{0, -1, 5}, below{0, 1, 7}, none{0, 1e-4, 1};
  ile_2d first{9, 9, 9}, second{9, 9, 9};
  EXPECT_EQ(kx_bisector_two_lines(&low, &high, &first, &second), 1);
  EXPECT_TRUE(first.a == 0 && first.b == 1 && first.c == -3 && second.a == 9);
  EXPECT_TRUE(kx_bisector_two_lines(&low, &below, &first, &second) == 1 && first.b == -1 && first.c == -3);
  EXPECT_EQ(kx_bisector_two_lines(&low, &none, &first, &second), 0);
  const pnt_2d p{1, 1}, q{1 + 1e-8, 1 - 1e-8};
  EXPECT_EQ(kx_linebisector(&p, &q, &second), 2);
}

TEST(Parallels, PerpendicularSegments) {
  const double table[][5] = {{1, 2, -2, 1, 1},         {3, 1e-7, 1e-7, 4, 1}, {2e-7, -1, 1, 0, 0},
                             {0, 5, 1, 2e-7, 0},       {0, 5, 4, 2e-7, 1},    {1, 1, 1, -1 - 1.9e-7, 1},
                             {1, 1, 1, -1 - 2.1e-7, 0}};
  for (const auto &row : table) {
    const line_2d s{0, 0, row[0], row[1]}, t{0, 0, row[2], row[3]};
    EXPECT_TRUE(kx_perpendicular(&s, &t) == row[4] && kx_perpendicular(&t, &s) == row[4]) << &row - table;
  }
}

}  // namespace
