// Every code of kx_linerelationship with a pair of segments that has it. Pairs are tried out; the library tells the
// code, the first pair of each code is drawn.
#include <kxgeom.h>

#include <algorithm>
#include <array>
#include <set>

#include "plates.hpp"

namespace kxplates {

namespace {

constexpr double margin = 28, gap = 5;
constexpr spot line_cell{132, 43}, crossing_cell{96, 80};
constexpr double length = 3;  // of segment a

struct example {
  line_2d a, b;
  pnt_2d crossing;
  int code;
};

class collection {
 public:
  // The pair, unless its code has been met before.
  void add(std::vector<example> &group, const line_2d &a, const line_2d &b) {
    example e{a, b, {}, 0};
    e.code = kx_linerelationship(&a, &b, &e.crossing);
    if (met_.insert(e.code).second) group.push_back(e);
  }

 private:
  std::set<int> met_;
};

// ---- what there is ----

struct examples {
  std::array<std::vector<example>, 3> on_line;                  // with a, against a, points and what is left
  std::array<std::array<std::vector<example>, 3>, 3> crossing;  // at a's start, end, inside; the same of b
};

examples collect() {
  examples found;
  collection all;
  const line_2d a{0, 0, length, 0};
  const double places[] = {-1.2, 0, 1, 2, length, length + 1.2};
  for (const double from : places) {
    for (const double to : places) {
      const bool touching = from < 0 ? to >= 0 : from > length ? to <= length : from != to;
      if (touching) all.add(found.on_line[from < to ? 0 : 1], a, {from, 0, to, 0});
    }
  }
  for (const double at : {1.5, 0., length}) {
    all.add(found.on_line[2], {at, 0, at, 0}, a);
    all.add(found.on_line[2], a, {at, 0, at, 0});
  }
  all.add(found.on_line[2], {0, 0, 1.6, 0}, {2, 0, length, 0});
  for (auto &group : found.on_line)
    std::sort(group.begin(), group.end(), [](const example &x, const example &y) { return x.code < y.code; });

  const double places_on_a[] = {0, length, length / 2}, places_on_b[] = {0, 1, 0.5};
  const double headings[][2] = {{-0.9, 1}, {0, 1}, {0.9, 1}, {-0.9, -1}, {0, -1}, {0.9, -1}};
  for (std::size_t i = 0; i < 3; ++i) {
    for (std::size_t j = 0; j < 3; ++j) {
      const double size = places_on_b[j] == 0.5 ? 2.4 : 1.5, back = size * places_on_b[j], ahead = size - back;
      for (const auto &[x, y] : headings) {
        all.add(found.crossing[i][j], a, {places_on_a[i] - back * x, -back * y, places_on_a[i] + ahead * x, ahead * y});
      }
    }
  }
  return found;
}

// ---- drawing ----

void name(const sheet &page, spot corner, const example &e) {
  page.text({corner.x + 6, corner.y + 15}, std::to_string(e.code), 12, ink, true);
}

// On one line: b is drawn a little below a, and what coincides is joined.
void draw_on_line(const sheet &page, spot corner, const example &e) {
  page.box(corner, line_cell.x, line_cell.y, cell);
  name(page, corner, e);
  const auto x = [&](double along) { return corner.x + 44 + (along + 1.0) * 15; };
  const double upper = corner.y + 15, lower = corner.y + 29;
  for (const double end : {e.a.x1, e.a.x2}) {
    if (end == e.b.x1 || end == e.b.x2) page.line({x(end), upper - 6}, {x(end), lower + 6}, 0.9, pale);
  }
  page.arrow({x(e.a.x1), upper}, {x(e.a.x2), upper}, 2, blue);
  page.arrow({x(e.b.x1), lower}, {x(e.b.x2), lower}, 2, orange);
}

void draw_crossing(const sheet &page, spot corner, const example &e) {
  page.box(corner, crossing_cell.x, crossing_cell.y, cell);
  name(page, corner, e);
  const double unit = 14;
  const spot origin{corner.x + crossing_cell.x / 2 + 4 - length / 2 * unit, corner.y + crossing_cell.y / 2 + 4};
  const auto at = [&](double px, double py) { return spot{origin.x + px * unit, origin.y - py * unit}; };
  page.arrow(at(e.a.x1, e.a.y1), at(e.a.x2, e.a.y2), 2, blue);
  page.arrow(at(e.b.x1, e.b.y1), at(e.b.x2, e.b.y2), 2, orange);
  page.ring(at(e.crossing.x, e.crossing.y), 4.5, 1.1, ink);
}

void legend(const sheet &page, double y) {
  page.text({margin, y}, "How segment b lies to segment a", 22, ink, true);
  page.text({margin, y + 24}, "kx_linerelationship: every code, the pair that has it, and the crossing point", 13,
            pale);
  const double x = 1158;
  page.arrow({x, y - 5}, {x + 46, y - 5}, 2, blue);
  page.text({x + 54, y}, "a", 14, blue, true);
  page.arrow({x + 90, y - 5}, {x + 136, y - 5}, 2, orange);
  page.text({x + 144, y}, "b", 14, orange, true);
  page.ring({x + 186, y - 5}, 4.5, 1.1, ink);
  page.text({x + 198, y}, "crossing", 13, ink);
}

void paint(const sheet &page, const examples &found) {
  legend(page, 44);
  const double top = 112;
  const char *const columns[] = {"on one line, with a", "against a", "points; apart"};
  for (std::size_t i = 0; i < 3; ++i) {
    const double x = margin + static_cast<double>(i) * (line_cell.x + gap);
    page.text({x, top}, columns[i], 13, ink);
    double y = top + 10;
    for (const example &e : found.on_line[i]) {
      draw_on_line(page, {x, y}, e);
      y += line_cell.y + gap;
    }
    if (i < 2) continue;
    for (const char *words : {"b is drawn below a,", "thin lines join ends", "that coincide"})
      page.text({x, y += 17}, words, 11.5, pale);
  }

  const char *const on_a[] = {"at a's start", "at a's end", "inside a"};
  const char *const on_b[] = {"at b's start", "at b's end", "inside b"};
  const double block_width = 3 * crossing_cell.x + 2 * gap + 16, block_height = 2 * crossing_cell.y + gap + 12;
  const double left = margin + 3 * (line_cell.x + gap) + 44;
  for (std::size_t i = 0; i < 3; ++i) {
    for (std::size_t j = 0; j < 3; ++j) {
      const spot block{left + static_cast<double>(j) * block_width, top + 10 + static_cast<double>(i) * block_height};
      if (i == 0) page.text({block.x, top}, std::string("crossing ") + on_b[j], 13, ink);
      if (j == 0) {
        const spot beside{block.x - 12, block.y + crossing_cell.y + gap / 2};
        page.text(beside, on_a[i], 13, ink, false, sheet::align::upright);
      }
      spot corner = block;
      for (const example &e : found.crossing[i][j]) {
        draw_crossing(page, corner, e);
        corner.x += crossing_cell.x + gap;
        if (corner.x > block.x + 2.5 * crossing_cell.x) corner = {block.x, corner.y + crossing_cell.y + gap};
      }
    }
  }
}

}  // namespace

plate relationships() {
  const examples found = collect();
  std::string codes = "codes";
  const auto tell = [&](const std::vector<example> &group) {
    for (const example &e : group) codes.append(" ").append(std::to_string(e.code));
  };
  for (const auto &group : found.on_line) tell(group);
  for (const auto &groups : found.crossing)
    for (const auto &group : groups) tell(group);
  return {"relationships", {1438, 658}, [found](const sheet &page) { paint(page, found); }, {codes}};
}

}  // namespace kxplates
