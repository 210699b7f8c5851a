// Vector, line and plane records.
#include "kxgeom/records.h"
#include "output.hpp"
#include "runtime/memory.hpp"

using kx::put;

line_2d *KX_CALL kx_create_line_2d(void) { return kx::create<line_2d>("kx_create_line_2d"); }

void KX_CALL kx_set_line_2d(double x1, double y1, double x2, double y2, line_2d *rec) {
  if (rec) *rec = {x1, y1, x2, y2};
}

void KX_CALL kx_get_line_2d(double *x1, double *y1, double *x2, double *y2, const line_2d *rec) {
  if (rec == nullptr) return;
  put(x1, rec->x1);
  put(y1, rec->y1);
  put(x2, rec->x2);
  put(y2, rec->y2);
}

line_3d *KX_CALL kx_create_line_3d(void) { return kx::create<line_3d>("kx_create_line_3d"); }

void KX_CALL kx_set_line_3d(double x1, double y1, double z1, double x2, double y2, double z2, line_3d *rec) {
  if (rec) *rec = {x1, y1, z1, x2, y2, z2};
}

void KX_CALL kx_get_line_3d(double *x1, double *y1, double *z1, double *x2, double *y2, double *z2,
                            const line_3d *rec) {
  if (rec == nullptr) return;
  put(x1, rec->x1);
  put(y1, rec->y1);
  put(z1, rec->z1);
  put(x2, rec->x2);
  put(y2, rec->y2);
  put(z2, rec->z2);
}

ile_2d *KX_CALL kx_create_ile_2d(void) { return kx::create<ile_2d>("kx_create_ile_2d"); }

ple_2d *KX_CALL kx_create_ple_2d(void) { return kx::create<ple_2d>("kx_create_ple_2d"); }

void KX_CALL kx_set_ple(double x0, double dx, double y0, double dy, ple_2d *rec) {
  if (rec) *rec = {x0, y0, dx, dy};
}

ple_3d *KX_CALL kx_create_ple_3d(void) { return kx::create<ple_3d>("kx_create_ple_3d"); }

void KX_CALL kx_set_ples(double x0, double dx, double y0, double dy, double z0, double dz, ple_3d *rec) {
  if (rec) *rec = {x0, y0, z0, dx, dy, dz};
}

planeeq *KX_CALL kx_create_planeeq(void) { return kx::create<planeeq>("kx_create_planeeq"); }

vector_2d *KX_CALL kx_create_vector_2d(void) { return kx::create<vector_2d>("kx_create_vector_2d"); }

void KX_CALL kx_set_vector_2d(double i, double j, double direction, double length, vector_2d *rec) {
  if (rec) *rec = {direction, length, i, j};
}

vector_3d *KX_CALL kx_create_vector_3d(void) { return kx::create<vector_3d>("kx_create_vector_3d"); }

void KX_CALL kx_set_vector_3d(double i, double j, double k, double direction, double length, vector_3d *rec) {
  if (rec) *rec = {direction, length, i, j, k};
}

void KX_CALL kx_get_vector_3d(double *direction, double *length, double *i, double *j, double *k,
                              const vector_3d *rec) {
  if (rec == nullptr) return;
  put(direction, rec->direction);
  put(length, rec->length);
  put(i, rec->i);
  put(j, rec->j);
  put(k, rec->k);
}
