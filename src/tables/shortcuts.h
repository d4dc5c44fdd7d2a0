#pragma once

// The keys that do what a control does, or what none does, and the letters that open the menus. Menus show
// the first keys of an entry beside it.

#include "tables/controls.h"

namespace mirtane {

enum class Deed : std::uint8_t { press, deleteSelection, selectAll, redraw };

struct Shortcut {
    std::string_view keys; // as menus write them
    Deed deed = Deed::press;
    ControlId control = ids::mainForm; // of press
    bool onDrawing =
        false; // only while the drawing or its edits have the keys: text has its own use for them
};

inline constexpr Shortcut shortcuts[] = {
    {"Ctrl+O", Deed::press, ids::openDrawing},
    {"Ctrl+S", Deed::press, ids::saveDrawing},
    {"Ctrl+P", Deed::press, ids::print},
    {"Ctrl+Z", Deed::press, ids::undo},
    {"Ctrl+Y", Deed::press, ids::redo},
    {"Ctrl+Shift+Z", Deed::press, ids::redo},
    {"F1", Deed::press, ids::displayHelp},
    {"F5", Deed::redraw},
    {"Home", Deed::press, ids::zoomAll, true},
    {"Del", Deed::deleteSelection, ids::mainForm, true},
    {"Ctrl+A", Deed::selectAll, ids::mainForm, true},
};

// With Alt; one of the letters of the caption. The entries that stand on the bar itself have one too.
struct MenuLetter {
    ControlId menu;
    char letter;
};

inline constexpr MenuLetter menuLetters[] = {
    {ids::fileMenu, 'F'},
    {ids::undo, 'n'},
    {ids::redo, 'R'},
    {ids::utilitiesMenu, 'U'},
    {ids::multipleLinesMenu, 'M'},
    {ids::hatchMenu, 'H'},
    {ids::associatesMenu, 'A'},
    {ids::dimensionsMenu, 'D'},
    {ids::textMenu, 'T'},
    {ids::layersMenu, 'L'},
    {ids::filter, 'i'},
    {ids::lineWidthMenu, 'W'},
    {ids::lineStyleMenu, 'S'},
    {ids::helpMenu, 'p'},
    {ids::filterObjectMenu, 'O'},
    {ids::filterColorMenu, 'C'},
    {ids::filterStyleMenu, 'S'},
    {ids::filterReset, 'R'},
};

} // namespace mirtane
