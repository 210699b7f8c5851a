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

#pragma pack(pop)

#ifdef __cplusplus
}
#endif

#endif
