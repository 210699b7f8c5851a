// Uniform definers: basis, type, ownership.
#include "curve_lists.hpp"

using namespace curve_lists;

namespace {

struct kind {
  int32_t(KX_CALL *plane)(list_hdr *, curve *);
  curve *(KX_CALL *space)(list_hdr *);
  curve *(KX_CALL *dispatch)(list_hdr *);
  int32_t code, left_count;  // what the caller's header of 6 points counts afterwards
  double start[4], end[4];   // shares of the four control points at t = 0 and t = 1
};

constexpr double a = 1 / 6.0, b = 4 / 6.0;
const kind kinds[] = {
    {kx_def_ubspl_curve2d, kx_def_ubspl_curve3d, kx_def_ubspl_curve, 83, 0, {a, b, a, 0}, {0, a, b, a}},
    {kx_def_ubezier_curve2d, kx_def_ubezier_curve3d, kx_def_ubezier_curve, 85, 6, {1, 0, 0, 0}, {0, 0, 0, 1}},
    {kx_def_ucatrom_curve2d, kx_def_ucatrom_curve3d, kx_def_ucatrom_curve, 87, 6, {0, 1, 0, 0}, {0, 0, 1, 0}}};

}  // namespace

TEST(uniform_definers, write_the_basis_and_take_over_the_items) {
  for (const kind &k : kinds) {
    const held list{points(KX_POLY_2D, 6)}, in_space{points(KX_POLY_3D, 6)};
    const list_hdr before = *list.list;
    const owner c{uniform(k.plane, 5)}, s{k.space(in_space)};  // the first one's points are freed now
    EXPECT_EQ(k.plane(list, c), 0);
    EXPECT_TRUE(c->curve_type == k.code && s->curve_type == k.code + 1 && c->degree == (k.code == 85 ? 5 : 0));
    EXPECT_EQ(std::memcmp(c->ctrl_pnts, &before, sizeof before), 0);
    EXPECT_TRUE(!list->head && !list->tail && !list->current);
    EXPECT_TRUE(list->count == k.left_count && in_space->count == k.left_count);
    double basis[16];
    std::memcpy(basis, c->basis, sizeof basis);
    EXPECT_EQ(std::memcmp(basis, s->basis, sizeof basis), 0);
    for (int row = 0; row < 4; ++row) {
      const double *r = basis + 4 * row, *column = basis + row;
      EXPECT_NEAR(r[0] + r[1] + r[2] + r[3], row == 3, 1e-15);  // the shares sum to 1 at every t
      EXPECT_NEAR(column[12], k.start[row], 1e-15);
      EXPECT_NEAR(column[0] + column[4] + column[8] + column[12], k.end[row], 1e-15);
    }
    EXPECT_TRUE(k.plane(c->ctrl_pnts, c) == 0 && c->ctrl_pnts->count == 6);  // its own list
    EXPECT_TRUE(k.plane(list, c) == 0 && c->ctrl_pnts->count == 0);          // an empty list now, whatever its count
  }
  for (int n : {0, 1, 2, 31, 32, 40}) {
    const owner c{uniform(kx_def_ubezier_curve2d, n)};
    EXPECT_EQ(c->degree, std::clamp(n - 1, 0, 30));
  }
}

TEST(uniform_definers, dispatch_by_datatype_and_code) {
  for (const kind &k : kinds) {
    for (int32_t tag : {KX_PNT_2D, KX_POLY_2D, KX_PNT_3D, KX_POLY_3D, KX_RNUMBER}) {
      for (int32_t code : {k.code, k.code + 1, 0, 89, 90}) {  // 0: straight to the kind's dispatcher
        const no_leaks all;
        const held list{tag == KX_RNUMBER ? numbers({1, 2}) : points(tag, 4)};
        const owner c{code ? kx_def_ucurve(list, code) : k.dispatch(list)};
        EXPECT_EQ(c ? c->curve_type : 0, kx::is_plane_point(tag) && code < 89 ? k.code : 0);
        EXPECT_EQ(kx::empty(list), tag != KX_RNUMBER && code < 89);  // points in space are taken over, and gone
      }
    }
  }
}

TEST(uniform_definers, leave_the_list_when_memory_runs_out) {
  for (const kind &k : kinds) {
    for (const auto make : {k.space, k.dispatch})
      expect_all_or_nothing(
          [&] {
            return things{{}, {points(make == k.space ? KX_POLY_3D : KX_POLY_2D, 4)}};
          },
          [&](things &all) { return all.keep(make(all.lists[0])); }, 6);
    const auto without_lists = [] {
      curve *c = kx_create_curve();
      kx_clear_curve(c, 1);
      return things{{c}, {points(KX_POLY_2D, 4)}};
    };
    expect_all_or_nothing(
        without_lists, [&](things &all) { return k.plane(all.lists[0], all.curves[0]); }, 1);
  }
}
