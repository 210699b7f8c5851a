#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "kxgeom/transform.h"
#include "list/items.hpp"
#include "list/point_kind.hpp"
#include "support/faults.hpp"

namespace {

TEST(PointTransforms, AgreeWithTheBuiltMatrixAlsoInPlace) {
  const pnt_2d centre{1, -2}, flat{4, 5};
  const pnt_3d fixed{1, -2, 3}, p{4, 5, -6};
  const line_3d line{1, 2, 3, 4, -5, 6};
  for (double v : {0.0, 1e-9, 0.3, -2.0, 90.0, 1234.5}) {
    for (int what = -1; what <= 9; ++what) {  // an axis of space, another change of space, or one of the plane
      double m[16], plane[9];
      kx_getidmatrix3d(m), kx_getidmatrix2d(plane);
      pnt_3d got = p, want = p;
      pnt_2d got_2d = flat, want_2d = flat;
      if (what < 5) kx_rotationmatrix3d(what, v, &line, m), kx_rotatepnt3d(what, v, &line, &got, &got);
      if (what == 5) kx_translatematrix3d(v, -2 * v, 3 * v, m), kx_translatepnt3d(&got, v, -2 * v, 3 * v, &got);
      if (what == 6) kx_scalematrix3d(v, 1 - v, 2 * v, &fixed, m), kx_scalepnt3d(v, 1 - v, 2 * v, &fixed, &got, &got);
      if (what == 7) kx_translatematrix2d(v, -2 * v, plane), kx_translatepnt2d(&got_2d, v, -2 * v, &got_2d);
      if (what == 8) kx_rotationmatrix2d(v, &centre, plane), kx_rotatepnt2d(v, &centre, &got_2d, &got_2d);
      if (what == 9) kx_scalematrix2d(v, 1 - v, &centre, plane), kx_scalepnt2d(v, 1 - v, &centre, &got_2d, &got_2d);
      kx_transformpnt3d(m, &want, &want), kx_transformpnt2d(plane, &want_2d, &want_2d);
      EXPECT_LE(std::hypot(got.x - want.x, got.y - want.y, got.z - want.z), 1e-8) << what << " " << v;
      EXPECT_LE(std::hypot(got_2d.x - want_2d.x, got_2d.y - want_2d.y), 1e-8) << what << " " << v;
    }
  }
}

TEST(PointTransforms, TinyAnglesAndShortAxesCopy) {
  const pnt_2d p{1e6, 1.0 / 3}, centre{1, 1};
  const pnt_3d q{1e6, 1.0 / 3, 1};
  const line_3d dot{1, 2, 3, 1, 2, 3};
  pnt_2d copy, turned;
  kx_rotatepnt2d(1e-7, &centre, &p, &copy), kx_rotatepnt2d(1.1e-7, &centre, &p, &turned);
  EXPECT_TRUE(copy.x == p.x && copy.y == p.y && turned.y != p.y);
  pnt_3d same, other, unturned;
  kx_rotatepnt3d(2, -1e-7, nullptr, &q, &same), kx_rotatepnt3d(2, -1.1e-7, nullptr, &q, &other);
  kx_rotatepnt3d(3, 90, &dot, &q, &unturned);
  EXPECT_TRUE(same.x == q.x && same.y == q.y && other.y != q.y && unturned.x == q.x && unturned.z == q.z);
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
  const struct {
    std::int32_t tag;
    std::string record_text, item_text;  // of what finds no memory; "" says nothing
  } table[] = {{KX_PNT_2D, "transfpolygon", "kx_transfpolygon - 3"},
               {KX_POLY_2D, "transfpolygon", "kx_transfpolygon - 2"},
               {KX_PNT_3D, "", "ll_add_list_item"},
               {KX_POLY_3D, "", "ll_add_list_item"}};
  for (const auto &[tag, record_text, item_text] : table) {
    const bool in_space = tag == KX_PNT_3D || tag == KX_POLY_3D;
    for (int n = 0; n < 4; ++n) {  // which allocation fails
      list_hdr in = three(tag);
      faults::clear_messages();
      faults::watch(n);
      list_hdr *out = in_space ? kx_transform_polyline_3d(space, &in) : kx_transfpolygon(plane, &in);
      faults::unwatch();
      const std::string text = n == 0 ? "" : n == 1 ? "ll_create_list" : n == 2 ? record_text : item_text;
      EXPECT_EQ(faults::messages().empty() ? "" : faults::messages().back(),
                text.empty() ? "" : "Memory Error: " + text);
      EXPECT_TRUE((out == nullptr) == (n == 1) && in.current == (n == 1 ? in.tail : in.head));
      EXPECT_EQ(kx::count(out), n == 1 ? 0 : n ? 1 : 2);
      bool last = n > 1;  // the first one found no memory
      for (list_item &image : kx::items(out)) {
        const pnt_3d at = kx::read_point(image.data, tag);
        EXPECT_TRUE(at.x == (last ? 13 : 11) && at.y == (last ? 24 : 22) && at.z == (in_space ? 30 : 0));
        EXPECT_EQ(kx::read_seqnr(image.data, tag), !kx::is_polygon_point(tag) ? 0 : last ? 5 : 7);
        last = true;
      }
      if (out) kx::release_items(*out);
      kx::release(out), kx::release_items(in);
    }
  }
}

TEST(PointTransforms, ASetIsAppendedAlsoToItself) {
  double m[16];
  kx_getidmatrix3d(m);
  kx_translatematrix3d(10, 20, 30, m);
  list_hdr l = three(KX_POLY_3D);
  kx_transform_pnt_set(m, &l, &l);
  const auto *image = static_cast<const poly_3d *>(l.tail->data);
  EXPECT_TRUE(l.count == 5 && l.tail->datatype == KX_POLY_3D && l.current == l.tail);
  EXPECT_TRUE(image->seqnr == 5 && image->y == 24 && image->z == 30);
  kx::release_items(l);
}

}  // namespace
