#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "geometry/point_list.hpp"
#include "kxgeom/geometry.h"

TEST(EllipsePoints, LieOnTheEllipseWithinTheTolerance) {
  const double degree = std::acos(-1.0) / 180;
  std::mt19937 random(2);
  const auto uniform = [&](double a, double b) { return std::uniform_real_distribution(a, b)(random); };
  for (int run = 0; run < 200; ++run) {
    const ellipse_2d e{uniform(-9, 9), uniform(-9, 9), uniform(0.1, 9), uniform(0.1, 9), 0, 0};
    const double axis = uniform(-400, 400), start = uniform(-400, 400), sweep = uniform(-400, 400);
    const double longer = std::max(e.a, e.b), tol = longer * std::pow(10, uniform(-5, -0.4));
    point_list out;
    ASSERT_EQ(kx_elliptic_arc_2d(&e, axis, start, sweep, tol, &out.list), 0);
    ASSERT_EQ(kx_arc_pntcount(longer, sweep, tol), out.list.count);
    const double c = std::cos(axis * degree), s = std::sin(axis * degree);
    const double step = std::copysign(std::min(std::fabs(sweep), 360.0) / (out.list.count - 1), sweep);
    poly_2d before{};
    for (const poly_2d &p : out.points()) {
      const double x = p.x - e.x, y = p.y - e.y, u = (start + p.seqnr * step) * degree, m = u - step / 2 * degree;
      ASSERT_NEAR((c * x + s * y) / e.a, std::cos(u), 1e-10 * longer / e.a);
      ASSERT_NEAR((c * y - s * x) / e.b, std::sin(u), 1e-10 * longer / e.b);
      // The ellipse is farthest from a chord in the middle of its eccentric angle.
      const double mx = e.a * std::cos(m), my = e.b * std::sin(m), dx = p.x - before.x, dy = p.y - before.y;
      const double off = (dx * (c * my + s * mx - y) - dy * (c * mx - s * my - x)) / std::hypot(dx, dy);
      ASSERT_LE(p.seqnr > 0 ? std::fabs(off) : 0, tol * (1 + 1e-6));
      before = p;
    }
  }
}

TEST(EllipsePoints, CloseOrRefuse) {
  const double inf = std::numeric_limits<double>::infinity();
  const ellipse_2d e{1, 2, 3, 5, inf, inf}, flat{0, 0, 1, 1e-7, 0, 0};
  point_list out, odd, none;
  ASSERT_EQ(kx_ellipsepnts_2d(&e, 90, 0.01, &out.list) + kx_ellipsepnts_2d(&e, 33.3, 0.01, &odd.list), 0);
  EXPECT_TRUE(out.points()[0].x == 1 && out.points()[0].y == 5 && out.closed() && odd.closed());
  EXPECT_TRUE(kx_ellipsepnts_2d(&flat, 0, 1, &none.list) == 3 && none.list.count == 0);
}
