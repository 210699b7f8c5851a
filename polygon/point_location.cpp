// Many points against one polygon: the points are put in order by height once, and every edge asks those at its own
// height only. The tests are those of a single point, so the answers are the same.
#include "point_location.hpp"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>

#include "geometry/line.hpp"
#include "ray.hpp"
#include "runtime/memory.hpp"
#include "runtime/tolerance.hpp"

namespace {

using kx::vec2;

// Points in rows of equal height, as many rows as points; a row that many points share is sorted.
class shelves {
 public:
  explicit shelves(std::int32_t count)
      : x_(count), y_(count), state_(count), order_(count), start_(std::int64_t{count} + 2), rows_(count) {}

  explicit operator bool() const { return x_ && y_ && state_ && order_ && start_; }

  void fill(const vec2 *points, std::int32_t count) {
    double top = -1.0;
    bool any = false;
    for (std::int32_t i = 0; i < count; ++i) {
      if (!kx::finite(points[i])) continue;
      bottom_ = any && bottom_ < points[i].y ? bottom_ : points[i].y;
      top = any && top > points[i].y ? top : points[i].y;
      any = true;
    }
    const double per_row = rows_ / (top - bottom_);
    scale_ = any && std::isfinite(per_row) ? per_row : 0.0;
    std::memset(start_.data(), 0, sizeof(std::int32_t) * static_cast<std::size_t>(rows_ + 2));
    // start_[r + 1] is where row r starts while it is being filled, and where row r + 1 starts afterwards.
    for (std::int32_t i = 0; i < count; ++i) {
      if (kx::finite(points[i])) ++start_[row(points[i].y) + 2];
    }
    for (std::int32_t r = 2; r < rows_ + 2; ++r) start_[r] += start_[r - 1];
    for (std::int32_t i = 0; i < count; ++i) {
      if (kx::finite(points[i])) order_[start_[row(points[i].y) + 1]++] = i;
    }
    for (std::int32_t r = 0; r < rows_; ++r) {
      if (crowded(r)) {
        std::sort(order_.data() + start_[r], order_.data() + start_[r + 1],
                  [points](std::int32_t i, std::int32_t j) { return points[i].y < points[j].y; });
      }
    }
    held_ = start_[rows_];
    for (std::int32_t k = 0; k < held_; ++k) {
      x_[k] = points[order_[k]].x;
      y_[k] = points[order_[k]].y;
      state_[k] = 0;
    }
  }

  void meet(vec2 a, vec2 b) {
    const kx::ray_edge edge(a, b);
    if (std::isunordered(a.x, b.x)) return;
    // The band that the boundary test could reach: twice the tolerance on either side.
    const double from = edge.bottom - 2.0 * kx::allowance(edge.bottom), to = edge.top + 2.0 * kx::allowance(edge.top);
    const std::int32_t first = first_not_below(from), last = first_above(to);
    if (first >= last) return;
    // How far beside its carrier's abscissa a point can be and still be no further than the tolerance from the edge;
    // and some room for rounding. Beside a level edge all are near, and what is NaN is.
    const double slope = std::fabs((b.x - a.x) * edge.inverse);
    const double size = std::fabs(edge.left) + std::fabs(edge.right) + std::fabs(edge.bottom) + std::fabs(edge.top);
    const double reach = a.y == b.y ? HUGE_VAL : (1.0 + slope) * (3.0 * kx::tolerance + 1e-14 * size);
    std::int64_t near = 0;
    const double *x = x_.data(), *y = y_.data();
    std::int64_t *state = state_.data();
    for (std::int32_t k = first; k < last; ++k) {
      const double at = edge.abscissa(y[k]);
      const double at_least = at > edge.left ? at : edge.left;
      const double limit = at_least < edge.right ? at_least : edge.right;
      const std::int64_t above = y[k] >= edge.bottom ? 1 : 0, below = y[k] < edge.top ? 1 : 0;
      state[k] ^= above & below & (x[k] < limit ? 1 : 0);
      near |= std::fabs(x[k] - at) > reach ? 0 : 1;
    }
    if (near == 0) return;
    for (std::int32_t k = first; k < last; ++k) {
      if (!(std::fabs(x[k] - edge.abscissa(y[k])) > reach) && kx::point_on_segment(a, b, {x[k], y[k]}))
        state[k] |= kx::on_boundary;
    }
  }

  void tell(std::uint8_t *where) const {
    for (std::int32_t k = 0; k < held_; ++k) where[order_[k]] = static_cast<std::uint8_t>(state_[k]);
  }

 private:
  static constexpr std::int32_t crowd = 16;

  bool crowded(std::int32_t r) const { return start_[r + 1] - start_[r] > crowd; }

  // Never decreases with the height; NaN is put at the bottom.
  std::int32_t row(double y) const {
    const double r = (y - bottom_) * scale_;
    if (!(r > 0.0)) return 0;
    return r < rows_ - 1 ? static_cast<std::int32_t>(r) : rows_ - 1;
  }
  // A row's points without order are taken as a whole: more are asked than need be.
  std::int32_t first_not_below(double y) const {
    const std::int32_t r = row(y);
    const double *all = y_.data();
    return crowded(r) ? static_cast<std::int32_t>(std::lower_bound(all + start_[r], all + start_[r + 1], y) - all)
                      : start_[r];
  }
  std::int32_t first_above(double y) const {
    const std::int32_t r = row(y);
    const double *all = y_.data();
    return crowded(r) ? static_cast<std::int32_t>(std::upper_bound(all + start_[r], all + start_[r + 1], y) - all)
                      : start_[r + 1];
  }

  kx::scratch<double> x_, y_;
  kx::scratch<std::int64_t> state_;  // as wide as the coordinates: two points at a time
  kx::scratch<std::int32_t> order_, start_;
  std::int32_t rows_, held_ = 0;
  double bottom_ = 0.0, scale_ = 0.0;
};

}  // namespace

bool kx::locate(const vec2 *points, std::int32_t count, const vec2 *ring, std::int32_t edges, std::uint8_t *where,
                const char *location) {
  std::memset(where, 0, static_cast<std::size_t>(count));
  if (count == 0) return true;
  shelves s(count);
  if (!s) {
    report_no_memory(location);
    return false;
  }
  s.fill(points, count);
  for (std::int32_t i = 0; i < edges; ++i) s.meet(ring[i], ring[i + 1]);
  s.tell(where);
  return true;
}
