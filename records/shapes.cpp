// Rectangles, triangles, circles and conics as records.
#include "kxgeom/records.h"
#include "output.hpp"
#include "runtime/memory.hpp"
#include "runtime/tolerance.hpp"

using kx::put;

rect_2d *KX_CALL kx_create_rect_2d(void) { return kx::create<rect_2d>("kx_create_rect_2d"); }

rect_3d *KX_CALL kx_create_rect_3d(void) { return kx::create<rect_3d>("kx_create_rect_3d"); }

triag_2d *KX_CALL kx_create_triag_2d(void) { return kx::create<triag_2d>("kx_create_triag_2d"); }

triangle *KX_CALL kx_create_triangle(void) { return kx::create<triangle>("kx_create_triangle"); }

circle_2d *KX_CALL kx_create_circle_2d(void) { return kx::create<circle_2d>("kx_create_circle_2d"); }

ellipse_2d *KX_CALL kx_create_ellipse_2d(void) { return kx::create<ellipse_2d>("kx_create_ellipse_2d"); }

void KX_CALL kx_set_ellipse_2d(double x, double y, double a, double b, ellipse_2d *rec) {
  if (rec == nullptr) return;
  rec->x = x;
  rec->y = y;
  const bool in_order = kx::greater_equal(a, b);
  rec->a = in_order ? a : b;
  rec->b = in_order ? b : a;
}

arc_2d *KX_CALL kx_create_arc_2d(void) { return kx::create<arc_2d>("kx_create_arc_2d"); }

void KX_CALL kx_set_arc_2d(double x, double y, double r, std::int32_t mode, double value_1, double value_2,
                           arc_2d *rec) {
  if (rec) *rec = {x, y, r, mode, value_1, value_2};
}

void KX_CALL kx_get_arc_2d(double *x, double *y, double *r, std::int32_t *mode, double *value_1, double *value_2,
                           const arc_2d *rec) {
  if (rec == nullptr) return;
  put(x, rec->x);
  put(y, rec->y);
  put(r, rec->r);
  put(mode, rec->mode);
  put(value_1, rec->value_1);
  put(value_2, rec->value_2);
}

parabola_2d *KX_CALL kx_create_parabola_2d(void) { return kx::create<parabola_2d>("kx_create_parabola_2d"); }

void KX_CALL kx_set_parabola_2d(double x, double y, double p, std::int32_t mode, double value_1, parabola_2d *rec) {
  if (rec) *rec = {x, y, p, mode, value_1};
}

void KX_CALL kx_get_parabola_2d(double *x, double *y, double *p, std::int32_t *mode, double *value_1,
                                const parabola_2d *rec) {
  if (rec == nullptr) return;
  put(x, rec->x);
  put(y, rec->y);
  put(p, rec->p);
  put(mode, rec->mode);
  put(value_1, rec->value_1);
}

hyperbola_2d *KX_CALL kx_create_hyperbola_2d(void) { return kx::create<hyperbola_2d>("kx_create_hyperbola_2d"); }

void KX_CALL kx_set_hyperbola_2d(double x, double y, double a, double b, std::int32_t mode, double value_1,
                                 hyperbola_2d *rec) {
  if (rec) *rec = {x, y, a, b, mode, value_1};
}

void KX_CALL kx_get_hyperbola_2d(double *x, double *y, double *a, double *b, std::int32_t *mode, double *value_1,
                                 const hyperbola_2d *rec) {
  if (rec == nullptr) return;
  put(x, rec->x);
  put(y, rec->y);
  put(a, rec->a);
  put(b, rec->b);
  put(mode, rec->mode);
  put(value_1, rec->value_1);
}

dwg_rec_2d *KX_CALL kx_create_dwg_rec_2d(void) { return kx::create<dwg_rec_2d>("kx_create_dwg_rec_2d"); }

void KX_CALL kx_get_dwgrec_2d(double *x, double *y, std::int32_t *value_1, std::int32_t *value_2,
                              const dwg_rec_2d *rec) {
  if (rec == nullptr) return;
  put(x, rec->x);
  put(y, rec->y);
  put(value_1, rec->value_1);
  put(value_2, rec->value_2);
}
