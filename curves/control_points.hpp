// Reading control points of any of the four kinds from either end of a list.
#pragma once

#include <cstdint>

#include "knot_spans.hpp"
#include "kxgeom/types.h"
#include "list/items.hpp"
#include "list/point_kind.hpp"
#include "records/dimension.hpp"

namespace kx {

// The first `count` control points of a list; false when it holds fewer.
template <class D>
bool read_control_points(const list_hdr *list, std::int32_t count, typename D::vector *v) {
  const list_item *item = empty(list) ? nullptr : list->head;
  for (std::int32_t i = 0; i < count; ++i, item = next(item)) {
    if (!read_any_point<D>(item, v[i])) return false;
  }
  return true;
}

// The last `count` control points of a list, in the order of the list; false when it holds fewer.
template <class D>
bool read_last_control_points(const list_hdr *list, std::int32_t count, typename D::vector *v) {
  const list_item *item = empty(list) ? nullptr : list->tail;
  for (std::int32_t i = count - 1; i >= 0; --i, item = item->prev) {
    if (!read_any_point<D>(item, v[i])) return false;
  }
  return true;
}

}  // namespace kx
