#include "floors.h"

#include "includes.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace mirtane::architecture {

namespace {

struct Floor {
    std::string_view folder;
    int height;
    std::string_view beside; // the one folder of the same floor that it may use
};

// A folder uses itself and the folders of lower floors. Numbers are written and read as text under the fault
// rule, so text/ may look into geometry/, and not the other way;
// the toolkit's side keeps its settings on the disk, which knows no toolkit.
constexpr std::array<Floor, 20> floors{{
    {"geometry", 0, ""},
    {"text", 0, "geometry"},
    {"tables", 1, ""},
    {"model", 2, ""},
    {"render", 3, ""},
    {"snap", 4, ""},
    {"files", 4, ""},
    {"dxf", 4, ""},
    {"exchange", 4, ""},
    {"print", 4, ""},
    {"commands", 5, ""},
    {"edit", 6, ""},
    {"library", 6, ""},
    {"app", 7, ""},
    {"platform/posix", 8, ""},
    {"platform/qt", 8, "platform/posix"},
    {"platform/qt/window", 9, ""},
    {"play", 9, ""},
    {"convert", 9, ""},
    {"programs", 10, ""},
}};

constexpr int firstWithTheSystem = 8;

// The headers of the standard library that floors 0 to 7 may use. Not here, and so refused: threads and what
// goes with them, the clock, the environment and the processes (cstdlib), locales, and the disk and the
// terminal, which are asked for through ports.
constexpr std::array standardHeaders = std::to_array<std::string_view>({
    "algorithm", "any",       "array",   "bit",           "bitset",        "cassert",    "cfloat",
    "charconv",  "climits",   "cmath",   "compare",       "complex",       "concepts",   "cstddef",
    "cstdint",   "cstring",   "deque",   "exception",     "forward_list",  "functional", "initializer_list",
    "iterator",  "limits",    "list",    "map",           "memory",        "new",        "numbers",
    "numeric",   "optional",  "queue",   "ranges",        "ratio",         "set",        "span",
    "stack",     "stdexcept", "string",  "string_view",   "system_error",  "tuple",      "type_traits",
    "typeindex", "typeinfo",  "utility", "unordered_map", "unordered_set", "valarray",   "variant",
    "vector",    "version",
});

template <class Range> bool contains(const Range& range, std::string_view name)
{
    return std::find(range.begin(), range.end(), name) != range.end();
}

// The floor whose folder is the longest that path begins with.
const Floor* floorOf(std::string_view path)
{
    const Floor* found = nullptr;
    for (const Floor& floor : floors) {
        const bool inside =
            path.starts_with(floor.folder) && path.substr(floor.folder.size()).starts_with('/');
        if (inside && (!found || floor.folder.size() > found->folder.size())) found = &floor;
    }
    return found;
}

// Why `from` may not use `to`; empty when it may.
std::string_view refusal(const Floor& from, const Floor& to)
{
    if (from.folder == to.folder || from.beside == to.folder) return {};
    if (to.height > from.height) return "runs up the floors";
    if (to.height == from.height) return "runs to a folder of the same floor";
    return {};
}

std::string_view faultOf(const Floor& from, const Include& include)
{
    if (!include.quoted) {
        const bool refused = from.height < firstWithTheSystem && !contains(standardHeaders, include.name);
        return refused ? "is not for a floor below the platform" : "";
    }
    // What moc writes stands in the build folder.
    if (from.height >= firstWithTheSystem && include.name.ends_with(".moc")) return {};
    const Floor* to = floorOf(include.name);
    return to ? refusal(from, *to) : "does not begin with a folder of src/";
}

// What is asked of a function is a column of its row, so that a function that is added can't be forgotten in
// a list of names. The shell, which routes, may ask which one runs.
constexpr std::string_view shell = "app";

bool asksForFunctionByName(std::string_view line)
{
    constexpr std::string_view asked[] = {"curFunc == ", "curFunc != ", "== s.curFunc", "!= s.curFunc"};
    const std::string_view code = line.substr(0, line.find("//"));
    return std::ranges::any_of(
        asked, [code](std::string_view words) { return code.find(words) != std::string_view::npos; });
}

// A number that an int can't hold ends the program where it is cast, so that all of these go through one
// checked place. The compiler refuses conversions without a cast; casts to sizes, to bytes and to whole
// numbers of 64 bits can't be told from those of counts and times, and are let pass.
constexpr std::string_view checkedPlace = "platform/qt/whole.h";

bool makesNumberWhole(std::string_view line)
{
    constexpr std::string_view ways[] = {"static_cast<int>",
                                         "static_cast<short>",
                                         "static_cast<long>",
                                         "static_cast<float>",
                                         "static_cast<qint",
                                         "static_cast<std::int16_t",
                                         "static_cast<std::int32_t",
                                         "lround(",
                                         "lrint(",
                                         "qRound",
                                         "qFloor(",
                                         "qCeil(",
                                         ".toSize()",
                                         ".toPoint()",
                                         ".toRect()",
                                         ".toAlignedRect()"};
    const std::string_view code = line.substr(0, line.find("//"));
    return std::ranges::any_of(
        ways, [code](std::string_view way) { return code.find(way) != std::string_view::npos; });
}

} // namespace

std::vector<std::string> faults(std::string_view path, std::string_view source)
{
    const Floor* from = floorOf(path);
    if (!from) return {std::string(path) + " stands in no folder of the house"};
    std::vector<std::string> found;
    for (const Include& include : includesOf(source)) {
        const std::string_view fault = faultOf(*from, include);
        if (!fault.empty())
            found.push_back(std::string(path) + ": " + std::string(include.name) + " " + std::string(fault));
    }
    forEachLine(source, [&](std::string_view line) {
        if (from->folder != shell && asksForFunctionByName(line))
            found.push_back(std::string(path) +
                            ": compares the running function with a name: " + std::string(line));
        if (path.starts_with("platform/") && path != checkedPlace && makesNumberWhole(line))
            found.push_back(std::string(path) + ": makes a number whole beside " + std::string(checkedPlace) +
                            ": " + std::string(line));
    });
    return found;
}

} // namespace mirtane::architecture
