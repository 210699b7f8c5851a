#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "kxgeom/runtime.h"

namespace {

constexpr double not_a_number = std::numeric_limits<double>::quiet_NaN(), t = 0.125, past = 1e-9;
constexpr double bound = (4.0 + 1.0) * t;  // the allowance of +-4

}  // namespace

TEST(comparisons, both_sides_of_the_tolerance_which_the_second_number_scales) {
  for (double sign : {1.0, -1.0}) {
    EXPECT_TRUE(kx_parmzero(sign * t, t) && !kx_parmzero(sign * (t + past), t));
    const double b = 4 * sign, above = b + bound, below = b - bound;
    EXPECT_TRUE(kx_parmeq(above, b, t) && kx_parmeq(below, b, t) && kx_parmle(above, b, t) && kx_parmge(below, b, t));
    EXPECT_FALSE(kx_parmeq(above + past, b, t) || kx_parmeq(below - past, b, t));
    EXPECT_FALSE(kx_parmle(above + past, b, t) || kx_parmge(below - past, b, t));
  }
  EXPECT_TRUE(kx_parmlezero(t, t) && kx_parmgezero(-t, t));
  EXPECT_FALSE(kx_parmlezero(t + past, t) || kx_parmgezero(-t - past, t));
  EXPECT_TRUE(kx_parmeq(4.0, 4.6875, t) && !kx_parmeq(4.6875, 4.0, t));
}

TEST(comparisons, strict_and_inclusive_are_opposites_also_for_nan) {
  for (double a : {-5.0, -t, 0.0, t, 4.0, 4.0 + bound, 9.0, HUGE_VAL, not_a_number}) {
    EXPECT_EQ(kx_parmnotzero(a, t), !kx_parmzero(a, t));
    EXPECT_EQ(kx_parmgtzero(a, t), !kx_parmlezero(a, t));
    EXPECT_EQ(kx_parmltzero(a, t), !kx_parmgezero(a, t));
    EXPECT_EQ(kx_parmne(a, 4.0, t), !kx_parmeq(a, 4.0, t));
    EXPECT_EQ(kx_parmgt(a, 4.0, t), !kx_parmle(a, 4.0, t));
    EXPECT_EQ(kx_parmlt(a, 4.0, t), !kx_parmge(a, 4.0, t));
  }
  EXPECT_TRUE(kx_parmzero(not_a_number, t) && kx_parmeq(not_a_number, 1.0, t) && kx_parmle(1.0, not_a_number, t));
}

TEST(comparisons, points) {
  double small = 1e-7, large = 1.1e-7;
  for (double *value : {&small, &large}) kx_settozero(value);
  EXPECT_TRUE(small == 0.0 && large == 1.1e-7);
  for (int axis = 0; axis < 3; ++axis)
    for (double off : {1e-7, -1e-7, 1.1e-7, -1.1e-7}) {
      const pnt_3d o{0, 0, 0}, p{axis == 0 ? off : 0, axis == 1 ? off : 0, axis == 2 ? off : 0};
      const pnt_2d o2{0, 0}, p2{p.x, p.y};
      EXPECT_EQ(kx_samepnt3d(&p, &o), std::fabs(off) <= 1e-7);
      EXPECT_EQ(kx_samepnt(&p2, &o2), axis == 2 || std::fabs(off) <= 1e-7);
    }
  const pnt_2d far_p{1000.0, 0.0}, far_q{1000.0001, 0.0};
  EXPECT_EQ(kx_samepnt(&far_p, &far_q), 0);  // absolute, however far out
  const pnt_2d below{1000.00005, -1.0}, above{1000.0, 1.0}, left{999.0, 5.0};
  EXPECT_TRUE(kx_smallerpnt(&below, &above) && kx_smallerpnt(&above, &above) && kx_smallerpnt(&left, &below));
  EXPECT_FALSE(kx_smallerpnt(&above, &below) || kx_smallerpnt(&below, &left));
}

TEST(comparisons, between) {
  for (double x : {0.0, -1e-7, 5.0, 10.0, 10.0000011}) EXPECT_TRUE(kx_between(x, 0, 10) && kx_between(x, 10, 0)) << x;
  for (double x : {-1.1e-7, 10.0000012, -5.0, 15.0, not_a_number})
    EXPECT_FALSE(kx_between(x, 0, 10) || kx_between(x, 10, 0)) << x;
  const line_2d line{4, -8, 0, 8};
  const pnt_2d in{4.0000005, -8.0000009}, left{-0.00001, 0}, over{2, 8.00001};
  EXPECT_TRUE(kx_inbetween(&line, &in) && !kx_inbetween(&line, &left) && !kx_inbetween(&line, &over));
  const double one = 1.0, nearly = 1.00000005;
  EXPECT_TRUE(kx_rmax(one, nearly) == nearly && kx_rmax(nearly, one) == one && kx_rmin(one, nearly) == nearly);
}
