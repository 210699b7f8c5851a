#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "kxgeom/transform.h"
#include "list/items.hpp"
#include "list/point_kind.hpp"
#include "records/vector.hpp"
#include "support/faults.hpp"

namespace {

constexpr double pi = std::numbers::pi;

pnt_3d seen(const sphercoord &viewer, const pnt_3d &p) {
  double m[16];
  pnt_3d out;
  kx_getidmatrix3d(m);
  kx_translatematrix3d(1, 2, 3, m);  // p is given so far off
  kx_viewmatrix3d(&viewer, m);
  kx_transformpnt3d(m, &p, &out);
  return out;
}

TEST(Viewing, MatrixIsThatOfLookingAtTheOrigin) {
  const double thetas[] = {-7,  -1e-8,    0,   1,      pi / 2 - 1e-5, pi / 2, pi / 2 + 1e-5, 2, pi,
                           4.7, 1.5 * pi, 5.5, 2 * pi, 2 * pi + 0.1,  1e9};
  for (const double theta : thetas) {
    for (const double phi : {0.0, 1e-8, 1.0, pi / 2, 2.5, pi, -0.5, 8.0}) {
      for (const double r : {5.0, 0.0}) {
        const bool upright = std::fabs(theta) <= 1e-7;
        double t = theta;
        if (upright && phi <= 1e-7 && phi >= 0) t = -pi / 2;
        if (upright && phi == pi) t = 1.5 * pi;
        const kx::vec3 eye{std::sin(phi) * std::cos(theta), std::sin(phi) * std::sin(theta), std::cos(phi)};
        const kx::vec3 right{-std::sin(t), std::cos(t), 0}, up = cross(eye, right);
        const kx::vec3 p{4, -3, 2};
        const pnt_3d got = seen({r, theta, phi}, {p.x - 1, p.y - 2, p.z - 3});
        const double slack = std::fabs(theta) > 100 ? 0.03 : 1e-7;  // whole turns of 6.2831853072
        EXPECT_NEAR(got.x, dot(p, right), slack) << theta << " " << phi;
        EXPECT_NEAR(got.y, dot(p, up), slack) << theta << " " << phi;
        EXPECT_NEAR(got.z, r - dot(p, eye), slack) << theta << " " << phi;
      }
    }
  }
  double m[16];
  const struct {
    double theta;
    bool written_down;  // otherwise turned, with the short constants
  } sides[] = {
      {pi / 2 + 2.5e-7, true}, {pi / 2 + 2.6e-7, false}, {1.5 * pi - 5.8e-7, false}, {1.5 * pi - 5.6e-7, true}};
  for (const auto &[theta, written_down] : sides) {
    const sphercoord viewer{5, theta, 1};
    kx_getidmatrix3d(m);
    kx_viewmatrix3d(&viewer, m);
    EXPECT_EQ(m[12] == 0 && m[13] == 0 && m[14] == 5, written_down) << theta;
  }
  for (const double bad : {HUGE_VAL, std::nan("")}) {  // ends
    const sphercoord viewer{1, bad, 1};
    kx_viewmatrix3d(&viewer, m);
  }
  kx_viewmatrix3d(nullptr, m);
  EXPECT_TRUE(std::isnan(m[0]));
}

TEST(Viewing, PerspectiveShrinksWithTheDepth) {
  const sphercoord viewer{10, 1, 2}, turned{0, 1, 2};
  const pnt_3d origin{0, 0, 0}, p{1, -2, 3};
  pnt_3d eye, in_space = seen(viewer, {0, -4, 0});
  double full[16], only_turned[16], a[3], b[3];
  kx_sphertorect(&viewer, &eye);
  kx_getidmatrix3d(full);
  kx_viewmatrix3d(&viewer, full);
  kx_getidmatrix3d(only_turned);
  kx_viewmatrix3d(&turned, only_turned);
  EXPECT_TRUE(kx_perspective(&p, &origin, full, a) == a && kx_perspective(&p, &eye, only_turned, b) == b);
  const double want[] = {in_space.x / in_space.z, in_space.y / in_space.z, in_space.z};
  for (int i = 0; i < 3; ++i) EXPECT_TRUE(std::fabs(a[i] - want[i]) < 1e-9 && std::fabs(b[i] - want[i]) < 1e-9) << i;
  EXPECT_TRUE(kx_perspective(&p, &p, full, nullptr) == nullptr && kx_perspective(&p, nullptr, full, a) == nullptr);
}

TEST(Viewing, WindowCornersFallOnTheViewports) {
  const rect_2d window{1, 2, 11, 22}, viewport{0, 50, 100, 0};  // a screen counts y downwards
  const double table[][4] = {{1, 2, 0, 50}, {11, 22, 100, 0}, {6, 12, 50, 25}, {21, -18, 200, 100}};
  for (const auto &row : table) {
    pnt_2d p{row[0], row[1]};
    kx_windowtransform(&window, &viewport, &p, &p);
    EXPECT_TRUE(p.x == row[2] && p.y == row[3]);
  }
  kx_windowtransform(nullptr, &viewport, nullptr, nullptr);
}

TEST(Viewing, ListsKeepNumbersAndOrderAlsoWithoutMemory) {
  const rect_2d window{0, 0, 10, 10}, viewport{0, 0, 100, 50};
  const auto setup = [] {
    list_hdr l{};
    kx::append(l, kx::create_point(KX_POLY_2D, {5, 5, 0}, 7), KX_POLY_2D);
    kx::append(l, nullptr, KX_POLY_2D);
    kx::append(l, kx::create_point(KX_PNT_2D, {1, 1, 0}, 0), KX_PNT_2D);  // too small to be read
    kx::append(l, kx::create_point(KX_POLY_3D, {2, 4, 9}, 3), KX_POLY_3D);
    return l;
  };
  const auto check = [](int n, list_hdr &in, list_hdr *out) {
    const char *const texts[] = {"", "ll_create_list", "kx_create_poly_2d", "kx_viewplanetrf - 1"};
    EXPECT_EQ(n ? faults::messages().back() : "",
              n ? "Memory Error: " + std::string(texts[n < 2 ? n : 2 + n % 2]) : "");
    EXPECT_TRUE((out == nullptr) == (n == 1) && in.current == (out ? in.head : in.tail));
    EXPECT_EQ(kx::count(out), n == 1 ? 0 : n ? 1 : 2);
    bool last = n == 2 || n == 3;
    for (list_item &item : kx::items(out)) {
      const poly_2d at = *static_cast<poly_2d *>(item.data);
      EXPECT_TRUE(item.datatype == KX_POLY_2D && at.seqnr == (last ? 3 : 7) && at.x == (last ? 20 : 50));
      EXPECT_TRUE(at.y == (last ? 20 : 25));
      last = true;
    }
    if (out) kx::release_items(*out);
    kx::release(out), kx::release_items(in);
  };
  const auto call = [&](list_hdr &l) { return kx_viewplanetrf(&l, &viewport, &window); };
  EXPECT_EQ(faults::fail_each_allocation(setup, call, check), 5);
  list_hdr nothing{};
  EXPECT_TRUE(!kx_viewplanetrf(&nothing, &viewport, &window) && !kx_viewplanetrf(nullptr, &viewport, &window));
}

}  // namespace
