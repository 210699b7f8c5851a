// Lists that the curve tests hand to definers, and what the makers left in a curve.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <new>
#include <vector>

#include "curves/curve_record.hpp"
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

// A curve from a plane or a space definer, and one from kx_def_nurb_curve; the emptied headers are freed.
inline curve *uniform(int32_t(KX_CALL *define)(list_hdr *, curve *), int n, int32_t tag = KX_POLY_2D) {
  const held list{points(tag, n)};
  curve *c = kx_create_curve();
  EXPECT_EQ(define(list, c), 0);
  return c;
}
inline curve *uniform(curve *(KX_CALL *define)(list_hdr *), int n, int32_t tag = KX_POLY_3D) {
  return define(held{points(tag, n)});
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

  lists(int32_t tag, int n, size_t knot_count, size_t weight_count)
      : ctrl(points(tag, n)),
        knots(numbers(std::vector<double>(knot_count))),
        weights(numbers(std::vector<double>(weight_count))) {}
  int32_t count() const { return ctrl->count + knots->count + weights->count; }
  void release() const {
    for (list_hdr *list : {ctrl, knots, weights}) ll_purge_all_items(list);
  }
};

// What a call is given, and the curves it makes.
struct things {
  std::vector<curve *> curves;
  std::vector<list_hdr *> lists;

  std::vector<size_t> counts() const {
    std::vector<const list_hdr *> all(lists.begin(), lists.end());
    for (const curve *c : curves)
      for (const list_hdr *list : kx::lists_of(*c)) all.push_back(list);
    std::vector<size_t> n;
    for (const list_hdr *list : all) {
      n.push_back(0);
      for (const list_item *i = list ? list->head : nullptr; i; i = i->next) ++n.back();
    }
    return n;
  }
  int32_t keep(curve *c) {
    if (c) curves.push_back(c);
    return c ? 0 : 80;
  }
};

// A call without memory answers 80 with one message, makes nothing and leaves every list as it was. The first `quiet`
// allocations fail without the message.
template <class Setup, class Call>
void expect_all_or_nothing(Setup setup, Call call, int allocations, int quiet = 0) {
  const auto changed = [&](things &all) {
    const auto before = all.counts();
    const int32_t code = call(all);
    return std::pair{code, all.counts() != before};
  };
  const auto check = [=](int n, things all, std::pair<int32_t, bool> result) {
    EXPECT_TRUE(result.first == (n > 0 ? 80 : 0) && result.second == (n == 0));
    EXPECT_EQ(faults::messages().size(), n > quiet);
    for (curve *c : all.curves) free_curve(c);
    for (list_hdr *list : all.lists) release(list);
  };
  EXPECT_EQ(faults::fail_each_allocation(setup, changed, check), allocations);
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
