#include "blocks.hpp"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <new>

extern "C" {
void *__real_malloc(std::size_t bytes);
void __real_free(void *block);
void *__wrap_malloc(std::size_t bytes);
void *__wrap_calloc(std::size_t count, std::size_t bytes);  // what an optimiser makes of a block filled with zeros
void __wrap_free(void *block);
}

namespace {

constexpr std::uint32_t alive = 0x6b786c76, freed = 0x6b786672;
constexpr unsigned char guard = 0xa5;
constexpr std::size_t guard_bytes = 16;
constexpr std::size_t largest_block = std::size_t{1} << 28;  // the heap of a small machine

// In front of every block; the guard is behind it.
struct alignas(16) head {
  head *previous, *next;
  std::size_t bytes;
  std::uint32_t state;
  bool by_call, reached;

  unsigned char *data() { return reinterpret_cast<unsigned char *>(this + 1); }
};

thread_local head *first = nullptr;
thread_local bool in_call = false, later_too = false;
thread_local long asked = 0, to_fail = 0;
thread_local const char *found = "";
thread_local std::vector<head *> in_order;  // of their addresses, at the end of the call

head *head_of(void *block) { return static_cast<head *>(block) - 1; }

head *live(const void *block) {
  const auto after = std::upper_bound(in_order.begin(), in_order.end(), block);
  return after != in_order.begin() && after[-1]->data() == block ? after[-1] : nullptr;
}

// Records are packed to 4 bytes: a pointer can stand at any multiple.
void reach(const void *at, std::size_t bytes, std::vector<head *> &open) {
  for (std::size_t i = 0; i + sizeof(void *) <= bytes; i += 4) {
    void *pointer;
    std::memcpy(&pointer, static_cast<const char *>(at) + i, sizeof pointer);
    if (pointer == nullptr) continue;
    head *h = live(pointer);
    if (h == nullptr || h->reached) continue;
    h->reached = true;
    open.push_back(h);
  }
}

}  // namespace

void *__wrap_malloc(std::size_t bytes) {
  if (in_call) {
    ++asked;
    if (to_fail && (asked == to_fail || (later_too && asked > to_fail))) return nullptr;
  }
  if (bytes > largest_block) return nullptr;
  void *block = __real_malloc(sizeof(head) + bytes + guard_bytes);
  if (block == nullptr) return nullptr;
  head *h = new (block) head{nullptr, first, bytes, alive, in_call, false};
  if (first) first->previous = h;
  first = h;
  // What is read before it is written shall look like nothing useful.
  std::memset(h->data(), 0xcd, std::min<std::size_t>(bytes, 4096));
  std::memset(h->data() + bytes, guard, guard_bytes);
  return h->data();
}

void *__wrap_calloc(std::size_t count, std::size_t bytes) {
  void *block = bytes && count > SIZE_MAX / bytes ? nullptr : __wrap_malloc(count * bytes);
  return block ? std::memset(block, 0, count * bytes) : nullptr;
}

void __wrap_free(void *block) {
  if (block == nullptr) return;
  head *h = head_of(block);
  if (h->state != alive) {
    found = h->state == freed ? "a block is freed twice" : "what is freed is no block";
    return;
  }
  for (std::size_t i = 0; i < guard_bytes; ++i) {
    if (h->data()[h->bytes + i] != guard) found = "somebody wrote behind a block";
  }
  h->state = freed;
  (h->previous ? h->previous->next : first) = h->next;
  if (h->next) h->next->previous = h->previous;
  __real_free(h);
}

namespace blocks {

void begin_call(long fail_nth, bool and_all_later) {
  asked = 0;
  to_fail = fail_nth;
  later_too = and_all_later;
  in_call = true;
}

long end_call() {
  in_call = false;
  return asked;
}

bool is_live(const void *block) { return live(block) != nullptr; }

std::string fault(const std::vector<root> &roots) {
  in_order.clear();
  for (head *h = first; h; h = h->next) in_order.push_back(h);
  std::sort(in_order.begin(), in_order.end());
  if (*found) return found;
  std::vector<head *> open;
  for (const root &r : roots) reach(r.at, r.bytes, open);
  for (head *h : in_order) {
    for (std::size_t i = 0; i < guard_bytes; ++i) {
      if (h->data()[h->bytes + i] != guard) return "somebody wrote behind a block";
    }
    if (h->by_call || h->reached) continue;
    h->reached = true;
    open.push_back(h);
  }
  while (!open.empty()) {
    head *h = open.back();
    open.pop_back();
    reach(h->data(), h->bytes, open);
  }
  const auto lost = std::count_if(in_order.begin(), in_order.end(), [](const head *h) { return !h->reached; });
  return lost ? std::to_string(lost) + " blocks are lost" : "";
}

void release_all() {
  found = "";
  while (first) __wrap_free(first->data());
}

}  // namespace blocks
