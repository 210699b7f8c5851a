// Drawings as plain structures, read with dxflib.
#pragma once

#include <array>
#include <functional>
#include <map>
#include <string>
#include <variant>
#include <vector>

namespace kxdraw {

struct vertex {
  double x = 0, y = 0;
  double bulge = 0;  // of the segment that starts here
  double z = 0;
};

struct point_shape {
  vertex at;
};

// LINE, the polylines, SOLID, TRACE and 3DFACE.
struct path_shape {
  std::vector<vertex> vertices = {};
  bool closed = false;
  bool filled = false;
  double elevation = 0;  // of a polyline in entity coordinates
  int hidden_edges = 0;  // bit i: the edge from vertex i is not shown
};

// CIRCLE and ARC, counter-clockwise, in degrees.
struct arc_shape {
  vertex centre = {};
  double radius = 0;
  double start = 0, end = 360;
  bool whole = false;
};

// ELLIPSE: half the axis as a vector, both in world coordinates; eccentric angles in radians, counter-clockwise seen
// against the normal.
struct ellipse_shape {
  vertex centre = {};
  vertex axis;
  double ratio = 1;
  double start = 0, end = 0;
};

struct spline_shape {
  int degree = 0;
  std::vector<vertex> control = {};
  std::vector<double> weights = {};
  std::vector<double> knots = {};  // as the file has them, first and last included
};

// INSERT, and a dimension, which a block shows.
struct insert_shape {
  std::string block;
  vertex at;
  double sx = 1, sy = 1, sz = 1;
  double angle = 0;
  int columns = 1, rows = 1;
  double column_step = 0, row_step = 0;
};

// monostate: a kind that is not drawn.
using shape =
    std::variant<std::monostate, point_shape, path_shape, arc_shape, ellipse_shape, spline_shape, insert_shape>;

struct entity {
  std::size_t index = 0;  // place among all entities of the file
  std::string kind;
  std::string handle;
  std::string layer = "0";
  int color = 256;      // colour index; 0 as the block, 256 as the layer
  int true_color = -1;  // 0xRRGGBB, or -1
  shape geometry;
  bool entity_coordinates = false;           // given in the plane of the normal, not in world coordinates
  std::array<double, 3> normal = {0, 0, 1};  // the extrusion direction, of any length
  std::string fault;                         // why it cannot be drawn, as far as reading tells
  std::string note;                          // what of it is not drawn
};

struct block {
  std::string name;
  vertex base;
  std::vector<entity> entities;
};

struct layer {
  int color = 7;
  bool off = false;
  bool frozen = false;
};

struct drawing {
  std::vector<entity> entities;
  std::vector<block> blocks;
  std::map<std::string, std::size_t> block_places;  // by name_key
  std::map<std::string, layer> layers;              // by name_key
  std::size_t entity_count = 0;                     // in blocks and outside
};

// Names of blocks and layers are the same whatever their case.
std::string name_key(const std::string &name);

// Reads a drawing; progress is told how much is done, from 0 to 1. Throws drawing_error.
drawing read_drawing(const std::string &path, const std::function<void(double)> &progress);

}  // namespace kxdraw
