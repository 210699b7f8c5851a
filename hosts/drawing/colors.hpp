// Colours of entities and layers.
#pragma once

namespace kxdraw {

struct rgb {
  double red = 0, green = 0, blue = 0;
};

// The colour of an index from 1 to 255, fit for white paper: white becomes black, and light colours are darkened.
rgb index_color(int index);

// The same for 0xRRGGBB.
rgb true_color(int value);

}  // namespace kxdraw
