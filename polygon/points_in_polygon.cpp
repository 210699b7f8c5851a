// Points in polygon: those of a list that lie inside a polygon, on its boundary or on a segment, collected.
#include <cstdint>

#include "geometry/chords.hpp"
#include "geometry/line.hpp"
#include "kxgeom/polygon.h"
#include "plane_points.hpp"
#include "point_location.hpp"
#include "records/output.hpp"
#include "runtime/memory.hpp"

namespace {

// Appends the points that are chosen, all or none, and tells how many; -1 when the memory is exhausted.
template <class Points, class Chosen>
std::int32_t append_chosen(const Points &points, std::int32_t count, list_hdr &found, Chosen chosen) {
  kx::point_run run(found);
  std::int32_t n = 0;
  for (std::int32_t i = 0; i < count; ++i) {
    if (!chosen(i)) continue;
    if (!run.add(points[i])) return -1;
    ++n;
  }
  if (n > 0) run.hand_over();
  return n;
}

std::int32_t answer(std::int32_t found, std::int32_t *count) {
  kx::put(count, found > 0 ? found : 0);
  return found > 0;
}

template <class Chosen>
std::int32_t collect(const list_hdr *points, const list_hdr *polygon, std::int32_t fewest, std::int32_t *count,
                     list_hdr *found, const char *location, Chosen chosen) {
  kx::put(count, 0);
  if (!kx::point_run::accepts(found)) return 0;
  const kx::point_array corners(polygon, location);
  if (!corners || corners.count() < fewest) return 0;
  const kx::point_array candidates(points, location);
  if (!candidates) return 0;
  const kx::scratch<std::uint8_t> where(candidates.count() + 1);
  if (!where) {
    kx::report_no_memory(location);
    return 0;
  }
  if (!kx::locate(candidates.data(), candidates.count(), corners.ring(), corners.count(), where.data(), location))
    return 0;
  return answer(append_chosen(candidates, candidates.count(), *found, [&](auto i) { return chosen(where[i]); }), count);
}

}  // namespace

int32_t KX_CALL kx_pnts_inpolyl(const list_hdr *points, const list_hdr *polygon, int32_t *count, list_hdr *found) {
  return collect(points, polygon, 3, count, found, "kx_pnts_inpolyl", kx::strictly_inside);
}

int32_t KX_CALL kx_pnts_inonpolyl(const list_hdr *points, const list_hdr *polygon, int32_t *count, list_hdr *found) {
  return collect(points, polygon, 3, count, found, "kx_pnts_inonpolyl", kx::inside_or_on);
}

int32_t KX_CALL kx_pnts_onpolyl(const list_hdr *points, const list_hdr *polygon, int32_t *count, list_hdr *found) {
  return collect(points, polygon, 1, count, found, "kx_pnts_onpolyl", kx::on);
}

int32_t KX_CALL kx_pnts_in_line(const list_hdr *points, const line_2d *segment, int32_t *count, list_hdr *found) {
  kx::put(count, 0);
  if (!segment || !kx::point_run::accepts(found)) return 0;
  kx::point_run run(*found);
  std::int32_t n = 0;
  for (const kx::vec2 p : kx::plane_points(points)) {
    if (!kx::point_on_segment(*segment, p)) continue;
    if (!run.add(p)) return 0;
    ++n;
  }
  if (n > 0) run.hand_over();
  return answer(n, count);
}
