#include "platform/qt/window/control_maker.h"

#include "platform/qt/window/buttons.h"
#include "platform/qt/window/child.h"
#include "platform/qt/window/label_view.h"
#include "platform/qt/window/list_box.h"
#include "platform/qt/window/text_box.h"
#include "platform/qt/window/text_page.h"

#include <QVBoxLayout>

namespace mirtane {
namespace {

struct SpokenName {
    ControlId id;
    const char* name;
};

// Of what has neither a label nor a tip.
constexpr SpokenName spokenNames[] = {
    {ids::fileList, "Files"},
    {ids::folderList, "Folders"},
    {ids::driveList, "Drives"},
    {ids::filterLayerList, "Layers"},
    {ids::printScale, "Scale value to print at"},
    {ids::fittedScale, "Fitted scale value"},
    {ids::helpPage, "Manual"},
};

QString spokenNameOf(ControlId id)
{
    for (const SpokenName& row : spokenNames) {
        if (row.id == id) return QString::fromLatin1(row.name);
    }
    return tipOf(id);
}

} // namespace

template <class View> QWidget& ControlMaker::entered(ControlId id, QWidget& parent) const
{
    View& view = childOf<View>(parent, gate_, id);
    view.setObjectName(nameOf(id));
    view.setAccessibleName(spokenNameOf(id));
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
    QWidget& widget = make(named, both);
    column.addWidget(&makeLabel(label, widget, both));
    column.addWidget(&widget, 1);
    return both;
}

QWidget& ControlMaker::makeLabel(ControlId label, QWidget& named, QWidget& parent) const
{
    QWidget& widget = make(label, parent);
    static_cast<LabelView&>(widget).names(named); // labels are made as such
    return widget;
}

} // namespace mirtane
