// Coordinates of an entity's own plane, as drafting programs have them: the axes follow from the plane's normal alone.
#include <algorithm>
#include <cmath>
#include <limits>

#include "geometry/space_line.hpp"
#include "geometry/status.hpp"
#include "kxgeom/transform.h"
#include "transform/matrix.hpp"

using kx::vec3;

namespace {

constexpr int32_t no_plane = 25;

// The axes of a plane's coordinates in the world, of unit length and at right angles.
struct entity_axes {
  vec3 x{}, y{}, z{};
  double scale = 0.0;   // the normal's largest component...
  double length = 0.0;  // ...and its length in that unit; 0 without a direction

  // A normal so close to the world's z axis that it would turn wildly about it gets its x axis from the world's y.
  explicit entity_axes(vec3 normal) {
    constexpr double close = 1.0 / 64.0;
    scale = std::max({std::fabs(normal.x), std::fabs(normal.y), std::fabs(normal.z)});
    if (!(scale > 0.0 && scale <= std::numeric_limits<double>::max())) return;
    z = normal / scale;  // neither too long nor too short to be squared
    const double len = kx::length(z);
    if (!(scale > kx::tolerance / len)) return;
    z = z / len;
    length = len;
    x = cross(std::fabs(z.x) < close && std::fabs(z.y) < close ? vec3{0, 1, 0} : vec3{0, 0, 1}, z);
    x = x / kx::length(x);
    y = cross(z, x);
  }

  explicit operator bool() const { return length > 0.0; }
  vec3 to_world(vec3 p) const { return p.x * x + p.y * y + p.z * z; }
  vec3 to_entity(vec3 p) const { return {dot(p, x), dot(p, y), dot(p, z)}; }
};

// A plane's axes and how far along its normal the plane lies.
struct entity_plane : entity_axes {
  double elevation;
  explicit entity_plane(const planeeq &plane)
      : entity_axes(kx::normal(plane)), elevation(*this ? -(plane.d / scale) / length : 0.0) {}
};

}  // namespace

int32_t KX_CALL kx_ecs_to_wcs(const vector_3d *normal, const pnt_3d *in, pnt_3d *out) {
  if (!normal || !in || !out) return kx::wrong_argument;
  const entity_axes axes(kx::value(*normal));
  if (!axes) return no_plane;
  *out = kx::record(axes.to_world(kx::value(*in)));
  return kx::done;
}

int32_t KX_CALL kx_wcs_to_ecs(const vector_3d *normal, const pnt_3d *in, pnt_3d *out) {
  if (!normal || !in || !out) return kx::wrong_argument;
  const entity_axes axes(kx::value(*normal));
  if (!axes) return no_plane;
  *out = kx::record(axes.to_entity(kx::value(*in)));
  return kx::done;
}

int32_t KX_CALL kx_get_ecs_origin(const planeeq *plane, pnt_3d *origin) {
  if (!plane || !origin) return kx::wrong_argument;
  const entity_plane own(*plane);
  if (!own) return no_plane;
  *origin = kx::record(own.elevation * own.z);
  return kx::done;
}

int32_t KX_CALL kx_plane_to_xy(const planeeq *plane, double *matrix) {
  if (!plane || !matrix) return kx::wrong_argument;
  const entity_plane own(*plane);
  if (!own) return no_plane;
  kx::multiply_onto(matrix, kx::matrix<4>{{{own.x.x, own.y.x, own.z.x, 0.0},
                                           {own.x.y, own.y.y, own.z.y, 0.0},
                                           {own.x.z, own.y.z, own.z.z, 0.0},
                                           {0.0, 0.0, -own.elevation, 1.0}}});
  return kx::done;
}
