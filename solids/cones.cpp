// Cones and hollow cylinders.
#include <algorithm>
#include <utility>

#include "kxgeom/solids.h"
#include "solids/ring_stack.hpp"

namespace {

using kx::ring_level;

}  // namespace

solid *KX_CALL kx_cone_pnts(const pnt_3d *center, double bottom_diameter, double top_diameter, double height,
                            int32_t *sectors, const vector_3d *orientation, solid *given) {
  constexpr kx::primitive_kind kind{KX_SOLID_CONE, "kx_cone_pnts", "kx_create_cone"};
  if (sectors == nullptr) return nullptr;
  // At least one end is a disc, be it without extent.
  const bool to_bottom = kx::near_zero(bottom_diameter) && !kx::near_zero(top_diameter);
  const bool to_top = kx::near_zero(top_diameter);
  cone values = {};
  values.bottom_diameter = bottom_diameter;
  values.top_diameter = top_diameter;
  values.height = height;
  values.sectors = std::max(*sectors, 3);
  const std::int32_t rings = 2 - to_bottom - to_top;
  solid *s =
      kx::build_rings(kind, {rings, 2, values.sectors}, center, orientation, given, values, [=](ring_level *out) {
        const double top = 0.5 * top_diameter, bottom = 0.5 * bottom_diameter, half = 0.5 * height;
        *out++ = ring_level::apex(half);
        if (!to_top) *out++ = ring_level::ring(top, top, half);
        if (!to_bottom) *out++ = ring_level::ring(bottom, bottom, -half);
        *out = ring_level::apex(-half);
      });
  if (s) *sectors = values.sectors;
  return s;
}

solid *KX_CALL kx_hcylinder_pnts(const pnt_3d *center, double outer_x, double outer_y, double inner_x, double inner_y,
                                 double height, int32_t *sectors, const vector_3d *orientation, solid *given) {
  constexpr kx::primitive_kind kind{KX_SOLID_HCYLINDER, "kx_hcylinder_pnts", "kx_create_hcylinder"};
  if (sectors == nullptr) return nullptr;
  if (inner_x > outer_x) std::swap(inner_x, outer_x);
  if (inner_y > outer_y) std::swap(inner_y, outer_y);
  const std::int64_t n =
      std::max(kx::section_sectors(outer_x, outer_y, *sectors), kx::section_sectors(inner_x, inner_y, *sectors));
  hcylinder values = {};
  values.outer_x = outer_x;
  values.outer_y = outer_y;
  values.inner_x = inner_x;
  values.inner_y = inner_y;
  values.height = height;
  values.sectors = static_cast<std::int32_t>(n);
  const double half = 0.5 * height;
  const auto outer = [=](double z) { return ring_level::ring(0.5 * outer_x, 0.5 * outer_y, z); };
  const auto inner = [=](double z) { return ring_level::ring(0.5 * inner_x, 0.5 * inner_y, z); };
  // Without a bore it is a cylinder, closed by discs.
  const bool bored = !(kx::near_zero(inner_x) && kx::near_zero(inner_y));
  solid *s = kx::build_rings(kind, bored ? kx::ring_plan{4, 0, n} : kx::ring_plan{2, 2, n}, center, orientation, given,
                             values, [=](ring_level *out) {
                               *out++ = bored ? inner(half) : ring_level::apex(half);
                               *out++ = outer(half);
                               *out++ = outer(-half);
                               *out = bored ? inner(-half) : ring_level::apex(-half);
                             });
  if (s) *sectors = values.sectors;
  return s;
}
