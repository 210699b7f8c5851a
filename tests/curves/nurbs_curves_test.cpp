// NURBS curves sampled; their points are compared in curve_evaluation_test.cpp.
#include <functional>

#include "curve_lists.hpp"

using namespace curve_lists;

TEST(nurbs_curves, answer_in_the_order_of_the_tests) {
  const auto set = [](const list_item *i, double value) {
    for (; i; i = i->next) static_cast<rnumber *>(i->data)->value = value;
  };
  const auto shorten = [](list_hdr *list) { kx::release(ll_delete_list_item(list, 1, 0)); };
  const auto clear = [](list_hdr *list) { kx::release_items(*list); };
  const struct {
    std::function<void(curve *)> change;
    int32_t n_spans, code, samples;
  } cases[] = {
      {[](curve *) {}, 2, 0, 4},
      {[&](curve *c) { clear(c->knots), ll_purge_list(c->knots), c->knots = nullptr, c->degree = 0; }, 2, 1, 0},
      {[](curve *c) { c->degree = 0, c->curve_type = 95; }, 2, 2, 0},
      {[&](curve *c) { c->curve_type = 95, clear(c->ctrl_pnts); }, 2, 3, 0},
      {[&](curve *c) { clear(c->ctrl_pnts), clear(c->knots); }, 2, 1, 0},
      {[&](curve *c) { clear(c->knots), clear(c->weights); }, 2, 5, 0},
      {[&](curve *c) { clear(c->weights); }, 2, 6, 0},
      {[](curve *c) { c->degree = 5; }, 2, 2, 0},
      {[](curve *) {}, 3, 4, 0},
      {[&](curve *c) { set(c->weights->head, 0.0); }, 2, 5, 0},
      {[&](curve *c) { set(c->knots->head, std::nan("")); }, 2, 5, 0},
      {[&](curve *c) { static_cast<rnumber *>(c->knots->head->next->next->data)->value = -9; }, 2, 5, 0},
      // the second span runs off its list: the samples of the first one stay
      {[&](curve *c) { shorten(c->ctrl_pnts); }, 2, 5, 2},
      {[&](curve *c) { shorten(c->weights); }, 2, 5, 2}};
  for (const auto &k : cases) {
    const owner c{nurbs(KX_POLY_2D, 5, 3, clamped(5, 3))};
    k.change(c);
    EXPECT_EQ(kx_mk_nurb_curve2d(c, 0, 0, k.n_spans, 1), k.code) << &k - cases;
    EXPECT_EQ(c->curve_pnts->count, k.samples) << &k - cases;
  }
  EXPECT_EQ(kx_mk_nurb_curve(owner{uniform(kx_def_ubspl_curve2d, 5)}, 0, 0, 3, 1), 3);
}

TEST(nurbs_curves, skip_knots_only) {
  // two knots in front that skipping passes over; the control points are the first ones all the same
  std::vector<double> knots = clamped(6, 2);
  knots.insert(knots.begin(), {-5, -4});
  const owner c{nurbs(KX_POLY_2D, 6, 2, knots)}, whole{nurbs(KX_POLY_2D, 6, 2, clamped(6, 2))};
  EXPECT_EQ(kx_mk_nurb_curve2d(c, 2, 1, 4, 3) + kx_mk_nurb_curve2d(whole, 2, 0, 4, 3), 0);
  const auto a = records<poly_2d>(c->curve_pnts), b = records<poly_2d>(whole->curve_pnts);
  ASSERT_EQ(a.size(), 4u * 4u);
  EXPECT_EQ(std::memcmp(a.data(), b.data(), a.size() * sizeof a[0]), 0);
  EXPECT_TRUE(c->knots->current == c->knots->head && c->ctrl_pnts->current == c->ctrl_pnts->head);  // behind the tail
  EXPECT_EQ(kx_mk_nurb_curve2d(c, 4, 1, 0, 3), 0);  // 6 - 4 + 1 points make degree 2
  EXPECT_EQ(kx_mk_nurb_curve2d(c, 5, 1, 0, 3), 2);
  EXPECT_EQ(kx_mk_nurb_curve2d(whole, 4, 1, 4, 3), 0);  // reads round at the tail
}

TEST(nurbs_curves, end_for_every_count) {
  const int32_t cases[][5] = {{2, 4, 0, 10, 4}, {2, 4, 2, 6, 2}, {2, 0, 0, 4, 0}, {2, 4, -3, 0, -3}, {0, 4, 1, 0, 1}};
  for (const auto &[n_spans, stored, steps, samples, span_steps] : cases) {
    const owner c{nurbs(KX_POLY_2D, 5, 3, clamped(5, 3))};
    c->span_steps = stored;
    EXPECT_EQ(kx_mk_nurb_curve2d(c, 0, 0, n_spans, steps), 0);
    EXPECT_TRUE(c->curve_pnts->count == samples && c->span_steps == span_steps) << n_spans << ' ' << steps;
  }
  const owner c{nurbs(KX_POLY_2D, 5, 3, clamped(5, 3))};
  for (int32_t steps : {5000000, 2147483647}) {
    faults::clear_messages();
    EXPECT_TRUE(kx_mk_nurb_curve2d(c, 0, 0, 2, steps) == 80 && c->curve_pnts->count == 0 && c->span_steps == 4);
    EXPECT_EQ(faults::messages(), std::vector<std::string>{"Memory Error: mk_nurb_curve2d - 2"});
  }
}
