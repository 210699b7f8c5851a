#include <gtest/gtest.h>

#include "kxgeom/solids.h"

namespace {

const pnt_3d centre{1, 2, 3};

TEST(PrimitiveRecords, KeepTheirValues) {
  pnt_3d p{};
  double d[6] = {};
  int32_t w = 0, n = 0, m = 0;
  block *b = kx_create_block();
  EXPECT_TRUE(b->axis_x == 0 && b->axis_z == 1 && b->size_x == 0);
  kx_set_block(&centre, 4, 5, 6, 7, 8, 9, b);
  kx_set_block(nullptr, 4, 5, 6, 7, 8, 9, b);
  kx_get_block(&p, d, d + 1, d + 2, d + 3, d + 4, d + 5, b);
  for (int i = 0; i < 6; ++i) EXPECT_EQ(d[i], 4 + i);
  EXPECT_TRUE(p.y == 2 && b->size_y == 5);
  kx_purge_block(b);

  cylinder *c = kx_create_cylinder();
  kx_set_cylinder(10, &centre, 4, 5, 6, 11, 7, 8, 9, c);
  kx_get_cylinder(&w, &p, d + 5, d + 4, d + 3, &n, d + 2, d + 1, d, c);
  for (int i = 0; i < 6; ++i) EXPECT_EQ(d[i], 9 - i);
  EXPECT_TRUE(w == 10 && n == 11 && c->height == 6);
  kx_purge_cylinder(c);

  torus *t = kx_create_torus();
  kx_set_torus(10, &centre, 4, 5, 11, 12, 6, 7, 8, t);
  kx_set_torus(1, &centre, 1, 1, 1, 1, 1, 1, 1, nullptr);
  kx_get_torus(nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, t);
  kx_get_torus(&w, &p, d, d + 1, &n, &m, d + 2, d + 3, d + 4, t);
  kx_get_torus(&w, &p, d + 1, d, &m, &n, d + 2, d + 3, d + 4, nullptr);
  for (int i = 0; i < 5; ++i) EXPECT_EQ(d[i], 4 + i);
  EXPECT_TRUE(n == 11 && m == 12 && t->minor_radius == 5);
  kx_purge_torus(t);

#define EXPECT_KEEPS(kind)                                                  \
  {                                                                         \
    kind *rec = kx_create_##kind();                                         \
    EXPECT_EQ(+rec->axis_z, 1);                                             \
    kx_set_##kind(&centre, 4, 5, 6, 7, rec);                                \
    kx_get_##kind(&p, d, d + 1, d + 2, d + 3, rec);                         \
    EXPECT_TRUE(d[0] == 4 && d[1] == 5 && d[2] == 6 && d[3] == 7) << #kind; \
    kx_purge_##kind(rec);                                                   \
  }
  EXPECT_KEEPS(tetrahedron)
  EXPECT_KEEPS(hexahedron)
  EXPECT_KEEPS(octahedron)
  EXPECT_KEEPS(dodecahedron)
  EXPECT_KEEPS(icosahedron)
}

}  // namespace
