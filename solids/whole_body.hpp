// Primitives whose counts and extents are those of their vertices and faces.
#pragma once

#include "solids/primitive_frame.hpp"

namespace kx {

// Builds a primitive whose record has `values`, but for the centre and the axis; append(parts, center) adds vertices
// and faces until it returns false. Answers as build_primitive.
template <class T, class Append>
solid *build_whole(const primitive_kind &kind, std::int64_t vertices, const pnt_3d *center,
                   const vector_3d *orientation, solid *given, T values, Append append) {
  if constexpr (requires { values.axis_z; }) values.axis_z = 1.0;
  return build_primitive<T>(kind, vertices, center, orientation, given,
                            [&](solid &body, T &record, solid_builder &parts) {
                              values.center = record.center;
                              record = values;
                              const bool all = append(parts, value(record.center));
                              body.face_count = body.face_list->count;
                              body.vertex_count = parts.count();
                              start_extents(body);
                              for (std::int32_t i = 0; i < parts.count(); ++i) hold(body, parts.point(i));
                              return all;
                            });
}

}  // namespace kx
