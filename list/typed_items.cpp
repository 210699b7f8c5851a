// Items whose data the list itself makes and reads: numbers, strings and points.
#include <cstring>

#include "items.hpp"
#include "kxgeom/list.h"
#include "kxgeom/runtime.h"
#include "point_kind.hpp"

namespace {

// Adds a record made for the list; frees it again when it cannot be added.
std::int32_t add_owned(list_hdr *list, std::int32_t where, void *record, std::int32_t tag) {
  if (record == nullptr) return 0;
  if (ll_add_list_item(list, where, record, tag)) return 1;
  kx::release(record);
  return 0;
}

// The number after the tail's; moves the position to the tail, so that adding after the current item appends.
std::int32_t next_polypnt_seqnr(list_hdr *list) {
  if (!kx::is_polygon_point(kx::datatype(list))) return 0;
  list->current = list->tail;
  const list_item *tail = list->tail;
  // Counted in unsigned arithmetic: after the largest number comes the smallest one.
  return tail->data == nullptr
             ? 0
             : static_cast<std::int32_t>(static_cast<std::uint32_t>(kx::read_seqnr(tail->data, tail->datatype)) + 1U);
}

std::int32_t add_point(list_hdr *list, std::int32_t where, const pnt_3d &p) {
  const std::int32_t tag = kx::datatype(list);
  if (!kx::is_point(tag)) return 0;
  return add_owned(list, where, kx::create_point(tag, p, next_polypnt_seqnr(list)), tag);
}

// The item that a getter reads: found on a copy of the header, so that the list's own position stays.
const list_item *reached(const list_hdr &list, std::int32_t which) {
  list_hdr copy = list;
  if (which != 4) ll_set_list_currpntr(&copy, which);
  return copy.current;
}

// The data of the item reached, when the current item has the wanted tag and the data can be read as such; else null.
// The tag of the current item decides on purpose, not that of the item reached: a list is of one kind.
const void *typed_data(const list_hdr *list, std::int32_t which, std::int32_t tag) {
  if (kx::datatype(list) != tag) return nullptr;
  const list_item *item = reached(*list, which);
  return item && kx::readable_as(*item, tag) ? item->data : nullptr;
}

const char *string_data(const list_hdr *list, std::int32_t which) {
  if (kx::datatype(list) != KX_STRING) return nullptr;
  const list_item *item = reached(*list, which);
  const bool readable = item && (item->datatype == KX_STRING || kx::record_size(item->datatype) == 0);
  return readable ? static_cast<const char *>(item->data) : nullptr;
}

pnt_3d point_data(const list_hdr *list, std::int32_t which) {
  const std::int32_t tag = kx::datatype(list);
  const void *record = kx::is_point(tag) ? typed_data(list, which, tag) : nullptr;
  return record ? kx::read_point(record, tag) : pnt_3d{0.0, 0.0, 0.0};
}

}  // namespace

std::int32_t KX_CALL ll_add_rnumber(list_hdr *list, std::int32_t where, double value) {
  if (kx::datatype(list) != KX_RNUMBER) return 0;
  rnumber *record = kx::create_rnumber();
  if (record) record->value = value;
  return add_owned(list, where, record, KX_RNUMBER);
}

std::int32_t KX_CALL ll_add_inumber(list_hdr *list, std::int32_t where, std::int32_t value) {
  if (kx::datatype(list) != KX_INUMBER) return 0;
  inumber *record = kx::create_inumber();
  if (record) record->value = value;
  return add_owned(list, where, record, KX_INUMBER);
}

std::int32_t KX_CALL ll_add_string(list_hdr *list, std::int32_t where, const char *text) {
  if (kx::datatype(list) != KX_STRING || text == nullptr) return 0;
  const std::int32_t length = kx_strlen(text);
  char *copy = kx_create_char_array(length);
  if (copy) std::memcpy(copy, text, static_cast<std::size_t>(length) + 1);
  return add_owned(list, where, copy, KX_STRING);
}

std::int32_t KX_CALL ll_add_pnt2d(list_hdr *list, std::int32_t where, const pnt_2d *pnt) {
  return pnt ? add_point(list, where, {pnt->x, pnt->y, 0.0}) : 0;
}

std::int32_t KX_CALL ll_add_pnt3d(list_hdr *list, std::int32_t where, const pnt_3d *pnt) {
  return pnt ? add_point(list, where, *pnt) : 0;
}

double KX_CALL ll_get_rnumber(const list_hdr *list, std::int32_t which) {
  const auto *record = static_cast<const rnumber *>(typed_data(list, which, KX_RNUMBER));
  return record ? record->value : 0.0;
}

std::int32_t KX_CALL ll_get_inumber(const list_hdr *list, std::int32_t which) {
  const auto *record = static_cast<const inumber *>(typed_data(list, which, KX_INUMBER));
  return record ? record->value : 0;
}

std::int32_t KX_CALL ll_get_string_len(const list_hdr *list, std::int32_t which) {
  return kx_strlen(string_data(list, which));
}

std::int32_t KX_CALL ll_get_string(const list_hdr *list, std::int32_t which, char *buffer) {
  const char *text = string_data(list, which);
  if (text == nullptr || buffer == nullptr) return 0;
  const std::int32_t length = kx_strlen(text);
  std::memcpy(buffer, text, static_cast<std::size_t>(length) + 1);
  return length;
}

pnt_2d KX_CALL ll_get_pnt2d(const list_hdr *list, std::int32_t which) {
  const pnt_3d p = point_data(list, which);
  return {p.x, p.y};
}

pnt_3d KX_CALL ll_get_pnt3d(const list_hdr *list, std::int32_t which) { return point_data(list, which); }
