#include "platform/qt/window/edit_form.h"

#include "platform/qt/window/child.h"

#include <QGridLayout>

namespace mirtane {
namespace {

constexpr int columns = 3;

// In the order in which a draughtsman looks for them: copies, moves, cuts, the rest.
constexpr ControlId buttons[] = {
    "frmedit.Command4"_c,  "frmedit.Command8"_c,  "frmedit.Command1"_c,  "frmedit.Command5"_c,
    "frmedit.Command7"_c,  "frmedit.Command2"_c,  "frmedit.Command6"_c,  "frmedit.Command9"_c,
    "frmedit.Command11"_c, "frmedit.Command13"_c, "frmedit.Command3"_c,  "frmedit.Command10"_c,
    "frmedit.Command14"_c, "frmedit.Command12"_c, "frmedit.Command15"_c,
};

} // namespace

void layEditForm(const ControlMaker& maker, QWidget& form)
{
    QGridLayout& grid = childOf<QGridLayout>(form);
    grid.setContentsMargins(14, 12, 14, 14);
    grid.setSpacing(8);
    int place = 0;
    for (const ControlId button : buttons) {
        grid.addWidget(&maker.make(button, form), place / columns, place % columns);
        ++place;
    }
}

} // namespace mirtane
