#pragma once

#include "exchange/full_reading.h"

#include <sstream>
#include <string>

namespace mirtane {

// A file of lines "code value", each of which becomes two.
inline std::string dxfOf(const std::string& rows)
{
    std::istringstream lines(rows);
    std::string text;
    for (std::string line; std::getline(lines, line);) {
        line.erase(0, line.find_first_not_of(' '));
        if (line.empty()) continue;
        const std::size_t blank = line.find(' ');
        text +=
            line.substr(0, blank) + "\n" + (blank == std::string::npos ? "" : line.substr(blank + 1)) + "\n";
    }
    return text;
}

inline std::string fileOf(const std::string& entities, const std::string& blocks = "",
                          const std::string& tables = "")
{
    return dxfOf(
        "0 SECTION\n2 HEADER\n9 $ACADVER\n1 AC1024\n9 $INSUNITS\n70 1\n0 ENDSEC\n0 SECTION\n2 TABLES\n" +
        tables + "0 ENDSEC\n0 SECTION\n2 BLOCKS\n" + blocks + "0 ENDSEC\n0 SECTION\n2 ENTITIES\n" + entities +
        "0 ENDSEC\n0 EOF\n");
}

// What the entities come to, in inches.
inline MadeDrawing madeFrom(const std::string& entities, const std::string& blocks = "",
                            const std::string& tables = "")
{
    return readInFull(fileOf(entities, blocks, tables)).drawing;
}

inline std::vector<Made> ofKind(const MadeDrawing& drawing, Kind kind)
{
    std::vector<Made> found;
    for (const Made& one : drawing.objects) {
        if (one.kind == kind) found.push_back(one);
    }
    return found;
}

} // namespace mirtane
