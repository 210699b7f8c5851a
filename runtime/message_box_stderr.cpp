// Systems without message boxes: one line on standard error, answered with the OK of the box.
#include <cstdio>

#include "message_box.hpp"

std::int32_t kx::show_message_box(const char *text) {
  std::fprintf(stderr, "%s: %s\n", message_box_title, text);
  return 1;
}
