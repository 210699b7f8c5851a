#include <climits>
#include <cmath>
#include <functional>
#include <limits>
#include <string>
#include <vector>

#include "kxgeom/list.h"
#include "kxgeom/solids.h"
#include "support/closed_body.hpp"
#include "support/faults.hpp"

namespace {

const pnt_3d centre{1, 2, 3};
const vector_3d tilted{20, 3, 1, 2, 2};

struct builder {
  const char *name;
  std::function<solid *(const pnt_3d *, double size, int32_t sectors, solid *)> build;
  int before = 0;  // allocations before the solid's
};

const builder builders[] = {
    {"block", [](auto *c, double a, int32_t, solid *s) { return kx_block_pnts(c, a, a, a, &tilted, s); }},
    {"cylinder", [](auto *c, double a, int32_t n, solid *s) { return kx_cylinder_pnts(c, a, a, a, &n, &tilted, s); }},
    {"cylinder", [](auto *c, double a, int32_t n, solid *s) { return kx_cylinder_pnts(c, a, 1, a, &n, &tilted, s); }},
    {"torus", [](auto *c, double a, int32_t n, solid *s) { return kx_torus_pnts(c, a, a, 3, n, &tilted, s); }},
    {"tetrahedron", [](auto *c, double a, int32_t, solid *s) { return kx_regpolyhedronpnts(0, c, a, &tilted, s); }},
    {"hexahedron", [](auto *c, double a, int32_t, solid *s) { return kx_regpolyhedronpnts(1, c, a, &tilted, s); }},
    {"octahedron", [](auto *c, double a, int32_t, solid *s) { return kx_regpolyhedronpnts(2, c, a, &tilted, s); }},
    {"dodecahedron", [](auto *c, double a, int32_t, solid *s) { return kx_regpolyhedronpnts(3, c, a, &tilted, s); }},
    {"icosahedron", [](auto *c, double a, int32_t, solid *s) { return kx_regpolyhedronpnts(4, c, a, &tilted, s); }},
    {"sphere", [](auto *c, double a, int32_t n, solid *s) { return kx_sphere_pnts(c, a, n, n, s); }, 2},
    {"ellipsoid",
     [](auto *c, double a, int32_t n, solid *s) { return kx_ellipsoid_pnts(c, a, 1, a, n, n, &tilted, s); }, 2},
    {"ellipsoid",
     [](auto *c, double a, int32_t n, solid *s) { return kx_spherical_dome_pnts(c, a, 1, n, n, &tilted, s); }, 2},
    {"ellipsoid",
     [](auto *c, double a, int32_t n, solid *s) { return kx_spherical_dome_pnts(c, 2, a, n, n, &tilted, s); }, 2},
    {"ellipsoid",
     [](auto *c, double a, int32_t n, solid *s) { return kx_spherical_cup_pnts(c, a, 1, n, n, &tilted, s); }, 2},
    {"cone", [](auto *c, double a, int32_t n, solid *s) { return kx_cone_pnts(c, a, a, a, &n, &tilted, s); }, 2},
    {"hcylinder",
     [](auto *c, double a, int32_t n, solid *s) { return kx_hcylinder_pnts(c, a, 2, 1, a, a, &n, &tilted, s); }, 2},
    {"hyperboloid",
     [](auto *c, double a, int32_t n, solid *s) { return kx_hyperboloid_pnts(c, a, a, a, a, 4, n, n, &tilted, s); }, 2},
    {"hyperboloid",
     [](auto *c, double a, int32_t n, solid *s) { return kx_hyperboloid1s(c, a, 1, a, a, 1, n, n, &tilted, s); }, 2},
    {"hyperboloid",
     [](auto *c, double a, int32_t n, solid *s) { return kx_hyperboloid2s(c, a, 1, a, -a, 9, n, n, &tilted, s); }, 2},
    {"paraboloid",
     [](auto *c, double a, int32_t n, solid *s) { return kx_paraboloid_pnts(c, a, a, a, n, n, &tilted, s); }, 2},
    {"prism", [](auto *c, double a, int32_t n, solid *s) { return kx_prism_pnts(c, a, a, a, 1, a, &n, &tilted, s); },
     2},
    {"pyramid", [](auto *c, double a, int32_t, solid *s) { return kx_pyramid_pnts(c, a, a, a, &tilted, s); }}};

TEST(PrimitiveFrame, AnyNumbersAreAnsweredAndTheSolidGivenIsCleared) {
  const double inf = std::numeric_limits<double>::infinity();
  solid *s = kx_create_solid();
  for (const builder &b : builders) {
    for (const double size : {0.0, -1.0, std::nan(""), inf, 1e308, -1e-308}) {
      for (const int32_t n : {INT_MIN, -1, 0, 5}) {
        ASSERT_EQ(b.build(&centre, size, n, s), s) << b.name;
        closed_body::euler(closed_body::read(s));
      }
    }
    const int32_t count = s->vertex_list->count;
    const bool sectors = b.build(&centre, 1, INT_MAX, s) == nullptr;
    EXPECT_TRUE(s->vertex_list->count == count || !sectors) << b.name << ", refused, is as it was";
    EXPECT_EQ(b.build(nullptr, 1, 3, s), nullptr);
  }
  kx_purge_solid(s);
  EXPECT_EQ(kx_cylinder_pnts(&centre, 1, 1, 1, nullptr, nullptr, nullptr), nullptr);
  int32_t n = INT_MAX;
  EXPECT_EQ(kx_cylinder_pnts(&centre, 1, 2, 1, &n, nullptr, nullptr), nullptr);
  EXPECT_EQ(n, INT_MAX);
  EXPECT_EQ(kx_torus_pnts(&centre, 1, 2, INT_MAX, INT_MAX, nullptr, nullptr), nullptr);
}

TEST(PrimitiveFrame, EachAllocationMayFail) {
  for (const builder &b : builders) {
    for (const bool given : {false, true}) {
      faults::fail_each_allocation([&] { return given ? kx_block_pnts(&centre, 1, 1, 1, nullptr, nullptr) : nullptr; },
                                   [&](solid *s) { return b.build(&centre, 2, 4, s); },
                                   [&](int n, solid *s, solid *built) {
                                     const std::vector<std::string> texts = faults::messages();
                                     EXPECT_TRUE(texts.empty() == (n == 0) || built) << b.name;
                                     const bool failed = n > 0;
                                     n -= b.before;
                                     if (!given && n == 1 && !b.before)
                                       EXPECT_EQ(texts.back(), "Memory Error: kx_" + std::string(b.name) + "_pnts");
                                     if (n == (given ? 3 : 4))
                                       EXPECT_EQ(texts.back(), "Memory Error: kx_create_" + std::string(b.name));
                                     // Solid, lists, record and the table of vertices; then it is drawn as far as it
                                     // goes.
                                     EXPECT_EQ(built == nullptr, failed && n <= (given ? 5 : 6)) << b.name << ' ' << n;
                                     if (given && !built && n > 0)
                                       EXPECT_TRUE(!s->face_list && !s->vertex_list && !s->solid_data);
                                     kx_purge_solid(given ? s : built);
                                   });
    }
  }
}

TEST(PrimitiveFrame, AMillionVertices) {
  solid *s = kx_torus_pnts(&centre, 3, 1, 1000, 1000, nullptr, nullptr);
  ASSERT_NE(s, nullptr);
  EXPECT_TRUE(s->vertex_list->count == 1000000 && s->face_list->count == 1000000);
  EXPECT_EQ(static_cast<polyface_3d *>(s->face_list->tail->data)->vertex_numbers[2], 0);
  EXPECT_EQ(kx_purge_solid(s), 0);
}

}  // namespace
