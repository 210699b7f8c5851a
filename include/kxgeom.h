/* KXGEOM32: computational geometry behind plain C functions. Includes the header of every subsystem. */
#ifndef KXGEOM_H
#define KXGEOM_H

#include "kxgeom/types.h"

#include "kxgeom/curves.h"
#include "kxgeom/geometry.h"
#include "kxgeom/list.h"
#include "kxgeom/polygon.h"
#include "kxgeom/records.h"
#include "kxgeom/runtime.h"
#include "kxgeom/solids.h"
#include "kxgeom/transform.h"

#endif
