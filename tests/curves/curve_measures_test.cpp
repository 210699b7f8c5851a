// The nearest point, the curvature and the box of curves.
#include "every_kind.hpp"

using namespace every_kind;

namespace {

struct nearest {
  double t, distance;
  pnt_3d at;
  nearest(const curve *c, const pnt_3d &q) {
    const pnt_2d flat{q.x, q.y};
    pnt_2d foot{};
    EXPECT_EQ(in_space(c->curve_type) ? kx_curve_closest_3d(c, &q, &t, &at, &distance)
                                      : kx_curve_closest_2d(c, &flat, &t, &foot, &distance),
              0);
    if (!in_space(c->curve_type)) at = widened(foot);
  }
};

double curvature(const curve *c, double t, pnt_3d &centre) {
  double k = -99;
  pnt_2d flat{};
  EXPECT_EQ(in_space(c->curve_type) ? kx_curve_curvature_3d(c, t, &k, &centre) : kx_curve_curvature_2d(c, t, &k, &flat),
            0);
  if (!in_space(c->curve_type)) centre = widened(flat);
  return k;
}

}  // namespace

TEST(curve_measures, nothing_is_nearer_than_the_nearest_point) {
  for_each_curve([](const curve *c) {
    const auto all = pieces(c);
    for (int k = 0; k < 12; ++k) {
      pnt_3d q{4 + 5 * std::sin(3.1 * k), 4 * std::cos(1.3 * k), in_space(c->curve_type) ? 5 * std::sin(0.7 * k) : 0};
      if (k == 0) q = point(c, 0.5 * (all.front().start + all.front().end));
      if (k == 1) q = {1e5, 3e5, 0};
      const nearest n(c, q);
      EXPECT_NEAR(n.distance, apart(n.at, q), 1e-12 * (1 + n.distance));
      bool end = false, joint = false;
      for (const piece &p : all) {
        joint = joint || std::fabs(n.t - p.start) < 1e-9 || std::fabs(n.t - p.end) < 1e-9;
        for (int i = 0; i <= 300; ++i) {
          const pnt_3d at = p.at(p.start + (p.end - p.start) * i / 300);
          EXPECT_GE(apart(at, q), n.distance * (1 - 1e-12) - 1e-12);
          end = end || ((i == 0 || i == 300) && apart(at, n.at) < 1e-9);
        }
      }
      if (end) continue;  // of a piece, where the curve may break or jump
      EXPECT_FALSE(joint);
      EXPECT_LT(apart(point(c, n.t), n.at), 1e-10);
      const auto d = derivatives(c, n.t, 1);
      const kx::vec3 first = kx::space::read(d[1]), to = kx::space::read(q) - kx::space::read(d[0]);
      EXPECT_NEAR(dot(first, to), 0, 1e-8 * length(first) * (1 + length(to)));
      if (k == 0) EXPECT_LT(n.distance, 1e-13);
    }
  });
}

TEST(curve_measures, the_middle_of_a_circle_is_near_to_all_of_it) {
  for (bool space : {false, true}) {
    const owner c{circle(7, space)};
    EXPECT_NEAR(nearest(c, {0, 0, 0}).distance, 7, 1e-14);
    EXPECT_NEAR(nearest(c, {1e-9, 0, 0}).distance, 7 - 1e-9, 1e-14);
    const nearest n(c, {3, 3, 0});
    EXPECT_NEAR(n.t, 0.5, 1e-12);
    EXPECT_NEAR(n.distance, 7 - std::sqrt(18), 1e-14);
  }
  const owner still{make(85, std::vector<pnt_3d>(4, {1, 2, 0}), 3)};
  EXPECT_NEAR(nearest(still, {4, 6, 0}).distance, 5, 1e-15);
  // the given point is where three passes of the curve meet nearly
  const owner loop{make(96, {{0, 0, 0}, {30, 20, 0}, {-20, 20, 0}, {10, 0, 0}}, 3, {}, {1, 2, 2, 1})};
  pnt_3d q = point(loop, 0.5);
  q.y -= 1e-3;
  EXPECT_NEAR(nearest(loop, q).distance, 1e-3, 1e-12);
}

TEST(curve_measures, curvature_is_that_of_the_derivatives) {
  for_each_curve([](const curve *c) {
    const range r(c);
    for (double part : {0.0, 0.13, 0.41, 0.77}) {
      const double t = r.from + part * (r.to - r.from);
      const auto d = derivatives(c, t, 2);
      const kx::vec3 first = kx::space::read(d[1]), across = cross(first, kx::space::read(d[2]));
      pnt_3d centre;
      const double k = curvature(c, t, centre), want = length(across) / std::pow(length(first), 3);
      EXPECT_NEAR(k, in_space(c->curve_type) ? want : std::copysign(want, across.z), 1e-9 * (1 + want));
      const kx::vec3 to = kx::space::read(centre) - kx::space::read(d[0]);
      if (want < 1e-12) {
        EXPECT_TRUE(k != 0 || length(to) == 0);
        continue;
      }
      EXPECT_NEAR(length(to) * want, 1, 1e-9);
      EXPECT_NEAR(dot(to, first) / length(to) / length(first), 0, 1e-7);
    }
  });
  const owner cusp{make(85, {{1, -1, 0}, {-1. / 3, 1, 0}, {-1. / 3, -1, 0}, {1, 1, 0}}, 3)};
  double k;
  EXPECT_EQ(kx_curve_curvature_2d(cusp, 0.5, &k, nullptr), 8);
  EXPECT_EQ(kx_curve_curvature_2d(owner{make(85, {{1, 1, 0}, {1, 1, 0}, {2, 1, 0}, {3, 0, 0}}, 3)}, 0, &k, nullptr), 8);
}

TEST(curve_measures, boxes_hold_the_curve_and_touch_it) {
  for_each_curve([](const curve *c) {
    const bool space = in_space(c->curve_type);
    pnt_3d low{}, high{}, least{HUGE_VAL, HUGE_VAL, HUGE_VAL}, most{-HUGE_VAL, -HUGE_VAL, -HUGE_VAL};
    pnt_2d flat_low, flat_high;
    EXPECT_EQ(space ? kx_curve_box_3d(c, &low, &high) : kx_curve_box_2d(c, &flat_low, &flat_high), 0);
    if (!space) low = widened(flat_low), high = widened(flat_high);
    for (const piece &p : pieces(c))
      for (int i = 0; i <= 3000; ++i) {
        const pnt_3d q = p.at(p.start + (p.end - p.start) * i / 3000);
        least = {std::min(least.x, q.x), std::min(least.y, q.y), std::min(least.z, q.z)};
        most = {std::max(most.x, q.x), std::max(most.y, q.y), std::max(most.z, q.z)};
      }
    for (double beyond :
         {least.x - low.x, least.y - low.y, least.z - low.z, high.x - most.x, high.y - most.y, high.z - most.z})
      EXPECT_TRUE(beyond > -1e-12 && beyond < 2e-5) << beyond;
  });
}

TEST(curve_measures, refuses_what_is_nowhere) {
  const owner c{wavy(94, 15, 20)};
  double distance = 0;
  for (double x : {std::nan(""), HUGE_VAL, -1e61}) {
    const pnt_2d q{0, x};
    EXPECT_EQ(kx_curve_closest_2d(c, &q, nullptr, nullptr, &distance), 8);
  }
  pnt_2d far{1e60, -1e60};
  EXPECT_EQ(kx_curve_closest_2d(c, &far, nullptr, nullptr, &distance), 0);
  EXPECT_NEAR(distance / 1e60, std::sqrt(2), 1e-12);
}
