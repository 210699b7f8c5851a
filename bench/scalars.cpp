// The scalar helpers beside the comparison a host could write itself, or the function of its own library. An item is
// one call. The operands keep clear of the tolerances: within them only the helpers' answers would differ.
#include <cmath>
#include <numeric>
#include <utility>
#include <vector>

#include "harness.hpp"
#include "kxgeom/runtime.h"

namespace {

constexpr int count = 4096, rounds = 16;
constexpr double tolerance = 1e-7, degrees = 57.295779513082320877;

struct operands {
  double a, b;
};

// Numbers in -1..1 without a pattern that a processor could learn.
const std::vector<operands> &pairs() {
  static const std::vector<operands> made = [] {
    std::vector<operands> v;
    std::uint32_t state = 1;
    const auto next = [&state] {
      state = state * 1664525U + 1013904223U;
      return static_cast<double>(state >> 8) / 8388607.5 - 1.0;
    };
    while (v.size() < count) {
      const double a = next(), b = next();
      if (std::fabs(a) > 1e-3 && std::fabs(b) > 1e-3 && std::fabs(a - b) > 1e-3) v.push_back({a, b});
    }
    return v;
  }();
  return made;
}

// What is compared is what both give, to so many digits as the angle constants of the library have.
template <class Ours, class Theirs>
void add_pair(const std::string &name, Ours ours, const std::string &floor, Theirs theirs) {
  const auto add = [&](const std::string &what, auto call, const std::function<std::string()> &check) {
    bench::add(
        {.name = "scalars/" + name + "/" + what, .items = std::int64_t{count} * rounds, .check = check, .pass = [call] {
           for (int round = 0; round < rounds; ++round) {
             for (const operands &v : pairs()) bench::use(call(v.a, v.b));
           }
         }});
  };
  add("floor:" + floor, theirs, {});
  add("kx:kx_" + name, ours, [=]() -> std::string {
    for (const operands &v : pairs()) {
      const auto got = static_cast<double>(ours(v.a, v.b)), want = static_cast<double>(theirs(v.a, v.b));
      if (!bench::close(got, want, 1e-9)) return "at " + std::to_string(v.a) + ", " + std::to_string(v.b);
    }
    return {};
  });
}

double allowance(double b) { return (std::fabs(b) + 1.0) * tolerance; }
std::int32_t whole(double a) { return static_cast<std::int32_t>(std::fabs(a) * 1e6); }

}  // namespace

void bench::add_rows() {
  add_pair(
      "parmzero", [](double a, double) { return kx_parmzero(a, tolerance); }, "inline",
      [](double a, double) { return std::int32_t{!(std::fabs(a) > tolerance)}; });
  add_pair(
      "parmeq", [](double a, double b) { return kx_parmeq(a, b, tolerance); }, "inline",
      [](double a, double b) { return std::int32_t{!(std::fabs(a - b) > allowance(b))}; });
  add_pair(
      "parmlt", [](double a, double b) { return kx_parmlt(a, b, tolerance); }, "inline",
      [](double a, double b) { return std::int32_t{a < b - allowance(b)}; });
  add_pair(
      "between", [](double a, double b) { return kx_between(a, -0.5, b); }, "inline",
      [](double a, double b) { return std::int32_t{(a >= -0.5 && a <= b) || (a >= b && a <= -0.5)}; });
  add_pair(
      "rmax", [](double a, double b) { return kx_rmax(a, b); }, "std_fmax",
      [](double a, double b) { return std::fmax(a, b); });
  add_pair(
      "gcd", [](double a, double b) { return kx_gcd(whole(a), whole(b)); }, "std_gcd",
      [](double a, double b) { return std::gcd(whole(a), whole(b)); });
  add_pair(
      "arcsin", [](double a, double) { return kx_arcsin(a); }, "std_asin",
      [](double a, double) { return std::asin(a) * degrees; });
  add_pair(
      "arctan", [](double a, double b) { return kx_arctan(a, b); }, "std_atan2",
      [](double a, double b) {
        const double angle = std::atan2(b, a) * degrees;
        return angle < 0.0 ? angle + 360.0 : angle;
      });
  add_pair(
      "htangent", [](double a, double) { return kx_htangent(a); }, "std_tanh",
      [](double a, double) { return std::tanh(a); });
  add_pair(
      "archsine", [](double a, double) { return kx_archsine(a); }, "std_asinh",
      [](double a, double) { return std::asinh(a) * degrees; });
}
