#include "dxf_record.hpp"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <set>

#include "dxf_file.hpp"

namespace kxdraw {

namespace {

constexpr double absurd = 1e15;

// Group codes of pairs that are judged beside what dxflib delivers.
constexpr int name_code = 2, handle_code = 5, layer_code = 8, invisible_code = 60, color_code = 62, paper_code = 67;
constexpr int flags_code = 70, true_color_code = 420;
constexpr int knots_code = 72, control_code = 73, fit_code = 74, vertices_code = 90;
constexpr int first_extended_code = 1000;

// dxflib reads a number that is none as 0 and one too large as the largest: that must not pass for a coordinate.
bool is_number(const std::string &value) {
  std::string text = value;
  std::replace(text.begin(), text.end(), ',', '.');
  if (text.starts_with('+')) text.erase(0, 1);
  double number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc() && end == text.data() + text.size() && std::isfinite(number) && std::abs(number) < absurd;
}

bool is_real_code(int code) { return (code >= 10 && code <= 59) || (code >= 210 && code <= 239); }

bool is_read_kind(const std::string &kind) {
  static const std::set<std::string> kinds = {
      "SECTION", "TABLE", "LAYER",  "BLOCK",   "ENDBLK", "POINT",  "LINE",  "LWPOLYLINE", "POLYLINE", "VERTEX",
      "SEQEND",  "ARC",   "CIRCLE", "ELLIPSE", "SPLINE", "INSERT", "TRACE", "SOLID",      "3DFACE"};
  return kinds.contains(kind);
}

// The code of the points that a count is the number of; 0 when the code is no count that dxflib trusts.
int counted_code(const std::string &kind, int code) {
  if (kind == "LWPOLYLINE") return code == vertices_code ? 10 : 0;
  if (kind != "SPLINE") return 0;
  switch (code) {
    case knots_code: return 40;
    case control_code: return 10;
    case fit_code: return 11;
    default: return 0;
  }
}

bool announces_wrongly(const record &rec) {
  return std::any_of(rec.pairs.begin(), rec.pairs.end(), [&](const group_pair &pair) {
    const int counted = counted_code(rec.ent.kind, pair.first);
    return counted != 0 && rec.number(pair.first) != static_cast<int>(rec.count(counted));
  });
}

// What keeps the entity from being drawn, empty when nothing does.
std::string fault_of(const record &rec) {
  constexpr const char *partial = "dxflib delivers only a part of it";
  const entity &ent = rec.ent;
  const int flags = rec.number(flags_code);
  if (rec.number(paper_code) != 0) return "it is in paper space";
  if (ent.kind == "POLYLINE" && (flags & 16) != 0) return "polygon meshes are not drawn";
  if (ent.kind == "POLYLINE" && (flags & 64) != 0) return "polyface meshes are not drawn";
  if (std::holds_alternative<std::monostate>(ent.geometry))
    return is_dimension(ent.kind) ? "it has no block that shows it" : "this kind is not drawn";
  if (rec.number(invisible_code) != 0) return "it is marked invisible";
  if (rec.bad_number) return "one of its numbers is not a number, or absurd";
  if (!ent.fault.empty()) return partial;
  if (const auto *path = std::get_if<path_shape>(&ent.geometry)) {
    if (ent.kind == "LWPOLYLINE" && path->vertices.size() != rec.count(10)) return partial;
    if (path->vertices.empty()) return "it has no vertices";
  }
  if (const auto *spline = std::get_if<spline_shape>(&ent.geometry)) {
    if (rec.count(10) == 0) return rec.count(11) > 0 ? "it has fit points only" : "it has no control points";
    if (rec.count(41) > rec.count(10)) return "it has more weights than control points";
    if (spline->control.size() != rec.count(10) || spline->knots.size() != rec.count(40)) return partial;
  }
  return "";
}

// A spline without weights has them all 1; one with too few keeps the few, for the library to judge.
void settle_spline(const record &rec, spline_shape &spline) {
  if (rec.count(40) == 0) spline.knots.clear();
  if (rec.count(41) == 0) {
    std::fill(spline.weights.begin(), spline.weights.end(), 1.0);
  } else if (rec.count(41) < spline.weights.size()) {
    spline.weights.resize(rec.count(41));
  }
}

}  // namespace

std::string record::text(int code) const {
  const auto found = std::find_if(pairs.begin(), pairs.end(), [&](const group_pair &p) { return p.first == code; });
  return found == pairs.end() ? std::string() : found->second;
}

int record::number(int code) const {
  const std::string value = text(code);
  int result = 0;
  std::from_chars(value.data(), value.data() + value.size(), result);
  return result;
}

std::size_t record::count(int code) const {
  return static_cast<std::size_t>(
      std::count_if(pairs.begin(), pairs.end(), [&](const group_pair &p) { return p.first == code; }));
}

void read_pairs(record &rec) {
  rec.ent.handle = rec.text(handle_code);
  for (const auto &[code, value] : rec.pairs) {
    if (is_real_code(code) && !is_number(value)) rec.bad_number = true;
    const bool is_width = code == 40 || code == 41 || code == 43;
    if (is_width && value.find_first_of("123456789") != std::string::npos) rec.has_width = true;
  }
}

std::vector<group_pair> safe_pairs(const record &rec) {
  std::vector<group_pair> safe;
  if (!is_read_kind(rec.ent.kind)) return safe;
  for (const int code : {vertices_code, knots_code, control_code, fit_code}) {
    const int counted = counted_code(rec.ent.kind, code);
    if (counted != 0) safe.emplace_back(code, std::to_string(std::max<std::size_t>(rec.count(counted), 1)));
  }
  for (const group_pair &pair : rec.pairs) {
    if (counted_code(rec.ent.kind, pair.first) == 0 && pair.first >= 0 && pair.first < first_extended_code)
      safe.push_back(pair);
  }
  return safe;
}

bool is_dimension(const std::string &kind) { return kind.ends_with("DIMENSION"); }

void read_dimension(record &rec) {
  if (rec.count(name_code) == 0) return;
  rec.ent.geometry = insert_shape{.block = rec.text(name_code), .at = {}};
  if (rec.count(layer_code) > 0) rec.ent.layer = rec.text(layer_code);
  if (rec.count(color_code) > 0) rec.ent.color = rec.number(color_code);
  if (rec.count(true_color_code) > 0) rec.ent.true_color = rec.number(true_color_code);
}

void judge(record &rec) {
  entity &ent = rec.ent;
  if (auto *spline = std::get_if<spline_shape>(&ent.geometry)) settle_spline(rec, *spline);
  ent.fault = fault_of(rec);
  if ((ent.kind == "LWPOLYLINE" || ent.kind == "POLYLINE") && rec.has_width)
    ent.note = "its width is not drawn, only its centre line";
  if (announces_wrongly(rec)) ent.note = "it announces another number of points or knots than it has";
}

}  // namespace kxdraw
