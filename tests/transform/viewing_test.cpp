#include <gtest/gtest.h>

#include "kxgeom/transform.h"

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
