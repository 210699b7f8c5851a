// What the batches of calls are made of: numbers, records and lists made at random, and the hash of what comes back.
#pragma once

#include <cmath>
#include <cstdint>
#include <cstring>
#include <tuple>
#include <type_traits>

#include "kxgeom.h"

namespace digest {

// The batches, one for each subsystem.
void runtime();
void strings();
void lists();
void records();
void point_lists();
void geometry();
void polygon();
void transform();
void uniform_curves();
void lists_of_samples();
void interpolation();
void nonuniform_curves();
void bezier_curves();
void solids();
void primitives();

// ---- numbers ----

void restart();
std::int32_t below(std::int32_t n);
inline bool wild = false;  // with edges, infinities and the like among the numbers
double number();
std::int32_t integer();

// ---- hashing ----

std::uint64_t hashed();
// Between these two what would be hashed is printed instead, on a line with the function's name and the largest number
// that went in: for functions whose last places depend on the system's sine, logarithm and the like.
void begin_line(const char *name);
void end_line();
void hash_bytes(const void *data, std::size_t bytes);
void hash(std::int32_t value);
void hash(double value);

// What the fields of a record are: d double, i integer; the last letter holds to the record's end.
template <class T>
inline constexpr const char *layout = "d";
template <>
inline constexpr const char *layout<std::int32_t> = "i";
template <>
inline constexpr const char *layout<inumber> = "i";
template <>
inline constexpr const char *layout<poly_2d> = "id";
template <>
inline constexpr const char *layout<poly_3d> = "id";
template <>
inline constexpr const char *layout<matrixrec2d> = "id";
template <>
inline constexpr const char *layout<matrixrec3d> = "id";
template <>
inline constexpr const char *layout<arc_2d> = "dddid";
template <>
inline constexpr const char *layout<parabola_2d> = "dddid";
template <>
inline constexpr const char *layout<hyperbola_2d> = "ddddid";
template <>
inline constexpr const char *layout<dwg_rec_2d> = "ddi";
template <>
inline constexpr const char *layout<cylinder> = "iddddddid";
template <>
inline constexpr const char *layout<torus> = "idddddiid";
template <>
inline constexpr const char *layout<sphere> = "ddddi";
template <>
inline constexpr const char *layout<ellipsoid> = "iddddddiid";
template <>
inline constexpr const char *layout<prism> = "ddddddddid";
template <>
inline constexpr const char *layout<cone> = "iddddddid";
template <>
inline constexpr const char *layout<hcylinder> = "iddddddddid";
template <>
inline constexpr const char *layout<hyperboloid> = "iddddddddiid";
template <>
inline constexpr const char *layout<paraboloid> = "ddddddiid";

template <class T, class Visit>
void each_field(T *record, Visit visit) {
  auto *at = reinterpret_cast<char *>(record), *end = at + sizeof(T);
  for (const char *kind = layout<T>; at < end; kind += kind[1] != 0) {
    auto field = [&](auto value) {
      std::memcpy(&value, at, sizeof value);
      visit(value);
      std::memcpy(at, &value, sizeof value);
      at += sizeof value;
    };
    *kind == 'd' ? field(0.0) : field(std::int32_t{0});
  }
}
struct randomly {
  void operator()(double &value) const { value = number(); }
  void operator()(std::int32_t &value) const { value = integer(); }
};
template <class T>
void hash_record(const T *record) {
  hash(std::int32_t{record != nullptr});
  if (record == nullptr) return;
  T copy = *record;
  each_field(&copy, [](auto &value) { hash(value); });
}

inline void hash(const pnt_2d &point) { hash_record(&point); }
inline void hash(const pnt_3d &point) { hash_record(&point); }
void hash(list_hdr *made);  // and frees it
void hash_list(const list_hdr *list);

// ---- records and lists at random ----

inline constexpr std::int32_t tags[] = {KX_PNT_2D,  KX_PNT_3D,  KX_POLY_2D, KX_POLY_3D,
                                        KX_RNUMBER, KX_INUMBER, KX_STRING};

template <class T>
T *filled(T *record) {
  if (record) each_field(record, randomly());
  return record;
}

list_hdr *points(std::int32_t n, std::int32_t tag);
list_hdr *numbers(std::int32_t n, bool ascending);

// Frees a list and its items, or a header whose items have gone elsewhere.
void drop(list_hdr *list);

// ---- functions of numbers and records ----

// An argument made at random from its type, hashed again after the call if the function could write it.
template <class T>
struct argument {
  T value{};
  argument() { each_field(&value, randomly()); }
  operator T() const { return value; }
  void done() const {}
};
template <class T>
struct argument<T *> {
  T values[std::is_same_v<T, double> ? 16 : 1] = {};  // a matrix
  argument() {
    for (T &value : values) each_field(&value, randomly());
  }
  operator T *() { return values; }
  void done() const {
    for (const T &value : values) hash_record(&value);
  }
};
template <class T>
struct argument<const T *> : argument<T *> {};
template <>
struct argument<list_hdr *> {
  list_hdr *value = below(4) ? points(3 + below(9), tags[below(4)]) : ll_create_list();
  operator list_hdr *() const { return value; }
  void done() const { hash(value); }
};
template <>
struct argument<const list_hdr *> : argument<list_hdr *> {};

template <class R, class... P>
void call(R(KX_CALL *function)(P...)) {
  std::tuple<argument<P>...> arguments{argument<P>()...};
  if constexpr (std::is_void_v<R>) {
    std::apply([&](auto &...a) { function(a...); }, arguments);
  } else {
    hash(std::apply([&](auto &...a) { return function(a...); }, arguments));
  }
  std::apply([](auto &...a) { (a.done(), ...); }, arguments);
}

template <class F>
void batch(F function) {
  for (int n = 0; n < 200; ++n) {
    wild = n % 4 == 3;
    call(function);
  }
}
template <class... F>
void batches(F... functions) {
  wild = false;
  (batch(functions), ...);
}

template <class F>
void near_batch(const char *name, F function) {
  wild = false;
  for (int n = 0; n < 60; ++n) {
    begin_line(name);
    call(function);
    end_line();
  }
}
#define NEAR(function) near_batch(#function, function)

}  // namespace digest
