// Left out, transcendental: kx_regpolyxyzpnts kx_ellipsexyzpnts kx_cylinder_pnts kx_torus_pnts kx_tetrahedron_pnts
// kx_dodecahedron_pnts kx_icosahedron_pnts kx_regpolyhedronpnts; and of every normal its angle
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
  solid *s = kx_octahedron_pnts(&at, size.x, &none, nullptr);
  int32_t next = s->face_count;
  digest::hash(kx_arc_faces(&next, 4, 0, below(2), s->vertex_list, s->face_list));
  hash(kx_transform_solid_vector(s, up));
}

}  // namespace

void primitives() {
  for (const bool edges : {false, true}) {
    wild = edges;
    for (int i = 0; i < 50; ++i) bodies();
  }
  wild = false;
  made(kx_create_block, kx_purge_block), made(kx_create_cylinder, kx_purge_cylinder);
  made(kx_create_torus, kx_purge_torus), made(kx_create_tetrahedron, kx_purge_tetrahedron);
  made(kx_create_hexahedron, kx_purge_hexahedron), made(kx_create_octahedron, kx_purge_octahedron);
  made(kx_create_dodecahedron, kx_purge_dodecahedron), made(kx_create_icosahedron, kx_purge_icosahedron);
  batches(kx_set_block, kx_set_cylinder, kx_set_torus, kx_set_tetrahedron, kx_set_hexahedron, kx_set_octahedron,
          kx_set_dodecahedron, kx_set_icosahedron, kx_get_block, kx_get_cylinder, kx_get_torus, kx_get_tetrahedron,
          kx_get_hexahedron, kx_get_octahedron, kx_get_dodecahedron, kx_get_icosahedron);
}

}  // namespace digest
