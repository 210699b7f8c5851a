// B-splines and NURBS as Bezier curves.
#include "every_kind.hpp"

using namespace every_kind;
using curve_lists::things, curve_lists::records, curve_lists::uniform;

TEST(bezier_conversion, reproduces_the_curve) {
  for_each_curve(
      [](const curve *c) {
        const bool rational = c->curve_type / 2 == 47, space = in_space(c->curve_type);
        if (one_piece(c->curve_type) || c->curve_type == 85 || c->curve_type == 86) return;
        const auto convert = rational ? kx_rat_bspl_to_bezier_curve : kx_bspl_to_bezier_curve;
        const auto all = pieces(c);
        std::vector<curve *> out(all.size());
        const auto room = static_cast<int32_t>(all.size());
        int32_t n = -1;
        ASSERT_TRUE(convert(c, nullptr, 0, &n) == 0 && n == room && convert(c, out.data(), room, nullptr) == 0);
        for (size_t k = 0; k < all.size(); ++k) {
          const owner made{out[k]};
          const bool cubic = c->degree == 3 && !rational;
          EXPECT_TRUE(made->curve_type == (cubic ? 85 : 96) + space && made->degree == c->degree);
          EXPECT_EQ(made->weights->count, cubic ? 0 : made->degree + 1);
          EXPECT_EQ(kx::datatype(made->ctrl_pnts), space ? KX_POLY_3D : KX_POLY_2D);
          EXPECT_EQ(kx::read_seqnr(made->ctrl_pnts->tail->data, KX_POLY_2D), made->degree);
          const auto [start, end, at] = all[k];
          const auto knots = records<rnumber>(made->knots);
          ASSERT_EQ(knots.size(), 2u);
          EXPECT_NEAR(knots[0].value, start, 1e-12);
          EXPECT_NEAR(knots[1].value, end, 1e-12);
          const auto same = pieces(made);
          ASSERT_EQ(same.size(), 1u);
          for (double t : {0.0, 0.25, 0.5, 0.75, 1.0})
            EXPECT_LT(apart(same[0].at(t), at(start + t * (end - start))), 1e-9) << k;
        }
      },
      {1, 2, 3, 4, 15});
}

TEST(bezier_conversion, refuses_what_it_cannot_convert) {
  curve *out[4] = {};
  int32_t n = -1;
  const auto polynomial = {kx_bspl_to_bezier_curve, kx_bspl_to_bezier_curve2d, kx_bspl_to_bezier_curve3d};
  const auto rational = {kx_rat_bspl_to_bezier_curve, kx_rat_bspl_to_bezier_curve2d, kx_rat_bspl_to_bezier_curve3d};
  const owner weighted{wavy(94, 3, 6)}, bezier{uniform(kx_def_ubezier_curve2d, 4)};
  const owner spline{uniform(kx_def_ubspl_curve2d, 7)};
  for (const auto convert : polynomial) {
    EXPECT_EQ(convert(weighted, out, 4, &n) + convert(bezier, out, 4, &n), 6);
    const bool fits = convert != kx_bspl_to_bezier_curve3d;
    EXPECT_EQ(convert(spline, out, 3, &n), fits ? 7 : 3);
    EXPECT_TRUE(n == (fits ? 4 : 0) && out[0] == nullptr);
    EXPECT_EQ(convert(spline, out, -1, nullptr), fits ? 7 : 3);
  }
  for (const auto convert : rational) {
    EXPECT_EQ(convert(spline, out, 4, &n), 3);
    EXPECT_EQ(convert(weighted, nullptr, 0, &n), convert == kx_rat_bspl_to_bezier_curve3d ? 3 : 0);
  }
}

TEST(bezier_conversion, leaves_nothing_when_memory_runs_out) {
  for (int32_t type : {84, 95}) {
    const auto call = [=](things &all) {
      curve *out[2] = {};
      const int32_t code =
          (type == 95 ? kx_rat_bspl_to_bezier_curve : kx_bspl_to_bezier_curve)(all.curves[0], out, 2, nullptr);
      EXPECT_TRUE((out[0] == nullptr) == (code == 80) && (out[1] == nullptr) == (code == 80));
      for (curve *each : out) all.keep(each);
      return code;
    };
    const std::vector<double> knots = {0, 0, 0, 1, 2, 2, 2};
    const auto setup = [&] {
      return things{{make(type, {{0, 0, 0}, {1, 2, 0}, {2, 1, 3}, {3, 1, 0}, {5, 0, 1}}, 3, knots, {1, 2, 1, 2, 1})},
                    {}};
    };
    curve_lists::expect_all_or_nothing(setup, call, 1 + 2 * (6 + 2 * 2 + 2 * 4 + (type == 95 ? 8 : 0)));
  }
}
