// The curve record's life: create, copy, clear, purge; and the curv record.
#include "curve_record.hpp"

#include "kxgeom/curves.h"
#include "kxgeom/records.h"

namespace {

// All numbers of the record back to those of a new curve; the lists stay.
void reset_numbers(curve &c) {
  c.curve_type = c.degree = c.span_steps = 0;
  c.step = 0.0;
  std::memcpy(c.basis, kx::identity_basis, sizeof c.basis);
}

// Frees a point list as a polygon. What is left of it: null, or the list when it is none.
list_hdr *purge_points(list_hdr *list) { return list == nullptr || kx_purge_polygon(list) == 0 ? nullptr : list; }

// A list whose first items, `freed` of them, are gone; `rest` is the item after them.
void begin_at(list_hdr &list, list_item *rest, std::int32_t freed) {
  if (rest == nullptr) {
    list = {};
    return;
  }
  rest->prev = nullptr;
  list.head = list.current = rest;
  list.count = list.count > freed ? list.count - freed : 0;
}

// Frees samples, each point with the statistics beside it. They were made by turns; freed by turns, a long curve goes
// through memory once and not twice, in little more than half the time. From the first item on that is no polygon
// point, and in a list that kx_purge_polygon would refuse, all stay.
void release_samples(list_hdr *points, list_hdr *stats) {
  if (!kx::is_polygon_point(kx::datatype(points)) || kx::empty(stats)) return;
  list_item *point = points->head, *beside = stats->head;
  std::int32_t freed = 0;
  for (; point && beside && kx::is_polygon_point(point->datatype); ++freed) {
    list_item *next_point = point->next, *next_beside = beside->next;
    kx::release(point->data);
    kx::release(beside->data);
    kx::release(point);
    kx::release(beside);
    point = next_point;
    beside = next_beside;
  }
  begin_at(*points, point, freed);
  begin_at(*stats, beside, freed);
}

// Whether the lists may be freed behind control points of this datatype: hosts have always had 9 for the others.
bool known_control_kind(std::int32_t datatype) { return datatype == KX_POLY_2D || datatype == KX_POLY_3D; }

// Copies statistics, a kind that kx_copy_polygon refuses; items that hold anything else are left out.
bool copy_statistics(const list_hdr *from, list_hdr &to) {
  for (const list_item &item : kx::items(from)) {
    if (item.data == nullptr || (item.datatype != KX_CURVE_STATS_2D && item.datatype != KX_CURVE_STATS_3D)) continue;
    const bool plane = item.datatype == KX_CURVE_STATS_2D;
    void *record = plane ? static_cast<void *>(kx::create<curve_stats_2d>(kx::plane::stats_location))
                         : static_cast<void *>(kx::create<curve_stats_3d>(kx::space::stats_location));
    if (record == nullptr) return false;
    std::memcpy(record, item.data, kx::record_size(item.datatype));
    if (!kx::append(to, record, item.datatype)) {
      kx::release(record);
      return false;
    }
  }
  return true;
}

}  // namespace

/* ---- curve record ---- */

curve *KX_CALL kx_create_curve(void) {
  auto *c = kx::create<curve>("kx_create_curve");
  if (c == nullptr) return nullptr;
  kx_init_curve(c);
  if (c->curve_stats != nullptr) return c;
  kx::dispose(c);
  return nullptr;
}

void KX_CALL kx_init_curve(curve *c) {
  if (c == nullptr) return;
  *c = {};
  reset_numbers(*c);
  list_hdr *lists[5] = {};
  for (int i = 0; i < 5; ++i) {
    lists[i] = ll_create_list();
    if (lists[i] != nullptr) continue;
    while (i > 0) ll_purge_list(lists[--i]);
    return;
  }
  c->weights = lists[0];
  c->knots = lists[1];
  c->ctrl_pnts = lists[2];
  c->curve_pnts = lists[3];
  c->curve_stats = lists[4];
}

std::int32_t KX_CALL kx_purge_curve(curve *c) {
  if (c == nullptr) return 9;
  const bool has_control_points = !kx::empty(c->ctrl_pnts);
  const std::int32_t kind = kx::datatype(c->ctrl_pnts);
  c->ctrl_pnts = purge_points(c->ctrl_pnts);
  if (c->ctrl_pnts == nullptr && (!has_control_points || known_control_kind(kind))) {
    release_samples(c->curve_pnts, c->curve_stats);
  }
  c->curve_pnts = purge_points(c->curve_pnts);
  if (has_control_points && !known_control_kind(kind)) return 9;
  if (c->ctrl_pnts || c->curve_pnts) return 9;
  kx::dispose(c);
  return 0;
}

curve *KX_CALL kx_copy_curve(curve *source) {
  if (source == nullptr) return nullptr;
  curve *copy = kx_create_curve();
  if (copy == nullptr) return nullptr;
  copy->curve_type = source->curve_type;
  copy->degree = source->degree;
  copy->span_steps = source->span_steps;
  copy->step = source->step;
  std::memcpy(copy->basis, source->basis, sizeof copy->basis);
  bool copied = copy_statistics(source->curve_stats, *copy->curve_stats);
  const kx::list_set from = kx::lists_of(*source), to = kx::lists_of(*copy);
  for (int i = 0; copied && i < 5; ++i) {
    if (to.list[i] == copy->curve_stats || kx::empty(from.list[i])) continue;
    copied = kx_copy_polygon(from.list[i], to.list[i]) >= 0;
  }
  if (copied) return copy;
  kx::dispose(copy);
  return nullptr;
}

std::int32_t KX_CALL kx_clear_curve(curve *c, std::int32_t purge_lists) {
  if (c == nullptr) return 40;
  const std::int32_t kind = kx::datatype(c->ctrl_pnts);
  kx::release_items_of(c->ctrl_pnts);
  kx::release_items_of(c->curve_pnts);
  if (!known_control_kind(kind) && !kx::empty(c->curve_stats)) return kind - KX_POLY_3D;
  for (list_hdr *list : kx::lists_of(*c)) kx::release_items_of(list);
  reset_numbers(*c);
  if (purge_lists == 1) kx::dispose_lists(*c);
  return 4;
}

curv *KX_CALL kx_create_curv(void) {
  auto *c = kx::create<curv>("kx_create_curv");
  if (c) c->words[3] = c->words[4] = c->words[6] = 1;
  return c;
}

void KX_CALL kx_purge_curv(curv *c) {
  if (c == nullptr) return;
  for (void *host_block : c->pointers) kx::release(host_block);
  kx::release(c);
}
