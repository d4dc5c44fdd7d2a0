#include "platform/qt/window/file_form.h"

#include "platform/qt/window/child.h"

#include <QGridLayout>
#include <QHBoxLayout>

namespace mirtane {
namespace {

constexpr int driveRows = 4;

QWidget& buttonRow(const ControlMaker& maker, QWidget& form)
{
    QWidget& row = childOf<QWidget>(form);
    QHBoxLayout& buttons = childOf<QHBoxLayout>(row);
    buttons.setContentsMargins(0, 0, 0, 0);
    buttons.addStretch();
    buttons.addWidget(&maker.make("frmfile.Command1"_c, row));
    buttons.addWidget(&maker.make("frmfile.Command2"_c, row));
    return row;
}

} // namespace

void layFileForm(const ControlMaker& maker, QWidget& form)
{
    form.resize(560, 440);
    QGridLayout& grid = childOf<QGridLayout>(form);
    grid.setContentsMargins(14, 12, 14, 14);
    grid.setSpacing(10);
    grid.setColumnStretch(0, 1);
    grid.setColumnStretch(1, 1);
    grid.setRowStretch(1, 1);
    grid.addWidget(&maker.makeLabelled("frmfile.Label1"_c, "frmfile.Text1"_c, form), 0, 0, 1, 2);
    grid.addWidget(&maker.make("frmfile.File1"_c, form), 1, 0, 2, 1);
    grid.addWidget(&maker.makeLabelled("frmfile.Label3"_c, "frmfile.Dir1"_c, form), 1, 1);
    QWidget& drives = maker.make("frmfile.Drive1"_c, form);
    drives.setFixedHeight(driveRows * drives.fontMetrics().height() + 2 * drives.fontMetrics().height());
    grid.addWidget(&drives, 2, 1);
    grid.addWidget(&maker.makeLabelled("frmfile.Label2"_c, "frmfile.Text2"_c, form), 3, 0, 1, 2);
    grid.addWidget(&buttonRow(maker, form), 4, 0, 1, 2);
}

} // namespace mirtane
