// Linear systems whose matrix has elements near its diagonal only: factors and substitutions in place, without
// pivoting.
//
// The order of all operations is fixed, so that every build and every half-bandwidth gives the same bits: a sum runs
// over rising indices and is then taken off.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

namespace kx {

inline constexpr double smallest_pivot = 1e-11;

// n rows of 2m+1 doubles: element (i, j) with |i-j| <= m stands at m+j-i of row i. What lies outside of the matrix is
// there, but neither read nor written.
template <class Element>
struct band {
  Element *rows;
  std::int64_t n, m;

  Element *row(std::int64_t i) const { return rows + static_cast<std::ptrdiff_t>(i * (2 * m + 1)); }
  Element &operator()(std::int64_t i, std::int64_t j) const { return row(i)[static_cast<std::ptrdiff_t>(m + j - i)]; }
};

namespace band_solver {

// f(From), ... f(To - 1), each with its number as a type, so that arrays of these numbers stay in registers.
template <int From, int To, class F>
[[gnu::always_inline]] inline void unrolled(F f) {
  if constexpr (From < To) {
    f(std::integral_constant<int, From>());
    unrolled<From + 1, To>(f);
  }
}

// Row k of U, then column k of L; false at a pivot near zero that is to divide.
inline bool factor_row(const band<double> &a, std::int64_t k) {
  const std::int64_t last = std::min(k + a.m, a.n - 1);
  // Element (i, j) without what the rows and columns before k contribute.
  const auto left_of = [&a, k](std::int64_t i, std::int64_t j) {
    std::int64_t p = std::max<std::int64_t>(0, std::max(i, j) - a.m);
    if (p >= k) return a(i, j);
    double sum = a(i, p) * a(p, j);
    while (++p < k) sum += a(i, p) * a(p, j);
    return a(i, j) - sum;
  };
  for (std::int64_t j = k; j <= last; ++j) a(k, j) = left_of(k, j);
  for (std::int64_t i = k + 1; i <= last; ++i) {
    if (std::fabs(a(k, k)) <= smallest_pivot) return false;
    a(i, k) = left_of(i, k) / a(k, k);
  }
  return true;
}

// The same for all rows from k on that have M rows before and behind them. Each pivot waits for the one before; the
// column of L between them is handed on in registers. k ends behind these rows, or at the pivot near zero.
template <int M>
bool factor_inner_rows(const band<double> &a, std::int64_t &k) {
  double before[M];  // column k-1 of L
  unrolled<0, M>([&](auto i) { before[i()] = a(k + i(), k - 1); });
  for (double *diagonal = &a(k, k); k < a.n - M; ++k, diagonal += 2 * M + 1) {
    const auto at = [diagonal](int i, int j) -> double & { return diagonal[2 * M * i + j]; };  // counted from (k, k)
    const auto left_of = [&](auto i, auto j) {
      constexpr int first = std::max(i(), j()) - M;
      if constexpr (first >= 0) {
        return at(i, j);
      } else {
        const auto lower = [&](auto p) { return p() == -1 ? before[i()] : at(i, p); };
        double sum = lower(std::integral_constant<int, first>()) * at(first, j);
        unrolled<first + 1, 0>([&](auto p) { sum += lower(p) * at(p, j); });
        return at(i, j) - sum;
      }
    };
    constexpr std::integral_constant<int, 0> zero;
    const double pivot = left_of(zero, zero);
    at(0, 0) = pivot;
    unrolled<1, M + 1>([&](auto j) { at(0, j) = left_of(zero, j); });
    double column[M];
    unrolled<1, M + 1>([&](auto i) { column[i() - 1] = left_of(i, zero); });
    if (std::fabs(pivot) <= smallest_pivot) return false;
    // The first quotient is what the next pivot waits for.
    unrolled<0, M>([&](auto i) { before[i()] = column[i()] / pivot; });
    unrolled<0, M>([&](auto i) { at(i() + 1, 0) = before[i()]; });
  }
  return true;
}

template <int M>
bool factor(const band<double> &a) {
  std::int64_t k = 0;
  for (; k < std::min(a.m, a.n); ++k) {
    if (!factor_row(a, k)) return false;
  }
  if constexpr (M > 0) {
    if (k < a.n - M && !factor_inner_rows<M>(a, k)) return false;
  }
  for (; k < a.n; ++k) {
    if (!factor_row(a, k)) return false;
  }
  return !(std::fabs(a(a.n - 1, a.n - 1)) <= smallest_pivot);
}

// The two substitutions; unknowns are numbered in the order in which a pass finds them.
enum class pass { forward, backward };

template <pass P>
std::ptrdiff_t place(std::int64_t t, std::int64_t n) {
  return static_cast<std::ptrdiff_t>(P == pass::forward ? t : n - 1 - t);
}

// Unknown t, clipped at the ends of the band.
template <pass P, class T>
void substitute_one(const band<const double> &a, const T *b, T *x, std::int64_t t) {
  const std::ptrdiff_t k = place<P>(t, a.n);
  std::int64_t p = P == pass::forward ? std::max<std::int64_t>(0, k - a.m) : k + 1;
  const std::int64_t end = P == pass::forward ? k : std::min(k + a.m + 1, a.n);
  T value = b[k];
  if (p < end) {
    T sum = a(k, p) * x[p];
    while (++p < end) sum = sum + a(k, p) * x[p];
    value = value - sum;
  }
  x[k] = P == pass::forward ? value : value / a(k, k);
}

// A run of unknowns in registers: the last M of them, in the order of a row's elements.
template <pass P, int M, class T>
struct run {
  T last[M];

  static run behind(std::int64_t t, std::int64_t n, const T *x) {
    run r;
    const std::ptrdiff_t first = P == pass::forward ? place<P>(t, n) - M : place<P>(t, n) + 1;
    unrolled<0, M>([&](auto q) { r.last[q()] = x[first + q()]; });
    return r;
  }

  [[gnu::always_inline]] T next(const double *row, T right) {
    constexpr int first = P == pass::forward ? 0 : M + 1;
    T sum = row[first] * last[0];
    unrolled<1, M>([&](auto q) { sum = sum + row[first + q()] * last[q()]; });
    T value = right - sum;
    if constexpr (P == pass::forward) {
      unrolled<1, M>([&](auto q) { last[q() - 1] = last[q()]; });
      last[M - 1] = value;
    } else {
      value = value / row[M];
      unrolled<1, M>([&](auto q) { last[M - q()] = last[M - 1 - q()]; });
      last[0] = value;
    }
    return value;
  }
};

// The unknowns from M on, as long as it goes fast; returns the first that is left. Each unknown waits for the one
// before, so a processor that could do several at once has nothing to do. Several runs therefore go side by side, all
// but the first from a guess: from zeros, some unknowns before their own. In a diagonally dominant system the guess is
// soon the very bits. Where it is, so is all that follows; where it is not, that run is left, and nothing more is
// guessed.
template <pass P, int runs, int M, class T>
std::int64_t substitute_side_by_side(const band<const double> &a, const T *b, T *x) {
  using values = run<P, M, T>;
  constexpr std::int64_t lead = 96, shortest = 2 * lead, longest = 1024;
  const std::int64_t n = a.n;
  std::int64_t t = M;
  for (int right = runs; right == runs && n - t >= runs * shortest;) {
    const std::int64_t length = std::min((n - t) / runs, longest);
    values now[runs] = {values::behind(t, n, x)};
    for (std::int64_t i = -lead; i < 0; ++i) {
      unrolled<1, runs>([&](auto r) {
        const std::ptrdiff_t k = place<P>(t + r() * length + i, n);
        now[r()].next(a.row(k), b[k]);
      });
    }
    values guess[runs];
    std::copy(now, now + runs, guess);
    for (std::int64_t i = 0; i < length; ++i) {
      unrolled<0, runs>([&](auto r) {
        const std::ptrdiff_t k = place<P>(t + r() * length + i, n);
        x[k] = now[r()].next(a.row(k), b[k]);
      });
    }
    right = 1;
    // NOLINTNEXTLINE(bugprone-suspicious-memory-comparison): the bits, not the values
    while (right < runs && std::memcmp(&now[right - 1], &guess[right], sizeof(values)) == 0) ++right;
    t += right * length;
  }
  return t;
}

template <pass P, int M, class T>
void substitute_inner(const band<const double> &a, const T *b, T *x) {
  std::int64_t t = M;
  constexpr int in_registers = 12 / (M * static_cast<int>(sizeof(T) / sizeof(double)));
  if constexpr (in_registers > 1) {
    // In place, what a wrong guess has overwritten could not be done again.
    if (x != b) t = substitute_side_by_side<P, std::min(in_registers, 4), M>(a, b, x);
  }
  if (t == a.n) return;
  for (auto now = run<P, M, T>::behind(t, a.n, x); t < a.n; ++t) {
    const std::ptrdiff_t k = place<P>(t, a.n);
    x[k] = now.next(a.row(k), b[k]);
  }
}

template <pass P, int M, class T>
void substitute(const band<const double> &a, const T *b, T *x) {
  const std::int64_t clipped = M > 0 ? std::min<std::int64_t>(M, a.n) : a.n;
  for (std::int64_t t = 0; t < clipped; ++t) substitute_one<P>(a, b, x, t);
  if constexpr (M > 0) {
    if (a.n > M) substitute_inner<P, M>(a, b, x);
  }
}

// Calls f with the half-bandwidth as a type where it is 1 to 5, else with 0.
template <class F>
auto with_bandwidth(std::int64_t m, F f) {
  switch (m) {
    case 1: return f(std::integral_constant<int, 1>());
    case 2: return f(std::integral_constant<int, 2>());
    case 3: return f(std::integral_constant<int, 3>());
    case 4: return f(std::integral_constant<int, 4>());
    case 5: return f(std::integral_constant<int, 5>());
    default: return f(std::integral_constant<int, 0>());
  }
}

}  // namespace band_solver

// Overwrites a band of one row or more by its factors L (diagonal 1, not stored) and U; false, half done, at a pivot
// near zero.
inline bool factor(const band<double> &a) {
  return band_solver::with_bandwidth(a.m, [&](auto m) { return band_solver::factor<m()>(a); });
}

// Solves for one right-hand side, of numbers or of vectors, over the factors: forward into x, which is copied over b,
// then backward. No pivot is tested. x may be b.
template <class T>
void substitute(const band<const double> &a, T *b, T *x) {
  using band_solver::pass;
  band_solver::with_bandwidth(a.m, [&](auto m) {
    band_solver::substitute<pass::forward, m()>(a, b, x);
    if (x != b) std::copy(x, x + a.n, b);
    band_solver::substitute<pass::backward, m()>(a, b, x);
  });
}

}  // namespace kx
