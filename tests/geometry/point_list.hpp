// A caller's list of polygon points, freed at the end.
#pragma once

#include <vector>

#include "list/items.hpp"

struct point_list {
  list_hdr list{};
  ~point_list() { kx::release_items(list); }

  std::vector<poly_2d> points() const {
    std::vector<poly_2d> all;
    for (list_item &item : kx::items(&list)) all.push_back(*static_cast<poly_2d *>(item.data));
    return all;
  }
  // The last point is the first one, bit for bit.
  bool closed() const {
    const poly_2d first = points().front(), last = points().back();
    return first.x == last.x && first.y == last.y;
  }
};
