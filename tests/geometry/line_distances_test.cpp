#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "kxgeom/geometry.h"

namespace {

TEST(LineDistances, OfPointsOfSpaceWithinTheToleranceAreNone) {
  const pnt_3d o{0, 0, 0}, close{5e-8, -1e-7, 5e-8}, off{0, 0, 2e-7};
  EXPECT_TRUE(kx_distance_3d(&o, &close) == 0 && kx_distance_3d(&o, &off) == 2e-7);
}

// By area over length, with the side told by where the origin lies.
TEST(LineDistances, OfPointsFromLines) {
  std::mt19937 random(2);
  std::uniform_real_distribution<double> coordinate(-50, 50);
  const auto point = [&] { return pnt_2d{coordinate(random), coordinate(random)}; };
  const auto area = [](pnt_2d p, pnt_2d a, pnt_2d b) { return (b.x - a.x) * (p.y - a.y) - (b.y - a.y) * (p.x - a.x); };
  for (int run = 0; run < 300; ++run) {
    const pnt_2d a = point(), b = point(), p = point();
    const line_2d s{a.x, a.y, b.x, b.y};
    const double of_p = area(p, a, b), of_origin = area({0, 0}, a, b);
    const double want = std::copysign(of_p, -of_p * of_origin) / kx_distance(&a, &b);
    ple_2d f{};
    ile_2d i{};
    kx_lineeq_ple(&a, &b, &f);
    kx_lineeq_ile(&a, &b, &i);
    EXPECT_NEAR(kx_distpntln_ls(&p, &s), want, 1e-9);
    EXPECT_NEAR(kx_distpntline(2, &p, &a, &b, nullptr, nullptr), want, 1e-9);
    EXPECT_NEAR(kx_distpntline(1, &p, nullptr, nullptr, nullptr, &f), std::fabs(want), 1e-9);
    EXPECT_NEAR(kx_distpntline(0, &p, nullptr, nullptr, &i, nullptr), of_p, 1e-9);
    EXPECT_EQ(kx_distpntln_ile(&p, &i), kx_distpntline(0, &p, nullptr, nullptr, &i, nullptr));
  }
}

TEST(LineDistances, FromWhatIsNoLine) {
  const pnt_2d p{3, 4}, o{0, 0}, near_o{1e-7, 0}, short_of{2e-4, 0}, enough{4e-4, 0};
  const line_2d spot{0, 0, 1e-7, 1e-7}, brief{0, 1, 2e-4, 1}, longer{0, 1, 4e-4, 1};
  const ple_2d still{0, 0, 1e-4, 1e-4};
  EXPECT_EQ(kx_distpntln_ls(&p, &spot), 5);
  EXPECT_EQ(kx_distpntln_ls(&p, &brief), 0);
  EXPECT_NEAR(kx_distpntln_ls(&p, &longer), 3, 1e-12);
  for (const pnt_2d *end : {&near_o, &short_of}) EXPECT_EQ(kx_distpntline(2, &p, &o, end, nullptr, nullptr), 0);
  EXPECT_NEAR(kx_distpntline(2, &p, &o, &enough, nullptr, nullptr), 4, 1e-12);
  EXPECT_EQ(kx_distpntline(1, &p, &o, &p, nullptr, &still), 0);
}

}  // namespace
