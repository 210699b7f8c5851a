// Points around an ellipse whose axes lie along x and y, all at one height.
#pragma once

#include <cstdint>

#include "geometry/chords.hpp"
#include "kxgeom/runtime.h"

namespace kx {

struct ring {
  vec3 center;
  double radius_x, radius_y;

  vec3 at(double deg) const {
    const vec2 d = direction_at(deg);
    return {center.x + radius_x * d.x, center.y + radius_y * d.y, center.z};
  }
  // The i-th of n points, counter-clockwise seen from above.
  vec3 at(std::int32_t i, std::int32_t n, double start_deg = 0.0) const { return at(start_deg + full_turn * i / n); }
};

// A circular section has at least 3 sectors; an elliptic one a multiple of 4, so that it reaches all its vertices.
inline std::int64_t section_sectors(double diameter_x, double diameter_y, std::int64_t n) {
  if (kx_parmeq(diameter_x, diameter_y, tolerance)) return n < 3 ? 3 : n;
  return n < 4 ? 4 : (n + 3) / 4 * 4;
}

// Passes n points to a function, in order, until it returns false; false then.
template <class F>
bool visit_ring(const ring &r, std::int32_t n, double start_deg, F visit) {
  for (std::int32_t i = 0; i < n; ++i) {
    if (!visit(r.at(i, n, start_deg))) return false;
  }
  return true;
}

// Numbers wrap round at the ends of the integers.
inline std::int32_t wrapping_sum(std::int32_t a, std::int32_t b) {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) + static_cast<std::uint32_t>(b));
}

// Passes the n triangles between a centre, which has the vertex number c, and the ring of vertices numbered onwards
// from it to a function, in order, until it returns false; false then. Seen from above they turn counter-clockwise, or
// clockwise when reversed, if the ring turns counter-clockwise.
template <class F>
bool visit_cap(std::int32_t n, std::int32_t c, bool reversed, F visit) {
  for (std::int32_t i = 0; i < n; ++i) {
    const std::int32_t here = wrapping_sum(c, 1 + i), next = wrapping_sum(c, i + 1 < n ? 2 + i : 1);
    if (!(reversed ? visit(next, here) : visit(here, next))) return false;
  }
  return true;
}

// On the edges of a cap's triangle: 1 where it meets the centre, 0 on the rim.
inline constexpr std::int32_t cap_attributes[4] = {1, 0, 1, 0};

// The same triangles as faces of a body, numbered onwards; false after the memory message.
template <class Builder>
bool build_cap(Builder &body, std::int32_t &face_number, std::int32_t n, std::int32_t c, bool reversed) {
  return visit_cap(n, c, reversed, [&](std::int32_t a, std::int32_t b) {
    return body.face(face_number++, {c, a, b}, cap_attributes);
  });
}

}  // namespace kx
