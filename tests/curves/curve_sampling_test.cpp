// Curves of every kind as points.
#include "every_kind.hpp"

using namespace every_kind;
using curve_lists::things;

namespace {

// Asks for the number, and fills an array that has room for one less, then for all.
template <class Call2, class Call3, class Value>
std::vector<pnt_3d> filled(const curve *c, Call2 call2, Call3 call3, Value value) {
  const bool space = in_space(c->curve_type);
  const auto call = [&](int32_t room, double *out, int32_t *n) {
    return space ? call3(c, value, room, out, n) : call2(c, value, room, out, n);
  };
  int32_t n = 0, again = 0;
  EXPECT_EQ(call(0, nullptr, &n), 10);
  const size_t size = static_cast<size_t>(n) * (space ? 3 : 2);
  std::vector<double> flat(size, -77), less = flat;
  EXPECT_EQ(call(n - 1, less.data(), &again), 10);
  EXPECT_EQ(less.back(), -77);
  EXPECT_EQ(call(n, flat.data(), &again), 0);
  EXPECT_TRUE(again == n && std::equal(less.begin(), less.end() - (space ? 3 : 2), flat.begin()));
  return widened(flat, space);
}

double apart(const pnt_3d &p, const pnt_3d &a, const pnt_3d &b) {
  const kx::vec3 along{b.x - a.x, b.y - a.y, b.z - a.z}, to{p.x - a.x, p.y - a.y, p.z - a.z};
  const double squared = dot(along, along), part = squared > 0 ? std::clamp(dot(to, along) / squared, 0.0, 1.0) : 0.0;
  return length(to - part * along);
}

}  // namespace

TEST(curve_sampling, equal_parameters_and_steps) {
  for_each_curve([](const curve *c) {
    const range r(c);
    const bool space = in_space(c->curve_type);
    for (const auto &[from, to] : {std::pair{r.from, r.to}, {r.to, 0.5 * (r.from + r.to)}}) {
      std::vector<double> flat(100 * (space ? 3 : 2));
      EXPECT_EQ(
          space ? kx_curve_pnts_3d(c, from, to, 100, flat.data()) : kx_curve_pnts_2d(c, from, to, 100, flat.data()), 0);
      const auto all = widened(flat, space);
      for (size_t i = 0; i < 100; ++i)
        EXPECT_LT(every_kind::apart(all[i], point(c, i == 99 ? to : from + (to - from) / 99 * static_cast<double>(i))),
                  1e-11);
    }
    for (int32_t steps : {1, 3, 70}) {
      const auto got = filled(c, kx_curve_steps_2d, kx_curve_steps_3d, steps);
      size_t at = 0;
      const bool jumps = c->curve_type == 85 || c->curve_type == 86 || c->curve_type == 91 || c->curve_type == 92 ||
                         (knotted(c->curve_type) && c->degree == 1);
      for (const piece &p : pieces(c))
        for (int i = at == 0 || (jumps && every_kind::apart(p.at(p.start), got[at - 1]) > 1e-7) ? 0 : 1;
             i <= steps && at < got.size(); ++i) {
          EXPECT_LT(every_kind::apart(got[at++], p.at(p.start + (p.end - p.start) * i / steps)), 1e-11);
        }
      EXPECT_EQ(at, got.size());
    }
  });
}

TEST(curve_sampling, chords_stay_within_their_tolerance) {
  for_each_curve([](const curve *c) {
    for (double tol : {1.0, 1e-2, 1e-5}) {
      const auto polygon = filled(c, kx_curve_chords_2d, kx_curve_chords_3d, tol);
      size_t at = 0;
      for (const piece &p : pieces(c))
        for (int i = 0; i <= 200; ++i) {
          const pnt_3d q = p.at(p.start + (p.end - p.start) * i / 200);
          // the chords are passed in order
          while (at + 2 < polygon.size() && apart(q, polygon[at], polygon[at + 1]) > tol + 1e-12) ++at;
          EXPECT_LE(apart(q, polygon[at], polygon[at + 1]), tol + 1e-12);
          if (::testing::Test::HasFailure()) return;
        }
    }
  });
}

TEST(curve_sampling, chords_are_not_many) {
  for (double tol : {1e-1, 1e-3, 1e-6}) {
    const owner c{circle(5)};
    int32_t n;
    kx_curve_chords_2d(c, tol, 0, nullptr, &n);
    const double least = std::acos(-1) / std::acos(1 - tol / 5);
    EXPECT_TRUE(n > least && n < 1.5 * least + 4) << n << " of " << least;
  }
  // A straight line is one chord, however uneven its parameter; points at one place are no more.
  for (double x : {1.0, 0.0}) {
    const owner line{
        make(96, {{0, 0, 0}, {9 * x, 9 * x, 0}, {10 * x, 10 * x, 0}, {40 * x, 40 * x, 0}}, 3, {}, {1, 5, 1, 3})};
    int32_t n;
    EXPECT_TRUE(kx_curve_chords_2d(line, 1e-9, 0, nullptr, &n) == 10 && n == 2);
  }
}

TEST(curve_sampling, lists_continue_or_stay) {
  for (int32_t type : {94, 95}) {
    const auto chords = type == 94 ? kx_curve_chordpnts_2d : kx_curve_chordpnts_3d;
    const owner c{wavy(type)};
    const int32_t tag = type == 94 ? KX_POLY_2D : KX_POLY_3D;
    const curve_lists::held list{ll_create_list()};
    EXPECT_EQ(chords(c, 1e-2, list), 0);
    const int32_t n = list->count;
    EXPECT_EQ(chords(c, 1e-2, list), 0);
    EXPECT_TRUE(list->count == 2 * n && list->current == list->tail && list->tail->datatype == tag);
    const auto polygon = filled(c, kx_curve_chords_2d, kx_curve_chords_3d, 1e-2);
    int32_t seqnr = 0;
    for (const list_item &i : kx::items(list)) {
      EXPECT_EQ(kx::read_seqnr(i.data, tag), seqnr);
      EXPECT_EQ(every_kind::apart(kx::read_point(i.data, tag), polygon[static_cast<size_t>(seqnr++ % n)]), 0);
    }
    EXPECT_EQ(chords(c, -1, list), 8);
    EXPECT_EQ((type == 94 ? kx_curve_chordpnts_3d : kx_curve_chordpnts_2d)(c, 1, list), 40);
    EXPECT_EQ(list->count, 2 * n);
    const auto few = static_cast<int>(filled(c, kx_curve_chords_2d, kx_curve_chords_3d, 1.0).size());
    const auto setup = [=] { return things{{wavy(type)}, {curve_lists::points(tag, 2)}}; };
    const auto call = [=](things &all) { return chords(all.curves[0], 1, all.lists[0]); };
    curve_lists::expect_all_or_nothing(setup, call, 2 * few + 1, 1);
  }
}

TEST(curve_sampling, refuses_counts_and_tolerances) {
  const owner c{wavy(83)};
  double out[8];
  int32_t n = 5;
  const double nan = std::nan("");
  for (int32_t count : {1, 0, -1, 1000001, INT32_MAX}) EXPECT_EQ(kx_curve_pnts_2d(c, 0, 6, count, out), 8);
  EXPECT_TRUE(kx_curve_pnts_2d(c, 0, nan, 4, out) == 7 && kx_curve_pnts_2d(c, -1, 6, 4, out) == 7);
  for (int32_t steps : {0, -1}) EXPECT_EQ(kx_curve_steps_2d(c, steps, 0, nullptr, &n), 8);
  EXPECT_EQ(kx_curve_steps_2d(c, 166665, 0, nullptr, &n), 10);
  EXPECT_EQ(n, 6 * 166665 + 1);
  EXPECT_TRUE(kx_curve_steps_2d(c, 166666, 0, nullptr, &n) == 9 &&
              kx_curve_steps_2d(c, INT32_MAX, 0, nullptr, &n) == 9);
  EXPECT_TRUE(kx_curve_steps_2d(c, 1, -1, out, &n) == 8 && kx_curve_chords_2d(c, 1, -1, out, &n) == 8);
  for (double tol : {0.0, -1.0, nan, HUGE_VAL}) EXPECT_EQ(kx_curve_chords_2d(c, tol, 4, out, &n), 8);
  for (double tol : {1e-17, 5e-324}) EXPECT_EQ(kx_curve_chords_2d(c, tol, 0, nullptr, &n), 9);
}
