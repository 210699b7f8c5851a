// Flat arrays of points, numbers and handles that the library allocates and a host fills by index.
#include <cstring>

#include "kxgeom/records.h"
#include "output.hpp"
#include "runtime/memory.hpp"

namespace {

template <class T>
T *create_array(std::int32_t n, const char *location) {
  if (n < 0) return nullptr;
  void *array = kx::allocate(kx::array_bytes(std::int64_t{n} + 1, sizeof(T)));
  if (array == nullptr) {
    kx::report_no_memory(location);
    return nullptr;
  }
  // The first n bytes, not the first n elements, are cleared: callers fill what they use.
  std::memset(array, 0, static_cast<std::size_t>(n));
  return static_cast<T *>(array);
}

template <class T>
T *set_element(T *array, std::int32_t index, const T &value) {
  if (array == nullptr) return nullptr;
  array[index] = value;
  return array + index;
}

}  // namespace

pnt_2d *KX_CALL kx_create_pnt_2d_array(std::int32_t n) { return create_array<pnt_2d>(n, "kx_create_pnt_2d_array"); }

pnt_2d *KX_CALL kx_set_array_pnt_2d(double x, double y, std::int32_t index, pnt_2d *array) {
  return set_element(array, index, {x, y});
}

void KX_CALL kx_get_array_pnt_2d(double *x, double *y, std::int32_t index, const pnt_2d *array) {
  if (array) kx_get_pnt_2d(x, y, array + index);
}

pnt_3d *KX_CALL kx_create_pnt_3d_array(std::int32_t n) { return create_array<pnt_3d>(n, "kx_create_pnt_3d_array"); }

pnt_3d *KX_CALL kx_set_array_pnt_3d(double x, double y, double z, std::int32_t index, pnt_3d *array) {
  return set_element(array, index, {x, y, z});
}

void KX_CALL kx_get_array_pnt_3d(double *x, double *y, double *z, std::int32_t index, const pnt_3d *array) {
  if (array) kx_get_pnt_3d(x, y, z, array + index);
}

rnumber *KX_CALL kx_create_rnumber_array(std::int32_t n) { return create_array<rnumber>(n, "kx_create_rnumber_array"); }

rnumber *KX_CALL kx_set_array_rnumber(double value, std::int32_t index, rnumber *array) {
  return set_element(array, index, {value});
}

void KX_CALL kx_get_array_rnumber(double *value, std::int32_t index, const rnumber *array) {
  if (array) kx_get_rnumber(value, array + index);
}

inumber *KX_CALL kx_create_inumber_array(std::int32_t n) { return create_array<inumber>(n, "kx_create_inumber_array"); }

inumber *KX_CALL kx_set_array_inumber(std::int32_t value, std::int32_t index, inumber *array) {
  return set_element(array, index, {value});
}

void KX_CALL kx_get_array_inumber(std::int32_t *value, std::int32_t index, const inumber *array) {
  if (array) kx_get_inumber(value, array + index);
}

void **KX_CALL kx_create_handle_array(std::int32_t n) { return create_array<void *>(n, "kx_create_handle_array"); }

void **KX_CALL kx_set_array_handle(void *handle, std::int32_t index, void **array) {
  return set_element(array, index, handle);
}

void KX_CALL kx_get_array_handle(void **handle, std::int32_t index, void *const *array) {
  if (array) kx::put(handle, array[index]);
}
