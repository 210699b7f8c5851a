// Matrices kept in a list under numbers.
//
// A store of plane matrices and one of space matrices differ in one rule only. What both do with a number that they do
// not know is odd on purpose, for hosts that keep just their latest matrix: the last record is written over and hangs
// in the list once more.
#include <cstring>

#include "kxgeom/transform.h"
#include "list/items.hpp"
#include "list/point_kind.hpp"

namespace {

struct plane_store {
  using record = matrixrec2d;
  static constexpr int32_t tag = KX_MATRIXREC2D;
  static constexpr const char *create_text = "kx_create_matrixrec2d", *store_text = "kx_storematrix2d";
  static constexpr bool appends_match_at_end = false;
};

struct space_store {
  using record = matrixrec3d;
  static constexpr int32_t tag = KX_MATRIXREC3D;
  static constexpr const char *create_text = "kx_create_matrixrec3d";
  static constexpr const char *store_text = "storematrix3d";  // without the prefix: the text hosts have always shown
  static constexpr bool appends_match_at_end = true;
};

template <class Record>
void write(Record &record, int32_t id, const double *matrix) {
  record.id = id;
  std::memmove(&record.matrix, matrix, sizeof record.matrix);
}

template <class Kind>
int32_t store_matrix(list_hdr *store, int32_t id, const double *matrix) {
  using record = typename Kind::record;
  if (!store || !matrix) return 1;
  // Asked for first, and given back when the store has a record to write over.
  auto *fresh = kx::create<record>(Kind::create_text);
  if (!fresh) {
    kx_memerr(Kind::store_text);
    return 80;
  }
  record *last = nullptr;
  for (list_item *item = kx::current(store); item; item = item->next) {
    if (!kx::readable_as(*item, Kind::tag)) continue;
    last = static_cast<record *>(item->data);
    if (last->id != id || (Kind::appends_match_at_end && !item->next)) continue;
    kx::release(fresh);
    write(*last, id, matrix);
    store->current = item;
    return 0;
  }
  record *kept = last ? last : fresh;
  list_item *item = kx::create_item(kept, Kind::tag);
  if (item) {
    write(*kept, id, matrix);
    kx::link_last(*store, item);
  }
  if (!item || kept != fresh) kx::release(fresh);
  return item ? 0 : 80;
}

template <class Kind>
int32_t restore_matrix(list_hdr *store, int32_t id, double *out) {
  if (kx::empty(store) || !out) return 1;
  store->current = store->head;
  for (list_item &item : kx::items(store)) {
    if (!kx::readable_as(item, Kind::tag)) continue;
    const auto *record = static_cast<const typename Kind::record *>(item.data);
    if (record->id != id) continue;
    store->current = &item;
    std::memcpy(out, &record->matrix, sizeof record->matrix);
    return 0;
  }
  return 1;
}

// Leaves each record to one of the items that hold it: the one whose address the record, which nobody reads any more,
// ends up with.
void leave_one_holder(const list_hdr &store) {
  for (list_item &item : kx::items(&store)) {
    const list_item *holder = &item;
    if (kx::readable_as(item, KX_MATRIXREC2D)) std::memcpy(item.data, &holder, sizeof holder);
  }
  for (list_item &item : kx::items(&store)) {
    if (!kx::readable_as(item, KX_MATRIXREC2D)) continue;
    const list_item *holder = nullptr;
    std::memcpy(&holder, item.data, sizeof holder);
    if (holder != &item) item.data = nullptr;
  }
}

}  // namespace

int32_t KX_CALL kx_storematrix2d(list_hdr *store, int32_t id, const double *matrix) {
  return store_matrix<plane_store>(store, id, matrix);
}

int32_t KX_CALL kx_storematrix3d(list_hdr *store, int32_t id, const double *matrix) {
  return store_matrix<space_store>(store, id, matrix);
}

int32_t KX_CALL kx_restorematrix2d(list_hdr *store, int32_t id, double *out) {
  return restore_matrix<plane_store>(store, id, out);
}

int32_t KX_CALL kx_restorematrix3d(list_hdr *store, int32_t id, double *out) {
  return restore_matrix<space_store>(store, id, out);
}

int32_t KX_CALL kx_disposematrix2d(list_hdr *store) {
  if (kx::empty(store)) return 6;
  leave_one_holder(*store);
  kx::release_items(*store);
  kx::release(store);
  return 0;
}
