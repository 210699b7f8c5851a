// Adding, taking out and visiting items around the current position.
#include "items.hpp"
#include "kxgeom/list.h"
#include "owned_kinds.hpp"

namespace {

list_item *pick(const list_hdr &list, std::int32_t which) {
  switch (which) {
    case 0: return list.head;
    case 1: return list.tail;
    case 2: return list.current ? list.current->next : nullptr;
    case 3: return list.current ? list.current->prev : nullptr;
    default: return list.current;
  }
}

void link_before(list_hdr &list, list_item *item, list_item *next) {
  item->next = next;
  item->prev = next->prev;
  if (next->prev) {
    next->prev->next = item;
  } else {
    list.head = item;
  }
  next->prev = item;
}

// The item keeps its own links, so that its neighbours can still be found from it.
void unlink(list_hdr &list, const list_item *item) {
  if (item->prev) {
    item->prev->next = item->next;
  } else {
    list.head = item->next;
  }
  if (item->next) {
    item->next->prev = item->prev;
  } else {
    list.tail = item->prev;
  }
}

list_item *current_after(const list_hdr &list, const list_item *removed, std::int32_t new_current) {
  list_item *const current = list.current;
  list_item *const next = current ? current->next : nullptr;
  list_item *const prev = current ? current->prev : nullptr;
  switch (new_current) {
    case 0: return list.head;
    case 1: return list.tail;
    case 2: return next ? next : list.head;
    case 3: return prev ? prev : list.tail;
    default:
      if (current != removed) return current;
      return next ? next : list.head;
  }
}

}  // namespace

std::int32_t KX_CALL ll_add_list_item(list_hdr *list, std::int32_t where, void *data, std::int32_t datatype) {
  if (list == nullptr) return 0;
  list_item *item = kx::create_item(data, datatype);
  if (item == nullptr) return 0;
  list_item *next = nullptr;
  list_item *current = kx::current(list);
  if (where == 0) {
    next = list->head;
  } else if (where == 2 && current) {
    next = current->next;
  } else if (where == 3) {
    next = current;
  }
  if (next == nullptr) {
    kx::link_last(*list, item);
    return 1;
  }
  link_before(*list, item, next);
  list->current = item;
  ++list->count;
  return 1;
}

void *KX_CALL ll_delete_list_item(list_hdr *list, std::int32_t which, std::int32_t new_current) {
  if (kx::empty(list)) return nullptr;
  list_item *item = pick(*list, which);
  if (item == nullptr) return nullptr;
  unlink(*list, item);
  list->current = current_after(*list, item, new_current);
  void *data = item->data;
  kx::release(item);
  if (list->count > 0) --list->count;
  if (list->count == 0) *list = {};
  return data;
}

std::int32_t KX_CALL ll_delete_item(list_hdr *list, std::int32_t which, std::int32_t new_current) {
  if (!kx::owned_kind(kx::datatype(list))) return 0;
  void *data = ll_delete_list_item(list, which, new_current);
  kx::release(data);
  return data != nullptr;
}

std::int32_t KX_CALL ll_set_list_currpntr(list_hdr *list, std::int32_t move) {
  if (kx::empty(list)) return 1;
  const list_item *current = list->current;
  switch (move) {
    case 2:
      if (current && current->next) {
        list->current = current->next;
        return 2;
      }
      [[fallthrough]];
    case 0: list->current = list->head; return 0;
    case 3:
      if (current && current->prev) {
        list->current = current->prev;
        return 3;
      }
      [[fallthrough]];
    case 1: list->current = list->tail; return 1;
    default: return move;
  }
}

void *KX_CALL ll_get_list_data(const list_hdr *list) {
  const list_item *item = kx::current(list);
  return item == nullptr ? nullptr : item->data;
}

std::int32_t KX_CALL ll_get_datatype(const list_hdr *list) { return kx::datatype(list); }

std::int32_t KX_CALL ll_get_list_count(const list_hdr *list) { return kx::count(list); }

std::int32_t KX_CALL ll_push_list(list_hdr *list, void *data, std::int32_t datatype) {
  return ll_add_list_item(list, 0, data, datatype);
}

void *KX_CALL ll_pop_list(list_hdr *list) { return ll_delete_list_item(list, 0, 0); }

std::int32_t KX_CALL ll_get_list_array(list_hdr *list, void **array) {
  if (list == nullptr || array == nullptr) return 0;
  list->current = list->head;
  if (list->head == nullptr) {
    array[0] = nullptr;  // an empty list still has its one, null, current datum
    return 1;
  }
  std::int32_t stored = 0;
  for (const list_item &item : kx::items(list)) array[stored++] = item.data;
  return stored;
}
