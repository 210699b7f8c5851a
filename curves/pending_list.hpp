// The control points of a part of a curve, made as a list of their own and handed over when it is complete.
#pragma once

#include <cstdint>

#include "kxgeom/types.h"
#include "list/items.hpp"
#include "list/point_kind.hpp"
#include "records/dimension.hpp"

namespace kx {

// A list under way; what is still in it at the end is freed.
class pending_list {
 public:
  pending_list() = default;
  ~pending_list() { release_items(list_); }
  pending_list(const pending_list &) = delete;
  pending_list &operator=(const pending_list &) = delete;

  // Appends a record; frees it when there is no room for its item. False for that and for a null record.
  bool add(void *record, std::int32_t tag) {
    if (record != nullptr && append(list_, record, tag)) return true;
    release(record);
    return false;
  }
  template <class D>
  bool add_vertex(typename D::vector v) {
    const std::int32_t number = list_.count;
    auto *record = D::create_vertex();
    if (record) *record = D::make_vertex(number, v);
    return add(record, D::vertex_tag);
  }
  bool add_number(double value) {
    rnumber *record = create_rnumber();
    if (record) *record = {value};
    return add(record, KX_RNUMBER);
  }

  // Behind or before what a list holds; its cursor ends at the first item handed over.
  void move_behind(list_hdr &to) { join(to, to, list_); }
  void move_before(list_hdr &to) { join(to, list_, to); }

 private:
  void join(list_hdr &to, const list_hdr &front, const list_hdr &back) {
    if (list_.head == nullptr) return;
    list_hdr joined = list_;
    if (to.head != nullptr) {
      front.tail->next = back.head;
      back.head->prev = front.tail;
      joined = {front.head, back.tail, nullptr, front.count + back.count};
    }
    joined.current = list_.head;
    to = joined;
    list_ = {};
  }

  list_hdr list_{};
};

}  // namespace kx
