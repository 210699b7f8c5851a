#include <climits>
#include <cmath>
#include <functional>
#include <limits>

#include "kxgeom/solids.h"
#include "polygon/polygons.hpp"
#include "support/closed_body.hpp"
#include "support/faults.hpp"

namespace {

using closed_body::box;

constexpr double pi = 3.14159265358979323846;
const pnt_3d centre{1, 2, 3};
const vector_3d tilted{20, 3, 1, 2, 2};

polygon reversed(polygon p) { return {p.rbegin(), p.rend()}; }

double area(const polygon &p) {
  double twice = 0;
  for (std::size_t i = 0, j = p.size() - 1; i < p.size(); j = i++) twice += p[j].x * p[i].y - p[i].x * p[j].y;
  return std::fabs(twice) / 2;
}

// What a part of the turn from an edge on the axis contributes: twice the volume of a wedge of 1 radian is the sum over
// the edges of the squares of the distance.
double turned(const polygon &p) {
  double sum = 0;
  for (std::size_t i = 0, j = p.size() - 1; i < p.size(); j = i++)
    sum += (p[j].x * p[j].x + p[j].x * p[i].x + p[i].x * p[i].x) * (p[i].y - p[j].y);
  return std::fabs(sum) / 6;
}

const polygon square{{1, -1}, {3, -1}, {3, 1}, {1, 1}};
const polygon ball_like{{0, -1}, {2, 0}, {0, 1}};
const polygon on_axis{{0, -1}, {2, 0}, {0, 1}, {0, .5}, {0, 0}, {1e-9, -.5}};
const polygon touching{{0, 0}, {2, -1}, {2, 1}};
const polygon hourglass{{0, -2}, {1, -2}, {0, 0}, {1, 2}, {0, 2}, {2, 2}, {2, -2}};
const polygon hollow{{0, -2}, {3, -2}, {3, 2}, {0, 2}, {1, 0}};
const polygon notched{{1, 0}, {4, 0}, {4, 3}, {3, 3}, {3, 1}, {2, 1}, {2, 3}, {1, 3}};

TEST(SweptBodies, TurnedProfiles) {
  struct row {
    const char *name;
    polygon profile;
    int whole, part;  // Euler's number
  };
  for (const row &r : {row{"ring", square, 0, 2},
                       {"notched", notched, 0, 2},
                       {"ball", ball_like, 2, 2},
                       {"points on the axis", on_axis, 2, 2},
                       {"touching", touching, 2, 2},
                       {"hollow", hollow, 4, 2},
                       {"closed list", {{1, 0}, {2, 0}, {2, 1}, {2, 1}, {1, 0}}, 0, 2},
                       {"long", star(100, 1, 3, 5), 0, 2}}) {
    SCOPED_TRACE(r.name);
    polygon profile = r.profile;
    if (profile.size() == 100)
      for (pnt_2d &p : profile) p.x += 4;
    for (const double sweep : {360.0, 90.0, -250.0}) {
      for (const bool back : {false, true}) {
        int32_t n = 48;
        polygon_list l(back ? reversed(profile) : profile, back ? KX_PNT_2D : KX_POLY_2D);
        solid *s = kx_bodyrevolution(&centre, l, 30, sweep, &n, &tilted, nullptr);
        const bool whole = sweep == 360;
        const auto m = closed_body::measure(closed_body::check(s, whole ? r.whole : r.part, box::least));
        // Each sector is a triangle's share of that of a circle.
        const double step = std::fabs(sweep) / 48 * pi / 180;
        EXPECT_NEAR(m.volume / (turned(profile) * 48 * std::sin(step)), 1, 1e-8) << sweep;
        EXPECT_TRUE(s->solid_type == 15 && s->vertex_count == s->vertex_list->count && l.list.count);
        EXPECT_EQ(+static_cast<bodyrev *>(s->solid_data)->profile->count, +l.list.count);
        kx_purge_solid(s);
      }
    }
  }
}

TEST(SweptBodies, WhereTheTurnBegins) {
  polygon_list l(square, KX_POLY_3D);  // in space: all at height 7, none with an area
  int32_t n = 0;
  EXPECT_EQ(kx_bodyrevolution(&centre, l, 0, 90, &n, nullptr, nullptr), nullptr);
  for (list_item &i : kx::items(&l.list)) {
    auto *p = static_cast<poly_3d *>(i.data);
    *p = {p->seqnr, p->x, 7, p->y};
  }
  solid *s = kx_bodyrevolution(&centre, l, 90, -90, &n, nullptr, nullptr);
  ASSERT_TRUE(s);
  EXPECT_TRUE(n == 1 && s->vertex_count == 8 && s->face_count == 6);
  EXPECT_TRUE(s->xmin == 1 && s->xmax == 4 && s->ymin == 2 && s->ymax == 5 && s->zmin == 2 && s->zmax == 4);
  // Again from its own record.
  auto *own = static_cast<bodyrev *>(s->solid_data);
  ASSERT_EQ(kx_bodyrevolution(&own->center, own->profile, 0, 1e9, &n, nullptr, s), s);
  EXPECT_TRUE(n == 3 && s->vertex_count == 12 && s->zmax == 4);
  kx_purge_solid(s);
}

TEST(SweptBodies, ExtrudedProfiles) {
  polygon comb, spiral, dense;
  for (int i = 0; i < 40; ++i) {
    comb.insert(comb.end(), {{i * 2.0, 0}, {i * 2.0 + .5, 9.0 + i % 3}, {i * 2.0 + 1, 0}});
    const double a = i * .5;
    spiral.push_back({(1 + a) * std::cos(a), (1 + a) * std::sin(a)});
  }
  comb.insert(comb.end(), {{80, 0}, {80, -1}, {40, -1}, {0, -1}});
  for (int i = 40; i-- > 0;) {
    const double a = i * .5;
    spiral.push_back({(1.5 + a) * std::cos(a), (1.5 + a) * std::sin(a)});
  }
  // Many corners in one line, on all sides.
  for (int side = 0; side < 4; ++side) {
    for (int i = 0; i < 50; ++i) {
      const double t = i / 50.0, c[] = {t, 1, 1 - t, 0};
      dense.push_back({c[side], c[(side + 3) % 4]});
    }
  }
  const polygon shapes[] = {ball_like, notched, star(26, 1, 2, 1), star(27, 1, 2, 2), star(999, .1, 2, 3), comb,
                            spiral,    dense,   star(200, 1, 1, 4)};
  for (const polygon &shape : shapes) {
    const int n = static_cast<int>(shape.size());
    polygon_list l(n % 2 ? shape : reversed(shape), kinds[n % 4]);
    solid *s = kx_extbody_pnts(&centre, l, 3, n % 2 ? &tilted : nullptr, nullptr);
    const auto mesh = closed_body::check(s, 2, box::least);
    EXPECT_NEAR(closed_body::measure(mesh).volume, 3 * area(shape), 1e-9 * n) << n;
    EXPECT_EQ(+s->face_count, n <= 26 ? n + 2 : n + 2 * (n - 2));
    // All faces of the ends have the same direction, and none is without area.
    for (const auto &ring : mesh.rings) {
      closed_body::mesh one{mesh.corners, {ring}};
      EXPECT_GT(closed_body::measure(one).area, 1e-7);
    }
    double ends = 0;
    for (const auto &ring : mesh.rings) {
      if (ring.size() != 4 || n <= 26) ends += closed_body::measure({mesh.corners, {ring}}).area;
    }
    if (n > 26) EXPECT_NEAR(ends, 2 * area(shape), 1e-9 * n) << n << ": triangles overlap";
    if (n <= 26) {
      const auto *top = static_cast<polyface_3d *>(s->face_list->head->data);
      EXPECT_GT(std::fabs(top->normal.length), 1e-3);
    }
    kx_purge_solid(s);
  }
}

TEST(SweptBodies, RefusedProfilesLeaveTheSolidAlone) {
  const double nan = std::nan(""), inf = std::numeric_limits<double>::infinity();
  solid *s = kx_block_pnts(&centre, 1, 1, 1, nullptr, nullptr);
  const polygon bad[] = {{},
                         {{1, 1}},
                         {{1, 1}, {2, 2}},
                         {{1, 1}, {2, 2}, {3, 3}},
                         {{1, 0}, {3, 2}, {3, 0}, {1, 2}},
                         hourglass,
                         {{1, 0}, {2, nan}, {2, 1}},
                         {{1, 0}, {2, inf}, {2, 1}},
                         {{1, 1}, {1, 1}, {2, 1}}};
  int32_t n = 5;
  for (const polygon &p : bad) {
    polygon_list l(p);
    EXPECT_EQ(kx_extbody_pnts(&centre, l, 1, nullptr, s), nullptr);
    EXPECT_EQ(kx_bodyrevolution(&centre, l, 0, 360, &n, nullptr, s), nullptr);
  }
  polygon_list good(square), left({{-1, 0}, {1, 0}, {1, 1}}), tall(star(2000, 5, 5, 1)), wrong(square);
  for (pnt_2d *p = nullptr; list_item & i : kx::items(&tall.list)) {
    p = reinterpret_cast<pnt_2d *>(static_cast<char *>(i.data) + sizeof(int32_t));
    p->x += 9;
  }
  for (list_item &i : kx::items(&wrong.list)) i.datatype = KX_POLYFACE_3D;
  EXPECT_EQ(kx_bodyrevolution(&centre, left, 0, 360, &n, nullptr, s), nullptr);
  for (const double sweep : {0.0, nan, inf})
    EXPECT_EQ(kx_bodyrevolution(&centre, good, 0, sweep, &n, nullptr, s), nullptr);
  EXPECT_EQ(kx_bodyrevolution(&centre, good, nan, 90, &n, nullptr, s), nullptr);
  EXPECT_EQ(kx_bodyrevolution(&centre, good, 0, 90, nullptr, nullptr, s), nullptr);
  EXPECT_EQ(kx_bodyrevolution(nullptr, good, 0, 90, &n, nullptr, s), nullptr);
  EXPECT_EQ(kx_extbody_pnts(nullptr, good, 1, nullptr, s), nullptr);
  for (list_hdr *l : {&wrong.list, static_cast<list_hdr *>(nullptr)}) {
    EXPECT_EQ(kx_extbody_pnts(&centre, l, 1, nullptr, s), nullptr);
    EXPECT_EQ(kx_bodyrevolution(&centre, l, 0, 90, &n, nullptr, s), nullptr);
  }
  EXPECT_EQ(n, 5);
  for (int32_t most : {INT_MAX, 2001}) EXPECT_EQ(kx_bodyrevolution(&centre, tall, 0, 90, &most, nullptr, s), nullptr);
  EXPECT_TRUE(s->solid_type == KX_SOLID_BLOCK && s->vertex_list->count == 8);
  kx_purge_solid(s);
}

TEST(SweptBodies, EachAllocationMayFail) {
  polygon axis{{1, 10}};  // more corners than the quarter of a turn has faces
  for (int i = 20; i >= 0; --i) axis.push_back({0, 1.0 * i});
  polygon_list small(square), large(star(30, 1, 1, 1), KX_PNT_3D), long_end(axis);
  int32_t n = 4, one = 1;
  const std::function<solid *(solid *)> builders[] = {
      [&](solid *s) { return kx_bodyrevolution(&centre, small, 0, 360, &n, &tilted, s); },
      [&](solid *s) { return kx_bodyrevolution(&centre, small, 0, 90, &n, &tilted, s); },
      [&](solid *s) { return kx_bodyrevolution(&centre, long_end, 0, 90, &one, &tilted, s); },
      [&](solid *s) { return kx_extbody_pnts(&centre, large, 1, &tilted, s); },
      [&](solid *s) { return kx_extbody_pnts(&centre, small, 1, &tilted, s); }};
  for (const auto &build : builders) {
    for (const bool given : {false, true}) {
      faults::fail_each_allocation(
          [&] { return given ? kx_block_pnts(&centre, 1, 1, 1, nullptr, nullptr) : nullptr; }, build,
          [&](int failed, solid *s, solid *built) {
            EXPECT_TRUE(failed == 0 ? built && faults::messages().empty() : built || !faults::messages().empty())
                << failed;
            if (built) EXPECT_EQ(+built->vertex_count, +built->vertex_list->count);
            kx_purge_solid(given ? s : built);
          });
    }
  }
}

}  // namespace
