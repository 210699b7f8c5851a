#include "geometry_builder.hpp"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "shape_points.hpp"

namespace kxdraw {

namespace {

constexpr int most_copies = 1'000'000;           // of entities in blocks
constexpr std::size_t most_points = 10'000'000;  // of the whole picture
constexpr std::size_t deepest_nesting = 100;
constexpr const char *no_direction = "its extrusion direction has no length";
constexpr const char *too_much = "the drawing grows beyond what one picture can hold";
constexpr double default_fraction = 1e-4;    // of the drawing's longer side, when no tolerance is given
constexpr double smallest_tolerance = 1e-5;  // below it shapes are sampled magnified
constexpr double smallest_factor = 1.0 / (1 << 20);

// The box around points, kept relative to the first of them and magnified by a power of two: the tolerance in the
// library's minimum and maximum, which grows with the values, then stays far below the size of the drawing.
class extents_box {
 public:
  void add(double x, double y) {
    if (empty_) {
      origin_ = {x, y};
      empty_ = false;
    }
    const double dx = (x - origin_.x) / smallest_factor, dy = (y - origin_.y) / smallest_factor;
    low_ = {kx_rmin(dx, low_.x), kx_rmin(dy, low_.y)};
    high_ = {kx_rmax(dx, high_.x), kx_rmax(dy, high_.y)};
  }
  bool empty() const { return empty_; }
  rect_2d box() const {
    return {origin_.x + low_.x * smallest_factor, origin_.y + low_.y * smallest_factor,
            origin_.x + high_.x * smallest_factor, origin_.y + high_.y * smallest_factor};
  }

 private:
  bool empty_ = true;
  pnt_2d origin_{0, 0}, low_{0, 0}, high_{0, 0};
};

// A shape of space as one of the plane and what brings it to where it is seen from above.
struct flat_shape {
  const shape *geometry = nullptr;  // the entity's own, or the changed one
  shape changed;
  matrix transform;
};

// Sees the points of shapes that are given in the world: their lines and curves are seen as those of the seen points.
struct seen_points {
  const space_matrix &transform;

  void see(vertex &at) const {
    const pnt_3d image = transform.apply({at.x, at.y, at.z});
    at = {.x = image.x, .y = image.y};
  }
  void operator()(point_shape &point) const { see(point.at); }
  void operator()(path_shape &path) const {
    for (vertex &at : path.vertices) see(at);
  }
  void operator()(spline_shape &spline) const {
    for (vertex &at : spline.control) see(at);
  }
  template <typename other_shape>
  void operator()(other_shape &) const {}  // lies in a plane of its own
};

// The height of a shape above the plane in whose coordinates it is given.
struct height_of {
  double operator()(const arc_shape &arc) const { return arc.centre.z; }
  double operator()(const ellipse_shape &ellipse) const { return ellipse.centre.z; }
  double operator()(const path_shape &path) const { return path.vertices.empty() ? 0 : path.vertices.front().z; }
  template <typename other_shape>
  double operator()(const other_shape &) const {
    return 0;
  }
};

bool to_entity(const normal_vector &normal, vertex &at) {
  const vector_3d record = as_record(normal);
  pnt_3d point{at.x, at.y, at.z};
  if (kx_wcs_to_ecs(&record, &point, &point) != 0) return false;
  at = {.x = point.x, .y = point.y, .z = point.z};
  return true;
}

// False when the extrusion direction has no length. An ellipse is given in the world, but lies in a plane of its own.
bool flatten(const entity &ent, const space_matrix &where, flat_shape &flat) {
  flat.geometry = &ent.geometry;
  if (!ent.entity_coordinates) {
    flat.changed = ent.geometry;
    flat.geometry = &flat.changed;
    auto *ellipse = std::get_if<ellipse_shape>(&flat.changed);
    if (ellipse == nullptr) {
      std::visit(seen_points{where}, flat.changed);
      return true;
    }
    if (!to_entity(ent.normal, ellipse->centre) || !to_entity(ent.normal, ellipse->axis)) return false;
  }
  space_matrix own;
  if (!own.from_entity(ent.normal)) return false;
  own.then(where);
  flat.transform = own.seen_from_above(std::visit(height_of{}, *flat.geometry));
  return true;
}

// Where a run through the entities stands: within which blocks, how transformed, and what BYBLOCK and layer 0 mean.
struct place {
  space_matrix transform;
  std::vector<std::size_t> blocks;
  std::string layer = "0";
  rgb color;
};

class builder {
 public:
  builder(const drawing &source, library_time &time, const std::function<void(double)> &progress)
      : source_(source), time_(time), progress_(progress) {
    result_.fates.resize(source.entity_count);
    for (const entity &ent : source.entities) result_.fates[ent.index].source = &ent;
    for (const block &b : source.blocks) {
      for (const entity &ent : b.entities) result_.fates[ent.index].source = &ent;
    }
  }

  built_drawing build(double tolerance) {
    result_.tolerance = tolerance;
    if (tolerance == 0) {
      rough_ = true;
      run(source_.entities, place{});
      const rect_2d box = extents_.box();
      const double side = std::max(box.x2 - box.x1, box.y2 - box.y1);
      result_.tolerance = side > 0 ? side * default_fraction : default_fraction;
      rough_ = false;
      extents_ = {};
      copies_ = 0;
    }
    run(source_.entities, place{});
    result_.empty = extents_.empty();
    result_.extents = extents_.box();
    for (fate &f : result_.fates) {
      if (f.copies == 0 && f.fault.empty())
        f.fault = f.source->fault.empty() ? "it is in a block that is not drawn" : f.source->fault;
      if (f.note.empty()) f.note = f.source->note;
    }
    return std::move(result_);
  }

 private:
  void run(const std::vector<entity> &entities, const place &where) {
    for (const entity &ent : entities) {
      if (where.blocks.empty() && !rough_)
        progress_(static_cast<double>(&ent - entities.data()) / static_cast<double>(entities.size()));
      const std::string fault = draw(ent, where);
      if (rough_) continue;
      fate &f = result_.fates[ent.index];
      if (fault.empty()) {
        ++f.copies;
      } else {
        ++f.left_out;
        f.fault = fault;
      }
    }
  }

  // Returns why the entity was not drawn, or nothing.
  std::string draw(const entity &ent, const place &where) {
    if (!ent.fault.empty()) return ent.fault;
    copies_ += where.blocks.empty() ? 0 : 1;
    if (full()) return too_much;
    const std::string layer_name = ent.layer == "0" ? where.layer : ent.layer;
    const layer on = layer_of(layer_name);
    if (on.frozen) return "its layer is frozen";
    if (name_key(layer_name) == "DEFPOINTS") return "its layer, of definition points, is never plotted";
    const auto *insert = std::get_if<insert_shape>(&ent.geometry);
    if (on.off && insert == nullptr) return "its layer is off";  // a block's parts have layers of their own

    place inner = where;
    inner.layer = layer_name;
    inner.color = color_of(ent, where, on);
    if (insert != nullptr) return draw_insert(ent, *insert, inner);
    return draw_shape(ent, inner);
  }

  std::string draw_insert(const entity &ent, const insert_shape &insert, place &inner) {
    const auto found = source_.block_places.find(name_key(insert.block));
    if (found == source_.block_places.end()) return "the file has no block of its name";
    const std::size_t number = found->second;
    if (std::find(inner.blocks.begin(), inner.blocks.end(), number) != inner.blocks.end())
      return "its block contains itself";
    if (inner.blocks.size() == deepest_nesting) return "its block is nested too deeply";
    const block &b = source_.blocks[number];
    if (rough_ && b.entities.empty()) return "";
    const space_matrix outer = inner.transform;
    space_matrix own;
    if (ent.entity_coordinates && !own.from_entity(ent.normal)) return no_direction;
    own.then(outer);
    inner.blocks.push_back(number);
    for (int row = 0; row < insert.rows; ++row) {
      for (int column = 0; column < insert.columns; ++column) {
        if (full()) return too_much;
        bool usable = true;
        inner.transform = time_.measure(call_group::matrices, 6, [&] {
          space_matrix m;
          m.translate(-b.base.x, -b.base.y, -b.base.z);
          usable = m.scale(insert.sx, insert.sy, insert.sz);
          m.translate(column * insert.column_step, row * insert.row_step, 0);
          m.rotate(insert.angle);
          m.translate(insert.at.x, insert.at.y, insert.at.z);
          m.then(own);
          return m;
        });
        if (!usable) return "a scale factor is zero or nearly so";
        ++copies_;
        run(b.entities, inner);
      }
    }
    return "";
  }

  std::string draw_shape(const entity &ent, const place &where) {
    double magnify = 1;
    flat_shape flat;
    double tolerance = result_.tolerance;
    const bool directed = time_.measure(call_group::matrices, 3, [&] {
      if (!flatten(ent, where.transform, flat)) return false;
      const double stretch = flat.transform.stretch();
      if (stretch > 0) tolerance /= stretch;
      return true;
    });
    if (!directed) return no_direction;
    std::vector<point_path> paths;
    if (rough_) {
      owned_list points = rough_points(*flat.geometry, time_);
      if (points.size() > 0) paths.push_back({std::move(points)});
    } else {
      while (tolerance * magnify < smallest_tolerance && magnify < 1e30) magnify /= smallest_factor;
      sampled_shape sampled = sample_shape(*flat.geometry, tolerance, magnify, time_);
      if (!sampled.fault.empty()) return sampled.fault;
      if (!sampled.note.empty()) result_.fates[ent.index].note = sampled.note;
      paths = std::move(sampled.paths);
      if (magnify > 1) {
        matrix reduce;
        for (double left = magnify; left > 1; left *= smallest_factor) reduce.scale(smallest_factor);
        reduce.then(flat.transform);
        flat.transform = reduce;
      }
    }
    return place_paths(ent, paths, flat.transform, where.color);
  }

  std::string place_paths(const entity &ent, const std::vector<point_path> &paths, const matrix &transform,
                          const rgb &color) {
    std::vector<drawn_path> placed;
    bool finite = true;
    for (const point_path &path : paths) {
      placed.push_back({time_.measure(call_group::matrices, 1, [&] { return transform.apply(path.points.get()); }),
                        path.closed, path.filled, color, &ent, result_.fates[ent.index].copies});
      for_each_point(placed.back().points.get(),
                     [&](double x, double y) { finite = finite && std::isfinite(x) && std::isfinite(y); });
    }
    if (!finite) return "its points are not finite";
    for (drawn_path &path : placed) {
      time_.measure(call_group::extents, path.points.size(),
                    [&] { for_each_point(path.points.get(), [&](double x, double y) { extents_.add(x, y); }); });
      if (rough_) continue;
      points_ += static_cast<std::size_t>(path.points.size());
      result_.fates[ent.index].points += static_cast<std::size_t>(path.points.size());
      result_.paths.push_back(std::move(path));
    }
    return "";
  }

  bool full() const { return copies_ > most_copies || points_ > most_points; }

  layer layer_of(const std::string &name) const {
    const auto found = source_.layers.find(name_key(name));
    return found == source_.layers.end() ? layer{} : found->second;
  }

  static rgb color_of(const entity &ent, const place &where, const layer &on) {
    if (ent.true_color >= 0) return true_color(ent.true_color);
    if (ent.color == 0) return where.color;
    return index_color(ent.color > 255 || ent.color < 0 ? on.color : ent.color);
  }

  const drawing &source_;
  library_time &time_;
  const std::function<void(double)> &progress_;
  built_drawing result_;
  extents_box extents_;
  bool rough_ = false;
  int copies_ = 0;
  std::size_t points_ = 0;
};

}  // namespace

built_drawing build_geometry(const drawing &source, double tolerance, library_time &time,
                             const std::function<void(double)> &progress) {
  return builder(source, time, progress).build(tolerance);
}

}  // namespace kxdraw
