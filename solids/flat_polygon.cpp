// A plane polygon cut into triangles, ear by ear.
#include "flat_polygon.hpp"

#include <algorithm>

#include "geometry/line.hpp"
#include "polygon/edge_tree.hpp"

namespace {

using kx::vec2;

// How far, as a sine, three corners may be from one line and still count as in line. Cutting begins with the first and
// goes on with the next when nothing is left that passes: at the end every corner passes, so that it always ends.
constexpr double in_line[] = {1e-9, 0.0, -1.0};

// Whether c is to the left of the way from a to b, and by more than a sine.
bool left(vec2 a, vec2 b, vec2 c, double sine) {
  const double by = kx::cross(b - a, c - a);
  return by > (sine > 0.0 ? sine * kx::length(b - a) * kx::length(c - a) : 0.0);
}

// Corners that can keep others from being cut off: those that are not convex. Boxes over runs of eight, over eight of
// those, and so on hold no more than what is still in the way.
class obstacles {
 public:
  obstacles(const vec2 *points, std::int32_t n) : points_(points), n_(n), in_way_(n), nodes_(room(n)) {}
  explicit operator bool() const { return in_way_ && nodes_; }

  // Begins with those for which in_way(i) is true.
  template <class InWay>
  void begin(InWay in_way) {
    for (std::int32_t i = 0; i < n_; ++i) in_way_[i] = in_way(i);
    for (std::int32_t below = n_; below > 1 || levels_ == 0; ++levels_) {
      below = (below + fan - 1) / fan;
      first_[levels_ + 1] = first_[levels_] + below;
      for (std::int32_t j = 0; j < below; ++j) refresh(levels_, j);
    }
  }

  void remove(std::int32_t i) {
    if (!in_way_[i]) return;
    in_way_[i] = false;
    for (int level = 0; level < levels_; ++level) refresh(level, i /= fan);
  }

  // Whether one of them is in the closed triangle a, b, c, its own corners apart.
  bool any_within(const kx::corner_triangle &t, double sine) const {
    const vec2 a = points_[t.a], b = points_[t.b], c = points_[t.c];
    const double longest = std::max(kx::length(b - a), std::max(kx::length(c - b), kx::length(a - c)));
    const double margin = sine * longest;
    kx::box around;
    for (const vec2 p : {a, b, c}) around.hold(p - vec2{margin, margin}), around.hold(p + vec2{margin, margin});
    return any_within({t, a, b, c, sine, margin, around}, levels_ - 1, 0);
  }

 private:
  static constexpr std::int32_t fan = 8;

  struct query {
    kx::corner_triangle corners;
    vec2 a, b, c;
    double sine, margin;
    kx::box around;

    bool misses(const kx::box &box) const {
      return !around.meets(box) || beyond(a, b, box) || beyond(b, c, box) || beyond(c, a, box);
    }
    bool holds(vec2 p) const { return !left(b, a, p, sine) && !left(c, b, p, sine) && !left(a, c, p, sine); }

    // Whether a box lies to the right of the way from one corner to another: its leftmost point does.
    bool beyond(vec2 from, vec2 to, const kx::box &box) const {
      const vec2 d = to - from, leftmost{d.y > 0.0 ? box.x1 : box.x2, d.x > 0.0 ? box.y2 : box.y1};
      return kx::cross(leftmost - from, d) > margin * kx::length(d);
    }
  };

  static std::int64_t room(std::int32_t n) {
    std::int64_t all = 1;
    for (std::int64_t below = n; below > 1;) all += below = (below + fan - 1) / fan;
    return all;
  }

  static bool empty(const kx::box &b) { return b.x1 > b.x2; }
  kx::box &at(int level, std::int32_t j) const { return nodes_[first_[level] + j]; }
  std::int32_t after_last(int level, std::int32_t j) const {
    return std::min(fan * (j + 1), level > 0 ? first_[level] - first_[level - 1] : n_);
  }

  void refresh(int level, std::int32_t j) {
    kx::box bounds;
    for (std::int32_t i = fan * j; i < after_last(level, j); ++i) {
      if (level == 0) {
        if (in_way_[i]) bounds.hold(points_[i]);
      } else if (const kx::box &part = at(level - 1, i); !empty(part)) {
        bounds.hold(part);
      }
    }
    at(level, j) = bounds;
  }

  bool any_within(const query &q, int level, std::int32_t j) const {
    const kx::box &bounds = at(level, j);
    if (empty(bounds) || q.misses(bounds)) return false;
    for (std::int32_t i = fan * j; i < after_last(level, j); ++i) {
      if (level > 0 ? any_within(q, level - 1, i) : blocks(q, i)) return true;
    }
    return false;
  }

  bool blocks(const query &q, std::int32_t i) const {
    return in_way_[i] && i != q.corners.a && i != q.corners.b && i != q.corners.c && q.holds(points_[i]);
  }

  const vec2 *points_;
  std::int32_t n_;
  kx::scratch<bool> in_way_;
  kx::scratch<kx::box> nodes_;
  int levels_ = 0;
  std::int32_t first_[13] = {};
};

// A ring of corners that shrinks to a triangle. Whether a corner can be cut off changes only when its neighbours do: so
// those are all that is looked at again, and last, which keeps the triangles from becoming a fan of slivers.
class ear_cutter {
 public:
  ear_cutter(const vec2 *points, std::int32_t n)
      : points_(points), left_(n), links_(n), queue_(3 * std::int64_t{n}), obstacles_(points, n) {}
  explicit operator bool() const { return links_ && queue_ && obstacles_; }

  void run(kx::corner_triangle *out) {
    const std::int32_t n = left_;
    for (std::int32_t i = 0; i < n; ++i) links_[i] = {i ? i - 1 : n - 1, i + 1 < n ? i + 1 : 0, 0};
    obstacles_.begin([this](std::int32_t i) { return !convex(i, in_line[0]); });
    std::int32_t ring = 0;
    for (const double sine : in_line) {
      pushed_ = 0;
      for (std::int32_t i = 0, corner = ring; i < left_; ++i, corner = links_[corner].next) push(corner);
      for (std::int64_t entry = 0; entry < pushed_ && left_ > 3; ++entry) {
        const std::int32_t corner = queue_[entry];
        if (links_[corner].entry != entry || !is_ear(corner, sine)) continue;
        *out++ = triangle(corner);
        ring = links_[corner].next;
        cut(corner, sine);
      }
    }
    *out = triangle(ring);
  }

 private:
  struct link {
    std::int32_t prev, next;
    std::int64_t entry;  // where in the queue it waits; earlier entries do not count
  };

  kx::corner_triangle triangle(std::int32_t i) const { return {links_[i].prev, i, links_[i].next}; }

  bool convex(std::int32_t i, double sine) const {
    return left(points_[links_[i].prev], points_[i], points_[links_[i].next], sine);
  }

  bool is_ear(std::int32_t i, double sine) const {
    return sine < 0.0 || (convex(i, sine) && !obstacles_.any_within(triangle(i), sine));
  }

  void cut(std::int32_t i, double sine) {
    const std::int32_t before = links_[i].prev, after = links_[i].next;
    links_[before].next = after;
    links_[after].prev = before;
    obstacles_.remove(i);
    --left_;
    for (const std::int32_t neighbour : {before, after}) {
      if (convex(neighbour, sine)) obstacles_.remove(neighbour);
      push(neighbour);
    }
  }

  // No more than three times per corner and pass: at the start, and as a neighbour of those that are cut off.
  void push(std::int32_t i) {
    links_[i].entry = pushed_;
    queue_[pushed_++] = i;
  }

  const vec2 *points_;
  std::int32_t left_;
  kx::scratch<link> links_;
  kx::scratch<std::int32_t> queue_;
  std::int64_t pushed_ = 0;
  obstacles obstacles_;
};

// The first corner that is about as sharp and large as any.
std::int32_t sharp_corner(const vec2 *points, std::int32_t n) {
  const auto turn_at = [points, n](std::int32_t i) {
    return kx::cross(points[i] - points[i ? i - 1 : n - 1], points[i + 1 < n ? i + 1 : 0] - points[i]);
  };
  double most = 0.0;
  for (std::int32_t i = 0; i < n; ++i) most = std::max(most, turn_at(i));
  for (std::int32_t i = 0; i < n; ++i) {
    if (turn_at(i) >= 0.999 * most) return i;
  }
  return 0;
}

}  // namespace

kx::flat_polygon::flat_polygon(const vec2 *points, std::int32_t n, std::int64_t most_in_one_face)
    : n_(n),
      one_face_(n <= most_in_one_face),
      triangles_(one_face_ ? 1 : std::int64_t{n} - 2),
      ready_(static_cast<bool>(triangles_)) {
  if (!ready_) return;
  if (one_face_) {
    start_ = (sharp_corner(points, n) + n - 1) % n;
    return;
  }
  ear_cutter cutter(points, n);
  ready_ = static_cast<bool>(cutter);
  if (ready_) cutter.run(triangles_.data());
}
