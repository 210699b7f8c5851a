// What the library builds and reads: solids and surfaces that free themselves.
#pragma once

#include <kxgeom.h>

#include <memory>

namespace kxsolids {

struct purge {
  void operator()(list_hdr *list) const { kx_purge_polygon(list); }
  void operator()(solid *s) const { kx_purge_solid(s); }
  void operator()(surface *s) const { kx_purge_surface(s); }
};
using owned_list = std::unique_ptr<list_hdr, purge>;
using owned_solid = std::unique_ptr<solid, purge>;
using owned_surface = std::unique_ptr<surface, purge>;

// One of the two, or, when the library refused, none.
struct body {
  owned_solid closed;
  owned_surface open;

  body(solid *s) : closed(s) {}
  body(owned_surface s) : open(std::move(s)) {}
  explicit operator bool() const { return closed || open; }
};

}  // namespace kxsolids
