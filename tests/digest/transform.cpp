#include "batch.hpp"

namespace digest {

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
}

}  // namespace digest
