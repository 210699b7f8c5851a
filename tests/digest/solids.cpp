// Faces, solids, surfaces and pictures; of a normal all but its direction, which is an arc tangent.
//   file: kx_create_surface_file kx_surfacemesh kx_read_surface_file
#include <initializer_list>

#include "batch.hpp"

namespace digest {
namespace {

void hash(const polyface_3d *face) {
  digest::hash(std::int32_t{face != nullptr});
  if (face == nullptr) return;
  std::int32_t numbers[KX_RING_MOST] = {}, attributes[4] = {}, number, count;
  vector_3d normal;
  digest::hash(kx_get_polyface_3d(&number, &count, numbers, attributes, &normal, face));
  digest::hash(number), digest::hash(count);
  for (const std::int32_t n : numbers) digest::hash(n);
  for (const std::int32_t n : attributes) digest::hash(n);
  for (const double v : {double(normal.length), double(normal.i), double(normal.j), double(normal.k)}) digest::hash(v);
}

void hash_faces(const list_hdr *faces) {
  for (const list_item *item = faces ? faces->head : nullptr; item; item = item->next)
    hash(static_cast<const polyface_3d *>(item->data));
}

void hash(const solid *s) {
  std::int32_t n[3];
  double box[6];
  list_hdr faces = {}, vertices = {};
  digest::hash(kx_get_solid(n, n + 1, n + 2, box, box + 1, box + 2, box + 3, box + 4, box + 5, &faces, &vertices, s) ==
               &faces);
  for (const std::int32_t value : n) digest::hash(value);
  for (const double value : box) digest::hash(value);
  hash_faces(&faces);
  hash_list(&vertices);
  digest::hash(std::int32_t{kx_get_solid_data(s) != nullptr});
}

void hash(const surface *s) {
  digest::hash(s->steps_u), digest::hash(s->steps_v), digest::hash(s->coef_z[1][2]);
  hash_faces(s->faces);
  if (s->vertices) hash_list(s->vertices);
}

solid *random_solid() {
  solid *s = kx_create_solid();
  for (std::int32_t i = 0, n = 3 + below(6); i < n; ++i) {
    pnt_3d p;
    digest::hash(kx_add_vertex(s, below(4) ? i : below(9), filled(&p), below(3)));
  }
  std::int32_t ring[KX_RING_MOST + 1];
  for (std::int32_t i = 0, n = 1 + below(5); i < n; ++i) {
    for (std::int32_t &number : ring) number = below(8);
    digest::hash(kx_add_face(i, ring, ring, below(4) ? 3 + below(2) : 3 + below(25), s));
  }
  s->solid_type = KX_SOLID_BODYREV;
  const bodyrev record = {{1, 2, 3}, points(3, KX_PNT_2D), 0, 360, 8, 0, 0, 1};
  s->solid_data = kx_copy_solid_data(s->solid_type, &record);
  drop(record.profile);
  return s;
}

}  // namespace

void solids() {
  for (int round = 0; round < 200; ++round) {
    wild = round % 4 == 3;
    solid *s = random_solid(), *copy = kx_copy_solid(s);
    hash(copy);
    vector_3d normal = {};
    double components[3] = {};
    std::int32_t numbers[KX_RING_MOST] = {}, attributes[4] = {}, number = 0, count = 0;
    pnt_3d p = {};
    void *records[16];
    digest::hash(kx_get_face_normal(below(8), below(8), below(8), s->vertex_list, &normal));
    digest::hash(normal.length), digest::hash(normal.k);
    digest::hash(kx_get_facevertex(s->vertex_list, below(9), &p));
    digest::hash(p);
    digest::hash(kx_get_face(s->face_list, below(6), components, attributes, numbers));
    digest::hash(kx_get_next_face_loc(s->face_list, &number, &count, numbers, attributes, &normal, below(6)));
    for (const std::int32_t n : numbers) digest::hash(n);
    digest::hash(number), digest::hash(components[1]), digest::hash(attributes[3]);
    digest::hash(kx_get_vertex_list(s->vertex_list, records));
    digest::hash(kx_create_face_normal(s->vertex_list, s->face_list));
    hash(s);
    digest::hash(kx_delete_vertex(copy, below(6))), digest::hash(kx_delete_face(copy, below(6)));
    hash(copy);
    if (below(2)) digest::hash(kx_delete_face_list(copy) + kx_delete_vertex_list(copy));
    hash(copy);
    list_hdr faces = {}, vertices = {};
    kx_get_solid(&number, &number, &count, components, components, components, components, components, components,
                 &faces, &vertices, copy);
    solid *other = kx_create_solid();
    digest::hash(kx_set_solid(0, number, count, 1, 2, 3, 4, 5, 6, &faces, &vertices, nullptr, other));
    hash(other);
    ll_init_list_hdr(copy->face_list), ll_init_list_hdr(copy->vertex_list);
    digest::hash(kx_clear_solid(other) + kx_init_solid(other));
    for (solid *each : {s, copy, other}) digest::hash(kx_purge_solid(each));

    surface *mesh = kx_create_surface();
    digest::hash(kx_init_surface(mesh));
    mesh->vertices = points(9, KX_POLY_3D), mesh->faces = ll_create_list();
    kx_renum_polygon(mesh->vertices, 0, 0, 1);
    mesh->coef_z[1][2] = number;
    digest::hash(kx_build_surface_face_list(1 + below(3), 1 + below(3), mesh->faces, mesh->vertices));
    surface *twin = kx_copy_surface(mesh, nullptr);
    pnt_3d corners[4] = {};
    digest::hash(kx_get_surface_face(twin, below(4), corners, components));
    for (const pnt_3d &corner : corners) digest::hash(corner);
    hash(twin);
    kx_clear_surface(twin);
    hash(twin);
    kx_purge_surface(twin), kx_purge_surface(mesh);

    polyface_3d *face = kx_create_polyface_3d();
    for (std::int32_t &n : numbers) n = integer();
    digest::hash(kx_set_polyface_3d(round, round % 30, numbers, numbers, &normal, face));
    polyface_3d *second = kx_copy_polyface_3d(face);
    kx_clear_polyface_3d(face);
    hash(second);
    kx_purge_polyface_3d(second), kx_purge_polyface_3d(face);
  }
  kx_purge_vertex_pnt(kx_create_vertex_pnt());
  kx_purge_bodyrev(nullptr);
  picture_area *area = kx_create_picture_area();
  for (int i = 0; i < 2; ++i) {
    digest::hash(area->area_min.x), digest::hash(std::int32_t{area->title[3]}),
        digest::hash(std::int32_t{area->labels[99].name[30]});
    kx_clear_picture_area(area);
  }
  kx_purge_picture_area(area);
}

}  // namespace digest
