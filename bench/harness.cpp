#include "harness.hpp"

#include <malloc.h>
#include <time.h>

#include <cstdlib>
#include <cstring>
#include <memory>
#include <utility>

namespace {

int wrong_answers = 0;

struct checked_row {
  bench::row row;
  bool checked = false;
  std::string complaint;
};

// Memory once taken is kept and touched beforehand: pages that the system has yet to hand out are nobody's work here,
// and would be paid by whichever row came first.
void keep_heap() {
  constexpr std::size_t bytes = std::size_t{384} << 20;
  mallopt(M_MMAP_MAX, 0);
  mallopt(M_TRIM_THRESHOLD, 2000000000);
  void *volatile block = std::malloc(bytes);  // volatile, or the compiler leaves all of it out
  if (block) std::memset(block, 1, bytes);
  std::free(block);
}

// A request too large for the small bins makes the allocator join the blocks that passes before have freed; otherwise a
// list of a million blocks would measure the order in which another row gave its own back.
void settle_heap() {
  void *volatile block = std::malloc(std::size_t{1} << 20);
  std::free(block);
}

double cpu_seconds() {
  timespec t{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &t);
  return static_cast<double>(t.tv_sec) + 1e-9 * static_cast<double>(t.tv_nsec);
}

void time_row(benchmark::State &state, checked_row &r) {
  if (!r.checked) {
    r.checked = true;
    if (r.row.check) r.complaint = r.row.check();
    if (!r.complaint.empty()) ++wrong_answers;
  }
  if (!r.complaint.empty()) {
    state.SkipWithError(("wrong answer: " + r.complaint).c_str());
    return;
  }
  while (state.KeepRunning()) {
    settle_heap();
    if (r.row.before) r.row.before();
    const double start = cpu_seconds();
    r.row.pass();
    state.SetIterationTime(cpu_seconds() - start);
    if (r.row.after) r.row.after();
  }
  state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations()) * r.row.items);
}

}  // namespace

void bench::add(row r) {
  const auto shared = std::make_shared<checked_row>();
  shared->row = std::move(r);
  benchmark::RegisterBenchmark(shared->row.name.c_str(), [shared](benchmark::State &state) {
    time_row(state, *shared);
  })->UseManualTime();
}

int main(int argc, char **argv) {
  keep_heap();
  bench::add_rows();
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
  benchmark::RunSpecifiedBenchmarks();
  return wrong_answers == 0 ? 0 : 1;
}
