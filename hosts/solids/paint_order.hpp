// The order in which faces cover each other for an eye.
#pragma once

#include <vector>

#include "mesh.hpp"

namespace kxsolids {

// A flat convex face, or a part of one.
struct piece {
  std::vector<pnt_3d> corners;
  std::vector<bool> edges;  // from each corner to the next: an edge of the body
  pnt_3d normal;

  // How far a point is above its plane.
  double height(const pnt_3d &p) const { return dot(minus(p, corners[0]), normal); }
};

// The same faces in an order in which no face covers one that comes after it; those in each other's way are cut.
// Points are taken to be on a plane within the tolerance.
std::vector<piece> paint_order(std::vector<piece> pieces, const pnt_3d &eye, double tolerance);

}  // namespace kxsolids
