// Writing to the caller's outputs.
#pragma once

namespace kx {

// Writes an output that the caller may leave out by passing null.
template <class T>
void put(T *out, T value) {
  if (out) *out = value;
}

}  // namespace kx
