// Defining the uniform cubic curves: type, basis matrix and control points.
#include <initializer_list>

#include "kxgeom/curves.h"
#include "uniform_definers.hpp"

namespace {

using kx::curve_codes;
using kx::plane;
using kx::space;

// One uniform kind: its code in each dimension, its basis as rows and a factor, and how it leaves the caller's header.
struct uniform_kind {
  std::int32_t plane_code, space_code;
  double rows[16];
  double factor;
  kx::detached header;
};

constexpr uniform_kind bspline = {curve_codes<plane>::bspline,
                                  curve_codes<space>::bspline,
                                  {-1, 3, -3, 1, 3, -6, 3, 0, -3, 0, 3, 0, 1, 4, 1, 0},
                                  0.16666666666666666,
                                  kx::detached::is_zero};
constexpr uniform_kind bezier = {curve_codes<plane>::bezier,
                                 curve_codes<space>::bezier,
                                 {-1, 3, -3, 1, 3, -6, 3, 0, -3, 3, 0, 0, 1, 0, 0, 0},
                                 1.0,
                                 kx::detached::keeps_count};
constexpr uniform_kind catrom = {curve_codes<plane>::catrom,
                                 curve_codes<space>::catrom,
                                 {-1, 3, -3, 1, 2, -5, 4, -1, -1, 0, 1, 0, 0, 2, 0, 0},
                                 0.5,
                                 kx::detached::keeps_count};

std::int32_t bezier_degree(std::int32_t points) { return points < 1 ? 0 : points > 31 ? 30 : points - 1; }

std::int32_t define(const uniform_kind &kind, std::int32_t code, list_hdr *ctrl, curve *c) {
  const std::int32_t degree = bezier_degree(kx::item_count(ctrl));
  double basis[16];
  for (int i = 0; i < 16; ++i) basis[i] = kind.rows[i] * kind.factor;
  const std::int32_t answer = kx::define_uniform(ctrl, c, code, basis, kind.header);
  if (answer == 0 && &kind == &bezier) c->degree = degree;
  return answer;
}

std::int32_t define_plane(const uniform_kind &kind, list_hdr *ctrl, curve *c) {
  return define(kind, kind.plane_code, ctrl, c);
}

curve *define_space(const uniform_kind &kind, list_hdr *ctrl) {
  curve *c = ctrl ? kx_create_curve() : nullptr;
  if (c) define(kind, kind.space_code, ctrl, c);
  return c;
}

curve *dispatch(const uniform_kind &kind, list_hdr *ctrl) {
  return kx::dispatch_uniform(ctrl, [&kind](auto dimension, list_hdr *points, curve *c) {
    constexpr bool in_plane = std::is_same_v<decltype(dimension), plane>;
    return define(kind, in_plane ? kind.plane_code : kind.space_code, points, c);
  });
}

}  // namespace

/* ---- uniform definers ---- */

curve *KX_CALL kx_def_ucurve(list_hdr *ctrl, std::int32_t curve_type) {
  for (const uniform_kind *kind : {&bspline, &bezier, &catrom}) {
    if (curve_type == kind->plane_code || curve_type == kind->space_code) return dispatch(*kind, ctrl);
  }
  return nullptr;
}

curve *KX_CALL kx_def_ubspl_curve(list_hdr *ctrl) { return dispatch(bspline, ctrl); }

curve *KX_CALL kx_def_ubezier_curve(list_hdr *ctrl) { return dispatch(bezier, ctrl); }

curve *KX_CALL kx_def_ucatrom_curve(list_hdr *ctrl) { return dispatch(catrom, ctrl); }

std::int32_t KX_CALL kx_def_ubspl_curve2d(list_hdr *ctrl, curve *c) { return define_plane(bspline, ctrl, c); }

std::int32_t KX_CALL kx_def_ubezier_curve2d(list_hdr *ctrl, curve *c) { return define_plane(bezier, ctrl, c); }

std::int32_t KX_CALL kx_def_ucatrom_curve2d(list_hdr *ctrl, curve *c) { return define_plane(catrom, ctrl, c); }

curve *KX_CALL kx_def_ubspl_curve3d(list_hdr *ctrl) { return define_space(bspline, ctrl); }

curve *KX_CALL kx_def_ubezier_curve3d(list_hdr *ctrl) { return define_space(bezier, ctrl); }

curve *KX_CALL kx_def_ucatrom_curve3d(list_hdr *ctrl) { return define_space(catrom, ctrl); }
