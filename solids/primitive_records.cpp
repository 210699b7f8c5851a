// The records of the primitives: create, set, get, purge.
#include "kxgeom/solids.h"
#include "records/primitive.hpp"

void KX_CALL kx_purge_bodyrev(bodyrev *record) { kx::purge_bodyrev(record); }
