// Plane and space vector arithmetic on values. The fields direction and length of the exported vector records are kept
// by the exported functions; these work on the components.
#pragma once

#include <cmath>

#include "kxgeom/types.h"
#include "runtime/tolerance.hpp"

namespace kx {

struct vec2 {
  double x, y;
};

struct vec3 {
  double x, y, z;
};

inline vec3 value(const pnt_3d &p) { return {p.x, p.y, p.z}; }
inline vec3 value(const vector_3d &v) { return {v.i, v.j, v.k}; }
inline pnt_3d record(vec3 v) { return {v.x, v.y, v.z}; }

inline vec2 operator+(vec2 a, vec2 b) { return {a.x + b.x, a.y + b.y}; }
inline vec2 operator-(vec2 a, vec2 b) { return {a.x - b.x, a.y - b.y}; }
inline vec2 operator*(double s, vec2 v) { return {s * v.x, s * v.y}; }
inline vec2 operator/(vec2 v, double s) { return {v.x / s, v.y / s}; }
inline double dot(vec2 a, vec2 b) { return a.x * b.x + a.y * b.y; }

inline vec3 operator+(vec3 a, vec3 b) { return {a.x + b.x, a.y + b.y, a.z + b.z}; }
inline vec3 operator-(vec3 a, vec3 b) { return {a.x - b.x, a.y - b.y, a.z - b.z}; }
inline vec3 operator*(double s, vec3 v) { return {s * v.x, s * v.y, s * v.z}; }
inline vec3 operator/(vec3 v, double s) { return {v.x / s, v.y / s, v.z / s}; }
inline double dot(vec3 a, vec3 b) { return a.x * b.x + a.y * b.y + a.z * b.z; }
inline vec3 cross(vec3 a, vec3 b) { return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x}; }

template <class V>
double length(V v) {
  return std::sqrt(dot(v, v));
}

// The vector scaled to length 1; the zero vector when it has no length.
template <class V>
V unit(V v) {
  const double len = length(v);
  return near_zero(len) ? V{} : (1.0 / len) * v;
}

// A quarter turn counter-clockwise.
inline vec2 normal(vec2 v) { return {-v.y, v.x}; }

}  // namespace kx
