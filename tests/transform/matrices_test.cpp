#include <gtest/gtest.h>

#include <cmath>
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

struct space_matrix {
  double m[16];
  double &operator()(int r, int c) { return m[4 * r + c]; }
};

space_matrix random_matrix(std::mt19937 &random) {
  std::uniform_real_distribution<double> value(-5, 5);
  space_matrix out;
  for (double &v : out.m) v = value(random);
  return out;
}

TEST(Matrices, OfSpaceInverseAdjugateAndDeterminantAgree) {
  std::mt19937 random(4);
  for (int run = 0; run < 100; ++run) {
    space_matrix m = random_matrix(random), other = random_matrix(random), inverse, adjugate, product, twice;
    const double det = kx_get_det44(m.m);
    ASSERT_EQ(kx_getinversematrix3d(m.m, inverse.m), 0);
    kx_mat_mult(inverse.m, m.m, product.m);
    kx_get_adjoint_matrix3d(m.m, adjugate.m);
    for (int i = 0; i < 16; ++i) {
      ASSERT_NEAR(product.m[i], i % 5 == 0 ? 1 : 0, 1e-9);
      ASSERT_EQ(inverse.m[i], adjugate.m[i] / det);
    }
    kx_mat_mult(m.m, other.m, product.m);
    const double dets = det * kx_get_det44(other.m);
    ASSERT_NEAR(kx_get_det44(product.m), dets, 1e-9 * (std::fabs(dets) + 1));
    kx_movematrix3d(m.m, twice.m);
    kx_mat44mult(other.m, twice.m);  // m*other, too
    for (int i = 0; i < 16; ++i) ASSERT_EQ(twice.m[i], product.m[i]);
    double row[4];
    kx_mult_vector(other.m, &m.m[8], row);
    for (int j = 0; j < 4; ++j) ASSERT_EQ(row[j], product(2, j));
    kx_getinversematrix3d(m.m, m.m);  // in place
    for (int i = 0; i < 16; ++i) ASSERT_EQ(m.m[i], inverse.m[i]);
  }
}

TEST(Matrices, OfSpaceASingularOneLeavesItsAdjugate) {
  space_matrix m{}, out;
  for (int i = 0; i < 4; ++i) m(i, i) = i + 1;
  m(0, 0) = 1e-7 / 24;
  EXPECT_EQ(kx_getinversematrix3d(m.m, out.m), 1);
  EXPECT_TRUE(out(0, 0) == 24 && out(1, 1) == m(0, 0) * 12 && out(3, 3) == m(0, 0) * 6 && out(0, 1) == 0);
  m(0, 0) = 1.01e-7 / 24;
  EXPECT_TRUE(kx_getinversematrix3d(m.m, out.m) == 0 && kx_getinversematrix3d(m.m, nullptr) == 1);
  EXPECT_EQ(kx_get_det33(2, 3, 5, 7, 11, 13, 17, 19, 23), -78);
  EXPECT_TRUE(kx_inverse(1e-7) == 0 && kx_inverse(-1.1e-7) == 1 / -1.1e-7 && kx_inverse(std::nan("")) == 0);
}

TEST(Matrices, ProductsOfSpaceAreMadeInPlace) {
  // Each element is summed up where it stands: with c = a the elements to the right see what was written.
  space_matrix a{};
  for (int j = 0; j < 4; ++j) a(0, j) = 1, a(j, j) = 1;
  space_matrix want = a, b = a;
  kx_mat_mult(a.m, b.m, a.m);
  for (int j = 0; j < 4; ++j) {
    want(0, j) = 0;
    for (int k = 0; k < 4; ++k) want(0, j) += want(0, k) * b(k, j);
  }
  for (int j = 0; j < 4; ++j) EXPECT_EQ(a(0, j), want(0, j)) << j;
  EXPECT_NE(a(0, 1), 2);  // what a product with a temporary would give
}

}  // namespace
