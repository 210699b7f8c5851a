#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <random>
#include <vector>

#include "kxgeom/transform.h"
#include "records/vector.hpp"
#include "transform/band_solver.hpp"

namespace {

using numbers = std::vector<double>;

bool same_bits(const numbers &a, const numbers &b) { return !std::memcmp(a.data(), b.data(), a.size() * sizeof a[0]); }

// Diagonally dominant; outside of the matrix are NaN, which would spread if they were read.
numbers random_band(std::mt19937 &random, int n, int m, double excess) {
  std::uniform_real_distribution<double> value(-1, 1);
  numbers band;
  for (int i = 0; i < n; ++i) {
    for (int j = i - m; j <= i + m; ++j)
      band.push_back(j < 0 || j >= n ? std::nan("") : i == j ? m + excess + value(random) : value(random));
  }
  return band;
}

TEST(BandSolver, StopsAtAPivotNearZeroInAnyRow) {
  std::mt19937 random(6);
  for (int m = 1; m <= 7; ++m) {
    for (int n : {2, 3, 8, 9, 12, 40}) {
      for (int bad = 0; bad < n; ++bad) {
        for (double pivot : {1e-11, 1.1e-11}) {
          numbers band = random_band(random, n, m, 1);
          const auto row = band.begin() + bad * (2 * m + 1);  // nothing before it in its row: it is the pivot
          std::fill(row + std::max(0, m - bad), row + m, 0.0);
          row[m] = pivot;
          ASSERT_EQ(kx_ludecomposition(band.data(), n, m), pivot == 1e-11) << n << " " << m << " " << bad;
          ASSERT_EQ(band[bad * (2 * m + 1) + m], pivot);
        }
      }
    }
  }
}

TEST(BandSolver, SolvesTheSystem) {
  std::mt19937 random(7);
  std::uniform_real_distribution<double> value(-1, 1);
  // Long ones are solved in several places at once; with little excess a start in the middle cannot find the bits.
  for (double excess : {2.0, 1e-3}) {
    for (int m = 0; m <= 6; ++m) {
      for (int n : {1, 2, 3, 6, 30, 4000}) {
        const numbers band = random_band(random, n, m, excess);
        numbers want(n), right(n), x(n), factors = band;
        for (double &w : want) w = value(random);
        for (int i = 0; i < n; ++i) {
          for (int j = std::max(0, i - m); j <= std::min(n - 1, i + m); ++j)
            right[i] += band[i * (2 * m + 1) + m + j - i] * want[j];
        }
        ASSERT_EQ(kx_ludecomposition(factors.data(), n, m), 0);
        numbers in_place = right;
        numbers forward = right;
        ASSERT_EQ(kx_forbacksubstitution(factors.data(), n, m, forward.data(), x.data()), 0);
        for (int i = 0; i < n; ++i) ASSERT_NEAR(x[i], want[i], 1e-12 / std::min(excess, 1.0)) << n << " " << m;
        kx_forbacksubstitution(factors.data(), n, m, in_place.data(), in_place.data());  // one after the other
        ASSERT_TRUE(same_bits(in_place, x)) << n << " " << m << " " << excess;
        std::vector<kx::vec3> vectors(n), solution(n);
        for (int i = 0; i < n; ++i) vectors[i] = {right[i], -right[i], 2 * right[i]};
        kx::substitute({factors.data(), n, m}, vectors.data(), solution.data());
        for (int i = 0; i < n; ++i) ASSERT_TRUE(solution[i].x == x[i] && solution[i].z == 2 * x[i]);
      }
    }
  }
}

TEST(BandSolver, NothingToDoAndNothingToReach) {
  double four[] = {0, 1, 2, 3}, b = 6, x = 0;
  EXPECT_EQ(kx_ludecomposition(four, 1, 3), 0);
  EXPECT_TRUE(kx_ludecomposition(four, 4, 0) == 0 && four[3] == 3);
  EXPECT_TRUE(kx_ludecomposition(four, 0, 1) == 1 && kx_ludecomposition(four, 2, -1) == 1);
  kx_forbacksubstitution(&four[2], 1, 0, &b, &x);
  EXPECT_EQ(x, 3);
}

}  // namespace
