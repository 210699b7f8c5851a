// Left out, message box: kx_normalizeplane kx_parallelplanes kx_normallineeqspace
#include "batch.hpp"

namespace digest {

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
  NEAR(kx_angletwolines);
  NEAR(kx_angle_lines_deg);
  NEAR(kx_angle_lines_rad);
  NEAR(kx_arcangle);
  NEAR(kx_angleparmtan);
  NEAR(kx_pntangledist);
  NEAR(kx_pntangledist_3d);
  NEAR(kx_vectordirection);
  NEAR(kx_angletwoplanes);
  NEAR(kx_anglelineplane);
  NEAR(kx_anglelinesspace);
  NEAR(kx_vectoradd);
  NEAR(kx_vector_add);
  NEAR(kx_vector_sub);
  NEAR(kx_vector_neg);
  NEAR(kx_vectormult);
  NEAR(kx_unitvector);
  NEAR(kx_vector_normalize);
  NEAR(kx_normalvector3d);
  NEAR(kx_projectvector);
  NEAR(kx_projectednormal);
  NEAR(kx_line_to_vector_3d);
  NEAR(kx_normal_to_plane);
  NEAR(kx_line_to_vector_2d);
  NEAR(kx_arc_pntcount);
  NEAR(kx_arcpnts_2d);
  NEAR(kx_circlepnts_2d);
  NEAR(kx_arc_bulge_2d);
  NEAR(kx_bulgepnts_2d);
  NEAR(kx_ellipsepnts_2d);
  NEAR(kx_elliptic_arc_2d);
}

}  // namespace digest
