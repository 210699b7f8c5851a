// The box around a solid.
#pragma once

#include "kxgeom/types.h"
#include "records/vector.hpp"

namespace kx {

// Extents that stand around a centre.
inline void set_extents(solid &body, vec3 center, vec3 half) {
  const vec3 low = center - half, high = center + half;
  body.xmin = low.x, body.ymin = low.y, body.zmin = low.z;
  body.xmax = high.x, body.ymax = high.y, body.zmax = high.z;
}

// Extents that hold nothing, to be widened.
inline void start_extents(solid &body) {
  body.xmin = body.ymin = body.zmin = 1.7e200;
  body.xmax = body.ymax = body.zmax = -1.7e200;
}

// Widens the box to hold a point, exactly, where that of kx_add_vertex leaves out what is within tolerance. A
// coordinate that is NaN widens nothing.
inline void hold(solid &body, vec3 p) {
  if (p.x < body.xmin) body.xmin = p.x;
  if (p.y < body.ymin) body.ymin = p.y;
  if (p.z < body.zmin) body.zmin = p.z;
  if (p.x > body.xmax) body.xmax = p.x;
  if (p.y > body.ymax) body.ymax = p.y;
  if (p.z > body.zmax) body.zmax = p.z;
}

}  // namespace kx
