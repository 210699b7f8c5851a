#include "batch.hpp"

namespace digest {

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

}  // namespace digest
