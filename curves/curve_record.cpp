// The curve record's life: create, copy, clear, purge; and the curv record.
#include "curve_record.hpp"

#include <initializer_list>

#include "kxgeom/curves.h"
#include "kxgeom/records.h"

namespace {

// All numbers of the record back to those of a new curve; the lists stay.
void reset_numbers(curve &c) {
  c.curve_type = c.degree = c.span_steps = 0;
  c.step = 0.0;
  std::memcpy(c.basis, kx::identity_basis, sizeof c.basis);
}

// A curve's point list, freed as a polygon; true when there is none.
bool purge_points(list_hdr *&list) {
  if (list == nullptr) return true;
  if (kx_purge_polygon(list) != 0) return false;
  list = nullptr;
  return true;
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
  for (auto list : kx::curve_lists) {
    c->*list = ll_create_list();
    if (c->*list != nullptr) continue;
    for (auto created : kx::curve_lists) kx::dispose(c->*created);
    return;
  }
}

std::int32_t KX_CALL kx_purge_curve(curve *c) {
  if (c == nullptr) return 9;
  const bool has_control_points = !kx::empty(c->ctrl_pnts);
  const std::int32_t kind = kx::datatype(c->ctrl_pnts);
  const bool control_freed = purge_points(c->ctrl_pnts), samples_freed = purge_points(c->curve_pnts);
  if (has_control_points && !known_control_kind(kind)) return 9;
  if (!control_freed || !samples_freed) return 9;
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
  for (auto list : kx::curve_lists) {
    if (!copied) break;
    if (list != &curve::curve_stats && !kx::empty(source->*list)) {
      copied = kx_copy_polygon(source->*list, copy->*list) >= 0;
    }
  }
  if (copied) return copy;
  kx::dispose(copy);
  return nullptr;
}

std::int32_t KX_CALL kx_clear_curve(curve *c, std::int32_t purge_lists) {
  if (c == nullptr) return 40;
  const std::int32_t kind = kx::datatype(c->ctrl_pnts);
  for (list_hdr *list : {c->ctrl_pnts, c->curve_pnts}) {
    if (list) kx::release_items(*list);
  }
  if (!known_control_kind(kind) && !kx::empty(c->curve_stats)) return kind - KX_POLY_3D;
  for (list_hdr *list : {c->curve_stats, c->knots, c->weights}) {
    if (list) kx::release_items(*list);
  }
  reset_numbers(*c);
  if (purge_lists == 1) {
    for (auto list : kx::curve_lists) kx::dispose(c->*list);
  }
  return 4;
}

curv *KX_CALL kx_create_curv(void) {
  auto *c = kx::create<curv>("kx_create_curv");
  if (c) c->words[3] = c->words[4] = c->words[6] = 1;
  return c;
}

void KX_CALL kx_purge_curv(curv *c) {
  if (c == nullptr) return;
  for (void *block : c->pointers) kx::release(block);
  kx::release(c);
}
