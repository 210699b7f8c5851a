// The ray that decides between inside and outside: from the point to the right, odd crossings inside.
#pragma once

#include <cmath>

#include "records/vector.hpp"

namespace kx {

// An edge as rays meet it. Its lower end belongs to it, its upper end does not: a vertex on the ray counts once where
// the boundary passes through, and twice or not at all where it turns back; an edge along the ray never counts. Every
// term changes its sign at most when the ends are exchanged: the direction of the polygon and the vertex it starts at
// make no difference, to the last bit. Nothing branches: which edges are met is random.
struct ray_edge {
  vec2 a, b;
  double bottom, top, left, right, inverse;  // inverse of the height, with its sign; 1 of a level edge

  enum class slope { any, not_level };

  ray_edge(vec2 from, vec2 to, slope known = slope::any)
      : a(from),
        b(to),
        bottom(a.y < b.y ? a.y : b.y),
        top(a.y > b.y ? a.y : b.y),
        left(a.x < b.x ? a.x : b.x),
        right(a.x > b.x ? a.x : b.x),
        inverse(1.0 / (known == slope::any && b.y == a.y ? 1.0 : b.y - a.y)) {}

  // Where the edge's carrier stands at a height, unless the edge is level.
  double abscissa(double y) const { return (a.x * (b.y - y) + b.x * (y - a.y)) * inverse; }

  // Whether the ray from p crosses. An edge of next to no height has no useful carrier: its ends limit what that says.
  // One with a NaN is crossed nowhere.
  bool crossed_from(vec2 p) const {
    return static_cast<bool>(int{p.y >= bottom} & int{p.y < top} & int{lies_right_of(p)});
  }
  // The same once it is known that the ray's line separates the ends.
  bool lies_right_of(vec2 p) const {
    const double x = abscissa(p.y);
    const double at_least = x > left ? x : left;
    const double limit = at_least < right ? at_least : right;
    return static_cast<bool>(int{p.x < limit} & int{!std::isunordered(a.x, b.x)});
  }
};

inline bool finite(vec2 p) { return std::isfinite(p.x) && std::isfinite(p.y); }

}  // namespace kx
