// NURBS curves sampled.
#include <functional>

#include "curve_lists.hpp"
#include "support/faults.hpp"

using namespace curve_lists;

TEST(nurbs_curves, draw_a_circle) {
  // three quarter circles of a rational quadratic: corners of a square weigh half of the square root of 2
  const double r = std::sqrt(0.5);
  const int at[7][2] = {{1, 0}, {1, 1}, {0, 1}, {-1, 1}, {-1, 0}, {-1, -1}, {0, -1}};
  for (int32_t tag : {KX_POLY_2D, KX_PNT_2D, KX_POLY_3D, KX_PNT_3D}) {
    curve *c = nurbs(tag, 7, 2, {0, 0, 1, 1, 2, 2, 3, 3}, {1, r, 1, r, 1, r, 1});
    auto corner = std::begin(at);
    for (list_item &item : kx::items(c->ctrl_pnts)) {
      kx::release(item.data);
      item.data = kx::create_point(tag, {1.0 * (*corner)[0], 1.0 * (*corner)[1], 5.0}, 0);
      ++corner;
    }
    EXPECT_EQ(kx_mk_nurb_curve(c, 0, 0, 5, 6), 0);
    ASSERT_EQ(c->curve_pnts->count, 3 * 7);  // both ends of each span, nothing of the spans without length
    const bool plane = kx::is_plane_point(tag);
    EXPECT_EQ(c->curve_stats->head->datatype, plane ? KX_CURVE_STATS_2D : KX_CURVE_STATS_3D);
    for (const list_item &item : kx::items(c->curve_pnts)) {
      EXPECT_EQ(item.datatype, plane ? KX_POLY_2D : KX_POLY_3D);
      const pnt_3d p = kx::read_point(item.data, item.datatype);
      EXPECT_NEAR(std::hypot(p.x, p.y), 1.0, 1e-12);
      EXPECT_NEAR(p.z, plane ? 0.0 : 5.0, 1e-12);
    }
    free_curve(c);
  }
}

TEST(nurbs_curves, agree_with_the_points_of_each_span) {
  for (int degree : {1, 2, 3, 4, 15}) {
    const int n = degree + 4;
    std::vector<double> knots = clamped(n, degree), weights;
    for (double &k : knots) k *= 1.0 + 0.1 * k;
    for (int i = 0; i < n; ++i) weights.push_back(1 + 0.2 * (i % 4));
    curve *c = nurbs(KX_POLY_2D, n, degree, knots, weights);
    EXPECT_EQ(kx_mk_nurb_curve2d(c, 0, 0, 4, 0), 0);
    auto ctrl = records<poly_2d>(c->ctrl_pnts), at = records<poly_2d>(c->curve_pnts);
    const auto stats = records<curve_stats_2d>(c->curve_stats);
    ASSERT_EQ(at.size(), 4u * 5u);
    for (size_t i = 0; i < at.size(); ++i) {
      const size_t span = i / 5;
      const double *k = &knots[span], start = k[degree - 1], h = k[degree] - start;
      poly_2d *g[16];
      for (size_t j = 0; j <= static_cast<size_t>(degree); ++j) g[j] = &ctrl[span + j];
      pnt_2d want;
      ASSERT_EQ(kx_rat_deboor_2d(stats[i].t, degree, g, &weights[span], k, &want), 0);
      EXPECT_EQ(at[i].seqnr, static_cast<int32_t>(i));
      EXPECT_NEAR(stats[i].t, start + h * static_cast<double>(i % 5) / 4, 1e-12);
      EXPECT_NEAR(std::hypot(at[i].x - want.x, at[i].y - want.y), 0.0, 1e-12);
      EXPECT_EQ(+stats[i].tangent.length, 0.0);
    }
    free_curve(c);
  }
}

TEST(nurbs_curves, answer_in_the_order_of_the_tests) {
  const auto set = [](list_hdr *list, double value) {
    for (list_item &item : kx::items(list)) static_cast<rnumber *>(item.data)->value = value;
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
      {[](curve *c) { c->degree = 16; }, 2, 2, 0},
      {[&](curve *c) { c->curve_type = 95, clear(c->ctrl_pnts); }, 2, 3, 0},
      {[&](curve *c) { clear(c->ctrl_pnts), clear(c->knots); }, 2, 1, 0},
      {[&](curve *c) { clear(c->knots), clear(c->weights); }, 2, 5, 0},
      {[&](curve *c) { clear(c->weights); }, 2, 6, 0},
      {[](curve *c) { c->degree = 5; }, 2, 2, 0},
      {[](curve *) {}, 3, 4, 0},
      {[](curve *) {}, 2147483647, 4, 0},
      {[&](curve *c) { set(c->weights, 0.0); }, 2, 5, 0},
      {[&](curve *c) { set(c->weights, std::nan("")); }, 2, 5, 0},
      {[&](curve *c) { set(c->knots, std::nan("")); }, 2, 5, 0},
      {[&](curve *c) { static_cast<rnumber *>(c->knots->head->next->next->data)->value = -9; }, 2, 5, 0},
      // the second span runs off its list: the samples of the first one stay
      {[&](curve *c) { shorten(c->ctrl_pnts); }, 2, 5, 2},
      {[&](curve *c) { shorten(c->weights); }, 2, 5, 2}};
  for (const auto &k : cases) {
    curve *c = nurbs(KX_POLY_2D, 5, 3, clamped(5, 3));
    k.change(c);
    EXPECT_EQ(kx_mk_nurb_curve2d(c, 0, 0, k.n_spans, 1), k.code) << &k - cases;
    EXPECT_EQ(c->curve_pnts->count, k.samples) << &k - cases;
    free_curve(c);
  }
  EXPECT_EQ(kx_mk_nurb_curve(nullptr, 0, 0, 3, 1), 1);
  EXPECT_EQ(kx_mk_nurb_curve3d(nullptr, 0, 0, 3, 1), 1);
  curve *c = uniform(kx_def_ubspl_curve2d, 5);
  EXPECT_EQ(kx_mk_nurb_curve(c, 0, 0, 3, 1), 3);
  free_curve(c);
}

TEST(nurbs_curves, skip_knots_only) {
  // two knots in front that skipping passes over; the control points are the first ones all the same
  std::vector<double> knots = clamped(6, 2);
  knots.insert(knots.begin(), {-5, -4});
  curve *c = nurbs(KX_POLY_2D, 6, 2, knots), *whole = nurbs(KX_POLY_2D, 6, 2, clamped(6, 2));
  EXPECT_EQ(kx_mk_nurb_curve2d(c, 2, 1, 4, 3), 0);
  EXPECT_EQ(kx_mk_nurb_curve2d(whole, 2, 0, 4, 3), 0);
  const auto a = records<poly_2d>(c->curve_pnts), b = records<poly_2d>(whole->curve_pnts);
  ASSERT_EQ(a.size(), 4u * 4u);
  EXPECT_EQ(std::memcmp(a.data(), b.data(), a.size() * sizeof a[0]), 0);
  EXPECT_EQ(c->knots->current, c->knots->head);  // behind the tail
  EXPECT_EQ(c->ctrl_pnts->current, c->ctrl_pnts->head);
  EXPECT_EQ(kx_mk_nurb_curve2d(c, 4, 1, 0, 3), 0);  // 6 - 4 + 1 points make degree 2
  EXPECT_EQ(kx_mk_nurb_curve2d(c, 5, 1, 0, 3), 2);
  EXPECT_EQ(kx_mk_nurb_curve2d(whole, 4, 1, 4, 3), 0);  // reads round at the tail
  free_curve(c);
  free_curve(whole);
}

TEST(nurbs_curves, end_for_every_count) {
  const int32_t cases[][5] = {{2, 4, 0, 10, 4},  {2, 4, 2, 6, 2}, {2, 0, 0, 4, 0},
                              {2, 4, -3, 0, -3}, {0, 4, 1, 0, 1}, {-2147483647 - 1, 4, 1, 0, 1}};
  for (const auto &[n_spans, stored, steps, samples, span_steps] : cases) {
    curve *c = nurbs(KX_POLY_2D, 5, 3, clamped(5, 3));
    c->span_steps = stored;
    EXPECT_EQ(kx_mk_nurb_curve2d(c, 0, 0, n_spans, steps), 0);
    EXPECT_EQ(c->curve_pnts->count, samples);
    EXPECT_EQ(c->span_steps, span_steps);
    free_curve(c);
  }
}

TEST(nurbs_curves, keep_their_samples_when_memory_runs_out) {
  for (int32_t tag : {KX_POLY_2D, KX_POLY_3D}) {
    const auto without_output = [=] {
      curve *c = nurbs(tag, 5, 3, clamped(5, 3));
      ll_purge_list(c->curve_pnts);
      c->curve_pnts = nullptr;
      return c;
    };
    const char *text = tag == KX_POLY_2D ? "Memory Error: mk_nurb_curve2d - 2" : "Memory Error: mk_nurb_curve3d - 2";
    const auto make = [](curve *c) { return kx_mk_nurb_curve(c, 0, 0, 2, 1); };
    EXPECT_EQ(faults::fail_each_allocation(
                  without_output, make,
                  [&](int n, curve *c, int32_t code) {
                    EXPECT_EQ(code, n > 0 ? 80 : 0);
                    EXPECT_EQ(ll_get_list_count(c->curve_pnts), n > 0 ? std::max(0, (n - 3) / 4) : 4);
                    EXPECT_EQ(ll_get_list_count(c->curve_stats), ll_get_list_count(c->curve_pnts));
                    EXPECT_TRUE(n != 2 || faults::messages()[0] == text);
                    free_curve(c);
                  }),
              2 + 4 * 4);
  }
}
