// The library as this program uses it: lists and curves that free themselves, matrices, and a watch on its calls.
#pragma once

#include <kxgeom.h>

#include <array>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <memory>
#include <new>
#include <utility>

namespace kxdraw {

// ---- time ----

enum class call_group { points, arcs, splines, matrices, extents, viewport, count };

struct call_time {
  std::chrono::nanoseconds spent{0};
  std::int64_t calls = 0;
};

class library_time {
 public:
  // Runs work that is nothing but library calls and the loop around them, and books its time.
  template <typename work_type>
  auto measure(call_group group, std::int64_t calls, work_type &&work) {
    const stopping stop{groups_[static_cast<std::size_t>(group)], std::chrono::steady_clock::now()};
    groups_[static_cast<std::size_t>(group)].calls += calls;
    return work();
  }
  const call_time &of(call_group group) const { return groups_[static_cast<std::size_t>(group)]; }

 private:
  struct stopping {
    call_time &time;
    std::chrono::steady_clock::time_point start;
    ~stopping() { time.spent += std::chrono::steady_clock::now() - start; }
  };
  std::array<call_time, static_cast<std::size_t>(call_group::count)> groups_{};
};

// ---- lists and curves ----

// A list of poly_2d or rnumber that is freed with its items. Out of memory throws std::bad_alloc.
class owned_list {
 public:
  owned_list() : owned_list(ll_create_list()) {}
  explicit owned_list(list_hdr *list) : list_(list) {
    if (list == nullptr) throw std::bad_alloc();
  }

  list_hdr *get() const { return list_.get(); }
  std::int32_t size() const { return ll_get_list_count(list_.get()); }

  void add_point(double x, double y) {
    poly_2d *pnt = kx_create_poly_2d();
    if (pnt != nullptr) kx_set_poly_2d(x, y, size(), pnt);
    add(pnt, KX_POLY_2D);
  }
  void add_number(double value) {
    rnumber *number = kx_create_rnumber();
    if (number != nullptr) kx_set_rnumber(value, number);
    add(number, KX_RNUMBER);
  }

 private:
  struct purge {
    void operator()(list_hdr *list) const { kx_purge_polygon(list); }
  };

  void add(void *data, std::int32_t datatype) {
    if (data == nullptr || ll_add_list_item(list_.get(), 1, data, datatype) != 1) throw std::bad_alloc();
  }

  std::unique_ptr<list_hdr, purge> list_;
};

// Calls visit(x, y) for each point of a poly_2d list.
template <typename visit_type>
void for_each_point(list_hdr *list, visit_type &&visit) {
  if (ll_get_list_count(list) == 0) return;
  ll_set_list_currpntr(list, 0);
  do {
    std::int32_t seqnr = 0;
    double x = 0, y = 0;
    kx_get_poly_2d(&seqnr, &x, &y, static_cast<const poly_2d *>(ll_get_list_data(list)));
    visit(x, y);
  } while (ll_set_list_currpntr(list, 2) == 2);
}

struct curve_purge {
  void operator()(curve *c) const { kx_purge_curve(c); }
};
using owned_curve = std::unique_ptr<curve, curve_purge>;

// ---- matrices ----

// A plane matrix; each step acts after what the matrix does already.
class matrix {
 public:
  matrix() { kx_getidmatrix2d(values_.data()); }

  void scale(double factor) { kx_scalematrix2d(factor, factor, &origin, values_.data()); }
  void then(const matrix &next) { kx_mat33mult(next.values_.data(), values_.data()); }

  // How much it lengthens at most: the larger singular value.
  double stretch() const {
    const double sum = kx_sumsqrdparms(values_[0], values_[1]) + kx_sumsqrdparms(values_[3], values_[4]);
    const double det = kx_get_det22(values_[0], values_[1], values_[3], values_[4]);
    return std::sqrt((sum + std::sqrt(std::fmax(0.0, sum * sum - 4 * det * det))) / 2);
  }

  owned_list apply(list_hdr *list) const { return owned_list(kx_transfpolygon(values_.data(), list)); }

 private:
  friend class space_matrix;
  static constexpr pnt_2d origin{0, 0};
  std::array<double, 9> values_;
};

using normal_vector = std::array<double, 3>;

inline vector_3d as_record(const normal_vector &normal) { return {0, 0, normal[0], normal[1], normal[2]}; }

// A matrix of space; each step acts after what the matrix does already.
class space_matrix {
 public:
  space_matrix() { kx_getidmatrix3d(values_.data()); }

  void translate(double dx, double dy, double dz) { kx_translatematrix3d(dx, dy, dz, values_.data()); }
  void rotate(double degrees) { kx_rotationmatrix3d(2, degrees, nullptr, values_.data()); }
  void then(const space_matrix &next) { kx_mat44mult(next.values_.data(), values_.data()); }

  // The library takes factors that are small or negative for 1: the signs are reflections here, and factors of x and y
  // that are too small in spite of that are refused. Drawings of the plane leave that of z at zero: it stays 1.
  bool scale(double sx, double sy, double sz) {
    const double width = std::abs(sx), height = std::abs(sy);
    if (kx_parmlezero(width, 1e-7) == 1 || kx_parmlezero(height, 1e-7) == 1) return false;
    kx_scalematrix3d(width, height, std::abs(sz), &origin, values_.data());
    if (sx < 0) kx_reflectmatrix3d(0, values_.data());
    if (sy < 0) kx_reflectmatrix3d(1, values_.data());
    if (sz < 0) kx_reflectmatrix3d(2, values_.data());
    return true;
  }

  // From the coordinates of an entity to the world's; false when the normal has no direction.
  bool from_entity(const normal_vector &normal) {
    const vector_3d record = as_record(normal);
    space_matrix axes;
    for (std::size_t i = 0; i < 3; ++i) {
      const pnt_3d unit{i == 0 ? 1.0 : 0.0, i == 1 ? 1.0 : 0.0, i == 2 ? 1.0 : 0.0};
      pnt_3d axis{};
      if (kx_ecs_to_wcs(&record, &unit, &axis) != 0) return false;
      kx_get_pnt_3d(&axes.values_[4 * i], &axes.values_[4 * i + 1], &axes.values_[4 * i + 2], &axis);
    }
    then(axes);
    return true;
  }

  pnt_3d apply(const pnt_3d &at) const {
    pnt_3d image{};
    kx_transformpnt3d(values_.data(), &at, &image);
    return image;
  }

  // What it does to the points of a plane of that height, seen from above.
  matrix seen_from_above(double height) const {
    const auto &m = values_;
    matrix seen;
    seen.values_ = {m[0], m[1], 0, m[4], m[5], 0, m[8] * height + m[12], m[9] * height + m[13], 1};
    return seen;
  }

 private:
  static constexpr pnt_3d origin{0, 0, 0};
  std::array<double, 16> values_;
};

}  // namespace kxdraw
