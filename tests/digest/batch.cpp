#include "batch.hpp"

#include <cstdio>
#include <iterator>
#include <limits>
#include <string>

namespace digest {
namespace {

std::uint64_t state, digest;
double last;
bool printing = false;
double largest;  // of the numbers that went into the line being printed
std::string line;

}  // namespace

void restart() {
  digest = 14695981039346656037u;
  state = 1;
  last = 0;
}

std::uint64_t hashed() { return digest; }

void begin_line(const char *name) {
  printing = true;
  largest = 0.0;
  line.clear();
  std::printf("~ %s", name);
}

void end_line() {
  printing = false;
  std::printf(" %a:%s\n", largest, line.c_str());
}

std::int32_t below(std::int32_t n) {
  state = state * 6364136223846793005u + 1442695040888963407u;
  return static_cast<std::int32_t>((state >> 33) % static_cast<std::uint64_t>(n));
}

static double any_number() {
  static const double edges[] = {
      0.0,         -0.0,     1e-7,     -1e-7,  1.0000001e-7, 9.999999e-8,
      2e-7,        1 + 1e-7, 1 + 2e-7, 1.0,    -1.0,         45,
      90,          360,      1e300,    -1e300, 5e-324,       std::numeric_limits<double>::infinity(),
      std::nan("")};
  if (wild && below(2)) return last = edges[below(std::size(edges))];
  switch (below(4)) {
    case 0: return last = below(17) - 8;
    case 1: return last += (std::fabs(last) + 1) * 1e-7 * (below(3) - 1);
    default: return last = (below(1 << 30) - (1 << 29)) / 1048576.0;
  }
}

double number() {
  const double value = any_number();
  if (std::fabs(value) > largest) largest = std::fabs(value);
  return value;
}

std::int32_t integer() { return wild && below(4) == 0 ? (below(2) ? INT32_MAX : -INT32_MAX - 1) : below(41) - 10; }

void hash_bytes(const void *data, std::size_t bytes) {
  for (std::size_t i = 0; i < bytes; ++i)
    digest = (digest ^ static_cast<const unsigned char *>(data)[i]) * 1099511628211u;
}
void hash(std::int32_t value) {
  if (printing) {
    line += ' ';
    line += std::to_string(value);
    return;
  }
  hash_bytes(&value, sizeof value);
}
void hash(double value) {
  if (std::isnan(value)) value = std::nan("");
  if (printing) {
    char text[40];
    std::snprintf(text, sizeof text, " %a", value);
    line += text;
    return;
  }
  hash_bytes(&value, sizeof value);
}

void hash_list(const list_hdr *list) {
  hash(std::int32_t{list != nullptr});
  if (list == nullptr) return;
  hash(list->count);
  std::int32_t position = 0;
  for (const list_item *item = list->head; item; item = item->next == list->head ? nullptr : item->next, ++position) {
    if (item == list->current) hash(position);
    hash(item->datatype);
    switch (item->datatype) {
      case KX_PNT_2D: hash_record(static_cast<pnt_2d *>(item->data)); break;
      case KX_PNT_3D: hash_record(static_cast<pnt_3d *>(item->data)); break;
      case KX_POLY_2D: hash_record(static_cast<poly_2d *>(item->data)); break;
      case KX_POLY_3D: hash_record(static_cast<poly_3d *>(item->data)); break;
      case KX_RNUMBER: hash_record(static_cast<rnumber *>(item->data)); break;
      case KX_INUMBER: hash_record(static_cast<inumber *>(item->data)); break;
      case KX_CURVE_STATS_2D: hash_record(static_cast<curve_stats_2d *>(item->data)); break;
      case KX_CURVE_STATS_3D: hash_record(static_cast<curve_stats_3d *>(item->data)); break;
      case KX_STRING: hash(kx_strlen(static_cast<char *>(item->data))); break;
    }
  }
}

void drop(list_hdr *list) {
  if (list->head)
    ll_purge_all_items(list);
  else
    ll_init_list_hdr(list), ll_purge_list(list);
}

list_hdr *points(std::int32_t n, std::int32_t tag) {
  pnt_2d plane[20];
  pnt_3d space[20];
  for (int i = 0; i < 20; ++i) filled(plane + i), filled(space + i);
  return below(2) ? kx_pnt2d_array_to_list(plane, n, tag, below(9), below(4))
                  : kx_pnt3d_array_to_list(space, n, tag, below(9), below(4));
}

list_hdr *numbers(std::int32_t n, bool ascending) {
  list_hdr *list = ll_create_list();
  double value = 1;
  for (std::int32_t i = 0; i < n; ++i) {
    value = ascending ? value + below(4) * 0.3 : below(8) + 0.5;
    rnumber *record = kx_create_rnumber();
    kx_set_rnumber(value, record);
    ll_add_list_item(list, 1, record, KX_RNUMBER);
  }
  return list;
}

void hash(list_hdr *made) {
  hash_list(made);
  if (made) drop(made);
}

}  // namespace digest
