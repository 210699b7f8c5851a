// Faces of solids and surfaces: the record and its ring, the normals, and finding faces and vertices in their lists.
#include <cstring>

#include "kxgeom/list.h"
#include "kxgeom/records.h"
#include "list/items.hpp"
#include "records/dimension.hpp"
#include "records/output.hpp"
#include "records/polyface.hpp"
#include "records/solid_builder.hpp"

namespace {

void put_attributes(std::int32_t *out, const polyface_3d &face, std::int32_t n) {
  if (out == nullptr) return;
  for (std::int32_t i = 0; i < n && i < kx::inline_corners; ++i) out[i] = face.vertex_attributes[i];
}

void put_slots(std::int32_t *out, const polyface_3d &face) {
  if (out) kx::visit_inline_ring(face, [out](std::int32_t i, std::int32_t number) { out[i] = number; });
}

// A copy of a list as kx_copy_polygon sees it, null for no list; false when the heap has no room.
bool copy_list(list_hdr *from, list_hdr **to) {
  *to = nullptr;
  if (from == nullptr) return true;
  list_hdr *copy = ll_create_list();
  if (copy == nullptr) return false;
  if (kx_copy_polygon(from, copy) < 0) {
    kx::dispose_list(copy);
    return false;
  }
  *to = copy;
  return true;
}

// The place in the vertex list of a corner of a face, null when there is none.
const poly_3d *corner(const kx::scratch<const poly_3d *> &vertices, std::int32_t n, std::int32_t place) {
  return place >= 0 && place < n ? vertices[place] : nullptr;
}

}  // namespace

bool kx::set_ring(polyface_3d &face, const std::int32_t *numbers, std::int32_t n) {
  face.vertex_count = n;
  const std::int32_t fitting = n <= KX_RING_MOST ? n : inline_corners;
  for (std::int32_t i = 0; i < fitting; ++i) ring_slot(face, i) = numbers[i];
  if (n <= inline_corners) return true;
  list_hdr *more = ll_create_list();
  bool done = more != nullptr;
  for (std::int32_t i = inline_corners; done && i < n; ++i) {
    inumber *number = create_inumber();
    if (number) number->value = numbers[i];
    done = number && append(*more, number, KX_INUMBER);
    if (!done) release(number);
  }
  if (done) {
    face.more_vertices = more;
  } else {
    dispose_list(more);
  }
  return done;
}

polyface_3d *KX_CALL kx_create_polyface_3d(void) { return kx::create_polyface(); }

void KX_CALL kx_purge_polyface_3d(polyface_3d *face) {
  kx_clear_polyface_3d(face);
  kx::release(face);
}

// The header is whoever's hung it there, and often no block of the heap; face_points is a host's own altogether.
void KX_CALL kx_clear_polyface_3d(polyface_3d *face) {
  if (face) kx::release_more_vertices(*face);
}

int32_t KX_CALL kx_set_polyface_3d(int32_t face_number, int32_t vertex_count, const int32_t *numbers,
                                   const int32_t *attributes, const vector_3d *normal, polyface_3d *face) {
  if (face == nullptr) return 1;
  if (vertex_count > KX_RING_MOST || (vertex_count > 0 && numbers == nullptr)) return 2;
  const vector_3d given = normal ? *normal : vector_3d{};
  *face = {};
  face->face_number = face_number;
  face->vertex_count = vertex_count;
  face->normal = given;
  // By turns on purpose: in a ring of more than four the later numbers replace the first attributes.
  for (std::int32_t i = 0; i < vertex_count; ++i) {
    kx::ring_slot(*face, i + kx::inline_corners) = attributes ? attributes[i] : 0;
    kx::ring_slot(*face, i) = numbers[i];
  }
  return 0;
}

int32_t KX_CALL kx_get_polyface_3d(int32_t *face_number, int32_t *vertex_count, int32_t *numbers, int32_t *attributes,
                                   vector_3d *normal, const polyface_3d *face) {
  if (face == nullptr) return 1;
  kx::put<std::int32_t>(face_number, face->face_number);
  kx::put<std::int32_t>(vertex_count, face->vertex_count);
  kx::put<vector_3d>(normal, face->normal);
  put_attributes(attributes, *face, face->vertex_count);
  if (face->vertex_count > kx::inline_corners && face->more_vertices) ll_set_list_currpntr(face->more_vertices, 0);
  const auto store = [numbers](std::int32_t i, std::int32_t number) {
    if (numbers) numbers[i] = number;
  };
  return kx::visit_listed_ring(*face, store) ? 0 : 2;
}

polyface_3d *KX_CALL kx_copy_polyface_3d(const polyface_3d *face) {
  if (face == nullptr) return nullptr;
  list_hdr *more = nullptr, *points = nullptr;
  const bool copied = copy_list(face->more_vertices, &more) && copy_list(face->face_points, &points);
  polyface_3d *copy = copied ? kx::create_polyface() : nullptr;
  if (copy == nullptr) {
    kx::dispose_list(more);
    kx::dispose_list(points);
    return nullptr;
  }
  *copy = *face;
  copy->more_vertices = more;
  copy->face_points = points;
  return copy;
}

// The tip of the normal drawn from the second corner, and not the normal itself: hosts draw it as it stands.
int32_t KX_CALL kx_create_face_normal(const list_hdr *vertices, list_hdr *faces) {
  if (vertices == nullptr || faces == nullptr) return 1;
  std::int64_t room = 1;
  for ([[maybe_unused]] const list_item &item : kx::items(vertices)) ++room;
  kx::scratch<const poly_3d *> records(room);
  if (!records) return 80;
  std::int32_t n = 0;
  for (const list_item &item : kx::items(vertices)) records[n++] = kx::vertex_of(item);
  for (const list_item &item : kx::items(faces)) {
    polyface_3d *face = kx::face_of(item);
    if (face == nullptr || face->vertex_count < 3) continue;
    const poly_3d *v0 = corner(records, n, face->vertex_numbers[0]), *v1 = corner(records, n, face->vertex_numbers[1]),
                  *v2 = corner(records, n, face->vertex_numbers[2]);
    if (!v0 || !v1 || !v2) continue;
    const kx::vec3 p1 = kx::space::read(*v1);
    const kx::vec3 tip = cross(kx::space::read(*v0) - p1, kx::space::read(*v2) - p1) + p1;
    face->normal.i = tip.x;
    face->normal.j = tip.y;
    face->normal.k = tip.z;
  }
  return 0;
}

int32_t KX_CALL kx_get_face_normal(int32_t a, int32_t b, int32_t c, list_hdr *vertices, vector_3d *normal) {
  if (vertices == nullptr || normal == nullptr) return 1;
  vertices->current = vertices->head;
  kx::vec3 v[3];
  int found = 0;
  std::int32_t seen = 0;
  // In list order on purpose, whatever the order of the three numbers.
  for (const list_item &item : kx::items(vertices)) {
    ++seen;
    const poly_3d *vertex = kx::vertex_of(item);
    if (vertex == nullptr) continue;
    const std::int32_t number = vertex->seqnr;
    if (number != a && number != b && number != c) continue;
    v[found++] = kx::space::read(*vertex);
    if (found < 3) continue;
    *normal = kx::face_normal(v[0], v[1], v[2]);
    return 0;
  }
  return seen < 3 ? 2 : 3;
}

int32_t KX_CALL kx_get_next_face_loc(list_hdr *faces, int32_t *face_number, int32_t *vertex_count, int32_t *numbers,
                                     int32_t *attributes, vector_3d *normal, int32_t position) {
  if (faces == nullptr) return 0;
  ll_set_list_currpntr(faces, position >= 0 && position <= 4 ? position : 0);
  const list_item *item = kx::current(faces);
  const polyface_3d *face = item ? kx::face_of(*item) : nullptr;
  if (face == nullptr) return 0;
  kx::put<std::int32_t>(face_number, face->face_number);
  kx::put<std::int32_t>(vertex_count, face->vertex_count);
  put_slots(numbers, *face);
  put_attributes(attributes, *face, kx::inline_corners);
  kx::put<vector_3d>(normal, face->normal);
  return 1;
}

int32_t KX_CALL kx_get_face(const list_hdr *faces, int32_t face_number, double *normal, int32_t *attributes,
                            int32_t *numbers) {
  if (kx::empty(faces)) return 0;
  for (const list_item &item : kx::items(faces)) {
    const polyface_3d *face = kx::face_of(item);
    if (face == nullptr) return 0;
    if (face->face_number != face_number) continue;
    if (normal) {
      const double components[3] = {face->normal.i, face->normal.j, face->normal.k};
      std::memcpy(normal, components, sizeof components);
    }
    put_attributes(attributes, *face, kx::inline_corners);
    put_slots(numbers, *face);
    break;
  }
  return 1;
}

int32_t KX_CALL kx_get_facevertex(const list_hdr *vertices, int32_t number, pnt_3d *pnt) {
  for (const list_item &item : kx::items(vertices)) {
    const poly_3d *vertex = kx::vertex_of(item);
    if (vertex == nullptr || vertex->seqnr != number) continue;
    kx::put(pnt, kx::record(kx::space::read(*vertex)));
    return 1;
  }
  return 0;
}

int32_t KX_CALL kx_get_vertex_list(list_hdr *vertices, void **records) { return ll_get_list_array(vertices, records); }
