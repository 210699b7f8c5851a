#include "shape_points.hpp"

#include <algorithm>
#include <cmath>

namespace kxdraw {

namespace {

constexpr int too_many_points = 9, no_memory = 80;

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

  owned_curve spline_curve(const spline_shape &spline);
};

// ---- splines ----

// A spline may jump where a knot stands more than degree times: there it ends, and another one begins.
std::vector<spline_shape> unbroken_parts(const spline_shape &spline) {
  const std::size_t order = static_cast<std::size_t>(std::clamp(spline.degree, 0, 15)) + 1,
                    count = spline.control.size();
  if (order < 2 || spline.knots.size() != count + order || spline.weights.size() != count) return {spline};
  const auto part = [](const auto &all, std::size_t from, std::size_t to) {
    const auto at = [&](std::size_t i) { return all.begin() + static_cast<std::ptrdiff_t>(i); };
    return std::decay_t<decltype(all)>(at(from), at(to));
  };
  std::vector<spline_shape> parts;
  std::size_t begin = 0;
  for (std::size_t i = 1; i <= count; ++i) {
    if (i < count && spline.knots[i] < spline.knots[i + order - 1]) continue;
    if (i - begin >= order) {
      parts.push_back({.degree = spline.degree,
                       .control = part(spline.control, begin, i),
                       .weights = part(spline.weights, begin, i),
                       .knots = part(spline.knots, begin, i + order)});
    }
    begin = i;
  }
  return parts.empty() ? std::vector{spline} : parts;
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

std::string sampler_meaning(const spline_shape &spline, std::int32_t status) {
  const std::size_t needed = spline.control.size() + static_cast<std::size_t>(spline.degree) + 1;
  switch (status) {
    case 4:
      if (!std::is_sorted(spline.knots.begin(), spline.knots.end())) return "its knots are not in order";
      if (spline.knots.size() >= needed) return "its knots leave no span to draw";
      return std::to_string(spline.knots.size()) + " knots, " + std::to_string(needed) + " are needed";
    case 5: return "a control point is too far away";
    case 6: return "a weight is not above zero";
    default: return "";
  }
}

owned_curve shape_sampler::spline_curve(const spline_shape &spline) {
  owned_list control, knots, weights;
  owned_curve c(kx_create_curve());
  if (!c) throw std::bad_alloc();
  for (const vertex &at : spline.control) add(control, at);
  for (std::size_t i = 1; i + 1 < spline.knots.size(); ++i) knots.add_number(spline.knots[i]);
  for (const double weight : spline.weights) weights.add_number(weight);
  const std::int32_t status = kx_def_nurb_curve2d(control.get(), knots.get(), weights.get(), spline.degree, 0, c.get());
  if (status == 0) return c;
  result.fault = status_text("kx_def_nurb_curve2d", status, definer_meaning(spline, status).c_str());
  return nullptr;
}

// Whether a curve begins where a path ends.
bool continues(const curve &c, const point_path &path, double gap) {
  double from = 0, to = 0;
  pnt_2d begin{}, end{};
  std::int32_t seqnr = 0;
  if (kx_curve_range(&c, &from, &to) != 0 || kx_curve_pnt_2d(&c, from, &begin) != 0) return false;
  kx_get_poly_2d(&seqnr, &end.x, &end.y, static_cast<const poly_2d *>(ll_get_list_data(path.points.get())));
  return kx_distance(&begin, &end) <= gap;
}

// A tolerance too fine for the library's largest number of points is made coarser.
void shape_sampler::operator()(const spline_shape &spline) {
  for (const spline_shape &part : unbroken_parts(spline)) {
    const owned_curve c = time.measure(call_group::splines, 1, [&] { return spline_curve(part); });
    if (!c) return;
    if (part.knots.size() > part.control.size() + static_cast<std::size_t>(part.degree) + 1) {
      result.fault = "it has more knots than control points and degree allow";
      return;
    }
    double chord = tolerance * magnify;
    if (result.paths.empty() || !continues(*c, result.paths.back(), chord)) result.paths.emplace_back();
    const auto sample = [&] { return kx_curve_chordpnts_2d(c.get(), chord, result.paths.back().points.get()); };
    std::int32_t status = time.measure(call_group::splines, 1, sample);
    while (status == too_many_points && std::isfinite(chord)) {
      chord *= 4;
      result.note = "the tolerance is not reached everywhere";
      status = time.measure(call_group::splines, 1, sample);
    }
    if (status == 0) continue;
    result.fault = status_text("kx_curve_chordpnts_2d", status, sampler_meaning(part, status).c_str());
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
