// Non-uniform B-splines sampled; their points and statistics are compared in curve_evaluation_test.cpp.
#include <functional>

#include "curve_lists.hpp"

using namespace curve_lists;

namespace {

curve *bspline(const std::vector<double> &knots) {
  return kx_def_nubspl_curve(held{points(KX_POLY_2D, 5)}, held{numbers(knots)}, 3, 4);
}

}  // namespace

TEST(nonuniform_bsplines, take_the_derivatives_by_their_own_parameter) {
  // over so long a span the second derivative is none
  const owner c{bspline({0, 0, 0, 1e4, 2e4, 2e4, 2e4})};
  ASSERT_EQ(kx_mk_nubspline(c, 0, 0, 2, 2), 0);
  for (const auto &s : records<curve_stats_2d>(c->curve_stats))
    EXPECT_TRUE(s.tangent.length == 1.0 && s.second.length == 0.0);
}

// What they share with NURBS curves is tested there.
TEST(nonuniform_bsplines, need_knots_in_order_and_no_weights) {
  const auto knot = [](curve *c, double value) { static_cast<rnumber *>(c->knots->head->next->data)->value = value; };
  const struct {
    std::function<void(curve *)> change;
    int32_t steps, code, samples;
  } cases[] = {{[](curve *) {}, 0, 0, 10},
               {[](curve *c) { ll_purge_list(c->weights), c->weights = nullptr; }, 1, 0, 4},
               {[](curve *c) { c->curve_type = 94; }, 1, 3, 0},
               {[](curve *) {}, INT32_MAX, 80, 0},
               {[&](curve *c) { knot(c, 0.5); }, 1, 5, 0},
               {[&](curve *c) { knot(c, std::nan("")); }, 1, 5, 0},
               {[](curve *c) { c->ctrl_pnts->tail->datatype = KX_RNUMBER; }, 1, 5, 2}};
  for (const auto &k : cases) {
    const owner c{bspline(clamped(5, 3))};
    k.change(c);
    EXPECT_EQ(kx_mk_nubspline_2d(c, 0, 0, 2, k.steps), k.code) << &k - cases;
    EXPECT_EQ(c->curve_pnts->count, k.samples) << &k - cases;
    c->ctrl_pnts->tail->datatype = KX_POLY_2D;
  }
  EXPECT_EQ(kx_mk_nubspline(owner{nurbs(KX_POLY_2D, 5, 3, clamped(5, 3))}, 0, 0, 2, 1), 3);
}
