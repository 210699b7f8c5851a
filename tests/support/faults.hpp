// Faults on demand: the n-th allocation fails, message boxes are recorded instead of shown, blocks are counted.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace faults {

// Starts counting: blocks that the library takes from now on are watched; the n-th allocation fails (0: none).
void watch(long fail_nth = 0);
// Stops counting. True when the allocation that was to fail was reached. Frees are still noted.
bool unwatch();
// Watched blocks that nobody has freed yet.
long live_blocks();

// The texts of the message boxes since the last call of clear_messages.
std::vector<std::string> messages();
void clear_messages();

// Fails each allocation of a call in turn, until a run needs no more of them.
//
// setup() builds the inputs with the library alone; call(inputs) makes the call and gives its result; check(n, inputs,
// result) judges it, n being the number of the allocation that failed, 0 in the last run, where none did, and frees
// what is left. The message boxes are there for it to read. Returns how many allocations the call makes. A leak is a
// failure.
template <class Setup, class Call, class Check>
int fail_each_allocation(Setup setup, Call call, Check check) {
  for (int n = 1;; ++n) {
    clear_messages();
    watch();
    auto inputs = setup();
    unwatch();
    const long before = live_blocks();
    watch(n);
    auto result = call(inputs);
    const bool fired = unwatch();
    check(fired ? n : 0, inputs, result);
    EXPECT_EQ(live_blocks(), 0) << "leaked after allocation " << n << " failed; " << before << " blocks went in";
    if (::testing::Test::HasFatalFailure() || !fired || n > 10000) return n - 1;
  }
}

}  // namespace faults
