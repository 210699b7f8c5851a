// Points that coincide with none before them, found without comparing every pair.
#pragma once

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstring>

#include "geometry/line.hpp"
#include "records/vector.hpp"
#include "runtime/memory.hpp"

namespace kx {

// The points kept so far, in cells wide enough that whatever coincides with one lies in a neighbouring cell. No two of
// them coincide, so a cell holds few.
class distinct_points {
 public:
  explicit distinct_points(std::int64_t most)
      : slots_(std::bit_ceil(static_cast<std::uint64_t>(2 * most + 2))), kept_(static_cast<std::int64_t>(slots_)) {
    if (kept_) std::memset(static_cast<void *>(kept_.data()), 0, static_cast<std::size_t>(slots_) * sizeof(slot));
  }
  explicit operator bool() const { return static_cast<bool>(kept_); }

  // Keeps the point and answers true, unless one that was kept coincides with it.
  bool add(vec2 p) {
    const vec2 c{std::floor(p.x / cell), std::floor(p.y / cell)};
    for (int i = -1; i <= 1; ++i) {
      for (int k = -1; k <= 1; ++k) {
        if (holds({c.x + i, c.y + k}, p)) return false;
      }
    }
    std::uint64_t s = home(c);
    while (kept_[index(s)].used) ++s;
    kept_[index(s)] = {p, true};
    return true;
  }

 private:
  static constexpr double cell = 1.5 * tolerance;

  struct slot {
    vec2 point;
    bool used;
  };

  static std::uint64_t home(vec2 c) {
    // Adding 0 makes one zero of both.
    const auto x = std::bit_cast<std::uint64_t>(c.x + 0.0), y = std::bit_cast<std::uint64_t>(c.y + 0.0);
    const std::uint64_t mixed = (x * 0x9e3779b97f4a7c15u ^ std::rotl(y, 32)) * 0xd6e8feb86659fd93u;
    return mixed >> 20;
  }
  std::ptrdiff_t index(std::uint64_t s) const { return static_cast<std::ptrdiff_t>(s & (slots_ - 1)); }

  bool holds(vec2 c, vec2 p) const {
    for (std::uint64_t s = home(c); kept_[index(s)].used; ++s) {
      if (same_point(kept_[index(s)].point, p)) return true;
    }
    return false;
  }

  std::uint64_t slots_;
  scratch<slot> kept_;
};

}  // namespace kx
