// Rational Bezier curves defined, sampled, evaluated and cut.
#include <functional>

#include "bezier_reference.hpp"

using namespace curve_lists;

namespace {

curve *rational(const list_hdr *from, const std::vector<double> &weights) {
  auto *ctrl = const_cast<list_hdr *>(from), *w = numbers(weights);
  curve *c = kx_def_ratbezier_curve(ctrl, w);
  EXPECT_TRUE(kx::empty(ctrl) == (c != nullptr));
  ll_purge_all_items(ctrl), ll_purge_all_items(w);
  return c;
}

std::vector<double> uneven(int n, double factor = 1.0) {
  std::vector<double> w;
  for (int i = 0; i < n; ++i) w.push_back(factor * (1 + 0.4 * (i % 3)));
  return w;
}

list_hdr *corner(double cx, double cy) {
  list_hdr *list = ll_create_list();
  const double at[][2] = {{1, 0}, {1, 1}, {0, 1}};
  for (const auto &[x, y] : at) ll_add_list_item(list, 1, new (kx_create_pnt_2d()) pnt_2d{x + cx, y + cy}, KX_PNT_2D);
  return list;
}

}  // namespace

TEST(rational_bezier, makes_a_quarter_of_a_circle) {
  const owner c{rational(points(KX_POLY_2D, 3), {1, std::sqrt(0.5), 1})};
  const double at[][2] = {{1, 0}, {1, 1}, {0, 1}};
  int i = 0;
  for (const list_item &item : kx::items(c->ctrl_pnts)) {
    auto *p = static_cast<poly_2d *>(item.data);
    p->x = at[i][0], p->y = at[i++][1];
  }
  EXPECT_EQ(kx_mk_ratbezier_curve(c, 0.01), 0);
  const auto samples = records<poly_2d>(c->curve_pnts);
  const auto stats = records<curve_stats_2d>(c->curve_stats);
  ASSERT_TRUE(samples.size() == 101 && stats.size() == 101 && stats.back().t == 1.0);
  for (size_t k = 0; k < 101; ++k) {
    const poly_2d p = samples[k];
    EXPECT_NEAR(std::hypot(p.x, p.y), 1.0, 1e-15);
    EXPECT_NEAR(std::hypot(stats[k].tangent.i + p.y, stats[k].tangent.j - p.x), 0.0, 1e-13);
    EXPECT_NEAR(std::hypot(stats[k].normal.i + p.x, stats[k].normal.j + p.y), 0.0, 1e-13);
    EXPECT_TRUE(stats[k].tangent.length == 1.0 && p.seqnr == static_cast<int32_t>(k));
  }
}

TEST(rational_bezier, agrees_with_de_casteljau_and_differences) {
  for (int32_t tag : {KX_PNT_2D, KX_POLY_2D, KX_PNT_3D, KX_POLY_3D})
    for (int n : {2, 3, 4, 10, 31}) {
      const bool space = kx::is_space_point(tag);
      const owner c{rational(points(tag, n), uneven(n))}, scaled{rational(points(tag, n), uneven(n, -3))};
      const controls q = read_controls(c->ctrl_pnts, c->weights);
      EXPECT_TRUE(c->curve_type == (space ? 97 : 96) && c->degree == n - 1);
      EXPECT_EQ(kx_mk_ratbezier_curve(c, 0.125), 0);
      ASSERT_EQ(c->curve_pnts->count, 9);
      const list_item *stats = c->curve_stats->head;
      for (const list_item &item : kx::items(c->curve_pnts)) {
        const double t = *static_cast<const double *>(stats->data), h = 1e-4, tolerance = 1e-12 * n * n;
        const pnt_3d p = kx::read_point(item.data, item.datatype), a = casteljau(q, t - h), b = casteljau(q, t + h);
        pnt_3d at, other;
        EXPECT_EQ(kx_eval_pntonratbezier(c, t, &at) + kx_eval_pntonratbezier(scaled, t, &other), 0);
        EXPECT_LE(distance(p, casteljau(q, t)) + distance(p, at) + distance(p, other), tolerance);
        const kx::vec3 first{b.x - a.x, b.y - a.y, b.z - a.z},
            second{a.x + b.x - 2 * p.x, a.y + b.y - 2 * p.y, a.z + b.z - 2 * p.z};
        const auto component = [&](int vector, int k) {  // of the tangent and the second derivative
          const auto *values = static_cast<const double *>(stats->data) + 1;
          return k == 2 && !space ? 0.0 : values[vector * (space ? 5 : 4) + 2 + k];
        };
        const auto expect = [&](int vector, kx::vec3 want, double error) {
          want = kx::unit((1 / error) * want);
          const kx::vec3 is{component(vector, 0), component(vector, 1), component(vector, 2)};
          EXPECT_NEAR(kx::length(is - want), 0.0, 1e-3) << n << ' ' << t << ' ' << vector;
        };
        expect(0, first, h);
        if (n > 2) expect(1, second, h * h);
        stats = stats->next;
      }
    }
}

TEST(rational_bezier, with_equal_weights_is_the_bezier_curve) {
  for (int n : {3, 8, 30}) {
    const owner c{rational(points(KX_POLY_3D, n), std::vector<double>(static_cast<size_t>(n) + 2, 1.0))};
    EXPECT_EQ(kx_mk_rat_bezier_3d(c, 0.1), 0);
    int32_t n_out = 11;
    list_hdr *plain = kx_bezier_curve(c->ctrl_pnts, n, &n_out);
    for (size_t i = 0; i < 11; ++i) {
      const poly_3d a = records<poly_3d>(plain)[i], b = records<poly_3d>(c->curve_pnts)[i];
      EXPECT_NEAR(std::hypot(a.x - b.x, std::hypot(a.y - b.y, a.z - b.z)), 0.0, 1e-12 * n * n);
    }
    kx_purge_polygon(plain);
  }
}

TEST(rational_bezier, moves_with_its_control_points) {
  const owner here{rational(corner(0, 0), {1, 2, 5})}, there{rational(corner(100, -7), {1, 2, 5})};
  for (double t : {-1e-8, 0.0, 0.2, 0.77, 1.0, 1.0000001}) {
    pnt_3d a, b;
    EXPECT_EQ(kx_eval_pntonratbezier(here, t, &a) + kx_eval_pntonratbezier(there, t, &b), 0);
    EXPECT_NEAR(std::hypot(b.x - a.x - 100, b.y - a.y + 7), 0.0, 1e-13);
    EXPECT_EQ(+a.z, 0.0);
  }
}

TEST(rational_bezier, answers_in_the_order_of_the_tests) {
  const auto set = [](const list_hdr *list, int at, double value) {
    const list_item *item = list->head;
    while (at-- > 0) item = item->next;
    static_cast<rnumber *>(item->data)->value = value;
  };
  const auto clear = [](list_hdr *list) { kx::release_items(*list); };
  const struct {
    std::function<void(curve *)> change;
    double step;
    int32_t code, samples;
  } cases[] = {
      {[](curve *) {}, 0.25, 0, 5},
      {[](curve *) {}, 0.3, 0, 4},
      {[](curve *) {}, 0.0, 0, 11},
      {[](curve *) {}, -1.0, 0, 11},
      {[](curve *) {}, std::nan(""), 0, 11},
      {[](curve *) {}, INFINITY, 0, 11},
      {[](curve *) {}, 5.0, 0, 1},
      {[](curve *) {}, 1.0000001e-6, 7, 0},
      {[](curve *) {}, 1.1e-7, 7, 0},
      {[&](curve *c) { clear(c->weights), ll_purge_list(c->weights), c->weights = nullptr, c->degree = 0; }, 1, 1, 0},
      {[](curve *c) { c->degree = 0, c->curve_type = 97; }, 1, 2, 0},
      {[](curve *c) { c->degree = 31; }, 1, 2, 0},
      {[](curve *c) { c->degree = INT32_MIN; }, 1, 2, 0},
      {[&](curve *c) { c->curve_type = 97, clear(c->ctrl_pnts); }, 1, 3, 0},
      {[&](curve *c) { clear(c->ctrl_pnts), clear(c->weights); }, 1, 1, 0},
      {[&](curve *c) { clear(c->weights); }, 1, 6, 0},
      {[](curve *c) { c->degree = 4; }, 1, 2, 0},
      {[](curve *c) { c->weights->head->datatype = KX_INUMBER; }, 1, 6, 0},
      {[&](curve *c) { set(c->weights, 0, 0.0); }, 0.5, 5, 0},
      {[&](curve *c) { set(c->weights, 1, 0.0), set(c->weights, 2, 0.0); }, 0.5, 0, 3},
      {[&](curve *c) { set(c->weights, 1, -1.0), set(c->weights, 2, -1.0), set(c->weights, 3, 5.0); }, 0.5, 5, 1},
      {[&](curve *c) { set(c->weights, 3, std::nan("")); }, 0.5, 5, 0},
      {[&](curve *c) { static_cast<poly_2d *>(c->ctrl_pnts->head->data)->x = std::nan(""); }, 0.5, 0, 3}};
  for (const auto &k : cases) {
    const owner c{rational(points(KX_POLY_2D, 4), {1, 1, 1, 1})}, a{kx_create_curve()};
    k.change(c);
    EXPECT_EQ(kx_mk_rat_bezier_2d(c, k.step), k.code) << &k - cases;
    EXPECT_EQ(c->curve_pnts->count, k.samples) << &k - cases;
    pnt_3d p{9, 9, 9};
    const bool bad = k.code != 0 && k.code < 5;
    if (c->curve_type == 96) EXPECT_TRUE(kx_eval_pntonratbezier(c, 0.0, &p) == k.code || !bad) << &k - cases;
    EXPECT_TRUE(!bad || (p.x == 9 && kx_sub_ratbezier_curve2d(c, 0.5, a, a) == 40 && a->ctrl_pnts->count == 0));
  }
  const owner c{rational(points(KX_POLY_3D, 4), {1, 1, 1, 1})}, other{kx_create_curve()};
  pnt_3d p{9, 9, 9};
  for (double t : {-1.1e-7, 1.00000021, std::nan("")}) EXPECT_TRUE(kx_eval_pntonratbezier(c, t, &p) == 4 && p.x == 9);
  EXPECT_TRUE(kx_eval_pntonratbezier(c, 0.5, nullptr) == 40 && kx_eval_pntonratbezier(nullptr, 0.5, &p) == 1);
  EXPECT_TRUE(kx_mk_rat_bezier_2d(c, 0.5) == 3 && kx_mk_ratbezier_curve(other, 0.5) == 3);
  EXPECT_TRUE(kx_mk_ratbezier_curve(nullptr, 0.5) == 1 && kx_mk_rat_bezier_3d(nullptr, 0.5) == 1);
}

TEST(rational_bezier, is_defined_by_points_and_weights) {
  const int cases[][3] = {{2, 2, 0}, {31, 31, 0}, {4, 6, 0}, {1, 9, 1}, {0, 0, 1}, {4, 3, 2}, {32, 31, 2}, {32, 32, 3}};
  for (const auto &[n, w, code] : cases)
    for (const auto define : {kx_def_ratbezier_curve2d, kx_def_ratbezier_curve3d}) {
      const lists in(KX_POLY_2D, n, 0, static_cast<size_t>(w));
      const owner c{kx_create_curve()};
      EXPECT_EQ(define(in.ctrl, in.weights, c), code) << n << ' ' << w;
      EXPECT_TRUE(in.count() == (code ? n + w : 0) && c->ctrl_pnts->count == n - in.ctrl->count);
      EXPECT_EQ(c->curve_type, define == kx_def_ratbezier_curve2d ? 96 : 97);
      EXPECT_TRUE(define(in.ctrl, in.weights, nullptr) == 4 && define(nullptr, nullptr, c) == 1);
      if (code == 0) EXPECT_TRUE(define(c->ctrl_pnts, c->weights, c) == 0 && c->weights->count == w);
      in.release();
    }
  const lists in(KX_POLY_2D, 4, 4, 4);
  EXPECT_TRUE(!kx_def_ratbezier_curve(in.knots, in.weights) && !kx_def_ratbezier_curve(nullptr, nullptr));
  EXPECT_TRUE(!kx_def_ratbezier_curve(in.ctrl, nullptr) && in.count() == 12);
  in.release();
}

TEST(rational_bezier, is_cut_in_two) {
  for (int32_t tag : {KX_POLY_2D, KX_POLY_3D, KX_PNT_2D, KX_PNT_3D})
    for (int n : {2, 3, 7, 31})
      for (double t : {0.0, 0.3, 0.5, 1.0}) {
        const owner c{rational(points(tag, n), uneven(n))}, a{kx_create_curve()}, b{kx_create_curve()};
        EXPECT_EQ(kx_sub_ratbezier_curve(c, t, a, b), 0);
        expect_parts(read_controls(c->ctrl_pnts, c->weights), t, a, b, 1e-10);
      }
  const owner c{rational(points(KX_POLY_2D, 3), {0, 1, 1})}, a{kx_create_curve()}, b{kx_create_curve()};
  EXPECT_TRUE(kx_sub_ratbezier_curve(c, 0.5, a, b) == 0 && records<rnumber>(a->weights)[2].value == 0.0);
  const owner d{rational(points(KX_POLY_2D, 2), {1, -1})};
  EXPECT_TRUE(kx_sub_ratbezier_curve(d, 0.5, a, b) == 5 && kx_sub_ratbezier_curve(d, std::nan(""), a, b) == 5);
  EXPECT_TRUE(kx_sub_ratbezier_curve3d(c, 0.5, a, b) == 40 && kx_sub_ratbezier_curve2d(c, 0.5, a, nullptr) == 40);
  EXPECT_TRUE(a->ctrl_pnts->count == 3 && a->weights->count == 3 && b->ctrl_pnts->count == 3);
}

TEST(rational_bezier, answers_for_every_allocation) {
  expect_all_or_nothing([] { return lists(KX_POLY_3D, 4, 6, 4); },
                        [](lists in) { return kx_def_ratbezier_curve(in.ctrl, in.weights); }, 6);
  for (int32_t tag : {KX_POLY_2D, KX_POLY_3D}) {
    const auto define = [=] { return rational(points(tag, 3), uneven(3)); };
    expect_samples_kept(
        define, [](curve *c) { return kx_mk_ratbezier_curve(c, 0.5); }, 2, "ll_create_list", 3);
    struct three {
      curve *c, *a, *b;
    };
    const auto setup = [=] { return three{define(), kx_create_curve(), kx_create_curve()}; };
    const auto check = [](int n, three x, int32_t code) {
      EXPECT_EQ(code, n > 0 ? 80 : 0);
      for (curve *part : {x.a, x.b})
        EXPECT_TRUE(part->ctrl_pnts->count == (n > 0 ? 0 : 3) && part->weights->count == (n > 0 ? 0 : 3));
      for (curve *each : {x.c, x.a, x.b}) free_curve(each);
    };
    const auto cut = [](three x) { return kx_sub_ratbezier_curve(x.c, 0.5, x.a, x.b); };
    EXPECT_EQ(faults::fail_each_allocation(setup, cut, check), 24);
  }
}
