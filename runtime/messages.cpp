// Messages to the user: out of memory, bad parameters, and the texts of the message file KXMSG.DAT.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "kxgeom/runtime.h"
#include "memory.hpp"
#include "message_box.hpp"

namespace {

constexpr const char *file_name = "KXMSG.DAT";
#ifdef _WIN32
constexpr const char *folder = "\\MSG\\";
#else
constexpr const char *folder = "/MSG/";
#endif

constexpr std::size_t box_bytes = 256;
constexpr int code_line_bytes = 256;
constexpr int number_line_bytes = 128;
constexpr std::size_t message_bytes = 144;  // the longest number and the longest line in "(%d): %s"

// The message file, open for reading and closed at the end of its scope; null when there is none. A KXLINK that leads
// nowhere is not mended by the current directory: a host sees at once that its setting is wrong.
class message_file {
 public:
  message_file() : stream_(open()) {}
  ~message_file() {
    if (stream_) std::fclose(stream_);
  }
  message_file(const message_file &) = delete;
  message_file &operator=(const message_file &) = delete;

  explicit operator bool() const { return stream_ != nullptr; }

  // The next line that has a key, cut in two: the key, terminated, and the rest. Null after the last one. A line
  // without blank or tab has no key; a line longer than the buffer continues as a line of its own.
  const char *next(char *line, int bytes) const {
    while (std::fgets(line, bytes, stream_)) {
      char *blank = std::strpbrk(line, " \t");
      if (blank == nullptr) continue;
      *blank = '\0';
      return blank + 1;
    }
    return nullptr;
  }

  void rewind() const { std::rewind(stream_); }

 private:
  static std::FILE *open() {
    const char *base = std::getenv("KXLINK");
    if (base == nullptr) return std::fopen(file_name, "rt");
    const std::size_t bytes = std::strlen(base) + std::strlen(folder) + std::strlen(file_name) + 1;
    const kx::scratch<char> path(static_cast<std::int64_t>(bytes));
    if (!path) return nullptr;  // silent on purpose: who cannot report an error does not report that either
    std::snprintf(path.data(), bytes, "%s%s%s", base, folder, file_name);
    return std::fopen(path.data(), "rt");
  }

  std::FILE *stream_;
};

// A key as a number: leading digits with a sign, 0 when there are none, clamped.
std::int32_t key_number(const char *key) {
  return static_cast<std::int32_t>(std::clamp<long long>(std::strtol(key, nullptr, 10), INT32_MIN, INT32_MAX));
}

bool find_message(const message_file &file, std::int32_t number, char *buffer) {
  char line[number_line_bytes];
  file.rewind();
  while (const char *text = file.next(line, number_line_bytes)) {
    if (key_number(line) != number) continue;
    text += std::strspn(text, " \t");
    std::snprintf(buffer, message_bytes, "(%d): %s", number, text);
    return true;
  }
  return false;
}

}  // namespace

std::int32_t KX_CALL kx_memerr(const char *location) {
  char text[box_bytes];
  std::snprintf(text, sizeof text, "Memory Error: %s", location ? location : "");
  return kx::show_message_box(text);
}

void KX_CALL kx_display_msg(const char *code, std::int32_t number, const char *location) {
  if (code == nullptr) return;
  const message_file file;
  if (!file) return;
  char line[code_line_bytes];
  while (file.next(line, code_line_bytes)) {
    if (std::strcmp(line, code) != 0) continue;
    // The literal "&msgrec[i]" in the place of the line's text is the box that users and their manuals know: it stays.
    char text[box_bytes];
    std::snprintf(text, sizeof text, "%s&msgrec[i]\nLocation: %s Error Nr: %d", code, location ? location : "", number);
    kx::show_message_box(text);
    return;
  }
}

std::int32_t KX_CALL kx_get_message(std::int32_t number, char *buffer) {
  if (buffer == nullptr) return -1;
  const message_file file;
  if (!file) {
    std::snprintf(buffer, message_bytes, "(%d) %s", number, "Cannot Find Message File");
    return -1;
  }
  if (find_message(file, number, buffer)) return number;
  if (find_message(file, 0, buffer)) return 0;
  std::snprintf(buffer, message_bytes, "(%d) %s", number, "Cannot Find Message");
  return -1;
}
