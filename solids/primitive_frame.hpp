// What every primitive has in common: an empty solid with its two lists and the primitive's record, vertices and faces,
// and the turn into its orientation.
#pragma once

#include <cstdint>

#include "kxgeom/list.h"
#include "kxgeom/records.h"
#include "kxgeom/solids.h"
#include "records/primitive.hpp"
#include "records/solid_builder.hpp"
#include "solids/extents.hpp"
#include "solids/ring.hpp"

namespace kx {

struct primitive_kind {
  std::int32_t solid_type;
  const char *builder, *record;  // their functions, for the memory messages
};

// Frees the lists and the record of a solid; a new one altogether.
inline void abandon_primitive(solid *body, bool given) {
  dispose_list(body->face_list);
  dispose_list(body->vertex_list);
  purge_primitive(body->solid_type, body->solid_data);
  body->face_list = body->vertex_list = nullptr;
  body->solid_data = nullptr;
  if (!given) release(body);
}

// A solid is cleared up to a face whose ring goes on in as many items as the solid has faces: in a whole body there are
// more faces. A part-built one that a purge would not free altogether loses its faces.
inline void keep_what_can_be_cleared(solid &body) {
  const std::int32_t count = body.face_list->count;
  for (const list_item &item : items(body.face_list)) {
    const auto *face = static_cast<const polyface_3d *>(item.data);
    if (item.next && std::int64_t{kx::count(face->more_vertices)} + 1 >= count) return dispose_faces(*body.face_list);
  }
}

// A primitive in the orientation that its builder was given: as it is when the vector's fields direction and length are
// both 0, whatever its components are.
inline solid *oriented(solid *body, const vector_3d &orientation) {
  if (near_zero(orientation.direction) && near_zero(orientation.length)) return body;
  return kx_transform_solid_vector(body, &orientation);
}

// Builds a primitive into the solid given, which is cleared first, or into a new one when that is null:
//
//   build(solid &body, T &record, solid_builder &parts) -> bool
//
// fills in the record (its centre is set and its axis is z already), the counts and the extents, which are 0, and
// appends vertices and faces. It stops with false when a part cannot be created: the part-built solid is the result all
// the same, hosts draw what there is of it. `vertices` is how many it makes at most. The solid is then turned into its
// orientation.
//
// Null, a given solid untouched, for more than KX_SOLID_VERTICES_MOST vertices or no centre; null, a given solid empty,
// without lists, after a memory message.
template <class T, class Build>
solid *build_primitive(const primitive_kind &kind, std::int64_t vertices, const pnt_3d *center,
                       const vector_3d *orientation, solid *given, Build build) {
  if (center == nullptr || vertices > KX_SOLID_VERTICES_MOST) return nullptr;
  // Copies: both may be part of what the given solid is cleared of.
  const pnt_3d middle = *center;
  const vector_3d turned = orientation ? *orientation : vector_3d{};
  solid *body = given ? given : kx_create_solid();
  if (body == nullptr) {
    report_no_memory(kind.builder);
    return nullptr;
  }
  if (given) kx_clear_solid(body);
  *body = {};
  body->solid_type = kind.solid_type;
  body->face_list = ll_create_list();
  body->vertex_list = body->face_list ? ll_create_list() : nullptr;
  T *record = body->vertex_list ? create_primitive<T>(kind.record) : nullptr;
  body->solid_data = record;
  if (record) {
    record->center = middle;
    if (solid_builder parts(*body, vertices); parts) {
      if (!build(*body, *record, parts)) keep_what_can_be_cleared(*body);
      return oriented(body, turned);
    }
    report_no_memory(kind.builder);
  }
  abandon_primitive(body, given != nullptr);
  return nullptr;
}

}  // namespace kx
