// Tetrahedron, hexahedron, octahedron, dodecahedron and icosahedron.
#include <cmath>
#include <cstddef>
#include <initializer_list>

#include "kxgeom/solids.h"
#include "solids/box.hpp"
#include "solids/primitive_frame.hpp"

namespace {

using kx::solid_builder;
using kx::vec3;

// What the five have in common: their record, and the box around their vertices.
template <class Build>
solid *regular(const kx::primitive_kind &kind, std::int32_t vertices, std::int32_t faces, const pnt_3d *center,
               double size, const vector_3d *orientation, solid *given, Build build) {
  return kx::build_primitive<tetrahedron>(kind, vertices, center, orientation, given,
                                          [&](solid &body, tetrahedron &record, solid_builder &parts) {
                                            body.face_count = faces;
                                            body.vertex_count = vertices;
                                            record.size = size;
                                            const bool done = build(parts, kx::value(record.center));
                                            kx::start_extents(body);
                                            for (std::int32_t i = 0; i < parts.count(); ++i)
                                              kx::hold(body, parts.point(i));
                                            return done;
                                          });
}

bool add_vertices(solid_builder &parts, std::initializer_list<vec3> points) {
  for (const vec3 p : points) {
    if (!parts.vertex(p)) return false;
  }
  return true;
}

bool add_ring(solid_builder &parts, const kx::ring &ring, std::int32_t n, double start_deg) {
  return kx::visit_ring(ring, n, start_deg, [&](vec3 p) { return parts.vertex(p); });
}

// Faces of N vertices, numbered from 0.
template <std::size_t Faces, std::size_t N>
bool add_faces(solid_builder &parts, const std::int32_t (&rings)[Faces][N]) {
  std::int32_t number = 0;
  for (const std::int32_t(&ring)[N] : rings) {
    if (!parts.face(number++, ring, N)) return false;
  }
  return true;
}

// Of a regular pentagon.
double golden_ratio() { return 0.5 + 0.5 * std::sqrt(5.0); }
double pentagon_radius() { return std::sqrt(0.5 + 0.1 * std::sqrt(5.0)); }  // with edges of 1

}  // namespace

solid *KX_CALL kx_tetrahedron_pnts(const pnt_3d *center, double size, const vector_3d *orientation, solid *given) {
  constexpr kx::primitive_kind kind{KX_SOLID_TETRAHEDRON, "kx_tetrahedron_pnts", "kx_create_tetrahedron"};
  return regular(kind, 4, 4, center, size, orientation, given, [&](solid_builder &parts, vec3 c) {
    // The square of the size, on purpose: hosts choose their sizes by it.
    const double k = 0.5 * size * size;
    return parts.vertex({c.x, c.y, c.z + 0.5 * k}) && add_ring(parts, {{c.x, c.y, c.z - 0.5 * k}, k, k}, 3, 0.0) &&
           add_faces(parts, {{0, 1, 2}, {0, 2, 3}, {0, 3, 1}, {1, 3, 2}});
  });
}

solid *KX_CALL kx_hexahedron_pnts(const pnt_3d *center, double size, const vector_3d *orientation, solid *given) {
  constexpr kx::primitive_kind kind{KX_SOLID_HEXAHEDRON, "kx_hexahedron_pnts", "kx_create_hexahedron"};
  return regular(kind, 8, 6, center, size, orientation, given, [&](solid_builder &parts, vec3 c) {
    const vec3 half{0.5 * size, 0.5 * size, 0.5 * size};
    return kx::build_box(parts, c - half, c + half, 0);
  });
}

solid *KX_CALL kx_octahedron_pnts(const pnt_3d *center, double size, const vector_3d *orientation, solid *given) {
  constexpr kx::primitive_kind kind{KX_SOLID_OCTAHEDRON, "kx_octahedron_pnts", "kx_create_octahedron"};
  return regular(kind, 6, 8, center, size, orientation, given, [&](solid_builder &parts, vec3 c) {
    // Flattened on purpose, with its equator on the corners of a square: hosts stack it into the box of that square.
    const double h = 0.5 * size;
    return add_vertices(parts, {{c.x, c.y, c.z + h},
                                {c.x - h, c.y - h, c.z},
                                {c.x + h, c.y - h, c.z},
                                {c.x + h, c.y + h, c.z},
                                {c.x - h, c.y + h, c.z},
                                {c.x, c.y, c.z - h}}) &&
           add_faces(parts, {{0, 1, 2}, {0, 2, 3}, {0, 3, 4}, {0, 4, 1}, {5, 2, 1}, {5, 3, 2}, {5, 4, 3}, {5, 1, 4}});
  });
}

solid *KX_CALL kx_dodecahedron_pnts(const pnt_3d *center, double size, const vector_3d *orientation, solid *given) {
  constexpr kx::primitive_kind kind{KX_SOLID_DODECAHEDRON, "kx_dodecahedron_pnts", "kx_create_dodecahedron"};
  return regular(kind, 20, 12, center, size, orientation, given, [&](solid_builder &parts, vec3 c) {
    const double golden = golden_ratio(), narrow = size * pentagon_radius(), wide = golden * narrow;
    const double high = 0.5 * golden * wide, low = 0.5 * narrow / golden;
    const auto ring = [&](double z, double radius, double start_deg) {
      return add_ring(parts, {{c.x, c.y, c.z + z}, radius, radius}, 5, start_deg);
    };
    return ring(high, narrow, 0.0) && ring(low, wide, 0.0) && ring(-low, wide, 36.0) && ring(-high, narrow, 36.0) &&
           add_faces(parts, {{0, 1, 2, 3, 4},
                             {0, 5, 10, 6, 1},
                             {1, 6, 11, 7, 2},
                             {2, 7, 12, 8, 3},
                             {3, 8, 13, 9, 4},
                             {4, 9, 14, 5, 0},
                             {6, 10, 15, 16, 11},
                             {7, 11, 16, 17, 12},
                             {8, 12, 17, 18, 13},
                             {9, 13, 18, 19, 14},
                             {5, 14, 19, 15, 10},
                             {19, 18, 17, 16, 15}});
  });
}

solid *KX_CALL kx_icosahedron_pnts(const pnt_3d *center, double size, const vector_3d *orientation, solid *given) {
  constexpr kx::primitive_kind kind{KX_SOLID_ICOSAHEDRON, "kx_icosahedron_pnts", "kx_create_icosahedron"};
  return regular(kind, 12, 20, center, size, orientation, given, [&](solid_builder &parts, vec3 c) {
    const double radius = size * pentagon_radius(), z = 0.5 * radius, top = z * std::sqrt(5.0);
    return parts.vertex({c.x, c.y, c.z + top}) && add_ring(parts, {{c.x, c.y, c.z + z}, radius, radius}, 5, 0.0) &&
           add_ring(parts, {{c.x, c.y, c.z - z}, radius, radius}, 5, 36.0) && parts.vertex({c.x, c.y, c.z - top}) &&
           add_faces(parts, {{0, 1, 2},  {0, 2, 3},  {0, 3, 4},  {0, 4, 5},   {0, 5, 1},   //
                             {1, 6, 2},  {2, 7, 3},  {3, 8, 4},  {4, 9, 5},   {5, 10, 1},  //
                             {6, 7, 2},  {7, 8, 3},  {8, 9, 4},  {9, 10, 5},  {10, 6, 1},  //
                             {11, 7, 6}, {11, 8, 7}, {11, 9, 8}, {11, 10, 9}, {11, 6, 10}});
  });
}

solid *KX_CALL kx_regpolyhedronpnts(int32_t kind, const pnt_3d *center, double size, const vector_3d *orientation,
                                    solid *given) {
  switch (kind) {
    case 0: return kx_tetrahedron_pnts(center, size, orientation, given);
    case 1: return kx_hexahedron_pnts(center, size, orientation, given);
    case 2: return kx_octahedron_pnts(center, size, orientation, given);
    case 3: return kx_dodecahedron_pnts(center, size, orientation, given);
    case 4: return kx_icosahedron_pnts(center, size, orientation, given);
    default: return nullptr;
  }
}
