#include "dxf_reader.hpp"

#include <dxflib/dl_creationadapter.h>
#include <dxflib/dl_dxf.h>

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <sstream>

#include "dxf_file.hpp"
#include "dxf_record.hpp"

namespace kxdraw {

namespace {

constexpr std::size_t longest_value = 1000;

// dxflib delivers the entities it knows and passes over the others. It hands over a record when it meets the next one,
// so what it delivers while it takes a pair of code 0 belongs to the record before. The records themselves are the
// count of what the file holds: one that nothing was delivered for is kept as an entity without shape.
class reader : public DL_CreationAdapter {
 public:
  explicit reader(drawing &result) : result_(result) {
    dxf_.in(pair_, this);  // from an empty stream: this brings dxflib's parser into its first state
  }

  void take(int code, const std::string &value) {
    if (code != 0) {
      open_.pairs.emplace_back(code, value);
      return;
    }
    pass_on();
    open_ = {};
    open_.ent.kind = value;
  }

  void finish() {
    pass_on();
    feed({0, "EOF"});
    commit();
  }

  void addLayer(const DL_LayerData &data) override {
    const int color = attributes.getColor();
    result_.layers[name_key(data.name)] = {std::abs(color), data.off || color < 0, (data.flags & 1) != 0};
  }

  void addBlock(const DL_BlockData &data) override {
    if (closing_) closing_->base = {.x = data.bpx, .y = data.bpy, .z = data.bpz};
  }

  void addPoint(const DL_PointData &data) override { deliver(point_shape{at(data.x, data.y, data.z)}, false); }

  void addLine(const DL_LineData &data) override {
    deliver(path_shape{.vertices = {at(data.x1, data.y1, data.z1), at(data.x2, data.y2, data.z2)}}, false);
  }

  void addArc(const DL_ArcData &data) override {
    deliver(arc_shape{at(data.cx, data.cy, data.cz), data.radius, data.angle1, data.angle2}, true);
  }

  void addCircle(const DL_CircleData &data) override {
    deliver(arc_shape{.centre = at(data.cx, data.cy, data.cz), .radius = data.radius, .whole = true}, true);
  }

  void addEllipse(const DL_EllipseData &data) override {
    deliver(ellipse_shape{at(data.cx, data.cy, data.cz), at(data.mx, data.my, data.mz), data.ratio, data.angle1,
                          data.angle2},
            false);
  }

  void addPolyline(const DL_PolylineData &data) override {
    const bool in_space = (data.flags & 8) != 0 && closing_ && closing_->ent.kind == "POLYLINE";
    deliver(path_shape{.closed = (data.flags & 1) != 0, .elevation = getExtrusion()->getElevation()}, !in_space);
  }

  void addVertex(const DL_VertexData &data) override {
    if (!closing_) return;
    closing_->delivered = true;
    const bool frame = closing_->ent.kind == "VERTEX" && (closing_->number(70) & 16) != 0;
    std::optional<record> &owner = closing_->ent.kind == "VERTEX" ? polyline_ : closing_;
    if (!owner || frame) return;  // the frame of a fitted polyline is not part of its line
    if (auto *path = std::get_if<path_shape>(&owner->ent.geometry))
      path->vertices.push_back({data.x, data.y, data.bulge, owner->ent.entity_coordinates ? path->elevation : data.z});
  }

  void addTrace(const DL_TraceData &data) override { deliver(solid(data), true); }
  void addSolid(const DL_SolidData &data) override { deliver(solid(data), true); }

  void add3dFace(const DL_3dFaceData &data) override {
    deliver(path_shape{.vertices = corners(data, {0, 1, 2, 3}),
                       .closed = true,
                       .hidden_edges = closing_ ? closing_->number(70) & 15 : 0},
            false);
  }

  void addSpline(const DL_SplineData &data) override {
    deliver(spline_shape{.degree = static_cast<int>(data.degree)}, false);
  }

  void addControlPoint(const DL_ControlPointData &data) override {
    if (auto *spline = open_spline()) {
      spline->control.push_back(at(data.x, data.y, data.z));
      spline->weights.push_back(data.w);
    }
  }

  void addKnot(const DL_KnotData &data) override {
    if (auto *spline = open_spline()) spline->knots.push_back(data.k);
  }

  void addInsert(const DL_InsertData &data) override {
    deliver(insert_shape{data.name, at(data.ipx, data.ipy, data.ipz), data.sx, data.sy, data.sz, data.angle,
                         std::max(data.cols, 1), std::max(data.rows, 1), data.colSp, data.rowSp},
            true);
  }

 private:
  static vertex at(double x, double y, double z) { return {.x = x, .y = y, .z = z}; }

  // A fourth corner that the file leaves out is the third; dxflib has the origin there.
  std::vector<vertex> corners(const DL_TraceData &data, const std::array<int, 4> &order) const {
    const bool three = closing_ && closing_->count(13) == 0;
    std::vector<vertex> result;
    for (const int corner : order) {
      const int i = three && corner == 3 ? 2 : corner;
      result.push_back(at(data.x[i], data.y[i], data.z[i]));
    }
    return result;
  }

  // The file goes crosswise from the second corner to the third.
  path_shape solid(const DL_TraceData &data) const {
    return {.vertices = corners(data, {0, 1, 3, 2}), .closed = true, .filled = true};
  }

  // Shows dxflib one pair. A value longer than its line buffer would stop its stream; none that is drawn is so long.
  void feed(const group_pair &pair) {
    pair_.clear();
    pair_.str(std::to_string(pair.first) + '\n' + pair.second.substr(0, longest_value) + '\n');
    dxf_.readDxfGroups(pair_, this);
  }

  // Shows dxflib the record just read, by whose first pair it delivers the one before.
  void pass_on() {
    if (open_.ent.kind.empty()) return;
    feed({0, open_.ent.kind});
    commit();
    read_pairs(open_);
    for (const group_pair &pair : safe_pairs(open_)) feed(pair);
    closing_ = std::move(open_);
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
  DL_Dxf dxf_;
  std::istringstream pair_;         // what dxflib reads next
  record open_;                     // its pairs are being read
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
    section_ = rec.text(2);
  } else if (kind == "ENDSEC") {
    section_.clear();
    block_.reset();
  } else if (section_ == "BLOCKS" && kind == "BLOCK") {
    block_ = result_.blocks.size();
    result_.block_places.try_emplace(name_key(rec.text(2)), *block_);
    result_.blocks.push_back({rec.text(2), rec.base, {}});
  } else if (section_ == "BLOCKS" && kind == "ENDBLK") {
    block_.reset();
  } else if ((section_ == "ENTITIES" || section_ == "BLOCKS") && kind != "SEQEND") {
    rec.ent.index = result_.entity_count++;
    if (is_dimension(kind)) read_dimension(rec);
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
  if (!part.delivered) polyline_->ent.fault = "incomplete";
}

void reader::store(record &rec) {
  judge(rec);
  if (section_ == "BLOCKS" && !block_) rec.ent.fault = "it stands outside the blocks of its section";
  (block_ ? result_.blocks[*block_].entities : result_.entities).push_back(std::move(rec.ent));
}

}  // namespace

std::string name_key(const std::string &name) {
  std::string key = name;
  for (char &c : key) c = c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
  return key;
}

drawing read_drawing(const std::string &path, const std::function<void(double)> &progress) {
  drawing result;
  reader creation(result);
  read_dxf_pairs(path, [&](int code, const std::string &value, double done) {
    creation.take(code, value);
    progress(done);
  });
  creation.finish();
  return result;
}

}  // namespace kxdraw
