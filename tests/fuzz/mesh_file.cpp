// Any mesh file: read as a surface that fits together, or refused with nothing changed.
#include "input.hpp"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  static const fuzz::scratch_folder folder;
  static const std::string name = folder.file("given");
  std::FILE *file = std::fopen(name.c_str(), "wb");
  REQUIRE(file != nullptr);
  // Half of them get a sound head and sound kinds, or hardly one would come past it.
  std::string bytes(reinterpret_cast<const char *>(data), size);
  if (size > 8 && data[0] % 2 == 0) {
    const std::int32_t rows = 1 + data[1] % 4, columns = 1 + data[2] % 4, faces = (rows - 1) * (columns - 1);
    bytes.resize(static_cast<std::size_t>(32 * (1 + rows * columns + faces)));
    const auto put = [&bytes](std::int32_t at, std::int32_t value) {
      std::memcpy(&bytes[static_cast<std::size_t>(at)], &value, 4);
    };
    put(0, 0), put(4, rows), put(8, columns);
    for (std::int32_t i = 0; i < rows * columns; ++i) put(32 + 32 * i, 1);
    for (std::int32_t i = 0; i < faces && data[3] % 4; ++i) {
      const std::int32_t at = 32 * (1 + rows * columns + i), a = i / (columns - 1) * columns + i % (columns - 1);
      put(at, 2), put(at + 4, i + 1), put(at + 8, a), put(at + 12, a + 1), put(at + 16, a + 1 + columns),
          put(at + 20, a + columns);
    }
  }
  std::fwrite(bytes.data(), 1, bytes.size(), file);
  std::fclose(file);
  surface *s = kx_create_surface();
  if (kx_read_surface_file(name.c_str(), s) == 0) {
    REQUIRE(fuzz::linked(s->vertices));
    const std::int32_t vertices = s->vertices->count;
    for (const list_item *item = s->faces ? s->faces->head : nullptr; item; item = item->next) {
      const auto *face = static_cast<const polyface_3d *>(item->data);
      for (std::int32_t i = 0; i < 4; ++i) {
        const std::int32_t corner = face->vertex_numbers[i];
        REQUIRE(corner >= 0 && corner < vertices);
      }
    }
    REQUIRE(kx_surfacemesh(s, name.c_str()) > 0);
  } else {
    REQUIRE(s->vertices == nullptr && s->faces == nullptr);
  }
  kx_purge_surface(s);
  return 0;
}
