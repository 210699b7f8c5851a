#include "curve_rows.hpp"

#include <memory>

#include "floor_list.hpp"
#include "kxgeom/curves.h"
#include "kxgeom/list.h"
#include "kxgeom/records.h"

namespace bench {
namespace {

std::string compare(const samples &got, const samples &want) {
  if (got.size() != want.size()) return std::to_string(got.size()) + " samples, not " + std::to_string(want.size());
  for (std::size_t i = 0; i < want.size(); ++i) {
    if (!close(got[i].x, want[i].x, 1e-9) || !close(got[i].y, want[i].y, 1e-9)) return "sample " + std::to_string(i);
  }
  return {};
}

void make_blocks(list_hdr &points, list_hdr &stats, std::size_t n) {
  for (std::size_t i = 0; i < n; ++i) {
    const auto number = static_cast<std::int32_t>(i);
    link_record(points, make_record(poly_2d{number, 1.0 * number, 0.0}), KX_POLY_2D);
    link_record(stats, make_record(curve_stats_2d{1.0 * number, {}, {}, {}}), KX_CURVE_STATS_2D);
  }
}

std::string check_maker(const samples &want, const maker &m) {
  curve *c = m.define();
  if (m.make(c) != 0) return "not made";
  samples got;
  for (const list_item *item = c->curve_pnts->head; item; item = item->next) {
    if (item->datatype != KX_POLY_2D) return "tag of a sample";
    const auto *p = static_cast<const poly_2d *>(item->data);
    got.push_back({p->x, p->y});
  }
  std::size_t stats = 0;
  for (const list_item *item = c->curve_stats->head; item; item = item->next)
    stats += item->datatype == KX_CURVE_STATS_2D;
  std::string complaint = compare(got, want);
  if (!complaint.empty()) return complaint;
  return unless(stats == want.size() && kx_purge_curve(c) == 0, "statistics or purge");
}

}  // namespace

samples control_points(int n) {
  samples points;
  for (int i = 0; i < n; ++i)
    points.push_back({i + 0.3 * std::sin(1.7 * i), 8.0 * std::sin(0.06 * i) + 0.4 * std::cos(2.3 * i)});
  return points;
}

list_hdr *point_list(const samples &points) {
  list_hdr *list = ll_create_list();
  for (const pnt_2d &p : points) {
    poly_2d *record = kx_create_poly_2d();
    kx_set_poly_2d(p.x, p.y, list->count, record);
    ll_add_list_item(list, 1, record, KX_POLY_2D);
  }
  return list;
}

list_hdr *number_list(const std::vector<double> &numbers) {
  list_hdr *list = ll_create_list();
  for (const double number : numbers) {
    rnumber *record = kx_create_rnumber();
    record->value = number;
    ll_add_list_item(list, 1, record, KX_RNUMBER);
  }
  return list;
}

void add_floors(const std::string &family, std::size_t n) {
  const auto points = std::make_shared<list_hdr>(), stats = std::make_shared<list_hdr>();
  const auto make = [=] { make_blocks(*points, *stats, n); };
  const auto free = [=] {
    free_blocks(*points);
    free_blocks(*stats);
  };
  const auto items = static_cast<std::int64_t>(n);
  add({.name = family + "floor:make", .items = items, .pass = make, .after = free});
  add({.name = family + "floor:make_and_purge", .items = items, .pass = [=] {
         make();
         free();
       }});
}

void add_array_row(const std::string &name, const samples &want, const std::function<void(samples &)> &fill) {
  const auto out = std::make_shared<samples>(want.size());
  add({.name = name,
       .items = static_cast<std::int64_t>(want.size()),
       .check =
           [=] {
             fill(*out);
             return compare(*out, want);
           },
       .pass =
           [=] {
             fill(*out);
             use(out->data());
             benchmark::ClobberMemory();
           }});
}

void add_maker(const std::string &family, const samples &want, const maker &m) {
  const auto c = std::make_shared<curve *>(nullptr);
  const auto items = static_cast<std::int64_t>(want.size());
  const auto check = [=] { return check_maker(want, m); };
  const auto define = [=] { *c = m.define(); };
  add({.name = family + "kx:" + m.name,
       .items = items,
       .check = check,
       .pass = [=] { m.make(*c); },
       .before = define,
       .after = [=] { kx_purge_curve(*c); }});
  add({.name = family + "kx:" + m.name + "_and_purge",
       .items = items,
       .check = check,
       .pass =
           [=] {
             m.make(*c);
             kx_purge_curve(*c);
           },
       .before = define});
}

}  // namespace bench
