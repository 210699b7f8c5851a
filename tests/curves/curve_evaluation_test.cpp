// Points and derivatives of curves of every kind.
#include "every_kind.hpp"

using namespace every_kind;
using curve_lists::records;

TEST(curve_evaluation, agrees_with_a_second_way) {
  for_each_curve([](const curve *c) {
    const auto all = pieces(c);
    const range r(c);
    EXPECT_TRUE(r.from == all.front().start && r.to == all.back().end);
    std::vector<double> t, flat;
    for (const piece &p : all)
      for (int i = 0; i < 23; ++i) t.push_back(p.start + (p.end - p.start) * i / 23);
    t.push_back(r.to);
    t.insert(t.end(), {r.from, 0.3 * r.from + 0.7 * r.to, r.from + 1e-9});  // also backwards
    const auto n = static_cast<int32_t>(t.size());
    flat.resize(3 * t.size() + 1, -77);
    const bool space = in_space(c->curve_type);
    EXPECT_EQ(space ? kx_curve_pntsat_3d(c, t.data(), n, flat.data()) : kx_curve_pntsat_2d(c, t.data(), n, flat.data()),
              0);
    const size_t d = space ? 3 : 2;
    EXPECT_EQ(flat[d * t.size()], -77);
    for (size_t i = 0; i < t.size(); ++i) {
      const auto p = std::find_if(all.rbegin(), all.rend() - 1, [&](const piece &q) { return t[i] >= q.start; });
      pnt_3d want = p->at(t[i]);
      if (!space) want.z = 0;
      EXPECT_LT(apart(point(c, t[i]), want), 1e-12) << t[i];
      EXPECT_LT(apart({flat[d * i], flat[d * i + 1], space ? flat[d * i + 2] : 0}, want), 1e-12) << t[i];
    }
  });
}

TEST(curve_evaluation, meets_the_makers) {
  const owner u{wavy(84)}, k{wavy(95, 4)};
  kx_mk_ucurve3d(u, 0.25);
  const auto samples = records<poly_3d>(u->curve_pnts);
  for (size_t i = 0; i < samples.size(); ++i)
    EXPECT_LT(apart(point(u, 0.25 * static_cast<double>(i)), {samples[i].x, samples[i].y, samples[i].z}), 1e-12);
  kx_mk_nurb_curve3d(k, 0, 0, 5, 3);
  const auto points = records<poly_3d>(k->curve_pnts);
  const auto stats = records<curve_stats_3d>(k->curve_stats);
  EXPECT_EQ(points.size(), 16u);
  for (size_t i = 0; i < points.size(); ++i)
    EXPECT_LT(apart(point(k, stats[i].t), {points[i].x, points[i].y, points[i].z}), 1e-12);
}

TEST(curve_evaluation, derivatives_are_the_limits_of_differences) {
  for_each_curve([](const curve *c) {
    const range r(c);
    const double t = r.from + 0.37 * (r.to - r.from), h = 1e-5;
    const bool space = in_space(c->curve_type);
    const size_t d = space ? 3 : 2;
    double at[3][21];
    for (int i = 0; i < 3; ++i)
      EXPECT_EQ(
          space ? kx_curve_derivs_3d(c, t + (i - 1) * h, 6, at[i]) : kx_curve_derivs_2d(c, t + (i - 1) * h, 6, at[i]),
          0);
    const pnt_3d p = point(c, t);
    EXPECT_TRUE(at[1][0] == p.x && at[1][1] == p.y);
    for (size_t i = 0; i < 6 * d; ++i)
      EXPECT_NEAR(at[1][i + d], (at[2][i] - at[0][i]) / (2 * h),
                  1e-5 * (1 + std::fabs(at[1][i + d])) + 1e-6 * std::fabs(at[2][i + d]))
          << i;
    const bool weights = c->weights->count > 0 && c->curve_type != 93 && c->curve_type != 98 && c->curve_type > 92;
    if (!weights && c->degree < 6) EXPECT_EQ(at[1][6 * d], 0.0);
  });
}

// What every function answers to a curve or a parameter that is none.
TEST(curve_evaluation, refuses_what_is_no_curve) {
  const double nan = std::nan(""), inf = HUGE_VAL;
  const auto value = [](list_hdr *list, int i, double v) {
    list_item *item = list->head;
    while (i-- > 0) item = item->next;
    static_cast<rnumber *>(item->data)->value = v;
  };
  const auto x = [](curve *c, double v) { static_cast<poly_2d *>(c->ctrl_pnts->tail->data)->x = v; };
  const struct {
    int32_t type;
    std::function<void(curve *)> change;
    int32_t code;
  } cases[] = {{94, [](curve *) {}, 0},
               {94, [](curve *c) { kx::release_items(*c->ctrl_pnts); }, 1},
               {94, [](curve *c) { c->degree = 9; }, 2},
               {94, [](curve *c) { c->degree = 0; }, 2},
               {93, [](curve *c) { c->degree = 16; }, 2},
               {96, [](curve *c) { c->degree = 31; }, 2},
               {96, [](curve *c) { c->degree = 9; }, 2},
               {83,
                [](curve *c) {
                  for (int i = 0; i < 6; ++i) kx::release(ll_delete_list_item(c->ctrl_pnts, 1, 0));
                },
                2},
               {94, [](curve *c) { c->curve_type = 95; }, 3},
               {94, [](curve *c) { c->curve_type = 89; }, 3},
               {94, [](curve *c) { c->degree = 4; }, 4},
               {93, [&](curve *c) { value(c->knots, 5, 99); }, 4},
               {93, [&](curve *c) { value(c->knots, 10, nan); }, 4},
               {93, [&](curve *c) { value(c->knots, 0, -inf); }, 4},
               {93,
                [&](curve *c) {
                  for (int i = 0; i < 11; ++i) value(c->knots, i, 2);
                },
                4},
               {83, [&](curve *c) { x(c, nan); }, 5},
               {94, [&](curve *c) { x(c, 1e61); }, 5},
               {85, [&](curve *c) { c->basis[7] = inf; }, 5},
               {94, [](curve *c) { c->ctrl_pnts->tail->datatype = KX_RNUMBER; }, 5},
               {94, [&](curve *c) { value(c->weights, 0, 0); }, 6},
               {94, [&](curve *c) { value(c->weights, 8, -1); }, 6},
               {96, [&](curve *c) { value(c->weights, 8, nan); }, 6},
               {96, [](curve *c) { kx::release(ll_delete_list_item(c->weights, 1, 0)); }, 6}};
  for (const auto &k : cases) {
    SCOPED_TRACE(&k - cases);
    const owner c{wavy(k.type)};
    k.change(c);
    const list_item *cursor = c->ctrl_pnts->current;
    pnt_2d p{};
    double a = 1, b, row[2];
    int32_t n;
    EXPECT_EQ(kx_curve_pnt_2d(c, 2.5, &p), k.type == 96 && k.code == 0 ? 7 : k.code);
    if (k.code != 3 || c->curve_type != 95) EXPECT_EQ(kx_curve_range(c, &a, &b), k.code);
    EXPECT_EQ(kx_curve_chords_2d(c, 10, 0, nullptr, &n), k.code ? k.code : 10);
    EXPECT_EQ(kx_curve_pntsat_2d(c, &a, 0, row), k.code);
    EXPECT_EQ(kx_curve_closest_2d(c, &p, nullptr, nullptr, nullptr), k.code);
    EXPECT_EQ(kx_curve_box_2d(c, &p, &p), k.code);
    EXPECT_EQ(c->ctrl_pnts->current, cursor);
  }
  const owner c{wavy(83)};
  pnt_2d p{5, 5};
  pnt_3d q;
  double row[4];
  EXPECT_EQ(kx_curve_pnt_2d(nullptr, 0, &p), 1);
  EXPECT_EQ(kx_curve_pnt_3d(c, 0, &q), 3);
  EXPECT_EQ(kx_curve_pnt_2d(c, 0, nullptr), 40);
  for (double t : {-2e-7, 6 + 8e-7, nan, inf, -inf}) EXPECT_EQ(kx_curve_pnt_2d(c, t, &p), 7) << t;
  EXPECT_EQ(p.x, 5);
  for (double t : {-0.9e-7, 6 + 6e-7}) EXPECT_LT(apart(point(c, t), point(c, t < 1 ? 0 : 6)), 1e-15);
  const double t[] = {1, 2, nan};
  EXPECT_TRUE(kx_curve_pntsat_2d(c, t, 3, row) == 7 && kx_curve_pntsat_2d(c, t, -1, row) == 8);
  EXPECT_TRUE(kx_curve_derivs_2d(c, 1, -1, row) == 8 && kx_curve_derivs_2d(c, 1, 31, row) == 8);
}

TEST(curve_evaluation, answers_without_memory) {
  const auto check = [](int n, curve *c, int32_t code) {
    EXPECT_TRUE(code == (n > 0 ? 80 : 0) && faults::messages().empty());
    curve_lists::free_curve(c);
  };
  for (int32_t type : plane_types) {
    pnt_2d p;
    const auto call = [&](curve *c) { return kx_curve_box_2d(c, &p, &p); };
    EXPECT_EQ(faults::fail_each_allocation([=] { return wavy(type); }, call, check), 1);
  }
}
