#pragma once

// The operations on a surface as words, so that a test reads like a list of what was drawn.

#include "render/recording_canvas.h"

#include <algorithm>
#include <charconv>
#include <string>
#include <vector>

namespace mirtane::fake {

using Ops = std::vector<std::string>;

template <class Number> std::string shortest(Number value)
{
    char digits[64];
    return {digits, std::to_chars(std::begin(digits), std::end(digits), value).ptr};
}

// "line 0 0 10 5".
std::string textOf(const CanvasOp& op);

// All operations since the last call.
Ops opsOn(RecordingCanvas& canvas);

// Those of them with the given first word.
Ops only(const Ops& ops, const std::string& name);

// Those of them that leave a mark.
Ops marks(const Ops& ops);

} // namespace mirtane::fake
