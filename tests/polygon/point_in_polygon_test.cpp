#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

#include "kxgeom/polygon.h"
#include "kxgeom/runtime.h"
#include "polygon/polygons.hpp"

namespace {

constexpr double nan = std::numeric_limits<double>::quiet_NaN(), inf = std::numeric_limits<double>::infinity();

// The second way, in whole numbers: a ray so slightly inclined that it meets no vertex.
struct truth {
  bool in = false, on = false;
  truth(const polygon &v, pnt_2d p) {
    const auto cross = [](double ax, double ay, double bx, double by) { return ax * by - ay * bx; };
    for (std::size_t i = 0; i < v.size(); ++i) {
      const pnt_2d a = v[i], b = v[(i + 1) % v.size()];
      const double ax = a.x - p.x, ay = a.y - p.y, bx = b.x - p.x, by = b.y - p.y;
      on = on || (cross(ax, ay, bx, by) == 0 && ax * bx + ay * by <= 0);
      const double sa = cross(10007, 1, ax, ay), sb = cross(10007, 1, bx, by);
      if ((sa > 0) != (sb > 0) && (cross(ax, ay, bx, by) > 0) == (sb > sa)) in = !in;
    }
  }
};

int in_array(pnt_2d p, const polygon &v, int *index = nullptr) {
  const int n = static_cast<int>(v.size());
  return kx_inpolygon(&p, v.data(), &n, index);
}

TEST(PointInPolygon, IsTrueFromEveryStartInBothDirectionsAndInAllForms) {
  randomness r(1);
  for (int run = 0; run < 4000; ++run) {
    const int n = 3 + r.below(run % 100 == 0 ? 200 : 12);
    polygon v = r.walk(n, 2 + r.below(6), true);
    const polygon_list list(v, kinds[run % 4]);
    for (int k = 0; k < 6; ++k) {
      const pnt_2d p{r.whole(8), r.whole(8)};
      const truth t(v, p);
      ASSERT_EQ(kx_inpolygonl(&p, &list.list), t.in && !t.on);
      ASSERT_EQ(kx_inonpolygonl(&p, &list.list), t.in || t.on);
      ASSERT_EQ(kx_onpolygonl(&p, &list.list), t.on);
      if (t.on) continue;
      int index = 0;
      std::rotate(v.begin(), v.begin() + r.below(n), v.end());
      ASSERT_EQ(in_array(p, v, &index), t.in) << run;
      ASSERT_EQ(in_array(p, v, &index), t.in);
      polygon other(v.rbegin(), v.rend());
      other.push_back(other[0]);
      ASSERT_EQ(in_array(p, other), t.in);
    }
    EXPECT_EQ(list.list.current, list.list.head);
  }
}

TEST(PointInPolygon, RightmostIndex) {
  randomness r(2);
  for (int run = 0; run < 400; ++run) {
    polygon v(static_cast<std::size_t>(3 + r.below(run % 2 ? 20 : 300)));
    const bool close = r.below(2), up = r.below(2);
    for (std::size_t i = 0; i < v.size(); ++i)
      v[i] = {100.0 + (close ? r.below(60) * 1e-6 : up ? static_cast<double>(i) : r.whole(50)), r.whole(9)};
    if (kx_samepnt(&v.front(), &v.back())) continue;
    int want = 0, index = 0;
    double x = -1.7e200;
    for (std::size_t i = 0; i < v.size(); ++i) {
      if (x - (std::fabs(x) + 1) * 1e-7 > v[i].x) continue;
      x = v[i].x;
      want = static_cast<int>(i);
    }
    in_array({0, 0}, v, &index);
    ASSERT_EQ(index, want) << run;
    if (index == 0) continue;
    index = 999;
    in_array({0, 0}, v, &index);
    ASSERT_EQ(index, 999);
  }
}

TEST(PointInPolygon, TolerancesAndLongWays) {
  const polygon square{{0, 0}, {10, 0}, {10, 10}, {0, 10}}, flat{{0, 0}, {10, 1e-9}, {20, 0}, {20, 8}, {0, 8}};
  const polygon far{{1e12, 1e12}, {1e12 + 100, 1e12}, {1e12 + 50, 1e12 + 99}}, dwarf{{0, 0}, {10, 5e-324}, {20, 9}};
  const polygon_list s(square), f(far);
  const auto ask = [&](pnt_2d p) { return kx_inpolygonl(&p, s.list.head ? &s.list : nullptr); };
  EXPECT_TRUE(ask({10 - 3e-7, 5}) && !ask({10 - 0.9e-7, 5}) && !ask({5, 0.9e-7}) && ask({5, 1.1e-7}));
  const pnt_2d beside{10 + 0.9e-7, 5}, inside{1e12 + 50, 1e12 + 1}, outside{1e12 + 49, 1e12 + 98};
  EXPECT_TRUE(kx_onpolygonl(&beside, &s.list) && kx_inonpolygonl(&beside, &s.list));
  EXPECT_TRUE(kx_inpolygonl(&inside, &f.list) && !kx_inonpolygonl(&outside, &f.list));
  EXPECT_TRUE(in_array(inside, far) && !in_array(outside, far));
  // The height of an edge that is next to none decides nothing.
  EXPECT_TRUE(in_array({10, 1}, flat) && !in_array({-1, 0}, flat) && !in_array({-1, 1e-9}, flat));
  EXPECT_TRUE(!in_array({-5, 0}, dwarf) && !in_array({25, 0}, dwarf) && in_array({10, 1}, dwarf));
}

TEST(PointInPolygon, BadInput) {
  const polygon square{{0, 0}, {10, 0}, {10, 10}, {0, 10}};
  polygon broken{{0, 0}, {nan, 3}, {10, 0}, {10, nan}, {10, 10}, {0, 10}};
  const pnt_2d p{5, 5};
  int n = 4, index = 0, few = 2, negative = -5;
  EXPECT_FALSE(kx_inpolygon(nullptr, square.data(), &n, &index) || kx_inpolygon(&p, nullptr, &n, &index) ||
               kx_inpolygon(&p, square.data(), nullptr, &index) || kx_inpolygon(&p, square.data(), &few, &index) ||
               kx_inpolygon(&p, square.data(), &negative, &index));
  EXPECT_EQ(index, 0);
  for (const pnt_2d &q : polygon{{nan, 5}, {5, nan}, {inf, 5}, {-inf, 5}, {5, inf}}) {
    const polygon_list s(square), b(broken);
    EXPECT_FALSE(in_array(q, square) || in_array(q, broken) || kx_inonpolygonl(&q, &s.list) ||
                 kx_inonpolygonl(&q, &b.list));
  }
  in_array(p, broken, &index);
  EXPECT_EQ(index, 4);
  polygon_list two({{0, 0}, {10, 10}}), one({{5, 5}}), none, foreign(square);
  foreign.list.head->datatype = foreign.list.current->datatype = KX_RNUMBER;
  EXPECT_TRUE(kx_onpolygonl(&p, two) && kx_onpolygonl(&p, one) && !kx_onpolygonl(&p, none));
  EXPECT_FALSE(kx_inonpolygonl(&p, two) || kx_inonpolygonl(&p, foreign) || kx_inpolygonl(&p, nullptr) ||
               kx_inpolygonl(nullptr, foreign));
  // A smaller record among larger ones is passed over, and so is an item without data.
  polygon_list mixed(square, KX_POLY_3D);
  kx::append(mixed.list, kx::create_point(KX_PNT_2D, {99, 99, 0}, 0), KX_PNT_2D);
  kx::append(mixed.list, nullptr, KX_POLY_3D);
  mixed.list.current = mixed.list.head;
  EXPECT_TRUE(kx_inpolygonl(&p, mixed));
  n = 3;  // two and their repetition
  const polygon line{{0, 0}, {10, 10}, {0, 0}};
  EXPECT_FALSE(kx_inpolygon(&p, line.data(), &n, nullptr));
}

}  // namespace
