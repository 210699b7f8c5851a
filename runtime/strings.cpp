// Texts in buffers of a given size, for hosts that do not rely on terminators alone.
#include <algorithm>
#include <cstdint>
#include <cstring>

#include "kxgeom/runtime.h"
#include "memory.hpp"

namespace {

int32_t count(std::size_t n) { return static_cast<int32_t>(std::min<std::size_t>(n, INT32_MAX)); }

}  // namespace

void KX_CALL kx_strcpy(char *destination, int32_t size, const char *source) {
  if (!destination || size <= 0) return;
  const auto bytes = static_cast<std::size_t>(size);
  std::size_t length = 0;
  if (source) {  // measured before anything is written, so that the two may overlap
    const void *end = std::memchr(source, '\0', bytes - 1);
    length = end ? static_cast<std::size_t>(static_cast<const char *>(end) - source) : bytes - 1;
    std::memmove(destination, source, length);
  }
  std::memset(destination + length, 0, bytes - length);
}

void KX_CALL kx_strfill(char *destination, int32_t n, int32_t character) {
  if (destination && n > 0) std::memset(destination, character, static_cast<std::size_t>(n));
}

int32_t KX_CALL kx_strlen(const char *text) { return text ? count(std::strlen(text)) : 0; }

int32_t KX_CALL kx_strcmp(const char *a, const char *b) { return a && b && std::strcmp(a, b) == 0; }

int32_t KX_CALL kx_strcat(char *destination, const char *source) {
  if (!destination || !source) return 0;
  const std::size_t before = std::strlen(destination), added = std::strlen(source);
  std::memmove(destination + before, source, added);
  destination[before + added] = '\0';
  return count(before + added);
}

int32_t KX_CALL kx_strmake(char *text, int32_t size, int32_t mode) {
  if (!text || size < 0) return 0;
  if (size == 0) {
    text[0] = '\0';
    return 0;
  }
  const auto bytes = static_cast<std::size_t>(size);
  const std::size_t length = std::strlen(text);
  if (length > bytes) text[bytes] = '\0';
  if (mode == 1) {
    if (length <= bytes) {  // a longer text keeps `size` characters, one more than fits a padded one: on purpose
      std::memset(text + length, ' ', bytes - length);
      text[bytes - 1] = '\0';
    }
  } else {
    for (std::size_t end = std::min(length, bytes); end > 0 && text[end - 1] == ' '; --end) text[end - 1] = '\0';
  }
  return count(std::min(length, bytes));
}

char *KX_CALL kx_create_char_array(int32_t n) {
  if (n < 0) return nullptr;
  void *array = kx::allocate(kx::array_bytes(std::int64_t{n} + 1, 1));
  if (!array) kx::report_no_memory("kx_create_char_array");
  return static_cast<char *>(array);
}

void KX_CALL kx_purge_char_array(char *array) { kx::release(array); }
