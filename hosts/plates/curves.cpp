// Every kind of curve with its control polygon; the points of the makers are compared with the curve's own.
#include <cmath>

#include "figure.hpp"

namespace kxplates {

namespace {

using told_lines = std::vector<std::string>;

// ---- uniform ----

const points hills = {{0, 1}, {1.2, 7.6}, {4, 8.6}, {5.4, 1}, {8, 0}, {9.6, 7.8}, {12, 7.2}, {13, 1.6}};

points samples(curve &c) {
  check(kx_mk_ucurve(&c, 0.05));
  return points_of(c.curve_pnts);
}

figure uniform_bspline(told_lines &told) {
  figure f{"Uniform cubic B-spline", "kx_def_ubspl_curve, kx_mk_ucurve", {{"curve", blue}, {"curvature", green}}};
  const owned_curve c = owned(kx_def_ubspl_curve(list_of(hills).get()));
  told.push_back(tell_astray("uniform B-spline", samples(*c), *c));
  f.comb(*c, 1.4);
  f.control(hills);
  f.line(points_of(c->curve_pnts), blue);
  f.rings(at(*c, joints(*c)), blue);
  return f;
}

figure listed_bsplines(told_lines &told) {
  figure f{"B-splines of a polygon",
           "kx_bspline_curve, kx_bspline_spep, kx_quad_bspline",
           {{"cubic", blue}, {"end to end", orange}, {"quadratic", green}}};
  const auto count = static_cast<std::int32_t>(hills.size());
  const owned_list given = list_of(hills);
  const points cubic = points_of(owned(kx_bspline_curve(count, given.get(), 3, nullptr)).get());
  told.push_back(tell_astray("B-spline of a list", cubic, *owned(kx_def_ubspl_curve(list_of(hills).get()))));
  f.control(hills);
  f.line(points_of(owned(kx_quad_bspline(count, given.get(), 3, nullptr)).get()), green);
  f.line(points_of(owned(kx_bspline_spep(count, given.get(), 3, nullptr)).get()), orange);
  f.line(cubic, blue);
  return f;
}

figure uniform_bezier(told_lines &told) {
  const points control = {{0, 0},      {0.6, 7}, {3.4, 8}, {5, 4},     {5, 4},      {6.6, 0},
                          {8.6, -1.4}, {9.2, 3}, {9.2, 3}, {9.8, 7.4}, {12.6, 7.2}, {13, 0.6}};
  figure f{
      "Uniform Bezier curve, four points a piece", "kx_def_ubezier_curve", {{"curve", blue}, {"curvature", green}}};
  const owned_curve c = owned(kx_def_ubezier_curve(list_of(control).get()));
  points by_degree;
  for (std::size_t group = 0; group < 3; ++group) {
    points some(21);
    check(kx_beziercurve2d(&control[4 * group].x, 4, 21, &some[0].x));
    by_degree.insert(by_degree.end(), some.begin(), some.end());
  }
  told.push_back(tell_astray("uniform Bezier", by_degree, *c));
  f.comb(*c, 1.4);
  f.control(control);
  f.show(*c, blue);
  f.rings(at(*c, joints(*c)), blue);
  return f;
}

figure uniform_catmull_rom(told_lines &told) {
  figure f{"Uniform Catmull-Rom curve", "kx_def_ucatrom_curve, kx_mk_ucurve", {{"curve", blue}, {"curvature", green}}};
  const owned_curve c = owned(kx_def_ucatrom_curve(list_of(hills).get()));
  told.push_back(tell_astray("uniform Catmull-Rom", samples(*c), *c));
  f.comb(*c, 1.4);
  f.control(hills);
  f.line(points_of(c->curve_pnts), blue);
  f.rings(at(*c, joints(*c)), blue);
  return f;
}

figure tensions(told_lines &told) {
  figure f{"Catmull-Rom curves of several tensions", "kx_catrom_curve", {}};
  const auto count = static_cast<std::int32_t>(hills.size());
  const owned_list given = list_of(hills);
  f.control(hills);
  const std::pair<double, color> all[] = {{0.1, green}, {0.5, blue}, {0.9, orange}, {1.4, red}};
  for (const auto &[tension, c] : all) {
    const points made = points_of(owned(kx_catrom_curve(count, given.get(), 1, tension, nullptr)).get());
    if (tension == 0.5)
      told.push_back(tell_astray("Catmull-Rom of a list", made, *owned(kx_def_ucatrom_curve(list_of(hills).get()))));
    f.line(made, c, 1.6);
    f.keys.push_back({std::to_string(tension).substr(0, 3), c});
  }
  return f;
}

// ---- beta-splines ----

struct shape_of_beta {
  double bias, tension;
  std::string words;
  color c;
};

// Segment by segment: with most values they do not meet.
figure beta_splines(const char *title, const char *calls, const std::vector<shape_of_beta> &shapes, told_lines &told) {
  figure f{title, calls, {}};
  points control = hills;
  for (pnt_2d &p : control) p = {p.x - 6.5, p.y - 4.3};
  f.control(control);
  for (const shape_of_beta &s : shapes) {
    const owned_curve c = owned(kx_def_ubetaspl_curve(list_of(control).get(), s.bias, s.tension));
    const numbers ends = joints(*c);
    double gaps = 0;
    for (std::size_t i = 0; i + 1 < ends.size(); ++i) {
      points way(41);
      check(kx_curve_pnts_2d(c.get(), ends[i], ends[i + 1] - 1e-9, 41, &way[0].x));
      if (i > 0) gaps = std::fmax(gaps, kx_distance(&way.front(), &f.strokes.back().way.back()));
      f.line(way, s.c, 1.6);
    }
    told.push_back(std::string("beta-spline ") + s.words + (gaps < 1e-7 ? ": without gaps" : ": with gaps"));
    f.keys.push_back({s.words, s.c});
  }
  return f;
}

// ---- knots and weights ----

figure repeated_knots(told_lines &told) {
  figure f{"Cubic B-spline, an inner knot repeated", "kx_def_nubspl_curve, kx_mk_nubspline", {}};
  const points control = {{0, 0}, {1, 7}, {4, 8.4}, {6.6, 7.2}, {8, -0.6}, {12, 0}, {13, 7}};
  f.control(control);
  const std::pair<numbers, color> all[] = {{{1, 2, 3}, green}, {{1, 2, 2}, blue}, {{2, 2, 2}, orange}};
  const char *const words[] = {"1, 2, 3", "1, 2, 2", "2, 2, 2"};
  for (std::size_t i = 0; i < 3; ++i) {
    const owned_curve c = nurbs(control, clamped_knots(control.size(), 3, all[i].first), 3);
    check(kx_mk_nubspline(c.get(), 0, 0, static_cast<std::int32_t>(control.size()) - 3, 24));
    const points made = points_of(c->curve_pnts);
    told.push_back(tell_astray(std::string("B-spline with the knots ") + words[i], made, *c));
    f.line(made, all[i].second);
    f.rings(at(*c, joints(*c)), all[i].second);
    f.keys.push_back({words[i], all[i].second});
  }
  return f;
}

const points square = {{1, 0}, {1, 1}, {0, 1}, {-1, 1}, {-1, 0}, {-1, -1}, {0, -1}, {1, -1}, {1, 0}};

figure circle(told_lines &told) {
  figure f{"A circle as NURBS; weights w vary", "kx_def_nurb_curve, kx_mk_nurb_curve", {}};
  f.control(square);
  struct variation {
    double weight;
    const char *words;
    color c;
  };
  for (const variation &v : {variation{0.25, "0.25", green}, {std::sqrt(0.5), "√½: circle", blue}, {2, "2", orange}}) {
    numbers weights;
    for (std::size_t i = 0; i < square.size(); ++i) weights.push_back(i % 2 == 1 ? v.weight : 1);
    const owned_curve c = nurbs(square, {0, 0, 1, 1, 2, 2, 3, 3, 4, 4}, 2, weights);
    check(kx_mk_nurb_curve(c.get(), 0, 0, static_cast<std::int32_t>(square.size()) - 2, 30));
    const points made = points_of(c->curve_pnts);
    told.push_back(tell_astray(std::string("NURBS of weight ") + v.words, made, *c));
    f.line(made, v.c, v.c.blue == blue.blue ? 2.2 : 1.4);
    f.keys.push_back({v.words, v.c});
    if (v.c.blue != blue.blue) continue;
    const pnt_2d centre{0, 0};
    int off = 0;
    for (const pnt_2d &p : made) off += std::fabs(kx_distance(&p, &centre) - 1) <= 1e-14 ? 0 : 1;
    told.push_back("circle: " + std::to_string(made.size()) + " points, " + std::to_string(off) + " astray");
  }
  for (std::size_t i = 0; i + 1 < square.size(); ++i)
    f.labels.push_back({square[i], {square[i].x * 14, -square[i].y * 13}, i % 2 == 1 ? "w" : "1", ink});
  f.line({{-1.15, -1.13}, {-1.15, -1.13}}, cell, 0.1);  // room for the labels
  f.line({{1.15, 1.13}, {1.15, 1.13}}, cell, 0.1);
  return f;
}

figure weighted_nurbs(told_lines &told) {
  figure f{"Cubic NURBS, the weight of its top point", "kx_def_nurb_curve, kx_mk_nurb_curve", {}};
  const points arch = {{0, 0}, {2.6, 0}, {6, 7}, {9.4, 0}, {12, 0}};
  f.control(arch);
  const std::pair<const char *, color> all[] = {{"0.1", green}, {"0.5", blue}, {"2", orange}, {"10", red}};
  for (const auto &[words, c] : all) {
    const owned_curve made = nurbs(arch, clamped_knots(arch.size(), 3), 3, {1, 1, std::stod(words), 1, 1});
    check(kx_mk_nurb_curve(made.get(), 0, 0, 2, 40));
    const points some = points_of(made->curve_pnts);
    told.push_back(tell_astray(std::string("NURBS of top weight ") + words, some, *made));
    f.line(some, c);
    f.keys.push_back({words, c});
  }
  return f;
}

// ---- bezier ----

figure high_degree(told_lines &told) {
  figure f{
      "Bezier curve of degree 11", "kx_bezier_curve, kx_def_ratbezier_curve", {{"curve", blue}, {"curvature", green}}};
  points control;  // a spiral
  for (int i = 0; i < 12; ++i)
    control.push_back({(2 + 0.5 * i) * 1.3 * std::cos(0.9 * i), (2 + 0.5 * i) * std::sin(0.9 * i)});
  const owned_curve c = bezier(control);
  std::int32_t count = 101;
  const points made = points_of(owned(kx_bezier_curve(list_of(control).get(), 12, &count)).get());
  told.push_back(tell_astray("Bezier of degree 11", made, *c));
  f.comb(*c, 1.4);
  f.control(control);
  f.line(made, blue);
  return f;
}

figure conics(told_lines &told) {
  figure f{"Rational Bezier curves of degree 2: conics", "kx_def_ratbezier_curve, kx_mk_ratbezier_curve", {}};
  const points control = {{0, 0}, {5, 8}, {12, 1}};
  f.control(control);
  struct conic {
    double weight;
    const char *words;
    color c;
  };
  for (const conic &k : {conic{0.4, "0.4 ellipse", green}, {1, "1 parabola", blue}, {3, "3 hyperbola", orange}}) {
    const owned_curve c = bezier(control, {1, k.weight, 1});
    check(kx_mk_ratbezier_curve(c.get(), 0.01));
    const points made = points_of(c->curve_pnts);
    told.push_back(tell_astray(std::string("conic ") + k.words, made, *c));
    f.line(made, k.c);
    f.keys.push_back({k.words, k.c});
  }
  return f;
}

}  // namespace

plate curves() {
  told_lines told;
  const double half_root = std::sqrt(0.75);
  std::vector<figure> all = {
      uniform_bspline(told),
      listed_bsplines(told),
      uniform_bezier(told),
      uniform_catmull_rom(told),
      tensions(told),
      beta_splines("Beta-splines that close: 4 b1² + 2 b2 = 3", "kx_def_ubetaspl_curve: bias, tension",
                   {{half_root, 0, "0.87, 0", blue}, {0.5, 1, "0.5, 1", orange}, {0.1, 1.48, "0.1, 1.48", green}},
                   told),
      beta_splines("Beta-splines of other values: they part", "kx_def_ubetaspl_curve: bias, tension",
                   {{1, 0, "1, 0", blue}, {2, 0, "2, 0", orange}, {1, 1, "1, 1", green}}, told),
      repeated_knots(told),
      circle(told),
      weighted_nurbs(told),
      high_degree(told),
      conics(told),
  };
  return page_of(
      "curves", "Every kind of curve",
      "Grey: control points. Rings: where one piece ends and the next begins. Combs: as long as the curve is "
      "bent there, on its outer side.",
      std::move(all), told);
}

}  // namespace kxplates
