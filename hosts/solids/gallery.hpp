// All bodies on one sheet.
#pragma once

#include <string>

namespace kxsolids {

// Writes FOLDER/solids.svg and .png. Throws std::runtime_error when one cannot be written.
void write_gallery(const std::string &folder);

}  // namespace kxsolids
