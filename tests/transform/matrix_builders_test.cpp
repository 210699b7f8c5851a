#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <vector>

#include "kxgeom/transform.h"

namespace {

TEST(MatrixBuilders, MapAPointAndActInCallOrder) {
  const pnt_2d centre{1, 1}, origin{0, 0}, p{2, 3};
  struct builder {
    std::function<void(double *)> build;
    pnt_2d want;  // where (2, 3) goes
  };
  std::vector<builder> table = {{[](double *m) { kx_translatematrix2d(5, -1, m); }, {7, 2}},
                                {[&](double *m) { kx_rotationmatrix2d(90, &centre, m); }, {-1, 2}},
                                {[&](double *m) { kx_rotationmatrix2d(-90, &origin, m); }, {3, -2}},
                                {[&](double *m) { kx_scalematrix2d(2, 3, &centre, m); }, {3, 7}},
                                {[&](double *m) { kx_scalematrix2d(1e-7, -4, &centre, m); }, {2, 3}},
                                {[&](double *m) { kx_scalematrix2d(0, 2, &centre, m); }, {1, 5}},
                                {[&](double *m) { kx_scalematrix2d(-1, 1.1e-7, &origin, m); }, {-2, 3.3e-7}},
                                {[](double *m) { kx_shearmatrix2d(1, 10, m); }, {2, 23}},
                                {[](double *m) { kx_shearmatrix2d(0, 10, m); }, {32, 3}}};
  const pnt_2d reflected[] = {{2, -3}, {2, -3}, {-2, 3}, {-2, -3}, {3, 2}, {-3, -2}};  // by modes from -1
  for (int mode = -1; mode < 5; ++mode)
    table.push_back({[mode](double *m) { kx_reflectmatrix2d(mode, m); }, reflected[mode + 1]});
  const auto map = [](const double *m, const pnt_2d &from) {
    pnt_2d to;
    kx_transformpnt2d(m, &from, &to);
    return to;
  };
  const auto expect_same = [&](const pnt_2d &a, const pnt_2d &b, const builder &first, const builder &second) {
    EXPECT_LE(std::hypot(a.x - b.x, a.y - b.y), 1e-9) << &first - &table[0] << ", " << &second - &table[0];
  };
  for (const builder &first : table) {
    double m[9], both[9], alone[9];
    kx_getidmatrix2d(m);
    first.build(m);
    expect_same(map(m, p), first.want, first, first);
    EXPECT_TRUE(m[2] == 0 && m[5] == 0 && m[8] == 1);
    for (const builder &second : table) {
      kx_movematrix2d(m, both);
      second.build(both);
      kx_getidmatrix2d(alone);
      second.build(alone);
      expect_same(map(both, p), map(alone, map(m, p)), first, second);
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
