// Points of B-splines and NURBS on one span.
#include "curve_lists.hpp"

namespace {

// Control points, weights and uneven knots of one span.
struct control {
  poly_3d solid[16];
  poly_2d flat[16];
  poly_3d *to_solid[16];
  poly_2d *to_flat[16];
  double weights[16], knots[32];

  control() {
    for (int i = 0; i < 32; ++i) knots[i] = i + 0.2 * (i % 4);
    for (int i = 0; i < 16; ++i) {
      const pnt_3d p = curve_lists::wave(3 * i);
      *(to_solid[i] = &solid[i]) = {i, p.x, p.y, p.z};
      *(to_flat[i] = &flat[i]) = {i, p.x, p.y};
      weights[i] = 1 + 0.3 * (i % 3);
    }
  }
};

}  // namespace

TEST(de_boor, agrees_with_the_basis_functions) {
  control c;
  for (int degree : {1, 2, 3, 7, 15}) {
    const double a = c.knots[degree - 1], b = c.knots[degree];
    for (double t : {a, a + 0.3 * (b - a), b}) {
      double n[16], w = 0;
      ASSERT_EQ(kx_basisfunctions(c.knots, degree - 1, degree, t, 0, n), 0);
      kx::vec3 plain{}, top{};
      for (int i = 0; i <= degree; ++i) {
        plain = plain + n[i] * kx::space::read(c.solid[i]);
        top = top + (n[i] * c.weights[i]) * kx::space::read(c.solid[i]);
        w += n[i] * c.weights[i];
      }
      pnt_3d p, rp;
      pnt_2d q, rq;
      EXPECT_EQ(kx_deboor_3d(t, degree, c.to_solid, c.knots, &p), 0);
      EXPECT_EQ(kx_deboor_2d(t, degree, c.to_flat, c.knots, &q), 0);
      EXPECT_EQ(kx_rat_deboor_3d(t, degree, c.to_solid, c.weights, c.knots, &rp), 0);
      EXPECT_EQ(kx_rat_deboor_2d(t, degree, c.to_flat, c.weights, c.knots, &rq), 0);
      EXPECT_NEAR(kx::length(kx::space::read(p) - plain), 0.0, 1e-9);
      EXPECT_NEAR(kx::length(kx::space::read(rp) - top / w), 0.0, 1e-9);
      EXPECT_TRUE(q.x == p.x && q.y == p.y && rq.x == rp.x && rq.y == rp.y);
    }
  }
}

TEST(de_boor, refuses_what_it_cannot_evaluate) {
  control c;
  pnt_2d p{-1, -1};
  const auto eval = [&](double t, int degree) { return kx_deboor_2d(t, degree, c.to_flat, c.knots, &p); };
  const auto rational = [&](double t, double w) {
    std::fill(c.weights, c.weights + 4, w);
    return kx_rat_deboor_2d(t, 3, c.to_flat, c.weights, c.knots, &p);
  };
  for (int32_t code : {eval(-1.01e-7, 3), eval(2.5, -1), eval(2.5, 16), rational(-1.01e-7, 1)}) EXPECT_EQ(code, 2);
  for (double w : {0.0, 0.99e-7, -0.99e-7, HUGE_VAL}) EXPECT_EQ(rational(2.5, w), 3);
  EXPECT_EQ(rational(std::nan(""), 1), 3);
  EXPECT_EQ(+p.x, -1);
  EXPECT_EQ(rational(2.5, 1.1e-7) + eval(-1e-7, 3) + eval(2.5, 0), 0);
  EXPECT_EQ(+p.y, +c.flat[0].y);
}
