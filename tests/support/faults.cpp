// The tests are linked with --wrap for malloc, calloc and free, and with this message box in place of the platform's.
#include "support/faults.hpp"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <new>

#include "runtime/message_box.hpp"

extern "C" {
void *__real_malloc(std::size_t bytes);
void __real_free(void *block);
void *__wrap_malloc(std::size_t bytes);
void *__wrap_calloc(std::size_t count, std::size_t bytes);  // what an optimiser makes of a block filled with zeros
void __wrap_free(void *block);
}

namespace {

// Plain arrays: the recorder itself must not need the heap.
constexpr int capacity = 1 << 16;
void *watched[capacity];
int watched_count = 0;
bool watching = false, fired = false;
long countdown = 0;

constexpr int message_capacity = 4096;
char texts[message_capacity][320];
int text_count = 0;

}  // namespace

void *__wrap_malloc(std::size_t bytes) {
  if (!watching) return __real_malloc(bytes);
  if (countdown > 0 && --countdown == 0) {
    fired = true;
    return nullptr;
  }
  void *block = __real_malloc(bytes);
  if (block) {
    if (watched_count == capacity) std::abort();
    watched[watched_count++] = block;
  }
  return block;
}

void *__wrap_calloc(std::size_t count, std::size_t bytes) {
  void *block = bytes && count > SIZE_MAX / bytes ? nullptr : __wrap_malloc(count * bytes);
  return block ? std::memset(block, 0, count * bytes) : nullptr;
}

void __wrap_free(void *block) {
  for (int i = watched_count - 1; block && i >= 0; --i) {
    if (watched[i] != block) continue;
    watched[i] = watched[--watched_count];
    break;
  }
  __real_free(block);
}

std::int32_t kx::show_message_box(const char *text) {
  if (text_count < message_capacity) std::snprintf(texts[text_count++], sizeof texts[0], "%s", text);
  return 1;
}

// What the tests themselves put on the heap neither counts nor fails, even where the C++ library is linked in whole.
void *operator new(std::size_t bytes) {
  void *block = __real_malloc(bytes);
  if (block == nullptr) std::abort();
  return block;
}
void operator delete(void *block) noexcept { __real_free(block); }
void operator delete(void *block, std::size_t) noexcept { __real_free(block); }

namespace faults {

void watch(long fail_nth) {
  if (fail_nth == 0) watched_count = 0;
  countdown = fail_nth;
  fired = false;
  watching = true;
}

bool unwatch() {
  watching = false;
  return fired;
}

long live_blocks() { return watched_count; }

std::vector<std::string> messages() { return {texts, texts + text_count}; }

void clear_messages() { text_count = 0; }

}  // namespace faults
