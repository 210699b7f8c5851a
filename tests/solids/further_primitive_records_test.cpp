#include <string>
#include <tuple>
#include <utility>

#include "kxgeom/list.h"
#include "kxgeom/solids.h"
#include "support/faults.hpp"

namespace {

const pnt_3d centre{1, 2, 3};

// An argument for a setter, each number another; null where the record goes.
template <class A>
A make(int &next) {
  if constexpr (std::is_arithmetic_v<A>) return static_cast<A>(++next);
  if constexpr (std::is_same_v<A, const pnt_3d *>) return &centre;
  if constexpr (std::is_same_v<A, list_hdr *>) return ll_create_list();
  return A{};
}

template <class A>
bool same(A in, A out) {
  return in == out;
}
bool same(const pnt_3d *in, const pnt_3d &out) { return in->x == out.x && in->y == out.y && in->z == out.z; }

// Sets each field to a value of its own and gets them back; the purge frees the profile too.
template <class T, class P, class... A, class... G, std::size_t... I>
void expect_kept(const char *name, T *(KX_CALL *create)(), void(KX_CALL *set)(A...), void(KX_CALL *get)(G...),
                 void(KX_CALL *purge)(P *), std::index_sequence<I...>) {
  SCOPED_TRACE(name);
  int next = 0;
  std::tuple<A...> in{make<A>(next)...};
  std::tuple<std::remove_const_t<std::remove_pointer_t<G>>...> out{};
  T *rec = create();
  if constexpr (requires { rec->axis_z; }) EXPECT_EQ(+rec->axis_z, 1);
  set(std::get<I>(in)..., rec);
  get(&std::get<I>(out)..., rec);
  EXPECT_TRUE((same(std::get<I>(in), std::get<I>(out)) && ...));
  get((static_cast<void>(I), nullptr)..., rec);
  set(std::get<I>(in)..., nullptr);
  get(&std::get<I>(out)..., nullptr);
  purge(rec);
  purge(nullptr);
  faults::clear_messages();
  faults::watch(1);
  EXPECT_EQ(create(), nullptr);
  faults::unwatch();
  EXPECT_EQ(faults::messages().back(), "Memory Error: kx_create_" + std::string(name));
}

template <class T, class P, class... A, class... G>
void expect_kept(const char *name, T *(KX_CALL *create)(), void(KX_CALL *set)(A...), void(KX_CALL *get)(G...),
                 void(KX_CALL *purge)(P *)) {
  expect_kept(name, create, set, get, purge, std::make_index_sequence<sizeof...(A) - 1>{});
}

TEST(FurtherPrimitiveRecords, KeepTheirValues) {
#define RECORD(p) expect_kept(#p, kx_create_##p, kx_set_##p, kx_get_##p, kx_purge_##p)
  RECORD(sphere);
  RECORD(ellipsoid);
  RECORD(prism);
  RECORD(cone);
  RECORD(hcylinder);
  RECORD(hyperboloid);
  RECORD(paraboloid);
  RECORD(pyramid);
  RECORD(bodyrev);
  RECORD(extbody);
  cone *c = kx_create_cone();
  kx_set_cone(1, &centre, 2, 3, 4, 5, 6, 7, 8, c);
  kx_set_cone(9, nullptr, 2, 3, 4, 5, 6, 7, 8, c);  // the centre stays
  EXPECT_TRUE(c->host_word == 9 && c->center.z == 3 && c->top_diameter == 3 && c->axis_z == 8);
  kx_purge_cone(c);
}

}  // namespace
