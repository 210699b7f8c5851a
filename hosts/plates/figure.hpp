// Curves of the library and pictures of them: what is shown stands in the curve's own coordinates and is fitted into a
// cell of a page when it is drawn.
#pragma once

#include <kxgeom.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "plates.hpp"

namespace kxplates {

// ---- lists and curves ----

struct list_purge {
  void operator()(list_hdr *list) const { kx_purge_polygon(list); }
};
struct curve_purge {
  void operator()(curve *c) const { kx_purge_curve(c); }
};
using owned_list = std::unique_ptr<list_hdr, list_purge>;
using owned_curve = std::unique_ptr<curve, curve_purge>;
using points = std::vector<pnt_2d>;
using numbers = std::vector<double>;

// These throw std::runtime_error for null and for any status but 0.
owned_list owned(list_hdr *list);
owned_curve owned(curve *c);
void check(std::int32_t status);

owned_list list_of(const points &all);  // of poly_2d
owned_list list_of(const numbers &all);
points points_of(list_hdr *list);

owned_curve bezier(const points &control, const numbers &weights = {});  // weights 1 when left out
owned_curve nurbs(const points &control, const numbers &knots, int degree, const numbers &weights = {});
numbers clamped_knots(std::size_t count, int degree, const numbers &inner = {});  // without inner knots, even ones

numbers joints(const curve &c);  // parameters of the ends of its pieces, in order
points at(const curve &c, const numbers &parameters);
points polygon_of(const curve &c, double tolerance);

// ---- pictures ----

struct figure {
  struct stroke {
    points way;
    color c;
    double width;
    bool dashed, to_scale;  // to_scale: the width, too, is in the curve's coordinates
  };
  struct mark {
    pnt_2d at;
    double radius;
    color c;
    bool open;
  };
  struct label {
    pnt_2d at;
    spot shift;  // on the page
    std::string words;
    color c;
  };
  struct key {
    std::string words;
    color c;
  };

  std::string title, calls;
  std::vector<key> keys;
  std::vector<stroke> strokes = {};
  std::vector<mark> marks = {};
  std::vector<label> labels = {};

  void line(const points &way, color c, double width = 1.8, bool dashed = false);
  void band(const points &way, color c, double width);
  void dots(const points &all, color c, double radius = 2.6);
  void rings(const points &all, color c);
  void control(const points &polygon, color c = pale);
  void show(const curve &c, color ink_color, double width = 1.8);
  // Teeth as long as the curve is bent, away from the centre, the longest one of that length.
  void comb(const curve &c, double longest);
};

// A page of figures, four to a row.
plate page_of(const std::string &name, const std::string &title, const std::string &words, std::vector<figure> figures,
              std::vector<std::string> told);

// Tells how many of the points are farther than a distance from the curve.
std::string tell_astray(const std::string &name, const points &all, const curve &c, double allowed = 1e-9);

}  // namespace kxplates
