// The parts that round bodies are made of: rings of vertices and the fans of triangles that close them.
#include "kxgeom/solids.h"
#include "records/output.hpp"
#include "records/solid_builder.hpp"
#include "solids/ring.hpp"

namespace {

bool too_many(std::int32_t n) { return n > KX_SOLID_VERTICES_MOST; }

int32_t append_ring(const kx::ring &ring, int32_t n, int32_t *vertex_number, double start_deg, list_hdr *vertices) {
  std::int32_t number = vertex_number ? *vertex_number : 0;
  if (vertices == nullptr || too_many(n)) return number;
  kx::visit_ring(ring, n, start_deg, [&](kx::vec3 p) {
    if (!kx::append_vertex(*vertices, number, p)) return false;
    number = kx::wrapping_sum(number, 1);
    return true;
  });
  kx::put<std::int32_t>(vertex_number, number);
  return number;
}

}  // namespace

int32_t KX_CALL kx_regpolyxyzpnts(const pnt_3d *center, double radius, int32_t n, int32_t *vertex_number,
                                  double start_deg, list_hdr *vertices) {
  if (center == nullptr) vertices = nullptr;
  const kx::ring ring{center ? kx::value(*center) : kx::vec3{}, radius, radius};
  return append_ring(ring, n, vertex_number, start_deg, vertices);
}

int32_t KX_CALL kx_ellipsexyzpnts(const rect_2d *rect, double z, int32_t n, int32_t *vertex_number, double start_deg,
                                  list_hdr *vertices) {
  if (rect == nullptr) return append_ring({}, n, vertex_number, start_deg, nullptr);
  const kx::ring ring{{0.5 * (rect->x1 + rect->x2), 0.5 * (rect->y1 + rect->y2), z},
                      0.5 * (rect->x2 - rect->x1),
                      0.5 * (rect->y2 - rect->y1)};
  return append_ring(ring, n, vertex_number, start_deg, vertices);
}

int32_t KX_CALL kx_arc_faces(int32_t *face_number, int32_t n, int32_t center, int32_t flag, const list_hdr *vertices,
                             list_hdr *faces) {
  constexpr int32_t failed = 1;
  std::int32_t number = face_number ? *face_number : 0;
  if (n < 1) return number;
  if (vertices == nullptr || faces == nullptr || too_many(n)) return failed;
  const kx::vertex_table table(vertices);
  if (!table) {
    kx::report_no_memory("kx_arc_faces");
    return failed;
  }
  const bool done = kx::visit_cap(n, center, flag != 0, [&](std::int32_t a, std::int32_t b) {
    vector_3d normal = {};
    table.normal(center, a, b, normal);
    polyface_3d face = {};
    face.vertex_count = 3;
    face.face_number = number;
    face.normal = normal;
    const std::int32_t ring[3] = {center, a, b};
    for (int i = 0; i < 3; ++i) face.vertex_numbers[i] = ring[i];
    for (int i = 0; i < 4; ++i) face.vertex_attributes[i] = kx::cap_attributes[i];
    if (!kx::append_face(*faces, face)) return false;
    number = kx::wrapping_sum(number, 1);
    return true;
  });
  kx::put<std::int32_t>(face_number, number);
  return done ? number : failed;
}
