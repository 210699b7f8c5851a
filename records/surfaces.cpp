// Surface records: create, clear, copy, purge, and the faces of their mesh.
#include <algorithm>
#include <array>
#include <cstring>
#include <utility>

#include "kxgeom/list.h"
#include "kxgeom/records.h"
#include "list/items.hpp"
#include "records/polyface.hpp"
#include "records/solid_builder.hpp"
#include "records/surface_limits.hpp"
#include "records/vertex_table.hpp"

namespace {

// The five point lists, by value: the record is packed, so none of its fields may be referred to.
using point_lists = std::array<list_hdr *, 5>;

point_lists lists_of(const surface &s) {
  return {s.control_points, s.vertices, s.extra_list_1, s.extra_list_2, s.extra_list_3};
}

void hang(surface &s, const point_lists &lists) {
  s.control_points = lists[0];
  s.vertices = lists[1];
  s.extra_list_1 = lists[2];
  s.extra_list_2 = lists[3];
  s.extra_list_3 = lists[4];
}

// Frees the faces of a list, each as kx_purge_polyface_3d does; items that are no faces are only unlinked.
void purge_faces(list_hdr *faces) {
  if (faces == nullptr) return;
  for (list_item &item : kx::items(faces)) {
    if (item.datatype == KX_POLYFACE_3D) kx_purge_polyface_3d(static_cast<polyface_3d *>(item.data));
    kx::release(&item);
  }
  *faces = {};
}

// Items of a surface on their way to another: empty headers that go with the record's, or are freed with their items.
struct copied_lists {
  point_lists points = {};
  list_hdr *faces = nullptr;

  ~copied_lists() {
    for (list_hdr *list : points) kx::dispose_list(list);
    if (faces) kx::dispose_faces(*faces);
    kx::release(faces);
  }

  // False when the heap has no room.
  bool take(const surface &s) {
    const point_lists from = lists_of(s);
    for (std::size_t i = 0; i < from.size(); ++i) {
      if (from[i] == nullptr) continue;
      points[i] = ll_create_list();
      if (points[i] == nullptr || kx_copy_polygon(from[i], points[i]) < 0) return false;
    }
    if (s.faces == nullptr) return true;
    faces = ll_create_list();
    if (faces == nullptr) return false;
    for (const list_item &item : kx::items(s.faces)) {
      const polyface_3d *face = kx::face_of(item);
      if (face == nullptr) continue;
      polyface_3d *copy = kx_copy_polyface_3d(face);
      if (copy == nullptr) return false;
      if (kx::append(*faces, copy, KX_POLYFACE_3D)) continue;
      kx::dispose_face(copy);
      return false;
    }
    return true;
  }
};

// Puts the items of one list behind those of another, which becomes the list when there is none yet.
list_hdr *merged(list_hdr *list, list_hdr *&more) {
  if (more == nullptr) return list;
  if (list == nullptr) return std::exchange(more, nullptr);
  kx::splice(*list, *more);
  return list;
}

// The corner of a surface's face, which becomes the current vertex; its place wraps round at the end of the list.
pnt_3d corner(list_hdr *vertices, std::int32_t place) {
  if (kx::empty(vertices)) return {0.0, 0.0, 0.0};
  place = std::max(place, 0);
  while (true) {
    const std::int32_t before = place;
    for (list_item &item : kx::items(vertices)) {
      vertices->current = &item;
      if (place-- == 0) return ll_get_pnt3d(vertices, 4);
    }
    place = before % (before - place);
  }
}

}  // namespace

surface *KX_CALL kx_create_surface(void) { return kx::create<surface>("kx_create_surface"); }

int32_t KX_CALL kx_init_surface(surface *s) {
  if (s == nullptr) return 1;
  *s = {};
  return 0;
}

void KX_CALL kx_purge_surface(surface *s) {
  if (s == nullptr) return;
  for (list_hdr *list : lists_of(*s)) kx_purge_polygon(list);
  purge_faces(s->faces);
  ll_purge_list(s->faces);
  kx::release(s);
}

void KX_CALL kx_clear_surface(surface *s) {
  if (s == nullptr) return;
  for (list_hdr *list : lists_of(*s)) kx_clear_polygon(list);
  purge_faces(s->faces);
}

surface *KX_CALL kx_copy_surface(const surface *source, surface *target) {
  copied_lists lists;
  if (source == nullptr || !lists.take(*source)) return nullptr;
  if (target == nullptr) target = kx_create_surface();
  if (target == nullptr) return nullptr;
  point_lists points = lists_of(*target);
  for (std::size_t i = 0; i < points.size(); ++i) points[i] = merged(points[i], lists.points[i]);
  hang(*target, points);
  target->faces = merged(target->faces, lists.faces);
  target->surface_type = source->surface_type;
  target->surface_flags = source->surface_flags;
  std::memcpy(target->coef_x, source->coef_x, sizeof source->coef_x);
  std::memcpy(target->coef_y, source->coef_y, sizeof source->coef_y);
  std::memcpy(target->coef_z, source->coef_z, sizeof source->coef_z);
  target->step_u = source->step_u;
  target->step_v = source->step_v;
  target->steps_v = source->steps_v;  // and not steps_u: the copy keeps its own, as hosts expect
  target->min_pnt = source->min_pnt;
  target->max_pnt = source->max_pnt;
  return target;
}

int32_t KX_CALL kx_build_surface_face_list(int32_t columns, int32_t rows, list_hdr *faces, const list_hdr *vertices) {
  const std::int64_t cells = kx::grid_cells(columns, rows);
  // The stride is the number of rows on purpose: the patches that come here are square.
  const std::int64_t last_corner = std::int64_t{rows} * (std::int64_t{rows} - 1) + columns - 1;
  if (cells == 0 || cells > kx::most_cells(vertices) || last_corner > INT32_MAX) return 0;
  const kx::vertex_table table(vertices);
  if (!table) return 0;
  list_hdr built = {};
  polyface_3d face = {};
  face.vertex_count = 4;
  for (std::int32_t r = 0; r < rows - 1; ++r) {
    for (std::int32_t c = 0; c < columns - 1; ++c) {
      const std::int32_t base = r * rows + c;
      const std::int32_t ring[4] = {base, base + 1, base + 1 + rows, base + rows};
      std::memcpy(face.vertex_numbers, ring, sizeof ring);
      vector_3d normal = {};
      table.normal(ring[0], ring[1], ring[2], normal);
      face.normal = normal;
      if (!kx::append_face(built, face)) {
        kx::dispose_faces(built);
        return 0;
      }
      ++face.face_number;
    }
  }
  if (faces) {
    kx::splice(*faces, built);
  } else {
    kx::dispose_faces(built);
  }
  return face.face_number;
}

int32_t KX_CALL kx_get_surface_face(const surface *s, int32_t face_number, pnt_3d *pnts, double *normal) {
  if (s == nullptr || kx::empty(s->faces) || face_number < 0 || face_number > s->faces->count) return 0;
  // The current face alone, and its number of corners even if it is another one: hosts position the list first.
  const list_item *item = s->faces->current;
  const polyface_3d *face = item ? kx::face_of(*item) : nullptr;
  if (face == nullptr) return 0;
  if (face->face_number != face_number) return face->vertex_count;
  list_hdr *vertices = s->vertices;
  const auto store = [pnts, vertices](std::int32_t i, std::int32_t number) {
    if (pnts) pnts[i] = corner(vertices, number);
  };
  if (face->more_vertices) {
    kx::visit_listed_ring(*face, store);
  } else {
    kx::visit_inline_ring(*face, store);
  }
  if (normal) {
    const double components[3] = {face->normal.i, face->normal.j, face->normal.k};
    std::memcpy(normal, components, sizeof components);
  }
  return face->vertex_count;
}
