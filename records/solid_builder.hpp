// Building a solid vertex by vertex and face by face, in linear time.
#pragma once

#include <cstdint>
#include <initializer_list>

#include "kxgeom/types.h"
#include "records/vertex_table.hpp"

namespace kx {

// A vertex record of kind poly_3d at the tail; false after the memory message.
inline bool append_vertex(list_hdr &vertices, std::int32_t number, vec3 p) {
  poly_3d *record = create_poly_3d();
  if (record == nullptr) return false;
  *record = {number, p.x, p.y, p.z};
  if (append(vertices, record, KX_POLY_3D)) return true;
  release(record);
  return false;
}

// A copy of a face at the tail; false after the memory message.
inline bool append_face(list_hdr &faces, const polyface_3d &face) {
  auto *record = static_cast<polyface_3d *>(allocate(sizeof(polyface_3d)));
  if (record == nullptr) [[unlikely]] {
    report_no_memory("kx_create_polyface_3d");
    return false;
  }
  *record = face;
  if (append(faces, record, KX_POLYFACE_3D)) return true;
  release(record);
  return false;
}

// Widens the box to hold a point. It never shrinks, and a point within tolerance of a side leaves that side alone.
inline void widen_extents(solid &s, vec3 p) {
  s.xmin = min(p.x, s.xmin);
  s.ymin = min(p.y, s.ymin);
  s.zmin = min(p.z, s.zmin);
  s.xmax = max(p.x, s.xmax);
  s.ymax = max(p.y, s.ymax);
  s.zmax = max(p.z, s.zmax);
}

// Writes a ring into a face: into the slots as far as it fits, and what is past the fourth number into a list besides,
// so that every reader of rings finds it. False, the face without a list, after a memory message.
bool set_ring(polyface_3d &face, const std::int32_t *numbers, std::int32_t n);

// Appends vertices, numbered from 0 in list order, and faces to the two lists of a solid. The normals are those that
// kx_get_face_normal finds. Counts and extents are the caller's.
class solid_builder {
 public:
  // The solid has both lists, empty. Room for so many vertices and no more.
  solid_builder(solid &target, std::int64_t vertices)
      : vertices_(target.vertex_list), faces_(target.face_list), table_(vertices) {}

  // False when the heap had no room to begin with.
  explicit operator bool() const { return static_cast<bool>(table_); }

  // False after the memory message; nothing is added then.
  bool vertex(vec3 p) {
    if (!append_vertex(*vertices_, table_.count(), p)) return false;
    table_.add(p);
    return true;
  }

  // A face with a ring of numbers, its attributes 0; false after the memory message, nothing is added then.
  bool face(std::int32_t face_number, std::initializer_list<std::int32_t> ring) {
    return face(face_number, ring.begin(), static_cast<std::int32_t>(ring.size()));
  }
  bool face(std::int32_t face_number, const std::int32_t *ring, std::int32_t n) {
    polyface_3d *record = create_polyface();
    return record && finish(record, face_number, ring, n);
  }

  // A face of three or four vertices with an attribute for each of its edges.
  bool face(std::int32_t face_number, std::initializer_list<std::int32_t> ring, const std::int32_t (&attributes)[4]) {
    polyface_3d *record = create_polyface();
    if (record == nullptr) return false;
    for (int i = 0; i < inline_corners; ++i) record->vertex_attributes[i] = attributes[i];
    return finish(record, face_number, ring.begin(), static_cast<std::int32_t>(ring.size()));
  }

  // Number of vertices so far, which is the number of the next one.
  std::int32_t count() const { return table_.count(); }
  vec3 point(std::int32_t number) const { return table_.at(number); }

 private:
  bool finish(polyface_3d *record, std::int32_t face_number, const std::int32_t *ring, std::int32_t n) {
    record->face_number = face_number;
    if (n <= inline_corners) {
      record->vertex_count = n;
      for (std::int32_t i = 0; i < n; ++i) record->vertex_numbers[i] = ring[i];
    } else if (!set_ring(*record, ring, n)) {
      release(record);
      return false;
    }
    vector_3d normal = {};
    if (n >= 3) table_.normal(ring[0], ring[1], ring[2], normal);
    record->normal = normal;
    if (append(*faces_, record, KX_POLYFACE_3D)) return true;
    dispose_face(record);
    return false;
  }

  list_hdr *vertices_;
  list_hdr *faces_;
  vertex_table table_;
};

}  // namespace kx
