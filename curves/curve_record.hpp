// What all curves share: the type codes by dimension, the five lists, control points and samples.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "kxgeom/list.h"
#include "kxgeom/types.h"
#include "list/items.hpp"
#include "list/point_kind.hpp"
#include "records/dimension.hpp"
#include "runtime/memory.hpp"

namespace kx {

template <class D>
struct curve_codes;

template <>
struct curve_codes<plane> {
  static constexpr std::int32_t bspline = 83, bezier = 85, catrom = 87, beta = 91, nonuniform_bspline = 93, nurbs = 94,
                                rational_bezier = 96;
};

// The space B-spline is 98 and not 94: hosts tell it so from the plane NURBS.
template <>
struct curve_codes<space> {
  static constexpr std::int32_t bspline = 84, bezier = 86, catrom = 88, beta = 92, nonuniform_bspline = 98, nurbs = 95,
                                rational_bezier = 97;
};

inline constexpr std::int32_t max_degree = 15, max_bezier_degree = 30;

// More points than this are asked for by mistake: the functions that are free to refuse them do.
inline constexpr std::int32_t most_samples = 1000000;

inline constexpr double identity_basis[16] = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};

// The five lists in the order of the record. By value: the record is packed, so none of its fields may be referred to.
struct list_set {
  list_hdr *list[5];

  list_hdr *const *begin() const { return list; }
  list_hdr *const *end() const { return list + 5; }
};

inline list_set lists_of(const curve &c) { return {{c.weights, c.knots, c.ctrl_pnts, c.curve_pnts, c.curve_stats}}; }

inline list_hdr *existing_or_new(list_hdr *list) { return list ? list : ll_create_list(); }

// Sees to the lists that a maker fills; false after the memory message.
inline bool create_outputs(curve &c) {
  c.curve_pnts = existing_or_new(c.curve_pnts);
  if (c.curve_pnts) c.curve_stats = existing_or_new(c.curve_stats);
  return c.curve_pnts && c.curve_stats;
}

inline void release_items_of(list_hdr *list) {
  if (list) release_items(*list);
}

// Frees all lists with their items and the items' data, whatever they are.
inline void dispose_lists(curve &c) {
  for (list_hdr *list : lists_of(c)) {
    release_items_of(list);
    release(list);
  }
  c.weights = c.knots = c.ctrl_pnts = c.curve_pnts = c.curve_stats = nullptr;
}

// Frees a curve whatever it holds, where kx_purge_curve would ask for the control points' kind.
inline void dispose(curve *c) {
  if (c == nullptr) return;
  dispose_lists(*c);
  release(c);
}

// Number of items; 0 for a detached header, whose count is no longer true.
inline std::int32_t item_count(const list_hdr *list) { return empty(list) ? 0 : list->count; }

// How a definer leaves the caller's header: with the count it had, or all 0. Hosts of either half know it so.
enum class detached { keeps_count, is_zero };

// Takes all items out of a caller's list.
inline list_hdr take_items(list_hdr *given, detached how) {
  if (empty(given)) return {};
  const list_hdr taken = *given;
  *given = {nullptr, nullptr, nullptr, how == detached::keeps_count ? taken.count : 0};
  return taken;
}

// Gives a list of the curve other items; those it had are freed.
inline void replace_items(list_hdr &list, const list_hdr &taken) {
  if (!empty(&list)) release_items(list);
  list = taken;
}

// Appends a numbered point; false, nothing appended, after the memory message.
template <class D>
inline bool append_vertex(list_hdr &list, std::uint32_t number, typename D::vector at) {
  auto *record = D::create_vertex();
  if (record == nullptr) [[unlikely]]
    return false;
  *record = D::make_vertex(static_cast<std::int32_t>(number), at);
  if (append(list, record, D::vertex_tag)) [[likely]]
    return true;
  release(record);
  return false;
}

// Samples of one call beyond which there is no memory by decree: no 32-bit host has room for them, and a step count
// mistyped must not swallow the memory of a larger one.
inline constexpr std::int64_t most_list_samples = 10000000;

// A sample of a curve: the point and its statistics.
template <class D>
struct sample {
  typename D::vertex *point;
  typename D::stats *stats;
};

// Statistics that are not zeroed: the zeros of a record about to be written whole would cost a quarter of a sample.
template <class D>
inline typename D::stats *create_raw_stats() {
  void *block = allocate(sizeof(typename D::stats));
  if (block == nullptr) [[unlikely]]
    report_no_memory(D::stats_location);
  return static_cast<typename D::stats *>(block);
}

// Appends a sample to both lists and hands it out, not initialised, to be filled in place; both null, nothing appended,
// after the memory message.
template <class D>
inline sample<D> append_sample(curve &c) {
  auto *point = D::create_vertex();
  auto *stats = point ? create_raw_stats<D>() : nullptr;
  list_item *point_item = stats ? create_item(point, D::vertex_tag) : nullptr;
  list_item *stats_item = point_item ? create_item(stats, D::stats_tag) : nullptr;
  if (stats_item == nullptr) [[unlikely]] {
    release(point);
    release(stats);
    release(point_item);
    return {nullptr, nullptr};
  }
  link_last(*c.curve_pnts, point_item);
  link_last(*c.curve_stats, stats_item);
  return {point, stats};
}

}  // namespace kx
