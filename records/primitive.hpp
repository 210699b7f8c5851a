// The records of the primitives: made, copied and freed by the type of their solid.
#pragma once

#include <cstdint>

#include "kxgeom/types.h"
#include "runtime/memory.hpp"

namespace kx {

// A zeroed record whose axis, where it has one, is z; null after the memory message.
template <class T>
T *create_primitive(const char *location) {
  T *record = create<T>(location);
  if constexpr (requires { record->axis_z; }) {
    if (record) record->axis_z = 1.0;
  }
  return record;
}

// Whether solid_data of this type is the library's to copy and free.
inline bool is_primitive(std::int32_t solid_type) {
  return solid_type >= KX_SOLID_SPHERE && solid_type <= KX_SOLID_HYPERBOLOID2S && solid_type != 4 && solid_type != 14;
}

// Frees a bodyrev or an extbody with its profile. Null does nothing.
void purge_bodyrev(void *record);

// Frees the record of a solid of this type; a host's own stays.
void purge_primitive(std::int32_t solid_type, void *record);

}  // namespace kx
