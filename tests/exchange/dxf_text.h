#pragma once

// DXF files as the tests write them: pairs of code and value, and what is read of them.

#include "exchange/full_reading.h"
#include "exchange/handlers.h"
#include "exchange/report.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <vector>

namespace mirtane::fake {

struct Pair {
    int code;
    std::string value;
};

inline std::string dxf(std::initializer_list<Pair> pairs)
{
    std::string text;
    for (const Pair& one : pairs) text += std::to_string(one.code) + "\n" + one.value + "\n";
    return text;
}

inline std::string section(const std::string& name, const std::string& content)
{
    return dxf({{0, "SECTION"}, {2, name}}) + content + dxf({{0, "ENDSEC"}});
}

inline std::string entities(const std::string& content)
{
    return section("ENTITIES", content);
}

inline std::string block(const std::string& name, const std::string& content, const std::string& x = "0",
                         const std::string& y = "0")
{
    return dxf({{0, "BLOCK"}, {8, "0"}, {2, name}, {10, x}, {20, y}}) + content + dxf({{0, "ENDBLK"}});
}

inline const std::string fileEnd = dxf({{0, "EOF"}});

inline FullReading readOf(const std::string& sections)
{
    return readInFull(sections + fileEnd);
}

// The objects as they come into the drawing.
inline std::vector<EntityRecord> objectsOf(const FullReading& reading)
{
    std::vector<EntityRecord> objects;
    for (const Made& one : reading.drawing.objects) objects.push_back(recordOf(one, reading.placing));
    return objects;
}

inline std::vector<EntityRecord> objectsOf(const std::string& sections)
{
    return objectsOf(readOf(sections));
}

// The only object of a file that has no more than this one record in it.
inline EntityRecord only(const std::string& record)
{
    const std::vector<EntityRecord> objects = objectsOf(entities(record));
    EXPECT_EQ(objects.size(), 1U);
    return objects.empty() ? EntityRecord{} : objects[0];
}

// Within a ten-thousandth of a unit of the drawing, of what the file says in its own units (inches, y up).
MATCHER_P2(StandsAt, x, y, "")
{
    return std::abs(arg.x - 12 * double(x)) < 1e-3 && std::abs(arg.y + 12 * double(y)) < 1e-3;
}

} // namespace mirtane::fake
