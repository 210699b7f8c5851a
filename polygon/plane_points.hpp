// The points of a list by their x and y, whichever of the four kinds they are.
#pragma once

#include <cstdint>
#include <cstring>

#include "geometry/line.hpp"
#include "list/items.hpp"
#include "list/point_kind.hpp"
#include "records/vector.hpp"
#include "runtime/memory.hpp"

namespace kx {

// A range over the points, head to tail, that leaves the cursor where it is. The list's tag decides how the items are
// read; those that cannot be read so are passed over, and a list of another kind has no points.
class plane_points {
 public:
  class iterator {
   public:
    iterator(const list_item *item, std::int32_t tag)
        : item_(item), tag_(tag), offset_(is_polygon_point(tag) ? sizeof(std::int32_t) : 0) {
      settle();
    }
    vec2 operator*() const {
      const char *x = static_cast<const char *>(item_->data) + offset_;
      vec2 p;
      std::memcpy(&p.x, x, sizeof p.x);
      std::memcpy(&p.y, x + sizeof p.x, sizeof p.y);
      return p;
    }
    bool operator!=(const iterator &other) const { return item_ != other.item_; }
    iterator &operator++() {
      item_ = item_->next;
      settle();
      return *this;
    }

   private:
    void settle() {
      if (item_ && (item_->datatype != tag_ || !item_->data)) [[unlikely]]
        item_ = first_readable(item_, tag_);
    }
    [[gnu::cold]] static const list_item *first_readable(const list_item *item, std::int32_t tag) {
      while (item && !readable_as(*item, tag)) item = item->next;
      return item;
    }

    const list_item *item_;
    std::int32_t tag_;
    std::size_t offset_;  // of x in the record
  };

  explicit plane_points(const list_hdr *list)
      : tag_(datatype(list)), head_(is_point(tag_) ? list->head : nullptr), count_(head_ ? list->count : 0) {}
  iterator begin() const { return {head_, tag_}; }
  iterator end() const { return {nullptr, tag_}; }

  // At least as many as there are points.
  std::int32_t at_most() const { return count_ > 0 ? count_ : 0; }

 private:
  std::int32_t tag_;
  const list_item *head_;
  std::int32_t count_;
};

// A list's points as an array; false after the memory message for `location`.
class point_array {
 public:
  point_array(const list_hdr *list, const char *location) : point_array(plane_points(list), location) {}
  explicit operator bool() const { return static_cast<bool>(points_); }
  std::int32_t count() const { return count_; }
  vec2 *data() const { return points_.data() + 1; }
  vec2 &operator[](std::ptrdiff_t i) const { return points_[i + 1]; }

  // The polygon as count() edges, the closing one first: one point more, the first repeating the last. Not for no
  // points.
  const vec2 *ring() const {
    points_[0] = points_[count_];
    return points_.data();
  }

 private:
  // Room for one more in front. A header that counts too few items has the rest of them left out.
  point_array(const plane_points &points, const char *location) : points_(std::int64_t{points.at_most()} + 1) {
    if (!points_) {
      report_no_memory(location);
      return;
    }
    for (const vec2 p : points) {
      if (count_ == points.at_most()) break;
      points_[++count_] = p;
    }
  }

  scratch<vec2> points_;
  std::int32_t count_ = 0;
};

}  // namespace kx
