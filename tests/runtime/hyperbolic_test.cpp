#include <cmath>

#include "kxgeom/runtime.h"
#include "support/faults.hpp"
#include "support/message_folder.hpp"

TEST(hyperbolic, functions_and_inverses) {
  constexpr double degree = 57.2957795131;
  for (double x : {-3.0, -1e-3, 2e-7, 0.5, 4.0}) {
    const double near = 1e-9 + 1e-9 / std::fabs(x), sinh = std::sinh(x), cosh = std::cosh(x), tanh = std::tanh(x);
    EXPECT_NEAR(kx_hsine(x), sinh, 1e-12);
    EXPECT_NEAR(kx_hcosine(x), cosh, 1e-12);
    EXPECT_NEAR(kx_htangent(x), tanh, 1e-12);
    EXPECT_NEAR(kx_hsecant(x), 1 / cosh, 1e-12);
    EXPECT_NEAR(kx_hcosecant(x) * sinh, 1.0, near);
    EXPECT_NEAR(kx_hcotangent(x) * tanh, 1.0, near);
    EXPECT_NEAR(kx_archsine(sinh), x * degree, 1e-7);
    EXPECT_NEAR(kx_archcosecant(1 / sinh), x * degree, 1e-6);
    if (std::fabs(x) < 1e-2) continue;
    EXPECT_NEAR(kx_archtangent(tanh), x * degree, 1e-7);
    EXPECT_NEAR(kx_archcotangent(1 / tanh), x * degree, 1e-7);
    EXPECT_NEAR(kx_archcosine(cosh), std::fabs(x) * degree, 1e-7);
    EXPECT_NEAR(kx_archsecant(1 / cosh), std::fabs(x) * degree, 1e-7);
  }
}

TEST(hyperbolic, bad_parameters_with_and_without_message) {
  const message_folder folder;
  const struct {
    double(KX_CALL *function)(double);
    std::string name;
    double last_good, first_bad;
  } rows[] = {{kx_hcosecant, "kx_hcosecant", 1.1e-7, 1e-7},
              {kx_hcotangent, "kx_hcotangent", 1.1e-7, -1e-7},
              {kx_archtangent, "kx_archtangent", 1 - 1.1e-7, 1 - 0.9e-7},
              {kx_archsecant, "kx_archsecant", 1.1e-7, 1e-7},
              {kx_archsecant, "kx_archsecant", 1 + 1.9e-7, 1 + 2.1e-7},
              {kx_archcosine, "", 1 - 1.9e-7, 1 - 2.1e-7},
              {kx_archcotangent, "", 1 + 1.1e-7, 1 + 0.9e-7},
              {kx_archcosecant, "", -1.1e-7, -1e-7}};
  for (const auto &row : rows) {
    faults::clear_messages();
    EXPECT_TRUE(row.function(row.last_good) != 0.0 && faults::messages().empty()) << &row - rows;
    EXPECT_EQ(row.function(row.first_bad), 0.0) << &row - rows;
    std::vector<std::string> expected;
    if (!row.name.empty()) expected.push_back("BADPARMS&msgrec[i]\nLocation: " + row.name + " Error Nr: 23");
    EXPECT_EQ(faults::messages(), expected);
  }
  EXPECT_EQ(kx_archcosine(1 + 1.9e-7), std::log(1 + 1.9e-7) * 57.2957795131);
}
