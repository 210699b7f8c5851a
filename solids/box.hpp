// The vertices and faces of a body with six rectangles.
#pragma once

#include <cstdint>

#include "records/solid_builder.hpp"

namespace kx {

// Between two corners, with faces numbered from the first on. Seen from outside every ring turns counter-clockwise.
inline bool build_box(solid_builder &parts, vec3 low, vec3 high, std::int32_t first_face) {
  constexpr bool is_high[8][3] = {{true, false, false}, {true, true, false},  {true, true, true},
                                  {true, false, true},  {false, true, false}, {false, false, false},
                                  {false, false, true}, {false, true, true}};
  constexpr std::int32_t rings[6][4] = {{0, 1, 2, 3}, {1, 4, 7, 2}, {2, 7, 6, 3},
                                        {0, 3, 6, 5}, {0, 5, 4, 1}, {4, 5, 6, 7}};
  for (const bool(&corner)[3] : is_high) {
    if (!parts.vertex({corner[0] ? high.x : low.x, corner[1] ? high.y : low.y, corner[2] ? high.z : low.z}))
      return false;
  }
  for (const std::int32_t(&ring)[4] : rings) {
    if (!parts.face(first_face++, ring, 4)) return false;
  }
  return true;
}

}  // namespace kx
