#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "kxgeom/polygon.h"
#include "polygon/polygons.hpp"
#include "support/faults.hpp"
#include "support/message_folder.hpp"

namespace {

constexpr double nan = std::numeric_limits<double>::quiet_NaN();

int type_of(const polygon &v) {
  int array = -1, list = -1;
  const polygon_list l(v, kinds[v.size() % 4]);
  EXPECT_EQ(kx_polygontype(v.data(), static_cast<int>(v.size()), &array), kx_polygontypel(&l.list, &list));
  EXPECT_EQ(array, list);
  return array;
}

TEST(PolygonShape, Types) {
  EXPECT_EQ(type_of({{0, 0}, {5, 0}, {0, 5}}), 2);
  EXPECT_EQ(type_of({{0, 0}, {0, 5}, {5, 0}}), 2);
  EXPECT_EQ(type_of({{0, 0}, {4, 0}, {4, 2}, {2, 2}, {2, 4}, {0, 4}}), 1);
  EXPECT_EQ(type_of({{0, 0}, {1, 1}, {3, 3}}), 0);
  EXPECT_EQ(type_of({{0, 0}, {1, 0}, {2, 0.3e-7}, {3, 0}}), 0) << "turns within tolerance are none";
  EXPECT_EQ(type_of({{0, 0}, {1, 0}}), -1);
  EXPECT_EQ(type_of({{0, 0}, {nan, 0}, {1, 1}}), 0);
  EXPECT_EQ(kx_polygontype(nullptr, 3, nullptr), 41);
  // One dent, wherever it is, in either sense.
  for (const int n : {5, 64, 131, 300}) {
    for (int dent = -1; dent < n; ++dent) {
      polygon v = star(n, 100, 100, 1);
      if (dent >= 0)
        v[static_cast<std::size_t>(dent)] = {0.9 * v[static_cast<std::size_t>(dent)].x * (n == 5 ? 0 : 1), 0};
      if (dent > 0 && n > 64) v = polygon(v.rbegin(), v.rend());
      ASSERT_EQ(type_of(v), dent < 0 ? 2 : 1) << n << " " << dent;
    }
  }
}

TEST(PolygonShape, Direction) {
  const struct {
    polygon v;
    int want;
  } table[] = {{{{0, 0}, {10, 0}, {10, 10}, {0, 10}}, 1},
               {{{10, 10}, {10, 0}, {0, 0}, {0, 10}}, 0},
               {{{0, 0}, {10, 0}, {10, 10}, {0, 10}, {0, 0}}, 0},  // closed: no direction to the last point
               {{{10, 10}, {0, 10}, {0, 0}, {10, 0}}, 1},
               {{{-9, 0}, {0, -9}, {0, 9}}, 0},  // the corner looks across the axis
               {{{0, 0}, {10, 0}}, -1}};
  for (const auto &row : table) {
    for (const int kind : kinds) EXPECT_EQ(kx_get_poly2d_dir(polygon_list(row.v, kind)), row.want) << &row - table;
  }
  polygon_list foreign(table[0].v);
  foreign.list.current->datatype = KX_CURVE_STATS_2D;
  EXPECT_TRUE(kx_get_poly2d_dir(foreign) == -1 && kx_get_poly2d_dir(nullptr) == -1);
}

TEST(PolygonShape, Extremes) {
  const polygon v{{nan, 9}, {3, 1}, {0, 2}, {5, 2}, {5, 7}, {1, 7}, {0, 0.5}, {0.9e-7, 0.25}, {9, nan}};
  const int n = static_cast<int>(v.size());
  pnt_2d left, right, low, high;
  EXPECT_EQ(kx_extremepnts(v.data(), n, &left, &right, &low, &high), 0);
  EXPECT_TRUE(left.y == 2 && right.y == 2 && low.y == 0.25 && high.x == 5);
  EXPECT_EQ(kx_find_smallest_xy(v.data(), n), 7);
  rect_2d r{};
  EXPECT_EQ(kx_poly_xy_maxmin(polygon_list(v), &r), 1);
  EXPECT_TRUE(r.x1 == 0 && r.y1 == 0.25 && r.x2 == 5 && r.y2 == 7);
  const message_folder folder;
  faults::clear_messages();
  EXPECT_EQ(kx_extremepnts(v.data(), 1, &left, nullptr, nullptr, nullptr), 42);
  EXPECT_EQ(kx_extremepnts(nullptr, 5, &left, nullptr, nullptr, nullptr), 42);
  EXPECT_EQ(faults::messages(),
            std::vector<std::string>(2, "BADPNTS&msgrec[i]\nLocation: kx_extremepnts Error Nr: 42"));
  EXPECT_EQ(left.y, 2);
  const pnt_2d infinite{-std::numeric_limits<double>::infinity(), 3};
  EXPECT_EQ(kx_find_smallest_xy(&infinite, 1), 0);
  EXPECT_TRUE(kx_find_smallest_xy(v.data(), 0) == -1 && kx_find_smallest_xy(nullptr, 3) == -1);
  EXPECT_FALSE(kx_poly_xy_maxmin(nullptr, &r) || kx_poly_xy_maxmin(polygon_list(v), nullptr));
}

}  // namespace
