// Points along the shapes of a drawing, by the library.
#pragma once

#include <string>
#include <vector>

#include "dxf_reader.hpp"
#include "library.hpp"

namespace kxdraw {

// A polyline of poly_2d.
struct point_path {
  owned_list points = {};
  bool closed = false;
  bool filled = false;
};

struct sampled_shape {
  std::vector<point_path> paths;
  std::string fault;  // why there are none, with the library's status code
  std::string note;   // what is not as asked for
};

// Points of a shape so close that no chord leaves it by more than the tolerance. All coordinates come out magnified by
// a power of two: the library takes tolerances and radii within 1e-7 of zero for none, so shapes that small are sampled
// larger. Heights are left out.
sampled_shape sample_shape(const shape &geometry, double tolerance, double magnify, library_time &time);

// A few points around which the shape lies, for a first idea of a drawing's size.
owned_list rough_points(const shape &geometry, library_time &time);

}  // namespace kxdraw
