// Knot vectors: the span of a parameter and the basis functions on it.
#include "curve_record.hpp"
#include "kxgeom/curves.h"

namespace {

// 0 where the knots coincide: a function on a support of no length is none.
double quotient(double a, double knot_difference) { return knot_difference == 0.0 ? 0.0 : a / knot_difference; }

// From the values f[0 .. q-1] of functions of degree q-1, or of a derivative of theirs, makes in place the derivative
// of one order more of the functions of degree q, f[0 .. q]. Function r begins at knots[r-q], knots being those from
// the span on.
void differentiate(double *f, std::ptrdiff_t q, const double *knots) {
  for (std::ptrdiff_t r = q; r >= 0; --r) {
    const double rising = r > 0 ? quotient(f[r - 1], knots[r] - knots[r - q]) : 0.0;
    const double falling = r < q ? quotient(f[r], knots[r + 1] - knots[r + 1 - q]) : 0.0;
    f[r] = static_cast<double>(q) * (rising - falling);
  }
}

}  // namespace

/* ---- knot vectors ---- */

std::int32_t KX_CALL kx_findknotspan(const double *knots, std::int32_t last, std::int32_t degree, double t,
                                     std::int32_t side) {
  if (knots == nullptr || degree < 0 || degree > last) return -1;
  if (t <= knots[0]) return degree - 1;
  if (t >= knots[last]) return last - degree;
  const bool left = side == -1;
  // From the nearer end of the whole range, for long vectors only. Knots of multiplicity above the degree make the two
  // directions differ, so the choice is part of the answer.
  if (last > std::int64_t{3} * degree && t > (knots[0] + knots[last]) / 2.0) {
    std::int32_t i = last - degree;
    while (left ? t <= knots[i] : t < knots[i]) --i;
    return i;
  }
  std::int32_t i = degree;
  while (left ? t > knots[i] : t >= knots[i]) ++i;
  return i - 1;
}

std::int32_t KX_CALL kx_basisfunctions(const double *knots, std::int32_t span, std::int32_t degree, double t,
                                       std::int32_t derivs, double *out) {
  if (knots == nullptr || out == nullptr) return 40;
  if (degree < 0 || degree > kx::max_degree || span < degree - 1) return 2;
  const std::ptrdiff_t p = degree;
  const double *from = knots + span;
  // values[q]: the q+1 functions of degree q.
  double values[kx::max_degree + 1][kx::max_degree + 1];
  values[0][0] = 1.0;
  for (std::ptrdiff_t j = 1; j <= p; ++j) {
    double saved = 0.0;
    for (std::ptrdiff_t r = 0; r < j; ++r) {
      const double right = from[r + 1] - t, left = t - from[r + 1 - j];
      const double temp = quotient(values[j - 1][r], right + left);
      values[j][r] = saved + right * temp;
      saved = left * temp;
    }
    values[j][j] = saved;
  }
  for (std::ptrdiff_t i = 0; i <= p; ++i) out[i] = values[p][i];

  for (std::ptrdiff_t order = 1; order <= derivs; ++order) {
    double row[kx::max_degree + 1] = {};
    if (order <= p) {
      for (std::ptrdiff_t i = 0; i <= p - order; ++i) row[i] = values[p - order][i];
      for (std::ptrdiff_t q = p - order + 1; q <= p; ++q) differentiate(row, q, from);
    }
    out += p + 1;
    for (std::ptrdiff_t i = 0; i <= p; ++i) out[i] = row[i];
  }
  return 0;
}
