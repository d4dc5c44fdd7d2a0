#pragma once

// The pairs that a DXF file is made up of, and what their values can be read as.

#include "text/ascii.h"

#include <span>
#include <string_view>

namespace mirtane {

struct DxfGroup {
    int code = 0;
    std::string_view value; // as it stands in the file, in the file's code page
};

using DxfGroups = std::span<const DxfGroup>;

// The number that a value is, with a point or with a comma, or begins with; fallback for none, and for one
// that is not finite.
double dxfNumber(std::string_view value, double fallback = 0);
// Whether a value is none: "nan", "1e400", "12 feet". Takes a fraction of the time that reading it does, for
// it is not read if it has digits, points and minus signs alone.
bool isNoNumber(std::string_view value);
int dxfWhole(std::string_view value, int fallback = 0);

// The first group of a code, or null.
const DxfGroup* findGroup(DxfGroups groups, int code);

} // namespace mirtane
