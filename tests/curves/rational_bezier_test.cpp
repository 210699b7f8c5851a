// Rational Bezier curves defined, evaluated and cut; their samples are compared in curve_evaluation_test.cpp.
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

}  // namespace

// Weights have no scale.
TEST(rational_bezier, agrees_with_de_casteljau) {
  for (int32_t tag : {KX_PNT_2D, KX_POLY_2D, KX_PNT_3D, KX_POLY_3D})
    for (int n : {2, 3, 10, 31}) {
      const owner c{rational(points(tag, n), uneven(n))}, scaled{rational(points(tag, n), uneven(n, -3))};
      const controls q = read_controls(c->ctrl_pnts, c->weights);
      EXPECT_TRUE(c->curve_type == 96 + kx::is_space_point(tag) && c->degree == n - 1);
      for (double t : {-1e-8, 0.0, 0.2, 0.5, 0.77, 1.0, 1.0000001}) {
        pnt_3d at, other;
        EXPECT_EQ(kx_eval_pntonratbezier(c, t, &at) + kx_eval_pntonratbezier(scaled, t, &other), 0);
        EXPECT_LE(distance(at, casteljau(q, t)) + distance(at, other), 1e-12 * n * n);
      }
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
      {[](curve *) {}, std::nan(""), 0, 11},
      {[](curve *) {}, 5.0, 0, 1},
      {[](curve *) {}, 1.0000001e-6, 7, 0},
      {[&](curve *c) { clear(c->weights), ll_purge_list(c->weights), c->weights = nullptr, c->degree = 0; }, 1, 1, 0},
      {[](curve *c) { c->degree = 0, c->curve_type = 97; }, 1, 2, 0},
      {[&](curve *c) { c->curve_type = 97, clear(c->ctrl_pnts); }, 1, 3, 0},
      {[&](curve *c) { clear(c->ctrl_pnts), clear(c->weights); }, 1, 1, 0},
      {[&](curve *c) { clear(c->weights); }, 1, 6, 0},
      {[](curve *c) { c->degree = 4; }, 1, 2, 0},
      {[](curve *c) { c->weights->head->datatype = KX_INUMBER; }, 1, 6, 0},
      {[&](curve *c) { set(c->weights, 0, 0.0); }, 0.5, 5, 0},
      {[&](curve *c) { set(c->weights, 1, 0.0), set(c->weights, 2, 0.0); }, 0.5, 0, 3},
      {[&](curve *c) { set(c->weights, 1, -1.0), set(c->weights, 2, -1.0), set(c->weights, 3, 5.0); }, 0.5, 5, 1},
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
  EXPECT_TRUE(kx_mk_rat_bezier_2d(c, 0.5) == 3 && kx_mk_ratbezier_curve(other, 0.5) == 3);
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
      if (code == 0) EXPECT_TRUE(define(c->ctrl_pnts, c->weights, c) == 0 && c->weights->count == w);
      in.release();
    }
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
  expect_all_or_nothing(
      [] {
        return things{{}, {points(KX_POLY_3D, 4), numbers({1, 1, 1, 1})}};
      },
      [](things &all) { return all.keep(kx_def_ratbezier_curve(all.lists[0], all.lists[1])); }, 6);
  for (int32_t tag : {KX_POLY_2D, KX_POLY_3D})
    expect_all_or_nothing(
        [=] {
          return things{{rational(points(tag, 3), uneven(3)), kx_create_curve(), kx_create_curve()}, {}};
        },
        [](things &x) { return kx_sub_ratbezier_curve(x.curves[0], 0.5, x.curves[1], x.curves[2]); }, 24);
}
