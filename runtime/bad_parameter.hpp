// How the scalar functions answer a parameter outside their domain.
#pragma once

#include "kxgeom/runtime.h"

namespace kx {

[[gnu::cold]] inline double bad_parameter(const char *location) {
  kx_display_msg("BADPARMS", 23, location);
  return 0.0;
}

}  // namespace kx
