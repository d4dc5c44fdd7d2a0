#include "platform/qt/window/help_form.h"

#include "platform/qt/window/child.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QShortcut>
#include <QVBoxLayout>

namespace mirtane {
namespace {

constexpr int contentsWidth = 270;
constexpr int findWidth = 260;

QWidget& findLine(const ControlMaker& maker, QWidget& form)
{
    QWidget& line = childOf<QWidget>(form);
    QHBoxLayout& row = childOf<QHBoxLayout>(line);
    row.setContentsMargins(0, 0, 0, 0);
    row.setSpacing(8);
    QWidget& box = maker.make(ids::helpFind, line);
    QWidget& label = maker.makeLabel(ids::helpFindLabel, box, line);
    label.setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    box.setFixedWidth(findWidth);
    row.addStretch();
    row.addWidget(&label);
    row.addWidget(&box);
    return line;
}

// What stands in the box is what one wants to type over.
void goToFindLine(EventGate& gate, QWidget& form)
{
    gate.send([](Shell& shell) { shell.giveFocus(ids::helpFind); });
    if (auto* const box = qobject_cast<QLineEdit*>(form.focusWidget())) box->selectAll();
}

} // namespace

void layHelpForm(const ControlMaker& maker, QWidget& form)
{
    QVBoxLayout& column = childOf<QVBoxLayout>(form);
    column.setContentsMargins(14, 8, 14, 14);
    column.setSpacing(6);
    column.addWidget(&findLine(maker, form));
    QHBoxLayout& row = *new QHBoxLayout; // goes to the column
    column.addLayout(&row, 1);
    row.setSpacing(10);
    QWidget& contents = maker.make(ids::helpContents, form);
    contents.setFixedWidth(contentsWidth);
    row.addWidget(&contents);
    row.addWidget(&maker.make(ids::helpPage, form), 1);
    QShortcut& toFind = childOf<QShortcut>(form, QKeySequence(QKeySequence::Find));
    QObject::connect(&toFind, &QShortcut::activated, &form,
                     [&gate = maker.gate(), &form] { goToFindLine(gate, form); });
}

} // namespace mirtane
