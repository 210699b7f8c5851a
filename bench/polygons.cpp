// Polygon queries beside what one would take instead: one point, many points, convexity, self-intersection. All inputs
// keep clear of the tolerances, where only this library's answers would differ.
//
// smooth: a star-shaped, gently wavy polygon; spikes: one whose radius jumps at every vertex, so that a large part of
// all edges lies over every abscissa.
#include <CGAL/Exact_predicates_inexact_constructions_kernel.h>
#include <CGAL/Polygon_2_algorithms.h>
#include <geos_c.h>

#include <cmath>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "floor_list.hpp"
#include "harness.hpp"
#include "kxgeom/list.h"
#include "kxgeom/polygon.h"
#include "kxgeom/records.h"

namespace {

using kernel = CGAL::Exact_predicates_inexact_constructions_kernel;
using points = std::vector<pnt_2d>;

constexpr double turn = 6.283185307179586;

class numbers {
 public:
  explicit numbers(std::uint64_t seed) : state_(seed) {}
  double operator()(double least, double most) {
    state_ = state_ * 6364136223846793005U + 1442695040888963407U;
    return least + (most - least) * static_cast<double>(state_ >> 11) / 9007199254740992.0;
  }

 private:
  std::uint64_t state_;
};

points around(int n, const std::function<double(double)> &radius) {
  numbers number(7);
  points v;
  for (int i = 0; i < n; ++i) {
    const double a = turn / n * (i + number(-0.3, 0.3)), r = radius(a);
    v.push_back({r * std::cos(a), r * std::sin(a)});
  }
  return v;
}

points smooth(int n) {
  numbers number(8);
  return around(n, [&](double a) {
    return 100 * (1 + 0.3 * std::sin(5 * a) + 0.1 * std::sin(17 * a + 1)) * (1 + number(-0.2, 0.2) * turn / n);
  });
}

points spikes(int n) {
  numbers number(9);
  return around(n, [&](double) { return number(50, 100); });
}

points circle(int n) {
  points v;
  for (int i = 0; i < n; ++i) v.push_back({1000 * std::cos(turn / n * i), 1000 * std::sin(turn / n * i)});
  return v;
}

bool plainly_inside(const pnt_2d &p, const points &v) {
  bool inside = false;
  const pnt_2d *b = &v.back();
  for (const pnt_2d &a : v) {
    if ((a.y > p.y) != (b->y > p.y) && p.x < (b->x - a.x) * (p.y - a.y) / (b->y - a.y) + a.x) inside = !inside;
    b = &a;
  }
  return inside;
}

bool clear_of(const points &v, const pnt_2d &p) {
  const pnt_2d *b = &v.back();
  for (const pnt_2d &a : v) {
    const double dx = b->x - a.x, dy = b->y - a.y;
    const double t = std::fmin(1, std::fmax(0, ((p.x - a.x) * dx + (p.y - a.y) * dy) / (dx * dx + dy * dy)));
    if (std::hypot(p.x - a.x - t * dx, p.y - a.y - t * dy) < 0.03 || std::fabs(a.y - p.y) < 1e-4 / double(v.size()))
      return false;
    b = &a;
  }
  return true;
}

list_hdr *list_of(const points &v) {
  list_hdr *list = ll_create_list();
  for (const pnt_2d &p : v) {
    pnt_2d *record = kx_create_pnt_2d();
    *record = p;
    ll_add_list_item(list, 1, record, KX_PNT_2D);
  }
  return list;
}

std::vector<kernel::Point_2> for_cgal(const points &v) {
  std::vector<kernel::Point_2> all;
  for (const pnt_2d &p : v) all.emplace_back(p.x, p.y);
  return all;
}

GEOSContextHandle_t geos() {
  static const std::unique_ptr<GEOSContextHandle_HS, decltype(&GEOS_finish_r)> context(GEOS_init_r(), &GEOS_finish_r);
  return context.get();
}

GEOSGeometry *ring_for_geos(const points &v) {
  GEOSCoordSequence *all = GEOSCoordSeq_create_r(geos(), static_cast<unsigned>(v.size() + 1), 2);
  for (unsigned i = 0; i <= v.size(); ++i) {
    const pnt_2d &p = v[i % v.size()];
    GEOSCoordSeq_setXY_r(geos(), all, i, p.x, p.y);
  }
  return GEOSGeom_createLinearRing_r(geos(), all);
}

// ---- points ----

struct question {
  points polygon, asked;
  std::vector<bool> inside;
  list_hdr *list, *asked_list;

  question(int n, int count) : polygon(smooth(n)) {
    numbers number(11);
    while (static_cast<int>(asked.size()) < count) {
      const pnt_2d p{number(-140, 140), number(-140, 140)};
      if (!clear_of(polygon, p)) continue;
      asked.push_back(p);
      inside.push_back(plainly_inside(p, polygon));
    }
    list = list_of(polygon);
    asked_list = list_of(asked);
  }
};
using shared_question = std::shared_ptr<question>;

template <class Ask>
void add_single(const std::string &what, const shared_question &q, Ask ask) {
  bench::add({.name = "point_in_polygon/n=" + std::to_string(q->polygon.size()) + "/" + what,
              .items = static_cast<std::int64_t>(q->asked.size()),
              .check = [q, ask]() -> std::string {
                for (std::size_t i = 0; i < q->asked.size(); ++i) {
                  if (ask(*q, q->asked[i]) != q->inside[i]) return "point " + std::to_string(i);
                }
                return {};
              },
              .pass =
                  [q, ask] {
                    int found = 0;
                    for (const pnt_2d &p : q->asked) found += ask(*q, p);
                    bench::use(found);
                  }});
}

void add_points(int n, int count) {
  const auto q = std::make_shared<question>(n, count);
  const auto cgal = std::make_shared<std::vector<kernel::Point_2>>(for_cgal(q->polygon));
  add_single("floor:plain_loop", q,
             [](const question &own, const pnt_2d &p) { return plainly_inside(p, own.polygon); });
  add_single("peer:CGAL_bounded_side", q, [cgal](const question &, const pnt_2d &p) {
    return CGAL::bounded_side_2(cgal->begin(), cgal->end(), kernel::Point_2(p.x, p.y), kernel()) ==
           CGAL::ON_BOUNDED_SIDE;
  });
  add_single("kx:kx_inpolygon", q, [n](const question &own, const pnt_2d &p) {
    std::int32_t index = 0;
    return kx_inpolygon(&p, own.polygon.data(), &n, &index) != 0;
  });
  add_single("kx:kx_inpolygon_kept", q,
             [n, index = std::make_shared<std::int32_t>(0)](const question &own, const pnt_2d &p) {
               return kx_inpolygon(&p, own.polygon.data(), &n, index.get()) != 0;
             });
  add_single("kx:kx_inpolygonl", q,
             [](const question &own, const pnt_2d &p) { return kx_inpolygonl(&p, own.list) != 0; });

  // Many points: preparation is part of the work.
  const std::string name = "points_in_polygon/n=" + std::to_string(n) + "/";
  const auto ring = ring_for_geos(q->polygon);
  const auto geos_polygon = GEOSGeom_createPolygon_r(geos(), ring, nullptr, 0);
  std::vector<GEOSGeometry *> geos_points;
  for (const pnt_2d &p : q->asked) geos_points.push_back(GEOSGeom_createPointFromXY_r(geos(), p.x, p.y));
  const auto contained = [q, geos_polygon, geos_points](const std::function<void(std::size_t, bool)> &tell) {
    const GEOSPreparedGeometry *prepared = GEOSPrepare_r(geos(), geos_polygon);
    for (std::size_t i = 0; i < geos_points.size(); ++i)
      tell(i, GEOSPreparedContains_r(geos(), prepared, geos_points[i]));
    GEOSPreparedGeom_destroy_r(geos(), prepared);
  };
  bench::add({.name = name + "peer:GEOS_prepared_contains",
              .items = count,
              .check =
                  [q, contained] {
                    std::string wrong;
                    contained([&](std::size_t i, bool in) { wrong = in == q->inside[i] ? wrong : std::to_string(i); });
                    return wrong;
                  },
              .pass = [contained] { contained([](std::size_t, bool in) { bench::use(in); }); }});
  bench::add({.name = name + "floor:walk_and_blocks", .items = count, .pass = [q] {
                double total = 0.0;
                for (const list_item *i = q->list->head; i; i = i->next) total += static_cast<pnt_2d *>(i->data)->y;
                bench::use(total);
                list_hdr found{};
                for (std::size_t i = 0; i < q->asked.size(); ++i) {
                  const pnt_2d &p = q->asked[i];
                  if (q->inside[i]) bench::link_record(found, bench::make_record(poly_2d{0, p.x, p.y}), KX_POLY_2D);
                }
                bench::free_blocks(found);
              }});
  const auto collect = [q](const std::function<bool(const list_hdr &)> &judge) {
    list_hdr found{};
    std::int32_t n_found = 0;
    kx_pnts_inpolyl(q->asked_list, q->list, &n_found, &found);
    const bool right = judge(found);
    ll_clear_all_items(&found);
    return right;
  };
  bench::add({.name = name + "kx:kx_pnts_inpolyl",
              .items = count,
              .check =
                  [q, collect] {
                    return bench::unless(collect([&](const list_hdr &found) {
                                           const list_item *item = found.head;
                                           for (std::size_t i = 0; i < q->asked.size(); ++i) {
                                             if (!q->inside[i]) continue;
                                             if (!item || static_cast<poly_2d *>(item->data)->x != q->asked[i].x)
                                               return false;
                                             item = item->next;
                                           }
                                           return item == nullptr;
                                         }),
                                         "the points found");
                  },
              .pass = [collect] { collect([](const list_hdr &) { return true; }); }});
}

// ---- polygons ----

// ask() answers of the polygon that is timed, ask_other() of one that must be told from it.
void add_polygon(const std::string &name, std::function<int()> ask, int want, std::function<int()> ask_other,
                 int want_other) {
  bench::add({.name = name,
              .check = [=] { return bench::unless(ask() == want && ask_other() == want_other, "the answer"); },
              .pass = [ask] { bench::use(ask()); }});
}

void add_type(int n) {
  const auto v = std::make_shared<points>(circle(n)), w = std::make_shared<points>(smooth(n));
  const auto p = std::make_shared<std::vector<kernel::Point_2>>(for_cgal(*v)),
             q = std::make_shared<std::vector<kernel::Point_2>>(for_cgal(*w));
  const std::string name = "polygon_type/n=" + std::to_string(n) + "/";
  const auto cgal = [](const auto &all) { return CGAL::is_convex_2(all->begin(), all->end(), kernel()) ? 2 : 1; };
  const auto kx = [n](const auto &all) {
    std::int32_t type = -1;
    kx_polygontype(all->data(), n, &type);
    return type;
  };
  add_polygon(
      name + "peer:CGAL_is_convex", [=] { return cgal(p); }, 2, [=] { return cgal(q); }, 1);
  add_polygon(
      name + "kx:kx_polygontype", [=] { return kx(v); }, 2, [=] { return kx(w); }, 1);
}

void add_self_intersection(const std::string &kind, points v) {
  const std::size_t n = v.size();
  points crossed = v;
  std::swap(crossed[n / 3], crossed[n / 3 + 4]);  // a small knot
  const std::string name = "self_intersection/" + kind + ",n=" + std::to_string(n) + "/";
  const auto p = std::make_shared<std::vector<kernel::Point_2>>(for_cgal(v)),
             q = std::make_shared<std::vector<kernel::Point_2>>(for_cgal(crossed));
  const auto cgal = [](const auto &all) { return CGAL::is_simple_2(all->begin(), all->end(), kernel()) ? 0 : 1; };
  add_polygon(
      name + "peer:CGAL_is_simple", [=] { return cgal(p); }, 0, [=] { return cgal(q); }, 1);
  GEOSGeometry *a = ring_for_geos(v), *b = ring_for_geos(crossed);
  const auto geos_ring = [](const GEOSGeometry *ring) { return GEOSisSimple_r(geos(), ring) ? 0 : 1; };
  add_polygon(
      name + "peer:GEOS_isSimple", [=] { return geos_ring(a); }, 0, [=] { return geos_ring(b); }, 1);
  list_hdr *l = list_of(v), *m = list_of(crossed);
  const auto kx = [](list_hdr *list) { return kx_self_intersecting_polygon(list, 0); };
  add_polygon(
      name + "kx:kx_self_intersecting_polygon", [=] { return kx(l); }, 0, [=] { return kx(m); }, 1);
}

}  // namespace

void bench::add_rows() {
  for (const int n : {10, 100, 1000, 100000}) add_points(n, n > 1000 ? 128 : 1000);
  for (const int n : {1000, 10000}) {
    add_type(n);
    add_self_intersection("smooth", smooth(n));
    add_self_intersection("spikes", spikes(n));
  }
}
