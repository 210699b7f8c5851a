// Defining a curve of one parameter interval per segment: type, basis and control points.
#pragma once

#include "curve_record.hpp"
#include "kxgeom/curves.h"

namespace kx {

// 0; 40 when either is null; 80 when the curve lacks a control list and none can be created; nothing is changed then.
inline std::int32_t define_uniform(list_hdr *ctrl, curve *c, std::int32_t code, const double (&basis)[16],
                                   detached header) {
  if (ctrl == nullptr || c == nullptr) return 40;
  c->ctrl_pnts = existing_or_new(c->ctrl_pnts);
  if (c->ctrl_pnts == nullptr) return 80;
  c->curve_type = code;
  std::memcpy(c->basis, basis, sizeof c->basis);
  replace_items(*c->ctrl_pnts, take_items(ctrl, header));
  return 0;
}

// A new curve of plane control points, from define(plane or space, list, curve), which answers 0 when it is defined.
template <class Define>
curve *dispatch_uniform(list_hdr *ctrl, Define define) {
  const std::int32_t tag = datatype(ctrl);
  curve *c = is_point(tag) ? kx_create_curve() : nullptr;
  if (c == nullptr) return nullptr;
  // Space curves come from the space definers alone: here the points are taken over and freed, on purpose, as hosts
  // that still call this count on getting none back.
  if (is_plane_point(tag) ? define(plane{}, ctrl, c) == 0 : (define(space{}, ctrl, c), false)) return c;
  dispose(c);
  return nullptr;
}

}  // namespace kx
