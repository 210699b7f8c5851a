// Bodies on a polygon: prisms and pyramids.
#include <algorithm>

#include "kxgeom/solids.h"
#include "solids/extrusion.hpp"
#include "solids/whole_body.hpp"

solid *KX_CALL kx_prism_pnts(const pnt_3d *center, double diameter_x, double diameter_y, double height, double shift_x,
                             double shift_y, int32_t *sectors, const vector_3d *orientation, solid *given) {
  constexpr kx::primitive_kind kind{KX_SOLID_PRISM, "kx_prism_pnts", "kx_create_prism"};
  if (sectors == nullptr) return nullptr;
  const std::int32_t n = std::max(*sectors, 3);
  if (n > KX_SOLID_VERTICES_MOST) return nullptr;
  const kx::scratch<kx::vec2> base(n);
  if (!base) {
    kx::report_no_memory(kind.builder);
    return nullptr;
  }
  const kx::ring ring{{}, 0.5 * diameter_x, 0.5 * diameter_y};
  for (std::int32_t i = 0; i < n; ++i) {
    const kx::vec3 p = ring.at(i, n);
    base[i] = {p.x, p.y};
  }
  const prism values = {{}, diameter_x, diameter_y, height, shift_x, shift_y, n, 0.0, 0.0, 0.0};
  solid *s = kx::build_extrusion(kind, base.data(), n, height, {shift_x, shift_y}, center, orientation, given, values);
  if (s) *sectors = n;
  return s;
}

solid *KX_CALL kx_pyramid_pnts(const pnt_3d *center, double size_x, double size_y, double height,
                               const vector_3d *orientation, solid *given) {
  constexpr kx::primitive_kind kind{KX_SOLID_PYRAMID, "kx_pyramid_pnts", "kx_create_pyramid"};
  const pyramid values = {{}, size_x, size_y, height, 0.0, 0.0, 0.0};
  return kx::build_whole(kind, 5, center, orientation, given, values, [=](kx::solid_builder &parts, kx::vec3 at) {
    const double x = 0.5 * size_x, y = 0.5 * size_y, z = 0.5 * height;
    for (const kx::vec3 p : {kx::vec3{0.0, 0.0, z}, {-x, -y, -z}, {x, -y, -z}, {x, y, -z}, {-x, y, -z}}) {
      if (!parts.vertex(at + p)) return false;
    }
    return parts.face(0, {0, 1, 2}) && parts.face(1, {0, 2, 3}) && parts.face(2, {0, 3, 4}) &&
           parts.face(3, {0, 4, 1}) && parts.face(4, {1, 4, 3, 2});
  });
}
