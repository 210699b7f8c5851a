#include <gtest/gtest.h>

#include "geometry/space_values.hpp"
#include "kxgeom/geometry.h"
#include "support/faults.hpp"
#include "support/message_folder.hpp"

namespace {

constexpr double degree = 57.2957795131;

}  // namespace

TEST(SpaceLines, RunThroughTheirPoints) {
  const message_folder folder;
  const pnt_3d p{1, 2, 3}, close_by{1 + 0.9e-7, 2 - 0.9e-7, 3}, off{1, 2 + 1.1e-7, 3};
  ple_3d line{};
  EXPECT_TRUE(kx_lineeqspace(&p, &close_by, &line) == 2 && line.x0 == 0);
  EXPECT_EQ(kx_lineeqspace(&p, &off, &line) + kx_normallineeqspace(&line), 0);  // two points make a direction
  EXPECT_TRUE(line.x0 == 1 && line.z0 == 3 && line.dy == 1);
  line = {1, 1, 1, 0, 1e-7, 0};
  faults::clear_messages();
  EXPECT_TRUE(kx_normallineeqspace(&line) == 4 && line.dy == 1e-7);
  EXPECT_EQ(faults::messages(),
            std::vector<std::string>{"BADPECOEFF&msgrec[i]\nLocation: kx_normlineeqspace Error Nr: 4"});
}

TEST(SpaceLines, MeasureDistancesAndAngles) {
  std::mt19937 random(1);
  for (int run = 0; run < 300; ++run) {
    const space_frame f(random);
    const double gap = run % 3 ? run * 0.01 : 0, angle = 0.5 + run * 0.3, size = std::pow(10, run % 7 - 3);
    const double c = std::cos(angle / degree), s = std::sin(angle / degree);
    const kx::vec3 p = f.at(1, 2, 3), v = size * f.at(run % 2 ? c : -c, s, 0);
    // Two lines through p and above it, started elsewhere.
    const ple_3d a = as_line(p + f.at(6, 0, 0), f.at(-3, 0, 0)), b = as_line(p + f.at(0, 0, gap) - 2 / size * v, v);
    EXPECT_NEAR(kx_distlinespace(&a, &b), gap, 1e-12);
    EXPECT_NEAR(kx_anglelinesspace(0, &a, &b), angle > 90 ? 180 - angle : angle, 1e-8);
    EXPECT_NEAR(kx_anglelinesspace(2, &b, &a), std::fabs(c), 1e-12);
    pnt_3d pnt{};
    int32_t lie = -1;
    ASSERT_EQ(kx_intlinespace(0, &a, &b, nullptr, nullptr, &pnt, &lie), gap == 0);
    EXPECT_EQ(lie, gap == 0);
    if (gap == 0) EXPECT_NEAR(apart(pnt, p), 0, 1e-11);
    const ple_3d parallel = as_line(p + f.at(run, gap, gap), f.at(-size, 0, 0));
    EXPECT_NEAR(kx_distlinespace(&a, &parallel), gap * std::sqrt(2), 1e-10);
    EXPECT_EQ(kx_intlinespace(0, &a, &parallel, nullptr, nullptr, &pnt, &lie), 0);
    EXPECT_EQ(lie, gap == 0 ? 3 : 2);
    // A point beside the line, and the same line as a segment.
    const pnt_3d beside = as_pnt(p + f.at(run, gap, 2));
    const line_3d seg = as_segment(p, p + f.at(size, 0, 0));
    const double expected = std::sqrt(gap * gap + 4);
    for (int mode = 0; mode < 2; ++mode)
      EXPECT_NEAR(kx_distpntlinespace(mode, &beside, &a, &seg), expected, 1e-9 * (1 + run / size));
  }
  const pnt_3d p{3, 4, 0};
  const line_3d point{0, 0, 0, 0, 1e-7, 0};
  const ple_3d x{0, 0, 0, 1, 0, 0}, tilted{0, 0, 0, 1, 0, 1e-6}, up{5, 5, 5, 0, 0, 1};
  EXPECT_EQ(kx_distpntlnsp_ls(&p, &point), 5);
  EXPECT_NEAR(kx_anglelinesspace(1, &x, &tilted), 1e-6, 1e-17);
  EXPECT_TRUE(kx_anglelinesspace(0, &x, &up) == 90.0 && kx_anglelinesspace(1, &x, &up) == 1.5707963268);
}

TEST(SpaceLines, MeetWithinTheToleranceAndTheSegments) {
  // Against the segment from the origin to (1, 0, 0).
  const line_3d a{0, 0, 0, 1, 0, 0};
  const ple_3d line_a{0, 0, 0, 1, 0, 0};
  const struct {
    kx::vec3 from, along;
    int32_t lie, lines, line_segment, segments;
    double x;
  } rows[] = {
      {{0.5, -1, 0}, {0, 2, 0}, 1, 1, 1, 1, 0.5},         {{0.5, -1, 0.9e-7}, {0, 2, 0}, 1, 1, 1, 1, 0.5},
      {{0.5, -1, 1.1e-7}, {0, 2, 0}, 0, 0, 0, 0, 0},      {{5e-8, -1, 0}, {0, 2, 0}, 1, 1, 1, 1, 0},
      {{1.00000019, -1, 0}, {0, 2, 0}, 1, 1, 1, 1, 1},    {{1.00000021, -1, 0}, {0, 2, 0}, 1, 1, 1, 0, 1},
      {{-1.1e-7, -1, 0}, {0, 2, 0}, 1, 1, 1, 0, 0},       {{0.5, 1.9e-7, 0}, {0, 2, 0}, 1, 1, 1, 1, 0.5},
      {{0.5, 2.1e-7, 0}, {0, 2, 0}, 1, 1, 0, 0, 0.5},     {{0.5, -2, 0}, {0, 1.9999997, 0}, 1, 1, 1, 1, 0.5},
      {{0.5, -2, 0}, {0, 1.9999995, 0}, 1, 1, 0, 0, 0.5}, {{0, 1, 0}, {2, 1.8e-7, 0}, 2, 0, 0, 0, 0},
      {{0, 1, 0}, {-2, 2.2e-7, 0}, 1, 1, 0, 0, 9090909},  {{9, 0, 0.9e-7}, {-4, 0, 0}, 3, 0, 0, 0, 0},
      {{9, 0, 1.1e-7}, {-4, 0, 0}, 2, 0, 0, 0, 0},        {{0.5, 0, 0}, {0, 0, 0}, 4, 0, 0, 0, 0},
  };
  for (const auto &[from, along, lie, lines, line_segment, segments, x] : rows) {
    SCOPED_TRACE(testing::Message() << from.x << ' ' << from.y << ' ' << from.z << ' ' << along.y);
    const line_3d b = as_segment(from, from + along);
    const ple_3d line_b = as_line(from, along);
    const int32_t expected[] = {lines, segments, line_segment};
    for (int mode = 0; mode < 3; ++mode) {
      pnt_3d p{7, 7, 7};
      int32_t code = -1;
      const ple_3d *first = mode == 0 ? &line_b : &line_a;
      const line_3d *seg = mode == 2 ? &b : &a;
      ASSERT_EQ(kx_intlinespace(mode, &line_a, first, seg, mode == 1 ? &b : nullptr, &p, &code), expected[mode])
          << mode;
      EXPECT_EQ(code, lie);
      if (expected[mode]) EXPECT_NEAR(+p.x / (1 + x), x / (1 + x), 1e-6);
      if (expected[mode] && x == 0) EXPECT_TRUE(p.x == 0 || p.x == -1.1e-7);  // snapped up to 1e-7
      if (!expected[mode]) EXPECT_EQ(+p.x, 7);
    }
  }
}
