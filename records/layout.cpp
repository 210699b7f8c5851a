// The layout of every record, checked where it is compiled: packed to 4 bytes in every build, and in the reference
// build, where a pointer is one 32-bit word, exactly as hosts declare the records themselves.
#include <cstddef>

#include "kxgeom/types.h"

static_assert(sizeof(pnt_2d) == 16 && sizeof(pnt_3d) == 24);
static_assert(sizeof(poly_2d) == 20 && offsetof(poly_2d, x) == 4 && offsetof(poly_2d, y) == 12);
static_assert(sizeof(poly_3d) == 28 && offsetof(poly_3d, x) == 4 && offsetof(poly_3d, z) == 20);
static_assert(sizeof(cylcoord) == 24 && sizeof(sphercoord) == 24 && sizeof(polarcoord) == 32);
static_assert(sizeof(vector_2d) == 32 && offsetof(vector_2d, i) == 16);
static_assert(sizeof(vector_3d) == 40 && offsetof(vector_3d, i) == 16 && offsetof(vector_3d, k) == 32);
static_assert(sizeof(line_2d) == 32 && offsetof(line_2d, x2) == 16);
static_assert(sizeof(line_3d) == 48 && offsetof(line_3d, x2) == 24);
static_assert(sizeof(ile_2d) == 24 && sizeof(planeeq) == 32);
static_assert(sizeof(ple_2d) == 32 && offsetof(ple_2d, y0) == 8 && offsetof(ple_2d, dx) == 16);
static_assert(sizeof(ple_3d) == 48 && offsetof(ple_3d, dx) == 24);
static_assert(sizeof(rect_2d) == 32 && sizeof(rect_3d) == 48 && sizeof(triag_2d) == 48 && sizeof(triangle) == 48);
static_assert(sizeof(circle_2d) == 24 && sizeof(ellipse_2d) == 48 && offsetof(ellipse_2d, value_1) == 32);
static_assert(sizeof(arc_2d) == 44 && offsetof(arc_2d, mode) == 24 && offsetof(arc_2d, value_1) == 28);
static_assert(sizeof(parabola_2d) == 36 && offsetof(parabola_2d, value_1) == 28);
static_assert(sizeof(hyperbola_2d) == 44 && offsetof(hyperbola_2d, value_1) == 36);
static_assert(sizeof(dwg_rec_2d) == 24 && offsetof(dwg_rec_2d, value_2) == 20);
static_assert(sizeof(rnumber) == 8 && sizeof(inumber) == 4);
static_assert(sizeof(matrixrec2d) == 76 && sizeof(matrixrec3d) == 132 && offsetof(matrixrec3d, matrix) == 4);
static_assert(sizeof(curve_stats_2d) == 104 && offsetof(curve_stats_2d, normal) == 72);
static_assert(sizeof(curve_stats_3d) == 128 && offsetof(curve_stats_3d, normal) == 88);
static_assert(offsetof(curve, step) == 12 && offsetof(curve, basis) == 20 && offsetof(curve, weights) == 148);
static_assert(offsetof(curv, pointers) == 32);
static_assert(sizeof(curve) == 148 + 5 * sizeof(void *) && sizeof(curv) == 32 + 2 * sizeof(void *));
static_assert(sizeof(list_hdr) == 3 * sizeof(void *) + 4 && sizeof(list_item) == 3 * sizeof(void *) + 4);
static_assert(offsetof(list_item, prev) == sizeof(void *) + 4);
