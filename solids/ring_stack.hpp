// Bodies as stacks of rings about the z axis: one generator for balls, cones, conic surfaces and bodies of revolution.
#pragma once

#include <cstdint>

#include "geometry/chords.hpp"
#include "records/vector.hpp"
#include "runtime/memory.hpp"
#include "solids/whole_body.hpp"

namespace kx {

// In which directions from the axis the vertices of every ring stand.
class ring_directions {
 public:
  // Equal sectors of a sweep that begins at start_deg. A whole turn ends in the vertices that it began with, any other
  // in vertices of its own.
  explicit ring_directions(std::int32_t sectors, double start_deg = 0.0, double sweep_deg = full_turn)
      : sectors_(sectors), whole_(sweep_deg == full_turn), points_(std::int64_t{sectors} + 1) {
    if (!points_) return;
    for (std::int32_t i = 0; i < count(); ++i) points_[i] = direction_at(start_deg + sweep_deg * i / sectors);
  }

  // False when the heap had no room.
  explicit operator bool() const { return static_cast<bool>(points_); }
  std::int32_t sectors() const { return sectors_; }
  std::int32_t count() const { return whole_ ? sectors_ : sectors_ + 1; }
  vec2 operator[](std::int32_t i) const { return points_[i]; }
  // The place of the vertex that ends sector i.
  std::int32_t after(std::int32_t i) const { return whole_ && i + 1 == sectors_ ? 0 : i + 1; }

 private:
  std::int32_t sectors_;
  bool whole_;
  scratch<vec2> points_;
};

// One corner of the outline that goes about the axis: an ellipse at a height above the centre, or a single vertex on
// the axis.
struct ring_level {
  double rx, ry, z;
  bool on_axis;

  static ring_level ring(double rx, double ry, double z) { return {rx, ry, z, false}; }
  static ring_level apex(double z) { return {0.0, 0.0, z, true}; }
  std::int32_t vertices(const ring_directions &directions) const { return on_axis ? 1 : directions.count(); }
};

// Appends the vertices of a stack, level by level, and the faces from each level to the next and from the last to the
// first, numbered on from face_number. There are none between two levels on the axis: those begin and end a piece. The
// body is to the right of the outline as it is drawn with the axis on the left: its outside goes down, its inside up.
// Between two rings the faces have four corners, between a ring and an apex three; those of a flat disc have the
// attribute 1 on the edges to its centre. False after a memory message, with what there is by then appended.
bool append_stack(solid_builder &parts, vec3 center, const ring_level *levels, std::int32_t count,
                  const ring_directions &directions, std::int32_t &face_number);

struct ring_plan {
  std::int64_t rings;
  std::int32_t apexes;
  std::int64_t sectors;

  std::int64_t vertices() const { return rings * sectors + apexes; }
};

// A primitive that is a stack of whole rings. `values` are those of its record but for centre and axis; fill(levels)
// writes the rings and apexes of the plan.
template <class T, class Fill>
solid *build_rings(const primitive_kind &kind, const ring_plan &plan, const pnt_3d *center,
                   const vector_3d *orientation, solid *given, const T &values, Fill fill) {
  if (center == nullptr || plan.vertices() > KX_SOLID_VERTICES_MOST) return nullptr;
  const ring_directions directions(static_cast<std::int32_t>(plan.sectors));
  const std::int32_t count = static_cast<std::int32_t>(plan.rings) + plan.apexes;
  const scratch<ring_level> levels(count);
  if (!directions || !levels) {
    report_no_memory(kind.builder);
    return nullptr;
  }
  fill(levels.data());
  return build_whole(kind, plan.vertices(), center, orientation, given, values, [&](solid_builder &parts, vec3 at) {
    std::int32_t face_number = 0;
    return append_stack(parts, at, levels.data(), count, directions, face_number);
  });
}

}  // namespace kx
