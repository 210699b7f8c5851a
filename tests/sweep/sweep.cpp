// Calls every exported function with everything that a host may hand over, and looks at what must hold after each call:
// it returns, soon; no block is lost, freed twice or written beside; lists are linked; what is only read is unchanged;
// and with usual arguments no invalid operation, division by zero or overflow was raised, which some hosts trap.
//
// usage: sweep [values|faults|threads] [FUNCTION...]
//   values    each argument in turn with each special value of its type
//   faults    each allocation of a call fails: alone, and with all later ones
//   threads   many threads, each with records of its own
// A line for each fault; 1 when there was one.
#include "sweep.hpp"

#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cfenv>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <random>
#include <set>
#include <string>
#include <thread>

#include "blocks.hpp"

namespace sweep {
namespace {

constexpr double most_seconds = 1.0;
constexpr int usual_rounds = 150, special_rounds = 3, fault_rounds = 4, most_faults = 60;

struct run {
  int seed = 0, parameter = -1, special = -1;
  long fail_nth = 0;
  bool later_too = false;
};

bool linked(const list_hdr *list) {
  if (list->head == nullptr) return true;
  std::int32_t n = 0;
  bool has_current = list->current == nullptr;
  const list_item *before = nullptr;
  for (const list_item *item = list->head; item; before = item, item = item->next) {
    if (!blocks::is_live(item) || item->prev != before) return false;
    if (item->data && !blocks::is_live(item->data)) return false;
    has_current = has_current || item == list->current;
    ++n;
  }
  return before == list->tail && n == list->count && has_current;
}

// What is wrong after one call; empty if nothing. asked: the number of its allocations.
std::string fault_of(const function &f, const run &r, long *asked = nullptr) {
  draw d(static_cast<std::uint64_t>(r.seed));
  const std::size_t count = f.parameters.size();
  std::vector<slot> slots(count);
  std::vector<long> integers(count, 1), lengths(count, 1);
  const auto make = [&](std::size_t i) {
    const bool special = r.parameter == static_cast<int>(i);
    f.types[i].make({&f.parameters[i], lengths[i], special ? r.special : -1}, d, slots[i]);
  };
  for (std::size_t i = 0; i < count; ++i) {
    if (f.types[i].integer) {
      make(i);
      integers[i] = slots[i].as<std::int32_t>();
    } else if (f.types[i].integer_pointer && f.parameters[i].length == nullptr) {
      make(i);
      const std::int32_t *pointer = slots[i].as<std::int32_t *>();
      if (pointer) integers[i] = *pointer;
    } else if (f.types[i].list) {
      make(i);
      const list_hdr *list = slots[i].as<const list_hdr *>();
      integers[i] = list ? list->count : 0;
    }
  }
  for (std::size_t i = 0; i < count; ++i) {
    if (f.types[i].integer || f.types[i].list || (f.types[i].integer_pointer && f.parameters[i].length == nullptr))
      continue;
    if (f.parameters[i].length) lengths[i] = std::max(1L, std::min(4096L, f.parameters[i].length(integers.data())));
    make(i);
  }
  std::vector<std::string> copies(count);
  for (std::size_t i = 0; i < count; ++i) {
    const char *at = f.types[i].only_read ? slots[i].as<const char *>() : nullptr;
    if (at) copies[i].assign(at, f.types[i].only_read * static_cast<std::size_t>(lengths[i]));
  }
  std::vector<slot> given = slots;
  slot result;

  blocks::begin_call(r.fail_nth, r.later_too);
  std::feclearexcept(FE_ALL_EXCEPT);
  const auto start = std::chrono::steady_clock::now();
  f.call(f.address, slots.data(), result);
  const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
  const int raised = std::fetestexcept(FE_INVALID | FE_DIVBYZERO | FE_OVERFLOW);
  const long allocations = blocks::end_call();
  if (asked) *asked = allocations;

  std::vector<blocks::root> roots{{result.bytes, sizeof result.bytes}};
  for (const slot &s : given) roots.push_back({s.bytes, sizeof s.bytes});
  std::string fault = blocks::fault(roots);
  if (took.count() > most_seconds) fault = "takes too long";
  const bool expected = f.may_be_nan && std::isnan(result.as<double>());
  if (r.special < 0 && r.fail_nth == 0 && raised && !expected) {
    fault = std::string("raises") + (raised & FE_INVALID ? " invalid" : "") +
            (raised & FE_DIVBYZERO ? " division by zero" : "") + (raised & FE_OVERFLOW ? " overflow" : "");
  }
  for (std::size_t i = 0; i < count; ++i) {
    const char *at = f.types[i].only_read ? given[i].as<const char *>() : nullptr;
    if (at && (!blocks::is_live(at) || std::memcmp(at, copies[i].data(), copies[i].size()) != 0))
      fault = std::string("changes ") + f.parameters[i].name;
    const list_hdr *list = f.types[i].list ? given[i].as<const list_hdr *>() : nullptr;
    if (list && blocks::is_live(list) && !linked(list))
      fault = std::string("leaves ") + f.parameters[i].name + " unlinked";
  }
  const list_hdr *made = f.gives_list ? result.as<const list_hdr *>() : nullptr;
  if (made && (!blocks::is_live(made) || !linked(made))) fault = "gives a list that is not linked";
  blocks::release_all();
  return fault;
}

std::vector<run> runs_of(const function &f, bool faults) {
  std::vector<run> all;
  for (int seed = 0; seed < (faults ? fault_rounds : usual_rounds); ++seed) {
    all.push_back({seed});
    if (!faults) continue;
    long asked = 0;
    fault_of(f, {seed}, &asked);
    for (long n = 1; n <= std::min(asked, 200L); ++n) {
      for (const bool later_too : {false, true}) all.push_back({seed, -1, -1, n, later_too});
    }
  }
  for (std::size_t i = 0; i < f.parameters.size() && !faults; ++i) {
    const int ways = f.types[i].specials(f.parameters[i]);
    for (int special = 0; special < ways; ++special) {
      for (int seed = 0; seed < special_rounds; ++seed) all.push_back({seed, static_cast<int>(i), special});
    }
  }
  return all;
}

std::string name_of(const function &f, const run &r) {
  std::string text = std::string(f.where) + ": " + f.name;
  if (r.parameter >= 0)
    text += std::string(", ") + f.parameters[static_cast<std::size_t>(r.parameter)].name + " special " +
            std::to_string(r.special);
  if (r.fail_nth)
    text += ", allocation " + std::to_string(r.fail_nth) + (r.later_too ? " and later ones fail" : " fails");
  return text + ", seed " + std::to_string(r.seed);
}

// Each fault of a function once for each parameter.
class reporter {
 public:
  void tell(const function &f, const run &r, const std::string &fault) {
    if (!told_.insert(std::string(f.name) + std::to_string(r.parameter) + fault).second) return;
    std::printf("%s: %s\n", name_of(f, r).c_str(), fault.c_str());
    std::fflush(stdout);
  }
  bool any() const { return !told_.empty(); }

 private:
  std::set<std::string> told_;
};

// What a process tells the one that began it: the case under way, and how many there were.
struct told {
  volatile long begun, calls;
};
told *const progress =
    static_cast<told *>(mmap(nullptr, sizeof(told), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0));

// A process for each function, and another one behind each case that ends it.
bool examine(const function &f, bool faults) {
  volatile long *begun = &progress->begun;
  bool sound = true;
  long from = 0;
  for (int crashes = 0; crashes < most_faults; ++crashes) {
    *begun = -1;
    const pid_t child = fork();
    if (child == 0) {
      reporter report;
      const std::vector<run> all = runs_of(f, faults);
      for (long n = from; n < static_cast<long>(all.size()); ++n) {
        *begun = n;
        progress->calls = progress->calls + 1;
        alarm(10);
        const std::string fault = fault_of(f, all[static_cast<std::size_t>(n)]);
        if (!fault.empty()) report.tell(f, all[static_cast<std::size_t>(n)], fault);
      }
      _exit(report.any());
    }
    int status = 0;
    waitpid(child, &status, 0);
    if (WIFEXITED(status) && WEXITSTATUS(status) <= 1) return sound && WEXITSTATUS(status) == 0;
    sound = false;
    const char *how = WIFSIGNALED(status) ? strsignal(WTERMSIG(status)) : "ends the process";
    if (*begun < 0) {
      std::printf("%s: %s: %s while it is counted\n", f.where, f.name, how);
      return false;
    }
    // Counting the runs of a function calls it, too: where that is what crashes, there is no case.
    const std::vector<run> all = faults ? std::vector<run>{} : runs_of(f, false);
    const std::string what = faults ? std::string(f.where) + ": " + f.name + ", case " + std::to_string(*begun)
                                    : name_of(f, all[static_cast<std::size_t>(*begun)]);
    std::printf("%s: %s\n", what.c_str(), how);
    std::fflush(stdout);
    from = *begun + 1;
  }
  return false;
}

bool in_threads(const std::vector<const function *> &chosen) {
  std::vector<std::thread> threads;
  std::vector<int> failed(4, 0);
  for (std::size_t t = 0; t < failed.size(); ++t) {
    threads.emplace_back([&, t] {
      for (int seed = 0; seed < 6; ++seed) {
        for (const function *f : chosen) failed[t] += !fault_of(*f, {seed}).empty();
        if (t == 0) progress->calls = progress->calls + static_cast<long>(failed.size() * chosen.size());
      }
    });
  }
  for (std::thread &thread : threads) thread.join();
  return failed == std::vector<int>(failed.size(), 0);
}

// What calls write into files goes into a folder of its own.
class scratch_folder {
 public:
  scratch_folder() { std::filesystem::current_path(path_); }
  ~scratch_folder() {
    std::filesystem::current_path(path_.parent_path());
    std::filesystem::remove_all(path_);
  }
  scratch_folder(const scratch_folder &) = delete;
  scratch_folder &operator=(const scratch_folder &) = delete;

 private:
  static std::filesystem::path make() {
    const auto path =
        std::filesystem::temp_directory_path() / ("kxgeom-sweep-" + std::to_string(std::random_device()()));
    std::filesystem::create_directory(path);
    return path;
  }
  const std::filesystem::path path_ = make();
};

}  // namespace
}  // namespace sweep

int main(int argc, char **argv) {
  using namespace sweep;
  const scratch_folder here;
  const std::string mode = argc > 1 ? argv[1] : "values";
  std::vector<const function *> chosen;
  for (const function &f : functions) {
    bool wanted = argc <= 2;
    for (int i = 2; i < argc; ++i) wanted = wanted || std::strcmp(argv[i], f.name) == 0;
    if (wanted) chosen.push_back(&f);
  }
  int faulty = 0;
  if (mode == "threads") {
    faulty = !in_threads(chosen);
  } else {
    for (const function *f : chosen) faulty += !examine(*f, mode == "faults");
  }
  std::printf("%zu functions, %ld calls, %d faulty\n", chosen.size(), progress->calls, faulty);
  return faulty != 0;
}
