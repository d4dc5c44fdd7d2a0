#include "platform/qt/window/control_maker.h"

#include "platform/qt/window/buttons.h"
#include "platform/qt/window/child.h"
#include "platform/qt/window/label_view.h"
#include "platform/qt/window/list_box.h"
#include "platform/qt/window/text_box.h"
#include "platform/qt/window/text_page.h"

#include <QVBoxLayout>

namespace mirtane {

template <class View> QWidget& ControlMaker::entered(ControlId id, QWidget& parent) const
{
    View& view = childOf<View>(parent, gate_, id);
    view.setObjectName(QString::fromUtf8(id.row().name.data(),
                                         static_cast<qsizetype>(id.row().name.size()))); // a short name
    views_.add(id, view);
    return view;
}

QWidget& ControlMaker::make(ControlId id, QWidget& parent) const
{
    switch (id.row().kind) {
    case ControlKind::label:
        return entered<LabelView>(id, parent);
    case ControlKind::list:
        return entered<ListBox>(id, parent);
    case ControlKind::button:
        return entered<FormButton>(id, parent);
    case ControlKind::page:
        return entered<TextPage>(id, parent);
    default:
        return entered<TextBox>(id, parent);
    }
}

QWidget& ControlMaker::makeLabelled(ControlId label, ControlId named, QWidget& parent) const
{
    QWidget& both = childOf<QWidget>(parent);
    QVBoxLayout& column = childOf<QVBoxLayout>(both);
    column.setContentsMargins(0, 0, 0, 0);
    column.setSpacing(3);
    column.addWidget(&make(label, both));
    column.addWidget(&make(named, both), 1);
    return both;
}

} // namespace mirtane
