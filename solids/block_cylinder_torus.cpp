// The primitives with straight sides or a round section: block, cylinder, torus.
#include "kxgeom/solids.h"
#include "solids/box.hpp"
#include "solids/primitive_frame.hpp"
#include "transform/matrix.hpp"

namespace {

// The centre of the top and its ring, then the centre of the bottom and its own.
bool cylinder_vertices(kx::solid_builder &parts, const kx::ring &top, double bottom_z, std::int32_t n) {
  if (!parts.vertex(top.center)) return false;
  if (!kx::visit_ring(top, n, 0.0, [&](kx::vec3 p) { return parts.vertex(p); })) return false;
  for (std::int32_t i = 0; i <= n; ++i) {
    const kx::vec3 above = parts.point(i);
    if (!parts.vertex({above.x, above.y, bottom_z})) return false;
  }
  return true;
}

bool cylinder_faces(kx::solid_builder &parts, std::int32_t n) {
  std::int32_t number = 0;
  if (!kx::build_cap(parts, number, n, 0, false)) return false;
  for (std::int32_t i = 0; i < n; ++i) {
    const std::int32_t next = i + 1 < n ? i + 1 : 0;
    if (!parts.face(number++, {i + 1, n + 2 + i, n + 2 + next, next + 1})) return false;
  }
  return kx::build_cap(parts, number, n, n + 1, true);
}

// p rings of q vertices around the z axis through the centre.
bool torus_vertices(kx::solid_builder &parts, kx::vec3 center, double major, double minor, std::int32_t p,
                    std::int32_t q) {
  // The profile's own height is replaced, on purpose, by its second coordinate plus that of the centre: hosts place
  // their tori by the y of the centre.
  if (!kx::visit_ring({center, minor, minor}, q, 0.0, [&](kx::vec3 around) {
        return parts.vertex({around.x + major, center.y, around.y + center.y});
      }))
    return false;
  for (std::int32_t i = 1; i < p; ++i) {
    const kx::turn d(360.0 * i / p);
    for (std::int32_t j = 0; j < q; ++j) {
      const kx::vec3 profile = parts.point(j);
      const double distance = profile.x - center.x;
      if (!parts.vertex({center.x + distance * d.c, center.y + distance * d.s, profile.z})) return false;
    }
  }
  return true;
}

bool torus_faces(kx::solid_builder &parts, std::int32_t p, std::int32_t q) {
  for (std::int32_t here = 0; here < p * q; here += q) {
    const std::int32_t next = here + q < p * q ? here + q : 0;
    for (std::int32_t j = 0; j < q; ++j) {
      const std::int32_t k = j + 1 < q ? j + 1 : 0;
      if (!parts.face(here + j, {here + j, next + j, next + k, here + k})) return false;
    }
  }
  return true;
}

}  // namespace

solid *KX_CALL kx_block_pnts(const pnt_3d *center, double size_x, double size_y, double size_z,
                             const vector_3d *orientation, solid *given) {
  constexpr kx::primitive_kind kind{KX_SOLID_BLOCK, "kx_block_pnts", "kx_create_block"};
  return kx::build_primitive<block>(
      kind, 8, center, orientation, given, [&](solid &body, block &record, kx::solid_builder &parts) {
        body.face_count = 6;
        body.vertex_count = 8;
        record.size_x = size_x;
        record.size_y = size_y;
        record.size_z = size_z;
        kx::set_extents(body, kx::value(record.center), {0.5 * size_x, 0.5 * size_y, 0.5 * size_z});
        return kx::build_box(parts, {body.xmin, body.ymin, body.zmin}, {body.xmax, body.ymax, body.zmax}, 1);
      });
}

solid *KX_CALL kx_cylinder_pnts(const pnt_3d *center, double diameter_x, double diameter_y, double height,
                                int32_t *sectors, const vector_3d *orientation, solid *given) {
  constexpr kx::primitive_kind kind{KX_SOLID_CYLINDER, "kx_cylinder_pnts", "kx_create_cylinder"};
  if (sectors == nullptr) return nullptr;
  const std::int64_t adjusted = kx::section_sectors(diameter_x, diameter_y, *sectors);
  if (center == nullptr || 2 * adjusted + 2 > KX_SOLID_VERTICES_MOST) return nullptr;
  const auto n = static_cast<std::int32_t>(adjusted);
  *sectors = n;
  return kx::build_primitive<cylinder>(
      kind, 2 * adjusted + 2, center, orientation, given, [&](solid &body, cylinder &record, kx::solid_builder &parts) {
        // Without the two centres and with each cap as one face, on purpose: hosts show these as the body's own.
        body.face_count = n + 2;
        body.vertex_count = 2 * n;
        record.diameter_x = diameter_x;
        record.diameter_y = diameter_y;
        record.height = height;
        record.sectors = n;
        const kx::vec3 c = kx::value(record.center), half{0.5 * diameter_x, 0.5 * diameter_y, 0.5 * height};
        kx::set_extents(body, c, half);
        return cylinder_vertices(parts, {{c.x, c.y, c.z + half.z}, half.x, half.y}, c.z - half.z, n) &&
               cylinder_faces(parts, n);
      });
}

solid *KX_CALL kx_torus_pnts(const pnt_3d *center, double radius_1, double radius_2, int32_t p, int32_t q,
                             const vector_3d *orientation, solid *given) {
  constexpr kx::primitive_kind kind{KX_SOLID_TORUS, "kx_torus_pnts", "kx_create_torus"};
  if (p < 3) p = 3;
  if (q < 3) q = 3;
  return kx::build_primitive<torus>(
      kind, std::int64_t{p} * q, center, orientation, given, [&](solid &body, torus &record, kx::solid_builder &parts) {
        const bool in_order = kx::less_equal(radius_2, radius_1);
        const double major = in_order ? radius_1 : radius_2, minor = in_order ? radius_2 : radius_1;
        body.face_count = body.vertex_count = p * q;
        record.major_radius = major;
        record.minor_radius = minor;
        record.sectors = p;
        record.tube_sectors = q;
        const kx::vec3 c = kx::value(record.center);
        kx::set_extents(body, c, {major + minor, major + minor, minor});
        // The tube's radius is added here too, on purpose: hosts frame their views by this box.
        body.xmin = c.x - major + minor;
        return torus_vertices(parts, c, major, minor, p, q) && torus_faces(parts, p, q);
      });
}
