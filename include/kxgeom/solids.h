/* Solids: primitives built as vertices and faces, and the mesh file.
 *
 * A primitive is built about the z axis at its centre and turned afterwards. Vertices are numbered from 0 in list
 * order.
 */
#ifndef KXGEOM_SOLIDS_H
#define KXGEOM_SOLIDS_H

#include "kxgeom/export.h"
#include "kxgeom/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- primitive records ---- */

/**
 * Frees the record of a body of revolution or of an extruded body, with its profile.
 * @param[in] record  a bodyrev or an extbody; null does nothing
 */
KX_API void KX_CALL kx_purge_bodyrev(void *record);

#ifdef __cplusplus
}
#endif

#endif
