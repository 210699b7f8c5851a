// The polygon queries: rasters of points, single polygons, and pairs, each with what the library answers about them.
#include <kxgeom.h>

#include <array>
#include <cstdint>
#include <memory>
#include <stdexcept>
#include <utility>

#include "plates.hpp"

namespace kxplates {

namespace {

using corners = std::vector<pnt_2d>;

struct purge {
  void operator()(list_hdr *list) const { kx_purge_polygon(list); }
};

// The same corners as an array and as a list.
struct outline {
  corners array;
  std::unique_ptr<list_hdr, purge> list;

  explicit outline(corners c)
      : array(std::move(c)), list(kx_pnt2d_array_to_list(array.data(), count(), KX_PNT_2D, 0, 1)) {
    if (!list) throw std::runtime_error("not enough memory");
  }
  std::int32_t count() const { return static_cast<std::int32_t>(array.size()); }
};

// ---- rasters ----

enum class where { outside, inside, on };

struct raster {
  std::string name;
  outline polygon;
  std::vector<std::pair<pnt_2d, where>> points;
};

raster make_raster(const char *name, const corners &polygon, std::vector<std::string> &told) {
  raster made{name, outline(polygon), {}};
  const outline &p = made.polygon;
  std::array<int, 3> counts{};
  int disagreeing = 0;  // the two forms of the question, off the boundary
  std::int32_t rightmost = 0;
  const std::int32_t count = p.count();
  for (int y = -1; y <= 25; ++y) {
    for (int x = -1; x <= 25; ++x) {
      const pnt_2d at{static_cast<double>(x), static_cast<double>(y)};
      const bool inside = kx_inpolygonl(&at, p.list.get()) == 1;
      const bool on = !inside && kx_inonpolygonl(&at, p.list.get()) == 1;
      if (!on && (kx_inpolygon(&at, p.array.data(), &count, &rightmost) == 1) != inside) ++disagreeing;
      const where found = inside ? where::inside : on ? where::on : where::outside;
      ++counts[static_cast<std::size_t>(found)];
      made.points.emplace_back(at, found);
    }
  }
  told.push_back(made.name + ": " + std::to_string(counts[1]) + " inside, " + std::to_string(counts[2]) + " on, " +
                 std::to_string(counts[0]) + " outside, " + std::to_string(disagreeing) + " disagree");
  return made;
}

// ---- single polygons ----

struct labelled {
  outline polygon;
  std::array<std::string, 3> words;
};

labelled make_labelled(const corners &polygon, std::vector<std::string> &told) {
  labelled made{outline(polygon), {}};
  const outline &p = made.polygon;
  std::int32_t type = -1;
  kx_polygontype(p.array.data(), p.count(), &type);
  const char *const types[] = {"no type", "on one line", "concave", "convex"};
  made.words = {kx_self_intersecting_polygon(p.list.get(), 1) == 1 ? "meets itself" : "simple",
                types[type >= 0 && type <= 2 ? type + 1 : 0],
                "direction " + std::to_string(kx_get_poly2d_dir(p.list.get()))};
  told.push_back("polygon: " + made.words[0] + ", " + made.words[1] + ", " + made.words[2]);
  return made;
}

// ---- pairs ----

struct pair_of_polygons {
  outline a, b;
  std::array<std::string, 2> words;
};

pair_of_polygons make_pair(const corners &a, const corners &b, std::vector<std::string> &told) {
  pair_of_polygons made{outline(a), outline(b), {}};
  const bool inside = kx_inside_poly(made.a.list.get(), made.b.list.get()) == 1;
  const bool outside = kx_outside_poly(made.a.list.get(), made.b.list.get()) == 1;
  made.words = {inside ? "a is inside b" : "a is not inside b", outside ? "a is outside b" : "a is not outside b"};
  told.push_back("pair: " + made.words[0] + ", " + made.words[1]);
  return made;
}

struct pair_of_rectangles {
  rect_2d a, b, both, common;
  bool meet;
};

pair_of_rectangles make_rectangles(const rect_2d &a, const rect_2d &b, std::vector<std::string> &told) {
  pair_of_rectangles made{a, b, {}, {}, false};
  kx_rect_union_2d(&a, &b, &made.both);
  made.meet = kx_rect_intersect_2d(&a, &b, &made.common) == 1;
  told.push_back(made.meet ? "rectangles: something in common" : "rectangles: nothing in common");
  return made;
}

// ---- what there is ----

const corners star = {{12, 24}, {9, 15}, {0, 15}, {7, 9}, {4, 0}, {12, 5}, {20, 0}, {17, 9}, {24, 15}, {15, 15}};
const corners battlements = {{0, 0},   {6, 0},   {12, 6},  {18, 0},  {24, 0},  {24, 20}, {22, 20},
                             {19, 20}, {19, 14}, {16, 14}, {14, 14}, {14, 20}, {12, 24}, {10, 20},
                             {10, 20}, {10, 14}, {5, 14},  {5, 20},  {2, 20},  {0, 20},  {0, 9}};
const corners spiral = {{0, 0},   {24, 0},  {24, 24}, {4, 24}, {4, 8},  {16, 8},  {16, 16}, {10, 16},
                        {10, 12}, {13, 12}, {13, 11}, {7, 11}, {7, 20}, {20, 20}, {20, 4},  {0, 4}};

const corners pentagon = {{3, 0}, {9, 0}, {12, 7}, {6, 12}, {0, 7}},
              pentagon_back = {{3, 0}, {0, 7}, {6, 12}, {12, 7}, {9, 0}};
const corners angle = {{0, 0}, {12, 0}, {12, 5}, {5, 5}, {5, 12}, {0, 12}},
              bow_tie = {{0, 1}, {12, 11}, {12, 1}, {0, 11}};
const corners pentagram = {{3, 0}, {6, 12}, {9, 0}, {0, 7}, {12, 7}}, flat = {{0, 6}, {5, 6}, {12, 6}};
const corners touching = {{0, 0}, {12, 0}, {12, 10}, {6, 0}, {0, 10}};

const corners hexagon = {{3, 1}, {9, 1}, {12, 6}, {9, 11}, {3, 11}, {0, 6}};

struct answers {
  std::vector<raster> rasters;
  std::vector<labelled> polygons;
  std::vector<pair_of_polygons> pairs;
  std::vector<pair_of_rectangles> rectangles;
  std::vector<std::string> told;
};

std::shared_ptr<answers> ask() {
  auto all = std::make_shared<answers>();
  auto &told = all->told;
  all->rasters.push_back(make_raster("star", star, told));
  all->rasters.push_back(make_raster("battlements", battlements, told));
  all->rasters.push_back(make_raster("spiral", spiral, told));
  for (const corners &each : {pentagon, pentagon_back, angle, bow_tie, pentagram, touching, flat})
    all->polygons.push_back(make_labelled(each, told));
  all->pairs.push_back(make_pair({{4, 4}, {9, 1}, {7, 9}}, hexagon, told));
  all->pairs.push_back(make_pair({{9, 1}, {14, 0}, {15, 7}, {12, 6}}, hexagon, told));
  all->pairs.push_back(make_pair({{6, 4}, {15, 5}, {9, 9}}, hexagon, told));
  all->rectangles.push_back(make_rectangles({0, 0, 8, 7}, {4, 3, 14, 11}, told));
  all->rectangles.push_back(make_rectangles({0, 0, 5, 5}, {8, 6, 14, 11}, told));
  all->rectangles.push_back(make_rectangles({0, 0, 14, 11}, {4, 4, 10, 8}, told));
  return all;
}

// ---- drawing ----

constexpr double margin = 28, gap = 8, width = 1382;

// A part of the page and the scale in which a picture stands in it.
struct frame {
  spot origin;
  double unit;

  spot at(const pnt_2d &p) const { return {origin.x + p.x * unit, origin.y - p.y * unit}; }
  std::vector<spot> at(const corners &polygon) const {
    std::vector<spot> found;
    for (const pnt_2d &p : polygon) found.push_back(at(p));
    return found;
  }
  std::vector<spot> at(const rect_2d &r) const {
    return at(corners{{r.x1, r.y1}, {r.x2, r.y1}, {r.x2, r.y2}, {r.x1, r.y2}});
  }
};

void draw(const sheet &page, spot corner, double side, const raster &r) {
  page.box(corner, side, side, cell);
  const double unit = side / 28;
  const frame f{{corner.x + 2 * unit, corner.y + side - 2 * unit}, unit};
  page.polygon(f.at(r.polygon.array), blue, 0.08, 1.4);
  for (const auto &[p, found] : r.points) {
    if (found == where::outside) page.disc(f.at(p), 1.7, {0.72, 0.75, 0.79});
    if (found == where::inside) page.disc(f.at(p), 3.1, green);
    if (found == where::on) page.disc(f.at(p), 3.6, orange);
  }
}

void draw(const sheet &page, spot corner, spot size, const labelled &l) {
  page.box(corner, size.x, size.y, cell);
  const double unit = 9;
  const frame f{{corner.x + (size.x - 12 * unit) / 2, corner.y + 14 + 12 * unit}, unit};
  const std::vector<spot> points = f.at(l.polygon.array);
  page.polygon(points, blue, 0.12, 1.6);
  page.arrow(points[0], points[1], 2.2, orange);
  page.disc(points[0], 3.6, orange);
  for (std::size_t i = 0; i < l.words.size(); ++i)
    page.text({corner.x + size.x / 2, corner.y + 34 + 12 * unit + 16 * static_cast<double>(i)}, l.words[i], 12.5,
              l.words[i] == "meets itself" ? red : ink, i == 0, sheet::align::centre);
}

void words_below(const sheet &page, spot corner, spot size, const std::string &first, const std::string &second) {
  page.text({corner.x + size.x / 2, corner.y + size.y - 28}, first, 12.5, ink, false, sheet::align::centre);
  page.text({corner.x + size.x / 2, corner.y + size.y - 12}, second, 12.5, ink, false, sheet::align::centre);
}

frame pair_frame(spot corner, spot size) {
  const double unit = 9.5;
  return {{corner.x + (size.x - 14 * unit) / 2, corner.y + 14 + 11 * unit}, unit};
}

void draw(const sheet &page, spot corner, spot size, const pair_of_polygons &p) {
  page.box(corner, size.x, size.y, cell);
  const frame f = pair_frame(corner, size);
  page.polygon(f.at(p.b.array), blue, 0.12, 1.6);
  page.polygon(f.at(p.a.array), orange, 0.35, 1.6);
  words_below(page, corner, size, p.words[0], p.words[1]);
}

void draw(const sheet &page, spot corner, spot size, const pair_of_rectangles &r) {
  page.box(corner, size.x, size.y, cell);
  const frame f = pair_frame(corner, size);
  page.polygon(f.at(r.a), orange, 0.12, 1.6);
  page.polygon(f.at(r.b), blue, 0.12, 1.6);
  if (r.meet) page.polygon(f.at(r.common), green, 0.6, 1.6);
  const std::vector<spot> both = f.at(rect_2d{r.both.x1 - 0.4, r.both.y1 - 0.4, r.both.x2 + 0.4, r.both.y2 + 0.4});
  for (std::size_t i = 0; i < both.size(); ++i) page.line(both[i], both[(i + 1) % both.size()], 1.6, ink, true);
  words_below(page, corner, size, "union: dotted", r.meet ? "in common: green" : "nothing in common");
}

// Draws things side by side over the page's width.
template <typename things, typename draw_one>
void row(const things &all, double from, double to, draw_one one) {
  const double each = (to - from + gap) / static_cast<double>(all.size());
  for (std::size_t i = 0; i < all.size(); ++i) one(from + static_cast<double>(i) * each, each - gap, all[i]);
}

void paint(const sheet &page, const answers &all) {
  page.text({margin, 44}, "What the library says about polygons", 22, ink, true);
  const char *const heading = "kx_inpolygon, kx_inpolygonl, kx_inonpolygonl: a raster of points, asked one by one";
  page.text({margin, 68}, heading, 13, pale);
  const std::pair<const char *, color> kinds[] = {{"inside", green}, {"on the boundary", orange}, {"outside", pale}};
  double x = 1080;
  for (const auto &[words, c] : kinds) {
    page.disc({x, 40}, 4, c);
    page.text({x + 11, 44}, words, 13, ink);
    x += words == kinds[1].first ? 142 : 88;
  }

  double y = 84, side = 0;
  row(all.rasters, margin, margin + width, [&](double left, double wide, const raster &r) {
    side = wide;
    draw(page, {left, y}, wide, r);
  });
  y += side + 34;
  page.text({margin, y - 10},
            "kx_self_intersecting_polygon, kx_polygontype, kx_get_poly2d_dir (looks at the first corner only)", 13,
            pale);
  row(all.polygons, margin, margin + width, [&](double left, double wide, const labelled &l) {
    draw(page, {left, y}, {wide, 184}, l);
  });
  y += 184 + 34;
  const double middle = margin + width / 2;
  page.text({margin, y - 10}, "kx_inside_poly, kx_outside_poly: a in orange, b in blue", 13, pale);
  row(all.pairs, margin, middle - gap / 2, [&](double left, double wide, const pair_of_polygons &p) {
    draw(page, {left, y}, {wide, 166}, p);
  });
  page.text({middle + gap / 2, y - 10}, "kx_rect_union_2d, kx_rect_intersect_2d", 13, pale);
  row(all.rectangles, middle + gap / 2, margin + width, [&](double left, double wide, const pair_of_rectangles &r) {
    draw(page, {left, y}, {wide, 166}, r);
  });
}

}  // namespace

plate polygons() {
  const std::shared_ptr<const answers> all = ask();
  return {"polygons", {2 * margin + width, 974}, [all](const sheet &page) { paint(page, *all); }, all->told};
}

}  // namespace kxplates
