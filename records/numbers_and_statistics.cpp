// Numbers, matrices of the matrix store and curve statistics as records.
#include "dimension.hpp"
#include "kxgeom/records.h"
#include "output.hpp"
#include "runtime/memory.hpp"

using kx::put;

namespace {

template <class Stats, class Vector>
void get_stats(double *t, Vector *tangent, Vector *second, Vector *normal, const Stats *rec) {
  if (rec == nullptr) return;
  put(t, rec->t);
  put(tangent, rec->tangent);
  put(second, rec->second);
  put(normal, rec->normal);
}

}  // namespace

rnumber *KX_CALL kx_create_rnumber(void) { return kx::create_rnumber(); }

void KX_CALL kx_set_rnumber(double value, rnumber *rec) {
  if (rec) *rec = {value};
}

void KX_CALL kx_get_rnumber(double *value, const rnumber *rec) {
  if (rec == nullptr) return;
  put(value, rec->value);
}

inumber *KX_CALL kx_create_inumber(void) { return kx::create_inumber(); }

void KX_CALL kx_set_inumber(std::int32_t value, inumber *rec) {
  if (rec) *rec = {value};
}

void KX_CALL kx_get_inumber(std::int32_t *value, const inumber *rec) {
  if (rec == nullptr) return;
  put(value, rec->value);
}

matrixrec2d *KX_CALL kx_create_matrixrec2d(void) { return kx::create<matrixrec2d>("kx_create_matrixrec2d"); }

matrixrec3d *KX_CALL kx_create_matrixrec3d(void) { return kx::create<matrixrec3d>("kx_create_matrixrec3d"); }

curve_stats_2d *KX_CALL kx_create_curve_stats_2d(void) { return kx::create<curve_stats_2d>(kx::plane::stats_location); }

void KX_CALL kx_get_curve_stats_2d(double *t, vector_2d *tangent, vector_2d *second, vector_2d *normal,
                                   const curve_stats_2d *rec) {
  get_stats(t, tangent, second, normal, rec);
}

curve_stats_3d *KX_CALL kx_create_curve_stats_3d(void) { return kx::create<curve_stats_3d>(kx::space::stats_location); }

void KX_CALL kx_get_curve_stats_3d(double *t, vector_3d *tangent, vector_3d *second, vector_3d *normal,
                                   const curve_stats_3d *rec) {
  get_stats(t, tangent, second, normal, rec);
}
