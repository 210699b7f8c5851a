#include "figure.hpp"

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <utility>

namespace kxplates {

// ---- lists and curves ----

owned_list owned(list_hdr *list) {
  if (list == nullptr) throw std::runtime_error("no list");
  return owned_list(list);
}

owned_curve owned(curve *c) {
  if (c == nullptr) throw std::runtime_error("no curve");
  return owned_curve(c);
}

void check(std::int32_t status) {
  if (status != 0) throw std::runtime_error("a curve function gives status " + std::to_string(status));
}

owned_list list_of(const points &all) {
  return owned(kx_pnt2d_array_to_list(all.data(), static_cast<std::int32_t>(all.size()), KX_POLY_2D, 0, 1));
}

owned_list list_of(const numbers &all) {
  owned_list list = owned(ll_create_list());
  for (const double value : all) {
    rnumber *number = kx_create_rnumber();
    if (number == nullptr) throw std::runtime_error("no number");
    kx_set_rnumber(value, number);
    if (ll_add_list_item(list.get(), 1, number, KX_RNUMBER) != 1) throw std::runtime_error("no item");
  }
  return list;
}

points points_of(list_hdr *list) {
  std::int32_t count = ll_get_list_count(list);
  points all(static_cast<std::size_t>(count));
  kx_get_xypolyheap(list, all.data(), &count);
  return all;
}

owned_curve bezier(const points &control, const numbers &weights) {
  const owned_list c = list_of(control), w = list_of(weights.empty() ? numbers(control.size(), 1) : weights);
  return owned(kx_def_ratbezier_curve(c.get(), w.get()));
}

owned_curve nurbs(const points &control, const numbers &knots, int degree, const numbers &weights) {
  const owned_list c = list_of(control), k = list_of(knots);
  if (weights.empty()) return owned(kx_def_nubspl_curve(c.get(), k.get(), degree, 0));
  return owned(kx_def_nurb_curve(c.get(), k.get(), list_of(weights).get(), degree, 0));
}

numbers clamped_knots(std::size_t count, int degree, const numbers &inner) {
  const auto order = static_cast<std::size_t>(degree);
  numbers between = inner;
  for (std::size_t i = 1; inner.empty() && i < count - order; ++i) between.push_back(static_cast<double>(i));
  numbers knots(order, 0);  // the library leaves out the textbook's first and last knot
  knots.insert(knots.end(), between.begin(), between.end());
  knots.insert(knots.end(), order, static_cast<double>(count - order));
  return knots;
}

numbers joints(const curve &c) {
  double from = 0, to = 0;
  check(kx_curve_range(&c, &from, &to));
  numbers found{from};
  if (c.curve_type < 93) {
    while (found.back() + 1 < to) found.push_back(found.back() + 1);
  } else if (ll_get_list_count(c.knots) > 0) {
    ll_set_list_currpntr(c.knots, 0);
    do {
      double knot = 0;
      kx_get_rnumber(&knot, static_cast<const rnumber *>(ll_get_list_data(c.knots)));
      if (knot > found.back() && knot < to) found.push_back(knot);
    } while (ll_set_list_currpntr(c.knots, 2) == 2);
  }
  found.push_back(to);
  return found;
}

points at(const curve &c, const numbers &parameters) {
  points found(parameters.size());
  numbers xy(2 * parameters.size());
  check(kx_curve_pntsat_2d(&c, parameters.data(), static_cast<std::int32_t>(parameters.size()), xy.data()));
  for (std::size_t i = 0; i < found.size(); ++i) found[i] = {xy[2 * i], xy[2 * i + 1]};
  return found;
}

points polygon_of(const curve &c, double tolerance) {
  const owned_list list = owned(ll_create_list());
  check(kx_curve_chordpnts_2d(&c, tolerance, list.get()));
  return points_of(list.get());
}

std::string tell_astray(const std::string &name, const points &all, const curve &c, double allowed) {
  int astray = 0;
  for (const pnt_2d &p : all) {
    double distance = 0;
    check(kx_curve_closest_2d(&c, &p, nullptr, nullptr, &distance));
    if (!(distance <= allowed)) ++astray;
  }
  return name + ": " + std::to_string(all.size()) + " points, " + std::to_string(astray) + " astray";
}

// ---- what is in a picture ----

void figure::line(const points &way, color c, double width, bool dashed) {
  strokes.push_back({way, c, width, dashed, false});
}

void figure::band(const points &way, color c, double width) { strokes.push_back({way, c, width, false, true}); }

void figure::dots(const points &all, color c, double radius) {
  for (const pnt_2d &p : all) marks.push_back({p, radius, c, false});
}

void figure::rings(const points &all, color c) {
  for (const pnt_2d &p : all) marks.push_back({p, 3.4, c, true});
}

void figure::control(const points &polygon, color c) {
  line(polygon, c, 0.9);
  dots(polygon, c, 2.4);
}

void figure::show(const curve &c, color ink_color, double width) { line(polygon_of(c, 0.002), ink_color, width); }

void figure::comb(const curve &c, double longest) {
  constexpr int to_tooth = 5;
  constexpr double inside = 1e-9;  // at a joint the tooth is that of the piece
  std::vector<points> ways;        // of each piece: foot, centre and how bent
  numbers bends;
  double most = 0;
  const numbers ends = joints(c);
  const std::size_t pieces = ends.size() - 1, steps = to_tooth * std::max<std::size_t>(12, 60 / pieces);
  for (std::size_t piece = 0; piece < pieces; ++piece) {
    for (std::size_t i = 0; i <= steps; ++i) {
      const double share = std::clamp(static_cast<double>(i) / static_cast<double>(steps), inside, 1 - inside);
      const double t = ends[piece] + (ends[piece + 1] - ends[piece]) * share;
      double curvature = 0;
      pnt_2d foot{}, centre{};
      check(kx_curve_pnt_2d(&c, t, &foot));
      check(kx_curve_curvature_2d(&c, t, &curvature, &centre));
      ways.push_back({foot, centre});
      bends.push_back(std::fabs(curvature));
      most = std::fmax(most, bends.back());
    }
  }
  const color teeth_color{0.62, 0.80, 0.72};
  for (std::size_t i = 0; i < ways.size(); ++i) {
    const pnt_2d foot = ways[i][0], centre = ways[i][1];
    const double radius = kx_distance(&foot, &centre);
    const double out = radius > 0 && std::isfinite(radius) ? longest * bends[i] / most / radius : 0;
    ways[i][1] = {foot.x + out * (foot.x - centre.x), foot.y + out * (foot.y - centre.y)};
    if (i % (steps + 1) % to_tooth == 0) line(ways[i], teeth_color, 0.8);
  }
  for (std::size_t first = 0; first < ways.size(); first += steps + 1) {
    points envelope;
    for (std::size_t i = first; i <= first + steps; ++i) envelope.push_back(ways[i][1]);
    line(envelope, green, 1);
  }
}

// ---- drawing ----

namespace {

constexpr double margin = 28, gap = 8, page_width = 1438, top = 84;
constexpr std::size_t columns = 4;
constexpr spot cell_size{(page_width - 2 * margin + gap) / columns - gap, 312};
constexpr double band_above = 50, band_below = 30, air = 16;

rect_2d extent_of(const figure &f) {
  points all;
  for (const figure::stroke &s : f.strokes) all.insert(all.end(), s.way.begin(), s.way.end());
  for (const figure::mark &m : f.marks) all.push_back(m.at);
  const auto [left, right] =
      std::minmax_element(all.begin(), all.end(), [](const pnt_2d &a, const pnt_2d &b) { return a.x < b.x; });
  const auto [low, high] =
      std::minmax_element(all.begin(), all.end(), [](const pnt_2d &a, const pnt_2d &b) { return a.y < b.y; });
  return {left->x, low->y, right->x, high->y};
}

void draw(const sheet &page, spot corner, const figure &f) {
  page.box(corner, cell_size.x, cell_size.y, cell);
  page.text({corner.x + 10, corner.y + 20}, f.title, 13, ink, true);
  page.text({corner.x + 10, corner.y + 37}, f.calls, 11.5, pale);
  const double slot = (cell_size.x - 20) / static_cast<double>(std::max<std::size_t>(f.keys.size(), 1));
  for (std::size_t i = 0; i < f.keys.size(); ++i) {
    const spot from{corner.x + 10 + slot * static_cast<double>(i), corner.y + cell_size.y - 14};
    page.line(from, {from.x + 12, from.y}, 2.2, f.keys[i].c);
    page.text({from.x + 18, from.y + 4}, f.keys[i].words, 11, ink);
  }

  const rect_2d extent = extent_of(f);
  const double width = cell_size.x - 2 * air, height = cell_size.y - band_above - band_below - air;
  const double unit = std::min(width / (extent.x2 - extent.x1), height / (extent.y2 - extent.y1));
  const spot middle{corner.x + cell_size.x / 2, corner.y + band_above + air / 2 + height / 2};
  const auto place = [&](const pnt_2d &p) {
    return spot{middle.x + (p.x - (extent.x1 + extent.x2) / 2) * unit,
                middle.y - (p.y - (extent.y1 + extent.y2) / 2) * unit};
  };
  for (const figure::stroke &s : f.strokes) {
    for (std::size_t i = 1; i < s.way.size(); ++i)
      page.line(place(s.way[i - 1]), place(s.way[i]), s.to_scale ? s.width * unit : s.width, s.c, s.dashed);
  }
  for (const figure::mark &m : f.marks) {
    page.disc(place(m.at), m.radius, m.open ? paper : m.c);
    if (m.open) page.ring(place(m.at), m.radius, 1.3, m.c);
  }
  for (const figure::label &l : f.labels) {
    const spot p = place(l.at);
    page.text({p.x + l.shift.x, p.y + l.shift.y + 4}, l.words, 11, l.c, false, sheet::align::centre);
  }
}

}  // namespace

plate page_of(const std::string &name, const std::string &title, const std::string &words, std::vector<figure> figures,
              std::vector<std::string> told) {
  const std::size_t rows = (figures.size() + columns - 1) / columns;
  const double page_height = top + static_cast<double>(rows) * (cell_size.y + gap) - gap + margin;
  const auto paint = [title, words, all = std::move(figures)](const sheet &page) {
    page.text({margin, 44}, title, 22, ink, true);
    page.text({margin, 68}, words, 13, pale);
    for (std::size_t i = 0; i < all.size(); ++i) {
      const std::size_t column = i % columns, row = i / columns;
      draw(page,
           {margin + static_cast<double>(column) * (cell_size.x + gap),
            top + static_cast<double>(row) * (cell_size.y + gap)},
           all[i]);
    }
  };
  return {name, {page_width, page_height}, paint, std::move(told)};
}

}  // namespace kxplates
