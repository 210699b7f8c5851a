// What a fuzzer's bytes mean: numbers of a few kinds, points and lists; and how a fault is told.
#pragma once

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <string>

#include "kxgeom.h"

namespace fuzz {

// Ends the run with the place: the fuzzer keeps the input.
#define REQUIRE(condition)                                                         \
  do {                                                                             \
    if (!(condition)) {                                                            \
      std::fprintf(stderr, "%s:%d: not so: %s\n", __FILE__, __LINE__, #condition); \
      std::abort();                                                                \
    }                                                                              \
  } while (false)

// The bytes one after the other; zeros behind the last one.
class input {
 public:
  input(const std::uint8_t *data, std::size_t size) : at_(data), end_(data + size) {}

  bool rest() const { return at_ != end_; }
  std::uint8_t byte() { return rest() ? *at_++ : std::uint8_t{0}; }
  std::int32_t below(std::int32_t n) { return byte() % n; }

  // A small whole number mostly, so that points meet; now and then one beside it by about the tolerance, or anything.
  double number() {
    const std::int32_t kind = byte();
    if (kind < 176) return kind % 16 - 8;
    if (kind < 216) return kind % 16 - 8 + (below(9) - 4) * 0.4e-7;
    if (kind < 248) return (byte() * 256 + byte()) / 1024.0 - 32;
    double any;
    char bits[sizeof any];
    for (char &b : bits) b = static_cast<char>(byte());
    std::memcpy(&any, bits, sizeof any);
    return any;
  }
  pnt_2d point() {
    const double x = number();
    return {x, number()};
  }
  // A list of points of a kind.
  list_hdr *points(std::int32_t n, std::int32_t tag) {
    list_hdr *list = ll_create_list();
    for (std::int32_t i = 0; i < n; ++i) {
      const double x = number(), y = number(), z = tag == KX_PNT_3D || tag == KX_POLY_3D ? number() : 0.0;
      void *record = nullptr;
      switch (tag) {
        case KX_PNT_2D: kx_set_pnt_2d(x, y, static_cast<pnt_2d *>(record = kx_create_pnt_2d())); break;
        case KX_PNT_3D: kx_set_pnt_3d(x, y, z, static_cast<pnt_3d *>(record = kx_create_pnt_3d())); break;
        case KX_POLY_2D: kx_set_poly_2d(x, y, i, static_cast<poly_2d *>(record = kx_create_poly_2d())); break;
        default: kx_set_poly_3d(x, y, z, i, static_cast<poly_3d *>(record = kx_create_poly_3d()));
      }
      ll_add_list_item(list, 1, record, tag);
    }
    return list;
  }
  list_hdr *numbers(std::int32_t n) {
    list_hdr *list = ll_create_list();
    for (std::int32_t i = 0; i < n; ++i) {
      rnumber *record = kx_create_rnumber();
      kx_set_rnumber(number(), record);
      ll_add_list_item(list, 1, record, KX_RNUMBER);
    }
    return list;
  }
  std::string text() {
    const std::string all(reinterpret_cast<const char *>(at_), static_cast<std::size_t>(end_ - at_));
    at_ = end_;
    return all;
  }

 private:
  const std::uint8_t *at_, *end_;
};

// Whether a list's items lead to each other both ways, as many as it says, with the cursor on one of them.
inline bool linked(const list_hdr *list) {
  const list_item *before = nullptr;
  std::int32_t n = 0;
  bool has_current = list->head == nullptr && list->current == nullptr;
  for (const list_item *item = list->head; item; before = item, item = item->next, ++n) {
    if (item->prev != before) return false;
    has_current = has_current || item == list->current;
  }
  return before == list->tail && n == list->count && has_current;
}

// Frees a list and all in it, a header whose items have gone elsewhere, too.
inline void drop(list_hdr *list) {
  if (list == nullptr) return;
  if (list->head) {
    REQUIRE(linked(list));
    ll_purge_all_items(list);
  } else {
    ll_init_list_hdr(list);
    ll_purge_list(list);
  }
}

// A folder for the files of one run, gone with it.
class scratch_folder {
 public:
  scratch_folder() { REQUIRE(mkdtemp(name_) != nullptr); }
  ~scratch_folder() { std::filesystem::remove_all(name_); }
  scratch_folder(const scratch_folder &) = delete;
  scratch_folder &operator=(const scratch_folder &) = delete;

  std::string file(const char *name) const { return std::string(name_) + "/" + name; }

 private:
  char name_[32] = "/tmp/kxgeom-fuzz-XXXXXX";
};

inline constexpr std::int32_t point_tags[] = {KX_PNT_2D, KX_PNT_3D, KX_POLY_2D, KX_POLY_3D};

}  // namespace fuzz
