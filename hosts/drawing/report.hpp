// What was drawn and what was not, as a table and as points.
#pragma once

#include <iosfwd>
#include <string>

#include "geometry_builder.hpp"
#include "picture.hpp"

namespace kxdraw {

struct report_frame {
  std::string drawing, picture;
  picture_size size;
  double seconds = 0;  // of the whole program
};

// The table: entities by kind, reasons for all that is not drawn, and the time in the library.
void print_report(std::ostream &out, const built_drawing &built, const report_frame &frame, const library_time &time);

// One line per reason for all that is not drawn or drawn in part.
void print_reasons(std::ostream &out, const built_drawing &built);

std::size_t skipped_count(const built_drawing &built);

// A line "tolerance VALUE", then every polyline: a line "path KIND INDEX HANDLE COPY closed|open COUNT", then COUNT
// lines "X Y". Throws drawing_error.
void write_points(const std::string &path, const built_drawing &built);

}  // namespace kxdraw
