// Space is divided by planes until each part holds faces of which none can cover another; the parts on the far side of
// a plane come before those on the eye's side.
#include "paint_order.hpp"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>
#include <utility>

namespace kxsolids {

namespace {

using pieces = std::vector<piece>;

struct plane {
  pnt_3d normal;
  double offset;

  double height(const pnt_3d &p) const { return dot(p, normal) - offset; }
};

plane plane_of(const piece &face) { return {face.normal, dot(face.corners[0], face.normal)}; }

class orderer {
 public:
  orderer(const pnt_3d &eye, double tolerance) : eye_(eye), tolerance_(tolerance) {}

  void order(pieces group) {
    if (group.size() < 2 || (group.size() <= examined && convex(group))) {
      std::move(group.begin(), group.end(), std::back_inserter(ordered));
      return;
    }
    // A plane across the middle halves a large group; where it does not, and in small groups, that of a face will do.
    pieces below, within, above;
    if (group.size() > small) divide(group, middle_plane(group), nullptr, below, within, above);
    if (std::max(below.size(), above.size()) >= group.size() - group.size() / 8 || group.size() <= small) {
      for (pieces *side : {&below, &within, &above}) side->clear();
      const piece &own = best_divider(group);
      divide(group, plane_of(own), &own, below, within, above);
    }
    group = {};
    order(std::move(below));
    std::move(within.begin(), within.end(), std::back_inserter(ordered));
    order(std::move(above));
  }

  pieces ordered;

 private:
  static constexpr std::size_t examined = 2000, small = 48;

  // Faces that look at the eye and have all others behind them: none covers another.
  bool convex(const pieces &group) const {
    return std::all_of(group.begin(), group.end(), [&](const piece &face) {
      const plane p = plane_of(face);
      return p.height(eye_) > 0 && std::all_of(group.begin(), group.end(), [&](const piece &other) {
               return std::all_of(other.corners.begin(), other.corners.end(),
                                  [&](const pnt_3d &c) { return p.height(c) <= tolerance_; });
             });
    });
  }

  // Sorts the faces by the side of the plane they are on; above is the eye's. Those across it are cut. The face whose
  // plane it is lies within it, however it was rounded, so that there is always one less to sort.
  void divide(const pieces &group, plane p, const piece *own, pieces &below, pieces &within, pieces &above) const {
    if (p.height(eye_) < 0) p = {{-p.normal.x, -p.normal.y, -p.normal.z}, -p.offset};
    for (const piece &face : group) {
      const auto [low, high] = range(face, p);
      if (&face == own) {
        within.push_back(face);
      } else if (low < -tolerance_ && high > tolerance_) {
        cut(face, p, below, above);
      } else {
        (high > tolerance_ ? above : low < -tolerance_ ? below : within).push_back(face);
      }
    }
  }

  static std::pair<double, double> range(const piece &face, const plane &p) {
    double low = std::numeric_limits<double>::infinity(), high = -low;
    for (const pnt_3d &c : face.corners) {
      low = std::min(low, p.height(c));
      high = std::max(high, p.height(c));
    }
    return {low, high};
  }

  void cut(const piece &face, const plane &p, pieces &below, pieces &above) const {
    const std::size_t count = face.corners.size();
    piece low{{}, {}, face.normal}, high = low;
    const auto add = [](piece &part, const pnt_3d &c, bool edge) {
      part.corners.push_back(c);
      part.edges.push_back(edge);
    };
    for (std::size_t i = 0; i < count; ++i) {
      const pnt_3d &from = face.corners[i], &to = face.corners[(i + 1) % count];
      const double start = p.height(from), end = p.height(to);
      const bool edge = face.edges[i];
      // A corner on the plane ends one part and begins the other; the way along the plane is no edge.
      if (start <= tolerance_) add(low, from, start < -tolerance_ || end < -tolerance_ ? edge : false);
      if (start >= -tolerance_) add(high, from, start > tolerance_ || end > tolerance_ ? edge : false);
      if ((start < -tolerance_ && end > tolerance_) || (start > tolerance_ && end < -tolerance_)) {
        const pnt_3d c = along(from, to, start / (start - end));
        add(low, c, start > 0 && edge);
        add(high, c, start < 0 && edge);
      }
    }
    below.push_back(std::move(low));
    above.push_back(std::move(high));
  }

  // Across the axis along which the faces are farthest apart, at the middle one.
  static plane middle_plane(const pieces &group) {
    plane middle{};
    double widest = -1;
    std::vector<double> places(group.size());
    for (double pnt_3d::*const axis : {&pnt_3d::x, &pnt_3d::y, &pnt_3d::z}) {
      std::transform(group.begin(), group.end(), places.begin(),
                     [axis](const piece &face) { return (face.corners[0].*axis + face.corners[1].*axis) / 2; });
      const auto half = places.begin() + static_cast<std::ptrdiff_t>(places.size() / 2);
      std::nth_element(places.begin(), half, places.end());
      const double wide = *std::max_element(half, places.end()) - *std::min_element(places.begin(), half + 1);
      if (!(wide > widest)) continue;
      widest = wide;
      middle = {{0, 0, 0}, *half};
      middle.normal.*axis = 1;
    }
    return middle;
  }

  // The face, out of a few, whose plane cuts the fewest.
  const piece &best_divider(const pieces &group) const {
    constexpr std::size_t tries = 6;
    const std::size_t step = std::max<std::size_t>(1, group.size() / tries);
    const piece *best = &group[0];
    std::size_t fewest = group.size() + 1;
    for (std::size_t i = 0; i < group.size(); i += step) {
      const plane p = plane_of(group[i]);
      const auto cuts = static_cast<std::size_t>(std::count_if(group.begin(), group.end(), [&](const piece &face) {
        const auto [low, high] = range(face, p);
        return low < -tolerance_ && high > tolerance_;
      }));
      if (cuts >= fewest) continue;
      fewest = cuts;
      best = &group[i];
    }
    return *best;
  }

  const pnt_3d eye_;
  const double tolerance_;
};

}  // namespace

std::vector<piece> paint_order(std::vector<piece> all, const pnt_3d &eye, double tolerance) {
  orderer sorted(eye, tolerance);
  sorted.order(std::move(all));
  return std::move(sorted.ordered);
}

}  // namespace kxsolids
