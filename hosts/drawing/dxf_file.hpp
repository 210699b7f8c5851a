// A DXF file as a clean sequence of group pairs.
#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>

namespace kxdraw {

// What ends the program with one line on standard error.
struct drawing_error : std::runtime_error {
  using std::runtime_error::runtime_error;
};

struct dxf_text {
  std::string text;       // "code\nvalue\n" up to and including EOF, without comments
  std::size_t pairs = 0;  // how many
};

// Reads the file and makes sure that it is a whole text DXF: pairs of a group code and a value from the first SECTION
// to EOF. Values longer than dxflib's line buffer are cut, because a line it reads in two pieces puts every pair after
// it out of step; no value that is drawn is anywhere near that long. Throws drawing_error.
dxf_text read_dxf_file(const std::string &path);

// Without the blanks, tabs and carriage returns at both ends.
std::string trimmed(const std::string &line);

}  // namespace kxdraw
