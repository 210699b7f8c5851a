#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "geometry/point_list.hpp"
#include "kxgeom/geometry.h"
#include "list/point_kind.hpp"
#include "support/faults.hpp"

namespace {

constexpr double nan = std::numeric_limits<double>::quiet_NaN(), inf = std::numeric_limits<double>::infinity();
const double degree = std::acos(-1.0) / 180;

TEST(ArcPoints, Counts) {
  // radius, sweep, tolerance, points
  const double table[][4] = {{1, 360, 1 - std::sqrt(0.5), 5},
                             {1, 360, 0.2928, 6},
                             {1, 360, 10, 4},
                             {1, 360, inf, 4},
                             {1, -240, 0.6, 3},
                             {1, 0, 0.1, 1},
                             {1, 1e-9, 0.1, 2},
                             {1, 1e300, 0.01, 24},
                             {1, 360, 1e-7, 72},
                             {1, 360, nan, 72},
                             {1, 360, 1.1e-7, 6699},
                             {1e9, 90, 1e-6, 1000001},
                             {1e-7, 360, 1, 0},
                             {1.1e-7, 360, 1, 4},
                             {nan, 90, 1, 0},
                             {inf, 90, 1, 0},
                             {1, nan, 1, 0},
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
    if (wider > 120) continue;
    ASSERT_GT(r * (1 - std::cos(wider / 2 * degree)), tol * (1 - 1e-6));
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

TEST(ArcPoints, BulgedSegments) {
  const pnt_2d from{3, 1}, to{-2, 5}, o{0, 0}, east{2, 0};
  circle_2d c, reversed;
  double start, sweep, s;
  for (double bulge : {1.0, -1.0, 0.41421356237309503, -0.3, 1e-6, -2e-3, 0.999, 2.5, -40.0, 1e5}) {
    ASSERT_EQ(kx_arc_bulge_2d(&from, &to, bulge, &c, &start, &sweep), 0);
    ASSERT_EQ(kx_arc_bulge_2d(&to, &from, -bulge, &reversed, &s, &s), 0);
    EXPECT_LE(std::hypot(c.r - reversed.r, c.x - reversed.x), 1e-12 * c.r);
    EXPECT_NEAR(std::tan(sweep / 4 * degree), bulge, 1e-9 * std::fabs(bulge * (1 + bulge * bulge)));
    // The arc by its circle and the points by the segment are the same, and begin and end where the segment does.
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
  ASSERT_EQ(kx_arc_bulge_2d(&o, &east, 1, &c, &start, &sweep), 0);
  EXPECT_TRUE(c.x == 1 && c.y == 0 && c.r == 1 && start == 180 && sweep == 180);
}

TEST(ArcPoints, Statuses) {
  const pnt_2d o{0, 0}, near{1e-7, 0}, far{1e308, 0}, p{1, 0}, none{nan, 0};
  const circle_2d c{0, 0, 1}, small{0, 0, 1e-7}, off{0, inf, 1}, vast{1e308, 0, 1e308};
  circle_2d out{5, 5, 5};
  double s, w;
  point_list list;
  list_hdr foreign{};
  kx::append(foreign, kx::create_pnt_2d(), KX_PNT_2D);
  list_hdr *const l = &list.list;
  const std::pair<int, std::vector<int32_t>> table[] = {
      {1,
       {kx_circlepnts_2d(nullptr, 1, l), kx_circlepnts_2d(&c, 1, nullptr), kx_circlepnts_2d(&c, 1, &foreign),
        kx_bulgepnts_2d(&o, nullptr, 0, 1, l), kx_bulgepnts_2d(&o, &p, 0, 1, &foreign),
        kx_arc_bulge_2d(&o, &p, 1, &out, &s, nullptr)}},
      {2, {kx_arc_bulge_2d(&o, &near, 1, &out, &s, &w), kx_bulgepnts_2d(&o, &near, 1, 1, l)}},
      {3,
       {kx_arcpnts_2d(&small, 0, 1, 1, l), kx_arcpnts_2d(&off, 0, 1, 1, l), kx_arcpnts_2d(&vast, 0, 1, 1, l),
        kx_arcpnts_2d(&c, nan, 1, 1, l), kx_arcpnts_2d(&c, 0, inf, 1, l), kx_bulgepnts_2d(&none, &p, 0, 1, l),
        kx_bulgepnts_2d(&o, &far, 1, 1, l), kx_bulgepnts_2d(&o, &p, nan, 1, l),
        kx_arc_bulge_2d(&o, &p, 1e-7, &out, &s, &w), kx_arc_bulge_2d(&o, &p, inf, &out, &s, &w)}}};
  for (const auto &[status, given] : table) EXPECT_EQ(given, std::vector<int32_t>(given.size(), status));
  EXPECT_TRUE(list.list.count == 0 && out.x == 5);
  EXPECT_EQ(kx_bulgepnts_2d(&o, &near, 1e-7, 1, l), 0);
  EXPECT_EQ(list.list.count, 1);
  kx::release_items(foreign);
}

TEST(ArcPoints, AllOrNothingWhenMemoryEndsAndNumbersContinue) {
  const pnt_2d from{0, 0}, to{1, 0};
  const circle_2d circle{0, 0, 1};
  for (const bool arc : {true, false}) {
    const auto setup = [] {
      list_hdr l{};
      for (int seqnr : {INT32_MAX - 2, INT32_MAX - 1})
        kx::append(l, kx::create_point(KX_POLY_2D, {}, seqnr), KX_POLY_2D);
      l.current = l.head;
      return l;
    };
    const auto call = [&](list_hdr &l) {
      return arc ? kx_arcpnts_2d(&circle, 1, 100, 0.1, &l) : kx_bulgepnts_2d(&from, &to, 1, 0.01, &l);
    };
    const auto check = [](int n, list_hdr &l, int status) {
      EXPECT_EQ(status, n ? 80 : 0);
      EXPECT_EQ(faults::messages().size(), n ? 1u : 0u);
      EXPECT_TRUE(l.current == (n ? l.head : l.tail));
      std::uint32_t seqnr = INT32_MAX - 2;  // the numbers wrap around
      for (list_item *i = l.head; i; i = i->next) {
        EXPECT_EQ(kx::read_seqnr(i->data, KX_POLY_2D), static_cast<std::int32_t>(seqnr++));
        EXPECT_TRUE((i->next ? i->next->prev : l.tail) == i);
      }
      EXPECT_EQ(l.count, static_cast<int>(seqnr - (INT32_MAX - 2)));
      EXPECT_EQ(l.count == 2, n > 0);
      kx::release_items(l);
    };
    EXPECT_GT(faults::fail_each_allocation(setup, call, check), 5);
  }
}

// A half circle in degrees and in radians, backwards, and the modes' other readings.
TEST(ArcPoints, Length) {
  const double turn = 3.1415926536;  // the library's
  const arc_2d half{1, 2, 3, 1, 180, 7}, radians{1, 2, 3, 0, -turn, 7}, other{1, 2, 3, 9, 2, 7}, none{1, 2, 3, 2, 2, 7};
  EXPECT_NEAR(kx_arclength(&half), 3 * turn, 1e-9);
  EXPECT_EQ(kx_arclength(&radians), 3 * turn);
  EXPECT_EQ(kx_arclength(&other), 6);
  EXPECT_EQ(kx_arclength(&none), 0);
  EXPECT_EQ(kx_arclength(nullptr), 0);
}

}  // namespace
