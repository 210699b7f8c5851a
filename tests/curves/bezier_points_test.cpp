// Points of Bezier curves, from arrays, from lists and one by one.
#include "bezier_reference.hpp"

using namespace curve_lists;

namespace {

constexpr int32_t kinds[] = {KX_PNT_2D, KX_POLY_2D, KX_PNT_3D, KX_POLY_3D};

}  // namespace

TEST(bezier_points, know_factorials) {
  for (int32_t n = 1; n <= 170; ++n) EXPECT_EQ(kx_bez_factorial(n), kx_bez_factorial(n - 1) * n);
  EXPECT_TRUE(std::isinf(kx_bez_factorial(171)) && std::isinf(kx_bez_factorial(INT32_MAX)));
  EXPECT_TRUE(kx_bez_factorial(-1) == 1 && kx_bez_factorial(0) == 1 && kx_bez_factorial(INT32_MIN) == 1);
}

TEST(bezier_points, agree_with_de_casteljau) {
  for (int32_t tag : kinds)
    for (int n : {3, 4, 11, 16, 29, 30}) {
      const bool space = kx::is_space_point(tag);
      const controls q = wave_controls(n, space);
      std::vector<double> ctrl;
      for (const control &c : q) {
        const auto *xyz = reinterpret_cast<const double *>(&c.p);
        ctrl.insert(ctrl.end(), xyz, xyz + (space ? 3 : 2));
      }
      const held list{points(tag, n)};
      for (int32_t n_out : {1, 2, 3, 7, 8, 9, 50, 1000}) {
        double *array = kx_beziercurve(ctrl.data(), space ? 51 : 50, n, n_out);
        int32_t made = n_out;
        const held out{kx_bezier_curve(list, n, &made)};
        ASSERT_TRUE(array && out && made == n_out && out->count == n_out);
        int32_t j = 0;
        for (const list_item &item : kx::items(out)) {
          const pnt_3d p = kx::read_point(item.data, item.datatype);
          EXPECT_EQ(item.datatype, space ? KX_POLY_3D : KX_POLY_2D);
          EXPECT_EQ(kx::read_seqnr(item.data, item.datatype), j);
          EXPECT_NEAR(distance(p, casteljau(q, n_out == 1 ? 0.0 : 1.0 * j / (n_out - 1))), 0.0, 1e-12 * n * n);
          const double *same = array + j++ * (space ? 3 : 2);
          EXPECT_TRUE(p.x == same[0] && p.y == same[1] && (!space || p.z == same[2]));
        }
        if (n_out == 2) EXPECT_TRUE(array[0] == ctrl[0] && array[space ? 3 : 2] == ctrl[ctrl.size() - (space ? 3 : 2)]);
        space ? kx_purge_pnt_3d_array(reinterpret_cast<pnt_3d *>(array))
              : kx_purge_pnt_2d_array(reinterpret_cast<pnt_2d *>(array));
      }
    }
}

TEST(bezier_points, answer_for_every_count) {
  const struct {
    int32_t n_ctrl, n_out, array, list, made;
  } cases[] = {{30, 2, 0, 0, 2},        {31, 2, 45, 45, 0},        {3, 2, 0, 0, 2},
               {2, 2, 46, 0, 0},        {-9, 2, 46, 0, 0},         {INT32_MIN, INT32_MAX, 46, 0, 0},
               {4, 0, 0, 0, 0},         {4, INT32_MIN, 0, 0, 0},   {INT32_MAX, 0, 45, 45, 0},
               {4, 1000001, -1, 47, 0}, {4, INT32_MAX, -1, 47, 0}, {4, 1000000, -2, 0, 1000000}};
  const std::vector<double> ctrl(99);
  std::vector<double> out(6);
  for (const auto &k : cases) {
    for (const auto fill : {kx_beziercurve2d, kx_beziercurve3d})
      EXPECT_TRUE(k.array < 0 || fill(ctrl.data(), k.n_ctrl, k.n_out, out.data()) == k.array) << &k - cases;
    double *array = kx_beziercurve(ctrl.data(), 50, k.n_ctrl, k.n_out);
    EXPECT_EQ(array != nullptr, (k.array == 0 || k.array == -2) && k.n_out >= 0);
    kx_purge_pnt_2d_array(reinterpret_cast<pnt_2d *>(array));
    const held list{points(KX_POLY_2D, 31)};
    for (const auto fill : {kx_bezier_curve_2d, kx_bezier_curve_3d}) {
      const held to{ll_create_list()};
      EXPECT_TRUE(k.made > 2 || (fill(list, k.n_ctrl, k.n_out, to) == k.list && to->count == k.made)) << &k - cases;
    }
    int32_t n = k.n_out;
    const held made{kx_bezier_curve(list, k.n_ctrl, &n)};
    EXPECT_TRUE((made != nullptr) == (k.list == 0) && n == (made ? k.made : k.n_out));
  }
}

TEST(bezier_points, read_a_longer_list_from_both_ends) {
  const held list{points(KX_POLY_2D, 5)}, out{ll_create_list()};
  EXPECT_EQ(kx_bezier_curve_2d(list, 3, 3, out), 0);  // items 2 3 4 up to the half, items 0 1 2 behind it
  const double x[] = {2, 3, 2};
  for (int i = 0; i < 3; ++i) EXPECT_EQ(+records<poly_2d>(out)[static_cast<size_t>(i)].x, x[i]);
}

TEST(bezier_points, give_single_points) {
  pnt_2d flat[20];
  pnt_3d full[20];
  for (int i = 0; i < 20; ++i) full[i] = wave(i), flat[i] = {wave(i).x, wave(i).y};
  for (int32_t degree : {0, 1, 7, 15})
    for (double t : {-0.5, 0.0, 0.3, 1.0, 1.5}) {
      controls q = wave_controls(4 + degree + 1, true);
      q.erase(q.begin(), q.begin() + 4);
      const pnt_3d want = casteljau(q, t);
      pnt_3d *p = kx_bezier_pnt_3d(full, 4, degree, t);
      pnt_2d *v = kx_bezier_pnt_2d(flat, 4, degree, t);
      const double scale = 1e-13 * std::pow(4.0, degree) * (t < 0 || t > 1) + 1e-13;
      EXPECT_NEAR(distance(*p, want), 0.0, scale * 100);
      EXPECT_TRUE(v->x == p->x && v->y == p->y);
      kx_purge_pnt_3d(p), kx_purge_pnt_2d(v);
    }
  for (const auto &[first, degree] : {std::pair{0, 16}, {0, -1}, {-1, 3}, {0, INT32_MAX}})
    EXPECT_TRUE(!kx_bezier_pnt_2d(flat, first, degree, 0.5) && !kx_bezier_pnt_3d(full, first, degree, 0.5));
}
