// Left out, message box: kx_sphertocyl kx_sphertopolar kx_sphertorect
#include <vector>

#include "batch.hpp"

namespace digest {
namespace {

template <class Store, class Restore, class Dispose>
void matrix_store(Store store, Restore restore, Dispose dispose) {
  list_hdr *list = ll_create_list();
  for (int n = 0; n < 40; ++n) {
    double matrix[16];
    for (double &value : matrix) value = number();
    hash(ll_set_list_currpntr(list, below(4)));
    hash(store(list, below(6), matrix));
    hash(restore(list, below(6), matrix));
    for (const double value : matrix) hash(value);
    hash(ll_get_list_count(list));
  }
  hash(dispose(list));
}

void band_systems() {
  wild = false;
  for (int m = 0; m <= 7; ++m) {
    for (const std::int32_t n : {1, 3, 20, 1500}) {
      std::vector<double> band(static_cast<std::size_t>(n * (2 * m + 1))), b(static_cast<std::size_t>(n)), x = b;
      for (double &value : band) value = number();
      for (std::int32_t i = 0; i < n; ++i) band[static_cast<std::size_t>(i * (2 * m + 1) + m)] += 2000.0 * (m + 1);
      for (double &value : b) value = number();
      hash(kx_ludecomposition(band.data(), n, m));
      hash(kx_forbacksubstitution(band.data(), n, m, b.data(), x.data()));
      for (const auto &values : {band, b, x}) {
        for (const double value : values) hash(value);
      }
    }
  }
}

void KX_CALL perspective(const pnt_3d *p, const pnt_3d *eye, const double *view, double *out) {
  kx_perspective(p, eye, view, out);  // returns an address
}

}  // namespace

void transform() {
  batches(kx_getidmatrix2d, kx_getidmatrix3d, kx_translatematrix2d, kx_scalematrix2d, kx_shearmatrix2d,
          kx_reflectmatrix2d, kx_mat33mult, kx_movematrix2d, kx_movematrix3d, kx_get_det22, kx_getinversematrix2d,
          kx_transformpnt2d, kx_translatepnt2d, kx_scalepnt2d, kx_windowtransform);
  batches(kx_translatematrix3d, kx_scalematrix3d, kx_shearmatrix3d, kx_reflectmatrix3d, kx_mat44mult, kx_mat_mult,
          kx_mult_vector, kx_get_det33, kx_get_det44, kx_get_adjoint_matrix3d, kx_getinversematrix3d, kx_inverse,
          kx_transformpnt3d, kx_translatepnt3d, kx_scalepnt3d);
  NEAR(kx_rotationmatrix2d);
  NEAR(kx_rotationmatrix3d);
  NEAR(kx_rotatepnt2d);
  NEAR(kx_rotatepnt3d);
  batches(kx_transform_polyline_3d, kx_transform_pnt_set);
  matrix_store(kx_storematrix2d, kx_restorematrix2d, kx_disposematrix2d);
  matrix_store(kx_storematrix3d, kx_restorematrix3d, kx_disposematrix3d);
  band_systems();
  batches(kx_ecs_to_wcs, kx_wcs_to_ecs, kx_get_ecs_origin, kx_plane_to_xy, perspective, kx_viewplanetrf);
  NEAR(kx_cyltopolar);
  NEAR(kx_cyltorect);
  NEAR(kx_cyltospher);
  NEAR(kx_polartocyl);
  NEAR(kx_polartorect);
  NEAR(kx_polartospher);
  NEAR(kx_recttocyl);
  NEAR(kx_recttopolar);
  NEAR(kx_recttospher);
  NEAR(kx_viewmatrix3d);
}

}  // namespace digest
