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
  const double thetas[] = {-7, -1e-8, 0, 1, pi / 2 - 1e-5, pi / 2, 2, pi, 1.5 * pi, 5.5, 2 * pi, 1e9};
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
        const kx::vec3 off{got.x - dot(p, right), got.y - dot(p, up), got.z - (r - dot(p, eye))};
        EXPECT_LE(kx::length(off), slack) << theta << " " << phi;
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
  const sphercoord bad{1, HUGE_VAL, 1};
  kx_viewmatrix3d(&bad, m);  // ends
  EXPECT_TRUE(std::isnan(m[0]));
}

TEST(Viewing, PerspectiveShrinksWithTheDepth) {
  const sphercoord viewer{10, 1, 2};
  const pnt_3d origin{0, 0, 0}, p{1, -2, 3}, in_space = seen(viewer, {0, -4, 0});
  double view[16], a[3];
  kx_getidmatrix3d(view);
  kx_viewmatrix3d(&viewer, view);
  EXPECT_EQ(kx_perspective(&p, &origin, view, a), a);
  EXPECT_LE(std::hypot(a[0] - in_space.x / in_space.z, a[1] - in_space.y / in_space.z, a[2] - in_space.z), 1e-9);
}

TEST(Viewing, WindowCornersFallOnTheViewports) {
  const rect_2d window{1, 2, 11, 22}, viewport{0, 50, 100, 0};  // a screen counts y downwards
  pnt_2d p{21, -18}, corner{1, 2};
  kx_windowtransform(&window, &viewport, &p, &p), kx_windowtransform(&window, &viewport, &corner, &corner);
  EXPECT_TRUE(p.x == 200 && p.y == 100 && corner.x == 0 && corner.y == 50);
}

TEST(Viewing, ListsKeepNumbersAndOrderAlsoWithoutMemory) {
  const rect_2d window{0, 0, 10, 10}, viewport{0, 0, 100, 50};
  list_hdr in{};
  kx::append(in, kx::create_point(KX_POLY_2D, {5, 5, 0}, 7), KX_POLY_2D);
  kx::append(in, nullptr, KX_POLY_2D);
  kx::append(in, kx::create_point(KX_PNT_2D, {1, 1, 0}, 0), KX_PNT_2D);  // too small to be read
  kx::append(in, kx::create_point(KX_POLY_3D, {2, 4, 9}, 3), KX_POLY_3D);
  const char *const texts[] = {"", "ll_create_list", "kx_create_poly_2d", "kx_viewplanetrf - 1"};
  for (int n = 0; n < 4; ++n) {  // which allocation fails
    faults::clear_messages();
    faults::watch(n);
    list_hdr *out = kx_viewplanetrf(&in, &viewport, &window);
    faults::unwatch();
    if (n) EXPECT_EQ(faults::messages().back(), std::string("Memory Error: ") + texts[n]);
    EXPECT_TRUE((out == nullptr) == (n == 1) && kx::count(out) == (n == 1 ? 0 : n ? 1 : 2) && in.current == in.head);
    for (list_item &item : kx::items(out)) {
      const poly_2d at = *static_cast<poly_2d *>(item.data);
      const bool last = at.seqnr == 3;
      EXPECT_TRUE(item.datatype == KX_POLY_2D && at.x == (last ? 20 : 50) && at.y == (last ? 20 : 25));
    }
    if (out) kx::release_items(*out);
    kx::release(out);
  }
  kx::release_items(in);
}

}  // namespace
