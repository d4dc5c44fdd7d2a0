#include "platform/qt/window/edit_form.h"

#include "platform/qt/window/child.h"

#include <QGridLayout>

namespace mirtane {
namespace {

constexpr int columns = 3;

// In the order in which a draughtsman looks for them: copies, moves, cuts, the rest.
constexpr ControlId buttons[] = {
    ids::editCopy,    ids::editMove,       ids::editBreak,  ids::editMirrorCopy, ids::editRotate,
    ids::editTrim,    ids::editRadialCopy, ids::editScale,  ids::editFillet,     ids::editConcentricCopy,
    ids::editStretch, ids::editChange,     ids::editDelete, ids::deselectAll,    ids::editsCancel,
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
