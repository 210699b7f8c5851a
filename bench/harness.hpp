// What every benchmark program shares: its rows, the check of their answers, and a heap that all of them find alike.
#pragma once

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdint>
#include <functional>
#include <string>

namespace bench {

// A row of a table. Its name is family/case/kind:what, of the kinds
//   kx     this library, through its exported functions
//   peer   what a user would take instead
//   floor  the least that the contract asks for: its blocks, its links, its arithmetic, and nothing else
struct row {
  std::string name;
  std::int64_t items = 1;                // done in one pass; times are told per item
  std::function<std::string()> check{};  // what is wrong with the answer, "" when it is right; none for floors
  std::function<void()> pass{};          // the timed part
  std::function<void()> before{};        // run before and after each pass, outside the time
  std::function<void()> after{};
};

void add(row r);

// Every program defines this one: it adds the program's rows.
void add_rows();

// Keeps the compiler from leaving out what makes the value.
template <class T>
void use(T value) {
  benchmark::DoNotOptimize(value);
}

inline bool close(double a, double b, double relative) { return std::fabs(a - b) <= relative * (std::fabs(b) + 1.0); }

inline std::string unless(bool right, const std::string &complaint) { return right ? std::string() : complaint; }

}  // namespace bench
