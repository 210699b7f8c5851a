// Catmull-Rom splines from list to list; refusals and memory are tested with the B-splines'.
#include "curve_lists.hpp"
#include "support/message_folder.hpp"

using namespace curve_lists;

TEST(catmull_rom, interpolates_and_agrees_with_the_uniform_curve) {
  const owner c{uniform(kx_def_ucatrom_curve2d, 7)};
  EXPECT_EQ(kx_mk_ucurve2d(c, 0.1), 0);
  for (int32_t tag : {KX_PNT_2D, KX_POLY_2D, KX_PNT_3D, KX_POLY_3D}) {
    const held list{points(tag, 7)}, out{kx_catrom_curve(7, list, 4, 0.5, nullptr)};
    const auto given = coordinates(list), is = coordinates(out), want = coordinates(c->curve_pnts);
    ASSERT_TRUE(is.size() == 41 && want.size() == 41);
    for (size_t i = 0; i < 41; ++i) {
      EXPECT_NEAR(std::hypot(is[i].x - want[i].x, is[i].y - want[i].y), 0.0, 1e-12);
      if (i % 10 == 0) EXPECT_EQ(kx::length(is[i] - given[i / 10 + 1]), 0.0);
    }
  }
}

TEST(catmull_rom, leaves_a_point_along_its_neighbours_by_the_tension) {
  const held list{points(KX_POLY_3D, 6)};
  const auto given = coordinates(list);
  for (double a : {0.0, 0.3, 1.0, -2.0}) {
    const held out{kx_catrom_curve(6, list, 0, a, nullptr)};
    const auto is = coordinates(out);
    ASSERT_EQ(is.size(), 301u);
    for (size_t i : {100u, 200u}) {
      const size_t at = i / 100 + 1;
      // the slope of a cubic from four of its points
      const kx::vec3 slope = (100.0 / 6.0) * (-11.0 * is[i] + 18.0 * is[i + 1] - 9.0 * is[i + 2] + 2.0 * is[i + 3]);
      EXPECT_NEAR(kx::length(slope - a * (given[at + 1] - given[at - 1])), 0.0, 1e-9) << a;
    }
    EXPECT_EQ(kx::length(is.back() - given[4]), 0.0);
  }
}

TEST(catmull_rom, speaks_up_in_space_only) {
  const message_folder folder;
  const held list{points(KX_POLY_2D, 4)}, out{ll_create_list()};
  faults::clear_messages();
  EXPECT_EQ(kx_catrom_curve_2d(3, list, 6, 0.5, nullptr, out), 33);
  EXPECT_TRUE(kx_catrom_curve_3d(4, nullptr, 6, 0.5, nullptr, out) == 1 && faults::messages().empty());
  EXPECT_EQ(kx_catrom_curve_3d(3, list, 6, 0.5, nullptr, out), 33);
  ASSERT_EQ(faults::messages().size(), 1u);
  EXPECT_NE(faults::messages()[0].find("BADCNT"), std::string::npos);
  EXPECT_NE(faults::messages()[0].find("kx_catrom_curve_3d Error Nr: 33"), std::string::npos);
}
