// Points of Bezier curves: many at equal steps, from arrays and lists, and single ones.
#include <algorithm>

#include "bernstein.hpp"
#include "control_points.hpp"
#include "curve_record.hpp"
#include "kxgeom/curves.h"
#include "kxgeom/records.h"
#include "pending_list.hpp"
#include "side_by_side.hpp"

namespace {

using kx::eight;
using kx::plane;
using kx::space;
using kx::vec2;
using kx::vec3;

constexpr std::int32_t most_control_points = 30, least_control_points = 3;
constexpr std::int32_t most_local_degree = 15;

constexpr int lanes = 8;

template <class D>
constexpr int coordinates = 2;
template <>
constexpr int coordinates<space> = 3;

double coordinate(vec2 v, int i) { return i == 0 ? v.x : v.y; }
double coordinate(vec3 v, int i) { return i == 0 ? v.x : i == 1 ? v.y : v.z; }

// Control points times binomials, in the order in which one half of the curve takes them.
template <class D>
struct summands {
  int degree;
  double c[kx::max_bezier_degree + 1][coordinates<D>];

  summands(const typename D::vector *p, int n, bool from_tail) : degree(n) {
    for (int i = 0; i <= n; ++i) {
      const int from = from_tail ? n - i : i;
      for (int k = 0; k < coordinates<D>; ++k) c[i][k] = kx::binomial(n, from) * coordinate(p[from], k);
    }
  }
};

// Points side by side.
template <class D>
struct eight_points {
  eight at[coordinates<D>];
};

vec2 point_of(const double (*at)[lanes], int i, plane) { return {at[0][i], at[1][i]}; }
vec3 point_of(const double (*at)[lanes], int i, space) { return {at[0][i], at[1][i], at[2][i]}; }

// Horner's scheme in s = other / base, and the power of the base that it leaves out.
template <class D>
inline eight_points<D> evaluate(const summands<D> &sum, eight base, eight other) {
  const eight s = other / base, scale = kx::power(base, sum.degree);
  eight_points<D> v;
  for (int k = 0; k < coordinates<D>; ++k) v.at[k] = eight(sum.c[0][k]);
  for (int i = 1; i <= sum.degree; ++i) {
    for (int k = 0; k < coordinates<D>; ++k) v.at[k] = eight(sum.c[i][k]) + s * v.at[k];
  }
  for (int k = 0; k < coordinates<D>; ++k) v.at[k] = scale * v.at[k];
  return v;
}

// A curve as its two halves see it: the first half takes the control points from the tail of their list, the second
// from its head.
template <class D>
struct bezier {
  summands<D> first, second;

  bezier(const typename D::vector *p, int n) : first(p, n, true), second(p, n, false) {}
  bezier(const typename D::vector *last, const typename D::vector *leading, int n)
      : first(last, n, true), second(leading, n, false) {}
};

// How many of the parameters 0, dt, 2 dt ... lie in the first half.
std::int32_t count_first_half(std::int32_t n_out, double dt) {
  std::int32_t in = 0, out = n_out;  // the first `in` lie in it, from `out` on none does
  while (in < out) {
    const std::int32_t middle = in + (out - in) / 2;
    if (kx::in_first_half(middle * dt))
      in = middle + 1;
    else
      out = middle;
  }
  return in;
}

// put(j, point) for each of n_out equally spaced points; false when it refuses one.
template <class D, class Put>
bool sample(const bezier<D> &curve, std::int32_t n_out, Put put) {
  const double dt = n_out > 1 ? 1.0 / (n_out - 1) : 0.0;
  const std::int32_t half = count_first_half(n_out, dt);
  for (const bool first : {true, false}) {
    const std::int64_t begin = first ? 0 : half, end = first ? half : n_out;
    for (std::int64_t j = begin; j < end; j += lanes) {
      double t[lanes];
      for (int k = 0; k < lanes; ++k) t[k] = std::min(static_cast<double>(j) + k, static_cast<double>(end - 1)) * dt;
      const eight along(t), rest = eight(1.0) - along;
      const auto points = first ? evaluate(curve.first, rest, along) : evaluate(curve.second, along, rest);
      double at[coordinates<D>][lanes];
      for (int k = 0; k < coordinates<D>; ++k) points.at[k].store(at[k]);
      const int n = static_cast<int>(std::min<std::int64_t>(lanes, end - j));
      for (int k = 0; k < n; ++k) {
        if (!put(j + k, point_of(at, k, D{}))) return false;
      }
    }
  }
  return true;
}

template <class D>
std::int32_t fill_array(const double *ctrl, std::int32_t n_ctrl, std::int32_t n_out, double *out) {
  using vector = typename D::vector;
  using point = typename D::point;
  if (ctrl == nullptr) return 40;
  if (n_ctrl > most_control_points) return 45;
  if (n_ctrl < least_control_points) return 46;
  if (n_out < 1) return 0;
  if (out == nullptr) return 40;
  vector p[most_control_points];
  for (std::int32_t i = 0; i < n_ctrl; ++i) p[i] = D::read(reinterpret_cast<const point *>(ctrl)[i]);
  auto *points = reinterpret_cast<point *>(out);
  sample(bezier<D>(p, n_ctrl - 1), n_out, [=](std::int64_t j, vector v) {
    points[static_cast<std::ptrdiff_t>(j)] = D::make_point(v);
    return true;
  });
  return 0;
}

template <class D>
double *new_array(const double *ctrl, std::int32_t n_ctrl, std::int32_t n_out,
                  typename D::point *(KX_CALL *create)(std::int32_t)) {
  if (n_out > kx::most_samples) return nullptr;
  auto *array = reinterpret_cast<double *>(create(n_out));
  if (array == nullptr || fill_array<D>(ctrl, n_ctrl, n_out, array) == 0) return array;
  kx::release(array);
  return nullptr;
}

template <class D>
std::int32_t fill_list(const list_hdr *ctrl, std::int32_t n_ctrl, std::int32_t n_out, list_hdr *out) {
  using vector = typename D::vector;
  if (ctrl == nullptr || out == nullptr) return 40;
  if (n_ctrl > most_control_points) return 45;
  // Unlike the arrays' 46: hosts that draw as they go pass lists that are not complete yet.
  if (n_ctrl < least_control_points || n_out < 1) return 0;
  if (n_out > kx::most_samples) return 47;
  // A list of more than n_ctrl points is read from both of its ends on purpose: what either half does not reach, hosts
  // have never seen.
  vector last[most_control_points], leading[most_control_points];
  if (!kx::read_last_control_points<D>(ctrl, n_ctrl, last) || !kx::read_control_points<D>(ctrl, n_ctrl, leading))
    return 40;
  kx::pending_list made;
  if (!sample(bezier<D>(last, leading, n_ctrl - 1), n_out,
              [&](std::int64_t, vector v) { return made.add_vertex<D>(v); }))
    return 80;
  made.move_behind(*out);
  out->current = out->tail;
  return 0;
}

template <class D>
typename D::point *new_point(const typename D::point *ctrl, std::int32_t first, std::int32_t degree, double t,
                             typename D::point *(*create)()) {
  if (ctrl == nullptr || first < 0 || degree < 0 || degree > most_local_degree) return nullptr;
  typename D::vector q[most_local_degree + 1];
  for (std::int32_t i = 0; i <= degree; ++i) q[i] = D::read(ctrl[std::ptrdiff_t{first} + i]);
  kx::cut(q, degree, t, 1.0 - t);
  auto *point = create();
  if (point) *point = D::make_point(q[0]);
  return point;
}

}  // namespace

/* ---- bezier points ---- */

double KX_CALL kx_bez_factorial(std::int32_t n) {
  if (n <= kx::max_bezier_degree) return n < 0 ? 1.0 : kx::factorials.of[n];
  double product = kx::factorials.of[kx::max_bezier_degree];
  // From 171 on it is infinite.
  for (std::int32_t i = kx::max_bezier_degree + 1; i <= std::min(n, 171); ++i) product *= i;
  return product;
}

double *KX_CALL kx_beziercurve(const double *ctrl, std::int32_t datatype, std::int32_t n_ctrl, std::int32_t n_out) {
  if (ctrl == nullptr) return nullptr;
  switch (datatype) {
    case KX_PNT_2D: return new_array<plane>(ctrl, n_ctrl, n_out, kx_create_pnt_2d_array);
    case KX_PNT_3D: return new_array<space>(ctrl, n_ctrl, n_out, kx_create_pnt_3d_array);
    default: return nullptr;
  }
}

std::int32_t KX_CALL kx_beziercurve2d(const double *ctrl, std::int32_t n_ctrl, std::int32_t n_out, double *out) {
  return fill_array<plane>(ctrl, n_ctrl, n_out, out);
}

std::int32_t KX_CALL kx_beziercurve3d(const double *ctrl, std::int32_t n_ctrl, std::int32_t n_out, double *out) {
  return fill_array<space>(ctrl, n_ctrl, n_out, out);
}

list_hdr *KX_CALL kx_bezier_curve(const list_hdr *ctrl, std::int32_t n_ctrl, std::int32_t *n_out) {
  const std::int32_t tag = kx::datatype(ctrl);
  if (n_out == nullptr || !kx::is_point(tag)) return nullptr;
  list_hdr *made = ll_create_list();
  if (made == nullptr) return nullptr;
  const auto fill = kx::is_plane_point(tag) ? kx_bezier_curve_2d : kx_bezier_curve_3d;
  if (fill(ctrl, n_ctrl, *n_out, made) == 0) {
    *n_out = made->count;
    return made;
  }
  kx::release_items(*made);
  kx::release(made);
  return nullptr;
}

std::int32_t KX_CALL kx_bezier_curve_2d(const list_hdr *ctrl, std::int32_t n_ctrl, std::int32_t n_out, list_hdr *out) {
  return fill_list<plane>(ctrl, n_ctrl, n_out, out);
}

std::int32_t KX_CALL kx_bezier_curve_3d(const list_hdr *ctrl, std::int32_t n_ctrl, std::int32_t n_out, list_hdr *out) {
  return fill_list<space>(ctrl, n_ctrl, n_out, out);
}

pnt_2d *KX_CALL kx_bezier_pnt_2d(const pnt_2d *ctrl, std::int32_t first, std::int32_t degree, double t) {
  return new_point<plane>(ctrl, first, degree, t, kx::create_pnt_2d);
}

pnt_3d *KX_CALL kx_bezier_pnt_3d(const pnt_3d *ctrl, std::int32_t first, std::int32_t degree, double t) {
  return new_point<space>(ctrl, first, degree, t, kx::create_pnt_3d);
}
