// Catmull-Rom splines from list to list; refusals and memory are tested with the B-splines'.
#include "curve_lists.hpp"
#include "support/message_folder.hpp"

using namespace curve_lists;

TEST(catmull_rom, leaves_a_point_along_its_neighbours_by_the_tension) {
  const held list{points(KX_POLY_3D, 6)};
  const auto given = coordinates(list);
  for (double a : {0.0, 0.3, 0.5, -2.0}) {
    const held out{kx_catrom_curve(6, list, 0, a, nullptr)};
    const auto is = coordinates(out);
    ASSERT_EQ(is.size(), 301u);
    for (size_t i : {100u, 200u}) {
      const size_t at = i / 100 + 1;
      EXPECT_EQ(kx::length(is[i] - given[at]), 0.0);
      // the slope of a cubic from four of its points
      const kx::vec3 slope = (100.0 / 6.0) * (-11.0 * is[i] + 18.0 * is[i + 1] - 9.0 * is[i + 2] + 2.0 * is[i + 3]);
      EXPECT_NEAR(kx::length(slope - a * (given[at + 1] - given[at - 1])), 0.0, 1e-9) << a;
    }
    EXPECT_EQ(kx::length(is[0] - given[1]) + kx::length(is.back() - given[4]), 0.0);
    if (a != 0.5) continue;
    const owner c{uniform(kx_def_ucatrom_curve3d, 6)};  // has this tension
    for (size_t i = 0; i < 301; ++i) {
      pnt_3d want;
      EXPECT_EQ(kx_eval_pointoncurve(c, 0.01 * static_cast<double>(i), &want), 0);
      EXPECT_NEAR(kx::length(is[i] - kx::space::read(want)), 0.0, 1e-12);
    }
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
