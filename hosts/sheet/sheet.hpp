// A page to draw on, and its files.
#pragma once

#include <cairo.h>

#include <functional>
#include <string>
#include <vector>

namespace kxsheet {

struct color {
  double red, green, blue;
};

constexpr color paper{1, 1, 1}, cell{0.955, 0.965, 0.975}, ink{0.16, 0.18, 0.22}, pale{0.52, 0.55, 0.60};
constexpr color blue{0.10, 0.36, 0.68}, orange{0.87, 0.38, 0.06}, green{0.13, 0.56, 0.36}, red{0.78, 0.10, 0.22};

struct spot {
  double x, y;  // on the page in pixels, downwards
};

class sheet {
 public:
  explicit sheet(cairo_t *page) : page_(page) {}

  enum class align { left, centre, upright };  // upright: centred, upwards
  void text(spot at, const std::string &words, double size, color c, bool bold = false, align a = align::left) const;
  void box(spot corner, double width, double height, color fill) const;
  void line(spot from, spot to, double width, color c, bool dashed = false) const;
  void arrow(spot from, spot to, double width, color c) const;
  void disc(spot at, double radius, color fill) const;
  void ring(spot at, double radius, double width, color c) const;
  // Filled as opaque as asked for, its outline drawn in the same color.
  void polygon(const std::vector<spot> &corners, color c, double opacity, double width) const;
  // The sides of a polygon, from each corner to the next, that are to be drawn.
  void sides(const std::vector<spot> &corners, const std::vector<bool> &drawn, double width, color c) const;

 private:
  void use(color c, double opacity = 1) const { cairo_set_source_rgba(page_, c.red, c.green, c.blue, opacity); }
  cairo_t *page_;
};

using painting = std::function<void(const sheet &)>;

// Write a page of that size; a PNG is twice as fine. They throw std::runtime_error when it cannot be written.
void write_svg(const std::string &path, spot size, const painting &paint);
void write_png(const std::string &path, spot size, const painting &paint);

// Writes FOLDER/NAME.svg and FOLDER/NAME.png.
void write_plate(const std::string &folder, const std::string &name, spot size, const painting &paint);

}  // namespace kxsheet
