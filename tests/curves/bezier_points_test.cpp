// Points of Bezier curves, from arrays, from lists and one by one.
#include <cfenv>
#include <memory>

#include "bezier_reference.hpp"

using namespace curve_lists;

namespace {

constexpr int32_t kinds[] = {KX_PNT_2D, KX_POLY_2D, KX_PNT_3D, KX_POLY_3D};

struct list_owner {
  list_hdr *list;
  ~list_owner() { EXPECT_TRUE(list == nullptr || kx_purge_polygon(list) == 0); }
  operator list_hdr *() const { return list; }
  list_hdr *operator->() const { return list; }
};

std::vector<double> flat(const controls &q, bool space) {
  std::vector<double> values;
  for (const control &c : q) {
    values.insert(values.end(), {c.p.x, c.p.y});
    if (space) values.push_back(c.p.z);
  }
  return values;
}

}  // namespace

TEST(bezier_points, know_factorials) {
  const double values[] = {1,     1,      2,       6,        24,        120,        720,        5040,
                           40320, 362880, 3628800, 39916800, 479001600, 6227020800, 87178291200};
  for (int32_t n = 0; n < 15; ++n) EXPECT_EQ(kx_bez_factorial(n), values[n]);
  for (int32_t n = 15; n <= 170; ++n) EXPECT_EQ(kx_bez_factorial(n), kx_bez_factorial(n - 1) * n);
  EXPECT_TRUE(std::isinf(kx_bez_factorial(171)) && std::isinf(kx_bez_factorial(INT32_MAX)));
  EXPECT_TRUE(kx_bez_factorial(-1) == 1 && kx_bez_factorial(INT32_MIN) == 1);
}

TEST(bezier_points, agree_with_de_casteljau) {
  for (int32_t tag : kinds)
    for (int n : {3, 4, 11, 16, 29, 30}) {
      const bool space = kx::is_space_point(tag);
      const controls q = wave_controls(n, space);
      const std::vector<double> ctrl = flat(q, space);
      const list_owner list{points(tag, n)};
      for (int32_t n_out : {1, 2, 3, 7, 8, 9, 50, 1000}) {
        std::feclearexcept(FE_ALL_EXCEPT);
        double *array = kx_beziercurve(ctrl.data(), space ? 51 : 50, n, n_out);
        int32_t made = n_out;
        const list_owner out{kx_bezier_curve(list, n, &made)};
        EXPECT_FALSE(std::fetestexcept(FE_DIVBYZERO | FE_INVALID | FE_OVERFLOW));
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
        if (n_out == 2)
          for (size_t k = 0, d = space ? 3 : 2; k < d; ++k)
            EXPECT_TRUE(array[k] == ctrl[k] && array[d + k] == ctrl[ctrl.size() - d + k]);
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
    const list_owner list{points(KX_POLY_2D, 31)};
    for (const auto fill : {kx_bezier_curve_2d, kx_bezier_curve_3d}) {
      const list_owner to{ll_create_list()};
      EXPECT_TRUE(k.made > 2 || (fill(list, k.n_ctrl, k.n_out, to) == k.list && to->count == k.made)) << &k - cases;
    }
    int32_t n = k.n_out;
    const list_owner made{kx_bezier_curve(list, k.n_ctrl, &n)};
    EXPECT_TRUE((made != nullptr) == (k.list == 0) && n == (made ? k.made : k.n_out));
  }
}

TEST(bezier_points, refuse_what_is_no_curve) {
  const list_owner list{points(KX_POLY_2D, 4)}, none{ll_create_list()};
  const lists other(KX_POLY_2D, 0, 5, 0);
  double value[8] = {};
  int32_t n = 2;
  EXPECT_TRUE(kx_beziercurve2d(nullptr, 3, 2, value) == 40 && kx_beziercurve3d(value, 3, 2, nullptr) == 40);
  EXPECT_TRUE(!kx_beziercurve(nullptr, 50, 3, 2) && !kx_beziercurve(value, 62, 3, 2));
  EXPECT_TRUE(kx_bezier_curve_2d(nullptr, 31, 2, none) == 40 && kx_bezier_curve_3d(list, 4, 2, nullptr) == 40);
  EXPECT_TRUE(kx_bezier_curve_2d(list, 5, 2, none) == 40 && kx_bezier_curve_2d(none, 3, 2, none) == 40);
  EXPECT_TRUE(kx_bezier_curve_2d(other.knots, 4, 2, none) == 40 && kx_bezier_curve_3d(other.knots, 4, 2, none) == 40);
  EXPECT_TRUE(!kx_bezier_curve(nullptr, 3, &n) && !kx_bezier_curve(list, 4, nullptr) && !kx_bezier_curve(none, 3, &n));
  EXPECT_TRUE(!kx_bezier_curve(other.knots, 4, &n) && !kx_bezier_curve(list, 5, &n) && n == 2 && none->count == 0);
  EXPECT_EQ(kx_purge_polygon(other.ctrl), 0);
  ll_purge_all_items(other.knots), ll_purge_list(other.weights);
}

TEST(bezier_points, read_a_longer_list_from_both_ends) {
  const list_owner list{points(KX_POLY_2D, 5)}, out{ll_create_list()};
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
      const std::unique_ptr<pnt_3d, void(KX_CALL *)(pnt_3d *)> p(kx_bezier_pnt_3d(full, 4, degree, t), kx_purge_pnt_3d);
      const std::unique_ptr<pnt_2d, void(KX_CALL *)(pnt_2d *)> v(kx_bezier_pnt_2d(flat, 4, degree, t), kx_purge_pnt_2d);
      const double scale = 1e-13 * std::pow(4.0, degree) * (t < 0 || t > 1) + 1e-13;
      EXPECT_NEAR(distance(*p, want), 0.0, scale * 100);
      EXPECT_TRUE(v->x == p->x && v->y == p->y);
    }
  for (const auto &[first, degree] : {std::pair{0, 16}, {0, -1}, {-1, 3}, {0, INT32_MAX}})
    EXPECT_TRUE(!kx_bezier_pnt_2d(flat, first, degree, 0.5) && !kx_bezier_pnt_3d(full, first, degree, 0.5));
  EXPECT_TRUE(!kx_bezier_pnt_2d(nullptr, 0, 1, 0.5) && !kx_bezier_pnt_3d(nullptr, 0, 1, 0.5));
}

TEST(bezier_points, leave_nothing_behind_without_memory) {
  static const double ctrl[12] = {};
  static int32_t n_out;
  const auto none = [] { return points(KX_POLY_3D, 4); };
  const auto check = [](int n, list_hdr *list, void *made) {
    EXPECT_TRUE((made == nullptr) == (n > 0) && faults::messages().size() == (n > 0 ? 1u : 0u));
    kx::release(made), kx_purge_polygon(list);
  };
  const auto list_check = [](int n, list_hdr *list, list_hdr *made) {
    EXPECT_TRUE((made == nullptr) == (n > 0) && n_out == 3);
    for (list_hdr *each : {list, made}) EXPECT_TRUE(!each || kx_purge_polygon(each) == 0);
  };
  EXPECT_EQ(faults::fail_each_allocation(
                none, [](list_hdr *) { return kx_beziercurve(ctrl, 51, 4, 9); }, check),
            1);
  EXPECT_EQ(
      faults::fail_each_allocation(
          none, [](list_hdr *) { return kx_bezier_pnt_2d(reinterpret_cast<const pnt_2d *>(ctrl), 1, 2, 0.1); }, check),
      1);
  EXPECT_EQ(faults::fail_each_allocation(
                none, [](list_hdr *list) { return kx_bezier_curve(list, 4, &(n_out = 3)); }, list_check),
            7);
}
