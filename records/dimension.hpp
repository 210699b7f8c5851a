// The two dimensions side by side: what an algorithm written once needs to know to serve the plane and space.
#pragma once

#include <cstdint>

#include "kxgeom/types.h"
#include "list/point_kind.hpp"
#include "records/vector.hpp"

namespace kx {

struct plane {
  using vector = vec2;
  using point = pnt_2d;
  using vertex = poly_2d;
  using vector_record = vector_2d;
  using stats = curve_stats_2d;
  static constexpr std::int32_t point_tag = KX_PNT_2D;
  static constexpr std::int32_t vertex_tag = KX_POLY_2D;
  static constexpr std::int32_t stats_tag = KX_CURVE_STATS_2D;
  static constexpr const char *stats_location = "kx_create_curve_stats_2d";

  template <class R>
  static vector read(const R &r) {
    return {r.x, r.y};
  }
  static point make_point(vector v) { return {v.x, v.y}; }
  static vertex make_vertex(std::int32_t seqnr, vector v) { return {seqnr, v.x, v.y}; }
  static vector_record make_vector(vector v, double length) { return {0.0, length, v.x, v.y}; }
  static vertex *create_vertex() { return create_poly_2d(); }
};

struct space {
  using vector = vec3;
  using point = pnt_3d;
  using vertex = poly_3d;
  using vector_record = vector_3d;
  using stats = curve_stats_3d;
  static constexpr std::int32_t point_tag = KX_PNT_3D;
  static constexpr std::int32_t vertex_tag = KX_POLY_3D;
  static constexpr std::int32_t stats_tag = KX_CURVE_STATS_3D;
  static constexpr const char *stats_location = "kx_create_curve_stats_3d";

  template <class R>
  static vector read(const R &r) {
    return {r.x, r.y, r.z};
  }
  static point make_point(vector v) { return {v.x, v.y, v.z}; }
  static vertex make_vertex(std::int32_t seqnr, vector v) { return {seqnr, v.x, v.y, v.z}; }
  static vector_record make_vector(vector v, double length) { return {0.0, length, v.x, v.y, v.z}; }
  static vertex *create_vertex() { return create_poly_3d(); }
};

}  // namespace kx
