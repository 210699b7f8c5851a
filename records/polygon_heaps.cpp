// From flat arrays of points to lists of polygon points and back.
#include "dimension.hpp"
#include "kxgeom/list.h"
#include "kxgeom/records.h"
#include "list/items.hpp"
#include "list/point_kind.hpp"

namespace {

pnt_3d widen(const pnt_2d &p) { return {p.x, p.y, 0.0}; }
pnt_3d widen(const pnt_3d &p) { return p; }
void narrow(const pnt_3d &from, pnt_2d &to) { to = {from.x, from.y}; }
void narrow(const pnt_3d &from, pnt_3d &to) { to = from; }

template <class D>
std::int32_t put_heap(const typename D::point *array, std::int32_t n, list_hdr *list, const char *location) {
  if (n == 0 || list == nullptr || (n > 0 && array == nullptr)) return 0;
  for (std::int32_t i = 0; i < n; ++i) {
    auto *vertex = D::create_vertex();
    if (vertex == nullptr) {
      ll_clear_all_items(list);
      return 0;
    }
    *vertex = D::make_vertex(i, D::read(array[i]));
    if (!kx::append(*list, vertex, D::vertex_tag)) {
      kx::report_no_memory(location);
      kx::release(vertex);
    }
  }
  return list->count;
}

template <class Point>
std::int32_t get_heap(list_hdr *list, Point *array, std::int32_t *count) {
  if (list == nullptr || array == nullptr || count == nullptr || *count < list->count) return 0;
  if (kx::empty(list)) return 0;
  const std::int32_t tag = kx::datatype(list);
  list->current = list->head;
  std::int32_t copied = 0;
  for (const list_item &item : kx::items(list)) {
    if (kx::is_point(tag) && kx::readable_as(item, tag)) narrow(kx::read_point(item.data, tag), array[copied++]);
  }
  *count = copied;
  return copied;
}

template <class Point>
list_hdr *array_to_list(const Point *array, std::int32_t n, std::int32_t datatype, std::int32_t first,
                        std::int32_t increment) {
  if (array == nullptr || n <= 0 || !kx::is_point(datatype)) return nullptr;
  list_hdr *list = ll_create_list();
  if (list == nullptr) return nullptr;
  auto seqnr = static_cast<std::uint32_t>(first);
  for (std::int32_t i = 0; i < n; ++i, seqnr += static_cast<std::uint32_t>(increment)) {
    void *record = kx::create_point(datatype, widen(array[i]), static_cast<std::int32_t>(seqnr));
    if (record && kx::append(*list, record, datatype)) continue;
    kx::release(record);
    ll_purge_all_items(list);
    return nullptr;
  }
  return list;
}

}  // namespace

std::int32_t KX_CALL kx_put_xypolyheap(const pnt_2d *array, std::int32_t n, list_hdr *list) {
  return put_heap<kx::plane>(array, n, list, "kx_put_xypolyheap");
}

std::int32_t KX_CALL kx_get_xypolyheap(list_hdr *list, pnt_2d *array, std::int32_t *count) {
  return get_heap(list, array, count);
}

list_hdr *KX_CALL kx_pnt2d_array_to_list(const pnt_2d *array, std::int32_t n, std::int32_t datatype, std::int32_t first,
                                         std::int32_t increment) {
  return array_to_list(array, n, datatype, first, increment);
}

std::int32_t KX_CALL kx_put_xyzpolyheap(const pnt_3d *array, std::int32_t n, list_hdr *list) {
  return put_heap<kx::space>(array, n, list, "kx_put_xyzpolyheap");
}

std::int32_t KX_CALL kx_get_xyzpolyheap(list_hdr *list, pnt_3d *array, std::int32_t *count) {
  return get_heap(list, array, count);
}

list_hdr *KX_CALL kx_pnt3d_array_to_list(const pnt_3d *array, std::int32_t n, std::int32_t datatype, std::int32_t first,
                                         std::int32_t increment) {
  return array_to_list(array, n, datatype, first, increment);
}
