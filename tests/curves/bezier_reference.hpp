// Bezier curves by de Casteljau's construction on whole vectors of points: another way than the library goes.
#pragma once

#include "curve_lists.hpp"

namespace curve_lists {

// A point in space and its weight, not multiplied by it.
struct control {
  pnt_3d p;
  double weight = 1.0;
};
using controls = std::vector<control>;

inline pnt_3d casteljau(controls q, double t) {
  for (control &c : q) c.p = {c.weight * c.p.x, c.weight * c.p.y, c.weight * c.p.z};
  const auto mix = [t](double a, double b) { return (1 - t) * a + t * b; };
  for (; q.size() > 1; q.pop_back())
    for (size_t i = 0; i + 1 < q.size(); ++i)
      q[i] = {{mix(q[i].p.x, q[i + 1].p.x), mix(q[i].p.y, q[i + 1].p.y), mix(q[i].p.z, q[i + 1].p.z)},
              mix(q[i].weight, q[i + 1].weight)};
  return {q[0].p.x / q[0].weight, q[0].p.y / q[0].weight, q[0].p.z / q[0].weight};
}

// The items of a list of points, and of one of weights beside it.
inline controls read_controls(const list_hdr *points, const list_hdr *weights = nullptr) {
  controls q;
  for (const list_item &item : kx::items(points)) q.push_back({kx::read_point(item.data, item.datatype)});
  size_t i = 0;
  for (const list_item &item : kx::items(weights)) q.at(i++).weight = static_cast<rnumber *>(item.data)->value;
  return q;
}

inline double distance(const pnt_3d &a, const pnt_3d &b) {
  return std::hypot(a.x - b.x, std::hypot(a.y - b.y, a.z - b.z));
}

// The same n points without their z in the plane.
inline controls wave_controls(int n, bool space) {
  controls q;
  for (int i = 0; i < n; ++i) q.push_back({{wave(i).x, wave(i).y, space ? wave(i).z : 0.0}});
  return q;
}

// Both parts of a cut reproduce the whole curve, pass through the cut with their heads and are numbered in order.
inline void expect_parts(const controls &whole, double t, const curve *first, const curve *second, double tolerance) {
  controls a = read_controls(first->ctrl_pnts, first->weights), b = read_controls(second->ctrl_pnts, second->weights);
  ASSERT_TRUE(a.size() == whole.size() && b.size() == whole.size());
  EXPECT_EQ(distance(a[0].p, b[0].p) <= tolerance && distance(a.back().p, whole[0].p) <= tolerance, true);
  std::reverse(a.begin(), a.end());
  for (double u : {0.0, 0.1, 0.4, 0.7, 1.0}) {
    EXPECT_NEAR(distance(casteljau(a, u), casteljau(whole, u * t)), 0.0, tolerance) << whole.size() << ' ' << t;
    EXPECT_NEAR(distance(casteljau(b, u), casteljau(whole, t + u * (1 - t))), 0.0, tolerance)
        << whole.size() << ' ' << t;
  }
  for (const curve *part : {first, second}) {
    int32_t number = 0;
    for (const list_item &item : kx::items(part->ctrl_pnts)) {
      EXPECT_TRUE(kx::is_polygon_point(item.datatype));
      EXPECT_EQ(kx::read_seqnr(item.data, item.datatype), number++);
    }
  }
}

}  // namespace curve_lists
