// Searching item by item, and turning the order of a list.
#include "items.hpp"
#include "kxgeom/list.h"

namespace {

bool is_end(std::int32_t position) { return position == 0 || position == 1 || position == 4; }

list_item *resolve(const list_hdr &list, std::int32_t position) {
  if (position == 0) return list.head;
  return position == 1 ? list.tail : list.current;
}

void make_head(list_hdr &list, list_item *item) {
  list.tail->next = list.head;
  list.head->prev = list.tail;
  list.tail = item->prev;
  list.tail->next = nullptr;
  item->prev = nullptr;
  list.head = item;
}

}  // namespace

std::int32_t KX_CALL ll_search_list(list_hdr *list, std::int32_t start, std::int32_t end, std::int32_t direction,
                                    std::int32_t (*compare)(void *data, void *key), void *key) {
  if (list == nullptr) return 6;
  if (direction != 2 && direction != 3) return 3;
  if (!is_end(start)) return 4;
  if (!is_end(end)) return 5;
  if (kx::empty(list)) return 6;
  if (compare == nullptr) return 7;
  list_item *first = resolve(*list, start);
  const list_item *last = resolve(*list, end);
  if (first == nullptr) return 6;
  if (compare(first->data, key) == 1) {
    list->current = first;
    return 1;
  }
  const bool more = direction == 2 ? first->next != nullptr : first->prev != nullptr;
  return first != last && more ? 0 : 2;
}

void KX_CALL ll_rearrange_list(list_hdr *list, std::int32_t reverse) {
  if (kx::empty(list)) return;
  if (list->current && list->current->prev) make_head(*list, list->current);
  if (reverse != 1) return;
  for (list_item &item : kx::items(list)) item = {item.data, item.datatype, item.next, item.prev};
  *list = {list->tail, list->head, list->tail, list->count};
}
