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
inline std::string textOf(const CanvasOp& op)
{
    std::string text(op.name);
    for (std::size_t i = 0; i < op.count; ++i) {
        text += " " + std::visit([](auto value) { return shortest(value); }, op.args[i]);
    }
    if (op.hasText) text += " " + op.text;
    return text;
}

// All operations since the last call.
inline Ops opsOn(RecordingCanvas& canvas)
{
    Ops ops;
    canvas.takeOps([&ops](const CanvasOp& op) { ops.push_back(textOf(op)); });
    return ops;
}

// Those of them with the given first word.
inline Ops only(const Ops& ops, const std::string& name)
{
    Ops found;
    for (const std::string& op : ops) {
        if (op.substr(0, op.find(' ')) == name) found.push_back(op);
    }
    return found;
}

// Those of them that leave a mark.
inline Ops marks(const Ops& ops)
{
    Ops found;
    for (const std::string& op : ops) {
        const std::string name = op.substr(0, op.find(' '));
        if (name == "line" || name == "circle" || name == "arc" || name == "point" || name == "text")
            found.push_back(op);
    }
    return found;
}

} // namespace mirtane::fake
