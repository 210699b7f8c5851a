// Beta-splines defined, dispatched and sampled.
#include "curve_lists.hpp"

using namespace curve_lists;

namespace {

list_hdr *give(int32_t tag) { return points(tag, 6); }

}  // namespace

TEST(beta_splines, differ_from_the_b_spline_by_one_element) {
  const owner beta{kx_create_curve()}, spline{uniform(kx_def_ubspl_curve2d, 6)};
  const held list{give(KX_POLY_2D)};
  EXPECT_EQ(kx_def_ubetaspl_curve2d(list, beta, 1.0, 0.0), 0);
  EXPECT_TRUE(beta->curve_type == 91 && kx::empty(list) && list->count == 6);
  for (int i = 0; i < 16; ++i) EXPECT_NEAR(+beta->basis[i], i == 6 ? 5.0 / 12 : +spline->basis[i], 1e-15) << i;
  EXPECT_EQ(kx_mk_ucurve(beta, 0.1) + kx_mk_ucurve(spline, 0.1), 0);
  const auto is = coordinates(beta->curve_pnts), plain = coordinates(spline->curve_pnts),
             g = coordinates(beta->ctrl_pnts);
  const auto stats = records<curve_stats_2d>(beta->curve_stats);
  ASSERT_EQ(is.size(), 31u);
  for (size_t i = 0; i < 31; ++i) {
    const size_t segment = i == 0 ? 0 : (i - 1) / 10;
    const double t = stats[i].t;
    EXPECT_NEAR(kx::length(is[i] - plain[i] + (t * t / 12) * g[segment + 2]), 0.0, 1e-13);
  }
}

TEST(beta_splines, have_the_written_basis) {
  const double want[16] = {-16, 68, -54, 2, 48, -132, 31, 0, -48, 36, 12, 0, 16, 44, 2, 0};  // b1 = 2, b2 = 20
  const owner c{kx_create_curve()};
  const held list{give(KX_POLY_3D)};
  EXPECT_EQ(kx_def_ubetaspl_curve3d(list, c, 2.0, 20.0), 0);
  for (int i = 0; i < 16; ++i) EXPECT_NEAR(c->basis[i] * 62, want[i], 1e-12) << i;
  EXPECT_TRUE(c->curve_type == 92 && kx_mk_ucurve(c, 0.5) == 0 && kx::datatype(c->curve_pnts) == KX_POLY_3D);
}

TEST(beta_splines, refuse_and_dispatch) {
  const owner c{kx_create_curve()};
  for (int32_t tag : {KX_PNT_2D, KX_POLY_2D, KX_PNT_3D, KX_POLY_3D, KX_RNUMBER}) {
    const held list{tag == KX_RNUMBER ? numbers({1, 2, 3, 4, 5, 6}) : give(tag)};
    const double refused[][2] = {{0, -2}, {std::nan(""), 0}, {1, INFINITY}, {1e200, 0}};
    for (const auto &[b1, b2] : refused) {
      EXPECT_EQ(kx_def_ubetaspl_curve2d(list, c, b1, b2) + kx_def_ubetaspl_curve3d(list, c, b1, b2), 4);
      EXPECT_TRUE(kx_def_ubetaspl_curve(list, b1, b2) == nullptr && !kx::empty(list));
    }
    EXPECT_EQ(kx_def_ubetaspl_curve2d(list, nullptr, 1, 0) + kx_def_ubetaspl_curve3d(nullptr, c, 1, 0), 80);
    const owner made{kx_def_ubetaspl_curve(list, 1, 0)};
    EXPECT_EQ(made != nullptr, kx::is_plane_point(tag));
    EXPECT_EQ(kx::empty(list), tag != KX_RNUMBER);  // points in space are taken over, and no curve comes of them
  }
  EXPECT_TRUE(kx_def_ubetaspl_curve(nullptr, 1, 0) == nullptr && c->curve_type == 0);
}

TEST(beta_splines, leave_the_list_when_memory_runs_out) {
  const auto define = [](lists in) { return kx_def_ubetaspl_curve(in.ctrl, 1.0, 0.5); };
  expect_all_or_nothing([] { return lists(KX_POLY_2D, 14, 0, 0); }, define, 6);
}
