#include "primitives.hpp"

#include <algorithm>
#include <cmath>
#include <new>
#include <stdexcept>

namespace kxsolids {

namespace {

constexpr pnt_3d origin{0, 0, 0};
constexpr auto not_negative = bound::zero_or_more, any = bound::any;

owned_list profile_list(const request &r) {
  return owned_list(
      kx_pnt2d_array_to_list(r.profile.data(), static_cast<std::int32_t>(r.profile.size()), KX_POLY_2D, 0, 1));
}

body sphere_body(const request &r) {
  solid *s = kx_sphere_pnts(&origin, r.numbers[0], r.sectors, r.stacks, nullptr);
  return kx_transform_solid_vector(s, &r.axis);  // the only builder without an axis
}

body cylinder_body(const request &r) {
  const double *n = r.numbers.data();
  std::int32_t sectors = r.sectors;
  return kx_cylinder_pnts(&origin, n[0], n[1], n[2], &sectors, &r.axis, nullptr);
}

body hcylinder_body(const request &r) {
  const double *n = r.numbers.data();
  std::int32_t sectors = r.sectors;
  return kx_hcylinder_pnts(&origin, n[0], n[1], n[2], n[3], n[4], &sectors, &r.axis, nullptr);
}

body cone_body(const request &r) {
  const double *n = r.numbers.data();
  std::int32_t sectors = r.sectors;
  return kx_cone_pnts(&origin, n[0], n[1], n[2], &sectors, &r.axis, nullptr);
}

body prism_body(const request &r) {
  const double *n = r.numbers.data();
  std::int32_t sectors = r.sectors;
  return kx_prism_pnts(&origin, n[0], n[1], n[2], n[3], n[4], &sectors, &r.axis, nullptr);
}

body bodyrev_body(const request &r) {
  std::int32_t sectors = r.sectors;
  return kx_bodyrevolution(&origin, profile_list(r).get(), r.numbers[0], r.numbers[1], &sectors, &r.axis, nullptr);
}

body extbody_body(const request &r) {
  return kx_extbody_pnts(&origin, profile_list(r).get(), r.numbers[0], &r.axis, nullptr);
}

template <auto builder>
body polyhedron(const request &r) {
  return builder(&origin, r.numbers[0], &r.axis, nullptr);
}

template <auto builder>
body hyperbolic(const request &r) {
  const double *n = r.numbers.data();
  return builder(&origin, n[0], n[1], n[2], n[3], n[4], r.sectors, r.stacks, &r.axis, nullptr);
}

// Ripples around the middle of a square.
body ripples(const request &r) {
  if (r.sectors < 1 || r.sectors > 999) return nullptr;
  const double size = r.numbers[0], height = r.numbers[1];
  std::vector<pnt_3d> points;
  for (std::int32_t i = 0; i <= r.sectors; ++i) {
    for (std::int32_t k = 0; k <= r.sectors; ++k) {
      const double x = k / static_cast<double>(r.sectors) - 0.5, y = i / static_cast<double>(r.sectors) - 0.5;
      const double away = 20 * std::hypot(x, y);
      points.push_back({x * size, y * size, height * std::cos(away) / (1 + away / 2)});
    }
  }
  owned_surface made(kx_create_surface());
  if (!made) throw std::bad_alloc();
  made->steps_u = made->steps_v = r.sectors;
  made->vertices = kx_pnt3d_array_to_list(points.data(), static_cast<std::int32_t>(points.size()), KX_POLY_3D, 0, 1);
  made->faces = ll_create_list();
  if (made->vertices == nullptr || made->faces == nullptr ||
      kx_build_surface_face_list(r.sectors + 1, r.sectors + 1, made->faces, made->vertices) == 0)
    throw std::bad_alloc();
  return made;
}

request round(std::int32_t sectors, std::int32_t stacks = 0, std::vector<pnt_2d> profile = {}) {
  return {{}, sectors, stacks, std::move(profile), {}};
}

const std::vector<pnt_2d> vase = {{0, 0},     {1.1, 0},    {1.2, 0.2}, {1.7, 1.2}, {1.6, 2.1},
                                  {0.8, 3.2}, {0.7, 3.7},  {1, 4.3},   {0.9, 4.3}, {0.6, 3.7},
                                  {0.7, 3.1}, {1.45, 2.1}, {1.5, 1.2}, {1, 0.2},   {0, 0.2}};
const std::vector<pnt_2d> girder = {{-2, -2}, {2, -2}, {2, -1.4}, {0.4, -1.2}, {0.4, 1.2},   {2, 1.4},
                                    {2, 2},   {-2, 2}, {-2, 1.4}, {-0.4, 1.2}, {-0.4, -1.2}, {-2, -1.4}};

}  // namespace

const std::vector<primitive> &primitives() {
  static const std::vector<parameter> size = {{"size", 2}};
  static const std::vector<parameter> quadric = {
      {"diameter_x", 2}, {"diameter_y", 2}, {"diameter_z", 2}, {"bottom", -2, any}, {"top", 2, any}};
  static const std::vector<primitive> all = {
      {"block",
       "",
       {{"size_x", 4}, {"size_y", 3}, {"size_z", 2}},
       {},
       [](const request &r) -> body {
         return kx_block_pnts(&origin, r.numbers[0], r.numbers[1], r.numbers[2], &r.axis, nullptr);
       }},
      {"pyramid",
       "on a rectangle",
       {{"size_x", 3}, {"size_y", 3}, {"height", 3}},
       {},
       [](const request &r) -> body {
         return kx_pyramid_pnts(&origin, r.numbers[0], r.numbers[1], r.numbers[2], &r.axis, nullptr);
       }},
      {"prism",
       "on a regular polygon, its top moved by the shifts",
       {{"diameter_x", 3}, {"diameter_y", 3}, {"height", 3}, {"shift_x", 0, any}, {"shift_y", 0, any}},
       round(6),
       prism_body},
      {"tetrahedron", "", size, {}, polyhedron<kx_tetrahedron_pnts>},
      {"hexahedron", "", size, {}, polyhedron<kx_hexahedron_pnts>},
      {"octahedron", "", size, {}, polyhedron<kx_octahedron_pnts>},
      {"dodecahedron", "", size, {}, polyhedron<kx_dodecahedron_pnts>},
      {"icosahedron", "", size, {}, polyhedron<kx_icosahedron_pnts>},
      {"cylinder", "", {{"diameter_x", 3}, {"diameter_y", 3}, {"height", 3}}, round(32), cylinder_body},
      {"hcylinder",
       "with a bore",
       {{"outer_x", 3}, {"outer_y", 3}, {"inner_x", 2, not_negative}, {"inner_y", 2, not_negative}, {"height", 3}},
       round(32),
       hcylinder_body},
      {"cone",
       "",
       {{"bottom_diameter", 3, not_negative}, {"top_diameter", 0, not_negative}, {"height", 3}},
       round(32),
       cone_body},
      {"sphere", "", {{"radius", 2}}, round(32, 16), sphere_body},
      {"ellipsoid",
       "",
       {{"diameter_x", 4}, {"diameter_y", 3}, {"diameter_z", 2}},
       round(32, 16),
       [](const request &r) -> body {
         const double *n = r.numbers.data();
         return kx_ellipsoid_pnts(&origin, n[0], n[1], n[2], r.sectors, r.stacks, &r.axis, nullptr);
       }},
      {"dome",
       "the top of a ball",
       {{"radius", 2}, {"height", 1.5}},
       round(32, 8),
       [](const request &r) -> body {
         return kx_spherical_dome_pnts(&origin, r.numbers[0], r.numbers[1], r.sectors, r.stacks, &r.axis, nullptr);
       }},
      {"cup",
       "half a ball, hollow",
       {{"radius", 2}, {"thickness", 0.3}},
       round(32, 8),
       [](const request &r) -> body {
         return kx_spherical_cup_pnts(&origin, r.numbers[0], r.numbers[1], r.sectors, r.stacks, &r.axis, nullptr);
       }},
      {"torus",
       "",
       {{"radius_1", 3}, {"radius_2", 1}},
       round(48, 24),
       [](const request &r) -> body {
         return kx_torus_pnts(&origin, r.numbers[0], r.numbers[1], r.sectors, r.stacks, &r.axis, nullptr);
       }},
      {"paraboloid",
       "",
       {{"diameter_x", 3}, {"diameter_y", 3}, {"height", 3}},
       round(32, 10),
       [](const request &r) -> body {
         const double *n = r.numbers.data();
         return kx_paraboloid_pnts(&origin, n[0], n[1], n[2], r.sectors, r.stacks, &r.axis, nullptr);
       }},
      {"hyperboloid", "the upper sheet of two", quadric, round(32, 10), hyperbolic<kx_hyperboloid_pnts>},
      {"hyperboloid1s", "of one sheet", quadric, round(32, 12), hyperbolic<kx_hyperboloid1s>},
      {"hyperboloid2s", "both sheets of two", quadric, round(32, 10), hyperbolic<kx_hyperboloid2s>},
      {"bodyrev",
       "a profile turned about the z axis",
       {{"start_deg", 0, any}, {"sweep_deg", 360, any}},
       round(40, 0, vase),
       bodyrev_body},
      {"extbody", "a profile moved along the z axis", {{"height", 4}}, round(0, 0, girder), extbody_body},
      {"ripples", "an open surface, not a solid", {{"size", 6}, {"height", 1, any}}, round(40), ripples, false},
  };
  return all;
}

const primitive &find_primitive(const std::string &name) {
  const auto found =
      std::find_if(primitives().begin(), primitives().end(), [&](const primitive &p) { return p.name == name; });
  if (found == primitives().end())
    throw std::invalid_argument("no body is called " + name + "; kxsolids list names them");
  return *found;
}

request usual_request(const primitive &p, const std::vector<double> &numbers) {
  request r = p.usual;
  r.numbers = numbers;
  for (std::size_t i = numbers.size(); i < p.parameters.size(); ++i) r.numbers.push_back(p.parameters[i].usual);
  return r;
}

body build(const primitive &p, const request &r) {
  const std::string name = p.name;
  if (r.numbers.size() > p.parameters.size())
    throw std::invalid_argument("a " + name + " takes no more than " + std::to_string(p.parameters.size()) +
                                " numbers");
  for (std::size_t i = 0; i < p.parameters.size(); ++i) {
    const auto &[parameter_name, usual, least] = p.parameters[i];
    if ((least == bound::above_zero && !(r.numbers[i] > 0)) || (least == bound::zero_or_more && !(r.numbers[i] >= 0)))
      throw std::invalid_argument(name + ": " + parameter_name +
                                  (least == bound::above_zero ? " is to be above 0" : " is to be 0 or more"));
  }
  const auto needs = [&](bool given, bool taken, const char *what) {
    if (given && !taken) throw std::invalid_argument(name + " has no " + what);
  };
  needs(r.sectors != 0, p.usual.sectors != 0, "sectors");
  needs(r.stacks != 0, p.usual.stacks != 0, "stacks");
  needs(!r.profile.empty(), !p.usual.profile.empty(), "profile");
  needs(r.axis.length != 0, p.turns, "axis");
  body built = p.build(r);
  if (!built) throw std::invalid_argument("the library builds no " + name + " of this");
  return built;
}

}  // namespace kxsolids
