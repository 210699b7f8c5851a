// Which edges of a chain of points come near one another, or near those of another chain: boxes over runs of
// consecutive edges, four by four.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "geometry/line.hpp"
#include "records/vector.hpp"
#include "runtime/memory.hpp"
#include "runtime/tolerance.hpp"

namespace kx {

// An upright rectangle; empty while its sides are crossed.
struct box {
  double x1 = HUGE_VAL, y1 = HUGE_VAL, x2 = -HUGE_VAL, y2 = -HUGE_VAL;

  void hold(vec2 p) {
    x1 = p.x < x1 ? p.x : x1;
    y1 = p.y < y1 ? p.y : y1;
    x2 = p.x > x2 ? p.x : x2;
    y2 = p.y > y2 ? p.y : y2;
  }
  void hold(const box &b) {
    hold(vec2{b.x1, b.y1});
    hold(vec2{b.x2, b.y2});
  }
  bool meets(const box &b) const {
    return static_cast<bool>(int{x1 <= b.x2} & int{b.x1 <= x2} & int{y1 <= b.y2} & int{b.y1 <= y2});
  }
};

class edge_tree {
 public:
  // Edge i leads from points[i] to points[i + 1]. The points stay the caller's. False after the memory message; a tree
  // without edges can be asked nothing.
  edge_tree(const vec2 *points, std::int32_t edges, const char *location)
      : points_(points), edges_(edges), nodes_(room(std::max(edges, 1))) {
    if (nodes_) {
      build();
    } else {
      report_no_memory(location);
    }
  }
  explicit operator bool() const { return static_cast<bool>(nodes_); }

  // Visits every pair of edges that are no neighbours in the chain and whose boxes meet, the lower number first, until
  // visit(i, k) is true, or about `most` pairs of boxes have been compared.
  enum class outcome { complete, stopped, too_much };
  template <class Visit>
  outcome pairs(std::int64_t most, Visit visit) const {
    search<Visit> s{visit, most};
    if (!among(levels_ - 1, 0, s)) return outcome::complete;
    return s.left < 0 ? outcome::too_much : outcome::stopped;
  }

  // Visits every pair of an edge of this chain and one of the other whose boxes meet.
  template <class Visit>
  void pairs_with(const edge_tree &other, Visit visit) const {
    across(levels_ - 1, 0, other, other.levels_ - 1, 0, visit);
  }

  // Whether a point coincides with a point of the chain.
  bool has_point(vec2 p) const { return has_point(levels_ - 1, 0, p); }

 private:
  static constexpr std::int32_t group = 8, fan = 4;
  static constexpr int most_levels = 16;

  // A run of edges: its box, and the directions in which all of them advance, as bits. A run that advances throughout
  // in one direction does not meet itself: any two edges that are no neighbours have a third between them.
  struct node {
    box bounds;
    int advance = 15;
  };

  template <class Visit>
  struct search {
    Visit &visit;
    std::int64_t left;
  };

  static std::int64_t room(std::int32_t edges) {
    std::int64_t n = (std::int64_t{edges} + group - 1) / group, all = n;
    while (n > 1) all += n = (n + fan - 1) / fan;
    return all;
  }

  node &at(int level, std::int32_t j) const { return nodes_[first_[level] + j]; }

  void build() {
    vec2 longest{0.0, 0.0};
    double farthest = 0.0;
    for (std::int32_t i = 0; i < edges_; ++i) {
      const vec2 d = points_[i + 1] - points_[i];
      if (!std::isfinite(d.x) || !std::isfinite(d.y)) continue;
      longest = {std::max(longest.x, std::fabs(d.x)), std::max(longest.y, std::fabs(d.y))};
      farthest = std::max(farthest, std::max(std::fabs(points_[i].x), std::fabs(points_[i].y)));
    }
    // A crossing may lie beside an end by 2e-7 of its edge, and a point beside another by 1e-7; the rest is rounding.
    const double rounding = 4e-16 * farthest + 1.1 * tolerance;
    margin_ = 3.0 * tolerance * longest + vec2{rounding, rounding};
    // An edge advances if that is more than what two margins could bridge.
    const vec2 step = 10.0 * tolerance * longest;

    std::int32_t n = (edges_ + group - 1) / group;
    levels_ = 1;
    first_[0] = 0;
    count_[0] = n;
    for (std::int32_t j = 0; j < n; ++j) {
      node &g = at(0, j) = {};
      const std::int32_t last = std::min((j + 1) * group, edges_);
      for (std::int32_t i = j * group; i < last; ++i) {
        const vec2 d = points_[i + 1] - points_[i];
        g.advance &= int{d.x > step.x} | int{d.x < -step.x} << 1 | int{d.y > step.y} << 2 | int{d.y < -step.y} << 3;
        g.bounds.hold(edge_box(i));
      }
    }
    for (; n > 1; ++levels_) {
      const std::int32_t below = n;
      n = (n + fan - 1) / fan;
      first_[levels_] = first_[levels_ - 1] + below;
      count_[levels_] = n;
      for (std::int32_t j = 0; j < n; ++j) {
        node &up = at(levels_, j) = {};
        for (std::int32_t c = fan * j; c < std::min(fan * (j + 1), below); ++c) {
          up.bounds.hold(at(levels_ - 1, c).bounds);
          up.advance &= at(levels_ - 1, c).advance;
        }
      }
    }
  }

  // Widened by the margin; empty for an edge that is not finite.
  box edge_box(std::int32_t i) const {
    const vec2 a = points_[i], b = points_[i + 1], d = b - a;
    box e;
    if (!std::isfinite(d.x) || !std::isfinite(d.y)) return e;
    e.x1 = std::min(a.x, b.x) - margin_.x;
    e.x2 = std::max(a.x, b.x) + margin_.x;
    e.y1 = std::min(a.y, b.y) - margin_.y;
    e.y2 = std::max(a.y, b.y) + margin_.y;
    return e;
  }

  // The edges of a group whose boxes meet another box.
  struct edges_near {
    std::int32_t count = 0, number[group];
    box bounds[group];
  };
  edges_near near(std::int32_t j, const box &other) const {
    edges_near found;
    const std::int32_t last = std::min((j + 1) * group, edges_);
    for (std::int32_t i = j * group; i < last; ++i) {
      found.bounds[found.count] = edge_box(i);
      found.number[found.count] = i;
      found.count += found.bounds[found.count].meets(other);
    }
    return found;
  }

  // Pairs within one run.
  template <class Visit>
  bool among(int level, std::int32_t j, search<Visit> &s) const {
    const node &run = at(level, j);
    if (run.advance) return false;
    if (level == 0) {
      const edges_near e = near(j, run.bounds);
      for (std::int32_t i = 0; i < e.count; ++i) {
        for (std::int32_t k = i + 1; k < e.count; ++k) {
          if (e.number[k] > e.number[i] + 1 && e.bounds[i].meets(e.bounds[k]) && s.visit(e.number[i], e.number[k]))
            return true;
        }
      }
      return false;
    }
    const std::int32_t first = fan * j, last = std::min(first + fan, count_[level - 1]);
    for (std::int32_t a = first; a < last; ++a) {
      if (among(level - 1, a, s)) return true;
      for (std::int32_t b = a + 1; b < last; ++b) {
        if (between(level - 1, a, b, s)) return true;
      }
    }
    return false;
  }

  // Pairs of an edge of one run and an edge of a later one.
  template <class Visit>
  bool between(int level, std::int32_t a, std::int32_t b, search<Visit> &s) const {
    const node &early = at(level, a), &late = at(level, b);
    if ((b == a + 1 && (early.advance & late.advance)) || !early.bounds.meets(late.bounds)) return false;
    if (--s.left < 0) return true;
    if (level == 0) {
      const edges_near p = near(a, late.bounds), q = near(b, early.bounds);
      s.left -= std::int64_t{p.count} * q.count;
      for (std::int32_t i = 0; i < p.count; ++i) {
        for (std::int32_t k = 0; k < q.count; ++k) {
          if (q.number[k] > p.number[i] + 1 && p.bounds[i].meets(q.bounds[k]) && s.visit(p.number[i], q.number[k]))
            return true;
        }
      }
      return false;
    }
    const std::int32_t below = count_[level - 1];
    for (std::int32_t i = fan * a; i < std::min(fan * (a + 1), below); ++i) {
      if (!at(level - 1, i).bounds.meets(late.bounds)) continue;
      for (std::int32_t k = fan * b; k < std::min(fan * (b + 1), below); ++k) {
        if (between(level - 1, i, k, s)) return true;
      }
    }
    return false;
  }

  template <class Visit>
  void across(int level, std::int32_t a, const edge_tree &other, int other_level, std::int32_t b, Visit &visit) const {
    const node &here = at(level, a), &there = other.at(other_level, b);
    if (!here.bounds.meets(there.bounds)) return;
    if (level == 0 && other_level == 0) {
      const edges_near p = near(a, there.bounds), q = other.near(b, here.bounds);
      for (std::int32_t i = 0; i < p.count; ++i) {
        for (std::int32_t k = 0; k < q.count; ++k) {
          if (p.bounds[i].meets(q.bounds[k])) visit(p.number[i], q.number[k]);
        }
      }
    } else if (level >= other_level) {
      for (std::int32_t i = fan * a; i < std::min(fan * (a + 1), count_[level - 1]); ++i)
        across(level - 1, i, other, other_level, b, visit);
    } else {
      for (std::int32_t k = fan * b; k < std::min(fan * (b + 1), other.count_[other_level - 1]); ++k)
        across(level, a, other, other_level - 1, k, visit);
    }
  }

  bool has_point(int level, std::int32_t j, vec2 p) const {
    box spot;
    spot.hold(p);
    if (!at(level, j).bounds.meets(spot)) return false;
    const std::int32_t width = level == 0 ? group : fan;
    const std::int32_t last = std::min((j + 1) * width, level == 0 ? edges_ : count_[level - 1]);
    for (std::int32_t i = j * width; i < last; ++i) {
      if (level == 0 ? same_point(points_[i], p) || same_point(points_[i + 1], p) : has_point(level - 1, i, p))
        return true;
    }
    return false;
  }

  const vec2 *points_;
  std::int32_t edges_;
  scratch<node> nodes_;
  int levels_ = 0;
  std::int32_t first_[most_levels] = {}, count_[most_levels] = {};
  vec2 margin_{0.0, 0.0};
};

}  // namespace kx
