// Windows: a modal box over the window that has the keyboard focus.
#include <windows.h>

#include "message_box.hpp"

std::int32_t kx::show_message_box(const char *text) { return MessageBoxA(GetFocus(), text, message_box_title, MB_OK); }
