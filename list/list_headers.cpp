// Making, emptying and freeing lists.
#include "items.hpp"
#include "kxgeom/list.h"
#include "owned_kinds.hpp"

namespace {

// An array with one element more than asked for: hosts count from 1 as well as from 0. The extra one stays as it is.
template <class T>
T *create_array(std::int32_t n, const char *location) {
  if (n < 0) return nullptr;
  auto *array = static_cast<T *>(kx::allocate(kx::array_bytes(std::int64_t{n} + 1, sizeof(T))));
  if (array == nullptr) {
    kx::report_no_memory(location);
    return nullptr;
  }
  for (std::int32_t i = 0; i < n; ++i) array[i] = T{};
  return array;
}

}  // namespace

list_hdr *KX_CALL ll_create_list(void) { return kx::create<list_hdr>("ll_create_list"); }

void KX_CALL ll_init_list_hdr(list_hdr *list) {
  if (list) *list = {};
}

list_hdr *KX_CALL ll_create_list_array(std::int32_t n) { return create_array<list_hdr>(n, "ll_create_list_array"); }

list_hdr **KX_CALL ll_create_list_pntrarray(std::int32_t n) {
  return create_array<list_hdr *>(n, "ll_create_list_pntrarray");
}

// ll_purge_list_pntrarray is a second name of this one.
void KX_CALL ll_purge_list_array(list_hdr *lists) { kx::release(lists); }

std::int32_t KX_CALL ll_purge_list(list_hdr *list) {
  if (list == nullptr || list->head != nullptr) return 8;
  kx::release(list);
  return 0;
}

std::int32_t KX_CALL ll_clear_all_items(list_hdr *list) {
  if (list == nullptr) return 0;
  const std::int32_t found = list->count;
  // The current item's tag opens the list; after each deletion the new head is current and its tag decides.
  list_item *item = list->head;
  if (item == nullptr || !kx::owned_kind(kx::datatype(list))) return found;
  do {
    list_item *next = item->next;
    kx::release(item->data);
    kx::release(item);
    if (list->count > 0) --list->count;
    item = next;
  } while (item != nullptr && kx::owned_kind(item->datatype));
  if (item == nullptr) {
    *list = {};
  } else {
    item->prev = nullptr;
    list->head = list->current = item;
  }
  return found;
}

std::int32_t KX_CALL ll_purge_all_items(list_hdr *list) {
  const std::int32_t found = ll_clear_all_items(list);
  ll_purge_list(list);
  return found;
}
