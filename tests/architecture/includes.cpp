#include "includes.h"

#include <optional>

namespace mirtane::architecture {

namespace {

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

} // namespace

std::vector<Include> includesOf(std::string_view source)
{
    std::vector<Include> found;
    forEachLine(source, [&found](std::string_view line) {
        if (const auto include = includeOf(line)) found.push_back(*include);
    });
    return found;
}

} // namespace mirtane::architecture
