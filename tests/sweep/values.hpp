// What a parameter of each type is given: usual values, and the special ones that a host may hand over by mistake.
#pragma once

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <new>
#include <type_traits>
#include <vector>

#include "kxgeom.h"

namespace sweep {

// Numbers at random, the same in every run.
class draw {
 public:
  explicit draw(std::uint64_t seed) : state_(seed * 0x9e3779b97f4a7c15u + 1) {}
  std::int32_t below(std::int32_t n) {
    state_ = state_ * 6364136223846793005u + 1442695040888963407u;
    return static_cast<std::int32_t>((state_ >> 33) % static_cast<std::uint64_t>(n));
  }
  // Small whole numbers as often as others: points meet, lines are level.
  double number() { return below(2) ? below(9) - 4 : (below(4096) - 2048) / 64.0; }

 private:
  std::uint64_t state_;
};

// A field of a record that can be given special values: where it is, and whether it is a double or an integer.
struct field {
  std::size_t offset;
  bool real;
};
template <class T>
const std::vector<field> &fields_of();  // made from the headers

// One parameter, as the headers describe it.
struct parameter {
  const char *name;
  bool written;
  // Elements of an array, from the values of all integer parameters; null for one record.
  long (*length)(const long *integers);
  // Whether this integer tells how long an array is: it cannot be more than there is.
  bool is_length;
  // Whether the headers say that nothing checks it.
  bool trusted;
};

// Room for any argument or result, by value.
struct slot {
  alignas(16) unsigned char bytes[64] = {};
  template <class T>
  T &as() {
    static_assert(sizeof(T) <= sizeof bytes);
    return *std::launder(reinterpret_cast<T *>(bytes));
  }
  template <class T>
  void set(T value) {
    static_assert(sizeof(T) <= sizeof bytes);
    std::memcpy(bytes, &value, sizeof value);
  }
};

// A value that is to be wrong in one way: the which-th of the special ones of its type.
struct request {
  const parameter *of;
  long length;  // of the array, at least 1
  int special;  // -1 for none
};

inline constexpr double special_doubles[] = {NAN, INFINITY, -INFINITY, 0.0, -0.0, 5e-324, -2e-310, 1e308, -1e308};
inline constexpr std::int32_t special_integers[] = {INT32_MIN, -1, 0, 1, INT32_MAX};
inline constexpr int doubles = 9, integers = 5;

void set_usual(double &value, draw &d);
void set_usual(std::int32_t &value, draw &d);

// A block of n records with usual fields, as the library's own functions allocate.
void *new_block(std::size_t bytes);

template <class T>
T *new_records(long n, draw &d) {
  T *records = static_cast<T *>(new_block(sizeof(T) * static_cast<std::size_t>(n)));
  std::memset(static_cast<void *>(records), 0, sizeof(T) * static_cast<std::size_t>(n));
  for (long i = 0; i < n; ++i) {
    for (const field &f : fields_of<T>()) {
      char *at = reinterpret_cast<char *>(records + i) + f.offset;
      double real;
      std::int32_t integer;
      if (f.real) {
        set_usual(real, d);
        std::memcpy(at, &real, sizeof real);
      } else {
        set_usual(integer, d);
        std::memcpy(at, &integer, sizeof integer);
      }
    }
  }
  return records;
}

// Where any numbers would not do.
void make_valid(const parameter &p, double *values, long n);
void make_valid(const parameter &p, rect_2d *rectangles, long n);
inline void make_valid(const parameter &, void *, long) {}

// How many ways there are to make one field of a record special, and the n-th of them.
int field_specials(const std::vector<field> &fields);
void make_special(const std::vector<field> &fields, void *record, int n);

template <class T, class = void>
struct values;

template <>
struct values<double> {
  static int specials(const parameter &) { return doubles; }
  static void make(const request &r, draw &d, slot &s) {
    double value;
    set_usual(value, d);
    s.set(r.special < 0 ? value : special_doubles[r.special]);
  }
};

template <>
struct values<std::int32_t> {
  static int specials(const parameter &p) { return p.trusted ? 0 : integers - p.is_length; }
  static void make(const request &r, draw &d, slot &s) {
    std::int32_t value;
    set_usual(value, d);
    s.set(r.special < 0 ? value : special_integers[r.special]);
  }
};

// Records by value.
template <class T>
struct values<T, std::enable_if_t<std::is_class_v<T>>> {
  static int specials(const parameter &) { return field_specials(fields_of<T>()); }
  static void make(const request &r, draw &d, slot &s) {
    T *made = new_records<T>(1, d);
    s.set(*made);
    if (r.special >= 0) make_special(fields_of<T>(), s.bytes, r.special);
  }
};

// One record, or an array of them: null, and each field of one of them special.
template <class T>
struct values<T *, std::enable_if_t<!std::is_pointer_v<T> && !std::is_function_v<T> && !std::is_void_v<T>>> {
  using record = std::remove_const_t<T>;
  static int specials(const parameter &p) { return 1 + field_specials(fields_of<record>()) - p.is_length; }
  static void make(const request &r, draw &d, slot &s) {
    record *made = new_records<record>(r.length, d);
    make_valid(*r.of, made, r.length);
    if (r.special > 0)
      make_special(fields_of<record>(), made + d.below(static_cast<std::int32_t>(r.length)), r.special - 1);
    s.set(r.special == 0 ? nullptr : made);
  }
};

// What cannot be made field by field: lists, curves, solids, texts, handles, functions.
#define SWEEP_SPECIAL_TYPE(type)                          \
  template <>                                             \
  struct values<type> {                                   \
    static int specials(const parameter &p);              \
    static void make(const request &r, draw &d, slot &s); \
  }
using compare_function = std::int32_t (*)(void *, void *);
SWEEP_SPECIAL_TYPE(list_hdr *);
SWEEP_SPECIAL_TYPE(list_hdr **);
SWEEP_SPECIAL_TYPE(curve *);
SWEEP_SPECIAL_TYPE(curve **);
SWEEP_SPECIAL_TYPE(solid *);
SWEEP_SPECIAL_TYPE(surface *);
SWEEP_SPECIAL_TYPE(curv *);
SWEEP_SPECIAL_TYPE(char *);
SWEEP_SPECIAL_TYPE(void *);
SWEEP_SPECIAL_TYPE(void **);
SWEEP_SPECIAL_TYPE(poly_2d *const *);
SWEEP_SPECIAL_TYPE(poly_3d *const *);
SWEEP_SPECIAL_TYPE(compare_function);
#undef SWEEP_SPECIAL_TYPE

template <>
struct values<const list_hdr *> : values<list_hdr *> {};
template <>
struct values<const curve *> : values<curve *> {};
template <>
struct values<const solid *> : values<solid *> {};
template <>
struct values<const surface *> : values<surface *> {};
template <>
struct values<const char *> : values<char *> {};
template <>
struct values<const void *> : values<void *> {};
template <>
struct values<void *const *> : values<void **> {};

}  // namespace sweep
