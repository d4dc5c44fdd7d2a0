#include "floors.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>

namespace mirtane::architecture {

namespace {

struct Floor {
    std::string_view folder;
    int height;
    std::string_view beside; // the one folder of the same floor that it may use
};

// A folder uses itself and the folders of lower floors. Numbers are written and read as text under the fault
// rule, so text/ may look into geometry/, and not the other way.
constexpr std::array<Floor, 17> floors{{
    {"geometry", 0, ""},
    {"text", 0, "geometry"},
    {"model", 1, ""},
    {"render", 2, ""},
    {"snap", 3, ""},
    {"commands", 4, ""},
    {"edit", 5, ""},
    {"library", 5, ""},
    {"files", 6, ""},
    {"dxf", 6, ""},
    {"print", 6, ""},
    {"app", 7, ""},
    {"platform/qt", 8, ""},
    {"platform/qt/window", 9, ""},
    {"play", 9, ""},
    {"convert", 9, ""},
    {"programs", 10, ""},
}};

constexpr int firstWithTheSystem = 8;

// A format knows the drawing and the tables of the libraries, but no function that the user can choose.
constexpr std::array<std::string_view, 3> formats{"files", "dxf", "print"};
constexpr std::array<std::string_view, 2> unknownToFormats{"commands", "edit"};

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

struct Include {
    std::string_view name;
    bool quoted;
};

std::string_view withoutBlanks(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(" \t");
    return first == std::string_view::npos ? std::string_view{} : text.substr(first);
}

std::optional<Include> includeOf(std::string_view line)
{
    line = withoutBlanks(line);
    if (!line.starts_with('#')) return std::nullopt;
    line = withoutBlanks(line.substr(1));
    if (!line.starts_with("include")) return std::nullopt;
    line = withoutBlanks(line.substr(std::string_view("include").size()));
    const bool quoted = line.starts_with('"');
    if (!quoted && !line.starts_with('<')) return std::nullopt;
    const std::size_t end = line.find(quoted ? '"' : '>', 1);
    if (end == std::string_view::npos) return std::nullopt;
    return Include{line.substr(1, end - 1), quoted};
}

// Why `from` may not use `to`; empty when it may.
std::string_view refusal(const Floor& from, const Floor& to)
{
    if (from.folder == to.folder || from.beside == to.folder) return {};
    if (to.height > from.height) return "runs up the floors";
    if (to.height == from.height) return "runs to a folder of the same floor";
    if (contains(formats, from.folder) && contains(unknownToFormats, to.folder))
        return "runs from a format to a function";
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

} // namespace

std::vector<std::string> faults(std::string_view path, std::string_view source)
{
    const Floor* from = floorOf(path);
    if (!from) return {std::string(path) + " stands in no folder of the house"};
    std::vector<std::string> found;
    while (!source.empty()) {
        const std::size_t end = std::min(source.find('\n'), source.size());
        if (const auto include = includeOf(source.substr(0, end))) {
            const std::string_view fault = faultOf(*from, *include);
            if (!fault.empty())
                found.push_back(std::string(path) + ": " + std::string(include->name) + " " +
                                std::string(fault));
        }
        source.remove_prefix(std::min(end + 1, source.size()));
    }
    return found;
}

} // namespace mirtane::architecture
