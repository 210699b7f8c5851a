#include "dxf_reader.hpp"

#include <dxflib/dl_creationadapter.h>
#include <dxflib/dl_dxf.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <optional>
#include <sstream>

#include "dxf_file.hpp"

namespace kxdraw {

namespace {

constexpr double absurd = 1e15;

// Group codes of the pairs that a record is judged by beside what dxflib delivers of it.
enum : int { name_code = 2, handle_code = 5, invisible_code = 60, paper_code = 67, flags_code = 70 };

// What stands between two pairs of code 0.
struct record {
  entity ent;
  std::string name;  // code 2
  int flags = 0;     // code 70
  bool paper = false;
  bool invisible = false;
  bool bad_number = false;
  bool delivered = false;  // dxflib handed it over
  bool has_width = false;
  int tens = 0, elevens = 0, forties = 0, fortyones = 0;  // how many pairs of code 10, 11, 40, 41
  vertex base;                                            // of a BLOCK
};

// dxflib reads a number that is none as 0 and one too large as the largest: that must not pass for a coordinate.
bool is_number(const std::string &value) {
  std::string text = trimmed(value);
  std::replace(text.begin(), text.end(), ',', '.');
  if (text.starts_with('+')) text.erase(0, 1);
  double number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc() && end == text.data() + text.size() && std::isfinite(number) && std::abs(number) < absurd;
}

template <typename number_type>
number_type to_number(const std::string &value) {
  const std::string text = trimmed(value);
  number_type number = 0;
  std::from_chars(text.data(), text.data() + text.size(), number);
  return number;
}

bool is_real_code(unsigned int code) { return (code >= 10 && code <= 59) || (code >= 210 && code <= 239); }

// dxflib delivers the entities it knows and passes over the others. It also shows every pair it reads, before it acts
// on it: so the pairs themselves are the count of what the file holds, and what is delivered between the end of a
// record and the next pair belongs to that record. A record that nothing was delivered for is kept as an entity without
// shape.
class reader : public DL_CreationAdapter {
 public:
  reader(drawing &result, std::size_t pairs, const std::function<void(double)> &progress)
      : result_(result), pairs_(pairs), progress_(progress) {}

  std::size_t finish() {
    commit();
    closing_ = std::move(open_);
    commit();
    return seen_;
  }

  void processCodeValuePair(unsigned int code, const std::string &value) override {
    commit();
    if (++seen_ % 4096 == 0) progress_(static_cast<double>(seen_) / static_cast<double>(pairs_));
    if (code == 0) {
      closing_ = std::move(open_);
      open_.emplace();
      open_->ent.kind = value;
    } else if (open_) {
      note_pair(*open_, code, value);
    }
  }

  void addLayer(const DL_LayerData &data) override {
    const int color = attributes.getColor();
    result_.layers[name_key(data.name)] = {std::abs(color), data.off || color < 0, (data.flags & 1) != 0};
  }

  void addBlock(const DL_BlockData &data) override {
    if (closing_) closing_->base = {data.bpx, data.bpy};
  }

  void addPoint(const DL_PointData &data) override { deliver(point_shape{{data.x, data.y}}, false); }

  void addLine(const DL_LineData &data) override {
    deliver(path_shape{.vertices = {{data.x1, data.y1}, {data.x2, data.y2}}}, false);
  }

  void addArc(const DL_ArcData &data) override {
    deliver(arc_shape{{data.cx, data.cy}, data.radius, data.angle1, data.angle2}, true);
  }

  void addCircle(const DL_CircleData &data) override {
    deliver(arc_shape{.centre = {data.cx, data.cy}, .radius = data.radius, .whole = true}, true);
  }

  void addEllipse(const DL_EllipseData &data) override {
    deliver(ellipse_shape{{data.cx, data.cy}, {data.mx, data.my}, data.ratio, data.angle1, data.angle2}, false);
  }

  void addPolyline(const DL_PolylineData &data) override {
    const bool in_space = (data.flags & 8) != 0 && closing_ && closing_->ent.kind == "POLYLINE";
    deliver(path_shape{.closed = (data.flags & 1) != 0}, !in_space);
  }

  void addVertex(const DL_VertexData &data) override {
    if (!closing_) return;
    closing_->delivered = true;
    const bool frame = closing_->ent.kind == "VERTEX" && (closing_->flags & 16) != 0;
    std::optional<record> &owner = closing_->ent.kind == "VERTEX" ? polyline_ : closing_;
    if (!owner || frame) return;  // the frame of a fitted polyline is not part of its line
    if (auto *path = std::get_if<path_shape>(&owner->ent.geometry))
      path->vertices.push_back({data.x, data.y, data.bulge});
  }

  void addTrace(const DL_TraceData &data) override { deliver(corners(data), true); }
  void addSolid(const DL_SolidData &data) override { deliver(corners(data), true); }

  void add3dFace(const DL_3dFaceData &data) override {
    path_shape path{.closed = true, .hidden_edges = closing_ ? closing_->flags : 0};
    for (int i = 0; i < 4; ++i) path.vertices.push_back({data.x[i], data.y[i]});
    deliver(path, false);
  }

  void addSpline(const DL_SplineData &data) override {
    deliver(spline_shape{.degree = static_cast<int>(data.degree)}, false);
  }

  void addControlPoint(const DL_ControlPointData &data) override {
    if (auto *spline = open_spline()) {
      spline->control.push_back({data.x, data.y});
      spline->weights.push_back(data.w);
    }
  }

  void addKnot(const DL_KnotData &data) override {
    if (auto *spline = open_spline()) spline->knots.push_back(data.k);
  }

  void addInsert(const DL_InsertData &data) override {
    deliver(insert_shape{data.name,
                         {data.ipx, data.ipy},
                         data.sx,
                         data.sy,
                         data.angle,
                         std::max(data.cols, 1),
                         std::max(data.rows, 1),
                         data.colSp,
                         data.rowSp},
            true);
  }

 private:
  static path_shape corners(const DL_TraceData &data) {
    path_shape path{.closed = true, .filled = true};
    for (int i : {0, 1, 3, 2}) path.vertices.push_back({data.x[i], data.y[i]});  // the file goes crosswise
    return path;
  }

  static void note_pair(record &rec, unsigned int code, const std::string &value) {
    if (is_real_code(code) && !is_number(value)) rec.bad_number = true;
    switch (code) {
      case name_code: rec.name = value; break;
      case handle_code: rec.ent.handle = trimmed(value); break;
      case 10: ++rec.tens; break;
      case 11: ++rec.elevens; break;
      case 40: ++rec.forties; break;
      case 41: ++rec.fortyones; break;
      case invisible_code: rec.invisible = to_number<int>(value) != 0; break;
      case paper_code: rec.paper = to_number<int>(value) != 0; break;
      case flags_code: rec.flags = to_number<int>(value); break;
      default: break;
    }
    if ((code == 40 || code == 41 || code == 43) && to_number<double>(value) != 0) rec.has_width = true;
  }

  void deliver(shape geometry, bool entity_coordinates) {
    if (!closing_) return;
    entity &ent = closing_->ent;
    closing_->delivered = true;
    ent.geometry = std::move(geometry);
    ent.entity_coordinates = entity_coordinates;
    ent.layer = attributes.getLayer();
    ent.color = attributes.getColor();
    ent.true_color = attributes.getColor24();
    getExtrusion()->getDirection(ent.normal.data());
  }

  spline_shape *open_spline() { return closing_ ? std::get_if<spline_shape>(&closing_->ent.geometry) : nullptr; }

  void commit();
  void take_vertex(const record &part);
  void store(record &rec);

  drawing &result_;
  std::size_t pairs_;
  const std::function<void(double)> &progress_;
  std::size_t seen_ = 0;
  std::optional<record> open_;      // its pairs are being read
  std::optional<record> closing_;   // its pairs are read, dxflib may deliver it
  std::optional<record> polyline_;  // its vertices follow as records of their own
  std::string section_;
  std::optional<std::size_t> block_;
};

// Takes the record that dxflib has had its chance to deliver.
void reader::commit() {
  if (!closing_) return;
  record rec = std::move(*closing_);
  closing_.reset();
  const std::string &kind = rec.ent.kind;
  if (polyline_ && kind == "VERTEX") return take_vertex(rec);
  if (polyline_) {
    store(*polyline_);
    polyline_.reset();
  }
  if (kind == "SECTION") {
    section_ = rec.name;
  } else if (kind == "ENDSEC") {
    section_.clear();
    block_.reset();
  } else if (section_ == "BLOCKS" && kind == "BLOCK") {
    block_ = result_.blocks.size();
    result_.block_places.try_emplace(name_key(rec.name), *block_);
    result_.blocks.push_back({rec.name, rec.base, {}});
  } else if (section_ == "BLOCKS" && kind == "ENDBLK") {
    block_.reset();
  } else if ((section_ == "ENTITIES" || section_ == "BLOCKS") && kind != "SEQEND") {
    rec.ent.index = result_.entity_count++;
    if (kind == "POLYLINE") {
      polyline_ = std::move(rec);
    } else {
      store(rec);
    }
  }
}

// A VERTEX is a part of its polyline, not an entity.
void reader::take_vertex(const record &part) {
  polyline_->bad_number = polyline_->bad_number || part.bad_number;
  polyline_->has_width = polyline_->has_width || part.has_width;
  if (!part.delivered) polyline_->ent.fault = "dxflib delivers only a part of it";
}

// What keeps the entity from being drawn, empty when nothing does. Whatever dxflib delivers is compared with the counts
// of the pairs, because its arrays have the length that the file announces, whether that is true or not.
std::string fault_of(const record &rec) {
  const entity &ent = rec.ent;
  if (rec.paper) return "it is in paper space";
  if (ent.kind == "POLYLINE" && (rec.flags & 16) != 0) return "polygon meshes are not drawn";
  if (ent.kind == "POLYLINE" && (rec.flags & 64) != 0) return "polyface meshes are not drawn";
  if (std::holds_alternative<std::monostate>(ent.geometry)) return "this kind is not drawn";
  if (rec.invisible) return "it is marked invisible";
  if (rec.bad_number) return "one of its numbers is not a number, or absurd";
  if (!ent.fault.empty()) return ent.fault;
  if (const auto *path = std::get_if<path_shape>(&ent.geometry)) {
    if (ent.kind == "LWPOLYLINE" && path->vertices.size() != static_cast<std::size_t>(rec.tens))
      return "it holds another number of vertices than it announces";
    if (path->vertices.empty()) return "it has no vertices";
  }
  if (const auto *spline = std::get_if<spline_shape>(&ent.geometry)) {
    if (rec.tens == 0) return rec.elevens > 0 ? "it has fit points only" : "it has no control points";
    if (spline->control.size() != static_cast<std::size_t>(rec.tens) ||
        spline->knots.size() != static_cast<std::size_t>(rec.forties) || rec.fortyones > rec.tens)
      return "it holds other numbers of knots or control points than it announces";
  }
  return "";
}

void reader::store(record &rec) {
  entity &ent = rec.ent;
  ent.fault = fault_of(rec);
  if (auto *spline = std::get_if<spline_shape>(&ent.geometry)) {
    // A spline without weights has them all 1; one with too few keeps the few, for the library to judge.
    if (rec.fortyones == 0) {
      std::fill(spline->weights.begin(), spline->weights.end(), 1.0);
    } else if (rec.fortyones < rec.tens) {
      spline->weights.resize(static_cast<std::size_t>(rec.fortyones));
    }
  }
  const bool is_polyline = ent.kind == "LWPOLYLINE" || ent.kind == "POLYLINE";
  if (is_polyline && rec.has_width) ent.note = "its width is not drawn, only its centre line";
  std::vector<entity> &home = block_ ? result_.blocks[*block_].entities : result_.entities;
  if (section_ == "BLOCKS" && !block_) ent.fault = "it stands outside the blocks of its section";
  home.push_back(std::move(ent));
}

}  // namespace

std::string name_key(const std::string &name) {
  std::string key = name;
  for (char &c : key) c = c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
  return key;
}

drawing read_drawing(const std::string &path, const std::function<void(double)> &progress) {
  const dxf_text text = read_dxf_file(path);
  std::istringstream stream(text.text);
  drawing result;
  reader creation(result, text.pairs, progress);
  DL_Dxf dxf;
  if (!dxf.in(stream, &creation)) throw drawing_error(path + ": cannot be read as DXF");
  if (creation.finish() != text.pairs) throw drawing_error(path + ": dxflib lost its place in the file");
  return result;
}

}  // namespace kxdraw
