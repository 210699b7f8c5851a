// The blocks that a list of records consists of, made, linked and freed, and nothing else.
#pragma once

#include <cstdint>
#include <cstdlib>

#include "kxgeom/types.h"

namespace bench {

template <class R>
R *make_record(const R &value) {
  auto *record = static_cast<R *>(std::malloc(sizeof(R)));
  *record = value;
  return record;
}

inline void link_record(list_hdr &list, void *record, std::int32_t tag) {
  list_item *item = make_record(list_item{record, tag, list.tail, nullptr});
  (list.tail ? list.tail->next : list.head) = item;
  list.tail = list.current = item;
  ++list.count;
}

inline void free_blocks(list_hdr &list) {
  for (list_item *item = list.head; item != nullptr;) {
    list_item *next = item->next;
    std::free(item->data);
    std::free(item);
    item = next;
  }
  list = {};
}

}  // namespace bench
