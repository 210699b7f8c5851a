// The length of curves and the point at a length.
#include "every_kind.hpp"

using namespace every_kind;

namespace {

double length_of(const curve *c, double from, double to, double allowed = 1e-10) {
  double length = -1, error = -1;
  EXPECT_EQ(kx_curve_length(c, from, to, allowed, &length, &error), 0);
  EXPECT_LE(error, std::max(allowed, 1e-13 * length));
  return length;
}

double at_length(const curve *c, double from, double length, double allowed, pnt_3d &at) {
  double t = -99;
  pnt_2d flat{};
  EXPECT_EQ(in_space(c->curve_type) ? kx_curve_atlength_3d(c, from, length, allowed, &t, &at)
                                    : kx_curve_atlength_2d(c, from, length, allowed, &t, &flat),
            0);
  if (!in_space(c->curve_type)) at = widened(flat);
  return t;
}

}  // namespace

TEST(curve_length, closed_forms) {
  const double pi = std::acos(-1);
  for (bool space : {false, true}) {
    const owner c{circle(3, space)};
    EXPECT_NEAR(length_of(c, 0, 4, 0), 6 * pi, 1e-12);
    EXPECT_NEAR(length_of(c, 2.5, 1), 3 * pi * 0.75, 1e-10);  // the middle of a quarter is at its middle parameter
  }
  // y = x^2 from 0 to 2 as a quadratic, and as a uniform cubic
  const double x = 2, root = std::sqrt(1 + 4 * x * x), want = 0.5 * x * root + 0.25 * std::log(2 * x + root);
  EXPECT_NEAR(length_of(owner{make(93, {{0, 0, 0}, {1, 0, 0}, {2, 4, 0}}, 2, {0, 0, 1, 1})}, 0, 1, 0), want, 1e-13);
  EXPECT_NEAR(length_of(owner{make(85, {{0, 0, 0}, {2. / 3, 0, 0}, {4. / 3, 4. / 3, 0}, {2, 4, 0}}, 3)}, 0, 1, 0), want,
              1e-13);
  // a cusp inside, x = s^2, y = s^3 with s from -1 to 1; and a line run to and fro
  const owner cusp{make(85, {{1, -1, 0}, {-1. / 3, 1, 0}, {-1. / 3, -1, 0}, {1, 1, 0}}, 3)};
  EXPECT_NEAR(length_of(cusp, 0, 1, 1e-9), 2 * (std::pow(13.0, 1.5) - 8) / 27, 1e-9);
  EXPECT_NEAR(length_of(owner{make(93, {{0, 0, 0}, {2, 0, 0}, {0, 0, 0}}, 2, {0, 0, 1, 1})}, 0, 1), 2, 1e-10);
  EXPECT_EQ(length_of(owner{make(85, {{1, 1, 0}, {1, 1, 0}, {1, 1, 0}, {1, 1, 0}}, 3)}, 0, 1), 0);
}

TEST(curve_length, is_that_of_its_chords_and_adds_up) {
  for_each_curve([](const curve *c) {
    const range r(c);
    const double whole = length_of(c, r.from, r.to), middle = 0.6 * r.from + 0.4 * r.to;
    EXPECT_NEAR(length_of(c, r.from, middle) + length_of(c, r.to, middle), whole, 1e-9);
    double sum = 0;
    for (const piece &p : pieces(c)) {
      pnt_3d before = p.at(p.start);
      for (int i = 1; i <= 4000; ++i) {
        const pnt_3d next = p.at(p.start + (p.end - p.start) * i / 4000);
        sum += apart(next, before);
        before = next;
      }
    }
    EXPECT_NEAR(sum, whole, 2e-5 * whole);
    EXPECT_LE(sum, whole + 1e-9);
  });
}

TEST(curve_length, the_point_at_a_length) {
  for_each_curve([](const curve *c) {
    const range r(c);
    const double whole = length_of(c, r.from, r.to), start = 0.7 * r.from + 0.3 * r.to;
    const double before = length_of(c, r.from, start);
    pnt_3d at;
    for (double part : {0.0, 0.1, 0.29, 0.3, 0.7, 0.99, 1.0}) {
      const double s = part * whole - before, t = at_length(c, start, s, 1e-9, at);
      EXPECT_NEAR(length_of(c, start, t), std::fabs(s), 2e-9) << part;
      EXPECT_TRUE(s < 0 ? t <= start : t >= start);
      EXPECT_LT(apart(at, point(c, t)), 1e-12);
    }
    EXPECT_NEAR(at_length(c, r.from, whole, 1e-9, at), r.to, 1e-8);
    EXPECT_NEAR(at_length(c, r.to, -whole, 1e-9, at), r.from, 1e-8);
  });
}

TEST(curve_length, refuses_what_is_too_long) {
  const owner c{wavy(83)}, space{wavy(84)};
  const double nan = std::nan(""), whole = length_of(c, 0, 6);
  double t = 5, error;
  EXPECT_TRUE(kx_curve_atlength_2d(c, 0, whole + 1e-6, 1e-9, &t, nullptr) == 8 &&
              kx_curve_atlength_2d(c, 3, -whole, 0, &t, nullptr) == 8);
  for (double wrong : {nan, HUGE_VAL}) EXPECT_EQ(kx_curve_atlength_2d(c, 0, wrong, 0, &t, nullptr), 8);
  for (double wrong : {nan, -1.0}) EXPECT_EQ(kx_curve_atlength_2d(c, 0, 1, wrong, &t, nullptr), 8);
  EXPECT_TRUE(kx_curve_atlength_2d(c, 7, 1, 0, &t, nullptr) == 7 &&
              kx_curve_atlength_2d(space, 0, 1, 0, &t, nullptr) == 3);
  EXPECT_TRUE(kx_curve_length(c, 0, nan, 0, &t, &error) == 7 && kx_curve_length(c, 0, 1, nan, &t, &error) == 8);
}
