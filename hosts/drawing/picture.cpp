#include "picture.hpp"

#include <cairo-pdf.h>
#include <cairo-svg.h>
#include <cairo.h>

#include <algorithm>
#include <cmath>
#include <memory>

#include "dxf_file.hpp"

namespace kxdraw {

namespace {

constexpr double longer_side = 1200, shortest_side = 200;

using surface = std::unique_ptr<cairo_surface_t, decltype(&cairo_surface_destroy)>;
using context = std::unique_ptr<cairo_t, decltype(&cairo_destroy)>;

bool ends_with(const std::string &path, const std::string &ending) {
  if (path.size() <= ending.size()) return false;
  return std::equal(ending.rbegin(), ending.rend(), path.rbegin(),
                    [](char a, char b) { return a == (b >= 'A' && b <= 'Z' ? static_cast<char>(b - 'A' + 'a') : b); });
}

surface open_surface(const std::string &path, const picture_size &size) {
  cairo_surface_t *made = nullptr;
  if (ends_with(path, ".pdf")) {
    made = cairo_pdf_surface_create(path.c_str(), size.width, size.height);
  } else if (ends_with(path, ".png")) {
    made = cairo_image_surface_create(CAIRO_FORMAT_RGB24, size.width, size.height);
  } else {
    made = cairo_svg_surface_create(path.c_str(), size.width, size.height);
    if (cairo_surface_status(made) == CAIRO_STATUS_SUCCESS)
      cairo_svg_surface_set_document_unit(made, CAIRO_SVG_UNIT_PX);
  }
  return {made, &cairo_surface_destroy};
}

// A window without width or height would divide by zero: it gets some.
rect_2d window_of(const built_drawing &built) {
  rect_2d window = built.extents;
  const double side = std::max(window.x2 - window.x1, window.y2 - window.y1);
  const double least = side > 0 ? side * 1e-3 : std::max(1.0, std::abs(window.x1) * 1e-6 + std::abs(window.y1) * 1e-6);
  const double wider = std::max(0.0, least - (window.x2 - window.x1)) / 2;
  const double higher = std::max(0.0, least - (window.y2 - window.y1)) / 2;
  return {window.x1 - wider, window.y1 - higher, window.x2 + wider, window.y2 + higher};
}

picture_size fitting_size(const rect_2d &window) {
  const double width = window.x2 - window.x1, height = window.y2 - window.y1;
  const double unit = longer_side / std::max(width, height);
  const auto side = [&](double length) {
    return static_cast<int>(std::lround(std::max(shortest_side, length * unit)));
  };
  return {side(width), side(height)};
}

// The part of the page that the window is mapped to: as large as its shape allows, in the middle, upside down, because
// a page counts downwards.
rect_2d viewport_of(const rect_2d &window, const picture_size &size) {
  const double margin = 0.03 * std::min(size.width, size.height);
  const double width = window.x2 - window.x1, height = window.y2 - window.y1;
  const double unit = std::min((size.width - 2 * margin) / width, (size.height - 2 * margin) / height);
  const double left = (size.width - width * unit) / 2, top = (size.height - height * unit) / 2;
  return {left, top + height * unit, left + width * unit, top};
}

class painter {
 public:
  painter(cairo_t *page, const rect_2d &window, const rect_2d &viewport, double line_width, library_time &time)
      : page_(page), window_(window), viewport_(viewport), line_width_(line_width), time_(time) {
    cairo_set_line_width(page, line_width);
    cairo_set_line_cap(page, CAIRO_LINE_CAP_ROUND);
    cairo_set_line_join(page, CAIRO_LINE_JOIN_ROUND);
  }

  void paint(const drawn_path &path) {
    std::vector<pnt_2d> points;
    points.reserve(static_cast<std::size_t>(path.points.size()));
    time_.measure(call_group::viewport, path.points.size(), [&] {
      for_each_point(path.points.get(), [&](double x, double y) {
        const pnt_2d at{x, y};
        pnt_2d on_page{0, 0};
        kx_windowtransform(&window_, &viewport_, &at, &on_page);
        points.push_back(on_page);
      });
    });
    if (points.empty()) return;
    cairo_set_source_rgb(page_, path.color.red, path.color.green, path.color.blue);
    if (points.size() == 1) return cross(points.front());
    cairo_move_to(page_, points.front().x, points.front().y);
    for (std::size_t i = 1; i < points.size(); ++i) cairo_line_to(page_, points[i].x, points[i].y);
    if (path.closed) cairo_close_path(page_);
    if (path.filled) cairo_fill_preserve(page_);
    cairo_stroke(page_);
  }

 private:
  void cross(const pnt_2d &at) {
    const double arm = 3 * line_width_;
    cairo_move_to(page_, at.x - arm, at.y);
    cairo_line_to(page_, at.x + arm, at.y);
    cairo_move_to(page_, at.x, at.y - arm);
    cairo_line_to(page_, at.x, at.y + arm);
    cairo_stroke(page_);
  }

  cairo_t *page_;
  rect_2d window_, viewport_;
  double line_width_;
  library_time &time_;
};

}  // namespace

bool is_picture_name(const std::string &path) {
  return ends_with(path, ".svg") || ends_with(path, ".png") || ends_with(path, ".pdf");
}

picture_size write_picture(const built_drawing &built, const std::string &path, picture_size size, library_time &time,
                           const std::function<void(double)> &progress) {
  const rect_2d window = window_of(built);
  if (size.width == 0) size = fitting_size(window);
  const surface target = open_surface(path, size);
  const context page(cairo_create(target.get()), &cairo_destroy);
  cairo_set_source_rgb(page.get(), 1, 1, 1);
  cairo_paint(page.get());

  painter brush(page.get(), window, viewport_of(window, size), std::max(size.width, size.height) / 1000.0, time);
  for (const drawn_path &drawn : built.paths) {
    brush.paint(drawn);
    progress(static_cast<double>(&drawn - built.paths.data()) / static_cast<double>(built.paths.size()));
  }

  cairo_status_t status = cairo_status(page.get());
  if (status == CAIRO_STATUS_SUCCESS && ends_with(path, ".png"))
    status = cairo_surface_write_to_png(target.get(), path.c_str());
  cairo_surface_finish(target.get());
  if (status == CAIRO_STATUS_SUCCESS) status = cairo_surface_status(target.get());
  if (status != CAIRO_STATUS_SUCCESS) throw drawing_error(path + ": " + cairo_status_to_string(status));
  return size;
}

}  // namespace kxdraw
