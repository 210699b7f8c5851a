// The turn of a finished solid into the direction of a vector.
#include "solids/turning.hpp"

#include <cstddef>

#include "kxgeom/solids.h"
#include "records/primitive.hpp"
#include "records/vertex_table.hpp"
#include "solids/extents.hpp"

namespace {

// Where a primitive's record has its centre and its axis.
struct layout {
  std::size_t center, axis;
  bool has_axis;
};

template <class T>
constexpr layout layout_of() {
  if constexpr (requires(T t) { t.axis_x; }) {
    return {offsetof(T, center), offsetof(T, axis_x), true};
  } else {
    return {offsetof(T, center), 0, false};
  }
}

// Of a type whose record is the library's.
layout layout_of(std::int32_t solid_type) {
  switch (solid_type) {
    case KX_SOLID_SPHERE: return layout_of<sphere>();
    case KX_SOLID_CYLINDER: return layout_of<cylinder>();
    case KX_SOLID_ELLIPSOID: return layout_of<ellipsoid>();
    case KX_SOLID_BLOCK: return layout_of<block>();
    case KX_SOLID_PRISM: return layout_of<prism>();
    case KX_SOLID_CONE: return layout_of<cone>();
    case KX_SOLID_HCYLINDER: return layout_of<hcylinder>();
    case KX_SOLID_HYPERBOLOID:
    case KX_SOLID_HYPERBOLOID1S:
    case KX_SOLID_HYPERBOLOID2S: return layout_of<hyperboloid>();
    case KX_SOLID_PARABOLOID: return layout_of<paraboloid>();
    case KX_SOLID_PYRAMID: return layout_of<pyramid>();
    case KX_SOLID_TORUS: return layout_of<torus>();
    case KX_SOLID_BODYREV: return layout_of<bodyrev>();
    case KX_SOLID_EXTBODY: return layout_of<extbody>();
    default: return layout_of<tetrahedron>();
  }
}

// A field that is three doubles: a point, or the axis of a record.
pnt_3d *triple_at(void *record, std::size_t offset) {
  return reinterpret_cast<pnt_3d *>(static_cast<char *>(record) + offset);
}

// The point that stays where it is. The extents are not asked when there is a record: those of a torus are lopsided.
kx::vec3 pivot(const solid &s) {
  if (s.solid_data && kx::is_primitive(s.solid_type))
    return kx::value(*triple_at(s.solid_data, layout_of(s.solid_type).center));
  return {0.5 * s.xmin + 0.5 * s.xmax, 0.5 * s.ymin + 0.5 * s.ymax, 0.5 * s.zmin + 0.5 * s.zmax};
}

void turn_axis(solid &s, const kx::lean &lean) {
  if (s.solid_data == nullptr || !kx::is_primitive(s.solid_type)) return;
  const layout fields = layout_of(s.solid_type);
  if (!fields.has_axis) return;
  pnt_3d *axis = triple_at(s.solid_data, fields.axis);
  *axis = kx::record(lean(kx::value(*axis)));
}

void turn_vertices(solid &s, const kx::lean &lean) {
  if (kx::empty(s.vertex_list)) return;
  const kx::vec3 center = pivot(s);
  kx::start_extents(s);
  for (const list_item &item : kx::items(s.vertex_list)) {
    if (kx::vertex_of(item) == nullptr) continue;
    auto *vertex = static_cast<poly_3d *>(item.data);
    const kx::vec3 from{vertex->x, vertex->y, vertex->z}, to = from + lean.shift(from - center);
    *vertex = {vertex->seqnr, to.x, to.y, to.z};
    kx::hold(s, to);
  }
}

// A normal is found anew from the turned vertices, as a host would find it. One that cannot be, for want of three
// vertices or of memory, is turned itself.
void turn_normals(const solid &s, const kx::lean &lean) {
  const kx::vertex_table table(s.vertex_list);
  for (const list_item &item : kx::items(s.face_list)) {
    polyface_3d *face = kx::face_of(item);
    if (face == nullptr) continue;
    const std::int32_t *ring = face->vertex_numbers;
    vector_3d normal = face->normal;
    if (!table || face->vertex_count < 3 || !table.normal(ring[0], ring[1], ring[2], normal))
      normal = kx::whole_record(lean(kx::value(normal)));
    face->normal = normal;
  }
}

}  // namespace

solid *KX_CALL kx_transform_solid_vector(solid *s, const vector_3d *vector) {
  if (s == nullptr || vector == nullptr) return s;
  const kx::lean lean(*vector);
  if (!lean.is_turn()) return s;
  turn_vertices(*s, lean);
  turn_normals(*s, lean);
  turn_axis(*s, lean);
  return s;
}
