// Bezier curves cut in two.
#include "bezier_reference.hpp"

using namespace curve_lists;

namespace {

curve *bezier(int32_t tag, int n) {
  return kx::is_plane_point(tag) ? uniform(kx_def_ubezier_curve2d, n, tag) : uniform(kx_def_ubezier_curve3d, n, tag);
}

}  // namespace

TEST(bezier_subdivision, reproduces_the_curve) {
  for (int32_t tag : {KX_POLY_2D, KX_POLY_3D, KX_PNT_2D, KX_PNT_3D})
    for (int n : {1, 2, 4, 7, 31, 33})
      for (double t : {0.0, 0.25, 0.5, 0.9, 1.0}) {
        const owner c{bezier(tag, n)}, a{kx_create_curve()}, b{kx_create_curve()};
        EXPECT_EQ(kx_sub_bezier_curve(c, t, a, b), 0);
        expect_parts(wave_controls(std::min(n, 31), kx::is_space_point(tag)), t, a, b, 1e-10);
        EXPECT_TRUE(a->curve_type == 0 && b->degree == 0 && c->ctrl_pnts->count == n);
      }
}

TEST(bezier_subdivision, leaves_what_is_there_at_the_outer_ends) {
  const owner c{bezier(KX_POLY_2D, 4)}, a{kx_create_curve()}, b{kx_create_curve()};
  EXPECT_EQ(kx_sub_bezier_curve2d(c, 0.5, a, b) + kx_sub_bezier_curve2d(c, 0.5, a, b), 0);
  for (const curve *part : {a.c, b.c})
    for (size_t k = 0; k < 8; ++k) {
      const poly_2d p = records<poly_2d>(part->ctrl_pnts)[k], same = records<poly_2d>(part->ctrl_pnts)[k % 4];
      EXPECT_TRUE(p.x == same.x && p.y == same.y && p.seqnr == static_cast<int32_t>(k % 4)) << k;
    }
  EXPECT_TRUE(a->ctrl_pnts->current == a->ctrl_pnts->head &&
              b->ctrl_pnts->current->prev == b->ctrl_pnts->head->next->next->next);
  EXPECT_EQ(kx_sub_bezier_curve2d(c, 0.5, c, c), 0);  // the first part in front, the second behind
  const auto all = records<poly_2d>(c->ctrl_pnts);
  EXPECT_TRUE(all.size() == 12 && all[3].x == 0 && all[4].x == 0 && all[11].x == 3 && all[0].x == all[8].x);
}

TEST(bezier_subdivision, cuts_all_or_nothing) {
  const owner c{bezier(KX_POLY_2D, 4)}, s{bezier(KX_POLY_3D, 4)}, a{kx_create_curve()}, none{kx_create_curve()};
  kx_clear_curve(none, 1);
  for (const auto cut : {kx_sub_bezier_curve, kx_sub_ratbezier_curve})
    EXPECT_TRUE(cut(c, 0.5, nullptr, a) == -1 && cut(a, 0.5, a, a) == -1 && cut(c, 0.5, none, a) == 40);
  const auto flat = kx_sub_bezier_curve2d, full = kx_sub_bezier_curve3d;
  EXPECT_TRUE(flat(s, 0.5, a, a) == 40 && full(c, 0.5, a, a) == 40 && flat(none, 0.5, a, a) == 40);
  for (int32_t degree : {-1, 4, 31, INT32_MAX}) EXPECT_TRUE((c->degree = degree, flat(c, 0.5, a, a)) == 40);
  EXPECT_EQ(a->ctrl_pnts->count, 0);
  expect_all_or_nothing(
      [] {
        return things{{bezier(KX_POLY_2D, 4), kx_create_curve(), kx_create_curve()}, {}};
      },
      [](things &x) { return kx_sub_bezier_curve(x.curves[0], 0.5, x.curves[1], x.curves[2]); }, 16);
}
