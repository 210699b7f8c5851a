// What stands between two pairs of code 0 of a DXF file, and what it tells beside the entity that dxflib makes of it.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "dxf_reader.hpp"

namespace kxdraw {

using group_pair = std::pair<int, std::string>;

struct record {
  entity ent;
  std::vector<group_pair> pairs;
  vertex base;             // of a BLOCK, as delivered
  bool delivered = false;  // dxflib handed it over
  bool has_width = false;
  bool bad_number = false;

  std::string text(int code) const;  // the first value of a code, or nothing
  int number(int code) const;        // the same as an integer, or 0
  std::size_t count(int code) const;
};

// Fills in what the pairs tell by themselves.
void read_pairs(record &rec);

// The pairs as dxflib may see them. It trusts the counts of vertices, knots and points that a file announces, in the
// size of its arrays and in what it frees: so they are made true here. Of records that are not drawn it sees nothing,
// because the same holds for the counts in hatches, leaders and line types.
std::vector<group_pair> safe_pairs(const record &rec);

// A dimension is drawn by a block of its own, in world coordinates, which its pairs name.
bool is_dimension(const std::string &kind);
void read_dimension(record &rec);

// Settles what has been delivered: adds why it cannot be drawn, or only in part.
void judge(record &rec);

}  // namespace kxdraw
