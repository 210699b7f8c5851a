// Rectangles and circles: a point inside, rectangles compared, joined and intersected.
#include <cmath>

#include "geometry/line.hpp"
#include "kxgeom/polygon.h"
#include "runtime/tolerance.hpp"

namespace {

kx::vec2 corner(const rect_2d &r) { return {r.x1, r.y1}; }
kx::vec2 opposite(const rect_2d &r) { return {r.x2, r.y2}; }

bool is_point(const rect_2d &r) { return kx::same_point(corner(r), opposite(r)); }

// The lesser and the greater of two values; of two that are equal within tolerance, the second rectangle's.
double lesser(double first, double second) { return second - kx::allowance(second) <= first ? second : first; }
double greater(double first, double second) { return second + kx::allowance(second) >= first ? second : first; }

}  // namespace

int32_t KX_CALL kx_incircle(const circle_2d *circle, const pnt_2d *p) {
  if (!circle || !p || kx::near_zero(circle->r)) return 0;
  const kx::vec2 d = kx::value(*p) - kx::vec2{circle->x, circle->y};
  return kx::vanishes(d) || kx::less_equal(kx::length(d), circle->r);
}

int32_t KX_CALL kx_inrectangle(const rect_2d *rectangle, const pnt_2d *p) {
  if (!rectangle || !p) return 0;
  if (is_point(*rectangle)) return kx::same_point(kx::value(*p), corner(*rectangle));
  return kx::in_box(corner(*rectangle), opposite(*rectangle), kx::value(*p));
}

// The corners are taken as they stand, on purpose: a rectangle given the other way round has no inside.
int32_t KX_CALL kx_in_rectangle(const rect_2d *rectangle, const pnt_2d *p) {
  if (!rectangle || !p) return 0;
  if (is_point(*rectangle)) return kx::same_point(kx::value(*p), corner(*rectangle));
  return kx::less_equal(p->x, rectangle->x2) && kx::less_equal(p->y, rectangle->y2) &&
         kx::greater_equal(p->x, rectangle->x1) && kx::greater_equal(p->y, rectangle->y1);
}

int32_t KX_CALL kx_rect_equal_2d(const rect_2d *first, const rect_2d *second) {
  return first && second && kx::equal(first->x1, second->x1) && kx::equal(first->y1, second->y1) &&
         kx::equal(first->x2, second->x2) && kx::equal(first->y2, second->y2);
}

int32_t KX_CALL kx_rect_union_2d(const rect_2d *first, const rect_2d *second, rect_2d *both) {
  if (!first || !second || !both) return 0;
  *both = {lesser(first->x1, second->x1), lesser(first->y1, second->y1), greater(first->x2, second->x2),
           greater(first->y2, second->y2)};
  return 1;
}

int32_t KX_CALL kx_rect_intersect_2d(const rect_2d *first, const rect_2d *second, rect_2d *common) {
  if (!first || !second || !common) return 0;
  const rect_2d r{greater(first->x1, second->x1), greater(first->y1, second->y1), lesser(first->x2, second->x2),
                  lesser(first->y2, second->y2)};
  if (!kx::less_equal(r.x1, r.x2) || !kx::less_equal(r.y1, r.y2)) return 0;
  *common = r;
  return 1;
}
