#include <gtest/gtest.h>

#include <limits>

#include "kxgeom/geometry.h"
#include "kxgeom/polygon.h"
#include "polygon/polygons.hpp"
#include "support/faults.hpp"

namespace {

using collector = decltype(&kx_pnts_inpolyl);
using single = decltype(&kx_inpolygonl);
const struct {
  collector many;
  single one;
} pairs[] = {{kx_pnts_inpolyl, kx_inpolygonl}, {kx_pnts_inonpolyl, kx_inonpolygonl}, {kx_pnts_onpolyl, kx_onpolygonl}};

void expect_as_one_by_one(const polygon &points, const polygon &v, int kind) {
  const polygon_list p(points, kind), ring(v, kinds[points.size() % 4]);
  for (const auto &pair : pairs) {
    polygon_list out({{1, 2}, {3, 4}});
    polygon want{{1, 2}, {3, 4}};
    for (const pnt_2d &q : points)
      if (pair.one(&q, &ring.list)) want.push_back(q);
    int count = -1;
    ASSERT_EQ(pair.many(&p.list, &ring.list, &count, out), want.size() > 2);
    ASSERT_EQ(count, static_cast<int>(want.size()) - 2);
    ASSERT_TRUE(same(out.points(), want));
    ASSERT_EQ(kx::read_seqnr(out.list.tail->data, KX_POLY_2D), count + 1);
  }
}

TEST(PointsInPolygon, AsOneByOne) {
  randomness r(3);
  for (int run = 0; run < 1500; ++run) {
    const int n = 3 + r.below(15), q = 1 + r.below(run % 50 ? 20 : 300);
    const int size = 2 + r.below(6);
    expect_as_one_by_one(r.walk(q, size, false), r.walk(n, size, false), kinds[run % 4]);
  }
}

TEST(PointsInPolygon, AsOneByOneAtEveryScaleAndInCrowds) {
  randomness r(4);
  for (const double scale : {1e-9, 1e-6, 1.0, 1e6, 1e12, 1e150}) {
    for (int run = 0; run < 30; ++run) {
      polygon points = r.walk(100, 40, false), v = r.walk(40, 50, false);
      for (pnt_2d &p : points) p = {p.x * scale, p.y * scale};
      for (pnt_2d &p : v) p = {p.x * scale, p.y * scale};
      points.push_back({0, run % 2 ? 1e15 * scale : 0});  // all others share a row
      expect_as_one_by_one(points, v, KX_PNT_2D);
    }
  }
  const double inf = std::numeric_limits<double>::infinity(), nan = std::numeric_limits<double>::quiet_NaN();
  expect_as_one_by_one({{1, 1}, {inf, 1}, {1, nan}, {-inf, 1}, {1, -inf}, {2, 2}}, {{0, 0}, {9, 0}, {nan, 5}, {9, 9}},
                       KX_PNT_3D);
  expect_as_one_by_one({{nan, nan}}, {{0, 0}, {9, 0}, {9, 9}}, KX_POLY_2D);
  expect_as_one_by_one(star(3000, 1, 60, 5), star(700, 20, 50, 6), KX_POLY_3D);
}

TEST(PointsInPolygon, InLine) {
  const line_2d segment{0, 0, 10, 5};
  const polygon_list points({{0, 0}, {4, 2}, {4, 2.1}, {10, 5}, {12, 6}, {4, 2 + 1e-7}});
  polygon_list out;
  int count;
  EXPECT_EQ(kx_pnts_in_line(&points.list, &segment, &count, out), 1);
  EXPECT_TRUE(same(out.points(), {{0, 0}, {4, 2}, {10, 5}, {4, 2 + 1e-7}}));
  EXPECT_FALSE(kx_pnts_in_line(&points.list, nullptr, &count, out));
  EXPECT_EQ(count, 0);
}

TEST(PointsInPolygon, BadInputAndNoMemory) {
  const polygon square{{0, 0}, {10, 0}, {10, 10}, {0, 10}}, points{{5, 5}, {10, 5}, {50, 5}, {6, 6}};
  const polygon_list ring(square), p(points), none;
  polygon_list foreign(square, KX_PNT_2D), out, line({{0, 5}, {10, 5}});
  int count = 9;
  EXPECT_FALSE(kx_pnts_inpolyl(&p.list, &ring.list, &count, nullptr) ||
               kx_pnts_inpolyl(&p.list, &ring.list, nullptr, foreign) ||
               kx_pnts_inpolyl(nullptr, &ring.list, &count, out) || kx_pnts_inpolyl(&p.list, nullptr, &count, out) ||
               kx_pnts_inonpolyl(&p.list, line, &count, out) || kx_pnts_onpolyl(&p.list, &none.list, &count, out));
  EXPECT_EQ(count, 0);
  EXPECT_EQ(kx_pnts_onpolyl(&p.list, line, &count, out), 1);
  EXPECT_EQ(count, 2);
  for (const auto &pair : pairs) {
    const auto setup = [&] { return polygon_list{{{1, 1}}}; };
    const auto call = [&](polygon_list &l) { return pair.many(&p.list, &ring.list, &count, l); };
    const auto check = [&](int n, polygon_list &l, int result) {
      EXPECT_EQ(result, n == 0);
      EXPECT_EQ(faults::messages().size(), n ? 1u : 0u);
      EXPECT_EQ(count, l.list.count - 1);
      EXPECT_EQ(count > 0, n == 0);
      kx::release_items(l.list);
    };
    EXPECT_GT(faults::fail_each_allocation(setup, call, check), 8);
  }
}

}  // namespace
