// Lists of space points: building with freeing, and walking from head to tail. An item is one point.
//
// GLib before 2.76 takes its nodes from an allocator of its own that keeps pages all over the heap and slows whatever
// runs after it; `run` sets G_SLICE=always-malloc, which is what later versions do anyway.
#include <glib.h>

#include <list>
#include <memory>

#include "floor_list.hpp"
#include "harness.hpp"
#include "kxgeom/list.h"
#include "kxgeom/records.h"

namespace {

constexpr int million = 1000000;

pnt_3d point(int i) { return {0.5 * i, 0.25 * i, 1.0 * i}; }
double sum(const pnt_3d &p) { return p.x + p.y + p.z; }

list_hdr *build(int n) {
  list_hdr *list = ll_create_list();
  for (int i = 0; i < n; ++i) {
    const pnt_3d p = point(i);
    pnt_3d *record = kx_create_pnt_3d();
    kx_set_pnt_3d(p.x, p.y, p.z, record);
    ll_add_list_item(list, 1, record, KX_PNT_3D);
  }
  return list;
}

std::string check_build(int n) {
  list_hdr *list = build(n);
  bool right = list->count == n && list->current == list->tail;
  int i = 0;
  const list_item *before = nullptr;
  for (const list_item *item = list->head; item && right; before = item, item = item->next, ++i) {
    right =
        item->prev == before && item->datatype == KX_PNT_3D && sum(*static_cast<pnt_3d *>(item->data)) == sum(point(i));
  }
  right = right && i == n && list->tail == before;
  return bench::unless(right && ll_purge_all_items(list) == n, "item " + std::to_string(i));
}

void build_blocks(list_hdr &list, int n) {
  for (int i = 0; i < n; ++i) bench::link_record(list, bench::make_record(point(i)), KX_PNT_3D);
}

void build_queue(GQueue &queue, int n) {
  for (int i = 0; i < n; ++i) {
    auto *record = static_cast<pnt_3d *>(g_malloc(sizeof(pnt_3d)));
    *record = point(i);
    g_queue_push_tail(&queue, record);
  }
}

std::string check_queue(int n) {
  GQueue queue = G_QUEUE_INIT;
  build_queue(queue, n);
  const bool right = queue.length == static_cast<guint>(n) &&
                     sum(*static_cast<pnt_3d *>(g_queue_peek_tail(&queue))) == sum(point(n - 1));
  g_queue_clear_full(&queue, g_free);
  return bench::unless(right, "the queue's tail");
}

// What a walk through functions cannot do without: two calls an item.
void *data_of_current(const list_hdr *list) { return list->current->data; }
bool to_next(list_hdr *list) {
  list_item *next = list->current->next;
  list->current = next ? next : list->head;
  return next != nullptr;
}

template <class Build>
void add_build(const std::string &name, int n, const std::function<std::string()> &check, Build once) {
  bench::add({.name = name, .items = million, .check = check, .pass = [n, once] {
                for (int round = 0; round < million / n; ++round) once();
              }});
}

void add_building(const std::string &size, int n) {
  const std::string family = "list_build/" + size + "/";
  add_build(family + "floor:build_and_purge", n, {}, [n] {
    list_hdr list{};
    build_blocks(list, n);
    bench::free_blocks(list);
  });
  add_build(
      family + "peer:std_list", n, [] { return std::string(); },
      [n] {
        std::list<pnt_3d> list;
        for (int i = 0; i < n; ++i) list.push_back(point(i));
        bench::use(&list);
      });
  add_build(
      family + "peer:std_list_of_pointers", n, [] { return std::string(); },
      [n] {
        std::list<std::unique_ptr<pnt_3d>> list;
        for (int i = 0; i < n; ++i) list.push_back(std::make_unique<pnt_3d>(point(i)));
        bench::use(&list);
      });
  add_build(
      family + "peer:GQueue", n, [n] { return check_queue(n); },
      [n] {
        GQueue queue = G_QUEUE_INIT;
        build_queue(queue, n);
        g_queue_clear_full(&queue, g_free);
      });
  add_build(
      family + "kx:build_and_purge", n, [n] { return check_build(n); }, [n] { ll_purge_all_items(build(n)); });
  if (n == million) {
    const auto blocks = std::make_shared<list_hdr>();
    bench::add({.name = family + "floor:build",
                .items = n,
                .pass = [n, blocks] { build_blocks(*blocks, n); },
                .after = [blocks] { bench::free_blocks(*blocks); }});
    const auto list = std::make_shared<list_hdr *>(nullptr);
    bench::add({.name = family + "kx:build",
                .items = n,
                .check = [n] { return check_build(n); },
                .pass = [n, list] { *list = build(n); },
                .after = [list] { ll_purge_all_items(*list); }});
  }
}

template <class Walk>
void add_walk(const std::string &name, int n, Walk once) {
  bench::add({.name = name,
              .items = million,
              .check =
                  [n, once] {
                    const double want = 1.75 * (0.5 * n * (n - 1.0));
                    return bench::unless(bench::close(once(), want, 1e-12), "sum " + std::to_string(once()));
                  },
              .pass =
                  [n, once] {
                    for (int round = 0; round < million / n; ++round) bench::use(once());
                  }});
}

// The lists that are walked live until the program ends.
void add_walking(const std::string &size, int n) {
  const std::string family = "list_walk/" + size + "/";
  auto *values = new std::list<pnt_3d>;
  for (int i = 0; i < n; ++i) values->push_back(point(i));
  auto *pointers = new std::list<pnt_3d *>;
  for (int i = 0; i < n; ++i) pointers->push_back(new pnt_3d(point(i)));
  auto *queue = g_queue_new();
  build_queue(*queue, n);
  list_hdr *list = build(n);

  add_walk(family + "floor:follow_links", n, [list] {
    double total = 0.0;
    for (const list_item *item = list->head; item; item = item->next) total += sum(*static_cast<pnt_3d *>(item->data));
    return total;
  });
  add_walk(family + "floor:two_calls", n, [list] {
    void *(*volatile data)(const list_hdr *) = data_of_current;  // volatile, so that they stay calls
    bool (*volatile next)(list_hdr *) = to_next;
    double total = 0.0;
    list->current = list->head;
    do {
      total += sum(*static_cast<pnt_3d *>(data(list)));
    } while (next(list));
    return total;
  });
  add_walk(family + "peer:std_list", n, [values] {
    double total = 0.0;
    for (const pnt_3d &p : *values) total += sum(p);
    return total;
  });
  add_walk(family + "peer:std_list_of_pointers", n, [pointers] {
    double total = 0.0;
    for (const pnt_3d *p : *pointers) total += sum(*p);
    return total;
  });
  add_walk(family + "peer:GList", n, [queue] {
    double total = 0.0;
    for (const GList *node = queue->head; node; node = node->next) total += sum(*static_cast<pnt_3d *>(node->data));
    return total;
  });
  add_walk(family + "kx:record", n, [list] {
    double total = 0.0;
    ll_set_list_currpntr(list, 0);
    do {
      total += sum(*static_cast<pnt_3d *>(ll_get_list_data(list)));
    } while (ll_set_list_currpntr(list, 2) == 2);
    return total;
  });
  add_walk(family + "kx:getter", n, [list] {
    double total = 0.0;
    ll_set_list_currpntr(list, 0);
    do {
      pnt_3d p;
      kx_get_pnt_3d(&p.x, &p.y, &p.z, static_cast<pnt_3d *>(ll_get_list_data(list)));
      total += sum(p);
    } while (ll_set_list_currpntr(list, 2) == 2);
    return total;
  });
}

}  // namespace

void bench::add_rows() {
  add_walking("1M", million);
  add_walking("1k", 1000);
  add_building("1M", million);
  add_building("1k", 1000);
}
