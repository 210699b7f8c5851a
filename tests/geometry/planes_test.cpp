#include <gtest/gtest.h>

#include <cstring>

#include "geometry/space_values.hpp"
#include "kxgeom/geometry.h"
#include "support/faults.hpp"
#include "support/message_folder.hpp"

namespace {

constexpr double degree = 57.2957795131;
double at(const planeeq &p, kx::vec3 q) { return p.a * q.x + p.b * q.y + p.c * q.z + p.d; }
bool same(const planeeq &p, const planeeq &q) { return std::memcmp(&p, &q, sizeof p) == 0; }

}  // namespace

TEST(Planes, HaveTheNormalAndThePointsOfTheirConstruction) {
  std::mt19937 random(1);
  for (int run = 0; run < 100; ++run) {
    const space_frame f(random);
    const kx::vec3 p = f.at(3, -2, run), u = f.at(2, 0, 0), v = f.at(-4, 0.5, 0), away = f.at(70, 8, 9);
    const pnt_3d p1 = as_pnt(p), p2 = as_pnt(p + u), p3 = as_pnt(p + v);
    const ple_3d line = as_line(away, v);
    const line_3d seg = as_segment(away, away + v);
    for (int mode = 0; mode < 5; ++mode) {
      planeeq plane{};
      ASSERT_EQ(kx_planeequation(mode, &seg, &line, &p1, &p2, &p3, &plane), 0);
      const kx::vec3 normal = mode == 2 || mode == 4 ? v : f.at(0, 0, 1);  // u x v is z, for u and v span 1
      EXPECT_NEAR(kx::length(kx::vec3{plane.a, plane.b, plane.c} - normal), 0, 1e-12) << mode;
      EXPECT_NEAR(at(plane, p), 0, 1e-9);
    }
  }
}

TEST(Planes, RefusePointsThatDefineNone) {
  const struct {
    pnt_3d p[3];
    int32_t status;
  } rows[] = {
      {{{0, 0, 0}, {1e-7, 1e-7, 1e-7}, {5, -5, 0}}, 24},
      {{{0, 0, 0}, {1.1e-7, 0, 0}, {0, 5, 0}}, 0},
      {{{0, 0, 0}, {9, 0, 0}, {4, 0.9e-7, 0}}, 24},
      {{{0, 0, 0}, {9, 0, 0}, {4, 1.1e-7, 0}}, 0},
  };
  const planeeq untouched{1, 2, 3, 4};
  for (const auto &[p, status] : rows)
    for (int first = 0; first < 3; ++first) {
      planeeq plane = untouched;
      EXPECT_EQ(kx_planeeq_3p(p + first, p + (first + 2) % 3, p + (first + 1) % 3, &plane), status);
      EXPECT_EQ(same(plane, untouched), status != 0);
    }
  const pnt_3d o{}, x{1, 0, 0};
  const line_3d seg{0, 5, 5, 10, 5 + 9e-7, 5};
  planeeq plane{};
  EXPECT_EQ(kx_planeeq_2pls(&seg, &o, &x, &plane), 24);
}

TEST(Planes, NormalizeToOneSign) {
  const message_folder folder;
  const struct {
    planeeq given, unit;
  } rows[] = {{{0, 3, 4, 10}, {0, -0.6, -0.8, -2}},
              {{0, 3, 4, -10}, {0, 0.6, 0.8, -2}},
              {{0, 0, -2, 0}, {0, 0, 1, 0}},
              {{4, -3, 0, 0}, {-0.8, 0.6, 0, 0}},
              {{-5, 0, 0, -1e-8}, {1, 0, 0, 2e-9}}};
  for (const auto &[given, unit] : rows) {
    planeeq p = given;
    for (int twice = 0; twice < 2; ++twice) {
      ASSERT_EQ(kx_normalizeplane(&p), 0);
      EXPECT_LT(std::hypot(p.a - unit.a, p.b - unit.b, p.c - unit.c) + std::fabs(p.d - unit.d), 1e-15);
    }
  }
  planeeq none{1e-7, 0, 0, 5}, first{}, second{};
  faults::clear_messages();
  EXPECT_TRUE(kx_normalizeplane(&none) == 25 && kx_parallelplanes(&none, 1, &first, &second) == 25);
  EXPECT_EQ(faults::messages(),
            (std::vector<std::string>{"BADPLANE&msgrec[i]\nLocation: kx_normalizeplane Error Nr: 25",
                                      "BADPLANE&msgrec[i]\nLocation: kx_parallelplanes Error Nr: 25"}));
}

TEST(Planes, MeasurePointsAndAngles) {
  std::mt19937 random(2);
  for (int run = 0; run < 200; ++run) {
    const space_frame f(random);
    const double size = std::pow(10, run % 9 - 4), off = run * 0.37 - 20, angle = run * 0.45;
    const kx::vec3 p = f.at(5, -7, 2);
    const planeeq plane = as_plane(p, size * f.z);
    const pnt_3d above = as_pnt(p + f.at(3, 4, off));
    pnt_3d foot{};
    vector_3d normal{};
    planeeq sides[2] = {};
    EXPECT_NEAR(kx_distpntplane(&above, &plane), off, 1e-11);
    ASSERT_EQ(kx_plane_pnt(&plane, &above, &foot) + kx_normal_to_plane(&plane, &normal), 0);
    EXPECT_NEAR(apart(foot, p + f.at(3, 4, 0)), 0, 1e-11);
    EXPECT_NEAR(kx::length(kx::vec3{normal.i, normal.j, normal.k} - f.z), 0, 1e-12);
    ASSERT_EQ(kx_parallelplanes(&plane, off, sides, sides + 1), 0);
    EXPECT_NEAR(kx_distpntplane(&above, sides), off + std::fabs(off), 1e-10);
    EXPECT_NEAR(kx_distpntplane(&above, sides + 1), off - std::fabs(off), 1e-10);
    const double c = std::cos(angle / degree), s = std::sin(angle / degree);
    const planeeq turned = as_plane(p, f.at(0, s, run % 2 ? c : -c));
    const ple_3d line = as_line(p, f.at(0, -c, s));
    EXPECT_NEAR(kx_angletwoplanes(0, &plane, &turned), angle, 1e-9);
    EXPECT_NEAR(kx_angletwoplanes(1, &plane, &turned), angle / degree, 1e-11);
    EXPECT_NEAR(kx_angletwoplanes(2, &plane, &turned), c, 1e-12);
    EXPECT_NEAR(kx_anglelineplane(0, &line, &plane), angle, 1e-9);
  }
  const planeeq floor{0, 0, 2, 1}, wall{0, 1, 5e-8, 0};
  const ple_3d up{0, 0, 0, 0, 0, 9};
  EXPECT_TRUE(kx_angletwoplanes(0, &floor, &wall) == 90.0 && kx_anglelineplane(1, &up, &floor) == 1.5707963268);
}

TEST(Planes, MeetInLinesAndPoints) {
  const planeeq z0{0, 0, 1, 0}, x1{1, 0, 0, -1};
  ple_3d line{};
  pnt_3d p{}, q{};
  EXPECT_EQ(kx_inttwoplanes(&z0, &x1, &line), 1);
  EXPECT_TRUE(line.x0 == 1 && line.y0 == 0 && line.dx == 0 && line.dy == 1) << "the first normal x the second";
  for (double slope : {3.16e-4, 3.17e-4}) {  // whose square is 1e-7
    const planeeq tilted{slope, 0, 1, 0};
    EXPECT_EQ(kx_inttwoplanes(&z0, &tilted, &line), slope > 3.165e-4);
  }
  std::mt19937 random(3);
  std::uniform_real_distribution<double> any(-5, 5);
  for (int run = 0; run < 200; ++run) {
    planeeq a[3];
    for (planeeq &plane : a) plane = {any(random), any(random), any(random), any(random)};
    ASSERT_EQ(kx_inttwoplanes(a, a + 1, &line), 1);
    const kx::vec3 from{line.x0, line.y0, line.z0}, along{line.dx, line.dy, line.dz};
    EXPECT_NEAR(dot(from, along) / kx::length(along), 0, 1e-11);
    for (int i = 0; i < 2; ++i) EXPECT_NEAR(at(a[i], from + along), 0, 1e-9);
    ASSERT_EQ(kx_intthreeplanes(a, a + 1, a + 2, &p), kx_intlineplane_ple(&line, a + 2, &q));
    for (const planeeq &plane : a) EXPECT_NEAR(at(plane, {p.x, p.y, p.z}), 0, 1e-8);
    EXPECT_NEAR(apart(p, {q.x, q.y, q.z}) / (1 + kx::length(kx::vec3{p.x, p.y, p.z})), 0, 1e-9);
  }
}

TEST(Planes, ArePiercedByLinesAndSegments) {
  const planeeq plane{0, 0, 1e-3, -2e-3}, none{};  // z = 2
  const struct {
    kx::vec3 from, along;
    int32_t lie, segment_hits;
  } rows[] = {
      {{0, 0, 2 + 0.9e-7}, {0, 0, 1}, 1, 1}, {{0, 0, 2 + 1.1e-7}, {0, 0, 1}, 1, 0},
      {{0, 0, 1}, {0, 0, 0.9999999}, 1, 1},  {{0, 0, 1}, {0, 0, 0.9999997}, 1, 0},
      {{1, 2, 0}, {1, 0, 0.9e-7}, 2, 0},     {{1, 2, 0}, {1, 0, 1.1e-7}, 1, 0},
      {{1, 2, 2 + 0.9e-7}, {1, 1, 0}, 3, 0}, {{1, 2, 2 + 1.1e-7}, {1, 1, 0}, 2, 0},
      {{1, 2, 2}, {0, 0, 1e-8}, 4, 0},
  };
  for (const auto &[from, along, lie, segment_hits] : rows) {
    const ple_3d line = as_line(from, along);
    const line_3d seg = as_segment(from, from + along);
    pnt_3d p{7, 7, 7};
    int32_t code[2] = {-1, -1};
    EXPECT_EQ(kx_intlineplane(1, nullptr, &seg, &plane, &p, code), segment_hits) << from.z << ' ' << along.z;
    EXPECT_TRUE(segment_hits ? p.z > 1.999999 && p.z < 2.000001 : p.z == 7);
    EXPECT_EQ(kx_intlineplane(0, &line, nullptr, &plane, &p, code + 1), lie == 1);
    EXPECT_TRUE(code[0] == lie && code[1] == lie) << from.z << ' ' << along.z;
    EXPECT_TRUE(kx_intlineplane(0, &line, nullptr, &none, &p, code) == 0 && code[0] == (lie == 4 ? 4 : 25));
  }
}
