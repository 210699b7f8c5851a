// From a drawing's entities to polylines in one plane: blocks inserted, everything transformed by the library.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "colors.hpp"
#include "dxf_reader.hpp"
#include "library.hpp"

namespace kxdraw {

struct drawn_path {
  owned_list points;  // poly_2d
  bool closed = false;
  bool filled = false;
  rgb color;
  const entity *source = nullptr;
  int copy = 0;  // which drawing of the entity this is, from 0
};

// What became of one entity.
struct fate {
  const entity *source = nullptr;
  int copies = 0;     // how often it was drawn
  int left_out = 0;   // how often it was not
  std::string fault;  // why not, the last time
  std::string note;   // what of it is not as in the file
  std::size_t points = 0;
};

struct built_drawing {
  std::vector<drawn_path> paths;
  std::vector<fate> fates;  // by entity index
  rect_2d extents = {0, 0, 0, 0};
  bool empty = true;
  double tolerance = 0;
};

// Builds the drawing with chords within the tolerance; a tolerance of 0 stands for a fraction of the drawing's size.
built_drawing build_geometry(const drawing &source, double tolerance, library_time &time,
                             const std::function<void(double)> &progress);

}  // namespace kxdraw
