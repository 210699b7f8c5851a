// Balls and parts of balls.
#include <algorithm>
#include <cmath>

#include "kxgeom/solids.h"
#include "solids/ring_stack.hpp"

namespace {

using kx::ring_level;

// Rings of an ellipsoid at equal steps of the polar angle, from step `first` to step `last` of those that lead from
// one angle to another.
ring_level *put_rings(ring_level *out, kx::vec3 half, double from_deg, double to_deg, std::int32_t first,
                      std::int32_t last, std::int32_t steps) {
  for (std::int32_t k = first; k <= last; ++k) {
    const kx::vec2 d = kx::direction_at(from_deg + (to_deg - from_deg) * k / steps);
    *out++ = ring_level::ring(half.x * d.y, half.y * d.y, half.z * d.x);
  }
  return out;
}

// Pole, rings, pole.
template <class T>
solid *build_ball(const kx::primitive_kind &kind, kx::vec3 half, std::int64_t sectors, const pnt_3d *center,
                  const vector_3d *orientation, solid *s, T values) {
  values.stacks = std::max(values.stacks, 2);
  const std::int32_t stacks = values.stacks;
  values.sectors = static_cast<std::int32_t>(sectors);
  return kx::build_rings(kind, {std::int64_t{stacks} - 1, 2, sectors}, center, orientation, s, values,
                         [half, stacks](ring_level *out) {
                           *out++ = ring_level::apex(half.z);
                           out = put_rings(out, half, 0.0, 180.0, 1, stacks - 1, stacks);
                           *out = ring_level::apex(-half.z);
                         });
}

}  // namespace

solid *KX_CALL kx_sphere_pnts(const pnt_3d *center, double radius, int32_t sectors, int32_t stacks, solid *s) {
  sphere values = {};
  values.radius = radius;
  values.stacks = stacks;
  return build_ball({KX_SOLID_SPHERE, "kx_sphere_pnts", "kx_create_sphere"}, {radius, radius, radius},
                    std::max(sectors, 3), center, nullptr, s, values);
}

solid *KX_CALL kx_ellipsoid_pnts(const pnt_3d *center, double diameter_x, double diameter_y, double diameter_z,
                                 int32_t sectors, int32_t stacks, const vector_3d *orientation, solid *s) {
  ellipsoid values = {};
  values.diameter_x = diameter_x;
  values.diameter_y = diameter_y;
  values.diameter_z = diameter_z;
  values.stacks = stacks;
  return build_ball({KX_SOLID_ELLIPSOID, "kx_ellipsoid_pnts", "kx_create_ellipsoid"},
                    0.5 * kx::vec3{diameter_x, diameter_y, diameter_z},
                    kx::section_sectors(diameter_x, diameter_y, sectors), center, orientation, s, values);
}

solid *KX_CALL kx_spherical_dome_pnts(const pnt_3d *center, double radius, double height, int32_t sectors,
                                      int32_t stacks, const vector_3d *orientation, solid *s) {
  sectors = std::max(sectors, 3);
  stacks = std::max(stacks, 1);
  ellipsoid values = {};
  values.diameter_x = values.diameter_y = 2.0 * radius;
  values.diameter_z = 2.0 * height;
  values.sectors = sectors;
  values.stacks = stacks;
  const double q = radius != 0.0 ? std::clamp(height / radius, 0.0, 2.0) : 0.0;
  const double rim_deg = kx::degrees_of({1.0 - q, std::sqrt(q * (2.0 - q))});
  return kx::build_rings({KX_SOLID_ELLIPSOID, "kx_spherical_dome_pnts", "kx_create_ellipsoid"}, {stacks, 2, sectors},
                         center, orientation, s, values, [=](ring_level *out) {
                           *out++ = ring_level::apex(radius);
                           out = put_rings(out, {radius, radius, radius}, 0.0, rim_deg, 1, stacks, stacks);
                           *out = ring_level::apex(out[-1].z);
                         });
}

solid *KX_CALL kx_spherical_cup_pnts(const pnt_3d *center, double radius, double thickness, int32_t sectors,
                                     int32_t stacks, const vector_3d *orientation, solid *s) {
  sectors = std::max(sectors, 3);
  stacks = std::max(stacks, 1);
  double inner = radius - thickness;
  // A wall up to the axis leaves no hollow: half a ball with a flat top.
  const bool hollow = !(inner <= kx::tolerance);
  if (!hollow) inner = 0.0;
  ellipsoid values = {};
  values.diameter_x = values.diameter_z = 2.0 * radius;
  values.diameter_y = 2.0 * inner;
  values.sectors = sectors;
  values.stacks = stacks;
  return kx::build_rings({KX_SOLID_ELLIPSOID, "kx_spherical_cup_pnts", "kx_create_ellipsoid"},
                         {hollow ? 2 * std::int64_t{stacks} : stacks, 2, sectors}, center, orientation, s, values,
                         [=](ring_level *out) {
                           *out++ = ring_level::apex(-inner);
                           if (hollow) out = put_rings(out, {inner, inner, inner}, 180.0, 90.0, 1, stacks, stacks);
                           out = put_rings(out, {radius, radius, radius}, 90.0, 180.0, 0, stacks - 1, stacks);
                           *out = ring_level::apex(-radius);
                         });
}
