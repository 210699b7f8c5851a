/* Geometry: points along circles, arcs and ellipses, as close as a tolerance asks for.
 *
 * Common to all functions here:
 * - The points are appended to the caller's list as poly_2d, numbered on from the last one's seqnr (from 0 in an empty
 *   list); the last point appended becomes current. A call appends all its points or, with any status but 0, none, and
 *   then leaves list and current item as they were. A list is judged by its first and last item: both poly_2d.
 * - tol is the largest distance between an arc and its chord. One that is NaN or not above 1e-7 stands for a thousandth
 *   of the radius. No chord spans more than 120 degrees, whatever tol is, so a circle stays a polygon, and no call
 * makes more than 1 000 000 chords: where tol asks for more, the chords are longer.
 * - Angles are in degrees, counter-clockwise from x. A sweep of 360 degrees (within 1e-7) or more, either sign, is one
 *   whole turn, and its last point then equals its first bit for bit. Multiples of 90 degrees are met exactly.
 */
#ifndef KXGEOM_GEOMETRY_H
#define KXGEOM_GEOMETRY_H

#include "kxgeom/export.h"
#include "kxgeom/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- arc points ---- */

/**
 * How many points, one more than chords, an arc needs so that no chord leaves it by more than a tolerance.
 * The count is the least possible: with one chord fewer, of at most 120 degrees each, the tolerance is exceeded.
 * @param[in] radius  radius of the arc
 * @param[in] sweep_deg  its sweep in degrees, of either sign
 * @param[in] tol  largest distance between arc and chord
 * @return the count, 2 to 1 000 001; 1 for a sweep of 0; 0 when the radius is not above 1e-7 or it or the sweep is not
 *   finite
 */
KX_API int32_t KX_CALL kx_arc_pntcount(double radius, double sweep_deg, double tol);

/**
 * Appends the points of an arc, both ends included, evenly spaced; their number is that of kx_arc_pntcount.
 * @param[in] circle  centre and radius
 * @param[in] start_deg  where the arc starts, in degrees
 * @param[in] sweep_deg  how far it goes, in degrees: counter-clockwise when positive; 0 gives the start point alone
 * @param[in] tol  largest distance between arc and chord
 * @param[in,out] pnts  list of poly_2d, or empty
 * @return 0; 1 null argument or a list of another kind; 3 radius not above 1e-7, or centre, extent, radius or angle not
 *   finite; 80 no memory
 */
KX_API int32_t KX_CALL kx_arcpnts_2d(const circle_2d *circle, double start_deg, double sweep_deg, double tol,
                                     list_hdr *pnts);

/**
 * Appends the points of a whole circle, counter-clockwise from its rightmost point; the last point equals the first.
 * @param[in] circle  centre and radius
 * @param[in] tol  largest distance between circle and chord
 * @param[in,out] pnts  list of poly_2d, or empty
 * @return 0; 1 null argument or a list of another kind; 3 radius not above 1e-7, or centre, extent or radius not
 * finite; 80 no memory
 */
KX_API int32_t KX_CALL kx_circlepnts_2d(const circle_2d *circle, double tol, list_hdr *pnts);

/**
 * The arc of a polyline segment with a bulge. Reversing the segment and the bulge's sign gives the same circle.
 * @param[in] from,to  the ends of the segment
 * @param[in] bulge  tangent of a quarter of the included angle; positive when the arc runs counter-clockwise
 * @param[out] circle  centre and radius; the outputs are untouched with any status but 0
 * @param[out] start_deg  direction from the centre to `from` in degrees, -180 to 180
 * @param[out] sweep_deg  the included angle in degrees with the bulge's sign: what kx_arcpnts_2d takes
 * @return 0; 1 null argument; 2 the points are within 1e-7 of each other; 3 radius not above 1e-7, anything not finite,
 *   or a bulge within 1e-7 of zero: a straight segment has no circle
 */
KX_API int32_t KX_CALL kx_arc_bulge_2d(const pnt_2d *from, const pnt_2d *to, double bulge, circle_2d *circle,
                                       double *start_deg, double *sweep_deg);

/**
 * Appends the points of a polyline segment after `from` up to `to`, which is met bit for bit. A bulge within 1e-7 of
 * zero makes a straight segment, however short: `to` alone is appended.
 * @param[in] from,to  the ends of the segment
 * @param[in] bulge  tangent of a quarter of the included angle; positive when the arc runs counter-clockwise
 * @param[in] tol  largest distance between arc and chord
 * @param[in,out] pnts  list of poly_2d, or empty
 * @return 0; 1 null argument or a list of another kind; 2 an arc whose points are within 1e-7 of each other; 3 radius
 *   not above 1e-7, or anything not finite; 80 no memory
 */
KX_API int32_t KX_CALL kx_bulgepnts_2d(const pnt_2d *from, const pnt_2d *to, double bulge, double tol, list_hdr *pnts);

/* ---- ellipse points ---- */

/**
 * Appends the points of a whole ellipse, counter-clockwise from the end of axis a; the last point equals the first.
 * The points are those of kx_elliptic_arc_2d with the sweep 360.
 * @param[in] ellipse  centre and semi-axes a and b, in any order of size; the two further values are not read
 * @param[in] axis_deg  how far axis a is turned from x about the centre, in degrees
 * @param[in] tol  largest distance between ellipse and chord
 * @param[in,out] pnts  list of poly_2d, or empty
 * @return 0; 1 null argument or a list of another kind; 3 an axis not above 1e-7, or centre, extent, axis or angle not
 *   finite; 80 no memory
 */
KX_API int32_t KX_CALL kx_ellipsepnts_2d(const ellipse_2d *ellipse, double axis_deg, double tol, list_hdr *pnts);

/**
 * Appends the points of an elliptic arc, both ends included. The point at the eccentric angle u is the centre plus
 * (a cos u, b sin u) turned by axis_deg. The points are evenly spaced in u, as many as kx_arc_pntcount gives for the
 * longer semi-axis: the tolerance is used up at the ends of that axis, elsewhere the chords are closer.
 * @param[in] ellipse  centre and semi-axes a and b, in any order of size; the two further values are not read
 * @param[in] axis_deg  how far axis a is turned from x about the centre, in degrees
 * @param[in] start_deg  eccentric angle where the arc starts, in degrees
 * @param[in] sweep_deg  how far it goes, in degrees: counter-clockwise when positive; 0 gives the start point alone
 * @param[in] tol  largest distance between arc and chord
 * @param[in,out] pnts  list of poly_2d, or empty
 * @return 0; 1 null argument or a list of another kind; 3 an axis not above 1e-7, or centre, extent, axis or angle not
 *   finite; 80 no memory
 */
KX_API int32_t KX_CALL kx_elliptic_arc_2d(const ellipse_2d *ellipse, double axis_deg, double start_deg,
                                          double sweep_deg, double tol, list_hdr *pnts);

#ifdef __cplusplus
}
#endif

#endif
