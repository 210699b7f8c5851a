// Faces: rings in their slots and lists, the two normals, and the lookups.
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstring>
#include <new>
#include <numeric>
#include <vector>

#include "kxgeom/geometry.h"
#include "kxgeom/list.h"
#include "kxgeom/records.h"
#include "records/solid_builder.hpp"
#include "support/faults.hpp"

namespace {

list_hdr *vertices(const std::vector<poly_3d> &points) {
  list_hdr *list = ll_create_list();
  for (const poly_3d &p : points) kx::append_vertex(*list, p.seqnr, {p.x, p.y, p.z});
  return list;
}

list_hdr *numbers(std::initializer_list<int32_t> values) {
  list_hdr *list = ll_create_list();
  for (int32_t v : values) ll_add_list_item(list, 1, new (kx_create_inumber()) inumber{v}, 82);
  return list;
}

std::vector<int32_t> counted(int n, int from) {
  std::vector<int32_t> v(static_cast<std::size_t>(n));
  std::iota(v.begin(), v.end(), from);
  return v;
}

TEST(faces, rings_run_on_through_the_slots_and_never_past_them) {
  for (int n : std::initializer_list<int>{0, 3, 4, 5, 14, KX_RING_MOST}) {
    polyface_3d around[3];
    std::memset(around, 0x55, sizeof around);
    const polyface_3d untouched = around[2];
    const auto ring = counted(n, 100), flags = counted(n, -100);
    const vector_3d normal = {1, 2, 3, 4, 5};
    ASSERT_EQ(kx_set_polyface_3d(7, n, ring.data(), flags.data(), &normal, &around[1]), 0) << n;
    EXPECT_TRUE(std::memcmp(&around[0], &untouched, sizeof untouched) == 0 &&
                std::memcmp(&around[2], &untouched, sizeof untouched) == 0);
    EXPECT_TRUE(around[1].more_vertices == nullptr && around[1].face_points == nullptr);
    for (int i = 0; i < 4; ++i)
      EXPECT_EQ(around[1].vertex_attributes[i], i + 4 < n ? 104 + i : i < n ? -100 + i : 0) << n;
    list_hdr list = {};
    ll_add_list_item(&list, 1, &around[1], 78);
    std::vector<int32_t> read(static_cast<std::size_t>(n)), again = read;
    int32_t number, count, attributes[4];
    vector_3d v;
    double ijk[3];
    EXPECT_EQ(kx_get_next_face_loc(&list, &number, &count, read.data(), attributes, &v, 9), 1);
    EXPECT_TRUE(number == 7 && count == n && read == ring && v.k == 5 && v.direction == 1);
    EXPECT_TRUE(kx_get_face(&list, 7, ijk, attributes, again.data()) == 1 && again == ring && ijk[0] == 3 &&
                ijk[2] == 5);
    EXPECT_EQ(kx_get_polyface_3d(&number, &count, read.data(), attributes, nullptr, &around[1]), n > 4 ? 2 : 0);
    ll_pop_list(&list);
  }
  polyface_3d face, same;
  std::memset(&face, 0x55, sizeof face);
  same = face;
  const auto ring = counted(1000, 0);
  EXPECT_EQ(kx_set_polyface_3d(1, KX_RING_MOST + 1, ring.data(), ring.data(), nullptr, &face), 2);
  EXPECT_TRUE(kx_set_polyface_3d(1, 3, nullptr, nullptr, nullptr, &face) == 2 &&
              std::memcmp(&face, &same, sizeof face) == 0);
  EXPECT_TRUE(kx_set_polyface_3d(1, INT32_MIN, nullptr, nullptr, nullptr, &face) == 0 &&
              face.vertex_count == INT32_MIN);
}

TEST(faces, rings_of_any_length_are_built_read_copied_and_freed) {
  for (int n : std::initializer_list<int>{4, 5, KX_RING_MOST + 1, 300}) {
    solid *s = kx_create_solid();
    s->face_list = ll_create_list(), s->vertex_list = ll_create_list();
    const auto ring = counted(n, 0);
    kx::solid_builder builder(*s, n);
    for (int i = 0; i < n; ++i) ASSERT_TRUE(builder.vertex({std::cos(i), std::sin(i), 0.5}));
    ASSERT_TRUE(builder.face(9, ring.data(), n));
    std::vector<int32_t> read(static_cast<std::size_t>(n)), again = read, third = read;
    int32_t number, count, attributes[4];
    auto *face = static_cast<polyface_3d *>(s->face_list->head->data);
    polyface_3d *copy = kx_copy_polyface_3d(face);
    EXPECT_TRUE(kx_get_polyface_3d(&number, &count, read.data(), attributes, nullptr, copy) == 0 && count == n &&
                read == ring);
    EXPECT_TRUE(kx_get_face(s->face_list, 9, nullptr, nullptr, again.data()) == 1 && again == ring);
    EXPECT_TRUE(kx_get_next_face_loc(s->face_list, nullptr, nullptr, third.data(), nullptr, nullptr, 1) == 1 &&
                third == ring);
    EXPECT_TRUE(n <= 4 || copy->more_vertices != face->more_vertices);
    list_hdr *header = copy->more_vertices;
    kx_purge_polyface_3d(copy);
    EXPECT_TRUE(n <= 4 || ll_purge_list(header) == 0) << "the header is left, empty";
    EXPECT_EQ(kx_purge_solid(s), 0);
  }
}

TEST(faces, listed_rings_end_early_and_words_are_copied) {
  polyface_3d face = {};
  face.vertex_count = 7;
  for (int i = 0; i < 4; ++i) face.vertex_numbers[i] = i, face.vertex_attributes[i] = 10 + i;
  face.more_vertices = numbers({4, 5}), face.face_points = vertices({{1, 2, 3, 4}});
  face.extra_words[7] = 77, face.face_value_2 = 78;
  int32_t ring[8] = {-1, -1, -1, -1, -1, -1, -1, -1}, attributes[5] = {0, 0, 0, 0, -1};
  EXPECT_EQ(kx_get_polyface_3d(nullptr, nullptr, ring, attributes, nullptr, &face), 2);
  EXPECT_TRUE(ring[5] == 5 && ring[6] == -1 && attributes[3] == 13 && attributes[4] == -1 &&
              face.more_vertices->current == face.more_vertices->head);
  polyface_3d *copy = kx_copy_polyface_3d(&face);
  EXPECT_TRUE(copy->extra_words[7] == 77 && copy->face_value_2 == 78 && copy->more_vertices->count == 2 &&
              copy->face_points->count == 1);
  kx::dispose_face(copy);
  kx_clear_polyface_3d(&face);
  EXPECT_TRUE(face.more_vertices->count == 0 && face.face_points->count == 1);
  ll_purge_list(face.more_vertices);
  kx_purge_polygon(face.face_points);
}

TEST(faces, normals_take_the_corners_in_list_order) {
  solid *s = kx_create_solid();
  list_hdr *list = s->vertex_list = vertices({{2, 0, 3, 1}, {0, 0, 0, 0}, {1, 2, 0, 0}}),
           *two = vertices({{0, 0, 0, 0}, {1, 0, 0, 0}});
  vector_3d n = {}, tip = {};
  list->current = list->tail;
  ASSERT_TRUE(kx_get_face_normal(0, 1, 2, list, &n) == 0 && list->current == list->head);
  EXPECT_TRUE(n.i == 0 && n.j == 2 && n.k == -6) << "(V2 - V0) x (V1 - V0), vertex 2 coming first";
  EXPECT_TRUE(n.direction == kx_vectordirection(&n) && n.length == kx_vectorlength(&n));
  EXPECT_TRUE(kx_get_face_normal(0, 0, 1, list, &tip) == 3 && kx_get_face_normal(0, 1, 2, two, &tip) == 2);
  // Places, not numbers; the last three are left alone.
  for (const auto &ring : {std::array{0, 1, 2}, {1, 2, 0}, {0, 1, 3}, {-1, 1, 2}}) {
    kx_add_face(0, ring.data(), nullptr, 3, s);
    kx_set_polyface_3d(0, 3, ring.data(), nullptr, nullptr, static_cast<polyface_3d *>(s->face_list->tail->data));
  }
  faults::watch(1);
  EXPECT_EQ(kx_create_face_normal(list, s->face_list), 80);
  faults::unwatch();
  ASSERT_EQ(kx_create_face_normal(list, s->face_list), 0);
  const double want[][4] = {{0, 2, -6, 0}, {2, 2, -6, 0}, {0, 0, 0, 0}, {0, 0, 0, 0}};  // drawn from the second corner
  const auto *row = want;
  for (const list_item *i = s->face_list->head; i; i = i->next, ++row) {
    tip = static_cast<polyface_3d *>(i->data)->normal;
    EXPECT_TRUE(tip.i == row[0][0] && tip.j == row[0][1] && tip.k == row[0][2] && tip.length == 0) << row - want;
  }
  kx_purge_solid(s);
  kx_purge_polygon(two);
}

TEST(faces, tables_give_the_normals_of_the_search_whatever_the_numbers) {
  unsigned state = 1;
  const auto below = [&state](unsigned n) {
    return static_cast<int32_t>((state = state * 1664525u + 1013904223u) / 65536 % n);
  };
  for (int round = 0; round < 300; ++round) {
    std::vector<poly_3d> points;
    for (int i = 0; i < 2 + round % 12; ++i)
      points.push_back({round % 3 ? below(9) - 1 : i, below(5) * 0.1, below(5) * 0.3, below(5) * 0.7});
    list_hdr *list = vertices(points);
    const kx::vertex_table table(list);
    for (int i = 0; i < 60; ++i) {
      const int32_t a = below(12) - 2, b = below(12) - 2, c = below(12) - 2;
      vector_3d want = {9, 9, 9, 9, 9}, got = want;
      EXPECT_EQ(kx_get_face_normal(a, b, c, list, &want) == 0, table.normal(a, b, c, got));
      EXPECT_EQ(std::memcmp(&want, &got, sizeof want), 0) << round << ": " << a << ' ' << b << ' ' << c;
    }
    kx_purge_polygon(list);
  }
}

TEST(faces, lookups_pass_over_what_is_no_vertex_and_refuse_what_is_no_face) {
  list_hdr *list = vertices({{4, 1, 2, 3}, {4, 9, 9, 9}}), empty = {};
  pnt_3d p = {}, small = {};
  EXPECT_TRUE(kx_get_facevertex(list, 4, &p) == 1 && p.z == 3);
  void *records[3] = {};
  EXPECT_TRUE(kx_get_vertex_list(list, records) == 2 && records[1] == list->tail->data);
  EXPECT_TRUE(kx_get_vertex_list(&empty, records) == 1 && records[0] == nullptr);
  list_hdr points = {};
  ll_add_list_item(&points, 1, &small, 51);
  ll_add_list_item(&points, 1, nullptr, 63);
  vector_3d n;
  EXPECT_TRUE(kx_get_facevertex(&points, 0, &p) == 0 && kx_get_face_normal(0, 1, 2, &points, &n) == 2);
  EXPECT_TRUE(kx_get_face(&points, 0, nullptr, nullptr, nullptr) == 0 &&
              kx_get_next_face_loc(&points, nullptr, nullptr, nullptr, nullptr, nullptr, 0) == 0);
  polyface_3d face = {};
  list_hdr faces = {};
  ll_add_list_item(&faces, 1, &face, 78);
  EXPECT_TRUE(kx_create_face_normal(&points, &faces) == 0 && kx_get_face(&faces, 5, nullptr, nullptr, nullptr) == 1)
      << "1 even when none is found";
  ll_pop_list(&faces), ll_pop_list(&points), ll_pop_list(&points);
  kx_purge_polygon(list);
}

}  // namespace
