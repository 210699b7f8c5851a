// What the two families of sampled curves share: input, peers that fill an array, and the floors. An item is one
// sample.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "harness.hpp"
#include "kxgeom/types.h"

namespace bench {

using samples = std::vector<pnt_2d>;

// A wave with a ripple, so that no two spans are alike.
samples control_points(int n);

// The same as a list of poly_2d.
list_hdr *point_list(const samples &points);
list_hdr *number_list(const std::vector<double> &numbers);

// Four blocks a sample (point, statistics and their two items): what the contract asks of the heap.
void add_floors(const std::string &family, std::size_t n);

// A row that writes its samples into an array made beforehand.
void add_array_row(const std::string &name, const samples &want, const std::function<void(samples &)> &fill);

// Our maker, with and without the purge of what it made.
struct maker {
  std::string name;
  std::function<curve *()> define;
  std::function<std::int32_t(curve *)> make;
};
void add_maker(const std::string &family, const samples &want, const maker &m);

}  // namespace bench
