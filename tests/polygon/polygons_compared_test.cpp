#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

#include "kxgeom/geometry.h"
#include "kxgeom/polygon.h"
#include "kxgeom/runtime.h"
#include "polygon/distinct_points.hpp"
#include "polygon/polygons.hpp"
#include "support/faults.hpp"

namespace {

// The rule itself, pair by pair, both from the closing edge on.
polygon crossings(const polygon &v, const polygon &w) {
  polygon all;
  for (std::size_t i = 0; i < v.size(); ++i) {
    const pnt_2d a = v[i ? i - 1 : v.size() - 1], b = v[i];
    for (std::size_t k = 0; k < w.size(); ++k) {
      const pnt_2d c = w[k ? k - 1 : w.size() - 1], d = w[k];
      const line_2d one{a.x, a.y, b.x, b.y}, other{c.x, c.y, d.x, d.y};
      pnt_2d p;
      if (!kx_intersect_ls(&one, &other, &p)) continue;
      if (std::none_of(all.begin(), all.end(), [&](const pnt_2d &q) { return kx_samepnt(&q, &p); })) all.push_back(p);
    }
  }
  return all;
}

bool acceptable(const polygon &v, const polygon &w) {
  const polygon all = crossings(v, w);
  const polygon_list a(v), b(w);
  return all.size() < 2 || std::all_of(all.begin(), all.end(), [&](const pnt_2d &p) {
           return kx_match_point(&p, &a.list) || kx_match_point(&p, &b.list);
         });
}

int count(decltype(&kx_pnts_inpolyl) which, const polygon &v, const polygon &w) {
  const polygon_list a(v), b(w);
  polygon_list out;
  int n = -1;
  which(&a.list, &b.list, &n, out);
  return n;
}

TEST(PolygonsCompared, AsPairByPair) {
  randomness r(9);
  int inside = 0, outside = 0, met = 0;
  for (int run = 0; run < 6000; ++run) {
    polygon v = r.walk(3 + r.below(4), 4, run % 2), w = r.walk(3 + r.below(4), 4, run % 2);
    if (run % 3 == 0)
      for (pnt_2d &p : v) p = {p.x * 0.5 + 1, p.y * 0.5};
    if (run % 50 == 0) v = r.walk(200, 50, false);
    const polygon_list a(v, kinds[run % 4]), b(w, kinds[run / 4 % 4]);
    const bool in = count(kx_pnts_inpolyl, w, v) == 0 && count(kx_pnts_inonpolyl, v, w) == static_cast<int>(v.size()) &&
                    acceptable(v, w);
    const bool out = count(kx_pnts_inpolyl, v, w) == 0 && count(kx_pnts_inpolyl, w, v) == 0 &&
                     (count(kx_pnts_onpolyl, v, w) == 0 || acceptable(v, w));
    ASSERT_EQ(kx_inside_poly(&a.list, &b.list), in) << run;
    ASSERT_EQ(kx_outside_poly(&a.list, &b.list), out) << run;
    const polygon want = crossings(v, w);
    polygon_list found;
    ASSERT_EQ(kx_intersect_poly(&a.list, &b.list, found), static_cast<int>(want.size()));
    ASSERT_TRUE(same(found.points(), want)) << run;
    inside += in;
    outside += out;
    met += want.size() > 1;
  }
  EXPECT_TRUE(inside > 50 && outside > 500 && met > 1000) << inside << " " << outside << " " << met;
}

TEST(PolygonsCompared, DistinctPointsAreThoseThatCoincideWithNoneBefore) {
  randomness r(11);
  kx::distinct_points distinct(3000);
  polygon kept;
  for (int n = 0; n < 3000; ++n) {
    const pnt_2d p{r.about(6) + r.whole(9) * 0.13e-7, r.about(6)};
    const bool want = std::none_of(kept.begin(), kept.end(), [&](const pnt_2d &q) { return kx_samepnt(&q, &p); });
    if (want) kept.push_back(p);
    ASSERT_EQ(distinct.add({p.x, p.y}), want);
  }
}

TEST(PolygonsCompared, InsideAndOutside) {
  const polygon square{{0, 0}, {10, 0}, {10, 10}, {0, 10}};
  const struct {
    polygon v;
    int inside, outside;
  } table[] = {{{{1, 1}, {9, 1}, {5, 9}}, 1, 0},
               {square, 1, 1},  // neither has a corner strictly inside the other
               {{{0, 0}, {10, 0}, {5, 5}}, 1, 0},
               {{{12, 0}, {20, 0}, {20, 9}}, 0, 1},
               {{{10, 0}, {20, 0}, {20, 10}, {10, 10}}, 0, 1},
               {{{10, 5}, {20, 0}, {20, 10}}, 0, 1},
               {{{5, 5}, {20, 5}, {20, 7}}, 0, 0},
               {{{-1, -1}, {11, -1}, {11, 11}, {-1, 11}}, 0, 0}};
  for (const auto &row : table) {
    const polygon_list a(row.v), b(square, KX_PNT_3D);
    EXPECT_EQ(kx_inside_poly(&a.list, &b.list), row.inside) << &row - table;
    EXPECT_EQ(kx_outside_poly(&a.list, &b.list), row.outside) << &row - table;
    EXPECT_EQ(kx_outside_poly(&b.list, &a.list), row.outside) << &row - table;
  }
}

TEST(PolygonsCompared, Same) {
  randomness r(10);
  for (int run = 0; run < 300; ++run) {
    const polygon v = star(3 + r.below(20), 50, 100, static_cast<unsigned>(run));
    polygon w = v;
    std::rotate(w.begin(), w.begin() + r.below(static_cast<int>(w.size())), w.end());
    if (r.below(2)) std::reverse(w.begin(), w.end());
    for (pnt_2d &p : w) p.x += 0.9e-7;
    if (r.below(2)) w.push_back(w[0]);
    const polygon_list a(v), b(w, kinds[run % 4]);
    ASSERT_TRUE(kx_same_poly(&a.list, &b.list) && kx_same_poly(&b.list, &a.list));
    w[2].y += 1.2e-7;
    ASSERT_FALSE(kx_same_poly(&a.list, polygon_list(w)));
    w.insert(w.begin(), w[1]);
    ASSERT_FALSE(kx_same_poly(&a.list, polygon_list(w)));
  }
  polygon crowd(100000, pnt_2d{1, 1}), other = crowd;
  crowd[7] = {2, 2};
  other[9] = {2, 2.1};
  EXPECT_FALSE(kx_same_poly(polygon_list(crowd), polygon_list(other)));
}

TEST(PolygonsCompared, BadInputAndNoMemory) {
  const polygon v{{0, 0}, {10, 0}, {10, 10}, {0, 10}}, w{{5, 5}, {15, 5}, {15, 15}, {5, 15}},
      t{{0, 2}, {10, 2}, {5, 8}};
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const polygon_list a(v), b(w), touching(t), beside({{15, 6}, {20, 0}, {20, 9}}), none,
      broken({{nan, 0}, {1, nan}, {nan, nan}});
  polygon_list foreign(v, KX_PNT_2D), out;
  EXPECT_FALSE(kx_inside_poly(nullptr, &b.list) || kx_inside_poly(&a.list, &none.list) ||
               kx_outside_poly(&none.list, &b.list) || kx_outside_poly(&a.list, nullptr) ||
               kx_intersect_poly(&a.list, &b.list, nullptr) || kx_intersect_poly(&a.list, &b.list, foreign) ||
               kx_intersect_poly(&broken.list, &b.list, out) || kx_inside_poly(&broken.list, &b.list) ||
               kx_same_poly(nullptr, &a.list) || kx_same_poly(&broken.list, &broken.list));
  const auto fail = [&](auto call, int want, int least) {
    const auto check = [&](int n, polygon_list &l, int result) {
      EXPECT_EQ(result, n ? 0 : want);
      EXPECT_EQ(faults::messages().size(), n ? 1u : 0u);
      EXPECT_EQ(l.list.count, n || want == 1 ? 1 : 1 + want);
      kx::release_items(l.list);
    };
    EXPECT_GT(faults::fail_each_allocation([] { return polygon_list{{{1, 1}}}; }, call, check), least);
  };
  fail([&](polygon_list &) { return kx_inside_poly(&touching.list, &a.list); }, 1, 14);
  fail([&](polygon_list &) { return kx_outside_poly(&b.list, &beside.list); }, 1, 16);
  fail([&](polygon_list &) { return kx_same_poly(&a.list, &a.list); }, 1, 1);
  fail([&](polygon_list &l) { return kx_intersect_poly(&a.list, &b.list, l); }, 2, 8);
}

}  // namespace
