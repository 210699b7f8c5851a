#include "gallery.hpp"

#include <cmath>
#include <cstdio>
#include <numbers>

#include "picture.hpp"
#include "primitives.hpp"

namespace kxsolids {

namespace {

constexpr double margin = 28, gap = 8, band = 46, side = 172;
constexpr int columns = 8;
constexpr color violet{0.42, 0.32, 0.66}, gold{0.80, 0.60, 0.10}, teal{0.07, 0.52, 0.56};

struct shown {
  const char *title, *name;
  color c;
  std::vector<double> numbers = {};
  std::int32_t sectors = 0, stacks = 0;
  double axis[3] = {0, 0, 0};
  viewer from = {};
};

const std::vector<shown> &bodies() {
  static const std::vector<shown> all = {
      {"tetrahedron", "tetrahedron", orange, {}, 0, 0, {0, 0, 0}, {345, 58}},
      {"hexahedron", "hexahedron", orange},
      {"octahedron", "octahedron", orange},
      {"dodecahedron", "dodecahedron", orange},
      {"icosahedron", "icosahedron", orange},
      {"block", "block", gold},
      {"block, turned", "block", gold, {4, 2, 1}, 0, 0, {1, 1, 2}},
      {"pyramid", "pyramid", gold},

      {"prism, six sides", "prism", gold},
      {"prism, oblique", "prism", gold, {3, 2, 3, 1.2, 0.4}, 5},
      {"cylinder", "cylinder", blue},
      {"cylinder, lying", "cylinder", blue, {2, 1.2, 4}, 32, 0, {1, 0.6, 0}},
      {"hollow cylinder", "hcylinder", blue},
      {"hollow, off round", "hcylinder", blue, {4, 3, 3.2, 1.4, 1.4}, 48},
      {"cone", "cone", blue},
      {"cone, truncated", "cone", blue, {3, 1.4, 2.2}},

      {"sphere", "sphere", green},
      {"ellipsoid", "ellipsoid", green},
      {"dome", "dome", green},
      {"cup", "cup", green, {2, 0.3}, 32, 8, {0, 0, 0}, {305, 50}},
      {"torus", "torus", red},
      {"torus, thin", "torus", red, {3, 0.4}, 60, 12},
      {"torus, turned", "torus", red, {2, 0.9}, 36, 18, {1, -1, 0.5}},
      {"torus, 6 by 4", "torus", red, {3, 1.2}, 6, 4},

      {"paraboloid", "paraboloid", violet},
      {"hyperboloid, turned", "hyperboloid", violet, {}, 0, 0, {0, 0, -1}},
      {"hyperboloid, 1 sheet", "hyperboloid1s", violet},
      {"hyperboloid, 2 sheets", "hyperboloid2s", violet},
      {"body of revolution", "bodyrev", teal},
      {"its three quarters", "bodyrev", teal, {25, 270}, 30},
      {"extruded body", "extbody", teal, {4}, 0, 0, {1, -0.5, 0.2}, {285, 64}},
      {"surface", "ripples", pale, {}, 32, 0, {0, 0, 0}, {305, 55}},
  };
  return all;
}

body make(const shown &s) {
  const primitive &p = find_primitive(s.name);
  request r = usual_request(p, s.numbers);
  if (s.sectors != 0) r.sectors = s.sectors;
  if (s.stacks != 0) r.stacks = s.stacks;
  kx_set_vector_3d(s.axis[0], s.axis[1], s.axis[2], 0, 0, &r.axis);
  kx_vector_normalize(&r.axis);
  return build(p, r);
}

void cell_at(const sheet &page, spot corner, const shown &s, const mesh &m, const std::string &words) {
  page.box(corner, side, side + band, cell);
  page.text({corner.x + 10, corner.y + 20}, s.title, 13, ink, true);
  page.text({corner.x + 10, corner.y + 37}, words, 11.5, pale);
  constexpr double air = 14;
  draw(page, {corner.x + air, corner.y + band + air / 2}, side - 2 * air, m, s.from, s.c);
}

spot place(std::size_t i, double top) {
  const std::size_t row = i / columns;
  return {margin + static_cast<double>(i % columns) * (side + gap),
          top + static_cast<double>(row) * (side + band + gap)};
}

// A body of more and more sectors, and its volume against that of the round one.
void growing(const sheet &page, double top) {
  for (std::size_t i = 0; i < columns; ++i) {
    const bool ball = i < columns / 2;
    const std::int32_t sectors = 6 << (i % (columns / 2));
    const shown s{ball ? "sphere" : "torus", ball ? "sphere" : "torus", ball ? green : red, {}, sectors, sectors / 2};
    const mesh m = mesh_of(make(s));
    const double round = ball ? 32 * std::numbers::pi / 3 : 6 * std::numbers::pi * std::numbers::pi;
    char words[80];
    std::snprintf(words, sizeof words, "%d by %d: %.2f %%", sectors, sectors / 2, 100 * measure(m).volume / round);
    cell_at(page, place(i, top), s, m, words);
  }
}

}  // namespace

void write_gallery(const std::string &folder) {
  std::vector<mesh> meshes;
  for (const shown &s : bodies()) meshes.push_back(mesh_of(make(s)));
  const std::size_t rows = meshes.size() / columns;
  const double first = 84, second = first + static_cast<double>(rows) * (side + band + gap) + 26;
  const auto paint = [&](const sheet &page) {
    page.text({margin, 44}, "The solids of the library", 22, ink, true);
    page.text({margin, 68}, "as their builders make them, seen by kx_viewmatrix3d, kx_perspective, kx_windowtransform",
              13, pale);
    for (std::size_t i = 0; i < meshes.size(); ++i) {
      const mesh &m = meshes[i];
      cell_at(page, place(i, first), bodies()[i], m,
              std::to_string(m.points.size()) + " vertices, " + std::to_string(m.faces.size()) + " faces");
    }
    page.text({margin, second - 10}, "more and more sectors, and their volume as a part of the round body's", 13, pale);
    growing(page, second);
  };
  write_plate(folder, "solids", {2 * margin + columns * (side + gap) - gap, second + side + band + margin}, paint);
}

}  // namespace kxsolids
