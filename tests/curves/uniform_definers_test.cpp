// Uniform definers: basis, type, ownership.
#include "curve_lists.hpp"
#include "support/faults.hpp"

using namespace curve_lists;

namespace {

struct kind {
  int32_t(KX_CALL *plane)(list_hdr *, curve *);
  curve *(KX_CALL *space)(list_hdr *);
  curve *(KX_CALL *dispatch)(list_hdr *);
  int32_t code, left_count;  // what the caller's header of 6 points counts afterwards
  double start[4], end[4];   // shares of the four control points at t = 0 and t = 1
};

const kind kinds[] = {
    {kx_def_ubspl_curve2d,
     kx_def_ubspl_curve3d,
     kx_def_ubspl_curve,
     83,
     0,
     {1 / 6.0, 4 / 6.0, 1 / 6.0, 0},
     {0, 1 / 6.0, 4 / 6.0, 1 / 6.0}},
    {kx_def_ubezier_curve2d, kx_def_ubezier_curve3d, kx_def_ubezier_curve, 85, 6, {1, 0, 0, 0}, {0, 0, 0, 1}},
    {kx_def_ucatrom_curve2d, kx_def_ucatrom_curve3d, kx_def_ucatrom_curve, 87, 6, {0, 1, 0, 0}, {0, 0, 1, 0}}};

}  // namespace

TEST(uniform_definers, write_the_basis_of_the_kind) {
  for (const kind &k : kinds) {
    list_hdr *list = points(KX_POLY_3D, 6);
    curve *c = uniform(k.plane, 6), *s = k.space(list);
    EXPECT_EQ(s->curve_type, k.code + 1);
    EXPECT_EQ(list->count, k.left_count);
    double basis[16];
    std::memcpy(basis, c->basis, sizeof basis);
    EXPECT_EQ(std::memcmp(basis, s->basis, sizeof basis), 0);
    for (int row = 0; row < 4; ++row) {
      const double *b = basis + 4 * row, *column = basis + row;
      EXPECT_NEAR(b[0] + b[1] + b[2] + b[3], row == 3, 1e-15);  // the shares sum to 1 at every t
      EXPECT_NEAR(column[12], k.start[row], 1e-15);
      EXPECT_NEAR(column[0] + column[4] + column[8] + column[12], k.end[row], 1e-15);
    }
    free_curve(c);
    free_curve(s);
    EXPECT_EQ(ll_purge_list(list), 0);
  }
}

TEST(uniform_definers, take_over_the_items) {
  for (const kind &k : kinds) {
    list_hdr *list = points(KX_POLY_2D, 6);
    const list_hdr before = *list;
    curve *c = uniform(k.plane, 5);  // whose points are freed now
    EXPECT_EQ(k.plane(list, c), 0);
    EXPECT_EQ(c->curve_type, k.code);
    EXPECT_EQ(c->degree, k.code == 85 ? 5 : 0);
    EXPECT_EQ(std::memcmp(c->ctrl_pnts, &before, sizeof before), 0);
    EXPECT_TRUE(!list->head && !list->tail && !list->current);
    EXPECT_EQ(list->count, k.left_count);
    EXPECT_EQ(k.plane(c->ctrl_pnts, c), 0);  // its own list
    EXPECT_EQ(c->ctrl_pnts->count, 6);
    EXPECT_EQ(k.plane(list, c), 0);  // an empty list now, whatever its count
    EXPECT_EQ(c->ctrl_pnts->count, 0);
    EXPECT_EQ(k.plane(nullptr, c), 40);
    EXPECT_EQ(k.plane(list, nullptr), 40);
    EXPECT_EQ(k.space(nullptr), nullptr);
    EXPECT_EQ(k.dispatch(nullptr), nullptr);
    EXPECT_EQ(ll_purge_list(list), 0);
    free_curve(c);
  }
  for (int n : {0, 1, 2, 31, 32, 40}) {
    curve *c = uniform(kx_def_ubezier_curve2d, n);
    EXPECT_EQ(c->degree, std::clamp(n - 1, 0, 30));
    free_curve(c);
  }
}

TEST(uniform_definers, dispatch_by_datatype_and_code) {
  for (const kind &k : kinds) {
    for (int32_t tag : {KX_PNT_2D, KX_POLY_2D, KX_PNT_3D, KX_POLY_3D, KX_RNUMBER}) {
      for (int32_t code : {k.code, k.code + 1, 0, 89, 90}) {  // 0: straight to the kind's dispatcher
        faults::watch();
        list_hdr *list = tag == KX_RNUMBER ? numbers({1, 2}) : points(tag, 4);
        curve *c = code ? kx_def_ucurve(list, code) : k.dispatch(list);
        EXPECT_EQ(c ? c->curve_type : 0, kx::is_plane_point(tag) && code < 89 ? k.code : 0);
        EXPECT_EQ(kx::empty(list), tag != KX_RNUMBER && code < 89);  // points in space are taken over, and gone
        free_curve(c);
        ll_purge_all_items(list);
        faults::unwatch();
        EXPECT_EQ(faults::live_blocks(), 0);
      }
    }
  }
}

TEST(uniform_definers, leave_the_list_when_memory_runs_out) {
  for (const kind &k : kinds) {
    for (const auto make : {k.space, k.dispatch}) {
      const auto setup = [&] { return points(make == k.space ? KX_POLY_3D : KX_POLY_2D, 4); };
      EXPECT_EQ(faults::fail_each_allocation(setup, make,
                                             [](int n, list_hdr *list, curve *c) {
                                               EXPECT_TRUE((c == nullptr) == (n > 0) && kx::empty(list) == (n == 0));
                                               free_curve(c);
                                               ll_purge_all_items(list);
                                             }),
                6);
    }
    const auto without_lists = [] {
      std::pair in{points(KX_POLY_2D, 4), kx_create_curve()};
      kx_clear_curve(in.second, 1);
      return in;
    };
    const auto define = [&](auto in) { return k.plane(in.first, in.second); };
    EXPECT_EQ(faults::fail_each_allocation(without_lists, define,
                                           [](int n, auto in, int32_t code) {
                                             EXPECT_TRUE(code == (n > 0 ? 80 : 0) && kx::empty(in.first) == (n == 0));
                                             free_curve(in.second);
                                             ll_purge_all_items(in.first);
                                           }),
              1);
  }
}
