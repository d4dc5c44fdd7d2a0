#include "platform/qt/window/print_form.h"

#include "platform/qt/window/button_row.h"
#include "platform/qt/window/child.h"
#include "platform/qt/window/page_picture.h"

#include <QGridLayout>
#include <QLabel>

namespace mirtane {
namespace {

QWidget& makeWrapped(const ControlMaker& maker, ControlId id, QWidget& form)
{
    constexpr int textWidth = 260;
    auto& label = static_cast<QLabel&>(maker.make(id, form)); // labels are made as such
    label.setWordWrap(true);
    label.setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    label.setFixedWidth(textWidth);
    return label;
}

} // namespace

void layPrintForm(const ControlMaker& maker, QWidget& form)
{
    form.resize(640, 480);
    QGridLayout& grid = childOf<QGridLayout>(form);
    grid.setContentsMargins(14, 12, 14, 14);
    grid.setSpacing(10);
    grid.setColumnStretch(0, 1);
    grid.setRowStretch(4, 1);
    PagePicture& picture = childOf<PagePicture>(form, maker.gate());
    maker.views().add(ids::pagePicture, picture);
    grid.addWidget(&picture, 0, 0, 6, 1);
    grid.addWidget(&makeWrapped(maker, ids::printLabel, form), 0, 1);
    grid.addWidget(&maker.make(ids::printScale, form), 1, 1);
    grid.addWidget(&maker.make(ids::fittedScale, form), 2, 1);
    grid.addWidget(&makeWrapped(maker, ids::printPlace, form), 3, 1);
    grid.addWidget(&buttonRow(maker, form, ids::printConfirm, ids::printCancel), 5, 1);
}

} // namespace mirtane
