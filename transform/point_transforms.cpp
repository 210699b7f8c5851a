// Points and point lists through a move, a turn, a scaling or a matrix.
#include "kxgeom/transform.h"
#include "list/items.hpp"
#include "list/point_kind.hpp"
#include "runtime/memory.hpp"
#include "transform/matrix.hpp"

namespace {

// What is said when there is no memory for a record, and after the list's own message when there is none for its item;
// null says nothing.
struct memory_texts {
  const char *record, *item;
};

// Appends the images of all items of the list's kind that are there now; what finds no memory is left out.
template <class Record>
void append_images(const double *m, const list_hdr &from, int32_t tag, memory_texts texts, list_hdr &to) {
  const list_item *last = from.tail;  // the images may follow it
  for (list_item &item : kx::items(&from)) {
    if (kx::readable_as(item, tag)) {
      auto *image = static_cast<Record *>(kx::allocate(sizeof(Record)));
      if (image) {
        *image = kx::transformed(m, *static_cast<const Record *>(item.data));
        if (!kx::append(to, image, tag)) {
          if (texts.item) kx_memerr(texts.item);
          kx::release(image);
        }
      } else if (texts.record) {
        kx_memerr(texts.record);
      }
    }
    if (&item == last) break;
  }
}

}  // namespace

void KX_CALL kx_transformpnt2d(const double *m, const pnt_2d *in, pnt_2d *out) {
  if (m && in && out) *out = kx::transformed(m, *in);
}

void KX_CALL kx_transformpnt3d(const double *m, const pnt_3d *in, pnt_3d *out) {
  if (m && in && out) *out = kx::transformed(m, *in);
}

void KX_CALL kx_translatepnt2d(const pnt_2d *in, double dx, double dy, pnt_2d *out) {
  if (in && out) *out = {in->x + dx, in->y + dy};
}

void KX_CALL kx_translatepnt3d(const pnt_3d *in, double dx, double dy, double dz, pnt_3d *out) {
  if (in && out) *out = {in->x + dx, in->y + dy, in->z + dz};
}

void KX_CALL kx_rotatepnt2d(double angle_deg, const pnt_2d *center, const pnt_2d *in, pnt_2d *out) {
  if (!center || !in || !out) return;
  const pnt_2d p = *in, o = *center;
  if (!(std::fabs(angle_deg) > kx::tolerance)) {
    *out = p;
    return;
  }
  const kx::turn t(angle_deg);
  *out = {(p.x - o.x) * t.c + o.x - (p.y - o.y) * t.s, (p.y - o.y) * t.c + (p.x - o.x) * t.s + o.y};
}

void KX_CALL kx_rotatepnt3d(int32_t axis, double angle_deg, const line_3d *axis_line, const pnt_3d *in, pnt_3d *out) {
  if (!in || !out) return;
  const pnt_3d p = *in;
  if (std::fabs(angle_deg) <= kx::tolerance) {
    *out = p;
    return;
  }
  if (axis == 3) {
    kx::matrix<4> m = kx::identity<4>();
    kx_rotationmatrix3d(axis, angle_deg, axis_line, &m.m[0][0]);  // stays the identity when the line has no length
    *out = kx::transformed(&m.m[0][0], p);
    return;
  }
  const kx::turn t(angle_deg);
  switch (axis) {
    case 1: *out = {t.s * p.z + t.c * p.x, p.y, t.c * p.z - t.s * p.x}; break;
    case 2: *out = {t.c * p.x - t.s * p.y, t.s * p.x + t.c * p.y, p.z}; break;
    default: *out = {p.x, t.c * p.y - t.s * p.z, t.s * p.y + t.c * p.z};
  }
}

void KX_CALL kx_scalepnt2d(double sx, double sy, const pnt_2d *fixed, const pnt_2d *in, pnt_2d *out) {
  if (!fixed || !in || !out) return;
  double factor[2] = {sx, sy};
  kx::drop_small_factors(factor);
  *out = {(1.0 - factor[0]) * fixed->x + factor[0] * in->x, (1.0 - factor[1]) * fixed->y + factor[1] * in->y};
}

int32_t KX_CALL kx_scalepnt3d(double sx, double sy, double sz, const pnt_3d *fixed, const pnt_3d *in, pnt_3d *out) {
  if (!fixed || !in || !out) return 0;
  double factor[3] = {sx, sy, sz};
  kx::drop_small_factors(factor);
  *out = {(1.0 - factor[0]) * fixed->x + factor[0] * in->x, (1.0 - factor[1]) * fixed->y + factor[1] * in->y,
          (1.0 - factor[2]) * fixed->z + factor[2] * in->z};
  return 0;
}

list_hdr *KX_CALL kx_transfpolygon(const double *m, list_hdr *polygon) {
  if (!m || kx::empty(polygon)) return nullptr;
  auto *images = kx::create<list_hdr>("ll_create_list");
  if (!images) return nullptr;
  polygon->current = polygon->head;
  // The record's text stands without the prefix: hosts have always shown it so.
  switch (kx::datatype(polygon)) {
    case KX_PNT_2D:
      append_images<pnt_2d>(m, *polygon, KX_PNT_2D, {"transfpolygon", "kx_transfpolygon - 3"}, *images);
      break;
    case KX_POLY_2D:
      append_images<poly_2d>(m, *polygon, KX_POLY_2D, {"transfpolygon", "kx_transfpolygon - 2"}, *images);
      break;
    default: break;  // every other kind gives an empty list, on purpose: the host tells by its count
  }
  return images;
}

void KX_CALL kx_transform_pnt_set(const double *m, list_hdr *in, list_hdr *out) {
  if (!m || kx::empty(in) || !out) return;
  in->current = in->head;
  append_images<poly_3d>(m, *in, KX_POLY_3D, {"kx_create_poly_3D", nullptr}, *out);
}

list_hdr *KX_CALL kx_transform_polyline_3d(const double *m, list_hdr *polyline) {
  if (!m || kx::empty(polyline)) return nullptr;
  auto *images = kx::create<list_hdr>("ll_create_list");
  if (!images) return nullptr;
  polyline->current = polyline->head;
  // A record without memory is left out silently, on purpose: the host compares the counts.
  switch (kx::datatype(polyline)) {
    case KX_PNT_3D: append_images<pnt_3d>(m, *polyline, KX_PNT_3D, {}, *images); break;
    case KX_POLY_3D: append_images<poly_3d>(m, *polyline, KX_POLY_3D, {}, *images); break;
    default: break;
  }
  if (images->head) return images;
  kx::release(images);
  return nullptr;
}
