#include <gtest/gtest.h>

#include "kxgeom/runtime.h"

TEST(call_frame, values_pass_through_pointers) {
  kx_initgeometry();
  double real = 0.0;
  int32_t integer = 0;
  EXPECT_TRUE(kx_set_doublevb(&real, 2.5) == 2.5 && kx_get_doublevb(&real) == 2.5);
  EXPECT_TRUE(kx_set_longvb(&integer, -7) == -7 && kx_get_longvb(&integer) == -7);
  EXPECT_TRUE(kx_set_doublevb(nullptr, 2.5) == 0.0 && kx_get_doublevb(nullptr) == 0.0);
  EXPECT_TRUE(kx_set_longvb(nullptr, 7) == 0 && kx_get_longvb(nullptr) == 0);
}
