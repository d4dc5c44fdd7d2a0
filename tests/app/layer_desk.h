#pragma once

// The program at its start, with the menus, the list and the box of the layers at hand.

#include "desk.h"

namespace mirtane::fake {

struct LayerMenu {
    ControlId menu;
    const char* caption;
};

inline constexpr LayerMenu listingMenus[] = {
    {"ly3"_c, "Set Working Layer"}, {"ly7"_c, "Hide/Display Layer"}, {"ly9"_c, "Name Layer"},
    {"ly9a"_c, "Un-name Layer"},    {"ly13"_c, "Load Layer"},        {"ly15"_c, "Save Layer"},
};

struct LayerDesk : Desk {
    using Desk::Desk;

    // A line on that layer.
    std::int32_t add(std::int16_t layer, Stat stat = Stat::on, Kind kind = Kind::line)
    {
        return draw(ofLooks(record(kind, {100, 100}, {500, 100}), 0, layer), stat);
    }

    void pick(int row) { shell.clickRow(list, row); }
    void menuRow(ControlId menu, int row)
    {
        press(menu);
        pick(row);
    }
    void nameLayer(int row, const std::string& name)
    {
        menuRow("ly9"_c, row);
        setText(s.controls["Combo3"_c], "");
        type(name);
        enter();
    }
    void addLayer(const std::string& name)
    {
        press("ly11"_c);
        type(name);
        enter();
    }

    const std::vector<std::string>& rows() const { return Desk::rows(list); }
    std::string row(int number) const { return rows().at(static_cast<std::size_t>(number)); }
    const std::string& mode() const { return caption("Label3"_c); }
    Layer& layer(int number) { return *s.layerTable.find(number); }
    bool redrawn() { return !fake::only(ops(), "snapshot").empty(); }
};

inline std::vector<std::string> rowsOfANewDrawing()
{
    std::vector<std::string> rows;
    for (int i = 0; i < 16; ++i) rows.push_back((i == 1 ? "No :Wk :" : "No :On :") + std::to_string(i));
    return rows;
}

} // namespace mirtane::fake
