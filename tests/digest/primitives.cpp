// Left out, transcendental: kx_regpolyxyzpnts kx_ellipsexyzpnts kx_cylinder_pnts kx_torus_pnts kx_tetrahedron_pnts
// kx_dodecahedron_pnts kx_icosahedron_pnts kx_regpolyhedronpnts kx_sphere_pnts kx_ellipsoid_pnts kx_spherical_dome_pnts
// kx_spherical_cup_pnts kx_cone_pnts kx_hcylinder_pnts kx_hyperboloid_pnts kx_hyperboloid1s kx_hyperboloid2s
// kx_paraboloid_pnts kx_prism_pnts kx_bodyrevolution; and of every normal its angle
#include <initializer_list>

#include "batch.hpp"

namespace digest {
namespace {

template <class T>
void made(T *(KX_CALL *create)(), void(KX_CALL *purge)(T *)) {
  T *record = create();
  hash_record(record);
  purge(record);
}

void hash_faces(const list_hdr *faces) {
  for (const list_item *item = faces->head; item; item = item->next) {
    const auto &face = *static_cast<const polyface_3d *>(item->data);
    hash(face.face_number), hash(face.vertex_count);
    hash(face.normal.i), hash(face.normal.j), hash(face.normal.k), hash(face.normal.length);
    for (int i = 0; i < 4; ++i) hash(face.vertex_numbers[i]), hash(face.vertex_attributes[i]);
  }
}

void hash(solid *s) {
  for (const double side : {s->xmin, s->ymin, s->zmin, s->xmax, s->ymax, s->zmax}) digest::hash(side);
  digest::hash(s->face_count), digest::hash(s->vertex_count);
  hash_list(s->vertex_list);
  hash_faces(s->face_list);
  kx_purge_solid(s);
}

void bodies() {
  argument<vector_3d *> up;
  const vector_3d none = {};
  const pnt_3d at = argument<pnt_3d *>().values[0], size = argument<pnt_3d *>().values[0];
  hash(kx_block_pnts(&at, size.x, size.y, size.z, up, nullptr));
  hash(kx_hexahedron_pnts(&at, size.x, up, nullptr));
  hash(kx_pyramid_pnts(&at, size.x, size.y, size.z, up, nullptr));
  solid *s = kx_octahedron_pnts(&at, size.x, &none, nullptr);
  int32_t next = s->face_count;
  digest::hash(kx_arc_faces(&next, 4, 0, below(2), s->vertex_list, s->face_list));
  hash(kx_transform_solid_vector(s, up));
}

// There below the x axis and back above it, with as many corners as one face has, or more.
void extruded() {
  const std::int32_t n = 3 + below(50);
  list_hdr profile = {};
  for (std::int32_t i = 0; i < n; ++i) {
    const double u = 4.0 * i / n - 1.0, x = u < 1.0 ? u : 2.0 - u;
    const double y = (u < 1.0 ? -1.0 : 1.0) * (1 + below(4)) * (1.0 - x * x);
    pnt_2d *p = kx_create_pnt_2d();
    kx_set_pnt_2d(9.0 * x, y, p);
    ll_add_list_item(&profile, 1, p, KX_PNT_2D);
  }
  const pnt_3d at = argument<pnt_3d *>().values[0];
  solid *s = kx_extbody_pnts(&at, &profile, at.x, argument<vector_3d *>(), nullptr);
  digest::hash(std::int32_t{s != nullptr});
  if (s) hash(s);
  kx_clear_polygon(&profile);
}

void with_profiles() {
  const pnt_3d at = {1, 2, 3};
  bodyrev *turned = kx_create_bodyrev();
  extbody *moved = kx_create_extbody();
  kx_set_bodyrev(&at, points(3, KX_PNT_2D), 4, 5, 6, 7, 8, 9, turned);
  kx_set_extbody(&at, points(3, KX_PNT_2D), 4, 5, 6, 7, moved);
  double d[9] = {};
  int32_t n = 0;
  list_hdr *first = nullptr, *second = nullptr;
  kx_get_bodyrev(nullptr, &first, d, d + 1, &n, d + 2, d + 3, d + 4, turned);
  kx_get_extbody(nullptr, &second, d + 5, d + 6, d + 7, d + 8, moved);
  for (const double value : d) digest::hash(value);
  digest::hash(n), hash_list(first), hash_list(second);
  kx_purge_bodyrev(turned), kx_purge_extbody(moved);
}

}  // namespace

void primitives() {
  for (const bool edges : {false, true}) {
    wild = edges;
    for (int i = 0; i < 50; ++i) bodies(), extruded();
  }
  wild = false;
  made(kx_create_block, kx_purge_block), made(kx_create_cylinder, kx_purge_cylinder);
  made(kx_create_torus, kx_purge_torus), made(kx_create_tetrahedron, kx_purge_tetrahedron);
  made(kx_create_hexahedron, kx_purge_hexahedron), made(kx_create_octahedron, kx_purge_octahedron);
  made(kx_create_dodecahedron, kx_purge_dodecahedron), made(kx_create_icosahedron, kx_purge_icosahedron);
  made(kx_create_sphere, kx_purge_sphere), made(kx_create_ellipsoid, kx_purge_ellipsoid);
  made(kx_create_prism, kx_purge_prism), made(kx_create_cone, kx_purge_cone);
  made(kx_create_hcylinder, kx_purge_hcylinder), made(kx_create_hyperboloid, kx_purge_hyperboloid);
  made(kx_create_paraboloid, kx_purge_paraboloid), made(kx_create_pyramid, kx_purge_pyramid);
  batches(kx_set_block, kx_set_cylinder, kx_set_torus, kx_set_tetrahedron, kx_set_hexahedron, kx_set_octahedron,
          kx_set_dodecahedron, kx_set_icosahedron, kx_get_block, kx_get_cylinder, kx_get_torus, kx_get_tetrahedron,
          kx_get_hexahedron, kx_get_octahedron, kx_get_dodecahedron, kx_get_icosahedron);
  batches(kx_set_sphere, kx_set_ellipsoid, kx_set_prism, kx_set_cone, kx_set_hcylinder, kx_set_hyperboloid,
          kx_set_paraboloid, kx_set_pyramid, kx_get_sphere, kx_get_ellipsoid, kx_get_prism, kx_get_cone,
          kx_get_hcylinder, kx_get_hyperboloid, kx_get_paraboloid, kx_get_pyramid);
  with_profiles();
}

}  // namespace digest
