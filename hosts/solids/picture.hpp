// A body as a viewer sees it: shaded, hidden faces removed.
#pragma once

#include "mesh.hpp"
#include "sheet/sheet.hpp"

namespace kxsolids {

using namespace kxsheet;

struct viewer {
  double theta_deg = 305, phi_deg = 64;
};

// Draws the mesh as large as fits the square, seen in perspective from some of its own sizes away. Throws
// std::runtime_error for a mesh that has no extent or is too large to be a picture.
void draw(const sheet &page, spot corner, double side, const mesh &m, const viewer &from, color c);

}  // namespace kxsolids
