#include "platform/qt/window/help_form.h"

#include "platform/qt/window/child.h"

#include <QVBoxLayout>

namespace mirtane {

void layHelpForm(const ControlMaker& maker, QWidget& form)
{
    QVBoxLayout& column = childOf<QVBoxLayout>(form);
    column.setContentsMargins(14, 12, 14, 14);
    column.addWidget(&maker.make(ids::helpPage, form));
}

} // namespace mirtane
