// Solids: faces and vertices one by one, lists taken over and shared, copies, and what clearing leaves.
#include <gtest/gtest.h>

#include <cstring>

#include "kxgeom/list.h"
#include "kxgeom/records.h"
#include "kxgeom/solids.h"
#include "records/primitive.hpp"
#include "records/solid_builder.hpp"
#include "support/faults.hpp"

namespace {

const pnt_3d corners[] = {{0, 0, 0}, {2, 0, 0}, {0, 3, 0}, {0, 0, 4}};
const int32_t rings[][3] = {{0, 1, 2}, {0, 1, 3}, {1, 2, 3}}, zeros[4] = {};

solid *corner_solid(int faces = 3) {
  solid *s = kx_create_solid();
  for (int i = 0; i < 4; ++i) kx_add_vertex(s, i, &corners[i], 4);
  for (int i = 0; i < faces; ++i) kx_add_face(i, rings[i % 3], zeros, 3, s);
  s->solid_type = KX_SOLID_EXTBODY;
  auto *data = kx::create_primitive<extbody>("");
  data->profile = ll_create_list();
  ll_add_list_item(data->profile, 1, kx_create_pnt_2d(), 50);
  s->solid_data = data;
  return s;
}

// Hangs n further numbers on a face.
void lengthen(list_item *item, int n) {
  list_hdr *more = static_cast<polyface_3d *>(item->data)->more_vertices = ll_create_list();
  for (int i = 0; i < n; ++i) ll_add_list_item(more, 1, kx_create_inumber(), 82);
}

TEST(solids, vertices_widen_the_box_and_never_shrink_it) {
  solid *s = kx_create_solid();
  const pnt_3d p = {5, 6, 7}, near = {5 + 4e-7, -1, 2};
  ASSERT_EQ(kx_add_vertex(s, 8, &p, 2), 1);
  EXPECT_TRUE(s->xmin == 0 && s->ymin == 0 && s->zmin == 0 && s->xmax == 5 && s->ymax == 6 && s->zmax == 7);
  ASSERT_EQ(kx_add_vertex(s, 9, &near, 0), 1);
  EXPECT_TRUE(s->xmax == 5 && s->ymin == -1 && s->vertex_count == 2) << "within tolerance a side stays";
  EXPECT_EQ(static_cast<poly_3d *>(s->vertex_list->head->data)->seqnr, 9)
      << "code 0 is before the head, any other after the tail";
  for (int32_t code : {-1, 5, INT32_MAX}) EXPECT_EQ(kx_delete_vertex(s, code), 0);
  EXPECT_TRUE(kx_delete_vertex(s, 3) == 1 && s->vertex_count == 1 &&
              static_cast<poly_3d *>(s->vertex_list->head->data)->seqnr == 9);
  EXPECT_TRUE(kx_add_vertex(s, 1, &p, 1) == 1 && kx_delete_vertex_list(s) == 2 && s->vertex_count == 0 &&
              s->xmax == 5 && s->ymin == -1);
  EXPECT_EQ(kx_purge_solid(s), 0);
}

TEST(solids, faces_are_added_with_their_normal_and_deleted_by_position) {
  solid *s = corner_solid();
  ASSERT_TRUE(s->face_count == 3 && s->face_list->count == 3 && s->face_list->current == s->face_list->tail);
  const auto *second = static_cast<polyface_3d *>(s->face_list->head->next->data);
  vector_3d n;
  kx_get_face_normal(0, 1, 3, s->vertex_list, &n);
  EXPECT_TRUE(std::memcmp(&n, reinterpret_cast<const char *>(second) + 8, sizeof n) == 0 && n.j == 8);
  const int32_t missing[3] = {0, 1, 9};
  EXPECT_TRUE(kx_add_face(5, missing, zeros, 3, s) == 1 &&
              static_cast<polyface_3d *>(s->face_list->tail->data)->normal.length == 0);
  int32_t ring[KX_RING_MOST + 1] = {};
  EXPECT_EQ(kx_add_face(1, ring, ring, KX_RING_MOST + 1, s), 0);
  EXPECT_TRUE(s->face_count == 4 && kx_delete_face(s, 5) == 0 && kx_delete_face(s, -1) == 0);
  EXPECT_TRUE(kx_delete_face(s, 1) == 1 && s->face_count == 3 && s->face_list->current == s->face_list->head);
  EXPECT_EQ(kx_delete_face_list(s), 3);
  EXPECT_EQ(s->face_count, 3 - 7) << "twice for each face and once for finding none";
  kx_purge_solid(s);
}

TEST(solids, clearing_counts_further_vertices_as_faces) {
  struct row {
    int faces, at, more, left;
  };
  // The list's count is 5: a face with four further numbers ends the emptying, one with three does not.
  for (const row &r : {row{5, 0, 3, 0}, {5, 0, 4, 4}, {5, 2, 9, 2}, {5, 4, 9, 0}}) {
    solid *s = corner_solid(r.faces);
    list_item *item[5], **next = item;
    for (list_item *i = s->face_list->head; i; i = i->next) *next++ = i;
    void *data[5];
    for (int i = 0; i < r.faces; ++i) data[i] = item[i]->data;
    lengthen(item[r.at], r.more);
    EXPECT_EQ(kx_clear_solid(s), 0);
    EXPECT_TRUE(!s->face_list && !s->vertex_list && !s->solid_data && kx_purge_solid(s) == 0)
        << "clearing twice is safe";
    for (int i = r.faces - r.left; i < r.faces; ++i) kx::release(item[i]), kx::release(data[i]);  // else a leak
  }
  solid *s = corner_solid(2);
  s->face_list->count = 1000;
  list_hdr *stats = ll_create_list();
  int host_data = 0;
  ll_add_list_item(s->face_list, 0, &host_data, 1);
  EXPECT_EQ(kx_clear_solid(s), 0) << "a count too high, and an item that is no face";
  s->solid_type = 4, s->solid_data = &host_data, s->vertex_list = stats;
  EXPECT_TRUE(kx_copy_solid_data(4, &host_data) == nullptr && kx_purge_solid(s) == 0) << "4 and 14 are the host's";
}

TEST(solids, setting_takes_items_over_and_getting_lends_them) {
  solid *s = kx_create_solid(), *other = corner_solid();
  list_hdr faces = *other->face_list, points = *other->vertex_list, f, v;
  void *data = other->solid_data;
  *other->face_list = *other->vertex_list = {};
  ASSERT_EQ(kx_set_solid(16, 3, 4, -1, -2, -3, 1, 2, 3, &faces, &points, data, s), 3);
  int32_t type, face_count, vertex_count;
  double box[6];
  ASSERT_EQ(
      kx_get_solid(&type, &face_count, &vertex_count, box, box + 1, box + 2, box + 3, box + 4, box + 5, &f, &v, s), &f);
  EXPECT_TRUE(type == 16 && face_count == 3 && vertex_count == 4 && box[2] == -3 && box[5] == 3 &&
              f.head == faces.head && v.count == 4);
  EXPECT_EQ(kx_set_solid(16, 3, 4, 0, 0, 0, 0, 0, 0, &f, &v, kx_get_solid_data(s), s), 3) << "given back what was lent";
  EXPECT_EQ(s->face_list->head, faces.head);
  EXPECT_EQ(kx_set_solid(0, 0, 0, 0, 0, 0, 0, 0, 0, nullptr, nullptr, nullptr, s), 0);
  EXPECT_TRUE(s->face_list->count == 0 && s->vertex_list->head == nullptr && kx_get_solid_data(s) == nullptr);
  kx_purge_bodyrev(static_cast<bodyrev *>(data));
  other->solid_data = nullptr;
  EXPECT_EQ(kx_purge_solid(s) + kx_purge_solid(other), 0);
}

TEST(solids, copies_hold_everything_in_records_of_their_own) {
  solid *s = corner_solid();
  lengthen(s->face_list->head, 1);
  solid *copy = kx_copy_solid(s);
  EXPECT_EQ(std::memcmp(copy, s, 60), 0) << "fifteen words";
  const auto *face = static_cast<polyface_3d *>(copy->face_list->tail->data);
  EXPECT_TRUE(copy->face_list->count == 3 && face->face_number == 2 &&
              face->normal.i == static_cast<polyface_3d *>(s->face_list->tail->data)->normal.i);
  EXPECT_TRUE(copy->vertex_list->count == 4 && copy->face_list->head->data != s->face_list->head->data);
  EXPECT_TRUE(static_cast<extbody *>(copy->solid_data)->profile->count == 1 && copy->solid_data != s->solid_data);
  kx_purge_solid(s);
  kx_purge_solid(copy);
  const std::size_t words[23] = {0, 10, 20, 21, 0, 18, 23, 20, 24, 25, 25, 20, 18, 19, 0, 0, 0, 14, 14, 14, 14, 14, 25};
  char record[200];
  std::memset(record, 0x5a, sizeof record);
  for (int32_t type = -1; type < 25; ++type) {
    if (type == 15 || type == 16) continue;
    void *flat = kx_copy_solid_data(type, record);
    const bool known = type > 0 && type < 23 && words[type] != 0;
    ASSERT_EQ(flat != nullptr, known) << type;
    if (known) EXPECT_EQ(std::memcmp(flat, record, 4 * words[type]), 0);
    kx::release(flat);
  }
}

TEST(solids, faces_without_memory_are_left_out_of_copies) {
  int faces_lost = 0;
  const int copying =
      faults::fail_each_allocation([] { return corner_solid(); }, [](solid *s) { return kx_copy_solid(s); },
                                   [&](int failed, solid *s, solid *copy) {
                                     if (copy && failed) faces_lost += 3 - copy->face_list->count;
                                     EXPECT_TRUE(failed || copy->face_list->count == 3);
                                     EXPECT_TRUE(!copy || copy->vertex_list->count == 4);
                                     EXPECT_EQ(faults::messages().size(), failed ? 1u : 0u);
                                     kx_purge_solid(copy), kx_purge_solid(s);
                                   });
  EXPECT_TRUE(copying == 1 + 1 + 6 + 1 + 8 + 4 && faces_lost == 6);
}

}  // namespace
