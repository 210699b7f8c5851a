/* Geometry: lines of the plane and of space, planes, vectors, directions, and points along circles and ellipses.
 *
 * Common to all functions here:
 * - One fixed tolerance, 1e-7. Near zero means |v| <= 1e-7; u equals v when |u - v| <= (|v| + 1) * 1e-7. A parameter
 *   lies on a segment from -1e-7 to 1.0000002: above 1 the bound is that of equality, twice as wide, on purpose.
 * - Points coincide when each coordinate differs by 1e-7 at most, whatever its size.
 * - An ile_2d is the line a*x + b*y + c = 0. It is normalised when a*a + b*b = 1, c <= 0 and, where c is near zero,
 *   b >= 0; only then a*x + b*y + c is a distance: positive on the side of the line away from the origin. A ple_2d is
 *   the line of the points (x0 + t*dx, y0 + t*dy). A segment is a line_2d, from (x1, y1) to (x2, y2).
 * - Angles are in degrees, counter-clockwise from the positive x axis, where nothing else is said.
 * - Nothing is shown in a message box but the memory message and what a comment names; nothing is kept between calls.
 *   An output is written only when the function succeeds.
 * - Null arguments: a status function answers 1, any other 0 or 0.0. An argument that the mode does not ask for is not
 *   looked at. Coordinates that are NaN or infinite give no crossing, no hit, or numbers that are not finite either.
 */
#ifndef KXGEOM_GEOMETRY_H
#define KXGEOM_GEOMETRY_H

#include "kxgeom/export.h"
#include "kxgeom/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- line equations ---- */

/**
 * Makes the equation of the line through two points: the ple_2d for mode 1, the ile_2d for every other mode; no mode is
 * refused. See kx_lineeq_ile and kx_lineeq_ple.
 * @param[in] mode  1 or anything else
 * @param[in] p1,p2  the points
 * @param[out] ile  written unless mode is 1
 * @param[out] ple  written when mode is 1
 * @return 0; 2 when the points coincide; 1 with a null argument
 */
KX_API int32_t KX_CALL kx_lineequation(int32_t mode, const pnt_2d *p1, const pnt_2d *p2, ile_2d *ile, ple_2d *ple);

/**
 * Makes the implicit line through two points, not normalised: a = -dy, b = dx, c = x1*y2 - y1*x2. The equation is
 * negative for points to the right of the way from the first to the second.
 * @param[in] p1,p2  the points
 * @param[out] line  untouched unless the result is 0
 * @return 0; 2 when the points coincide; 1 with a null argument
 */
KX_API int32_t KX_CALL kx_lineeq_ile(const pnt_2d *p1, const pnt_2d *p2, ile_2d *line);

/**
 * Makes the parametric line through two points; its parameter is 0 at the first and 1 at the second.
 * @param[in] p1,p2  the points
 * @param[out] line  untouched unless the result is 0
 * @return 0; 2 when the points coincide; 1 with a null argument
 */
KX_API int32_t KX_CALL kx_lineeq_ple(const pnt_2d *p1, const pnt_2d *p2, ple_2d *line);

/**
 * Converts a line. To the parametric form: with s = 1/(a*a + b*b) the point (-s*c*a, -s*c*b), the line's nearest to the
 * origin, and the unit vector (b, -a)*sqrt(s). Where 1 - a + b is near zero s is 1 instead, on purpose: point and
 * direction are then not scaled, and the point lies on the line only if a*a + b*b = 1. To the implicit form:
 * (-dy, dx, x0*dy - y0*dx), not normalised.
 * @param[in] mode  0 from ile to ple, 1 from ple to ile
 * @param[in,out] ile  read in mode 0; written in mode 1
 * @param[in,out] ple  written in mode 0, untouched unless the result is 0; read in mode 1
 * @return 0; 3 in mode 0 when a and b are both near zero; 1 for another mode or a null argument
 */
KX_API int32_t KX_CALL kx_convlineeq(int32_t mode, ile_2d *ile, ple_2d *ple);

/**
 * Normalises a line in place: kx_normal_ile for mode 0, kx_normal_ple for mode 1.
 * @param[in] mode  0 or 1
 * @param[in,out] ile  the line of mode 0
 * @param[in,out] ple  the line of mode 1
 * @return that function's result; 1 for another mode
 */
KX_API int32_t KX_CALL kx_normalizeline(int32_t mode, ile_2d *ile, ple_2d *ple);

/**
 * Normalises an implicit line in place: (a, b) becomes a unit vector that points from the origin to the line; for a
 * line through the origin b is not negative.
 * @param[in,out] line  the line; as it was unless the result is 0
 * @return 0; 3 when a*a + b*b is near zero; 1 with a null argument
 */
KX_API int32_t KX_CALL kx_normal_ile(ile_2d *line);

/**
 * Makes the direction of a parametric line a unit vector; the point stays.
 * @param[in,out] line  the line; as it was unless the result is 0
 * @return 0; 4 when dx*dx + dy*dy is near zero; 1 with a null argument
 */
KX_API int32_t KX_CALL kx_normal_ple(ple_2d *line);

/**
 * Gives the slope dy/dx of a segment, exactly 0.0 when dy is near zero.
 * @param[in] segment  the segment
 * @param[out] slope  the slope; 1.7e+200 with the results 7 and 8
 * @return 0; 8 for a vertical segment, dx near zero; 7 when the ends coincide; 1 with a null argument
 */
KX_API int32_t KX_CALL kx_slope(const line_2d *segment, double *slope);

/**
 * Gives the x of a line: kx_abscissa_ile for mode 0, kx_abscissa_ple for mode 1.
 * @param[in] mode  0 or 1
 * @param[in] ile  the line of mode 0
 * @param[in] ple  the line of mode 1
 * @param[in] v  y in mode 0, the parameter in mode 1
 * @return x; 0.0 for another mode
 */
KX_API double KX_CALL kx_abscissa(int32_t mode, const ile_2d *ile, const ple_2d *ple, double v);

/**
 * Gives the x of an implicit line where it has the given y: -(b*y + c)/a.
 * @param[in] line  the line
 * @param[in] y  the ordinate
 * @return x; 0.0 when a is near zero
 */
KX_API double KX_CALL kx_abscissa_ile(const ile_2d *line, double y);

/**
 * Gives the x of a parametric line at a parameter: x0 + t*dx.
 * @param[in] line  the line
 * @param[in] t  the parameter, not a coordinate
 * @return x
 */
KX_API double KX_CALL kx_abscissa_ple(const ple_2d *line, double t);

/**
 * Gives the y of a line: kx_ordinate_ile for mode 0, kx_ordinate_ple for mode 1.
 * @param[in] mode  0 or 1
 * @param[in] ile  the line of mode 0
 * @param[in] ple  the line of mode 1
 * @param[in] v  x in mode 0, the parameter in mode 1
 * @return y; 0.0 for another mode
 */
KX_API double KX_CALL kx_ordinate(int32_t mode, const ile_2d *ile, const ple_2d *ple, double v);

/**
 * Gives the y of an implicit line where it has the given x: -(a*x + c)/b.
 * @param[in] line  the line
 * @param[in] x  the abscissa
 * @return y; 0.0 when b is near zero
 */
KX_API double KX_CALL kx_ordinate_ile(const ile_2d *line, double x);

/**
 * Gives the y of a parametric line at a parameter: y0 + t*dy.
 * @param[in] line  the line
 * @param[in] t  the parameter, not a coordinate
 * @return y
 */
KX_API double KX_CALL kx_ordinate_ple(const ple_2d *line, double t);

/* ---- line distances ---- */

/**
 * Gives the distance of two points, however small.
 * @param[in] p,q  the points
 * @return the distance
 */
KX_API double KX_CALL kx_distance(const pnt_2d *p, const pnt_2d *q);

/**
 * Gives the distance of two points in space, exactly 0.0 when they coincide.
 * @param[in] p,q  the points
 * @return the distance
 */
KX_API double KX_CALL kx_distance_3d(const pnt_3d *p, const pnt_3d *q);

/**
 * Gives a*x + b*y + c for a point: its signed distance when the line is normalised, which is not done here.
 * @param[in] p  the point
 * @param[in] line  the line, as it stands
 * @return the value
 */
KX_API double KX_CALL kx_distpntln_ile(const pnt_2d *p, const ile_2d *line);

/**
 * Gives the signed distance of a point from the carrier of a segment: positive on the side away from the origin,
 * negative on the origin's side; for a carrier through the origin positive above it, or, when it is upright, to
 * the left of the way from start to end.
 * @param[in] p  the point
 * @param[in] segment  the segment
 * @return the distance; that from the start, never negative, when the ends coincide; 0.0 for another segment so short
 *   that the square of its length is near zero
 */
KX_API double KX_CALL kx_distpntln_ls(const pnt_2d *p, const line_2d *segment);

/**
 * Gives the distance of a point from a line. Mode 0: as kx_distpntln_ile. Mode 1: from the ple, never negative. Mode 2:
 * signed, from the line through two points, as kx_distpntln_ls but 0.0 when they coincide.
 * @param[in] mode  0, 1 or 2
 * @param[in] p  the point
 * @param[in] start,end  the points of mode 2
 * @param[in] ile  the line of mode 0
 * @param[in] ple  the line of mode 1
 * @return the distance; 0.0 for another mode, or when the square of the length of direction or segment is near zero
 */
KX_API double KX_CALL kx_distpntline(int32_t mode, const pnt_2d *p, const pnt_2d *start, const pnt_2d *end,
                                     const ile_2d *ile, const ple_2d *ple);

/* ---- points on lines ---- */

/**
 * Gives the point halfway between two points.
 * @param[in] p,q  the points
 * @param[out] middle  the point; may be one of the two
 * @return 0; 1 with a null argument
 */
KX_API int32_t KX_CALL kx_midpoint(const pnt_2d *p, const pnt_2d *q, pnt_2d *middle);

/**
 * Divides a segment in the ratio m : n, counted from its start. A negative ratio gives the outer division.
 * @param[in] segment  the segment
 * @param[in] m,n  the ratio; 1 and 1 give the middle, 0 and 1 the start
 * @param[out] point  the point start + m/(m + n)*(end - start); untouched unless the result is 0
 * @return 0; 3 when m + n is near zero or not finite; 1 with a null argument
 */
KX_API int32_t KX_CALL kx_pointdvln(const line_2d *segment, double m, double n, pnt_2d *point);

/**
 * Gives the point of a segment's carrier at a distance from its start, towards its end.
 * @param[in] segment  the segment
 * @param[in] distance  any number; a negative one leads away from the end
 * @param[out] point  the point; untouched unless the result is 0
 * @return 0; 2 when the ends coincide; 1 with a null argument
 */
KX_API int32_t KX_CALL kx_point_on_line(const line_2d *segment, double distance, pnt_2d *point);

/**
 * Tells whether a point lies on a segment: no further than 1e-7 from its carrier (from its start, when the ends
 * coincide), and within the upright rectangle over its ends, each side widened by the tolerance of its own coordinate,
 * as by kx_inbetween. The ends lie on it.
 * @param[in] p  the point
 * @param[in] segment  the segment, in either direction
 * @return 1 or 0
 */
KX_API int32_t KX_CALL kx_pointonline(const pnt_2d *p, const line_2d *segment);

/**
 * Tells on which side of a segment's carrier a point lies, seen from the start towards the end.
 * kx_lineloc changes its sign when the segment is turned round.
 * @param[in] segment  the segment
 * @param[in] p  the point
 * @return 1 to the left, -1 to the right; 0 no further than 1e-7 from the carrier, or when the ends coincide
 */
KX_API int32_t KX_CALL kx_lineloc(const line_2d *segment, const pnt_2d *p);

/**
 * Turns a segment round when its end stands before its start in the order of kx_smallerpnt: by x, then by y.
 * @param[in,out] segment  the segment
 * @return 1 when it was turned, 0 when it was not
 */
KX_API int32_t KX_CALL kx_orient_line(line_2d *segment);

/* ---- line angles ---- */

/**
 * Gives the acute angle between two lines. With k the magnitude of the cosine: mode 0 degrees, mode 1 radians, mode 2 k
 * itself; any other mode the arc cosine of k*0.01745329252 in radians, the factor on the cosine on purpose.
 * @param[in] mode  0, 1, 2 or another
 * @param[in] first,second  the lines, normalised or not; they are not changed
 * @return the angle; 90.0, 1.5707963268, 0.0 and 1.5707963268 in the four cases when k is near zero; 0.0 when a line
 *   cannot be normalised
 */
KX_API double KX_CALL kx_angletwolines(int32_t mode, const ile_2d *first, const ile_2d *second);

/**
 * Gives the counter-clockwise sweep from one angle to another, both of 0 to 360 degrees. An a2 equal to a1, or less
 * only within tolerance, gives about 0, not 360.
 * @param[in] a1,a2  the angles in degrees
 * @return a2 - a1, or a2 + (360 - a1) when a1 > a2 + (|a2| + 1) * 1e-7
 */
KX_API double KX_CALL kx_angle_diff(double a1, double a2);

/**
 * Gives the cosine of the angle between the directions of two segments, each from its start to its end.
 * @param[in] first,second  the segments
 * @return -1.0 to 1.0; exactly 0.0 when it is near zero, and when the ends of a segment coincide
 */
KX_API double KX_CALL kx_angle_lines_cos(const line_2d *first, const line_2d *second);

/**
 * Gives the angle between the directions of two segments in degrees. kx_angle_lines_deg(s, t) = kx_angle_lines_deg(t,
 * s); turning one segment round gives 180 degrees less the angle.
 * @param[in] first,second  the segments
 * @return 0.0 to 180.0; exactly 90.0 when the cosine is near zero; 0.0 when the ends of a segment coincide
 */
KX_API double KX_CALL kx_angle_lines_deg(const line_2d *first, const line_2d *second);

/**
 * Gives the angle between the directions of two segments in radians, otherwise as kx_angle_lines_deg.
 * @param[in] first,second  the segments
 * @return 0.0 to pi; exactly 1.5707963268 when the cosine is near zero; 0.0 when the ends of a segment coincide
 */
KX_API double KX_CALL kx_angle_lines_rad(const line_2d *first, const line_2d *second);

/* ---- parallels and perpendiculars ---- */

/**
 * Gives the two parallels of a line at a distance, one on each side: (a, b, c + e) and (a, b, c - e) with
 * e = sqrt(a*a + b*b)*|distance|. The outputs may be the line itself; nothing happens with a null argument.
 * @param[in] line  the line, normalised or not
 * @param[in] distance  how far; the sign does not count
 * @param[out] first,second  the parallels
 */
KX_API void KX_CALL kx_parallellines(const ile_2d *line, double distance, ile_2d *first, ile_2d *second);

/**
 * Tells whether two segments are perpendicular: one vertical and the other's slope near zero, or the product of their
 * slopes within 2e-7 of -1.
 * @param[in] first,second  the segments
 * @return 1 or 0; 0 when the ends of a segment coincide
 */
KX_API int32_t KX_CALL kx_perpendicular(const line_2d *first, const line_2d *second);

/**
 * Gives the line through a point at right angles to a line: (b, -a, a*y - b*x). Nothing happens with a null argument.
 * @param[in] line  the line
 * @param[in] p  the point
 * @param[out] perpendicular  the line through the point; may be the line itself
 */
KX_API void KX_CALL kx_linepntperpend(const ile_2d *line, const pnt_2d *p, ile_2d *perpendicular);

/**
 * Gives the line through a point parallel to a line: (a, b, -(a*x + b*y)). Nothing happens with a null argument. The
 * result comes first here.
 * @param[out] parallel  the line through the point; may be the line itself
 * @param[in] p  the point
 * @param[in] line  the line
 */
KX_API void KX_CALL kx_linepntparallel(ile_2d *parallel, const pnt_2d *p, const ile_2d *line);

/**
 * Gives the perpendicular bisector of two points, not normalised: its equation is positive on the first point's side.
 * @param[in] p1,p2  the points
 * @param[out] bisector  the line; untouched unless the result is 0
 * @return 0; 2 when the points coincide; 1 with a null argument
 */
KX_API int32_t KX_CALL kx_linebisector(const pnt_2d *p1, const pnt_2d *p2, ile_2d *bisector);

/**
 * Gives the lines that are equally far from two lines: the bisectors of their acute and of their obtuse angle, or, for
 * parallel lines, the line midway between them. The bisectors are normalised and at right angles.
 * @param[in] line1,line2  the lines, normalised or not
 * @param[out] first  the bisector of the acute angle, or the line midway
 * @param[out] second  the bisector of the obtuse angle; untouched unless the result is 2
 * @return how many were written: 2; 1 when the sine of the angle is near zero; 0 when a line cannot be normalised
 */
KX_API int32_t KX_CALL kx_bisector_two_lines(const ile_2d *line1, const ile_2d *line2, ile_2d *first, ile_2d *second);

/* ---- line intersections ---- */

/* The point of every function here is untouched unless the result is 1. */

/**
 * Intersects two lines of the forms that the mode names: 0 both ile, 1 both ple, 2 first ile and first ple, 3 both
 * segments, 4 first ile and first segment, 5 first ple and first segment.
 * @param[in] mode  0 to 5
 * @param[in] ile1,ile2  implicit lines
 * @param[in] ple1,ple2  parametric lines
 * @param[in] segment1,segment2  segments
 * @param[out] point  the crossing
 * @param[out] count  the number of crossings, 0 or 1; 0 for another mode; may be null
 * @return the same number; for another mode the mode itself
 */
KX_API int32_t KX_CALL kx_intersect(int32_t mode, const ile_2d *ile1, const ile_2d *ile2, const ple_2d *ple1,
                                    const ple_2d *ple2, const line_2d *segment1, const line_2d *segment2, pnt_2d *point,
                                    int32_t *count);

/**
 * Intersects two implicit lines.
 * @param[in] first,second  the lines
 * @param[out] point  the crossing
 * @return 1; 0 when all three coefficients are the same within 1e-7, or a1*b2 - b1*a2 is near zero
 */
KX_API int32_t KX_CALL kx_intersect_ile(const ile_2d *first, const ile_2d *second, pnt_2d *point);

/**
 * Intersects two parametric lines. The crossing is computed on the first.
 * @param[in] first,second  the lines
 * @param[out] point  the crossing; a coordinate near zero is exactly 0.0
 * @return 1; 0 when dx2*dy1 - dy2*dx1 is near zero
 */
KX_API int32_t KX_CALL kx_intersect_ple(const ple_2d *first, const ple_2d *second, pnt_2d *point);

/**
 * Intersects an implicit and a parametric line.
 * @param[in] ile,ple  the lines
 * @param[out] point  the crossing
 * @return 1; 0 when a*dx + b*dy is near zero
 */
KX_API int32_t KX_CALL kx_intersect_pil(const ile_2d *ile, const ple_2d *ple, pnt_2d *point);

/**
 * Intersects two segments. The crossing must lie on both: each one's parameter from -1e-7 to 1.0000002. It is computed
 * on the first segment.
 * @param[in] first,second  the segments
 * @param[out] point  the crossing; a coordinate near zero is exactly 0.0
 * @return 1; 0 without a crossing, and when dy1*dx2 - dx1*dy2 is near zero, overlapping segments included
 */
KX_API int32_t KX_CALL kx_intersect_ls(const line_2d *first, const line_2d *second, pnt_2d *point);

/**
 * Intersects an implicit line and a segment. The crossing of line and carrier must lie within the upright rectangle
 * over the segment's ends, widened by the tolerance of its coordinates. A segment whose ends coincide is met only when
 * a*x + b*y equals -c to the last bit.
 * @param[in] ile  the line
 * @param[in] segment  the segment
 * @param[out] point  the crossing
 * @return 1 or 0
 */
KX_API int32_t KX_CALL kx_intersect_ils(const ile_2d *ile, const line_2d *segment, pnt_2d *point);

/**
 * Intersects a parametric line and a segment, like kx_intersect_ils. A segment whose ends coincide is met only when dx
 * and dy are not 0 and both (x - x0)/dx and (y - y0)/dy lie between -1e-7 and 1.0000002.
 * @param[in] ple  the line
 * @param[in] segment  the segment
 * @param[out] point  the crossing, on the line, a coordinate near zero exactly 0.0; or the segment's start
 * @return 1 or 0
 */
KX_API int32_t KX_CALL kx_intersect_pls(const ple_2d *ple, const line_2d *segment, pnt_2d *point);

/**
 * Intersects the segments between two pairs of points: kx_intersect_ls for whoever holds points.
 * @param[in] a1,a2  the ends of the first segment
 * @param[in] b1,b2  the ends of the second segment
 * @param[out] point  the crossing
 * @return 1 or 0
 */
KX_API int32_t KX_CALL kx_intersectls(const pnt_2d *a1, const pnt_2d *a2, const pnt_2d *b1, const pnt_2d *b2,
                                      pnt_2d *point);

/**
 * Tells fast whether two segments touch or cross: for each, the product of the sides on which the other's ends lie is
 * not above 1e-7. Segments on one line count, even when they do not meet.
 * @param[in] first,second  the segments
 * @return 1 or 0
 */
KX_API int32_t KX_CALL kx_intersectf(const line_2d *first, const line_2d *second);

/**
 * Intersects an implicit line and a coordinate axis.
 * @param[in] axis  1 the x axis, 2 the y axis
 * @param[in] line  the line
 * @param[out] point  the crossing; one coordinate is exactly 0.0
 * @return 1; 0 when the line's a (x axis) or b (y axis) is near zero, and for another axis
 */
KX_API int32_t KX_CALL kx_axisintersect(int32_t axis, const ile_2d *line, pnt_2d *point);

/**
 * Intersects a segment and a coordinate axis. The segment's parameter must lie between -1e-7 and 1.0000002.
 * @param[in] axis  1 the x axis, 2 the y axis
 * @param[in] segment  the segment
 * @param[out] point  the crossing; one coordinate is exactly 0.0, the other, when near zero, as well
 * @return 1; 0 without a crossing, for a segment along the axis (its dy or dx near zero), and for another axis
 */
KX_API int32_t KX_CALL kx_axisintersect_ls(int32_t axis, const line_2d *segment, pnt_2d *point);

/* ---- line relationship ---- */

/**
 * How segment b lies to segment a, as a code. The codes and their meanings do not change.
 *
 * On one line: both ends of b are within 1e-7 of a's carrier. The words show the ends in the order in which they follow
 * along a: a, A are a's start and end, b, B those of b; ends written together coincide. When a is a point, the order is
 * that along b.
 *
 *     with a        against a       with a        against a       identical, or with a point
 *     10  b aB A    20  B ab A      15  b a A B   25  B a A b     120  ab AB    aAbB (two points)
 *     11  b a B A   21  B a b A     16  ab A B    26  aB A b      121  aB Ab
 *     12  b a AB    22  B a Ab      17  a b AB    27  a B Ab        9  a bB A     8  b aA B
 *     13  ab B A    23  aB b A      18  a b A B   28  a B A b     122  abB A    124  aAb B
 *     14  a b B A   24  a B b A     19  a Ab B    29  a AB b      123  a AbB    125  b aAB
 *
 * Crossing: kx_intersect_ls finds a point, and b is not on a's line. The code is the sum of a number for the place of
 * the point on both segments and one for b's heading, counter-clockwise from a's direction:
 *
 *                 at b's start   at b's end   inside b          0  ahead and left    3  back and right
 *     at a's start     50           60          110             1  square left       4  square right
 *     at a's end       30           40          100             2  back and left     5  ahead and right
 *     inside a         70           80           90
 *
 * 0: neither crossing nor, on one line, having a point in common. Every pair has exactly one code:
 * - x, measured from a's start along a, is at the start when |x| <= 1e-7, at the end when x equals a's length, and at
 *   the start when both hold. Inside a, b is a point (9) when its ends are at most 1e-7 apart along a; at one of a's
 *   ends, when both its ends are there.
 * - A crossing is at a segment's start when it is at most 1e-7 behind it and at its end when it equals the length; one
 *   that kx_intersect_ls admits outside is at that end. Square means that b gains at most 1e-7 along a.
 *
 * Laws. Moving and turning the pair changes nothing. Away from the tolerance's limits:
 * - b reversed: 10 + n and 20 + n change places, and so do 120 and 121 (two points: 120), 124 and 125; of the
 *   crossings the first two columns, heading n becomes (n + 3) mod 6.
 * - a reversed: 10 + n and 20 + m change places, m being n with 0 9, 1 8, 2 6 and 3 7 exchanged; so do 120 and 121, 122
 *   and 123; of the crossings the first two rows, heading n becomes (n + 3) mod 6.
 * - The pair mirrored: heading n becomes 5 - n, all other codes stay.
 * - a and b exchanged: 10 + n becomes 19 - n, 20 + n exchanges 2 3, 4 5 and 6 7 in n; 9 and 8, 122 and 124, 123 and 125
 *   change places; of the crossings rows become columns, heading n becomes 5 - n.
 * @param[in] a,b  the segments
 * @param[out] pnt  the crossing point in the caller's coordinates, as kx_intersect_ls gives it; untouched with a code
 *   of one line or 0; null when only the code is wanted
 * @return the code; 0 also with a null segment, or one whose length squared is not finite
 */
KX_API int32_t KX_CALL kx_linerelationship(const line_2d *a, const line_2d *b, pnt_2d *pnt);

/* ---- directions ---- */

/**
 * Gives the direction from one point to another. Mode 0: the pseudo-angle, from 0 up to 4, the number of whole quarter
 * turns plus the tangent of half of what remains; comparing two of them compares the angles, at the cost of a root.
 * Mode 1: the angle in degrees, from 0 up to 360, of the same by kx_angleparmtan. A coordinate difference near zero
 * counts as 0: on the axes the answers are exactly 0, 1, 2, 3 and 0, 90, 180, 270.
 * @param[in] mode  0 or 1
 * @param[in] from  where one stands
 * @param[in] to  the point looked at
 * @return the direction; 0.0 when the points coincide, when a difference is not finite, and for another mode
 */
KX_API double KX_CALL kx_arcangle(int32_t mode, const pnt_2d *from, const pnt_2d *to);

/**
 * Converts a pseudo-angle to its angle; the inverse of kx_parmtanhangle. Whole numbers give exact quarter turns.
 * @param[in] radians  non-zero: the angle is in radians; zero: in degrees
 * @param[in] pseudo  the pseudo-angle; numbers outside 0 to 4 count by whole turns of 4
 * @return from 0 to a turn, 360 or 6.2831853072; 0.0 when the number is not finite
 */
KX_API double KX_CALL kx_angleparmtan(int32_t radians, double pseudo);

/**
 * Gives the point at an angle and a distance from a point; multiples of 90 degrees are met exactly.
 * @param[in] from  where one stands
 * @param[in] angle_deg  the angle in degrees
 * @param[in] distance  how far; a negative number leads the other way
 * @param[out] point  the point; may be the first; untouched unless the result is 0
 * @return 0; 3 when a number is not finite; 1 with a null argument
 */
KX_API int32_t KX_CALL kx_pntangledist(const pnt_2d *from, double angle_deg, double distance, pnt_2d *point);

/**
 * Gives the point in a direction of space and at a distance from a point; multiples of 90 degrees are met exactly.
 * @param[in] from  where one stands
 * @param[in] theta_deg  azimuth in the xy plane, in degrees
 * @param[in] phi_deg  angle from the +z axis in degrees: 0 leads up, 90 stays level
 * @param[in] distance  how far; a negative number leads the other way
 * @param[out] point  the point; may be the first; untouched unless the result is 0
 * @return 0; 3 when a number is not finite; 1 with a null argument
 */
KX_API int32_t KX_CALL kx_pntangledist_3d(const pnt_3d *from, double theta_deg, double phi_deg, double distance,
                                          pnt_3d *point);

/**
 * Makes the vector from one point to another: i and j the differences, length as by kx_distance, direction in degrees
 * as by kx_arcangle.
 * @param[in] from,to  the points, by value
 * @param[out] vector  untouched unless the result is 0
 * @return 0; 2 when the points coincide; 1 with a null argument
 */
KX_API int32_t KX_CALL kx_line_to_vector_2d(pnt_2d from, pnt_2d to, vector_2d *vector);

/**
 * Makes the segment that a vector spans from a point; the inverse of kx_line_to_vector_2d.
 * @param[in] from  the segment's start
 * @param[in] vector  its i and j
 * @param[out] segment  from the point to the point plus (i, j)
 * @return 0; 1 with a null argument
 */
KX_API int32_t KX_CALL kx_vector_to_line_2d(const pnt_2d *from, const vector_2d *vector, line_2d *segment);

/**
 * Gives the point from + t*(i, j).
 * @param[in] from  the point where the vector begins
 * @param[in] vector  its i and j
 * @param[in] t  how many times the vector; 1 gives its end
 * @param[out] point  the point; may be the first
 * @return 0; 1 with a null argument
 */
KX_API int32_t KX_CALL kx_point_on_vector(const pnt_2d *from, const vector_2d *vector, double t, pnt_2d *point);

/**
 * Scales a vector to the length 1; its direction field is that of (i, j) in degrees.
 * @param[in] vector  its i and j
 * @param[out] unit  the unit vector; may be the vector itself; untouched unless the result is 0
 * @return 0; 4 when the length is near zero; 1 with a null argument
 */
KX_API int32_t KX_CALL kx_unitvector2d(const vector_2d *vector, vector_2d *unit);

/**
 * Turns a vector by a quarter counter-clockwise: (-j, i). The length stays; both further fields are those of the
 * result.
 * @param[in] vector  its i and j
 * @param[out] normal  the turned vector; may be the vector itself
 * @return 0; 1 with a null argument
 */
KX_API int32_t KX_CALL kx_normalvector2d(const vector_2d *vector, vector_2d *normal);

/* ---- planes ---- */

/* Common to planes, space lines and vectors:
 * - A planeeq is the plane a*x + b*y + c*z + d = 0, a ple_3d the line of the points (x0 + t*dx, y0 + t*dy, z0 + t*dz),
 *   a segment a line_3d. Equations are taken as given: unless a comment says otherwise, no answer but the scale of what
 *   is written depends on how long a normal or a direction is. One of length 1e-7 or less, or not finite, is none.
 * - Parallel means at most 1e-7 radians apart in either sense; a line is parallel to a plane at right angles to the
 *   normal.
 * - Modes of the functions that take lines in several forms: 0 the ple_3d, 1 the segment. With a segment, a crossing
 *   must lie on it; distances are to the whole line through it.
 * - Angles are those between lines, 0 to 90 degrees. Their mode is the unit: 0 degrees, 1 radians, 2 the cosine; any
 *   other mode gives 0.0. A cosine near zero gives exactly 90.0, 1.5707963268 and 0.0.
 * - How two things lie to each other: 0 skew, 1 they meet in one point, 2 parallel, 3 coincident (parallel, and at most
 *   1e-7 apart), 4 a line has no direction, 25 a plane has no normal.
 * - An output record may be one of the inputs. */

/**
 * The plane given in one of five ways.
 * @param[in] mode  0 kx_planeeq_3p (three points); 1 kx_planeeq_2pple (line, two points); 2 kx_planeeq_pnl (line, first
 *   point); 3 kx_planeeq_2pls (segment, two points); 4 kx_planeeq_pnls (segment, first point)
 * @param[in] seg,line,p1,p2,p3  what the mode asks for
 * @param[out] plane  the plane; untouched with any status but 0
 * @return the status of the function called; 1 for any other mode
 */
KX_API int32_t KX_CALL kx_planeequation(int32_t mode, const line_3d *seg, const ple_3d *line, const pnt_3d *p1,
                                        const pnt_3d *p2, const pnt_3d *p3, planeeq *plane);

/**
 * The plane through three points; its normal (a, b, c) is (p2 - p1) x (p3 - p1), not normalised: from its tip the
 * points run counter-clockwise, and its length is twice the triangle's area.
 * @param[in] p1,p2,p3  the points
 * @param[out] plane  the plane; untouched with any status but 0
 * @return 0; 1 null argument; 24 two of the points coincide, or one is at most 1e-7 from the line of the others
 */
KX_API int32_t KX_CALL kx_planeeq_3p(const pnt_3d *p1, const pnt_3d *p2, const pnt_3d *p3, planeeq *plane);

/**
 * The plane through two points parallel to a line; its normal is (p2 - p1) x (dx, dy, dz), not normalised.
 * @param[in] line  the line; where it lies does not matter
 * @param[in] p1,p2  the points
 * @param[out] plane  the plane; untouched with any status but 0
 * @return 0; 1 null argument; 4 the line has no direction; 24 the points coincide, or p2 is at most 1e-7 from the
 *   parallel through p1
 */
KX_API int32_t KX_CALL kx_planeeq_2pple(const ple_3d *line, const pnt_3d *p1, const pnt_3d *p2, planeeq *plane);

/**
 * The plane through a point at right angles to a line; the line's direction is the normal, not normalised.
 * @param[in] line  the line; where it lies does not matter
 * @param[in] pnt  the point
 * @param[out] plane  the plane; untouched with any status but 0
 * @return 0; 1 null argument; 4 the line has no direction
 */
KX_API int32_t KX_CALL kx_planeeq_pnl(const ple_3d *line, const pnt_3d *pnt, planeeq *plane);

/**
 * The plane through two points parallel to a segment: kx_planeeq_2pple with the segment's end less its start.
 * @param[in] seg  the segment; where it lies does not matter
 * @param[in] p1,p2  the points
 * @param[out] plane  the plane; untouched with any status but 0
 * @return 0; 1 null argument; 2 the segment's ends coincide; 24 the points coincide, or p2 is at most 1e-7 from the
 *   parallel through p1
 */
KX_API int32_t KX_CALL kx_planeeq_2pls(const line_3d *seg, const pnt_3d *p1, const pnt_3d *p2, planeeq *plane);

/**
 * The plane through a point at right angles to a segment: kx_planeeq_pnl with the segment's end less its start.
 * @param[in] seg  the segment; where it lies does not matter
 * @param[in] pnt  the point
 * @param[out] plane  the plane; untouched with any status but 0
 * @return 0; 1 null argument; 2 the segment's ends coincide
 */
KX_API int32_t KX_CALL kx_planeeq_pnls(const line_3d *seg, const pnt_3d *pnt, planeeq *plane);

/**
 * Normalises a plane: a*a + b*b + c*c = 1 and d <= 0, so that the normal points from the origin to the plane; where d
 * is near zero, the last of a, b and c that is not near zero is positive.
 * @param[in,out] plane  the plane; untouched with any status but 0
 * @return 0; 1 null argument; 25 it has no normal, after the message "BADPLANE" of kx_display_msg
 */
KX_API int32_t KX_CALL kx_normalizeplane(planeeq *plane);

/**
 * Both planes parallel to a plane at a distance: its equation with d + e and d - e, e being |d| times the normal's
 * length.
 * @param[in] plane  the plane
 * @param[in] d  the distance; its sign does not matter
 * @param[out] first,second  the plane behind, where the normal does not point, and the plane ahead; untouched with any
 *   status but 0
 * @return 0; 1 null argument; 25 the plane has no normal, after the message "BADPLANE" of kx_display_msg
 */
KX_API int32_t KX_CALL kx_parallelplanes(const planeeq *plane, double d, planeeq *first, planeeq *second);

/**
 * The unit normal of a plane, in the sense of its a, b and c.
 * @param[in] plane  the plane
 * @param[out] normal  all fields are written; untouched with any status but 0
 * @return 0; 1 null argument; 25 the plane has no normal
 */
KX_API int32_t KX_CALL kx_normal_to_plane(const planeeq *plane, vector_3d *normal);

/**
 * The projection of a point on a plane: the point of the plane nearest to it.
 * @param[in] plane  the plane
 * @param[in] pnt  the point
 * @param[out] foot  its projection; untouched with any status but 0
 * @return 0; 1 null argument; 25 the plane has no normal
 */
KX_API int32_t KX_CALL kx_plane_pnt(const planeeq *plane, const pnt_3d *pnt, pnt_3d *foot);

/**
 * The signed distance of a point from a plane, positive on the side to which the normal points. Unlike kx_distpntln_ile
 * it is the true distance, whether the plane is normalised or not.
 * @param[in] pnt  the point
 * @param[in] plane  the plane
 * @return the distance; 0.0 when the plane has no normal
 */
KX_API double KX_CALL kx_distpntplane(const pnt_3d *pnt, const planeeq *plane);

/**
 * The angle between two planes, that of their normals.
 * @param[in] mode  the unit: 0 degrees, 1 radians, 2 the cosine
 * @param[in] first,second  the planes
 * @return the angle; 0.0 when a plane has no normal
 */
KX_API double KX_CALL kx_angletwoplanes(int32_t mode, const planeeq *first, const planeeq *second);

/**
 * The angle between a line and a plane, 90 degrees less that between the line and the normal.
 * @param[in] mode  the unit: 0 degrees, 1 radians, 2 the cosine
 * @param[in] line  the line
 * @param[in] plane  the plane
 * @return the angle; 0.0 when the line has no direction or the plane no normal
 */
KX_API double KX_CALL kx_anglelineplane(int32_t mode, const ple_3d *line, const planeeq *plane);

/**
 * The line in which two planes meet: its direction g is the product of the normals, first x second, not normalised, its
 * point the one nearest to the origin. Parallel here means that g*g <= 1e-7 with the normals as given.
 * @param[in] first,second  the planes
 * @param[out] line  the line; untouched when the result is 0
 * @return 1; 0 when the planes are parallel
 */
KX_API int32_t KX_CALL kx_inttwoplanes(const planeeq *first, const planeeq *second, ple_3d *line);

/**
 * The point in which three planes meet: none when the determinant of the normals as given is near zero.
 * @param[in] first,second,third  the planes
 * @param[out] pnt  the point; untouched when the result is 0
 * @return 1; 0 when they have no single point in common
 */
KX_API int32_t KX_CALL kx_intthreeplanes(const planeeq *first, const planeeq *second, const planeeq *third,
                                         pnt_3d *pnt);

/**
 * Where a line or a segment goes through a plane.
 * @param[in] mode  0 the line, 1 the segment
 * @param[in] line,seg  what the mode asks for
 * @param[in] plane  the plane
 * @param[out] pnt  the point; untouched when the result is 0
 * @param[out] lie  how the plane and the whole line lie: 1, 2, 3, 4 or 25 as above; null when not wanted; untouched
 *   with a null argument or another mode
 * @return the number of points: 1, or 0 when there is none or not a single one
 */
KX_API int32_t KX_CALL kx_intlineplane(int32_t mode, const ple_3d *line, const line_3d *seg, const planeeq *plane,
                                       pnt_3d *pnt, int32_t *lie);

/**
 * Where a segment goes through a plane.
 * @param[in] seg  the segment
 * @param[in] plane  the plane
 * @param[out] pnt  the point; untouched when the result is 0
 * @return 1; 0 when the segment ends before it, is parallel to it, or lies in it
 */
KX_API int32_t KX_CALL kx_intlineplane_ls(const line_3d *seg, const planeeq *plane, pnt_3d *pnt);

/**
 * Where a line goes through a plane.
 * @param[in] line  the line
 * @param[in] plane  the plane
 * @param[out] pnt  the point; untouched when the result is 0
 * @return 1; 0 when the line is parallel to the plane or lies in it
 */
KX_API int32_t KX_CALL kx_intlineplane_ple(const ple_3d *line, const planeeq *plane, pnt_3d *pnt);

/* ---- space lines ---- */

/**
 * The line through two points: the first point, and the second less the first as the direction, so that t = 0 and t = 1
 * are the points.
 * @param[in] p1,p2  the points
 * @param[out] line  the line; untouched with any status but 0
 * @return 0; 1 null argument; 2 the points coincide
 */
KX_API int32_t KX_CALL kx_lineeqspace(const pnt_3d *p1, const pnt_3d *p2, ple_3d *line);

/**
 * Makes a line's direction one of length 1; its point stays.
 * @param[in,out] line  the line; untouched with any status but 0
 * @return 0; 1 null argument; 4 it has no direction, after the message "BADPECOEFF" of kx_display_msg, which names
 *   "kx_normlineeqspace"
 */
KX_API int32_t KX_CALL kx_normallineeqspace(ple_3d *line);

/**
 * The midpoint of a segment.
 * @param[in] seg  the segment
 * @param[out] pnt  its midpoint
 * @return 0; 1 null argument
 */
KX_API int32_t KX_CALL kx_mplinespace(const line_3d *seg, pnt_3d *pnt);

/**
 * The distance of two points. Unlike kx_distance_3d it knows no tolerance: it is the true small distance of points that
 * coincide.
 * @param[in] p,q  the points
 * @return the distance
 */
KX_API double KX_CALL kx_distancespace(const pnt_3d *p, const pnt_3d *q);

/**
 * The distance of a point from a line, never negative.
 * @param[in] mode  0 as kx_distpntlnsp_ple, 1 as kx_distpntlnsp_ls
 * @param[in] pnt  the point
 * @param[in] line,seg  what the mode asks for
 * @return the distance; 0.0 for any other mode
 */
KX_API double KX_CALL kx_distpntlinespace(int32_t mode, const pnt_3d *pnt, const ple_3d *line, const line_3d *seg);

/**
 * The distance of a point from the whole line through a segment.
 * @param[in] pnt  the point
 * @param[in] seg  the segment
 * @return the distance; that from the segment's start when its ends coincide
 */
KX_API double KX_CALL kx_distpntlnsp_ls(const pnt_3d *pnt, const line_3d *seg);

/**
 * The distance of a point from a line.
 * @param[in] pnt  the point
 * @param[in] line  the line
 * @return the distance; 0.0 when the line has no direction
 */
KX_API double KX_CALL kx_distpntlnsp_ple(const pnt_3d *pnt, const ple_3d *line);

/**
 * The shortest distance between two lines, parallel ones too; near zero for lines that meet or coincide.
 * @param[in] first,second  the lines
 * @return the distance; 0.0 when a line has no direction
 */
KX_API double KX_CALL kx_distlinespace(const ple_3d *first, const ple_3d *second);

/**
 * The angle between two lines, whether they meet or not.
 * @param[in] mode  the unit: 0 degrees, 1 radians, 2 the cosine
 * @param[in] first,second  the lines
 * @return the angle; 0.0 when a line has no direction
 */
KX_API double KX_CALL kx_anglelinesspace(int32_t mode, const ple_3d *first, const ple_3d *second);

/**
 * Where two lines or segments meet: at most 1e-7 apart, and not parallel. The point is that of the first one; each
 * coordinate near zero is stored as exactly 0.0.
 * @param[in] mode  0 the lines, 1 the segments, 2 the first line and the first segment
 * @param[in] line1,line2,seg1,seg2  what the mode asks for
 * @param[out] pnt  the point; untouched when the result is 0
 * @param[out] lie  how the two whole lines lie: 0 to 4 as above; null when not wanted; untouched with a null argument
 *   or another mode
 * @return the number of points: 1, or 0 when there is none or not a single one
 */
KX_API int32_t KX_CALL kx_intlinespace(int32_t mode, const ple_3d *line1, const ple_3d *line2, const line_3d *seg1,
                                       const line_3d *seg2, pnt_3d *pnt, int32_t *lie);

/**
 * Where two segments meet, as kx_intlinespace.
 * @param[in] first,second  the segments
 * @param[out] pnt  the point; untouched when the result is 0
 * @return 1; 0 when they do not meet, are parallel, or overlap
 */
KX_API int32_t KX_CALL kx_intlinespace_ls(const line_3d *first, const line_3d *second, pnt_3d *pnt);

/**
 * Where two lines meet, as kx_intlinespace.
 * @param[in] first,second  the lines
 * @param[out] pnt  the point; untouched when the result is 0
 * @return 1; 0 when they are skew, parallel, or coincident
 */
KX_API int32_t KX_CALL kx_intlinespace_ple(const ple_3d *first, const ple_3d *second, pnt_3d *pnt);

/* ---- vectors ---- */

/* Two families. One works on vector_3d records: it reads i, j and k, and of a record that it writes all fields are
 * fresh (but for kx_crossproduct): length is that of i, j and k, exactly 1 for a unit vector, and direction the
 * azimuth, the angle of i and j in degrees counter-clockwise from x, 0 up to 360, and 0 for an upright vector. The
 * other one, with names in _3d, works on points and takes their coordinates as components. Both give the same
 * components. */

/**
 * The vector product u x v: (u.j*v.k - u.k*v.j, u.k*v.i - u.i*v.k, u.i*v.j - u.j*v.i).
 * @param[in] u,v  the vectors
 * @param[in,out] out  i, j and k are written; direction and length stay until kx_vectordirection and kx_vectorlength
 * @return 0; 1 null argument
 */
KX_API int32_t KX_CALL kx_crossproduct(const vector_3d *u, const vector_3d *v, vector_3d *out);

/**
 * The scalar product u.i*v.i + u.j*v.j + u.k*v.k.
 * @param[in] u,v  the vectors
 * @return the product
 */
KX_API double KX_CALL kx_dotproduct(const vector_3d *u, const vector_3d *v);

/**
 * The scalar product: kx_dotproduct by another name.
 * @param[in] u,v  the vectors
 * @return the product
 */
KX_API double KX_CALL kx_vector_dot(const vector_3d *u, const vector_3d *v);

/**
 * The length of a vector, also stored in its length field.
 * @param[in,out] v  the vector; i, j and k are read, length is written
 * @return the length
 */
KX_API double KX_CALL kx_vectorlength(vector_3d *v);

/**
 * The azimuth of a vector, also stored in its direction field.
 * @param[in,out] v  the vector; i and j are read, direction is written
 * @return the angle in degrees, 0 up to 360; 0.0 when i and j are both near zero
 */
KX_API double KX_CALL kx_vectordirection(vector_3d *v);

/**
 * The length of a vector, which is only read.
 * @param[in] v  the vector
 * @return the length
 */
KX_API double KX_CALL kx_vector_len(const vector_3d *v);

/**
 * The square of a vector's length.
 * @param[in] v  the vector
 * @return i*i + j*j + k*k
 */
KX_API double KX_CALL kx_vector_sqlen(const vector_3d *v);

/**
 * The sum u + v.
 * @param[in] u,v  the vectors
 * @param[out] out  the sum
 * @return 0; 1 null argument
 */
KX_API int32_t KX_CALL kx_vectoradd(const vector_3d *u, const vector_3d *v, vector_3d *out);

/**
 * The sum: kx_vectoradd by another name.
 * @param[in] u,v  the vectors
 * @param[out] out  the sum
 * @return 0; 1 null argument
 */
KX_API int32_t KX_CALL kx_vector_add(const vector_3d *u, const vector_3d *v, vector_3d *out);

/**
 * The difference u - v.
 * @param[in] u,v  the vectors
 * @param[out] out  the difference
 * @return 0; 1 null argument
 */
KX_API int32_t KX_CALL kx_vector_sub(const vector_3d *u, const vector_3d *v, vector_3d *out);

/**
 * The opposite vector.
 * @param[in] v  the vector
 * @param[out] out  -v
 * @return 0; 1 null argument
 */
KX_API int32_t KX_CALL kx_vector_neg(const vector_3d *v, vector_3d *out);

/**
 * A multiple of a vector.
 * @param[in] v  the vector
 * @param[in] factor  any number
 * @param[out] out  factor * v
 * @return 0; 1 null argument
 */
KX_API int32_t KX_CALL kx_vectormult(const vector_3d *v, double factor, vector_3d *out);

/**
 * The vector of length 1 in the same sense.
 * @param[in] v  the vector
 * @param[out] out  the unit vector; untouched with any status but 0
 * @return 0; 1 null argument; 4 v has no direction
 */
KX_API int32_t KX_CALL kx_unitvector(const vector_3d *v, vector_3d *out);

/**
 * Makes a vector one of length 1, in place.
 * @param[in,out] v  the vector; untouched with any status but 0
 * @return 0; 1 null argument; 4 it has no direction
 */
KX_API int32_t KX_CALL kx_vector_normalize(vector_3d *v);

/**
 * The unit vector at right angles to two vectors, in the sense of u x v.
 * @param[in] u,v  the vectors
 * @param[out] out  the normal; untouched with any status but 0
 * @return 0; 1 null argument; 4 a vector has no direction, or they are parallel
 */
KX_API int32_t KX_CALL kx_normalvector3d(const vector_3d *u, const vector_3d *v, vector_3d *out);

/**
 * The projection of a vector on another: the part of u along `onto`.
 * @param[in] u,onto  the vectors
 * @param[out] out  the projection; untouched with any status but 0
 * @return 0; 1 null argument; 4 `onto` has no direction
 */
KX_API int32_t KX_CALL kx_projectvector(const vector_3d *u, const vector_3d *onto, vector_3d *out);

/**
 * What is left of u without its projection on `onto`, at right angles to it. With the normal of a plane (as of
 * kx_normal_to_plane) this is the projection of u on the plane.
 * @param[in] u,onto  the vectors
 * @param[out] out  u less kx_projectvector; untouched with any status but 0
 * @return 0; 1 null argument; 4 `onto` has no direction
 */
KX_API int32_t KX_CALL kx_projectednormal(const vector_3d *u, const vector_3d *onto, vector_3d *out);

/**
 * The vector from one point to another.
 * @param[in] from,to  the points, by value
 * @param[out] out  the vector; untouched with any status but 0
 * @return 0; 1 null argument; 2 the points coincide
 */
KX_API int32_t KX_CALL kx_line_to_vector_3d(pnt_3d from, pnt_3d to, vector_3d *out);

/**
 * The point t times along a vector that starts at the origin.
 * @param[in] v  the vector
 * @param[in] t  0 for the origin, 1 for the tip, any other number
 * @param[out] pnt  t * v
 * @return 0; 1 null argument
 */
KX_API int32_t KX_CALL kx_vector_pnt(const vector_3d *v, double t, pnt_3d *pnt);

/**
 * The point t times along the sum of two vectors: kx_vector_pnt of their kx_vector_add.
 * @param[in] u,v  the vectors
 * @param[in] t  0 for the origin, 1 for the sum's tip, any other number
 * @param[out] pnt  t * (u + v)
 * @return 0; 1 null argument
 */
KX_API int32_t KX_CALL kx_get_point_on_line(const vector_3d *u, const vector_3d *v, double t, pnt_3d *pnt);

/**
 * The vector product of two points' coordinates.
 * @param[in] u,v  the vectors
 * @param[out] out  u x v
 * @return 0; 1 null argument
 */
KX_API int32_t KX_CALL kx_crossproduct_3d(const pnt_3d *u, const pnt_3d *v, pnt_3d *out);

/**
 * The length of a point's coordinates, its distance from the origin.
 * @param[in] v  the vector
 * @return the length
 */
KX_API double KX_CALL kx_vectorlength_3d(const pnt_3d *v);

/**
 * A multiple of a point's coordinates.
 * @param[in] v  the vector
 * @param[in] factor  any number
 * @param[out] out  factor * v
 * @return 0; 1 null argument
 */
KX_API int32_t KX_CALL kx_vectormult_3d(const pnt_3d *v, double factor, pnt_3d *out);

/**
 * A point's coordinates as a vector of length 1.
 * @param[in] v  the vector
 * @param[out] out  the unit vector; untouched with any status but 0
 * @return 0; 1 null argument; 4 v has no direction
 */
KX_API int32_t KX_CALL kx_unitvector_3d(const pnt_3d *v, pnt_3d *out);

/**
 * The unit vector at right angles to two points' coordinates, in the sense of u x v.
 * @param[in] u,v  the vectors
 * @param[out] out  the normal; untouched with any status but 0
 * @return 0; 1 null argument; 4 a vector has no direction, or they are parallel
 */
KX_API int32_t KX_CALL kx_normalvector_3d(const pnt_3d *u, const pnt_3d *v, pnt_3d *out);

/**
 * The projection of a vector on another: the part of u along `onto`.
 * @param[in] u,onto  the vectors
 * @param[out] out  the projection; untouched with any status but 0
 * @return 0; 1 null argument; 4 `onto` has no direction
 */
KX_API int32_t KX_CALL kx_projectvector_3d(const pnt_3d *u, const pnt_3d *onto, pnt_3d *out);

/**
 * What is left of u without its projection on `onto`, at right angles to it.
 * @param[in] u,onto  the vectors
 * @param[out] out  u less kx_projectvector_3d; untouched with any status but 0
 * @return 0; 1 null argument; 4 `onto` has no direction
 */
KX_API int32_t KX_CALL kx_projectednormal_3d(const pnt_3d *u, const pnt_3d *onto, pnt_3d *out);

/* ---- arc points ---- */

/* Common to the arc points and the ellipse points:
 * - The points are appended to the caller's list as poly_2d, numbered on from the last one's seqnr (from 0 in an empty
 *   list); the last point appended becomes current. A call appends all its points or, with any status but 0, none, and
 *   then leaves list and current item as they were. A list is judged by its first and last item: both poly_2d.
 * - tol is the largest distance between an arc and its chord. One that is NaN or not above 1e-7 stands for a thousandth
 *   of the radius. No chord spans more than 120 degrees, whatever tol is, so a circle stays a polygon, and no call
 *   makes more than 1 000 000 chords: where tol asks for more, the chords are longer.
 * - Angles are in degrees, counter-clockwise from x. A sweep of 360 degrees (within 1e-7) or more, either sign, is one
 *   whole turn, and its last point then equals its first bit for bit. Multiples of 90 degrees are met exactly. */

/**
 * The length of an arc: its radius times the angle it spans, never negative.
 * @param[in] arc  the arc; value_1 is the angle, in degrees for mode 1, in radians for every other mode
 * @return the length; 0.0 for mode 2, whose values are no angles, and for null
 */
KX_API double KX_CALL kx_arclength(const arc_2d *arc);

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
