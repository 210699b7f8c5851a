// A Catmull-Rom spline through 1000 points, sampled at ten steps a segment into a list. What it costs at least is its
// blocks: a point and an item per sample.
#include "curve_rows.hpp"
#include "floor_list.hpp"
#include "kxgeom/curves.h"
#include "kxgeom/list.h"
#include "kxgeom/records.h"

#include <memory>

namespace {

constexpr int point_count = 1000, steps = 10, tenths = 4;

// The point from the ends of the segment and their slopes: another way than the library goes.
pnt_2d hermite(const pnt_2d *p, double t) {
  const double s = 1.0 - t, a = s * s * (1.0 + 2.0 * t), b = t * t * (1.0 + 2.0 * s), c = s * s * t, d = -t * t * s;
  return {a * p[1].x + b * p[2].x + 0.5 * (c * (p[2].x - p[0].x) + d * (p[3].x - p[1].x)),
          a * p[1].y + b * p[2].y + 0.5 * (c * (p[2].y - p[0].y) + d * (p[3].y - p[1].y))};
}

std::string check(const bench::samples &want, const list_hdr *points) {
  list_hdr *out = kx_catrom_curve(point_count, points, tenths, 0.5, nullptr);
  std::string complaint;
  std::size_t i = 0;
  for (const list_item *item = out->head; item; item = item->next, ++i) {
    const auto *p = static_cast<const poly_2d *>(item->data);
    const bool right = i < want.size() && bench::close(p->x, want[i].x, 1e-12) && bench::close(p->y, want[i].y, 1e-12);
    if (!right) complaint = "sample " + std::to_string(i);
  }
  kx_purge_polygon(out);
  return i == want.size() ? complaint : "number of samples";
}

}  // namespace

void bench::add_rows() {
  const std::string family = "catmull_rom/1k/";
  const samples points = control_points(point_count);
  samples want;
  for (std::size_t i = 0; i + 3 < points.size(); ++i) {
    for (int j = 0; j < steps; ++j) want.push_back(hermite(&points[i], 0.1 * j));
  }
  want.push_back(points[point_count - 2]);
  const list_hdr *given = point_list(points);
  const auto items = static_cast<std::int64_t>(want.size());

  const auto blocks = std::make_shared<list_hdr>();
  const auto make_blocks = [=] {
    for (std::int32_t i = 0; i < items; ++i) link_record(*blocks, make_record(poly_2d{i, 1.0 * i, 0.0}), KX_POLY_2D);
  };
  const auto free = [=] { free_blocks(*blocks); };
  add({.name = family + "floor:make", .items = items, .pass = make_blocks, .after = free});
  add({.name = family + "floor:make_and_purge", .items = items, .pass = [=] {
         make_blocks();
         free();
       }});

  const auto out = std::make_shared<list_hdr>();
  const auto right = [=] { return check(want, given); };
  const auto make = [=] { use(kx_catrom_curve_2d(point_count, given, tenths, 0.5, nullptr, out.get())); };
  const auto purge = [=] { kx_clear_polygon(out.get()); };
  add({.name = family + "kx:make", .items = items, .check = right, .pass = make, .after = purge});
  add({.name = family + "kx:make_and_purge", .items = items, .check = right, .pass = [=] {
         make();
         purge();
       }});
}
