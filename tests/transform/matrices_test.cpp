#include <gtest/gtest.h>

#include <random>

#include "kxgeom/transform.h"

namespace {

TEST(Matrices, InverseTimesMatrixIsTheIdentity) {
  std::mt19937 random(3);
  std::uniform_real_distribution<double> value(-5, 5);
  for (int run = 0; run < 100; ++run) {
    double m[9], inverse[9], product[9];
    for (double &v : m) v = value(random);  // the last column, too
    if (kx_getinversematrix2d(m, inverse)) continue;
    kx_movematrix2d(m, product);
    kx_mat33mult(inverse, product);
    for (int i = 0; i < 9; ++i) ASSERT_NEAR(product[i], i % 4 == 0 ? 1 : 0, 1e-8);
    kx_getinversematrix2d(m, m);  // in place
    for (int i = 0; i < 9; ++i) ASSERT_EQ(m[i], inverse[i]);
  }
}

TEST(Matrices, ASingularOneLeavesItsAdjugate) {
  double m[9] = {1e-7, 0, 0, 0, 1, 0, 0, 2, 1}, out[9];
  EXPECT_EQ(kx_getinversematrix2d(m, out), 1);
  const double adjugate[9] = {1, 0, 0, 0, 1e-7, 0, 0, -2e-7, 1e-7};
  for (int i = 0; i < 9; ++i) EXPECT_EQ(out[i], adjugate[i]) << i;
  m[0] = 1.01e-7;
  EXPECT_TRUE(kx_getinversematrix2d(m, out) == 0 && kx_getinversematrix2d(nullptr, out) == 1);
  EXPECT_EQ(kx_get_det22(1, 2, 3, 5), -1);
}

TEST(Matrices, ProductHasTheSecondArgumentOnTheLeft) {
  const double a[9] = {1, 2, 3, 4, 5, 6, 7, 8, 10};
  double b[9] = {0, 1, 0, 0, 0, 2, 0, 0, 0}, square[9];
  kx_mat33mult(a, b);
  const double want[9] = {4, 5, 6, 14, 16, 20, 0, 0, 0};
  for (int i = 0; i < 9; ++i) EXPECT_EQ(b[i], want[i]);
  kx_movematrix2d(a, square);
  kx_mat33mult(square, square);
  EXPECT_TRUE(square[0] == 30 && square[8] == 169);
}

}  // namespace
