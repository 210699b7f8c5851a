// Beta-splines defined, dispatched and sampled.
#include "curve_lists.hpp"

using namespace curve_lists;

TEST(beta_splines, have_the_written_basis) {
  const struct {
    double b1, b2, scale, basis[16];
  } cases[] = {{1, 0, 12, {-2, 6, -6, 2, 6, -12, 5, 0, -6, 0, 6, 0, 2, 8, 2, 0}},  // but for the 5 that of a B-spline
               {2, 20, 62, {-16, 68, -54, 2, 48, -132, 31, 0, -48, 36, 12, 0, 16, 44, 2, 0}}};
  for (const auto &k : cases)
    for (const auto define : {kx_def_ubetaspl_curve2d, kx_def_ubetaspl_curve3d}) {
      const bool space = define == kx_def_ubetaspl_curve3d;
      const owner c{kx_create_curve()};
      const held list{points(space ? KX_POLY_3D : KX_POLY_2D, 6)};
      EXPECT_EQ(define(list, c, k.b1, k.b2), 0);
      EXPECT_TRUE(c->curve_type == 91 + space && kx::empty(list) && list->count == 6);
      for (int i = 0; i < 16; ++i) EXPECT_NEAR(c->basis[i] * k.scale, k.basis[i], 1e-12) << i;
    }
}

TEST(beta_splines, refuse_and_dispatch) {
  const owner c{kx_create_curve()};
  for (int32_t tag : {KX_PNT_2D, KX_POLY_2D, KX_PNT_3D, KX_POLY_3D, KX_RNUMBER}) {
    const held list{tag == KX_RNUMBER ? numbers({1, 2, 3, 4, 5, 6}) : points(tag, 6)};
    const double refused[][2] = {{0, -2}, {std::nan(""), 0}, {1, INFINITY}, {1e200, 0}};
    for (const auto &[b1, b2] : refused) {
      EXPECT_EQ(kx_def_ubetaspl_curve2d(list, c, b1, b2) + kx_def_ubetaspl_curve3d(list, c, b1, b2), 4);
      EXPECT_TRUE(kx_def_ubetaspl_curve(list, b1, b2) == nullptr && !kx::empty(list));
    }
    const owner made{kx_def_ubetaspl_curve(list, 1, 0)};
    EXPECT_EQ(made != nullptr, kx::is_plane_point(tag));
    EXPECT_EQ(kx::empty(list), tag != KX_RNUMBER);  // points in space are taken over, and no curve comes of them
  }
  expect_all_or_nothing(
      [] {
        return things{{}, {points(KX_POLY_2D, 4)}};
      },
      [](things &a) { return a.keep(kx_def_ubetaspl_curve(a.lists[0], 1.0, 0.5)); }, 6);
}
