// Tori of 200 x 200 vertices with a face for each, and one of a million. An item is one vertex with its face.
// The peers keep connected meshes without normals; every row computes the sines once for a ring.
#include <CGAL/Polyhedron_3.h>
#include <CGAL/Polyhedron_incremental_builder_3.h>
#include <CGAL/Simple_cartesian.h>
#include <CGAL/Surface_mesh.h>

#include <memory>
#include <numbers>
#include <vector>

#include "floor_list.hpp"
#include "harness.hpp"
#include "kxgeom/records.h"
#include "kxgeom/solids.h"

namespace {

using kernel = CGAL::Simple_cartesian<double>;
using polyhedron = CGAL::Polyhedron_3<kernel>;
using surface_mesh = CGAL::Surface_mesh<kernel::Point_3>;

constexpr double major = 30.0, minor = 10.0;

std::vector<kernel::Point_3> vertices(int n) {
  std::vector<double> c, s;
  for (int i = 0; i < n; ++i) {
    c.push_back(std::cos(2.0 * std::numbers::pi * i / n));
    s.push_back(std::sin(2.0 * std::numbers::pi * i / n));
  }
  std::vector<kernel::Point_3> points;
  points.reserve(c.size() * c.size());
  for (std::size_t i = 0; i < c.size(); ++i) {
    for (std::size_t j = 0; j < c.size(); ++j)
      points.emplace_back((major + minor * c[j]) * c[i], (major + minor * c[j]) * s[i], minor * s[j]);
  }
  return points;
}

struct quad {
  int corner[4];
};

quad face(int n, int number) {
  const int j = number % n, next = (number - j + n) % (n * n), k = (j + 1) % n;
  return {{number, next + j, next + k, number - j + k}};
}

struct polyhedron_builder : CGAL::Modifier_base<polyhedron::HalfedgeDS> {
  explicit polyhedron_builder(int sectors) : n(sectors) {}
  void operator()(polyhedron::HalfedgeDS &target) override {
    CGAL::Polyhedron_incremental_builder_3<polyhedron::HalfedgeDS> builder(target);
    const std::size_t count = static_cast<std::size_t>(n) * static_cast<std::size_t>(n);
    builder.begin_surface(count, count, 4 * count);
    for (const kernel::Point_3 &p : vertices(n)) builder.add_vertex(p);
    for (int i = 0; i < n * n; ++i) {
      const quad f = face(n, i);
      builder.add_facet(f.corner, f.corner + 4);
    }
    builder.end_surface();
  }
  int n;
};

void build(polyhedron &p, int n) {
  polyhedron_builder builder(n);
  p.delegate(builder);
}

void build(surface_mesh &m, int n) {
  const auto count = static_cast<unsigned>(n * n);
  m.reserve(count, 2 * count, count);
  for (const kernel::Point_3 &p : vertices(n)) m.add_vertex(p);
  for (int i = 0; i < n * n; ++i) {
    using index = surface_mesh::Vertex_index;
    const quad f = face(n, i);
    m.add_face(index(static_cast<unsigned>(f.corner[0])), index(static_cast<unsigned>(f.corner[1])),
               index(static_cast<unsigned>(f.corner[2])), index(static_cast<unsigned>(f.corner[3])));
  }
}

template <class Mesh, class Count>
void add_peer(const std::string &name, int n, Count right) {
  const auto count = static_cast<std::size_t>(n * n);
  bench::add({name, n * n,
              [n, right, count] {
                Mesh m;
                build(m, n);
                return bench::unless(right(m, count), "vertices or faces");
              },
              [n] {
                Mesh m;
                build(m, n);
                bench::use(&m);
              }});
}

solid *make(int n) {
  constexpr pnt_3d center{0.0, 0.0, 0.0};
  return kx_torus_pnts(&center, major, minor, n, n, nullptr, nullptr);
}

// Every vertex, every ring, and each normal as the cross product of two sides of its face.
std::string check(int n) {
  solid *s = make(n);
  if (s == nullptr) return "no solid";
  const std::vector<kernel::Point_3> want = vertices(n);
  bool right = s->face_count == n * n && s->vertex_count == n * n;
  int i = 0;
  for (const list_item *item = s->vertex_list->head; right && item; item = item->next, ++i) {
    const auto &v = *static_cast<poly_3d *>(item->data);
    const kernel::Point_3 &p = want[static_cast<std::size_t>(i)];
    right = v.seqnr == i && std::hypot(v.x - p.x(), v.y - p.y(), v.z - p.z()) < 1e-9;
  }
  right = right && i == n * n;
  i = 0;
  for (const list_item *item = s->face_list->head; right && item; item = item->next, ++i) {
    const auto &f = *static_cast<polyface_3d *>(item->data);
    const quad ring = face(n, i);
    int sorted[3] = {ring.corner[0], ring.corner[1], ring.corner[2]};
    std::sort(sorted, sorted + 3);
    const auto at = [&](int k) { return want[static_cast<std::size_t>(sorted[k])]; };
    const kernel::Vector_3 normal = CGAL::cross_product(at(0) - at(1), at(2) - at(1));
    right = f.face_number == i && f.vertex_count == 4 && std::equal(ring.corner, ring.corner + 4, f.vertex_numbers) &&
            std::hypot(f.normal.i - normal.x(), f.normal.j - normal.y(), f.normal.k - normal.z()) < 1e-9;
  }
  right = right && i == n * n;
  return bench::unless(kx_purge_solid(s) == 0 && right, "vertex or face " + std::to_string(i));
}

void add_ours(const std::string &family, int n) {
  const auto made = std::make_shared<solid *>(nullptr);
  bench::add({family + "kx:kx_torus_pnts",
              n * n,
              [n] { return check(n); },
              [made, n] { *made = make(n); },
              {},
              [made] { kx_purge_solid(*made); }});
  bench::add(
      {family + "kx:kx_torus_pnts_and_purge", n * n, [n] { return check(n); }, [n] { kx_purge_solid(make(n)); }});
}

void build_blocks(list_hdr &vertices, list_hdr &faces, int n) {
  for (int i = 0; i < n * n; ++i)
    bench::link_record(vertices, bench::make_record(poly_3d{i, 0.0, 0.0, 0.0}), KX_POLY_3D);
  for (int i = 0; i < n * n; ++i) bench::link_record(faces, bench::make_record(polyface_3d{}), KX_POLYFACE_3D);
}

}  // namespace

void bench::add_rows() {
  const std::string family = "torus/200x200/";
  const auto v = std::make_shared<list_hdr>(), f = std::make_shared<list_hdr>();
  add({family + "floor:blocks",
       40000,
       {},
       [=] { build_blocks(*v, *f, 200); },
       {},
       [=] { free_blocks(*v), free_blocks(*f); }});
  add({family + "floor:blocks_and_free", 40000, {}, [] {
         list_hdr vertex_list{}, face_list{};
         build_blocks(vertex_list, face_list, 200);
         free_blocks(vertex_list), free_blocks(face_list);
       }});
  add_peer<polyhedron>(family + "peer:CGAL_Polyhedron_3", 200, [](const polyhedron &p, std::size_t count) {
    return p.size_of_vertices() == count && p.size_of_facets() == count && p.is_closed();
  });
  add_peer<surface_mesh>(family + "peer:CGAL_Surface_mesh", 200, [](const surface_mesh &m, std::size_t count) {
    return m.number_of_vertices() == count && m.number_of_faces() == count;
  });
  add_ours(family, 200);
  add_ours("torus/1000x1000/", 1000);
}
