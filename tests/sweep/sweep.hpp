// Calls of any exported function with usual and special arguments, and what must hold after each of them.
#pragma once

#include <cstddef>
#include <type_traits>
#include <utility>
#include <vector>

#include "values.hpp"

namespace sweep {

// For the lengths of arrays.
inline long max(long a, long b) { return a > b ? a : b; }

// What a parameter's type can do.
struct type {
  int (*specials)(const parameter &);
  void (*make)(const request &, draw &, slot &);
  bool integer, integer_pointer, list;
  std::size_t only_read;  // bytes of a record that the function cannot write
};

template <class T>
constexpr bool is_flat = false;
template <class T>
constexpr bool is_flat<const T *> = std::is_class_v<T> || std::is_arithmetic_v<T>;
template <>
inline constexpr bool is_flat<const char *> = false;

template <class T>
constexpr std::size_t bytes_only_read() {
  if constexpr (is_flat<T>) return sizeof(std::remove_pointer_t<T>);
  return 0;
}

template <class T>
type type_of() {
  using pointee = std::remove_const_t<std::remove_pointer_t<T>>;
  return {values<T>::specials,
          values<T>::make,
          std::is_same_v<T, std::int32_t>,
          std::is_pointer_v<T> && std::is_same_v<pointee, std::int32_t>,
          std::is_pointer_v<T> && std::is_same_v<pointee, list_hdr>,
          bytes_only_read<T>()};
}

struct function {
  const char *name, *where;
  std::vector<parameter> parameters;
  std::vector<type> types;
  void (*address)();
  void (*call)(void (*)(), slot *, slot &);
  bool gives_list;
  bool may_be_nan;  // the result, even where no argument is
};

template <class R, class... P, std::size_t... I>
void call_with(R(KX_CALL *f)(P...), slot *s, slot &result, std::index_sequence<I...>) {
  if constexpr (std::is_void_v<R>) {
    f(s[I].template as<P>()...);
  } else {
    result.set(f(s[I].template as<P>()...));
  }
  (void)s;
  (void)result;
}

template <class R, class... P>
function describe(const char *name, const char *where, R(KX_CALL *f)(P...), std::vector<parameter> parameters,
                  bool gives_list, bool may_be_nan) {
  return {name,
          where,
          std::move(parameters),
          {type_of<P>()...},
          reinterpret_cast<void (*)()>(f),
          [](void (*address)(), slot *s, slot &result) {
            call_with(reinterpret_cast<R(KX_CALL *)(P...)>(address), s, result, std::index_sequence_for<P...>());
          },
          gives_list,
          may_be_nan && std::is_same_v<R, double>};
}

// All exported functions; made from the headers.
extern const std::vector<function> functions;

}  // namespace sweep
