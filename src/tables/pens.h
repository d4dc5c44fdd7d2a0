#pragma once

// The pens and the line styles. A pen is a colour on the screen and a width on paper; the order of the
// eight is that of the menus and of the numbers in DXF files, from 1 on.

#include "tables/controls.h"

namespace mirtane {

struct Pen {
    std::int32_t color = 0; // 0xBBGGRR
    int paperWidth = 0;     // device pixels
    ControlId entry;        // of the menu of line widths
    ControlId filterEntry;
};

inline constexpr Pen pens[] = {
    {0xFF0000, 1, ids::bluePen, ids::filterBlue},      // blue
    {0x00FF00, 2, ids::greenPen, ids::filterGreen},    // green
    {0xFFFF00, 4, ids::aquaPen, ids::filterAqua},      // aqua
    {0x0000FF, 6, ids::redPen, ids::filterRed},        // red
    {0xFF00FF, 8, ids::purplePen, ids::filterPurple},  // purple
    {0x0080FF, 10, ids::brownPen, ids::filterBrown},   // brown
    {0x00FFFF, 12, ids::yellowPen, ids::filterYellow}, // yellow
    {0xFFFFFF, 14, ids::whitePen, ids::filterWhite}    // white
};

struct LineStyle {
    std::int16_t style = 0;
    ControlId entry; // of the menu of line styles; its caption is the style's name
    ControlId filterEntry;
};

inline constexpr LineStyle lineStyles[] = {
    {0, ids::solidLine, ids::filterSolid},
    {1, ids::dashedLine, ids::filterDash},
    {2, ids::dottedLine, ids::filterDot},
    {3, ids::dashDotLine, ids::filterDashDot},
    {4, ids::dashDotDotLine, ids::filterDashDotDot},
};

// Stands in files for white.
inline constexpr std::int32_t fileGrey = 0xE0E0E0;

} // namespace mirtane
