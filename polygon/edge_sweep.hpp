// Whether edges of a chain of points meet, by a line that moves over them and compares what lies side by side on it.
//
// The answer is sure or is not given. Two edges that meet are shown by the test itself. "Apart" means that no two edges
// that are no neighbours in the chain come nearer than what the tolerances of a crossing could bridge: every edge keeps
// that margin from those next to it on the line, every point from every other, and edges that share a point part
// clearly. What passes between a point and an edge is at least as near to the point; so nearness shows between what
// lies side by side, provided that the edge is not steeper than its distance along the line tells. Therefore the line
// moves a second time, at right angles to the first.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <utility>

#include "geometry/line.hpp"
#include "records/vector.hpp"
#include "runtime/memory.hpp"
#include "runtime/tolerance.hpp"

namespace kx {

// The edges under the line, from below, as a binary tree kept in balance by random ranks.
class edges_in_order {
 public:
  static constexpr std::int32_t none = -1;

  // An edge from its left end to its right one; a point nearer to its line than `reach` over its length is too near.
  struct edge {
    vec2 from, along;
    double reach;
    std::int32_t number;
  };

  explicit edges_in_order(std::int32_t most) : nodes_(most) {}
  explicit operator bool() const { return static_cast<bool>(nodes_); }

  edge &operator[](std::int32_t n) const { return nodes_[n].held; }
  std::int32_t below(std::int32_t n) const { return nodes_[n].previous; }
  std::int32_t above(std::int32_t n) const { return nodes_[n].next; }

  // Where a point belongs: under which node, on which side; and an edge that it is too near to, if any.
  struct place {
    std::int32_t under = none, side = 0, previous = none, next = none, near = none;
  };
  place find(vec2 p) const {
    place at;
    for (std::int32_t n = root_; n != none; n = nodes_[n].child[at.side]) {
      const edge &e = nodes_[n].held;
      const double side = cross(e.along, p - e.from);
      if (!(std::fabs(side) > e.reach)) at.near = n;
      at.under = n;
      at.side = side > 0.0;
      (side > 0.0 ? at.previous : at.next) = n;
    }
    return at;
  }
  place directly_above(std::int32_t n) const {
    const node &lower = nodes_[n];
    place at;
    at.previous = n;
    at.next = lower.next;
    at.side = lower.child[1] == none;
    at.under = at.side ? n : lower.next;
    return at;
  }

  std::int32_t insert(const place &at, const edge &e) {
    const std::int32_t n = used_++;
    std::uint32_t rank = static_cast<std::uint32_t>(n) * 0x9e3779b9u;
    rank = (rank ^ rank >> 15) * 0x85ebca6bu;
    nodes_[n] = {e, {none, none}, at.under, at.previous, at.next, rank ^ rank >> 13};
    if (at.previous != none) nodes_[at.previous].next = n;
    if (at.next != none) nodes_[at.next].previous = n;
    (at.under == none ? root_ : nodes_[at.under].child[at.side]) = n;
    while (nodes_[n].up != none && nodes_[nodes_[n].up].rank < rank_of(n)) raise(n);
    return n;
  }

  void remove(std::int32_t n) {
    node &gone = nodes_[n];
    if (gone.previous != none) nodes_[gone.previous].next = gone.next;
    if (gone.next != none) nodes_[gone.next].previous = gone.previous;
    while (gone.child[0] != none && gone.child[1] != none)
      raise(gone.child[rank_of(gone.child[1]) > rank_of(gone.child[0])]);
    const std::int32_t rest = gone.child[gone.child[0] == none];
    if (rest != none) nodes_[rest].up = gone.up;
    link_from(gone.up, n) = rest;
  }

 private:
  struct node {
    edge held;
    std::int32_t child[2];
    std::int32_t up, previous, next;
    std::uint32_t rank;
  };

  std::uint32_t rank_of(std::int32_t n) const { return nodes_[n].rank; }
  std::int32_t &link_from(std::int32_t up, std::int32_t n) {
    return up == none ? root_ : nodes_[up].child[nodes_[up].child[1] == n];
  }
  // A node takes the place of the one it hangs under, which then hangs under it.
  void raise(std::int32_t n) {
    const std::int32_t under = nodes_[n].up, side = nodes_[under].child[1] == n, over = nodes_[n].child[1 - side];
    link_from(nodes_[under].up, under) = n;
    nodes_[n].up = nodes_[under].up;
    nodes_[under].up = n;
    nodes_[n].child[1 - side] = under;
    nodes_[under].child[side] = over;
    if (over != none) nodes_[over].up = under;
  }

  scratch<node> nodes_;
  std::int32_t root_ = none, used_ = 0;
};

class edge_sweep {
 public:
  enum class outcome { apart, met, undecided, no_memory };

  // amiss(i, k) is the test that decides about two edges that are no neighbours, in either order.
  template <class Amiss>
  static outcome run(const vec2 *points, std::int32_t edges, Amiss amiss) {
    const scratch<vec2> turned(std::int64_t{edges} + 1);
    const scratch<event> events(std::int64_t{edges} + 1);
    const scratch<std::int32_t> node_of(edges);
    if (!turned || !events || !node_of) return outcome::no_memory;
    // Turned by an angle that drawings seldom have: few points lie side by side in it.
    double longest = 0.0, farthest = 0.0;
    for (std::int32_t i = 0; i <= edges; ++i) {
      const vec2 d = points[i] - points[0];
      turned[i] = {0.8 * d.x - 0.6 * d.y, 0.6 * d.x + 0.8 * d.y};
      if (!std::isfinite(turned[i].x) || !std::isfinite(turned[i].y)) return outcome::undecided;
      const double away = std::max(std::fabs(points[i].x), std::fabs(points[i].y));
      farthest = std::max(farthest, away);
      if (i) longest = std::max(longest, length(turned[i] - turned[i - 1]));
    }
    const double margin = 4.0 * tolerance * longest + 1e-14 * farthest;
    outcome result = edge_sweep(turned.data(), edges, events.data(), node_of.data(), margin).pass(amiss);
    if (result != outcome::apart) return result;
    for (std::int32_t i = 0; i <= edges; ++i) std::swap(turned[i].x, turned[i].y);
    return edge_sweep(turned.data(), edges, events.data(), node_of.data(), margin).pass(amiss);
  }

 private:
  struct event {
    vec2 at;
    std::int32_t point;
  };
  static constexpr std::int32_t none = edges_in_order::none;

  edge_sweep(const vec2 *points, std::int32_t edges, event *events, std::int32_t *node_of, double margin)
      : points_(points),
        edges_(edges),
        closed_(points[0].x == points[edges].x && points[0].y == points[edges].y),
        events_(events),
        node_of_(node_of),
        margin_(margin),
        line_(edges) {}

  // Whether the line comes to one point before the other; points in the same place follow each other by their numbers,
  // so that every edge begins once and ends once.
  static bool before(const event &p, const event &q) {
    if (p.at.x != q.at.x) return p.at.x < q.at.x;
    return p.at.y != q.at.y ? p.at.y < q.at.y : p.point < q.point;
  }
  event at(std::int32_t i) const { return {points_[i], closed_ && i == edges_ ? 0 : i}; }

  // Sorts the points. False when two of them are too near each other, or too many side by side to tell.
  bool arrange() {
    count_ = edges_ + (closed_ ? 0 : 1);
    for (std::int32_t i = 0; i < count_; ++i) events_[i] = at(i);
    std::sort(events_, events_ + count_, before);
    std::int64_t patience = 16 * std::int64_t{count_};
    for (std::int32_t i = 0; i < count_; ++i) {
      for (std::int32_t k = i + 1; k < count_ && events_[k].at.x - events_[i].at.x <= 8.0 * margin_; ++k) {
        if (--patience < 0 || std::fabs(events_[k].at.y - events_[i].at.y) <= 8.0 * margin_) return false;
      }
    }
    return true;
  }

  bool neighbours(std::int32_t i, std::int32_t k) const {
    return i - k == 1 || k - i == 1 || (closed_ && (i - k == edges_ - 1 || k - i == edges_ - 1));
  }

  edges_in_order::edge edge(std::int32_t i) const {
    const bool forwards = before(at(i), at(i + 1));
    const vec2 from = points_[forwards ? i : i + 1], along = points_[forwards ? i + 1 : i] - from;
    return {from, along, 3.0 * margin_ * length(along), i};
  }

  // Both ends of b clearly on one side of a.
  static bool beside(const edges_in_order::edge &a, const edges_in_order::edge &b) {
    const double p = cross(a.along, b.from - a.from), q = cross(a.along, b.from + b.along - a.from);
    return (p > a.reach && q > a.reach) || (p < -a.reach && q < -a.reach);
  }

  // Whether two edges side by side meet. They are to be clearly apart, or nothing is sure any more; but the line moves
  // on, since it may still find two that meet.
  template <class Amiss>
  bool meet(std::int32_t lower, std::int32_t upper, Amiss &amiss) {
    if (lower == none || upper == none) return false;
    const edges_in_order::edge &a = line_[lower], &b = line_[upper];
    if (neighbours(a.number, b.number) || beside(a, b) || beside(b, a)) return false;
    sure_ = false;
    return amiss(a.number, b.number);
  }

  // Edges that share a point part clearly: the end of the shorter one keeps away from the longer one.
  bool parts_clearly(vec2 at, vec2 p, vec2 q) const {
    const vec2 a = p - at, b = q - at;
    return dot(a, b) <= 0.0 || std::fabs(cross(a, b)) > 3.0 * margin_ * std::max(length(a), length(b));
  }

  template <class Amiss>
  outcome pass(Amiss &amiss) {
    if (!line_) return outcome::no_memory;
    sure_ = arrange();
    for (std::int32_t n = 0; n < count_; ++n) {
      if (finds(events_[n], amiss)) return outcome::met;
    }
    return sure_ ? outcome::apart : outcome::undecided;
  }

  // Over one point, where edges that end give way to those that begin. True when two are found that meet.
  template <class Amiss>
  bool finds(const event &e, Amiss &amiss) {
    std::int32_t ending[2], beginning[2], ends = 0, begins = 0;
    const std::int32_t previous = e.point > 0 ? e.point - 1 : closed_ ? edges_ - 1 : none;
    const std::int32_t next = e.point < edges_ ? e.point : none;
    if (previous != none) (before(at(previous), e) ? ending[ends++] : beginning[begins++]) = previous;
    if (next != none) (before(at(next + 1), e) ? ending[ends++] : beginning[begins++]) = next;
    if (ends + begins == 2) sure_ = sure_ && parts_clearly(e.at, points_[previous], points_[next + 1]);
    if (ends == 1 && begins == 1) {
      const std::int32_t n = node_of_[beginning[0]] = node_of_[ending[0]];
      line_[n] = edge(beginning[0]);
      return meet(line_.below(n), n, amiss) || meet(n, line_.above(n), amiss);
    }
    for (std::int32_t k = 0; k < ends; ++k) {
      const std::int32_t n = node_of_[ending[k]], under = line_.below(n), over = line_.above(n);
      line_.remove(n);
      if (meet(under, over, amiss)) return true;
    }
    if (begins == 0) return false;
    const edges_in_order::place spot = line_.find(e.at);
    if (spot.near != none) {
      sure_ = false;
      const std::int32_t i = line_[spot.near].number;
      for (std::int32_t k = 0; k < begins; ++k) {
        if (!neighbours(i, beginning[k]) && amiss(i, beginning[k])) return true;
      }
    }
    if (begins == 2 && cross(edge(beginning[0]).along, edge(beginning[1]).along) < 0.0)
      std::swap(beginning[0], beginning[1]);
    const std::int32_t lower = node_of_[beginning[0]] = line_.insert(spot, edge(beginning[0]));
    std::int32_t upper = lower;
    if (begins == 2) upper = node_of_[beginning[1]] = line_.insert(line_.directly_above(lower), edge(beginning[1]));
    return meet(line_.below(lower), lower, amiss) || meet(upper, line_.above(upper), amiss);
  }

  const vec2 *points_;
  std::int32_t edges_;
  bool closed_;
  event *events_;
  std::int32_t *node_of_;
  double margin_;
  edges_in_order line_;
  std::int32_t count_ = 0;
  bool sure_ = true;
};

}  // namespace kx
