#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "geometry/point_list.hpp"
#include "kxgeom/geometry.h"
#include "list/point_kind.hpp"

namespace {

constexpr double nan = std::numeric_limits<double>::quiet_NaN(), inf = std::numeric_limits<double>::infinity();
const double degree = std::acos(-1.0) / 180;

TEST(ArcPoints, Counts) {
  // radius, sweep, tolerance, points
  const double table[][4] = {{1, 360, 1 - std::sqrt(0.5), 5},

                             {1, 360, inf, 4},
                             {1, -240, 0.6, 3},
                             {1, 0, 0.1, 1},
                             {1, 1e-9, 0.1, 2},
                             {1, 1e300, 0.01, 24},
                             {1, 360, 1e-7, 72},
                             {1, 360, 1.1e-7, 6699},
                             {1e9, 90, 1e-6, 1000001},
                             {1e-7, 360, 1, 0},
                             {1.1e-7, 360, 1, 4},
                             {1, 360, nan, 72},
                             {1, -inf, 1, 0}};
  for (const auto &row : table) EXPECT_EQ(kx_arc_pntcount(row[0], row[1], row[2]), row[3]) << &row - table;
}

TEST(ArcPoints, LieOnTheArcWithTheFewestChordsThatKeepTheTolerance) {
  std::mt19937 random(1);
  const auto uniform = [&](double a, double b) { return std::uniform_real_distribution(a, b)(random); };
  for (int run = 0; run < 300; ++run) {
    const double r = std::pow(10, uniform(0, 6)), sweep = uniform(-400, 400);
    const double tol = r * std::pow(10, uniform(-6.5, -0.31));
    const circle_2d circle{uniform(-9, 9), uniform(-9, 9), r};
    point_list out;
    ASSERT_EQ(kx_arcpnts_2d(&circle, uniform(-800, 800), sweep, tol, &out.list), 0);
    ASSERT_EQ(kx_arc_pntcount(r, sweep, tol), out.list.count);
    double turned = 0, px = 0, py = 0;
    for (const poly_2d &p : out.points()) {
      const double x = p.x - circle.x, y = p.y - circle.y;
      ASSERT_NEAR(std::hypot(x, y) / r, 1, 1e-13);
      if (p.seqnr > 0) {
        turned += std::atan2(px * y - py * x, px * x + py * y);
        ASSERT_LE(r - std::hypot((x + px) / 2, (y + py) / 2), tol * (1 + 1e-8) + r * 1e-14);
      }
      px = x, py = y;
    }
    const double turn = std::min(std::fabs(sweep), 360.0), wider = turn / (out.list.count - 2);
    ASSERT_NEAR(turned / degree, std::copysign(turn, sweep), 1e-8);
    if (wider <= 120) ASSERT_GT(r * (1 - std::cos(wider / 2 * degree)), tol * (1 - 1e-6));
  }
}

TEST(ArcPoints, QuadrantsAreExactAndCirclesClose) {
  const circle_2d circle{1, 1, 2};
  point_list arc, whole, odd;
  ASSERT_EQ(kx_arcpnts_2d(&circle, 360e3 + 90, -90, 0.01, &arc.list), 0);
  ASSERT_EQ(kx_circlepnts_2d(&circle, 0.01, &whole.list), 0);
  ASSERT_EQ(kx_arcpnts_2d(&circle, 33.3, 9e-8 - 360, 0.01, &odd.list), 0);
  const poly_2d top = arc.points().front(), right = arc.points().back(), first = whole.points().front();
  EXPECT_TRUE(top.x == 1 && top.y == 3 && right.x == 3 && right.y == 1 && first.x == 3 && first.y == 1);
  EXPECT_TRUE(whole.closed() && odd.closed());
}

TEST(ArcPoints, BulgedSegmentsAreArcsThatEndWhereTheSegmentDoes) {
  const pnt_2d from{3, 1}, to{-2, 5};
  circle_2d c;
  double start, sweep;
  for (double bulge : {1.0, -1.0, 0.41421356237309503, -0.3, 1e-6, 0.999, -40.0, 1e5}) {
    ASSERT_EQ(kx_arc_bulge_2d(&from, &to, bulge, &c, &start, &sweep), 0);
    EXPECT_NEAR(std::tan(sweep / 4 * degree), bulge, 1e-9 * std::fabs(bulge * (1 + bulge * bulge)));
    point_list arc, segment;
    ASSERT_EQ(kx_arcpnts_2d(&c, start, sweep, 1e-3 * c.r, &arc.list), 0);
    ASSERT_EQ(kx_bulgepnts_2d(&from, &to, bulge, 1e-3 * c.r, &segment.list), 0);
    const auto a = arc.points(), p = segment.points();
    ASSERT_EQ(a.size(), p.size() + 1);
    EXPECT_NEAR(std::hypot(a[0].x - from.x, a[0].y - from.y) / c.r, 0, 1e-11);
    for (std::size_t i = 0; i < p.size(); ++i)
      ASSERT_NEAR(std::hypot(a[i + 1].x - p[i].x, a[i + 1].y - p[i].y) / c.r, 0, 1e-11) << bulge << " " << i;
    EXPECT_TRUE(p.back().x == to.x && p.back().y == to.y);
  }
}

TEST(ArcPoints, Statuses) {
  const pnt_2d o{0, 0}, near{1e-7, 0}, far{1e308, 0};
  const circle_2d vast{1e308, 0, 1e308};
  point_list list;
  EXPECT_TRUE(kx_bulgepnts_2d(&o, &near, 1, 1, &list.list) == 2 && kx_bulgepnts_2d(&o, &far, 1, 1, &list.list) == 3);
  EXPECT_TRUE(kx_arcpnts_2d(&vast, 0, 1, 1, &list.list) == 3 && list.list.count == 0);
  EXPECT_TRUE(kx_bulgepnts_2d(&o, &near, 1e-7, 1, &list.list) == 0 && list.list.count == 1) << "straight";
}

TEST(ArcPoints, NumbersContinueAndWrapAround) {
  const circle_2d circle{0, 0, 1};
  point_list out;
  kx::append(out.list, kx::create_point(KX_POLY_2D, {}, INT32_MAX - 1), KX_POLY_2D);
  ASSERT_EQ(kx_arcpnts_2d(&circle, 1, 100, 0.1, &out.list), 0);
  std::uint32_t seqnr = INT32_MAX - 1;
  for (const poly_2d &p : out.points()) EXPECT_EQ(p.seqnr, static_cast<std::int32_t>(seqnr++));
  EXPECT_TRUE(out.list.count == kx_arc_pntcount(1, 100, 0.1) + 1 && out.list.current == out.list.tail);
}

}  // namespace
