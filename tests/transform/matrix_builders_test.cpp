#include <gtest/gtest.h>

#include <functional>

#include "kxgeom/transform.h"

namespace {

struct builder {
  const char *name;
  std::function<void(double *)> build;
  pnt_2d want;  // where (2, 3) goes
};

TEST(MatrixBuilders, MapAPointAndActInCallOrder) {
  const pnt_2d centre{1, 1}, origin{0, 0};
  const builder table[] = {{"move", [](double *m) { kx_translatematrix2d(5, -1, m); }, {7, 2}},
                           {"turn", [&](double *m) { kx_rotationmatrix2d(90, &centre, m); }, {-1, 2}},
                           {"turn back", [&](double *m) { kx_rotationmatrix2d(-90, &origin, m); }, {3, -2}},
                           {"scale", [&](double *m) { kx_scalematrix2d(2, 3, &centre, m); }, {3, 7}},
                           {"both factors small", [&](double *m) { kx_scalematrix2d(1e-7, -4, &centre, m); }, {2, 3}},
                           {"one factor small", [&](double *m) { kx_scalematrix2d(0, 2, &centre, m); }, {1, 5}},
                           {"mirror", [&](double *m) { kx_scalematrix2d(-1, 1.1e-7, &origin, m); }, {-2, 3.3e-7}},
                           {"shear y", [](double *m) { kx_shearmatrix2d(1, 10, m); }, {2, 23}},
                           {"shear x", [](double *m) { kx_shearmatrix2d(0, 10, m); }, {32, 3}},
                           {"reflect 0", [](double *m) { kx_reflectmatrix2d(0, m); }, {2, -3}},
                           {"reflect 1", [](double *m) { kx_reflectmatrix2d(1, m); }, {-2, 3}},
                           {"reflect 2", [](double *m) { kx_reflectmatrix2d(2, m); }, {-2, -3}},
                           {"reflect 3", [](double *m) { kx_reflectmatrix2d(3, m); }, {3, 2}},
                           {"reflect 4", [](double *m) { kx_reflectmatrix2d(4, m); }, {-3, -2}},
                           {"reflect -1", [](double *m) { kx_reflectmatrix2d(-1, m); }, {2, -3}}};
  const pnt_2d p{2, 3};
  for (const builder &first : table) {
    double m[9];
    kx_getidmatrix2d(m);
    first.build(m);
    pnt_2d once;
    kx_transformpnt2d(m, &p, &once);
    EXPECT_NEAR(once.x, first.want.x, 1e-9) << first.name;
    EXPECT_NEAR(once.y, first.want.y, 1e-9) << first.name;
    EXPECT_TRUE(m[2] == 0 && m[5] == 0 && m[8] == 1) << first.name;
    for (const builder &second : table) {
      double both[9], alone[9];
      kx_movematrix2d(m, both);
      second.build(both);
      kx_getidmatrix2d(alone);
      second.build(alone);
      pnt_2d twice, composed;
      kx_transformpnt2d(alone, &once, &twice);
      kx_transformpnt2d(both, &p, &composed);
      EXPECT_NEAR(composed.x, twice.x, 1e-9) << first.name << ", " << second.name;
      EXPECT_NEAR(composed.y, twice.y, 1e-9) << first.name << ", " << second.name;
    }
    first.build(nullptr);  // does nothing
  }
}

TEST(MatrixBuilders, SpaceIdentity) {
  double m[16], copy[16];
  kx_getidmatrix3d(m);
  kx_movematrix3d(m, copy);
  for (int i = 0; i < 16; ++i) EXPECT_EQ(copy[i], i % 5 == 0 ? 1 : 0);
}

}  // namespace
