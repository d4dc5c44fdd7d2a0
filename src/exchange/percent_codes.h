#pragma once

#include "exchange/made.h"

#include <string_view>

namespace mirtane {

// A line of text without the codes that stand in it for signs (%%d, %%c, %%p, %%nnn, ^I) and for how it is
// drawn (%%u,
// %%o, %%k). It is underlined if any of it is.
MadeText plainLine(std::string_view words);

} // namespace mirtane
