/* Polygons: questions about points and polygons, rectangles and circles.
 *
 * Common to all functions here:
 * - A polygon is closed: its last point is joined to its first. It may repeat the first point at the end.
 * - Lists may hold any of the four kinds of point (pnt_2d, pnt_3d, poly_2d, poly_3d); of points in space x and y count.
 *   The list's datatype decides how its items are read; items without data or with a smaller record are passed over. A
 *   null or empty list, or one of another kind, has no points. Queries leave the cursor of a list where it is, unless
 *   it is said otherwise.
 * - Inside is decided by the ray from the point to the right: an odd number of crossings. This is the true answer for
 *   every point that is not on the boundary, however the polygon crosses itself, whichever vertex comes first, and
 *   whatever lies on the ray. On the boundary is what kx_pointonline says of some edge, the closing edge included.
 * - An edge with a NaN coordinate is as good as not there. A point that is not finite lies nowhere.
 * - Functions that collect points append them to the caller's list as poly_2d, numbered on from the last one's seqnr
 *   (from 0 in an empty list); the last one appended becomes current. The list is empty or begins and ends with
 * poly_2d; otherwise nothing is done. When the memory is exhausted, the list stays as it was and the result is 0, after
 * the message.
 */
#ifndef KXGEOM_POLYGON_H
#define KXGEOM_POLYGON_H

#include "kxgeom/export.h"
#include "kxgeom/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- point in polygon ---- */

/**
 * Tells whether a point lies inside a polygon given as an array. Linear in the number of vertices, without memory of
 * its own. Reversing the polygon, starting it at another vertex or repeating the first point at the end gives the same
 * answer.
 * @param[in] p  the point; on the boundary the answer may be either
 * @param[in] polygon[*count]  the vertices
 * @param[in] count  how many they are
 * @param[in,out] rightmost_index  index of the rightmost vertex, 0 for not known yet: then it is looked for and stored,
 *   the last of those that are equally far right within tolerance. Null, and any value but 0, skips that; the answer is
 *   the same. Untouched when count is below 3.
 * @return 1 inside, 0 outside; 0 for fewer than three vertices or a null pointer
 */
KX_API int32_t KX_CALL kx_inpolygon(const pnt_2d *p, const pnt_2d *polygon, const int32_t *count,
                                    int32_t *rightmost_index);

/**
 * Tells whether a point lies strictly inside a polygon: inside and not on the boundary.
 * @param[in] p  the point
 * @param[in] polygon  list of points
 * @return 1 or 0; 0 for fewer than three points or a null pointer
 */
KX_API int32_t KX_CALL kx_inpolygonl(const pnt_2d *p, const list_hdr *polygon);

/**
 * Tells whether a point lies inside a polygon or on its boundary.
 * @param[in] p  the point
 * @param[in] polygon  list of points
 * @return 1 or 0; 0 for fewer than three points or a null pointer
 */
KX_API int32_t KX_CALL kx_inonpolygonl(const pnt_2d *p, const list_hdr *polygon);

/**
 * Tells whether a point lies on the boundary of a polygon, which here may have fewer than three points: one point and a
 * segment are boundaries, too.
 * @param[in] p  the point
 * @param[in] polygon  list of points
 * @return 1 or 0; 0 for no points or a null pointer
 */
KX_API int32_t KX_CALL kx_onpolygonl(const pnt_2d *p, const list_hdr *polygon);

/* ---- points in polygon ---- */

/**
 * Collects the points that lie strictly inside a polygon, as kx_inpolygonl says of each, in their order.
 * @param[in] points  list of points
 * @param[in] polygon  list of points
 * @param[out] count  how many were appended, also when none; may be null
 * @param[in,out] found  list of poly_2d, or empty; see above
 * @return 1 when there is at least one, else 0
 */
KX_API int32_t KX_CALL kx_pnts_inpolyl(const list_hdr *points, const list_hdr *polygon, int32_t *count,
                                       list_hdr *found);

/**
 * Collects the points that lie inside a polygon or on its boundary, as kx_inonpolygonl says of each, in their order.
 * @param[in] points  list of points
 * @param[in] polygon  list of points
 * @param[out] count  how many were appended, also when none; may be null
 * @param[in,out] found  list of poly_2d, or empty; see above
 * @return 1 when there is at least one, else 0
 */
KX_API int32_t KX_CALL kx_pnts_inonpolyl(const list_hdr *points, const list_hdr *polygon, int32_t *count,
                                         list_hdr *found);

/**
 * Collects the points that lie on the boundary of a polygon, as kx_onpolygonl says of each, in their order.
 * @param[in] points  list of points
 * @param[in] polygon  list of points
 * @param[out] count  how many were appended, also when none; may be null
 * @param[in,out] found  list of poly_2d, or empty; see above
 * @return 1 when there is at least one, else 0
 */
KX_API int32_t KX_CALL kx_pnts_onpolyl(const list_hdr *points, const list_hdr *polygon, int32_t *count,
                                       list_hdr *found);

/**
 * Collects the points that lie on a segment, as kx_pointonline says of each, in their order.
 * @param[in] points  list of points
 * @param[in] segment  the segment
 * @param[out] count  how many were appended, also when none; may be null
 * @param[in,out] found  list of poly_2d, or empty; see above
 * @return 1 when there is at least one, else 0
 */
KX_API int32_t KX_CALL kx_pnts_in_line(const list_hdr *points, const line_2d *segment, int32_t *count, list_hdr *found);

/* ---- rectangles and circles ---- */

/**
 * Tells whether a point lies in a circle or on it, within tolerance of the radius.
 * @param[in] circle  the circle; a radius within 1e-7 of 0 has no inside, not even its centre
 * @param[in] p  the point
 * @return 1 or 0; 0 for a null pointer
 */
KX_API int32_t KX_CALL kx_incircle(const circle_2d *circle, const pnt_2d *p);

/**
 * Tells whether a point lies in a rectangle or on its sides, within tolerance of the corners' coordinates.
 * @param[in] rectangle  two opposite corners, in any order; when they coincide, the point must coincide with them
 * @param[in] p  the point
 * @return 1 or 0; 0 for a null pointer
 */
KX_API int32_t KX_CALL kx_inrectangle(const rect_2d *rectangle, const pnt_2d *p);

/**
 * Tells whether a point lies in a rectangle or on its sides, within tolerance of the corners' coordinates.
 * @param[in] rectangle  the lower left and the upper right corner, taken as they stand: given the other way round, the
 *   rectangle has no inside; when they coincide, the point must coincide with them
 * @param[in] p  the point
 * @return 1 or 0; 0 for a null pointer
 */
KX_API int32_t KX_CALL kx_in_rectangle(const rect_2d *rectangle, const pnt_2d *p);

/**
 * Tells whether two rectangles are equal, value by value, within tolerance of the second one's.
 * @param[in] first,second  the rectangles
 * @return 1 or 0; 0 for a null pointer
 */
KX_API int32_t KX_CALL kx_rect_equal_2d(const rect_2d *first, const rect_2d *second);

/**
 * Gives the smallest rectangle that holds two rectangles. Of values equal within tolerance the second one's is taken.
 * @param[in] first,second  the rectangles, lower left corner first
 * @param[out] both  the rectangle, which may be one of the two; untouched unless the result is 1
 * @return 1; 0 for a null pointer
 */
KX_API int32_t KX_CALL kx_rect_union_2d(const rect_2d *first, const rect_2d *second, rect_2d *both);

/**
 * Gives the rectangle that two rectangles have in common. Of values equal within tolerance the second one's is taken.
 * @param[in] first,second  the rectangles, lower left corner first
 * @param[out] common  the rectangle, which may be one of the two; untouched unless the result is 1
 * @return 1 when they overlap or touch within tolerance, else 0; 0 for a null pointer
 */
KX_API int32_t KX_CALL kx_rect_intersect_2d(const rect_2d *first, const rect_2d *second, rect_2d *common);

/* ---- polygon shape ---- */

/**
 * Tells whether a polygon given as an array turns in one sense only. A turn is the cross product of the edges that meet
 * at a vertex; within 1e-7 of 0 it is none.
 * @param[in] polygon[count]  the vertices
 * @param[in] count  how many they are
 * @param[out] type  0 no turns: all in one line; 1 concave: turns to both sides; 2 convex: turns to one side only, also
 *   when the boundary goes round more than once; untouched unless the result is 0
 * @return 0; 41 for fewer than three vertices or a null pointer
 */
KX_API int32_t KX_CALL kx_polygontype(const pnt_2d *polygon, int32_t count, int32_t *type);

/**
 * Tells whether a polygon given as a list turns in one sense only, as kx_polygontype does of an array.
 * @param[in] polygon  list of points
 * @param[out] type  0 all in one line, 1 concave, 2 convex; untouched unless the result is 0
 * @return 0; 41 for fewer than three points or a null pointer
 */
KX_API int32_t KX_CALL kx_polygontypel(const list_hdr *polygon, int32_t *type);

/**
 * Tells which way a polygon runs, judged at its first point alone, which must be a convex corner for that: by the
 * pseudo-angles of the directions to the last and to the second point.
 * @param[in] polygon  list of points
 * @return 1 when the direction to the second point has the smaller pseudo-angle, which a counter-clockwise polygon has
 *   at a corner that does not look to the right; else 0; -1 for fewer than three points or another kind of list
 */
KX_API int32_t KX_CALL kx_get_poly2d_dir(const list_hdr *polygon);

/**
 * Gives the smallest upright rectangle that holds a polygon's points.
 * @param[in] polygon  list of points; those with a NaN are passed over
 * @param[out] extents  the smallest x and y, then the largest; untouched unless the result is 1
 * @return 1; 0 for no points or a null pointer
 */
KX_API int32_t KX_CALL kx_poly_xy_maxmin(const list_hdr *polygon, rect_2d *extents);

/**
 * Gives the outermost of an array's points in the four directions of the axes. Of points equally far out it is the
 * first.
 * @param[in] pnts[count]  the points; those with a NaN are passed over
 * @param[in] count  how many they are
 * @param[out] leftmost,rightmost,lowest,highest  the points; a null one is passed over; untouched unless the result is
 * 0
 * @return 0; 42, after the message "BADPNTS", when there are no points
 */
KX_API int32_t KX_CALL kx_extremepnts(const pnt_2d *pnts, int32_t count, pnt_2d *leftmost, pnt_2d *rightmost,
                                      pnt_2d *lowest, pnt_2d *highest);

/**
 * Finds the lowest of an array's leftmost points: those whose x equals the smallest one within tolerance. Of equally
 * low ones it is the first.
 * @param[in] pnts[count]  the points; those with a NaN are passed over
 * @param[in] count  how many they are
 * @return its index; -1 when there are no points
 */
KX_API int32_t KX_CALL kx_find_smallest_xy(const pnt_2d *pnts, int32_t count);

/* ---- point order ---- */

/**
 * Makes a polygon given as an array run in a direction, by its signed area. The first point stays the first; where the
 * last repeats it, the last still does.
 * @param[in,out] polygon[count]  the vertices
 * @param[in] count  how many they are
 * @param[in] direction  0 clockwise, any other counter-clockwise
 * @return 1 when it runs that way now; 0, and nothing done, for a null pointer, fewer than three vertices, or an area
 *   within 1e-7 of 0, doubled
 */
KX_API int32_t KX_CALL kx_orderpolygon(pnt_2d *polygon, int32_t count, int32_t direction);

/**
 * Makes a polygon given as a list run in a direction, as kx_orderpolygon does an array. The items stay where they are
 * and exchange their records, which keep their seqnr.
 * @param[in,out] polygon  list of points
 * @param[in] direction  0 clockwise, any other counter-clockwise
 * @return 1 when it runs that way now; 0, and nothing done, for fewer than three points or no area
 */
KX_API int32_t KX_CALL kx_orderpolygonl(list_hdr *polygon, int32_t direction);

/**
 * Makes a polygon run the other way round, whatever way that is. The first point stays the first; where the last
 * repeats it, the last still does. The items stay where they are and exchange their records, which keep their seqnr.
 * Done twice it changes nothing.
 * @param[in,out] polygon  list of points
 * @return 1; 0, and nothing done, for fewer than three points
 */
KX_API int32_t KX_CALL kx_reverse_xy_poly(list_hdr *polygon);

/**
 * Tells whether a point coincides with one of a list, as by kx_samepnt.
 * @param[in] p  the point
 * @param[in] points  list of points
 * @return 1 or 0; 0 for a null pointer
 */
KX_API int32_t KX_CALL kx_match_point(const pnt_2d *p, const list_hdr *points);

/**
 * Copies a polyline into a new list of another kind of point. A z that the source has not is 0; numbers that it has not
 * count from 0.
 * @param[in] polyline  list of points
 * @param[in] mode  datatype of the new list: 50, 51, 62 or 63
 * @return the list, owned by the caller and freed by kx_purge_polygon; null for no points or another mode, and after
 *   the memory message
 */
KX_API list_hdr *KX_CALL kx_morph_polyline(const list_hdr *polyline, int32_t mode);

/* ---- self intersection ---- */

/**
 * Tells whether the boundary of a polygon crosses or touches itself: whether some edge meets another at a point that is
 * no end of one of the two. Only edges between consecutive points count, so a polygon that is to be looked at with its
 * closing edge repeats its first point. Edges that share an end meet only there; parallel edges do not meet, nor does
 * an edge and its repetition, in either direction.
 * @param[in,out] polygon  list of points; its cursor is left at the head when the result is 0
 * @param[in] closed  0 when a last point that repeats the first is itself a fault; of three points this is not asked
 * @return 1 or 0; three points are at fault when they lie in one line; 0 for fewer, and after the memory message
 *   "kx_self_intersecting_polygon"
 */
KX_API int32_t KX_CALL kx_self_intersecting_polygon(list_hdr *polygon, int32_t closed);

/**
 * Tells whether a list is a proper polygon: three finite points or more, no two consecutive ones coinciding (but the
 * last may repeat the first), not all in one line, and no edge, the closing one included, crossing or touching another
 * in the sense of kx_self_intersecting_polygon.
 * @param[in] polygon  list of points
 * @return 1 or 0; 0 after the memory message "kx_check_poly"
 */
KX_API int32_t KX_CALL kx_check_poly(const list_hdr *polygon);

/* ---- polygons compared ---- */

/**
 * Tells whether two polygons have the same points in the same cyclic order, in either direction and from any start,
 * each within 1e-7. A last point that repeats the first is not counted.
 * @param[in] first,second  lists of points
 * @return 1 or 0; 0 for fewer than three points, and after the memory message "kx_same_poly - first" or "- second"
 */
KX_API int32_t KX_CALL kx_same_poly(const list_hdr *first, const list_hdr *second);

/**
 * Collects the points in which the boundaries of two polygons cross or touch, as kx_intersect_ls says of each pair of
 * edges: by the first one's edges and, on an edge, by the second one's, both from the closing edge on. A point that
 * coincides with one before it is left out; what parallel edges share is not collected.
 * @param[in] first,second  lists of points
 * @param[in,out] pnts  list of poly_2d, or empty; see above
 * @return how many points were appended; 0 for no points and after the memory message
 */
KX_API int32_t KX_CALL kx_intersect_poly(const list_hdr *first, const list_hdr *second, list_hdr *pnts);

/**
 * Tells whether one polygon lies within another: no point of the outer one is strictly inside the inner one, every
 * point of the inner one is inside or on the outer one, and of the points in which the boundaries meet there is at most
 * one, or each coincides with a corner of either polygon.
 * @param[in] inner,outer  lists of points
 * @return 1 or 0; 0 for no points and after the memory message
 */
KX_API int32_t KX_CALL kx_inside_poly(const list_hdr *inner, const list_hdr *outer);

/**
 * Tells whether two polygons do not overlap: no point of either is strictly inside the other, and either no point of
 * the first is on the boundary of the second, or of the points in which the boundaries meet there is at most one, or
 * each coincides with a corner of either polygon.
 * @param[in] first,second  lists of points
 * @return 1 or 0; 0 for no points and after the memory message
 */
KX_API int32_t KX_CALL kx_outside_poly(const list_hdr *first, const list_hdr *second);

#ifdef __cplusplus
}
#endif

#endif
