// The spline libraries beside which curves are sampled: evaluators that write a point per parameter into an array.
#pragma once

#include <Geom2dAdaptor_Curve.hxx>
#include <Geom2d_BSplineCurve.hxx>
#include <TColStd_Array1OfInteger.hxx>
#include <TColStd_Array1OfReal.hxx>
#include <TColgp_Array1OfPnt2d.hxx>
#include <gp_Pnt2d.hxx>
#include <gp_Vec2d.hxx>

extern "C" {
#include <sisl.h>
}
#undef max
#undef min

#include <memory>
#include <string>
#include <vector>

#include "curve_rows.hpp"

namespace bench {

// A cubic in the form the peers want it: every knot as often as it counts, weights all or none.
struct spline {
  samples points;
  std::vector<double> weights, knots;
  std::vector<double> parameters;  // where it is sampled
};

inline opencascade::handle<Geom2d_BSplineCurve> occt_curve(const spline &s) {
  const int n = static_cast<int>(s.points.size());
  TColgp_Array1OfPnt2d poles(1, n);
  TColStd_Array1OfReal weights(1, n);
  for (int i = 0; i < n; ++i) {
    const auto at = static_cast<std::size_t>(i);
    poles.SetValue(i + 1, gp_Pnt2d(s.points[at].x, s.points[at].y));
    weights.SetValue(i + 1, s.weights.empty() ? 1.0 : s.weights[at]);
  }
  std::vector<double> distinct;
  std::vector<int> times;
  for (const double knot : s.knots) {
    if (distinct.empty() || distinct.back() != knot) {
      distinct.push_back(knot);
      times.push_back(0);
    }
    ++times.back();
  }
  const int m = static_cast<int>(distinct.size());
  const TColStd_Array1OfReal knots(distinct.front(), 1, m);
  const TColStd_Array1OfInteger multiplicities(times.front(), 1, m);
  if (s.weights.empty()) return new Geom2d_BSplineCurve(poles, knots, multiplicities, 3);
  return new Geom2d_BSplineCurve(poles, weights, knots, multiplicities, 3);
}

inline SISLCurve *sisl_curve(const spline &s) {
  std::vector<double> coefficients, knots = s.knots;
  for (std::size_t i = 0; i < s.points.size(); ++i) {
    const double w = s.weights.empty() ? 1.0 : s.weights[i];
    coefficients.insert(coefficients.end(), {w * s.points[i].x, w * s.points[i].y});
    if (!s.weights.empty()) coefficients.push_back(w);
  }
  return newCurve(static_cast<int>(s.points.size()), 4, knots.data(), coefficients.data(), s.weights.empty() ? 1 : 2, 2,
                  1);
}

// The peers of a curve at one order of derivatives; the curves live until the program ends.
inline void add_peers(const std::string &family, const spline &s, const samples &want, int order) {
  const std::string suffix = "_D" + std::to_string(order);
  const auto occt = occt_curve(s);
  const auto adaptor = std::make_shared<Geom2dAdaptor_Curve>(occt);
  SISLCurve *sisl = sisl_curve(s);
  const auto parameters = std::make_shared<std::vector<double>>(s.parameters);
  const auto occt_row = [&](const std::string &name, auto evaluate_0, auto evaluate_2) {
    add_array_row(family + "peer:OCCT_" + name + suffix, want, [=](samples &out) {
      gp_Pnt2d p;
      gp_Vec2d first, second;
      for (std::size_t i = 0; i < out.size(); ++i) {
        if (order == 0) {
          evaluate_0((*parameters)[i], p);
        } else {
          evaluate_2((*parameters)[i], p, first, second);
          use(&first);
          use(&second);
        }
        out[i] = {p.X(), p.Y()};
      }
    });
  };
  occt_row(
      "Adaptor", [=](double t, gp_Pnt2d &p) { adaptor->D0(t, p); },
      [=](double t, gp_Pnt2d &p, gp_Vec2d &a, gp_Vec2d &b) { adaptor->D2(t, p, a, b); });
  occt_row(
      "Curve", [=](double t, gp_Pnt2d &p) { occt->D0(t, p); },
      [=](double t, gp_Pnt2d &p, gp_Vec2d &a, gp_Vec2d &b) { occt->D2(t, p, a, b); });
  const auto sisl_row = [&](const std::string &name, auto evaluate) {
    add_array_row(family + "peer:SISL_" + name + suffix, want, [=](samples &out) {
      int left = 0, status = 0;
      double derivatives[6];
      for (std::size_t i = 0; i < out.size(); ++i) {
        evaluate(sisl, order, (*parameters)[i], &left, derivatives, &status);
        out[i] = {derivatives[0], derivatives[1]};
      }
    });
  };
  sisl_row("s1221", s1221);
  sisl_row("s1227", s1227);
}

}  // namespace bench
