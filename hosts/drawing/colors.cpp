#include "colors.hpp"

#include <algorithm>
#include <array>
#include <cmath>

namespace kxdraw {

namespace {

rgb on_paper(rgb color) {
  const double luminance = 0.299 * color.red + 0.587 * color.green + 0.114 * color.blue;
  if (luminance > 0.95) return {0, 0, 0};
  constexpr double brightest = 0.5;
  if (luminance <= brightest) return color;
  const double factor = brightest / luminance;
  return {color.red * factor, color.green * factor, color.blue * factor};
}

// The indices from 10 to 249: 24 hues in steps of 10, five levels of brightness by the even digits, and the odd ones
// half way to white.
rgb wheel_color(int index) {
  constexpr std::array<double, 5> levels = {1.0, 0.65, 0.5, 0.3, 0.15};
  const double level = levels[static_cast<std::size_t>(index % 10 / 2)];
  const double hue = (index / 10 - 1) / 4.0;  // 0 to 6
  const auto part = [&](double shift) {
    const double value = std::clamp(std::abs(std::fmod(hue + shift, 6.0) - 3.0) - 1.0, 0.0, 1.0);
    return level * (index % 2 == 1 ? (1 + value) / 2 : value);
  };
  return {part(0), part(4), part(2)};
}

}  // namespace

rgb true_color(int value) {
  const auto part = [&](int shift) { return (value >> shift & 0xFF) / 255.0; };
  return on_paper({part(16), part(8), part(0)});
}

rgb index_color(int index) {
  constexpr std::array<int, 10> plain = {0x000000, 0xFF0000, 0xFFFF00, 0x00FF00, 0x00FFFF,
                                         0x0000FF, 0xFF00FF, 0xFFFFFF, 0x808080, 0xC0C0C0};
  if (index < 10) return true_color(plain[static_cast<std::size_t>(std::max(index, 0))]);
  if (index < 250) return on_paper(wheel_color(index));
  const double grey = 0.2 + 0.16 * (std::min(index, 255) - 250);
  return on_paper({grey, grey, grey});
}

}  // namespace kxdraw
