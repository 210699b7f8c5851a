// Curves through given points meet them, at the parameters that are promised.
#include "every_kind.hpp"
#include "kxgeom/geometry.h"

using namespace every_kind;
using curve_lists::held, curve_lists::points;
using curve_lists::wave;

namespace {

constexpr int32_t tags[] = {KX_PNT_2D, KX_PNT_3D, KX_POLY_2D, KX_POLY_3D};

pnt_3d at(const curve *c, double t) {
  pnt_3d p{};
  EXPECT_EQ(kx_eval_pointoncurve(c, t, &p), 0);
  return p;
}

pnt_3d given(int32_t tag, int i) {
  pnt_3d p = wave(i);
  if (kx::is_plane_point(tag)) p.z = 0;
  return p;
}

}  // namespace

TEST(interpolation, uniform) {
  for (const int32_t tag : tags) {
    for (const int n : {2, 3, 4, 9, 300}) {
      const held list{points(tag, n)};
      const owner c{kx_curve_thru_points(list)};
      ASSERT_TRUE(c.c);
      EXPECT_EQ(c->curve_type, kx::is_plane_point(tag) ? 83 : 84);
      EXPECT_EQ(c->ctrl_pnts->count, n + 2);
      for (int i = 0; i < n; ++i) EXPECT_LT(apart(at(c, i), given(tag, i)), 1e-10 * n * n) << i;
      for (const int end : {0, n - 1}) {
        pnt_3d d[3];
        EXPECT_EQ(kx_eval_derivsoncurve(c, end, 2, d), 0);
        EXPECT_LT(apart(d[2], {}), 1e-10 * n * n);
      }
    }
  }
}

TEST(interpolation, by_chords_of_any_degree) {
  for (const int32_t tag : tags) {
    for (const int degree : {1, 2, 3, 5, 15}) {
      for (const int n : {2, 3, 5, 9, 40}) {
        const held list{points(tag, 41)};
        const owner c{kx_curve_thru_npoints(list, n, degree)};
        ASSERT_TRUE(c.c);
        EXPECT_TRUE(c->curve_type == (kx::is_plane_point(tag) ? 93 : 98) && c->degree == std::min(degree, n - 1));
        EXPECT_EQ(c->ctrl_pnts->count, n);
        double u = 0;
        for (int i = 0; i < n; ++i) {
          if (i) u += apart(given(tag, i), given(tag, i - 1));
          EXPECT_LT(apart(at(c, u), given(tag, i)), 1e-9 * (1 + u)) << "degree " << degree << ", point " << i;
        }
        const range r(c);
        EXPECT_TRUE(r.from == 0 && std::abs(r.to - u) < 1e-12 * u);
      }
    }
  }
}

TEST(interpolation, refuses_and_survives) {
  const held list{points(KX_POLY_2D, 5)};
  const struct { int n, degree; } wrong[] = {{1, 3}, {6, 3}, {INT32_MAX, 3}, {5, 0}, {5, 16}};
  for (const auto &w : wrong) EXPECT_FALSE(kx_curve_thru_npoints(list, w.n, w.degree)) << w.n << " " << w.degree;
  for (const double x : {1.0, double(NAN), HUGE_VAL}) {  // on the second point, and not finite
    *static_cast<poly_2d *>(list->head->next->next->data) = {2, x, wave(1).y};
    EXPECT_FALSE(kx_curve_thru_npoints(list, 5, 3));
    const owner c{kx_curve_thru_points(list)};
    EXPECT_EQ(c.c != nullptr, x == 1.0);
  }
}
