// Bezier pieces fitted to points, and the tangents they use.
#include <random>

#include "bezier_reference.hpp"
#include "every_kind.hpp"

using namespace curve_lists;

namespace {

using path = std::vector<pnt_3d>;

list_hdr *list_of(const path &points, int32_t tag) {
  list_hdr *list = ll_create_list();
  for (const pnt_3d &p : points) ll_add_list_item(list, 1, kx::create_point(tag, p, 0), tag);
  return list;
}

// The distance of a point from the nearest of the pieces, by the measure of curves, which reaches less far.
double distance_from(const std::vector<controls> &pieces, const pnt_3d &p, double unit) {
  const auto scaled = [=](const pnt_3d &q) { return pnt_3d{q.x / unit, q.y / unit, q.z / unit}; };
  double nearest = INFINITY, distance;
  for (const controls &q : pieces) {
    const owner c{every_kind::make(86, {scaled(q[0].p), scaled(q[1].p), scaled(q[2].p), scaled(q[3].p)}, 3)};
    const pnt_3d from = scaled(p);
    EXPECT_EQ(kx_curve_closest_3d(c, &from, nullptr, nullptr, &distance), 0);
    nearest = std::min(nearest, distance * unit);
  }
  return nearest;
}

// What a fit leaves.
struct fitted {
  int32_t code;
  std::vector<controls> pieces;
};

fitted fit(const path &points, double tolerance, int32_t tag) {
  list_hdr *list = list_of(points, tag), *made = ll_create_list();
  fitted f{kx_fit_bezcurve(list, tolerance, made), {}};
  const controls all = read_controls(made);
  EXPECT_EQ(all.size() % 4, 0u);
  for (auto at = all.begin(); at != all.end(); at += 4) f.pieces.push_back({at, at + 4});
  EXPECT_EQ(kx_purge_polygon(list) + kx_purge_polygon(made), 0);
  return f;
}

path along(int n, pnt_3d (*at)(double)) {
  path points;
  for (int i = 0; i <= n; ++i) points.push_back(at(1.0 * i / n));
  return points;
}

pnt_3d circle(double t) { return {5 * std::cos(6.283185307179586 * t), 5 * std::sin(6.283185307179586 * t), 0}; }
pnt_3d helix(double t) { return {std::cos(12 * t), std::sin(12 * t), 3 * t}; }
pnt_3d wiggle(double t) { return {10 * t, std::sin(20 * t * t), std::cos(9 * t)}; }
pnt_3d square(double t) {
  const auto ramp = [t](double from) { return std::clamp(4 * t - from, 0.0, 1.0); };
  return {ramp(0) - ramp(2), ramp(1) - ramp(3), 0};
}
pnt_3d cubic(double t) {
  const double s = 1 - t;
  return {15 * s * t * t + 5 * t * t * t, 9 * s * t, 3 * s * t * (s - t) + 2 * t * t * t};
}
pnt_3d there_and_back(double t) { return {t < 0.5 ? t : 1 - t, 0, 0}; }

}  // namespace

TEST(bezier_fitting, stays_within_its_tolerance) {
  const struct {
    path points;
    double tolerance;
    size_t most_pieces;
  } cases[] = {{along(200, circle), 1e-2, 4},
               {along(200, circle), 1e-4, 16},
               {along(300, wiggle), 1e-3, 18},
               {along(60, wiggle), 0.2, 8},
               {along(60, wiggle), 1e-5, 60},
               {along(200, square), 1e-3, 12},
               {along(100, there_and_back), 1e-6, 8},
               {along(1, wiggle), 0.0, 1},
               {along(2000, cubic), 1e-6, 1},
               {along(2, circle), 1e-9, 2},
               {along(40, wiggle), 0.0, 40},
               {{{0, 0, 0}, {1e-9, 0, 0}, {1e-9, 1e-9, 1e-9}}, 1e-12, 2},
               {{{1e99, 0, 0}, {0, 1e99, 0}, {-1e99, 0, 0}, {0, -1e99, 5}}, 1e80, 3}};
  for (const auto &k : cases)
    for (int32_t tag : {KX_PNT_2D, KX_POLY_2D, KX_PNT_3D, KX_POLY_3D}) {
      path points = k.points;
      if (kx::is_plane_point(tag))
        for (pnt_3d &p : points) p.z = 0;
      const fitted f = fit(points, k.tolerance, tag);
      ASSERT_EQ(f.code, 0);
      const double extent = distance(points[0], points[points.size() / 2]);
      for (size_t i = 0; i < points.size(); i += 9)
        EXPECT_LE(distance_from(f.pieces, points[i], extent > 1e50 ? 1e80 : 1.0),
                  k.tolerance * (1 + 1e-9) + 1e-13 * extent)
            << &k - cases;
      EXPECT_TRUE(!f.pieces.empty() && f.pieces.size() <= k.most_pieces) << &k - cases << ' ' << f.pieces.size();
      EXPECT_TRUE(distance(f.pieces[0][0].p, points[0]) == 0 && distance(f.pieces.back()[3].p, points.back()) == 0);
    }
}

TEST(bezier_fitting, joins_its_pieces_with_one_tangent) {
  for (const path &points : {along(200, circle), along(300, wiggle), along(200, square), along(300, helix)}) {
    const fitted f = fit(points, 1e-3, KX_POLY_3D);
    EXPECT_GT(f.pieces.size(), 2u);
    for (size_t i = 0; i + 1 < f.pieces.size(); ++i) {
      const pnt_3d a = f.pieces[i][2].p, b = f.pieces[i][3].p, c = f.pieces[i + 1][0].p, d = f.pieces[i + 1][1].p;
      EXPECT_EQ(distance(b, c), 0.0);
      const kx::vec3 in = kx::unit(kx::space::read(b) - kx::space::read(a)),
                     out = kx::unit(kx::space::read(d) - kx::space::read(c));
      EXPECT_NEAR(kx::length(in - out), 0.0, 1e-9);
    }
  }
}

TEST(bezier_fitting, ends_for_wild_points) {
  std::mt19937 random(5);
  path points;
  for (int i = 0; i < 100000; ++i)
    points.push_back({static_cast<double>(random()), static_cast<double>(random()), i % 7 == 0 ? NAN : 0.0});
  list_hdr *list = list_of(points, KX_POLY_2D), *made = ll_create_list();
  for (const list_item &item : kx::items(list)) kx::write_seqnr(item.data, 3);
  EXPECT_EQ(kx_fit_bezcurve(list, 0.0, made), 0);
  EXPECT_TRUE(made->count >= 4 * 50000 && made->count <= 4 * 99999 && made->current == made->head);
  EXPECT_EQ(kx_purge_polygon(list) + kx_purge_polygon(made), 0);
  EXPECT_EQ(fit(points, 1.0, KX_POLY_3D).code, 3);
}

TEST(bezier_fitting, refuses_what_it_cannot_fit) {
  const path two = {{0, 0, 0}, {1, 0, 0}}, same = {{1, 1, 0}, {1, 1, 0}, {1, 1, 0}},
             far = {{0, 0, 0}, {0, -1.1e100, 0}};
  const struct {
    path points;
    double tolerance;
    int32_t tag, code;
  } cases[] = {{two, 0, KX_POLY_2D, 0},     {{}, 1, KX_POLY_2D, 1},   {same, 1, KX_POLY_3D, 1},
               {{two[0]}, 1, KX_PNT_2D, 1}, {two, -1, KX_POLY_2D, 2}, {two, NAN, KX_PNT_3D, 2},
               {far, 1, KX_POLY_2D, 3}};
  for (const auto &k : cases) EXPECT_EQ(fit(k.points, k.tolerance, k.tag).code, k.code) << &k - cases;
  expect_all_or_nothing(
      [] {
        return things{{}, {points(KX_POLY_2D, 2), points(KX_POLY_2D, 1)}};
      },
      [](things &a) { return kx_fit_bezcurve(a.lists[0], 0.0, a.lists[1]); }, 10);
}

TEST(bezier_fitting, computes_tangents) {
  const pnt_2d p[] = {{0, 0}, {3, 4}, {3, 9}, {0, 0}, {3, 9}, {3, 9 + 5e-8}};
  const double s = std::sqrt(0.5 * 0.5);
  const struct {
    int32_t i, mode, code;
    double x, y;
  } cases[] = {{0, 0, 0, 0.6, 0.8}, {1, 1, 0, -0.6, -0.8}, {1, 2, 0, -3 / std::sqrt(90.0), -9 / std::sqrt(90.0)},
               {3, 2, 0, 0, 0},     {4, 0, 0, 0, 5e-8},    {1, 3, 1, 7, 7},
               {1, -1, -3, 7, 7},   {5, 1, 0, 0, -5e-8},   {2, 0, 0, -3 / std::sqrt(90.0), -9 / std::sqrt(90.0)}};
  for (const auto &k : cases) {
    pnt_2d out = {7, 7};
    EXPECT_EQ(kx_compute_bez_tangent(p, k.i, k.mode, &out), k.code);
    EXPECT_NEAR(std::hypot(out.x - k.x, out.y - k.y), 0.0, s * 1e-14) << k.i << ' ' << k.mode;
  }
  pnt_2d out;
  EXPECT_TRUE(kx_compute_bez_tangent(p, -1, 0, &out) == 40 && kx_compute_bez_tangent(p, 0, 1, &out) == 40);
}
