// Bodies that a profile leaves behind: turned about an axis, or moved along it.
#include <algorithm>
#include <cmath>

#include "kxgeom/solids.h"
#include "solids/extrusion.hpp"
#include "solids/flat_polygon.hpp"
#include "solids/profile.hpp"
#include "solids/ring_stack.hpp"

namespace {

using kx::ring_level;

bool crosses_axis(const kx::profile &profile) {
  for (std::int32_t i = 0; i < profile.count(); ++i) {
    if (profile[i].x < 0.0) return true;
  }
  return false;
}

// The profile as the levels of a stack, clockwise.
class turned_outline {
 public:
  // About a whole turn the axis is no part of the surface: of points on it one after the other only the first and the
  // last count, and a single one counts twice, as the end of one piece and the beginning of another. In part of a turn
  // all points count, as the flat ends have them all.
  turned_outline(const kx::profile &profile, bool whole) : levels_(2 * std::int64_t{profile.count()}) {
    if (!levels_) return;
    const std::int32_t n = profile.count();
    for (std::int32_t i = n - 1; i >= 0; --i) {
      const kx::vec2 p = profile[i];
      if (p.x != 0.0) {
        levels_[count_++] = ring_level::ring(p.x, p.x, p.y);
        continue;
      }
      const int neighbours = (profile[(i + 1) % n].x == 0.0) + (profile[(i + n - 1) % n].x == 0.0);
      const int times = whole ? 2 - neighbours : 1;
      for (int k = 0; k < times; ++k) levels_[count_++] = ring_level::apex(p.y);
    }
  }

  explicit operator bool() const { return static_cast<bool>(levels_); }
  const ring_level *levels() const { return levels_.data(); }
  std::int32_t count() const { return count_; }
  std::int64_t vertices(std::int64_t per_ring) const {
    std::int64_t n = 0;
    for (std::int32_t k = 0; k < count_; ++k) n += levels_[k].on_axis ? 1 : per_ring;
    return n;
  }

 private:
  kx::scratch<ring_level> levels_;
  std::int32_t count_ = 0;
};

// The sector in degrees, counter-clockwise.
struct sweep {
  double start, angle;
  bool whole;

  sweep(double start_deg, double sweep_deg) {
    angle = std::isfinite(sweep_deg) ? kx::whole_turn_at_most(sweep_deg) : 0.0;
    start = angle < 0.0 ? start_deg + angle : start_deg;
    angle = std::fabs(angle);
    whole = angle == kx::full_turn;
  }
  bool sound() const { return std::isfinite(start) && angle > kx::tolerance; }
  std::int32_t least_sectors() const { return static_cast<std::int32_t>(std::ceil(angle / kx::widest_chord)); }
};

// The two flat ends of part of a turn. The corners of an end are counter-clockwise, the levels clockwise.
class flat_ends {
 public:
  flat_ends(const kx::profile &profile, const turned_outline &outline, const kx::ring_directions &directions)
      : corners_(profile.data(), profile.count(), most_in_one_face(outline, directions)), numbers_(profile.count()) {
    if (!*this) return;
    std::int32_t number = 0;
    for (std::int32_t k = 0; k < outline.count(); ++k) {
      const std::int32_t vertices = outline.levels()[k].vertices(directions);
      numbers_[outline.count() - 1 - k] = {number, number + vertices - 1};
      number += vertices;
    }
  }
  explicit operator bool() const { return corners_ && numbers_; }

  bool append(kx::solid_builder &parts, std::int32_t &face_number) const {
    return corners_.append(parts, face_number, false, [this](std::int32_t i) { return numbers_[i].start; }) &&
           corners_.append(parts, face_number, true, [this](std::int32_t i) { return numbers_[i].end; });
  }

 private:
  struct ends {
    std::int32_t start, end;
  };

  // A solid is cleared altogether only while no face has as many further corners as the solid has faces.
  static std::int64_t most_in_one_face(const turned_outline &outline, const kx::ring_directions &directions) {
    std::int64_t bands = 0;
    for (std::int32_t k = 0; k < outline.count(); ++k)
      bands += !outline.levels()[k].on_axis || !outline.levels()[k ? k - 1 : outline.count() - 1].on_axis;
    return std::min<std::int64_t>(KX_RING_MOST, bands * directions.sectors() + kx::inline_corners);
  }

  kx::flat_polygon corners_;
  kx::scratch<ends> numbers_;
};

// A body of revolution of a sound sweep, from an outline; the ends are null for a whole turn.
solid *build_turned(const kx::primitive_kind &kind, const turned_outline &outline,
                    const kx::ring_directions &directions, const flat_ends *ends, const pnt_3d *center,
                    const vector_3d *orientation, solid *given, const bodyrev &values) {
  return kx::build_whole(kind, outline.vertices(directions.count()), center, orientation, given, values,
                         [&](kx::solid_builder &parts, kx::vec3 at) {
                           std::int32_t number = 0;
                           return kx::append_stack(parts, at, outline.levels(), outline.count(), directions, number) &&
                                  (ends == nullptr || ends->append(parts, number));
                         });
}

}  // namespace

solid *KX_CALL kx_bodyrevolution(const pnt_3d *center, const list_hdr *profile, double start_angle, double sweep_angle,
                                 int32_t *sectors, const vector_3d *orientation, solid *given) {
  constexpr kx::primitive_kind kind{KX_SOLID_BODYREV, "kx_bodyrevolution", "kx_create_bodyrev"};
  const sweep turn(start_angle, sweep_angle);
  if (center == nullptr || sectors == nullptr || !turn.sound()) return nullptr;
  const kx::profile points(profile, kx::profile::second::z, kx::profile::snap::to_axis, kind.builder);
  if (!points || crosses_axis(points)) return nullptr;
  const std::int32_t n = std::max(*sectors, turn.least_sectors());
  const turned_outline outline(points, turn.whole);
  if (!outline) {
    kx::report_no_memory(kind.builder);
    return nullptr;
  }
  if (outline.vertices(std::int64_t{n} + !turn.whole) > KX_SOLID_VERTICES_MOST) return nullptr;
  const kx::ring_directions directions(n, turn.start, turn.angle);
  kx::profile_copy copy(profile);
  if (!directions || !copy) {
    kx::report_no_memory(kind.builder);
    return nullptr;
  }
  const bodyrev values = {{}, copy.get(), start_angle, sweep_angle, n, 0.0, 0.0, 0.0};
  solid *s = nullptr;
  if (turn.whole) {
    s = build_turned(kind, outline, directions, nullptr, center, orientation, given, values);
  } else if (const flat_ends ends(points, outline, directions); ends) {
    s = build_turned(kind, outline, directions, &ends, center, orientation, given, values);
  } else {
    kx::report_no_memory(kind.builder);
  }
  if (s == nullptr) return nullptr;
  copy.hand_over();
  *sectors = n;
  return s;
}

solid *KX_CALL kx_extbody_pnts(const pnt_3d *center, const list_hdr *profile, double height,
                               const vector_3d *orientation, solid *given) {
  constexpr kx::primitive_kind kind{KX_SOLID_EXTBODY, "kx_extbody_pnts", "kx_create_extbody"};
  if (center == nullptr) return nullptr;
  const kx::profile points(profile, kx::profile::second::y, kx::profile::snap::none, kind.builder);
  if (!points) return nullptr;
  kx::profile_copy copy(profile);
  if (!copy) {
    kx::report_no_memory(kind.builder);
    return nullptr;
  }
  const extbody values = {{}, copy.get(), height, 0.0, 0.0, 0.0};
  solid *s = kx::build_extrusion(kind, points.data(), points.count(), height, {}, center, orientation, given, values);
  if (s) copy.hand_over();
  return s;
}
