// The polylines as a picture file.
#pragma once

#include <functional>
#include <string>

#include "geometry_builder.hpp"

namespace kxdraw {

struct picture_size {
  int width = 0, height = 0;  // in pixels, in points for PDF; 0 for a size that fits the drawing
};

constexpr int largest_side = 20000;

// Whether the name ends in one of the kinds of file that can be written: .svg, .png or .pdf.
bool is_picture_name(const std::string &path);

// Writes the picture and returns its size. Throws drawing_error when the file cannot be written.
picture_size write_picture(const built_drawing &built, const std::string &path, picture_size size, library_time &time,
                           const std::function<void(double)> &progress);

}  // namespace kxdraw
