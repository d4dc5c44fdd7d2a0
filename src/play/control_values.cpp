#include "play/control_values.h"

#include "play/json_text.h"

#include <algorithm>

namespace mirtane::play {
namespace {

struct ControlValue {
    std::string_view name;
    std::string (*give)(const Control& control);
};

constexpr ControlValue valuesOfControls[] = {
    {"text", [](const Control& c) { return json(c.text); }},
    {"caption", [](const Control& c) { return json(c.caption); }},
    {"visible", [](const Control& c) { return json(c.visible); }},
    {"enabled", [](const Control& c) { return json(c.enabled); }},
    {"checked", [](const Control& c) { return json(c.checked); }},
    {"rows",
     [](const Control& c) {
         std::vector<std::string> rows;
         for (const std::string& row : c.rows) rows.push_back(json(row));
         return jsonArray(rows);
     }},
    {"row", [](const Control& c) { return json(c.row); }},
    {"color", [](const Control& c) { return json(c.color); }},
};

// The values that a kind has besides visible and enabled.
std::string_view valuesOf(ControlKind kind)
{
    switch (kind) {
    case ControlKind::surface:
        return "";
    case ControlKind::button:
    case ControlKind::toggle:
    case ControlKind::option:
    case ControlKind::entry:
    case ControlKind::checkedEntry:
        return "caption checked";
    case ControlKind::form:
    case ControlKind::strip:
    case ControlKind::label:
    case ControlKind::menu:
        return "caption";
    case ControlKind::field:
    case ControlKind::display:
        return "text color";
    case ControlKind::page:
    case ControlKind::picture:
    case ControlKind::workingText:
        return "text";
    case ControlKind::list:
        return "text rows row color";
    case ControlKind::combo:
        return "text rows row";
    }
    return "";
}

bool has(ControlKind kind, std::string_view name)
{
    if (name == "visible" || name == "enabled") return true;
    const std::string words = " " + std::string(valuesOf(kind)) + " ";
    return words.find(" " + std::string(name) + " ") != std::string::npos;
}

} // namespace

std::string controlValues(const Controls& controls, ControlId id)
{
    std::vector<std::pair<std::string_view, std::string>> fields;
    for (const ControlValue& row : valuesOfControls) {
        if (has(id.row().kind, row.name)) fields.emplace_back(row.name, row.give(controls[id]));
    }
    return jsonObject(fields);
}

std::optional<std::string> controlValue(const Controls& controls, ControlId id, std::string_view field)
{
    const auto* const row = std::ranges::find(valuesOfControls, field, &ControlValue::name);
    if (row == std::end(valuesOfControls) || !has(id.row().kind, field)) return std::nullopt;
    return row->give(controls[id]);
}

} // namespace mirtane::play
