#pragma once

#include "app/app.h"

namespace mirtane {

// A key press in entry: let through, changed, dropped or acted upon, as the running function reads it.
void entryKeyPress(Session& s, Canvas& pic1, char32_t code);

} // namespace mirtane
