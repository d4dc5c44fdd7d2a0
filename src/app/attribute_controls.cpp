#include "app/attribute_controls.h"

namespace mirtane {
namespace {

struct CheckRow {
    ControlId menu;
    bool (*isOn)(const Session& s);
};

template <std::int16_t style> bool hasLineStyle(const Session& s)
{
    return s.curStyle == style;
}

template <std::int16_t style> bool hasArrowStyle(const Session& s)
{
    return s.dimStyle == style;
}

template <std::int16_t just> bool hasJustification(const Session& s)
{
    return s.textJust == just;
}

template <int part> bool hasTolerance(const Session& s)
{
    return s.dimTol == 1.0F / part;
}

template <std::int16_t format> bool hasAngleFormat(const Session& s)
{
    return s.angFormat == format;
}

template <std::int16_t comma> bool isMetric(const Session& s)
{
    return s.numStyle == "br" && s.numComma == comma;
}

// The numbers of arrows and justifications run against the order of their menus.
constexpr CheckRow checkRows[] = {
    {"ls3"_c, hasLineStyle<0>},
    {"ls4"_c, hasLineStyle<1>},
    {"ls5"_c, hasLineStyle<2>},
    {"ls6"_c, hasLineStyle<3>},
    {"ls7"_c, hasLineStyle<4>},
    {"dim3"_c, hasArrowStyle<3>},
    {"dim4"_c, hasArrowStyle<2>},
    {"dim5"_c, hasArrowStyle<1>},
    {"tk7"_c, hasJustification<0>},
    {"tk8"_c, hasJustification<2>},
    {"tk9"_c, hasJustification<1>},
    {"dtol2"_c, hasTolerance<4>},
    {"dtol3"_c, hasTolerance<8>},
    {"dtol4"_c, hasTolerance<16>},
    {"dtol5"_c, hasTolerance<32>},
    {"dtol6"_c, hasTolerance<64>},
    {"num1"_c, [](const Session& s) { return s.numStyle == "us"; }},
    {"num2"_c, [](const Session& s) { return s.numStyle == "2f"; }},
    {"num3"_c, [](const Session& s) { return s.numStyle == "3i"; }},
    {"num4"_c, isMetric<0>},
    {"num5"_c, isMetric<1>},
    {"ang1"_c, hasAngleFormat<0>},
    {"ang2"_c, hasAngleFormat<1>},
};

struct ColorRow {
    ControlId menu;
    std::int32_t color; // 0xBBGGRR
};

constexpr ColorRow colorRows[] = {
    {"lw3"_c, 0xFF0000}, {"lw4"_c, 0x00FF00}, {"lw5"_c, 0xFFFF00}, {"lw6"_c, 0x0000FF},
    {"lw7"_c, 0xFF00FF}, {"lw8"_c, 0x0080FF}, {"lw9"_c, 0x00FFFF}, {"lw10"_c, 0xFFFFFF},
};

struct StyleRow {
    ControlId menu;
    std::int16_t style;
};

constexpr StyleRow styleRows[] = {{"ls3"_c, 0}, {"ls4"_c, 1}, {"ls5"_c, 2}, {"ls6"_c, 3}, {"ls7"_c, 4}};

} // namespace

void showCheckMarks(Session& s)
{
    for (const CheckRow& row : checkRows) s.controls[row.menu].checked = row.isOn(s);
}

void showLineSettings(Session& s)
{
    Control& setts = s.controls["setts"_c];
    setts.color = s.curColor;
    setts.font = s.textFont;
    for (const StyleRow& row : styleRows) {
        if (row.style == s.curStyle) setText(setts, std::string(row.menu.row().caption));
    }
}

void showLayers(Session& s)
{
    s.controls["List1"_c].rows = s.layerTable.rows();
    s.controls["List1"_c].row = -1;
    showWorkingLayer(s);
}

void showWorkingLayer(Session& s)
{
    if (const Layer* working = s.layerTable.find(s.workLayer))
        setText(s.controls["Combo3"_c], working->row());
}

void takeLineColor(App& app, ControlId menu)
{
    for (const ColorRow& row : colorRows) {
        if (row.menu == menu) app.s.curColor = row.color;
    }
    showLineSettings(app.s);
    app.pic1.refresh();
    app.s.controls.focus = "pic1"_c;
}

void takeLineStyle(App& app, ControlId menu)
{
    for (const StyleRow& row : styleRows) {
        if (row.menu == menu) app.s.curStyle = row.style;
    }
    showLineSettings(app.s);
    showCheckMarks(app.s);
    app.s.controls.focus = "pic1"_c;
}

} // namespace mirtane
