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
    {"Label4"_c, "angle"_c, 0, 0},
    {"Label13"_c, "snapper"_c, 0, 1},
    {"Label17"_c, "textrot"_c, 1, 0},
    {"Label5"_c, "hatrot"_c, 1, 1},
    {"Label6"_c, "assrot"_c, 2, 0},
    {"Label12"_c, "memy"_c, 2, 1},
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
    column.addWidget(&maker.makeLabelled("Label1"_c, "entry"_c, *this));
    column.addWidget(&maker.make("snaplab"_c, *this));
    column.addWidget(&fieldGrid(maker, *this));
    column.addWidget(&maker.makeLabelled("Label2"_c, "setts"_c, *this));
    column.addWidget(&maker.makeLabelled("Label7"_c, "Combo3"_c, *this));
    column.addWidget(&maker.makeLabelled("Label3"_c, "List1"_c, *this), 1);
}

} // namespace mirtane
