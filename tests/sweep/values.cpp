#include "values.hpp"

#include <cstdlib>
#include <string_view>
#include <utility>

namespace sweep {

void *new_block(std::size_t bytes) { return kx_create_char_array(static_cast<std::int32_t>(bytes)); }

void set_usual(double &value, draw &d) { value = d.number(); }
void set_usual(std::int32_t &value, draw &d) { value = d.below(6); }

// Knots do not decrease, a matrix to solve with has no zero on its diagonal, a window has sides.
void make_valid(const parameter &p, double *values, long n) {
  const std::string_view name = p.name;
  if (name == "knots") {
    for (long i = 1; i < n; ++i) values[i] = values[i - 1] + 0.25 + std::fabs(values[i]) / 32.0;
  } else if (name == "band") {
    for (long i = 0; i < n; ++i) values[i] += 64.0;
  }
}
void make_valid(const parameter &p, rect_2d *rectangles, long) {
  if (std::string_view(p.name) != "window") return;
  rectangles->x2 = rectangles->x1 + 8.0;
  rectangles->y2 = rectangles->y1 - 4.0;
}

int field_specials(const std::vector<field> &fields) {
  int n = 0;
  for (const field &f : fields) n += f.real ? doubles : integers;
  return n;
}

void make_special(const std::vector<field> &fields, void *record, int n) {
  for (const field &f : fields) {
    const int ways = f.real ? doubles : integers;
    if (n < ways) {
      char *at = static_cast<char *>(record) + f.offset;
      if (f.real) {
        std::memcpy(at, special_doubles + n, sizeof(double));
      } else {
        std::memcpy(at, special_integers + n, sizeof(std::int32_t));
      }
      return;
    }
    n -= ways;
  }
}

namespace {

constexpr std::int32_t point_tags[] = {KX_PNT_2D, KX_PNT_3D, KX_POLY_2D, KX_POLY_3D};
constexpr std::int32_t all_tags[] = {KX_PNT_2D,         KX_PNT_3D,         KX_POLY_2D,     KX_POLY_3D,
                                     KX_CURVE_STATS_2D, KX_CURVE_STATS_3D, KX_MATRIXREC2D, KX_MATRIXREC3D,
                                     KX_RNUMBER,        KX_INUMBER,        KX_STRING,      KX_POLYFACE_3D};

template <class T>
std::pair<void *, const std::vector<field> *> made(draw &d) {
  return {new_records<T>(1, d), &fields_of<T>()};
}

// A record of a list's kind, and its fields.
std::pair<void *, const std::vector<field> *> new_data(std::int32_t tag, draw &d) {
  switch (tag) {
    case KX_PNT_2D: return made<pnt_2d>(d);
    case KX_PNT_3D: return made<pnt_3d>(d);
    case KX_POLY_2D: return made<poly_2d>(d);
    case KX_POLY_3D: return made<poly_3d>(d);
    case KX_CURVE_STATS_2D: return made<curve_stats_2d>(d);
    case KX_CURVE_STATS_3D: return made<curve_stats_3d>(d);
    case KX_MATRIXREC2D: return made<matrixrec2d>(d);
    case KX_MATRIXREC3D: return made<matrixrec3d>(d);
    case KX_RNUMBER: return made<rnumber>(d);
    case KX_INUMBER: return made<inumber>(d);
    case KX_POLYFACE_3D: return made<polyface_3d>(d);
  }
  void *text = new_block(8);
  std::memcpy(text, "text", 5);
  return {text, nullptr};
}

void add(list_hdr *list, std::int32_t tag, draw &d) { ll_add_list_item(list, 1, new_data(tag, d).first, tag); }

list_hdr *list_of(std::int32_t tag, int n, draw &d) {
  list_hdr *list = ll_create_list();
  for (int i = 0; i < n; ++i) add(list, tag, d);
  return list;
}

list_hdr *numbers(int n, bool ascending, draw &d) {
  list_hdr *list = ll_create_list();
  double value = 1.0;
  for (int i = 0; i < n; ++i) {
    value = ascending ? value + d.below(4) * 0.25 : 0.5 + d.below(5) * 0.25;
    rnumber *record = new_records<rnumber>(1, d);
    record->value = value;
    ll_add_list_item(list, 1, record, KX_RNUMBER);
  }
  return list;
}

list_hdr *usual_list(std::string_view name, draw &d) {
  if (name == "knots") return numbers(7 + d.below(6), true, d);
  if (name == "weights") return numbers(6 + d.below(4), false, d);
  if (name == "store") return list_of(d.below(2) ? KX_MATRIXREC2D : KX_MATRIXREC3D, 2 + d.below(4), d);
  if (name == "faces") return list_of(KX_POLYFACE_3D, 2 + d.below(4), d);
  if (name == "vertices") return list_of(KX_POLY_3D, 3 + d.below(4), d);
  return list_of(point_tags[d.below(4)], 4 + d.below(5), d);
}

// The ways in which a list can be special, one after the other: each takes its share of n.
list_hdr *special_list(std::string_view name, int n, draw &d) {
  constexpr int tags = sizeof all_tags / sizeof *all_tags;
  if (n-- == 0) return nullptr;
  if (n-- == 0) return ll_create_list();
  if (n-- == 0) {
    list_hdr *detached = ll_create_list();
    detached->count = 5;
    return detached;
  }
  if (n < 2 * tags) return list_of(all_tags[n % tags], n < tags ? 1 : 5, d);
  n -= 2 * tags;
  if (n < 4) {  // all equal
    list_hdr *list = ll_create_list();
    const draw same = d;
    for (int i = 0; i < 6; ++i) add(list, point_tags[n], d = same);
    return list;
  }
  n -= 4;
  if (n < 4) {  // of mixed kinds, or without a cursor, or a record missing
    list_hdr *list = usual_list(name, d);
    if (n == 0) {
      for (const std::int32_t tag : all_tags) add(list, tag, d);
    } else if (n == 1) {
      ll_set_list_currpntr(list, 0);
    } else if (n == 2) {
      list->current = nullptr;
    } else {
      std::free(std::exchange(list->head->next->data, nullptr));
    }
    return list;
  }
  n -= 4;
  const std::int32_t tag = point_tags[n / doubles % 4];
  list_hdr *list = list_of(tag, 6, d);
  const auto [data, fields] = new_data(tag, d);
  double coordinates[3];
  for (double &value : coordinates) value = d.below(2) ? special_doubles[n % doubles] : d.number();
  const std::size_t from = fields->front().real ? 0 : sizeof(std::int32_t);
  std::memcpy(static_cast<char *>(data) + from, coordinates, (fields->size() - (from != 0)) * sizeof(double));
  ll_add_list_item(list, 1 + d.below(2), data, tag);
  return list;
}

constexpr int list_specials = 3 + 2 * static_cast<int>(sizeof all_tags / sizeof *all_tags) + 4 + 4 + 4 * doubles;

// One of the kinds of curves.
curve *usual_curve(draw &d) {
  curve *c = kx_create_curve();
  const bool space = d.below(2);
  const std::int32_t tag = point_tags[space + 2 * (d.below(4) != 0)], n = 4 + d.below(6), p = 1 + d.below(3);
  list_hdr *ctrl = list_of(tag, n, d), *knots = numbers(n + p, true, d), *weights = numbers(n, false, d);
  curve *made = nullptr;
  switch (d.below(6)) {
    case 0: space ? (made = kx_def_ubspl_curve3d(ctrl), 0) : kx_def_ubspl_curve2d(ctrl, c); break;
    case 1: space ? (made = kx_def_ubezier_curve3d(ctrl), 0) : kx_def_ubezier_curve2d(ctrl, c); break;
    case 2: space ? (made = kx_def_ucatrom_curve3d(ctrl), 0) : kx_def_ucatrom_curve2d(ctrl, c); break;
    case 3:
      space ? (made = kx_def_nubspl_curve3d(ctrl, knots, p, 4), 0) : kx_def_nubspl_curve2d(ctrl, knots, p, 4, c);
      break;
    default:
      space ? kx_def_nurb_curve3d(ctrl, knots, weights, p, 4, c) : kx_def_nurb_curve2d(ctrl, knots, weights, p, 4, c);
  }
  for (list_hdr *rest : {ctrl, knots, weights})
    rest->head ? ll_purge_all_items(rest) : (ll_init_list_hdr(rest), ll_purge_list(rest));
  if (made == nullptr) return c;
  kx_purge_curve(c);
  return made;
}

}  // namespace

int values<list_hdr *>::specials(const parameter &) { return list_specials; }
void values<list_hdr *>::make(const request &r, draw &d, slot &s) {
  s.set(r.special < 0 ? usual_list(r.of->name, d) : special_list(r.of->name, r.special, d));
}

int values<list_hdr **>::specials(const parameter &) { return 1; }
void values<list_hdr **>::make(const request &r, draw &, slot &s) {
  s.set(r.special < 0 ? ll_create_list_pntrarray(static_cast<std::int32_t>(r.length)) : nullptr);
}

// Null, a new one, each list missing, each field special, each type for what is of another.
int values<curve *>::specials(const parameter &) { return 7 + 20 + field_specials(fields_of<curve>()); }
void values<curve *>::make(const request &r, draw &d, slot &s) {
  if (r.special == 0 || r.special == 1) return s.set(r.special ? kx_create_curve() : nullptr);
  curve *c = usual_curve(d);
  s.set(c);
  if (r.special < 0) return;
  const int n = r.special - 2;
  if (n < 5) {
    constexpr std::size_t lists[] = {offsetof(curve, weights), offsetof(curve, knots), offsetof(curve, ctrl_pnts),
                                     offsetof(curve, curve_pnts), offsetof(curve, curve_stats)};
    list_hdr *list;
    std::memcpy(&list, reinterpret_cast<char *>(c) + lists[n], sizeof list);
    if (list) ll_purge_all_items(list);
    std::memset(reinterpret_cast<char *>(c) + lists[n], 0, sizeof list);
  } else if (n < 25) {
    c->curve_type = 80 + n - 5;
  } else {
    make_special(fields_of<curve>(), c, n - 25);
  }
}

int values<curve **>::specials(const parameter &) { return 1; }
void values<curve **>::make(const request &r, draw &, slot &s) {
  const std::size_t bytes = sizeof(curve *) * static_cast<std::size_t>(r.length);
  s.set(r.special < 0 ? static_cast<curve **>(std::memset(new_block(bytes), 0, bytes)) : nullptr);
}

// Null, a new one, each field special.
int values<solid *>::specials(const parameter &) { return 2 + field_specials(fields_of<solid>()); }
void values<solid *>::make(const request &r, draw &d, slot &s) {
  solid *made = r.special == 0 ? nullptr : kx_create_solid();
  s.set(made);
  if (r.special == 0 || r.special == 1) return;
  for (std::int32_t i = 0; i < 4; ++i) {
    const pnt_3d p = {d.number(), d.number(), d.number()};
    const std::int32_t ring[] = {i % 4, (i + 1) % 4, (i + 2) % 4, 0};
    kx_add_vertex(made, i, &p, 1);
    kx_add_face(i, ring, ring, 3, made);
  }
  made->solid_type = KX_SOLID_SPHERE;
  made->solid_data = new_records<sphere>(1, d);
  if (r.special > 1) make_special(fields_of<solid>(), made, r.special - 2);
}

int values<surface *>::specials(const parameter &) { return 2 + field_specials(fields_of<surface>()); }
void values<surface *>::make(const request &r, draw &d, slot &s) {
  surface *made = r.special == 0 ? nullptr : kx_create_surface();
  s.set(made);
  if (r.special == 0 || r.special == 1) return;
  made->control_points = list_of(point_tags[d.below(4)], 4, d);
  made->vertices = list_of(KX_POLY_3D, 9, d);
  made->faces = ll_create_list();
  kx_build_surface_face_list(3, 3, made->faces, made->vertices);
  made->steps_u = made->steps_v = 2;
  if (r.special > 1) make_special(fields_of<surface>(), made, r.special - 2);
}

int values<curv *>::specials(const parameter &) { return 1; }
void values<curv *>::make(const request &r, draw &, slot &s) { s.set(r.special < 0 ? kx_create_curv() : nullptr); }

int values<char *>::specials(const parameter &p) { return p.written || p.length ? 1 : 4; }
void values<char *>::make(const request &r, draw &d, slot &s) {
  if (r.special == 0) return s.set(static_cast<char *>(nullptr));
  static constexpr const char *texts[] = {
      "a text", "", "%s%n%s%n",
      "0123456789012345678901234567890123456789012345678901234567890123456789012345"
      "6789012345678901234567890123456789012345678901234567890123456789012345678901"};
  const char *text = texts[r.special < 0 ? 0 : r.special];
  std::size_t bytes = std::strlen(text) + 1;
  if (r.of->length) {
    bytes = static_cast<std::size_t>(r.length);
    text = "";
  } else if (r.of->written) {
    bytes = 512;
  }
  char *made = static_cast<char *>(new_block(bytes));
  std::strcpy(made, text);
  (void)d;
  s.set(made);
}

// Handles of files are nothing that could be guessed: null is all they are given.
int values<void *>::specials(const parameter &) { return 1; }
void values<void *>::make(const request &r, draw &, slot &s) {
  const bool file = std::string_view(r.of->name) == "file";
  s.set(r.special < 0 && !file ? new_block(128) : nullptr);
}

int values<void **>::specials(const parameter &) { return 1; }
void values<void **>::make(const request &r, draw &, slot &s) {
  s.set(r.special < 0 ? static_cast<void **>(new_block(sizeof(void *) * static_cast<std::size_t>(r.length))) : nullptr);
}

namespace {

template <class T>
void make_pointers(const request &r, draw &d, slot &s) {
  if (r.special == 0) return s.set(static_cast<T **>(nullptr));
  T **made = static_cast<T **>(new_block(sizeof(T *) * static_cast<std::size_t>(r.length)));
  for (long i = 0; i < r.length; ++i) made[i] = new_records<T>(1, d);
  if (r.special == 1) made[d.below(static_cast<std::int32_t>(r.length))] = nullptr;
  if (r.special > 1) make_special(fields_of<T>(), made[d.below(static_cast<std::int32_t>(r.length))], r.special - 2);
  s.set(made);
}

}  // namespace

int values<poly_2d *const *>::specials(const parameter &) { return 2 + field_specials(fields_of<poly_2d>()); }
void values<poly_2d *const *>::make(const request &r, draw &d, slot &s) { make_pointers<poly_2d>(r, d, s); }
int values<poly_3d *const *>::specials(const parameter &) { return 2 + field_specials(fields_of<poly_3d>()); }
void values<poly_3d *const *>::make(const request &r, draw &d, slot &s) { make_pointers<poly_3d>(r, d, s); }

int values<compare_function>::specials(const parameter &) { return 1; }
void values<compare_function>::make(const request &r, draw &, slot &s) {
  const compare_function always = [](void *, void *) -> std::int32_t { return 0; };
  s.set(r.special < 0 ? always : nullptr);
}

}  // namespace sweep
