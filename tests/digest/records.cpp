#include <initializer_list>

#include "batch.hpp"

namespace digest {
namespace {

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

}  // namespace

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
  NEAR(kx_unitvector2d);
  NEAR(kx_normalvector2d);
}

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

}  // namespace digest
