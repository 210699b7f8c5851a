// Room for a host's picture, and the vertex records that lie in it.
#include <cstring>
#include <new>

#include "kxgeom/list.h"
#include "kxgeom/records.h"
#include "list/items.hpp"
#include "list/point_kind.hpp"
#include "records/polyface.hpp"
#include "records/surface_limits.hpp"

namespace {

// Without a message on purpose: hosts ask for these large records again with less around them.
template <class T>
T *create_quietly() {
  void *record = kx::allocate(sizeof(T));
  return record ? new (record) T{} : nullptr;
}

template <std::size_t n>
void fill_blank(char (&text)[n]) {
  std::memset(text, ' ', n - 1);
  text[n - 1] = '\0';
}

// Frees a list with its records, each by their own purge function. Items that are known to hold something else are only
// unlinked.
template <class T>
void purge_records(list_hdr *list, std::int32_t tag, void(KX_CALL *purge)(T *)) {
  for (list_item &item : kx::items(list)) {
    if (item.datatype == tag || kx::record_size(item.datatype) == 0) purge(static_cast<T *>(item.data));
    kx::release(&item);
  }
  kx::release(list);
}

constexpr std::int32_t any_tag = 0;  // hosts tag their vertices as they like

void *released(void *block) {
  kx::release(block);
  return nullptr;
}

}  // namespace

vertex_pnt *KX_CALL kx_create_vertex_pnt(void) { return create_quietly<vertex_pnt>(); }

void KX_CALL kx_purge_vertex_pnt(vertex_pnt *vertex) {
  if (vertex == nullptr) return;
  if (list_hdr *list = vertex->items) {
    for (list_item &item : kx::items(list)) kx::release(&item);  // the data are the host's, and so is the header
    *list = {};
  }
  kx::release(vertex);
}

picture_area *KX_CALL kx_create_picture_area(void) {
  auto *area = create_quietly<picture_area>();
  if (area == nullptr) return nullptr;
  fill_blank(area->title);
  area->area_min = {kx::empty_low, kx::empty_low};
  area->area_max = {kx::empty_high, kx::empty_high};
  for (picture_label &label : area->labels) {
    fill_blank(label.text);
    fill_blank(label.name);
  }
  return area;
}

void KX_CALL kx_clear_picture_area(picture_area *area) {
  if (area == nullptr) return;
  area->words[0] = area->words[1] = 0;
  std::memset(area->title, 0, sizeof area->title);
  std::memset(area->slots, 0, sizeof area->slots);
  area->work_buffer_1 = released(area->work_buffer_1);
  area->work_buffer_2 = released(area->work_buffer_2);
  area->extra_block_1 = released(area->extra_block_1);
  area->extra_block_2 = released(area->extra_block_2);
  for (std::int32_t i = 0; area->groups && i < area->group_count; ++i) kx::dispose_list(area->groups[i]);
  kx::release(area->groups);
  purge_records(area->vertex_pnts, any_tag, kx_purge_vertex_pnt);
  purge_records(area->polyfaces, KX_POLYFACE_3D, kx_purge_polyface_3d);
  area->groups = nullptr;
  area->vertex_pnts = area->polyfaces = nullptr;
  for (list_item *item = area->items.head; item;) {
    list_item *next = item->next;
    kx::release(item->data);
    kx::release(item);
    item = next;
  }
  area->items = {};
  area->group_count = 0;
}

void KX_CALL kx_purge_picture_area(picture_area *area) {
  kx_clear_picture_area(area);
  kx::release(area);
}
