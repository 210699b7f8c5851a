#include "kxgeom/solids.h"
#include "support/faults.hpp"

namespace {

const pnt_3d centre{1, 2, 3};

// Stores 1, 2, 3, ... and reads them back, word for word; each type's fields are named once.
template <class T>
struct regular {
  T *(KX_CALL *create)();
  void(KX_CALL *set)(const pnt_3d *, double, double, double, double, T *);
  void(KX_CALL *get)(pnt_3d *, double *, double *, double *, double *, const T *);
  void(KX_CALL *purge)(T *);
};

TEST(PrimitiveRecords, KeepTheirValues) {
  block *b = kx_create_block();
  EXPECT_TRUE(b->axis_x == 0 && b->axis_z == 1 && b->size_x == 0);
  kx_set_block(&centre, 4, 5, 6, 7, 8, 9, b);
  kx_set_block(nullptr, 4, 5, 6, 7, 8, 9, b);
  EXPECT_TRUE(b->center.z == 3 && b->size_x == 4 && b->size_z == 6 && b->axis_x == 7 && b->axis_z == 9);
  pnt_3d p{};
  double d[6] = {};
  kx_get_block(&p, d, d + 1, d + 2, d + 3, d + 4, d + 5, b);
  for (int i = 0; i < 6; ++i) EXPECT_EQ(d[i], 4 + i);
  EXPECT_EQ(p.y, 2);
  kx_purge_block(b);

  cylinder *c = kx_create_cylinder();
  kx_set_cylinder(10, &centre, 4, 5, 6, 11, 7, 8, 9, c);
  EXPECT_TRUE(c->host_word == 10 && c->height == 6 && c->sectors == 11 && c->axis_y == 8);
  int32_t w = 0, n = 0, m = 0;
  kx_get_cylinder(&w, &p, d + 5, d + 4, d + 3, &n, d + 2, d + 1, d, c);
  for (int i = 0; i < 6; ++i) EXPECT_EQ(d[i], 9 - i);
  EXPECT_TRUE(w == 10 && n == 11);
  kx_purge_cylinder(c);

  torus *t = kx_create_torus();
  kx_set_torus(10, &centre, 4, 5, 11, 12, 6, 7, 8, t);
  EXPECT_TRUE(t->minor_radius == 5 && t->sectors == 11 && t->tube_sectors == 12);
  kx_get_torus(&w, &p, d, d + 1, &n, &m, d + 2, d + 3, d + 4, t);
  for (int i = 0; i < 5; ++i) EXPECT_EQ(d[i], 4 + i);
  EXPECT_TRUE(n == 11 && m == 12);
  kx_get_torus(nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, t);
  kx_purge_torus(t);
  kx_set_torus(10, &centre, 4, 5, 11, 12, 6, 7, 8, nullptr);
  kx_get_torus(&w, &p, d, d + 1, &n, &m, d + 2, d + 3, d + 4, nullptr);
  EXPECT_EQ(d[4], 8);

  for (const regular<tetrahedron> &r :
       {regular<tetrahedron>{kx_create_tetrahedron, kx_set_tetrahedron, kx_get_tetrahedron, kx_purge_tetrahedron},
        {kx_create_hexahedron, kx_set_hexahedron, kx_get_hexahedron, kx_purge_hexahedron},
        {kx_create_octahedron, kx_set_octahedron, kx_get_octahedron, kx_purge_octahedron},
        {kx_create_dodecahedron, kx_set_dodecahedron, kx_get_dodecahedron, kx_purge_dodecahedron},
        {kx_create_icosahedron, kx_set_icosahedron, kx_get_icosahedron, kx_purge_icosahedron}}) {
    tetrahedron *rec = r.create();
    EXPECT_EQ(rec->axis_z, 1);
    r.set(&centre, 4, 5, 6, 7, rec);
    r.get(&p, d, d + 1, d + 2, d + 3, rec);
    for (int i = 0; i < 4; ++i) EXPECT_EQ(d[i], 4 + i);
    r.purge(rec);
  }
}

}  // namespace
