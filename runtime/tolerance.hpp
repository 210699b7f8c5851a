// The one tolerance of the library, its angle constants, and the comparisons built on them.
#pragma once

#include <cmath>

namespace kx {

inline constexpr double tolerance = 1e-7;

// Ten and eleven digits on purpose: hosts compare angles with these values, bit for bit.
inline constexpr double pi = 3.1415926536;
inline constexpr double half_pi = 1.5707963268;
inline constexpr double three_half_pi = 4.7123889804;
inline constexpr double two_pi = 6.2831853072;
inline constexpr double degrees_per_radian = 57.2957795131;
inline constexpr double radians_per_degree = 0.01745329252;

// How far from b still counts as b, with the tolerance t.
inline double allowance(double b, double t = tolerance) { return (std::fabs(b) + 1.0) * t; }

// Ordinary IEEE comparisons: a NaN passes none of them. (The exported kx_parm* family answers otherwise, see there.)
inline bool near_zero(double a) { return std::fabs(a) <= tolerance; }
inline bool equal(double a, double b) { return std::fabs(a - b) <= allowance(b); }
inline bool less(double a, double b) { return a < b - allowance(b); }
inline bool less_equal(double a, double b) { return a <= b + allowance(b); }
inline bool greater(double a, double b) { return a > b + allowance(b); }
inline bool greater_equal(double a, double b) { return a >= b - allowance(b); }

// The second argument whenever the two are equal within tolerance.
inline double max(double a, double b) { return greater(a, b) ? a : b; }
inline double min(double a, double b) { return less(a, b) ? a : b; }

// A curve or segment parameter in 0..1; the upper bound is twice as wide as the lower one, as kx_parmeq sees 1.
inline bool in_unit_interval(double t) { return t >= -tolerance && less_equal(t, 1.0); }

}  // namespace kx
