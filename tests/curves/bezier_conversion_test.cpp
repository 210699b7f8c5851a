// B-splines and NURBS as Bezier curves.
#include "curve_lists.hpp"
#include "curves/de_boor.hpp"

using namespace curve_lists;

namespace {

constexpr int32_t kinds[] = {KX_PNT_2D, KX_POLY_2D, KX_PNT_3D, KX_POLY_3D};

struct pieces {
  std::vector<curve *> all;
  ~pieces() {
    for (curve *c : all) EXPECT_TRUE(c == nullptr || kx_purge_curve(c) == 0);
  }
};

double value(const list_item *item) { return static_cast<const rnumber *>(item->data)->value; }

// The point of a piece, by de Casteljau on the weighted points.
kx::vec3 point_at(const curve *piece, double t) {
  std::vector<kx::weighted<kx::vec3>> d;
  const list_item *w = piece->weights->head;
  for (const kx::vec3 &g : coordinates(piece->ctrl_pnts)) {
    const double weight = w ? value(w) : 1.0;
    d.push_back({weight * g, weight});
    if (w) w = w->next;
  }
  for (; d.size() > 1; d.pop_back())
    for (size_t j = 0; j + 1 < d.size(); ++j) d[j] = (1 - t) * d[j] + t * d[j + 1];
  return d[0].point / d[0].weight;
}

// The pieces have the samples of the curve, four steps a span, `apart` of them from the begin of a span to the next.
template <class Convert>
void expect_same_curve(curve *c, Convert convert, size_t count, size_t apart) {
  pieces out{std::vector<curve *>(count)};
  const auto room = static_cast<int32_t>(count);
  const auto samples = coordinates(c->curve_pnts);
  int32_t n = -1;
  ASSERT_TRUE(convert(c, nullptr, 0, &n) == 0 && n == room && samples.size() > (count - 1) * apart + 4);
  ASSERT_EQ(convert(c, out.all.data(), room, &n), 0);
  const bool plane = kx::is_plane_point(kx::datatype(c->ctrl_pnts)), rational = c->curve_type / 2 == 47;
  const list_item *stats = c->curve_stats->head;
  for (size_t k = 0; k < count; ++k) {
    const curve *piece = out.all[k];
    const bool cubic = piece->degree == 3 && !rational;
    EXPECT_EQ(piece->curve_type, (cubic ? 85 : 96) + !plane);
    EXPECT_EQ(piece->weights->count, cubic ? 0 : piece->degree + 1);
    EXPECT_TRUE(piece->ctrl_pnts->count == piece->degree + 1 && piece->knots->count == 2);
    EXPECT_EQ(kx::datatype(piece->ctrl_pnts), plane ? KX_POLY_2D : KX_POLY_3D);
    EXPECT_EQ(kx::read_seqnr(piece->ctrl_pnts->tail->data, KX_POLY_2D), piece->degree);
    for (size_t j = 0; j <= 4; ++j)
      EXPECT_NEAR(kx::length(point_at(piece, static_cast<double>(j) / 4) - samples[apart * k + j]), 0.0, 1e-9) << k;
    double first = static_cast<double>(k), last = first + 1;  // of a uniform curve
    for (size_t j = 0; apart == 5 && j < 5; ++j, stats = stats->next) std::memcpy(j ? &last : &first, stats->data, 8);
    EXPECT_NEAR(value(piece->knots->head), first, 1e-12);
    EXPECT_NEAR(value(piece->knots->tail), last, 1e-12);
  }
}

}  // namespace

TEST(bezier_conversion, reproduces_the_curve) {
  for (int32_t tag : kinds)
    for (int p : {1, 2, 3, 4, 15}) {
      std::vector<double> knots = clamped(p + 5, p), weights;
      for (double &k : knots) k *= 1.0 + 0.1 * k;
      const size_t spans = p == 1 ? 5 : 4;  // a span without length is no piece; a straight line would jump there
      if (p > 1) knots[static_cast<size_t>(p) + 1] = knots[static_cast<size_t>(p)];
      for (int i = 0; i < p + 5; ++i) weights.push_back(1 + 0.2 * (i % 4));
      const held ctrl{points(tag, p + 5)}, k{numbers(knots)};
      const owner c{kx_def_nubspl_curve(ctrl, k, p, 4)}, rational{nurbs(tag, p + 5, p, knots, weights)};
      ASSERT_EQ(kx_mk_nubspline(c, 0, 0, 5, 4) + kx_mk_nurb_curve(rational, 0, 0, 5, 4), 0);
      expect_same_curve(c, kx_bspl_to_bezier_curve, spans, 5);
      expect_same_curve(rational, kx_rat_bspl_to_bezier_curve, spans, 5);
      EXPECT_EQ(c->ctrl_pnts->count + rational->ctrl_pnts->count, 2 * (p + 5));  // not changed
    }
  for (const auto define : {kx_def_ubspl_curve2d, kx_def_ucatrom_curve2d}) {
    const owner c{uniform(define, 9)};
    ASSERT_EQ(kx_mk_ucurve(c, 0.25), 0);
    expect_same_curve(c, kx_bspl_to_bezier_curve, 6, 4);
    pieces out{std::vector<curve *>(6)};
    ASSERT_EQ(kx_bspl_to_bezier_curve(c, out.all.data(), 6, nullptr), 0);
    ASSERT_EQ(kx_mk_ucurve(out.all[5], 0.25), 0);  // a piece is a curve like others
    EXPECT_NEAR(kx::length(coordinates(out.all[5]->curve_pnts)[2] - coordinates(c->curve_pnts)[22]), 0.0, 1e-12);
  }
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
