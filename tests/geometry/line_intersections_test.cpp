#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "kxgeom/geometry.h"

namespace {

// What comes back beside the count; 9 stands for an output that was not written.
struct crossing {
  int count;
  pnt_2d p{9, 9};
  bool at(double x, double y, double within = 0) const {
    return count == 1 && std::fabs(p.x - x) <= within && std::fabs(p.y - y) <= within;
  }
  bool none() const { return count == 0 && p.x == 9 && p.y == 9; }
};
template <class Function, class First, class Second>
crossing call(Function function, const First &first, const Second &second) {
  crossing c{};
  c.count = function(&first, &second, &c.p);
  return c;
}
crossing segments(const line_2d &a, const line_2d &b) { return call(kx_intersect_ls, a, b); }

// The crossing of random segments, known beforehand by its parameters, in every form and both orders.
TEST(LineIntersections, AllFormsAgree) {
  std::mt19937 random(4);
  std::uniform_real_distribution<double> number(-30, 30), parameter(-0.5, 1.5);
  for (int run = 0; run < 500; ++run) {
    const pnt_2d p{number(random), number(random)};
    const double ax = number(random), ay = number(random), bx = number(random), by = number(random);
    const double s = parameter(random), u = parameter(random);
    if (std::fabs(ax * by - ay * bx) < 1) continue;
    const pnt_2d ends[] = {{p.x - s * ax, p.y - s * ay},
                           {p.x + (1 - s) * ax, p.y + (1 - s) * ay},
                           {p.x - u * bx, p.y - u * by},
                           {p.x + (1 - u) * bx, p.y + (1 - u) * by}};
    const line_2d a{ends[0].x, ends[0].y, ends[1].x, ends[1].y}, b{ends[2].x, ends[2].y, ends[3].x, ends[3].y};
    ile_2d ia{}, ib{};
    ple_2d pa{}, pb{};
    kx_lineeq_ile(&ends[0], &ends[1], &ia);
    kx_lineeq_ile(&ends[2], &ends[3], &ib);
    kx_lineeq_ple(&ends[0], &ends[1], &pa);
    kx_lineeq_ple(&ends[2], &ends[3], &pb);
    const bool on_a = s > 0 && s<1, on_b = u> 0 && u < 1, expected[] = {true, true, true, on_a && on_b, on_b, on_b};
    for (int mode = 0; mode <= 5; ++mode) {
      const bool lone = mode > 3;  // with b as the first segment
      crossing c{};
      int32_t count = 7;
      c.count = kx_intersect(mode, &ia, &ib, mode == 2 ? &pb : &pa, &pb, lone ? &b : &a, &b, &c.p, &count);
      EXPECT_EQ(count, c.count);
      EXPECT_TRUE(expected[mode] ? c.at(p.x, p.y, 1e-9) : c.none()) << mode << " " << run;
    }
    crossing points{};
    points.count = kx_intersectls(&ends[0], &ends[1], &ends[2], &ends[3], &points.p);
    const crossing records = segments(a, b);
    EXPECT_TRUE(points.count == records.count && points.p.x == records.p.x && points.p.y == records.p.y);
    EXPECT_EQ(kx_intersectf(&a, &b), on_a && on_b);
    for (int axis : {1, 2}) {  // the axes are lines like any other
      const ile_2d line{axis == 2 ? 1.0 : 0.0, axis == 1 ? 1.0 : 0.0, 0};
      const crossing of_line = call(kx_intersect_ile, ia, line), of_segment = call(kx_intersect_ils, line, a);
      crossing got{}, on{};
      got.count = kx_axisintersect(axis, &ia, &got.p), on.count = kx_axisintersect_ls(axis, &a, &on.p);
      EXPECT_TRUE(got.at(of_line.p.x, of_line.p.y, 1e-12 * (1 + std::hypot(+of_line.p.x, +of_line.p.y))));
      EXPECT_TRUE(of_segment.count ? on.at(of_segment.p.x, of_segment.p.y, 1e-9) : on.none());
    }
  }
}

TEST(LineIntersections, OfSegmentsAtTheBounds) {
  const line_2d unit{0, 0, 1, 0};
  const auto upright = [](double x) { return line_2d{x, -1, x, 1}; };
  EXPECT_TRUE(segments(unit, upright(1.0000001)).at(1.0000001, 0, 1e-15));
  EXPECT_TRUE(segments(unit, upright(1.00000021)).none());
  EXPECT_TRUE(segments(unit, upright(-9.9e-8)).at(0, 0));  // near zero is zero
  EXPECT_TRUE(segments(unit, upright(-2e-7)).none());
  EXPECT_TRUE(segments(upright(-9.9e-8), unit).count == 1 && segments(upright(-2e-7), unit).none());
  EXPECT_TRUE(segments(upright(1.00000019), unit).count == 1 && segments(upright(1.00000021), unit).none());
  EXPECT_TRUE(segments(unit, {0.5, 0, 2, 0}).none());
  EXPECT_TRUE(segments(unit, {0, 0, 1, 1e-7}).none() && segments(unit, {0, 0, 1, 1.1e-7}).at(0, 0));
}

TEST(LineIntersections, OfLines) {
  const ile_2d x1{1, 0, -1}, tiny{0, 1, -5e-8};
  // The same within the tolerance, although not parallel.
  const ile_2d steep{1e3, 1e3, 0}, steeper{1e3 + 9e-8, 1e3, 0}, steepest{1e3 + 2e-7, 1e3, 0}, off{1e3 + 9e-8, 1e3, 5};
  EXPECT_TRUE(call(kx_intersect_ile, steep, steeper).none() && call(kx_intersect_ile, steep, steepest).count == 1);
  EXPECT_EQ(call(kx_intersect_ile, steep, off).count, 1);
  // The parametric form makes a coordinate near zero 0, the others do not.
  EXPECT_TRUE(call(kx_intersect_ile, x1, tiny).at(1, 5e-8));
  EXPECT_TRUE(call(kx_intersect_ple, ple_2d{1, 3, 0, 1}, ple_2d{0, 5e-8, 1, 0}).at(1, 0));
  EXPECT_TRUE(call(kx_intersect_pil, x1, ple_2d{0, 5e-8, 1, 0}).at(1, 5e-8));
}

TEST(LineIntersections, OfLineAndSegmentWithinTheBox) {
  const ile_2d level{0, 1, -5};
  const line_2d reaching{1, 1, 1, 5 - 5e-7}, falling_short{1, 1, 1, 5 - 7e-7}, spot{1, 5, 1, 5};
  EXPECT_TRUE(call(kx_intersect_ils, level, reaching).at(1, 5, 1e-12));  // (5 + 1) * 1e-7 is allowed
  EXPECT_TRUE(call(kx_intersect_ils, level, falling_short).none());
  EXPECT_TRUE(call(kx_intersect_pls, ple_2d{0, 5, 1, 0}, reaching).at(1, 5, 1e-12));
  EXPECT_TRUE(call(kx_intersect_pls, ple_2d{0, 5, 1, 0}, falling_short).none());
  // Of two ordinates equal within the tolerance that of the greater x bounds the box, whatever the direction.
  for (const line_2d &s : {line_2d{0, 1, 1e-6, 1 + 1.9e-7}, line_2d{1e-6, 1 + 1.9e-7, 0, 1}}) {
    EXPECT_TRUE(call(kx_intersect_ils, ile_2d{1, 0, 9e-8}, s).none());
    EXPECT_EQ(call(kx_intersect_ils, ile_2d{1, 0, -1e-6 - 9e-8}, s).count, 1);
  }
  EXPECT_TRUE(call(kx_intersect_ils, level, spot).at(1, 5));
  EXPECT_TRUE(call(kx_intersect_ils, level, line_2d{1, 5 + 1e-15, 1, 5}).none());
  EXPECT_TRUE(call(kx_intersect_pls, ple_2d{0, 4, 1, 1}, spot).at(1, 5));
  EXPECT_TRUE(call(kx_intersect_pls, ple_2d{0, 5, 1, 0}, spot).none()) << "but not along an axis";
}

TEST(LineIntersections, FastTestAndAxes) {
  const line_2d unit{0, 0, 1, 0}, along{0, 1e-8, 1, -1e-8}, near_origin{5e-8, -1, 5e-8, 1};
  for (double y : {9e-8, 1.1e-7}) {
    const line_2d s{0.5, y, 0.5, 1};
    EXPECT_TRUE(kx_intersectf(&unit, &s) == (y < 1e-7) && kx_intersectf(&s, &unit) == (y < 1e-7));
  }
  pnt_2d p{9, 9};
  EXPECT_TRUE(kx_axisintersect_ls(1, &along, &p) == 0 && p.x == 9);
  EXPECT_TRUE(kx_axisintersect_ls(1, &near_origin, &p) == 1 && p.x == 0 && p.y == 0);
}

}  // namespace
