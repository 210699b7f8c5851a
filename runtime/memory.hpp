// The one place where the library takes and gives back memory. Nothing here throws; nothing else calls the heap.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <new>

#include "kxgeom/runtime.h"

namespace kx {

// Null when the heap has no room, and for more than the platform can address.
inline void *allocate(std::size_t bytes) { return bytes > PTRDIFF_MAX ? nullptr : std::malloc(bytes); }
inline void release(void *block) { std::free(block); }

// Bytes of count elements; SIZE_MAX, which is never granted, when that is negative or more than the platform can
// address.
inline std::size_t array_bytes(std::int64_t count, std::size_t element) {
  if (count < 0 || static_cast<std::uint64_t>(count) > PTRDIFF_MAX / element) return SIZE_MAX;
  return static_cast<std::size_t>(count) * element;
}

[[gnu::cold]] inline void report_no_memory(const char *location) { kx_memerr(location); }

// A zeroed record on the heap; null after the memory message for `location`.
template <class T>
T *create(const char *location) {
  void *block = allocate(sizeof(T));
  if (block == nullptr) [[unlikely]] {
    report_no_memory(location);
    return nullptr;
  }
  return new (block) T{};
}

// A work array of `count` elements, not initialised, that frees itself; false when the heap has no room for it.
template <class T>
class scratch {
 public:
  explicit scratch(std::int64_t count) : data_(static_cast<T *>(allocate(array_bytes(count, sizeof(T))))) {}
  ~scratch() { release(data_); }
  scratch(const scratch &) = delete;
  scratch &operator=(const scratch &) = delete;

  explicit operator bool() const { return data_ != nullptr; }
  T *data() const { return data_; }
  T &operator[](std::int64_t i) const { return data_[static_cast<std::ptrdiff_t>(i)]; }

 private:
  T *data_;
};

}  // namespace kx
