#include <cmath>

#include "kxgeom/runtime.h"
#include "support/faults.hpp"
#include "support/message_folder.hpp"

namespace {

constexpr double pi = 3.1415926536, two_pi = 6.2831853072, degree = 57.2957795131;

// Whether a function answers 0.0 and "BADPARMS" with its name.
bool refuses(double(KX_CALL *f)(double), double x, const std::string &name) {
  faults::clear_messages();
  const double result = f(x);
  const auto shown = faults::messages();
  EXPECT_TRUE(shown.empty() ||
              (result == 0.0 && shown == std::vector{"BADPARMS&msgrec[i]\nLocation: " + name + " Error Nr: 23"}));
  return !shown.empty();
}

}  // namespace

TEST(trigonometry, poles) {
  const message_folder folder;
  for (int turn = 0; turn < 3; ++turn)
    for (double sign : {1.0, -1.0})
      for (int quarter = 0; quarter < 4; ++quarter) {
        const double axis = quarter * pi / 2, allowance = turn == 0 && quarter == 0 ? 1e-7 : (axis + 1) * 1e-7;
        for (double off : {0.0, 0.9 * allowance, 1.1 * allowance}) {
          const double x = sign * (axis + turn * two_pi + off);
          const bool pole = off < allowance || (turn > 0 && quarter == 0 && off < 7.28e-7);
          EXPECT_EQ(refuses(kx_secant, x, "kx_secant"), pole && quarter % 2 == 1) << x;
          EXPECT_EQ(refuses(kx_cosecant, x, "kx_cosecant"), pole && quarter % 2 == 0) << x;
          EXPECT_EQ(refuses(kx_cotangent, x, "kx_cotangent"), pole && quarter % 2 == 0) << x;
        }
      }
  EXPECT_TRUE(refuses(kx_secant, INFINITY, "kx_secant") && !refuses(kx_secant, NAN, "kx_secant"));
}

TEST(trigonometry, turns_are_taken_off_one_by_one) {
  for (double x : {1e-7, 0.3, 1.0, 7.0, 1000.25, 99999.0, 123456.789, 1e300}) {
    double r = x < 1e5 ? x : std::fmod(x, two_pi);
    while (r > two_pi + (two_pi + 1) * 1e-7) r -= two_pi;
    EXPECT_EQ(kx_secant(x), x > 1e-7 ? 1 / std::cos(r) : 1.0);
    EXPECT_EQ(kx_secant(-x), x > 1e-7 ? -1 / std::cos(r) : 1.0);  // the sign of the angle, on purpose
    if (x <= 1e-7) continue;
    EXPECT_EQ(kx_cosecant(x), 1 / std::sin(r));
    EXPECT_EQ(kx_cotangent(-x), -1 / (std::sin(r) / std::cos(r)));
  }
}

TEST(trigonometry, polar_angle) {
  for (double d = 0.5; d < 360; d += 1)
    EXPECT_NEAR(kx_arctan(3 * std::cos(d / degree), 3 * std::sin(d / degree)), d, 1e-7);
  EXPECT_TRUE(kx_arctan(1e-7, -1e-7) == 0.0 && kx_arctan(1e-7, -2.0) == 270.0 && kx_arctan(-1e-7, 2.0) == 90.0);
  EXPECT_TRUE(kx_arctan(-1.0, -1e-7) == 180.0 && kx_arctan(1.0, -1e-7) == 0.0);
  EXPECT_GT(kx_arctan(1.0, -1.1e-7), 359.0);
  EXPECT_EQ(kx_arctan(1e16, -1.0), 0.0);  // never a full 360
  EXPECT_TRUE(std::isnan(kx_arctan(NAN, 1.0)));
}

TEST(trigonometry, inverse_functions) {
  const message_folder folder;
  for (double d = -89.5; d < 90; d += 1) {
    EXPECT_NEAR(kx_arcsin(std::sin(d / degree)), d, 1e-7);
    EXPECT_NEAR(kx_arccos(std::cos((d + 90) / degree)), d + 90, 1e-7);
    EXPECT_NEAR(kx_arccotangent(std::tan(d / degree)), 90 - d, 1e-7);
    EXPECT_NEAR(kx_arcsecant(1 / std::cos(d / degree)), std::fabs(d), 1e-7);
    EXPECT_NEAR(kx_arcsecant(-1 / std::cos(d / degree)), std::fabs(d) - 180, 1e-7);
    EXPECT_NEAR(kx_arccosecant(1 / std::sin(d / degree)), d > 0 ? d : -d - 180, 1e-7);
  }
  for (double off : {0.0, 0.9e-7, -0.9e-7}) {
    EXPECT_TRUE(kx_arcsin(off) == 0.0 && kx_arcsin(1 + off) == 90.0 && kx_arcsin(-1 + off) == -90.0) << off;
    EXPECT_TRUE(kx_arccos(off) == 90.0 && kx_arccos(1 + off) == 0.0 && kx_arccos(-1 + off) == 180.0) << off;
    EXPECT_TRUE(kx_arcsecant(1 + 2 * off) == 0.0 && kx_arcsecant(-1 + 2 * off) == -180.0) << off;
    EXPECT_TRUE(kx_arccosecant(1 + 2 * off) == 90.0 && kx_arccosecant(-1 + 2 * off) == -90.0) << off;
  }
  EXPECT_TRUE(kx_arcsin(-1 + 1.5e-7) > -90.0 && kx_arccos(1 - 1.5e-7) > 0.0);
  EXPECT_TRUE(std::isnan(kx_arcsin(1 + 1.1e-7)) && std::isnan(kx_arccos(-1 - 1.1e-7)));
  EXPECT_EQ(kx_arccotangent(0.0), 1.5707963268 * degree);
  for (double x : {-0.9999997, 0.0, 0.9999997}) {
    EXPECT_TRUE(refuses(kx_arcsecant, x, "kx_arcsecant") && !refuses(kx_arccosecant, x, ""));
    EXPECT_EQ(kx_arccosecant(x), 0.0);
  }
}
