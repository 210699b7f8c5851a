#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "kxgeom/transform.h"

namespace {

TEST(Matrices, OfThePlaneInverseTimesMatrixIsTheIdentity) {
  std::mt19937 random(3);
  std::uniform_real_distribution<double> value(-5, 5);
  for (int run = 0; run < 100; ++run) {
    double m[9], inverse[9], product[9];
    for (double &v : m) v = value(random);  // the last column, too
    if (kx_getinversematrix2d(m, inverse)) continue;
    kx_movematrix2d(m, product);
    kx_mat33mult(inverse, product);
    kx_getinversematrix2d(m, m);  // in place
    for (int i = 0; i < 9; ++i) {
      ASSERT_NEAR(product[i], i % 4 == 0 ? 1 : 0, 1e-8);
      ASSERT_EQ(m[i], inverse[i]);
    }
  }
}

TEST(Matrices, OfThePlaneOneIsSingularAndTheSecondFactorIsOnTheLeft) {
  double m[9] = {1e-7, 0, 0, 0, 1, 0, 0, 2, 1}, out[9];
  EXPECT_EQ(kx_getinversematrix2d(m, out), 1);
  const double adjugate[9] = {1, 0, 0, 0, 1e-7, 0, 0, -2e-7, 1e-7};
  for (int i = 0; i < 9; ++i) EXPECT_EQ(out[i], adjugate[i]) << i;
  m[0] = 1.01e-7;
  EXPECT_EQ(kx_getinversematrix2d(m, out), 0);
  const double a[9] = {1, 2, 3, 4, 5, 6, 7, 8, 10}, want[9] = {4, 5, 6, 14, 16, 20, 0, 0, 0};
  double b[9] = {0, 1, 0, 0, 0, 2, 0, 0, 0};
  kx_mat33mult(a, b);
  for (int i = 0; i < 9; ++i) EXPECT_EQ(b[i], want[i]);
}

TEST(Matrices, OfSpaceInverseAdjugateAndDeterminantAgree) {
  std::mt19937 random(4);
  std::uniform_real_distribution<double> value(-5, 5);
  for (int run = 0; run < 100; ++run) {
    double m[16], other[16], inverse[16], adjugate[16], product[16], twice[16], row[4];
    for (double &v : m) v = value(random);
    for (double &v : other) v = value(random);
    const double det = kx_get_det44(m), dets = det * kx_get_det44(other);
    ASSERT_EQ(kx_getinversematrix3d(m, inverse), 0);
    kx_mat_mult(inverse, m, product);
    kx_get_adjoint_matrix3d(m, adjugate);
    for (int i = 0; i < 16; ++i) {
      ASSERT_NEAR(product[i], i % 5 == 0 ? 1 : 0, 1e-9);
      ASSERT_EQ(inverse[i], adjugate[i] / det);
    }
    kx_mat_mult(m, other, product);
    ASSERT_NEAR(kx_get_det44(product), dets, 1e-9 * (std::fabs(dets) + 1));
    kx_movematrix3d(m, twice);
    kx_mat44mult(other, twice);  // m*other, too
    kx_mult_vector(other, &m[8], row);
    kx_getinversematrix3d(m, m);  // in place
    for (int i = 0; i < 16; ++i) ASSERT_TRUE(twice[i] == product[i] && m[i] == inverse[i]);
    for (int j = 0; j < 4; ++j) ASSERT_EQ(row[j], product[8 + j]);
  }
}

TEST(Matrices, OfSpaceOneIsSingularAndProductsAreMadeInPlace) {
  double m[16] = {1e-7 / 24}, out[16];
  for (int i = 1; i < 4; ++i) m[5 * i] = i + 1;
  EXPECT_EQ(kx_getinversematrix3d(m, out), 1);
  EXPECT_TRUE(out[0] == 24 && out[5] == m[0] * 12 && out[15] == m[0] * 6 && out[1] == 0) << "the adjugate";
  m[0] = 1.01e-7 / 24;
  EXPECT_EQ(kx_getinversematrix3d(m, out), 0);
  EXPECT_TRUE(kx_inverse(1e-7) == 0 && kx_inverse(-1.1e-7) == 1 / -1.1e-7 && kx_inverse(std::nan("")) == 0);
  // Each element is summed up where it stands: with c = a the elements to the right see what was written.
  double a[16] = {1, 1, 1, 1, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1}, b[16];
  kx_movematrix3d(a, b);
  kx_mat_mult(a, b, a);
  for (int j = 0; j < 4; ++j) EXPECT_EQ(a[j], 0) << j;
}

}  // namespace
