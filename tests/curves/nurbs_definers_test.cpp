// Non-uniform definers: checks, messages, ownership.
#include "curve_lists.hpp"
#include "support/message_folder.hpp"

using namespace curve_lists;

TEST(nurbs_definers, check_in_order) {
  const message_folder folder;
  const struct {
    int ctrl, knots, weights, degree, option, nurbs, bspline;
  } cases[] = {{4, 6, 4, 3, 7, 0, 0},     {4, 6, 4, 3, 0, 0, 0},     {4, 6, 4, 3, -2, 0, 0},   {4, 5, 4, 3, 1, 0, 1},
               {3, 6, 3, 3, 1, 1, 0},     {4, 6, 3, 3, 1, 2, 0},     {4, 6, 4, 0, 1, 3, 2},    {4, 6, 4, -1, 1, 3, 2},
               {17, 40, 17, 16, 1, 3, 2}, {17, 30, 17, 16, 1, 3, 1}, {16, 30, 16, 15, 1, 0, 0}};
  for (const auto &k : cases) {
    const int32_t all = k.ctrl + k.knots + k.weights;
    const auto given = [&] {
      return lists(KX_POLY_2D, k.ctrl, static_cast<size_t>(k.knots), static_cast<size_t>(k.weights));
    };
    for (const auto define : {kx_def_nurb_curve2d, kx_def_nurb_curve3d}) {
      const lists in = given();
      const owner c{kx_create_curve()};
      EXPECT_EQ(define(in.ctrl, in.knots, in.weights, k.degree, k.option, c), k.nurbs);
      EXPECT_EQ(c->curve_type, define == kx_def_nurb_curve2d ? 94 : 95);
      EXPECT_EQ(c->span_steps, k.nurbs ? 0 : k.option ? k.option : 1);
      EXPECT_TRUE(c->degree == (k.nurbs ? 0 : k.degree) && c->weights->count == (k.nurbs ? 0 : k.weights));
      EXPECT_EQ(in.count(), k.nurbs ? all : 0);
      in.release();
    }
    for (bool space : {false, true}) {
      const lists in = given();
      faults::clear_messages();
      const owner c{space ? kx_def_nubspl_curve3d(in.ctrl, in.knots, k.degree, k.option) : kx_create_curve()};
      EXPECT_TRUE(space || kx_def_nubspl_curve2d(in.ctrl, in.knots, k.degree, k.option, c) == k.bspline);
      std::vector<std::string> said;
      if (space && k.bspline)
        said = {std::string(k.bspline == 1 ? "BADKNOTSEQ" : "BADDEG") +
                "&msgrec[i]\nLocation: kx_def_nubspl_curve3d Error Nr: 0"};
      EXPECT_EQ(faults::messages(), said);
      ASSERT_EQ(c != nullptr, said.empty());
      if (c) {
        EXPECT_EQ(c->curve_type, space ? 98 : 93);
        EXPECT_EQ(c->knots->count, k.bspline ? 0 : k.knots);
        EXPECT_TRUE(k.bspline || (c->span_steps == k.option && c->degree == k.degree));
      }
      EXPECT_TRUE(kx::empty(in.ctrl) == !k.bspline && kx::empty(in.knots) == !k.bspline);
      EXPECT_EQ(in.count(), all);  // the headers keep their counts
      in.release();
    }
  }
}

TEST(nurbs_definers, dispatch_by_datatype) {
  const message_folder folder;
  for (int32_t tag : {KX_PNT_2D, KX_POLY_2D, KX_PNT_3D, KX_POLY_3D}) {
    const lists in(tag, 4, 6, 4), other(tag, 4, 6, 0);
    const int space = kx::is_space_point(tag);
    EXPECT_FALSE(kx_def_nurb_curve(in.ctrl, in.knots, in.weights, 4, 1) ||
                 kx_def_nurb_curve(in.knots, in.knots, in.weights, 3, 1));
    faults::clear_messages();
    EXPECT_FALSE(kx_def_nubspl_curve(other.ctrl, other.knots, 16, 1) ||
                 kx_def_nubspl_curve(other.knots, other.knots, 3, 1));
    EXPECT_EQ(faults::messages().size(), static_cast<size_t>(space));
    EXPECT_TRUE(in.count() == 14 && !kx::empty(other.ctrl) && !kx::empty(other.knots));
    const owner c{kx_def_nurb_curve(in.ctrl, in.knots, in.weights, 3, 1)};
    const owner d{kx_def_nubspl_curve(other.ctrl, other.knots, 3, 1)};
    EXPECT_TRUE(c->curve_type == 94 + space && in.count() == 0 && d->curve_type == (space ? 98 : 93));
    EXPECT_TRUE(kx::empty(other.ctrl) && kx::empty(other.knots));
    in.release(), other.release();
  }
}

TEST(nurbs_definers, take_lists_of_the_curve_itself) {
  const owner c{nurbs(KX_POLY_2D, 4, 3, std::vector<double>(6))};
  const list_item *knots = c->knots->head, *weights = c->weights->head;
  EXPECT_EQ(kx_def_nurb_curve2d(c->ctrl_pnts, c->weights, c->knots, 3, 1, c), 0);  // knots and weights change places
  EXPECT_TRUE(c->weights->head == knots && c->weights->count == 6 && c->knots->count == 4 && c->ctrl_pnts->count == 4);
  EXPECT_EQ(kx_def_nubspl_curve2d(c->knots, c->knots, 1, 1, c), 0);  // given twice; a B-spline has no weights
  EXPECT_TRUE(c->ctrl_pnts->head == weights && kx::empty(c->knots) && kx::empty(c->weights));
  EXPECT_TRUE(kx_def_nubspl_curve2d(nullptr, nullptr, 1, 1, c) == 0 && kx::empty(c->ctrl_pnts));
}

TEST(nurbs_definers, leave_the_lists_when_memory_runs_out) {
  const auto setup = [] {
    return things{{}, {points(KX_POLY_3D, 4), numbers(std::vector<double>(6)), numbers({1, 1, 1, 1})}};
  };
  const auto nurbs = [](things &a) { return a.keep(kx_def_nurb_curve(a.lists[0], a.lists[1], a.lists[2], 3, 1)); };
  const auto bspline = [](things &a) { return a.keep(kx_def_nubspl_curve3d(a.lists[0], a.lists[1], 3, 1)); };
  expect_all_or_nothing(setup, nurbs, 6);
  expect_all_or_nothing(setup, bspline, 6);
}
