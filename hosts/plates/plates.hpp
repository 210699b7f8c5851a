// The plates: what is on each is computed first, so that it can be told as well as drawn.
#pragma once

#include <string>
#include <vector>

#include "sheet/sheet.hpp"

namespace kxplates {

using namespace kxsheet;

struct plate {
  std::string name;
  spot size;
  painting paint;
  std::vector<std::string> told;  // what the library answered, in lines
};

plate relationships();
plate polygons();
plate wireframes();
plate curves();
plate curve_tools();

}  // namespace kxplates
