// One point in rectangular, cylindrical, spherical and direction coordinates, from each to each.
#include "transform/coordinates.hpp"

#include "geometry/status.hpp"
#include "kxgeom/runtime.h"
#include "kxgeom/transform.h"
#include "runtime/tolerance.hpp"

namespace {

constexpr int32_t bad_theta = 59, bad_phi = 60;

// Within 0 and the greatest angle, bounds included, with the tolerance of every comparison; NaN is not.
bool in_range(double angle, double greatest) {
  return kx::greater_equal(angle, 0.0) && kx::less_equal(angle, greatest);
}

[[gnu::cold]] int32_t reported(const char *code, int32_t number, const char *location) {
  kx_display_msg(code, number, location);
  return number;
}

// Done, or the number of the message that the angles call for.
int32_t check(const sphercoord &s, const char *location) {
  if (!in_range(s.theta, kx::two_pi)) return reported("SPHRTHETA", bad_theta, location);
  if (!in_range(s.phi, kx::pi)) return reported("SPHRPHI", bad_phi, location);
  return kx::done;
}

template <class From, class To, class Convert>
int32_t put(const From *from, To *to, Convert convert) {
  if (!from || !to) return kx::wrong_argument;
  *to = convert(*from);
  return kx::done;
}

template <class To, class Convert>
int32_t put_checked(const sphercoord *from, To *to, const char *location, Convert convert) {
  if (!from || !to) return kx::wrong_argument;
  const int32_t status = check(*from, location);
  return status == kx::done ? put(from, to, convert) : status;
}

}  // namespace

int32_t KX_CALL kx_cyltopolar(const cylcoord *cyl, polarcoord *polar) {
  return put(cyl, polar, [](const cylcoord &c) { return kx::polar(kx::rectangular(c)); });
}

int32_t KX_CALL kx_cyltorect(const cylcoord *cyl, pnt_3d *rect) {
  return put(cyl, rect, [](const cylcoord &c) { return kx::rectangular(c); });
}

int32_t KX_CALL kx_cyltospher(const cylcoord *cyl, sphercoord *spher) {
  return put(cyl, spher, [](const cylcoord &c) { return kx::spherical(c); });
}

int32_t KX_CALL kx_polartocyl(const polarcoord *polar, cylcoord *cyl) {
  return put(polar, cyl, [](const polarcoord &p) { return kx::cylindrical(kx::rectangular(p)); });
}

int32_t KX_CALL kx_polartorect(const polarcoord *polar, pnt_3d *rect) {
  return put(polar, rect, [](const polarcoord &p) { return kx::rectangular(p); });
}

int32_t KX_CALL kx_polartospher(const polarcoord *polar, sphercoord *spher) {
  return put(polar, spher, [](const polarcoord &p) { return kx::spherical(kx::rectangular(p)); });
}

int32_t KX_CALL kx_recttocyl(const pnt_3d *rect, cylcoord *cyl) {
  return put(rect, cyl, [](const pnt_3d &p) { return kx::cylindrical(p); });
}

int32_t KX_CALL kx_recttopolar(const pnt_3d *rect, polarcoord *polar) {
  return put(rect, polar, [](const pnt_3d &p) { return kx::polar(p); });
}

int32_t KX_CALL kx_recttospher(const pnt_3d *rect, sphercoord *spher) {
  return put(rect, spher, [](const pnt_3d &p) { return kx::spherical(p); });
}

int32_t KX_CALL kx_sphertocyl(const sphercoord *spher, cylcoord *cyl) {
  return put_checked(spher, cyl, "kx_sphertocyl", [](const sphercoord &s) { return kx::cylindrical(s); });
}

// The location is that of kx_sphertocyl on purpose: it is the text that hosts have always shown.
int32_t KX_CALL kx_sphertopolar(const sphercoord *spher, polarcoord *polar) {
  return put_checked(spher, polar, "kx_sphertocyl", [](const sphercoord &s) { return kx::polar(kx::rectangular(s)); });
}

int32_t KX_CALL kx_sphertorect(const sphercoord *spher, pnt_3d *rect) {
  return put_checked(spher, rect, "kx_sphertorect", [](const sphercoord &s) { return kx::rectangular(s); });
}
