// Lists of points and numbers: copied, freed, searched and numbered as polygons.
#include "kxgeom/list.h"
#include "kxgeom/records.h"
#include "list/items.hpp"
#include "list/point_kind.hpp"

namespace {

// Statistics, faces and matrices have owners of their own; strings are no polygon.
bool is_polygon_kind(std::int32_t tag) { return kx::is_point(tag) || tag == KX_RNUMBER || tag == KX_INUMBER; }

void *copy_record(const void *record, std::int32_t tag) {
  if (tag == KX_RNUMBER) {
    rnumber *copy = kx::create_rnumber();
    if (copy) *copy = *static_cast<const rnumber *>(record);
    return copy;
  }
  if (tag == KX_INUMBER) {
    inumber *copy = kx::create_inumber();
    if (copy) *copy = *static_cast<const inumber *>(record);
    return copy;
  }
  return kx::create_point(tag, kx::read_point(record, tag), kx::read_seqnr(record, tag));
}

// Numbers wrap round at the ends of the integers.
std::int32_t advance(std::int32_t number, std::int32_t increment) {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(number) + static_cast<std::uint32_t>(increment));
}

bool has_seqnr(const list_item *item, std::int32_t seqnr) {
  return item && item->data && kx::is_polygon_point(item->datatype) &&
         kx::read_seqnr(item->data, item->datatype) == seqnr;
}

}  // namespace

std::int32_t KX_CALL kx_copy_polygon(list_hdr *source, list_hdr *destination) {
  const std::int32_t tag = kx::datatype(source);
  if (destination == nullptr || !is_polygon_kind(tag)) return 0;
  // The last item is fixed beforehand: a list copied onto itself grows while it is walked.
  const list_item *last = source->tail;
  list_item *item = source->head;
  source->current = source->head;
  std::int32_t copied = 0;
  while (true) {
    if (kx::readable_as(*item, tag)) {
      void *record = copy_record(item->data, tag);
      if (record == nullptr) return -1;
      if (!kx::append(*destination, record, tag)) {
        kx::release(record);
        return -1;
      }
      ++copied;
    }
    if (item == last) return copied;
    item = item->next;
  }
}

std::int32_t KX_CALL kx_purge_polygon(list_hdr *list) {
  if (list == nullptr || (!kx::empty(list) && !is_polygon_kind(kx::datatype(list)))) return 9;
  ll_clear_all_items(list);
  return ll_purge_list(list) == 0 ? 0 : 9;
}

std::int32_t KX_CALL kx_clear_polygon(list_hdr *list) {
  if (list == nullptr) return 0;
  if (kx::empty(list)) {
    *list = {};
    return 0;
  }
  return is_polygon_kind(kx::datatype(list)) ? ll_clear_all_items(list) : 0;
}

std::int32_t KX_CALL kx_delete_polygon(list_hdr *list, std::int32_t position) {
  if (!is_polygon_kind(kx::datatype(list))) return 0;
  void *record = ll_delete_list_item(list, 4, position);
  kx::release(record);
  return record != nullptr;
}

std::int32_t KX_CALL kx_find_polygon_seqnr(list_hdr *list, std::int32_t seqnr) {
  if (!kx::is_polygon_point(kx::datatype(list))) return 0;
  if (has_seqnr(list->current, seqnr)) return 1;
  for (list_item &item : kx::items(list)) {
    if (!has_seqnr(&item, seqnr)) continue;
    list->current = &item;
    return 1;
  }
  list->current = list->head;
  return 0;
}

std::int32_t KX_CALL kx_renum_polygon(list_hdr *list, std::int32_t start, std::int32_t first, std::int32_t increment) {
  if (kx::empty(list)) return 0;
  ll_set_list_currpntr(list, start);
  std::int32_t numbered = 0;
  std::int32_t number = first;
  for (const list_item *item = list->current; item; item = item->next) {
    if (item->data && kx::is_polygon_point(item->datatype)) {
      kx::write_seqnr(item->data, number);
      ++numbered;
    }
    number = advance(number, increment);
  }
  list->current = list->head;
  return numbered;
}

std::int32_t KX_CALL kx_merge_polygon(const list_hdr *source, list_hdr *destination, std::int32_t where,
                                      std::int32_t renumber) {
  const std::int32_t tag = kx::datatype(source);
  if (destination == nullptr || !is_polygon_kind(tag)) return 0;
  if (!kx::empty(destination) && kx::datatype(destination) != tag) return 0;
  if (source->current->data == nullptr) return 0;
  void *copy = copy_record(source->current->data, tag);
  if (copy == nullptr) return 0;
  if (renumber && kx::is_polygon_point(tag)) {
    const list_item *tail = kx::empty(destination) ? nullptr : destination->tail;
    kx::write_seqnr(copy, tail && tail->data ? advance(kx::read_seqnr(tail->data, tail->datatype), 1) : 0);
  }
  if (ll_add_list_item(destination, where, copy, tag)) return 1;
  kx::release(copy);
  return 0;
}
