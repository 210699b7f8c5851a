// The axis of a primitive's record.
#pragma once

#include "records/output.hpp"

namespace kx {

// Writes it to three outputs, each of which may be null.
template <class T>
void put_axis(double *x, double *y, double *z, const T &record) {
  put<double>(x, record.axis_x);
  put<double>(y, record.axis_y);
  put<double>(z, record.axis_z);
}

}  // namespace kx
