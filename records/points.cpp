// Point records.
#include "kxgeom/records.h"
#include "list/point_kind.hpp"
#include "output.hpp"
#include "runtime/memory.hpp"
#include "runtime/tolerance.hpp"

using kx::put;

namespace {

double settled(double coordinate) { return kx::near_zero(coordinate) ? 0.0 : coordinate; }

}  // namespace

pnt_2d *KX_CALL kx_create_pnt_2d(void) { return kx::create_pnt_2d(); }

void KX_CALL kx_set_pnt_2d(double x, double y, pnt_2d *rec) {
  if (rec) *rec = {x, y};
}

void KX_CALL kx_get_pnt_2d(double *x, double *y, const pnt_2d *rec) {
  if (rec == nullptr) return;
  put(x, rec->x);
  put(y, rec->y);
}

// The purge functions of all records that own nothing are names of this one.
void KX_CALL kx_purge_pnt_2d(pnt_2d *rec) { kx::release(rec); }

pnt_3d *KX_CALL kx_create_pnt_3d(void) { return kx::create_pnt_3d(); }

void KX_CALL kx_set_pnt_3d(double x, double y, double z, pnt_3d *rec) {
  if (rec) *rec = {x, y, z};
}

void KX_CALL kx_get_pnt_3d(double *x, double *y, double *z, const pnt_3d *rec) {
  if (rec == nullptr) return;
  put(x, rec->x);
  put(y, rec->y);
  put(z, rec->z);
}

poly_2d *KX_CALL kx_create_poly_2d(void) { return kx::create_poly_2d(); }

void KX_CALL kx_set_poly_2d(double x, double y, std::int32_t seqnr, poly_2d *rec) {
  if (rec) *rec = {seqnr, x, y};
}

void KX_CALL kx_get_poly_2d(std::int32_t *seqnr, double *x, double *y, const poly_2d *rec) {
  if (rec == nullptr) return;
  put(seqnr, rec->seqnr);
  put(x, rec->x);
  put(y, rec->y);
}

poly_3d *KX_CALL kx_create_poly_3d(void) { return kx::create_poly_3d(); }

void KX_CALL kx_set_poly_3d(double x, double y, double z, std::int32_t seqnr, poly_3d *rec) {
  if (rec) *rec = {seqnr, x, y, z};
}

void KX_CALL kx_get_poly_3d(std::int32_t *seqnr, double *x, double *y, double *z, const poly_3d *rec) {
  if (rec == nullptr) return;
  put(seqnr, rec->seqnr);
  put(x, rec->x);
  put(y, rec->y);
  put(z, rec->z);
}

void KX_CALL kx_set_zeropnt_2d(pnt_2d *pnt) {
  if (pnt == nullptr) return;
  pnt->x = settled(pnt->x);
  pnt->y = settled(pnt->y);
}

void KX_CALL kx_set_zeropnt_3d(pnt_3d *pnt) {
  if (pnt == nullptr) return;
  pnt->x = settled(pnt->x);
  pnt->y = settled(pnt->y);
  pnt->z = settled(pnt->z);
}
