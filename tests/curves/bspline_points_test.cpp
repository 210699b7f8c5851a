// Uniform B-splines from list to list, and what all samplers of blended points have in common.
#include "curve_lists.hpp"

using namespace curve_lists;

namespace {

constexpr int32_t kinds[] = {KX_PNT_2D, KX_POLY_2D, KX_PNT_3D, KX_POLY_3D};

struct sampler {
  int32_t least, at_4;  // the fewest points, and how many come of 4 points at resolution 6
  list_hdr *(*sample)(int32_t n, const list_hdr *points, int32_t resolution, int32_t *count);
  int32_t (*into)(bool plane, int32_t n, const list_hdr *points, int32_t *count, list_hdr *out);
};
const sampler samplers[] = {
    {4, 3, [](int32_t n, const list_hdr *p, int32_t r, int32_t *c) { return kx_catrom_curve(n, p, r, 0.5, c); },
     [](bool plane, int32_t n, const list_hdr *p, int32_t *c, list_hdr *out) {
       return (plane ? kx_catrom_curve_2d : kx_catrom_curve_3d)(n, p, 6, 0.5, c, out);
     }},
    {4, 3, [](int32_t n, const list_hdr *p, int32_t r, int32_t *c) { return kx_bspline_curve(n, p, r, c); },
     [](bool plane, int32_t n, const list_hdr *p, int32_t *c, list_hdr *out) {
       return (plane ? kx_bspline_2d : kx_bspline_3d)(n, p, 6, c, out);
     }},
    {3, 5, [](int32_t n, const list_hdr *p, int32_t r, int32_t *c) { return kx_quad_bspline(n, p, r, c); },
     [](bool plane, int32_t n, const list_hdr *p, int32_t *c, list_hdr *out) {
       return (plane ? kx_quad_bspline_2d : kx_quad_bspline_3d)(n, p, 6, c, out);
     }},
    {2, 7, [](int32_t n, const list_hdr *p, int32_t r, int32_t *c) { return kx_bspline_spep(n, p, r, c); }, nullptr}};

}  // namespace

TEST(bspline_points, lie_on_the_curve) {
  for (int p : {2, 3})
    for (int32_t tag : kinds) {
      const held list{points(tag, 9 - p)}, knots{numbers({0, 1, 2, 3, 4, 5, 6, 7})};
      int32_t count = -1;
      const held out{(p == 2 ? kx_quad_bspline : kx_bspline_curve)(9 - p, list, 4, &count)};
      const owner c{kx_def_nubspl_curve(list, knots, p, 1)};
      const auto is = coordinates(out);
      ASSERT_TRUE(count == 10 * (9 - 2 * p) + 1 && out->count == count);
      for (int i = 0; i < count; ++i) {
        pnt_3d want;
        EXPECT_EQ(kx_eval_pointoncurve(c, p - 1 + 0.1 * i, &want), 0);
        EXPECT_NEAR(kx::length(is[static_cast<size_t>(i)] - kx::space::read(want)), 0.0, 1e-12) << p << ' ' << i;
      }
    }
}

TEST(bspline_points, begin_and_end_at_the_ends) {
  for (int n : {2, 3, 8}) {
    const held list{points(KX_POLY_3D, n)}, out{kx_bspline_spep(n, list, 0, nullptr)};
    const auto ctrl = coordinates(list), is = coordinates(out);
    ASSERT_EQ(is.size(), static_cast<size_t>(100 * (n - 1) + 1));
    EXPECT_TRUE(kx::length(is[0] - ctrl[0]) == 0.0 && kx::length(is.back() - ctrl.back()) == 0.0);
    EXPECT_NEAR(kx::length(100.0 * (is[1] - is[0]) - (ctrl[1] - ctrl[0])), 0.0, 2e-3);
    for (size_t i = 1; i + 1 < is.size(); ++i)  // no kink where the mirrored points meet the others
      EXPECT_LT(kx::length(is[i + 1] - 2.0 * is[i] + is[i - 1]), 1.1e-4 * n);
  }
}

TEST(bspline_points, are_refused_or_made_whole) {
  for (const sampler &s : samplers) {
    for (int32_t tag : kinds) {
      const held list{points(tag, 4)};
      for (int32_t n : {INT32_MIN, -1, 0, s.least - 1, s.least, 4, 5, INT32_MAX}) {
        int32_t count = -1;
        const held out{s.sample(n, list, 6, &count)};
        EXPECT_EQ(out != nullptr, n >= s.least && n <= 4);
        EXPECT_EQ(count, out ? out->count : 0);
        if (n == 4) EXPECT_EQ(count, s.at_4);
        if (s.into == nullptr) continue;
        const held given{points(KX_POLY_2D, 2)};
        EXPECT_EQ(s.into(kx::is_plane_point(tag), n, list, nullptr, given), out ? 0 : 33);
        EXPECT_EQ(given->count, out ? 2 + count : 2);
      }
      const int32_t steps[] = {100, 50, 25, 20, 10, 5, 2, 20, 20};
      for (int32_t r : {0, 1, 2, 3, 4, 5, 6, 99, -1}) {
        const held out{s.sample(4, list, r, nullptr)};
        EXPECT_EQ(out->count, steps[r < 0 || r > 7 ? 7 : r] * (s.at_4 / 2) + 1);
        EXPECT_EQ(kx::datatype(out), kx::is_plane_point(tag) ? KX_POLY_2D : KX_POLY_3D);
        EXPECT_EQ(kx::read_seqnr(out->tail->data, KX_POLY_2D), out->count - 1);
      }
    }
    const held list{points(KX_POLY_2D, 4)}, numbered{numbers({1, 2, 3, 4})}, out{points(KX_POLY_2D, 2)};
    EXPECT_EQ(s.sample(4, numbered, 6, nullptr), nullptr);
    list->head->next->datatype = KX_RNUMBER;  // too short for a point
    EXPECT_EQ(s.sample(4, list, 6, nullptr), nullptr);
    EXPECT_TRUE(s.into == nullptr || (s.into(true, 4, list, nullptr, out) == 40 && kx::empty(out)));
    list->head->next->datatype = 700;  // a host's own vertex
    list->tail->datatype = KX_PNT_2D;  // one kind beside another
    EXPECT_EQ((held{s.sample(4, list, 6, nullptr)})->count, s.at_4);
  }
}
