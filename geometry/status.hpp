// The statuses of this room's functions.
#pragma once

#include <cstdint>

namespace kx {

inline constexpr std::int32_t done = 0, wrong_argument = 1, coincident = 2;
inline constexpr std::int32_t wrong_value = 3, no_normal = 3;  // one number for a value and for a line that is none
inline constexpr std::int32_t no_direction = 4, no_memory = 80;

}  // namespace kx
