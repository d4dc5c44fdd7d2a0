#include "platform/qt/window/filter_form.h"

#include "platform/qt/window/button_row.h"
#include "platform/qt/window/child.h"
#include "platform/qt/window/menu_view.h"

#include <QGridLayout>

namespace mirtane {
namespace {

struct LabelledBox {
    ControlId label;
    ControlId box;
};

constexpr LabelledBox boxes[] = {
    {ids::layerSettingLabel, ids::layerSetting},
    {ids::objectSettingLabel, ids::objectSetting},
    {ids::colorSettingLabel, ids::colorSetting},
    {ids::styleSettingLabel, ids::styleSetting},
};

} // namespace

void layFilterForm(const ControlMaker& maker, QWidget& form)
{
    form.resize(460, 400);
    QGridLayout& grid = childOf<QGridLayout>(form);
    grid.setContentsMargins(14, 12, 14, 14);
    grid.setSpacing(10);
    grid.setColumnStretch(0, 1);
    grid.setColumnStretch(1, 1);
    QMenuBar& bar = childOf<QMenuBar>(form);
    bar.setNativeMenuBar(false);
    fillMenuBar(bar, ids::filterForm, maker.gate(), maker.views());
    grid.setMenuBar(&bar);
    int row = 0;
    for (const LabelledBox& one : boxes)
        grid.addWidget(&maker.makeLabelled(one.label, one.box, form), row++, 1);
    grid.setRowStretch(row, 1);
    grid.addWidget(&maker.makeLabelled(ids::filterLayerLabel, ids::filterLayerList, form), 0, 0, row + 1, 1);
    grid.addWidget(&buttonRow(maker, form, ids::filterAccept, ids::filterCancel), row + 1, 0, 1, 2);
}

} // namespace mirtane
