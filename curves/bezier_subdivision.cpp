// Cutting a Bezier curve in two at a parameter.
#include <algorithm>

#include "bernstein.hpp"
#include "control_points.hpp"
#include "curve_record.hpp"
#include "kxgeom/curves.h"
#include "pending_list.hpp"

namespace {

using kx::plane;
using kx::space;

template <class D>
bool add_vertices(kx::pending_list &list, const typename D::vector *q, std::int32_t degree) {
  for (std::int32_t i = 0; i <= degree; ++i) {
    if (!list.add_vertex<D>(q[i])) return false;
  }
  return true;
}

template <class D>
std::int32_t subdivide(const curve *c, double t, curve *first_part, curve *second_part) {
  if (c == nullptr || first_part == nullptr || second_part == nullptr) return 40;
  if (c->curve_type != kx::curve_codes<D>::bezier || !first_part->ctrl_pnts || !second_part->ctrl_pnts) return 40;
  const std::int32_t degree = c->degree;
  if (degree < 0 || degree > kx::max_bezier_degree) return 40;
  typename D::vector first[kx::max_bezier_degree + 1], second[kx::max_bezier_degree + 1];
  if (!kx::read_control_points<D>(c->ctrl_pnts, degree + 1, second)) return 40;

  // The first part runs backwards on purpose: both parts begin at the point of the cut, where hosts join them.
  std::reverse_copy(second, second + degree + 1, first);
  kx::cut(first, degree, 1.0 - t, t);
  kx::cut(second, degree, t, 1.0 - t);
  kx::pending_list backwards, forwards;
  if (!add_vertices<D>(forwards, second, degree) || !add_vertices<D>(backwards, first, degree)) return 80;
  forwards.move_behind(*second_part->ctrl_pnts);
  backwards.move_before(*first_part->ctrl_pnts);
  return 0;
}

}  // namespace

/* ---- bezier subdivision ---- */

std::int32_t KX_CALL kx_sub_bezier_curve(const curve *c, double t, curve *first_part, curve *second_part) {
  if (c == nullptr || first_part == nullptr || second_part == nullptr) return -1;
  const std::int32_t tag = kx::datatype(c->ctrl_pnts);
  if (!kx::is_point(tag)) return -1;
  return kx::is_plane_point(tag) ? kx_sub_bezier_curve2d(c, t, first_part, second_part)
                                 : kx_sub_bezier_curve3d(c, t, first_part, second_part);
}

std::int32_t KX_CALL kx_sub_bezier_curve2d(const curve *c, double t, curve *first_part, curve *second_part) {
  return subdivide<plane>(c, t, first_part, second_part);
}

std::int32_t KX_CALL kx_sub_bezier_curve3d(const curve *c, double t, curve *first_part, curve *second_part) {
  return subdivide<space>(c, t, first_part, second_part);
}
