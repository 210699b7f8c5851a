/* Free-form curves: one record for all of them, definers that fill it from lists, makers that sample it into lists.
 *
 * A definer takes over the items of the lists it is given: afterwards they belong to the curve, the caller's header is
 * an empty list again and stays the caller's. Items that the curve's own list held before are freed. A caller's header
 * may be one of the curve's own; given twice in one call, its items go to the parameter that comes first.
 *
 * curve_type: 83, 84 uniform cubic B-spline in the plane, in space; 85, 86 uniform cubic Bezier; 87, 88 uniform
 * Catmull-Rom; 91, 92 uniform beta-spline; 93, 98 non-uniform B-spline; 94, 95 NURBS; 96, 97 rational Bezier; 0 none.
 */
#ifndef KXGEOM_CURVES_H
#define KXGEOM_CURVES_H

#include "kxgeom/export.h"
#include "kxgeom/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- curve record ---- */

/**
 * Creates a curve as kx_init_curve leaves it.
 * @return the curve, owned by the caller and freed by kx_purge_curve; null after the memory message "kx_create_curve"
 *   or that of a list
 */
KX_API curve *KX_CALL kx_create_curve(void);

/**
 * Makes a raw record an empty curve: every number 0, the basis the identity, five empty lists. Lists that the record
 * had are not freed.
 * @param[out] c  the record; when a list cannot be created all five are null; null does nothing
 */
KX_API void KX_CALL kx_init_curve(curve *c);

/**
 * Frees a curve with everything that hangs from it. Control points of a datatype other than 62 and 63 stop it once both
 * point lists are freed: the record stays, without them, and a second call frees the rest. A curve without control
 * points is freed whatever it holds, and lists that are missing are no error.
 * @param[in] c  the curve; gone when the result is 0
 * @return 0 freed; 9 null, control points of a datatype other than 62 and 63, or a point list that kx_purge_polygon
 *   refuses
 */
KX_API int32_t KX_CALL kx_purge_curve(curve *c);

/**
 * Copies a curve: its numbers and basis, and the five lists item by item. Items that are neither points, numbers nor
 * statistics are left out.
 * @param[in,out] source  the curve to copy; the cursors of its lists but the statistics end at their heads
 * @return the copy, owned by the caller and freed by kx_purge_curve; null for a null source and, with nothing left
 *   behind, after the memory message of what could not be created
 */
KX_API curve *KX_CALL kx_copy_curve(curve *source);

/**
 * Empties a curve: its lists' items are freed, its numbers become 0 and its basis the identity. With statistics in the
 * curve and control points of a datatype other than 62 and 63 (0 when there are none), only the two point lists are
 * emptied.
 * @param[in,out] c  the curve
 * @param[in] purge_lists  1 frees the five headers too and leaves them null
 * @return 4 emptied; the control points' datatype minus 63 when it stopped at the statistics; 40 for null
 */
KX_API int32_t KX_CALL kx_clear_curve(curve *c, int32_t purge_lists);

/**
 * Creates a host's curv record: the words 0, 0, 0, 1, 1, 0, 1, 0 and two null pointers.
 * @return the record, owned by the caller and freed by kx_purge_curv; null after the memory message "kx_create_curv"
 */
KX_API curv *KX_CALL kx_create_curv(void);

/**
 * Frees a curv record and the blocks of its two pointers that are not null.
 * @param[in] c  the record; null does nothing
 */
KX_API void KX_CALL kx_purge_curv(curv *c);

/* ---- uniform definers ---- */

/**
 * Makes a uniform plane curve of the kind of a type code, as kx_def_ubspl_curve (83, 84), kx_def_ubezier_curve (85, 86)
 * and kx_def_ucatrom_curve (87, 88) do: the kind decides, the control points' datatype tells plane from space.
 * @param[in,out] ctrl  control points
 * @param[in] curve_type  83 to 88
 * @return what that definer returns; null for null and for any other code, the list untouched
 */
KX_API curve *KX_CALL kx_def_ucurve(list_hdr *ctrl, int32_t curve_type);

/**
 * Makes a uniform cubic B-spline of plane control points (datatype 50 or 62). Control points in space (51 or 63) are
 * taken over and freed, and no curve comes of them: kx_def_ubspl_curve3d is the definer for those.
 * @param[in,out] ctrl  control points
 * @return the curve, owned by the caller and freed by kx_purge_curve; null for a null list, any other datatype or an
 *   empty list, the list untouched; null after a memory message, the list untouched
 */
KX_API curve *KX_CALL kx_def_ubspl_curve(list_hdr *ctrl);

/**
 * Makes a uniform cubic Bezier curve of plane control points, in every respect as kx_def_ubspl_curve does.
 * @param[in,out] ctrl  control points
 * @return as kx_def_ubspl_curve
 */
KX_API curve *KX_CALL kx_def_ubezier_curve(list_hdr *ctrl);

/**
 * Makes a uniform Catmull-Rom curve of plane control points, in every respect as kx_def_ubspl_curve does.
 * @param[in,out] ctrl  control points
 * @return as kx_def_ubspl_curve
 */
KX_API curve *KX_CALL kx_def_ucatrom_curve(list_hdr *ctrl);

/**
 * Makes a curve a uniform cubic B-spline in the plane (83): type and basis are written, the control points taken over.
 * @param[in,out] ctrl  control points; an empty list afterwards, its header all 0
 * @param[in,out] c  the curve
 * @return 0; 40 when either is null; 80 when the curve lacks a control list and none can be created; nothing is changed
 *   then
 */
KX_API int32_t KX_CALL kx_def_ubspl_curve2d(list_hdr *ctrl, curve *c);

/**
 * Makes a curve a uniform cubic Bezier curve in the plane (85), of degree control points - 1, at least 0, at most 30.
 * @param[in,out] ctrl  control points; an empty list afterwards, whose count is left as it was
 * @param[in,out] c  the curve
 * @return as kx_def_ubspl_curve2d
 */
KX_API int32_t KX_CALL kx_def_ubezier_curve2d(list_hdr *ctrl, curve *c);

/**
 * Makes a curve a uniform Catmull-Rom curve in the plane (87), which passes through its inner control points.
 * @param[in,out] ctrl  control points; an empty list afterwards, whose count is left as it was
 * @param[in,out] c  the curve
 * @return as kx_def_ubspl_curve2d
 */
KX_API int32_t KX_CALL kx_def_ucatrom_curve2d(list_hdr *ctrl, curve *c);

/**
 * Makes a new uniform cubic B-spline in space (84).
 * @param[in,out] ctrl  control points; an empty list afterwards, its header all 0
 * @return the curve, owned by the caller and freed by kx_purge_curve; null for null and after a memory message, the
 *   list untouched
 */
KX_API curve *KX_CALL kx_def_ubspl_curve3d(list_hdr *ctrl);

/**
 * Makes a new uniform cubic Bezier curve in space (86), of degree control points - 1, at least 0, at most 30.
 * @param[in,out] ctrl  control points; an empty list afterwards, whose count is left as it was
 * @return as kx_def_ubspl_curve3d
 */
KX_API curve *KX_CALL kx_def_ubezier_curve3d(list_hdr *ctrl);

/**
 * Makes a new uniform Catmull-Rom curve in space (88).
 * @param[in,out] ctrl  control points; an empty list afterwards, whose count is left as it was
 * @return as kx_def_ubspl_curve3d
 */
KX_API curve *KX_CALL kx_def_ucatrom_curve3d(list_hdr *ctrl);

/* ---- uniform curves ---- */

/**
 * Samples a uniform curve with kx_mk_ucurve2d (control points of datatype 50 or 62) or kx_mk_ucurve3d (51 or 63).
 * @param[in,out] c  the curve
 * @param[in] step  parameter step
 * @return what that maker returns; -1 for any other datatype or no control points; 80 for a null curve or control list
 */
KX_API int32_t KX_CALL kx_mk_ucurve(curve *c, double step);

/**
 * Samples a uniform plane curve at t = 0, step, 2 step ... to 1 in each segment of four consecutive control points and
 * appends to curve_pnts and curve_stats, lists that are created when missing. The parameter is accumulated and may pass
 * 1 by 2e-7. A joint is sampled once: t = 0 of every segment but the first is left out, yet numbered, so that the
 * numbers of the samples jump by 2 there. Earlier samples stay.
 *
 * A Bezier curve (85) of n control points, n cut to a multiple of 4, has n - 3 segments as the other kinds have; each
 * reads the next four control points, and reading goes on at the head when it passes the tail.
 *
 * Coordinates are read where a poly_2d has them. A record that is too short for that, such as a pnt_2d, is read as far
 * as it goes and continued with zero bytes: only poly_2d lists give meaningful curves.
 * @param[in,out] c  the curve; step is noted in it. The control points' cursor ends behind the last one read, at the
 *   head after the tail; it stays where it is unless the result is 0
 * @param[in] step  parameter step; one that is not finite or not above 1e-7 (a negative one too) counts as 0.1
 * @return 0 done; 1 null curve; 2 fewer than 4 control points, or one without a record; 80 no memory, or 10 million
 *   samples or more, after the memory message; samples that were appended before stay
 */
KX_API int32_t KX_CALL kx_mk_ucurve2d(curve *c, double step);

/**
 * Samples a uniform space curve, in every respect as kx_mk_ucurve2d does, into poly_3d points (63) and curve_stats_3d
 * statistics (61). The Bezier rule is that of type 86, and coordinates are read where a poly_3d has them.
 * @param[in,out] c  the curve
 * @param[in] step  parameter step
 * @return as kx_mk_ucurve2d
 */
KX_API int32_t KX_CALL kx_mk_ucurve3d(curve *c, double step);

/**
 * Evaluates one segment of a uniform plane curve with the curve's basis. The vectors have length 1, or 0 where the
 * derivative vanishes; their direction is 0.
 * @param[in] c  the curve
 * @param[in] t  parameter from 0 to 1, with the tolerance 1e-7 below and 2e-7 above
 * @param[in] ctrl[4]  the four control points of the segment
 * @param[out] point  the point of the curve; any of the outputs may be null; all unwritten on failure
 * @param[out] tangent  unit first derivative
 * @param[out] second  unit second derivative
 * @param[out] normal  the tangent turned by a quarter counter-clockwise
 * @return 0; 2 t out of range or no number; 40 null curve, array or control point
 */
KX_API int32_t KX_CALL kx_eval_t_on_ucurve2d(const curve *c, double t, poly_2d *const *ctrl, pnt_2d *point,
                                             vector_2d *tangent, vector_2d *second, vector_2d *normal);

/* ---- knot vectors ---- */

/**
 * Finds the knot span s of a parameter: knots[s] <= t < knots[s+1], or with side -1 knots[s] < t <= knots[s+1]. At or
 * below the first knot the answer is degree - 1, at or above the last one last - degree, whatever the knots are.
 * @param[in] knots[last+1]  knot vector, not decreasing
 * @param[in] last  index of its last knot
 * @param[in] degree  degree of the curve
 * @param[in] t  parameter
 * @param[in] side  -1 for the span that ends at t when t is a knot; any other value for the one that begins there
 * @return the span; degree - 1 when t is no number; -1 for null and for a degree outside 0 to last
 */
KX_API int32_t KX_CALL kx_findknotspan(const double *knots, int32_t last, int32_t degree, double t, int32_t side);

/**
 * Computes the degree + 1 B-spline basis functions that are not zero on a knot span, and their derivatives. The values
 * sum to 1, those of each derivative to 0. A span of no length has no functions: all values are 0.
 * @param[in] knots[span+degree+1]  knot vector, not decreasing; read from knots[span+1-degree] to knots[span+degree]
 * @param[in] span  the knot span of t
 * @param[in] degree  0 to 15
 * @param[in] t  parameter
 * @param[in] derivs  highest derivative wanted; negative counts as 0
 * @param[out] out[(max(derivs,0)+1)*(degree+1)]  (derivs + 1) rows of degree + 1 values, the row of order 0 first;
 *   orders above the degree are 0
 * @return 0; 2 degree outside 0 to 15, or span below degree - 1; 40 null knots or out; out unwritten unless 0
 */
KX_API int32_t KX_CALL kx_basisfunctions(const double *knots, int32_t span, int32_t degree, double t, int32_t derivs,
                                         double *out);

/* ---- de boor ---- */

/**
 * Evaluates a non-uniform plane B-spline on one knot span by de Boor's scheme. Knot differences are not tested: a
 * repeated knot among those used may give infinities or no numbers, as a t that is no number does.
 * @param[in] t  parameter, not below -1e-7
 * @param[in] degree  0 to 15
 * @param[in] ctrl[degree+1]  the span's degree + 1 control points
 * @param[in] knots[2*degree]  those of the span: knots[degree-1] and knots[degree] bound the span
 * @param[out] out  the point; unwritten on failure
 * @return 0; 2 t below -1e-7 or degree outside 0 to 15; 40 a null pointer or control point
 */
KX_API int32_t KX_CALL kx_deboor_2d(double t, int32_t degree, poly_2d *const *ctrl, const double *knots, pnt_2d *out);

/**
 * Evaluates a non-uniform space B-spline on one knot span as kx_deboor_2d does.
 * @param[in] t  parameter, not below -1e-7
 * @param[in] degree  0 to 15
 * @param[in] ctrl[degree+1]  the span's degree + 1 control points
 * @param[in] knots[2*degree]  those of the span: knots[degree-1] and knots[degree] bound the span
 * @param[out] out  the point; unwritten on failure
 * @return as kx_deboor_2d
 */
KX_API int32_t KX_CALL kx_deboor_3d(double t, int32_t degree, poly_3d *const *ctrl, const double *knots, pnt_3d *out);

/**
 * Evaluates a plane NURBS curve on one knot span: de Boor's scheme on the weighted points and their weights, then the
 * point divided by its weight.
 * @param[in] t  parameter, not below -1e-7
 * @param[in] degree  0 to 15
 * @param[in] ctrl[degree+1]  the span's degree + 1 control points
 * @param[in] weights[degree+1]  their weights
 * @param[in] knots[2*degree]  those of the span: knots[degree-1] and knots[degree] bound the span
 * @param[out] out  the point; unwritten on failure
 * @return 0; 2 t below -1e-7 or degree outside 0 to 15; 3 the point's weight is within 1e-7 of 0 or not finite; 40 a
 *   null pointer or control point
 */
KX_API int32_t KX_CALL kx_rat_deboor_2d(double t, int32_t degree, poly_2d *const *ctrl, const double *weights,
                                        const double *knots, pnt_2d *out);

/**
 * Evaluates a space NURBS curve on one knot span as kx_rat_deboor_2d does.
 * @param[in] t  parameter, not below -1e-7
 * @param[in] degree  0 to 15
 * @param[in] ctrl[degree+1]  the span's degree + 1 control points
 * @param[in] weights[degree+1]  their weights
 * @param[in] knots[2*degree]  those of the span: knots[degree-1] and knots[degree] bound the span
 * @param[out] out  the point; unwritten on failure
 * @return as kx_rat_deboor_2d
 */
KX_API int32_t KX_CALL kx_rat_deboor_3d(double t, int32_t degree, poly_3d *const *ctrl, const double *weights,
                                        const double *knots, pnt_3d *out);

/* ---- nurbs definers ---- */

/**
 * Makes a curve a non-uniform B-spline in the plane (93). The type is written first, also when a check then fails. A
 * null list counts as an empty one.
 * @param[in,out] ctrl,knots  control points and knots, more knots than control points + degree - 2; on success empty
 *   lists whose counts are left as they were; untouched on failure
 * @param[in] degree  1 to 15
 * @param[in] option  parameter steps per knot span, stored in span_steps
 * @param[in,out] c  the curve
 * @return 0; 1 too few knots; 2 degree outside 1 to 15; 4 null curve; 80 when the curve lacks a list and none can be
 *   created
 */
KX_API int32_t KX_CALL kx_def_nubspl_curve2d(list_hdr *ctrl, list_hdr *knots, int32_t degree, int32_t option, curve *c);

/**
 * Makes a new non-uniform B-spline in space (98). Unlike the plane definer it reports what is wrong. A null list counts
 * as an empty one.
 * @param[in,out] ctrl,knots  as kx_def_nubspl_curve2d
 * @param[in] degree  1 to 15
 * @param[in] option  parameter steps per knot span, stored in span_steps
 * @return the curve, owned by the caller and freed by kx_purge_curve; null after the message "BADKNOTSEQ" (0) for too
 *   few knots, "BADDEG" (0) for a degree outside 1 to 15, or a memory message
 */
KX_API curve *KX_CALL kx_def_nubspl_curve3d(list_hdr *ctrl, list_hdr *knots, int32_t degree, int32_t option);

/**
 * Makes a new non-uniform B-spline of control points in the plane (datatype 50 or 62) or in space (51 or 63), as
 * kx_def_nubspl_curve2d and kx_def_nubspl_curve3d do.
 * @param[in,out] ctrl,knots  as kx_def_nubspl_curve2d
 * @param[in] degree  1 to 15
 * @param[in] option  parameter steps per knot span, stored in span_steps
 * @return the curve, owned by the caller and freed by kx_purge_curve; null, the lists untouched, for any other
 *   datatype, for what the definer refuses (in space after its message), and after a memory message
 */
KX_API curve *KX_CALL kx_def_nubspl_curve(list_hdr *ctrl, list_hdr *knots, int32_t degree, int32_t option);

/**
 * Makes a new NURBS curve of control points in the plane (datatype 50 or 62) or in space (51 or 63).
 * @param[in,out] ctrl,knots,weights  as kx_def_nurb_curve2d
 * @param[in] degree  1 to 15
 * @param[in] option  parameter steps per knot span, stored in span_steps; 0 counts as 1
 * @return the curve, owned by the caller and freed by kx_purge_curve; null, the lists untouched, for any other
 *   datatype, for what kx_def_nurb_curve2d refuses, and after a memory message
 */
KX_API curve *KX_CALL kx_def_nurb_curve(list_hdr *ctrl, list_hdr *knots, list_hdr *weights, int32_t degree,
                                        int32_t option);

/**
 * Makes a curve a NURBS curve in the plane (94). The type is written first, also when a check then fails. The number of
 * knots is left to the maker. A null list counts as an empty one.
 * @param[in,out] ctrl,knots,weights  degree + 1 or more control points, knots, and a weight or more per control point;
 *   on success empty lists, their headers all 0; untouched on failure
 * @param[in] degree  1 to 15
 * @param[in] option  parameter steps per knot span, stored in span_steps; 0 counts as 1
 * @param[in,out] c  the curve
 * @return 0; 1 fewer than degree + 1 control points; 2 fewer weights than control points; 3 degree outside 1 to 15; 4
 *   null curve; 80 when the curve lacks a list and none can be created
 */
KX_API int32_t KX_CALL kx_def_nurb_curve2d(list_hdr *ctrl, list_hdr *knots, list_hdr *weights, int32_t degree,
                                           int32_t option, curve *c);

/**
 * Makes a curve a NURBS curve in space (95), in every respect as kx_def_nurb_curve2d does.
 * @param[in,out] ctrl,knots,weights  as kx_def_nurb_curve2d
 * @param[in] degree  1 to 15
 * @param[in] option  parameter steps per knot span, stored in span_steps; 0 counts as 1
 * @param[in,out] c  the curve
 * @return as kx_def_nurb_curve2d
 */
KX_API int32_t KX_CALL kx_def_nurb_curve3d(list_hdr *ctrl, list_hdr *knots, list_hdr *weights, int32_t degree,
                                           int32_t option, curve *c);

/* ---- nurbs curves ---- */

/**
 * Samples a NURBS curve with kx_mk_nurb_curve2d (type 94) or kx_mk_nurb_curve3d (95).
 * @param[in,out] c  the curve
 * @param[in] skip,skip_enable,n_spans,steps  as kx_mk_nurb_curve2d
 * @return what that maker returns; 1 null curve; 3 any other type
 */
KX_API int32_t KX_CALL kx_mk_nurb_curve(curve *c, int32_t skip, int32_t skip_enable, int32_t n_spans, int32_t steps);

/**
 * Samples a plane NURBS curve of degree p at equal steps in each knot span, both ends of a span included, and appends
 * to curve_pnts (62) and curve_stats (60, only the parameter filled), lists that are created when missing. Spans not
 * longer than 1e-7 are left out. The knot vector is the textbook's without its first and last knot: span s of the
 * n_spans lies between knots p-1+s and p+s and belongs to the control points s to p+s. The points may be of any of the
 * four kinds.
 * @param[in,out] c  the curve. On success the cursors of the control points and weights are at their heads and that of
 *   the knots behind the last one read; the reading of knots goes on at the head when it passes the tail
 * @param[in] skip  with skip_enable 1 or more, the number of knots passed over, counted from the head; the control
 *   points and weights start at their heads all the same
 * @param[in] skip_enable  below 1 for no skipping, as a skip below 1
 * @param[in] n_spans  number of spans; 0 or fewer give no samples
 * @param[in] steps  parameter steps per span, noted in span_steps; 0 for those noted there. 0 in the end counts as 1, a
 *   negative number gives no samples
 * @return 0 done; 1 null curve, missing list or no control points; 2 degree outside 1 to 15 or too few control points;
 *   3 not of type 94; 4 not more than n_spans + 2p - 2 knots; 5 no knots, a parameter below -1e-7, a weight within 1e-7
 *   of 0 or not finite, or a point, weight or knot that is missing; 6 no weights; 80 no memory or 10 million samples
 *   or more, after the memory message (that of the knots and of the count is "mk_nurb_curve2d - 2"). Samples that were
 *   appended before stay
 */
KX_API int32_t KX_CALL kx_mk_nurb_curve2d(curve *c, int32_t skip, int32_t skip_enable, int32_t n_spans, int32_t steps);

/**
 * Samples a space NURBS curve, in every respect as kx_mk_nurb_curve2d does, into poly_3d points (63) and curve_stats_3d
 * statistics (61).
 * @param[in,out] c  the curve
 * @param[in] skip,skip_enable,n_spans,steps  as kx_mk_nurb_curve2d
 * @return as kx_mk_nurb_curve2d, 3 when not of type 95; the message of the knots is "mk_nurb_curve3d - 2"
 */
KX_API int32_t KX_CALL kx_mk_nurb_curve3d(curve *c, int32_t skip, int32_t skip_enable, int32_t n_spans, int32_t steps);

/* ---- nonuniform bsplines ---- */

/**
 * Samples a non-uniform B-spline with kx_mk_nubspline_2d (type 93) or kx_mk_nubspline_3d (98).
 * @param[in,out] c  the curve
 * @param[in] skip,skip_enable,n_spans,steps  as kx_mk_nurb_curve2d
 * @return what that maker returns; 1 null curve; 3 any other type
 */
KX_API int32_t KX_CALL kx_mk_nubspline(curve *c, int32_t skip, int32_t skip_enable, int32_t n_spans, int32_t steps);

/**
 * Samples a non-uniform plane B-spline span by span as kx_mk_nurb_curve2d samples a NURBS curve, without weights and
 * with all statistics: parameter, unit tangent, unit second derivative and normal, derivatives being those by the
 * curve's parameter. At an inner knot the end of one span and the begin of the next tell both sides apart.
 * @param[in,out] c  the curve; cursors as kx_mk_nurb_curve2d leaves them
 * @param[in] skip,skip_enable,n_spans,steps  as kx_mk_nurb_curve2d
 * @return 0 done; 1 null curve, no control points or no list of them or of knots; 2 degree outside 1 to 15 or too few
 *   control points; 3 not of type 93; 4 not more than n_spans + 2p - 2 knots; 5 no knots, a parameter below -1e-7,
 * knots of a span that decrease or are not finite, or a point or knot that is missing; 80 no memory or 10 million
 * samples or more, after the memory message. Samples that were appended before stay
 */
KX_API int32_t KX_CALL kx_mk_nubspline_2d(curve *c, int32_t skip, int32_t skip_enable, int32_t n_spans, int32_t steps);

/**
 * Samples a non-uniform space B-spline, in every respect as kx_mk_nubspline_2d does, into poly_3d points (63) and
 * curve_stats_3d statistics (61).
 * @param[in,out] c  the curve
 * @param[in] skip,skip_enable,n_spans,steps  as kx_mk_nurb_curve2d
 * @return as kx_mk_nubspline_2d, 3 when not of type 98
 */
KX_API int32_t KX_CALL kx_mk_nubspline_3d(curve *c, int32_t skip, int32_t skip_enable, int32_t n_spans, int32_t steps);

/* ---- catmull rom ---- */

/**
 * Samples a Catmull-Rom spline into a new list with kx_catrom_curve_2d (points of datatype 50 or 62) or
 * kx_catrom_curve_3d (51 or 63).
 * @param[in] n  number of points, 4 or more
 * @param[in] points  the points
 * @param[in] resolution,a  as kx_catrom_curve_2d
 * @param[out] out_count  number of points made, 0 on failure; may be null
 * @return the list, owned by the caller and freed by kx_purge_polygon; null for a null list, any other datatype, what
 *   those functions refuse (in space after the message), and after a memory message
 */
KX_API list_hdr *KX_CALL kx_catrom_curve(int32_t n, const list_hdr *points, int32_t resolution, double a,
                                         int32_t *out_count);

/**
 * Samples a Catmull-Rom spline in the plane: through the points 1 to n-2, in segments that the points before and after
 * steer. Each segment is sampled at 0, step, 2 step ... below 1, so that a joint comes once; the last point is point
 * n-2 itself. The new points are poly_2d (62), numbered from 0.
 * @param[in] n  number of points, 4 or more
 * @param[in] points  the points, of any of the four kinds; the cursor stays
 * @param[in] resolution  the step: 0 is 0.01, 1 is 0.02, 2 is 0.04, 4 is 0.1, 5 is 0.2, 6 is 0.5, any other 0.05
 * @param[in] a  tension; 0.5 for the Catmull-Rom spline proper
 * @param[out] out_count  number of points appended, 0 on failure; may be null
 * @param[in,out] out  the list appended to; emptied by kx_clear_polygon on 40 and 80
 * @return 0; 1 null list or out; 33 n below 4 or above the number of points; 40 a point without a record; 80 no memory,
 *   after its message
 */
KX_API int32_t KX_CALL kx_catrom_curve_2d(int32_t n, const list_hdr *points, int32_t resolution, double a,
                                          int32_t *out_count, list_hdr *out);

/**
 * Samples a Catmull-Rom spline in space, in every respect as kx_catrom_curve_2d does, into poly_3d points (63). Unlike
 * it, this one says what is wrong with n.
 * @param[in] n  number of points, 4 or more
 * @param[in] points  the points, of any of the four kinds; z is 0 for those of the plane
 * @param[in] resolution,a  as kx_catrom_curve_2d
 * @param[out] out_count  number of points appended, 0 on failure; may be null
 * @param[in,out] out  the list appended to; emptied by kx_clear_polygon on 40 and 80
 * @return as kx_catrom_curve_2d; 33 after the message "BADCNT" (33)
 */
KX_API int32_t KX_CALL kx_catrom_curve_3d(int32_t n, const list_hdr *points, int32_t resolution, double a,
                                          int32_t *out_count, list_hdr *out);

/* ---- bspline points ---- */

/**
 * Samples a uniform cubic B-spline into a new list with kx_bspline_2d (points of datatype 50 or 62) or kx_bspline_3d
 * (51 or 63).
 * @param[in] n  number of control points, 4 or more
 * @param[in] points  the control points
 * @param[in] resolution  the step as kx_catrom_curve_2d
 * @param[out] out_count  number of points made, 0 on failure; may be null
 * @return the list, owned by the caller and freed by kx_purge_polygon; null for a null list, any other datatype, what
 *   those functions refuse, and after a memory message
 */
KX_API list_hdr *KX_CALL kx_bspline_curve(int32_t n, const list_hdr *points, int32_t resolution, int32_t *out_count);

/**
 * Samples a uniform cubic B-spline in the plane, segment by segment as kx_catrom_curve_2d does, to the end of the last
 * segment. The curve begins near the second control point and ends near the last but one. The new points are poly_2d
 * (62), numbered from 0.
 * @param[in] n  number of control points, 4 or more
 * @param[in] points  the control points, of any of the four kinds; the cursor stays
 * @param[in] resolution  the step as kx_catrom_curve_2d
 * @param[out] out_count  number of points appended, 0 on failure; may be null
 * @param[in,out] out  the list appended to; emptied by kx_clear_polygon on 40 and 80
 * @return 0; 1 null list or out; 33 n below 4 or above the number of points; 40 a point without a record; 80 no memory,
 *   after its message
 */
KX_API int32_t KX_CALL kx_bspline_2d(int32_t n, const list_hdr *points, int32_t resolution, int32_t *out_count,
                                     list_hdr *out);

/**
 * Samples a uniform cubic B-spline in space, in every respect as kx_bspline_2d does, into poly_3d points (63).
 * @param[in] n  number of control points, 4 or more
 * @param[in] points  the control points, of any of the four kinds; z is 0 for those of the plane
 * @param[in] resolution  the step as kx_catrom_curve_2d
 * @param[out] out_count  number of points appended, 0 on failure; may be null
 * @param[in,out] out  the list appended to; emptied by kx_clear_polygon on 40 and 80
 * @return as kx_bspline_2d
 */
KX_API int32_t KX_CALL kx_bspline_3d(int32_t n, const list_hdr *points, int32_t resolution, int32_t *out_count,
                                     list_hdr *out);

/**
 * Samples the uniform cubic B-spline that begins at the first and ends at the last control point, to the last bit, into
 * a new list. The control polygon is continued at each end by the mirror image of the end's neighbour, which also makes
 * the curve leave and arrive along the first and last leg, without curvature. It has n - 1 segments.
 * @param[in] n  number of control points, 2 or more
 * @param[in] points  the control points, of any of the four kinds; the datatype tells plane from space; the cursor
 * stays
 * @param[in] resolution  the step as kx_catrom_curve_2d
 * @param[out] out_count  number of points made, 0 on failure; may be null
 * @return the list, of poly_2d (62) or poly_3d (63) numbered from 0, owned by the caller and freed by kx_purge_polygon;
 *   null for a null list, any other datatype, n below 2 or above the number of points, a point without a record, and
 *   after a memory message
 */
KX_API list_hdr *KX_CALL kx_bspline_spep(int32_t n, const list_hdr *points, int32_t resolution, int32_t *out_count);

/**
 * Samples a uniform quadratic B-spline into a new list with kx_quad_bspline_2d (points of datatype 50 or 62) or
 * kx_quad_bspline_3d (51 or 63).
 * @param[in] n  number of control points, 3 or more
 * @param[in] points  the control points
 * @param[in] resolution  the step as kx_catrom_curve_2d
 * @param[out] out_count  number of points made, 0 on failure; may be null
 * @return as kx_bspline_curve
 */
KX_API list_hdr *KX_CALL kx_quad_bspline(int32_t n, const list_hdr *points, int32_t resolution, int32_t *out_count);

/**
 * Samples a uniform quadratic B-spline in the plane, in every respect as kx_bspline_2d does. The curve begins midway
 * between the first two control points, touches every leg at its middle and ends midway between the last two.
 * @param[in] n  number of control points, 3 or more
 * @param[in] points  the control points, of any of the four kinds; the cursor stays
 * @param[in] resolution  the step as kx_catrom_curve_2d
 * @param[out] out_count  number of points appended, 0 on failure; may be null
 * @param[in,out] out  the list appended to; emptied by kx_clear_polygon on 40 and 80
 * @return as kx_bspline_2d, 33 for n below 3
 */
KX_API int32_t KX_CALL kx_quad_bspline_2d(int32_t n, const list_hdr *points, int32_t resolution, int32_t *out_count,
                                          list_hdr *out);

/**
 * Samples a uniform quadratic B-spline in space, in every respect as kx_quad_bspline_2d does, into poly_3d points (63).
 * @param[in] n  number of control points, 3 or more
 * @param[in] points  the control points, of any of the four kinds; z is 0 for those of the plane
 * @param[in] resolution  the step as kx_catrom_curve_2d
 * @param[out] out_count  number of points appended, 0 on failure; may be null
 * @param[in,out] out  the list appended to; emptied by kx_clear_polygon on 40 and 80
 * @return as kx_quad_bspline_2d
 */
KX_API int32_t KX_CALL kx_quad_bspline_3d(int32_t n, const list_hdr *points, int32_t resolution, int32_t *out_count,
                                          list_hdr *out);

/* ---- beta splines ---- */

/**
 * Makes a uniform beta-spline of plane control points, in every respect as kx_def_ubspl_curve does.
 * @param[in,out] ctrl  control points
 * @param[in] b1,b2  bias and tension as kx_def_ubetaspl_curve2d
 * @return as kx_def_ubspl_curve; null too for what kx_def_ubetaspl_curve2d refuses
 */
KX_API curve *KX_CALL kx_def_ubetaspl_curve(list_hdr *ctrl, double b1, double b2);

/**
 * Makes a curve a uniform beta-spline in the plane (91), which kx_mk_ucurve samples: type and basis are written, the
 * control points taken over. With bias 1 and tension 0 the basis is that of the uniform cubic B-spline save for one
 * element, the third of the second row: 5/12 in place of 1/2. The two differ by t^2/12 of the third control point. For
 * that element neighbouring segments meet only where 4 b1^2 + 2 b2 = 3.
 * @param[in,out] ctrl  control points; an empty list afterwards, whose count is left as it was
 * @param[in,out] c  the curve
 * @param[in] b1  bias
 * @param[in] b2  tension
 * @return 0; 2 when 2 b1^3 + 4 b1^2 + 4 b1 + b2 + 2, the divisor of the basis, is 0 or not finite; 40 when either
 *   pointer is null; 80 when the curve lacks a control list and none can be created; nothing is changed unless 0
 */
KX_API int32_t KX_CALL kx_def_ubetaspl_curve2d(list_hdr *ctrl, curve *c, double b1, double b2);

/**
 * Makes a curve a uniform beta-spline in space (92), in every respect as kx_def_ubetaspl_curve2d does. The caller
 * brings the curve, unlike with the other space definers of the uniform kinds.
 * @param[in,out] ctrl  control points; an empty list afterwards, whose count is left as it was
 * @param[in,out] c  the curve
 * @param[in] b1,b2  bias and tension
 * @return as kx_def_ubetaspl_curve2d
 */
KX_API int32_t KX_CALL kx_def_ubetaspl_curve3d(list_hdr *ctrl, curve *c, double b1, double b2);

/* ---- bezier conversion ---- */

/**
 * Turns a B-spline into Bezier curves with kx_bspl_to_bezier_curve2d or, for a type of space, with
 * kx_bspl_to_bezier_curve3d.
 * @param[in] c  the curve
 * @param[out] pieces[room],count  as kx_bspl_to_bezier_curve2d
 * @param[in] room  as kx_bspl_to_bezier_curve2d
 * @return what that function returns
 */
KX_API int32_t KX_CALL kx_bspl_to_bezier_curve(const curve *c, curve **pieces, int32_t room, int32_t *count);

/**
 * Turns a plane B-spline into Bezier curves that together are the same curve, one for each knot span of some length, by
 * knot insertion. The curve may be uniform (83, 87, 91) or not (93); it is not changed. A piece of degree 3 is a
 * uniform Bezier curve (85), one of any other degree a rational one (96) with weights of 1. Its control points are
 * poly_2d (62) numbered from 0; its knots are two numbers, the ends of the span in the parameter of c (i and i + 1 for
 * segment i of a uniform curve), over which the piece runs evenly from 0 to 1.
 * @param[in] c  the curve
 * @param[out] pieces[room]  the pieces in order: curves that have nothing in common with c or each other, owned by the
 * caller and freed by kx_purge_curve; null to learn their number only; all null on 80 after the message of a piece,
 *   unwritten on any other failure
 * @param[in] room  number of pointers that fit into pieces; at most as many pieces are made as there are control points
 * @param[out] count  number of pieces, also when there is no room for them; 0 on any other failure but that of a
 *   piece's memory; may be null
 * @return 0; 1 null curve or no control points; 2 too few of them or degree outside 1 to 15; 3 a curve of another type;
 *   4 too few knots, knots that decrease or are not finite, or none that bound a span; 5 an item that is no point, or a
 *   coordinate that is not finite or beyond 1e60; 7 no room; 80 no memory, after its message
 */
KX_API int32_t KX_CALL kx_bspl_to_bezier_curve2d(const curve *c, curve **pieces, int32_t room, int32_t *count);

/**
 * Turns a space B-spline (84, 88, 92, 98) into Bezier curves of types 86 and 97 with poly_3d points (63), in every
 * respect as kx_bspl_to_bezier_curve2d does.
 * @param[in] c  the curve
 * @param[out] pieces[room],count  as kx_bspl_to_bezier_curve2d
 * @param[in] room  as kx_bspl_to_bezier_curve2d
 * @return as kx_bspl_to_bezier_curve2d
 */
KX_API int32_t KX_CALL kx_bspl_to_bezier_curve3d(const curve *c, curve **pieces, int32_t room, int32_t *count);

/**
 * Turns a NURBS curve into rational Bezier curves with kx_rat_bspl_to_bezier_curve2d or, for type 95, with
 * kx_rat_bspl_to_bezier_curve3d.
 * @param[in] c  the curve
 * @param[out] pieces[room],count  as kx_bspl_to_bezier_curve2d
 * @param[in] room  as kx_bspl_to_bezier_curve2d
 * @return what that function returns
 */
KX_API int32_t KX_CALL kx_rat_bspl_to_bezier_curve(const curve *c, curve **pieces, int32_t room, int32_t *count);

/**
 * Turns a plane NURBS curve (94) into rational Bezier curves (96) that together are the same curve: as
 * kx_bspl_to_bezier_curve2d does, with the knots inserted into the weighted points and the weights alike.
 * @param[in] c  the curve; its weights are to be above 0, and so are those of the pieces then
 * @param[out] pieces[room],count  as kx_bspl_to_bezier_curve2d
 * @param[in] room  as kx_bspl_to_bezier_curve2d
 * @return as kx_bspl_to_bezier_curve2d; 6 fewer weights than control points, or one outside 1e-60 to 1e60
 */
KX_API int32_t KX_CALL kx_rat_bspl_to_bezier_curve2d(const curve *c, curve **pieces, int32_t room, int32_t *count);

/**
 * Turns a space NURBS curve (95) into rational Bezier curves (97) with poly_3d points (63), in every respect as
 * kx_rat_bspl_to_bezier_curve2d does.
 * @param[in] c  the curve
 * @param[out] pieces[room],count  as kx_bspl_to_bezier_curve2d
 * @param[in] room  as kx_bspl_to_bezier_curve2d
 * @return as kx_rat_bspl_to_bezier_curve2d
 */
KX_API int32_t KX_CALL kx_rat_bspl_to_bezier_curve3d(const curve *c, curve **pieces, int32_t room, int32_t *count);
/* ---- curve evaluation ---- */

/* From here on functions serve every kind of curve. They read the record as it stands, of the control points of any of
 * the four kinds: those of a space curve without z have z 0, those of a plane curve lose theirs. Parameters: a uniform
 * curve of n control points runs from 0 to n - 3, a uniform Bezier curve from 0 to n / 4, one unit for each segment or
 * group of four points; a non-uniform B-spline or NURBS curve of degree p from knot p-1 to knot n-1 (the knot vector is
 * the textbook's without its first and last knot, further knots are not read); a rational Bezier curve from 0 to 1. A
 * parameter beyond an end by no more than its allowance is the end. At a joint the curve is the piece that begins
 * there: it matters where control points, knots or basis let the curve jump or break.
 *
 * All of them answer alike: 0; 1 null curve or no control points; 2 too few control points, or a degree outside 1 to 15
 * (rational Bezier: 1 to 30); 3 a curve of the other dimension or of no known type; 4 too few knots, knots that
 * decrease or are not finite, or no span among them; 5 an item that is no point, or a coordinate or basis element that
 * is not finite or beyond 1e60; 6 too few weights, or one outside 1e-60 to 1e60; 7 a parameter outside the range or no
 * number; 8 a value out of range, as each function says; 9 too much work, as each function says; 10 not enough room;
 * 40 a null argument; 80 no memory, without a message. Outputs are unwritten unless the result is 0 or the function
 * says otherwise. No list is changed and no cursor moves.
 */

/**
 * The parameters of a curve's ends, plane or space.
 * @param[in] c  the curve
 * @param[out] from,to  the parameters
 * @return 0; 1 to 6, 40, 80 as said above
 */
KX_API int32_t KX_CALL kx_curve_range(const curve *c, double *from, double *to);

/**
 * The point of a plane curve at a parameter. For many parameters kx_curve_pntsat_2d is far quicker: each call here
 * reads the whole record.
 * @param[in] c  the curve
 * @param[in] t  parameter
 * @param[out] pnt  the point
 * @return 0; 1 to 7, 40, 80 as said above
 */
KX_API int32_t KX_CALL kx_curve_pnt_2d(const curve *c, double t, pnt_2d *pnt);

/**
 * The point of a space curve at a parameter, as kx_curve_pnt_2d.
 * @param[in] c  the curve
 * @param[in] t  parameter
 * @param[out] pnt  the point
 * @return as kx_curve_pnt_2d
 */
KX_API int32_t KX_CALL kx_curve_pnt_3d(const curve *c, double t, pnt_3d *pnt);

/**
 * The point of a plane curve and its derivatives by the parameter. Orders above the degree are 0 for a curve without
 * weights.
 * @param[in] c  the curve
 * @param[in] t  parameter
 * @param[in] order  highest derivative wanted, 0 to 30
 * @param[out] out[2*(order+1)]  order + 1 rows of x, y, the point first
 * @return 0; 1 to 7, 40, 80 as said above; 8 order out of range
 */
KX_API int32_t KX_CALL kx_curve_derivs_2d(const curve *c, double t, int32_t order, double *out);

/**
 * The point of a space curve and its derivatives, as kx_curve_derivs_2d.
 * @param[in] c  the curve
 * @param[in] t  parameter
 * @param[in] order  highest derivative wanted, 0 to 30
 * @param[out] out[3*(order+1)]  order + 1 rows of x, y, z, the point first
 * @return as kx_curve_derivs_2d
 */
KX_API int32_t KX_CALL kx_curve_derivs_3d(const curve *c, double t, int32_t order, double *out);

/**
 * The points of a plane curve at many parameters, in any order; quickest when they increase.
 * @param[in] c  the curve
 * @param[in] t[count]  parameters
 * @param[in] count  how many
 * @param[out] xy[2*count]  x, y of each; unwritten unless all parameters are in the range
 * @return 0; 1 to 7, 40, 80 as said above; 8 negative count
 */
KX_API int32_t KX_CALL kx_curve_pntsat_2d(const curve *c, const double *t, int32_t count, double *xy);

/**
 * The points of a space curve at many parameters, as kx_curve_pntsat_2d.
 * @param[in] c  the curve
 * @param[in] t[count]  parameters
 * @param[in] count  how many
 * @param[out] xyz[3*count]  x, y, z of each; unwritten unless all parameters are in the range
 * @return as kx_curve_pntsat_2d
 */
KX_API int32_t KX_CALL kx_curve_pntsat_3d(const curve *c, const double *t, int32_t count, double *xyz);

/* ---- curve sampling ---- */

/**
 * The points of a plane curve at equally spaced parameters, both given ones included.
 * @param[in] c  the curve
 * @param[in] from,to  first and last parameter, in either order
 * @param[in] count  number of points, 2 to 1 000 000
 * @param[out] xy[2*count]  x, y of each
 * @return 0; 1 to 7, 40, 80 as said above; 8 count out of range
 */
KX_API int32_t KX_CALL kx_curve_pnts_2d(const curve *c, double from, double to, int32_t count, double *xy);

/**
 * The points of a space curve at equally spaced parameters, as kx_curve_pnts_2d.
 * @param[in] c  the curve
 * @param[in] from,to  first and last parameter, in either order
 * @param[in] count  number of points, 2 to 1 000 000
 * @param[out] xyz[3*count]  x, y, z of each
 * @return as kx_curve_pnts_2d
 */
KX_API int32_t KX_CALL kx_curve_pnts_3d(const curve *c, double from, double to, int32_t count, double *xyz);

/**
 * The points of a plane curve at equal steps in each of its pieces (segments, groups, knot spans). A joint is sampled
 * once, or twice where the curve jumps there by more than 1e-7.
 * @param[in] c  the curve
 * @param[in] steps  steps of each piece, 1 or more
 * @param[in] capacity  points for which there is room; 0 to ask for the number
 * @param[out] xy[2*capacity]  x, y of each, as far as there is room; may be null when capacity is 0
 * @param[out] count  number of points that the curve has
 * @return 0; 1 to 6, 40, 80 as said above; 8 steps or capacity out of range; 9 the points might be more than 1 000 000;
 *   10 capacity is less than count, which is written
 */
KX_API int32_t KX_CALL kx_curve_steps_2d(const curve *c, int32_t steps, int32_t capacity, double *xy, int32_t *count);

/**
 * The points of a space curve at equal steps in each of its pieces, as kx_curve_steps_2d.
 * @param[in] c  the curve
 * @param[in] steps  steps of each piece, 1 or more
 * @param[in] capacity  points for which there is room; 0 to ask for the number
 * @param[out] xyz[3*capacity]  x, y, z of each, as far as there is room; may be null when capacity is 0
 * @param[out] count  number of points that the curve has
 * @return as kx_curve_steps_2d
 */
KX_API int32_t KX_CALL kx_curve_steps_3d(const curve *c, int32_t steps, int32_t capacity, double *xyz, int32_t *count);

/**
 * The points of a polygon that stays within a tolerance of a plane curve: no point of the curve is farther than that
 * from the chord that stands for it. Points are close where the curve is bent and rare where it is not; the joints of
 * its pieces are always among them, twice where the curve jumps by more than 1e-7.
 * @param[in] c  the curve
 * @param[in] tol  largest distance between curve and chord, above 0
 * @param[in] capacity  points for which there is room; 0 to ask for the number
 * @param[out] xy[2*capacity]  x, y of each, as far as there is room; may be null when capacity is 0
 * @param[out] count  number of points of the polygon
 * @return 0; 1 to 6, 40, 80 as said above; 8 a tolerance not above 0 or not finite, or a negative capacity; 9 more than
 *   1 000 000 points, of which some may be written; 10 capacity is less than count, which is written
 */
KX_API int32_t KX_CALL kx_curve_chords_2d(const curve *c, double tol, int32_t capacity, double *xy, int32_t *count);

/**
 * The points of a polygon that stays within a tolerance of a space curve, as kx_curve_chords_2d.
 * @param[in] c  the curve
 * @param[in] tol  largest distance between curve and chord, above 0
 * @param[in] capacity  points for which there is room; 0 to ask for the number
 * @param[out] xyz[3*capacity]  x, y, z of each, as far as there is room; may be null when capacity is 0
 * @param[out] count  number of points of the polygon
 * @return as kx_curve_chords_2d
 */
KX_API int32_t KX_CALL kx_curve_chords_3d(const curve *c, double tol, int32_t capacity, double *xyz, int32_t *count);

/**
 * Appends the polygon of kx_curve_chords_2d to a list, all of it or nothing.
 * @param[in] c  the curve
 * @param[in] tol  largest distance between curve and chord, above 0
 * @param[in,out] pnts  list of poly_2d, or empty; its numbers are continued, and its cursor ends at the last point
 * @return 0; 1 to 6, 8, 9, 40 as kx_curve_chords_2d, 40 also for a list of another kind; 80 no memory, with the message
 *   of a point or item
 */
KX_API int32_t KX_CALL kx_curve_chordpnts_2d(const curve *c, double tol, list_hdr *pnts);

/**
 * Appends the polygon of kx_curve_chords_3d to a list, all of it or nothing.
 * @param[in] c  the curve
 * @param[in] tol  largest distance between curve and chord, above 0
 * @param[in,out] pnts  list of poly_3d, or empty; its numbers are continued, and its cursor ends at the last point
 * @return as kx_curve_chordpnts_2d
 */
KX_API int32_t KX_CALL kx_curve_chordpnts_3d(const curve *c, double tol, list_hdr *pnts);

/* ---- curve length ---- */

/**
 * The length of a curve, plane or space, between two parameters. Jumps have no length.
 * @param[in] c  the curve
 * @param[in] from,to  parameters, in either order
 * @param[in] allowed  error that is allowed, 0 or more; rounding (1e-14 of the length, and of the coordinates of
 *   each piece a tenth of that) is never undercut
 * @param[out] length  the length, not negative
 * @param[out] error  estimate of its error: the difference of two quadrature rules, of which the better one is given,
 *   summed over all intervals; may be null
 * @return 0, error at most the larger of allowed and ten times that rounding; 1 to 7, 40, 80 as said above; 8 allowed
 *   negative or no number; 9 the error could not be brought down so far, length and error are written
 */
KX_API int32_t KX_CALL kx_curve_length(const curve *c, double from, double to, double allowed, double *length,
                                       double *error);

/**
 * The parameter and the point of a plane curve at a length from a parameter.
 * @param[in] c  the curve
 * @param[in] from  parameter from which the length counts
 * @param[in] length  how far to go; against the parameter when negative
 * @param[in] allowed  error of the length that is allowed, 0 or more, as in kx_curve_length
 * @param[out] t  the parameter; one that passes an end by no more than that error is the end
 * @param[out] pnt  the point; may be null
 * @return 0; 1 to 7, 40, 80 as said above; 8 the curve is not that long, or allowed negative or no number; 9 the error
 *   could not be brought down so far, t and pnt are written
 */
KX_API int32_t KX_CALL kx_curve_atlength_2d(const curve *c, double from, double length, double allowed, double *t,
                                            pnt_2d *pnt);

/**
 * The parameter and the point of a space curve at a length from a parameter, as kx_curve_atlength_2d.
 * @param[in] c  the curve
 * @param[in] from  parameter from which the length counts
 * @param[in] length  how far to go; against the parameter when negative
 * @param[in] allowed  error of the length that is allowed, 0 or more, as in kx_curve_length
 * @param[out] t  the parameter; one that passes an end by no more than that error is the end
 * @param[out] pnt  the point; may be null
 * @return as kx_curve_atlength_2d
 */
KX_API int32_t KX_CALL kx_curve_atlength_3d(const curve *c, double from, double length, double allowed, double *t,
                                            pnt_3d *pnt);

/* ---- curve measures ---- */

/**
 * The point of a plane curve that is nearest to a given one; of equally near ones any. It is an end of a piece, or the
 * line to it stands at right angles to the curve.
 * @param[in] c  the curve
 * @param[in] pnt  the given point, within 1e60
 * @param[out] t  parameter of the nearest point; any of the outputs may be null
 * @param[out] nearest  the nearest point
 * @param[out] distance  its distance
 * @return 0; 1 to 6, 40, 80 as said above; 8 the given point is not finite or too far
 */
KX_API int32_t KX_CALL kx_curve_closest_2d(const curve *c, const pnt_2d *pnt, double *t, pnt_2d *nearest,
                                           double *distance);

/**
 * The point of a space curve that is nearest to a given one, as kx_curve_closest_2d.
 * @param[in] c  the curve
 * @param[in] pnt  the given point, within 1e60
 * @param[out] t  parameter of the nearest point; any of the outputs may be null
 * @param[out] nearest  the nearest point
 * @param[out] distance  its distance
 * @return as kx_curve_closest_2d
 */
KX_API int32_t KX_CALL kx_curve_closest_3d(const curve *c, const pnt_3d *pnt, double *t, pnt_3d *nearest,
                                           double *distance);

/**
 * The curvature of a plane curve, positive where it turns counter-clockwise: the inverse of the radius.
 * @param[in] c  the curve
 * @param[in] t  parameter
 * @param[out] curvature  the curvature
 * @param[out] centre  centre of the circle of curvature, the point of the curve itself where the curvature is 0; may be
 *   null
 * @return 0; 1 to 7, 40, 80 as said above; 8 the first derivative vanishes: a cusp or an end with coincident points
 */
KX_API int32_t KX_CALL kx_curve_curvature_2d(const curve *c, double t, double *curvature, pnt_2d *centre);

/**
 * The curvature of a space curve, which is never negative.
 * @param[in] c  the curve
 * @param[in] t  parameter
 * @param[out] curvature  the curvature
 * @param[out] centre  as kx_curve_curvature_2d
 * @return as kx_curve_curvature_2d
 */
KX_API int32_t KX_CALL kx_curve_curvature_3d(const curve *c, double t, double *curvature, pnt_3d *centre);

/**
 * The smallest box around a plane curve: the curve, not its control points, touches every side.
 * @param[in] c  the curve
 * @param[out] low,high  the smallest and the largest coordinates
 * @return 0; 1 to 6, 40, 80 as said above
 */
KX_API int32_t KX_CALL kx_curve_box_2d(const curve *c, pnt_2d *low, pnt_2d *high);

/**
 * The smallest box around a space curve, as kx_curve_box_2d.
 * @param[in] c  the curve
 * @param[out] low,high  the smallest and the largest coordinates
 * @return as kx_curve_box_2d
 */
KX_API int32_t KX_CALL kx_curve_box_3d(const curve *c, pnt_3d *low, pnt_3d *high);

/* ---- points on curves ---- */

/**
 * The point of a polynomial, coefficient by coefficient: by Horner's scheme from the highest power down.
 * @param[in] coef[degree+1]  coefficients of t^degree, ..., t, 1; those of the plane with z 0
 * @param[in] degree  0 to 30
 * @param[in] t  parameter, any number
 * @param[out] pnt  the point; it may be one of the coefficients
 * @return 0; 8 degree out of range; 40 a null argument
 */
KX_API int32_t KX_CALL kx_polynomial_pnt(const pnt_3d *coef, int32_t degree, double t, pnt_3d *pnt);

/**
 * The point of any curve, plane or space, at a parameter.
 * @param[in] c  the curve
 * @param[in] t  parameter
 * @param[out] pnt  the point; z is 0 for a plane curve
 * @return 0; 1 to 7, 40, 80 as said above
 */
KX_API int32_t KX_CALL kx_eval_pointoncurve(const curve *c, double t, pnt_3d *pnt);

/**
 * The point of any curve, plane or space, and its derivatives by the parameter. Orders above the degree are 0 for a
 * curve without weights.
 * @param[in] c  the curve
 * @param[in] t  parameter
 * @param[in] order  highest derivative wanted, 0 to 30
 * @param[out] out[order+1]  the point, then a derivative each; z is 0 for a plane curve
 * @return 0; 1 to 7, 40, 80 as said above; 8 order out of range
 */
KX_API int32_t KX_CALL kx_eval_derivsoncurve(const curve *c, double t, int32_t order, pnt_3d *out);

/**
 * The point of a segment of a uniform curve, plane or space, and its first three derivatives: their true lengths, not
 * made unit length like those of kx_eval_t_on_ucurve2d.
 * @param[in] c  a curve of one of the uniform kinds
 * @param[in] segment  from 0; of a uniform Bezier curve the group of four points
 * @param[in] t  parameter in the segment, 0 to 1
 * @param[out] pnt  the point; any of the outputs may be null
 * @param[out] first,second,third  the derivatives, with direction and length
 * @return 0; 1 to 6, 80 as said above, 3 also for a curve of another kind; 7 segment or t out of range
 */
KX_API int32_t KX_CALL kx_eval_derivs_ucurve(const curve *c, int32_t segment, double t, pnt_3d *pnt, vector_3d *first,
                                             vector_3d *second, vector_3d *third);

/* ---- interpolation ---- */

/**
 * Makes the uniform cubic B-spline through given points: at parameter i it is at point i. It is twice continuously
 * differentiable and has no curvature at its ends.
 * @param[in] points  list of two or more points of one of the four kinds; the current item's kind is the list's
 * @return the curve, the caller's, of type 83 or 84 with two control points more than there are points; null for a list
 *   of another kind, fewer than two points or one that is not finite, and after a memory message
 */
KX_API curve *KX_CALL kx_curve_thru_points(const list_hdr *points);

/**
 * Makes the non-uniform B-spline of a degree through the first points of a list. Its parameter at a point is the length
 * of the chords up to there, which keeps it from swinging where the distances of the points differ much; it begins at
 * the first and ends at the last of them.
 * @param[in] points  list of points of one of the four kinds, neighbours more than 1e-7 apart; the current item's kind
 *   is the list's
 * @param[in] n  number of points to go through, 2 or more
 * @param[in] degree  1 to 15; n - 1 is taken when that is less
 * @return the curve, the caller's, of type 93 or 98 with as many control points as it goes through points; null for a
 *   list of another kind, n or degree out of range, neighbours that coincide, a point that is not finite, and after a
 *   memory message
 */
KX_API curve *KX_CALL kx_curve_thru_npoints(const list_hdr *points, int32_t n, int32_t degree);

/* ---- bezier points ---- */

/**
 * Computes n! as a double, exact up to 22.
 * @param[in] n  the number; from 171 on the answer is infinite
 * @return n!; 1 for 0, 1 and negative n
 */
KX_API double KX_CALL kx_bez_factorial(int32_t n);

/**
 * Makes an array of equally spaced points of a Bezier curve with kx_beziercurve2d or kx_beziercurve3d.
 * @param[in] ctrl[n_ctrl*3]  control points, an array of pnt_2d (two numbers each) or pnt_3d
 * @param[in] datatype  50 for pnt_2d, 51 for pnt_3d
 * @param[in] n_ctrl  number of control points, 3 to 30
 * @param[in] n_out  number of points wanted, 0 to 1 000 000
 * @return the array of n_out points of the same kind, owned by the caller and freed by kx_purge_pnt_2d_array or
 *   kx_purge_pnt_3d_array; null for a null array, any other datatype and counts out of range, and after the memory
 *   message "kx_create_pnt_2d_array" or "kx_create_pnt_3d_array"
 */
KX_API double *KX_CALL kx_beziercurve(const double *ctrl, int32_t datatype, int32_t n_ctrl, int32_t n_out);

/**
 * Computes points of a plane Bezier curve at the parameters j / (n_out - 1), j from 0 to n_out - 1; a single point is
 * that of parameter 0. The curve begins at the first control point, ends at the last one and stays in their hull.
 * @param[in] ctrl[n_ctrl*2]  control points, an array of pnt_2d
 * @param[in] n_ctrl  number of control points, 3 to 30
 * @param[in] n_out  number of points wanted; nothing is written for one below 1
 * @param[out] out[n_out*2]  array of n_out pnt_2d, not overlapping ctrl; unwritten unless the result is 0
 * @return 0; 40 null ctrl, or null out with points wanted; 45 more than 30 control points; 46 fewer than 3
 */
KX_API int32_t KX_CALL kx_beziercurve2d(const double *ctrl, int32_t n_ctrl, int32_t n_out, double *out);

/**
 * Computes points of a space Bezier curve as kx_beziercurve2d does.
 * @param[in] ctrl[n_ctrl*3]  control points, an array of pnt_3d
 * @param[in] n_ctrl  number of control points, 3 to 30
 * @param[in] n_out  number of points wanted; nothing is written for one below 1
 * @param[out] out[n_out*3]  array of n_out pnt_3d, not overlapping ctrl; unwritten unless the result is 0
 * @return as kx_beziercurve2d
 */
KX_API int32_t KX_CALL kx_beziercurve3d(const double *ctrl, int32_t n_ctrl, int32_t n_out, double *out);

/**
 * Makes a list of equally spaced points of a Bezier curve with kx_bezier_curve_2d (control points of datatype 50 or 62)
 * or kx_bezier_curve_3d (51 or 63).
 * @param[in] ctrl  control points; the current one tells the datatype
 * @param[in] n_ctrl  number of control points
 * @param[in,out] n_out  number of points wanted; number of points made, untouched when the result is null
 * @return the list of poly_2d or poly_3d, owned by the caller and freed by kx_purge_polygon; null for null pointers,
 *   any other datatype, an empty list and a result other than 0, and after a memory message
 */
KX_API list_hdr *KX_CALL kx_bezier_curve(const list_hdr *ctrl, int32_t n_ctrl, int32_t *n_out);

/**
 * Appends points of a plane Bezier curve at the parameters of kx_beziercurve2d to a list, numbered from 0. The first
 * half of the curve takes the last n_ctrl control points of its list, the second half the first ones: n_ctrl is meant
 * to be their number.
 * @param[in] ctrl  control points of any of the four kinds
 * @param[in] n_ctrl  number of control points, at most 30; for fewer than 3 nothing is appended
 * @param[in] n_out  number of points wanted, at most 1 000 000; for fewer than 1 nothing is appended
 * @param[in,out] out  list of poly_2d (62)
 * @return 0; 40 null list, or fewer than n_ctrl control points; 45 n_ctrl above 30; 47 n_out above 1 000 000; 80 no
 *   memory, after its message; nothing is appended unless the result is 0
 */
KX_API int32_t KX_CALL kx_bezier_curve_2d(const list_hdr *ctrl, int32_t n_ctrl, int32_t n_out, list_hdr *out);

/**
 * Appends points of a space Bezier curve to a list as kx_bezier_curve_2d does.
 * @param[in] ctrl  control points of any of the four kinds; plane ones have z = 0
 * @param[in] n_ctrl  number of control points, at most 30; for fewer than 3 nothing is appended
 * @param[in] n_out  number of points wanted, at most 1 000 000; for fewer than 1 nothing is appended
 * @param[in,out] out  list of poly_3d (63)
 * @return as kx_bezier_curve_2d
 */
KX_API int32_t KX_CALL kx_bezier_curve_3d(const list_hdr *ctrl, int32_t n_ctrl, int32_t n_out, list_hdr *out);

/**
 * Computes one point of a plane Bezier curve by de Casteljau's construction, at any parameter.
 * @param[in] ctrl[first+degree+1]  array that holds the control points
 * @param[in] first  index of the first control point in it, not negative
 * @param[in] degree  0 to 15; ctrl[first] to ctrl[first+degree] are the control points
 * @param[in] t  parameter, 0 to 1 on the curve between its ends
 * @return the point, owned by the caller and freed by kx_purge_pnt_2d; null for a null array and numbers out of range,
 *   and after the memory message "kx_create_pnt_2d"
 */
KX_API pnt_2d *KX_CALL kx_bezier_pnt_2d(const pnt_2d *ctrl, int32_t first, int32_t degree, double t);

/**
 * Computes one point of a space Bezier curve as kx_bezier_pnt_2d does.
 * @param[in] ctrl[first+degree+1]  array that holds the control points
 * @param[in] first  index of the first control point in it, not negative
 * @param[in] degree  0 to 15; ctrl[first] to ctrl[first+degree] are the control points
 * @param[in] t  parameter, 0 to 1 on the curve between its ends
 * @return the point, owned by the caller and freed by kx_purge_pnt_3d; null for a null array and numbers out of range,
 *   and after the memory message "kx_create_pnt_3d"
 */
KX_API pnt_3d *KX_CALL kx_bezier_pnt_3d(const pnt_3d *ctrl, int32_t first, int32_t degree, double t);

/* ---- bezier subdivision ---- */

/**
 * Cuts a Bezier curve in two with kx_sub_bezier_curve2d (control points of datatype 50 or 62) or kx_sub_bezier_curve3d
 * (51 or 63).
 * @param[in] c  the curve
 * @param[in] t  parameter of the cut
 * @param[in,out] first_part,second_part  as kx_sub_bezier_curve2d
 * @return what that function returns; -1 for a null curve and for control points of any other datatype or none
 */
KX_API int32_t KX_CALL kx_sub_bezier_curve(const curve *c, double t, curve *first_part, curve *second_part);

/**
 * Cuts a plane Bezier curve (85) of degree + 1 control points in two and gives the control points of both parts, as
 * poly_2d (62) numbered from 0 in the order of their list. Both parts begin at the cut: the first one runs backwards,
 * from the point at t to the first control point. Only the control lists are filled; type, degree and basis are the
 * caller's to set. Control points that a part had already stay; the new ones stand before those of the first part and
 * behind those of the second, and the cursor ends at the point of the cut.
 * @param[in] c  the curve; it may also be one of the parts
 * @param[in] t  parameter of the cut, 0 to 1 between the ends; any number is taken
 * @param[in,out] first_part,second_part  curves with control lists; untouched unless the result is 0
 * @return 0; 40 null curve, not of type 85, missing control list, a degree outside 0 to 30 or fewer than degree + 1
 *   control points; 80 no memory, after its message
 */
KX_API int32_t KX_CALL kx_sub_bezier_curve2d(const curve *c, double t, curve *first_part, curve *second_part);

/**
 * Cuts a space Bezier curve (86) in two, in every respect as kx_sub_bezier_curve2d does, into poly_3d points (63).
 * @param[in] c  the curve; it may also be one of the parts
 * @param[in] t  parameter of the cut, 0 to 1 between the ends; any number is taken
 * @param[in,out] first_part,second_part  curves with control lists; untouched unless the result is 0
 * @return as kx_sub_bezier_curve2d, 40 when not of type 86
 */
KX_API int32_t KX_CALL kx_sub_bezier_curve3d(const curve *c, double t, curve *first_part, curve *second_part);

/* ---- rational bezier ---- */

/**
 * Makes a new rational Bezier curve of control points in the plane (datatype 50 or 62) or in space (51 or 63).
 * @param[in,out] ctrl,weights  as kx_def_ratbezier_curve2d
 * @return the curve, owned by the caller and freed by kx_purge_curve; null, the lists untouched, for any other
 *   datatype, for what kx_def_ratbezier_curve2d refuses, and after a memory message
 */
KX_API curve *KX_CALL kx_def_ratbezier_curve(list_hdr *ctrl, list_hdr *weights);

/**
 * Makes a curve a rational Bezier curve in the plane (96), of degree control points - 1. The type is written first,
 * also when a check then fails. A null list counts as an empty one.
 * @param[in,out] ctrl,weights  2 to 31 control points and a weight or more for each; on success empty lists, their
 *   headers all 0; untouched on failure
 * @param[in,out] c  the curve
 * @return 0; 1 fewer than 2 control points; 2 fewer weights than control points; 3 more than 31 control points; 4 null
 *   curve; 80 when the curve lacks a list and none can be created
 */
KX_API int32_t KX_CALL kx_def_ratbezier_curve2d(list_hdr *ctrl, list_hdr *weights, curve *c);

/**
 * Makes a curve a rational Bezier curve in space (97), in every respect as kx_def_ratbezier_curve2d does.
 * @param[in,out] ctrl,weights  as kx_def_ratbezier_curve2d
 * @param[in,out] c  the curve
 * @return as kx_def_ratbezier_curve2d
 */
KX_API int32_t KX_CALL kx_def_ratbezier_curve3d(list_hdr *ctrl, list_hdr *weights, curve *c);

/**
 * Samples a rational Bezier curve with kx_mk_rat_bezier_2d (type 96) or kx_mk_rat_bezier_3d (97).
 * @param[in,out] c  the curve
 * @param[in] step  parameter step
 * @return what that maker returns; 1 null curve; 3 any other type
 */
KX_API int32_t KX_CALL kx_mk_ratbezier_curve(curve *c, double step);

/**
 * Samples a plane rational Bezier curve at the parameters 0, step, 2 step ... up to 1 and appends to curve_pnts (62)
 * and curve_stats (60), lists that are created when missing. A parameter within 2e-7 of 1 is 1. The samples are
 * numbered from 0; their statistics are the parameter, the unit first and second derivatives and the normal. Control
 * points may be of any of the four kinds. With equal weights it is the Bezier curve of its control points; a common
 * factor of the weights changes nothing.
 * @param[in,out] c  the curve; step is noted in it
 * @param[in] step  parameter step; one that is not finite or not above 1e-7 (a negative one too) counts as 0.1
 * @return 0 done; 1 null curve, missing list or no control points; 2 degree outside 1 to 30 or fewer than degree + 1
 *   control points; 3 not of type 96; 5 the weight of a sample is within 1e-7 of 0 or not finite; 6 fewer than
 *   degree + 1 weights; 7 more than 1 000 000 samples; 80 no memory, after its message. Samples that were appended
 *   before stay
 */
KX_API int32_t KX_CALL kx_mk_rat_bezier_2d(curve *c, double step);

/**
 * Samples a space rational Bezier curve, in every respect as kx_mk_rat_bezier_2d does, into poly_3d points (63) and
 * curve_stats_3d statistics (61).
 * @param[in,out] c  the curve; step is noted in it
 * @param[in] step  parameter step; one that is not finite or not above 1e-7 (a negative one too) counts as 0.1
 * @return as kx_mk_rat_bezier_2d, 3 when not of type 97
 */
KX_API int32_t KX_CALL kx_mk_rat_bezier_3d(curve *c, double step);

/**
 * Evaluates a rational Bezier curve in the plane (96) or in space (97) at one parameter.
 * @param[in] c  the curve
 * @param[in] t  parameter from 0 to 1, with the tolerance 1e-7 below and 2e-7 above
 * @param[out] point  the point, z = 0 in the plane; unwritten on failure
 * @return 0; 1, 2, 3, 5, 6 as kx_mk_rat_bezier_2d; 4 t out of range or no number; 40 null point
 */
KX_API int32_t KX_CALL kx_eval_pntonratbezier(const curve *c, double t, pnt_3d *point);

/**
 * Cuts a rational Bezier curve in two with kx_sub_ratbezier_curve2d (control points of datatype 50 or 62) or
 * kx_sub_ratbezier_curve3d (51 or 63).
 * @param[in] c  the curve
 * @param[in] t  parameter of the cut
 * @param[in,out] first_part,second_part  as kx_sub_ratbezier_curve2d
 * @return what that function returns; -1 for a null curve and for control points of any other datatype or none
 */
KX_API int32_t KX_CALL kx_sub_ratbezier_curve(const curve *c, double t, curve *first_part, curve *second_part);

/**
 * Cuts a plane rational Bezier curve (96) in two as kx_sub_bezier_curve2d does a Bezier curve: control points and
 * weights of both parts, those of the first backwards from the cut; type and degree are the caller's to set. A control
 * point that is left without weight and without a place is the origin.
 * @param[in] c  the curve; it may also be one of the parts
 * @param[in] t  parameter of the cut, 0 to 1 between the ends; any number is taken
 * @param[in,out] first_part,second_part  curves with control and weight lists; untouched unless the result is 0
 * @return 0; 5 the weight of a control point is within 1e-7 of 0 or not finite; 40 null curve, missing list, or a curve
 *   that kx_mk_rat_bezier_2d refuses; 80 no memory, after its message
 */
KX_API int32_t KX_CALL kx_sub_ratbezier_curve2d(const curve *c, double t, curve *first_part, curve *second_part);

/**
 * Cuts a space rational Bezier curve (97) in two, in every respect as kx_sub_ratbezier_curve2d does.
 * @param[in] c  the curve; it may also be one of the parts
 * @param[in] t  parameter of the cut, 0 to 1 between the ends; any number is taken
 * @param[in,out] first_part,second_part  curves with control and weight lists; untouched unless the result is 0
 * @return as kx_sub_ratbezier_curve2d
 */
KX_API int32_t KX_CALL kx_sub_ratbezier_curve3d(const curve *c, double t, curve *first_part, curve *second_part);

/* ---- bezier fitting ---- */

/**
 * Computes the tangent of a run of plane points at one of them, of length 1: from points[i] to the next point (mode 0,
 * the start of a run), to the one before (mode 1, its end), or half way between the directions from points[i+1] to
 * points[i] and on to points[i-1] (mode 2, inside: backwards, too). One not longer than 1e-7 is not made unit length.
 * @param[in] points[i+2]  array of points
 * @param[in] i  index of the point in it, with its neighbours there
 * @param[in] mode  0, 1 or 2
 * @param[out] out  the components; unwritten unless the result is 0
 * @return 0; mode - 2 for any other mode; 40 for null and for an index with no neighbour before it where that is asked
 * for, or below 0
 */
KX_API int32_t KX_CALL kx_compute_bez_tangent(const pnt_2d *points, int32_t i, int32_t mode, pnt_2d *out);

/**
 * Fits cubic Bezier pieces to points in their order: no point is farther than a tolerance from its piece. A piece is
 * the least-squares one for chord-length parameters, which Newton's method improves a few times. Where that is not
 * enough the points are split at the worst one of the middle half; the pieces meet there with the tangent of
 * kx_compute_bez_tangent, or with one each where the points turn back on themselves. The first and the last point and
 * every split are met exactly. A point that repeats the one before it is passed over.
 * @param[in] points  points of any of the four kinds; the current one's datatype tells plane (50, 62) from space (51,
 *   63)
 * @param[in] tolerance  greatest distance, 0 or more; 0 makes a piece for each pair of points that lies on no other
 * @param[in,out] pieces  list to which the pieces are appended, four control points each, numbered from 0: poly_2d (62)
 *   in the plane, poly_3d (63) in space; the cursor ends at the first one; untouched unless the result is 0
 * @return 0; 1 fewer than two different points; 2 tolerance negative or no number; 3 a coordinate that is no number or
 *   beyond 1e100; 40 null list, any other datatype, or an item without a record; 80 no memory, after its message (that
 *   of the work space is "kx_fit_bezcurve")
 */
KX_API int32_t KX_CALL kx_fit_bezcurve(const list_hdr *points, double tolerance, list_hdr *pieces);

#ifdef __cplusplus
}
#endif

#endif
