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

static_assert(offsetof(solid, xmin) == 12 && offsetof(solid, face_list) == 60);
static_assert(sizeof(solid) == 60 + 3 * sizeof(void *));
static_assert(offsetof(polyface_3d, vertex_numbers) == 48 && offsetof(polyface_3d, vertex_attributes) == 64);
static_assert(offsetof(polyface_3d, extra_words) == 80 && offsetof(polyface_3d, more_vertices) == 120);
static_assert(offsetof(polyface_3d, ring_room) == 120 + 2 * sizeof(void *));
static_assert(sizeof(polyface_3d) == 168 + 2 * sizeof(void *));
static_assert(offsetof(surface, min_pnt) == 8 && offsetof(surface, coef_x) == 56 && offsetof(surface, step_u) == 440);
static_assert(offsetof(surface, steps_v) == 456 && offsetof(surface, steps_u) == 460);
static_assert(offsetof(surface, control_points) == 464 && sizeof(surface) == 464 + 6 * sizeof(void *));
static_assert(offsetof(vertex_pnt, value) == 72 && sizeof(vertex_pnt) == 76 + sizeof(void *));
static_assert(offsetof(picture_area, work_buffer_1) == 24 && offsetof(picture_area, title) == 32 + 2 * sizeof(void *));
static_assert(offsetof(picture_area, items) == 52 + 2 * sizeof(void *) && sizeof(picture_label) == 192);
static_assert(offsetof(picture_area, area_min) == 52 + 5 * sizeof(void *) + sizeof(list_hdr));
static_assert(offsetof(picture_area, slots) == 132 + 5 * sizeof(void *) + sizeof(list_hdr));
static_assert(offsetof(picture_area, extra_block_1) == 22404 + 5 * sizeof(void *) + sizeof(list_hdr));

// The primitives are copied as so many 32-bit words, and hosts know how many.
template <class T>
constexpr bool has_words(std::size_t n) {
  return sizeof(T) == 4 * n;
}
static_assert(has_words<sphere>(10) && has_words<cylinder>(20) && has_words<ellipsoid>(21) && has_words<block>(18));
static_assert(has_words<prism>(23) && has_words<cone>(20) && has_words<hcylinder>(24) && has_words<hyperboloid>(25));
static_assert(has_words<paraboloid>(20) && has_words<pyramid>(18) && has_words<torus>(19) &&
              has_words<tetrahedron>(14));
static_assert(offsetof(cylinder, diameter_x) == 28 && offsetof(cylinder, sectors) == 52);
static_assert(offsetof(torus, major_radius) == 28 && offsetof(torus, sectors) == 44 && offsetof(torus, axis_x) == 52);
static_assert(offsetof(tetrahedron, size) == 24 && offsetof(tetrahedron, axis_x) == 32);
static_assert(offsetof(bodyrev, profile) == offsetof(extbody, profile));
