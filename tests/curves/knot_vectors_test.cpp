// Knot spans and basis functions.
#include "curve_lists.hpp"

namespace {

const double knots[] = {0, 0, 0, 1, 2, 2.5, 4, 4, 4};  // degree 3, without the first and last knot

// The derivatives of the textbook's recursion.
double basis(int i, int p, double t, int order) {
  if (p == 0) return order == 0 && knots[i] <= t && t < knots[i + 1];
  const double a = knots[i + p] - knots[i], b = knots[i + p + 1] - knots[i + 1];
  const double f = order > 0 ? p : t - knots[i], g = order > 0 ? -p : knots[i + p + 1] - t;
  const int lower = std::max(order - 1, 0);
  return (a > 0 ? f / a * basis(i, p - 1, t, lower) : 0) + (b > 0 ? g / b * basis(i + 1, p - 1, t, lower) : 0);
}

}  // namespace

TEST(knot_vectors, find_the_span) {
  const double k[] = {0, 0, 0, 1, 2, 3, 3, 3};
  const double at[] = {-1, 0, 0.5, 1, 1.5, 2, 2.5, 3, 9, std::nan("")};
  const int right[] = {1, 1, 2, 3, 3, 4, 4, 5, 5, 1}, left[] = {1, 1, 2, 2, 3, 3, 4, 5, 5, 1};
  for (int i = 0; i < 10; ++i) {
    for (int32_t side : {0, 1}) EXPECT_EQ(kx_findknotspan(k, 7, 2, at[i], side), right[i]) << at[i];
    EXPECT_EQ(kx_findknotspan(k, 7, 2, at[i], -1), left[i]) << at[i];
  }
  EXPECT_TRUE(kx_findknotspan(k, 1, 2, 0.5, 0) == -1 && kx_findknotspan(k, 7, -1, 0.5, 0) == -1);
  // Knots out of order tell the directions apart: up stops at the first knot above t, down at the last one not above.
  const double mixed[] = {0, 1, 8, 2, 9, 3, 7, 10};
  EXPECT_TRUE(kx_findknotspan(mixed, 7, 1, 5.0, 0) == 1 && kx_findknotspan(mixed, 7, 1, 5.1, 0) == 5);
  EXPECT_EQ(kx_findknotspan(mixed, 7, 2, 5.1, 0), 5);
  EXPECT_EQ(kx_findknotspan(mixed, 6, 2, 5.1, 0), 1);  // 6 is not above 3 * 2: upwards
}

TEST(knot_vectors, sum_to_one_and_follow_the_recursion) {
  for (int p = 0; p <= 3; ++p) {
    for (double t : {0.0, 0.25, 1.0, 1.9, 2.0, 2.2, 3.999}) {
      const int span = static_cast<int>(std::upper_bound(knots, knots + 9, t) - knots) - 1;
      double out[24], *row = out;
      ASSERT_EQ(kx_basisfunctions(knots, span, p, t, 5, out), 0);
      for (int order = 0; order <= 5; ++order, row += p + 1) {
        double sum = 0;
        for (int i = 0, f = span - p; i <= p; sum += row[i++], ++f) {
          const bool inside = f >= 0 && f + p + 1 < 9;
          EXPECT_NEAR(inside ? row[i] : 0, inside ? basis(f, p, t, order) : 0, 1e-12) << p << ' ' << t << ' ' << order;
          EXPECT_TRUE(order <= p || row[i] == 0.0);
        }
        EXPECT_NEAR(sum, order == 0, 1e-12);
      }
    }
  }
}

TEST(knot_vectors, write_what_is_asked_for_and_no_more) {
  double out[5] = {9, 9, 9, 9, 9};
  EXPECT_TRUE(kx_basisfunctions(knots, 3, 1, 1.5, -1, out) == 0 && out[2] == 9);
  EXPECT_EQ(kx_basisfunctions(knots, 3, 1, 1.5, 1, out), 0);
  EXPECT_EQ(std::vector<double>(out, out + 5), (std::vector<double>{0.5, 0.5, -1, 1, 9}));
  EXPECT_EQ(kx_basisfunctions(knots, 1, 1, 0.0, 1, out), 0);  // no length, no functions
  EXPECT_EQ(std::vector<double>(out, out + 5), (std::vector<double>{0, 0, 0, 0, 9}));
  for (int p : {-1, 16}) EXPECT_EQ(kx_basisfunctions(knots, 3, p, 1.5, 0, out), 2);
}
