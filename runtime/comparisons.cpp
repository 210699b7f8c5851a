// Comparisons with a tolerance: the caller's own, then the library's.
#include <cmath>

#include "kxgeom/runtime.h"
#include "tolerance.hpp"

// Each inclusive test is the negation of the strict one, so that a NaN passes it; hosts rely on the pairs being
// opposites.
int32_t KX_CALL kx_parmzero(double a, double t) { return !(std::fabs(a) > t); }

int32_t KX_CALL kx_parmnotzero(double a, double t) { return std::fabs(a) > t; }

int32_t KX_CALL kx_parmltzero(double a, double t) { return a < -t; }

int32_t KX_CALL kx_parmlezero(double a, double t) { return !(a > t); }

int32_t KX_CALL kx_parmgtzero(double a, double t) { return a > t; }

int32_t KX_CALL kx_parmgezero(double a, double t) { return !(a < -t); }

int32_t KX_CALL kx_parmeq(double a, double b, double t) { return !(std::fabs(a - b) > kx::allowance(b, t)); }

int32_t KX_CALL kx_parmne(double a, double b, double t) { return std::fabs(a - b) > kx::allowance(b, t); }

int32_t KX_CALL kx_parmlt(double a, double b, double t) { return a < b - kx::allowance(b, t); }

int32_t KX_CALL kx_parmle(double a, double b, double t) { return !(a > b + kx::allowance(b, t)); }

int32_t KX_CALL kx_parmgt(double a, double b, double t) { return a > b + kx::allowance(b, t); }

int32_t KX_CALL kx_parmge(double a, double b, double t) { return !(a < b - kx::allowance(b, t)); }

void KX_CALL kx_settozero(double *value) {
  if (value && kx::near_zero(*value)) *value = 0.0;
}

int32_t KX_CALL kx_samepnt(const pnt_2d *p, const pnt_2d *q) {
  return p && q && kx::near_zero(p->x - q->x) && kx::near_zero(p->y - q->y);
}

int32_t KX_CALL kx_samepnt3d(const pnt_3d *p, const pnt_3d *q) {
  return p && q && kx::near_zero(p->x - q->x) && kx::near_zero(p->y - q->y) && kx::near_zero(p->z - q->z);
}

int32_t KX_CALL kx_smallerpnt(const pnt_2d *p, const pnt_2d *q) {
  if (!p || !q) return 0;
  return kx::equal(p->x, q->x) ? kx::less_equal(p->y, q->y) : kx::less(p->x, q->x);
}

int32_t KX_CALL kx_between(double x, double a, double b) {
  return (kx::greater_equal(x, a) && kx::less_equal(x, b)) || (kx::greater_equal(x, b) && kx::less_equal(x, a));
}

int32_t KX_CALL kx_inbetween(const line_2d *line, const pnt_2d *p) {
  if (!line || !p) return 0;
  return kx::greater_equal(p->x, kx::min(line->x1, line->x2)) && kx::less_equal(p->x, kx::max(line->x1, line->x2)) &&
         kx::greater_equal(p->y, kx::min(line->y1, line->y2)) && kx::less_equal(p->y, kx::max(line->y1, line->y2));
}

double KX_CALL kx_rmax(double a, double b) { return kx::max(a, b); }

double KX_CALL kx_rmin(double a, double b) { return kx::min(a, b); }
