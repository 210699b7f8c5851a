#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <random>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "kxgeom/geometry.h"

namespace {

// ---- the table once more, found with whole numbers only ----

using place = std::pair<int, int>;
struct pair_of_segments {
  place a, A, b, B;
};

place span(place p, place q) { return {q.first - p.first, q.second - p.second}; }
int turn(place p, place q, place r) {
  const place u = span(p, q), v = span(p, r);
  const int t = u.first * v.second - u.second * v.first;
  return (t > 0) - (t < 0);
}

// The ends in their order on the common line, as the header writes them.
int code_on_line(const pair_of_segments &s) {
  static const std::map<std::string, int> words = {
      {"b aB A", 10},  {"b a B A", 11}, {"b a AB", 12},  {"ab B A", 13},  {"a b B A", 14}, {"b a A B", 15},
      {"ab A B", 16},  {"a b AB", 17},  {"a b A B", 18}, {"a Ab B", 19},  {"B ab A", 20},  {"B a b A", 21},
      {"B a Ab", 22},  {"aB b A", 23},  {"a B b A", 24}, {"B a A b", 25}, {"aB A b", 26},  {"a B Ab", 27},
      {"a B A b", 28}, {"a AB b", 29},  {"ab AB", 120},  {"aAbB", 120},   {"aB Ab", 121},  {"a bB A", 9},
      {"abB A", 122},  {"a AbB", 123},  {"b aA B", 8},   {"aAb B", 124},  {"b aAB", 125}};
  // Places on a line follow each other as pairs do.
  const int sign = (s.a == s.A ? span(s.b, s.B) : span(s.a, s.A)) < place() ? -1 : 1;
  std::map<place, std::string> order;
  const auto put = [&](place p, char name) { order[{sign * p.first, sign * p.second}] += name; };
  put(s.a, 'a'), put(s.A, 'A'), put(s.b, 'b'), put(s.B, 'B');
  std::string word;
  for (const auto &[where, names] : order) {
    if (!word.empty()) word += ' ';
    for (const char name : {'a', 'A', 'b', 'B'})
      if (names.find(name) != names.npos) word += name;
  }
  const auto found = words.find(word);
  return found == words.end() ? 0 : found->second;
}

int expected(const pair_of_segments &s) {
  const int b = turn(s.a, s.A, s.b), B = turn(s.a, s.A, s.B), a = turn(s.b, s.B, s.a), A = turn(s.b, s.B, s.A);
  if (b == 0 && B == 0 && a == 0 && A == 0) return code_on_line(s);
  if (b * B > 0 || a * A > 0 || b == B || a == A) return 0;
  static const int groups[3][3] = {{50, 60, 110}, {30, 40, 100}, {70, 80, 90}};
  const int group = groups[a == 0 ? 0 : A == 0 ? 1 : 2][b == 0 ? 0 : B == 0 ? 1 : 2];
  const place u = span(s.a, s.A), v = span(s.b, s.B);
  const int run = u.first * v.first + u.second * v.second;
  const int quarter = run > 0 ? 0 : run == 0 ? 1 : 2;
  return group + (B > b ? quarter : 5 - quarter);
}

// ---- tests ----

int code_of(line_2d a, line_2d b, pnt_2d *pnt = nullptr) { return kx_linerelationship(&a, &b, pnt); }

TEST(LineRelationship, EveryPairOnAGridHasTheCodeOfTheTable) {
  std::mt19937 random(1);
  std::uniform_real_distribution<double> little(-1e-9, 1e-9);
  std::set<int> seen;
  for (int i = 0; i < 625 * 625; ++i) {
    const auto at = [i](int power) { return place(i / power % 5, i / power / 5 % 5); };
    const pair_of_segments s{at(1), at(25), at(625), at(15625)};
    const line_2d a{1. * s.a.first, 1. * s.a.second, 1. * s.A.first, 1. * s.A.second};
    const line_2d b{1. * s.b.first, 1. * s.b.second, 1. * s.B.first, 1. * s.B.second};
    pnt_2d pnt{9, 9}, crossing{9, 9};
    const int code = code_of(a, b, &pnt), wanted = expected(s);
    ASSERT_EQ(code, wanted) << a.x1 << a.y1 << a.x2 << a.y2 << " " << b.x1 << b.y1 << b.x2 << b.y2;
    seen.insert(code);
    // A billionth changes nothing, nor does a place far from the origin.
    const auto off = [&](const line_2d &c) {
      return line_2d{c.x1 + little(random) + 7, c.y1 + little(random), c.x2 + little(random) + 7,
                     c.y2 + little(random)};
    };
    ASSERT_EQ(code_of(off(a), off(b)), code) << code;
    const int hit = kx_intersect_ls(&a, &b, &crossing);
    ASSERT_EQ(hit == 1, code >= 30 && code < 120) << code;
    ASSERT_TRUE(+pnt.x == +crossing.x && +pnt.y == +crossing.y);
  }
  EXPECT_EQ(seen.size(), 28u + 54u + 1u);  // every code occurs
}

// Places around both ends of a segment from 0 to 1, and the whole number of the place that each stands for.
const std::vector<std::pair<double, int>> places = {
    {-1, -4},        {-1.5e-7, -1},   {-0.5e-7, 0},  {0, 0},          {0.5e-7, 0},     {1.5e-7, 1}, {0.4, 2},
    {0.4 + 5e-8, 2}, {1 - 2.5e-7, 4}, {1 - 1e-7, 5}, {1 + 1.5e-7, 5}, {1 + 2.5e-7, 6}, {1.6, 7}};

TEST(LineRelationship, TheToleranceAroundAsEndsOnOneLine) {
  for (const double turned : {0., 0.6, -1., 0.28})
    for (const auto &[x1, one] : places)
      for (const auto &[x2, two] : places)
        for (const double y : {0., 0.9e-7, -0.9e-7}) {
          const double c = turned, s = std::sqrt(1 - c * c);
          const line_2d b{c * x1 - s * y + 3, s * x1 + c * y - 2, c * x2 + s * y + 3, s * x2 - c * y - 2};
          ASSERT_EQ(code_of({3, -2, 3 + c, -2 + s}, b), expected({{0, 0}, {5, 0}, {one, 0}, {two, 0}}))
              << x1 << " " << x2;
        }
  EXPECT_EQ(code_of({0, 0, 0.8, 0}, {0.5, 0, 2, 1.1e-7}), 0);          // too flat for a crossing
  EXPECT_EQ(code_of({0, 0, 9, 0}, {5, 0, 8, 1.1e-7}), 70);             // no longer on the line
  EXPECT_EQ(code_of({0, 0, 1.5e-7, 0}, {0.4e-7, 0, 1.2e-7, 0}), 120);  // at both ends of A
  EXPECT_EQ(code_of({2, 2, 2, 2}, {2, 0, 2, 2 + 1e-7}), 125);
  EXPECT_EQ(code_of({2, 2, 2, 2 + 1e-7}, {1, 1, 3, 3}), 8);
  EXPECT_EQ(code_of({2, 2, 2, 2 + 1e-7}, {1, 1 + 2e-7, 3, 3 + 2e-7}), 0);
  EXPECT_EQ(code_of({0, 0, 0, 1e-7}, {-5, 1.00000005e-7, 5, 1.00000005e-7}), 0);  // a point crosses nothing
}

TEST(LineRelationship, TheToleranceAroundACrossing) {
  // B crosses, or ends, at the places along A: what is before or past A crosses nothing. Long segments cross a little
  // outside as well, then at that end.
  for (const auto &[x, at] : places) {
    const bool off = at < 0 || at > 5;
    const int group = at == 0 ? 50 : at == 5 ? 30 : 70, through = at == 0 ? 110 : at == 5 ? 100 : 90;
    EXPECT_EQ(code_of({0, 0, 1, 0}, {x, 0, x, 1}), off ? 0 : group + 1) << x;
    EXPECT_EQ(code_of({0, 0, 1, 0}, {x, -1, x, 0}), off ? 0 : group + 11) << x;
    EXPECT_EQ(code_of({0, 0, 1, 0}, {x, 1, x, -1}), off ? 0 : through + 4) << x;
    EXPECT_EQ(code_of({x, 1, x, -1}, {0, 0, 1, 0}), off ? 0 : at == 0 ? 71 : at == 5 ? 81 : 91) << x;
    EXPECT_EQ(code_of({0, 0, 1, 0}, {x, 1, x + 0.9e-7, -1}), off ? 0 : through + 4) << x;
    EXPECT_EQ(code_of({0, 0, 1, 0}, {x - 2e-7, 1, x + 2e-7, -1}), off ? 0 : through + 5) << x;
  }
  EXPECT_EQ(code_of({0, 0, 1000, 0}, {-5e-5, -1, -5e-5, 1}), 111);
  EXPECT_EQ(code_of({1e12, 1e12, 3e12, 7e12}, {3e12, 7e12, 1e12, 1e12}), 121);
  EXPECT_EQ(code_of({0, 0, 1000, 0}, {1000.00019, -1, 1000.00019, 1}), 101);
  EXPECT_EQ(code_of({0, 0, 1000, 0}, {1000.00021, -1, 1000.00021, 1}), 0);
}

}  // namespace
