/* The records that cross the library's boundary.
 *
 * Fields follow one another in the order given, packed to 4-byte alignment in every build: an integer followed by a
 * double leaves no gap. Pointers have the platform's width. Lengths share one unit of the caller's choice; every angle
 * names its unit.
 */
#ifndef KXGEOM_TYPES_H
#define KXGEOM_TYPES_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

#pragma pack(push, 4)

/* ---- points ---- */

typedef struct pnt_2d {
  double x, y;
} pnt_2d;

typedef struct pnt_3d {
  double x, y, z;
} pnt_3d;

/* A point of a plane polygon; seqnr is its number within the polygon. */
typedef struct poly_2d {
  int32_t seqnr;
  double x, y;
} poly_2d;

/* A point of a space polygon; seqnr is its number within the polygon. */
typedef struct poly_3d {
  int32_t seqnr;
  double x, y, z;
} poly_3d;

/* Cylindrical coordinates: radius in the xy plane, azimuth in radians, height. */
typedef struct cylcoord {
  double r, theta, z;
} cylcoord;

/* Spherical coordinates: distance from the origin, azimuth and polar angle from the +z axis, both in radians. */
typedef struct sphercoord {
  double r, theta, phi;
} sphercoord;

/* Direction coordinates of a point in space: distance from the origin and the three direction angles in radians. */
typedef struct polarcoord {
  double r, alpha, beta, gamma;
} polarcoord;

/* ---- vectors and lines ---- */

/* direction is an angle, length the vector's length; both are only as fresh as the function that last wrote them. */
typedef struct vector_2d {
  double direction, length, i, j;
} vector_2d;

typedef struct vector_3d {
  double direction, length, i, j, k;
} vector_3d;

/* A segment from (x1, y1) to (x2, y2). */
typedef struct line_2d {
  double x1, y1, x2, y2;
} line_2d;

typedef struct line_3d {
  double x1, y1, z1, x2, y2, z2;
} line_3d;

/* The line a*x + b*y + c = 0. */
typedef struct ile_2d {
  double a, b, c;
} ile_2d;

/* The line of the points (x0 + t*dx, y0 + t*dy). */
typedef struct ple_2d {
  double x0, y0, dx, dy;
} ple_2d;

typedef struct ple_3d {
  double x0, y0, z0, dx, dy, dz;
} ple_3d;

/* The plane a*x + b*y + c*z + d = 0. */
typedef struct planeeq {
  double a, b, c, d;
} planeeq;

/* ---- plane shapes ---- */

/* Two opposite corners. */
typedef struct rect_2d {
  double x1, y1, x2, y2;
} rect_2d;

typedef struct rect_3d {
  double x1, y1, z1, x2, y2, z2;
} rect_3d;

/* The three corners of a triangle. */
typedef struct triag_2d {
  double x1, y1, x2, y2, x3, y3;
} triag_2d;

/* The elements of a triangle: three sides and the angles opposite to them. */
typedef struct triangle {
  double a, b, c, alpha, beta, gamma;
} triangle;

typedef struct circle_2d {
  double x, y, r;
} circle_2d;

/* Centre, major and minor semi-axis, and two values of the conic functions that the setter leaves alone. */
typedef struct ellipse_2d {
  double x, y, a, b, value_1, value_2;
} ellipse_2d;

/* Centre, radius and two values read by mode. value_1 is the angle that the arc spans: in degrees for mode 1, in
   radians for every other mode but 2, whose values are no angles. */
typedef struct arc_2d {
  double x, y, r;
  int32_t mode;
  double value_1, value_2;
} arc_2d;

typedef struct parabola_2d {
  double x, y, p;
  int32_t mode;
  double value_1;
} parabola_2d;

typedef struct hyperbola_2d {
  double x, y, a, b;
  int32_t mode;
  double value_1;
} hyperbola_2d;

typedef struct dwg_rec_2d {
  double x, y;
  int32_t value_1, value_2;
} dwg_rec_2d;

/* ---- numbers and matrices in lists ---- */

typedef struct rnumber {
  double value;
} rnumber;

typedef struct inumber {
  int32_t value;
} inumber;

/* A matrix of the matrix store and the key it is stored under; row-major, points are row vectors on its left. */
typedef struct matrixrec2d {
  int32_t id;
  double matrix[9];
} matrixrec2d;

typedef struct matrixrec3d {
  int32_t id;
  double matrix[16];
} matrixrec3d;

/* ---- the linked list ---- */

/* One item: the caller's record and the tag of its kind. */
typedef struct list_item {
  void *data;
  int32_t datatype;
  struct list_item *prev, *next;
} list_item;

/* A list: first, last and current item (null when empty) and the number of items. */
typedef struct list_hdr {
  list_item *head, *tail, *current;
  int32_t count;
} list_hdr;

/* Datatype tags. */
enum {
  KX_PNT_2D = 50,
  KX_PNT_3D = 51,
  KX_CURVE_STATS_2D = 60,
  KX_CURVE_STATS_3D = 61,
  KX_POLY_2D = 62,
  KX_POLY_3D = 63,
  KX_POLYFACE_3D = 78,
  KX_MATRIXREC2D = 79,
  KX_MATRIXREC3D = 80,
  KX_RNUMBER = 81,
  KX_INUMBER = 82,
  KX_STRING = 101
};

/* ---- curves ---- */

/* What a maker notes beside each sample: the parameter, the unit tangent, the unit second derivative and the normal
   (the tangent turned by a quarter counter-clockwise). In the vectors i, j hold the components, length is 1 (0 where
   the derivative vanishes) and direction is 0: the makers compute no angles. */
typedef struct curve_stats_2d {
  double t;
  vector_2d tangent, second, normal;
} curve_stats_2d;

/* The same in space; the normal is the principal normal: the part of the second derivative at right angles to the
   tangent, made unit length. */
typedef struct curve_stats_3d {
  double t;
  vector_3d tangent, second, normal;
} curve_stats_3d;

/* Any free-form curve. */
typedef struct curve {
  int32_t curve_type; /* 83 to 98, 0 when undefined */
  int32_t degree;
  int32_t span_steps;    /* parameter steps per knot span of the non-uniform makers */
  double step;           /* parameter increment of the uniform makers */
  double basis[16];      /* 4 by 4, row-major */
  list_hdr *weights;     /* rnumber */
  list_hdr *knots;       /* rnumber */
  list_hdr *ctrl_pnts;   /* pnt_2d, pnt_3d, poly_2d or poly_3d */
  list_hdr *curve_pnts;  /* samples: poly_2d or poly_3d */
  list_hdr *curve_stats; /* one curve_stats_2d or curve_stats_3d per sample */
} curve;

/* Eight words of a host's own (0, 0, 0, 1, 1, 0, 1, 0 at creation) and two blocks that kx_purge_curv frees. */
typedef struct curv {
  int32_t words[8];
  void *pointers[2];
} curv;

/* ---- solids ---- */

/* Which record hangs from a solid. 4 and 14 are a host's own: the library neither copies nor frees what hangs there. */
enum {
  KX_SOLID_SPHERE = 1,
  KX_SOLID_CYLINDER = 2,
  KX_SOLID_ELLIPSOID = 3,
  KX_SOLID_BLOCK = 5,
  KX_SOLID_PRISM = 6,
  KX_SOLID_CONE = 7,
  KX_SOLID_HCYLINDER = 8,
  KX_SOLID_HYPERBOLOID = 9,
  KX_SOLID_HYPERBOLOID1S = 10,
  KX_SOLID_PARABOLOID = 11,
  KX_SOLID_PYRAMID = 12,
  KX_SOLID_TORUS = 13,
  KX_SOLID_BODYREV = 15,
  KX_SOLID_EXTBODY = 16,
  KX_SOLID_TETRAHEDRON = 17,
  KX_SOLID_HEXAHEDRON = 18,
  KX_SOLID_OCTAHEDRON = 19,
  KX_SOLID_DODECAHEDRON = 20,
  KX_SOLID_ICOSAHEDRON = 21,
  KX_SOLID_HYPERBOLOID2S = 22
};

/* The most vertices of a body that the library builds, and the most of a ring or cap. */
enum { KX_SOLID_VERTICES_MOST = 4000000 };

/* A closed body: numbered vertices, faces that name them by number, and the record of the primitive it came from. */
typedef struct solid {
  int32_t solid_type; /* 0 when unset */
  int32_t face_count, vertex_count;
  double xmin, ymin, zmin, xmax, ymax, zmax;
  list_hdr *face_list;   /* polyface_3d */
  list_hdr *vertex_list; /* poly_3d */
  void *solid_data;
} solid;

/* A face: its ring of vertex numbers and its normal.
   The words from vertex_numbers to face_value_2 and those of ring_room are one row of slots; the two pointers between
   are none. A ring of at most four vertices fills vertex_numbers and, with an attribute for each of its edges, from a
   vertex to the next, vertex_attributes. A longer ring runs on: its number i is in slot i, over the attributes and the
   words after them, up to KX_RING_MOST numbers. The fifth and later numbers may also, or only, hang from more_vertices,
   an int32_t each. */
typedef struct polyface_3d {
  int32_t vertex_count;
  int32_t face_number;
  vector_3d normal;
  int32_t vertex_numbers[4];
  int32_t vertex_attributes[4];
  int32_t extra_words[8];
  int32_t face_value_1, face_value_2;
  list_hdr *more_vertices; /* inumber */
  list_hdr *face_points;   /* a host's own points */
  int32_t ring_room[12];
} polyface_3d;

/* The longest ring that fits a face's own slots. */
enum { KX_RING_MOST = 26 };

/* A parametric patch: bicubic coefficients, control net, the evaluated mesh and its faces. */
typedef struct surface {
  int32_t surface_type; /* 300 to 315, 0 when undefined */
  int32_t surface_flags;
  pnt_3d min_pnt, max_pnt;
  double coef_x[4][4], coef_y[4][4], coef_z[4][4];
  double step_u, step_v;
  int32_t steps_v, steps_u; /* in this order */
  list_hdr *control_points;
  list_hdr *vertices; /* faces name them by position */
  list_hdr *faces;    /* polyface_3d */
  list_hdr *extra_list_1, *extra_list_2, *extra_list_3;
} surface;

/* A vertex of a host's picture; the list's data are the host's. */
typedef struct vertex_pnt {
  pnt_3d pnts[3];
  int32_t value;
  list_hdr *items;
} vertex_pnt;

typedef struct picture_label {
  int32_t value;
  char text[128];
  char name[32];
  int32_t words[7];
} picture_label;

/* Room for a host's picture. The library creates, clears and frees it; what the fields mean is the host's business. */
typedef struct picture_area {
  int32_t group_count;
  int32_t words[5];
  void *work_buffer_1, *work_buffer_2;
  int32_t more_words[2];
  char title[20];
  list_hdr items;
  list_hdr **groups;
  list_hdr *vertex_pnts; /* vertex_pnt */
  list_hdr *polyfaces;   /* polyface_3d */
  pnt_2d area_min, area_max;
  pnt_3d triples[2];
  int32_t slots[256][3];
  picture_label labels[100];
  void *extra_block_1, *extra_block_2;
} picture_area;

/* ---- primitives ---- */

/* What a primitive was built from. The body stands about the z axis at its centre and is then turned so that z points
   along (axis_x, axis_y, axis_z), which is (0, 0, 1) at creation. Diameters and sizes along x, y and z are those before
   the turn. sectors divide a circle about the axis, stacks the height. host_word is a host's own: no builder sets it.
 */

typedef struct sphere {
  pnt_3d center;
  double radius;
  int32_t sectors, stacks;
} sphere;

/* Also that of a dome, whose diameters along x and y are those of its ball while half of that along z is the dome's
   height, and of a cup, whose diameter along y is that of the hollow. */
typedef struct ellipsoid {
  int32_t host_word;
  pnt_3d center;
  double diameter_x, diameter_y, diameter_z;
  int32_t sectors, stacks;
  double axis_x, axis_y, axis_z;
} ellipsoid;

typedef struct block {
  pnt_3d center;
  double size_x, size_y, size_z;
  double axis_x, axis_y, axis_z;
} block;

/* The base polygon is inscribed in the ellipse of the diameters; the top one is moved against it by the shifts. */
typedef struct prism {
  pnt_3d center;
  double diameter_x, diameter_y, height;
  double shift_x, shift_y;
  int32_t sectors;
  double axis_x, axis_y, axis_z;
} prism;

/* Truncated unless a diameter is 0. */
typedef struct cone {
  int32_t host_word;
  pnt_3d center;
  double bottom_diameter, top_diameter, height;
  int32_t sectors;
  double axis_x, axis_y, axis_z;
} cone;

typedef struct cylinder {
  int32_t host_word;
  pnt_3d center;
  double diameter_x, diameter_y, height;
  int32_t sectors;
  double axis_x, axis_y, axis_z;
} cylinder;

/* A hollow cylinder. */
typedef struct hcylinder {
  int32_t host_word;
  pnt_3d center;
  double outer_x, outer_y, inner_x, inner_y, height;
  int32_t sectors;
  double axis_x, axis_y, axis_z;
} hcylinder;

/* Its diameters are twice the semi-axes; bottom and top are the heights above the centre that cut it. */
typedef struct hyperboloid {
  int32_t host_word;
  pnt_3d center;
  double diameter_x, diameter_y, diameter_z;
  double bottom, top;
  int32_t sectors, stacks;
  double axis_x, axis_y, axis_z;
} hyperboloid;

/* The diameters are those of its rim. */
typedef struct paraboloid {
  pnt_3d center;
  double diameter_x, diameter_y, height;
  int32_t sectors, stacks;
  double axis_x, axis_y, axis_z;
} paraboloid;

typedef struct pyramid {
  pnt_3d center;
  double size_x, size_y, height;
  double axis_x, axis_y, axis_z;
} pyramid;

/* sectors divide the circle about the axis, tube_sectors the tube. */
typedef struct torus {
  int32_t host_word;
  pnt_3d center;
  double major_radius, minor_radius;
  int32_t sectors, tube_sectors;
  double axis_x, axis_y, axis_z;
} torus;

/* A profile turned about the z axis through the centre by sweep_angle, from start_angle on, in degrees. */
typedef struct bodyrev {
  pnt_3d center;
  list_hdr *profile; /* points */
  double start_angle, sweep_angle;
  int32_t sectors;
  double axis_x, axis_y, axis_z;
} bodyrev;

/* A profile moved along z. Centre and profile stand where those of bodyrev do: kx_purge_bodyrev frees both. */
typedef struct extbody {
  pnt_3d center;
  list_hdr *profile; /* points */
  double height;
  double axis_x, axis_y, axis_z;
} extbody;

/* The five regular polyhedra: one layout. */
typedef struct tetrahedron {
  pnt_3d center;
  double size;
  double axis_x, axis_y, axis_z;
} tetrahedron;

typedef tetrahedron hexahedron;
typedef tetrahedron octahedron;
typedef tetrahedron dodecahedron;
typedef tetrahedron icosahedron;

#pragma pack(pop)

#ifdef __cplusplus
}
#endif

#endif
