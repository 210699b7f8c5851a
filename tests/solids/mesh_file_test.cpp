// The mesh file: its bytes, reading it back, and every way in which a file can be wrong.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <string>
#include <vector>

#include "kxgeom/list.h"
#include "kxgeom/records.h"
#include "kxgeom/solids.h"
#include "list/point_kind.hpp"
#include "support/faults.hpp"
#include "support/message_folder.hpp"

namespace {

using bytes = std::vector<unsigned char>;

const std::string path =
    (std::filesystem::temp_directory_path() / ("kx_mesh_" + std::to_string(std::size_t(&path)))).string();

bytes content() {
  std::FILE *f = std::fopen(path.c_str(), "rb");
  bytes b(1 << 20);
  b.resize(f ? std::fread(b.data(), 1, b.size(), f) : 0);
  if (f) std::fclose(f);
  std::remove(path.c_str());
  return b;
}

void write(const bytes &b) {
  std::FILE *f = std::fopen(path.c_str(), "wb");
  if (!b.empty()) std::fwrite(b.data(), 1, b.size(), f);
  std::fclose(f);
}

void put(bytes &b, std::size_t at, int32_t value) { std::memcpy(&b[at], &value, 4); }

list_hdr *points(int columns, int rows, int32_t tag = 63) {
  list_hdr *list = ll_create_list();
  for (int i = 0; i < columns * rows; ++i)
    ll_add_list_item(list, 1, kx::create_point(tag, {1.0 * (i % columns), 2.0 * (i / columns), i * i * 0.5}, 100 + i),
                     tag);
  return list;
}

// The file as the format is described, made another way.
bytes expected(int columns, int rows, bool numbered = true) {
  bytes b;
  const auto add = [&b](const void *p, std::size_t n) {
    b.insert(b.end(), static_cast<const unsigned char *>(p), static_cast<const unsigned char *>(p) + n);
  };
  const int32_t head[8] = {0, rows, columns};
  add(head, 32);
  for (int32_t i = 0; i < columns * rows; ++i) {
    const int32_t w[2] = {1, numbered ? 100 + i : 0};
    const double p[3] = {1.0 * (i % columns), 2.0 * (i / columns), i * i * 0.5};
    add(w, 8), add(p, 24);
  }
  for (int32_t r = 0, n = 1; r < rows - 1; ++r)
    for (int32_t k = 0; k < columns - 1; ++k, ++n) {
      const int32_t a = r * columns + k, w[8] = {2, n, a, a + 1, a + 1 + columns, a + columns};
      add(w, 32);
    }
  return b;
}

TEST(mesh_file, is_written_byte_for_byte) {
  for (const auto &[columns, rows] : {std::pair{2, 2}, {3, 4}, {1, 3}, {5, 1}, {40, 60}}) {
    list_hdr *list = points(columns, rows), *plain = points(columns, rows, 51);
    list->current = list->tail;
    EXPECT_EQ(kx_create_surface_file(list, columns, rows, path.c_str()), (rows - 1) * (columns - 1) + 1);
    EXPECT_TRUE(content() == expected(columns, rows) && list->current == list->head) << columns << ' ' << rows;
    EXPECT_EQ(kx_create_surface_file(plain, columns, rows, path.c_str()), (rows - 1) * (columns - 1) + 1);
    EXPECT_TRUE(content() == expected(columns, rows, false)) << "points without numbers";
    kx_purge_polygon(list), kx_purge_polygon(plain);
  }
}

TEST(mesh_file, refuses_before_the_file_is_touched) {
  const message_folder messages;
  list_hdr *list = points(2, 2), empty = {};
  faults::clear_messages();
  for (const auto &[columns, rows] : {std::pair{0, 2}, {2, 0}, {INT32_MAX, INT32_MAX}, {1002, 1002}})
    EXPECT_EQ(kx_create_surface_file(list, columns, rows, path.c_str()), 0);
  EXPECT_EQ(kx_create_surface_file(nullptr, 2, 2, path.c_str()) + kx_create_surface_file(&empty, 2, 2, path.c_str()),
            0);
  EXPECT_FALSE(std::filesystem::exists(path));
  EXPECT_TRUE(faults::messages().empty());
  EXPECT_EQ(
      kx_create_surface_file(list, 2, 2, (path + "/none/x").c_str()) + kx_create_surface_file(list, 2, 2, nullptr), 0);
  EXPECT_TRUE(faults::messages().size() == 2 &&
              faults::messages()[0].find("kx_create_surface_file") != std::string::npos);
  // Counts below 1, and a list that is no grid or holds what is no point.
  for (const auto &[columns, rows] : {std::pair{-3, 2}, {2, -1}, {-1, -1}, {INT32_MIN, 5}}) {
    EXPECT_EQ(kx_create_surface_file(list, columns, rows, path.c_str()), 1);
    EXPECT_EQ(content().size(), 5u * 32);
  }
  ll_add_list_item(list, 1, nullptr, 63), ll_add_list_item(list, 1, kx_create_polyface_3d(), 78);
  EXPECT_EQ(kx_create_surface_file(list, 4, 4, path.c_str()), 10);
  EXPECT_EQ(content().size(), (1u + 4 + 9) * 32);
  kx_purge_polyface_3d(static_cast<polyface_3d *>(ll_delete_list_item(list, 1, 0))), ll_delete_list_item(list, 1, 0);
  if (std::FILE *full = std::fopen("/dev/full", "wb")) {
    std::fclose(full);
    EXPECT_EQ(kx_create_surface_file(list, 2, 2, "/dev/full"), 2) << "writing is not checked";
    surface s = {};
    s.vertices = list, s.steps_u = s.steps_v = 1;
    EXPECT_EQ(kx_surfacemesh(&s, "/dev/full"), 0) << "here it is";
  }
  kx_purge_polygon(list);
}

TEST(mesh_file, comes_back_as_the_surface_that_was_written) {
  write(expected(3, 4));
  surface *s = kx_create_surface();
  s->control_points = points(1, 1), s->vertices = points(2, 1), s->surface_flags = 9, s->step_u = 3;
  ASSERT_EQ(kx_read_surface_file(path.c_str(), s), 0);
  EXPECT_TRUE(s->surface_type == 315 && s->surface_flags == 0 && s->step_u == 0 && s->steps_u == 2 && s->steps_v == 3 &&
              s->control_points->count == 0);
  EXPECT_TRUE(s->min_pnt.z == 0 && s->max_pnt.x == 2 && s->max_pnt.y == 6 && s->max_pnt.z == 60.5);
  ASSERT_TRUE(s->vertices->count == 12 && s->faces->count == 6);
  const auto *face = static_cast<polyface_3d *>(s->faces->tail->data);
  EXPECT_TRUE(face->face_number == 6 && face->vertex_numbers[3] == 10 && face->vertex_count == 4);
  kx_renum_polygon(s->vertices, 0, 0, 1);
  vector_3d n;
  kx_get_face_normal(7, 8, 11, s->vertices, &n);
  EXPECT_EQ(std::memcmp(&n, reinterpret_cast<const char *>(face) + 8, sizeof n), 0)
      << "the places count, not the numbers";
  kx_renum_polygon(s->vertices, 0, 100, 1);
  EXPECT_EQ(kx_surfacemesh(s, path.c_str()), 7);
  EXPECT_EQ(content(), expected(3, 4));
  s->steps_u = 3;
  EXPECT_EQ(kx_surfacemesh(s, path.c_str()) + kx_surfacemesh(nullptr, path.c_str()), 0);
  s->steps_u = INT32_MAX, s->steps_v = INT32_MIN;
  EXPECT_EQ(kx_surfacemesh(s, path.c_str()), 0);
  kx_purge_surface(s);
}

TEST(mesh_file, malformed_files_are_refused_and_leave_nothing) {
  const bytes good = expected(3, 3);
  struct row {
    int32_t want;
    std::size_t at;
    int32_t value;
  };
  const std::size_t face = 32 * 10;
  const row rows[] = {{4, 0, 1},
                      {4, 32, 2},
                      {4, 32, 7},
                      {4, face, 1},
                      {4, face, 0},
                      {5, 4, 0},
                      {5, 4, -3},
                      {5, 8, 0},
                      {5, 8, INT32_MIN},
                      {4, 4, 2},
                      {4, 8, 4},
                      {4, 4, INT32_MAX / 3},
                      {5, 4, INT32_MAX},
                      {6, face + 4, 0},
                      {6, face + 36, 1},
                      {6, face + 8, -1},
                      {6, face + 12, 9},
                      {6, face + 20, INT32_MAX},
                      {6, face + 96 + 16, INT32_MIN}};
  surface *s = kx_create_surface();
  s->surface_type = 300, s->vertices = points(2, 2);
  const auto refused = [s](const bytes &b, int32_t want, std::size_t at) {
    write(b);
    EXPECT_EQ(kx_read_surface_file(path.c_str(), s), want) << at;
    EXPECT_TRUE(s->surface_type == 300 && s->vertices->count == 4 && s->faces == nullptr);
  };
  for (const row &r : rows) {
    bytes b = good;
    put(b, r.at, r.value);
    refused(b, r.want, r.at);
  }
  for (std::size_t n = 0; n < good.size(); n += n % 32 == 31 || n < 3 ? 1 : 10)
    refused(bytes(good.begin(), good.begin() + static_cast<std::ptrdiff_t>(n)), 3, n);
  for (std::size_t extra : {1, 31, 32, 33, 64, 4000}) {
    bytes b = good;
    b.resize(b.size() + extra);
    refused(b, extra < 32 ? 3 : 5, extra);
  }
  for (bytes b = good; b.back() < 50; ++b.back()) {  // any byte changed: refused or read, never half
    for (unsigned char &byte : b) {
      const unsigned char old = std::exchange(byte, static_cast<unsigned char>(byte ^ (1 + 5 * b.back())));
      write(b);
      surface t = {};
      const bool read = kx_read_surface_file(path.c_str(), &t) == 0;
      EXPECT_TRUE(read ? t.vertices->count == 9 && t.faces->count == 4 : !t.vertices && !t.faces);
      kx_clear_surface(&t), ll_purge_list(t.vertices), ll_purge_list(t.faces);
      byte = old;
    }
    b.back() = static_cast<unsigned char>(b.back() + 24);
  }
  std::remove(path.c_str());
  EXPECT_TRUE(kx_read_surface_file(path.c_str(), s) == 2 && kx_read_surface_file(nullptr, s) == 1 &&
              kx_read_surface_file(path.c_str(), nullptr) == 1);
  kx_purge_surface(s);
}

TEST(mesh_file, reading_without_memory_leaves_the_surface_as_it_was) {
  write(expected(3, 2));
  const int taken = faults::fail_each_allocation(
      kx_create_surface, [](surface *s) { return kx_read_surface_file(path.c_str(), s); },
      [](int failed, surface *s, int32_t result) {
        EXPECT_EQ(result, failed ? 80 : 0);
        EXPECT_TRUE(failed ? !s->vertices && !s->faces : s->faces->count == 2);
        kx_purge_surface(s);
      });
  EXPECT_EQ(taken, 6 * 2 + 2 + 2 * 2 + 2);
  std::remove(path.c_str());
}

}  // namespace
