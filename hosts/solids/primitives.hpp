// The bodies that can be asked for by name, and the numbers that each takes.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "body.hpp"

namespace kxsolids {

enum class bound { above_zero, zero_or_more, any };

struct parameter {
  const char *name;
  double usual;
  bound least = bound::above_zero;
};

struct request {
  std::vector<double> numbers;
  std::int32_t sectors = 0, stacks = 0;
  std::vector<pnt_2d> profile;
  vector_3d axis{};  // where the z axis is turned to; zero: nowhere
};

struct primitive {
  const char *name, *about;
  std::vector<parameter> parameters;
  request usual;  // without numbers; what is 0 or empty does not apply
  body (*build)(const request &);
  bool turns = true;
};

const std::vector<primitive> &primitives();
const primitive &find_primitive(const std::string &name);  // throws std::invalid_argument

// The usual request with the first numbers given.
request usual_request(const primitive &p, const std::vector<double> &numbers = {});

// Throws std::invalid_argument for numbers that make no body.
body build(const primitive &p, const request &r);

}  // namespace kxsolids
