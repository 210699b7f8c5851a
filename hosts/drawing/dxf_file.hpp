// A DXF file as a sequence of group pairs.
#pragma once

#include <functional>
#include <stdexcept>
#include <string>

namespace kxdraw {

// What ends the program with one line on standard error.
struct drawing_error : std::runtime_error {
  using std::runtime_error::runtime_error;
};

// Gets a pair's group code and value, and how much of the file is read, from 0 to 1.
using pair_visitor = std::function<void(int code, const std::string &value, double done)>;

// Reads a text DXF, pair by pair without the comments, from the first SECTION to EOF. Throws drawing_error when the
// file is anything else or not whole.
void read_dxf_pairs(const std::string &path, const pair_visitor &visit);

// Without the blanks, tabs and carriage returns at both ends.
std::string trimmed(const std::string &line);

}  // namespace kxdraw
