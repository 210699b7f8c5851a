#include <cmath>
#include <limits>

#include "kxgeom/solids.h"
#include "support/closed_body.hpp"

namespace {

using closed_body::box;

const pnt_3d centre{1, 2, 3};
const vector_3d tilted{20, 3, 1, 2, 2}, none{};
constexpr double pi = 3.14159265358979323846;

struct made {
  solid *s;
  closed_body::measures m;
  ~made() { kx_purge_solid(s); }
};

made checked(solid *s, int euler, closed_body::box extents) {
  return {s, closed_body::measure(closed_body::check(s, euler, extents))};
}

TEST(BlockCylinderTorus, BlockIsAsTabled) {
  const made b = checked(kx_block_pnts(&centre, 2, 4, 6, nullptr, nullptr), 2, box::least);
  EXPECT_TRUE(b.s->solid_type == 5 && b.s->face_count == 6 && b.s->vertex_count == 8);
  EXPECT_TRUE(b.s->xmin == 0 && b.s->ymin == 0 && b.s->zmin == 0 && b.s->xmax == 2 && b.s->ymax == 4);
  EXPECT_DOUBLE_EQ(b.m.volume, 48);
  EXPECT_DOUBLE_EQ(b.m.area, 88);
  const auto *first = static_cast<polyface_3d *>(b.s->face_list->head->data);
  EXPECT_TRUE(first->face_number == 1 && first->vertex_numbers[3] == 3 && first->normal.i == -24);
  const auto *v = static_cast<poly_3d *>(b.s->vertex_list->head->next->data);
  EXPECT_TRUE(v->x == 2 && v->y == 4 && v->z == 0);
  const made turned = checked(kx_block_pnts(&centre, 2, 4, 6, &tilted, nullptr), 2, box::least);
  EXPECT_NEAR(turned.m.volume, 48, 1e-9);
}

TEST(BlockCylinderTorus, CylinderCountsAndConverges) {
  struct row {
    double a, b;
    int n, adjusted;
  };
  for (const row r : {row{2, 2, 2, 3}, {2, 2, -1, 3}, {2, 1, 5, 8}, {2, 1, 0, 4}, {2, 1, 8, 8}, {2, 2 + 1e-8, 5, 5}}) {
    int n = r.n;
    const made c = checked(kx_cylinder_pnts(&centre, r.a, r.b, 4, &n, &none, nullptr), 2, box::wider);
    EXPECT_EQ(n, r.adjusted);
    EXPECT_TRUE(c.s->face_count == n + 2 && c.s->vertex_count == 2 * n && c.s->solid_type == 2);
    EXPECT_TRUE(c.s->vertex_list->count == 2 * n + 2 && c.s->face_list->count == 3 * n);
    EXPECT_EQ(static_cast<cylinder *>(c.s->solid_data)->sectors, n);
    // A regular polygon, stretched.
    EXPECT_NEAR(c.m.volume, 4 * n / 2.0 * std::sin(2 * pi / n) * r.a * r.b / 4, 1e-9);
    const auto *cap = static_cast<polyface_3d *>(c.s->face_list->tail->data);
    const int ring[] = {n + 1, n + 2, 2 * n + 1}, marks[] = {1, 0, 1, 0};
    for (int i = 0; i < 3; ++i) EXPECT_EQ(cap->vertex_numbers[i], ring[i]);
    for (int i = 0; i < 4; ++i) EXPECT_EQ(cap->vertex_attributes[i], marks[i]);
  }
}

TEST(BlockCylinderTorus, TorusIsAsWritten) {
  const pnt_3d level{5, 0, 0};
  for (const int n : {3, 20, 80}) {
    const made t = checked(kx_torus_pnts(&level, 1, 3, n, n - 1, &tilted, nullptr), 0, box::least);
    const double error = 60.0 / n / n;  // of inscribed polygons
    EXPECT_NEAR(t.m.volume / (2 * pi * pi * 3), 1, error);
    EXPECT_NEAR(t.m.area / (4 * pi * pi * 3), 1, error);
  }
  const made t = checked(kx_torus_pnts(&centre, 1, 3, 0, 4, &none, nullptr), 0, box::unlike);
}

}  // namespace
