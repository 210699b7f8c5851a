// What a viewer sees: viewing matrices, perspective, and the window of a drawing on the viewport of a screen.
#include <cmath>

#include "kxgeom/transform.h"
#include "list/items.hpp"
#include "list/point_kind.hpp"
#include "runtime/memory.hpp"
#include "transform/coordinates.hpp"
#include "transform/matrix.hpp"

namespace {

// Whole turns are taken off one by one, as their rounding is part of the matrix; an angle so large that this would take
// long, or never end, is reduced by one remainder. A full turn itself is not reduced.
double within_a_turn(double theta) {
  constexpr double far_off = 1e5;
  if (std::fabs(theta) >= far_off) [[unlikely]]
    theta = std::fmod(theta, kx::two_pi);
  while (kx::greater(theta, kx::two_pi)) theta -= kx::two_pi;
  while (kx::less(theta, 0.0)) theta += kx::two_pi;
  return theta;
}

void move_to_origin(const pnt_3d &eye, double *view) {
  kx::multiply_onto(view, kx::translation<4>({-eye.x, -eye.y, -eye.z}));
}

void reflect(int axis, double *view) {
  kx::matrix<4> e = kx::identity<4>();
  e.m[axis][axis] = -1.0;
  kx::multiply_onto(view, e);
}

// Straight down the z axis, which tells no way up: x and y stay as they are.
void look_down(const pnt_3d &eye, double *view) {
  move_to_origin(eye, view);
  reflect(2, view);
}

// From the side of negative x: the axes are turned until z points away from the eye and y up, then x is mirrored.
void look_by_turning(const pnt_3d &eye, double theta, double phi, double *view) {
  move_to_origin(eye, view);
  kx::multiply_onto(view, kx::rotation<4>(0, 1, kx::turn(-(theta - kx::half_pi) * kx::degrees_per_radian)));
  kx::multiply_onto(view, kx::rotation<4>(1, 2, kx::turn(-(kx::pi - phi) * kx::degrees_per_radian)));
  reflect(0, view);
}

// The same view written down at once, from the distance alone.
kx::matrix<4> looking(double r, double theta, double phi) {
  const double st = std::sin(theta), ct = std::cos(theta), sp = std::sin(phi), cp = std::cos(phi);
  return {{{-st, -cp * ct, -sp * ct, 0.0}, {ct, -cp * st, -sp * st, 0.0}, {0.0, sp, -cp, 0.0}, {0.0, 0.0, r, 1.0}}};
}

kx::matrix<4> view_of(const sphercoord &viewer) {
  const pnt_3d eye = kx::rectangular(viewer);  // without the messages: every angle is a viewer's
  double theta = within_a_turn(viewer.theta);
  const double phi = viewer.phi;
  kx::matrix<4> view = kx::identity<4>();
  if (kx::near_zero(theta)) {
    if (kx::near_zero(phi)) {
      look_down(eye, &view.m[0][0]);
      return view;
    }
    if (kx::equal(phi, kx::pi)) theta = kx::three_half_pi;  // straight up: x to the right, as when looking down
  }
  if (kx::greater(theta, kx::half_pi) && kx::less(theta, kx::three_half_pi)) {
    look_by_turning(eye, theta, phi, &view.m[0][0]);
    return view;
  }
  return looking(viewer.r, theta, phi);
}

}  // namespace

void KX_CALL kx_viewmatrix3d(const sphercoord *viewer, double *matrix) {
  if (viewer && matrix) kx::multiply_onto(matrix, view_of(*viewer));
}

double *KX_CALL kx_perspective(const pnt_3d *p, const pnt_3d *eye, const double *view, double *out) {
  if (!p || !eye || !view || !out) return nullptr;
  const pnt_3d seen = kx::transformed(view, pnt_3d{p->x - eye->x, p->y - eye->y, p->z - eye->z});
  out[0] = seen.x / seen.z;
  out[1] = seen.y / seen.z;
  out[2] = seen.z;
  return out;
}

void KX_CALL kx_windowtransform(const rect_2d *window, const rect_2d *viewport, const pnt_2d *p, pnt_2d *out) {
  if (window && viewport && p && out) *out = kx::window_map(*window, *viewport)(*p);
}

list_hdr *KX_CALL kx_viewplanetrf(list_hdr *points, const rect_2d *viewport, const rect_2d *window) {
  if (!viewport || !window || kx::empty(points)) return nullptr;
  auto *images = kx::create<list_hdr>("ll_create_list");
  if (!images) return nullptr;
  points->current = points->head;
  const kx::window_map map(*window, *viewport);
  for (list_item &item : kx::items(points)) {
    if (!kx::readable_as(item, KX_POLY_2D)) continue;
    poly_2d *copy = kx::create_poly_2d();
    if (!copy) continue;
    const poly_2d from = *static_cast<const poly_2d *>(item.data);
    const pnt_2d image = map({from.x, from.y});
    *copy = {from.seqnr, image.x, image.y};
    if (kx::append(*images, copy, KX_POLY_2D)) continue;
    kx_memerr("kx_viewplanetrf - 1");
    kx::release(copy);
  }
  return images;
}
