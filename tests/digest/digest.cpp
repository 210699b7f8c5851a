// One fixed batch of calls over every function that has no sine, logarithm or the like on its way. Results and outputs
// are hashed by value, never by address, a line for each subsystem: both builds print the same lines. The names that a
// subsystem leaves out stand with the reason at the head of its file; check_digest.py sees that all others are called.
#include <cinttypes>
#include <cstdio>

#include "batch.hpp"

int main() {
  using namespace digest;
  std::uint64_t total = 14695981039346656037u;
  const std::tuple<const char *, void (*)()> subsystems[] = {{"runtime", runtime},
                                                             {"strings", strings},
                                                             {"list", lists},
                                                             {"records", records},
                                                             {"point lists", point_lists},
                                                             {"geometry", geometry},
                                                             {"polygon", polygon},
                                                             {"transform", transform},
                                                             {"uniform curves", uniform_curves},
                                                             {"lists of samples", lists_of_samples},
                                                             {"interpolation", interpolation},
                                                             {"non-uniform curves", nonuniform_curves},
                                                             {"Bezier curves", bezier_curves},
                                                             {"solids", solids},
                                                             {"primitives", primitives}};
  for (const auto &[name, run] : subsystems) {
    restart();
    run();
    std::printf("%-20s %016" PRIx64 "\n", name, hashed());
    total = (total ^ hashed()) * 1099511628211u;
  }
  std::printf("%-20s %016" PRIx64 "\n", "all", total);
}
