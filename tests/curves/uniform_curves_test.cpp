// Uniform curves sampled and evaluated.
#include <limits>

#include "curve_lists.hpp"

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
  const owner c{uniform(kx_def_ubspl_curve2d, 6)};
  EXPECT_EQ(kx_mk_ucurve2d(c, 0.1), 0);
  const auto ctrl = records<poly_2d>(c->ctrl_pnts), at = records<poly_2d>(c->curve_pnts);
  const auto stats = records<curve_stats_2d>(c->curve_stats);
  ASSERT_TRUE(at.size() == 31 && stats.size() == 31);
  for (size_t i = 0; i < at.size(); ++i) {
    const size_t segment = i == 0 ? 0 : (i - 1) / 10;
    const poly_2d want = blend(&ctrl[segment], stats[i].t);
    EXPECT_NEAR(stats[i].t, 0.1 * static_cast<double>(i - 10 * segment), 1e-12);
    EXPECT_EQ(at[i].seqnr, static_cast<int32_t>(i + segment));
    EXPECT_NEAR(std::hypot(at[i].x - want.x, at[i].y - want.y), 0.0, 1e-12);
  }
  EXPECT_EQ(c->ctrl_pnts->current, c->ctrl_pnts->head);
  EXPECT_EQ(kx_mk_ucurve2d(c, 0.5), 0);  // appends, numbered anew
  EXPECT_TRUE(c->curve_pnts->count == 31 + 7 && records<poly_2d>(c->curve_pnts)[31].seqnr == 0);
}

TEST(uniform_curves, have_unit_statistics) {
  const owner c{uniform(kx_def_ubspl_curve2d, 5)}, s{space_curve(kx_def_ubspl_curve3d, 5)};
  EXPECT_EQ(kx_mk_ucurve(c, 1e-3) + kx_mk_ucurve(s, 1e-3), 0);
  EXPECT_TRUE(kx::datatype(s->curve_pnts) == KX_POLY_3D && kx::datatype(s->curve_stats) == KX_CURVE_STATS_3D);
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
    EXPECT_TRUE(std::fabs(dot(n, u)) <= 1e-12 && std::fabs(dot(n, n) - 1) <= 1e-12 && dot(n, v) > 0) << i;
    EXPECT_EQ(stats[i].tangent.length + stats[i].second.length + stats[i].normal.length, 3.0);
    EXPECT_TRUE(flat[i].normal.i == -flat[i].tangent.j && flat[i].normal.j == flat[i].tangent.i);
    EXPECT_TRUE(flat_points[i].x == p[i].x && flat_points[i].y == p[i].y);  // space is the plane with a z
  }
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
    const owner c{uniform(k.define, k.points)};
    EXPECT_EQ(kx_mk_ucurve(c, k.step), 0);
    EXPECT_TRUE(c->curve_pnts->count == k.samples && c->curve_stats->count == k.samples) << &k - cases;
    EXPECT_EQ(+c->step, k.samples == 21 ? 0.1 : k.step);
  }
  // A list of nine counts eight points, yet the groups of four are read round all nine.
  const double ends[] = {0, 3, 7, 2, 6, 1};
  for (bool space : {false, true}) {
    const owner c{space ? space_curve(kx_def_ubezier_curve3d, 9) : uniform(kx_def_ubezier_curve2d, 9)};
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
  for (curve *none : {c.c, static_cast<curve *>(nullptr)}) {
    EXPECT_EQ(kx_mk_ucurve(none, 0.1), 80);
    EXPECT_TRUE(kx_mk_ucurve2d(none, 0.1) == (none ? 2 : 1) && kx_mk_ucurve3d(none, 0.1) == (none ? 2 : 1));
  }
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
    EXPECT_NEAR(std::hypot(p.x - blend(&ctrl[0], t).x, p.y - blend(&ctrl[0], t).y), 0.0, 1e-12);
    EXPECT_NEAR(std::hypot(u.i, u.j), 1.0, 1e-12);
  }
  EXPECT_EQ(kx_eval_t_on_ucurve2d(c, 0.3, g, nullptr, nullptr, nullptr, nullptr), 0);
  p.x = -1;
  for (double t : {-1.1e-7, 1.00000021, 1.000001, std::nan("")})
    EXPECT_EQ(kx_eval_t_on_ucurve2d(c, t, g, &p, &u, &v, &n), 2) << t;
  EXPECT_EQ(kx_eval_t_on_ucurve2d(nullptr, 0.3, g, &p, &u, &v, &n), 40);
  EXPECT_TRUE(kx_eval_t_on_ucurve2d(c, 0.3, nullptr, &p, &u, &v, &n) == 40 && p.x == -1);
  g[0] = g[2] = g[3] = g[1];  // no direction in a point
  EXPECT_EQ(kx_eval_t_on_ucurve2d(c, 0.3, g, &p, &u, &v, &n), 0);
  EXPECT_EQ(u.length + v.length + n.length + std::fabs(u.i) + std::fabs(v.j) + std::fabs(n.i), 0.0);
  g[3] = nullptr;
  EXPECT_EQ(kx_eval_t_on_ucurve2d(c, 0.3, g, &p, &u, &v, &n), 40);
}

TEST(uniform_curves, refuse_samples_without_number) {
  const owner c{uniform(kx_def_ubspl_curve2d, 9)}, s{space_curve(kx_def_ubspl_curve3d, 9)};
  faults::clear_messages();
  EXPECT_TRUE(kx_mk_ucurve(c, 5.9e-7) == 80 && kx_mk_ucurve(s, 1.1e-7) == 80);
  EXPECT_EQ(faults::messages(),
            (std::vector<std::string>{"Memory Error: kx_mk_ucurve2d", "Memory Error: kx_mk_ucurve3d"}));
  EXPECT_EQ(c->curve_pnts->count + s->curve_pnts->count, 0);
}

TEST(uniform_curves, keep_their_samples_when_memory_runs_out) {
  const auto plane = [] { return uniform(kx_def_ubspl_curve2d, 5); };
  const auto space = [] { return space_curve(kx_def_ubspl_curve3d, 5); };
  for (const auto &define : {+plane, +space})
    expect_samples_kept(
        define, [](curve *c) { return kx_mk_ucurve(c, 0.5); }, 2, "ll_create_list", 5);
}
