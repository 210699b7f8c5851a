// How every primitive begins: an empty solid with its two lists and the primitive's record.
#pragma once

#include <cstdint>

#include "kxgeom/list.h"
#include "kxgeom/records.h"
#include "records/primitive.hpp"
#include "records/solid_builder.hpp"

namespace kx {

template <class T>
struct primitive_frame {
  solid *body;  // null when it could not be made
  T *data;      // hangs from the solid already
};

// Empties the solid given, or creates one, and hangs two empty lists and a new record on it. Without memory a new solid
// is freed and a given one left empty, without lists; the body is null then, after the memory messages: that of the
// record or list, and for a new solid that of the builder too.
template <class T>
primitive_frame<T> begin_primitive(solid *given, std::int32_t solid_type, const char *builder, const char *record) {
  solid *body = given ? given : kx_create_solid();
  if (body == nullptr) {
    report_no_memory(builder);
    return {nullptr, nullptr};
  }
  if (given) kx_clear_solid(body);
  *body = {};
  body->face_list = ll_create_list();
  body->vertex_list = body->face_list ? ll_create_list() : nullptr;
  T *data = body->vertex_list ? create_primitive<T>(record) : nullptr;
  if (data) {
    body->solid_type = solid_type;
    body->solid_data = data;
    return {body, data};
  }
  ll_purge_list(body->face_list);
  ll_purge_list(body->vertex_list);
  body->face_list = body->vertex_list = nullptr;
  if (given == nullptr) release(body);
  return {nullptr, nullptr};
}

}  // namespace kx
