// Limits of surfaces and pictures: the empty box, and how many cells a grid may have.
#pragma once

#include <algorithm>
#include <cstdint>

#include "kxgeom/types.h"
#include "list/items.hpp"

namespace kx {

// The corners of a box that holds nothing yet.
inline constexpr double empty_low = 1.7e200, empty_high = -1.7e200;

// A grid of points has more points than cells. One that claims more, and more than this many, is a mistake that would
// exhaust the machine.
inline std::int64_t most_cells(const list_hdr *points) {
  constexpr std::int64_t unquestioned = 1000000;
  return std::max<std::int64_t>(unquestioned, count(points));
}

inline std::int64_t grid_cells(std::int32_t columns, std::int32_t rows) {
  return columns < 2 || rows < 2 ? 0 : (std::int64_t{columns} - 1) * (std::int64_t{rows} - 1);
}

}  // namespace kx
