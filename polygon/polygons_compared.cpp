// Polygons compared: the same, within one another, apart, and where their boundaries cross.
#include <algorithm>
#include <cmath>
#include <cstdint>

#include "distinct_points.hpp"
#include "edge_tree.hpp"
#include "geometry/chords.hpp"
#include "geometry/line.hpp"
#include "kxgeom/polygon.h"
#include "plane_points.hpp"
#include "point_location.hpp"
#include "runtime/memory.hpp"

namespace {

using kx::vec2;

// Whether b, from b[j] on and in steps of one, is a from a[k] on.
bool follows(const kx::vec2 *a, std::int32_t k, const kx::vec2 *b, std::int32_t j, std::int32_t n, bool backwards) {
  for (std::int32_t i = 0; i < n; ++i) {
    if (!kx::same_point(a[k], b[j])) return false;
    k = k + 1 < n ? k + 1 : 0;
    if (backwards) {
      j = j ? j - 1 : n - 1;
    } else {
      j = j + 1 < n ? j + 1 : 0;
    }
  }
  return true;
}

std::int32_t open_count(const kx::point_array &polygon) {
  const std::int32_t n = polygon.count();
  return n > 1 && kx::same_point(polygon[0], polygon[n - 1]) ? n - 1 : n;
}

// A polygon's corners and what is needed of them: the edges from the closing one on, as a tree.
struct outline {
  kx::point_array corners;
  kx::edge_tree edges;

  outline(const list_hdr *list, const char *location)
      : corners(list, location), edges(corners.count() ? corners.ring() : nullptr, corners.count(), location) {}
  bool sound() const { return corners.count() > 0 && edges; }
};

// The crossings of two boundaries, in the order of the first one's edges and, on an edge, of the second one's, both
// from the closing edge on; each point once. False after the memory message.
class crossings {
 public:
  crossings(const outline &a, const outline &b, const char *location) : found_(count(a, b)) {
    if (!found_) {
      kx::report_no_memory(location);
      return;
    }
    each(a, b, [this](std::int32_t i, std::int32_t k, vec2 at) { found_[count_++] = {i, k, at}; });
    std::sort(found_.data(), found_.data() + count_,
              [](const crossing &p, const crossing &q) { return p.i != q.i ? p.i < q.i : p.k < q.k; });
    kx::distinct_points seen(count_);
    if (!seen) {
      kx::report_no_memory(location);
      return;
    }
    std::int64_t kept = 0;
    for (std::int64_t n = 0; n < count_; ++n) {
      if (seen.add(found_[n].at)) found_[kept++] = found_[n];
    }
    count_ = kept;
    sound_ = true;
  }
  explicit operator bool() const { return sound_; }
  std::int64_t count() const { return count_; }
  vec2 operator[](std::ptrdiff_t n) const { return found_[n].at; }

 private:
  struct crossing {
    std::int32_t i, k;
    vec2 at;
  };

  template <class Visit>
  static void each(const outline &a, const outline &b, Visit visit) {
    const vec2 *p = a.corners.ring(), *q = b.corners.ring();
    a.edges.pairs_with(b.edges, [&](std::int32_t i, std::int32_t k) {
      const kx::segment_crossing c(p[i], p[i + 1], q[k], q[k + 1]);
      if (c.hit) visit(i, k, c.point());
    });
  }
  static std::int64_t count(const outline &a, const outline &b) {
    std::int64_t n = 0;
    each(a, b, [&n](std::int32_t, std::int32_t, vec2) { ++n; });
    return n + 1;  // never an empty block, which some heaps answer with null
  }

  kx::scratch<crossing> found_;
  std::int64_t count_ = 0;
  bool sound_ = false;
};

// None or one; or all of them at corners of either polygon. That a single crossing needs no corner is on purpose: hosts
// count on one polygon merely touching the other.
bool acceptable(const outline &a, const outline &b, const char *location) {
  const crossings all(a, b, location);
  if (!all) return false;
  for (std::int64_t n = 0; all.count() > 1 && n < all.count(); ++n) {
    const vec2 p = all[static_cast<std::ptrdiff_t>(n)];
    if (!a.edges.has_point(p) && !b.edges.has_point(p)) return false;
  }
  return true;
}

// How many of one polygon's corners lie where `chosen` says beside the other; -1 when the memory is exhausted.
template <class Chosen>
std::int32_t corners_chosen(const outline &of, const outline &beside, Chosen chosen, const char *location) {
  const kx::point_array &p = of.corners;
  const kx::scratch<std::uint8_t> where(p.count());
  if (!where) {
    kx::report_no_memory(location);
    return -1;
  }
  if (!kx::locate(p.data(), p.count(), beside.corners.ring(), beside.corners.count(), where.data(), location))
    return -1;
  return static_cast<std::int32_t>(std::count_if(where.data(), where.data() + p.count(), chosen));
}

}  // namespace

int32_t KX_CALL kx_same_poly(const list_hdr *first, const list_hdr *second) {
  const kx::point_array a(first, "kx_same_poly - first");
  if (!a) return 0;
  const kx::point_array b(second, "kx_same_poly - second");
  if (!b) return 0;
  const std::int32_t n = open_count(a);
  if (n < 3 || open_count(b) != n) return 0;
  // The vertex looked up in the other polygon is one far from the first: where many coincide, it is a rare one.
  std::int32_t k = 0;
  double farthest = 0.0;
  for (std::int32_t i = 1; i < n; ++i) {
    const double d = std::fabs(a[i].x - a[0].x) + std::fabs(a[i].y - a[0].y);
    if (!(d > farthest)) continue;
    farthest = d;
    k = i;
  }
  for (std::int32_t j = 0; j < n; ++j) {
    if (!kx::same_point(a[k], b[j])) continue;
    if (follows(a.data(), k, b.data(), j, n, false) || follows(a.data(), k, b.data(), j, n, true)) return 1;
  }
  return 0;
}

int32_t KX_CALL kx_intersect_poly(const list_hdr *first, const list_hdr *second, list_hdr *pnts) {
  if (kx::empty(first) || kx::empty(second) || !kx::point_run::accepts(pnts)) return 0;
  const outline a(first, "kx_intersect_poly - first"), b(second, "kx_intersect_poly - second");
  if (!a.sound() || !b.sound()) return 0;
  const crossings all(a, b, "kx_intersect_poly");
  if (!all || all.count() == 0 || all.count() > INT32_MAX) return 0;
  kx::point_run run(*pnts);
  for (std::int64_t n = 0; n < all.count(); ++n) {
    if (!run.add(all[static_cast<std::ptrdiff_t>(n)])) return 0;
  }
  run.hand_over();
  return static_cast<std::int32_t>(all.count());
}

int32_t KX_CALL kx_inside_poly(const list_hdr *inner, const list_hdr *outer) {
  constexpr const char *location = "kx_inside_poly";
  if (kx::empty(inner) || kx::empty(outer)) return 0;
  const outline a(inner, location), b(outer, location);
  if (!a.sound() || !b.sound()) return 0;
  if (b.corners.count() < 3 || corners_chosen(a, b, kx::inside_or_on, location) != a.corners.count()) return 0;
  if (a.corners.count() >= 3 && corners_chosen(b, a, kx::strictly_inside, location) != 0) return 0;
  return acceptable(a, b, location);
}

int32_t KX_CALL kx_outside_poly(const list_hdr *first, const list_hdr *second) {
  constexpr const char *location = "kx_outside_poly";
  if (kx::empty(first) || kx::empty(second)) return 0;
  const outline a(first, location), b(second, location);
  if (!a.sound() || !b.sound()) return 0;
  if (b.corners.count() >= 3 && corners_chosen(a, b, kx::strictly_inside, location) != 0) return 0;
  if (a.corners.count() >= 3 && corners_chosen(b, a, kx::strictly_inside, location) != 0) return 0;
  const std::int32_t touching = corners_chosen(a, b, kx::on, location);
  if (touching < 0) return 0;
  return touching == 0 || acceptable(a, b, location);
}
