// Points and derivatives of curves of every kind.
#include "every_kind.hpp"

using namespace every_kind;

namespace {

kx::vec3 components(const vector_2d &v) { return {v.i, v.j, 0.0}; }
kx::vec3 components(const vector_3d &v) { return {v.i, v.j, v.k}; }

// Parameter, unit derivatives and normal of every sample.
struct stats {
  double t;
  kx::vec3 tangent, second, normal;
};
template <class R>
std::vector<stats> statistics(const list_hdr *list) {
  std::vector<stats> all;
  for (const R &r : curve_lists::records<R>(list)) {
    all.push_back({r.t, components(r.tangent), components(r.second), components(r.normal)});
    const auto &s = all.back();
    EXPECT_TRUE(r.tangent.length == (length(s.tangent) > 0) && r.second.length == (length(s.second) > 0) &&
                r.normal.length == (length(s.normal) > 0));
  }
  return all;
}

// By the maker of its kind, `steps` to a piece.
int32_t sample(curve *c, int32_t steps) {
  if (c->curve_type < 93) return kx_mk_ucurve(c, 1.0 / steps);
  if (one_piece(c->curve_type)) return kx_mk_ratbezier_curve(c, 1.0 / steps);
  return (c->curve_type % 5 == 3 ? kx_mk_nubspline : kx_mk_nurb_curve)(c, 0, 0, c->ctrl_pnts->count - c->degree, steps);
}

kx::vec3 direction(const kx::vec3 &v) { return length(v) < 1e-7 ? kx::vec3{} : v / length(v); }

}  // namespace

TEST(curve_evaluation, agrees_with_a_second_way) {
  for_each_curve([](const curve *c) {
    const auto all = pieces(c);
    const range r(c);
    EXPECT_TRUE(r.from == all.front().start && r.to == all.back().end);
    std::vector<double> t, flat;
    for (const piece &p : all)
      for (int i = 0; i < 23; ++i) t.push_back(p.start + (p.end - p.start) * i / 23);
    t.insert(t.end(), {r.to, r.from, 0.3 * r.from + 0.7 * r.to, r.from + 1e-9});  // also backwards
    const auto n = static_cast<int32_t>(t.size());
    const bool space = in_space(c->curve_type);
    flat.resize((space ? 3 : 2) * t.size() + 1, -77);
    EXPECT_EQ((space ? kx_curve_pntsat_3d : kx_curve_pntsat_2d)(c, t.data(), n, flat.data()), 0);
    EXPECT_EQ(flat.back(), -77);
    const auto got = widened(flat, space);
    for (size_t i = 0; i < t.size(); ++i) {
      const auto p = std::find_if(all.rbegin(), all.rend() - 1, [&](const piece &q) { return t[i] >= q.start; });
      EXPECT_LT(apart(point(c, t[i]), p->at(t[i])), 1e-12) << t[i];
      EXPECT_LT(apart(got[i], p->at(t[i])), 1e-12) << t[i];
    }
  });
}

// The makers sample the same pieces, the uniform ones without the joints but counting them, with unit derivatives.
TEST(curve_evaluation, meets_the_makers) {
  for_each_curve(
      [](curve *c) {
        const int32_t type = c->curve_type;
        const auto all = pieces(c);
        EXPECT_EQ(sample(c, 4), 0);
        const auto points = curve_lists::coordinates(c->curve_pnts);
        const auto have =
            in_space(type) ? statistics<curve_stats_3d>(c->curve_stats) : statistics<curve_stats_2d>(c->curve_stats);
        const list_item *item = c->curve_pnts->head;
        ASSERT_TRUE(have.size() == points.size() &&
                    (type == 85 || type == 86 || points.size() == all.size() * (type < 93 ? 4 : 5) + (type < 93)));
        size_t at = 0;
        for (size_t s = 0; s < all.size(); ++s)
          for (int i = type < 93 && s > 0; i <= 4; ++i, ++at, item = item->next) {
            const double t = all[s].start + (all[s].end - all[s].start) * i / 4;
            const stats &h = have[at];
            EXPECT_EQ(item->datatype, in_space(type) ? KX_POLY_3D : KX_POLY_2D);
            EXPECT_EQ(kx::read_seqnr(item->data, item->datatype), static_cast<int32_t>(5 * s) + i);
            EXPECT_NEAR(h.t, type < 93 ? i / 4.0 : t, 1e-12);
            const pnt_3d want = all[s].at(t);
            EXPECT_LT(length(points[at] - kx::space::read(want)), 1e-10);
            if (i % 4 == 0) continue;  // at a joint there may be two answers
            const auto d = derivatives(c, t, 2);
            const bool none = type == 94 || type == 95;
            const kx::vec3 u = none ? kx::vec3{} : direction(kx::space::read(d[1])),
                           v = none ? kx::vec3{} : direction(kx::space::read(d[2]));
            const kx::vec3 across = in_space(type) ? direction(v - dot(u, v) * u) : kx::vec3{-u.y, u.x, 0};
            EXPECT_LT(length(h.tangent - u) + length(h.second - v), 1e-8);
            EXPECT_LT(length(h.normal - across), 1e-7);
          }
      },
      {1, 2, 3, 4, 7, 15});
}

TEST(curve_evaluation, derivatives_are_the_limits_of_differences) {
  for_each_curve([](const curve *c) {
    const range r(c);
    const double t = r.from + 0.37 * (r.to - r.from), h = 1e-5;
    const auto before = derivatives(c, t - h, 6), here = derivatives(c, t, 6), after = derivatives(c, t + h, 6);
    EXPECT_EQ(apart(here[0], point(c, t)), 0);
    const auto size = [](const pnt_3d &v) { return apart(v, {}); };
    for (size_t i = 0; i < 6; ++i) {
      const pnt_3d slope = {(after[i].x - before[i].x) / (2 * h), (after[i].y - before[i].y) / (2 * h),
                            (after[i].z - before[i].z) / (2 * h)};
      EXPECT_LT(apart(here[i + 1], slope), 1e-5 * (1 + size(here[i + 1])) + 1e-6 * size(after[i + 1])) << i;
    }
    const bool weights = c->weights->count > 0 && c->curve_type != 93 && c->curve_type != 98 && c->curve_type > 92;
    if (!weights && c->degree < 6) EXPECT_EQ(size(here[6]), 0.0);
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
               {94, [](curve *c) { c->curve_type = 95; }, 3},
               {94, [](curve *c) { c->degree = 4; }, 4},
               {93, [&](curve *c) { value(c->knots, 5, 99); }, 4},
               {93, [&](curve *c) { value(c->knots, 0, -inf); }, 4},
               {83, [&](curve *c) { x(c, nan); }, 5},
               {94, [&](curve *c) { x(c, 1e61); }, 5},
               {85, [&](curve *c) { c->basis[7] = inf; }, 5},
               {94, [](curve *c) { c->ctrl_pnts->tail->datatype = KX_RNUMBER; }, 5},
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
  EXPECT_EQ(kx_curve_pnt_3d(c, 0, &q), 3);
  for (double t : {-2e-7, 6 + 8e-7, nan, inf, -inf}) EXPECT_EQ(kx_curve_pnt_2d(c, t, &p), 7) << t;
  EXPECT_EQ(p.x, 5);
  for (double t : {-0.9e-7, 6 + 6e-7}) EXPECT_LT(apart(point(c, t), point(c, t < 1 ? 0 : 6)), 1e-15);
  const double t[] = {1, 2, nan};
  EXPECT_TRUE(kx_curve_pntsat_2d(c, t, 3, row) == 7 && kx_curve_pntsat_2d(c, t, -1, row) == 8);
  EXPECT_TRUE(kx_curve_derivs_2d(c, 1, -1, row) == 8 && kx_curve_derivs_2d(c, 1, 31, row) == 8);
}

TEST(curve_evaluation, without_memory_the_makers_keep_their_samples) {
  const struct {
    int32_t type;
    int before, samples;
    const char *location;
  } cases[] = {{83, 2, 5, "ll_create_list"},      {84, 2, 5, "ll_create_list"},     {96, 2, 3, "ll_create_list"},
               {97, 2, 3, "ll_create_list"},      {93, 3, 3, "kx_mk_nubspline_2d"}, {98, 3, 3, "kx_mk_nubspline_3d"},
               {94, 3, 3, "mk_nurb_curve2d - 2"}, {95, 3, 3, "mk_nurb_curve3d - 2"}};
  for (const auto &k : cases) {
    const auto define = [&] { return wavy(k.type, 3, one_piece(k.type) ? 4 : 5); };
    const auto make = [](curve *c) { return sample(c, 2); };
    curve_lists::expect_samples_kept(define, make, k.before, k.location, k.samples);
  }
}
