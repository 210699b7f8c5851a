// Solids: the record's life, its faces and vertices one by one, and the primitive that hangs from it.
#include "kxgeom/list.h"
#include "kxgeom/records.h"
#include "list/items.hpp"
#include "records/dimension.hpp"
#include "records/output.hpp"
#include "records/polyface.hpp"
#include "records/primitive.hpp"
#include "records/solid_builder.hpp"

namespace {

// Empties a face list by its count, where the number of a face's further vertices takes the place of the count so far:
// on purpose, a host may hold the faces behind one with so many. Never past the end of the list, whatever the count
// says.
void empty_faces(list_hdr &faces) {
  const std::int32_t count = faces.count;
  list_item *item = faces.head;
  for (std::int64_t i = 0; i < count && item; ++i) {
    i = 0;
    if (item->datatype == KX_POLYFACE_3D && item->data) {
      const polyface_3d &face = *static_cast<polyface_3d *>(item->data);
      if (face.more_vertices) {
        i = kx::count(face.more_vertices);
        kx::release_more_vertices(face);
        kx::release(face.more_vertices);
      }
      kx::release(item->data);
    }
    list_item *next = item->next;
    kx::release(item);
    item = next;
  }
  faces = {};
}

// The list of the solid that takes over the items of a given one. Null when there is none and none can be created.
list_hdr *existing_or_new(list_hdr *list) { return list ? list : ll_create_list(); }

// A header that only lends its items has the same first item as the list that holds them.
bool same_items(const list_hdr &list, const list_hdr &given) { return list.head == given.head; }

list_hdr header_of(const list_hdr *list) { return list ? *list : list_hdr{}; }

// Makes the item at a position code current; null, the position unmoved, when there is none.
list_item *item_at(list_hdr *list, std::int32_t position) {
  if (kx::empty(list) || position < 0 || position > 4) return nullptr;
  ll_set_list_currpntr(list, position);
  return list->current;
}

// Counts wrap round at the ends of the integers.
std::int32_t plus(std::int32_t count, std::int32_t n) {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(count) + static_cast<std::uint32_t>(n));
}

template <class T>
void *copy_flat(const char *location, const void *record) {
  T *copy = kx::create_primitive<T>(location);
  if (copy) *copy = *static_cast<const T *>(record);
  return copy;
}

template <class T>
void *copy_profiled(const char *location, const void *record) {
  T *copy = kx::create_primitive<T>(location);
  if (copy == nullptr) return nullptr;
  *copy = *static_cast<const T *>(record);
  list_hdr *profile = copy->profile;
  if (profile == nullptr) return copy;
  copy->profile = ll_create_list();
  if (copy->profile && kx_copy_polygon(profile, copy->profile) >= 0) return copy;
  kx::dispose_list(copy->profile);
  kx::release(copy);
  return nullptr;
}

// Frees a copy that was not finished; all that hangs from it is the library's.
void dispose(solid *copy) {
  if (copy->face_list) kx::dispose_faces(*copy->face_list);
  kx::release(copy->face_list);
  kx::dispose_list(copy->vertex_list);
  kx::purge_primitive(copy->solid_type, copy->solid_data);
  kx::release(copy);
}

// Copies the lists and the record of a solid; false when the heap has no room, with what is there hung on the copy.
bool copy_parts(const solid &source, solid &copy) {
  if (source.face_list) {
    copy.face_list = ll_create_list();
    if (copy.face_list == nullptr) return false;
  }
  for (const list_item &item : kx::items(source.face_list)) {
    const polyface_3d *face = kx::face_of(item);
    polyface_3d *record = face ? kx_copy_polyface_3d(face) : nullptr;
    // A face that fails is left out and the others are copied all the same: hosts take a solid with a hole over none.
    if (record && !kx::append(*copy.face_list, record, KX_POLYFACE_3D)) kx::dispose_face(record);
  }
  if (source.vertex_list) {
    copy.vertex_list = ll_create_list();
    if (copy.vertex_list == nullptr || kx_copy_polygon(source.vertex_list, copy.vertex_list) < 0) return false;
  }
  copy.solid_data = kx_copy_solid_data(source.solid_type, source.solid_data);
  return copy.solid_data || source.solid_data == nullptr || !kx::is_primitive(source.solid_type);
}

}  // namespace

void kx::purge_bodyrev(void *record) {
  if (record == nullptr) return;
  kx_purge_polygon(static_cast<bodyrev *>(record)->profile);
  release(record);
}

void kx::purge_primitive(std::int32_t solid_type, void *record) {
  if (solid_type == KX_SOLID_BODYREV || solid_type == KX_SOLID_EXTBODY) {
    purge_bodyrev(record);
  } else if (is_primitive(solid_type)) {
    release(record);
  }
}

solid *KX_CALL kx_create_solid(void) { return kx::create<solid>("kx_create_solid"); }

int32_t KX_CALL kx_init_solid(solid *s) {
  if (s) *s = {};
  return 0;
}

int32_t KX_CALL kx_set_solid(int32_t solid_type, int32_t face_count, int32_t vertex_count, double xmin, double ymin,
                             double zmin, double xmax, double ymax, double zmax, const list_hdr *faces,
                             const list_hdr *vertices, void *solid_data, solid *s) {
  if (s == nullptr) return 0;
  list_hdr *face_list = existing_or_new(s->face_list);
  list_hdr *vertex_list = face_list ? existing_or_new(s->vertex_list) : nullptr;
  if (vertex_list == nullptr) {
    if (face_list != s->face_list) kx::release(face_list);
    return 0;
  }
  const list_hdr given_faces = header_of(faces), given_vertices = header_of(vertices);
  // Items that are the solid's already are not freed under the hands of the host who gives them back.
  if (!same_items(*vertex_list, given_vertices)) kx_clear_polygon(vertex_list);
  if (!same_items(*face_list, given_faces)) empty_faces(*face_list);
  *vertex_list = given_vertices;
  *face_list = given_faces;
  *s = {solid_type, face_count, vertex_count, xmin, ymin, zmin, xmax, ymax, zmax, face_list, vertex_list, solid_data};
  return given_faces.count;
}

list_hdr *KX_CALL kx_get_solid(int32_t *solid_type, int32_t *face_count, int32_t *vertex_count, double *xmin,
                               double *ymin, double *zmin, double *xmax, double *ymax, double *zmax, list_hdr *faces,
                               list_hdr *vertices, const solid *s) {
  if (s == nullptr) return nullptr;
  kx::put<std::int32_t>(solid_type, s->solid_type);
  kx::put<std::int32_t>(face_count, s->face_count);
  kx::put<std::int32_t>(vertex_count, s->vertex_count);
  kx::put<double>(xmin, s->xmin);
  kx::put<double>(ymin, s->ymin);
  kx::put<double>(zmin, s->zmin);
  kx::put<double>(xmax, s->xmax);
  kx::put<double>(ymax, s->ymax);
  kx::put<double>(zmax, s->zmax);
  kx::put(faces, header_of(s->face_list));
  kx::put(vertices, header_of(s->vertex_list));
  return faces;
}

void *KX_CALL kx_get_solid_data(const solid *s) { return s ? s->solid_data : nullptr; }

int32_t KX_CALL kx_purge_solid(solid *s) {
  const std::int32_t result = kx_clear_solid(s);
  kx::release(s);
  return result;
}

int32_t KX_CALL kx_clear_solid(solid *s) {
  if (s == nullptr) return 0;
  if (s->face_list) empty_faces(*s->face_list);
  ll_purge_list(s->face_list);
  kx_purge_polygon(s->vertex_list);
  kx::purge_primitive(s->solid_type, s->solid_data);
  s->face_list = s->vertex_list = nullptr;
  s->solid_data = nullptr;
  return 0;
}

solid *KX_CALL kx_copy_solid(const solid *s) {
  solid *copy = s ? kx_create_solid() : nullptr;
  if (copy == nullptr) return nullptr;
  *copy = *s;
  copy->face_list = copy->vertex_list = nullptr;
  copy->solid_data = nullptr;
  if (copy_parts(*s, *copy)) return copy;
  dispose(copy);
  return nullptr;
}

void *KX_CALL kx_copy_solid_data(int32_t solid_type, const void *record) {
  if (record == nullptr) return nullptr;
  switch (solid_type) {
    case KX_SOLID_SPHERE: return copy_flat<sphere>("kx_create_sphere", record);
    case KX_SOLID_CYLINDER: return copy_flat<cylinder>("kx_create_cylinder", record);
    case KX_SOLID_ELLIPSOID: return copy_flat<ellipsoid>("kx_create_ellipsoid", record);
    case KX_SOLID_BLOCK: return copy_flat<block>("kx_create_block", record);
    case KX_SOLID_PRISM: return copy_flat<prism>("kx_create_prism", record);
    case KX_SOLID_CONE: return copy_flat<cone>("kx_create_cone", record);
    case KX_SOLID_HCYLINDER: return copy_flat<hcylinder>("kx_create_hcylinder", record);
    case KX_SOLID_HYPERBOLOID:
    case KX_SOLID_HYPERBOLOID1S:
    case KX_SOLID_HYPERBOLOID2S: return copy_flat<hyperboloid>("kx_create_hyperboloid", record);
    case KX_SOLID_PARABOLOID: return copy_flat<paraboloid>("kx_create_paraboloid", record);
    case KX_SOLID_PYRAMID: return copy_flat<pyramid>("kx_create_pyramid", record);
    case KX_SOLID_TORUS: return copy_flat<torus>("kx_create_torus", record);
    case KX_SOLID_BODYREV: return copy_profiled<bodyrev>("kx_create_bodyrev", record);
    case KX_SOLID_EXTBODY: return copy_profiled<extbody>("kx_create_extbody", record);
    case KX_SOLID_TETRAHEDRON: return copy_flat<tetrahedron>("kx_create_tetrahedron", record);
    case KX_SOLID_HEXAHEDRON: return copy_flat<hexahedron>("kx_create_hexahedron", record);
    case KX_SOLID_OCTAHEDRON: return copy_flat<octahedron>("kx_create_octahedron", record);
    case KX_SOLID_DODECAHEDRON: return copy_flat<dodecahedron>("kx_create_dodecahedron", record);
    case KX_SOLID_ICOSAHEDRON: return copy_flat<icosahedron>("kx_create_icosahedron", record);
    default: return nullptr;
  }
}

int32_t KX_CALL kx_add_face(int32_t face_number, const int32_t *numbers, const int32_t *attributes,
                            int32_t vertex_count, solid *s) {
  if (s == nullptr) return 0;
  vector_3d normal = {};
  if (numbers && vertex_count >= 3) kx_get_face_normal(numbers[0], numbers[1], numbers[2], s->vertex_list, &normal);
  polyface_3d face;
  if (kx_set_polyface_3d(face_number, vertex_count, numbers, attributes, &normal, &face) != 0) return 0;
  s->face_list = existing_or_new(s->face_list);
  if (s->face_list == nullptr || !kx::append_face(*s->face_list, face)) return 0;
  s->face_count = plus(s->face_count, 1);
  return 1;
}

int32_t KX_CALL kx_delete_face(solid *s, int32_t position) {
  const list_item *item = s ? item_at(s->face_list, position) : nullptr;
  if (item == nullptr || item->datatype != KX_POLYFACE_3D) return 0;
  kx_purge_polyface_3d(static_cast<polyface_3d *>(ll_delete_list_item(s->face_list, 4, 2)));
  s->face_count = plus(s->face_count, -1);
  return 1;
}

// The count falls a second time for each face, and once more for the call that finds none: hosts that number their
// faces onwards from it rely on that.
int32_t KX_CALL kx_delete_face_list(solid *s) {
  if (s == nullptr || s->face_list == nullptr) return 0;
  ll_set_list_currpntr(s->face_list, 0);
  std::int32_t removed = 0;
  for (bool more = true; more; removed += more) {
    more = kx_delete_face(s, 4) == 1;
    s->face_count = plus(s->face_count, -1);
  }
  return removed;
}

int32_t KX_CALL kx_add_vertex(solid *s, int32_t number, const pnt_3d *pnt, int32_t position) {
  if (s == nullptr || pnt == nullptr) return 0;
  s->vertex_list = existing_or_new(s->vertex_list);
  poly_3d *vertex = s->vertex_list ? kx::create_poly_3d() : nullptr;
  if (vertex == nullptr) return 0;
  *vertex = {number, pnt->x, pnt->y, pnt->z};
  if (!ll_add_list_item(s->vertex_list, position == 0 ? 0 : 1, vertex, KX_POLY_3D)) {
    kx::release(vertex);
    return 0;
  }
  s->vertex_count = plus(s->vertex_count, 1);
  kx::widen_extents(*s, kx::value(*pnt));
  return 1;
}

int32_t KX_CALL kx_delete_vertex(solid *s, int32_t position) {
  const list_item *item = s ? item_at(s->vertex_list, position) : nullptr;
  if (item == nullptr || !kx::is_point(item->datatype)) return 0;
  kx::release(ll_delete_list_item(s->vertex_list, 4, 2));
  s->vertex_count = plus(s->vertex_count, -1);
  return 1;
}

int32_t KX_CALL kx_delete_vertex_list(solid *s) {
  if (s == nullptr || s->vertex_list == nullptr) return 0;
  ll_set_list_currpntr(s->vertex_list, 0);
  std::int32_t removed = 0;
  while (kx_delete_vertex(s, 4) == 1) ++removed;
  return removed;
}
