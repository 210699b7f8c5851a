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
void __wrap_free(void *block);
}

namespace {

constexpr std::uint32_t alive = 0x6b786c76, freed = 0x6b786672;
constexpr unsigned char guard = 0xa5;
constexpr std::size_t guard_bytes = 16;

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

head *head_of(void *block) { return static_cast<head *>(block) - 1; }

// All live blocks, in the order of their addresses.
std::vector<head *> &sorted() {
  thread_local std::vector<head *> all;
  all.clear();
  for (head *h = first; h; h = h->next) all.push_back(h);
  std::sort(all.begin(), all.end());
  return all;
}

// Records are packed to 4 bytes: a pointer can stand at any multiple.
void reach(const std::vector<head *> &all, const void *at, std::size_t bytes, std::vector<head *> &open) {
  for (std::size_t i = 0; i + sizeof(void *) <= bytes; i += 4) {
    void *pointer;
    std::memcpy(&pointer, static_cast<const char *>(at) + i, sizeof pointer);
    if (pointer == nullptr) continue;
    const auto h = std::upper_bound(all.begin(), all.end(), static_cast<head *>(pointer));
    if (h == all.begin() || h[-1]->data() != pointer || h[-1]->reached) continue;
    h[-1]->reached = true;
    open.push_back(h[-1]);
  }
}

}  // namespace

void *__wrap_malloc(std::size_t bytes) {
  if (in_call) {
    ++asked;
    if (to_fail && (asked == to_fail || (later_too && asked > to_fail))) return nullptr;
  }
  if (bytes > PTRDIFF_MAX - sizeof(head) - guard_bytes) return nullptr;
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

bool is_live(const void *block) {
  for (head *h = first; h; h = h->next) {
    if (h->data() == block) return true;
  }
  return false;
}

std::string fault(const std::vector<root> &roots) {
  if (*found) return found;
  const std::vector<head *> &all = sorted();
  std::vector<head *> open;
  for (const root &r : roots) reach(all, r.at, r.bytes, open);
  for (head *h : all) {
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
    reach(all, h->data(), h->bytes, open);
  }
  std::size_t lost = 0;
  for (const head *h : all) lost += !h->reached;
  return lost ? std::to_string(lost) + " blocks are lost" : "";
}

void release_all() {
  found = "";
  while (first) __wrap_free(first->data());
}

}  // namespace blocks
