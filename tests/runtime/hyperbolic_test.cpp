#include <cmath>

#include "kxgeom/runtime.h"
#include "support/faults.hpp"
#include "support/message_folder.hpp"

TEST(hyperbolic, functions_and_inverses) {
  constexpr double degree = 57.2957795131;
  for (double x : {-3.0, -1.0, -1e-3, 2e-7, 0.5, 1.0, 4.0}) {
    const double near = 1e-9 + 1e-9 / std::fabs(x);
    EXPECT_NEAR(kx_hsine(x), std::sinh(x), 1e-12);
    EXPECT_NEAR(kx_hcosine(x), std::cosh(x), 1e-12);
    EXPECT_NEAR(kx_htangent(x), std::tanh(x), 1e-12);
    EXPECT_NEAR(kx_hsecant(x), 1 / std::cosh(x), 1e-12);
    EXPECT_NEAR(kx_hcosecant(x) * std::sinh(x), 1.0, near);
    EXPECT_NEAR(kx_hcotangent(x) * std::tanh(x), 1.0, near);
    EXPECT_NEAR(kx_archsine(std::sinh(x)), x * degree, 1e-7);
    EXPECT_NEAR(kx_archcosecant(1 / std::sinh(x)), x * degree, 1e-6);
    if (std::fabs(x) < 1e-2) continue;
    EXPECT_NEAR(kx_archtangent(std::tanh(x)), x * degree, 1e-7);
    EXPECT_NEAR(kx_archcotangent(1 / std::tanh(x)), x * degree, 1e-7);
    EXPECT_NEAR(kx_archcosine(std::cosh(x)), std::fabs(x) * degree, 1e-7);
    EXPECT_NEAR(kx_archsecant(1 / std::cosh(x)), std::fabs(x) * degree, 1e-7);
  }
}

TEST(hyperbolic, bad_parameters_with_and_without_message) {
  const message_folder folder;
  const struct {
    double(KX_CALL *function)(double);
    std::string name;
    double last_good, first_bad;
    bool message;
  } rows[] = {
      {kx_hcosecant, "kx_hcosecant", 1.1e-7, 1e-7, true},
      {kx_hcosecant, "kx_hcosecant", -1.1e-7, -1e-7, true},
      {kx_hcotangent, "kx_hcotangent", 1.1e-7, -1e-7, true},
      {kx_archtangent, "kx_archtangent", 1 - 1.1e-7, 1 - 0.9e-7, true},
      {kx_archtangent, "kx_archtangent", -1 + 1.1e-7, -1, true},
      {kx_archsecant, "kx_archsecant", 1.1e-7, 1e-7, true},
      {kx_archsecant, "kx_archsecant", 1 + 1.9e-7, 1 + 2.1e-7, true},
      {kx_archcosine, "", 1 - 1.9e-7, 1 - 2.1e-7, false},
      {kx_archcotangent, "", 1 + 1.1e-7, 1 + 0.9e-7, false},
      {kx_archcotangent, "", -1 - 1.1e-7, 0, false},
      {kx_archcosecant, "", -1.1e-7, -1e-7, false},
  };
  for (const auto &row : rows) {
    faults::clear_messages();
    EXPECT_NE(row.function(row.last_good), 0.0) << row.name;
    EXPECT_TRUE(faults::messages().empty()) << row.name;
    EXPECT_EQ(row.function(row.first_bad), 0.0) << row.name;
    std::vector<std::string> expected;
    if (row.message) expected.push_back("BADPARMS&msgrec[i]\nLocation: " + row.name + " Error Nr: 23");
    EXPECT_EQ(faults::messages(), expected);
  }
  EXPECT_EQ(kx_archcosine(1 + 1.9e-7), std::log(1 + 1.9e-7) * 57.2957795131);
}
