// Lines from points, from one form to the other, normalised, evaluated.
#include <cmath>

#include "kxgeom/geometry.h"
#include "line.hpp"
#include "status.hpp"

namespace {

constexpr double no_slope = 1.7e200;  // stands for the slope that a vertical does not have; hosts test the code instead
constexpr int32_t no_length = 7, vertical = 8;

}  // namespace

// Every mode but 1 asks for the implicit line: no mode is wrong here, unlike in the functions below. Hosts pass any.
int32_t KX_CALL kx_lineequation(int32_t mode, const pnt_2d *p1, const pnt_2d *p2, ile_2d *ile, ple_2d *ple) {
  return mode == 1 ? kx_lineeq_ple(p1, p2, ple) : kx_lineeq_ile(p1, p2, ile);
}

int32_t KX_CALL kx_lineeq_ile(const pnt_2d *p1, const pnt_2d *p2, ile_2d *line) {
  if (!p1 || !p2 || !line) return kx::wrong_argument;
  const kx::vec2 p = kx::value(*p1), q = kx::value(*p2);
  if (kx::same_point(p, q)) return kx::coincident;
  *line = kx::implicit_line(p, q);
  return kx::done;
}

int32_t KX_CALL kx_lineeq_ple(const pnt_2d *p1, const pnt_2d *p2, ple_2d *line) {
  if (!p1 || !p2 || !line) return kx::wrong_argument;
  const kx::vec2 p = kx::value(*p1), q = kx::value(*p2);
  if (kx::same_point(p, q)) return kx::coincident;
  *line = kx::parametric_line(p, q);
  return kx::done;
}

int32_t KX_CALL kx_convlineeq(int32_t mode, ile_2d *ile, ple_2d *ple) {
  if ((mode != 0 && mode != 1) || !ile || !ple) return kx::wrong_argument;
  if (mode == 1) {
    *ile = {-ple->dy, ple->dx, ple->x0 * ple->dy - ple->y0 * ple->dx};
    return kx::done;
  }
  const auto [a, b, c] = *ile;
  if (kx::near_zero(a) && kx::near_zero(b)) return kx::no_normal;
  // The shortcut for a line that needs no scaling looks at 1 - a + b and takes other lines for such too, on purpose:
  // hosts' drawings hold parameters measured on the lines that it makes.
  const double s = kx::near_zero(1.0 - a + b) ? 1.0 : 1.0 / (a * a + b * b);
  const double root = std::sqrt(s);
  *ple = {-s * c * a, -s * c * b, root * b, -root * a};
  return kx::done;
}

int32_t KX_CALL kx_normalizeline(int32_t mode, ile_2d *ile, ple_2d *ple) {
  switch (mode) {
    case 0: return kx_normal_ile(ile);
    case 1: return kx_normal_ple(ple);
    default: return kx::wrong_argument;
  }
}

int32_t KX_CALL kx_normal_ile(ile_2d *line) {
  if (!line) return kx::wrong_argument;
  return kx::normalize(*line) ? kx::done : kx::no_normal;
}

int32_t KX_CALL kx_normal_ple(ple_2d *line) {
  if (!line) return kx::wrong_argument;
  const double q = line->dx * line->dx + line->dy * line->dy;
  if (kx::near_zero(q)) return kx::no_direction;
  const double len = std::sqrt(q);
  line->dx /= len;
  line->dy /= len;
  return kx::done;
}

int32_t KX_CALL kx_slope(const line_2d *segment, double *slope) {
  if (!segment || !slope) return kx::wrong_argument;
  const kx::vec2 d = kx::span(*segment);
  if (kx::near_zero(d.x)) {
    *slope = no_slope;
    return kx::near_zero(d.y) ? no_length : vertical;
  }
  *slope = kx::near_zero(d.y) ? 0.0 : d.y / d.x;
  return kx::done;
}

double KX_CALL kx_abscissa(int32_t mode, const ile_2d *ile, const ple_2d *ple, double v) {
  switch (mode) {
    case 0: return kx_abscissa_ile(ile, v);
    case 1: return kx_abscissa_ple(ple, v);
    default: return 0.0;
  }
}

double KX_CALL kx_abscissa_ile(const ile_2d *line, double y) {
  if (!line || kx::near_zero(line->a)) return 0.0;
  return -(line->b * y + line->c) / line->a;
}

double KX_CALL kx_abscissa_ple(const ple_2d *line, double t) { return line ? line->x0 + t * line->dx : 0.0; }

double KX_CALL kx_ordinate(int32_t mode, const ile_2d *ile, const ple_2d *ple, double v) {
  switch (mode) {
    case 0: return kx_ordinate_ile(ile, v);
    case 1: return kx_ordinate_ple(ple, v);
    default: return 0.0;
  }
}

double KX_CALL kx_ordinate_ile(const ile_2d *line, double x) {
  if (!line || kx::near_zero(line->b)) return 0.0;
  return -(line->a * x + line->c) / line->b;
}

double KX_CALL kx_ordinate_ple(const ple_2d *line, double t) { return line ? line->y0 + t * line->dy : 0.0; }
