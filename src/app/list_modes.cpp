#include "app/list_modes.h"

#include "app/edit_list.h"
#include "app/layer_menus.h"
#include "app/library_menus.h"
#include "app/text_menus.h"

#include <algorithm>

namespace mirtane {
namespace {

struct ModeRow {
    std::string_view caption;
    void (*clicked)(App& app, int row);
};

constexpr ModeRow modeRows[] = {
    {"Set Working Layer", setWorkingLayer},
    {"Hide/Display Layer", hideOrDisplayLayer},
    {"Name Layer", chooseLayerToName},
    {"Un-name Layer", unnameLayer},
    {"Load Layer", loadLayer},
    {"Save Layer", saveLayer},
    {"Select Multiple Lines", chooseFromLibrary},
    {"Remove Multiple Lines", removeFromLibrary},
    {"Save Multiple Lines", saveFromLibrary},
    {"Select Hatch", chooseFromLibrary},
    {"Remove Hatch", removeFromLibrary},
    {"Save Hatch", saveFromLibrary},
    {"Select Associate", chooseFromLibrary},
    {"Remove Associate", removeFromLibrary},
    {"Save Associate", saveFromLibrary},
    {"Edit Functions", startEditFromRow},
    {"Select Font", showFontSample},
    {"Change Selected Font", [](App&, int) {}}, // Enter acts on the row
};

} // namespace

void listRowClicked(App& app, int row)
{
    const auto* const found =
        std::ranges::find(modeRows, app.s.controls["Label3"_c].caption, &ModeRow::caption);
    if (found != std::end(modeRows)) found->clicked(app, row);
}

} // namespace mirtane
