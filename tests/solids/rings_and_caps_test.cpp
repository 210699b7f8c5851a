#include <climits>
#include <cmath>

#include "kxgeom/list.h"
#include "kxgeom/records.h"
#include "kxgeom/solids.h"
#include "support/closed_body.hpp"
#include "support/faults.hpp"

namespace {

const pnt_3d centre{1, 2, 3};
const rect_2d rect{-3, 1, 5, 3};

// Both lists on a solid, which frees them.
solid *new_lists() {
  solid *s = kx_create_solid();
  s->vertex_list = ll_create_list();
  s->face_list = ll_create_list();
  return s;
}

TEST(RingsAndCaps, RingsNumberOn) {
  solid *s = new_lists();
  list_hdr *list = s->vertex_list;
  int32_t number = 7, k = 0;
  EXPECT_EQ(kx_regpolyxyzpnts(&centre, 2, 4, &number, 90, list), 11);
  EXPECT_EQ(kx_ellipsexyzpnts(&rect, 9, 8, &number, 0, list), 19);
  EXPECT_TRUE(number == 19 && list->count == 12);
  for (const list_item *i = list->head; i; i = i->next, ++k) {
    const auto &v = *static_cast<const poly_3d *>(i->data);
    EXPECT_TRUE(i->datatype == KX_POLY_3D && v.seqnr == 7 + k && v.z == (k < 4 ? 3 : 9));
    const double angle = std::acos(0.0) * (k < 4 ? k + 1 : (k - 4) / 2.0);
    EXPECT_NEAR(v.x, 1 + (k < 4 ? 2 : 4) * std::cos(angle), 1e-10) << k;
    EXPECT_NEAR(v.y, 2 + (k < 4 ? 2 : 1) * std::sin(angle), 1e-10) << k;
  }
  EXPECT_EQ(kx_regpolyxyzpnts(&centre, 2, 1, nullptr, 0, list), 1);
  number = INT_MAX;
  EXPECT_EQ(kx_regpolyxyzpnts(&centre, 2, 1, &number, 0, list), INT_MIN);
  for (const int32_t n : {0, -1, INT_MIN, INT_MAX, KX_SOLID_VERTICES_MOST + 1})
    EXPECT_EQ(kx_regpolyxyzpnts(&centre, 2, n, &number, 0, list), INT_MIN);
  EXPECT_EQ(kx_regpolyxyzpnts(nullptr, 2, 3, &number, 0, list), INT_MIN);
  EXPECT_EQ(kx_ellipsexyzpnts(nullptr, 2, 3, &number, 0, list), INT_MIN);
  EXPECT_EQ(kx_regpolyxyzpnts(&centre, 2, 3, &number, 0, nullptr), INT_MIN);
  EXPECT_EQ(list->count, 14);
  kx_purge_solid(s);
}

TEST(RingsAndCaps, CapsTurnBothWays) {
  solid *s = new_lists();
  list_hdr *vertices = s->vertex_list, *faces = s->face_list;
  kx_regpolyxyzpnts(&centre, 0, 1, nullptr, 0, vertices);
  int32_t number = 1;
  kx_regpolyxyzpnts(&centre, 1, 3, &number, 0, vertices);
  EXPECT_EQ(kx_arc_faces(&number, 3, 0, 0, vertices, faces), 7);
  EXPECT_EQ(kx_arc_faces(&number, 3, 0, -1, vertices, faces), 10);
  EXPECT_EQ(number, 10);
  const auto mesh = closed_body::read(s);
  EXPECT_EQ(mesh.rings,
            (std::vector<std::vector<int>>{{0, 1, 2}, {0, 2, 3}, {0, 3, 1}, {0, 2, 1}, {0, 3, 2}, {0, 1, 3}}));
  closed_body::expect_normals(s);
  for (const list_item *i = faces->head; i; i = i->next) {
    for (int k = 0; k < 4; ++k) EXPECT_EQ(static_cast<polyface_3d *>(i->data)->vertex_attributes[k], 1 - k % 2);
  }
  for (const int32_t n : {0, -1, INT_MIN}) EXPECT_EQ(kx_arc_faces(&number, n, 0, 0, vertices, faces), 10);
  EXPECT_EQ(kx_arc_faces(&number, INT_MAX, 0, 0, vertices, faces), 1);
  EXPECT_EQ(kx_arc_faces(&number, 3, 0, 0, nullptr, faces), 1);
  EXPECT_EQ(kx_arc_faces(&number, 3, 0, 0, vertices, nullptr), 1);
  EXPECT_EQ(kx_arc_faces(nullptr, 1, INT_MAX, 0, vertices, faces), 1);  // of vertices that are not there
  EXPECT_TRUE(faces->count == 7 && number == 10);
  kx_purge_solid(s);
}

TEST(RingsAndCaps, StopWithoutMemory) {
  struct inputs {
    solid *s = new_lists();
    int32_t vertex_number = 0, face_number = 5, made = 0;
  };
  const int allocations = faults::fail_each_allocation(
      [] { return inputs{}; },
      [](inputs &in) {
        in.made = kx_regpolyxyzpnts(&centre, 1, 2, &in.vertex_number, 0, in.s->vertex_list);
        return kx_arc_faces(&in.face_number, 2, 0, 0, in.s->vertex_list, in.s->face_list);
      },
      [](int n, inputs &in, int32_t result) {
        EXPECT_TRUE(in.made == in.vertex_number && in.made == in.s->vertex_list->count);
        EXPECT_EQ(in.made, n > 0 && n <= 4 ? (n - 1) / 2 : 2);
        EXPECT_EQ(result, n > 4 ? 1 : 7) << n;
        EXPECT_EQ(in.face_number, 5 + in.s->face_list->count);
        EXPECT_EQ(faults::messages().size(), n > 0 ? 1u : 0u);
        kx_purge_solid(in.s);
      });
  EXPECT_GE(allocations, 9);
}

}  // namespace
