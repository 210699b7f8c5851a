// Hyperboloids and paraboloids.
#include <algorithm>
#include <cmath>
#include <utility>

#include "kxgeom/solids.h"
#include "solids/ring_stack.hpp"

namespace {

using kx::ring_level;

// A hyperboloid about its centre by its semi-axes and the heights that cut it, the lower one first.
struct quadric {
  double a, b, c, bottom, top;
  std::int32_t stacks;

  // A height as a multiple of the semi-axis c.
  double ratio(double z) const { return c != 0.0 ? z / c : 0.0; }
};

// From disc to disc of the hyperboloid of one sheet, its rings at equal steps of the parameter of the hyperbola.
ring_level *put_waist(ring_level *out, const quadric &q) {
  const double from = std::asinh(q.ratio(q.top)), to = std::asinh(q.ratio(q.bottom));
  *out++ = ring_level::apex(q.top);
  for (std::int32_t k = 0; k <= q.stacks; ++k) {
    const double t = from + (to - from) * k / q.stacks, r = std::cosh(t);
    *out++ = ring_level::ring(q.a * r, q.b * r, k == 0 ? q.top : k == q.stacks ? q.bottom : q.c * std::sinh(t));
  }
  *out++ = ring_level::apex(q.bottom);
  return out;
}

// A piece of one sheet of two: from the sheet's vertex, or from a disc when the cut leaves that out, to a disc further
// away from the centre. A cut that does not reach the sheet leaves a piece without height.
class bowl {
 public:
  static bowl above(const quadric &q) { return {q, q.bottom, q.top, 1.0}; }
  static bowl below(const quadric &q) { return {q, -q.top, -q.bottom, -1.0}; }

  std::int64_t rings() const { return std::int64_t{q_.stacks} + !pointed(); }
  static constexpr std::int32_t apexes = 2;

  ring_level *put(ring_level *out) const {
    const double from = std::acosh(std::max(1.0, q_.ratio(far_))), to = std::acosh(std::max(1.0, q_.ratio(near_)));
    const bool down = side_ > 0.0;
    *out++ = ring_level::apex(side_ * (down ? far_ : near_));
    for (std::int32_t i = 0; i <= q_.stacks; ++i) {
      const std::int32_t k = down ? i : q_.stacks - i;  // counted from the wide end
      if (k == q_.stacks && pointed()) continue;
      const double t = from + (to - from) * k / q_.stacks, r = std::sinh(t);
      const double z = k == 0 ? far_ : k == q_.stacks ? near_ : q_.c * std::cosh(t);
      *out++ = ring_level::ring(q_.a * r, q_.b * r, side_ * z);
    }
    *out++ = ring_level::apex(side_ * (down ? near_ : far_));
    return out;
  }

 private:
  bowl(const quadric &q, double from, double to, double side)
      : q_(q), near_(std::max(q.c, from)), far_(std::max(near_, to)), side_(side) {}
  bool pointed() const { return near_ == q_.c; }

  quadric q_;
  double near_, far_;  // heights, counted away from the centre
  double side_;
};

// All three kinds: plan(quadric) tells the rings and apexes, put(levels, quadric) writes them.
template <class Plan, class Put>
solid *build_hyperboloid(const kx::primitive_kind &kind, hyperboloid values, const pnt_3d *center,
                         const vector_3d *orientation, solid *given, Plan plan, Put put) {
  const double bottom = values.bottom, top = values.top;
  values.bottom = std::min(bottom, top);
  values.top = std::max(bottom, top);
  values.stacks = std::max(values.stacks, 1);
  const quadric q{0.5 * values.diameter_x,
                  0.5 * values.diameter_y,
                  std::fabs(0.5 * values.diameter_z),
                  values.bottom,
                  values.top,
                  values.stacks};
  kx::ring_plan rings = plan(q);
  rings.sectors = kx::section_sectors(values.diameter_x, values.diameter_y, values.sectors);
  values.sectors = static_cast<std::int32_t>(rings.sectors);
  return kx::build_rings(kind, rings, center, orientation, given, values, [&](ring_level *out) { put(out, q); });
}

hyperboloid fields(double diameter_x, double diameter_y, double diameter_z, double bottom, double top,
                   std::int32_t sectors, std::int32_t stacks) {
  return {0, {}, diameter_x, diameter_y, diameter_z, bottom, top, sectors, stacks, 0.0, 0.0, 0.0};
}

}  // namespace

solid *KX_CALL kx_hyperboloid_pnts(const pnt_3d *center, double diameter_x, double diameter_y, double diameter_z,
                                   double bottom, double top, int32_t sectors, int32_t stacks,
                                   const vector_3d *orientation, solid *given) {
  return build_hyperboloid(
      {KX_SOLID_HYPERBOLOID, "kx_hyperboloid_pnts", "kx_create_hyperboloid"},
      fields(diameter_x, diameter_y, diameter_z, bottom, top, sectors, stacks), center, orientation, given,
      [](const quadric &q) {
        return kx::ring_plan{bowl::above(q).rings(), bowl::apexes, 0};
      },
      [](ring_level *out, const quadric &q) { bowl::above(q).put(out); });
}

solid *KX_CALL kx_hyperboloid1s(const pnt_3d *center, double diameter_x, double diameter_y, double diameter_z,
                                double bottom, double top, int32_t sectors, int32_t stacks,
                                const vector_3d *orientation, solid *given) {
  return build_hyperboloid(
      {KX_SOLID_HYPERBOLOID1S, "kx_hyperboloid1s", "kx_create_hyperboloid"},
      fields(diameter_x, diameter_y, diameter_z, bottom, top, sectors, stacks), center, orientation, given,
      [](const quadric &q) {
        return kx::ring_plan{std::int64_t{q.stacks} + 1, 2, 0};
      },
      put_waist);
}

solid *KX_CALL kx_hyperboloid2s(const pnt_3d *center, double diameter_x, double diameter_y, double diameter_z,
                                double bottom, double top, int32_t sectors, int32_t stacks,
                                const vector_3d *orientation, solid *given) {
  return build_hyperboloid(
      {KX_SOLID_HYPERBOLOID2S, "kx_hyperboloid2s", "kx_create_hyperboloid"},
      fields(diameter_x, diameter_y, diameter_z, bottom, top, sectors, stacks), center, orientation, given,
      [](const quadric &q) {
        return kx::ring_plan{bowl::above(q).rings() + bowl::below(q).rings(), 2 * bowl::apexes, 0};
      },
      [](ring_level *out, const quadric &q) { bowl::below(q).put(bowl::above(q).put(out)); });
}

solid *KX_CALL kx_paraboloid_pnts(const pnt_3d *center, double diameter_x, double diameter_y, double height,
                                  int32_t sectors, int32_t stacks, const vector_3d *orientation, solid *given) {
  constexpr kx::primitive_kind kind{KX_SOLID_PARABOLOID, "kx_paraboloid_pnts", "kx_create_paraboloid"};
  stacks = std::max(stacks, 1);
  const std::int64_t n = kx::section_sectors(diameter_x, diameter_y, sectors);
  const paraboloid values = {{}, diameter_x, diameter_y, height, static_cast<std::int32_t>(n), stacks, 0.0, 0.0, 0.0};
  return kx::build_rings(kind, {stacks, 2, n}, center, orientation, given, values, [=](ring_level *out) {
    const double half = 0.5 * height;
    *out++ = ring_level::apex(half);
    for (std::int32_t k = 1; k <= stacks; ++k) {
      const double f = static_cast<double>(k) / stacks;
      *out++ = ring_level::ring(0.5 * diameter_x * f, 0.5 * diameter_y * f, half - height * f * f);
    }
    *out = ring_level::apex(-half);
  });
}
