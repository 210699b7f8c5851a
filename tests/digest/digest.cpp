// One fixed batch of calls over every function that has no sine, logarithm or the like on its way. Results and outputs
// are hashed by value, never by address, a line for each subsystem: both builds print the same lines.
//
// Left out, and why; the rest of the list of names is called here, which check_digest.py makes sure of.
//   transcendental: kx_secant kx_cosecant kx_cotangent kx_arcsin kx_arccos kx_arctan kx_arccotangent kx_arcsecant
//     kx_arccosecant kx_hsine kx_hcosine kx_htangent kx_hsecant kx_hcosecant kx_hcotangent kx_archsine kx_archcosine
//     kx_archtangent kx_archcotangent kx_archsecant kx_archcosecant kx_parmtanhangle
//     kx_angletwolines kx_angle_lines_deg kx_angle_lines_rad kx_arcangle kx_angleparmtan kx_pntangledist
//     kx_pntangledist_3d kx_vectordirection kx_angletwoplanes kx_anglelineplane kx_anglelinesspace
//     kx_vectoradd kx_vector_add kx_vector_sub kx_vector_neg kx_vectormult kx_unitvector kx_vector_normalize
//     kx_normalvector3d kx_projectvector kx_projectednormal kx_line_to_vector_3d kx_normal_to_plane
//     kx_line_to_vector_2d kx_unitvector2d kx_normalvector2d
//     kx_arc_pntcount kx_arcpnts_2d kx_circlepnts_2d kx_arc_bulge_2d kx_bulgepnts_2d kx_ellipsepnts_2d
//     kx_elliptic_arc_2d kx_rotationmatrix2d kx_rotatepnt2d
//   message box: kx_memerr kx_display_msg kx_normalizeplane kx_parallelplanes kx_normallineeqspace
//   file: kx_get_message kx_open_file kx_close_file kx_write_file kx_read_file kx_flush_file kx_seek_file
#include <cinttypes>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <iterator>
#include <limits>
#include <tuple>

#include "kxgeom.h"

namespace {

// ---- numbers ----

std::uint64_t state = 1;
std::int32_t below(std::int32_t n) {
  state = state * 6364136223846793005u + 1442695040888963407u;
  return static_cast<std::int32_t>((state >> 33) % static_cast<std::uint64_t>(n));
}

bool wild = false;  // with edges, infinities and the like among the numbers
double last = 0;

double number() {
  static const double edges[] = {
      0.0,         -0.0,     1e-7,     -1e-7,  1.0000001e-7, 9.999999e-8,
      2e-7,        1 + 1e-7, 1 + 2e-7, 1.0,    -1.0,         45,
      90,          360,      1e300,    -1e300, 5e-324,       std::numeric_limits<double>::infinity(),
      std::nan("")};
  if (wild && below(2)) return last = edges[below(std::size(edges))];
  switch (below(4)) {
    case 0: return last = below(17) - 8;
    case 1: return last += (std::fabs(last) + 1) * 1e-7 * (below(3) - 1);
    default: return last = (below(1 << 30) - (1 << 29)) / 1048576.0;
  }
}

std::int32_t integer() { return wild && below(4) == 0 ? (below(2) ? INT32_MAX : -INT32_MAX - 1) : below(41) - 10; }

// ---- hashing ----

std::uint64_t digest = 0;
void hash_bytes(const void *data, std::size_t bytes) {
  for (std::size_t i = 0; i < bytes; ++i)
    digest = (digest ^ static_cast<const unsigned char *>(data)[i]) * 1099511628211u;
}
void hash(std::int32_t value) { hash_bytes(&value, sizeof value); }
void hash(double value) {
  if (std::isnan(value)) value = std::nan("");
  hash_bytes(&value, sizeof value);
}

// What the fields of a record are: d double, i integer; the last letter holds to the record's end.
template <class T>
constexpr const char *layout = "d";
template <>
constexpr const char *layout<std::int32_t> = "i";
template <>
constexpr const char *layout<inumber> = "i";
template <>
constexpr const char *layout<poly_2d> = "id";
template <>
constexpr const char *layout<poly_3d> = "id";
template <>
constexpr const char *layout<matrixrec2d> = "id";
template <>
constexpr const char *layout<matrixrec3d> = "id";
template <>
constexpr const char *layout<arc_2d> = "dddid";
template <>
constexpr const char *layout<parabola_2d> = "dddid";
template <>
constexpr const char *layout<hyperbola_2d> = "ddddid";
template <>
constexpr const char *layout<dwg_rec_2d> = "ddi";

template <class T, class Visit>
void each_field(T *record, Visit visit) {
  auto *at = reinterpret_cast<char *>(record), *end = at + sizeof(T);
  for (const char *kind = layout<T>; at < end; kind += kind[1] != 0) {
    auto field = [&](auto value) {
      std::memcpy(&value, at, sizeof value);
      visit(value);
      std::memcpy(at, &value, sizeof value);
      at += sizeof value;
    };
    *kind == 'd' ? field(0.0) : field(std::int32_t{0});
  }
}
struct randomly {
  void operator()(double &value) const { value = number(); }
  void operator()(std::int32_t &value) const { value = integer(); }
};
template <class T>
void hash_record(const T *record) {
  hash(std::int32_t{record != nullptr});
  if (record == nullptr) return;
  T copy = *record;
  each_field(&copy, [](auto &value) { hash(value); });
}
void hash(const pnt_2d &point) { hash_record(&point); }
void hash(const pnt_3d &point) { hash_record(&point); }
void hash(list_hdr *made);  // and frees it

// ---- functions of numbers and records ----

// An argument made at random from its type, hashed again after the call if the function could write it.
template <class T>
struct argument {
  T value{};
  argument() { each_field(&value, randomly()); }
  operator T() const { return value; }
  void done() const {}
};
template <class T>
struct argument<T *> {
  T values[std::is_same_v<T, double> ? 16 : 1] = {};  // a matrix
  argument() {
    for (T &value : values) each_field(&value, randomly());
  }
  operator T *() { return values; }
  void done() const {
    for (const T &value : values) hash_record(&value);
  }
};
template <class T>
struct argument<const T *> : argument<T *> {};

template <class R, class... P>
void batch(R(KX_CALL *function)(P...)) {
  for (int n = 0; n < 200; ++n) {
    wild = n % 4 == 3;
    std::tuple<argument<P>...> arguments{argument<P>()...};
    if constexpr (std::is_void_v<R>) {
      std::apply([&](auto &...a) { function(a...); }, arguments);
    } else {
      hash(std::apply([&](auto &...a) { return function(a...); }, arguments));
    }
    std::apply([](auto &...a) { (a.done(), ...); }, arguments);
  }
}
template <class... F>
void batches(F... functions) {
  wild = false;
  (batch(functions), ...);
}

template <class T>
void made(T *(KX_CALL *create)(), void(KX_CALL *purge)(T *)) {
  T *record = create();
  hash_record(record);
  purge(record);
}

// An array of one record type; an element is set and read by its index as so many values.
template <class T, class Set, class Get, class... V>
void array(T *(KX_CALL *create)(std::int32_t), Set set, Get get, void(KX_CALL *purge)(T *), std::tuple<V...> values) {
  T *records = create(5);
  for (int i = 0; i <= 5; ++i) {
    std::apply([&](auto &...v) { (randomly()(v), ...); }, values);
    hash(static_cast<std::int32_t>(std::apply([&](auto &...v) { return set(v..., i, records); }, values) - records));
    std::apply([&](auto &...v) { get(&v..., i, records), (hash(v), ...); }, values);
  }
  purge(records);
}

void runtime() {
  batches(kx_initgeometry, kx_set_doublevb, kx_set_longvb, kx_get_doublevb, kx_get_longvb);
  batches(kx_parmzero, kx_parmnotzero, kx_parmltzero, kx_parmlezero, kx_parmgtzero, kx_parmgezero, kx_parmeq, kx_parmne,
          kx_parmlt, kx_parmle, kx_parmgt, kx_parmge, kx_settozero, kx_samepnt, kx_samepnt3d, kx_smallerpnt, kx_between,
          kx_inbetween, kx_rmax, kx_rmin);
  batches(kx_imax, kx_imin, kx_gcd, kx_degrees, kx_radian, kx_exchange, kx_sumsqrdparms, kx_quadratic_eq);
  batches(kx_quadrant, kx_quadrant_deg, kx_quadrant_rad, kx_quadrant_pnt, kx_octant, kx_octant_deg, kx_octant_rad,
          kx_octant_pnt);
}

void strings() {
  for (int n = 0; n < 300; ++n) {
    char text[64] = "", other[64] = "";
    for (int i = below(20); i >= 0; --i) text[i] = "ab  "[below(4)];
    kx_strcpy(other, below(24) - 2, text);
    hash(kx_strcmp(text, other));
    hash(kx_strcat(other, text));
    hash(kx_strlen(other));
    hash(kx_strmake(other, below(24) - 2, below(3)));
    kx_strfill(text, below(10) - 2, 'a' + below(300));
    hash_bytes(text, sizeof text);
    hash_bytes(other, sizeof other);
    char *made = kx_create_char_array(below(9) - 2);
    hash(std::int32_t{made != nullptr});
    kx_purge_char_array(made);
  }
}

// ---- lists ----

constexpr std::int32_t tags[] = {KX_PNT_2D, KX_PNT_3D, KX_POLY_2D, KX_POLY_3D, KX_RNUMBER, KX_INUMBER, KX_STRING};

template <class T>
T *filled(T *record) {
  if (record) each_field(record, randomly());
  return record;
}

void *new_record(std::int32_t tag) {
  switch (tag) {
    case KX_PNT_2D: return filled(kx_create_pnt_2d());
    case KX_PNT_3D: return filled(kx_create_pnt_3d());
    case KX_POLY_2D: return filled(kx_create_poly_2d());
    case KX_POLY_3D: return filled(kx_create_poly_3d());
    case KX_RNUMBER: return filled(kx_create_rnumber());
    case KX_INUMBER: return filled(kx_create_inumber());
  }
  char *text = kx_create_char_array(8);
  kx_strcpy(text, 9, below(2) ? "text" : "a text too long");
  return text;
}

void hash_list(const list_hdr *list) {
  hash(std::int32_t{list != nullptr});
  if (list == nullptr) return;
  hash(list->count);
  std::int32_t position = 0;
  for (const list_item *item = list->head; item; item = item->next == list->head ? nullptr : item->next, ++position) {
    if (item == list->current) hash(position);
    hash(item->datatype);
    switch (item->datatype) {
      case KX_PNT_2D: hash_record(static_cast<pnt_2d *>(item->data)); break;
      case KX_PNT_3D: hash_record(static_cast<pnt_3d *>(item->data)); break;
      case KX_POLY_2D: hash_record(static_cast<poly_2d *>(item->data)); break;
      case KX_POLY_3D: hash_record(static_cast<poly_3d *>(item->data)); break;
      case KX_RNUMBER: hash_record(static_cast<rnumber *>(item->data)); break;
      case KX_INUMBER: hash_record(static_cast<inumber *>(item->data)); break;
      case KX_CURVE_STATS_2D: hash_record(static_cast<curve_stats_2d *>(item->data)); break;
      case KX_CURVE_STATS_3D: hash_record(static_cast<curve_stats_3d *>(item->data)); break;
      case KX_STRING: hash(kx_strlen(static_cast<char *>(item->data))); break;
    }
  }
}

// A header whose items may have gone elsewhere.
void drop(list_hdr *list) {
  if (list->head)
    ll_purge_all_items(list);
  else
    ll_init_list_hdr(list), ll_purge_list(list);
}

std::int32_t every_third(void *, void *count) { return ++*static_cast<std::int32_t *>(count) % 3 == 0; }

// Changes that any list takes.
void change(list_hdr *list, std::int32_t tag) {
  std::int32_t count = below(3);
  pnt_2d plane;
  pnt_3d space;
  void *data = nullptr;
  switch (below(14)) {
    case 0:
    case 1: hash(ll_add_list_item(list, below(5), new_record(tag), tag)); break;
    case 2: hash(ll_add_pnt2d(list, below(5), filled(&plane))); break;
    case 3: hash(ll_add_pnt3d(list, below(5), filled(&space))); break;
    case 4: hash(ll_add_rnumber(list, below(5), number())); break;
    case 5: hash(ll_add_inumber(list, below(5), integer())); break;
    case 6: hash(ll_add_string(list, below(5), "a b")); break;
    case 7: hash(ll_delete_item(list, below(5), below(5))); break;
    case 8: hash(ll_set_list_currpntr(list, below(7) - 1)); break;
    case 9: ll_rearrange_list(list, below(2)); break;
    case 10:
      if ((data = ll_pop_list(list))) hash(ll_push_list(list, data, tag));
      break;
    case 11:
      if ((data = ll_delete_list_item(list, below(5), below(5)))) hash(ll_add_list_item(list, below(5), data, tag));
      break;
    case 12: hash(ll_search_list(list, below(5), below(5), 1 + below(3), every_third, &count)); break;
    default: hash(kx_delete_polygon(list, below(5)));
  }
}

void lists() {
  for (int round = 0; round < 8; ++round) {
    for (const std::int32_t tag : tags) {
      wild = round % 4 == 3;
      list_hdr *list = ll_create_list();
      ll_add_list_item(list, 1, new_record(tag), tag);
      for (int n = 0; n < 60; ++n) {
        change(list, tag);
        char text[32] = "";
        hash(ll_get_list_count(list));
        hash(ll_get_datatype(list));
        hash(std::int32_t{ll_get_list_data(list) != nullptr});
        hash(ll_get_pnt2d(list, below(5)));
        hash(ll_get_pnt3d(list, below(5)));
        hash(ll_get_rnumber(list, below(5)));
        hash(ll_get_inumber(list, below(5)));
        hash(ll_get_string_len(list, below(5)));
        hash(ll_get_string(list, below(5), text));
        hash_bytes(text, sizeof text);
        hash_list(list);
      }
      void *data[200];
      hash(ll_get_list_array(list, data));
      hash(round % 2 ? ll_purge_all_items(list) : ll_clear_all_items(list));
      if (round % 2 == 0) hash(ll_purge_list(list));
    }
  }
  list_hdr *headers = ll_create_list_array(3), **pointers = ll_create_list_pntrarray(3);
  hash_list(headers + 2);
  hash(std::int32_t{pointers[2] == nullptr});
  ll_purge_list_array(headers);
  ll_purge_list_pntrarray(pointers);
}

// ---- records ----

void records() {
  made(kx_create_pnt_2d, kx_purge_pnt_2d), made(kx_create_pnt_3d, kx_purge_pnt_3d),
      made(kx_create_poly_2d, kx_purge_poly_2d);
  made(kx_create_poly_3d, kx_purge_poly_3d), made(kx_create_line_2d, kx_purge_line_2d),
      made(kx_create_line_3d, kx_purge_line_3d);
  made(kx_create_ile_2d, kx_purge_ile_2d), made(kx_create_ple_2d, kx_purge_ple_2d),
      made(kx_create_ple_3d, kx_purge_ple_3d);
  made(kx_create_planeeq, kx_purge_planeeq), made(kx_create_vector_2d, kx_purge_vector_2d);
  made(kx_create_vector_3d, kx_purge_vector_3d), made(kx_create_cylcoord, kx_purge_cylcoord);
  made(kx_create_sphercoord, kx_purge_sphercoord), made(kx_create_polarcoord, kx_purge_polarcoord);
  made(kx_create_rect_2d, kx_purge_rect_2d), made(kx_create_rect_3d, kx_purge_rect_3d);
  made(kx_create_triag_2d, kx_purge_triag_2d), made(kx_create_triangle, kx_purge_triangle);
  made(kx_create_circle_2d, kx_purge_circle_2d), made(kx_create_ellipse_2d, kx_purge_ellipse_2d);
  made(kx_create_arc_2d, kx_purge_arc_2d), made(kx_create_parabola_2d, kx_purge_parabola_2d);
  made(kx_create_hyperbola_2d, kx_purge_hyperbola_2d), made(kx_create_dwg_rec_2d, kx_purge_dwg_rec_2d);
  made(kx_create_rnumber, kx_purge_rnumber), made(kx_create_inumber, kx_purge_inumber);
  made(kx_create_matrixrec2d, kx_purge_matrixrec2d), made(kx_create_matrixrec3d, kx_purge_matrixrec3d);
  made(kx_create_curve_stats_2d, kx_purge_curve_stats_2d), made(kx_create_curve_stats_3d, kx_purge_curve_stats_3d);
  batches(kx_set_pnt_2d, kx_set_pnt_3d, kx_set_poly_2d, kx_set_poly_3d, kx_set_line_2d, kx_set_line_3d, kx_set_ile,
          kx_set_ile_2d, kx_set_ple, kx_set_ple_2d, kx_set_ples, kx_set_ple_3d, kx_set_planeeq, kx_set_vector_2d,
          kx_set_vector_3d, kx_set_cylcoord, kx_set_sphercoord, kx_set_polarcoord, kx_set_rect_2d, kx_set_rect_3d,
          kx_set_triag_2d, kx_set_triangle, kx_set_circle_2d, kx_set_circle, kx_set_ellipse_2d, kx_set_arc_2d,
          kx_set_parabola_2d, kx_set_hyperbola_2d, kx_set_dwgrec_2d, kx_set_rnumber, kx_set_inumber, kx_set_zeropnt_2d,
          kx_set_zeropnt_3d);
  batches(kx_get_pnt_2d, kx_get_pnt_3d, kx_get_poly_2d, kx_get_poly_3d, kx_get_line_2d, kx_get_line_3d, kx_get_ile,
          kx_get_ile_2d, kx_get_ple, kx_get_ple_2d, kx_get_ples, kx_get_ple_3d, kx_get_planeeq, kx_get_vector_2d,
          kx_get_vector_3d, kx_get_cylcoord, kx_get_sphercoord, kx_get_polarcoord, kx_get_rect_2d, kx_get_rect_3d,
          kx_get_triag_2d, kx_get_triangle, kx_get_circle_2d, kx_get_ellipse_2d, kx_get_arc_2d, kx_get_parabola_2d,
          kx_get_hyperbola_2d, kx_get_dwgrec_2d, kx_get_rnumber, kx_get_inumber, kx_get_curve_stats_2d,
          kx_get_curve_stats_3d);
  array(kx_create_pnt_2d_array, kx_set_array_pnt_2d, kx_get_array_pnt_2d, kx_purge_pnt_2d_array, std::tuple{0.0, 0.0});
  array(kx_create_pnt_3d_array, kx_set_array_pnt_3d, kx_get_array_pnt_3d, kx_purge_pnt_3d_array,
        std::tuple{0.0, 0.0, 0.0});
  array(kx_create_rnumber_array, kx_set_array_rnumber, kx_get_array_rnumber, kx_purge_rnumber_array, std::tuple{0.0});
  array(kx_create_inumber_array, kx_set_array_inumber, kx_get_array_inumber, kx_purge_inumber_array,
        std::tuple{std::int32_t{0}});
  void **handles = kx_create_handle_array(3), *read = nullptr;
  hash(static_cast<std::int32_t>(kx_set_array_handle(&read, 2, handles) - handles));
  kx_get_array_handle(&read, 2, handles);
  hash(std::int32_t{read == &read});
  kx_purge_handle_array(handles);
}

// ---- point lists ----

list_hdr *points(std::int32_t n, std::int32_t tag) {
  pnt_2d plane[20];
  pnt_3d space[20];
  for (int i = 0; i < 20; ++i) filled(plane + i), filled(space + i);
  return below(2) ? kx_pnt2d_array_to_list(plane, n, tag, below(9), below(4))
                  : kx_pnt3d_array_to_list(space, n, tag, below(9), below(4));
}

list_hdr *numbers(std::int32_t n, bool ascending) {
  list_hdr *list = ll_create_list();
  double value = 1;
  for (std::int32_t i = 0; i < n; ++i) {
    value = ascending ? value + below(4) * 0.3 : below(8) + 0.5;
    rnumber *record = kx_create_rnumber();
    kx_set_rnumber(value, record);
    ll_add_list_item(list, 1, record, KX_RNUMBER);
  }
  return list;
}

void hash(list_hdr *made) {
  hash_list(made);
  if (made) drop(made);
}

template <>
struct argument<list_hdr *> {
  list_hdr *value = below(4) ? points(3 + below(9), tags[below(4)]) : ll_create_list();
  operator list_hdr *() const { return value; }
  void done() const { hash(value); }
};
template <>
struct argument<const list_hdr *> : argument<list_hdr *> {};

void point_lists() {
  for (int round = 0; round < 200; ++round) {
    wild = round % 4 == 3;
    const std::int32_t tag = tags[round % 4];
    list_hdr *list = points(1 + below(12), tag), *copy = ll_create_list();
    hash_list(list);
    hash(kx_renum_polygon(list, below(4), integer() % 1000, below(5) - 2));
    hash(kx_find_polygon_seqnr(list, below(12)));
    hash(kx_merge_polygon(list, copy, below(5), below(2)));
    hash(kx_copy_polygon(list, copy));
    hash(kx_merge_polygon(list, copy, below(5), below(2)));
    hash_list(copy);
    double matrix[16];
    for (double &value : matrix) value = number();
    list_hdr *moved = kx_transfpolygon(matrix, list);
    hash_list(moved);
    pnt_2d plane[20] = {};
    pnt_3d space[20] = {};
    std::int32_t room = 5 + below(10);
    hash(below(2) ? kx_get_xypolyheap(list, plane, &room) : kx_get_xyzpolyheap(list, space, &room));
    hash(room);
    for (int i = 0; i < 20; ++i) hash(plane[i]), hash(space[i]);
    hash(tag == KX_POLY_3D ? kx_put_xyzpolyheap(space, 3, list) : kx_put_xypolyheap(plane, 3, list));
    hash_list(list);
    hash(kx_clear_polygon(copy));
    for (list_hdr *each : {list, copy, moved}) hash(kx_purge_polygon(each));
  }
}

void geometry() {
  batches(kx_lineequation, kx_lineeq_ile, kx_lineeq_ple, kx_convlineeq, kx_normalizeline, kx_normal_ile, kx_normal_ple,
          kx_slope, kx_abscissa, kx_abscissa_ile, kx_abscissa_ple, kx_ordinate, kx_ordinate_ile, kx_ordinate_ple,
          kx_distance, kx_distance_3d, kx_distpntln_ile, kx_distpntln_ls, kx_distpntline, kx_midpoint, kx_arclength,
          kx_pointdvln, kx_point_on_line, kx_pointonline, kx_lineloc, kx_orient_line, kx_angle_diff, kx_angle_lines_cos,
          kx_parallellines, kx_perpendicular, kx_linepntperpend, kx_linepntparallel, kx_linebisector,
          kx_bisector_two_lines, kx_intersect, kx_intersect_ile, kx_intersect_ple, kx_intersect_pil, kx_intersect_ls,
          kx_intersect_ils, kx_intersect_pls, kx_intersectls, kx_intersectf, kx_axisintersect, kx_axisintersect_ls,
          kx_linerelationship, kx_vector_to_line_2d, kx_point_on_vector, kx_planeequation, kx_planeeq_3p,
          kx_planeeq_2pple, kx_planeeq_pnl, kx_planeeq_2pls, kx_planeeq_pnls, kx_plane_pnt, kx_distpntplane,
          kx_inttwoplanes, kx_intthreeplanes, kx_intlineplane, kx_intlineplane_ls, kx_intlineplane_ple, kx_lineeqspace,
          kx_mplinespace, kx_distancespace, kx_distpntlinespace, kx_distpntlnsp_ls, kx_distpntlnsp_ple,
          kx_distlinespace, kx_intlinespace, kx_intlinespace_ls, kx_intlinespace_ple, kx_crossproduct, kx_dotproduct,
          kx_vector_dot, kx_vectorlength, kx_vector_len, kx_vector_sqlen, kx_vector_pnt, kx_get_point_on_line,
          kx_crossproduct_3d, kx_vectorlength_3d, kx_vectormult_3d, kx_unitvector_3d, kx_normalvector_3d,
          kx_projectvector_3d, kx_projectednormal_3d);
}

void polygon() {
  batches(kx_inpolygonl, kx_inonpolygonl, kx_onpolygonl, kx_pnts_inpolyl, kx_pnts_inonpolyl, kx_pnts_onpolyl,
          kx_pnts_in_line, kx_incircle, kx_inrectangle, kx_in_rectangle, kx_rect_equal_2d, kx_rect_union_2d,
          kx_rect_intersect_2d, kx_polygontypel, kx_get_poly2d_dir, kx_poly_xy_maxmin, kx_orderpolygonl,
          kx_reverse_xy_poly, kx_match_point, kx_morph_polyline, kx_self_intersecting_polygon, kx_check_poly,
          kx_same_poly, kx_intersect_poly, kx_inside_poly, kx_outside_poly);
  for (int round = 0; round < 200; ++round) {
    wild = round % 4 == 3;
    pnt_2d corners[13], out[4] = {}, from;
    for (pnt_2d &corner : corners) filled(&corner);
    const std::int32_t count = 3 + below(9);
    std::int32_t number[2] = {};
    hash(kx_inpolygon(filled(&from), corners, &count, number));
    hash(kx_polygontype(corners, count, number + 1));
    hash(kx_extremepnts(corners, count, out, out + 1, out + 2, out + 3));
    hash(kx_find_smallest_xy(corners, count));
    hash(kx_orderpolygon(corners, count, below(3) - 1));
    for (const std::int32_t value : number) hash(value);
    for (const pnt_2d &point : out) hash(point);
    for (const pnt_2d &corner : corners) hash(corner);
  }
}

void transform() {
  batches(kx_getidmatrix2d, kx_getidmatrix3d, kx_translatematrix2d, kx_scalematrix2d, kx_shearmatrix2d,
          kx_reflectmatrix2d, kx_mat33mult, kx_movematrix2d, kx_movematrix3d, kx_get_det22, kx_getinversematrix2d,
          kx_transformpnt2d, kx_translatepnt2d, kx_scalepnt2d, kx_windowtransform);
}

// ---- curves ----

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

// Hashes a curve and its copy and frees both; control points that are no polygon's need a second try.
void done(curve *c) {
  hash_curve(c);
  curve *copy = kx_copy_curve(c);
  hash_curve(copy);
  if (copy) hash(kx_clear_curve(copy, below(2)));
  for (curve *each : {c, copy})
    if (kx_purge_curve(each) == 9) hash(kx_purge_curve(each));
}

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

void nonuniform_curves() {
  for (int round = 0; round < 120; ++round) {
    wild = round % 8 == 7;
    const std::int32_t tag = tags[round % 4], p = 1 + below(5), n = p + 1 + below(8), spans = n - p;
    list_hdr *ctrl[4], *knots[4], *weights[4];
    for (int i = 0; i < 4; ++i)
      ctrl[i] = points(n, tag), knots[i] = numbers(n + p + below(2), true), weights[i] = numbers(n, false);
    curve *c[4] = {kx_create_curve(), kx_def_nubspl_curve3d(ctrl[1], knots[1], p, 2), nullptr, kx_create_curve()};
    hash(kx_def_nubspl_curve2d(ctrl[0], knots[0], p + below(2), 3, c[0]));
    c[2] = kx_def_nurb_curve(ctrl[2], knots[2], weights[2], p, 1 + below(3));
    hash(tag == KX_PNT_3D || tag == KX_POLY_3D ? kx_def_nurb_curve3d(ctrl[3], knots[3], weights[3], p, 2, c[3])
                                               : kx_def_nurb_curve2d(ctrl[3], knots[3], weights[3], p, 2, c[3]));
    hash(kx_mk_nurb_curve(c[2], below(3), below(2), spans - below(2), below(4)));
    hash(kx_mk_nurb_curve2d(c[3], 0, 0, spans, 2));
    hash(kx_mk_nurb_curve3d(c[3], 1, 1, spans - 1, 3));
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

}  // namespace

int main() {
  std::uint64_t total = 14695981039346656037u;
  const std::tuple<const char *, void (*)()> subsystems[] = {{"runtime", runtime},
                                                             {"strings", strings},
                                                             {"list", lists},
                                                             {"records", records},
                                                             {"point lists", point_lists},
                                                             {"geometry", geometry},
                                                             {"polygon", polygon},
                                                             {"transform", transform},
                                                             {"uniform curves", uniform_curves},
                                                             {"non-uniform curves", nonuniform_curves}};
  for (const auto &[name, run] : subsystems) {
    digest = 14695981039346656037u;
    state = 1;
    last = 0;
    run();
    std::printf("%-20s %016" PRIx64 "\n", name, digest);
    total = (total ^ digest) * 1099511628211u;
  }
  std::printf("%-20s %016" PRIx64 "\n", "all", total);
}
