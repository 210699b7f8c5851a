#include <cmath>
#include <functional>
#include <limits>

#include "kxgeom/solids.h"
#include "support/closed_body.hpp"

namespace {

using closed_body::box;

constexpr double pi = 3.14159265358979323846, unknown = 0;
const pnt_3d centre{1, 2, 3};
const vector_3d tilted{20, 3, 1, 2, 2};

struct row {
  const char *name;
  int type, euler;
  double volume, area;
  std::function<solid *(int32_t n, int32_t m)> build;
};

double cut_cone(double a, double b, double h) { return pi * h / 3 * (a * a + a * b + b * b); }

const row table[] = {
    {"ball", 1, 2, pi * 32 / 3, pi * 16, [](int n, int m) { return kx_sphere_pnts(&centre, 2, n, m, nullptr); }},
    {"ellipsoid", 3, 2, pi * 8, unknown,
     [](int n, int m) { return kx_ellipsoid_pnts(&centre, 2, 4, 6, n, m, &tilted, nullptr); }},
    {"low dome", 3, 2, pi * .25 * 5.5 / 3, pi *(2 + 1.75),
     [](int n, int m) { return kx_spherical_dome_pnts(&centre, 2, .5, n, m, &tilted, nullptr); }},
    {"high dome", 3, 2, pi * 9 * 3 / 3, pi *(12 + 3),
     [](int n, int m) { return kx_spherical_dome_pnts(&centre, 2, 3, n, m, &tilted, nullptr); }},
    {"cup", 3, 2, pi * 2 / 3 * (8 - 3.375), pi *(8 + 4.5 + 1.75),
     [](int n, int m) { return kx_spherical_cup_pnts(&centre, 2, .5, n, m, &tilted, nullptr); }},
    {"filled cup", 3, 2, pi * 16 / 3, pi * 12,
     [](int n, int m) { return kx_spherical_cup_pnts(&centre, 2, 3, n, m, &tilted, nullptr); }},
    {"cone", 7, 2, cut_cone(2, 0, 3), pi *(4 + 2 * std::sqrt(13)),
     [](int n, int) { return kx_cone_pnts(&centre, 4, 0, 3, &n, &tilted, nullptr); }},
    {"cone on its tip", 7, 2, cut_cone(2, 0, 3), pi *(4 + 2 * std::sqrt(13)),
     [](int n, int) { return kx_cone_pnts(&centre, 0, 4, 3, &n, &tilted, nullptr); }},
    {"cut cone", 7, 2, cut_cone(2, 1, 3), pi *(5 + 3 * std::sqrt(10)),
     [](int n, int) { return kx_cone_pnts(&centre, 4, 2, 3, &n, &tilted, nullptr); }},
    {"tube", 8, 0, pi * 9, pi *(6 + 18),
     [](int n, int) { return kx_hcylinder_pnts(&centre, 4, 2, 2, 4, 3, &n, &tilted, nullptr); }},
    {"elliptic tube", 8, 0, pi * 15, unknown,
     [](int n, int) { return kx_hcylinder_pnts(&centre, 4, 6, 2, 2, 3, &n, &tilted, nullptr); }},
    {"tube without bore", 8, 2, pi * 12, pi * 20,
     [](int n, int) { return kx_hcylinder_pnts(&centre, 4, 4, 0, 1e-8, 3, &n, &tilted, nullptr); }},
    {"bowl", 9, 2, pi * 8 / 3, unknown,
     [](int n, int m) { return kx_hyperboloid_pnts(&centre, 2, 4, 2, -5, 2, n, m, &tilted, nullptr); }},
    {"bowl without vertex", 9, 2, pi *(4.625 / 3 - .5), unknown,
     [](int n, int m) { return kx_hyperboloid_pnts(&centre, 2, 2, 2, 2, 1.5, n, m, &tilted, nullptr); }},
    {"one sheet", 10, 2, pi * 20 / 3, unknown,
     [](int n, int m) { return kx_hyperboloid1s(&centre, 2, 4, 6, -1, 2, n, m, &tilted, nullptr); }},
    {"two sheets", 22, 4, pi * 8, unknown,
     [](int n, int m) { return kx_hyperboloid2s(&centre, 2, 2, -2, -3, 2, n, m, &tilted, nullptr); }},
    {"paraboloid", 11, 2, pi * 6, pi *(2 / 54.0 * (std::pow(40, 1.5) - 8) + 4),
     [](int n, int m) { return kx_paraboloid_pnts(&centre, 4, 4, 3, n, m, &tilted, nullptr); }},
    {"prism", 6, 2, pi * 6, unknown,
     [](int n, int) { return kx_prism_pnts(&centre, 2, 4, 3, 1, -5, &n, &tilted, nullptr); }}};

TEST(RingStack, BodiesAreClosedAndConvergeToTheirFormulas) {
  for (const row &r : table) {
    SCOPED_TRACE(r.name);
    for (const int n : {-1, 5, 32}) {
      solid *s = r.build(n, n);
      const auto m = closed_body::measure(closed_body::check(s, r.euler, box::least));
      const double error = n < 5 ? 1 : 12.0 / n / n;  // of inscribed rings, and of chords of the outline
      EXPECT_NEAR(m.volume / r.volume, 1, error) << n;
      if (r.area != unknown) EXPECT_NEAR(m.area / r.area, 1, error) << n;
      EXPECT_GT(m.volume, 0);
      EXPECT_TRUE(s->solid_type == r.type && s->vertex_count == s->vertex_list->count);
      EXPECT_EQ(+s->face_count, +s->face_list->count);
      kx_purge_solid(s);
    }
  }
}

// Counts, the box and where the points are: what no volume tells.
TEST(RingStack, VerticesAndFacesInTheirOrder) {
  solid *s = kx_sphere_pnts(&centre, 2, 4, 2, nullptr);
  const auto ball = closed_body::read(s);
  EXPECT_TRUE(ball.corners.size() == 6 && ball.corners[0].z == 5 && ball.corners[1].x == 3 && ball.corners[5].z == 1);
  EXPECT_EQ(ball.rings[0], (std::vector<int>{0, 1, 2}));
  EXPECT_EQ(ball.rings[7], (std::vector<int>{5, 1, 4}));
  EXPECT_EQ(static_cast<polyface_3d *>(s->face_list->head->data)->vertex_attributes[0], 0);
  EXPECT_TRUE(s->xmin == -1 && s->ymax == 4 && s->zmax == 5);
  ASSERT_EQ(kx_spherical_dome_pnts(&centre, 2, 2, 4, 1, nullptr, s), s);  // into the same solid
  EXPECT_TRUE(s->zmin == 3 && s->zmax == 5 && s->vertex_count == 6);
  const auto *bottom = static_cast<polyface_3d *>(s->face_list->tail->data);
  const int spokes[] = {1, 0, 1, 0};
  for (int i = 0; i < 4; ++i) EXPECT_EQ(bottom->vertex_attributes[i], spokes[i]);
  int32_t n = 5;
  ASSERT_EQ(kx_hcylinder_pnts(&centre, 4, 6, 2, 2, 3, &n, nullptr, s), s);
  EXPECT_TRUE(n == 8 && static_cast<hcylinder *>(s->solid_data)->sectors == 8);
  EXPECT_TRUE(s->xmin == -1 && s->ymax == 5 && s->zmin == 1.5 && s->vertex_count == 32);
  EXPECT_EQ(closed_body::read(s).rings[0], (std::vector<int>{0, 8, 9, 1}));
  ASSERT_EQ(kx_hyperboloid2s(&centre, 2, 2, 2, 0, 2, 4, 1, nullptr, s), s);  // nothing below the centre
  EXPECT_TRUE(s->zmin == 2 && s->zmax == 5 && closed_body::euler(closed_body::read(s)) == 4);
  n = -1;
  ASSERT_EQ(kx_prism_pnts(&centre, 2, 2, 2, 1, 0, &n, nullptr, s), s);
  EXPECT_EQ(closed_body::read(s).rings[4], (std::vector<int>{4, 3, 5}));
  EXPECT_TRUE(n == 3 && s->face_count == 5 && s->xmax == 3 && s->zmax == 4);
  ASSERT_EQ(kx_pyramid_pnts(&centre, 2, 4, 6, &tilted, s), s);
  const auto m = closed_body::measure(closed_body::check(s, 2, box::least));
  EXPECT_NEAR(m.volume, 16, 1e-9);
  EXPECT_NEAR(m.area, 8 + 4 * std::sqrt(37) + 2 * std::sqrt(40), 1e-9);
  EXPECT_TRUE(s->solid_type == 12 && s->vertex_count == 5 && s->face_count == 5);
  kx_purge_solid(s);
}

// A solid is built anew from its own record, which is freed on the way.
TEST(RingStack, FromItsOwnCentre) {
  solid *s = kx_sphere_pnts(&centre, 2, 4, 2, nullptr);
  auto *own = static_cast<sphere *>(s->solid_data);
  ASSERT_EQ(kx_ellipsoid_pnts(&own->center, 2, 2, 2, 3, 2, nullptr, s), s);
  EXPECT_EQ(+static_cast<ellipsoid *>(s->solid_data)->center.z, 3);
  EXPECT_EQ(+s->zmax, 4);
  kx_purge_solid(s);
}

}  // namespace
