#include <gtest/gtest.h>

#include <algorithm>

#include "kxgeom/polygon.h"
#include "kxgeom/records.h"
#include "polygon/polygons.hpp"
#include "support/faults.hpp"

namespace {

const polygon square{{0, 0}, {10, 0}, {10, 10}, {0, 10}}, clockwise{{0, 0}, {0, 10}, {10, 10}, {10, 0}};

TEST(PointOrder, RunsAsAsked) {
  for (const bool closed : {false, true}) {
    polygon left = square, right = clockwise;
    if (closed) left.push_back(left[0]);
    if (closed) right.push_back(right[0]);
    const int n = static_cast<int>(left.size());
    polygon v = left;
    polygon_list l(left, KX_PNT_3D);
    for (const int direction : {0, 0, 1, 1, 0, -3}) {
      EXPECT_EQ(kx_orderpolygon(v.data(), n, direction), 1);
      EXPECT_EQ(kx_orderpolygonl(l, direction), 1);
      EXPECT_TRUE(same(v, direction ? left : right) && same(l.points(), v)) << direction;
    }
    EXPECT_EQ(kx_reverse_xy_poly(l), 1);
    EXPECT_TRUE(same(l.points(), right));
  }
  polygon_list triangle({{0, 0}, {1, 0}, {0, 1}}), pair({{0, 0}, {1, 0}});
  EXPECT_TRUE(kx_reverse_xy_poly(triangle) == 1 && same(triangle.points(), {{0, 0}, {0, 1}, {1, 0}}));
  EXPECT_EQ(kx::read_seqnr(triangle.list.tail->data, KX_POLY_2D), 1) << "records keep their numbers";
  polygon flat{{0, 0}, {1, 1}, {2, 2}}, small{{0, 0}, {1e-4, 0}, {0, 0.9e-3}};
  EXPECT_FALSE(kx_orderpolygon(flat.data(), 3, 1) || kx_orderpolygon(small.data(), 3, 0) ||
               kx_orderpolygon(flat.data(), -1, 1) || kx_orderpolygon(nullptr, 3, 1) || kx_orderpolygonl(pair, 1) ||
               kx_reverse_xy_poly(pair) || kx_reverse_xy_poly(nullptr) || kx_orderpolygonl(nullptr, 0));
}

TEST(PointOrder, Match) {
  const polygon_list l(square, KX_PNT_3D);
  const pnt_2d corner{10 + 1e-7, 10 - 0.9e-7}, beside{10, 1.1e-7};
  EXPECT_TRUE(kx_match_point(&corner, &l.list) && !kx_match_point(&beside, &l.list));
  EXPECT_FALSE(kx_match_point(&corner, nullptr) || kx_match_point(nullptr, &l.list));
}

TEST(PointOrder, Morph) {
  for (const int from : kinds) {
    polygon_list l(square, from);
    if (kx::is_polygon_point(from)) kx_renum_polygon(l, 0, 7, -2);
    for (const int to : kinds) {
      list_hdr *copy = kx_morph_polyline(&l.list, to);
      ASSERT_TRUE(copy && copy->count == 4 && copy->tail->datatype == to);
      const pnt_3d p = kx::read_point(copy->tail->data, to);
      EXPECT_TRUE(p.x == 0 && p.y == 10 && p.z == (kx::is_space_point(from) && kx::is_space_point(to) ? 7 : 0));
      if (kx::is_polygon_point(to)) EXPECT_EQ(kx::read_seqnr(copy->tail->data, to), kx::is_polygon_point(from) ? 1 : 3);
      EXPECT_EQ(kx_purge_polygon(copy), 0);
    }
    EXPECT_FALSE(kx_morph_polyline(&l.list, KX_RNUMBER));
  }
  EXPECT_FALSE(kx_morph_polyline(nullptr, 62) || kx_morph_polyline(polygon_list(), 62));
  const polygon_list l(square);
  const auto check = [](int n, int, list_hdr *copy) {
    EXPECT_EQ(copy == nullptr, n > 0);
    EXPECT_EQ(faults::messages().size(), n ? 1u : 0u);
    if (copy) kx_purge_polygon(copy);
  };
  const auto call = [&](int) { return kx_morph_polyline(&l.list, KX_PNT_3D); };
  EXPECT_EQ(faults::fail_each_allocation([] { return 0; }, call, check), 9);
}

}  // namespace
