#include <gtest/gtest.h>

#include <limits>

#include "kxgeom/geometry.h"
#include "kxgeom/polygon.h"
#include "kxgeom/runtime.h"
#include "polygon/edge_sweep.hpp"
#include "polygon/polygons.hpp"
#include "support/faults.hpp"

namespace {

// The rule itself, pair by pair. Edges that share an end meet there, and not where rounding puts it.
bool meet_amiss(const polygon &v, int outer, int inner) {
  const pnt_2d *a = v.data() + outer, *b = v.data() + inner;
  for (int i = 0; i < 4; ++i) {
    if (a[i / 2].x == b[i % 2].x && a[i / 2].y == b[i % 2].y) return false;
  }
  if (kx_samepnt(a, b) && kx_samepnt(a + 1, b + 1)) return false;
  if (kx_samepnt(a, b + 1) && kx_samepnt(a + 1, b)) return false;
  const line_2d one{a[0].x, a[0].y, a[1].x, a[1].y}, other{b[0].x, b[0].y, b[1].x, b[1].y};
  pnt_2d p;
  return kx_intersect_ls(&one, &other, &p) && !kx_samepnt(&p, a) && !kx_samepnt(&p, a + 1);
}

bool crossed(const polygon &v) {
  const int edges = static_cast<int>(v.size()) - 1;
  for (int i = 0; i < edges; ++i) {
    for (int k = 0; k < edges; ++k) {
      if (meet_amiss(v, i, k)) return true;
    }
  }
  return false;
}

// The sweep, which only crowded polygons come to, must be right whenever it is sure.
kx::edge_sweep::outcome swept(const polygon &v, bool want) {
  std::vector<kx::vec2> points;
  for (const pnt_2d &p : v) points.push_back({p.x, p.y});
  const auto amiss = [&](int i, int k) { return meet_amiss(v, i, k) || meet_amiss(v, k, i); };
  const auto found = kx::edge_sweep::run(points.data(), static_cast<int>(v.size()) - 1, amiss);
  EXPECT_NE(found, want ? kx::edge_sweep::outcome::apart : kx::edge_sweep::outcome::met);
  return found;
}

TEST(SelfIntersection, AsPairByPair) {
  randomness r(7);
  int faulty = 0;
  for (int run = 0; run < 6000; ++run) {
    const int n = 4 + r.below(run % 20 ? 5 : 40);
    const double scale = run % 3 ? 1.0 : run % 2 ? 1e-3 : 1e4;
    polygon v = r.walk(n, run % 20 ? 4 : 40, false);
    for (pnt_2d &p : v) p = {p.x * scale, p.y * scale};
    const bool want = crossed(v);
    faulty += want;
    polygon_list l(v, kinds[run % 4]);
    l.list.current = l.list.tail;
    ASSERT_EQ(kx_self_intersecting_polygon(l, 1), want) << run;
    swept(v, want);
    if (!want) EXPECT_EQ(l.list.current, l.list.head);
  }
  EXPECT_TRUE(faulty > 1500 && faulty < 4500) << faulty;
}

// Large ones, where most pairs are never compared; one vertex is moved so that its edges meet others, or just not.
TEST(SelfIntersection, OneFaultAmongMany) {
  randomness r(8);
  int apart = 0, met = 0;
  for (int run = 0; run < 300; ++run) {
    const int n = 100 + r.below(300);
    polygon v = run % 3 ? star(n, 50, 100, static_cast<unsigned>(run)) : star(n, 99, 100, 9);
    const std::size_t at = static_cast<std::size_t>(3 + r.below(n - 6));
    const std::size_t to = at + 1 - 2 * static_cast<std::size_t>(r.below(2));
    const double t = 0.5, beyond = 1 + (r.below(9) - 4) * (run % 2 ? 0.4e-7 : 1e-4);
    v[at] = {(v[to].x + t * (v[to + 1].x - v[to].x)) * beyond, (v[to].y + t * (v[to + 1].y - v[to].y)) * beyond};
    if (r.below(2)) v.push_back(v[0]);
    const bool want = crossed(v);
    ASSERT_EQ(kx_self_intersecting_polygon(polygon_list(v), 1), want) << run;
    const auto found = swept(v, want);
    apart += found == kx::edge_sweep::outcome::apart;
    met += found == kx::edge_sweep::outcome::met;
  }
  EXPECT_TRUE(apart > 100 && met > 50) << apart << " " << met;
}

// Long edges side by side, at a slant, over every abscissa and height; also folded onto themselves.
TEST(SelfIntersection, CombsAndSpikes) {
  for (const int n : {100, 3000, 20000}) {
    polygon comb;
    for (int i = 0; i < n; ++i) comb.push_back({i * 0.01 + (i % 2 ? 700 : 0), (i % 2 ? 700 : 0) - i * 0.01});
    EXPECT_EQ(kx_self_intersecting_polygon(polygon_list(comb), 0), 0);
    comb[static_cast<std::size_t>(n / 2)] = {n * 0.005 + 0.02, n * -0.005};
    comb[static_cast<std::size_t>(n / 2 + 1)] = {n * 0.005 - 0.02, n * -0.005 + 2};
    EXPECT_EQ(kx_self_intersecting_polygon(polygon_list(comb), 0), 1);
    polygon folded;
    for (int i = 0; i < n; ++i) folded.push_back({1.0 * (i % 7), 0});
    EXPECT_EQ(kx_self_intersecting_polygon(polygon_list(folded), 1), 0);
    EXPECT_EQ(kx_self_intersecting_polygon(polygon_list(star(n, 50, 100, 3)), 0), 0);
  }
}

TEST(SelfIntersection, ThreePointsAndFlag) {
  const struct {
    polygon v;
    int flag, want;
  } table[] = {{{{0, 0}, {5, 0}, {5, 5}}, 0, 0},
               {{{0, 0}, {1, 1}, {5, 5}}, 0, 1},
               {{{5, 5}, {0, 0}, {1, 1}}, 1, 1},
               {{{0, 0}, {5, 1e-9}, {3, -1e-9}}, 1, 1},
               {{{-5, 3}, {0, 3 + 1e-9}, {7, 3 - 1e-9}}, 1, 1},
               {{{4, 0}, {4, 7}, {4, 2}}, 1, 1},
               {{{0, 0}, {0, 0}, {5, 5}}, 1, 1},
               {{{0, 0}, {0, 5}, {5, 5}}, 0, 0},
               {{{0, 0}, {5, 5}}, 0, 0},
               {{{0, 0}, {5, 0}, {5, 5}, {0, 0}}, 0, 1},
               {{{0, 0}, {5, 0}, {5, 5}, {0, 1e-7}}, 0, 1},
               {{{0, 0}, {5, 0}, {5, 5}, {0, 0}}, 1, 0},
               {{{0, 0}, {5, 5}, {5, 0}, {0, 5}}, 0, 1},
               {{{5, 5}, {5, 0}, {0, 5}, {0, 0}}, 0, 0},  // only the closing edge crosses
               {{{0, 0}, {4, 0}, {4, 4}, {2, 0}}, 0, 1}};
  for (const auto &row : table)
    EXPECT_EQ(kx_self_intersecting_polygon(polygon_list(row.v), row.flag), row.want) << &row - table;
  const double nan = std::numeric_limits<double>::quiet_NaN(), inf = std::numeric_limits<double>::infinity();
  EXPECT_EQ(kx_self_intersecting_polygon(nullptr, 0), 0);
  EXPECT_EQ(kx_self_intersecting_polygon(polygon_list({{0, 0}, {nan, 1}, {4, 4}, {-inf, 2}, {9, 9}, {9, inf}}), 0), 0);
  EXPECT_EQ(kx_self_intersecting_polygon(polygon_list({{0, 0}, {5, 5}, {nan, 1}, {5, 0}, {0, 5}}), 0), 1);
  // Far from the origin the ends that edges share stay shared.
  polygon far = star(50, 80, 100, 4);
  for (pnt_2d &p : far) p = {p.x + 1e12, p.y - 3e12};
  far.push_back(far[0]);
  EXPECT_EQ(kx_self_intersecting_polygon(polygon_list(far), 1), 0);
}

TEST(SelfIntersection, ProperPolygons) {
  const double inf = std::numeric_limits<double>::infinity();
  const struct {
    polygon v;
    int want;
  } table[] = {{{{0, 0}, {5, 0}, {5, 5}}, 1},
               {{{0, 0}, {5, 0}, {5, 5}, {0, 0}}, 1},
               {{{0, 0}, {5, 0}, {5, 0}, {5, 5}}, 0},
               {{{0, 0}, {5, 0}, {9, 0}}, 0},
               {{{5, 5}, {5, 0}, {0, 5}, {0, 0}}, 0},
               {{{0, 0}, {5, 0}, {5, inf}}, 0},
               {{{0, 0}, {5, 0}}, 0},
               {{{0, 0}, {5, 0}, {0, 0}}, 0},
               {{{0, 0}, {5, 0}, {5, 5}, {0, 5}}, 1},
               {{{0, 0}, {4, 0}, {4, 4}, {2, 0}, {0, 4}}, 0}};
  for (const auto &row : table) EXPECT_EQ(kx_check_poly(polygon_list(row.v)), row.want) << &row - table;
  EXPECT_EQ(kx_check_poly(nullptr), 0);
}

TEST(SelfIntersection, NoMemory) {
  polygon_list l(star(2000, 50, 100, 3));
  for (const bool check_poly : {false, true}) {
    const auto call = [&](int) { return check_poly ? kx_check_poly(l) : kx_self_intersecting_polygon(l, 0); };
    const auto check = [&](int n, int, int result) {
      EXPECT_EQ(result, n == 0 && check_poly);
      EXPECT_EQ(faults::messages().size(), n ? 1u : 0u);
    };
    EXPECT_GT(faults::fail_each_allocation([] { return 0; }, call, check), 1);
  }
}

}  // namespace
