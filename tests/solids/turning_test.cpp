#include <cmath>
#include <limits>

#include "kxgeom/list.h"
#include "kxgeom/solids.h"
#include "support/closed_body.hpp"

namespace {

const pnt_3d centre{1, 2, 3};

pnt_3d vertex(const solid *s, int number) {
  pnt_3d p{};
  kx_get_facevertex(s->vertex_list, number, &p);
  return p;
}

TEST(Turning, TakesZToTheVectorByTheShortestWay) {
  // What is square to z and the vector stays: the turn's axis, (-j, i, 0).
  const vector_3d table[] = {{1, 1, 1, 0, 0},     {1, 1, 0, -5, 0},      {1, 1, 2, 3, 6},         {1, 1, -2, 3, -6},
                             {1, 1, 1e-9, 0, -1}, {1, 1, 3e-4, 0, 4e-4}, {1, 1, 1e300, 1e300, 0}, {1, 1, 0, 0, -2}};
  for (const vector_3d &v : table) {
    const double flat = std::hypot(v.i, v.j), len = std::hypot(flat, v.k);
    const double ax = flat > 0 ? -v.j / flat : 1, ay = flat > 0 ? v.i / flat : 0;
    solid *s = kx_create_solid();
    kx_add_vertex(s, 7, &centre, 1);  // the centre of the box
    const pnt_3d above{1, 2, 5}, beside{1 + 2 * ax, 2 + 2 * ay, 3};
    kx_add_vertex(s, 8, &above, 1);
    kx_add_vertex(s, 9, &beside, 1);
    const int32_t ring[] = {9, 7, 8}, flags[4] = {};
    kx_add_face(1, ring, flags, 3, s);
    s->xmin = s->ymin = s->zmin = -10;
    s->xmax = 12, s->ymax = 14, s->zmax = 16;
    EXPECT_EQ(kx_transform_solid_vector(s, &v), s);
    const pnt_3d c = vertex(s, 7), up = vertex(s, 8), same = vertex(s, 9);
    EXPECT_NEAR(std::hypot(c.x - 1, c.y - 2, c.z - 3), 0, 1e-15);
    EXPECT_NEAR(std::hypot(up.x - 1 - 2 * v.i / len, up.y - 2 - 2 * v.j / len, up.z - 3 - 2 * v.k / len), 0, 2e-15);
    EXPECT_NEAR(std::hypot(same.x - beside.x, same.y - beside.y, same.z - 3), 0, 2e-15);
    closed_body::expect_normals(s);
    closed_body::mesh box{{{c.x, c.y, c.z}, {up.x, up.y, up.z}, {same.x, same.y, same.z}}, {}};
    closed_body::expect_extents(s, box, closed_body::box::least);
    kx_purge_solid(s);
  }
}

TEST(Turning, LeavesTheSolidWithoutADirection) {
  const double inf = std::numeric_limits<double>::infinity(), nan = std::nan("");
  for (const vector_3d &v : {vector_3d{5, 5, 0, 0, 0},
                             {5, 5, 0, 0, 3},
                             {5, 5, 6e-8, 0, 0},
                             {5, 5, nan, 1, 1},
                             {5, 5, 1, inf, 1},
                             {0, 1e-7, 1, 1, 1}}) {
    int32_t n = 3;
    solid *s = kx_cylinder_pnts(&centre, 2, 2, 2, &n, &v, nullptr);
    EXPECT_TRUE(vertex(s, 0).z == 4 && s->xmin == 0 && s->ymin == 1) << v.i;
    kx_purge_solid(s);
  }
  EXPECT_EQ(kx_transform_solid_vector(nullptr, nullptr), nullptr);
}

TEST(Turning, PivotsAboutTheRecordAndTurnsItsAxis) {
  const vector_3d v{1, 0, 0, 0, -3};
  const pnt_3d at{5, 0, 0};
  solid *s = kx_torus_pnts(&at, 3, 1, 4, 4, &v, nullptr);  // the box is lopsided in x
  const auto *t = static_cast<torus *>(s->solid_data);
  EXPECT_TRUE(t->axis_x == 0 && t->axis_z == -1 && t->center.x == 5);
  EXPECT_TRUE(vertex(s, 0).x == 9 && vertex(s, 8).x == 1 && s->xmin == 1 && s->xmax == 9);
  // A face that names no vertices has its normal turned; the other's is found.
  auto *face = static_cast<polyface_3d *>(s->face_list->head->data);
  face->vertex_numbers[0] = 99;
  face->normal = {0, 1, 1, 2, 3};
  const vector_3d back{0, 0, 0, 0, -1};
  kx_transform_solid_vector(s, &back);
  EXPECT_TRUE(face->normal.i == 1 && face->normal.j == -2 && face->normal.k == -3 && face->normal.length > 3.7);
  EXPECT_EQ(t->axis_z, 1);
  kx_purge_solid(s);
}

}  // namespace
