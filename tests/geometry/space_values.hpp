// Lines and planes of space for the tests, made from a position and angles that are known beforehand.
#pragma once

#include <cmath>
#include <random>

#include "records/vector.hpp"

// Three unit vectors at right angles, right-handed, turned at random.
struct space_frame {
  kx::vec3 x, y, z;

  template <class Random>
  explicit space_frame(Random &random) {
    std::normal_distribution<double> any;
    x = kx::unit(kx::vec3{any(random), any(random), any(random)});
    z = kx::unit(cross(x, kx::vec3{any(random), any(random), any(random)}));
    y = cross(z, x);
  }
  kx::vec3 at(double a, double b, double c) const { return a * x + b * y + c * z; }
};

inline pnt_3d as_pnt(kx::vec3 v) { return {v.x, v.y, v.z}; }
inline ple_3d as_line(kx::vec3 p, kx::vec3 d) { return {p.x, p.y, p.z, d.x, d.y, d.z}; }
inline line_3d as_segment(kx::vec3 p, kx::vec3 q) { return {p.x, p.y, p.z, q.x, q.y, q.z}; }
inline planeeq as_plane(kx::vec3 p, kx::vec3 n) { return {n.x, n.y, n.z, -kx::dot(n, p)}; }
inline double apart(const pnt_3d &p, kx::vec3 q) { return kx::length(kx::vec3{p.x, p.y, p.z} - q); }
