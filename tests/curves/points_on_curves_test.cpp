// Points of curves of either dimension, given as points of space.
#include "every_kind.hpp"

using namespace every_kind;

TEST(points_on_curves, are_those_of_the_dimension) {
  for_each_curve([](const curve *c) {
    const range r(c);
    for (int i = 0; i <= 10; ++i) {
      const double t = r.from + (r.to - r.from) * i / 10;
      pnt_3d p{}, d[6];
      EXPECT_EQ(kx_eval_pointoncurve(c, t, &p) + kx_eval_derivsoncurve(c, t, 5, d), 0);
      EXPECT_EQ(apart(p, point(c, t)), 0);
      const auto want = derivatives(c, t, 5);
      for (size_t k = 0; k < 6; ++k) EXPECT_LE(apart(d[k], want[k]), 1e-12 * (1 + apart(want[k], {}))) << k;
    }
    pnt_3d untouched{7, 7, 7};
    EXPECT_EQ(kx_eval_pointoncurve(c, r.to + 1, &untouched), 7);
    EXPECT_EQ(kx_eval_pointoncurve(c, NAN, &untouched), 7);
    EXPECT_EQ(kx_eval_derivsoncurve(c, r.from, 31, &untouched), 8);
    EXPECT_EQ(apart(untouched, {7, 7, 7}), 0);
  });
}

TEST(points_on_curves, segments_of_uniform_ones) {
  for (const int32_t type : {83, 84, 87, 92}) {
    const owner c{wavy(type)};
    for (int s = 0; s < 6; ++s) {
      pnt_3d p, d[4];
      vector_3d v[3];
      ASSERT_EQ(kx_eval_derivs_ucurve(c, s, 0.3, &p, v, v + 1, v + 2), 0);
      ASSERT_EQ(kx_eval_derivsoncurve(c, s + 0.3, 3, d), 0);
      EXPECT_LT(apart(p, d[0]), 1e-13);
      for (int k = 0; k < 3; ++k) {
        EXPECT_LT(apart({v[k].i, v[k].j, v[k].k}, d[k + 1]), 1e-11);
        EXPECT_NEAR(+v[k].length, apart(d[k + 1], {}), 1e-11);
      }
    }
    EXPECT_EQ(kx_eval_derivs_ucurve(c, 0, 0.5, nullptr, nullptr, nullptr, nullptr), 0);
    for (const int s : {-1, 6}) EXPECT_EQ(kx_eval_derivs_ucurve(c, s, 0.5, nullptr, nullptr, nullptr, nullptr), 7);
    for (const double t : {-1e-6, 1.000001, HUGE_VAL, double(NAN)})
      EXPECT_EQ(kx_eval_derivs_ucurve(c, 0, t, nullptr, nullptr, nullptr, nullptr), 7);
  }
  EXPECT_EQ(kx_eval_derivs_ucurve(owner{circle(1)}, 0, 0.5, nullptr, nullptr, nullptr, nullptr), 3);
}

TEST(points_on_curves, polynomials) {
  pnt_3d c[] = {{2, 0, 1}, {-3, 1, 0}, {5, 2, -1}, {7, 3, 4}};
  pnt_3d p{};
  EXPECT_EQ(kx_polynomial_pnt(c, 3, 2, &p), 0);  // 2t^3 - 3t^2 + 5t + 7 and so on
  EXPECT_TRUE(p.x == 21 && p.y == 11 && p.z == 10);
  EXPECT_TRUE(kx_polynomial_pnt(c + 3, 0, 1e300, c + 3) == 0 && c[3].x == 7);
  EXPECT_EQ(kx_polynomial_pnt(c, -1, 2, &p), 8);
  EXPECT_EQ(kx_polynomial_pnt(c, 31, 2, &p), 8);
}
