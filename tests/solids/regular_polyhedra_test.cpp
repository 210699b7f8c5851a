#include <cmath>

#include "kxgeom/solids.h"
#include "support/closed_body.hpp"

namespace {

using closed_body::box;

const pnt_3d centre{1, 2, 3};

TEST(RegularPolyhedra, AreClosedAndMeasureAsTheirFormulas) {
  const double root3 = std::sqrt(3.0), root5 = std::sqrt(5.0), s = 2;
  struct row {
    int kind, type, vertices, faces;
    double volume, area;  // of size 2
  };
  const double tetra_base = 3 * root3 / 4 * 4, slant = std::sqrt(5.0);  // circumradius and height 2
  const row table[] = {{0, 17, 4, 4, tetra_base * 2 / 3, tetra_base + 1.5 * 2 * root3 * slant},
                       {1, 18, 8, 6, 8, 24},
                       {2, 19, 6, 8, 8.0 / 3, 8 * std::sqrt(2.0)},
                       {3, 20, 20, 12, (15 + 7 * root5) / 4 * s * s * s, 3 * std::sqrt(25 + 10 * root5) * s * s},
                       {4, 21, 12, 20, 5 * (3 + root5) / 12 * s * s * s, 5 * root3 * s * s}};
  const vector_3d tilts[] = {{}, {10, 1, 1, 2, 3}, {0, 1, 0, 0, -1}};
  for (const row &r : table) {
    for (const vector_3d &tilt : tilts) {
      solid *body = kx_regpolyhedronpnts(r.kind, &centre, s, &tilt, nullptr);
      const auto m = closed_body::measure(closed_body::check(body, 2, box::least));
      EXPECT_NEAR(m.volume, r.volume, 1e-10) << r.kind;
      EXPECT_NEAR(m.area, r.area, 1e-10) << r.kind;
      EXPECT_TRUE(body->solid_type == r.type && body->vertex_count == r.vertices && body->face_count == r.faces);
      EXPECT_TRUE(body->vertex_list->count == r.vertices && body->face_list->count == r.faces);
      const auto *record = static_cast<tetrahedron *>(body->solid_data);
      EXPECT_TRUE(record->size == s && record->center.z == 3);
      EXPECT_EQ(kx_purge_solid(body), 0);
    }
  }
  EXPECT_EQ(kx_regpolyhedronpnts(5, &centre, s, tilts, nullptr), nullptr);
  EXPECT_EQ(kx_regpolyhedronpnts(-1, &centre, s, tilts, nullptr), nullptr);
}

TEST(RegularPolyhedra, TabledCorners) {
  const pnt_3d origin{};
  struct row {
    int kind, number;
    pnt_3d at;
  };
  for (const row &r : {row{0, 0, {0, 0, 1}}, {0, 1, {2, 0, -1}}, {2, 0, {0, 0, 1}}, {2, 2, {1, -1, 0}}}) {
    solid *body = kx_regpolyhedronpnts(r.kind, &origin, 2, nullptr, nullptr);
    pnt_3d p{};
    kx_get_facevertex(body->vertex_list, r.number, &p);
    EXPECT_TRUE(p.x == r.at.x && p.y == r.at.y && p.z == r.at.z) << r.kind << ": " << r.number;
    kx_purge_solid(body);
  }
}

}  // namespace
