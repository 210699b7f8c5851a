// Any sequence of list operations against a vector and an index.
#include <algorithm>
#include <vector>

#include "input.hpp"

namespace {

struct model {
  std::vector<inumber *> items;
  std::ptrdiff_t current = -1;

  std::ptrdiff_t count() const { return static_cast<std::ptrdiff_t>(items.size()); }

  void add(std::int32_t where, inumber *record) {
    std::ptrdiff_t at = count();
    if (where == 0) at = 0;
    if (where == 2 && !items.empty()) at = current + 1;
    if (where == 3 && !items.empty()) at = current;
    items.insert(items.begin() + at, record);
    current = at;
  }

  // -1 when there is no such item.
  std::ptrdiff_t position(std::int32_t which) const {
    if (items.empty()) return -1;
    switch (which) {
      case 0: return 0;
      case 1: return count() - 1;
      case 2: return current + 1 < count() ? current + 1 : -1;
      case 3: return current - 1;
      default: return current;
    }
  }

  inumber *take(std::int32_t which, std::int32_t new_current) {
    const std::ptrdiff_t at = position(which);
    if (at < 0) return nullptr;
    const bool own = at == current;
    inumber *taken = items[static_cast<std::size_t>(at)];
    items.erase(items.begin() + at);
    std::ptrdiff_t next = own ? at : current + 1 - (at <= current),
                   previous = own ? at - 1 : current - 1 - (at < current);
    if (!own && at < current) --current;
    if (!own) next = current + 1, previous = current - 1;
    switch (new_current) {
      case 0: current = 0; break;
      case 1: current = count() - 1; break;
      case 2: current = next < count() ? next : 0; break;
      case 3: current = previous >= 0 ? previous : count() - 1; break;
      default:
        if (own) current = next < count() ? next : 0;
    }
    if (items.empty()) current = -1;
    return taken;
  }

  std::int32_t move(std::int32_t where) {
    if (items.empty()) return 1;
    switch (where) {
      case 0: current = 0; return 0;
      case 1: current = count() - 1; return 1;
      case 2: current = current + 1 < count() ? current + 1 : 0; return current == 0 ? 0 : 2;
      case 3: current = current > 0 ? current - 1 : count() - 1; return current == count() - 1 ? 1 : 3;
      default: return where;
    }
  }

  void rearrange(bool reverse) {
    if (items.empty()) return;
    std::rotate(items.begin(), items.begin() + current, items.end());
    current = 0;
    if (reverse) std::reverse(items.begin(), items.end());
  }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  fuzz::input in(data, size);
  list_hdr *list = ll_create_list();
  model expected;
  for (std::int32_t serial = 0; in.rest(); ++serial) {
    const std::int32_t where = in.below(6), new_current = in.below(6);
    switch (in.below(8)) {
      case 0:
      case 1: {
        inumber *record = kx_create_inumber();
        kx_set_inumber(serial, record);
        REQUIRE(ll_add_list_item(list, where, record, KX_INUMBER) == 1);
        expected.add(where, record);
        break;
      }
      case 2: {
        void *taken = ll_delete_list_item(list, where, new_current);
        REQUIRE(taken == expected.take(where, new_current));
        kx_purge_inumber(static_cast<inumber *>(taken));
        break;
      }
      case 3: REQUIRE(ll_set_list_currpntr(list, where) == expected.move(where)); break;
      case 4:
        ll_rearrange_list(list, where == 1);
        expected.rearrange(where == 1);
        break;
      case 5: {
        void *taken = ll_pop_list(list);
        REQUIRE(taken == expected.take(0, 0));
        kx_purge_inumber(static_cast<inumber *>(taken));
        break;
      }
      case 6:
        REQUIRE(ll_delete_item(list, where, new_current) == (expected.take(where, new_current) != nullptr));
        break;
      default:
        if (ll_add_inumber(list, where, serial)) expected.add(where, static_cast<inumber *>(ll_get_list_data(list)));
    }
    REQUIRE(fuzz::linked(list));
    REQUIRE(list->count == expected.count());
    std::ptrdiff_t n = 0;
    for (const list_item *item = list->head; item; item = item->next, ++n) {
      REQUIRE(item->data == expected.items[static_cast<std::size_t>(n)]);
      if (item == list->current) REQUIRE(n == expected.current);
    }
  }
  fuzz::drop(list);
  return 0;
}
