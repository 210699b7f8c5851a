// Directions as numbers and angles, and the vectors of the plane.
#include <cmath>

#include "chords.hpp"
#include "kxgeom/geometry.h"
#include "line.hpp"
#include "records/direction.hpp"
#include "status.hpp"

namespace {

// Every field fresh: what the vector functions of the plane write.
vector_2d complete(kx::vec2 v) { return {kx::direction_degrees({0.0, 0.0}, v), kx::length(v), v.x, v.y}; }

}  // namespace

double KX_CALL kx_arcangle(int32_t mode, const pnt_2d *from, const pnt_2d *to) {
  if (!from || !to || (mode != 0 && mode != 1)) return 0.0;
  const double pseudo = kx::pseudo_angle(kx::value(*from), kx::value(*to));
  return mode == 0 ? pseudo : kx_angleparmtan(0, pseudo);
}

double KX_CALL kx_angleparmtan(int32_t radians, double pseudo) {
  return radians ? kx::angle_of_pseudo(pseudo, kx::half_pi, 1.0) : kx::degrees_of_pseudo(pseudo);
}

int32_t KX_CALL kx_pntangledist(const pnt_2d *from, double angle_deg, double distance, pnt_2d *point) {
  if (!from || !point) return kx::wrong_argument;
  if (!std::isfinite(angle_deg) || !std::isfinite(distance)) return kx::wrong_value;
  const kx::vec2 p = kx::value(*from) + distance * kx::direction_at(angle_deg);
  *point = {p.x, p.y};
  return kx::done;
}

int32_t KX_CALL kx_pntangledist_3d(const pnt_3d *from, double theta_deg, double phi_deg, double distance,
                                   pnt_3d *point) {
  if (!from || !point) return kx::wrong_argument;
  if (!std::isfinite(theta_deg) || !std::isfinite(phi_deg) || !std::isfinite(distance)) return kx::wrong_value;
  const kx::vec2 azimuth = kx::direction_at(theta_deg), polar = kx::direction_at(phi_deg);
  const double level = distance * polar.y;
  *point = {from->x + level * azimuth.x, from->y + level * azimuth.y, from->z + distance * polar.x};
  return kx::done;
}

int32_t KX_CALL kx_line_to_vector_2d(pnt_2d from, pnt_2d to, vector_2d *vector) {
  if (!vector) return kx::wrong_argument;
  const kx::vec2 d = kx::value(to) - kx::value(from);
  if (kx::vanishes(d)) return kx::coincident;
  *vector = complete(d);
  return kx::done;
}

int32_t KX_CALL kx_vector_to_line_2d(const pnt_2d *from, const vector_2d *vector, line_2d *segment) {
  if (!from || !vector || !segment) return kx::wrong_argument;
  *segment = {from->x, from->y, from->x + vector->i, from->y + vector->j};
  return kx::done;
}

int32_t KX_CALL kx_point_on_vector(const pnt_2d *from, const vector_2d *vector, double t, pnt_2d *point) {
  if (!from || !vector || !point) return kx::wrong_argument;
  *point = {from->x + t * vector->i, from->y + t * vector->j};
  return kx::done;
}

int32_t KX_CALL kx_unitvector2d(const vector_2d *vector, vector_2d *unit) {
  if (!vector || !unit) return kx::wrong_argument;
  const kx::vec2 v{vector->i, vector->j};
  if (kx::near_zero(kx::length(v))) return kx::no_direction;
  *unit = complete(kx::unit(v));
  unit->length = 1.0;
  return kx::done;
}

int32_t KX_CALL kx_normalvector2d(const vector_2d *vector, vector_2d *normal) {
  if (!vector || !normal) return kx::wrong_argument;
  *normal = complete(kx::normal({vector->i, vector->j}));
  return kx::done;
}
