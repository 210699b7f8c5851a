#include <initializer_list>

#include "batch.hpp"

namespace digest {
namespace {

void hash_curve(const curve *c) {
  hash(std::int32_t{c != nullptr});
  if (c == nullptr) return;
  for (const std::int32_t value : {c->curve_type, c->degree, c->span_steps}) hash(value);
  hash(c->step);
  double basis[16];
  std::memcpy(basis, c->basis, sizeof basis);
  for (const double value : basis) hash(value);
  for (const list_hdr *list : {c->weights, c->knots, c->ctrl_pnts, c->curve_pnts, c->curve_stats}) hash_list(list);
}

// Everything that is asked of a curve of any kind; each pair is called for both dimensions, of which one answers.
void measure(const curve *c) {
  double from = 0, to = 1, t[5], flat[24] = {}, length = 0, error = 0;
  hash(kx_curve_range(c, &from, &to));
  hash(from), hash(to);
  for (double &each : t) each = from + (to - from) * below(9) * 0.125;
  pnt_2d plane[5] = {};
  pnt_3d space[5] = {};
  hash(kx_curve_pnt_2d(c, t[0], plane)), hash(kx_curve_pnt_3d(c, t[0], space));
  hash(kx_curve_derivs_2d(c, t[1], 3, flat)), hash(kx_curve_derivs_3d(c, t[1], 3, flat));
  hash(kx_curve_pntsat_2d(c, t, 5, flat + 12)), hash(kx_curve_pntsat_3d(c, t, 4, flat + 12));
  for (const double value : flat) hash(value);
  hash(kx_curve_pnts_2d(c, t[0], t[1], 12, flat)), hash(kx_curve_pnts_3d(c, t[1], t[0], 8, flat));
  for (const double value : flat) hash(value);
  std::int32_t count = 0;
  hash(kx_curve_steps_2d(c, 1 + below(6), 12, flat, &count)), hash(kx_curve_steps_3d(c, 1 + below(6), 8, flat, &count));
  hash(count);
  const double tol = 0.25 * (1 + below(8));
  hash(kx_curve_chords_2d(c, tol, 12, flat, &count)), hash(kx_curve_chords_3d(c, tol, 8, flat, &count));
  hash(count);
  for (const double value : flat) hash(value);
  pnt_3d derivs[4] = {};
  hash(kx_eval_pointoncurve(c, t[3], derivs)), hash_record(derivs);
  hash(kx_eval_derivsoncurve(c, t[4], 3, derivs));
  for (const pnt_3d &p : derivs) hash(p);
  list_hdr *chords[2] = {ll_create_list(), ll_create_list()};
  hash(kx_curve_chordpnts_2d(c, tol, chords[0])), hash(kx_curve_chordpnts_3d(c, tol, chords[1]));
  for (list_hdr *list : chords) hash(list);
  hash(kx_curve_length(c, t[2], t[3], 1e-6, &length, &error));
  hash(length), hash(error);
  hash(kx_curve_atlength_2d(c, t[0], 0.5, 1e-6, t, plane)), hash(kx_curve_atlength_3d(c, t[0], -0.5, 1e-6, t, space));
  hash(t[0]);
  const pnt_2d near_plane = {number(), number()};
  const pnt_3d near_space = {number(), number(), number()};
  hash(kx_curve_closest_2d(c, &near_plane, t + 1, plane + 1, flat));
  hash(kx_curve_closest_3d(c, &near_space, t + 1, space + 1, flat));
  hash(kx_curve_curvature_2d(c, t[4], flat + 1, plane + 2)), hash(kx_curve_curvature_3d(c, t[4], flat + 1, space + 2));
  hash(kx_curve_box_2d(c, plane + 3, plane + 4)), hash(kx_curve_box_3d(c, space + 3, space + 4));
  hash(t[1]), hash(flat[0]), hash(flat[1]);
  for (const pnt_2d &p : plane) hash(p);
  for (const pnt_3d &p : space) hash(p);
}

// Hashes a curve and its copy and frees both; control points that are no polygon's need a second try.
void done(curve *c) {
  hash_curve(c);
  measure(c);
  curve *copy = kx_copy_curve(c);
  hash_curve(copy);
  if (copy) hash(kx_clear_curve(copy, below(2)));
  for (curve *each : {c, copy})
    if (kx_purge_curve(each) == 9) hash(kx_purge_curve(each));
}

// Hashes and frees the pieces of a curve.
void pieces_of(const curve *c) {
  using convert = std::int32_t(KX_CALL *)(const curve *, curve **, std::int32_t, std::int32_t *);
  static const convert all[] = {kx_bspl_to_bezier_curve,       kx_bspl_to_bezier_curve2d,
                                kx_bspl_to_bezier_curve3d,     kx_rat_bspl_to_bezier_curve,
                                kx_rat_bspl_to_bezier_curve2d, kx_rat_bspl_to_bezier_curve3d};
  for (const convert each : all) {
    curve *pieces[20] = {};
    std::int32_t count = 0;
    hash(each(c, pieces, 20, &count)), hash(count);
    for (curve *piece : pieces) {
      if (piece) hash_curve(piece), kx_purge_curve(piece);
    }
  }
}

}  // namespace

void uniform_curves() {
  static curve *(KX_CALL *const from_list[])(list_hdr *) = {kx_def_ubspl_curve,     kx_def_ubezier_curve,
                                                            kx_def_ucatrom_curve,   kx_def_ubspl_curve3d,
                                                            kx_def_ubezier_curve3d, kx_def_ucatrom_curve3d};
  static std::int32_t(KX_CALL *const in_plane[])(list_hdr *, curve *) = {kx_def_ubspl_curve2d, kx_def_ubezier_curve2d,
                                                                         kx_def_ucatrom_curve2d};
  for (int round = 0; round < 96; ++round) {
    wild = round % 8 == 7;
    const std::int32_t tag = tags[round % 4];
    list_hdr *ctrl[3];
    for (list_hdr *&list : ctrl) list = points(3 + below(10), tag);
    curve *c[3] = {kx_def_ucurve(ctrl[0], 83 + below(6)), from_list[below(6)](ctrl[1]), kx_create_curve()};
    hash(in_plane[below(3)](ctrl[2], c[2]));
    hash(kx_mk_ucurve(c[0], below(5) * 0.1));
    hash(kx_mk_ucurve2d(c[2], 0.25));
    hash(tag == KX_POLY_3D ? kx_mk_ucurve3d(c[1], 0.3) : kx_mk_ucurve2d(c[1], 0.125));
    poly_2d corners[4], *pointers[4];
    for (int i = 0; i < 4; ++i) pointers[i] = filled(corners + i);
    pnt_2d point = {};
    vector_2d vectors[3] = {};
    hash(kx_eval_t_on_ucurve2d(c[2], below(9) * 0.125, pointers, &point, vectors, vectors + 1, vectors + 2));
    hash(point);
    for (const vector_2d &vector : vectors) hash_record(&vector);
    pieces_of(c[2]);
    for (curve *each : c) done(each);
    for (list_hdr *list : ctrl) drop(list);
  }
  curve raw;
  kx_init_curve(&raw);
  hash_curve(&raw);
  hash(kx_clear_curve(&raw, 1));
  curv *words = kx_create_curv();
  for (const std::int32_t word : words->words) hash(word);
  kx_purge_curv(words);
}

void lists_of_samples() {
  for (int round = 0; round < 96; ++round) {
    wild = round % 8 == 7;
    const std::int32_t n = 4 + below(5), r = 3 + below(6);
    const double a = number();
    list_hdr *ctrl = points(n + below(2), tags[round % 4]);
    for (list_hdr *made : {kx_catrom_curve(n, ctrl, r, a, nullptr), kx_bspline_curve(n, ctrl, r, nullptr),
                           kx_bspline_spep(n, ctrl, r, nullptr), kx_quad_bspline(n, ctrl, r, nullptr)})
      hash(made);
    list_hdr out = {};
    std::int32_t count = 0;
    hash(kx_catrom_curve_2d(n, ctrl, r, a, &count, &out) + kx_bspline_2d(n, ctrl, r, &count, &out));
    hash(kx_quad_bspline_2d(n, ctrl, r, &count, &out)), hash(count), hash_list(&out), ll_clear_all_items(&out);
    hash(kx_catrom_curve_3d(n, ctrl, r, a, &count, &out) + kx_bspline_3d(n, ctrl, r, &count, &out));
    hash(kx_quad_bspline_3d(n, ctrl, r, &count, &out)), hash(count), hash_list(&out), ll_clear_all_items(&out);
    list_hdr *more = points(n, tags[round % 4]);
    curve *c[2] = {kx_create_curve(), kx_def_ubetaspl_curve(more, number(), a)};
    hash((below(2) ? kx_def_ubetaspl_curve2d : kx_def_ubetaspl_curve3d)(ctrl, c[0], a, number()));
    for (curve *each : c) hash(kx_mk_ucurve(each, 0.25)), pieces_of(each), done(each);
    drop(ctrl), drop(more);
  }
}

void interpolation() {
  for (int round = 0; round < 60; ++round) {
    wild = round % 8 == 7;
    list_hdr *given = points(2 + below(12), tags[round % 4]);
    curve *through = kx_curve_thru_points(given);
    pnt_3d at = {};
    vector_3d derivs[3] = {};
    begin_line("kx_eval_derivs_ucurve");
    hash(kx_eval_derivs_ucurve(through, below(3), below(9) * 0.125, &at, derivs, derivs + 1, derivs + 2));
    hash(at);
    for (const vector_3d &each : derivs) hash_record(&each);
    end_line();
    done(through);
    done(kx_curve_thru_npoints(given, 2 + below(given->count), 1 + below(5)));
    hash(given);
    pnt_3d coef[4];
    for (pnt_3d &each : coef) filled(&each);
    hash(kx_polynomial_pnt(coef, below(5) - 1, number(), coef));
    hash(coef[0]);
  }
}

void nonuniform_curves() {
  for (int round = 0; round < 120; ++round) {
    wild = round % 8 == 7;
    const std::int32_t tag = tags[round % 4], p = 1 + below(5), n = p + 1 + below(8), spans = n - p;
    list_hdr *ctrl[4], *knots[4], *weights[4];
    for (int i = 0; i < 4; ++i)
      ctrl[i] = points(n, tag), knots[i] = numbers(n + p + below(2), true), weights[i] = numbers(n, false);
    curve *c[4] = {kx_create_curve(), (below(2) ? kx_def_nubspl_curve : kx_def_nubspl_curve3d)(ctrl[1], knots[1], p, 2),
                   nullptr, kx_create_curve()};
    hash(kx_def_nubspl_curve2d(ctrl[0], knots[0], p + below(2), 3, c[0]));
    c[2] = kx_def_nurb_curve(ctrl[2], knots[2], weights[2], p, 1 + below(3));
    hash(tag == KX_PNT_3D || tag == KX_POLY_3D ? kx_def_nurb_curve3d(ctrl[3], knots[3], weights[3], p, 2, c[3])
                                               : kx_def_nurb_curve2d(ctrl[3], knots[3], weights[3], p, 2, c[3]));
    hash(kx_mk_nurb_curve(c[2], below(3), below(2), spans - below(2), below(4)));
    hash(kx_mk_nurb_curve2d(c[3], 0, 0, spans, 2));
    hash(kx_mk_nurb_curve3d(c[3], 1, 1, spans - 1, 3));
    hash(kx_mk_nubspline(c[1], below(3), below(2), spans - below(2), below(4)));
    hash(kx_mk_nubspline_2d(c[0], 0, 0, spans, 2) + kx_mk_nubspline_3d(c[1], 1, 1, spans - 1, 3));
    for (curve *each : c) pieces_of(each);
    for (curve *each : c) done(each);
    for (int i = 0; i < 4; ++i) drop(ctrl[i]), drop(knots[i]), drop(weights[i]);
  }
  for (int round = 0; round < 400; ++round) {
    wild = round % 8 == 7;
    const std::int32_t p = 1 + below(5);
    double knots[24], weights[6], out[64] = {};
    for (int i = 0; i < 24; ++i) knots[i] = i ? knots[i - 1] + below(3) * 0.7 : -1.0;
    for (double &weight : weights) weight = below(4) + 0.5;
    const double t = wild ? number() : knots[p] + below(5) * 0.35;
    const std::int32_t span = kx_findknotspan(knots, 23, p, t, below(3) - 1);
    hash(span);
    if (span >= p - 1 && span + p < 24) hash(kx_basisfunctions(knots, span, p, t, below(p + 2), out));
    for (const double value : out) hash(value);
    poly_2d plane[6], *plane_ctrl[6];
    poly_3d space[6], *space_ctrl[6];
    for (int i = 0; i < 6; ++i) plane_ctrl[i] = filled(plane + i), space_ctrl[i] = filled(space + i);
    pnt_2d at[2] = {};
    pnt_3d in_space[2] = {};
    hash(kx_deboor_2d(t, p, plane_ctrl, knots, at));
    hash(kx_rat_deboor_2d(t, p, plane_ctrl, weights, knots, at + 1));
    hash(kx_deboor_3d(t, p, space_ctrl, knots, in_space));
    hash(kx_rat_deboor_3d(t, p, space_ctrl, weights, knots, in_space + 1));
    for (int i = 0; i < 2; ++i) hash(at[i]), hash(in_space[i]);
  }
}

void bezier_curves() {
  for (int round = 0; round < 120; ++round) {
    wild = round % 8 == 7;
    const std::int32_t tag = tags[round % 4], n = 2 + below(18), many = 2 + below(30);
    const bool space = tag == KX_PNT_3D || tag == KX_POLY_3D;
    hash(kx_bez_factorial(integer())), hash(kx_bez_factorial(30 + below(160)));
    double ctrl[93], out[30] = {};
    for (double &value : ctrl) value = number();
    hash(kx_beziercurve2d(ctrl, many, below(10), out));
    hash(kx_beziercurve3d(ctrl, many, below(10), out));
    for (const double value : out) hash(value);
    double *array = kx_beziercurve(ctrl, space ? 51 : 50, many, 9);
    for (int i = 0; array && i < 18; ++i) hash(array[i]);
    if (space)
      kx_purge_pnt_3d_array(reinterpret_cast<pnt_3d *>(array));
    else
      kx_purge_pnt_2d_array(reinterpret_cast<pnt_2d *>(array));
    pnt_2d plane[20], tangent = {};
    pnt_3d solid[20];
    for (pnt_2d &point : plane) filled(&point);
    for (pnt_3d &point : solid) filled(&point);
    pnt_2d *flat_point = kx_bezier_pnt_2d(plane, below(4), below(17), number());
    pnt_3d *space_point = kx_bezier_pnt_3d(solid, below(4), below(17), number());
    hash_record(flat_point), hash_record(space_point);
    kx_purge_pnt_2d(flat_point), kx_purge_pnt_3d(space_point);
    hash(kx_compute_bez_tangent(plane, 1 + below(18), below(5) - 1, &tangent));
    hash(tangent);

    list_hdr *list = points(n, tag), *made = ll_create_list(), *fitted = ll_create_list();
    std::int32_t n_out = below(12);
    hash(kx_bezier_curve(list, n, &n_out));
    hash(kx_bezier_curve_2d(list, n - below(2), below(12), made));
    hash(made);
    made = ll_create_list();
    hash(kx_bezier_curve_3d(list, n - below(2), below(12), made));
    hash(kx_fit_bezcurve(list, below(4), fitted));
    hash(made), hash(fitted);
    curve *c[6] = {kx_create_curve()};
    for (int i = 1; i < 6; ++i) c[i] = kx_create_curve();
    if (space) {
      kx_purge_curve(c[0]);
      c[0] = kx_def_ubezier_curve3d(list);
      hash(kx_sub_bezier_curve3d(c[0], number(), c[1], c[2]));
    } else {
      hash(kx_def_ubezier_curve2d(list, c[0]));
      hash(kx_sub_bezier_curve2d(c[0], number(), c[1], c[2]));
    }
    hash(kx_sub_bezier_curve(c[0], 0.3, c[1], c[2]));
    list_hdr *ctrl_list[2] = {points(n, tag), points(n, tag)}, *weights[2] = {numbers(n, false), numbers(n, false)};
    const auto define = space ? kx_def_ratbezier_curve3d : kx_def_ratbezier_curve2d;
    const auto make = space ? kx_mk_rat_bezier_3d : kx_mk_rat_bezier_2d;
    const auto cut = space ? kx_sub_ratbezier_curve3d : kx_sub_ratbezier_curve2d;
    hash(define(ctrl_list[0], weights[0], c[3]));
    curve *whole = kx_def_ratbezier_curve(ctrl_list[1], weights[1]);
    hash(kx_mk_ratbezier_curve(whole, below(5) * 0.1));
    hash(make(c[3], 0.125));
    pnt_3d at = {};
    hash(kx_eval_pntonratbezier(c[3], wild ? number() : below(9) * 0.125, &at));
    hash(at);
    hash(cut(c[3], below(9) * 0.125, c[4], c[5]));
    hash(kx_sub_ratbezier_curve(whole, 0.5, c[4], c[5]));
    for (curve *each : c) done(each);
    if (whole) done(whole);
    drop(list);
    for (int i = 0; i < 2; ++i) drop(ctrl_list[i]), drop(weights[i]);
  }
}

}  // namespace digest
