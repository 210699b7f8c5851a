// Picture areas: what they begin with, and what clearing frees and zeroes.
#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

#include "kxgeom/list.h"
#include "kxgeom/records.h"
#include "kxgeom/runtime.h"
#include "support/faults.hpp"

namespace {

TEST(picture_areas, begin_blank_and_are_cleared_and_freed) {
  picture_area *area = kx_create_picture_area();
  EXPECT_TRUE(area->title == std::string(19, ' ') && area->labels[99].text == std::string(127, ' ') &&
              area->labels[0].name == std::string(31, ' '));
  EXPECT_TRUE(area->area_min.y == 1.7e200 && area->area_max.x == -1.7e200 && area->slots[255][2] == 0 &&
              area->group_count == 0);
  list_hdr hosts = {};
  int data = 5;
  for (int round = 0; round < 2; ++round) {
    for (void **block : {&area->work_buffer_1, &area->work_buffer_2, &area->extra_block_1, &area->extra_block_2})
      *block = kx_create_char_array(9);
    area->group_count = 2, area->groups = ll_create_list_pntrarray(2), area->groups[1] = ll_create_list();
    ll_add_list_item(area->groups[1], 1, kx_create_pnt_2d(), 50);
    ll_add_list_item(&area->items, 1, kx_create_char_array(3), 101),
        ll_add_list_item(&area->items, 1, kx_create_polyface_3d(), 78);
    area->vertex_pnts = ll_create_list(), area->polyfaces = ll_create_list();
    vertex_pnt *vertex = kx_create_vertex_pnt();
    ll_add_list_item(&hosts, 1, &data, 1), vertex->items = &hosts;
    ll_add_list_item(area->vertex_pnts, 1, vertex, 7), ll_add_list_item(area->vertex_pnts, 1, nullptr, 7),
        ll_add_list_item(area->vertex_pnts, 1, &data, 82);
    ll_add_list_item(area->polyfaces, 1, kx_create_polyface_3d(), 78), ll_add_list_item(area->polyfaces, 1, &data, 63);
    for (int32_t &word : area->words) word = 3;
    area->slots[9][1] = 4;
    kx_clear_picture_area(area);
    EXPECT_TRUE(area->words[0] == 0 && area->words[1] == 0 && area->words[2] == 3 && area->title[0] == 0 &&
                area->title[19] == 0 && area->slots[9][1] == 0);
    EXPECT_TRUE(!area->groups && !area->vertex_pnts && !area->polyfaces && !area->items.head &&
                area->group_count == 0 && !area->work_buffer_2 && !area->extra_block_1);
    EXPECT_TRUE(hosts.head == nullptr && hosts.count == 0 && area->labels[5].text[0] == ' ' &&
                area->area_min.x == 1.7e200);
  }
  kx_purge_picture_area(area);
  faults::clear_messages();
  faults::watch(1);
  EXPECT_EQ(kx_create_picture_area(), nullptr);
  faults::unwatch();
  EXPECT_TRUE(faults::messages().empty()) << "no message for this one";
}

}  // namespace
