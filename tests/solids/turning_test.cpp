#include <cmath>
#include <limits>

#include "kxgeom/solids.h"
#include "support/closed_body.hpp"

namespace {

using closed_body::box;
using closed_body::corner;
using closed_body::minus;

const pnt_3d centre{1, 2, 3};

double dot(corner a, corner b) { return a.x * b.x + a.y * b.y + a.z * b.z; }

TEST(Turning, TakesZToTheVectorByTheShortestWay) {
  const vector_3d table[] = {{1, 1, 1, 0, 0},     {1, 1, 0, -5, 0},      {1, 1, 2, 3, 6},         {1, 1, -2, 3, -6},
                             {1, 1, 1e-9, 0, -1}, {1, 1, 3e-4, 0, 4e-4}, {1, 1, 1e300, 1e300, 0}, {1, 1, 0, 0, -2}};
  for (const vector_3d &v : table) {
    for (const bool host : {false, true}) {  // a host's own solid turns about the centre of its box
      const double flat = std::hypot(v.i, v.j), len = std::hypot(flat, v.k), off = host ? 4 : 0;
      const corner to{v.i / len, v.j / len, v.k / len}, c{1 + off, 2 + off, 3 + off};
      const corner axis{flat > 0 ? -v.j / flat : 1, flat > 0 ? v.i / flat : 0, 0};
      solid *s = kx_octahedron_pnts(&centre, 2, nullptr, nullptr);
      const auto before = closed_body::read(s).corners;
      s->xmax += 2 * off, s->ymax += 2 * off, s->zmax += 2 * off;
      if (host) s->solid_type = 0;
      EXPECT_EQ(kx_transform_solid_vector(s, &v), s);
      s->solid_type = KX_SOLID_OCTAHEDRON;
      const auto after = closed_body::check(s, 2, box::least).corners;
      for (std::size_t k = 0; k < 6; ++k) {
        const corner was = minus(before[k], c), is = minus(after[k], c);
        EXPECT_NEAR(dot(is, to), was.z, 5e-15);
        EXPECT_NEAR(dot(is, axis), dot(was, axis), 5e-15);
        EXPECT_NEAR(dot(is, closed_body::cross(axis, to)), dot(was, {-axis.y, axis.x, 0}) * -1, 5e-15);
      }
      kx_purge_solid(s);
    }
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
    EXPECT_TRUE(closed_body::read(s).corners[0].z == 4 && s->xmin == 0 && s->ymin == 1) << v.i;
    kx_purge_solid(s);
  }
  EXPECT_EQ(kx_transform_solid_vector(nullptr, nullptr), nullptr);
}

TEST(Turning, PivotsAboutTheRecordAndTurnsItsAxis) {
  const vector_3d down{1, 0, 0, 0, -3};
  const pnt_3d at{5, 0, 0};
  solid *s = kx_torus_pnts(&at, 3, 1, 4, 4, &down, nullptr);  // the box is lopsided in x
  const auto *t = static_cast<torus *>(s->solid_data);
  EXPECT_TRUE(t->axis_x == 0 && t->axis_z == -1 && t->center.x == 5 && s->xmin == 1 && s->xmax == 9);
  // The normal of a face that names a vertex that is not there is turned.
  auto *face = static_cast<polyface_3d *>(s->face_list->head->data);
  face->vertex_numbers[0] = 99;
  face->normal = {0, 1, 1, 2, 3};
  kx_transform_solid_vector(s, &down);
  EXPECT_TRUE(face->normal.i == 1 && face->normal.j == -2 && face->normal.k == -3 && face->normal.length > 3.7);
  EXPECT_EQ(+t->axis_z, 1);
  kx_purge_solid(s);
}

}  // namespace
