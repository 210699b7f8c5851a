#include "batch.hpp"

namespace digest {

void transform() {
  batches(kx_getidmatrix2d, kx_getidmatrix3d, kx_translatematrix2d, kx_scalematrix2d, kx_shearmatrix2d,
          kx_reflectmatrix2d, kx_mat33mult, kx_movematrix2d, kx_movematrix3d, kx_get_det22, kx_getinversematrix2d,
          kx_transformpnt2d, kx_translatepnt2d, kx_scalepnt2d, kx_windowtransform);
  NEAR(kx_rotationmatrix2d);
  NEAR(kx_rotatepnt2d);
}

}  // namespace digest
