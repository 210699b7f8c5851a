// A polygon moved along the z axis.
#pragma once

#include <cstdint>

#include "solids/flat_polygon.hpp"
#include "solids/whole_body.hpp"

namespace kx {

// Top and bottom, half the height above and below the centre, and a side of four corners for each edge. The top ring
// comes first and is moved aside by `shift`. The polygon is counter-clockwise and neither crosses nor touches itself.
// Otherwise as build_whole.
template <class T>
solid *build_extrusion(const primitive_kind &kind, const vec2 *points, std::int32_t n, double height, vec2 shift,
                       const pnt_3d *center, const vector_3d *orientation, solid *given, const T &values) {
  const std::int64_t vertices = 2 * std::int64_t{n};
  if (center == nullptr || vertices > KX_SOLID_VERTICES_MOST) return nullptr;
  const flat_polygon end(points, n);
  if (!end) {
    report_no_memory(kind.builder);
    return nullptr;
  }
  return build_whole(kind, vertices, center, orientation, given, values, [&](solid_builder &parts, vec3 at) {
    const double half = 0.5 * height;
    for (std::int32_t i = 0; i < n; ++i) {
      const vec2 p = points[i] + shift;
      if (!parts.vertex(at + vec3{p.x, p.y, half})) return false;
    }
    for (std::int32_t i = 0; i < n; ++i) {
      if (!parts.vertex(at + vec3{points[i].x, points[i].y, -half})) return false;
    }
    std::int32_t face_number = 0;
    if (!end.append(parts, face_number, false, [](std::int32_t i) { return i; })) return false;
    for (std::int32_t i = 0; i < n; ++i, ++face_number) {
      const std::int32_t j = i + 1 < n ? i + 1 : 0;
      if (!parts.face(face_number, {i, n + i, n + j, j})) return false;
    }
    return end.append(parts, face_number, true, [n](std::int32_t i) { return n + i; });
  });
}

}  // namespace kx
