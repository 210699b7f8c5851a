// What the library does with curves: cuts, pieces, fits, interpolation, polygons, lengths, distances and measures.
#include <algorithm>
#include <cmath>
#include <cstdio>

#include "figure.hpp"

namespace kxplates {

namespace {

using told_lines = std::vector<std::string>;

std::string rounded(double value, const char *format = "%.2f") {
  char words[32];
  std::snprintf(words, sizeof words, format, value);
  return words;
}

owned_curve wave() {
  const points control = {{0, 0.4}, {0.6, 6.8}, {3.6, 8}, {5, 0.8}, {8, -1}, {9, 6.4}, {12, 7}, {13, 1.4}};
  return nurbs(control, clamped_knots(control.size(), 3), 3);
}

numbers even_parameters(const curve &c, int count) {
  double from = 0, to = 0;
  check(kx_curve_range(&c, &from, &to));
  numbers t;
  for (int i = 0; i < count; ++i) t.push_back(from + (to - from) * i / (count - 1));
  return t;
}

// ---- cuts ----

template <typename cut_function>
figure cut(figure f, curve &whole, double t, cut_function cut_at, told_lines &told) {
  const owned_curve first = owned(kx_create_curve()), second = owned(kx_create_curve());
  check(cut_at(&whole, t, first.get(), second.get()));
  f.control(points_of(whole.ctrl_pnts));
  f.keys = {{"first part, backwards", blue}, {"second part", orange}};
  points both;
  for (const auto &[part, c] : {std::pair{first.get(), blue}, std::pair{second.get(), orange}}) {
    const points control = points_of(part->ctrl_pnts);
    numbers weights;
    if (ll_get_list_count(part->weights) > 0) {
      ll_set_list_currpntr(part->weights, 0);
      do {
        weights.push_back(0);
        kx_get_rnumber(&weights.back(), static_cast<const rnumber *>(ll_get_list_data(part->weights)));
      } while (ll_set_list_currpntr(part->weights, 2) == 2);
    }
    const owned_curve drawn = bezier(control, weights);
    f.line(control, c, 0.9);
    f.show(*drawn, c, 2.2);
    f.dots(control, c);
    const points some = at(*drawn, even_parameters(*drawn, 25));
    both.insert(both.end(), some.begin(), some.end());
  }
  f.rings({both[0]}, ink);
  // A Bezier curve of any degree, as one with weights, serves every question.
  const owned_curve whole_again =
      whole.curve_type == 85 ? bezier(points_of(whole.ctrl_pnts)) : owned(kx_copy_curve(&whole));
  told.push_back(tell_astray(f.calls, both, *whole_again));
  return f;
}

figure cut_bezier(told_lines &told) {
  const owned_curve c = owned(kx_def_ubezier_curve(list_of(points{{0, 0}, {1, 6}, {6, 8}, {12, 6}, {11, 0}}).get()));
  return cut({"A Bezier curve of degree 4, cut at 0.4", "kx_sub_bezier_curve", {}}, *c, 0.4, kx_sub_bezier_curve, told);
}

figure cut_rational(told_lines &told) {
  const owned_curve c = bezier({{0, 0}, {2, 7}, {8, -5}, {12, 4}}, {1, 3, 2, 1});
  return cut({"A rational Bezier curve, cut at 0.5", "kx_sub_ratbezier_curve: weights 1, 3, 2, 1", {}}, *c, 0.5,
             kx_sub_ratbezier_curve, told);
}

// ---- pieces and fits ----

figure pieces(told_lines &told) {
  figure f{"A B-spline as Bezier curves",
           "kx_bspl_to_bezier_curve",
           {{"first, third, fifth", blue}, {"second, fourth", orange}}};
  const owned_curve c = wave();
  curve *made[8] = {};
  std::int32_t count = 0;
  check(kx_bspl_to_bezier_curve(c.get(), made, 8, &count));
  f.control(points_of(c->ctrl_pnts));
  points all, ends;
  for (std::int32_t i = 0; i < count; ++i) {
    const owned_curve piece = owned(made[i]);
    const points control = points_of(piece->ctrl_pnts), some = at(*piece, even_parameters(*piece, 20));
    const color in = i % 2 == 0 ? blue : orange;
    f.line(control, in, 0.9);
    f.dots(control, in);
    f.show(*piece, in, 2.2);
    all.insert(all.end(), some.begin(), some.end());
    if (i == 0) ends.push_back(control.front());
    ends.push_back(control.back());
  }
  f.rings(ends, ink);
  told.push_back(tell_astray("Bezier pieces", all, *c));
  return f;
}

// Points along a wave, each pushed about.
points noisy_points() {
  points all;
  std::uint32_t seed = 20;
  const auto push = [&seed] {
    seed = seed * 1664525 + 1013904223;
    return 0.4 * (seed / 4294967296.0 - 0.5);
  };
  for (int i = 0; i <= 110; ++i) {
    const double x = 0.11 * i;
    all.push_back({x + 0.3 * push(), 4.4 * std::sin(0.9 * x) * std::exp(-0.04 * x) + push()});
  }
  return all;
}

points spiral_points() {
  points all;
  for (int i = 0; i <= 100; ++i) {
    const double turn = 0.14 * i;
    all.push_back({1.4 * turn * std::cos(turn), turn * std::sin(turn)});
  }
  return all;
}

figure fit(const std::string &what, const points &given, double tolerance, told_lines &told) {
  const owned_list made = owned(ll_create_list());
  check(kx_fit_bezcurve(list_of(given).get(), tolerance, made.get()));
  const auto count = ll_get_list_count(made.get()) / 4;
  const owned_curve c = owned(kx_def_ubezier_curve(made.get()));
  figure f{what + ", fitted within " + rounded(tolerance),
           "kx_fit_bezcurve",
           {{std::to_string(given.size()) + " points", pale}, {std::to_string(count) + " pieces", blue}}};
  const color pale_blue{0.84, 0.90, 0.97};
  f.keys.push_back({"tolerance", pale_blue});
  f.band(polygon_of(*c, 0.002), pale_blue, 2 * tolerance);
  f.dots(given, pale, 1.9);
  f.show(*c, blue);
  f.rings(at(*c, joints(*c)), blue);
  told.push_back(tell_astray("fit within " + rounded(tolerance), given, *c, tolerance * (1 + 1e-9)));
  return f;
}

// ---- interpolation ----

const points stations = {{0, 0}, {0.7, 4.4}, {2.2, 6.6}, {4, 5.6},   {5.6, 1.4},
                         {7, 0}, {8.6, 1},   {11, 6.2},  {12.6, 3.8}};

figure thru_points(told_lines &told) {
  figure f{"Through points, at even parameters", "kx_curve_thru_points", {{"curve", blue}, {"curvature", green}}};
  const owned_curve c = owned(kx_curve_thru_points(list_of(stations).get()));
  told.push_back(tell_astray("through points", stations, *c));
  f.comb(*c, 1);
  f.show(*c, blue);
  f.dots(stations, ink, 3);
  return f;
}

figure thru_npoints(told_lines &told) {
  figure f{"Through points, by chord length", "kx_curve_thru_npoints", {}};
  const std::pair<int, color> all[] = {{1, pale}, {2, green}, {3, blue}, {5, orange}};
  for (const auto &[degree, in] : all) {
    const std::string words = "degree " + std::to_string(degree);
    const owned_curve c =
        owned(kx_curve_thru_npoints(list_of(stations).get(), static_cast<std::int32_t>(stations.size()), degree));
    told.push_back(tell_astray("through points, " + words, stations, *c));
    f.show(*c, in, 1.6);
    f.keys.push_back({words, in});
  }
  f.dots(stations, ink, 3);
  return f;
}

// ---- polygons, lengths, distances ----

figure chords(told_lines &told) {
  figure f{"Polygons within a tolerance of the curve", "kx_curve_chordpnts_2d", {}};
  const std::pair<double, color> all[] = {{0.3, orange}, {0.05, green}, {0.005, blue}};
  double lift = 0;
  for (const auto &[tolerance, in] : all) {
    points control = {{0, 0}, {3.4, 0.2}, {5, 0.4}, {5.6, 3.6}, {6.2, 0.4}, {8, 1.6}, {10, 0}, {13, 0.6}};
    for (pnt_2d &p : control) p.y -= lift;
    lift += 2.6;
    const owned_curve c = nurbs(control, clamped_knots(control.size(), 3), 3);
    const points way = polygon_of(*c, tolerance);
    f.show(*c, {0.78, 0.81, 0.85}, 4);
    f.line(way, in, 1.2);
    f.dots(way, in, 2.4);
    f.keys.push_back({rounded(tolerance, "%g") + ": " + std::to_string(way.size()) + " points", in});
    const owned_curve polygon = nurbs(way, clamped_knots(way.size(), 1), 1);
    told.push_back(
        tell_astray("curve within " + rounded(tolerance, "%g"), at(*c, even_parameters(*c, 500)), *polygon, tolerance));
  }
  return f;
}

figure lengths(told_lines &told) {
  const owned_curve c = wave();
  double from = 0, to = 0, length = 0, error = 0, astray = 0;
  check(kx_curve_range(c.get(), &from, &to));
  check(kx_curve_length(c.get(), from, to, 1e-10, &length, &error));
  figure f{"Marks at equal lengths along a curve",
           "kx_curve_length, kx_curve_atlength_2d",
           {{"length " + rounded(length), blue}}};
  f.show(*c, blue);
  for (int i = 0; i <= static_cast<int>(length); ++i) {
    double t = 0, way[4], there = 0;
    pnt_2d mark{};
    check(kx_curve_atlength_2d(c.get(), from, i, 1e-10, &t, &mark));
    check(kx_curve_derivs_2d(c.get(), t, 1, way));
    check(kx_curve_length(c.get(), from, t, 1e-10, &there, nullptr));
    astray += std::fabs(there - i) <= 1e-8 ? 0 : 1;
    const pnt_2d origin{0, 0}, ahead{way[2], way[3]};
    const double speed = kx_distance(&origin, &ahead), half = i % 5 == 0 ? 0.26 : 0.15;
    const pnt_2d left{-way[3] / speed, way[2] / speed};
    f.line({{mark.x - half * left.x, mark.y - half * left.y}, {mark.x + half * left.x, mark.y + half * left.y}}, ink,
           i % 5 == 0 ? 1.6 : 1);
    if (i % 5 == 0) f.labels.push_back({mark, {18 * left.x, -18 * left.y}, std::to_string(i), ink});
  }
  told.push_back("marks: " + std::to_string(1 + static_cast<int>(length)) + " points, " + rounded(astray, "%.0f") +
                 " astray");
  return f;
}

figure closest(told_lines &told) {
  figure f{"The nearest point of a curve", "kx_curve_closest_2d", {{"given", orange}, {"nearest", blue}}};
  const owned_curve c = wave();
  f.show(*c, blue);
  const points given = {{-1, 5},    {1.9, 2.4}, {2.6, 8},   {4.8, 5},  {5, 0},
                        {6.6, 2.4}, {9.4, 1.6}, {8.6, 6.6}, {11, 3.4}, {13, 6.4}};
  points nearest;
  int astray = 0;
  for (const pnt_2d &p : given) {
    double t = 0, distance = 0, way[4];
    pnt_2d found{};
    check(kx_curve_closest_2d(c.get(), &p, &t, &found, &distance));
    check(kx_curve_derivs_2d(c.get(), t, 1, way));
    const double along = (p.x - found.x) * way[2] + (p.y - found.y) * way[3];
    astray += std::fabs(along) <= 1e-9 ? 0 : 1;
    f.line({p, found}, orange, 1, true);
    nearest.push_back(found);
  }
  f.dots(given, orange, 3);
  f.rings(nearest, blue);
  told.push_back("nearest: " + std::to_string(given.size()) + " points, " + std::to_string(astray) + " astray");
  return f;
}

// ---- measures ----

points rectangle(const pnt_2d &low, const pnt_2d &high) { return {low, {high.x, low.y}, high, {low.x, high.y}, low}; }

figure boxes(told_lines &told) {
  figure f{"The smallest box", "kx_curve_box_2d", {{"of the curve", green}, {"of its control points", pale}}};
  const points control = {{0, 0}, {-3, 6}, {8, 9}, {4, -4}, {14, -1}, {9, 6}};
  const owned_curve c = nurbs(control, clamped_knots(control.size(), 3), 3),
                    polygon = nurbs(control, clamped_knots(control.size(), 1), 1);
  pnt_2d low{}, high{}, lowest{}, highest{};
  check(kx_curve_box_2d(c.get(), &low, &high));
  check(kx_curve_box_2d(polygon.get(), &lowest, &highest));
  f.line(rectangle(lowest, highest), pale, 1.2, true);
  f.control(control);
  f.line(rectangle(low, high), green, 1.4);
  f.show(*c, blue);
  const points all = polygon_of(*c, 1e-6);
  const auto [left, right] = std::minmax_element(all.begin(), all.end(), [](auto &a, auto &b) { return a.x < b.x; });
  const auto [bottom, top] = std::minmax_element(all.begin(), all.end(), [](auto &a, auto &b) { return a.y < b.y; });
  f.rings({*left, *right, *bottom, *top}, blue);
  int astray = 0;
  for (const double off : {left->x - low.x, high.x - right->x, bottom->y - low.y, high.y - top->y})
    astray += off >= -1e-12 && off <= 1e-6 ? 0 : 1;
  told.push_back("box: 4 points, " + std::to_string(astray) + " astray");
  return f;
}

figure evolute(told_lines &told) {
  figure f{"Circles of curvature of an ellipse",
           "kx_curve_curvature_2d",
           {{"ellipse", blue}, {"circles", orange}, {"centres", green}}};
  const double a = 6, b = 4.4, half = std::sqrt(0.5);
  const points control = {{a, 0}, {a, b}, {0, b}, {-a, b}, {-a, 0}, {-a, -b}, {0, -b}, {a, -b}, {a, 0}};
  const owned_curve c = nurbs(control, {0, 0, 1, 1, 2, 2, 3, 3, 4, 4}, 2, {1, half, 1, half, 1, half, 1, half, 1});
  points centres;
  int astray = 0;
  for (const double t : even_parameters(*c, 161)) {
    pnt_2d foot{}, centre{};
    double curvature = 0;
    check(kx_curve_pnt_2d(c.get(), t, &foot));
    check(kx_curve_curvature_2d(c.get(), t, &curvature, &centre));
    const double x = foot.x / a, y = foot.y / b, across = a * a - b * b;
    const pnt_2d textbook{across / a * x * x * x, -across / b * y * y * y};
    astray += kx_distance(&centre, &textbook) <= 1e-9 ? 0 : 1;
    centres.push_back(centre);
  }
  told.push_back("centres: " + std::to_string(centres.size()) + " points, " + std::to_string(astray) + " astray");
  f.show(*c, blue, 2.2);
  f.line(centres, green, 1.4);
  for (const double t : {0., 0.3, 0.55}) {
    double curvature = 0;
    pnt_2d foot{}, centre{};
    check(kx_curve_pnt_2d(c.get(), t, &foot));
    check(kx_curve_curvature_2d(c.get(), t, &curvature, &centre));
    const circle_2d circle{centre.x, centre.y, 1 / curvature};
    const owned_list way = owned(ll_create_list());
    check(kx_circlepnts_2d(&circle, 0.002, way.get()));
    f.line(points_of(way.get()), orange, 1.2);
    f.line({foot, centre}, orange, 0.9, true);
    f.dots({foot, centre}, orange);
  }
  return f;
}

}  // namespace

plate curve_tools() {
  told_lines told;
  std::vector<figure> all = {cut_bezier(told),
                             cut_rational(told),
                             pieces(told),
                             evolute(told),
                             fit("Noisy points", noisy_points(), 0.4, told),
                             fit("A spiral", spiral_points(), 0.02, told),
                             thru_points(told),
                             thru_npoints(told),
                             chords(told),
                             lengths(told),
                             closest(told),
                             boxes(told)};
  return page_of("curve_tools", "What the library does with curves",
                 "Cut, taken to pieces, fitted to points, led through points, measured. Grey: control points. Rings: "
                 "cuts, joints and "
                 "points that were found.",
                 std::move(all), told);
}

}  // namespace kxplates
