/* Runtime services: the call frame, messages, tolerance comparisons, scalar and trigonometric helpers, files, strings.
 *
 * The library's tolerance is 1e-7. Tests of one value compare |a| with it; tests of two values scale it by the second:
 * tol(b) = (|b| + 1) * 1e-7. The comparisons with a tolerance of the caller's own have the same shapes. Angles are
 * radians unless a function says otherwise; booleans are 1 and 0. No function here keeps state.
 */
#ifndef KXGEOM_RUNTIME_H
#define KXGEOM_RUNTIME_H

#include <stdint.h>

#include "kxgeom/export.h"
#include "kxgeom/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- call frame ---- */

/**
 * Does nothing: the library needs no initialisation. A host may call it first, last or never.
 */
KX_API void KX_CALL kx_initgeometry(void);

/**
 * Stores a double for a host that cannot write through pointers itself.
 * @param[out] pointer  where the value goes; with null nothing is stored
 * @param[in] value  the value
 * @return the value; 0.0 when pointer is null
 */
KX_API double KX_CALL kx_set_doublevb(double *pointer, double value);

/**
 * Stores a 32-bit integer for a host that cannot write through pointers itself.
 * @param[out] pointer  where the value goes; with null nothing is stored
 * @param[in] value  the value
 * @return the value; 0 when pointer is null
 */
KX_API int32_t KX_CALL kx_set_longvb(int32_t *pointer, int32_t value);

/**
 * Reads a double for a host that cannot read through pointers itself.
 * @param[in] pointer  the stored value
 * @return the value; 0.0 when pointer is null
 */
KX_API double KX_CALL kx_get_doublevb(const double *pointer);

/**
 * Reads a 32-bit integer for a host that cannot read through pointers itself.
 * @param[in] pointer  the stored value
 * @return the value; 0 when pointer is null
 */
KX_API int32_t KX_CALL kx_get_longvb(const int32_t *pointer);

/* ---- messages ---- */

/**
 * Shows "Memory Error: " and the location in a message box titled "KX-CAD Message"; the text is cut at 255 characters.
 * Nothing is freed and nothing ends: the function that ran out of memory goes on to its own failure value.
 * @param[in] location  what was being allocated; null counts as an empty text
 * @return the answer of the message box, 1 for its OK button
 */
KX_API int32_t KX_CALL kx_memerr(const char *location);

/**
 * Reports a bad parameter: shows two lines, the code followed by the characters "&msgrec[i]", then "Location: ... Error
 * Nr: ...", in a message box titled "KX-CAD Message", cut at 255 characters. The box appears only when the message file
 * KXMSG.DAT has a line whose key, all before the first blank or tab, is the code, byte for byte; the line's own text is
 * not shown. The file is looked for as $KXLINK/MSG/KXMSG.DAT, or in the current directory when KXLINK is not set.
 * @param[in] code  the error code, "BADPARMS" for one; with null nothing is shown
 * @param[in] number  the error number
 * @param[in] location  who reports; null counts as an empty text
 */
KX_API void KX_CALL kx_display_msg(const char *code, int32_t number, const char *location);

/**
 * Fetches a numbered message from the message file (found as by kx_display_msg): "(number): " and the rest of the first
 * line whose key converts to the number, the line's end included. Lines count in pieces of 127 characters. A key that
 * is no number counts as 0, so message 0, which stands in for every missing one, belongs before all such lines.
 * @param[in] number  the message wanted
 * @param[out] buffer[144]  "(0): " and the text of message 0 when the number is missing,
 *   "(number) Cannot Find Message" when that is missing too, "(number) Cannot Find Message File" without a file
 * @return number; 0 when message 0 was taken instead; -1 when there is no text, no file or no buffer
 */
KX_API int32_t KX_CALL kx_get_message(int32_t number, char *buffer);

/* ---- comparisons ---- */

/**
 * Tells whether a number counts as zero: |a| <= t.
 * @param[in] a  the number
 * @param[in] t  absolute tolerance
 * @return 1 or 0; 1 for a NaN
 */
KX_API int32_t KX_CALL kx_parmzero(double a, double t);

/**
 * Tells whether a number differs from zero: |a| > t. Always the opposite of kx_parmzero.
 * @param[in] a  the number
 * @param[in] t  absolute tolerance
 * @return 1 or 0; 0 for a NaN
 */
KX_API int32_t KX_CALL kx_parmnotzero(double a, double t);

/**
 * Tells whether a number is below zero: a < -t.
 * @param[in] a  the number
 * @param[in] t  absolute tolerance
 * @return 1 or 0; 0 for a NaN
 */
KX_API int32_t KX_CALL kx_parmltzero(double a, double t);

/**
 * Tells whether a number is below zero or counts as zero: a <= t. Always the opposite of kx_parmgtzero.
 * @param[in] a  the number
 * @param[in] t  absolute tolerance
 * @return 1 or 0; 1 for a NaN
 */
KX_API int32_t KX_CALL kx_parmlezero(double a, double t);

/**
 * Tells whether a number is above zero: a > t.
 * @param[in] a  the number
 * @param[in] t  absolute tolerance
 * @return 1 or 0; 0 for a NaN
 */
KX_API int32_t KX_CALL kx_parmgtzero(double a, double t);

/**
 * Tells whether a number is above zero or counts as zero: a >= -t. Always the opposite of kx_parmltzero.
 * @param[in] a  the number
 * @param[in] t  absolute tolerance
 * @return 1 or 0; 1 for a NaN
 */
KX_API int32_t KX_CALL kx_parmgezero(double a, double t);

/**
 * Tells whether two numbers are equal: |a - b| <= (|b| + 1) * t. The tolerance is scaled by b only, on purpose:
 * exchanging a and b may change the answer.
 * @param[in] a  the number
 * @param[in] b  the number it is compared with
 * @param[in] t  relative tolerance
 * @return 1 or 0; 1 when a NaN is among the three
 */
KX_API int32_t KX_CALL kx_parmeq(double a, double b, double t);

/**
 * Tells whether two numbers differ: |a - b| > (|b| + 1) * t. Always the opposite of kx_parmeq.
 * @param[in] a  the number
 * @param[in] b  the number it is compared with
 * @param[in] t  relative tolerance
 * @return 1 or 0; 0 when a NaN is among the three
 */
KX_API int32_t KX_CALL kx_parmne(double a, double b, double t);

/**
 * Tells whether a is less than b: a < b - (|b| + 1) * t.
 * @param[in] a  the number
 * @param[in] b  the number it is compared with
 * @param[in] t  relative tolerance
 * @return 1 or 0; 0 when a NaN is among the three
 */
KX_API int32_t KX_CALL kx_parmlt(double a, double b, double t);

/**
 * Tells whether a is less than or equal to b: a <= b + (|b| + 1) * t. Always the opposite of kx_parmgt.
 * @param[in] a  the number
 * @param[in] b  the number it is compared with
 * @param[in] t  relative tolerance
 * @return 1 or 0; 1 when a NaN is among the three
 */
KX_API int32_t KX_CALL kx_parmle(double a, double b, double t);

/**
 * Tells whether a is greater than b: a > b + (|b| + 1) * t.
 * @param[in] a  the number
 * @param[in] b  the number it is compared with
 * @param[in] t  relative tolerance
 * @return 1 or 0; 0 when a NaN is among the three
 */
KX_API int32_t KX_CALL kx_parmgt(double a, double b, double t);

/**
 * Tells whether a is greater than or equal to b: a >= b - (|b| + 1) * t. Always the opposite of kx_parmlt.
 * @param[in] a  the number
 * @param[in] b  the number it is compared with
 * @param[in] t  relative tolerance
 * @return 1 or 0; 1 when a NaN is among the three
 */
KX_API int32_t KX_CALL kx_parmge(double a, double b, double t);

/**
 * Makes a number that counts as zero exactly 0.0: |value| <= 1e-7.
 * @param[in,out] value  the number; any other number, a NaN too, stays; with null nothing happens
 */
KX_API void KX_CALL kx_settozero(double *value);

/**
 * Tells whether two points of the plane coincide: each coordinate differs by 1e-7 at most, whatever its size.
 * @param[in] p,q  the points
 * @return 1 or 0; 0 with a null point or a NaN
 */
KX_API int32_t KX_CALL kx_samepnt(const pnt_2d *p, const pnt_2d *q);

/**
 * Tells whether two points in space coincide: each coordinate differs by 1e-7 at most, whatever its size.
 * @param[in] p,q  the points
 * @return 1 or 0; 0 with a null point or a NaN
 */
KX_API int32_t KX_CALL kx_samepnt3d(const pnt_3d *p, const pnt_3d *q);

/**
 * Tells whether p stands before q, or at the same place, in the order by x, then y: with x equal within tol(q.x) the
 * answer is p.y <= q.y + tol(q.y), otherwise p.x < q.x - tol(q.x).
 * @param[in] p,q  the points
 * @return 1 or 0; 0 with a null point
 */
KX_API int32_t KX_CALL kx_smallerpnt(const pnt_2d *p, const pnt_2d *q);

/**
 * Tells whether x lies between two bounds given in either order; each bound is widened by its own tolerance.
 * kx_between(x, a, b) = kx_between(x, b, a).
 * @param[in] x  the number
 * @param[in] a,b  the bounds
 * @return 1 or 0; 0 when a NaN is among the three
 */
KX_API int32_t KX_CALL kx_between(double x, double a, double b);

/**
 * Tells whether a point lies in the upright rectangle spanned by a segment, its sides included and widened by the
 * tolerance of their own coordinates.
 * @param[in] line  the segment
 * @param[in] p  the point
 * @return 1 or 0; 0 with a null argument
 */
KX_API int32_t KX_CALL kx_inbetween(const line_2d *line, const pnt_2d *p);

/**
 * Gives the greater of two numbers: a when a > b + tol(b), otherwise b, also when both are equal within tolerance.
 * @param[in] a,b  the numbers
 * @return one of the two; b when a NaN is among them
 */
KX_API double KX_CALL kx_rmax(double a, double b);

/**
 * Gives the smaller of two numbers: a when a < b - tol(b), otherwise b, also when both are equal within tolerance.
 * @param[in] a,b  the numbers
 * @return one of the two; b when a NaN is among them
 */
KX_API double KX_CALL kx_rmin(double a, double b);

/* ---- scalars ---- */

/**
 * Gives the largest of three integers.
 * @param[in] i,j,k  the integers
 * @return the largest; of equal ones the earliest
 */
KX_API int32_t KX_CALL kx_imax(int32_t i, int32_t j, int32_t k);

/**
 * Gives the smallest of three integers.
 * @param[in] i,j,k  the integers
 * @return the smallest; of equal ones the earliest
 */
KX_API int32_t KX_CALL kx_imin(int32_t i, int32_t j, int32_t k);

/**
 * Gives the greatest common divisor. kx_gcd(0, n) = kx_gcd(n, 0) = n for n >= 0.
 * @param[in] a,b  the integers
 * @return the divisor; 1 when either is negative
 */
KX_API int32_t KX_CALL kx_gcd(int32_t a, int32_t b);

/**
 * Converts radians to degrees with the factor 57.2957795131.
 * @param[in] radians  the angle
 * @return the angle in degrees
 */
KX_API double KX_CALL kx_degrees(double radians);

/**
 * Converts degrees to radians with the factor 0.01745329252.
 * @param[in] degrees  the angle
 * @return the angle in radians
 */
KX_API double KX_CALL kx_radian(double degrees);

/**
 * Exchanges two numbers.
 * @param[in,out] a,b  the numbers; when either is null nothing happens
 */
KX_API void KX_CALL kx_exchange(double *a, double *b);

/**
 * Gives the sum of two squares.
 * @param[in] a,b  the numbers
 * @return a*a + b*b
 */
KX_API double KX_CALL kx_sumsqrdparms(double a, double b);

/**
 * Solves a*x*x + b*x + c = 0. With d = b*b - 4*a*c the roots are (sqrt(d) - b) / (2*a) and (-b - sqrt(d)) / (2*a); for
 * a > 0 the first is the larger one. A d between -1e-7 and 0 has no real square root: both roots are then NaN.
 * @param[in] a,b,c  the coefficients
 * @param[out] r1,r2  the roots; untouched when the result is 1
 * @return 0; 1 when |a| <= 1e-7, when d < -1e-7, or when an output is null
 */
KX_API int32_t KX_CALL kx_quadratic_eq(double a, double b, double c, double *r1, double *r2);

/* ---- trigonometry ---- */

/* kx_secant, kx_cosecant and kx_cotangent work on r, |x| less whole turns of 2*pi (6.2831853072): one turn at a time
 * while |x| is below 100000, by one exact remainder from there on. Every "BADPARMS" is shown by kx_display_msg with the
 * number 23 and the function's name as location. */

/**
 * Gives the secant: 1.0 for |x| <= 1e-7, 1/cos(r) for positive x, -1/cos(r) for negative x. A negative angle has the
 * negative of its magnitude's secant, on purpose: kx_secant(-x) = -kx_secant(x) beyond the tolerance.
 * @param[in] x  angle in radians
 * @return the secant; 0.0 after "BADPARMS" when r counts as pi/2 or 3*pi/2 or x is infinite; NaN for a NaN
 */
KX_API double KX_CALL kx_secant(double x);

/**
 * Gives the cosecant: 1/sin(r) for positive x, -1/sin(r) for negative x.
 * @param[in] x  angle in radians
 * @return the cosecant; 0.0 after "BADPARMS" when r counts as 0, pi or 2*pi or x is infinite; NaN for a NaN
 */
KX_API double KX_CALL kx_cosecant(double x);

/**
 * Gives the cotangent: 1/tan(r) for positive x, -1/tan(r) for negative x.
 * @param[in] x  angle in radians
 * @return the cotangent; 0.0 after "BADPARMS" when r counts as 0, pi or 2*pi or x is infinite; NaN for a NaN
 */
KX_API double KX_CALL kx_cotangent(double x);

/**
 * Gives the arc sine; |x| <= 1e-7 gives 0, x within 1e-7 of 1 gives 90, of -1 gives -90.
 * @param[in] x  the sine
 * @return degrees from -90 to 90; NaN outside -1..1
 */
KX_API double KX_CALL kx_arcsin(double x);

/**
 * Gives the arc cosine; |x| <= 1e-7 gives 90, x within 1e-7 of 1 gives 0, of -1 gives 180.
 * @param[in] x  the cosine
 * @return degrees from 0 to 180; NaN outside -1..1
 */
KX_API double KX_CALL kx_arccos(double x);

/**
 * Gives the polar angle of a direction, counter-clockwise from the positive x axis. A component of 1e-7 or less counts
 * as 0: on the axes the answer is exactly 0, 90, 180 or 270.
 * @param[in] dx,dy  the direction
 * @return degrees, at least 0 and below 360; 0 when both components count as 0
 */
KX_API double KX_CALL kx_arctan(double dx, double dy);

/**
 * Gives the arc cotangent, (pi/2 - atan(x)) in degrees.
 * @param[in] x  the cotangent
 * @return degrees from 0 to 180
 */
KX_API double KX_CALL kx_arccotangent(double x);

/**
 * Gives the arc secant. Below -1 the answer is negative, t - 180 with t the arc secant of |x|; x within 2e-7 of 1 gives
 * 0, of -1 gives -180.
 * @param[in] x  the secant
 * @return degrees; 0.0 after "BADPARMS" for x between -1 and 1
 */
KX_API double KX_CALL kx_arcsecant(double x);

/**
 * Gives the arc cosecant. Below -1 the answer is t - 180 with t the arc cosecant of |x|; x within 2e-7 of 1 gives 90,
 * of -1 gives -90.
 * @param[in] x  the cosecant
 * @return degrees; 0.0, without a message, for x between -1 and 1
 */
KX_API double KX_CALL kx_arccosecant(double x);

/* ---- hyperbolic ---- */

/* The inverse functions give their result times 57.2957795131, as the inverse trigonometric functions do; hosts count
 * on it. Nothing checks for overflow: beyond about 709 the quotients of two infinities are NaN. */

/**
 * Gives the hyperbolic sine.
 * @param[in] x  any number
 * @return (exp(x) - exp(-x)) / 2
 */
KX_API double KX_CALL kx_hsine(double x);

/**
 * Gives the hyperbolic cosine.
 * @param[in] x  any number
 * @return (exp(-x) + exp(x)) / 2
 */
KX_API double KX_CALL kx_hcosine(double x);

/**
 * Gives the hyperbolic tangent.
 * @param[in] x  any number
 * @return (exp(x) - exp(-x)) / (exp(x) + exp(-x))
 */
KX_API double KX_CALL kx_htangent(double x);

/**
 * Gives the hyperbolic secant.
 * @param[in] x  any number
 * @return 2 / (exp(-x) + exp(x))
 */
KX_API double KX_CALL kx_hsecant(double x);

/**
 * Gives the hyperbolic cosecant.
 * @param[in] x  any number but 0
 * @return 2 / (exp(x) - exp(-x)); 0.0 after "BADPARMS" when |x| <= 1e-7
 */
KX_API double KX_CALL kx_hcosecant(double x);

/**
 * Gives the hyperbolic cotangent.
 * @param[in] x  any number but 0
 * @return (exp(-x) + exp(x)) / (exp(x) - exp(-x)); 0.0 after "BADPARMS" when |x| <= 1e-7
 */
KX_API double KX_CALL kx_hcotangent(double x);

/**
 * Gives the inverse hyperbolic sine times 57.2957795131.
 * @param[in] x  any number
 * @return ln(x + sqrt(x*x + 1)) * 57.2957795131
 */
KX_API double KX_CALL kx_archsine(double x);

/**
 * Gives the inverse hyperbolic cosine times 57.2957795131.
 * @param[in] x  1 or more
 * @return ln(x + sqrt(x*x - 1)) * 57.2957795131; ln(x) * 57.2957795131 for x within 2e-7 of 1; 0.0, without a message,
 *   below that
 */
KX_API double KX_CALL kx_archcosine(double x);

/**
 * Gives the inverse hyperbolic tangent times 57.2957795131.
 * @param[in] x  between -1 and 1
 * @return ln((1 + x) / (1 - x)) / 2 * 57.2957795131; 0.0 after "BADPARMS" when x*x >= 1 - 2e-7
 */
KX_API double KX_CALL kx_archtangent(double x);

/**
 * Gives the inverse hyperbolic cotangent times 57.2957795131.
 * @param[in] x  below -1 or above 1
 * @return ln((x + 1) / (x - 1)) / 2 * 57.2957795131; 0.0, without a message, when x*x <= 1 + 2e-7
 */
KX_API double KX_CALL kx_archcotangent(double x);

/**
 * Gives the inverse hyperbolic secant times 57.2957795131.
 * @param[in] x  above 0, at most 1
 * @return ln((1 + sqrt(1 - x*x)) / x) * 57.2957795131; 0.0 after "BADPARMS" when x <= 1e-7 or x > 1 + 2e-7; NaN in the
 *   remaining sliver above 1, where the square root is not real
 */
KX_API double KX_CALL kx_archsecant(double x);

/**
 * Gives the inverse hyperbolic cosecant times 57.2957795131.
 * @param[in] x  any number but 0
 * @return ln((s * sqrt(x*x + 1) + 1) / x) * 57.2957795131, s being the sign of x; 0.0, without a message, when
 *   |x| <= 1e-7
 */
KX_API double KX_CALL kx_archcosecant(double x);

/* ---- quadrants ---- */

/* Quadrants count from 1 to 4 and octants from 1 to 8, counter-clockwise from the positive x axis. A boundary, widened
 * by the tolerance, belongs to the quadrant or octant that begins there. Angles may be any number of turns. */

/**
 * Gives the quadrant of a direction; a component of 1e-7 or less counts as 0, as in kx_arctan.
 * @param[in] dx,dy  the direction
 * @return 1 to 4; 0 when both components count as 0 or one is not finite
 */
KX_API int32_t KX_CALL kx_quadrant(double dx, double dy);

/**
 * Gives the quadrant of an angle in degrees.
 * @param[in] angle  degrees
 * @return 1 to 4; 0 when the angle is not finite
 */
KX_API int32_t KX_CALL kx_quadrant_deg(double angle);

/**
 * Gives the quadrant of an angle in radians.
 * @param[in] angle  radians
 * @return 1 to 4; 0 when the angle is not finite
 */
KX_API int32_t KX_CALL kx_quadrant_rad(double angle);

/**
 * Gives the quadrant of a point as seen from another, that of the direction between them.
 * @param[in] from  where one stands; null for the origin
 * @param[in] p  the point looked at
 * @return as kx_quadrant; 0 when p is null
 */
KX_API int32_t KX_CALL kx_quadrant_pnt(const pnt_2d *from, const pnt_2d *p);

/**
 * Gives the octant of a direction; a component of 1e-7 or less counts as 0, and components of equal size within
 * tolerance lie on the diagonal. The quadrant of the same direction is (octant + 1) / 2.
 * @param[in] dx,dy  the direction
 * @return 1 to 8; 0 when both components count as 0 or one is not finite
 */
KX_API int32_t KX_CALL kx_octant(double dx, double dy);

/**
 * Gives the octant of an angle in degrees.
 * @param[in] angle  degrees
 * @return 1 to 8; 0 when the angle is not finite
 */
KX_API int32_t KX_CALL kx_octant_deg(double angle);

/**
 * Gives the octant of an angle in radians.
 * @param[in] angle  radians
 * @return 1 to 8; 0 when the angle is not finite
 */
KX_API int32_t KX_CALL kx_octant_rad(double angle);

/**
 * Gives the octant of a point as seen from another, that of the direction between them.
 * @param[in] from  where one stands; null for the origin
 * @param[in] p  the point looked at
 * @return as kx_octant; 0 when p is null
 */
KX_API int32_t KX_CALL kx_octant_pnt(const pnt_2d *from, const pnt_2d *p);

/**
 * Converts an angle to its pseudo-angle, a number that grows with the angle by 1 per quarter turn: the whole quarter
 * turns, plus the tangent of half of what remains. It is exactly 0, 1, 2 and 3 on the axes, within tolerance.
 * @param[in] radians  non-zero: the angle is in radians; zero: in degrees
 * @param[in] angle  any number of turns
 * @return at least 0 and below 4; 0.0 when the angle is not finite
 */
KX_API double KX_CALL kx_parmtanhangle(int32_t radians, double angle);

/* ---- files ---- */

/**
 * Opens a file and asks the platform for a full buffer of 16384 bytes.
 * @param[in] name  path of the file
 * @param[in] mode  mode of the standard stream, "rb" for one, handed on as it stands
 * @return the handle, to be closed with kx_close_file; null on failure, without a message
 */
KX_API void *KX_CALL kx_open_file(const char *name, const char *mode);

/**
 * Closes a file; the handle is no longer valid, whatever the result.
 * @param[in] file  the handle
 * @return 0 on success, otherwise the platform's code; -1 for null
 */
KX_API int32_t KX_CALL kx_close_file(void *file);

/**
 * Writes one block.
 * @param[in] file  the handle
 * @param[in] buffer[n]  the bytes
 * @param[in] n  how many
 * @return n when the whole block was written; otherwise 0, also with n <= 0 or a null argument
 */
KX_API int32_t KX_CALL kx_write_file(void *file, const void *buffer, int32_t n);

/**
 * Reads one block.
 * @param[in] file  the handle
 * @param[out] buffer[n]  after a short read the bytes that were there, the rest undefined
 * @param[in] n  how many
 * @return n when the whole block was read; otherwise 0, also after a short read, with n <= 0 or a null argument
 */
KX_API int32_t KX_CALL kx_read_file(void *file, void *buffer, int32_t n);

/**
 * Hands all written bytes on to the system.
 * @param[in] file  the handle
 * @return 0; -1 when the stream's error mark is set, now or since an earlier failure, and for null
 */
KX_API int32_t KX_CALL kx_flush_file(void *file);

/**
 * Flushes, then moves to a position in the file.
 * @param[in] file  the handle
 * @param[in] offset  bytes from the origin
 * @param[in] origin  0 start, 1 current position, 2 end
 * @return 0 on success, otherwise the platform's code; -1 for null or any other origin
 */
KX_API int32_t KX_CALL kx_seek_file(void *file, int32_t offset, int32_t origin);

/* ---- strings ---- */

/**
 * Copies a text into a buffer of fixed size: as much of it as leaves room for the terminator, then zeros to the end.
 * Source and destination may overlap.
 * @param[out] destination[size]  null is left alone
 * @param[in] size  bytes in the destination; with 0 or less nothing happens
 * @param[in] source  the text; null counts as an empty one
 */
KX_API void KX_CALL kx_strcpy(char *destination, int32_t size, const char *source);

/**
 * Fills bytes with a character; no terminator is added.
 * @param[out] destination[n]  null is left alone
 * @param[in] n  how many; with 0 or less nothing happens
 * @param[in] character  the character, its low eight bits count
 */
KX_API void KX_CALL kx_strfill(char *destination, int32_t n, int32_t character);

/**
 * Counts the characters of a text before its terminator.
 * @param[in] text  the text
 * @return the length; 0 for null
 */
KX_API int32_t KX_CALL kx_strlen(const char *text);

/**
 * Tells whether two texts are the same, character for character; it never orders them.
 * @param[in] a,b  the texts
 * @return 1 or 0; 0 when either is null
 */
KX_API int32_t KX_CALL kx_strcmp(const char *a, const char *b);

/**
 * Appends a text to another one.
 * @param[in,out] destination  a text, with room behind it for the source
 * @param[in] source  the text to append; it may be the destination
 * @return the length of the result; 0 when either is null
 */
KX_API int32_t KX_CALL kx_strcat(char *destination, const char *source);

/**
 * Converts between terminated and blank-padded text. Mode 1 makes the text size - 1 characters long, with blanks or by
 * cutting it; a text longer than size is cut to size characters, on purpose. Every other mode cuts a text longer than
 * size to size characters and removes the blanks at its end.
 * @param[in,out] text  a terminated text, in mode 1 with room for size bytes; null is left alone
 * @param[in] size  bytes of the text; 0 empties the text, a negative size leaves it alone
 * @param[in] mode  1 pads, everything else trims
 * @return the length at the start or size, whichever is smaller; 0 for null and for a size of 0 or less
 */
KX_API int32_t KX_CALL kx_strmake(char *text, int32_t size, int32_t mode);

/**
 * Creates a character array of n characters and a terminator; its contents are undefined.
 * @param[in] n  characters, 0 or more
 * @return n + 1 bytes, owned by the caller and freed with kx_purge_char_array; null for a negative n, and after
 *   kx_memerr with "kx_create_char_array" when memory is short
 */
KX_API char *KX_CALL kx_create_char_array(int32_t n);

/**
 * Frees a character array.
 * @param[in] array  made by kx_create_char_array, or null
 */
KX_API void KX_CALL kx_purge_char_array(char *array);

#ifdef __cplusplus
}
#endif

#endif
