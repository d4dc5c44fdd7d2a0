#pragma once

// How a failed expectation shows a kind: by its number.

#include "tables/kind.h"

#include <ostream>

namespace mirtane {

inline void PrintTo(Kind kind, std::ostream* out)
{
    *out << "kind " << numberOf(kind);
}

} // namespace mirtane
