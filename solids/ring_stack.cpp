// Bodies as stacks of rings: vertices and faces.
#include "solids/ring_stack.hpp"

namespace {

using kx::ring_directions;
using kx::ring_level;

// A level and the number of its first vertex.
struct numbered {
  ring_level at;
  std::int32_t first;

  std::int32_t vertex(std::int32_t i) const { return at.on_axis ? first : first + i; }
};

// The faces between two levels, the one that comes first on the outline above the other.
bool append_band(kx::solid_builder &parts, const numbered &upper, const numbered &lower,
                 const ring_directions &directions, std::int32_t &face_number) {
  const bool fan = upper.at.on_axis || lower.at.on_axis;
  if (upper.at.on_axis && lower.at.on_axis) return true;
  const std::int32_t spoke = fan && upper.at.z == lower.at.z;
  const std::int32_t attributes[4] = {spoke, 0, spoke, 0};
  for (std::int32_t i = 0; i < directions.sectors(); ++i, ++face_number) {
    const std::int32_t j = directions.after(i);
    const std::int32_t a = upper.vertex(i), b = lower.vertex(i), c = lower.vertex(j), d = upper.vertex(j);
    const bool done = !fan               ? parts.face(face_number, {a, b, c, d})
                      : upper.at.on_axis ? parts.face(face_number, {a, b, c}, attributes)
                                         : parts.face(face_number, {b, d, a}, attributes);
    if (!done) return false;
  }
  return true;
}

}  // namespace

bool kx::append_stack(solid_builder &parts, vec3 center, const ring_level *levels, std::int32_t count,
                      const ring_directions &directions, std::int32_t &face_number) {
  const std::int32_t first = parts.count();
  for (std::int32_t k = 0; k < count; ++k) {
    const ring_level &at = levels[k];
    for (std::int32_t i = 0; i < at.vertices(directions); ++i) {
      const vec2 d = at.on_axis ? vec2{} : directions[i];
      if (!parts.vertex({center.x + at.rx * d.x, center.y + at.ry * d.y, center.z + at.z})) return false;
    }
  }
  numbered upper{levels[0], first};
  for (std::int32_t k = 0; k < count; ++k) {
    const numbered lower = k + 1 < count ? numbered{levels[k + 1], upper.first + upper.at.vertices(directions)}
                                         : numbered{levels[0], first};
    if (!append_band(parts, upper, lower, directions, face_number)) return false;
    upper = lower;
  }
  return true;
}
