#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "kxgeom/transform.h"
#include "list/items.hpp"
#include "list/point_kind.hpp"
#include "support/faults.hpp"

namespace {

TEST(PointTransforms, AgreeWithTheBuiltMatrixAlsoInPlace) {
  const pnt_2d centre{1, -2}, p{4, 5};
  for (double v : {0.0, 1e-9, 0.3, -2.0, 90.0, 1234.5}) {
    double m[3][9];
    for (double *one : m) kx_getidmatrix2d(one);
    kx_translatematrix2d(v, -2 * v, m[0]);
    kx_rotationmatrix2d(v, &centre, m[1]);
    kx_scalematrix2d(v, 1 - v, &centre, m[2]);
    for (int i = 0; i < 3; ++i) {
      pnt_2d want, got = p;
      kx_transformpnt2d(m[i], &p, &want);
      if (i == 0) kx_translatepnt2d(&got, v, -2 * v, &got);
      if (i == 1) kx_rotatepnt2d(v, &centre, &got, &got);
      if (i == 2) kx_scalepnt2d(v, 1 - v, &centre, &got, &got);
      EXPECT_TRUE(std::fabs(got.x - want.x) <= 1e-8 && std::fabs(got.y - want.y) <= 1e-8) << i << " " << v;
    }
  }
}

TEST(PointTransforms, TinyAnglesCopy) {
  const pnt_2d p{1e6, 1.0 / 3}, centre{1, 1};
  pnt_2d out;
  kx_rotatepnt2d(1e-7, &centre, &p, &out);
  EXPECT_TRUE(out.x == p.x && out.y == p.y);
  kx_rotatepnt2d(1.1e-7, &centre, &p, &out);
  EXPECT_TRUE(out.y != p.y);
}

// Three items of a kind, the middle one without data, the cursor on the last.
list_hdr three(std::int32_t tag) {
  list_hdr l{};
  kx::append(l, kx::create_point(tag, {1, 2, 0}, 7), tag);
  kx::append(l, nullptr, tag);
  kx::append(l, kx::create_point(tag, {3, 4, 0}, 5), tag);
  return l;
}

TEST(PointTransforms, ListsByKindAndWithoutMemory) {
  double m[9];
  kx_getidmatrix2d(m);
  kx_translatematrix2d(10, 20, m);
  for (std::int32_t tag : {KX_PNT_2D, KX_POLY_2D, KX_PNT_3D}) {
    const auto check = [&](int n, list_hdr &in, list_hdr *out) {
      const std::string append = std::string("kx_transfpolygon - ") + (tag == KX_PNT_2D ? "3" : "2");
      const std::string place = n == 1 ? "ll_create_list" : n % 2 ? append : "transfpolygon";
      EXPECT_EQ(n ? faults::messages().back() : "", n ? "Memory Error: " + place : "");
      EXPECT_EQ(out == nullptr, n == 1);
      EXPECT_TRUE(in.current == (n == 1 ? in.tail : in.head));
      EXPECT_EQ(kx::count(out), n == 1 || tag == KX_PNT_3D ? 0 : n ? 1 : 2);
      bool last = n == 2 || n == 3;  // the first one found no memory
      for (list_item &item : kx::items(out)) {
        const pnt_3d at = kx::read_point(item.data, tag);
        EXPECT_TRUE(item.datatype == tag && at.x == (last ? 13 : 11) && at.y == (last ? 24 : 22));
        EXPECT_EQ(kx::read_seqnr(item.data, tag), tag == KX_PNT_2D ? 0 : last ? 5 : 7);
        last = true;
      }
      if (out) kx::release_items(*out);
      kx::release(out), kx::release_items(in);
    };
    const int allocations = faults::fail_each_allocation([&] { return three(tag); },
                                                         [&](list_hdr &l) { return kx_transfpolygon(m, &l); }, check);
    EXPECT_EQ(allocations, tag == KX_PNT_3D ? 1 : 5);
  }
  list_hdr nothing{};
  EXPECT_TRUE(!kx_transfpolygon(m, &nothing) && !kx_transfpolygon(m, nullptr));
}

}  // namespace
