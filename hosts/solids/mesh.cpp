#include "mesh.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace kxsolids {

namespace {

void read_points(list_hdr *vertices, std::vector<pnt_3d> &points) {
  std::int32_t count = ll_get_list_count(vertices);
  points.resize(static_cast<std::size_t>(count));
  kx_get_xyzpolyheap(vertices, points.data(), &count);
}

// The attributes that a face has for up to four edges tell which of them are none of the body.
ring read_ring(const polyface_3d *face) {
  std::int32_t count = 0;
  std::vector<std::int32_t> numbers;
  std::array<std::int32_t, 4> attributes{};
  kx_get_polyface_3d(nullptr, &count, nullptr, nullptr, nullptr, face);
  numbers.resize(static_cast<std::size_t>(count));
  kx_get_polyface_3d(nullptr, nullptr, numbers.data(), attributes.data(), nullptr, face);
  ring found;
  for (std::size_t i = 0; i < numbers.size(); ++i)
    found.push_back({numbers[i], numbers.size() > attributes.size() || attributes[i] == 0});
  return found;
}

void read_faces(list_hdr *faces, std::vector<ring> &rings) {
  const std::int32_t count = ll_get_list_count(faces);
  rings.reserve(static_cast<std::size_t>(count));
  ll_set_list_currpntr(faces, 0);
  for (std::int32_t i = 0; i < count; ++i) {
    rings.push_back(read_ring(static_cast<const polyface_3d *>(ll_get_list_data(faces))));
    ll_set_list_currpntr(faces, 2);
  }
}

// ---- cutting up ----

pnt_3d cross(const pnt_3d &u, const pnt_3d &v) {
  pnt_3d out{};
  kx_crossproduct_3d(&u, &v, &out);
  return out;
}

// Corners of a ring, their normal, and how they lie to each other.
struct outline {
  const std::vector<pnt_3d> &points;
  const pnt_3d normal;

  const pnt_3d &at(const corner &c) const { return points[static_cast<std::size_t>(c.number)]; }
  double turn(const corner &a, const corner &b, const corner &c) const {
    return dot(cross(minus(at(b), at(a)), minus(at(c), at(a))), normal);
  }
  double size(const ring &face) const {
    double longest = 0;
    for (const corner &c : face)
      longest = std::max({longest, std::fabs(at(c).x - at(face[0]).x), std::fabs(at(c).y - at(face[0]).y),
                          std::fabs(at(c).z - at(face[0]).z)});
    return longest;
  }

  bool flat_and_convex(const ring &face) const {
    const double length = size(face), tolerance = 1e-9 * length;
    for (std::size_t i = 0; i < face.size(); ++i) {
      const corner &next = face[(i + 1) % face.size()], &after = face[(i + 2) % face.size()];
      if (std::fabs(dot(minus(at(face[i]), at(face[0])), normal)) > tolerance) return false;
      if (turn(face[i], next, after) < -tolerance * length) return false;
    }
    return true;
  }

  // Whether the triangle at corner i may be cut off: no other corner is in it.
  bool ear(const ring &face, std::size_t i) const {
    const corner &a = face[(i + face.size() - 1) % face.size()], &b = face[i], &c = face[(i + 1) % face.size()];
    if (!(turn(a, b, c) > 0)) return false;
    return std::none_of(face.begin(), face.end(), [&](const corner &p) {
      if (p.number == a.number || p.number == b.number || p.number == c.number) return false;
      return turn(a, b, p) >= 0 && turn(b, c, p) >= 0 && turn(c, a, p) >= 0;
    });
  }

  void cut_ears(ring face, std::vector<ring> &parts) const {
    while (face.size() > 3) {
      std::size_t i = 0;
      while (i + 1 < face.size() && !ear(face, i)) ++i;
      corner &before = face[(i + face.size() - 1) % face.size()];
      parts.push_back({before, face[i], {face[(i + 1) % face.size()].number, false}});
      before.edge = false;
      face.erase(face.begin() + static_cast<std::ptrdiff_t>(i));
    }
    parts.push_back(std::move(face));
  }
};

pnt_3d area_vector(const mesh &m, const ring &face) {
  pnt_3d sum{0, 0, 0};
  const auto at = [&](std::size_t i) { return m.points[static_cast<std::size_t>(face[i % face.size()].number)]; };
  for (std::size_t i = 1; i + 1 < face.size(); ++i) {
    const pnt_3d part = cross(minus(at(i), at(0)), minus(at(i + 1), at(0)));
    sum = {sum.x + part.x, sum.y + part.y, sum.z + part.z};
  }
  return {sum.x / 2, sum.y / 2, sum.z / 2};
}

}  // namespace

pnt_3d normal_of(const mesh &m, const ring &face) {
  const pnt_3d normal = area_vector(m, face);
  pnt_3d unit{0, 0, 0};
  const double length = kx_vectorlength_3d(&normal);
  if (length > 0) kx_vectormult_3d(&normal, 1 / length, &unit);
  return unit;
}

double extent::diagonal() const {
  const pnt_3d across = minus(high, low);
  return kx_vectorlength_3d(&across);
}

extent extent_of(const mesh &m) {
  constexpr double far = std::numeric_limits<double>::infinity();
  extent e{{far, far, far}, {-far, -far, -far}};
  for (const pnt_3d &p : m.points) {
    e.low = {std::fmin(e.low.x, p.x), std::fmin(e.low.y, p.y), std::fmin(e.low.z, p.z)};
    e.high = {std::fmax(e.high.x, p.x), std::fmax(e.high.y, p.y), std::fmax(e.high.z, p.z)};
  }
  return e;
}

mesh mesh_of(const body &b) {
  mesh made{{}, {}, b.closed != nullptr};
  read_points(b.closed ? b.closed->vertex_list : b.open->vertices, made.points);
  read_faces(b.closed ? b.closed->face_list : b.open->faces, made.faces);
  return made;
}

std::vector<ring> convex_faces(const mesh &m) {
  std::vector<ring> parts;
  parts.reserve(m.faces.size());
  for (const ring &face : m.faces) {
    const outline corners{m.points, normal_of(m, face)};
    if (face.size() <= 3 || corners.flat_and_convex(face)) {
      parts.push_back(face);
    } else {
      corners.cut_ears(face, parts);
    }
  }
  return parts;
}

std::vector<ring> triangles(const mesh &m) {
  std::vector<ring> parts;
  for (const ring &face : convex_faces(m)) {
    for (std::size_t i = 1; i + 1 < face.size(); ++i) {
      parts.push_back({{face[0].number, i == 1 && face[0].edge},
                       face[i],
                       {face[i + 1].number, i + 2 == face.size() && face[i + 1].edge}});
    }
  }
  return parts;
}

measures measure(const mesh &m) {
  measures sum{0, 0};
  if (m.points.empty()) return sum;
  for (const ring &face : m.faces) {
    const pnt_3d area = area_vector(m, face);
    sum.area += kx_vectorlength_3d(&area);
    sum.volume += dot(area, minus(m.points[static_cast<std::size_t>(face[0].number)], m.points[0])) / 3;
  }
  return sum;
}

}  // namespace kxsolids
