// The outline that a host gives for a swept body.
#pragma once

#include <cstdint>

#include "kxgeom/polygon.h"
#include "kxgeom/types.h"
#include "records/vector.hpp"
#include "runtime/memory.hpp"

namespace kx {

// A list of points as a closed, proper polygon, counter-clockwise. Points that repeat the one before, or the last one
// the first, are left out.
class profile {
 public:
  // Which coordinate of a point in space is the polygon's second.
  enum class second { y, z };
  // Points so near the y axis lie on it.
  enum class snap { none, to_axis };

  profile(const list_hdr *list, second coordinate, snap to, const char *location)
      : profile(list, room(list), coordinate, to, location) {}

  // False when the list is no proper polygon of at most KX_SOLID_VERTICES_MOST points, or after a memory message.
  explicit operator bool() const { return proper_; }
  std::int32_t count() const { return count_; }
  const vec2 *data() const { return points_.data(); }
  vec2 operator[](std::int32_t i) const { return points_[i]; }

 private:
  profile(const list_hdr *list, std::int64_t room, second coordinate, snap to, const char *location);
  static std::int64_t room(const list_hdr *list);
  void read(const list_hdr *list, second coordinate, snap to);
  bool check(const char *location) const;

  scratch<vec2> points_;
  std::int32_t count_ = 0;
  bool proper_ = false;
};

// A copy of the list that frees itself unless a record has taken it over.
class profile_copy {
 public:
  explicit profile_copy(const list_hdr *list);
  ~profile_copy();
  profile_copy(const profile_copy &) = delete;
  profile_copy &operator=(const profile_copy &) = delete;

  // False after the memory message.
  explicit operator bool() const { return list_ != nullptr; }
  list_hdr *get() const { return list_; }
  void hand_over() { list_ = nullptr; }

 private:
  list_hdr *list_;
};

}  // namespace kx
