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
 * @param[in] record  the record, an extbody as well: both begin alike; null does nothing
 */
KX_API void KX_CALL kx_purge_bodyrev(bodyrev *record);

/* ---- mesh file ---- */

/* A mesh file holds a grid of points and its four-sided cells in records of 32 bytes, little-endian, whose first
 * integer is their kind: 0, once, first: the number of rows, the number of columns; 1, a point, row by row: its number,
 * then x, y and z at bytes 8, 16 and 24; 2, a cell, row by row: its number from 1, and the places of its corners among
 * the points, from 0: for row r and column k, a = r * columns + k, a + 1, a + 1 + columns, a + columns. Bytes that
 * carry nothing are 0. */

/**
 * Writes a grid of points and its cells as a mesh file. All points of the list are written, whatever ncols and nrows
 * say, points that are no poly_3d with the number they have or 0, and items that are no points are passed over.
 * Writing is not checked: on a full disk the result is the same.
 * @param[in,out] points  points, row by row; the position ends at the head
 * @param[in] ncols,nrows  points of a row, and rows; below 2 there are no cells
 * @param[in] filename  the file, created or overwritten
 * @return number of cells + 1; 0, with no file written, for a null or empty list, ncols or nrows 0, more than 1000000
 *   cells and more than points, and after the message "BADFILE" 0 when the file cannot be opened
 */
KX_API int32_t KX_CALL kx_create_surface_file(list_hdr *points, int32_t ncols, int32_t nrows, const char *filename);

/**
 * Writes the mesh of a surface as a mesh file: steps_v + 1 rows of steps_u + 1 of its vertices.
 * @param[in] s  the surface
 * @param[in] filename  the file, created or overwritten
 * @return number of cells + 1; 0 for a null surface, when its vertices are not as many as its steps make, after the
 *   message "BADFILE" 0 when the file cannot be opened, and when not all of it could be written
 */
KX_API int32_t KX_CALL kx_surfacemesh(const surface *s, const char *filename);

/**
 * Reads a mesh file into a surface: its vertices, its faces, numbered as in the file and with the normals of their
 * corners in the order of the vertices, the box, steps_u and steps_v; the type is 315. What the surface held before is
 * freed as by kx_clear_surface, and its other numbers are 0.
 * @param[in] filename  the file
 * @param[in,out] s  the surface; as it was unless the result is 0
 * @return 0; 1 for a null argument; 2, after the message "BADFILE" 0, when the file cannot be opened; 3 when it ends
 * too early or within a record, or cannot be read; 4 for a record of another kind than comes next; 5 for counts below 1
 *   or too large, and when records are left over; 6 for a face out of order, or with a corner that is no vertex; 80
 *   without memory
 */
KX_API int32_t KX_CALL kx_read_surface_file(const char *filename, surface *s);

#ifdef __cplusplus
}
#endif

#endif
