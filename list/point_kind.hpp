// The four kinds of point that a list can hold, read, written and created by their tag.
#pragma once

#include <cstddef>
#include <cstdint>

#include "kxgeom/types.h"
#include "runtime/memory.hpp"

namespace kx {

inline pnt_2d *create_pnt_2d() { return create<pnt_2d>("kx_create_pnt_2d"); }
inline pnt_3d *create_pnt_3d() { return create<pnt_3d>("kx_create_pnt_3d"); }
inline poly_2d *create_poly_2d() { return create<poly_2d>("kx_create_poly_2d"); }
// The capital D is the text hosts have always shown.
inline poly_3d *create_poly_3d() { return create<poly_3d>("kx_create_poly_3D"); }
inline rnumber *create_rnumber() { return create<rnumber>("kx_create_rnumber"); }
inline inumber *create_inumber() { return create<inumber>("kx_create_inumber"); }

inline bool is_plane_point(std::int32_t tag) { return tag == KX_PNT_2D || tag == KX_POLY_2D; }
inline bool is_space_point(std::int32_t tag) { return tag == KX_PNT_3D || tag == KX_POLY_3D; }
inline bool is_polygon_point(std::int32_t tag) { return tag == KX_POLY_2D || tag == KX_POLY_3D; }
inline bool is_point(std::int32_t tag) { return is_plane_point(tag) || is_space_point(tag); }

// Bytes of the record behind a tag; 0 for a tag of the host's own and for strings, which have no fixed size.
inline std::size_t record_size(std::int32_t tag) {
  switch (tag) {
    case KX_PNT_2D: return sizeof(pnt_2d);
    case KX_PNT_3D: return sizeof(pnt_3d);
    case KX_POLY_2D: return sizeof(poly_2d);
    case KX_POLY_3D: return sizeof(poly_3d);
    case KX_CURVE_STATS_2D: return sizeof(curve_stats_2d);
    case KX_CURVE_STATS_3D: return sizeof(curve_stats_3d);
    case KX_POLYFACE_3D: return sizeof(polyface_3d);
    case KX_MATRIXREC2D: return sizeof(matrixrec2d);
    case KX_MATRIXREC3D: return sizeof(matrixrec3d);
    case KX_RNUMBER: return sizeof(rnumber);
    case KX_INUMBER: return sizeof(inumber);
    default: return 0;
  }
}

// Whether an item's data may be read as a record of kind `tag`: it is there, and not known to be a smaller record.
// Lists are meant to be of one kind, and the list's tag decides; this keeps a mixed list from being read past a
// record's end.
inline bool readable_as(const list_item &item, std::int32_t tag) {
  if (item.data == nullptr) return false;
  if (item.datatype == tag) return true;
  const std::size_t known = record_size(item.datatype);
  return item.datatype != KX_STRING && (known == 0 || known >= record_size(tag));
}

// The coordinates of a point record of kind `tag`; z is 0 for the plane kinds.
inline pnt_3d read_point(const void *record, std::int32_t tag) {
  switch (tag) {
    case KX_PNT_2D: {
      const auto *p = static_cast<const pnt_2d *>(record);
      return {p->x, p->y, 0.0};
    }
    case KX_PNT_3D: return *static_cast<const pnt_3d *>(record);
    case KX_POLY_2D: {
      const auto *p = static_cast<const poly_2d *>(record);
      return {p->x, p->y, 0.0};
    }
    case KX_POLY_3D: {
      const auto *p = static_cast<const poly_3d *>(record);
      return {p->x, p->y, p->z};
    }
    default: return {0.0, 0.0, 0.0};
  }
}

// The number of a polygon point; 0 for the kinds without one.
inline std::int32_t read_seqnr(const void *record, std::int32_t tag) {
  return is_polygon_point(tag) ? *static_cast<const std::int32_t *>(record) : 0;
}

inline void write_seqnr(void *record, std::int32_t seqnr) { *static_cast<std::int32_t *>(record) = seqnr; }

// A new point record of kind `tag`; z and seqnr are dropped where the kind has none. Null for any other tag and, after
// the memory message, when the heap is exhausted.
inline void *create_point(std::int32_t tag, const pnt_3d &p, std::int32_t seqnr) {
  switch (tag) {
    case KX_PNT_2D: {
      pnt_2d *record = create_pnt_2d();
      if (record) *record = {p.x, p.y};
      return record;
    }
    case KX_PNT_3D: {
      pnt_3d *record = create_pnt_3d();
      if (record) *record = p;
      return record;
    }
    case KX_POLY_2D: {
      poly_2d *record = create_poly_2d();
      if (record) *record = {seqnr, p.x, p.y};
      return record;
    }
    case KX_POLY_3D: {
      poly_3d *record = create_poly_3d();
      if (record) *record = {seqnr, p.x, p.y, p.z};
      return record;
    }
    default: return nullptr;
  }
}

}  // namespace kx
