// Bezier curves cut in two.
#include "bezier_reference.hpp"

using namespace curve_lists;

namespace {

curve *bezier(int32_t tag, int n) {
  return kx::is_plane_point(tag) ? uniform(kx_def_ubezier_curve2d, n, tag) : [=] {
    list_hdr *list = points(tag, n);
    curve *c = kx_def_ubezier_curve3d(list);
    ll_purge_list(list);
    return c;
  }();
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

TEST(bezier_subdivision, meets_the_worked_example) {
  const owner c{bezier(KX_POLY_2D, 4)}, a{kx_create_curve()}, b{kx_create_curve()};
  const poly_2d ctrl[] = {{0, 0, 0}, {1, 1, 2}, {2, 3, 2}, {3, 4, 0}};
  int i = 0;
  for (list_item &item : kx::items(c->ctrl_pnts)) std::memcpy(item.data, &ctrl[i++], sizeof ctrl[0]);
  EXPECT_EQ(kx_sub_bezier_curve2d(c, 0.5, a, b), 0);
  EXPECT_EQ(kx_sub_bezier_curve2d(c, 0.5, a, b), 0);  // what is there stays at the outer ends
  const double first[][2] = {{2, 1.5}, {1.25, 1.5}, {0.5, 1}, {0, 0}},
               second[][2] = {{2, 1.5}, {2.75, 1.5}, {3.5, 1}, {4, 0}};
  for (size_t k = 0; k < 8; ++k) {
    const poly_2d p = records<poly_2d>(a->ctrl_pnts)[k], q = records<poly_2d>(b->ctrl_pnts)[k];
    EXPECT_TRUE(p.x == first[k % 4][0] && p.y == first[k % 4][1] && p.seqnr == static_cast<int32_t>(k % 4)) << k;
    EXPECT_TRUE(q.x == second[k % 4][0] && q.y == second[k % 4][1] && q.seqnr == static_cast<int32_t>(k % 4)) << k;
  }
  EXPECT_TRUE(a->ctrl_pnts->current == a->ctrl_pnts->head &&
              b->ctrl_pnts->current->prev == b->ctrl_pnts->head->next->next->next);
  EXPECT_EQ(kx_sub_bezier_curve2d(c, 0.5, c, c), 0);  // the first part in front, the second behind
  EXPECT_EQ(c->ctrl_pnts->count, 12);
  for (size_t k : {3, 4, 11}) EXPECT_EQ(+records<poly_2d>(c->ctrl_pnts)[k].x, k == 11 ? 4 : 0);
}

TEST(bezier_subdivision, refuses_other_curves) {
  const owner c{bezier(KX_POLY_2D, 4)}, s{bezier(KX_POLY_3D, 4)}, a{kx_create_curve()}, none{kx_create_curve()};
  kx_clear_curve(none, 1);
  for (const auto cut : {kx_sub_bezier_curve, kx_sub_ratbezier_curve}) {
    EXPECT_TRUE(cut(nullptr, 0.5, a, a) == -1 && cut(c, 0.5, nullptr, a) == -1 && cut(c, 0.5, a, nullptr) == -1);
    EXPECT_TRUE(cut(a, 0.5, a, a) == -1 && cut(none, 0.5, a, a) == -1 && cut(c, 0.5, none, a) == 40);
  }
  const auto flat = kx_sub_bezier_curve2d, full = kx_sub_bezier_curve3d;
  EXPECT_TRUE(flat(s, 0.5, a, a) == 40 && full(c, 0.5, a, a) == 40 && flat(nullptr, 0.5, a, a) == 40 &&
              full(s, 0.5, a, nullptr) == 40);
  EXPECT_TRUE(flat(c, 0.5, a, none) == 40 && flat(none, 0.5, a, a) == 40);
  for (int32_t degree : {-1, 4, 31, INT32_MAX}) EXPECT_TRUE((c->degree = degree, flat(c, 0.5, a, a)) == 40);
  EXPECT_EQ(a->ctrl_pnts->count, 0);
  c->degree = 3;
  EXPECT_TRUE(flat(c, std::nan(""), a, a) == 0 && a->ctrl_pnts->count == 8);  // points that are none
  s->ctrl_pnts->current->datatype = KX_CURVE_STATS_2D;
  EXPECT_EQ(kx_sub_bezier_curve(s, 0.5, a, a), -1);
  s->ctrl_pnts->current->datatype = KX_POLY_3D;
}

TEST(bezier_subdivision, gives_all_or_nothing) {
  struct three {
    curve *c, *a, *b;
  };
  const auto setup = [] { return three{bezier(KX_POLY_2D, 4), kx_create_curve(), kx_create_curve()}; };
  const auto cut = [](three x) { return kx_sub_bezier_curve(x.c, 0.5, x.a, x.b); };
  const auto check = [](int n, three x, int32_t code) {
    EXPECT_EQ(code, n > 0 ? 80 : 0);
    EXPECT_EQ(x.a->ctrl_pnts->count + x.b->ctrl_pnts->count, n > 0 ? 0 : 8);
    for (curve *each : {x.c, x.a, x.b}) free_curve(each);
  };
  EXPECT_EQ(faults::fail_each_allocation(setup, cut, check), 16);
}
