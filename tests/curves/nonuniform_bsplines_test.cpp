// Non-uniform B-splines sampled with their statistics.
#include <functional>

#include "curve_lists.hpp"
#include "support/message_folder.hpp"

using namespace curve_lists;

namespace {

curve *bspline(int32_t tag, int n, int degree, const std::vector<double> &knots) {
  const held ctrl{points(tag, n)}, k{numbers(knots)};
  return kx_def_nubspl_curve(ctrl, k, degree, 4);
}

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
  for (const R &r : records<R>(list))
    all.push_back({r.t, components(r.tangent), components(r.second), components(r.normal)});
  return all;
}

}  // namespace

TEST(nonuniform_bsplines, agree_with_the_basis_functions) {
  for (int32_t tag : {KX_POLY_2D, KX_PNT_2D, KX_POLY_3D, KX_PNT_3D})
    for (int p : {1, 2, 3, 4, 7, 15}) {
      std::vector<double> knots = clamped(p + 5, p);
      for (double &k : knots) k *= 1.0 + 0.1 * k;
      knots[static_cast<size_t>(p) + 1] = knots[static_cast<size_t>(p)];  // a span without length has no samples
      const owner c{bspline(tag, p + 5, p, knots)};
      ASSERT_EQ(kx_mk_nubspline(c, 0, 0, 5, 4), 0);
      const bool plane = kx::is_plane_point(tag);
      const auto is = coordinates(c->curve_pnts), g = coordinates(c->ctrl_pnts);
      const auto have = plane ? statistics<curve_stats_2d>(c->curve_stats) : statistics<curve_stats_3d>(c->curve_stats);
      ASSERT_TRUE(is.size() == 20 && have.size() == 20);
      for (size_t i = 0; i < 20; ++i) {
        const size_t s = i < 5 ? 0 : i / 5 + 1, a = s + static_cast<size_t>(p) - 1;
        EXPECT_NEAR(have[i].t, knots[a] + (knots[a + 1] - knots[a]) * static_cast<double>(i % 5) / 4, 1e-12);
        double f[48];
        ASSERT_EQ(kx_basisfunctions(knots.data(), static_cast<int32_t>(a), p, have[i].t, 2, f), 0);
        kx::vec3 want[3] = {};
        for (size_t k = 0; k < 3; ++k)
          for (size_t j = 0; j <= static_cast<size_t>(p); ++j)
            want[k] = want[k] + f[k * (static_cast<size_t>(p) + 1) + j] * g[s + j];
        EXPECT_NEAR(kx::length(is[i] - want[0]), 0.0, 1e-10) << p << ' ' << i;
        EXPECT_NEAR(kx::length(have[i].tangent - kx::unit(want[1])), 0.0, 1e-10) << p << ' ' << i;
        EXPECT_NEAR(kx::length(have[i].second - kx::unit(want[2])), 0.0, 1e-9) << p << ' ' << i;
        EXPECT_NEAR(dot(have[i].normal, have[i].tangent), 0.0, 1e-12);
        if (plane) EXPECT_EQ(have[i].normal.x, -have[i].tangent.y);
      }
    }
}

TEST(nonuniform_bsplines, take_the_derivatives_by_their_own_parameter) {
  std::vector<double> knots = clamped(5, 3);
  for (double &k : knots) k *= 1e4;  // over so long a span the second derivative is none
  const owner c{bspline(KX_POLY_2D, 5, 3, knots)};
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
               {[](curve *c) { c->degree = 16; }, 1, 2, 0},
               {[](curve *c) { c->curve_type = 94; }, 1, 3, 0},
               {[](curve *c) { kx::release_items(*c->knots); }, 1, 5, 0},
               {[](curve *) {}, INT32_MAX, 80, 0},
               {[&](curve *c) { knot(c, 0.5); }, 1, 5, 0},
               {[&](curve *c) { knot(c, std::nan("")); }, 1, 5, 0},
               {[&](curve *c) { knot(c, -INFINITY); }, 1, 5, 0},
               {[](curve *c) { c->ctrl_pnts->tail->datatype = KX_RNUMBER; }, 1, 5, 2}};
  for (const auto &k : cases) {
    const owner c{bspline(KX_POLY_2D, 5, 3, clamped(5, 3))};
    k.change(c);
    EXPECT_EQ(kx_mk_nubspline_2d(c, 0, 0, 2, k.steps), k.code) << &k - cases;
    EXPECT_EQ(c->curve_pnts->count, k.samples) << &k - cases;
    c->ctrl_pnts->tail->datatype = KX_POLY_2D;
  }
  EXPECT_TRUE(kx_mk_nubspline(nullptr, 0, 0, 3, 1) == 1 && kx_mk_nubspline_3d(nullptr, 0, 0, 3, 1) == 1);
  EXPECT_EQ(kx_mk_nubspline(owner{nurbs(KX_POLY_2D, 5, 3, clamped(5, 3))}, 0, 0, 2, 1), 3);
}

TEST(nonuniform_bsplines, are_defined_by_datatype) {
  const message_folder folder;
  for (int32_t tag : {KX_PNT_2D, KX_POLY_2D, KX_PNT_3D, KX_POLY_3D}) {
    const held ctrl{points(tag, 4)}, knots{numbers(std::vector<double>(6))};
    faults::clear_messages();
    EXPECT_TRUE(kx_def_nubspl_curve(ctrl, knots, 16, 1) == nullptr &&
                kx_def_nubspl_curve(knots, knots, 3, 1) == nullptr);
    EXPECT_EQ(faults::messages().size(), kx::is_space_point(tag));
    EXPECT_TRUE(!kx::empty(ctrl) && !kx::empty(knots));
    const owner c{kx_def_nubspl_curve(ctrl, knots, 3, 1)};
    EXPECT_TRUE(c->curve_type == (kx::is_plane_point(tag) ? 93 : 98) && kx::empty(ctrl) && kx::empty(knots));
  }
  EXPECT_EQ(kx_def_nubspl_curve(nullptr, nullptr, 3, 1), nullptr);
}

TEST(nonuniform_bsplines, keep_their_samples_when_memory_runs_out) {
  const auto make = [](curve *c) { return kx_mk_nubspline(c, 0, 0, 2, 1); };
  for (const auto &[tag, text] : {std::pair{KX_POLY_2D, "kx_mk_nubspline_2d"}, {KX_POLY_3D, "kx_mk_nubspline_3d"}}) {
    const auto define = [tag = tag] { return bspline(tag, 5, 3, clamped(5, 3)); };
    expect_samples_kept(define, make, 3, text, 4);
  }
}
