// Surfaces: copies, the faces of a grid and reading them.
#include <gtest/gtest.h>

#include <cstring>

#include "kxgeom/list.h"
#include "kxgeom/records.h"
#include "list/point_kind.hpp"

namespace {

list_hdr *points(int n, int32_t tag = 63) {
  list_hdr *list = ll_create_list();
  for (int i = 0; i < n; ++i)
    ll_add_list_item(list, 1, kx::create_point(tag, {1.0 * (i % 3), 1.0 * (i / 3), 0.25 * i}, i), tag);
  return list;
}

surface *full_surface() {
  surface *s = kx_create_surface();
  s->surface_type = 303, s->surface_flags = 5, s->min_pnt = {1, 2, 3}, s->max_pnt = {4, 5, 6};
  s->coef_x[3][3] = 7, s->coef_y[0][1] = 8, s->coef_z[2][1] = 9;
  s->step_u = 0.5, s->step_v = 0.25, s->steps_v = 4, s->steps_u = 2;
  s->control_points = points(2, 62), s->vertices = points(9), s->extra_list_3 = points(1, 51);
  s->faces = ll_create_list();
  kx_build_surface_face_list(3, 3, s->faces, s->vertices);
  return s;
}

TEST(surfaces, faces_of_a_grid_run_by_rows_with_the_stride_of_the_rows) {
  list_hdr *vertices = points(9), *faces = ll_create_list();
  ASSERT_EQ(kx_build_surface_face_list(3, 3, faces, vertices), 4);
  const int32_t rings[4][4] = {{0, 1, 4, 3}, {1, 2, 5, 4}, {3, 4, 7, 6}, {4, 5, 8, 7}};
  int32_t i = 0;
  for (const list_item *item = faces->head; item; item = item->next, ++i) {
    const auto *face = static_cast<polyface_3d *>(item->data);
    vector_3d n, stored = face->normal;
    EXPECT_EQ(kx_get_face_normal(rings[i][0], rings[i][1], rings[i][2], vertices, &n), 0);
    EXPECT_TRUE(face->face_number == i && face->vertex_count == 4 &&
                std::memcmp(face->vertex_numbers, rings[i], 16) == 0 && item->datatype == 78);
    EXPECT_EQ(std::memcmp(&n, &stored, sizeof n), 0);
  }
  EXPECT_TRUE(kx_build_surface_face_list(2, 4, faces, nullptr) == 3 && faces->count == 7 &&
              faces->current == faces->tail);
  EXPECT_EQ(static_cast<polyface_3d *>(faces->tail->data)->vertex_numbers[2], 2 * 4 + 1 + 4);
  EXPECT_EQ(kx_build_surface_face_list(3, 3, nullptr, vertices), 4) << "for their number alone";
  EXPECT_EQ(kx_build_surface_face_list(1, 3, faces, vertices) + kx_build_surface_face_list(3, 1, faces, vertices), 0);
  EXPECT_EQ(kx_build_surface_face_list(1002, 1002, faces, vertices), 0);
  EXPECT_EQ(kx_build_surface_face_list(2, 500000, faces, vertices), 0) << "corners past 32 bits";
  surface s = {};
  s.vertices = vertices, s.faces = faces;
  kx_clear_surface(&s);
  EXPECT_TRUE(faces->count == 0 && vertices->count == 0 && ll_purge_list(faces) + ll_purge_list(vertices) == 0);
}

TEST(surfaces, copies_leave_out_steps_u_alone) {
  surface *s = full_surface(), *target = kx_create_surface();
  target->steps_u = 77, target->vertices = points(1);
  ASSERT_EQ(kx_copy_surface(s, target), target);
  surface *copy = kx_copy_surface(s, nullptr);
  EXPECT_TRUE(copy->steps_u == 0 && target->steps_u == 77 && copy->steps_v == 4);
  for (surface *c : {copy, target}) c->steps_u = s->steps_u;
  EXPECT_TRUE(std::memcmp(copy, s, 464) == 0 && std::memcmp(target, s, 464) == 0) << "every number before the lists";
  EXPECT_TRUE(copy->vertices->count == 9 && copy->faces->count == 4 && copy->control_points->count == 2 &&
              copy->extra_list_3->count == 1);
  EXPECT_TRUE(!copy->extra_list_1 && target->vertices->count == 10 && target->control_points->count == 2 &&
              copy->faces->head->data != s->faces->head->data);
  EXPECT_TRUE(kx_copy_surface(target, target) == target && target->vertices->count == 20 && target->faces->count == 8)
      << "onto itself";
  for (surface *each : {s, target, copy}) kx_purge_surface(each);
}

TEST(surfaces, a_face_is_read_at_the_current_position_only) {
  surface *s = full_surface();
  pnt_3d p[4] = {};
  double n[3] = {};
  ll_set_list_currpntr(s->faces, 1);
  EXPECT_TRUE(kx_get_surface_face(s, 0, p, n) == 4 && p[0].z == 0 && n[2] == 0) << "another face: its count alone";
  EXPECT_TRUE(kx_get_surface_face(s, 3, p, n) == 4 && p[0].z == 1 && p[1].z == 1.25 && p[2].z == 2 && p[3].z == 1.75 &&
              n[2] != 0);
  EXPECT_EQ(static_cast<poly_3d *>(s->vertices->current->data)->seqnr, 7);
  auto *face = static_cast<polyface_3d *>(s->faces->tail->data);
  face->vertex_numbers[0] = 9 * 7 + 2, face->vertex_numbers[1] = INT32_MAX, face->vertex_numbers[2] = INT32_MIN;
  EXPECT_TRUE(kx_get_surface_face(s, 3, p, nullptr) == 4 && p[0].z == 0.5 && p[1].z == 0.25 * (INT32_MAX % 9) &&
              p[2].z == 0)
      << "past the end it goes on from the head";
  for (int32_t number : {-1, 5, INT32_MAX}) EXPECT_EQ(kx_get_surface_face(s, number, p, n), 0);
  EXPECT_EQ(kx_get_surface_face(s, 4, p, n), 4) << "the count itself is let through";
  kx_clear_surface(s);
  EXPECT_TRUE(kx_get_surface_face(s, 0, p, n) == 0 && s->faces && s->vertices);
  kx_purge_surface(s);
}

}  // namespace
