// The kinds of data that a list frees by itself.
#pragma once

#include <cstdint>

#include "point_kind.hpp"

namespace kx {

inline bool owned_kind(std::int32_t tag) {
  return is_point(tag) || tag == KX_RNUMBER || tag == KX_INUMBER || tag == KX_STRING;
}

}  // namespace kx
