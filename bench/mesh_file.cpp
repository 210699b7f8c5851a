// A mesh file of 1000 by 1000 points, to memory where there is a file system of memory, so that no disk is measured:
// our records are made and written as the list is walked, the peer writes the finished file with one call.
#include <unistd.h>

#include <cstdio>
#include <cstring>
#include <filesystem>
#include <memory>
#include <vector>

#include "floor_list.hpp"
#include "harness.hpp"
#include "kxgeom/solids.h"

namespace {

constexpr std::int32_t columns = 1000, rows = 1000, cells = (columns - 1) * (rows - 1);
constexpr std::size_t records = 1 + columns * rows + cells;

struct grid {
  list_hdr points{};
  std::vector<unsigned char> file;
  std::string path;

  grid() : file(records * 32) {
    unsigned char *out = file.data();
    const std::int32_t head[] = {0, rows, columns};
    std::memcpy(out, head, sizeof head);
    for (std::int32_t i = 0; i < columns * rows; ++i) {
      const poly_3d vertex = {i, 1.0 * (i % columns), 1.0 * (i / columns), i % 977 * 0.01};
      bench::link_record(points, bench::make_record(vertex), KX_POLY_3D);
      out = add(out, 1, &vertex, sizeof vertex);
    }
    for (std::int32_t r = 0, number = 1; r < rows - 1; ++r) {
      for (std::int32_t a = r * columns; a < (r + 1) * columns - 1; ++a, ++number) {
        const std::int32_t words[] = {number, a, a + 1, a + 1 + columns, a + columns};
        out = add(out, 2, words, sizeof words);
      }
    }
    const char *memory = "/dev/shm";
    path = std::filesystem::is_directory(memory) ? memory : std::filesystem::temp_directory_path().string();
    path += "/kx_bench_" + std::to_string(getpid());
  }
  ~grid() {
    std::remove(path.c_str());
    bench::free_blocks(points);
  }
  grid(const grid &) = delete;
  grid &operator=(const grid &) = delete;

  // The record after `last`.
  static unsigned char *add(unsigned char *last, std::int32_t kind, const void *data, std::size_t bytes) {
    unsigned char *at = last + 32;
    std::memcpy(at, &kind, sizeof kind);
    std::memcpy(at + sizeof kind, data, bytes);
    return at;
  }

  void write_at_once() const {
    std::FILE *f = std::fopen(path.c_str(), "wb");
    std::fwrite(file.data(), 1, file.size(), f);
    std::fclose(f);
  }

  bool is_written() const {
    std::vector<unsigned char> got(file.size() + 1);
    std::FILE *f = std::fopen(path.c_str(), "rb");
    got.resize(std::fread(got.data(), 1, got.size(), f));
    std::fclose(f);
    return got == file;
  }
};

}  // namespace

void bench::add_rows() {
  const std::string family = "mesh_file/1000x1000/";
  const auto g = std::make_shared<grid>();
  const auto ours = [g] { return kx_create_surface_file(&g->points, columns, rows, g->path.c_str()); };
  add({family + "kx:kx_create_surface_file", records,
       [=] { return unless(ours() == cells + 1 && g->is_written(), "another file"); }, [=] { use(ours()); }});
  add({family + "peer:one_fwrite", records,
       [=] {
         g->write_at_once();
         return unless(g->is_written(), "another file");
       },
       [=] { g->write_at_once(); }});
  add({family + "floor:walk", records, {}, [=] {
         double sum = 0.0;
         for (const list_item *item = g->points.head; item; item = item->next)
           sum += static_cast<const poly_3d *>(item->data)->z;
         use(sum);
       }});
}
