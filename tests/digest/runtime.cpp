// Left out, message box: kx_memerr kx_display_msg
// Left out, file: kx_get_message kx_open_file kx_close_file kx_write_file kx_read_file kx_flush_file kx_seek_file
#include "batch.hpp"

namespace digest {

void runtime() {
  batches(kx_initgeometry, kx_set_doublevb, kx_set_longvb, kx_get_doublevb, kx_get_longvb);
  batches(kx_parmzero, kx_parmnotzero, kx_parmltzero, kx_parmlezero, kx_parmgtzero, kx_parmgezero, kx_parmeq, kx_parmne,
          kx_parmlt, kx_parmle, kx_parmgt, kx_parmge, kx_settozero, kx_samepnt, kx_samepnt3d, kx_smallerpnt, kx_between,
          kx_inbetween, kx_rmax, kx_rmin);
  batches(kx_imax, kx_imin, kx_gcd, kx_degrees, kx_radian, kx_exchange, kx_sumsqrdparms, kx_quadratic_eq);
  batches(kx_quadrant, kx_quadrant_deg, kx_quadrant_rad, kx_quadrant_pnt, kx_octant, kx_octant_deg, kx_octant_rad,
          kx_octant_pnt);
  NEAR(kx_secant);
  NEAR(kx_cosecant);
  NEAR(kx_cotangent);
  NEAR(kx_arcsin);
  NEAR(kx_arccos);
  NEAR(kx_arctan);
  NEAR(kx_arccotangent);
  NEAR(kx_arcsecant);
  NEAR(kx_arccosecant);
  NEAR(kx_hsine);
  NEAR(kx_hcosine);
  NEAR(kx_htangent);
  NEAR(kx_hsecant);
  NEAR(kx_hcosecant);
  NEAR(kx_hcotangent);
  NEAR(kx_archsine);
  NEAR(kx_archcosine);
  NEAR(kx_archtangent);
  NEAR(kx_archcotangent);
  NEAR(kx_archsecant);
  NEAR(kx_archcosecant);
  NEAR(kx_parmtanhangle);
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

}  // namespace digest
