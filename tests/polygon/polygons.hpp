// Polygons for the tests: as lists of each kind, and at random where tolerances bite.
#pragma once

#include <cmath>
#include <random>
#include <vector>

#include "kxgeom/list.h"
#include "list/items.hpp"
#include "list/point_kind.hpp"

using polygon = std::vector<pnt_2d>;

constexpr int kinds[] = {KX_PNT_2D, KX_PNT_3D, KX_POLY_2D, KX_POLY_3D};

// A list that frees itself.
struct polygon_list {
  list_hdr list{};
  explicit polygon_list(const polygon &points = {}, int kind = KX_POLY_2D) {
    for (const pnt_2d &p : points) {
      kx::append(list, kx::create_point(kind, {p.x, p.y, 7.0}, list.count), kind);
    }
    list.current = list.head;
  }
  polygon_list(const polygon_list &) = delete;
  ~polygon_list() { kx::release_items(list); }
  operator list_hdr *() { return &list; }

  // The points; the list's links and numbers must be in order.
  polygon points() const {
    polygon all;
    const list_item *before = nullptr;
    for (const list_item *i = list.head; i; before = i, i = i->next) {
      const pnt_3d p = kx::read_point(i->data, i->datatype);
      EXPECT_TRUE(i->prev == before);
      all.push_back({p.x, p.y});
    }
    EXPECT_TRUE(list.tail == before);
    EXPECT_EQ(+list.count, static_cast<int>(all.size()));
    return all;
  }
};

inline bool same(const polygon &a, const polygon &b) {
  bool equal = a.size() == b.size();
  for (std::size_t i = 0; equal && i < a.size(); ++i) equal = a[i].x == b[i].x && a[i].y == b[i].y;
  return equal;
}

struct randomness {
  std::mt19937 engine;
  explicit randomness(unsigned seed) : engine(seed) {}
  int below(int n) { return static_cast<int>(engine() % static_cast<unsigned>(n)); }
  // A whole number, which makes points meet, edges overlap and rays pass through vertices...
  double whole(int n) { return below(2 * n + 1) - n; }
  // ... or one beside it, within tolerance or just not.
  double about(int n) { return whole(n) + (below(3) ? 0.0 : (below(9) - 4) * 0.52e-7); }
  polygon walk(int count, int n, bool exact) {
    polygon p;
    for (int i = 0; i < count; ++i) {
      if (i && below(5) == 0) {
        p.push_back(p[static_cast<std::size_t>(below(i))]);
      } else {
        p.push_back(exact ? pnt_2d{whole(n), whole(n)} : pnt_2d{about(n), about(n)});
      }
    }
    return p;
  }
};

// Simple, around the origin.
inline polygon star(int n, double least, double most, unsigned seed) {
  randomness r(seed);
  polygon p;
  for (int i = 0; i < n; ++i) {
    const double a = 6.283185307179586 * i / n, radius = least + (most - least) * r.below(1000) / 1000;
    p.push_back({radius * std::cos(a), radius * std::sin(a)});
  }
  return p;
}
