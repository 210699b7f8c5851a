// Any control points, knots, weights and degree: what a definer takes is made, measured, converted and freed; what it
// refuses is still the caller's. Samples are finite, and lie in the box of the curve.
#include <vector>

#include "input.hpp"

namespace {

void check_span(const std::vector<double> &knots, std::int32_t degree, double t) {
  const auto last = static_cast<std::int32_t>(knots.size()) - 1;
  for (const std::int32_t side : {-1, 0}) {
    const std::int32_t span = kx_findknotspan(knots.data(), last, degree, t, side);
    REQUIRE(span >= -1 && span <= last);
    if (degree < 0 || degree > 15 || span < degree - 1 || span + degree > last) continue;
    double out[48];
    REQUIRE(kx_basisfunctions(knots.data(), span, degree, t, 2, out) == 0);
  }
}

void measure(const curve *c) {
  double from, to;
  const std::int32_t fault = kx_curve_range(c, &from, &to);
  if (fault) return;
  REQUIRE(from <= to);
  pnt_2d low, high;
  const bool plane = kx_curve_box_2d(c, &low, &high) == 0;
  for (int i = 0; i <= 8; ++i) {
    const double t = i < 8 ? from + (to - from) * i / 8 : to;
    pnt_3d p;
    REQUIRE(kx_eval_pointoncurve(c, t, &p) == 0);
    if (!plane) continue;
    const double slack = 1e-9 * (1 + std::fabs(low.x) + std::fabs(high.x) + std::fabs(low.y) + std::fabs(high.y));
    REQUIRE(p.x >= low.x - slack && p.x <= high.x + slack && p.y >= low.y - slack && p.y <= high.y + slack);
    double nearest, distance;
    const pnt_2d at = {p.x, p.y};
    REQUIRE(kx_curve_closest_2d(c, &at, &nearest, nullptr, &distance) == 0);
    REQUIRE(distance <= slack);
  }
  double length = 0, error = 0;
  kx_curve_length(c, from, to, 1e-3, &length, &error);
  REQUIRE(length >= 0);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  fuzz::input in(data, size);
  const std::int32_t degree = in.below(18) - 1, n = in.below(20), many = in.below(30), kind = in.below(5);
  const bool ascending = in.below(4) != 0;
  list_hdr *ctrl = in.points(n, fuzz::point_tags[in.below(4)]), *knots = in.numbers(many),
           *weights = in.numbers(in.below(22));
  std::vector<double> values;
  for (list_item *item = knots->head; item; item = item->next) {
    auto *knot = static_cast<rnumber *>(item->data);
    if (ascending) knot->value = (values.empty() ? 0.0 : values.back()) + in.below(4) * 0.5;
    values.push_back(knot->value);
  }
  if (!values.empty()) check_span(values, degree, in.number());
  curve *c = nullptr;
  switch (kind) {
    case 0: c = kx_def_nubspl_curve(ctrl, knots, degree, 3); break;
    case 1: c = kx_def_nubspl_curve3d(ctrl, knots, degree, 3); break;
    case 2: c = kx_def_nurb_curve(ctrl, knots, weights, degree, 3); break;
    case 3: c = kx_def_ratbezier_curve(ctrl, weights); break;
    default: c = kx_def_ucurve(ctrl, 83 + in.below(6));
  }
  if (c) {
    measure(c);
    kx_mk_nurb_curve(c, in.below(3), in.below(2), in.below(12), in.below(5));
    kx_mk_nubspline(c, in.below(3), in.below(2), in.below(12), in.below(5));
    kx_mk_ucurve(c, in.below(5) * 0.25);
    kx_mk_ratbezier_curve(c, in.below(5) * 0.25);
    curve *pieces[32] = {};
    std::int32_t count = 0;
    if (kx_bspl_to_bezier_curve(c, pieces, 32, &count) == 0 ||
        kx_rat_bspl_to_bezier_curve(c, pieces, 32, &count) == 0) {
      for (curve *piece : pieces) {
        if (piece) kx_purge_curve(piece);
      }
    }
    for (list_hdr *list : {c->ctrl_pnts, c->knots, c->weights, c->curve_pnts, c->curve_stats})
      REQUIRE(list == nullptr || list->head == nullptr || fuzz::linked(list));
    if (kx_purge_curve(c) == 9) kx_purge_curve(c);
  } else {
    REQUIRE(ctrl->head == nullptr || (fuzz::linked(ctrl) && ctrl->count == n));
  }
  for (list_hdr *list : {ctrl, knots, weights}) fuzz::drop(list);
  return 0;
}
