#pragma once

#include <string_view>
#include <vector>

namespace mirtane::architecture {

struct Include {
    std::string_view name; // as it stands between the quotes or brackets
    bool quoted;
};

// The includes of a source, in their order. They refer to it.
std::vector<Include> includesOf(std::string_view source);

// Calls use(line) for each line of the source.
template <class Use> void forEachLine(std::string_view source, Use use)
{
    while (!source.empty()) {
        const std::size_t end = source.find('\n');
        use(source.substr(0, end));
        source.remove_prefix(end == std::string_view::npos ? source.size() : end + 1);
    }
}

} // namespace mirtane::architecture
