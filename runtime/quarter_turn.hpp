// Directions by quadrant, and the pseudo-angle: a number from 0 up to 4 that grows with the angle by 1 per quarter
// turn, the whole quarters plus the tangent of half of what remains. It costs a division and a root, and comparing two
// of them compares the angles.
#pragma once

#include <cmath>

#include "tolerance.hpp"

namespace kx {

// A direction turned back by whole quarters until it points along the first axis or into the first quadrant, and the
// quadrant it came from; 0 when it has none. Components near zero count as 0.
struct turned_back {
  int quadrant;
  double along, across;
};

inline turned_back to_first_quadrant(double dx, double dy) {
  if (!std::isfinite(dx) || !std::isfinite(dy)) return {0, 0.0, 0.0};
  if (near_zero(dx)) dx = 0.0;
  if (near_zero(dy)) dy = 0.0;
  if (dx > 0.0 && dy >= 0.0) return {1, dx, dy};
  if (dx <= 0.0 && dy > 0.0) return {2, dy, -dx};
  if (dx < 0.0 && dy <= 0.0) return {3, -dx, -dy};
  if (dx >= 0.0 && dy < 0.0) return {4, -dy, dx};
  return {0, 0.0, 0.0};
}

// 0 for a direction that has no quadrant. Ratios of the components only: nothing overflows.
inline double pseudo_angle(double dx, double dy) {
  const turned_back d = to_first_quadrant(dx, dy);
  if (d.quadrant == 0) return 0.0;
  double half_tangent;
  if (d.along >= d.across) {
    const double slope = d.across / d.along;
    half_tangent = slope / (1.0 + std::sqrt(1.0 + slope * slope));
  } else {
    const double slope = d.along / d.across;
    half_tangent = 1.0 / (slope + std::sqrt(1.0 + slope * slope));
  }
  const double result = d.quadrant - 1 + half_tangent;
  return result < 4.0 ? result : 0.0;  // too little below the axis for the sum to show
}

}  // namespace kx
