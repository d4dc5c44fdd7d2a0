#include "platform/qt/window/button_row.h"

#include "platform/qt/window/child.h"

#include <QHBoxLayout>

namespace mirtane {

QWidget& buttonRow(const ControlMaker& maker, QWidget& form, ControlId accept, ControlId cancel)
{
    auto& row = childOf<QWidget>(form);
    auto& buttons = childOf<QHBoxLayout>(row);
    buttons.setContentsMargins(0, 0, 0, 0);
    buttons.addStretch();
    buttons.addWidget(&maker.make(accept, row));
    buttons.addWidget(&maker.make(cancel, row));
    return row;
}

} // namespace mirtane
