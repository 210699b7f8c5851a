// Many points against one polygon.
#pragma once

#include <cstdint>

#include "records/vector.hpp"

namespace kx {

// What is told about a point: bits of a byte.
inline constexpr std::uint8_t odd_crossings = 1, on_boundary = 2;

inline bool strictly_inside(std::uint8_t where) { return where == odd_crossings; }
inline bool inside_or_on(std::uint8_t where) { return where != 0; }
inline bool on(std::uint8_t where) { return (where & on_boundary) != 0; }

// Locates points as one walk per point would, the ring being edges + 1 points, the last where the first is. False after
// the memory message for `location`.
bool locate(const vec2 *points, std::int32_t count, const vec2 *ring, std::int32_t edges, std::uint8_t *where,
            const char *location);

}  // namespace kx
