#include "shape_points.hpp"

#include <algorithm>
#include <cmath>

namespace kxdraw {

namespace {

constexpr int most_points = 2'000'000;  // of one spline
constexpr int no_memory = 80;

std::string status_text(const char *function, std::int32_t status, const char *meaning) {
  if (status == no_memory) throw std::bad_alloc();
  return std::string(function) + " gives status " + std::to_string(status) + (*meaning == '\0' ? "" : ": ") + meaning;
}

struct shape_sampler {
  double tolerance;
  double magnify;
  library_time &time;
  sampled_shape result;

  void operator()(const std::monostate &) {}
  void operator()(const insert_shape &) {}

  void operator()(const point_shape &point) {
    point_path path;
    time.measure(call_group::points, 1, [&] { add(path.points, point.at); });
    result.paths.push_back(std::move(path));
  }

  void operator()(const path_shape &path) {
    if (path.hidden_edges != 0) return edges(path);
    point_path out{.closed = path.closed && path.vertices.size() > 1, .filled = path.filled};
    time.measure(call_group::arcs, static_cast<std::int64_t>(path.vertices.size()), [&] {
      add(out.points, path.vertices.front());
      for (std::size_t i = 1; i < path.vertices.size(); ++i)
        segment(out.points, path.vertices[i - 1], path.vertices[i]);
      if (out.closed) segment(out.points, path.vertices.back(), path.vertices.front());
    });
    if (result.fault.empty()) result.paths.push_back(std::move(out));
  }

  void operator()(const arc_shape &arc) {
    point_path out{.closed = arc.whole};
    const circle_2d circle{arc.centre.x * magnify, arc.centre.y * magnify, arc.radius * magnify};
    double sweep = std::fmod(arc.end - arc.start, 360);
    if (sweep <= 0) sweep += 360;
    const std::int32_t status = time.measure(call_group::arcs, 1, [&] {
      return arc.whole ? kx_circlepnts_2d(&circle, tolerance * magnify, out.points.get())
                       : kx_arcpnts_2d(&circle, arc.start, sweep, tolerance * magnify, out.points.get());
    });
    keep(std::move(out), arc.whole ? "kx_circlepnts_2d" : "kx_arcpnts_2d", status, "radius not above 0");
  }

  void operator()(const ellipse_shape &shape) {
    const double length = std::sqrt(kx_sumsqrdparms(shape.axis.x, shape.axis.y));
    const ellipse_2d ellipse{
        shape.centre.x * magnify, shape.centre.y * magnify, length * magnify, length * shape.ratio * magnify, 0, 0};
    const double start = kx_degrees(shape.start);
    double sweep = kx_degrees(shape.end - shape.start);
    if (sweep <= 0) sweep = std::fmod(sweep, 360) + 360;
    const bool whole = kx_parmeq(sweep, 360, 1e-9) == 1;
    point_path out{.closed = whole};
    const std::int32_t status = time.measure(call_group::arcs, 1, [&] {
      const double axis = length > 0 ? kx_arctan(shape.axis.x / length, shape.axis.y / length) : 0;
      return whole ? kx_ellipsepnts_2d(&ellipse, axis, tolerance * magnify, out.points.get())
                   : kx_elliptic_arc_2d(&ellipse, axis, start, sweep, tolerance * magnify, out.points.get());
    });
    keep(std::move(out), whole ? "kx_ellipsepnts_2d" : "kx_elliptic_arc_2d", status, "an axis not above 0");
  }

  void operator()(const spline_shape &spline);

 private:
  void add(owned_list &list, const vertex &at) { list.add_point(at.x * magnify, at.y * magnify); }

  // A bulge between two equal points has an arc of no size: straight on.
  void segment(owned_list &list, const vertex &from, const vertex &to) {
    const pnt_2d a{from.x * magnify, from.y * magnify}, b{to.x * magnify, to.y * magnify};
    std::int32_t status = kx_bulgepnts_2d(&a, &b, from.bulge, tolerance * magnify, list.get());
    if (status == 2) status = kx_bulgepnts_2d(&a, &b, 0, tolerance * magnify, list.get());
    if (status != 0) result.fault = status_text("kx_bulgepnts_2d", status, "");
  }

  void edges(const path_shape &face) {
    for (std::size_t i = 0; i < face.vertices.size(); ++i) {
      if ((face.hidden_edges >> i & 1) != 0) continue;
      point_path edge;
      time.measure(call_group::points, 2, [&] {
        add(edge.points, face.vertices[i]);
        add(edge.points, face.vertices[(i + 1) % face.vertices.size()]);
      });
      result.paths.push_back(std::move(edge));
    }
    if (result.paths.empty()) result.fault = "all its edges are marked invisible";
  }

  void keep(point_path path, const char *function, std::int32_t status, const char *meaning) {
    if (status == 0) {
      result.paths.push_back(std::move(path));
    } else {
      result.fault = status_text(function, status, status == 3 ? meaning : "");
    }
  }

  owned_curve spline_curve(const spline_shape &spline, int steps);
};

// ---- splines ----

// How far a point may be from the segment ab: it lies on an ellipse with the foci a and b, and no point of that is
// farther from the segment than the minor semi-axis. Exact halfway along the segment, and 0 everywhere on it.
double deviation(const pnt_2d &a, const pnt_2d &b, const pnt_2d &point) {
  const double way = kx_distance(&a, &point) + kx_distance(&point, &b), chord = kx_distance(&a, &b);
  return std::sqrt(std::fmax(0.0, (way - chord) * (way + chord))) / 2;
}

// The curve sampled at twice the steps per span; its odd points tell how far the chords between the even ones go
// astray.
std::vector<pnt_2d> curve_points(const curve &c) {
  std::vector<pnt_2d> points;
  for_each_point(c.curve_pnts, [&](double x, double y) { points.push_back({x, y}); });
  return points;
}

double largest_deviation(const std::vector<pnt_2d> &fine, std::size_t fine_steps) {
  double largest = 0;
  for (std::size_t span = 0; span + fine_steps < fine.size(); span += fine_steps + 1) {
    for (std::size_t i = span; i + 2 <= span + fine_steps; i += 2)
      largest = std::fmax(largest, deviation(fine[i], fine[i + 2], fine[i + 1]));
  }
  return largest;
}

// The knots as the library takes them: without the first and last, and moved and widened, which leaves the curve the
// same, because it refuses parameters below zero and leaves out spans up to 1e-7. The factor is a power of two.
void add_knots(owned_list &list, const std::vector<double> &knots) {
  if (knots.size() < 3) return;
  const double range = knots.back() - knots.front();
  const double factor = range > 0 ? std::exp2(20 - std::ilogb(range)) : 1;
  for (std::size_t i = 1; i + 1 < knots.size(); ++i) list.add_number((knots[i] - knots.front()) * factor);
}

std::string definer_meaning(const spline_shape &spline, std::int32_t status) {
  switch (status) {
    case 1:
      return std::to_string(spline.control.size()) + " control points are too few for degree " +
             std::to_string(spline.degree);
    case 2:
      return std::to_string(spline.weights.size()) + " weights for " + std::to_string(spline.control.size()) +
             " control points";
    case 3: return "degree " + std::to_string(spline.degree) + " is not 1 to 15";
    default: return "";
  }
}

std::string maker_meaning(const spline_shape &spline, std::int32_t status) {
  switch (status) {
    case 4:
    case 5:
      if (status == 5 && spline.knots.size() >= 3) return "the weight of a point on it is zero";
      return std::to_string(spline.knots.size()) + " knots, " +
             std::to_string(spline.control.size() + static_cast<std::size_t>(spline.degree) + 1) + " are needed";
    default: return "";
  }
}

owned_curve shape_sampler::spline_curve(const spline_shape &spline, int steps) {
  owned_list control, knots, weights;
  owned_curve c(kx_create_curve());
  if (!c) throw std::bad_alloc();
  for (const vertex &at : spline.control) add(control, at);
  add_knots(knots, spline.knots);
  for (const double weight : spline.weights) weights.add_number(weight);
  std::int32_t status = kx_def_nurb_curve2d(control.get(), knots.get(), weights.get(), spline.degree, steps, c.get());
  if (status != 0) {
    result.fault = status_text("kx_def_nurb_curve2d", status, definer_meaning(spline, status).c_str());
    return nullptr;
  }
  const auto spans = static_cast<std::int32_t>(spline.control.size()) - spline.degree;
  status = kx_mk_nurb_curve2d(c.get(), 0, 0, spans, steps);
  if (status != 0) {
    result.fault = status_text("kx_mk_nurb_curve2d", status, maker_meaning(spline, status).c_str());
    return nullptr;
  }
  return c;
}

// The samples at every other fine step. Spans that join share a point; where they do not, a new path begins.
void split_spans(const std::vector<pnt_2d> &fine, std::size_t fine_steps, double gap, std::vector<point_path> &paths) {
  for (std::size_t span = 0; span < fine.size(); span += fine_steps + 1) {
    const bool joined = span > 0 && kx_distance(&fine[span - 1], &fine[span]) <= gap;
    if (!joined) paths.emplace_back();
    for (std::size_t i = joined ? 2 : 0; i <= fine_steps; i += 2)
      paths.back().points.add_point(fine[span + i].x, fine[span + i].y);
  }
}

bool all_finite(const std::vector<pnt_2d> &points) {
  return std::all_of(points.begin(), points.end(),
                     [](const pnt_2d &p) { return std::isfinite(p.x) && std::isfinite(p.y); });
}

// What the library takes but no drawing means.
std::string spline_fault(const spline_shape &spline, const std::vector<pnt_2d> &points) {
  if (!std::is_sorted(spline.knots.begin(), spline.knots.end())) return "its knots are not in order";
  if (spline.knots.size() > spline.control.size() + static_cast<std::size_t>(spline.degree) + 1)
    return "it has more knots than control points and degree allow";
  if (std::any_of(spline.weights.begin(), spline.weights.end(), [](double weight) { return weight < 0; }))
    return "it has a negative weight";
  if (points.empty()) return "its knots leave no span to draw";
  return all_finite(points) ? "" : "its points are not finite";
}

// Takes more steps per span until every point halfway between two samples is close to their chord.
void shape_sampler::operator()(const spline_shape &spline) {
  const double limit = tolerance * magnify;
  int steps = spline.degree < 2 ? 1 : 4;
  while (true) {
    const owned_curve c = time.measure(call_group::splines, 2, [&] { return spline_curve(spline, 2 * steps); });
    if (!c) return;
    const std::vector<pnt_2d> fine = curve_points(*c);
    result.fault = spline_fault(spline, fine);
    if (!result.fault.empty()) return;
    const auto fine_steps = static_cast<std::size_t>(2 * steps);
    const double astray = largest_deviation(fine, fine_steps);
    const double more = std::fmax(2.0 * steps, std::ceil(1.05 * steps * std::sqrt(astray / limit)));
    const bool close = astray <= 0.8 * limit;
    const bool too_many = 2 * more * static_cast<double>(spline.control.size()) > most_points;
    if (!close && !too_many) {
      steps = static_cast<int>(more);
      continue;
    }
    if (!close) result.note = "the tolerance is not reached everywhere";
    time.measure(call_group::points, 1, [&] { split_spans(fine, fine_steps, limit, result.paths); });
    return;
  }
}

// ---- rough points ----

struct rough_outline {
  owned_list points;

  void add(double x, double y) { points.add_point(x, y); }
  void around(const vertex &centre, double radius) {
    add(centre.x - radius, centre.y - radius);
    add(centre.x + radius, centre.y + radius);
    add(centre.x - radius, centre.y + radius);
    add(centre.x + radius, centre.y - radius);
  }

  void operator()(const std::monostate &) {}
  void operator()(const insert_shape &) {}
  void operator()(const point_shape &point) { add(point.at.x, point.at.y); }
  void operator()(const path_shape &path) {
    for (std::size_t i = 0; i < path.vertices.size(); ++i) {
      const vertex &from = path.vertices[i], &to = path.vertices[(i + 1) % path.vertices.size()];
      add(from.x, from.y);
      if (std::abs(from.bulge) <= 1) continue;  // up to a half circle stays close to its chord
      const pnt_2d a{from.x, from.y}, b{to.x, to.y};
      circle_2d circle{};
      double start = 0, sweep = 0;
      if (kx_arc_bulge_2d(&a, &b, from.bulge, &circle, &start, &sweep) == 0) around({circle.x, circle.y}, circle.r);
    }
  }
  void operator()(const arc_shape &arc) { around(arc.centre, arc.radius); }
  void operator()(const ellipse_shape &ellipse) {
    around(ellipse.centre, std::sqrt(kx_sumsqrdparms(ellipse.axis.x, ellipse.axis.y)));
  }
  void operator()(const spline_shape &spline) {
    for (const vertex &at : spline.control) add(at.x, at.y);
  }
};

}  // namespace

sampled_shape sample_shape(const shape &geometry, double tolerance, double magnify, library_time &time) {
  shape_sampler sampler{tolerance, magnify, time, {}};
  std::visit(sampler, geometry);
  return std::move(sampler.result);
}

owned_list rough_points(const shape &geometry, library_time &time) {
  return time.measure(call_group::points, 1, [&] {
    rough_outline outline{};
    std::visit(outline, geometry);
    return std::move(outline.points);
  });
}

}  // namespace kxdraw
