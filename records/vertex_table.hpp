// The vertices of a body by their place in the vertex list, for the normals of many faces.
#pragma once

#include <algorithm>
#include <cstdint>

#include "records/polyface.hpp"

namespace kx {

// What kx_get_face_normal finds by walking the list for each face, without the walk: the first three vertices in list
// order that bear one of three numbers. Vertices numbered 0, 1, 2, ... in list order are found by their number; others
// through an index sorted by number.
class vertex_table {
 public:
  // An empty table with room for so many vertices, for who makes them.
  explicit vertex_table(std::int64_t room) : points_(room + 1), index_(1) {}

  // The vertices of a list. Items that are no vertices have no place in it.
  explicit vertex_table(const list_hdr *vertices)
      : points_(item_count(vertices) + 1), index_(numbers_to_sort(vertices) + 1) {
    if (!*this) return;
    for (const list_item &item : items(vertices)) {
      const poly_3d *vertex = vertex_of(item);
      if (vertex == nullptr) continue;
      if (!in_order_) index_[count_] = {vertex->seqnr, count_};
      points_[count_++] = {vertex->x, vertex->y, vertex->z};
    }
    if (in_order_) return;
    std::sort(index_.data(), index_.data() + count_, [](const entry &a, const entry &b) {
      return a.number != b.number ? a.number < b.number : a.place < b.place;
    });
  }

  // False when the heap had no room for the table.
  explicit operator bool() const { return points_ && index_; }

  void add(vec3 point) { points_[count_++] = point; }
  std::int32_t count() const { return count_; }
  vec3 at(std::int32_t place) const { return points_[place]; }

  // The normal of a face that begins with these three numbers; false, the normal as it was, when fewer than three
  // vertices bear them.
  bool normal(std::int32_t a, std::int32_t b, std::int32_t c, vector_3d &out) const {
    if (in_order_) {
      // Places in ascending order, compared as unsigned so that negative numbers are past the end.
      if (a > b) std::swap(a, b);
      if (b > c) std::swap(b, c);
      if (a > b) std::swap(a, b);
      if (a < 0 || a == b || b == c || c >= count_) return false;
      out = face_normal(points_[a], points_[b], points_[c]);
      return true;
    }
    std::int32_t place[9];
    int found = add_places(a, place, 0);
    if (b != a) found = add_places(b, place, found);
    if (c != a && c != b) found = add_places(c, place, found);
    if (found < 3) return false;
    std::partial_sort(place, place + 3, place + found);
    out = face_normal(points_[place[0]], points_[place[1]], points_[place[2]]);
    return true;
  }

 private:
  struct entry {
    std::int32_t number, place;
  };

  static std::int64_t item_count(const list_hdr *list) {
    std::int64_t n = 0;
    for (const list_item &item : items(list)) n += item.data != nullptr;
    return n;
  }

  // 0 when the numbers are the places already.
  std::int64_t numbers_to_sort(const list_hdr *list) {
    std::int64_t n = 0;
    for (const list_item &item : items(list)) {
      const poly_3d *vertex = vertex_of(item);
      if (vertex) in_order_ &= vertex->seqnr == n++;
    }
    return in_order_ ? 0 : n;
  }

  // The first three places, at most, of a number.
  int add_places(std::int32_t number, std::int32_t *place, int found) const {
    const entry *end = index_.data() + count_;
    const entry *e = std::lower_bound<const entry *>(index_.data(), end, number,
                                                     [](const entry &x, std::int32_t y) { return x.number < y; });
    for (int i = 0; i < 3 && e != end && e->number == number; ++i, ++e) place[found++] = e->place;
    return found;
  }

  bool in_order_ = true;
  std::int32_t count_ = 0;
  // One more than needed: some heaps answer an empty block with null.
  scratch<vec3> points_;
  scratch<entry> index_;
};

}  // namespace kx
