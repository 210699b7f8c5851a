// Lists that the curve tests hand to definers, and what the makers left in a curve.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <new>
#include <vector>

#include "kxgeom/curves.h"
#include "kxgeom/list.h"
#include "kxgeom/records.h"
#include "list/items.hpp"
#include "records/dimension.hpp"

namespace curve_lists {

// n control points of a wavy line, of any of the four kinds.
inline pnt_3d wave(int i) { return {1.0 * i, std::sin(0.7 * i), 0.3 * i * i - i}; }

inline list_hdr *points(int32_t tag, int n) {
  list_hdr *list = ll_create_list();
  for (int i = 0; i < n; ++i) ll_add_list_item(list, 1, kx::create_point(tag, wave(i), i), tag);
  return list;
}

inline list_hdr *numbers(const std::vector<double> &values) {
  list_hdr *list = ll_create_list();
  for (double v : values) ll_add_list_item(list, 1, new (kx_create_rnumber()) rnumber{v}, KX_RNUMBER);
  return list;
}

// A clamped knot vector with unit spans, without the textbook's first and last knot.
inline std::vector<double> clamped(int points, int degree) {
  std::vector<double> k;
  for (int i = 1; i < points + degree; ++i) k.push_back(std::clamp(i - degree, 0, points - degree));
  return k;
}

template <class R>
std::vector<R> records(const list_hdr *list) {
  std::vector<R> all;
  for (const list_item &item : kx::items(list)) all.push_back(*static_cast<const R *>(item.data));
  return all;
}

// A curve from a plane definer, and one from kx_def_nurb_curve; the emptied headers are freed.
template <class Definer>
curve *uniform(Definer define, int n, int32_t tag = KX_POLY_2D) {
  curve *c = kx_create_curve();
  list_hdr *list = points(tag, n);
  EXPECT_EQ(define(list, c), 0);
  EXPECT_EQ(ll_purge_list(list), 0);
  return c;
}

inline curve *nurbs(int32_t tag, int n, int degree, const std::vector<double> &knots,
                    std::vector<double> weights = {}) {
  weights.resize(static_cast<size_t>(n), 1.0);
  list_hdr *ctrl = points(tag, n), *k = numbers(knots), *w = numbers(weights);
  curve *c = kx_def_nurb_curve(ctrl, k, w, degree, 4);
  for (list_hdr *list : {ctrl, k, w}) EXPECT_EQ(ll_purge_list(list), 0);
  return c;
}

// Frees a curve whatever it holds: the second call is for control points of datatype 50 and 51.
inline void free_curve(curve *c) {
  const bool freed = c == nullptr || kx_purge_curve(c) == 0 || kx_purge_curve(c) == 0;
  EXPECT_TRUE(freed);
}

}  // namespace curve_lists
