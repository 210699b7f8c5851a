#include <gtest/gtest.h>

#include <cmath>

#include "kxgeom/transform.h"

namespace {

double off(const pnt_3d &a, const pnt_3d &b) { return std::hypot(a.x - b.x, a.y - b.y, a.z - b.z); }

TEST(EntityCoordinates, AxesFollowTheRuleAndLeadBack) {
  const double slight = 1.0 / 64, less = 0.0156, high = std::sqrt(1 - less * less),
               table[][6] = {// a unit normal and its x axis
                             {0, 0, -1, -1, 0, 0},
                             {0, 0.6, 0.8, -1, 0, 0},
                             {less, 0, high, high, 0, -less},
                             {slight, 0, std::sqrt(1 - slight * slight), 0, 1, 0},
                             {-0.01, slight, std::sqrt(1 - 1e-4 - slight * slight), -slight, -0.01, 0}};
  for (const double length : {2e-7, 1.0, 1e200}) {
    for (const auto &[a, b, c, x, y, z] : table) {
      const vector_3d normal{9, 9, length * a, length * b, length * c};
      const double l = std::hypot(x, y, z);
      const pnt_3d ends[] = {
          {x / l, y / l, z / l}, {b * z / l - c * y / l, c * x / l - a * z / l, a * y / l - b * x / l}, {a, b, c}};
      for (int i = 0; i < 3; ++i) {
        const pnt_3d unit{i == 0 ? 1.0 : 0, i == 1 ? 1.0 : 0, i == 2 ? 1.0 : 0};
        pnt_3d p = unit;
        EXPECT_EQ(kx_ecs_to_wcs(&normal, &p, &p), 0);
        EXPECT_LE(off(p, ends[i]), 5e-16) << a << " " << b << " " << c << " axis " << i;
        EXPECT_EQ(kx_wcs_to_ecs(&normal, &p, &p), 0);
        EXPECT_LE(off(p, unit), 5e-16);
      }
    }
  }
}

TEST(EntityCoordinates, APlaneIsLaidIntoXy) {
  for (const planeeq &plane : {planeeq{0, 0, -2, 6}, planeeq{3, -4, 12, 26}}) {
    const vector_3d normal{0, 0, plane.a, plane.b, plane.c};
    const double length = std::hypot(plane.a, plane.b, plane.c);
    double m[16], before[16];
    kx_getidmatrix3d(m);
    kx_translatematrix3d(1, 2, 3, m);
    kx_movematrix3d(m, before);
    EXPECT_EQ(kx_plane_to_xy(&plane, m), 0);
    const pnt_3d p{5, -7, 9};
    pnt_3d q, own, laid, origin;
    kx_transformpnt3d(before, &p, &q);
    kx_transformpnt3d(m, &p, &laid);
    kx_wcs_to_ecs(&normal, &q, &own);
    EXPECT_EQ(kx_get_ecs_origin(&plane, &origin), 0);
    EXPECT_LE(off(laid, {own.x, own.y, (plane.a * q.x + plane.b * q.y + plane.c * q.z + plane.d) / length}), 1e-14);
    kx_wcs_to_ecs(&normal, &origin, &own);
    EXPECT_LE(off(own, {0, 0, -plane.d / length}), 1e-15);
  }
}

TEST(EntityCoordinates, WithoutADirectionNothingIsWritten) {
  const vector_3d normal{0, 0, 0, 1e-7, 0};
  const planeeq plane{0, 1e-7, 0, 1};
  pnt_3d p{7, 7, 7};
  double m[16] = {7};
  EXPECT_TRUE(kx_ecs_to_wcs(&normal, &p, &p) == 25 && kx_wcs_to_ecs(&normal, &p, &p) == 25 && p.y == 7);
  EXPECT_TRUE(kx_get_ecs_origin(&plane, &p) == 25 && kx_plane_to_xy(&plane, m) == 25 && m[0] == 7);
}

}  // namespace
