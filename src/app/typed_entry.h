#pragma once

#include "app/app.h"

namespace mirtane {

inline constexpr char32_t enterKey = 13;
inline constexpr char32_t backspaceKey = 8;

// A key press in entry: let through, changed, dropped or acted upon, as the running function reads it.
void entryKeyPress(Session& s, Canvas& pic1, char32_t code);

// What a text box does with a key that was let through.
void passKey(Control& control, char32_t code);

} // namespace mirtane
