// Crossing points of pairs of segments, drawn at random: about a quarter of them cross. An item is one pair. All pairs
// keep clear of the tolerances, where only this library's answers would differ.
#include <CGAL/Simple_cartesian.h>
#include <CGAL/intersections.h>
#include <geos_c.h>
#include <boost/variant/get.hpp>

#include <cmath>
#include <limits>
#include <memory>
#include <vector>

#include "harness.hpp"
#include "kxgeom/geometry.h"

namespace {

constexpr int count = 16384, rounds = 64;  // enough pairs that no processor learns them, few enough for its cache
constexpr double tolerance = 1e-7;

struct pair {
  line_2d a, b;
};

// What the contract asks for: the parameters of both segments within their bounds, the point on the first.
std::int32_t plain(const line_2d *a, const line_2d *b, pnt_2d *point) {
  const double ax = a->x2 - a->x1, ay = a->y2 - a->y1, bx = b->x2 - b->x1, by = b->y2 - b->y1;
  const double d = ay * bx - ax * by;
  if (std::fabs(d) <= tolerance) return 0;
  const double ex = b->x1 - a->x1, ey = b->y1 - a->y1;
  const double s = (ey * bx - ex * by) / d, u = (ey * ax - ex * ay) / d;
  if (!(s >= -tolerance && s <= 1 + 2 * tolerance && u >= -tolerance && u <= 1 + 2 * tolerance)) return 0;
  const double x = a->x1 + s * ax, y = a->y1 + s * ay;
  *point = {std::fabs(x) <= tolerance ? 0.0 : x, std::fabs(y) <= tolerance ? 0.0 : y};
  return 1;
}

bool clear_of_tolerances(const pair &p) {
  const auto side = [](double x, double y, const line_2d &s) {
    const double dx = s.x2 - s.x1, dy = s.y2 - s.y1;
    return (dx * (y - s.y1) - dy * (x - s.x1)) / std::hypot(dx, dy);
  };
  for (const double off :
       {side(p.a.x1, p.a.y1, p.b), side(p.a.x2, p.a.y2, p.b), side(p.b.x1, p.b.y1, p.a), side(p.b.x2, p.b.y2, p.a)}) {
    if (!(std::fabs(off) > 1e-3)) return false;
  }
  const double d = (p.a.y2 - p.a.y1) * (p.b.x2 - p.b.x1) - (p.a.x2 - p.a.x1) * (p.b.y2 - p.b.y1);
  return std::fabs(d) > 1;
}

const std::vector<pair> &pairs() {
  static const std::vector<pair> made = [] {
    std::vector<pair> v;
    std::uint64_t state = 1;
    const auto next = [&state] {
      state = state * 6364136223846793005U + 1442695040888963407U;
      return static_cast<double>(state >> 33) * (100.0 / 2147483648.0);
    };
    const auto segment = [&next] {
      const double x1 = next(), y1 = next(), x2 = next(), y2 = next();
      return line_2d{x1, y1, x2, y2};
    };
    while (v.size() < count) {
      const line_2d a = segment(), b = segment();
      if (clear_of_tolerances({a, b})) v.push_back({a, b});
    }
    return v;
  }();
  return made;
}

// intersect(i, point) answers whether pair i crosses, and where.
template <class Intersect>
void add(const std::string &what, Intersect intersect) {
  bench::add({.name = "segments/16k/" + what,
              .items = std::int64_t{count} * rounds,
              .check = [intersect]() -> std::string {
                for (int i = 0; i < count; ++i) {
                  const pair &p = pairs()[static_cast<std::size_t>(i)];
                  pnt_2d got{}, want{};
                  const bool right = intersect(i, &got) == plain(&p.a, &p.b, &want) &&
                                     bench::close(got.x, want.x, 1e-9) && bench::close(got.y, want.y, 1e-9);
                  if (!right) return "pair " + std::to_string(i);
                }
                return {};
              },
              .pass =
                  [intersect] {
                    std::int32_t crossings = 0;
                    pnt_2d point{};
                    for (int round = 0; round < rounds; ++round) {
                      for (int i = 0; i < count; ++i) {
                        crossings += intersect(i, &point);
                        bench::use(&point);
                      }
                    }
                    bench::use(crossings);
                  }});
}

// A function of two records, called through its address so that no row's call is built into its loop.
void add_called(const std::string &what, std::int32_t(KX_CALL *function)(const line_2d *, const line_2d *, pnt_2d *)) {
  add(what, [function](int i, pnt_2d *point) {
    const pair &p = pairs()[static_cast<std::size_t>(i)];
    return function(&p.a, &p.b, point);
  });
}

void add_cgal() {
  using kernel = CGAL::Simple_cartesian<double>;
  struct segments {
    kernel::Segment_2 a, b;
  };
  static const std::vector<segments> made = [] {
    std::vector<segments> v;
    for (const auto &[a, b] : pairs()) v.push_back({{{a.x1, a.y1}, {a.x2, a.y2}}, {{b.x1, b.y1}, {b.x2, b.y2}}});
    return v;
  }();
  add("peer:CGAL_intersection_double", [](int i, pnt_2d *point) -> std::int32_t {
    const segments &s = made[static_cast<std::size_t>(i)];
    const auto common = CGAL::intersection(s.a, s.b);
    if (!common) return 0;
    const auto *p = boost::get<kernel::Point_2>(&*common);
    *point = {p->x(), p->y()};
    return 1;
  });
}

void add_geos() {
  static const std::unique_ptr<GEOSContextHandle_HS, decltype(&GEOS_finish_r)> context(GEOS_init_r(), &GEOS_finish_r);
  add("peer:GEOS_SegmentIntersection", [](int i, pnt_2d *point) -> std::int32_t {
    const auto &[a, b] = pairs()[static_cast<std::size_t>(i)];
    double x = 0, y = 0;
    if (GEOSSegmentIntersection_r(context.get(), a.x1, a.y1, a.x2, a.y2, b.x1, b.y1, b.x2, b.y2, &x, &y) != 1) return 0;
    *point = {x, y};
    return 1;
  });
}

}  // namespace

void bench::add_rows() {
  add_called("floor:plain_formula", plain);
  add_called("kx:kx_intersect_ls", kx_intersect_ls);
  add_cgal();
  add_geos();
}
