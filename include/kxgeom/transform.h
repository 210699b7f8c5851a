/* Transformations: plane and space matrices, point transforms, viewing.
 *
 * A plane matrix is 9 doubles, a space matrix 16, row-major, in storage of the caller. Points are row vectors on the
 * left: x' = m00*x + m10*y + m20, y' = m01*x + m11*y + m21; the translation sits in the last row and the last column is
 * not used. Builders multiply onto the right of what is there, so a sequence of calls acts in call order; start with
 * kx_getidmatrix2d or kx_getidmatrix3d. Angles are in degrees, counter-clockwise, with 0.01745329252 radians to the
 * degree; only those in the records of coordinates are in radians.
 */
#ifndef KXGEOM_TRANSFORM_H
#define KXGEOM_TRANSFORM_H

#include "kxgeom/export.h"
#include "kxgeom/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- matrix builders ---- */

/**
 * Sets a plane matrix to the identity; a null matrix is left alone.
 * @param[out] matrix[9]  the matrix
 */
KX_API void KX_CALL kx_getidmatrix2d(double *matrix);

/**
 * Sets a space matrix to the identity; a null matrix is left alone.
 * @param[out] matrix[16]  the matrix
 */
KX_API void KX_CALL kx_getidmatrix3d(double *matrix);

/**
 * Adds a move by (dx, dy) after what the matrix does already.
 * @param[in] dx,dy  the move
 * @param[in,out] matrix[9]  null does nothing
 */
KX_API void KX_CALL kx_translatematrix2d(double dx, double dy, double *matrix);

/**
 * Adds a move by (dx, dy, dz) after what the matrix does already.
 * @param[in] dx,dy,dz  the move
 * @param[in,out] matrix[16]  null does nothing
 */
KX_API void KX_CALL kx_translatematrix3d(double dx, double dy, double dz, double *matrix);

/**
 * Adds a rotation about a centre, counter-clockwise, after what the matrix does already.
 * @param[in] angle_deg  the angle in degrees; every value counts, however small
 * @param[in] center  the point that stays
 * @param[in,out] matrix[9]  does nothing when this or center is null
 */
KX_API void KX_CALL kx_rotationmatrix2d(double angle_deg, const pnt_2d *center, double *matrix);

/**
 * Adds a rotation about an axis after what the matrix does already, counter-clockwise for one who looks against the
 * axis.
 * A line along x is the exception: it turns by the axis +x through its first point, also when it points along -x.
 * @param[in] axis  1: about y; 2: about z; 3: about axis_line; 0 and any other: about x
 * @param[in] angle_deg  the angle in degrees; every value counts, however small
 * @param[in] axis_line  the directed line of axis 3, from its first point to its second; not read for the others
 * @param[in,out] matrix[16]  null does nothing, 0
 * @return 0; 57 when axis is 3 and the line's points are within 1e-7 of each other, or the line is null (matrix
 *   untouched)
 */
KX_API int32_t KX_CALL kx_rotationmatrix3d(int32_t axis, double angle_deg, const line_3d *axis_line, double *matrix);

/**
 * Adds a scaling about a fixed point after what the matrix does already.
 * Only when both factors are 1e-7 or less, negative ones included, are both taken as 1; one such factor alone is used
 * as given: 0 collapses its axis, a negative one mirrors.
 * @param[in] sx,sy  the factors along x and y
 * @param[in] fixed  the point that stays
 * @param[in,out] matrix[9]  does nothing when this or fixed is null
 */
KX_API void KX_CALL kx_scalematrix2d(double sx, double sy, const pnt_2d *fixed, double *matrix);

/**
 * Adds a scaling about a fixed point after what the matrix does already.
 * Each factor that is 1e-7 or less, negative ones included, is taken as 1 by itself; the plane's rule differs.
 * @param[in] sx,sy,sz  the factors along x, y and z
 * @param[in] fixed  the point that stays
 * @param[in,out] matrix[16]  does nothing when this or fixed is null
 * @return 0 always
 */
KX_API int32_t KX_CALL kx_scalematrix3d(double sx, double sy, double sz, const pnt_3d *fixed, double *matrix);

/**
 * Adds a shear after what the matrix does already.
 * @param[in] mode  1: y' = y + factor*x; any other: x' = x + factor*y
 * @param[in] factor  how much
 * @param[in,out] matrix[9]  null does nothing
 */
KX_API void KX_CALL kx_shearmatrix2d(int32_t mode, double factor, double *matrix);

/**
 * Adds a shear after what the matrix does already.
 * @param[in] mode  1: x' = x + f1*y, z' = z + f2*y; 2: x' = x + f1*z, y' = y + f2*z; any other: y' = y + f1*x,
 *   z' = z + f2*x
 * @param[in] f1,f2  how much
 * @param[in,out] matrix[16]  null does nothing
 */
KX_API void KX_CALL kx_shearmatrix3d(int32_t mode, double f1, double f2, double *matrix);

/**
 * Adds a reflection after what the matrix does already.
 * @param[in] mode  1: x' = -x; 2: through the origin; 3: about the line y = x; 4: about the line y = -x; 0 and any
 *   other: y' = -y
 * @param[in,out] matrix[9]  null does nothing
 */
KX_API void KX_CALL kx_reflectmatrix2d(int32_t mode, double *matrix);

/**
 * Adds a reflection in a coordinate plane after what the matrix does already.
 * @param[in] mode  1: y' = -y; 2: z' = -z; any other: x' = -x
 * @param[in,out] matrix[16]  null does nothing
 */
KX_API void KX_CALL kx_reflectmatrix3d(int32_t mode, double *matrix);

/* ---- matrices ---- */

/**
 * Multiplies two plane matrices: b becomes b*a, which does what b did and then what a does.
 * @param[in] a[9]  may be b
 * @param[in,out] b[9]  does nothing when either is null
 */
KX_API void KX_CALL kx_mat33mult(const double *a, double *b);

/**
 * Multiplies two space matrices: b becomes b*a, which does what b did and then what a does.
 * @param[in] a[16]  not b, which is written while this is read
 * @param[in,out] b[16]  does nothing when either is null
 */
KX_API void KX_CALL kx_mat44mult(const double *a, double *b);

/**
 * Multiplies two space matrices into a third: c becomes a*b, summed up in place.
 * @param[in] a[16],b[16]  the matrices
 * @param[in,out] c[16]  neither a nor b, which are read while this is written; does nothing when any is null
 */
KX_API void KX_CALL kx_mat_mult(const double *a, const double *b, double *c);

/**
 * Multiplies a homogeneous row vector by a space matrix: out(j) is the sum over k of v(k)*m(k, j). The one function
 * that uses the last column.
 * @param[in] m[16]  the matrix
 * @param[in] v[4]  the vector
 * @param[out] out[4]  may be v; does nothing when any is null
 */
KX_API void KX_CALL kx_mult_vector(const double *m, const double *v, double *out);

/**
 * Copies a plane matrix.
 * @param[in] from[9]  may overlap to
 * @param[out] to[9]  does nothing when either is null
 */
KX_API void KX_CALL kx_movematrix2d(const double *from, double *to);

/**
 * Copies a space matrix.
 * @param[in] from[16]  may overlap to
 * @param[out] to[16]  does nothing when either is null
 */
KX_API void KX_CALL kx_movematrix3d(const double *from, double *to);

/**
 * The determinant of the matrix with the rows (a, b) and (c, d).
 * @param[in] a,b,c,d  the four elements, row by row
 * @return a*d - b*c
 */
KX_API double KX_CALL kx_get_det22(double a, double b, double c, double d);

/**
 * The determinant of the matrix with the rows (a, b, c), (d, e, f) and (g, h, i).
 * @param[in] a,b,c,d,e,f,g,h,i  the nine elements, row by row
 * @return the determinant, expanded by the first column
 */
KX_API double KX_CALL kx_get_det33(double a, double b, double c, double d, double e, double f, double g, double h,
                                   double i);

/**
 * The determinant of a space matrix.
 * @param[in] m[16]  the matrix
 * @return the determinant, expanded by the first row; 0.0 for null
 */
KX_API double KX_CALL kx_get_det44(const double *m);

/**
 * The adjugate of a space matrix: its transposed cofactors. m times it is the determinant times the identity.
 * @param[in] m[16]  the matrix
 * @param[out] out[16]  may be m; untouched when either is null
 */
KX_API void KX_CALL kx_get_adjoint_matrix3d(const double *m, double *out);

/**
 * Inverts a plane matrix.
 * @param[in] m[9]  may be out
 * @param[out] out[9]  the inverse; on 1 the adjugate of m, not divided by the determinant
 * @return 0; 1 when the determinant is within 1e-7 of zero, or an argument is null (out untouched)
 */
KX_API int32_t KX_CALL kx_getinversematrix2d(const double *m, double *out);

/**
 * Inverts a space matrix.
 * @param[in] m[16]  may be out
 * @param[out] out[16]  the inverse; on 1 the adjugate of m, not divided by the determinant
 * @return 0; 1 when the determinant is within 1e-7 of zero, or an argument is null (out untouched)
 */
KX_API int32_t KX_CALL kx_getinversematrix3d(const double *m, double *out);

/**
 * The reciprocal of a number.
 * @param[in] x  the number
 * @return 1/x; 0.0 when x is within 1e-7 of zero, and for NaN
 */
KX_API double KX_CALL kx_inverse(double x);

/* ---- point transforms ---- */

/**
 * Applies a plane matrix to a point.
 * @param[in] m[9]  the matrix
 * @param[in] in  the point
 * @param[out] out  its image; may be in; untouched when an argument is null
 */
KX_API void KX_CALL kx_transformpnt2d(const double *m, const pnt_2d *in, pnt_2d *out);

/**
 * Applies a space matrix to a point.
 * @param[in] m[16]  the matrix
 * @param[in] in  the point
 * @param[out] out  its image; may be in; untouched when an argument is null
 */
KX_API void KX_CALL kx_transformpnt3d(const double *m, const pnt_3d *in, pnt_3d *out);

/**
 * Moves a point by (dx, dy).
 * @param[in] in  the point
 * @param[in] dx,dy  the move
 * @param[out] out  the moved point; may be in; untouched when an argument is null
 */
KX_API void KX_CALL kx_translatepnt2d(const pnt_2d *in, double dx, double dy, pnt_2d *out);

/**
 * Moves a point by (dx, dy, dz).
 * @param[in] in  the point
 * @param[in] dx,dy,dz  the move
 * @param[out] out  the moved point; may be in; untouched when an argument is null
 */
KX_API void KX_CALL kx_translatepnt3d(const pnt_3d *in, double dx, double dy, double dz, pnt_3d *out);

/**
 * Turns a point counter-clockwise about a centre.
 * @param[in] angle_deg  the angle in degrees; one within 1e-7 of zero gives an exact copy
 * @param[in] center  the point that stays
 * @param[in] in  the point
 * @param[out] out  the turned point; may be in or center; untouched when an argument is null
 */
KX_API void KX_CALL kx_rotatepnt2d(double angle_deg, const pnt_2d *center, const pnt_2d *in, pnt_2d *out);

/**
 * Turns a point about an axis, in the sense of kx_rotationmatrix3d.
 * @param[in] axis  1: about y; 2: about z; 3: about axis_line; 0 and any other: about x
 * @param[in] angle_deg  the angle in degrees; one within 1e-7 of zero gives an exact copy
 * @param[in] axis_line  the directed line of axis 3; null, or with its points within 1e-7 of each other, it turns
 *   nothing
 * @param[in] in  the point
 * @param[out] out  the turned point; may be in; untouched when in or out is null
 */
KX_API void KX_CALL kx_rotatepnt3d(int32_t axis, double angle_deg, const line_3d *axis_line, const pnt_3d *in,
                                   pnt_3d *out);

/**
 * Scales a point about a fixed point, with the factor rule of kx_scalematrix2d.
 * @param[in] sx,sy  the factors along x and y
 * @param[in] fixed  the point that stays
 * @param[in] in  the point
 * @param[out] out  the scaled point; may be in or fixed; untouched when an argument is null
 */
KX_API void KX_CALL kx_scalepnt2d(double sx, double sy, const pnt_2d *fixed, const pnt_2d *in, pnt_2d *out);

/**
 * Scales a point about a fixed point, with the factor rule of kx_scalematrix3d.
 * @param[in] sx,sy,sz  the factors along x, y and z
 * @param[in] fixed  the point that stays
 * @param[in] in  the point
 * @param[out] out  the scaled point; may be in or fixed; untouched when an argument is null
 * @return 0 always
 */
KX_API int32_t KX_CALL kx_scalepnt3d(double sx, double sy, double sz, const pnt_3d *fixed, const pnt_3d *in,
                                     pnt_3d *out);

/**
 * Copies a list of plane points through a plane matrix. The first item's kind decides for the list: of pnt_2d and
 * poly_2d every item with data is copied (its seqnr kept); of any other kind the copy is empty. A point that finds no
 * memory is reported and left out, the others follow.
 * @param[in] m[9]  the matrix
 * @param[in,out] polygon  the points; the current item ends at the head
 * @return the new list, its current item the last, to be freed by kx_purge_polygon; null when the input is null or
 *   empty, m is null, or there is no memory for the list
 */
KX_API list_hdr *KX_CALL kx_transfpolygon(const double *m, list_hdr *polygon);

/**
 * Appends the images of space vertices to another list. Every item of in is read as a poly_3d, whatever its tag, and
 * copied with its seqnr, as tag 63; one without data, or known to be a smaller record, is passed over. A vertex that
 * finds no memory is reported as "kx_create_poly_3D", or by the list, and left out, the others follow.
 * @param[in] m[16]  the matrix
 * @param[in,out] in  the vertices; the current item ends at the head
 * @param[in,out] out  the list that grows; its current item ends at the last image. May be in, whose images then follow
 *   it; does nothing when any argument is null
 */
KX_API void KX_CALL kx_transform_pnt_set(const double *m, list_hdr *in, list_hdr *out);

/**
 * Copies a list of space points through a space matrix. The first item's kind decides for the list: of pnt_3d and
 * poly_3d every item with data is copied (its seqnr kept). A record that finds no memory is left out without a message.
 * @param[in] m[16]  the matrix
 * @param[in,out] polyline  the points; the current item ends at the head
 * @return the new list, its current item the last, to be freed by kx_purge_polygon; null when nothing came into it: the
 *   input is null, empty or of another kind, m is null, or there is no memory
 */
KX_API list_hdr *KX_CALL kx_transform_polyline_3d(const double *m, list_hdr *polyline);

/* ---- matrix store ---- */

/**
 * Stores a plane matrix under a number. The search goes from the current item to the tail; the first record of that
 * number takes the matrix and becomes current. When there is none, the last record takes the number and the matrix and
 * is appended to the list once more, as the current item; a store without records gets a new one.
 * @param[in,out] store  a list of matrixrec2d
 * @param[in] id  the number
 * @param[in] matrix[9]  the matrix
 * @return 0 stored; 1 store or matrix is null; 80 after a memory message ("kx_create_matrixrec2d" and
 *   "kx_storematrix2d", or the list's), the records unchanged
 */
KX_API int32_t KX_CALL kx_storematrix2d(list_hdr *store, int32_t id, const double *matrix);

/**
 * Stores a space matrix under a number, as kx_storematrix2d, but a match on the last item is appended once more, too.
 * @param[in,out] store  a list of matrixrec3d
 * @param[in] id  the number
 * @param[in] matrix[16]  the matrix
 * @return 0 stored; 1 store or matrix is null; 80 after a memory message ("kx_create_matrixrec3d" and
 *   "storematrix3d", or the list's), the records unchanged
 */
KX_API int32_t KX_CALL kx_storematrix3d(list_hdr *store, int32_t id, const double *matrix);

/**
 * Reads a plane matrix back. The search goes from head to tail.
 * @param[in,out] store  a list of matrixrec2d; the record found becomes current, the head when there is none
 * @param[in] id  the number
 * @param[out] out[9]  untouched on 1
 * @return 0 found; 1 no such number, the store is null or empty, or out is null
 */
KX_API int32_t KX_CALL kx_restorematrix2d(list_hdr *store, int32_t id, double *out);

/**
 * Reads a space matrix back. The search goes from head to tail.
 * @param[in,out] store  a list of matrixrec3d; the record found becomes current, the head when there is none
 * @param[in] id  the number
 * @param[out] out[16]  untouched on 1
 * @return 0 found; 1 no such number, the store is null or empty, or out is null
 */
KX_API int32_t KX_CALL kx_restorematrix3d(list_hdr *store, int32_t id, double *out);

/**
 * Frees a store with all its records; one that hangs in it more than once is freed once.
 * @param[in] store  the store, of either kind; left as it is on 6
 * @return 0 freed; 6 null or empty
 */
KX_API int32_t KX_CALL kx_disposematrix2d(list_hdr *store);

/**
 * The same function as kx_disposematrix2d.
 * @param[in] store  the store, of either kind; left as it is on 6
 * @return 0 freed; 6 null or empty
 */
KX_API int32_t KX_CALL kx_disposematrix3d(list_hdr *store);

/* ---- band solver ---- */

/**
 * Factors a band matrix into L*U in place, without pivoting; made for the diagonally dominant systems of curve
 * interpolation. With n 1 or m 0 nothing is done.
 * @param[in,out] band[n*(m+m+1)]  n rows: element (i, j), counted from 0, at i*(2m+1) + m + (j-i); what lies
 * outside of the matrix is not touched. Afterwards L (its diagonal of ones not stored) and U; half done on 1
 * @param[in] n  rows, 1 or more
 * @param[in] m  half-bandwidth, 0 or more; may be n or more
 * @return 0; 1 when a pivot is within 1e-11 of zero, n or m is out of range, or band is null
 */
KX_API int32_t KX_CALL kx_ludecomposition(double *band, int32_t n, int32_t m);

/**
 * Solves a band system that kx_ludecomposition has factored. Pivots are not tested: one of zero gives infinities or
 * NaN.
 * @param[in] band[n*(m+m+1)]  the factors
 * @param[in] n,m  rows and half-bandwidth, as for kx_ludecomposition; out of range nothing is done
 * @param[in,out] b[n]  the right-hand side; overwritten by the forward substitution
 * @param[out] x[n]  the solution; may be b
 * @return 0 always, also when a pointer is null and nothing is done
 */
KX_API int32_t KX_CALL kx_forbacksubstitution(const double *band, int32_t n, int32_t m, double *b, double *x);

/* ---- coordinates ---- */

/* One point of space in four kinds of coordinates, all about the origin; angles are in radians.
 * - rectangular, pnt_3d: x, y, z
 * - cylindrical, cylcoord: x = r*cos(theta), y = r*sin(theta), z
 * - spherical, sphercoord: x = r*sin(phi)*cos(theta), y = r*sin(phi)*sin(theta), z = r*cos(phi)
 * - direction coordinates, polarcoord: x = r*cos(alpha), y = r*cos(beta), z = r*cos(gamma)
 * What comes out has r from 0, theta from 0 to a full turn and the other angles from 0 to half a turn, whatever went
 * in, save where noted. On the z axis theta is 0, at the origin every angle is. There and back again gives the same
 * point to rounding: to a few units in the last place of its distance from the origin. Infinite coordinates and NaN
 * give what IEEE arithmetic makes of them.
 */

/**
 * Converts cylindrical coordinates to direction ones.
 * @param[in] cyl  the point
 * @param[out] polar  the same point; untouched unless 0 is returned
 * @return 0; 1 when an argument is null
 */
KX_API int32_t KX_CALL kx_cyltopolar(const cylcoord *cyl, polarcoord *polar);

/**
 * Converts cylindrical coordinates to rectangular ones. Every angle will do, and a negative r.
 * @param[in] cyl  the point
 * @param[out] rect  the same point; untouched unless 0 is returned
 * @return 0; 1 when an argument is null
 */
KX_API int32_t KX_CALL kx_cyltorect(const cylcoord *cyl, pnt_3d *rect);

/**
 * Converts cylindrical coordinates to spherical ones. A theta from 0 to a full turn is kept as it is when r is not
 * negative.
 * @param[in] cyl  the point
 * @param[out] spher  the same point; untouched unless 0 is returned
 * @return 0; 1 when an argument is null
 */
KX_API int32_t KX_CALL kx_cyltospher(const cylcoord *cyl, sphercoord *spher);

/**
 * Converts direction coordinates to cylindrical ones. Goes by the point that kx_polartorect gives.
 * @param[in] polar  the point
 * @param[out] cyl  the same point; untouched unless 0 is returned
 * @return 0; 1 when an argument is null
 */
KX_API int32_t KX_CALL kx_polartocyl(const polarcoord *polar, cylcoord *cyl);

/**
 * Converts direction coordinates to rectangular ones. The three angles are taken as they are, also when no direction
 * has them all.
 * @param[in] polar  the point
 * @param[out] rect  the same point; untouched unless 0 is returned
 * @return 0; 1 when an argument is null
 */
KX_API int32_t KX_CALL kx_polartorect(const polarcoord *polar, pnt_3d *rect);

/**
 * Converts direction coordinates to spherical ones. Goes by the point that kx_polartorect gives.
 * @param[in] polar  the point
 * @param[out] spher  the same point; untouched unless 0 is returned
 * @return 0; 1 when an argument is null
 */
KX_API int32_t KX_CALL kx_polartospher(const polarcoord *polar, sphercoord *spher);

/**
 * Converts rectangular coordinates to cylindrical ones. z is kept as it is.
 * @param[in] rect  the point
 * @param[out] cyl  the same point; untouched unless 0 is returned
 * @return 0; 1 when an argument is null
 */
KX_API int32_t KX_CALL kx_recttocyl(const pnt_3d *rect, cylcoord *cyl);

/**
 * Converts rectangular coordinates to direction ones.
 * @param[in] rect  the point
 * @param[out] polar  the same point; untouched unless 0 is returned
 * @return 0; 1 when an argument is null
 */
KX_API int32_t KX_CALL kx_recttopolar(const pnt_3d *rect, polarcoord *polar);

/**
 * Converts rectangular coordinates to spherical ones.
 * @param[in] rect  the point
 * @param[out] spher  the same point; untouched unless 0 is returned
 * @return 0; 1 when an argument is null
 */
KX_API int32_t KX_CALL kx_recttospher(const pnt_3d *rect, sphercoord *spher);

/**
 * Converts spherical coordinates to cylindrical ones. The azimuth is kept as it is; a negative r stays negative. An
 * azimuth outside 0 to a full turn, then a polar angle outside 0 to half a turn, is reported and not converted; each
 * bound has the tolerance (bound + 1)*1e-7. The location in the messages is "kx_sphertocyl".
 * @param[in] spher  the point
 * @param[out] cyl  the same point; untouched unless 0 is returned
 * @return 0; 59 after the message SPHRTHETA, 60 after SPHRPHI, 1 when an argument is null
 */
KX_API int32_t KX_CALL kx_sphertocyl(const sphercoord *spher, cylcoord *cyl);

/**
 * Converts spherical coordinates to direction ones. An azimuth outside 0 to a full turn, then a polar angle outside 0
 * to half a turn, is reported and not converted; each bound has the tolerance (bound + 1)*1e-7. The location in the
 * messages is "kx_sphertocyl", on purpose.
 * @param[in] spher  the point
 * @param[out] polar  the same point; untouched unless 0 is returned
 * @return 0; 59 after the message SPHRTHETA, 60 after SPHRPHI, 1 when an argument is null
 */
KX_API int32_t KX_CALL kx_sphertopolar(const sphercoord *spher, polarcoord *polar);

/**
 * Converts spherical coordinates to rectangular ones. An azimuth outside 0 to a full turn, then a polar angle outside
 * 0 to half a turn, is reported and not converted; each bound has the tolerance (bound + 1)*1e-7. The location in the
 * messages is "kx_sphertorect".
 * @param[in] spher  the point
 * @param[out] rect  the same point; untouched unless 0 is returned
 * @return 0; 59 after the message SPHRTHETA, 60 after SPHRPHI, 1 when an argument is null
 */
KX_API int32_t KX_CALL kx_sphertorect(const sphercoord *spher, pnt_3d *rect);

/* ---- entity coordinates ---- */

/* The coordinates of an entity's own plane, as drawings store them: they share the world's origin, their z axis is the
 * plane's normal, and the normal alone gives the other two. With N the normal made unit length, the x axis points along
 * Wy x N when both |Nx| and |Ny| are below 1/64, otherwise along Wz x N, where Wy and Wz are the world's axes; the y
 * axis is N x the x axis. The normal (0, 0, 1) gives the world's own axes, (0, 0, -1) turns x and z round.
 * A normal whose length is 0 within 1e-7 or not finite is refused.
 */

/**
 * Takes a point from entity coordinates to the world's: the inverse of kx_wcs_to_ecs to rounding.
 * @param[in] normal  the normal of the entity's plane (an extrusion direction); of any length, only i, j, k are read
 * @param[in] in  the point in entity coordinates
 * @param[out] out  the same point in world coordinates; may be in; untouched unless 0 is returned
 * @return 0; 25 when the normal has no direction; 1 when an argument is null
 */
KX_API int32_t KX_CALL kx_ecs_to_wcs(const vector_3d *normal, const pnt_3d *in, pnt_3d *out);

/**
 * Takes a point from world coordinates to an entity's: the inverse of kx_ecs_to_wcs to rounding.
 * @param[in] normal  the normal of the entity's plane (an extrusion direction); of any length, only i, j, k are read
 * @param[in] in  the point in world coordinates
 * @param[out] out  the same point in entity coordinates, z along the normal; may be in; untouched unless 0 is returned
 * @return 0; 25 when the normal has no direction; 1 when an argument is null
 */
KX_API int32_t KX_CALL kx_wcs_to_ecs(const vector_3d *normal, const pnt_3d *in, pnt_3d *out);

/**
 * The point of a plane where the plane's own x and y are 0: the foot of the perpendicular from the world's origin. In
 * the plane's entity coordinates it is (0, 0, elevation).
 * @param[in] plane  the plane, normalised or not
 * @param[out] origin  the point in world coordinates; untouched unless 0 is returned
 * @return 0; 25 when the plane has no normal; 1 when an argument is null
 */
KX_API int32_t KX_CALL kx_get_ecs_origin(const planeeq *plane, pnt_3d *origin);

/**
 * Adds the move that lays a plane into the xy plane after what the matrix does already: a point of the plane gets its
 * entity coordinates x and y, and its signed distance from the plane, along the normal, as z. Lengths and angles stay.
 * kx_getinversematrix3d leads back.
 * @param[in] plane  the plane, normalised or not
 * @param[in,out] matrix[16]  untouched unless 0 is returned
 * @return 0; 25 when the plane has no normal; 1 when an argument is null
 */
KX_API int32_t KX_CALL kx_plane_to_xy(const planeeq *plane, double *matrix);

/* ---- viewing ---- */

/* A viewer stands off the origin and looks at it. Seen coordinates have x to the right, y upwards and z away from the
 * viewer, the depth; lengths stay as they are. */

/**
 * Adds the change from world to seen coordinates after what the matrix does already: the eye goes to the origin, the
 * origin to (0, 0, r), and the z axis of the world points upwards.
 * A viewer straight above (theta and phi 0 within 1e-7) has no upwards and keeps x and y; one straight below (theta 0,
 * phi half a turn) keeps x and has y downwards. A theta of any number of turns will do; a full turn, unlike 0, does
 * not make a viewer straight above.
 * @param[in] viewer  where the eye is: its distance r from the origin, its azimuth theta and its angle phi from the z
 *   axis, in radians; nothing is reported, whatever the angles are, and what is not finite gives what IEEE arithmetic
 *   makes of it
 * @param[in,out] matrix[16]  does nothing when an argument is null
 */
KX_API void KX_CALL kx_viewmatrix3d(const sphercoord *viewer, double *matrix);

/**
 * Sees a point in perspective, on the plane at depth 1. A point at depth 0 divides by zero, as IEEE arithmetic has it;
 * one behind the eye has a negative depth.
 * @param[in] p  the point
 * @param[in] eye  taken off the point before the matrix is applied: the eye for a matrix that only turns (that of a
 *   viewer with r = 0), the origin for one that moves the eye to the origin by itself
 * @param[in] view[16]  a matrix as made by kx_viewmatrix3d
 * @param[out] out[3]  x/z, y/z and z of the seen point; may be p or eye; untouched when an argument is null
 * @return out; null when an argument is null
 */
KX_API double *KX_CALL kx_perspective(const pnt_3d *p, const pnt_3d *eye, const double *view, double *out);

/**
 * Maps a point from a window onto a viewport: the window's corner (x1, y1) falls on the viewport's, (x2, y2) likewise.
 * A window without width or height divides by zero, and infinities or NaN come out, as IEEE arithmetic has them.
 * @param[in] window  the rectangle mapped from
 * @param[in] viewport  the rectangle mapped to; corners may be exchanged to mirror
 * @param[in] p  the point
 * @param[out] out  its image; may be p; untouched when an argument is null
 */
KX_API void KX_CALL kx_windowtransform(const rect_2d *window, const rect_2d *viewport, const pnt_2d *p, pnt_2d *out);

/**
 * Copies a list of plane points from a window onto a viewport, each as by kx_windowtransform. Items without data, and
 * those of a kind too small for a poly_2d, are left out; a point that finds no memory is reported and left out, the
 * others follow.
 * @param[in,out] points  the points, poly_2d; the current item ends at the head
 * @param[in] viewport  the rectangle mapped to
 * @param[in] window  the rectangle mapped from
 * @return the new list of poly_2d with their seqnr, its current item the last, to be freed by kx_purge_polygon; null
 *   when the input is null or empty, a rectangle is null, or there is no memory for the list
 */
KX_API list_hdr *KX_CALL kx_viewplanetrf(list_hdr *points, const rect_2d *viewport, const rect_2d *window);

#ifdef __cplusplus
}
#endif

#endif
