// Points in other coordinates: their values are stored and read by the entries for three and four doubles.
#include "kxgeom/records.h"
#include "runtime/memory.hpp"

cylcoord *KX_CALL kx_create_cylcoord(void) { return kx::create<cylcoord>("kx_create_cylcoord"); }

sphercoord *KX_CALL kx_create_sphercoord(void) { return kx::create<sphercoord>("kx_create_sphercoord"); }

polarcoord *KX_CALL kx_create_polarcoord(void) { return kx::create<polarcoord>("kx_create_polarcoord"); }
