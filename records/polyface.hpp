// A face's ring of vertex numbers: its slots, its list of further numbers, and the two ways of reading them.
#pragma once

#include <cstddef>
#include <cstdint>

#include "kxgeom/types.h"
#include "list/items.hpp"
#include "list/point_kind.hpp"
#include "records/direction.hpp"
#include "records/vector.hpp"

namespace kx {

// The normal of a face from three of its corners in the order of the vertex list. It is not unit length.
inline vector_3d face_normal(vec3 v0, vec3 v1, vec3 v2) { return whole_record(cross(v0 - v1, v2 - v1)); }

// A zeroed face; null after the memory message. It is cleared piece by piece: for a block of this size compilers choose
// a string instruction, which takes as long as the rest of building a face.
inline polyface_3d *create_polyface() {
  auto *face = static_cast<polyface_3d *>(allocate(sizeof(polyface_3d)));
  if (face == nullptr) [[unlikely]] {
    report_no_memory("kx_create_polyface_3d");
    return nullptr;
  }
  face->vertex_count = face->face_number = 0;
  face->normal = {};
  for (std::int32_t &word : face->vertex_numbers) word = 0;
  for (std::int32_t &word : face->vertex_attributes) word = 0;
  for (std::int32_t &word : face->extra_words) word = 0;
  face->face_value_1 = face->face_value_2 = 0;
  face->more_vertices = face->face_points = nullptr;
  for (std::int32_t &word : face->ring_room) word = 0;
  return face;
}

inline constexpr std::int32_t inline_corners = 4;

// The slots of a ring are the words from vertex_numbers up to the two pointers and then those after the pointers.
inline std::size_t slot_offset(std::int32_t slot) {
  constexpr std::size_t start = offsetof(polyface_3d, vertex_numbers), end = offsetof(polyface_3d, more_vertices);
  const std::size_t offset = start + sizeof(std::int32_t) * static_cast<std::size_t>(slot);
  return offset < end ? offset : offset - end + offsetof(polyface_3d, ring_room);
}

inline std::int32_t &ring_slot(polyface_3d &face, std::int32_t slot) {
  return *reinterpret_cast<std::int32_t *>(reinterpret_cast<char *>(&face) + slot_offset(slot));
}
inline std::int32_t ring_slot(const polyface_3d &face, std::int32_t slot) {
  return *reinterpret_cast<const std::int32_t *>(reinterpret_cast<const char *>(&face) + slot_offset(slot));
}

// Calls visit(i, number) for each number of a ring as far as it is there: the first four from the record, the others
// from the list. False when the list ends early.
template <class F>
bool visit_listed_ring(const polyface_3d &face, F visit) {
  std::int32_t i = 0;
  for (; i < face.vertex_count && i < inline_corners; ++i) visit(i, ring_slot(face, i));
  for (const list_item &item : items(face.more_vertices)) {
    if (i >= face.vertex_count) break;
    if (readable_as(item, KX_INUMBER)) visit(i++, static_cast<const inumber *>(item.data)->value);
  }
  return i >= face.vertex_count;
}

// The same from the slots alone; what is too long for the slots can only be in the list.
template <class F>
bool visit_inline_ring(const polyface_3d &face, F visit) {
  if (face.vertex_count > KX_RING_MOST) return visit_listed_ring(face, visit);
  for (std::int32_t i = 0; i < face.vertex_count; ++i) visit(i, ring_slot(face, i));
  return true;
}

// Whether an item may hold a record of a kind: it says so, or bears a tag of the host's own.
inline bool may_hold(const list_item &item, std::int32_t tag) {
  return item.data && (item.datatype == tag || (record_size(item.datatype) == 0 && item.datatype != KX_STRING));
}

// An item's face; null when it holds something else.
inline polyface_3d *face_of(const list_item &item) {
  return may_hold(item, KX_POLYFACE_3D) ? static_cast<polyface_3d *>(item.data) : nullptr;
}

// An item's vertex; null when it holds something else.
inline const poly_3d *vertex_of(const list_item &item) {
  return may_hold(item, KX_POLY_3D) ? static_cast<const poly_3d *>(item.data) : nullptr;
}

// Frees what hangs from more_vertices; the header stays.
inline void release_more_vertices(const polyface_3d &face) {
  if (face.more_vertices) release_items(*face.more_vertices);
}

// Frees a list with its items and their data. Null does nothing.
inline void dispose_list(list_hdr *list) {
  if (list) release_items(*list);
  release(list);
}

// Frees a face with all that hangs from it, where a purge leaves to the hosts what may be theirs.
inline void dispose_face(polyface_3d *face) {
  dispose_list(face->more_vertices);
  dispose_list(face->face_points);
  release(face);
}

// The same for all faces of a list, which is empty afterwards.
inline void dispose_faces(list_hdr &faces) {
  for (list_item &item : items(&faces)) {
    dispose_face(static_cast<polyface_3d *>(item.data));
    release(&item);
  }
  faces = {};
}

}  // namespace kx
