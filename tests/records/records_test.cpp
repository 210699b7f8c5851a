// The record family: what a host that declares the records itself sees, and what the accessors make of it.
#include "kxgeom/records.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>

#include "support/faults.hpp"

namespace {

// A record's bytes as the words that a host would read: doubles and integers in field order.
struct words {
  unsigned char bytes[64] = {};
  std::size_t used = 0;
  words &d(double v) { return put(&v, sizeof v); }
  words &i(int32_t v) { return put(&v, sizeof v); }
  words &put(const void *v, std::size_t n) {
    std::memcpy(bytes + used, v, n);
    used += n;
    return *this;
  }
};

template <class R>
void expect_bytes(const R &record, const words &want) {
  ASSERT_EQ(sizeof(R), want.used);
  EXPECT_EQ(std::memcmp(&record, want.bytes, want.used), 0);
}

TEST(records, setters_write_every_field_where_hosts_look_for_it) {
  pnt_2d p2;
  kx_set_pnt_2d(1, 2, &p2);
  expect_bytes(p2, words().d(1).d(2));
  poly_2d v2;
  kx_set_poly_2d(1, 2, 7, &v2);
  expect_bytes(v2, words().i(7).d(1).d(2));
  poly_3d v3;
  kx_set_poly_3d(1, 2, 3, 7, &v3);
  expect_bytes(v3, words().i(7).d(1).d(2).d(3));
  line_3d l3;
  kx_set_line_3d(1, 2, 3, 4, 5, 6, &l3);
  expect_bytes(l3, words().d(1).d(2).d(3).d(4).d(5).d(6));
  ple_2d e2;
  kx_set_ple(1, 2, 3, 4, &e2);
  expect_bytes(e2, words().d(1).d(3).d(2).d(4));
  ple_3d e3;
  kx_set_ples(1, 2, 3, 4, 5, 6, &e3);
  expect_bytes(e3, words().d(1).d(3).d(5).d(2).d(4).d(6));
  vector_2d w2;
  kx_set_vector_2d(1, 2, 3, 4, &w2);
  expect_bytes(w2, words().d(3).d(4).d(1).d(2));
  vector_3d w3;
  kx_set_vector_3d(1, 2, 3, 4, 5, &w3);
  expect_bytes(w3, words().d(4).d(5).d(1).d(2).d(3));
  arc_2d arc;
  kx_set_arc_2d(1, 2, 3, 4, 5, 6, &arc);
  expect_bytes(arc, words().d(1).d(2).d(3).i(4).d(5).d(6));
  parabola_2d parabola;
  kx_set_parabola_2d(1, 2, 3, 4, 5, &parabola);
  expect_bytes(parabola, words().d(1).d(2).d(3).i(4).d(5));
  hyperbola_2d hyperbola;
  kx_set_hyperbola_2d(1, 2, 3, 4, 5, 6, &hyperbola);
  expect_bytes(hyperbola, words().d(1).d(2).d(3).d(4).i(5).d(6));
  dwg_rec_2d drawing;
  double two_integers;
  const int32_t integers[] = {11, 12};
  std::memcpy(&two_integers, integers, sizeof two_integers);
  kx_set_dwgrec_2d(1, 2, two_integers, &drawing);
  expect_bytes(drawing, words().d(1).d(2).i(11).i(12));
  inumber integer;
  kx_set_inumber(-3, &integer);
  expect_bytes(integer, words().i(-3));
}

TEST(records, getters_read_in_field_order_through_every_shared_entry) {
  double a, b, c, d, e, f;
  int32_t n;
  const words w = words().d(1).d(2).d(3).d(4).d(5).d(6);
  kx_get_circle_2d(&a, &b, &c, reinterpret_cast<const circle_2d *>(w.bytes));
  EXPECT_EQ(a + 10 * b + 100 * c, 321);
  kx_get_vector_2d(&a, &b, &c, &d, reinterpret_cast<const vector_2d *>(w.bytes));
  EXPECT_EQ(a + 10 * b + 100 * c + 1000 * d, 4321);
  kx_get_vector_3d(&a, &b, &c, &d, &e, reinterpret_cast<const vector_3d *>(w.bytes));
  EXPECT_EQ(a + 10 * b + 100 * c + 1000 * d + 10000 * e, 54321);
  kx_get_ellipse_2d(&a, &b, &c, &d, &e, &f, reinterpret_cast<const ellipse_2d *>(w.bytes));
  EXPECT_EQ(a + 10 * b + 100 * c + 1000 * d + 10000 * e + 100000 * f, 654321);
  const words h = words().d(1).d(2).d(3).d(4).i(5).d(6);
  kx_get_hyperbola_2d(&a, &b, &c, &d, &n, &f, reinterpret_cast<const hyperbola_2d *>(h.bytes));
  EXPECT_EQ(a + 10 * b + 100 * c + 1000 * d + 10000 * n + 100000 * f, 654321);
  const words p = words().i(9).d(2).d(3).d(4);
  kx_get_poly_3d(&n, &a, &b, &c, reinterpret_cast<const poly_3d *>(p.bytes));
  EXPECT_EQ(n + 10 * a + 100 * b + 1000 * c, 4329);
  n = 5;
  kx_get_poly_3d(nullptr, &a, nullptr, nullptr, reinterpret_cast<const poly_3d *>(p.bytes));
  kx_get_poly_3d(&n, &a, &b, &c, nullptr);
  kx_set_arc_2d(1, 2, 3, 4, 5, 6, nullptr);
  EXPECT_EQ(n, 5);
}

TEST(records, the_larger_axis_of_an_ellipse_comes_first) {
  struct {
    double a, b;
    bool swapped;
  } cases[] = {{3, 2, false}, {2, 3, true}, {3, 3 + 1e-8, false}, {3, 3 + 3.99e-7, false}, {3, 3 + 4.1e-7, true}};
  for (auto &c : cases) {
    ellipse_2d ellipse{0, 0, 0, 0, 8, 9};
    kx_set_ellipse_2d(1, 2, c.a, c.b, &ellipse);
    EXPECT_EQ(+ellipse.a, c.swapped ? c.b : c.a) << c.b;
    EXPECT_EQ(+ellipse.b, c.swapped ? c.a : c.b) << c.b;
    EXPECT_EQ(ellipse.value_1 * 10 + ellipse.value_2, 89) << "the setter leaves the two values alone";
  }
}

TEST(records, zero_points_settle_at_the_tolerance) {
  pnt_3d p{1e-7, -1e-7, 1.1e-7};
  kx_set_zeropnt_3d(&p);
  EXPECT_EQ(+p.x, 0);
  EXPECT_EQ(+p.y, 0);
  EXPECT_EQ(+p.z, 1.1e-7);
  pnt_2d nan{std::nan(""), -1.1e-7};
  kx_set_zeropnt_2d(&nan);
  EXPECT_TRUE(std::isnan(nan.x));
  EXPECT_EQ(+nan.y, -1.1e-7);
}

// Every create function: a zeroed record, and on a full heap null after its own name in the memory message.
TEST(records, create_gives_a_zeroed_record_or_its_name) {
  struct {
    const char *name;
    void *(*create)();
    std::size_t size;
  } kinds[] = {
#define KIND(k) {"kx_create_" #k, [] { return static_cast<void *>(kx_create_##k()); }, sizeof(k)}
      KIND(pnt_2d),
      KIND(pnt_3d),
      KIND(poly_2d),
      {"kx_create_poly_3D", [] { return static_cast<void *>(kx_create_poly_3d()); }, sizeof(poly_3d)},
      KIND(cylcoord),
      KIND(sphercoord),
      KIND(polarcoord),
      KIND(vector_2d),
      KIND(vector_3d),
      KIND(line_2d),
      KIND(line_3d),
      KIND(ile_2d),
      KIND(ple_2d),
      KIND(ple_3d),
      KIND(planeeq),
      KIND(rect_2d),
      KIND(rect_3d),
      KIND(triag_2d),
      KIND(triangle),
      KIND(circle_2d),
      KIND(ellipse_2d),
      KIND(arc_2d),
      KIND(parabola_2d),
      KIND(hyperbola_2d),
      KIND(dwg_rec_2d),
      KIND(rnumber),
      KIND(inumber),
      KIND(matrixrec2d),
      KIND(matrixrec3d),
      KIND(curve_stats_2d),
      KIND(curve_stats_3d)
#undef KIND
  };
  for (auto &kind : kinds) {
    const int allocations = faults::fail_each_allocation(
        [] { return 0; }, [&](int) { return kind.create(); },
        [&](int n, int, void *made) {
          ASSERT_EQ(made == nullptr, n > 0) << kind.name;
          if (n > 0) EXPECT_EQ(faults::messages(), std::vector<std::string>{std::string("Memory Error: ") + kind.name});
          if (made == nullptr) return;
          const unsigned char zero[sizeof(curve_stats_3d) + 8] = {};
          EXPECT_EQ(std::memcmp(made, zero, kind.size), 0) << kind.name;
          kx_purge_pnt_2d(static_cast<pnt_2d *>(made));
        });
    EXPECT_EQ(allocations, 1) << kind.name;
  }
}

TEST(records, arrays_have_one_element_more_and_clear_n_bytes) {
  pnt_2d *array = kx_create_pnt_2d_array(20);
  for (int i = 0; i < 20; ++i) EXPECT_EQ(reinterpret_cast<char *>(array)[i], 0);
  EXPECT_EQ(kx_set_array_pnt_2d(1, 2, 20, array), array + 20);
  double x = 0, y = 0;
  kx_get_array_pnt_2d(&x, &y, 20, array);
  EXPECT_EQ(x + 10 * y, 21);
  kx_purge_pnt_2d_array(array);
  void **handles = kx_create_handle_array(0);
  EXPECT_EQ(kx_set_array_handle(&x, 0, handles), handles);
  void *read = nullptr;
  kx_get_array_handle(&read, 0, handles);
  EXPECT_EQ(read, &x);
  kx_purge_handle_array(handles);
  EXPECT_EQ(kx_create_pnt_3d_array(-1), nullptr);
  EXPECT_EQ(kx_set_array_rnumber(1, 0, nullptr), nullptr);
  faults::fail_each_allocation([] { return 0; }, [](int) { return kx_create_inumber_array(3); },
                               [](int n, int, inumber *made) {
                                 EXPECT_EQ(made == nullptr, n > 0);
                                 if (n > 0)
                                   EXPECT_EQ(faults::messages().at(0), "Memory Error: kx_create_inumber_array");
                                 kx_purge_inumber_array(made);
                               });
}

}  // namespace
