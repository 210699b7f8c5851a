// The curve record's life.
#include "curves/curve_record.hpp"

#include "curve_lists.hpp"

using namespace curve_lists;

namespace {

void expect_initial(const curve *c) {
  EXPECT_EQ(c->curve_type + c->degree + c->span_steps + c->step, 0);
  for (int i = 0; i < 16; ++i) EXPECT_EQ(+c->basis[i], i % 5 == 0);
}

// A sampled curve with something in each list.
curve *full_curve(int32_t tag) {
  curve *c = nurbs(tag, 5, 3, clamped(5, 3), {1, 2, 1, 2, 1});
  EXPECT_EQ(kx_mk_nurb_curve(c, 0, 0, 2, 0), 0);
  return c;
}

}  // namespace

TEST(curve_record, is_empty_when_created) {
  curve *c = kx_create_curve();
  expect_initial(c);
  for (list_hdr *list : kx::lists_of(*c)) EXPECT_TRUE(list && kx::empty(list));
  EXPECT_EQ(kx_purge_curve(c), 0);
  curv *v = kx_create_curv();
  const int32_t words[8] = {0, 0, 0, 1, 1, 0, 1, 0};
  EXPECT_TRUE(std::equal(words, words + 8, v->words));
  v->pointers[1] = kx_create_pnt_2d();
  kx_purge_curv(v);
}

TEST(curve_record, is_purged_and_cleared_by_the_kind_of_its_control_points) {
  for (int32_t tag : {KX_POLY_2D, KX_POLY_3D, KX_PNT_2D, KX_PNT_3D}) {
    const no_leaks all;
    const bool known = kx::is_polygon_point(tag);
    curve *c = full_curve(tag);
    if (!known) {
      EXPECT_EQ(kx_purge_curve(c), 9);
      EXPECT_TRUE(!c->ctrl_pnts && !c->curve_pnts && c->curve_stats->count == 10 && c->knots->count == 7);
    }
    EXPECT_EQ(kx_purge_curve(c), 0);
    c = full_curve(tag);
    EXPECT_EQ(kx_clear_curve(c, 0), known ? 4 : tag - 63);
    EXPECT_EQ(c->ctrl_pnts->count + c->curve_pnts->count, 0);
    EXPECT_EQ(c->curve_stats->count + c->knots->count, known ? 0 : 17);
    if (known) expect_initial(c);
    EXPECT_EQ(kx_clear_curve(c, 1), known ? 4 : -63);
    for (list_hdr *list : kx::lists_of(*c)) EXPECT_EQ(list == nullptr, known);
    EXPECT_EQ(kx_purge_curve(c), 0);
  }
}

TEST(curve_record, is_purged_with_lists_of_different_lengths) {
  for (int more : {0, 1}) {  // points without statistics beside them, then statistics without points
    const no_leaks all;
    curve *c = full_curve(KX_POLY_2D);
    kx::release(ll_delete_list_item(more ? c->curve_pnts : c->curve_stats, 1, 0));
    EXPECT_EQ(kx_purge_curve(c), 0);
    // an item that is no point: the samples before it go, the rest stays in good order
    c = full_curve(KX_POLY_2D);
    list_item *odd = more ? c->curve_pnts->head->next->next : c->curve_pnts->head;
    odd->datatype = KX_CURVE_STATS_2D;
    EXPECT_EQ(kx_purge_curve(c), 9);
    EXPECT_TRUE(c->curve_pnts->head == odd && c->curve_pnts->current == odd && !odd->prev);
    EXPECT_EQ(c->curve_pnts->count, more ? 8 : 10);
    odd->datatype = KX_POLY_2D;
    EXPECT_EQ(kx_purge_curve(c), 0);
  }
}

TEST(curve_record, is_copied_whole_or_not_at_all) {
  for (int32_t tag : {KX_POLY_2D, KX_PNT_3D}) {
    const owner c{full_curve(tag)}, copy{kx_copy_curve(c)};
    EXPECT_EQ(std::memcmp(c, copy, offsetof(curve, weights)), 0);
    const auto from = kx::lists_of(*c), to = kx::lists_of(*copy);
    for (int i = 0; i < 5; ++i) {
      ASSERT_EQ(to.list[i]->count, from.list[i]->count);
      for (const list_item *a = from.list[i]->head, *b = to.list[i]->head; a; a = a->next, b = b->next) {
        EXPECT_TRUE(a->datatype == b->datatype && a->data != b->data);
        EXPECT_EQ(std::memcmp(a->data, b->data, kx::record_size(a->datatype)), 0);
      }
    }
  }
  // record and lists; and two blocks each for 5 points, 7 knots, 5 weights, 10 samples and their statistics
  expect_all_or_nothing(
      [] {
        return things{{full_curve(KX_POLY_2D)}, {}};
      },
      [](things &all) { return all.keep(kx_copy_curve(all.curves[0])); }, 6 + 2 * 37);
}
