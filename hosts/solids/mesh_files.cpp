#include "mesh_files.hpp"

#include <array>
#include <bit>
#include <fstream>
#include <iomanip>
#include <limits>
#include <stdexcept>

namespace kxsolids {

namespace {

static_assert(std::endian::native == std::endian::little, "an STL file is little-endian");

template <typename write_all>
void write_file(const std::string &path, write_all &&write) {
  std::ofstream out(path, std::ios::binary);
  out << std::setprecision(std::numeric_limits<double>::max_digits10);
  write(out);
  out.close();
  if (!out) throw std::runtime_error(path + ": cannot be written");
}

std::ostream &operator<<(std::ostream &out, const pnt_3d &p) { return out << p.x << ' ' << p.y << ' ' << p.z; }

template <typename number>
void put(std::ostream &out, number value) {
  out.write(reinterpret_cast<const char *>(&value), sizeof value);
}

void put(std::ostream &out, const pnt_3d &p) {
  for (const double value : {p.x, p.y, p.z}) put(out, static_cast<float>(value));
}

// Calls facet(normal, corners) for every triangle.
template <typename facet_type>
void for_each_facet(const mesh &m, const std::vector<ring> &facets, facet_type &&facet) {
  for (const ring &f : facets) {
    std::array<pnt_3d, 3> corners{};
    for (std::size_t i = 0; i < 3; ++i) corners[i] = m.points[static_cast<std::size_t>(f[i].number)];
    facet(normal_of(m, f), corners);
  }
}

}  // namespace

void write_obj(const std::string &path, const std::string &name, const mesh &m) {
  write_file(path, [&](std::ostream &out) {
    out << "o " << name << '\n';
    for (const pnt_3d &p : m.points) out << "v " << p << '\n';
    for (const ring &face : m.faces) {
      out << 'f';
      for (const corner &c : face) out << ' ' << c.number + 1;
      out << '\n';
    }
  });
}

void write_stl(const std::string &path, const std::string &name, const mesh &m, bool as_text) {
  const std::vector<ring> facets = triangles(m);
  if (as_text) {
    return write_file(path, [&](std::ostream &out) {
      out << "solid " << name << '\n';
      for_each_facet(m, facets, [&](const pnt_3d &normal, const std::array<pnt_3d, 3> &corners) {
        out << "facet normal " << normal << "\nouter loop\n";
        for (const pnt_3d &p : corners) out << "vertex " << p << '\n';
        out << "endloop\nendfacet\n";
      });
      out << "endsolid " << name << '\n';
    });
  }
  write_file(path, [&](std::ostream &out) {
    std::string head = name;
    head.resize(80);
    out << head;
    put(out, static_cast<std::uint32_t>(facets.size()));
    for_each_facet(m, facets, [&](const pnt_3d &normal, const std::array<pnt_3d, 3> &corners) {
      put(out, normal);
      for (const pnt_3d &p : corners) put(out, p);
      put(out, std::uint16_t{0});
    });
  });
}

void write_mesh(const std::string &path, const body &b) {
  if (kx_surfacemesh(b.open.get(), path.c_str()) == 0) throw std::runtime_error(path + ": cannot be written");
}

}  // namespace kxsolids
