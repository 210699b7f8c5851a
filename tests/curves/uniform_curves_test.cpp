// Uniform curves sampled and evaluated.
#include <limits>

#include "curve_lists.hpp"
#include "support/faults.hpp"

using namespace curve_lists;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

// A second way to the B-spline: its blending functions.
poly_2d blend(const poly_2d *g, double t) {
  const double s = 1 - t, w[4] = {s * s * s / 6, (3 * t * t * t - 6 * t * t + 4) / 6,
                                  (-3 * t * t * t + 3 * t * t + 3 * t + 1) / 6, t * t * t / 6};
  poly_2d p{};
  for (int i = 0; i < 4; ++i) p.x += w[i] * g[i].x, p.y += w[i] * g[i].y;
  return p;
}

curve *space_curve(curve *(KX_CALL *define)(list_hdr *), int n) {
  list_hdr *list = points(KX_POLY_3D, n);
  curve *c = define(list);
  ll_purge_list(list);
  return c;
}

}  // namespace

TEST(uniform_curves, share_the_joints_and_count_every_try) {
  curve *c = uniform(kx_def_ubspl_curve2d, 6);
  EXPECT_EQ(kx_mk_ucurve2d(c, 0.1), 0);
  const auto ctrl = records<poly_2d>(c->ctrl_pnts), at = records<poly_2d>(c->curve_pnts);
  const auto stats = records<curve_stats_2d>(c->curve_stats);
  ASSERT_EQ(at.size(), 31u);
  ASSERT_EQ(stats.size(), 31u);
  for (size_t i = 0; i < at.size(); ++i) {
    const size_t segment = i == 0 ? 0 : (i - 1) / 10;
    const poly_2d want = blend(&ctrl[segment], stats[i].t);
    EXPECT_NEAR(stats[i].t, 0.1 * static_cast<double>(i - 10 * segment), 1e-12);
    EXPECT_EQ(at[i].seqnr, static_cast<int32_t>(i + segment));
    EXPECT_NEAR(std::hypot(at[i].x - want.x, at[i].y - want.y), 0.0, 1e-12);
  }
  EXPECT_EQ(c->ctrl_pnts->current, c->ctrl_pnts->head);
  EXPECT_EQ(kx_mk_ucurve2d(c, 0.5), 0);  // appends, numbered anew
  EXPECT_EQ(c->curve_pnts->count, 31 + 7);
  EXPECT_EQ(records<poly_2d>(c->curve_pnts)[31].seqnr, 0);
  free_curve(c);
}

TEST(uniform_curves, have_unit_statistics) {
  curve *c = uniform(kx_def_ubspl_curve2d, 5), *s = space_curve(kx_def_ubspl_curve3d, 5);
  EXPECT_EQ(kx_mk_ucurve(c, 1e-3), 0);
  EXPECT_EQ(kx_mk_ucurve(s, 1e-3), 0);
  EXPECT_EQ(s->curve_pnts->head->datatype, KX_POLY_3D);
  EXPECT_EQ(s->curve_stats->head->datatype, KX_CURVE_STATS_3D);
  const auto p = records<poly_3d>(s->curve_pnts);
  const auto flat_points = records<poly_2d>(c->curve_pnts);
  const auto stats = records<curve_stats_3d>(s->curve_stats);
  const auto flat = records<curve_stats_2d>(c->curve_stats);
  const auto components = [](const vector_3d &v) { return kx::vec3{v.i, v.j, v.k}; };
  for (size_t i = 1; i + 1 < p.size(); i += 37) {
    const kx::vec3 before = kx::space::read(p[i - 1]), here = kx::space::read(p[i]), after = kx::space::read(p[i + 1]);
    const kx::vec3 u = components(stats[i].tangent), v = components(stats[i].second), n = components(stats[i].normal);
    EXPECT_NEAR(dot(u, kx::unit(after - before)), 1.0, 1e-6);
    EXPECT_NEAR(dot(v, kx::unit(1e6 * (after - 2.0 * here + before))), 1.0, 1e-6);
    EXPECT_NEAR(dot(n, u), 0.0, 1e-12);
    EXPECT_NEAR(dot(n, n), 1.0, 1e-12);
    EXPECT_GT(dot(n, v), 0.0);
    EXPECT_EQ(stats[i].tangent.length + stats[i].second.length + stats[i].normal.length, 3.0);
    EXPECT_TRUE(flat[i].normal.i == -flat[i].tangent.j && flat[i].normal.j == flat[i].tangent.i);
    EXPECT_TRUE(flat_points[i].x == p[i].x && flat_points[i].y == p[i].y);  // space is the plane with a z
  }
  free_curve(c);
  free_curve(s);
}

TEST(uniform_curves, sample_by_step_and_kind) {
  const struct {
    int32_t(KX_CALL *define)(list_hdr *, curve *);
    int points;
    double step;
    int32_t samples;
  } cases[] = {{kx_def_ubspl_curve2d, 4, 0.25, 5},      {kx_def_ubspl_curve2d, 4, 0.3, 4},
               {kx_def_ubspl_curve2d, 5, 2.0, 1},       {kx_def_ubspl_curve2d, 5, 0.0, 21},
               {kx_def_ubspl_curve2d, 5, 1e-7, 21},     {kx_def_ubspl_curve2d, 5, -0.5, 21},
               {kx_def_ubspl_curve2d, 5, infinity, 21}, {kx_def_ubspl_curve2d, 5, std::nan(""), 21},
               {kx_def_ubezier_curve2d, 7, 0.1, 11},    {kx_def_ubezier_curve2d, 8, 0.1, 51}};
  for (const auto &k : cases) {
    curve *c = uniform(k.define, k.points);
    EXPECT_EQ(kx_mk_ucurve(c, k.step), 0);
    EXPECT_EQ(c->curve_pnts->count, k.samples);
    EXPECT_EQ(c->curve_stats->count, k.samples);
    EXPECT_EQ(+c->step, k.samples == 21 ? 0.1 : k.step);
    free_curve(c);
  }
  // A list of nine counts eight points, yet the groups of four are read round all nine.
  const double ends[] = {0, 3, 7, 2, 6, 1};
  for (bool space : {false, true}) {
    curve *c = space ? space_curve(kx_def_ubezier_curve3d, 9) : uniform(kx_def_ubezier_curve2d, 9);
    EXPECT_EQ(kx_mk_ucurve(c, 1.0), 0);
    ASSERT_EQ(c->curve_pnts->count, 6);
    const double *end = ends;
    for (const list_item &item : kx::items(c->curve_pnts))
      EXPECT_NEAR(kx::read_point(item.data, item.datatype).x, *end++, 1e-12);
    EXPECT_EQ(static_cast<poly_2d *>(c->ctrl_pnts->current->data)->seqnr, 2);
    free_curve(c);
  }
}

TEST(uniform_curves, refuse_what_is_no_curve) {
  EXPECT_EQ(kx_mk_ucurve(nullptr, 0.1), 80);
  EXPECT_EQ(kx_mk_ucurve2d(nullptr, 0.1), 1);
  EXPECT_EQ(kx_mk_ucurve3d(nullptr, 0.1), 1);
  curve *c = uniform(kx_def_ubspl_curve2d, 3);
  EXPECT_EQ(kx_mk_ucurve2d(c, 0.1), 2);
  c->ctrl_pnts->current->datatype = KX_RNUMBER;
  EXPECT_EQ(kx_mk_ucurve(c, 0.1), -1);
  EXPECT_EQ(c->curve_pnts->count, 0);
  EXPECT_EQ(kx_clear_curve(c, 1), 4);
  EXPECT_EQ(kx_mk_ucurve(c, 0.1), 80);
  EXPECT_EQ(kx_mk_ucurve2d(c, 0.1), 2);
  free_curve(c);
  c = uniform(kx_def_ubspl_curve2d, 4);
  kx::release(c->ctrl_pnts->tail->data);
  c->ctrl_pnts->tail->data = nullptr;
  EXPECT_EQ(kx_mk_ucurve2d(c, 0.1), 2);
  free_curve(c);
}

TEST(uniform_curves, read_every_record_as_a_polygon_point) {
  curve *c = uniform(kx_def_ubspl_curve2d, 4, KX_PNT_2D);
  // the bytes of x = 1.5 where a poly_2d has its x, and no more than the pnt_2d's own
  const int32_t words[4] = {7, 0, 0x3ff80000, 0};
  for (list_item &item : kx::items(c->ctrl_pnts)) std::memcpy(item.data, words, sizeof words);
  EXPECT_EQ(kx_mk_ucurve(c, 0.5), 0);
  for (const poly_2d &p : records<poly_2d>(c->curve_pnts)) EXPECT_NEAR(std::hypot(p.x - 1.5, p.y), 0.0, 1e-15);
  free_curve(c);
}

TEST(uniform_curves, evaluate_at_a_parameter) {
  curve *c = uniform(kx_def_ubspl_curve2d, 4);
  std::vector<poly_2d> ctrl = records<poly_2d>(c->ctrl_pnts);
  poly_2d *g[] = {&ctrl[0], &ctrl[1], &ctrl[2], &ctrl[3]};
  pnt_2d p;
  vector_2d u, v, n;
  for (double t : {-1e-8, -1e-7, 0.0, 0.3, 1.0, 1.0000002}) {
    EXPECT_EQ(kx_eval_t_on_ucurve2d(c, t, g, &p, &u, &v, &n), 0) << t;
    EXPECT_NEAR(std::hypot(p.x - blend(&ctrl[0], t).x, p.y - blend(&ctrl[0], t).y), 0.0, 1e-12);
    EXPECT_NEAR(std::hypot(u.i, u.j), 1.0, 1e-12);
  }
  EXPECT_EQ(kx_eval_t_on_ucurve2d(c, 0.3, g, nullptr, nullptr, nullptr, nullptr), 0);
  p.x = -1;
  for (double t : {-1.1e-7, 1.00000021, 1.000001, std::nan("")})
    EXPECT_EQ(kx_eval_t_on_ucurve2d(c, t, g, &p, &u, &v, &n), 2) << t;
  EXPECT_EQ(kx_eval_t_on_ucurve2d(nullptr, 0.3, g, &p, &u, &v, &n), 40);
  EXPECT_EQ(kx_eval_t_on_ucurve2d(c, 0.3, nullptr, &p, &u, &v, &n), 40);
  EXPECT_EQ(+p.x, -1);
  g[0] = g[2] = g[3] = g[1];  // no direction in a point
  EXPECT_EQ(kx_eval_t_on_ucurve2d(c, 0.3, g, &p, &u, &v, &n), 0);
  EXPECT_EQ(u.length + v.length + n.length + std::fabs(u.i) + std::fabs(v.j) + std::fabs(n.i), 0.0);
  g[3] = nullptr;
  EXPECT_EQ(kx_eval_t_on_ucurve2d(c, 0.3, g, &p, &u, &v, &n), 40);
  free_curve(c);
}

TEST(uniform_curves, keep_their_samples_when_memory_runs_out) {
  for (bool space : {false, true}) {
    const auto without_outputs = [=] {
      curve *c = space ? space_curve(kx_def_ubspl_curve3d, 5) : uniform(kx_def_ubspl_curve2d, 5);
      EXPECT_EQ(ll_purge_list(c->curve_pnts) + ll_purge_list(c->curve_stats), 0);
      c->curve_pnts = c->curve_stats = nullptr;
      return c;
    };
    const auto make = [](curve *c) { return kx_mk_ucurve(c, 0.5); };
    EXPECT_EQ(faults::fail_each_allocation(
                  without_outputs, make,
                  [](int n, curve *c, int32_t code) {
                    EXPECT_EQ(code, n > 0 ? 80 : 0);
                    EXPECT_EQ(ll_get_list_count(c->curve_pnts), n > 0 ? std::max(0, (n - 3) / 4) : 5);
                    EXPECT_EQ(ll_get_list_count(c->curve_stats), ll_get_list_count(c->curve_pnts));
                    EXPECT_EQ(faults::messages().size(), n > 0 ? 1u : 0u);
                    free_curve(c);
                  }),
              2 + 4 * 5);
  }
}
