// Block access to files for hosts without a standard library of their own. A handle is the platform's stream.
#include <cstdio>

#include "kxgeom/runtime.h"

namespace {

constexpr std::size_t buffer_bytes = 16384;

std::FILE *stream(void *file) { return static_cast<std::FILE *>(file); }

}  // namespace

void *KX_CALL kx_open_file(const char *name, const char *mode) {
  if (!name || !mode) return nullptr;
  std::FILE *file = std::fopen(name, mode);
  if (file) std::setvbuf(file, nullptr, _IOFBF, buffer_bytes);
  return file;
}

int32_t KX_CALL kx_close_file(void *file) { return file ? std::fclose(stream(file)) : -1; }

int32_t KX_CALL kx_write_file(void *file, const void *buffer, int32_t n) {
  if (!file || !buffer || n <= 0) return 0;
  return std::fwrite(buffer, static_cast<std::size_t>(n), 1, stream(file)) == 1 ? n : 0;
}

int32_t KX_CALL kx_read_file(void *file, void *buffer, int32_t n) {
  if (!file || !buffer || n <= 0) return 0;
  return std::fread(buffer, static_cast<std::size_t>(n), 1, stream(file)) == 1 ? n : 0;
}

int32_t KX_CALL kx_flush_file(void *file) {
  if (!file) return -1;
  std::fflush(stream(file));
  return std::ferror(stream(file)) ? -1 : 0;
}

int32_t KX_CALL kx_seek_file(void *file, int32_t offset, int32_t origin) {
  constexpr int origins[] = {SEEK_SET, SEEK_CUR, SEEK_END};
  if (!file || origin < 0 || origin > 2) return -1;
  std::fflush(stream(file));
  return std::fseek(stream(file), offset, origins[origin]);
}
