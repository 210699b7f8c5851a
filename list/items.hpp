// Walking and growing a list without its cursor.
#pragma once

#include <cstdint>

#include "kxgeom/types.h"
#include "runtime/memory.hpp"

namespace kx {

// A range over the items of a list, head to tail, that leaves the cursor where it is; empty for a null list. The item
// just visited may be freed before the next step.
class items {
 public:
  class iterator {
   public:
    explicit iterator(list_item *item) : item_(item), next_(item ? item->next : nullptr) {}
    list_item &operator*() const { return *item_; }
    bool operator!=(const iterator &other) const { return item_ != other.item_; }
    iterator &operator++() {
      item_ = next_;
      next_ = item_ ? item_->next : nullptr;
      return *this;
    }

   private:
    list_item *item_;
    list_item *next_;
  };

  explicit items(const list_hdr *list) : head_(list ? list->head : nullptr) {}
  iterator begin() const { return iterator(head_); }
  iterator end() const { return iterator(nullptr); }

 private:
  list_item *head_;
};

// A header without a head is an empty list, whatever its other fields still say: that is how a definer leaves the
// header whose items it has taken over.
inline bool empty(const list_hdr *list) { return list == nullptr || list->head == nullptr; }

inline list_item *current(const list_hdr *list) { return empty(list) ? nullptr : list->current; }

inline std::int32_t count(const list_hdr *list) { return list == nullptr ? 0 : list->count; }

// The tag of the current item, 0 when there is none.
inline std::int32_t datatype(const list_hdr *list) {
  const list_item *item = current(list);
  return item == nullptr ? 0 : item->datatype;
}

// A new item, not yet in a list; null after the memory message.
inline list_item *create_item(void *data, std::int32_t datatype) {
  auto *item = static_cast<list_item *>(allocate(sizeof(list_item)));
  if (item == nullptr) [[unlikely]] {
    report_no_memory("ll_add_list_item");
    return nullptr;
  }
  *item = {data, datatype, nullptr, nullptr};
  return item;
}

// Links an item after the tail and makes it current.
inline void link_last(list_hdr &list, list_item *item) {
  if (list.head == nullptr) {
    list = {item, item, item, 1};
    return;
  }
  item->prev = list.tail;
  list.tail->next = item;
  list.tail = list.current = item;
  ++list.count;
}

// ll_add_list_item after the tail, without the call: false after the memory message.
inline bool append(list_hdr &list, void *data, std::int32_t datatype) {
  list_item *item = create_item(data, datatype);
  if (item == nullptr) return false;
  link_last(list, item);
  return true;
}

// Hands all items of one list to another, empty one; the source is empty afterwards.
inline void move_items(list_hdr &from, list_hdr &to) {
  to = from;
  from = {};
}

// Links all items of one list after the tail of another, the last one current; the source is empty afterwards.
inline void splice(list_hdr &list, list_hdr &more) {
  if (empty(&more)) return;
  if (empty(&list)) {
    list = more;
  } else {
    more.head->prev = list.tail;
    list.tail->next = more.head;
    list.tail = more.tail;
    list.count += more.count;
  }
  list.current = list.tail;
  more = {};
}

// Frees all items with their data; the list is empty afterwards.
inline void release_items(list_hdr &list) {
  for (list_item &item : items(&list)) {
    release(item.data);
    release(&item);
  }
  list = {};
}

}  // namespace kx
