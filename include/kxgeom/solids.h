/* Solids: primitives built as vertices and faces, and the mesh file.
 *
 * A builder (kx_..._pnts) fills the solid given, after kx_clear_solid, or a new one, freed by kx_purge_solid, when that
 * is null. Each body is closed: every edge is in two faces, which run through it in opposite directions. For positive
 * sizes every ring turns counter-clockwise for one who looks at the face from outside. A face's normal is that of
 * kx_get_face_normal for its first three vertices, its attributes are 0 unless said otherwise. Vertices are numbered
 * from 0 in list order. Sizes are not checked: zero, negative and NaN sizes give degenerate bodies.
 *
 * A primitive is built about the z axis at its centre and, if the fields direction and length of its orientation are
 * not both within 1e-7 of 0, turned by kx_transform_solid_vector. The record of the primitive hangs from solid_data.
 *
 * A builder returns null, a given solid untouched, without a centre or for more than KX_SOLID_VERTICES_MOST vertices;
 * and null, a given solid empty and without lists, after a memory message. When the memory ends while the body grows,
 * the part-built solid is the result, after the message.
 */
#ifndef KXGEOM_SOLIDS_H
#define KXGEOM_SOLIDS_H

#include "kxgeom/export.h"
#include "kxgeom/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- turning ---- */

/**
 * Turns a solid by the shortest way that takes the z axis to the direction (i, j, k) of a vector: about the centre that
 * its primitive's record names, or about that of its extents when it has none. A vector along -z is a half turn about
 * the x axis. Vertices are moved; each face's normal is that of kx_get_face_normal for the moved vertices (a face whose
 * first three vertices are not there has its normal turned); the extents become the least box around the vertices; the
 * axis in the primitive's record is turned. Distances are kept. A vector along +z leaves all as it is.
 * @param[in,out] s  the solid
 * @param[in] vector  its i, j and k are read, in any length; all within 1e-7 of 0, not finite or null it leaves the
 *   solid as it is
 * @return s
 */
KX_API solid *KX_CALL kx_transform_solid_vector(solid *s, const vector_3d *vector);

/* ---- rings and caps ---- */

/**
 * Appends the corners of a regular polygon, counter-clockwise seen from above, to a vertex list.
 * @param[in] center  its centre; all corners are at its z
 * @param[in] radius  distance of the corners from the centre
 * @param[in] n  number of corners; none for less than 1 or more than KX_SOLID_VERTICES_MOST
 * @param[in,out] vertex_number  number of the first corner, afterwards the next one that is free; null counts from 0
 * @param[in] start_deg  angle of the first corner from the x axis
 * @param[in,out] vertices  the list (poly_3d); null, as a null centre, appends nothing
 * @return the next free vertex number; when the memory ends, after the message, that of the corner that is missing
 */
KX_API int32_t KX_CALL kx_regpolyxyzpnts(const pnt_3d *center, double radius, int32_t n, int32_t *vertex_number,
                                         double start_deg, list_hdr *vertices);

/**
 * Appends points of the ellipse inscribed in a rectangle, counter-clockwise seen from above, to a vertex list: those of
 * a regular polygon on a circle, stretched to the ellipse.
 * @param[in] rect  the rectangle, sides along x and y
 * @param[in] z  height of all points
 * @param[in] n  number of points; none for less than 1 or more than KX_SOLID_VERTICES_MOST
 * @param[in,out] vertex_number  number of the first point, afterwards the next one that is free; null counts from 0
 * @param[in] start_deg  angle of the first point on the circle from the x axis
 * @param[in,out] vertices  the list (poly_3d); null, as a null rectangle, appends nothing
 * @return the next free vertex number; when the memory ends, after the message, that of the point that is missing
 */
KX_API int32_t KX_CALL kx_ellipsexyzpnts(const rect_2d *rect, double z, int32_t n, int32_t *vertex_number,
                                         double start_deg, list_hdr *vertices);

/**
 * Appends the triangles between a centre and a ring of vertices numbered onwards from it to a face list: (c, c + 1 + i,
 * c + 2 + i) and last (c, c + n, c + 1), or with the other two exchanged. The attributes of each are 1, 0, 1, 0: 1 on
 * the edges that meet the centre.
 * @param[in,out] face_number  number of the first triangle, afterwards the next one that is free; null counts from 0
 * @param[in] n  number of triangles; none for less than 1
 * @param[in] center  vertex number c of the centre
 * @param[in] flag  0: in the order of the ring; otherwise reversed
 * @param[in] vertices  list of the vertices (poly_3d), for the normals
 * @param[in,out] faces  the list (polyface_3d)
 * @return the next free face number; 1 when a face cannot be created, after the message and with face_number up to
 *   there, and 1 for a null list or n above KX_SOLID_VERTICES_MOST
 */
KX_API int32_t KX_CALL kx_arc_faces(int32_t *face_number, int32_t n, int32_t center, int32_t flag,
                                    const list_hdr *vertices, list_hdr *faces);

/* ---- block cylinder torus ---- */

/**
 * Builds a block: 8 vertices, 6 faces numbered from 1. Its extents are the centre minus and plus half of each size.
 * @param[in] center  its centre
 * @param[in] size_x,size_y,size_z  its sizes before the turn
 * @param[in] orientation  what its z axis is turned to; null does not turn it
 * @param[in,out] given  a solid to fill; null for a new one
 * @return the solid; null as told at the top
 */
KX_API solid *KX_CALL kx_block_pnts(const pnt_3d *center, double size_x, double size_y, double size_z,
                                    const vector_3d *orientation, solid *given);

/**
 * Builds a cylinder of circular or elliptic section: 3n faces numbered from 0 on 2n + 2 vertices. Each cap is a fan of
 * triangles about its centre, as from kx_arc_faces, and counts as one face in face_count, n + 2; vertex_count, 2n, is
 * without the two centres. The extents are the centre minus and plus half of each size.
 * @param[in] center  its centre
 * @param[in] diameter_x,diameter_y  its diameters before the turn
 * @param[in] height  its height
 * @param[in,out] sectors  number n of sides; raised to 3 for equal diameters, otherwise to the next multiple of 4, 4 at
 *   least; null builds nothing
 * @param[in] orientation  what its z axis is turned to; null does not turn it
 * @param[in,out] given  a solid to fill; null for a new one
 * @return the solid; null as told at the top, sectors unchanged then unless the memory ended
 */
KX_API solid *KX_CALL kx_cylinder_pnts(const pnt_3d *center, double diameter_x, double diameter_y, double height,
                                       int32_t *sectors, const vector_3d *orientation, solid *given);

/**
 * Builds a torus: p*q vertices and as many faces, numbered from 0, in p rings of q. The larger radius is that of the
 * axis circle. The middle of the tube is at the height z = 2y of the centre's y. The extents are given about the
 * centre, x from center - larger + smaller on.
 * @param[in] center  its centre
 * @param[in] radius_1,radius_2  radii of axis circle and tube, in any order
 * @param[in] p  sectors of the axis circle, raised to 3
 * @param[in] q  sectors of the tube, raised to 3
 * @param[in] orientation  what its z axis is turned to; null does not turn it
 * @param[in,out] given  a solid to fill; null for a new one
 * @return the solid; null as told at the top
 */
KX_API solid *KX_CALL kx_torus_pnts(const pnt_3d *center, double radius_1, double radius_2, int32_t p, int32_t q,
                                    const vector_3d *orientation, solid *given);

/* ---- regular polyhedra ---- */

/**
 * Builds a tetrahedron: 4 vertices, 4 faces. With k half the square of the size, its base is a regular triangle with
 * corners at the distance k from the axis, its height is k. The extents are the least box around the vertices, as for
 * all five.
 * @param[in] center  its centre
 * @param[in] size  its size
 * @param[in] orientation  what its z axis is turned to; null does not turn it
 * @param[in,out] given  a solid to fill; null for a new one
 * @return the solid; null as told at the top
 */
KX_API solid *KX_CALL kx_tetrahedron_pnts(const pnt_3d *center, double size, const vector_3d *orientation,
                                          solid *given);

/**
 * Builds a cube: 8 vertices, 6 faces, in the order of kx_block_pnts but with faces numbered from 0.
 * @param[in] center  its centre
 * @param[in] size  length of its edges
 * @param[in] orientation  what its z axis is turned to; null does not turn it
 * @param[in,out] given  a solid to fill; null for a new one
 * @return the solid; null as told at the top
 */
KX_API solid *KX_CALL kx_hexahedron_pnts(const pnt_3d *center, double size, const vector_3d *orientation, solid *given);

/**
 * Builds an octahedron: 6 vertices, 8 faces. Two vertices stand half the size above and below the centre, four on the
 * corners of a level square with edges of that size: flatter than the regular one.
 * @param[in] center  its centre
 * @param[in] size  its size
 * @param[in] orientation  what its z axis is turned to; null does not turn it
 * @param[in,out] given  a solid to fill; null for a new one
 * @return the solid; null as told at the top
 */
KX_API solid *KX_CALL kx_octahedron_pnts(const pnt_3d *center, double size, const vector_3d *orientation, solid *given);

/**
 * Builds a regular dodecahedron: 20 vertices in four level rings, 12 faces of five vertices, two of them level.
 * @param[in] center  its centre
 * @param[in] size  length of its edges
 * @param[in] orientation  what its z axis is turned to; null does not turn it
 * @param[in,out] given  a solid to fill; null for a new one
 * @return the solid; null as told at the top
 */
KX_API solid *KX_CALL kx_dodecahedron_pnts(const pnt_3d *center, double size, const vector_3d *orientation,
                                           solid *given);

/**
 * Builds a regular icosahedron: 12 vertices, 20 faces, a vertex on top and one at the bottom.
 * @param[in] center  its centre
 * @param[in] size  length of its edges
 * @param[in] orientation  what its z axis is turned to; null does not turn it
 * @param[in,out] given  a solid to fill; null for a new one
 * @return the solid; null as told at the top
 */
KX_API solid *KX_CALL kx_icosahedron_pnts(const pnt_3d *center, double size, const vector_3d *orientation,
                                          solid *given);

/**
 * Builds one of the five, as its own builder does.
 * @param[in] kind  0 tetrahedron, 1 hexahedron, 2 octahedron, 3 dodecahedron, 4 icosahedron
 * @param[in] center  its centre
 * @param[in] size  its size
 * @param[in] orientation  what its z axis is turned to; null does not turn it
 * @param[in,out] given  a solid to fill; null for a new one
 * @return the solid; null as told at the top, and, a given solid untouched, for another kind
 */
KX_API solid *KX_CALL kx_regpolyhedronpnts(int32_t kind, const pnt_3d *center, double size,
                                           const vector_3d *orientation, solid *given);

/* ---- spheres ---- */

/**
 * Builds a ball: a vertex at each pole, stacks - 1 level rings between them at equal steps of the angle, triangles at
 * the poles and faces of four vertices elsewhere. As for all bodies from here on, vertices and faces are counted as
 * they are, faces are numbered from 0, levels run from the top down, and the extents are the least box around the
 * vertices.
 * @param[in] center  its centre
 * @param[in] radius  its radius
 * @param[in] sectors  sides of a ring, raised to 3
 * @param[in] stacks  steps from pole to pole, raised to 2
 * @param[in,out] given  a solid to fill; null for a new one
 * @return the solid; null as told at the top
 */
KX_API solid *KX_CALL kx_sphere_pnts(const pnt_3d *center, double radius, int32_t sectors, int32_t stacks,
                                     solid *given);

/**
 * Builds an ellipsoid as kx_sphere_pnts does a ball.
 * @param[in] center  its centre
 * @param[in] diameter_x,diameter_y,diameter_z  its diameters before the turn
 * @param[in] sectors  sides of a ring, raised to 3 for equal diameters along x and y, otherwise to the next multiple of
 *   4, 4 at least
 * @param[in] stacks  steps from pole to pole, raised to 2
 * @param[in] orientation  what its z axis is turned to; null does not turn it
 * @param[in,out] given  a solid to fill; null for a new one
 * @return the solid; null as told at the top
 */
KX_API solid *KX_CALL kx_ellipsoid_pnts(const pnt_3d *center, double diameter_x, double diameter_y, double diameter_z,
                                        int32_t sectors, int32_t stacks, const vector_3d *orientation, solid *given);

/**
 * Builds what a level plane leaves of a ball above it, with a flat bottom: a fan of triangles about its centre, with
 * the attributes of kx_arc_faces, as all discs from here on. The solid is one of type ellipsoid, with twice the radius
 * as diameters along x and y and twice the height along z.
 * @param[in] center  centre of the ball
 * @param[in] radius  radius of the ball
 * @param[in] height  of the dome, from the plane to the top of the ball; cut to 0 and the ball's diameter
 * @param[in] sectors  sides of a ring, raised to 3
 * @param[in] stacks  steps from top to rim, raised to 1
 * @param[in] orientation  what its z axis is turned to; null does not turn it
 * @param[in,out] given  a solid to fill; null for a new one
 * @return the solid; null as told at the top
 */
KX_API solid *KX_CALL kx_spherical_dome_pnts(const pnt_3d *center, double radius, double height, int32_t sectors,
                                             int32_t stacks, const vector_3d *orientation, solid *given);

/**
 * Builds the lower half of a ball, hollowed out by half a smaller ball about the same centre: open at the top, with a
 * flat rim. A wall that leaves no hollow gives half a ball with a flat top. The solid is one of type ellipsoid, with
 * the diameter of the ball along x and z and that of the hollow along y.
 * @param[in] center  centre of the two balls
 * @param[in] radius  radius of the outside
 * @param[in] thickness  of the wall
 * @param[in] sectors  sides of a ring, raised to 3
 * @param[in] stacks  steps from bottom to rim, raised to 1
 * @param[in] orientation  what its z axis is turned to; null does not turn it
 * @param[in,out] given  a solid to fill; null for a new one
 * @return the solid; null as told at the top
 */
KX_API solid *KX_CALL kx_spherical_cup_pnts(const pnt_3d *center, double radius, double thickness, int32_t sectors,
                                            int32_t stacks, const vector_3d *orientation, solid *given);

/* ---- cones ---- */

/**
 * Builds a cone: an end without diameter, within 1e-7, is a point, the other ones are discs. With both ends like that,
 * the bottom is a disc without extent.
 * @param[in] center  its centre, at half its height
 * @param[in] bottom_diameter,top_diameter,height  its sizes
 * @param[in,out] sectors  sides of a ring, raised to 3; null builds nothing
 * @param[in] orientation  what its z axis is turned to; null does not turn it
 * @param[in,out] given  a solid to fill; null for a new one
 * @return the solid; null as told at the top, sectors unchanged then
 */
KX_API solid *KX_CALL kx_cone_pnts(const pnt_3d *center, double bottom_diameter, double top_diameter, double height,
                                   int32_t *sectors, const vector_3d *orientation, solid *given);

/**
 * Builds a cylinder with a bore, both of circular or elliptic section: four rings and flat ends of four-sided faces.
 * Along x and along y the larger diameter is the outer one. With both inner diameters 0, within 1e-7, it is closed by
 * discs.
 * @param[in] center  its centre
 * @param[in] outer_x,outer_y  diameters of the outside before the turn
 * @param[in] inner_x,inner_y  diameters of the bore
 * @param[in] height  its height
 * @param[in,out] sectors  sides of a ring, raised to 3, when a section is no circle to the next multiple of 4, 4 at
 *   least; null builds nothing
 * @param[in] orientation  what its z axis is turned to; null does not turn it
 * @param[in,out] given  a solid to fill; null for a new one
 * @return the solid; null as told at the top, sectors unchanged then
 */
KX_API solid *KX_CALL kx_hcylinder_pnts(const pnt_3d *center, double outer_x, double outer_y, double inner_x,
                                        double inner_y, double height, int32_t *sectors, const vector_3d *orientation,
                                        solid *given);

/* ---- quadrics ---- */

/**
 * Builds the upper sheet of the hyperboloid of two sheets, (z/c)^2 - (x/a)^2 - (y/b)^2 = 1, between two heights: from
 * its vertex, or from a disc where the cut leaves that out, up to a disc. Heights below the vertex count as the vertex.
 * @param[in] center  its centre
 * @param[in] diameter_x,diameter_y,diameter_z  twice the semi-axes; that of z is read without its sign
 * @param[in] bottom,top  heights above the centre that cut it, in any order
 * @param[in] sectors  sides of a ring, raised to 3 for equal diameters along x and y, otherwise to the next multiple of
 *   4, 4 at least
 * @param[in] stacks  steps of the sheet, raised to 1
 * @param[in] orientation  what its z axis is turned to; null does not turn it
 * @param[in,out] given  a solid to fill; null for a new one
 * @return the solid; null as told at the top
 */
KX_API solid *KX_CALL kx_hyperboloid_pnts(const pnt_3d *center, double diameter_x, double diameter_y, double diameter_z,
                                          double bottom, double top, int32_t sectors, int32_t stacks,
                                          const vector_3d *orientation, solid *given);

/**
 * Builds the hyperboloid of one sheet, (x/a)^2 + (y/b)^2 - (z/c)^2 = 1, between two heights, each end a disc.
 * @param[in] center  its centre
 * @param[in] diameter_x,diameter_y,diameter_z  twice the semi-axes; that of z is read without its sign
 * @param[in] bottom,top  heights above the centre that cut it, in any order
 * @param[in] sectors  sides of a ring, raised to 3 for equal diameters along x and y, otherwise to the next multiple of
 *   4, 4 at least
 * @param[in] stacks  steps of the sheet, raised to 1
 * @param[in] orientation  what its z axis is turned to; null does not turn it
 * @param[in,out] given  a solid to fill; null for a new one
 * @return the solid; null as told at the top
 */
KX_API solid *KX_CALL kx_hyperboloid1s(const pnt_3d *center, double diameter_x, double diameter_y, double diameter_z,
                                       double bottom, double top, int32_t sectors, int32_t stacks,
                                       const vector_3d *orientation, solid *given);

/**
 * Builds the hyperboloid of two sheets between two heights: the piece of kx_hyperboloid_pnts and the one below the
 * centre, two closed bodies in one solid. A piece that the heights leave out has no extent.
 * @param[in] center  its centre
 * @param[in] diameter_x,diameter_y,diameter_z  twice the semi-axes; that of z is read without its sign
 * @param[in] bottom,top  heights above the centre that cut it, in any order
 * @param[in] sectors  sides of a ring, raised to 3 for equal diameters along x and y, otherwise to the next multiple of
 *   4, 4 at least
 * @param[in] stacks  steps of each sheet, raised to 1
 * @param[in] orientation  what its z axis is turned to; null does not turn it
 * @param[in,out] given  a solid to fill; null for a new one
 * @return the solid; null as told at the top
 */
KX_API solid *KX_CALL kx_hyperboloid2s(const pnt_3d *center, double diameter_x, double diameter_y, double diameter_z,
                                       double bottom, double top, int32_t sectors, int32_t stacks,
                                       const vector_3d *orientation, solid *given);

/**
 * Builds an elliptic paraboloid: its vertex on top, a disc at the bottom.
 * @param[in] center  its centre, at half its height
 * @param[in] diameter_x,diameter_y  diameters of the disc before the turn
 * @param[in] height  its height
 * @param[in] sectors  sides of a ring, raised to 3 for equal diameters along x and y, otherwise to the next multiple of
 *   4, 4 at least
 * @param[in] stacks  rings, at equal steps of the diameter, raised to 1
 * @param[in] orientation  what its z axis is turned to; null does not turn it
 * @param[in,out] given  a solid to fill; null for a new one
 * @return the solid; null as told at the top
 */
KX_API solid *KX_CALL kx_paraboloid_pnts(const pnt_3d *center, double diameter_x, double diameter_y, double height,
                                         int32_t sectors, int32_t stacks, const vector_3d *orientation, solid *given);

/* ---- prisms ---- */

/**
 * Builds a prism, upright or oblique, on a regular polygon stretched to an ellipse, its first corner on the x axis: top
 * ring, bottom ring; first the top, then sides of four vertices, then the bottom. Up to KX_RING_MOST corners top and
 * bottom are one face each, with more they are cut into triangles, with the attribute 1 on the edges between them.
 * @param[in] center  centre of the bottom, but at half the height
 * @param[in] diameter_x,diameter_y  diameters of the ellipse before the turn
 * @param[in] height  its height
 * @param[in] shift_x,shift_y  how far the top is moved against the bottom
 * @param[in,out] sectors  corners of the polygon, raised to 3; null builds nothing
 * @param[in] orientation  what its z axis is turned to; null does not turn it
 * @param[in,out] given  a solid to fill; null for a new one
 * @return the solid; null as told at the top, sectors unchanged then
 */
KX_API solid *KX_CALL kx_prism_pnts(const pnt_3d *center, double diameter_x, double diameter_y, double height,
                                    double shift_x, double shift_y, int32_t *sectors, const vector_3d *orientation,
                                    solid *given);

/**
 * Builds a pyramid on a rectangle: 5 vertices, the top first, 5 faces, the bottom last.
 * @param[in] center  its centre, at half its height
 * @param[in] size_x,size_y  sides of the rectangle before the turn
 * @param[in] height  its height
 * @param[in] orientation  what its z axis is turned to; null does not turn it
 * @param[in,out] given  a solid to fill; null for a new one
 * @return the solid; null as told at the top
 */
KX_API solid *KX_CALL kx_pyramid_pnts(const pnt_3d *center, double size_x, double size_y, double height,
                                      const vector_3d *orientation, solid *given);

/* ---- swept bodies ---- */

/**
 * Turns a profile about the z axis. A list of points of one kind is a closed polygon, in any direction; points that
 * repeat the one before are left out. x is the distance from the axis, within 1e-7 on it, and y the height above the
 * centre, z for points in space. A whole turn leaves a ring, or, where the profile meets the axis, a body from one
 * point of the axis to another, and one for each part of a profile that meets it repeatedly. Part of a turn has the
 * profile as its ends: each is one face, or, past KX_RING_MOST corners and when the body has too few faces for
 * kx_clear_solid to free that one, triangles with the attribute 1 on the edges between them. The profile is copied; the
 * solid's record has the copy.
 * @param[in] center  the point of the axis from which heights count
 * @param[in] profile  the points
 * @param[in] start_angle  where the turn begins, in degrees from x to y
 * @param[in] sweep_angle  how far it goes; 360 or more, either way, is a whole turn
 * @param[in,out] sectors  steps of the turn, raised to 3 for a whole one, so that each is 120 degrees at most; null
 *   builds nothing
 * @param[in] orientation  what its z axis is turned to; null does not turn it
 * @param[in,out] given  a solid to fill; null for a new one
 * @return the solid; null as told at the top, sectors unchanged then; and, a given solid untouched, for a profile that
 *   kx_check_poly refuses, that runs back over itself or that crosses the axis, for another kind of list, and for an
 *   angle that is not finite or no sweep
 */
KX_API solid *KX_CALL kx_bodyrevolution(const pnt_3d *center, const list_hdr *profile, double start_angle,
                                        double sweep_angle, int32_t *sectors, const vector_3d *orientation,
                                        solid *given);

/**
 * Moves a profile along the z axis, as a prism is made. A list of points of one kind is a closed polygon, in any
 * direction; points that repeat the one before are left out. z is not read. Top and bottom are one face each up to
 * KX_RING_MOST corners, otherwise cut into triangles with the attribute 1 on the edges between them. The profile is
 * copied; the solid's record has the copy.
 * @param[in] center  where the profile has its origin, at half the height
 * @param[in] profile  the points, measured from the centre
 * @param[in] height  how far
 * @param[in] orientation  what its z axis is turned to; null does not turn it
 * @param[in,out] given  a solid to fill; null for a new one
 * @return the solid; null as told at the top; and, a given solid untouched, for a profile that kx_check_poly refuses
 *   and for another kind of list
 */
KX_API solid *KX_CALL kx_extbody_pnts(const pnt_3d *center, const list_hdr *profile, double height,
                                      const vector_3d *orientation, solid *given);

/* ---- primitive records ---- */

/**
 * Frees the record of a body of revolution or of an extruded body, with its profile.
 * @param[in] record  the record, an extbody as well: both begin alike; null does nothing
 */
KX_API void KX_CALL kx_purge_bodyrev(bodyrev *record);

/**
 * Makes the record of a block, every field 0 but for its axis, (0, 0, 1).
 * @return the record, owned by the caller and freed by kx_purge_block; null after the memory message
 *   "kx_create_block"
 */
KX_API block *KX_CALL kx_create_block(void);

/**
 * Stores the values of a block, word for word.
 * @param[in] size_x,size_y,size_z,axis_x,axis_y,axis_z  the values
 * @param[in] center  its centre; null leaves that of the record
 * @param[in,out] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_set_block(const pnt_3d *center, double size_x, double size_y, double size_z, double axis_x,
                                 double axis_y, double axis_z, block *rec);

/**
 * Reads the fields of a block.
 * @param[out] center,size_x,size_y,size_z,axis_x,axis_y,axis_z  the fields, in their order in the record; a null one is
 * passed over
 * @param[in] rec  the record; null writes nothing
 */
KX_API void KX_CALL kx_get_block(pnt_3d *center, double *size_x, double *size_y, double *size_z, double *axis_x,
                                 double *axis_y, double *axis_z, const block *rec);

/**
 * Frees the record of a block.
 * @param[in] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_purge_block(block *rec);

/**
 * Makes the record of a cylinder, every field 0 but for its axis, (0, 0, 1).
 * @return the record, owned by the caller and freed by kx_purge_cylinder; null after the memory message
 *   "kx_create_cylinder"
 */
KX_API cylinder *KX_CALL kx_create_cylinder(void);

/**
 * Stores the values of a cylinder, word for word.
 * @param[in] host_word,diameter_x,diameter_y,height,sectors,axis_x,axis_y,axis_z  the values
 * @param[in] center  its centre; null leaves that of the record
 * @param[in,out] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_set_cylinder(int32_t host_word, const pnt_3d *center, double diameter_x, double diameter_y,
                                    double height, int32_t sectors, double axis_x, double axis_y, double axis_z,
                                    cylinder *rec);

/**
 * Reads the fields of a cylinder.
 * @param[out] host_word,center,diameter_x,diameter_y,height,sectors,axis_x,axis_y,axis_z  the fields, in their order in
 * the record; a null one is passed over
 * @param[in] rec  the record; null writes nothing
 */
KX_API void KX_CALL kx_get_cylinder(int32_t *host_word, pnt_3d *center, double *diameter_x, double *diameter_y,
                                    double *height, int32_t *sectors, double *axis_x, double *axis_y, double *axis_z,
                                    const cylinder *rec);

/**
 * Frees the record of a cylinder.
 * @param[in] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_purge_cylinder(cylinder *rec);

/**
 * Makes the record of a torus, every field 0 but for its axis, (0, 0, 1).
 * @return the record, owned by the caller and freed by kx_purge_torus; null after the memory message
 *   "kx_create_torus"
 */
KX_API torus *KX_CALL kx_create_torus(void);

/**
 * Stores the values of a torus, word for word.
 * @param[in] host_word,major_radius,minor_radius,sectors,tube_sectors,axis_x,axis_y,axis_z  the values
 * @param[in] center  its centre; null leaves that of the record
 * @param[in,out] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_set_torus(int32_t host_word, const pnt_3d *center, double major_radius, double minor_radius,
                                 int32_t sectors, int32_t tube_sectors, double axis_x, double axis_y, double axis_z,
                                 torus *rec);

/**
 * Reads the fields of a torus.
 * @param[out] host_word,center,major_radius,minor_radius,sectors,tube_sectors,axis_x,axis_y,axis_z  the fields, in
 * their order in the record; a null one is passed over
 * @param[in] rec  the record; null writes nothing
 */
KX_API void KX_CALL kx_get_torus(int32_t *host_word, pnt_3d *center, double *major_radius, double *minor_radius,
                                 int32_t *sectors, int32_t *tube_sectors, double *axis_x, double *axis_y,
                                 double *axis_z, const torus *rec);

/**
 * Frees the record of a torus.
 * @param[in] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_purge_torus(torus *rec);

/**
 * Makes the record of a tetrahedron, every field 0 but for its axis, (0, 0, 1).
 * @return the record, owned by the caller and freed by kx_purge_tetrahedron; null after the memory message
 *   "kx_create_tetrahedron"
 */
KX_API tetrahedron *KX_CALL kx_create_tetrahedron(void);

/**
 * Stores the values of a tetrahedron, word for word.
 * @param[in] size,axis_x,axis_y,axis_z  the values
 * @param[in] center  its centre; null leaves that of the record
 * @param[in,out] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_set_tetrahedron(const pnt_3d *center, double size, double axis_x, double axis_y, double axis_z,
                                       tetrahedron *rec);

/**
 * Reads the fields of a tetrahedron.
 * @param[out] center,size,axis_x,axis_y,axis_z  the fields, in their order in the record; a null one is passed over
 * @param[in] rec  the record; null writes nothing
 */
KX_API void KX_CALL kx_get_tetrahedron(pnt_3d *center, double *size, double *axis_x, double *axis_y, double *axis_z,
                                       const tetrahedron *rec);

/**
 * Frees the record of a tetrahedron.
 * @param[in] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_purge_tetrahedron(tetrahedron *rec);

/**
 * Makes the record of a hexahedron, every field 0 but for its axis, (0, 0, 1).
 * @return the record, owned by the caller and freed by kx_purge_hexahedron; null after the memory message
 *   "kx_create_hexahedron"
 */
KX_API hexahedron *KX_CALL kx_create_hexahedron(void);

/**
 * Stores the values of a hexahedron, word for word.
 * @param[in] size,axis_x,axis_y,axis_z  the values
 * @param[in] center  its centre; null leaves that of the record
 * @param[in,out] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_set_hexahedron(const pnt_3d *center, double size, double axis_x, double axis_y, double axis_z,
                                      hexahedron *rec);

/**
 * Reads the fields of a hexahedron.
 * @param[out] center,size,axis_x,axis_y,axis_z  the fields, in their order in the record; a null one is passed over
 * @param[in] rec  the record; null writes nothing
 */
KX_API void KX_CALL kx_get_hexahedron(pnt_3d *center, double *size, double *axis_x, double *axis_y, double *axis_z,
                                      const hexahedron *rec);

/**
 * Frees the record of a hexahedron.
 * @param[in] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_purge_hexahedron(hexahedron *rec);

/**
 * Makes the record of an octahedron, every field 0 but for its axis, (0, 0, 1).
 * @return the record, owned by the caller and freed by kx_purge_octahedron; null after the memory message
 *   "kx_create_octahedron"
 */
KX_API octahedron *KX_CALL kx_create_octahedron(void);

/**
 * Stores the values of an octahedron, word for word.
 * @param[in] size,axis_x,axis_y,axis_z  the values
 * @param[in] center  its centre; null leaves that of the record
 * @param[in,out] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_set_octahedron(const pnt_3d *center, double size, double axis_x, double axis_y, double axis_z,
                                      octahedron *rec);

/**
 * Reads the fields of an octahedron.
 * @param[out] center,size,axis_x,axis_y,axis_z  the fields, in their order in the record; a null one is passed over
 * @param[in] rec  the record; null writes nothing
 */
KX_API void KX_CALL kx_get_octahedron(pnt_3d *center, double *size, double *axis_x, double *axis_y, double *axis_z,
                                      const octahedron *rec);

/**
 * Frees the record of an octahedron.
 * @param[in] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_purge_octahedron(octahedron *rec);

/**
 * Makes the record of a dodecahedron, every field 0 but for its axis, (0, 0, 1).
 * @return the record, owned by the caller and freed by kx_purge_dodecahedron; null after the memory message
 *   "kx_create_dodecahedron"
 */
KX_API dodecahedron *KX_CALL kx_create_dodecahedron(void);

/**
 * Stores the values of a dodecahedron, word for word.
 * @param[in] size,axis_x,axis_y,axis_z  the values
 * @param[in] center  its centre; null leaves that of the record
 * @param[in,out] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_set_dodecahedron(const pnt_3d *center, double size, double axis_x, double axis_y, double axis_z,
                                        dodecahedron *rec);

/**
 * Reads the fields of a dodecahedron.
 * @param[out] center,size,axis_x,axis_y,axis_z  the fields, in their order in the record; a null one is passed over
 * @param[in] rec  the record; null writes nothing
 */
KX_API void KX_CALL kx_get_dodecahedron(pnt_3d *center, double *size, double *axis_x, double *axis_y, double *axis_z,
                                        const dodecahedron *rec);

/**
 * Frees the record of a dodecahedron.
 * @param[in] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_purge_dodecahedron(dodecahedron *rec);

/**
 * Makes the record of an icosahedron, every field 0 but for its axis, (0, 0, 1).
 * @return the record, owned by the caller and freed by kx_purge_icosahedron; null after the memory message
 *   "kx_create_icosahedron"
 */
KX_API icosahedron *KX_CALL kx_create_icosahedron(void);

/**
 * Stores the values of an icosahedron, word for word.
 * @param[in] size,axis_x,axis_y,axis_z  the values
 * @param[in] center  its centre; null leaves that of the record
 * @param[in,out] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_set_icosahedron(const pnt_3d *center, double size, double axis_x, double axis_y, double axis_z,
                                       icosahedron *rec);

/**
 * Reads the fields of an icosahedron.
 * @param[out] center,size,axis_x,axis_y,axis_z  the fields, in their order in the record; a null one is passed over
 * @param[in] rec  the record; null writes nothing
 */
KX_API void KX_CALL kx_get_icosahedron(pnt_3d *center, double *size, double *axis_x, double *axis_y, double *axis_z,
                                       const icosahedron *rec);

/**
 * Frees the record of an icosahedron.
 * @param[in] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_purge_icosahedron(icosahedron *rec);

/* ---- further primitive records ---- */

/**
 * Makes the record of a sphere, every field 0.
 * @return the record, owned by the caller and freed by kx_purge_sphere; null after the memory message
 *   "kx_create_sphere"
 */
KX_API sphere *KX_CALL kx_create_sphere(void);

/**
 * Stores the values of a sphere, word for word.
 * @param[in] radius,sectors,stacks  the values
 * @param[in] center  its centre; null leaves that of the record
 * @param[in,out] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_set_sphere(const pnt_3d *center, double radius, int32_t sectors, int32_t stacks, sphere *rec);

/**
 * Reads the fields of a sphere.
 * @param[out] center,radius,sectors,stacks  the fields, in their order in the record; a null one is passed over
 * @param[in] rec  the record; null writes nothing
 */
KX_API void KX_CALL kx_get_sphere(pnt_3d *center, double *radius, int32_t *sectors, int32_t *stacks, const sphere *rec);

/**
 * Frees the record of a sphere.
 * @param[in] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_purge_sphere(sphere *rec);

/**
 * Makes the record of an ellipsoid, every field 0 but for its axis, (0, 0, 1).
 * @return the record, owned by the caller and freed by kx_purge_ellipsoid; null after the memory message
 *   "kx_create_ellipsoid"
 */
KX_API ellipsoid *KX_CALL kx_create_ellipsoid(void);

/**
 * Stores the values of an ellipsoid, word for word.
 * @param[in] host_word,diameter_x,diameter_y,diameter_z,sectors,stacks,axis_x,axis_y,axis_z  the values
 * @param[in] center  its centre; null leaves that of the record
 * @param[in,out] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_set_ellipsoid(int32_t host_word, const pnt_3d *center, double diameter_x, double diameter_y,
                                     double diameter_z, int32_t sectors, int32_t stacks, double axis_x, double axis_y,
                                     double axis_z, ellipsoid *rec);

/**
 * Reads the fields of an ellipsoid.
 * @param[out] host_word,center,diameter_x,diameter_y,diameter_z,sectors,stacks,axis_x,axis_y,axis_z  the fields, in
 *   their order in the record; a null one is passed over
 * @param[in] rec  the record; null writes nothing
 */
KX_API void KX_CALL kx_get_ellipsoid(int32_t *host_word, pnt_3d *center, double *diameter_x, double *diameter_y,
                                     double *diameter_z, int32_t *sectors, int32_t *stacks, double *axis_x,
                                     double *axis_y, double *axis_z, const ellipsoid *rec);

/**
 * Frees the record of an ellipsoid.
 * @param[in] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_purge_ellipsoid(ellipsoid *rec);

/**
 * Makes the record of a prism, every field 0 but for its axis, (0, 0, 1).
 * @return the record, owned by the caller and freed by kx_purge_prism; null after the memory message "kx_create_prism"
 */
KX_API prism *KX_CALL kx_create_prism(void);

/**
 * Stores the values of a prism, word for word.
 * @param[in] diameter_x,diameter_y,height,shift_x,shift_y,sectors,axis_x,axis_y,axis_z  the values
 * @param[in] center  its centre; null leaves that of the record
 * @param[in,out] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_set_prism(const pnt_3d *center, double diameter_x, double diameter_y, double height,
                                 double shift_x, double shift_y, int32_t sectors, double axis_x, double axis_y,
                                 double axis_z, prism *rec);

/**
 * Reads the fields of a prism.
 * @param[out] center,diameter_x,diameter_y,height,shift_x,shift_y,sectors,axis_x,axis_y,axis_z  the fields, in their
 *   order in the record; a null one is passed over
 * @param[in] rec  the record; null writes nothing
 */
KX_API void KX_CALL kx_get_prism(pnt_3d *center, double *diameter_x, double *diameter_y, double *height,
                                 double *shift_x, double *shift_y, int32_t *sectors, double *axis_x, double *axis_y,
                                 double *axis_z, const prism *rec);

/**
 * Frees the record of a prism.
 * @param[in] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_purge_prism(prism *rec);

/**
 * Makes the record of a cone, every field 0 but for its axis, (0, 0, 1).
 * @return the record, owned by the caller and freed by kx_purge_cone; null after the memory message "kx_create_cone"
 */
KX_API cone *KX_CALL kx_create_cone(void);

/**
 * Stores the values of a cone, word for word.
 * @param[in] host_word,bottom_diameter,top_diameter,height,sectors,axis_x,axis_y,axis_z  the values
 * @param[in] center  its centre; null leaves that of the record
 * @param[in,out] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_set_cone(int32_t host_word, const pnt_3d *center, double bottom_diameter, double top_diameter,
                                double height, int32_t sectors, double axis_x, double axis_y, double axis_z, cone *rec);

/**
 * Reads the fields of a cone.
 * @param[out] host_word,center,bottom_diameter,top_diameter,height,sectors,axis_x,axis_y,axis_z  the fields, in their
 *   order in the record; a null one is passed over
 * @param[in] rec  the record; null writes nothing
 */
KX_API void KX_CALL kx_get_cone(int32_t *host_word, pnt_3d *center, double *bottom_diameter, double *top_diameter,
                                double *height, int32_t *sectors, double *axis_x, double *axis_y, double *axis_z,
                                const cone *rec);

/**
 * Frees the record of a cone.
 * @param[in] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_purge_cone(cone *rec);

/**
 * Makes the record of a hollow cylinder, every field 0 but for its axis, (0, 0, 1).
 * @return the record, owned by the caller and freed by kx_purge_hcylinder; null after the memory message
 *   "kx_create_hcylinder"
 */
KX_API hcylinder *KX_CALL kx_create_hcylinder(void);

/**
 * Stores the values of a hollow cylinder, word for word.
 * @param[in] host_word,outer_x,outer_y,inner_x,inner_y,height,sectors,axis_x,axis_y,axis_z  the values
 * @param[in] center  its centre; null leaves that of the record
 * @param[in,out] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_set_hcylinder(int32_t host_word, const pnt_3d *center, double outer_x, double outer_y,
                                     double inner_x, double inner_y, double height, int32_t sectors, double axis_x,
                                     double axis_y, double axis_z, hcylinder *rec);

/**
 * Reads the fields of a hollow cylinder.
 * @param[out] host_word,center,outer_x,outer_y,inner_x,inner_y,height,sectors,axis_x,axis_y,axis_z  the fields, in
 *   their order in the record; a null one is passed over
 * @param[in] rec  the record; null writes nothing
 */
KX_API void KX_CALL kx_get_hcylinder(int32_t *host_word, pnt_3d *center, double *outer_x, double *outer_y,
                                     double *inner_x, double *inner_y, double *height, int32_t *sectors, double *axis_x,
                                     double *axis_y, double *axis_z, const hcylinder *rec);

/**
 * Frees the record of a hollow cylinder.
 * @param[in] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_purge_hcylinder(hcylinder *rec);

/**
 * Makes the record of a hyperboloid, every field 0 but for its axis, (0, 0, 1).
 * @return the record, owned by the caller and freed by kx_purge_hyperboloid; null after the memory message
 *   "kx_create_hyperboloid"
 */
KX_API hyperboloid *KX_CALL kx_create_hyperboloid(void);

/**
 * Stores the values of a hyperboloid, word for word.
 * @param[in] host_word,diameter_x,diameter_y,diameter_z,bottom,top,sectors,stacks,axis_x,axis_y,axis_z  the values
 * @param[in] center  its centre; null leaves that of the record
 * @param[in,out] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_set_hyperboloid(int32_t host_word, const pnt_3d *center, double diameter_x, double diameter_y,
                                       double diameter_z, double bottom, double top, int32_t sectors, int32_t stacks,
                                       double axis_x, double axis_y, double axis_z, hyperboloid *rec);

/**
 * Reads the fields of a hyperboloid.
 * @param[out] host_word,center,diameter_x,diameter_y,diameter_z,bottom,top,sectors,stacks,axis_x,axis_y,axis_z  the
 *   fields, in their order in the record; a null one is passed over
 * @param[in] rec  the record; null writes nothing
 */
KX_API void KX_CALL kx_get_hyperboloid(int32_t *host_word, pnt_3d *center, double *diameter_x, double *diameter_y,
                                       double *diameter_z, double *bottom, double *top, int32_t *sectors,
                                       int32_t *stacks, double *axis_x, double *axis_y, double *axis_z,
                                       const hyperboloid *rec);

/**
 * Frees the record of a hyperboloid.
 * @param[in] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_purge_hyperboloid(hyperboloid *rec);

/**
 * Makes the record of a paraboloid, every field 0 but for its axis, (0, 0, 1).
 * @return the record, owned by the caller and freed by kx_purge_paraboloid; null after the memory message
 *   "kx_create_paraboloid"
 */
KX_API paraboloid *KX_CALL kx_create_paraboloid(void);

/**
 * Stores the values of a paraboloid, word for word.
 * @param[in] diameter_x,diameter_y,height,sectors,stacks,axis_x,axis_y,axis_z  the values
 * @param[in] center  its centre; null leaves that of the record
 * @param[in,out] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_set_paraboloid(const pnt_3d *center, double diameter_x, double diameter_y, double height,
                                      int32_t sectors, int32_t stacks, double axis_x, double axis_y, double axis_z,
                                      paraboloid *rec);

/**
 * Reads the fields of a paraboloid.
 * @param[out] center,diameter_x,diameter_y,height,sectors,stacks,axis_x,axis_y,axis_z  the fields, in their order in
 *   the record; a null one is passed over
 * @param[in] rec  the record; null writes nothing
 */
KX_API void KX_CALL kx_get_paraboloid(pnt_3d *center, double *diameter_x, double *diameter_y, double *height,
                                      int32_t *sectors, int32_t *stacks, double *axis_x, double *axis_y, double *axis_z,
                                      const paraboloid *rec);

/**
 * Frees the record of a paraboloid.
 * @param[in] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_purge_paraboloid(paraboloid *rec);

/**
 * Makes the record of a pyramid, every field 0 but for its axis, (0, 0, 1).
 * @return the record, owned by the caller and freed by kx_purge_pyramid; null after the memory message
 *   "kx_create_pyramid"
 */
KX_API pyramid *KX_CALL kx_create_pyramid(void);

/**
 * Stores the values of a pyramid, word for word.
 * @param[in] size_x,size_y,height,axis_x,axis_y,axis_z  the values
 * @param[in] center  its centre; null leaves that of the record
 * @param[in,out] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_set_pyramid(const pnt_3d *center, double size_x, double size_y, double height, double axis_x,
                                   double axis_y, double axis_z, pyramid *rec);

/**
 * Reads the fields of a pyramid.
 * @param[out] center,size_x,size_y,height,axis_x,axis_y,axis_z  the fields, in their order in the record; a null one is
 *   passed over
 * @param[in] rec  the record; null writes nothing
 */
KX_API void KX_CALL kx_get_pyramid(pnt_3d *center, double *size_x, double *size_y, double *height, double *axis_x,
                                   double *axis_y, double *axis_z, const pyramid *rec);

/**
 * Frees the record of a pyramid.
 * @param[in] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_purge_pyramid(pyramid *rec);

/**
 * Makes the record of a body of revolution, every field 0 but for its axis, (0, 0, 1).
 * @return the record, owned by the caller and freed by kx_purge_bodyrev; null after the memory message
 *   "kx_create_bodyrev"
 */
KX_API bodyrev *KX_CALL kx_create_bodyrev(void);

/**
 * Stores the values of a body of revolution, word for word.
 * @param[in] start_angle,sweep_angle,sectors,axis_x,axis_y,axis_z  the values
 * @param[in] center  its centre; null leaves that of the record
 * @param[in] profile  its list of points, which is the record's afterwards; one that it held before is the caller's
 *   again
 * @param[in,out] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_set_bodyrev(const pnt_3d *center, list_hdr *profile, double start_angle, double sweep_angle,
                                   int32_t sectors, double axis_x, double axis_y, double axis_z, bodyrev *rec);

/**
 * Reads the fields of a body of revolution. The profile stays the record's.
 * @param[out] center,profile,start_angle,sweep_angle,sectors,axis_x,axis_y,axis_z  the fields, in their order in the
 *   record; a null one is passed over
 * @param[in] rec  the record; null writes nothing
 */
KX_API void KX_CALL kx_get_bodyrev(pnt_3d *center, list_hdr **profile, double *start_angle, double *sweep_angle,
                                   int32_t *sectors, double *axis_x, double *axis_y, double *axis_z,
                                   const bodyrev *rec);

/**
 * Makes the record of an extruded body, every field 0 but for its axis, (0, 0, 1).
 * @return the record, owned by the caller and freed by kx_purge_extbody; null after the memory message
 *   "kx_create_extbody"
 */
KX_API extbody *KX_CALL kx_create_extbody(void);

/**
 * Stores the values of an extruded body, word for word.
 * @param[in] height,axis_x,axis_y,axis_z  the values
 * @param[in] center  its centre; null leaves that of the record
 * @param[in] profile  its list of points, which is the record's afterwards; one that it held before is the caller's
 *   again
 * @param[in,out] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_set_extbody(const pnt_3d *center, list_hdr *profile, double height, double axis_x, double axis_y,
                                   double axis_z, extbody *rec);

/**
 * Reads the fields of an extruded body. The profile stays the record's.
 * @param[out] center,profile,height,axis_x,axis_y,axis_z  the fields, in their order in the record; a null one is
 *   passed over
 * @param[in] rec  the record; null writes nothing
 */
KX_API void KX_CALL kx_get_extbody(pnt_3d *center, list_hdr **profile, double *height, double *axis_x, double *axis_y,
                                   double *axis_z, const extbody *rec);

/**
 * Frees the record of an extruded body, with its profile.
 * @param[in] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_purge_extbody(extbody *rec);

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
