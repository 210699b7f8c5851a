// What must hold for a body with rings of vertex numbers, checked and measured without the library's own geometry.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <utility>
#include <vector>

#include "kxgeom/records.h"

namespace closed_body {

struct corner {
  double x, y, z;
};

inline corner minus(corner a, corner b) { return {a.x - b.x, a.y - b.y, a.z - b.z}; }
inline corner cross(corner a, corner b) {
  return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

struct mesh {
  std::vector<corner> corners;
  std::vector<std::vector<int>> rings;
};

// Reads a solid and checks what a list must be: tags, vertices numbered from 0, faces numbered onwards from the first.
inline mesh read(const solid *s) {
  mesh m;
  if (s == nullptr) return ADD_FAILURE() << "no solid", m;
  for (const list_item *i = s->vertex_list->head; i; i = i->next) {
    const auto *v = static_cast<const poly_3d *>(i->data);
    EXPECT_TRUE(i->datatype == KX_POLY_3D && v->seqnr == static_cast<int>(m.corners.size()));
    m.corners.push_back({v->x, v->y, v->z});
  }
  int first = 0;
  for (const list_item *i = s->face_list->head; i; i = i->next) {
    const auto *f = static_cast<const polyface_3d *>(i->data);
    if (m.rings.empty()) first = f->face_number;
    EXPECT_TRUE(i->datatype == KX_POLYFACE_3D && f->face_number == first + static_cast<int>(m.rings.size()));
    std::vector<int> ring;
    for (int k = 0; k < f->vertex_count && k < 4; ++k) ring.push_back(f->vertex_numbers[k]);
    for (const list_item *n = f->more_vertices ? f->more_vertices->head : nullptr; n; n = n->next)
      ring.push_back(static_cast<const inumber *>(n->data)->value);
    EXPECT_EQ(ring.size(), static_cast<std::size_t>(f->vertex_count));
    m.rings.push_back(ring);
  }
  EXPECT_TRUE(static_cast<int>(m.corners.size()) == s->vertex_list->count &&
              static_cast<int>(m.rings.size()) == s->face_list->count);
  return m;
}

// Vertices minus edges plus faces of a body in which every edge is run through once in each direction.
inline int euler(const mesh &m) {
  std::map<std::pair<int, int>, int> runs;
  for (const auto &ring : m.rings) {
    for (std::size_t k = 0; k < ring.size(); ++k) ++runs[{ring[k], ring[(k + 1) % ring.size()]}];
  }
  for (const auto &[edge, times] : runs)
    EXPECT_TRUE(times == 1 && edge.first != edge.second && runs.count({edge.second, edge.first}))
        << "edge " << edge.first << " to " << edge.second;
  return static_cast<int>(m.corners.size()) - static_cast<int>(runs.size() / 2) + static_cast<int>(m.rings.size());
}

struct measures {
  double volume, area;  // the volume is positive when the rings turn counter-clockwise seen from outside
};

inline measures measure(const mesh &m) {
  measures sum{0, 0};
  for (const auto &ring : m.rings) {
    const corner p = m.corners.at(static_cast<std::size_t>(ring[0]));
    corner n{0, 0, 0};
    for (std::size_t k = 1; k + 1 < ring.size(); ++k) {
      const corner a = cross(minus(m.corners.at(static_cast<std::size_t>(ring[k])), p),
                             minus(m.corners.at(static_cast<std::size_t>(ring[k + 1])), p));
      n = {n.x + a.x, n.y + a.y, n.z + a.z};
    }
    const corner q = minus(p, m.corners[0]);
    sum.volume += (q.x * n.x + q.y * n.y + q.z * n.z) / 6;
    sum.area += std::sqrt(n.x * n.x + n.y * n.y + n.z * n.z) / 2;
  }
  return sum;
}

enum class box { least, wider, unlike };

// Whether the extents are the least box around the vertices, or hold it at least.
inline void expect_extents(const solid *s, const mesh &m, box extents) {
  if (extents == box::unlike) return;
  corner low = m.corners.at(0), high = low;
  for (const corner &p : m.corners) {
    low = {std::fmin(low.x, p.x), std::fmin(low.y, p.y), std::fmin(low.z, p.z)};
    high = {std::fmax(high.x, p.x), std::fmax(high.y, p.y), std::fmax(high.z, p.z)};
  }
  const double room[6] = {low.x - s->xmin,  low.y - s->ymin,  low.z - s->zmin,
                          s->xmax - high.x, s->ymax - high.y, s->zmax - high.z};
  for (int side = 0; side < 6; ++side)
    EXPECT_TRUE(room[side] >= -1e-9 && (extents == box::wider || room[side] <= 1e-9)) << room[side] << " at " << side;
}

// Every normal is, bit for bit, that of the rule.
inline void expect_normals(const solid *s) {
  for (const list_item *i = s->face_list->head; i; i = i->next) {
    const auto *f = static_cast<const polyface_3d *>(i->data);
    vector_3d n{}, want = f->normal;
    kx_get_face_normal(f->vertex_numbers[0], f->vertex_numbers[1], f->vertex_numbers[2], s->vertex_list, &n);
    EXPECT_TRUE(n.i == want.i && n.j == want.j && n.k == want.k && n.direction == want.direction &&
                n.length == want.length)
        << "face " << f->face_number;
  }
}

// All of it: a closed body with Euler's number, normals by the rule, and extents.
inline mesh check(const solid *s, int euler_number, box extents) {
  const mesh m = read(s);
  if (m.corners.empty()) return m;
  EXPECT_EQ(euler(m), euler_number);
  expect_normals(s);
  expect_extents(s, m, extents);
  return m;
}

}  // namespace closed_body
