// A plane polygon as the flat end of a body.
#pragma once

#include <cstdint>

#include "kxgeom/types.h"
#include "records/solid_builder.hpp"
#include "records/vector.hpp"
#include "runtime/memory.hpp"

namespace kx {

// Three corners of a polygon by their place in it, counter-clockwise.
struct corner_triangle {
  std::int32_t a, b, c;
};

// One face of up to so many corners, triangles otherwise. Every corner is used, those between two edges in one line
// too: the sides of the body have them.
class flat_polygon {
 public:
  // A polygon that neither crosses nor touches itself, counter-clockwise. A face has room for KX_RING_MOST corners.
  explicit flat_polygon(const vec2 *points, std::int32_t n, std::int64_t most_in_one_face = KX_RING_MOST);

  // False when the heap had no room.
  explicit operator bool() const { return ready_; }

  // Appends the faces, numbered on from face_number; number(i) is the vertex number of corner i. Turned round, they
  // are seen from below. The edges between triangles have the attribute 1. False after a memory message.
  template <class Number>
  bool append(solid_builder &builder, std::int32_t &face_number, bool turned_round, Number number) const {
    if (one_face_) {
      std::int32_t ring[KX_RING_MOST];
      for (std::int32_t i = 0; i < n_; ++i) ring[i] = number((start_ + (turned_round ? n_ + 2 - i : i)) % n_);
      return builder.face(face_number++, ring, n_);
    }
    for (std::int32_t t = 0; t < n_ - 2; ++t) {
      const corner_triangle &of = triangles_[t];
      const std::int32_t a = of.a, b = turned_round ? of.c : of.b, c = turned_round ? of.b : of.c;
      const std::int32_t attributes[4] = {within(a, b), within(b, c), within(c, a), 0};
      if (!builder.face(face_number++, {number(a), number(b), number(c)}, attributes)) return false;
    }
    return true;
  }

 private:
  // 1 for an edge that is none of the polygon's.
  std::int32_t within(std::int32_t i, std::int32_t j) const {
    const std::int32_t apart = i < j ? j - i : i - j;
    return apart != 1 && apart != n_ - 1;
  }

  std::int32_t n_;
  bool one_face_;
  std::int32_t start_ = 0;  // of the ring of one face: a sharp convex corner is its second, for the face's normal
  scratch<corner_triangle> triangles_;
  bool ready_;
};

}  // namespace kx
