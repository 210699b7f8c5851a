// The plates: what is on each is computed first, so that it can be told as well as drawn.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "sheet.hpp"

namespace kxplates {

struct plate {
  std::string name;
  spot size;
  std::function<void(const sheet &)> paint;
  std::vector<std::string> told;  // what the library answered, in lines
};

plate relationships();
plate polygons();
plate wireframes();
plate curves();
plate curve_tools();

}  // namespace kxplates
