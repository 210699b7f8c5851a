// Uniform curves sampled and evaluated; their points and statistics are compared in curve_evaluation_test.cpp.
#include "every_kind.hpp"

using namespace curve_lists;

TEST(uniform_curves, sample_by_step_and_kind) {
  const struct {
    int32_t(KX_CALL *define)(list_hdr *, curve *);
    int points;
    double step;
    int32_t samples;
  } cases[] = {{kx_def_ubspl_curve2d, 4, 0.25, 5},          {kx_def_ubspl_curve2d, 4, 0.3, 4},
               {kx_def_ubspl_curve2d, 5, 2.0, 1},           {kx_def_ubspl_curve2d, 5, 0.0, 21},
               {kx_def_ubspl_curve2d, 5, 1e-7, 21},         {kx_def_ubspl_curve2d, 5, INFINITY, 21},
               {kx_def_ubspl_curve2d, 5, std::nan(""), 21}, {kx_def_ubezier_curve2d, 7, 0.1, 11},
               {kx_def_ubezier_curve2d, 8, 0.1, 51}};
  for (const auto &k : cases) {
    const owner c{uniform(k.define, k.points)};
    EXPECT_EQ(kx_mk_ucurve(c, k.step), 0);
    EXPECT_TRUE(c->curve_pnts->count == k.samples && c->curve_stats->count == k.samples) << &k - cases;
    EXPECT_EQ(+c->step, k.samples == 21 ? 0.1 : k.step);
  }
  const owner twice{uniform(kx_def_ubspl_curve2d, 6)};
  EXPECT_EQ(kx_mk_ucurve2d(twice, 0.1) + kx_mk_ucurve2d(twice, 0.5), 0);  // appends, numbered anew
  EXPECT_TRUE(twice->curve_pnts->count == 31 + 7 && records<poly_2d>(twice->curve_pnts)[31].seqnr == 0);
  EXPECT_EQ(twice->ctrl_pnts->current, twice->ctrl_pnts->head);
  // A list of nine counts eight points, yet the groups of four are read round all nine.
  const double ends[] = {0, 3, 7, 2, 6, 1};
  for (bool space : {false, true}) {
    const owner c{space ? uniform(kx_def_ubezier_curve3d, 9) : uniform(kx_def_ubezier_curve2d, 9)};
    EXPECT_EQ(kx_mk_ucurve(c, 1.0), 0);
    ASSERT_EQ(c->curve_pnts->count, 6);
    const double *end = ends;
    for (const list_item &item : kx::items(c->curve_pnts))
      EXPECT_NEAR(kx::read_point(item.data, item.datatype).x, *end++, 1e-12);
    EXPECT_EQ(static_cast<poly_2d *>(c->ctrl_pnts->current->data)->seqnr, 2);
  }
}

TEST(uniform_curves, refuse_what_is_no_curve) {
  const owner c{uniform(kx_def_ubspl_curve2d, 3)}, hole{uniform(kx_def_ubspl_curve2d, 4)};
  EXPECT_EQ(kx_mk_ucurve2d(c, 0.1), 2);
  c->ctrl_pnts->current->datatype = KX_RNUMBER;
  EXPECT_TRUE(kx_mk_ucurve(c, 0.1) == -1 && c->curve_pnts->count == 0);
  EXPECT_EQ(kx_clear_curve(c, 1), 4);
  EXPECT_TRUE(kx_mk_ucurve(c, 0.1) == 80 && kx_mk_ucurve2d(c, 0.1) == 2 && kx_mk_ucurve3d(c, 0.1) == 2);
  kx::release(hole->ctrl_pnts->tail->data);
  hole->ctrl_pnts->tail->data = nullptr;
  EXPECT_EQ(kx_mk_ucurve2d(hole, 0.1), 2);
}

TEST(uniform_curves, read_every_record_as_a_polygon_point) {
  const owner c{uniform(kx_def_ubspl_curve2d, 4, KX_PNT_2D)};
  // the bytes of x = 1.5 where a poly_2d has its x, and no more than the pnt_2d's own
  const int32_t words[4] = {7, 0, 0x3ff80000, 0};
  for (list_item &item : kx::items(c->ctrl_pnts)) std::memcpy(item.data, words, sizeof words);
  EXPECT_EQ(kx_mk_ucurve(c, 0.5), 0);
  for (const poly_2d &p : records<poly_2d>(c->curve_pnts)) EXPECT_NEAR(std::hypot(p.x - 1.5, p.y), 0.0, 1e-15);
}

TEST(uniform_curves, evaluate_at_a_parameter) {
  const owner c{uniform(kx_def_ubspl_curve2d, 4)};
  std::vector<poly_2d> ctrl = records<poly_2d>(c->ctrl_pnts);
  poly_2d *g[] = {&ctrl[0], &ctrl[1], &ctrl[2], &ctrl[3]};
  pnt_2d p;
  vector_2d u, v, n;
  for (double t : {-1e-8, -1e-7, 0.0, 0.3, 1.0, 1.0000002}) {
    EXPECT_EQ(kx_eval_t_on_ucurve2d(c, t, g, &p, &u, &v, &n), 0) << t;
    const auto d = every_kind::derivatives(c, std::clamp(t, 0.0, 1.0), 2);
    EXPECT_LT(every_kind::apart(every_kind::widened(p), d[0]), 1e-6);
    EXPECT_NEAR(std::hypot(u.i, u.j), 1.0, 1e-12);
    EXPECT_NEAR(u.i * d[1].x + u.j * d[1].y, every_kind::apart(d[1], {}), 1e-9);
    EXPECT_TRUE(n.i == -u.j && n.j == u.i);
  }
  EXPECT_EQ(kx_eval_t_on_ucurve2d(c, 0.3, g, nullptr, nullptr, nullptr, nullptr), 0);
  p.x = -1;
  for (double t : {-1.1e-7, 1.00000021, std::nan("")})
    EXPECT_TRUE(kx_eval_t_on_ucurve2d(c, t, g, &p, &u, &v, &n) == 2 && p.x == -1) << t;
  g[0] = g[2] = g[3] = g[1];  // no direction in a point
  EXPECT_EQ(kx_eval_t_on_ucurve2d(c, 0.3, g, &p, &u, &v, &n), 0);
  EXPECT_EQ(u.length + v.length + n.length + std::fabs(u.i) + std::fabs(v.j) + std::fabs(n.i), 0.0);
}

TEST(uniform_curves, refuse_samples_without_number) {
  const owner c{uniform(kx_def_ubspl_curve2d, 9)}, s{uniform(kx_def_ubspl_curve3d, 9)};
  faults::clear_messages();
  EXPECT_TRUE(kx_mk_ucurve(c, 5.9e-7) == 80 && kx_mk_ucurve(s, 1.1e-7) == 80);
  EXPECT_EQ(faults::messages(),
            (std::vector<std::string>{"Memory Error: kx_mk_ucurve2d", "Memory Error: kx_mk_ucurve3d"}));
  EXPECT_EQ(c->curve_pnts->count + s->curve_pnts->count, 0);
}
