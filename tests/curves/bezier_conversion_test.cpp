// B-splines and NURBS as Bezier curves.
#include "curve_lists.hpp"

using namespace curve_lists;

namespace {

constexpr int32_t kinds[] = {KX_PNT_2D, KX_POLY_2D, KX_PNT_3D, KX_POLY_3D};

struct pieces {
  std::vector<curve *> all;
  ~pieces() {
    for (curve *c : all) EXPECT_TRUE(c == nullptr || kx_purge_curve(c) == 0);
  }
};

std::vector<double> values(const list_hdr *list) {
  std::vector<double> all;
  for (const rnumber &r : records<rnumber>(list)) all.push_back(r.value);
  return all;
}

// Every sample of the curve is on the piece of its parameter, by de Casteljau on the weighted points. A sample at a
// joint may be on either side.
template <class Convert>
void expect_same_curve(curve *c, Convert convert, size_t count, int32_t cubic_type, bool uniform) {
  pieces out{std::vector<curve *>(20)};
  int32_t n = -1;
  ASSERT_TRUE(convert(c, nullptr, 0, &n) == 0 && n == static_cast<int32_t>(count));
  ASSERT_EQ(convert(c, out.all.data(), n, &n), 0);
  const bool plane = kx::is_plane_point(kx::datatype(c->ctrl_pnts));
  const auto samples = coordinates(c->curve_pnts);
  std::vector<double> at;
  for (const list_item &item : kx::items(c->curve_stats)) {
    double t;
    std::memcpy(&t, item.data, sizeof t);
    at.push_back(t);
  }
  size_t found = 0;
  for (size_t k = 0; k < count; ++k) {
    const curve *piece = out.all[k];
    const auto g = coordinates(piece->ctrl_pnts);
    const auto range = values(piece->knots);
    auto w = values(piece->weights);
    const auto p = static_cast<size_t>(piece->degree);
    ASSERT_TRUE(range.size() == 2 && g.size() == p + 1);
    ASSERT_EQ(piece->curve_type, w.empty() ? cubic_type : plane ? 96 : 97);
    ASSERT_TRUE(w.empty() ? p == 3 : w.size() == p + 1);
    EXPECT_EQ(kx::datatype(piece->ctrl_pnts), plane ? KX_POLY_2D : KX_POLY_3D);
    EXPECT_EQ(kx::read_seqnr(piece->ctrl_pnts->tail->data, KX_POLY_2D), piece->degree);
    w.resize(p + 1, 1.0);
    for (size_t i = 0; i < samples.size(); ++i) {
      const double u = uniform ? at[i] + static_cast<double>(i == 0 ? 0 : (i - 1) / 4) : at[i];
      const double t = (u - range[0]) / (range[1] - range[0]);
      if (t < 0 || t > 1) continue;
      std::vector<kx::vec3> d;
      std::vector<double> v = w;
      for (size_t j = 0; j <= p; ++j) d.push_back(w[j] * g[j]);
      for (size_t r = p; r > 0; --r)
        for (size_t j = 0; j < r; ++j) d[j] = (1 - t) * d[j] + t * d[j + 1], v[j] = (1 - t) * v[j] + t * v[j + 1];
      EXPECT_NEAR(kx::length(d[0] / v[0] - samples[i]), 0.0, 1e-9) << k << ' ' << i;
      ++found;
    }
  }
  EXPECT_GE(found, samples.size());
}

}  // namespace

TEST(bezier_conversion, reproduces_b_splines) {
  for (int32_t tag : kinds)
    for (int p : {1, 2, 3, 4, 15}) {
      std::vector<double> knots = clamped(p + 5, p);
      for (double &k : knots) k *= 1.0 + 0.1 * k;
      const size_t spans = p == 1 ? 5 : 4;  // a span without length is no piece; a straight line would jump there
      if (p > 1) knots[static_cast<size_t>(p) + 1] = knots[static_cast<size_t>(p)];
      const held ctrl{points(tag, p + 5)}, k{numbers(knots)};
      const owner c{kx_def_nubspl_curve(ctrl, k, p, 4)};
      ASSERT_EQ(kx_mk_nubspline(c, 0, 0, 5, 4), 0);
      expect_same_curve(c, kx_bspl_to_bezier_curve, spans, kx::is_plane_point(tag) ? 85 : 86, false);
      std::vector<double> weights;
      for (int i = 0; i < p + 5; ++i) weights.push_back(1 + 0.2 * (i % 4));
      const owner rational{nurbs(tag, p + 5, p, knots, weights)};
      ASSERT_EQ(kx_mk_nurb_curve(rational, 0, 0, 5, 4), 0);
      expect_same_curve(rational, kx_rat_bspl_to_bezier_curve, spans, 0, false);
      EXPECT_EQ(c->ctrl_pnts->count, p + 5);  // not changed
    }
}

TEST(bezier_conversion, reproduces_uniform_curves) {
  for (const auto define : {kx_def_ubspl_curve2d, kx_def_ucatrom_curve2d}) {
    const owner c{uniform(define, 9)};
    ASSERT_EQ(kx_mk_ucurve(c, 0.25), 0);
    expect_same_curve(c, kx_bspl_to_bezier_curve, 6, 85, true);
    pieces out{std::vector<curve *>(6)};
    ASSERT_EQ(kx_bspl_to_bezier_curve(c, out.all.data(), 6, nullptr), 0);
    ASSERT_EQ(kx_mk_ucurve(out.all[0], 0.25), 0);  // a piece is a curve like others
    const auto is = coordinates(out.all[0]->curve_pnts), whole = coordinates(c->curve_pnts);
    ASSERT_EQ(is.size(), 5u);
    for (size_t i = 0; i < 5; ++i) EXPECT_NEAR(kx::length(is[i] - whole[i]), 0.0, 1e-12);
  }
  const owner beta{kx_create_curve()};
  const held list{points(KX_POLY_3D, 6)};
  ASSERT_TRUE(kx_def_ubetaspl_curve3d(list, beta, 2.0, 5.0) == 0 && kx_mk_ucurve(beta, 0.25) == 0);
  pieces out{std::vector<curve *>(3)};
  ASSERT_EQ(kx_bspl_to_bezier_curve(beta, out.all.data(), 3, nullptr), 0);
  const auto whole = coordinates(beta->curve_pnts);
  EXPECT_NEAR(kx::length(coordinates(out.all[2]->ctrl_pnts).back() - whole.back()), 0.0, 1e-12);
}

TEST(bezier_conversion, refuses_what_it_cannot_convert) {
  curve *out[4] = {};
  int32_t n = -1;
  const auto polynomial = {kx_bspl_to_bezier_curve, kx_bspl_to_bezier_curve2d, kx_bspl_to_bezier_curve3d};
  const auto rational = {kx_rat_bspl_to_bezier_curve, kx_rat_bspl_to_bezier_curve2d, kx_rat_bspl_to_bezier_curve3d};
  const owner weighted{nurbs(KX_POLY_2D, 6, 3, clamped(6, 3))}, bezier{uniform(kx_def_ubezier_curve2d, 4)};
  const owner spline{uniform(kx_def_ubspl_curve2d, 7)};
  for (const auto convert : polynomial) {
    EXPECT_TRUE(convert(nullptr, out, 4, &n) == 1 && n == 0);
    EXPECT_EQ(convert(weighted, out, 4, &n) + convert(bezier, out, 4, &n), 6);
    const bool fits = convert != kx_bspl_to_bezier_curve3d;
    EXPECT_EQ(convert(spline, out, 3, &n), fits ? 7 : 3);
    EXPECT_TRUE(n == (fits ? 4 : 0) && out[0] == nullptr);
    EXPECT_EQ(convert(spline, out, -1, nullptr), fits ? 7 : 3);
  }
  for (const auto convert : rational) {
    EXPECT_EQ(convert(nullptr, out, 4, &n) + convert(spline, out, 4, &n), 4);
    EXPECT_EQ(convert(weighted, nullptr, 0, &n), convert == kx_rat_bspl_to_bezier_curve3d ? 3 : 0);
  }
  const auto expect = [&](list_hdr *list, double value, int32_t code) {
    auto *record = static_cast<rnumber *>(list->head->next->next->data);
    const double was = record->value;
    record->value = value;
    EXPECT_EQ(kx_rat_bspl_to_bezier_curve(weighted, out, 4, &n), code) << value;
    record->value = was;
  };
  for (double w : {0.0, -1.0, std::nan(""), double{INFINITY}}) expect(weighted->weights, w, 6);
  for (double k : {9.0, std::nan(""), double{-INFINITY}}) expect(weighted->knots, k, 4);
  weighted->degree = 16;
  EXPECT_EQ(kx_rat_bspl_to_bezier_curve(weighted, out, 4, &n), 2);
}

TEST(bezier_conversion, leaves_nothing_when_memory_runs_out) {
  struct result {
    int32_t code;
    curve *out[2];
  };
  for (bool rational : {false, true}) {
    const auto setup = [=] {
      if (rational) return nurbs(KX_POLY_3D, 5, 3, clamped(5, 3));
      const held list{points(KX_POLY_3D, 5)};
      return kx_def_ubspl_curve3d(list);
    };
    const auto call = [=](curve *c) {
      result r{};
      r.code = (rational ? kx_rat_bspl_to_bezier_curve : kx_bspl_to_bezier_curve)(c, r.out, 2, nullptr);
      return r;
    };
    const auto check = [](int n, curve *c, const result &r) {
      EXPECT_TRUE(r.code == (n > 0 ? 80 : 0) && faults::messages().size() == (n > 0));
      EXPECT_TRUE((r.out[0] == nullptr) == (n > 0) && (r.out[1] == nullptr) == (n > 0));
      for (curve *each : {c, r.out[0], r.out[1]}) free_curve(each);
    };
    EXPECT_EQ(faults::fail_each_allocation(setup, call, check), 1 + 2 * (6 + 2 * 2 + 2 * 4 + (rational ? 8 : 0)));
  }
}
