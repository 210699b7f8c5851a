// Non-uniform definers: checks, messages, ownership.
#include "curve_lists.hpp"
#include "support/faults.hpp"
#include "support/message_folder.hpp"

using namespace curve_lists;

namespace {

struct lists {
  list_hdr *ctrl, *knots, *weights;

  lists(int n, int knot_count, int weight_count, int32_t tag = KX_POLY_2D)
      : ctrl(points(tag, n)),
        knots(numbers(std::vector<double>(static_cast<size_t>(knot_count)))),
        weights(numbers(std::vector<double>(static_cast<size_t>(weight_count)))) {}
  int32_t count() const { return ctrl->count + knots->count + weights->count; }
  void release() const {
    for (list_hdr *list : {ctrl, knots, weights}) ll_purge_all_items(list);
  }
};

}  // namespace

TEST(nurbs_definers, check_in_order) {
  const message_folder folder;
  const struct {
    int ctrl, knots, weights, degree, option;
    int32_t nurbs, bspline;
  } cases[] = {{4, 6, 4, 3, 7, 0, 0},     {4, 6, 4, 3, 0, 0, 0},     {4, 6, 4, 3, -2, 0, 0},   {4, 5, 4, 3, 1, 0, 1},
               {3, 6, 3, 3, 1, 1, 0},     {4, 6, 3, 3, 1, 2, 0},     {4, 6, 4, 0, 1, 3, 2},    {4, 6, 4, -1, 1, 3, 2},
               {17, 40, 17, 16, 1, 3, 2}, {17, 30, 17, 16, 1, 3, 1}, {16, 30, 16, 15, 1, 0, 0}};
  for (const auto &k : cases) {
    const int32_t all = k.ctrl + k.knots + k.weights;
    for (const auto define : {kx_def_nurb_curve2d, kx_def_nurb_curve3d}) {
      lists in(k.ctrl, k.knots, k.weights);
      curve *c = kx_create_curve();
      EXPECT_EQ(define(in.ctrl, in.knots, in.weights, k.degree, k.option, c), k.nurbs);
      EXPECT_EQ(c->curve_type, define == kx_def_nurb_curve2d ? 94 : 95);
      EXPECT_EQ(c->span_steps, k.nurbs ? 0 : k.option ? k.option : 1);
      EXPECT_EQ(c->degree, k.nurbs ? 0 : k.degree);
      EXPECT_EQ(in.count(), k.nurbs ? all : 0);
      EXPECT_EQ(c->weights->count, k.nurbs ? 0 : k.weights);
      free_curve(c);
      in.release();
    }
    for (bool space : {false, true}) {
      lists in(k.ctrl, k.knots, k.weights);
      faults::clear_messages();
      curve *c = space ? kx_def_nubspl_curve3d(in.ctrl, in.knots, k.degree, k.option) : kx_create_curve();
      EXPECT_TRUE(space || kx_def_nubspl_curve2d(in.ctrl, in.knots, k.degree, k.option, c) == k.bspline);
      if (space && k.bspline) {
        EXPECT_EQ(c, nullptr);
        ASSERT_EQ(faults::messages().size(), 1u);
        EXPECT_EQ(faults::messages()[0], std::string(k.bspline == 1 ? "BADKNOTSEQ" : "BADDEG") +
                                             "&msgrec[i]\nLocation: kx_def_nubspl_curve3d Error Nr: 0");
      } else {
        ASSERT_NE(c, nullptr);
        EXPECT_EQ(c->curve_type, space ? 98 : 93);
        EXPECT_EQ(c->knots->count, k.bspline ? 0 : k.knots);
        EXPECT_TRUE(k.bspline || (c->span_steps == k.option && c->degree == k.degree));
      }
      EXPECT_TRUE(kx::empty(in.ctrl) == !k.bspline && kx::empty(in.knots) == !k.bspline);
      EXPECT_EQ(in.count(), all);  // the headers keep their counts
      free_curve(c);
      in.release();
    }
  }
}

TEST(nurbs_definers, dispatch_by_datatype) {
  for (int32_t tag : {KX_PNT_2D, KX_POLY_2D, KX_PNT_3D, KX_POLY_3D}) {
    lists in(4, 6, 4, tag);
    EXPECT_EQ(kx_def_nurb_curve(in.ctrl, in.knots, in.weights, 4, 1), nullptr);
    EXPECT_EQ(kx_def_nurb_curve(in.knots, in.knots, in.weights, 3, 1), nullptr);
    EXPECT_EQ(in.count(), 14);
    curve *c = kx_def_nurb_curve(in.ctrl, in.knots, in.weights, 3, 1);
    EXPECT_EQ(c->curve_type, kx::is_plane_point(tag) ? 94 : 95);
    EXPECT_EQ(in.count(), 0);
    free_curve(c);
    in.release();
  }
  EXPECT_EQ(kx_def_nurb_curve(nullptr, nullptr, nullptr, 3, 1), nullptr);
  EXPECT_EQ(kx_def_nurb_curve2d(nullptr, nullptr, nullptr, 3, 1, nullptr), 4);
  EXPECT_EQ(kx_def_nubspl_curve2d(nullptr, nullptr, 3, 1, nullptr), 4);
}

TEST(nurbs_definers, take_lists_of_the_curve_itself) {
  curve *c = nurbs(KX_POLY_2D, 4, 3, std::vector<double>(6));
  const list_item *knots = c->knots->head;
  EXPECT_EQ(kx_def_nurb_curve2d(c->ctrl_pnts, c->weights, c->knots, 3, 1, c), 0);  // knots and weights change places
  EXPECT_EQ(c->weights->head, knots);
  EXPECT_TRUE(c->weights->count == 6 && c->knots->count == 4 && c->ctrl_pnts->count == 4);
  EXPECT_EQ(kx_def_nubspl_curve2d(c->weights, c->weights, 1, 1, c), 0);  // given twice
  EXPECT_EQ(c->ctrl_pnts->head, knots);
  EXPECT_TRUE(kx::empty(c->knots));
  EXPECT_EQ(kx_def_nubspl_curve2d(nullptr, nullptr, 1, 1, c), 0);
  EXPECT_TRUE(kx::empty(c->ctrl_pnts));
  free_curve(c);
}

TEST(nurbs_definers, leave_the_lists_when_memory_runs_out) {
  const auto nurbs = [](lists in) { return kx_def_nurb_curve(in.ctrl, in.knots, in.weights, 3, 1); };
  const auto bspline = [](lists in) { return kx_def_nubspl_curve3d(in.ctrl, in.knots, 3, 1); };
  for (const auto &define : {+nurbs, +bspline}) {
    EXPECT_EQ(faults::fail_each_allocation([] { return lists(4, 6, 4, KX_POLY_3D); }, define,
                                           [](int n, lists in, curve *c) {
                                             EXPECT_TRUE((c == nullptr) == (n > 0) && kx::empty(in.ctrl) == (n == 0) &&
                                                         kx::empty(in.knots) == (n == 0));
                                             free_curve(c);
                                             in.release();
                                           }),
              6);
  }
}
