// The one way to the user: a notice with the title "KX-CAD Message". One source file per platform implements it.
#pragma once

#include <cstdint>

namespace kx {

inline constexpr const char *message_box_title = "KX-CAD Message";

// Shows the text and waits until it is acknowledged; the platform's answer (1 for OK).
std::int32_t show_message_box(const char *text);

}  // namespace kx
