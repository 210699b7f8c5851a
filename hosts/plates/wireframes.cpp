// Boxes as wireframes, seen by several viewers: a matrix, perspective or not, and the window on the viewport.
#include <kxgeom.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <memory>
#include <stdexcept>

#include "plates.hpp"

namespace kxplates {

namespace {

using space_matrix = std::array<double, 16>;

struct purge {
  void operator()(list_hdr *list) const { kx_purge_polygon(list); }
};
using point_list = std::unique_ptr<list_hdr, purge>;

point_list owned(list_hdr *list) {
  if (list == nullptr) throw std::runtime_error("not enough memory");
  return point_list(list);
}

// ---- the boxes ----

struct box {
  std::array<pnt_3d, 8> corners;  // bit 0 of the number: the far one in x, bit 1: in y, bit 2: in z
  color c;
};

box make_box(const pnt_3d &low, const pnt_3d &high, color c, double turned = 0) {
  box made{{}, c};
  const pnt_3d middle{(low.x + high.x) / 2, (low.y + high.y) / 2, 0};
  const line_3d axis{middle.x, middle.y, 0, middle.x, middle.y, 1};
  for (std::size_t i = 0; i < made.corners.size(); ++i) {
    made.corners[i] = {i & 1 ? high.x : low.x, i & 2 ? high.y : low.y, i & 4 ? high.z : low.z};
    kx_rotatepnt3d(3, turned, &axis, &made.corners[i], &made.corners[i]);
  }
  return made;
}

const std::array<box, 5> &boxes() {
  static const std::array<box, 5> all = {
      make_box({-5, -3.6, -2.2}, {5, 3.6, -1.8}, pale), make_box({-4, -2.4, -1.8}, {-2, -0.4, 3.6}, blue),
      make_box({-0.6, 0.6, -1.8}, {4, 2.8, 0.4}, green), make_box({0.4, 1, 0.4}, {1.8, 2.4, 2.4}, red),
      make_box({1.2, -2.6, -1.8}, {3.2, -1.2, -0.4}, orange, 30)};
  return all;
}

// ---- what a viewer sees ----

struct viewer {
  std::string name;
  double r, theta_deg, phi_deg;

  sphercoord place(double distance) const { return {distance, kx_radian(theta_deg), kx_radian(phi_deg)}; }
};

space_matrix view_matrix(const sphercoord &place) {
  space_matrix m;
  kx_getidmatrix3d(m.data());
  kx_viewmatrix3d(&place, m.data());
  return m;
}

struct view {
  viewer from;
  bool perspective;
  std::vector<pnt_2d> points;  // eight for each box
  std::vector<double> depths;
  std::array<pnt_3d, 3> axes;  // seen directions of the world's axes
  int astray = 0;              // points whose depth or place is not what the eye's place says

  rect_2d extent() const {
    const auto [left, right] =
        std::minmax_element(points.begin(), points.end(), [](const pnt_2d &a, const pnt_2d &b) { return a.x < b.x; });
    const auto [low, high] =
        std::minmax_element(points.begin(), points.end(), [](const pnt_2d &a, const pnt_2d &b) { return a.y < b.y; });
    return {left->x, low->y, right->x, high->y};
  }
};

view look(const viewer &from, bool perspective) {
  view seen{from, perspective, {}, {}, {}};
  const sphercoord place = from.place(from.r);
  const space_matrix matrix = view_matrix(place), turning = view_matrix(from.place(0));
  const pnt_3d origin{0, 0, 0};
  pnt_3d eye{};
  kx_sphertorect(&place, &eye);
  for (const box &b : boxes()) {
    for (const pnt_3d &corner : b.corners) {
      pnt_3d flat{};
      std::array<double, 3> shrunk{};
      kx_transformpnt3d(matrix.data(), &corner, &flat);
      kx_perspective(&corner, &origin, matrix.data(), shrunk.data());
      const double depth = from.r - (corner.x * eye.x + corner.y * eye.y + corner.z * eye.z) / from.r;
      const double off = std::fmax(std::hypot(shrunk[0] * depth - flat.x, shrunk[1] * depth - flat.y),
                                   std::fmax(std::fabs(shrunk[2] - depth), std::fabs(flat.z - depth)));
      if (!(off < 1e-7)) ++seen.astray;
      seen.points.push_back(perspective ? pnt_2d{shrunk[0], shrunk[1]} : pnt_2d{flat.x, flat.y});
      seen.depths.push_back(depth);
    }
  }
  const std::array<pnt_3d, 3> units{{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};
  for (std::size_t i = 0; i < units.size(); ++i) kx_transformpnt3d(turning.data(), &units[i], &seen.axes[i]);
  return seen;
}

// ---- what there is ----

struct views {
  std::vector<view> parallel, perspective, nearing;
  std::vector<std::string> told;
};

std::string degrees(double value) { return std::to_string(static_cast<int>(value)); }

std::shared_ptr<const views> look_at_all() {
  auto all = std::make_shared<views>();
  const std::array<viewer, 6> viewers{{{"straight above", 16, 0, 0},
                                       {"high", 16, 35, 55},
                                       {"low", 16, 316, 71},
                                       {"from behind", 16, 145, 60},
                                       {"from below", 16, 230, 125},
                                       {"straight below", 16, 0, 180}}};
  const auto keep = [&](std::vector<view> &row, view seen) {
    all->told.push_back(seen.from.name + (seen.perspective ? " in perspective: " : " parallel: ") +
                        std::to_string(seen.points.size()) + " points, " + std::to_string(seen.astray) + " astray");
    row.push_back(std::move(seen));
  };
  for (const viewer &from : viewers) keep(all->parallel, look(from, false));
  for (const viewer &from : viewers) keep(all->perspective, look(from, true));
  for (const double r : {80., 32., 20., 14., 11., 9.})
    keep(all->nearing, look({"r = " + degrees(r), r, 305, 64}, true));
  return all;
}

// ---- drawing ----

constexpr double margin = 28, gap = 8, columns = 6, page_width = 1438;
constexpr double side = (page_width - 2 * margin + gap) / columns - gap, band = 50;

color between(color from, color to, double share) {
  const auto mix = [&](double a, double b) { return a + (b - a) * share; };
  return {mix(from.red, to.red), mix(from.green, to.green), mix(from.blue, to.blue)};
}

// The points on the page: one list through the library's window and viewport.
std::vector<spot> on_page(const view &seen, double width, spot corner) {
  const rect_2d extent = seen.extent();
  const double x = (extent.x1 + extent.x2 - width) / 2, y = (extent.y1 + extent.y2 - width) / 2;
  const rect_2d window{x, y, x + width, y + width};
  const rect_2d viewport{corner.x, corner.y + side, corner.x + side, corner.y};  // a page counts downwards
  auto count = static_cast<std::int32_t>(seen.points.size());
  const point_list list = owned(kx_pnt2d_array_to_list(seen.points.data(), count, KX_POLY_2D, 0, 1));
  const point_list mapped = owned(kx_viewplanetrf(list.get(), &viewport, &window));
  std::vector<pnt_2d> points(seen.points.size());
  kx_get_xypolyheap(mapped.get(), points.data(), &count);
  std::vector<spot> spots;
  spots.reserve(points.size());
  for (const pnt_2d &p : points) spots.push_back({p.x, p.y});
  return spots;
}

struct edge {
  std::size_t from, to;
  double depth;
  color c;
};

// All edges, the farthest first and palest.
std::vector<edge> edges_of(const view &seen) {
  std::vector<edge> edges;
  for (std::size_t b = 0; b < boxes().size(); ++b) {
    for (std::size_t i = 0; i < 8; ++i) {
      for (const std::size_t step : {1u, 2u, 4u}) {
        const std::size_t from = 8 * b + i, to = from + step;
        if ((i & step) == 0) edges.push_back({from, to, (seen.depths[from] + seen.depths[to]) / 2, boxes()[b].c});
      }
    }
  }
  std::sort(edges.begin(), edges.end(), [](const edge &x, const edge &y) { return x.depth > y.depth; });
  const double far = edges.front().depth, near = edges.back().depth;
  for (edge &e : edges) e.c = between(e.c, cell, 0.6 * (e.depth - near) / (far - near));
  return edges;
}

// The directions of the world's axes; one that points at the viewer or away is a dot.
void draw_axes(const sheet &page, spot middle, const view &seen) {
  const char *const names[] = {"x", "y", "z"};
  for (std::size_t i = 0; i < 3; ++i) {
    const double x = seen.axes[i].x, y = -seen.axes[i].y, length = std::hypot(x, y), arm = 18;
    if (length < 0.15) {
      page.disc(middle, 2.2, ink);
      continue;
    }
    page.arrow(middle, {middle.x + arm * x, middle.y + arm * y}, 1, ink);
    const double out = arm * length + 5;
    page.text({middle.x + out * x / length, middle.y + out * y / length + 3.5}, names[i], 10, ink, false,
              sheet::align::centre);
  }
}

void draw(const sheet &page, spot corner, const view &seen, double width) {
  page.box(corner, side, side + band, cell);
  page.text({corner.x + 10, corner.y + 20}, seen.from.name, 13, ink, true);
  page.text({corner.x + 10, corner.y + 37},
            "theta " + degrees(seen.from.theta_deg) + ", phi " + degrees(seen.from.phi_deg), 12, pale);
  draw_axes(page, {corner.x + side - 33, corner.y + 31}, seen);
  const std::vector<spot> points = on_page(seen, width, {corner.x, corner.y + band});
  for (const edge &e : edges_of(seen)) page.line(points[e.from], points[e.to], 1.4, e.c);
}

// The longer side of what is seen.
double width_of(const view &seen) {
  const rect_2d extent = seen.extent();
  return std::max(extent.x2 - extent.x1, extent.y2 - extent.y1);
}

double width_of(const std::vector<view> &row) {
  double widest = 0;
  for (const view &seen : row) widest = std::max(widest, width_of(seen));
  return widest;
}

void paint(const sheet &page, const views &all) {
  constexpr double air = 1.12;
  page.text({margin, 44}, "Five boxes and who looks at them", 22, ink, true);
  double y = 84;
  const auto row = [&](const std::vector<view> &seen, const std::string &heading, double width) {
    page.text({margin, y}, heading, 13, pale);
    y += 10;
    for (std::size_t i = 0; i < seen.size(); ++i)
      draw(page, {margin + static_cast<double>(i) * (side + gap), y}, seen[i],
           air * (width > 0 ? width : width_of(seen[i])));
    y += side + band + 34;
  };
  row(all.parallel, "kx_viewmatrix3d, kx_transformpnt3d: parallel, angles in degrees", width_of(all.parallel));
  row(all.perspective, "kx_viewmatrix3d, kx_perspective: the same viewers at the distance 16",
      width_of(all.perspective));
  row(all.nearing, "one viewer comes nearer; kx_viewplanetrf fits what is seen into the same square", 0);
}

}  // namespace

plate wireframes() {
  const std::shared_ptr<const views> all = look_at_all();
  return {"wireframes",
          {page_width, 94 + 3 * (side + band + 34) - 34 + 10 + margin},
          [all](const sheet &page) { paint(page, *all); },
          all->told};
}

}  // namespace kxplates
