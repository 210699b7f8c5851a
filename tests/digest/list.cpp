#include "batch.hpp"

namespace digest {
namespace {

void *new_record(std::int32_t tag) {
  switch (tag) {
    case KX_PNT_2D: return filled(kx_create_pnt_2d());
    case KX_PNT_3D: return filled(kx_create_pnt_3d());
    case KX_POLY_2D: return filled(kx_create_poly_2d());
    case KX_POLY_3D: return filled(kx_create_poly_3d());
    case KX_RNUMBER: return filled(kx_create_rnumber());
    case KX_INUMBER: return filled(kx_create_inumber());
  }
  char *text = kx_create_char_array(8);
  kx_strcpy(text, 9, below(2) ? "text" : "a text too long");
  return text;
}

std::int32_t every_third(void *, void *count) { return ++*static_cast<std::int32_t *>(count) % 3 == 0; }

// Changes that any list takes.
void change(list_hdr *list, std::int32_t tag) {
  std::int32_t count = below(3);
  pnt_2d plane;
  pnt_3d space;
  void *data = nullptr;
  switch (below(14)) {
    case 0:
    case 1: hash(ll_add_list_item(list, below(5), new_record(tag), tag)); break;
    case 2: hash(ll_add_pnt2d(list, below(5), filled(&plane))); break;
    case 3: hash(ll_add_pnt3d(list, below(5), filled(&space))); break;
    case 4: hash(ll_add_rnumber(list, below(5), number())); break;
    case 5: hash(ll_add_inumber(list, below(5), integer())); break;
    case 6: hash(ll_add_string(list, below(5), "a b")); break;
    case 7: hash(ll_delete_item(list, below(5), below(5))); break;
    case 8: hash(ll_set_list_currpntr(list, below(7) - 1)); break;
    case 9: ll_rearrange_list(list, below(2)); break;
    case 10:
      if ((data = ll_pop_list(list))) hash(ll_push_list(list, data, tag));
      break;
    case 11:
      if ((data = ll_delete_list_item(list, below(5), below(5)))) hash(ll_add_list_item(list, below(5), data, tag));
      break;
    case 12: hash(ll_search_list(list, below(5), below(5), 1 + below(3), every_third, &count)); break;
    default: hash(kx_delete_polygon(list, below(5)));
  }
}

}  // namespace

void lists() {
  for (int round = 0; round < 8; ++round) {
    for (const std::int32_t tag : tags) {
      wild = round % 4 == 3;
      list_hdr *list = ll_create_list();
      ll_add_list_item(list, 1, new_record(tag), tag);
      for (int n = 0; n < 60; ++n) {
        change(list, tag);
        char text[32] = "";
        hash(ll_get_list_count(list));
        hash(ll_get_datatype(list));
        hash(std::int32_t{ll_get_list_data(list) != nullptr});
        hash(ll_get_pnt2d(list, below(5)));
        hash(ll_get_pnt3d(list, below(5)));
        hash(ll_get_rnumber(list, below(5)));
        hash(ll_get_inumber(list, below(5)));
        hash(ll_get_string_len(list, below(5)));
        hash(ll_get_string(list, below(5), text));
        hash_bytes(text, sizeof text);
        hash_list(list);
      }
      void *data[200];
      hash(ll_get_list_array(list, data));
      hash(round % 2 ? ll_purge_all_items(list) : ll_clear_all_items(list));
      if (round % 2 == 0) hash(ll_purge_list(list));
    }
  }
  list_hdr *headers = ll_create_list_array(3), **pointers = ll_create_list_pntrarray(3);
  hash_list(headers + 2);
  hash(std::int32_t{pointers[2] == nullptr});
  ll_purge_list_array(headers);
  ll_purge_list_pntrarray(pointers);
}

}  // namespace digest
