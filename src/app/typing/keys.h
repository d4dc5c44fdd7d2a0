#pragma once

#include "model/controls.h"

namespace mirtane {

inline constexpr char32_t enterKey = 13;
inline constexpr char32_t backspaceKey = 8;
inline constexpr char32_t tabKey = 9;

// What a text box does with a key that was let through.
void passKey(Control& control, char32_t code);

} // namespace mirtane
