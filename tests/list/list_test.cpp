// The list against a model: random sequences of every operation on a list and on a std::vector with a cursor.
#include "kxgeom/list.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <new>
#include <random>
#include <vector>

#include "kxgeom/records.h"
#include "kxgeom/runtime.h"
#include "support/faults.hpp"

namespace {

// The links in both directions, the ends, the count and the cursor agree with `want`.
void expect_list(const list_hdr &list, const std::vector<void *> &want, int cursor) {
  std::vector<void *> forward, backward;
  const list_item *current = nullptr;
  for (const list_item *i = list.head; i; i = i->next) {
    if (static_cast<int>(forward.size()) == cursor) current = i;
    forward.push_back(i->data);
  }
  for (const list_item *i = list.tail; i; i = i->prev) backward.push_back(i->data);
  std::reverse(backward.begin(), backward.end());
  ASSERT_EQ(forward, want);
  ASSERT_EQ(backward, want);
  ASSERT_EQ(+list.count, static_cast<int>(want.size()));
  ASSERT_TRUE(list.current == current);
}

struct model {
  std::vector<void *> v;
  int at = -1;

  int size() const { return static_cast<int>(v.size()); }

  void add(int where, void *data) {
    const int place = where == 0 ? 0 : where == 2 && at >= 0 ? at + 1 : where == 3 && at >= 0 ? at : size();
    v.insert(v.begin() + place, data);
    at = place;
  }

  void *take(int which, int new_current) {
    const int items[] = {0, size() - 1, at + 1, at - 1};
    const int i = which >= 0 && which < 4 ? items[which] : at;
    if (v.empty() || i < 0 || i >= size()) return nullptr;
    const bool own = i == at;
    const int after = own ? i + 1 : at + 1 + (i == at + 1);  // neighbours as they stand once the item is unlinked
    const int before = own ? i - 1 : at - 1 - (i == at - 1);
    const int head = i == 0, tail = size() - 1 - (i == size() - 1);
    const int nexts[] = {head, tail, after < size() ? after : head, before >= 0 ? before : tail};
    int next = own ? (i + 1) % size() : at;
    if (new_current >= 0 && new_current < 4) next = nexts[new_current];
    void *data = v[static_cast<std::size_t>(i)];
    v.erase(v.begin() + i);
    at = v.empty() ? -1 : next - (next > i);
    return data;
  }

  int move(int m) {
    if (v.empty()) return 1;
    if (m < 0 || m > 3) return m;
    if (m == 2 && at + 1 < size()) return ++at, 2;
    if (m == 3 && at > 0) return --at, 3;
    at = m == 0 || m == 2 ? 0 : size() - 1;
    return m == 0 || m == 2 ? 0 : 1;
  }

  void rearrange(bool reverse) {
    if (v.empty()) return;
    std::rotate(v.begin(), v.begin() + at, v.end());
    if (reverse) std::reverse(v.begin(), v.end());
    at = 0;
  }
};

list_hdr *add(list_hdr *list, void *data, int32_t tag) {
  ll_add_list_item(list, 1, data, tag);
  return list;
}

TEST(list, follows_a_model_through_random_operations) {
  std::mt19937 random(20);
  auto any = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
  for (int round = 0; round < 300; ++round) {
    list_hdr *list = ll_create_list();
    model m;
    char cells[200];
    for (int step = 0; step < 60; ++step) {
      void *cell = &cells[any(200)];
      const int a = any(6), b = any(6);
      switch (any(7)) {
        case 0: ASSERT_EQ(ll_delete_list_item(list, a, b), m.take(a, b)); break;
        case 1: ASSERT_EQ(ll_set_list_currpntr(list, a), m.move(a)); break;
        case 2: ASSERT_EQ(ll_pop_list(list), m.take(0, 0)); break;
        case 3: ll_rearrange_list(list, b % 2), m.rearrange(b % 2); break;
        default:  // added by number, or pushed
          const bool push = b == 0;
          ASSERT_EQ(push ? ll_push_list(list, cell, 1000) : ll_add_list_item(list, a, cell, 1000), 1);
          m.add(push ? 0 : a, cell);
      }
      expect_list(*list, m.v, m.at);
      if (::testing::Test::HasFatalFailure()) return;
      ASSERT_EQ(ll_get_list_data(list), m.v.empty() ? nullptr : m.v[static_cast<std::size_t>(m.at)]);
    }
    std::vector<void *> array(m.v.size() + 1);
    ASSERT_EQ(ll_get_list_array(list, array.data()), std::max(1, m.size()));
    array.resize(m.v.size());
    EXPECT_EQ(array, m.v);
    EXPECT_EQ(ll_purge_list(list), m.v.empty() ? 0 : 8);
    if (m.v.empty()) continue;
    while (list->head) ll_pop_list(list);
    EXPECT_EQ(ll_purge_list(list), 0);
  }
}

int32_t compare_address(void *data, void *key) { return data == key; }

TEST(list, search_answers_in_the_order_of_its_tests) {
  list_hdr empty{}, one{}, two{};
  char a, b, none;
  add(&one, &a, 1);
  add(add(&two, &a, 1), &b, 1);
  struct {
    list_hdr *list;
    int start, end, direction;
    void *key;
    int want;
  } cases[] = {{nullptr, 9, 9, 9, &a, 6}, {&empty, 9, 9, 9, &a, 3},  {&empty, 2, 9, 2, &a, 4},
               {&empty, 0, 3, 3, &a, 5},  {&empty, 0, 1, 2, &a, 6},  {&two, 0, 1, 2, &none, 0},
               {&one, 0, 1, 2, &none, 2}, {&two, 1, 0, 2, &none, 2}, {&two, 1, 0, 3, &none, 0},
               {&two, 4, 4, 2, &none, 2}, {&two, 0, 1, 2, &a, 1}};
  for (auto &c : cases) EXPECT_EQ(ll_search_list(c.list, c.start, c.end, c.direction, compare_address, c.key), c.want);
  EXPECT_TRUE(two.current == two.head) << "the match is current";
  EXPECT_EQ(ll_search_list(&two, 0, 1, 2, nullptr, &a), 7);
  for (list_hdr *list : {&one, &two})
    while (list->head) ll_pop_list(list);
}

TEST(list, typed_items_keep_lists_of_one_kind) {
  list_hdr *list = ll_create_list();
  EXPECT_EQ(ll_add_rnumber(list, 1, 1.5), 0) << "the first item is the caller's to add";
  add(list, new (kx_create_poly_3d()) poly_3d{41, 1, 2, 3}, 63);
  const pnt_2d flat{4, 5};
  const pnt_3d deep{6, 7, 8};
  ll_add_pnt2d(list, 2, &flat);
  ll_set_list_currpntr(list, 0);
  EXPECT_EQ(ll_add_pnt3d(list, 2, &deep), 1) << "appends: numbering has moved the position to the tail";
  const auto *tail = static_cast<poly_3d *>(list->tail->data);
  EXPECT_TRUE(tail->seqnr == 43 && tail->z == 8);
  EXPECT_TRUE(ll_get_pnt3d(list, 0).z == 3 && ll_get_pnt3d(list, 3).z == 0) << "the item before the tail";
  EXPECT_EQ(+ll_get_pnt2d(list, 2).x, 1) << "next of the tail wraps to the head";
  EXPECT_TRUE(list->current == list->tail) << "reading leaves the position";
  EXPECT_EQ(ll_add_inumber(list, 1, 3) + ll_add_string(list, 1, "x") + ll_get_rnumber(list, 4), 0);
  EXPECT_EQ(ll_purge_all_items(list), 3);

  list = add(ll_create_list(), new (kx_create_char_array(1)) char{}, 101);
  EXPECT_EQ(ll_add_string(list, 0, "seven"), 1);
  char buffer[8] = "???????";
  EXPECT_TRUE(ll_get_string(list, 0, buffer) == 5 && ll_get_string_len(list, 1) == 0);
  EXPECT_STREQ(buffer, "seven");
  EXPECT_EQ(ll_purge_all_items(list), 2);
}

TEST(list, a_mixed_list_is_never_read_past_a_record) {
  list_hdr *list = add(add(ll_create_list(), kx_create_inumber(), 82), kx_create_pnt_2d(), 50);
  add(list, kx_create_rnumber(), 81);
  EXPECT_EQ(ll_get_rnumber(list, 0), 0.0);
  EXPECT_EQ(ll_get_rnumber(list, 3), 0.0) << "a larger record is read as the current item's kind";
  add(list, kx_create_pnt_3d(), 51);
  for (int which = 0; which < 5; ++which) EXPECT_EQ(+ll_get_pnt3d(list, which).z, 0.0);
  EXPECT_EQ(ll_get_string_len(list, 0), 0);
  EXPECT_EQ(ll_purge_all_items(list), 4);
}

TEST(list, clearing_stops_at_data_that_is_not_its_own) {
  curve_stats_2d stats{};
  list_hdr *list = add(add(ll_create_list(), kx_create_pnt_2d(), 50), &stats, 60);
  add(list, kx_create_pnt_2d(), 50);
  ll_set_list_currpntr(list, 0);
  ll_set_list_currpntr(list, 2);
  EXPECT_EQ(ll_purge_all_items(list), 3) << "the current item's tag closes the list";
  EXPECT_EQ(+list->count, 3);
  ll_set_list_currpntr(list, 0);
  EXPECT_EQ(ll_clear_all_items(list), 3);
  expect_list(*list, {&stats, list->tail->data}, 0);
  EXPECT_EQ(ll_purge_list(list), 8);
  ll_pop_list(list);
  EXPECT_EQ(ll_purge_all_items(list), 1);
}

TEST(list, a_header_whose_items_were_taken_over_is_empty) {
  list_hdr *list = add(ll_create_list(), kx_create_pnt_2d(), 50), owner = *list;
  list->head = nullptr;
  EXPECT_TRUE(!ll_get_list_data(list) && ll_get_datatype(list) == 0 && !ll_delete_list_item(list, 4, 0));
  EXPECT_EQ(ll_set_list_currpntr(list, 2), 1);
  ll_add_list_item(list, 2, kx_create_pnt_2d(), 50);
  expect_list(*list, {list->head->data}, 0);
  EXPECT_EQ(ll_purge_all_items(list), 1);
  EXPECT_EQ(ll_clear_all_items(&owner), 1);
}

TEST(list, null_lists_and_absurd_counts_give_the_failure_value) {
  EXPECT_EQ(ll_add_list_item(nullptr, 0, nullptr, 50) + ll_delete_item(nullptr, 0, 0), 0);
  EXPECT_EQ(ll_purge_all_items(nullptr) + ll_get_list_array(nullptr, nullptr), 0);
  EXPECT_TRUE(ll_set_list_currpntr(nullptr, 2) == 1 && ll_purge_list(nullptr) == 8);
  ll_init_list_hdr(nullptr);
  ll_rearrange_list(nullptr, 1);
  EXPECT_TRUE(!ll_create_list_array(-1) && !ll_create_list_pntrarray(INT32_MIN));
  list_hdr *lists = ll_create_list_array(3);
  for (int i = 0; i < 3; ++i) expect_list(lists[i], {}, -1);
  ll_purge_list_array(lists);
}

TEST(list, every_failing_allocation_is_reported_and_undone) {
  const auto said = [](int n, std::vector<const char *> texts) {
    const auto messages = faults::messages();
    return n == 0 || messages == std::vector{std::string("Memory Error: ") + texts.at(static_cast<std::size_t>(n - 1))};
  };
  for (bool string : {false, true}) {
    const auto fresh = [=] {
      void *data = string ? static_cast<void *>(new (kx_create_char_array(0)) char{}) : kx_create_poly_2d();
      return add(ll_create_list(), data, string ? 101 : 62);
    };
    const pnt_2d p{1, 2};
    const auto add_one = [&](list_hdr *l) { return string ? ll_add_string(l, 0, "abc") : ll_add_pnt2d(l, 1, &p); };
    const auto check = [&](int n, list_hdr *list, int result) {
      EXPECT_TRUE(result == (n == 0) && ll_get_list_count(list) == 1 + result);
      EXPECT_TRUE(said(n, {string ? "kx_create_char_array" : "kx_create_poly_2d", "ll_add_list_item"}));
      ll_purge_all_items(list);
    };
    EXPECT_EQ(faults::fail_each_allocation(fresh, add_one, check), 2);
  }
  const std::pair<const char *, void *(*)()> makers[] = {
      {"ll_create_list", [] { return static_cast<void *>(ll_create_list()); }},
      {"ll_create_list_array", [] { return static_cast<void *>(ll_create_list_array(5)); }},
      {"ll_create_list_pntrarray", [] { return static_cast<void *>(ll_create_list_pntrarray(5)); }}};
  for (const auto &[text, make] : makers) {
    const auto check = [&, text = text](int n, int, void *made) {
      EXPECT_TRUE((made == nullptr) == (n > 0) && said(n, {text}));
      if (made) ll_purge_list_array(static_cast<list_hdr *>(made));
    };
    faults::fail_each_allocation([] { return 0; }, [make = make](int) { return make(); }, check);
  }
}

}  // namespace
