// A Bezier curve of degree 10 at 1000 points, into an array and into a list, and cubic pieces fitted to 1000 points of
// it. The peers fill an array; the floor of a list is its two blocks a point and the least
// arithmetic.
#include <Geom2dAdaptor_Curve.hxx>
#include <Geom2d_BezierCurve.hxx>
#include <TColgp_Array1OfPnt2d.hxx>
#include <gp_Pnt2d.hxx>

extern "C" {
#include <sisl.h>
}
#undef max
#undef min

#include <algorithm>
#include <memory>

#include "curve_rows.hpp"
#include "floor_list.hpp"
#include "kxgeom/curves.h"
#include "kxgeom/list.h"
#include "kxgeom/records.h"

namespace {

constexpr int degree = 10, count = 1000;

double parameter(std::size_t j) { return static_cast<double>(j) / (count - 1); }

pnt_2d de_casteljau(bench::samples q, double t) {
  for (; q.size() > 1; q.pop_back()) {
    for (std::size_t i = 0; i + 1 < q.size(); ++i)
      q[i] = {(1.0 - t) * q[i].x + t * q[i + 1].x, (1.0 - t) * q[i].y + t * q[i + 1].y};
  }
  return q[0];
}

opencascade::handle<Geom2d_BezierCurve> occt_curve(const bench::samples &ctrl) {
  TColgp_Array1OfPnt2d poles(1, degree + 1);
  for (int i = 0; i <= degree; ++i)
    poles.SetValue(i + 1, gp_Pnt2d(ctrl[static_cast<std::size_t>(i)].x, ctrl[static_cast<std::size_t>(i)].y));
  return new Geom2d_BezierCurve(poles);
}

SISLCurve *sisl_curve(const bench::samples &ctrl) {
  std::vector<double> knots(2 * degree + 2, 0.0), coefficients;
  std::fill(knots.begin() + degree + 1, knots.end(), 1.0);
  for (const pnt_2d &p : ctrl) coefficients.insert(coefficients.end(), {p.x, p.y});
  return newCurve(degree + 1, degree + 1, knots.data(), coefficients.data(), 1, 2, 1);
}

// The blocks of a list and the least arithmetic that a point can cost: Horner's scheme in t.
void make_blocks(const bench::samples &coefficients, list_hdr &points) {
  for (std::int32_t j = 0; j < count; ++j) {
    const double t = parameter(static_cast<std::size_t>(j));
    double x = 0.0, y = 0.0;
    for (const pnt_2d &c : coefficients) {
      x = x * t + c.x;
      y = y * t + c.y;
    }
    bench::link_record(points, bench::make_record(poly_2d{j, x, y}), KX_POLY_2D);
  }
}

std::string compare(const list_hdr *got, const bench::samples &want) {
  if (got->count != count) return std::to_string(got->count) + " points";
  std::size_t i = 0;
  for (const list_item *item = got->head; item; item = item->next, ++i) {
    const auto *p = static_cast<const poly_2d *>(item->data);
    if (!bench::close(p->x, want[i].x, 1e-9) || !bench::close(p->y, want[i].y, 1e-9))
      return "point " + std::to_string(i);
  }
  return {};
}

// Rows that fill a list made beforehand, with and without the purge of what they made.
void add_list_rows(const std::string &family, const std::string &kind, const std::function<std::string()> &check,
                   const std::function<void(list_hdr &)> &make) {
  const auto out = std::make_shared<list_hdr>();
  const auto pass = [=] { make(*out); };
  const auto free = [=] { bench::free_blocks(*out); };
  bench::add({.name = family + kind, .items = count, .check = check, .pass = pass, .after = free});
  bench::add({.name = family + kind + "_and_purge", .items = count, .check = check, .pass = [=] {
                pass();
                free();
              }});
}

}  // namespace

void bench::add_rows() {
  const std::string array = "bezier_array/deg10/", list = "bezier_list/deg10/", fit = "bezier_fit/1k/";
  const samples ctrl = control_points(degree + 1);
  samples want;
  for (std::size_t j = 0; j < count; ++j) want.push_back(de_casteljau(ctrl, parameter(j)));

  const auto occt = occt_curve(ctrl);
  const auto adaptor = std::make_shared<Geom2dAdaptor_Curve>(occt);
  SISLCurve *sisl = sisl_curve(ctrl);
  const auto each = [=](const std::string &name, auto evaluate) {
    add_array_row(array + name, want, [=](samples &out) {
      for (std::size_t j = 0; j < out.size(); ++j) evaluate(parameter(j), out[j]);
    });
  };
  each("peer:OCCT_Adaptor_D0", [=](double t, pnt_2d &out) {
    gp_Pnt2d p;
    adaptor->D0(t, p);
    out = {p.X(), p.Y()};
  });
  each("peer:OCCT_Curve_D0", [=](double t, pnt_2d &out) {
    gp_Pnt2d p;
    occt->D0(t, p);
    out = {p.X(), p.Y()};
  });
  each("peer:SISL_s1221_D0", [=](double t, pnt_2d &out) {
    int left = 0, status = 0;
    double at[2];
    s1221(sisl, 0, t, &left, at, &status);
    out = {at[0], at[1]};
  });
  add_array_row(array + "kx:kx_beziercurve2d", want, [ctrl](samples &out) {
    kx_beziercurve2d(&ctrl[0].x, degree + 1, static_cast<std::int32_t>(out.size()), &out[0].x);
  });

  list_hdr *points = point_list(ctrl), *sampled = point_list(want);
  add_list_rows(list, "floor:make", {}, [ctrl](list_hdr &out) { make_blocks(ctrl, out); });
  const auto fill = [=](list_hdr &out) { kx_bezier_curve_2d(points, degree + 1, count, &out); };
  const auto check = [=] {
    list_hdr *out = ll_create_list();
    fill(*out);
    const std::string complaint = compare(out, want);
    return complaint.empty() ? unless(kx_purge_polygon(out) == 0, "purge") : complaint;
  };
  add_list_rows(list, "kx:make", check, fill);

  // Every given point lies within the tolerance of the pieces: they are sampled finely enough to tell.
  constexpr double tolerance = 1e-3;
  const auto fitted = [=] {
    list_hdr *pieces = ll_create_list();
    const std::int32_t code = kx_fit_bezcurve(sampled, tolerance, pieces);
    samples q, fine;
    for (const list_item *item = pieces->head; item; item = item->next) {
      const auto *control = static_cast<const poly_2d *>(item->data);
      q.push_back({control->x, control->y});
      if (q.size() < 4) continue;
      for (int k = 0; k <= 2000; ++k) fine.push_back(de_casteljau(q, k / 2000.0));
      q.clear();
    }
    double farthest = 0.0;
    for (const pnt_2d &given : want) {
      double nearest = HUGE_VAL;
      for (const pnt_2d &at : fine) nearest = std::min(nearest, std::hypot(at.x - given.x, at.y - given.y));
      farthest = std::max(farthest, nearest);
    }
    return unless(code == 0 && farthest <= 2.0 * tolerance && kx_purge_polygon(pieces) == 0, "fit");
  };
  const auto pieces = std::make_shared<list_hdr>();
  add({.name = fit + "kx:kx_fit_bezcurve",
       .items = count,
       .check = fitted,
       .pass = [=] { kx_fit_bezcurve(sampled, tolerance, pieces.get()); },
       .after = [=] { free_blocks(*pieces); }});
}
