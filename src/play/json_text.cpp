#include "play/json_text.h"

namespace mirtane::play {
namespace {

std::string joined(const std::vector<std::string>& parts)
{
    std::string text;
    for (const std::string& part : parts) {
        if (!text.empty()) text += ",";
        text += part;
    }
    return text;
}

std::string escaped(char c)
{
    constexpr char digits[] = "0123456789abcdef";
    if (c == '"' || c == '\\') return {'\\', c};
    if (c >= 0 && c < ' ') return {'\\', 'u', '0', '0', digits[c / 16], digits[c % 16]};
    return {c};
}

} // namespace

std::string json(std::string_view text)
{
    std::string quoted = "\"";
    for (const char c : text) quoted += escaped(c);
    return quoted + "\"";
}

std::string jsonArray(const std::vector<std::string>& jsonElements)
{
    return "[" + joined(jsonElements) + "]";
}

std::string jsonObject(const std::vector<std::pair<std::string_view, std::string>>& fields)
{
    std::vector<std::string> parts;
    for (const auto& [name, value] : fields) parts.push_back(json(name) + ":" + value);
    return "{" + joined(parts) + "}";
}

} // namespace mirtane::play
