// The turn of a finished solid into its orientation.
#pragma once

#include <algorithm>
#include <cmath>

#include "records/vector.hpp"

namespace kx {

// The shortest turn that takes the z axis to a direction: z leans towards a direction of the x-y plane, and what is
// square to both stays.
class lean {
 public:
  // To the direction (i, j, k); no turn when that has no direction or is not finite. To -z it is the half turn about x.
  explicit lean(const vector_3d &v) {
    const double most = std::max({std::fabs(v.i), std::fabs(v.j), std::fabs(v.k)});
    if (near_zero(most) || !std::isfinite(v.i) || !std::isfinite(v.j) || !std::isfinite(v.k)) return;
    const vec3 to = value(v) / most;
    const double aside = kx::length(vec2{to.x, to.y}), len = kx::length(to);
    const double flat = aside > 1e-100 ? aside : 0.0;  // the squares of less have lost digits
    s_ = flat / len;
    c_ = to.z / len;
    if (flat > 0.0) toward_ = vec2{to.x, to.y} / flat;
  }

  bool is_turn() const { return s_ != 0.0 || c_ < 0.0; }

  // How far the turn about the origin moves a point: exactly 0 without a turn.
  vec3 shift(vec3 p) const {
    const double along = dot(vec2{p.x, p.y}, toward_);
    const double moved = (c_ - 1.0) * along + s_ * p.z;
    return {moved * toward_.x, moved * toward_.y, (c_ - 1.0) * p.z - s_ * along};
  }
  vec3 operator()(vec3 v) const { return v + shift(v); }

 private:
  double s_ = 0.0, c_ = 1.0;
  vec2 toward_ = {0.0, 1.0};
};

}  // namespace kx
