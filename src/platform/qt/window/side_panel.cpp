#include "platform/qt/window/side_panel.h"

#include "platform/qt/window/child.h"

#include <QGridLayout>
#include <QVBoxLayout>

#include <array>

namespace mirtane {
namespace {

constexpr int panelWidth = 216;

struct Labelled {
    ControlId label;
    ControlId field;
    int row, column;
};

constexpr std::array<Labelled, 6> fields{{
    {ids::orthoLabel, ids::orthoAngle, 0, 0},
    {ids::snapPercentageLabel, ids::snapPercentage, 0, 1},
    {ids::textLabel, ids::textRotation, 1, 0},
    {ids::hatchLabel, ids::hatchRotation, 1, 1},
    {ids::associateLabel, ids::associateRotation, 2, 0},
    {ids::memoryLabel, ids::memoryGauge, 2, 1},
}};

QWidget& fieldGrid(const ControlMaker& maker, QWidget& parent)
{
    QWidget& block = childOf<QWidget>(parent);
    QGridLayout& grid = childOf<QGridLayout>(block);
    grid.setContentsMargins(0, 0, 0, 0);
    grid.setHorizontalSpacing(8);
    grid.setVerticalSpacing(6);
    for (const Labelled& one : fields) {
        grid.addWidget(&maker.makeLabelled(one.label, one.field, block), one.row, one.column);
    }
    return block;
}

} // namespace

SidePanel::SidePanel(const ControlMaker& maker, QWidget* parent) : QWidget(parent)
{
    setFixedWidth(panelWidth);
    QVBoxLayout& column = childOf<QVBoxLayout>(*this);
    column.setContentsMargins(10, 8, 10, 8);
    column.setSpacing(8);
    column.addWidget(&maker.makeLabelled(ids::entryLabel, ids::entry, *this));
    column.addWidget(&maker.make(ids::snapLabel, *this));
    column.addWidget(&fieldGrid(maker, *this));
    column.addWidget(&maker.makeLabelled(ids::lineSettingsLabel, ids::lineSettings, *this));
    column.addWidget(&maker.makeLabelled(ids::selectionsLabel, ids::layerCombo, *this));
    column.addWidget(&maker.makeLabelled(ids::listMode, ids::selectionList, *this), 1);
}

} // namespace mirtane
