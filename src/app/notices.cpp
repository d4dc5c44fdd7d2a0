#include "app/notices.h"

#include "app/files/dxf_flows.h"
#include "app/files/file_dialog.h"
#include "app/files/unsaved_work.h"

#include <algorithm>

namespace mirtane {
namespace {

void goOn(App& app)
{
    if (const Notice* notice = app.s.notices.shown()) app.s.notices.settle(notice->matter);
}

// What is being drawn is not thrown away for what was left: it can be saved first.
void restore(App& app)
{
    if (hasUnsavedWork(app.s) && leftWorkIsThere(app)) return offerToSave(app, follow::restoreWork);
    restoreLeftWork(app);
}

struct OfferRow {
    Offer offer;
    void (*carryOut)(App& app);
};

constexpr OfferRow offerRows[] = {
    {Offer::restoreWork, restore},
    {Offer::throwWorkAway, throwLeftWorkAway},
    {Offer::saveAndOpenAgain, saveAndOpenAgain},
    {Offer::goOn, goOn},
    {Offer::readAll, readAllOfDxf},
    {Offer::takeAsMillimetres, takeDxfAsMillimetres},
    {Offer::takeAsMetres, takeDxfAsMetres},
};

} // namespace

void takeOffer(App& app, ControlId button)
{
    const Notice* const notice = app.s.notices.shown();
    const std::size_t number = button == ids::noticeFirst ? 0 : 1;
    if (notice == nullptr || number >= notice->buttons.size()) return;
    const Offer offer = notice->buttons[number].offer; // the notice may go
    const auto* const row = std::ranges::find(offerRows, offer, &OfferRow::offer);
    app.s.controls.focus = ids::drawing; // the next press is not meant for what the strip says then
    if (row != std::end(offerRows)) row->carryOut(app);
}

} // namespace mirtane
