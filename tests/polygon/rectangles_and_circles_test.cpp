#include <gtest/gtest.h>

#include <limits>

#include "kxgeom/polygon.h"

namespace {

TEST(RectanglesAndCircles, Circle) {
  const double table[][6] = {// x, y, r, point, inside
                             {0, 0, 0, 0, 0, 0},        {0, 0, 1e-7, 0, 0, 0},     {3, 4, 1, 4, 4, 1},
                             {0, 0, 1, 1 + 1e-7, 0, 1}, {0, 0, 1, 1 + 3e-7, 0, 0}, {0, 0, -2, 1e-7, 0, 1},
                             {0, 0, -2, 1, 0, 0},       {0, 0, 5, 3, 4, 1}};
  for (const auto &row : table) {
    const circle_2d c{row[0], row[1], row[2]};
    const pnt_2d p{row[3], row[4]};
    EXPECT_EQ(kx_incircle(&c, &p), row[5]) << &row - table;
  }
}

TEST(RectanglesAndCircles, PointInRectangle) {
  const double table[][8] = {// corners, point, in any order, as they stand
                             {0, 0, 10, 10, 5, 5, 1, 1},           {10, 10, 0, 0, 5, 5, 1, 0},
                             {0, 10, 10, 0, 5, 5, 1, 0},           {0, 0, 10, 10, 10 + 1e-6, 5, 1, 1},
                             {0, 0, 10, 10, 10 + 1.2e-6, 5, 0, 0}, {0, 0, 10, 10, -1e-7, -1e-7, 1, 1},
                             {0, 0, 10, 10, 5, -1.1e-7, 0, 0},     {1, 1, 1 + 1e-7, 1, 1 - 1e-7, 1, 1, 1},
                             {1, 1, 1, 1, 1 + 2e-7, 1, 0, 0}};
  for (const auto &row : table) {
    const rect_2d r{row[0], row[1], row[2], row[3]};
    const pnt_2d p{row[4], row[5]};
    EXPECT_EQ(kx_inrectangle(&r, &p), row[6]) << &row - table;
    EXPECT_EQ(kx_in_rectangle(&r, &p), row[7]) << &row - table;
  }
}

TEST(RectanglesAndCircles, UnionAndCommonPart) {
  const rect_2d a{0, 0, 10, 10}, b{5, -5, 20, 10 - 1e-6}, apart{10.1, 0, 20, 5}, beside{10 + 1e-6, 0, 20, 5};
  rect_2d r{9, 9, 9, 9};
  EXPECT_EQ(kx_rect_union_2d(&a, &b, &r), 1);
  EXPECT_TRUE(r.x1 == 0 && r.y1 == -5 && r.x2 == 20 && r.y2 == b.y2) << "of equal values the second one's";
  EXPECT_EQ(kx_rect_intersect_2d(&a, &b, &r), 1);
  EXPECT_TRUE(r.x1 == 5 && r.y1 == 0 && r.x2 == 10 && r.y2 == b.y2);
  EXPECT_EQ(kx_rect_intersect_2d(&b, &a, &r), 1);
  EXPECT_EQ(r.y2, 10);
  EXPECT_EQ(kx_rect_intersect_2d(&a, &apart, &r), 0);
  EXPECT_EQ(r.y2, 10);
  EXPECT_EQ(kx_rect_intersect_2d(&a, &beside, &r), 1);
  r = a;
  kx_rect_union_2d(&r, &apart, &r);
  EXPECT_EQ(r.x2, 20);
  const rect_2d almost{1e-7, 0, 10 + 1e-6, 10}, other{2.1e-7, 0, 10, 10};
  EXPECT_TRUE(kx_rect_equal_2d(&a, &almost) && kx_rect_equal_2d(&a, &a) && !kx_rect_equal_2d(&a, &other));
}

TEST(RectanglesAndCircles, BadInput) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const rect_2d r{0, 0, 1, 1};
  const circle_2d c{0, 0, nan};
  const pnt_2d p{nan, 0};
  rect_2d out;
  EXPECT_FALSE(kx_incircle(nullptr, &p) || kx_incircle(&c, nullptr) || kx_incircle(&c, &p) ||
               kx_inrectangle(nullptr, &p) || kx_inrectangle(&r, nullptr) || kx_inrectangle(&r, &p) ||
               kx_in_rectangle(&r, nullptr) || kx_in_rectangle(&r, &p) || kx_rect_equal_2d(&r, nullptr) ||
               kx_rect_union_2d(&r, nullptr, &out) || kx_rect_intersect_2d(&r, &r, nullptr));
}

}  // namespace
