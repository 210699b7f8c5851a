#include "picture.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <stdexcept>

#include "paint_order.hpp"

namespace kxsolids {

namespace {

constexpr pnt_3d origin{0, 0, 0};
constexpr color white{1, 1, 1};

color mixed(color from, color to, double share) {
  const auto mix = [&](double a, double b) { return a + (b - a) * share; };
  return {mix(from.red, to.red), mix(from.green, to.green), mix(from.blue, to.blue)};
}

// The eye, and what it does to points around the origin.
class camera {
 public:
  camera(const viewer &from, double distance) {
    const sphercoord place{distance, kx_radian(from.theta_deg), kx_radian(from.phi_deg)},
        turn{0, place.theta, place.phi};
    if (kx_sphertorect(&place, &eye) != 0) throw std::runtime_error("nobody can stand there");
    for (auto &[matrix, viewing] : {std::pair{&view_, &place}, std::pair{&turning_, &turn}}) {
      kx_getidmatrix3d(matrix->data());
      kx_viewmatrix3d(viewing, matrix->data());
    }
  }

  pnt_2d seen(const pnt_3d &p) const {
    std::array<double, 3> image{};
    kx_perspective(&p, &origin, view_.data(), image.data());
    return {image[0], image[1]};
  }
  // x to the right, y upwards, z away from the eye.
  pnt_3d turned(const pnt_3d &direction) const {
    pnt_3d image{};
    kx_transformpnt3d(turning_.data(), &direction, &image);
    return image;
  }

  pnt_3d eye{};

 private:
  std::array<double, 16> view_{}, turning_{};
};

// A lamp to the left above the viewer, a weak one from the right below, and some light from everywhere.
color lit(color c, const pnt_3d &normal) {
  const auto facing = [&](const pnt_3d &lamp) { return std::max(0.0, dot(normal, lamp)); };
  const double bright = 0.40 + 0.62 * facing({-0.48, 0.64, -0.6}) + 0.16 * facing({0.8, -0.36, -0.48});
  const double shine = std::pow(facing({-0.268, 0.358, -0.894}), 24) * 0.28;
  return mixed(mixed({0.05, 0.06, 0.10}, c, std::min(1.0, bright)), white,
               std::min(1.0, shine + std::max(0.0, bright - 1)));
}

// What can be seen of the faces; both sides of an open surface.
std::vector<piece> visible(const mesh &m, const pnt_3d &middle, const camera &from) {
  std::vector<piece> found;
  for (const ring &face : convex_faces(m)) {
    piece p{{}, {}, normal_of(m, face)};
    for (const corner &c : face) {
      p.corners.push_back(minus(m.points[static_cast<std::size_t>(c.number)], middle));
      p.edges.push_back(c.edge);
    }
    const double height = p.height(from.eye);
    if (height > 0 || (!m.closed && height < 0)) found.push_back(std::move(p));
  }
  return found;
}

// A square window around what is seen.
rect_2d window_of(const std::vector<pnt_2d> &points) {
  rect_2d r{points[0].x, points[0].y, points[0].x, points[0].y};
  for (const pnt_2d &p : points)
    r = {std::fmin(r.x1, p.x), std::fmin(r.y1, p.y), std::fmax(r.x2, p.x), std::fmax(r.y2, p.y)};
  const double half = std::max(r.x2 - r.x1, r.y2 - r.y1) / 2, x = (r.x1 + r.x2) / 2, y = (r.y1 + r.y2) / 2;
  return {x - half, y - half, x + half, y + half};
}

}  // namespace

void draw(const sheet &page, spot corner, double side, const mesh &m, const viewer &from, color c) {
  const extent box = extent_of(m);
  const double size = box.diagonal();
  if (!(size > 1e-100 && size < 1e100)) throw std::runtime_error("too small or too large to be seen");
  const camera seen_from(from, 2.4 * size);
  const pnt_3d middle = box.middle();

  std::vector<pnt_2d> points;
  points.reserve(m.points.size());
  for (const pnt_3d &p : m.points) points.push_back(seen_from.seen(minus(p, middle)));
  const rect_2d window = window_of(points), viewport{corner.x, corner.y + side, corner.x + side, corner.y};
  if (!(window.x2 > window.x1)) throw std::runtime_error("a line that points at the viewer is not seen");

  // Edges get fainter where faces are small.
  const double faces = static_cast<double>(m.faces.size());
  const double line = std::clamp(side / 60 / std::sqrt(faces), 0.25, 1.0),
               dark = std::clamp(8 / std::sqrt(faces), 0.18, 0.5);
  std::vector<spot> corners;
  for (const piece &p : paint_order(visible(m, middle, seen_from), seen_from.eye, 1e-8 * size)) {
    corners.clear();
    for (const pnt_3d &at : p.corners) {
      pnt_2d image = seen_from.seen(at);
      kx_windowtransform(&window, &viewport, &image, &image);
      corners.push_back({image.x, image.y});
    }
    pnt_3d normal = seen_from.turned(p.normal);
    const bool inside = p.height(seen_from.eye) < 0;
    if (inside) kx_vectormult_3d(&normal, -1, &normal);
    const color shade = lit(inside ? mixed(c, pale, 0.6) : c, normal);
    page.polygon(corners, shade, 1, 0.4);  // its own outline closes the seams
    page.sides(corners, p.edges, line, mixed(shade, ink, dark));
  }
}

}  // namespace kxsolids
