// The statistics beside a sample: unit derivatives and normal.
#pragma once

#include "records/dimension.hpp"
#include "runtime/tolerance.hpp"

namespace kx {

// A unit vector, or the zero vector of length 0 where there is no direction.
template <class V>
struct direction {
  V v;
  double length;
};

template <class V>
inline direction<V> direction_of(V v) {
  const double length = kx::length(v);
  if (near_zero(length)) return {V{}, 0.0};
  return {(1.0 / length) * v, 1.0};
}

inline direction<vec2> normal(const direction<vec2> &tangent, const direction<vec2> &) {
  return {normal(tangent.v), tangent.length};
}

// The principal normal: none on a straight stretch.
inline direction<vec3> normal(const direction<vec3> &tangent, const direction<vec3> &second) {
  return direction_of(second.v - dot(second.v, tangent.v) * tangent.v);
}

// The statistics at t from the two derivatives there.
template <class D>
inline typename D::stats statistics(double t, typename D::vector first, typename D::vector second_derivative) {
  const auto tangent = direction_of(first);
  const auto second = direction_of(second_derivative);
  const auto across = normal(tangent, second);
  return {t, D::make_vector(tangent.v, tangent.length), D::make_vector(second.v, second.length),
          D::make_vector(across.v, across.length)};
}

}  // namespace kx
