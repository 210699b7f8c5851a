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
#include "support/faults.hpp"

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

inline std::vector<kx::vec3> coordinates(const list_hdr *list) {
  std::vector<kx::vec3> all;
  for (const list_item &item : kx::items(list))
    all.push_back(kx::space::read(kx::read_point(item.data, item.datatype)));
  return all;
}

inline void release(list_hdr *list) {
  if (list == nullptr) return;
  kx::release_items(*list);
  EXPECT_EQ(ll_purge_list(list), 0);
}

// A list that a test frees at its end, whatever is in it.
struct held {
  list_hdr *list;
  ~held() { release(list); }
  operator list_hdr *() const { return list; }
  list_hdr *operator->() const { return list; }
};

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

struct owner {
  curve *c;
  ~owner() { free_curve(c); }
  operator curve *() const { return c; }
  curve *operator->() const { return c; }
};

// What a definer is given.
struct lists {
  list_hdr *ctrl, *knots, *weights;
  curve *c = nullptr;

  lists(int32_t tag, int n, size_t knot_count, size_t weight_count)
      : ctrl(points(tag, n)),
        knots(numbers(std::vector<double>(knot_count))),
        weights(numbers(std::vector<double>(weight_count))) {}
  int32_t count() const { return ctrl->count + knots->count + weights->count; }
  void release() const {
    for (list_hdr *list : {ctrl, knots, weights}) ll_purge_all_items(list);
  }
};

// A definer without memory makes no curve and leaves the lists.
template <class Setup, class Define>
void expect_all_or_nothing(Setup setup, Define define, int allocations) {
  const auto check = [](int n, lists in, curve *c) {
    EXPECT_TRUE((c == nullptr) == (n > 0) && kx::empty(in.ctrl) == (n == 0));
    EXPECT_TRUE(n == 0 || in.count() == 14);
    if (c != in.c) free_curve(in.c);
    free_curve(c);
    in.release();
  };
  EXPECT_EQ(faults::fail_each_allocation(setup, define, check), allocations);
}

// Sampling without memory keeps the samples made so far. The allocations `before` them begin with the two output lists.
template <class Define, class Make>
void expect_samples_kept(Define define, Make make, int before, const std::string &location, int samples) {
  const auto without_outputs = [=] {
    curve *c = define();
    EXPECT_EQ(ll_purge_list(c->curve_pnts) + ll_purge_list(c->curve_stats), 0);
    c->curve_pnts = c->curve_stats = nullptr;
    return c;
  };
  const auto check = [=](int n, curve *c, int32_t code) {
    EXPECT_EQ(code, n > 0 ? 80 : 0);
    EXPECT_EQ(ll_get_list_count(c->curve_pnts), n > 0 ? std::max(0, (n - before - 1) / 4) : samples);
    EXPECT_EQ(ll_get_list_count(c->curve_stats), ll_get_list_count(c->curve_pnts));
    EXPECT_EQ(faults::messages().size(), n > 0 ? 1u : 0u);
    EXPECT_TRUE(n != before || faults::messages()[0] == "Memory Error: " + location);
    free_curve(c);
  };
  EXPECT_EQ(faults::fail_each_allocation(without_outputs, make, check), before + 4 * samples);
}

// Counts blocks as long as it lives, and all are to be freed by then.
struct no_leaks {
  no_leaks() { faults::watch(); }
  ~no_leaks() {
    faults::unwatch();
    EXPECT_EQ(faults::live_blocks(), 0);
  }
};

}  // namespace curve_lists
