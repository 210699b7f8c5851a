// The points and rings of a body, taken out of its lists, and what is computed from them.
#pragma once

#include <cstdint>
#include <vector>

#include "body.hpp"

namespace kxsolids {

// A corner of a ring, and whether the edge from it to the next one is an edge of the body. Those that only cut a face
// into parts are not.
struct corner {
  std::int32_t number;
  bool edge;
};
using ring = std::vector<corner>;

struct mesh {
  std::vector<pnt_3d> points;
  std::vector<ring> faces;  // counter-clockwise from outside
  bool closed;
};

inline pnt_3d minus(const pnt_3d &a, const pnt_3d &b) { return {a.x - b.x, a.y - b.y, a.z - b.z}; }
inline double dot(const pnt_3d &a, const pnt_3d &b) { return a.x * b.x + a.y * b.y + a.z * b.z; }
inline pnt_3d along(const pnt_3d &a, const pnt_3d &b, double t) {
  return {a.x + t * (b.x - a.x), a.y + t * (b.y - a.y), a.z + t * (b.z - a.z)};
}
// Of length 1, or zero for a face without area.
pnt_3d normal_of(const mesh &m, const ring &face);

struct extent {
  pnt_3d low, high;
  pnt_3d middle() const { return along(low, high, 0.5); }
  double diagonal() const;
};
extent extent_of(const mesh &m);

mesh mesh_of(const body &b);

// The faces, those cut up that are not flat or not convex.
std::vector<ring> convex_faces(const mesh &m);
std::vector<ring> triangles(const mesh &m);

struct measures {
  double volume, area;
};
measures measure(const mesh &m);

}  // namespace kxsolids
