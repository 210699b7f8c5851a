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

TEST(PointTransforms, OfSpaceAgreeWithTheBuiltMatrixAlsoInPlace) {
  const pnt_3d fixed{1, -2, 3}, p{4, 5, -6};
  const line_3d line{1, 2, 3, 4, -5, 6}, dot{1, 2, 3, 1, 2, 3};
  const auto check = [&](const double *m, const pnt_3d &got, int what, double v) {
    pnt_3d want = p;
    kx_transformpnt3d(m, &want, &want);
    EXPECT_LE(std::hypot(got.x - want.x, got.y - want.y, got.z - want.z), 1e-8) << what << " " << v;
  };
  for (double v : {0.0, 1e-9, 0.3, -2.0, 90.0, 1234.5}) {
    for (int axis = -1; axis <= 6; ++axis) {
      double m[16];
      kx_getidmatrix3d(m);
      pnt_3d got = p;
      if (axis == 5) {
        kx_translatematrix3d(v, -2 * v, 3 * v, m);
        kx_translatepnt3d(&got, v, -2 * v, 3 * v, &got);
      } else if (axis == 6) {
        kx_scalematrix3d(v, 1 - v, 2 * v, &fixed, m);
        EXPECT_EQ(kx_scalepnt3d(v, 1 - v, 2 * v, &fixed, &got, &got), 0);
      } else {
        kx_rotationmatrix3d(axis, v, &line, m);
        kx_rotatepnt3d(axis, v, &line, &got, &got);
      }
      check(m, got, axis, v);
    }
  }
  pnt_3d out{};
  kx_rotatepnt3d(3, 90, &dot, &p, &out);
  EXPECT_TRUE(out.x == p.x && out.y == p.y && out.z == p.z);
}

TEST(PointTransforms, TinyAnglesCopy) {
  const pnt_2d p{1e6, 1.0 / 3}, centre{1, 1};
  pnt_2d out;
  kx_rotatepnt2d(1e-7, &centre, &p, &out);
  EXPECT_TRUE(out.x == p.x && out.y == p.y);
  kx_rotatepnt2d(1.1e-7, &centre, &p, &out);
  EXPECT_TRUE(out.y != p.y);
  const pnt_3d q{1e6, 1.0 / 3, 1};
  pnt_3d copy, turned;
  kx_rotatepnt3d(2, -1e-7, nullptr, &q, &copy);
  kx_rotatepnt3d(2, -1.1e-7, nullptr, &q, &turned);
  EXPECT_TRUE(copy.x == q.x && copy.y == q.y && turned.y != q.y);
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
  double plane[9], space[16];
  kx_getidmatrix2d(plane), kx_getidmatrix3d(space);
  kx_translatematrix2d(10, 20, plane), kx_translatematrix3d(10, 20, 30, space);
  const std::string item = "ll_add_list_item", polygon = "transfpolygon";
  struct row {
    list_hdr *(KX_CALL *copy)(const double *, list_hdr *);
    std::int32_t tag;
    std::string record_text, item_text;  // of what finds no memory; "" says nothing
    bool taken = true;
  };
  const row table[] = {{kx_transfpolygon, KX_PNT_2D, polygon, "kx_transfpolygon - 3"},
                       {kx_transfpolygon, KX_POLY_2D, polygon, "kx_transfpolygon - 2"},
                       {kx_transfpolygon, KX_PNT_3D, "", "", false},
                       {kx_transform_polyline_3d, KX_PNT_3D, "", item},
                       {kx_transform_polyline_3d, KX_POLY_3D, "", item},
                       {kx_transform_polyline_3d, KX_POLY_2D, "", "", false}};
  for (const auto &[copy, tag, record_text, item_text, taken] : table) {
    const bool in_space = copy == kx_transform_polyline_3d;
    const double *m = in_space ? space : plane;
    const auto check = [&](int n, list_hdr &in, list_hdr *out) {
      const std::string text = n == 0 ? "" : n == 1 ? "ll_create_list" : n % 2 ? item_text : record_text;
      EXPECT_EQ(faults::messages().empty() ? "" : faults::messages().back(),
                text.empty() ? "" : "Memory Error: " + text);
      EXPECT_EQ(out == nullptr, n == 1 || (in_space && !taken));
      EXPECT_TRUE(in.current == (n == 1 ? in.tail : in.head));
      EXPECT_EQ(kx::count(out), n == 1 || !taken ? 0 : n ? 1 : 2);
      bool last = n == 2 || n == 3;  // the first one found no memory
      for (list_item &image : kx::items(out)) {
        const pnt_3d at = kx::read_point(image.data, tag);
        EXPECT_TRUE(image.datatype == tag && at.x == (last ? 13 : 11) && at.y == (last ? 24 : 22));
        EXPECT_EQ(at.z, in_space ? 30 : 0);
        EXPECT_EQ(kx::read_seqnr(image.data, tag), !kx::is_polygon_point(tag) ? 0 : last ? 5 : 7);
        last = true;
      }
      if (out) kx::release_items(*out);
      kx::release(out), kx::release_items(in);
    };
    const auto run = [&](list_hdr &l) { return copy(m, &l); };
    EXPECT_EQ(faults::fail_each_allocation([&] { return three(tag); }, run, check), taken ? 5 : 1);
    list_hdr nothing{};
    EXPECT_TRUE(!copy(m, &nothing) && !copy(m, nullptr));
  }
}

TEST(PointTransforms, ASetIsAppendedAlsoToItself) {
  double m[16];
  kx_getidmatrix3d(m);
  kx_translatematrix3d(10, 20, 30, m);
  const auto append = [&](list_hdr &l) { return kx_transform_pnt_set(m, &l, &l), 0; };
  const auto check = [&](int n, list_hdr &l, int) {
    EXPECT_EQ(kx::count(&l), n ? 4 : 5);
    EXPECT_EQ(n ? faults::messages().back() : "",
              n ? std::string("Memory Error: ") + (n % 2 ? "kx_create_poly_3D" : "ll_add_list_item") : "");
    const auto *image = static_cast<const poly_3d *>(l.tail->data);
    EXPECT_TRUE(l.tail->datatype == KX_POLY_3D && l.current == l.tail);
    EXPECT_TRUE(image->seqnr == (n > 2 ? 7 : 5) && image->y == (n > 2 ? 22 : 24) && image->z == 30);
    kx::release_items(l);
  };
  EXPECT_EQ(faults::fail_each_allocation([] { return three(KX_POLY_3D); }, append, check), 4);
  list_hdr points = three(KX_PNT_3D), out{};  // smaller than the vertices they would be read as
  kx_transform_pnt_set(m, &points, &out);
  kx_transform_pnt_set(m, nullptr, &out);
  kx_transform_pnt_set(m, &points, nullptr);
  EXPECT_TRUE(out.count == 0 && points.current == points.head);
  kx::release_items(points);
}

}  // namespace
