// From the window of a drawing to the viewport of a screen.
#include "kxgeom/transform.h"
#include "transform/matrix.hpp"

void KX_CALL kx_windowtransform(const rect_2d *window, const rect_2d *viewport, const pnt_2d *p, pnt_2d *out) {
  if (window && viewport && p && out) *out = kx::window_map(*window, *viewport)(*p);
}
