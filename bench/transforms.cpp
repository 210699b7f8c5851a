// A million space points through a matrix, one call each and from list to list, and a banded system as interpolating
// curves have it. An item is one point, or one system.
#include <glib.h>

#include <Eigen/Geometry>
#include <algorithm>
#include <gp_Trsf.hxx>
#include <list>
#include <memory>
#include <random>
#include <vector>

#include "floor_list.hpp"
#include "harness.hpp"
#include "kxgeom/list.h"
#include "kxgeom/records.h"
#include "kxgeom/transform.h"

extern "C" void dgbsv_(const int *n, const int *below, const int *above, const int *sides, double *band,
                       const int *band_rows, int *pivots, double *x, const int *x_rows, int *status);

namespace {

constexpr int million = 1000000;

// A rotation with one scale for all axes, which every peer can hold.
struct scene {
  double m[16];
  Eigen::Affine3d eigen;
  gp_Trsf occt;
  std::vector<pnt_3d> in, want;

  scene() : in(million), want(million) {
    eigen = Eigen::Translation3d(1, 2, 3) * Eigen::AngleAxisd(0.7, Eigen::Vector3d(1, 2, 3).normalized()) *
            Eigen::Scaling(1.5);
    for (int r = 0; r < 4; ++r) {
      for (int c = 0; c < 4; ++c) m[4 * r + c] = eigen.matrix()(c, r);
    }
    occt.SetValues(m[0], m[4], m[8], m[12], m[1], m[5], m[9], m[13], m[2], m[6], m[10], m[14]);
    std::mt19937 random(2);
    std::uniform_real_distribution<double> value(-100, 100);
    for (pnt_3d &p : in) p = {value(random), value(random), value(random)};
    std::transform(in.begin(), in.end(), want.begin(), [this](const pnt_3d &p) { return image(p); });
  }

  pnt_3d image(const pnt_3d &p) const {
    return {m[0] * p.x + m[4] * p.y + m[8] * p.z + m[12], m[1] * p.x + m[5] * p.y + m[9] * p.z + m[13],
            m[2] * p.x + m[6] * p.y + m[10] * p.z + m[14]};
  }

  // For got(i), the i-th point of an answer, taken in rising order.
  template <class Get>
  std::string check(Get got) const {
    for (int i = 0; i < million; ++i) {
      const pnt_3d p = got(i), &q = want[static_cast<std::size_t>(i)];
      if (!bench::close(p.x, q.x, 1e-12) || !bench::close(p.y, q.y, 1e-12) || !bench::close(p.z, q.z, 1e-12))
        return "point " + std::to_string(i);
    }
    return "";
  }
};

const scene &the_scene() {
  static const scene s;
  return s;
}

void copy_point(const pnt_3d *from, pnt_3d *to) { *to = *from; }

void add_arrays() {
  const scene &s = the_scene();
  const auto out = std::make_shared<std::vector<pnt_3d>>(million);
  const auto add = [&s, out](const std::string &what, auto map) {
    const auto pass = [&s, out, map] {
      const pnt_3d *from = s.in.data();
      pnt_3d *to = out->data();
      for (int i = 0; i < million; ++i) map(from + i, to + i);
      benchmark::ClobberMemory();
    };
    const auto check = [&s, out, pass] {
      std::fill(out->begin(), out->end(), pnt_3d{});
      pass();
      return s.check([&](int i) { return (*out)[static_cast<std::size_t>(i)]; });
    };
    const bool floor = what.starts_with("floor");
    bench::add({.name = "transform_array/1M/" + what,
                .items = million,
                .check = floor ? std::function<std::string()>() : check,
                .pass = pass});
  };
  static void (*volatile const copy)(const pnt_3d *, pnt_3d *) = copy_point;  // volatile, so that it stays a call
  add("floor:call_and_copy", [](const pnt_3d *from, pnt_3d *to) { copy(from, to); });
  add("peer:Eigen_Affine3d", [e = s.eigen](const pnt_3d *from, pnt_3d *to) {
    Eigen::Map<Eigen::Vector3d>(&to->x) = e * Eigen::Map<const Eigen::Vector3d>(&from->x);
  });
  add("peer:OCCT_gp_Trsf", [t = s.occt](const pnt_3d *from, pnt_3d *to) {
    double x = from->x, y = from->y, z = from->z;
    t.Transforms(x, y, z);
    *to = {x, y, z};
  });
  add("kx:kx_transformpnt3d", [&s](const pnt_3d *from, pnt_3d *to) { kx_transformpnt3d(s.m, from, to); });
}

// Making the result and freeing it are in the time.
void add_lists() {
  const scene &s = the_scene();
  const std::string family = "transform_list/1M/";
  const auto image = [&s](const poly_3d &p) {
    const pnt_3d q = s.image({p.x, p.y, p.z});
    return poly_3d{p.seqnr, q.x, q.y, q.z};
  };
  static list_hdr *const input = ll_create_list();
  static std::list<poly_3d> values;
  static GQueue queue = G_QUEUE_INIT;
  const auto make_input = [&s](auto take) {
    for (int i = 0; i < million; ++i) {
      const pnt_3d &p = s.in[static_cast<std::size_t>(i)];
      take(poly_3d{i, p.x, p.y, p.z});
    }
  };
  make_input([](const poly_3d &p) {
    poly_3d *record = kx_create_poly_3d();
    *record = p;
    ll_add_list_item(input, 1, record, KX_POLY_3D);
  });
  make_input([](const poly_3d &p) { values.push_back(p); });
  make_input([](const poly_3d &p) {
    auto *record = static_cast<poly_3d *>(g_malloc(sizeof(poly_3d)));
    *record = p;
    g_queue_push_tail(&queue, record);
  });
  // make() gives a result, next(result) its points from the first on, and release(result) frees it.
  const auto add = [&s, family](const std::string &what, auto make, auto next, auto release) {
    const auto check = [&s, make, next, release] {
      auto result = make();
      auto at = next(result);
      std::string complaint = s.check([&](int i) {
        const poly_3d p = at();
        return p.seqnr == i ? pnt_3d{p.x, p.y, p.z} : pnt_3d{};
      });
      release(result);
      return complaint;
    };
    bench::add({.name = family + what, .items = million, .check = check, .pass = [make, release] {
                  auto result = make();
                  bench::use(&result);
                  release(result);
                }});
  };
  add(
      "peer:std_list",
      [image] {
        std::list<poly_3d> out;
        for (const poly_3d &p : values) out.push_back(image(p));
        return out;
      },
      [](const std::list<poly_3d> &out) { return [at = out.begin()]() mutable { return *at++; }; },
      [](std::list<poly_3d> &out) { out.clear(); });
  add(
      "peer:GQueue",
      [image] {
        GQueue out = G_QUEUE_INIT;
        for (const GList *node = queue.head; node; node = node->next) {
          auto *record = static_cast<poly_3d *>(g_malloc(sizeof(poly_3d)));
          *record = image(*static_cast<poly_3d *>(node->data));
          g_queue_push_tail(&out, record);
        }
        return out;
      },
      [](const GQueue &out) {
        return [node = out.head]() mutable {
          const poly_3d p = *static_cast<poly_3d *>(node->data);
          node = node->next;
          return p;
        };
      },
      [](GQueue &out) { g_queue_clear_full(&out, g_free); });
  add(
      "kx:kx_transform_pnt_set_and_purge",
      [&s] {
        list_hdr *out = ll_create_list();
        kx_transform_pnt_set(s.m, input, out);
        return out;
      },
      [](const list_hdr *out) {
        return [item = out->head]() mutable {
          const poly_3d p = *static_cast<poly_3d *>(item->data);
          item = item->next;
          return p;
        };
      },
      [](list_hdr *out) { kx_purge_polygon(out); });
  bench::add({.name = family + "floor:walk_copy_and_free", .items = million, .pass = [] {
                list_hdr out{};
                for (const list_item *item = input->head; item; item = item->next)
                  bench::link_record(out, bench::make_record(*static_cast<const poly_3d *>(item->data)), KX_POLY_3D);
                bench::free_blocks(out);
              }});
}

// Solvers overwrite the system, so a copy of it is in the time.
void add_banded() {
  static constexpr int n = 10000, m = 3, width = 2 * m + 1, lapack_width = 3 * m + 1;
  using numbers = std::vector<double>;
  struct system {
    numbers band = numbers(n * width), lapack_band = numbers(n * lapack_width), right = numbers(n), want = numbers(n);
  };
  const auto s = std::make_shared<system>();
  std::mt19937 random(4);
  std::uniform_real_distribution<double> value(-1, 1);
  for (double &w : s->want) w = value(random);
  for (int i = 0; i < n; ++i) {
    for (int j = std::max(0, i - m); j <= std::min(n - 1, i + m); ++j) {
      const double element = i == j ? 8.5 + 0.5 * value(random) : value(random);
      s->band[static_cast<std::size_t>(i * width + m + j - i)] = element;
      s->lapack_band[static_cast<std::size_t>(j * lapack_width + 2 * m + i - j)] = element;
      s->right[static_cast<std::size_t>(i)] += element * s->want[static_cast<std::size_t>(j)];
    }
  }
  const auto add = [s](const std::string &what, auto solve) {
    const auto x = std::make_shared<numbers>(n);
    bench::add({.name = "banded/n=10000,m=3/" + what,
                .check =
                    [s, x, solve] {
                      solve(*x);
                      for (std::size_t i = 0; i < n; ++i) {
                        if (!bench::close((*x)[i], s->want[i], 1e-12)) return "unknown " + std::to_string(i);
                      }
                      return std::string();
                    },
                .pass = [x, solve] { solve(*x); }});
  };
  const auto band = std::make_shared<numbers>(), right = std::make_shared<numbers>();
  add("peer:LAPACK_dgbsv", [s, band, pivots = std::make_shared<std::vector<int>>(n)](numbers &x) {
    *band = s->lapack_band;
    x = s->right;
    const int one = 1;
    int status = 0;
    dgbsv_(&n, &m, &m, &one, band->data(), &lapack_width, pivots->data(), x.data(), &n, &status);
  });
  add("kx:factor_and_solve", [s, band, right](numbers &x) {
    *band = s->band;
    *right = s->right;
    kx_ludecomposition(band->data(), n, m);
    kx_forbacksubstitution(band->data(), n, m, right->data(), x.data());
  });
  bench::add({.name = "banded/n=10000,m=3/floor:copy", .pass = [s, band, right] {
                *band = s->band;
                *right = s->right;
                benchmark::ClobberMemory();
              }});
}

}  // namespace

void bench::add_rows() {
  add_arrays();
  add_lists();
  add_banded();
}
