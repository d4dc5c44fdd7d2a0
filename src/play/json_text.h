#pragma once

// Values as JSON text. Numbers are written in the shortest form that reads back to the same float or double;
// what JSON has no number for (NaN, infinities) is null.

#include "geometry/point.h"
#include "tables/entity_record.h"

#include <charconv>
#include <cmath>
#include <concepts>
#include <string>
#include <string_view>
#include <vector>

namespace mirtane::play {

std::string json(std::string_view text);

inline std::string json(const std::string& text)
{
    return json(std::string_view(text));
}

inline std::string json(const char* text)
{
    return json(std::string_view(text));
}

inline std::string json(bool value)
{
    return value ? "true" : "false";
}

template <std::floating_point Number> std::string json(Number value)
{
    if (!std::isfinite(value)) return "null";
    char digits[64];
    const auto end = std::to_chars(std::begin(digits), std::end(digits), value).ptr;
    return {digits, end};
}

template <std::integral Number> std::string json(Number value)
{
    return std::to_string(value);
}

inline std::string json(Stat stat)
{
    return json(nameOf(stat));
}

inline std::string json(Point p)
{
    return "[" + json(p.x) + "," + json(p.y) + "]";
}

std::string jsonArray(const std::vector<std::string>& jsonElements);

// An object from pairs of a name and JSON text.
std::string jsonObject(const std::vector<std::pair<std::string_view, std::string>>& fields);

} // namespace mirtane::play
