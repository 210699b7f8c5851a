// Quadrants and octants of directions and angles, and the pseudo-angle built on them.
#include <cmath>

#include "kxgeom/runtime.h"
#include "quarter_turn.hpp"
#include "tolerance.hpp"

namespace {

constexpr double turn_deg = 360.0;
constexpr double turn_rad = kx::two_pi;

// The angle less, or plus, whole turns: from 0 up to a turn, both within tolerance. One turn at a time, but for an
// angle so large that this would take long.
double in_one_turn(double angle, double turn) {
  constexpr double far_off = 1e5;
  if (std::fabs(angle) >= far_off) [[unlikely]]
    angle = std::fmod(angle, turn);
  while (angle < -kx::tolerance) angle += turn;
  while (kx::greater_equal(angle, turn)) angle -= turn;
  return angle;
}

// Which of `parts` equal parts of a turn an angle of one turn lies in, from 0.
int part_of_turn(double angle, double turn, int parts) {
  int part = 0;
  while (part + 1 < parts && kx::greater_equal(angle, turn / parts * (part + 1))) ++part;
  return part;
}

int32_t part_of_angle(double angle, double turn, int parts) {
  return std::isfinite(angle) ? part_of_turn(in_one_turn(angle, turn), turn, parts) + 1 : 0;
}

pnt_2d direction(const pnt_2d *from, const pnt_2d &p) { return from ? pnt_2d{p.x - from->x, p.y - from->y} : p; }

}  // namespace

int32_t KX_CALL kx_quadrant(double dx, double dy) { return kx::to_first_quadrant(dx, dy).quadrant; }

int32_t KX_CALL kx_quadrant_deg(double angle) { return part_of_angle(angle, turn_deg, 4); }

int32_t KX_CALL kx_quadrant_rad(double angle) { return part_of_angle(angle, turn_rad, 4); }

int32_t KX_CALL kx_quadrant_pnt(const pnt_2d *from, const pnt_2d *p) {
  if (!p) return 0;
  const pnt_2d d = direction(from, *p);
  return kx_quadrant(d.x, d.y);
}

int32_t KX_CALL kx_octant(double dx, double dy) {
  const kx::turned_back d = kx::to_first_quadrant(dx, dy);
  if (d.quadrant == 0) return 0;
  return 2 * d.quadrant - (d.across > 0.0 && kx::greater_equal(d.across, d.along) ? 0 : 1);
}

int32_t KX_CALL kx_octant_deg(double angle) { return part_of_angle(angle, turn_deg, 8); }

int32_t KX_CALL kx_octant_rad(double angle) { return part_of_angle(angle, turn_rad, 8); }

int32_t KX_CALL kx_octant_pnt(const pnt_2d *from, const pnt_2d *p) {
  if (!p) return 0;
  const pnt_2d d = direction(from, *p);
  return kx_octant(d.x, d.y);
}

double KX_CALL kx_parmtanhangle(int32_t radians, double angle) {
  if (!std::isfinite(angle)) return 0.0;
  const double turn = radians ? turn_rad : turn_deg;
  angle = in_one_turn(angle, turn);
  const int quarters = part_of_turn(angle, turn, 4);
  const double axis = turn / 4 * quarters;
  if (kx::less_equal(angle, axis)) return quarters;
  const double rest = angle - axis;
  return quarters + std::tan((radians ? rest : rest * kx::radians_per_degree) / 2.0);
}
