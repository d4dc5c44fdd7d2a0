#include "app/menus/list_modes.h"

#include "app/menus/edit_list.h"
#include "app/menus/layer_menus.h"
#include "app/menus/library_menus.h"
#include "app/menus/text_menus.h"
#include "tables/list_modes.h"

#include <algorithm>

namespace mirtane {
namespace {

struct ModeRow {
    std::string_view caption;
    void (*clicked)(App& app, int row);
};

constexpr ModeRow modeRows[] = {
    {list_mode::setWorkingLayer, setWorkingLayer},
    {list_mode::hideDisplayLayer, hideOrDisplayLayer},
    {list_mode::nameLayer, chooseLayerToName},
    {list_mode::unnameLayer, unnameLayer},
    {list_mode::loadLayer, loadLayer},
    {list_mode::saveLayer, saveLayer},
    {list_mode::selectMultipleLines, chooseFromLibrary},
    {list_mode::removeMultipleLines, removeFromLibrary},
    {list_mode::saveMultipleLines, saveFromLibrary},
    {list_mode::selectHatch, chooseFromLibrary},
    {list_mode::removeHatch, removeFromLibrary},
    {list_mode::saveHatch, saveFromLibrary},
    {list_mode::selectAssociate, chooseFromLibrary},
    {list_mode::removeAssociate, removeFromLibrary},
    {list_mode::saveAssociate, saveFromLibrary},
    {list_mode::editFunctions, startEditFromRow},
    {list_mode::selectFont, showFontSample},
    {list_mode::changeSelectedFont, [](App&, int) {}}, // Enter acts on the row
};

} // namespace

void listRowClicked(App& app, int row)
{
    const auto* const found =
        std::ranges::find(modeRows, app.s.controls[ids::listMode].caption, &ModeRow::caption);
    if (found != std::end(modeRows)) found->clicked(app, row);
}

} // namespace mirtane
