// The blocks that a thread's calls take and free: which are alive, whether somebody wrote beside one, which of them
// nothing leads to any more; and allocations that fail on demand.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace blocks {

// A piece of memory from which blocks can be reached.
struct root {
  const void *at;
  std::size_t bytes;
};

// From here on allocations count; the n-th fails (0: none), or all from it on.
void begin_call(long fail_nth = 0, bool and_all_later = false);
// How many allocations the call asked for.
long end_call();

// Whether this address is that of a block that is alive; between fault() and release_all().
bool is_live(const void *block);

// What is wrong with the blocks after a call, empty if nothing: one freed twice, one written beside, one taken by the
// call and reachable neither from the roots nor from a block that was there before.
std::string fault(const std::vector<root> &roots);

// Frees all that is alive.
void release_all();

}  // namespace blocks
