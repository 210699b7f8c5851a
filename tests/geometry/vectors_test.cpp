#include <gtest/gtest.h>

#include "geometry/space_values.hpp"
#include "kxgeom/geometry.h"

namespace {

vector_3d as_vector(kx::vec3 v) { return {-1, -1, v.x, v.y, v.z}; }
kx::vec3 parts(const vector_3d &v) { return {v.i, v.j, v.k}; }
kx::vec3 parts(const pnt_3d &v) { return {v.x, v.y, v.z}; }
bool same(kx::vec3 u, kx::vec3 v) { return u.x == v.x && u.y == v.y && u.z == v.z; }
bool close(kx::vec3 u, kx::vec3 v) { return kx::length(u - v) < 1e-10; }
// As fresh as the functions that compute the two fields make it.
bool fresh(vector_3d v) {
  const vector_3d given = v;
  kx_vectordirection(&v);
  kx_vectorlength(&v);
  return given.direction == v.direction && std::fabs(given.length - v.length) < 1e-15;
}

}  // namespace

TEST(Vectors, KeepLengthAndDirectionFresh) {
  vector_3d steep = as_vector({9e-8, -9e-8, 1}), flat = as_vector({1, -1, 0});
  EXPECT_TRUE(kx_vectordirection(&steep) == 0 && steep.direction == 0 && steep.length == -1);
  EXPECT_NEAR(kx_vectordirection(&flat), 315, 1e-9);
  EXPECT_TRUE(kx_vectorlength(&flat) == std::sqrt(2.0) && flat.length == std::sqrt(2.0) && flat.direction > 314);
  const vector_3d x = as_vector({1, 0, 0}), y = as_vector({0, 1, 0});
  vector_3d out{12, 34, 0, 0, 0}, sum = y;
  EXPECT_EQ(kx_crossproduct(&x, &y, &out) + kx_vector_add(&x, &sum, &sum), 0);  // the output may be an input
  EXPECT_TRUE(same(parts(out), {0, 0, 1}) && out.direction == 12 && out.length == 34) << "the cross product does not";
  EXPECT_TRUE(same(parts(sum), {1, 1, 0}) && fresh(sum));
}

TEST(Vectors, ObeyTheirLawsInBothFamilies) {
  std::mt19937 random(1);
  std::uniform_real_distribution<double> any(-5, 5);
  for (int run = 0; run < 200; ++run) {
    const kx::vec3 a{any(random), any(random), any(random)}, b{any(random), any(random), any(random)};
    const vector_3d u = as_vector(a), v = as_vector(b);
    const pnt_3d p = as_pnt(a), q = as_pnt(b);
    const double t = any(random);
    vector_3d r[9] = {};
    pnt_3d s[7] = {};
    ASSERT_EQ(kx_crossproduct(&u, &v, r) + kx_crossproduct_3d(&p, &q, s), 0);
    ASSERT_EQ(kx_vectormult(&u, t, r + 1) + kx_vectormult_3d(&p, t, s + 1), 0);
    ASSERT_EQ(kx_unitvector(&u, r + 2) + kx_unitvector_3d(&p, s + 2), 0);
    ASSERT_EQ(kx_normalvector3d(&u, &v, r + 3) + kx_normalvector_3d(&p, &q, s + 3), 0);
    ASSERT_EQ(kx_projectvector(&u, &v, r + 4) + kx_projectvector_3d(&p, &q, s + 4), 0);
    ASSERT_EQ(kx_projectednormal(&u, &v, r + 5) + kx_projectednormal_3d(&p, &q, s + 5), 0);
    ASSERT_EQ(kx_vectoradd(&u, &v, r + 6) + kx_vector_sub(&u, &v, r + 7) + kx_vector_neg(&u, r + 8), 0);
    for (int i = 0; i < 6; ++i) EXPECT_TRUE(same(parts(r[i]), parts(s[i]))) << i;
    for (int i = 1; i < 9; ++i) EXPECT_TRUE(fresh(r[i])) << i;
    EXPECT_EQ(+r[2].length, 1);
    EXPECT_NEAR(kx_dotproduct(r, &u) + kx_vector_dot(r, &v), 0, 1e-11);
    EXPECT_NEAR(kx_vector_sqlen(r), kx_vector_sqlen(&u) * kx_vector_sqlen(&v) - std::pow(kx_dotproduct(&u, &v), 2),
                1e-9);
    EXPECT_TRUE(same(parts(r[1]), {t * a.x, t * a.y, t * a.z}) && same(parts(r[8]), {-a.x, -a.y, -a.z}));
    EXPECT_TRUE(close(kx_vector_len(&u) * parts(r[2]), a) && close(kx_vectorlength_3d(s) * parts(s[3]), parts(s[0])));
    EXPECT_TRUE(close(parts(r[4]) + parts(r[5]), a) && close(cross(parts(r[4]), b), {0, 0, 0}));
    EXPECT_NEAR(kx_dotproduct(r + 5, &v), 0, 1e-12);
    EXPECT_TRUE(close(parts(r[6]) + parts(r[7]), 2 * a));
    ASSERT_EQ(kx_line_to_vector_3d(q, p, r) + kx_vector_pnt(r + 6, t, s) + kx_get_point_on_line(&u, &v, t, s + 1), 0);
    EXPECT_TRUE(same(parts(r[0]), parts(r[7])) && fresh(r[0]));
    EXPECT_TRUE(same(parts(s[0]), parts(s[1])) && close(parts(s[0]), t * (a + b)));
    vector_3d in_place = u;
    EXPECT_TRUE(kx_vector_normalize(&in_place) == 0 && same(parts(in_place), parts(r[2])) && fresh(in_place));
  }
}

TEST(Vectors, RefuseWhatHasNoDirection) {
  const vector_3d u = as_vector({3, 4, 0}), tiny = as_vector({0, 1e-7, 0}), along = as_vector({-6, -8, 9e-7});
  vector_3d out = u, small = tiny;
  EXPECT_TRUE(kx_unitvector(&tiny, &out) == 4 && kx_vector_normalize(&small) == 4);
  EXPECT_TRUE(kx_projectvector(&u, &tiny, &out) == 4 && kx_projectednormal(&u, &tiny, &out) == 4);
  EXPECT_EQ(kx_normalvector3d(&u, &along, &out), 4);  // 0.9e-7 radians apart
  EXPECT_EQ(kx_line_to_vector_3d({1, 1, 1}, {1, 1 + 9e-8, 1}, &out), 2);
  EXPECT_TRUE(same(parts(out), parts(u)) && out.length == -1 && small.length == -1);
}
