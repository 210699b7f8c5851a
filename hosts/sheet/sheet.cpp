#include "sheet.hpp"

#include <cairo-svg.h>

#include <cmath>
#include <memory>
#include <stdexcept>

namespace kxsheet {

namespace {

constexpr double full_turn = 6.283185307179586;

using surface = std::unique_ptr<cairo_surface_t, decltype(&cairo_surface_destroy)>;
using context = std::unique_ptr<cairo_t, decltype(&cairo_destroy)>;

void fill_page(cairo_surface_t *target, double scale, const painting &paint) {
  const context page(cairo_create(target), &cairo_destroy);
  cairo_scale(page.get(), scale, scale);
  cairo_set_source_rgb(page.get(), paper.red, paper.green, paper.blue);
  cairo_paint(page.get());
  cairo_set_line_cap(page.get(), CAIRO_LINE_CAP_ROUND);
  cairo_set_line_join(page.get(), CAIRO_LINE_JOIN_ROUND);
  paint(sheet(page.get()));
  if (cairo_status(page.get()) != CAIRO_STATUS_SUCCESS)
    throw std::runtime_error(cairo_status_to_string(cairo_status(page.get())));
}

void check(const std::string &path, cairo_status_t status) {
  if (status != CAIRO_STATUS_SUCCESS) throw std::runtime_error(path + ": " + cairo_status_to_string(status));
}

}  // namespace

void sheet::text(spot at, const std::string &words, double size, color c, bool bold, align a) const {
  use(c);
  cairo_select_font_face(page_, "sans-serif", CAIRO_FONT_SLANT_NORMAL,
                         bold ? CAIRO_FONT_WEIGHT_BOLD : CAIRO_FONT_WEIGHT_NORMAL);
  cairo_set_font_size(page_, size);
  cairo_text_extents_t extents;
  cairo_text_extents(page_, words.c_str(), &extents);
  cairo_save(page_);
  cairo_translate(page_, at.x, at.y);
  if (a == align::upright) cairo_rotate(page_, -full_turn / 4);
  cairo_move_to(page_, a == align::left ? 0 : -extents.x_advance / 2, 0);
  cairo_show_text(page_, words.c_str());
  cairo_restore(page_);
}

void sheet::box(spot corner, double width, double height, color fill) const {
  use(fill);
  cairo_rectangle(page_, corner.x, corner.y, width, height);
  cairo_fill(page_);
}

void sheet::line(spot from, spot to, double width, color c, bool dashed) const {
  use(c);
  const double dashes[] = {1.5, 3};
  if (dashed) cairo_set_dash(page_, dashes, 2, 0);
  cairo_set_line_width(page_, width);
  cairo_move_to(page_, from.x, from.y);
  cairo_line_to(page_, to.x, to.y);
  cairo_stroke(page_);
  cairo_set_dash(page_, nullptr, 0, 0);
}

void sheet::sides(const std::vector<spot> &corners, const std::vector<bool> &drawn, double width, color c) const {
  use(c);
  cairo_set_line_width(page_, width);
  cairo_new_path(page_);
  for (std::size_t i = 0; i < corners.size(); ++i) {
    const spot &to = corners[(i + 1) % corners.size()];
    if (i == 0 || !drawn[i - 1]) cairo_move_to(page_, corners[i].x, corners[i].y);
    if (drawn[i]) cairo_line_to(page_, to.x, to.y);
  }
  cairo_stroke(page_);
}

// The tip is exactly at the end.
void sheet::arrow(spot from, spot to, double width, color c) const {
  const double length = std::hypot(to.x - from.x, to.y - from.y), head = 4.2 * width, half = 1.7 * width;
  if (length == 0) return disc(from, 1.6 * width, c);
  const double ux = (to.x - from.x) / length, uy = (to.y - from.y) / length;
  const spot neck{to.x - head * ux, to.y - head * uy};
  line(from, neck, width, c);
  cairo_move_to(page_, to.x, to.y);
  cairo_line_to(page_, neck.x - half * uy, neck.y + half * ux);
  cairo_line_to(page_, neck.x + half * uy, neck.y - half * ux);
  cairo_close_path(page_);
  cairo_fill(page_);
}

void sheet::disc(spot at, double radius, color fill) const {
  use(fill);
  cairo_arc(page_, at.x, at.y, radius, 0, full_turn);
  cairo_fill(page_);
}

void sheet::ring(spot at, double radius, double width, color c) const {
  use(c);
  cairo_set_line_width(page_, width);
  cairo_new_sub_path(page_);
  cairo_arc(page_, at.x, at.y, radius, 0, full_turn);
  cairo_stroke(page_);
}

void sheet::polygon(const std::vector<spot> &corners, color c, double opacity, double width) const {
  cairo_new_path(page_);
  for (const spot &corner : corners) cairo_line_to(page_, corner.x, corner.y);
  cairo_close_path(page_);
  use(c, opacity);
  cairo_fill_preserve(page_);
  use(c);
  cairo_set_line_width(page_, width);
  cairo_stroke(page_);
}

void write_svg(const std::string &path, spot size, const painting &paint) {
  const surface drawing(cairo_svg_surface_create(path.c_str(), size.x, size.y), &cairo_surface_destroy);
  check(path, cairo_surface_status(drawing.get()));
  cairo_svg_surface_set_document_unit(drawing.get(), CAIRO_SVG_UNIT_PX);
  fill_page(drawing.get(), 1, paint);
  cairo_surface_finish(drawing.get());
  check(path, cairo_surface_status(drawing.get()));
}

void write_png(const std::string &path, spot size, const painting &paint) {
  constexpr int fine = 2;
  const auto pixels = [](double side) { return fine * static_cast<int>(side); };
  const surface image(cairo_image_surface_create(CAIRO_FORMAT_RGB24, pixels(size.x), pixels(size.y)),
                      &cairo_surface_destroy);
  fill_page(image.get(), fine, paint);
  check(path, cairo_surface_write_to_png(image.get(), path.c_str()));
}

void write_plate(const std::string &folder, const std::string &name, spot size, const painting &paint) {
  write_svg(folder + "/" + name + ".svg", size, paint);
  write_png(folder + "/" + name + ".png", size, paint);
}

}  // namespace kxsheet
