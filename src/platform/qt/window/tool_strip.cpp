#include "platform/qt/window/tool_strip.h"

#include "platform/qt/window/buttons.h"
#include "platform/qt/window/child.h"

#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

namespace mirtane {
namespace {

constexpr int columns = 4;
constexpr int buttonSide = 34;
constexpr int iconSide = 24;

struct IconRow {
    ControlId button;
    const char* file; // in the folder of icons, without its ending
};

constexpr std::array<IconRow, 30> icons{{
    {"Command1"_c, "line"},
    {"Command2"_c, "circle-two-points"},
    {"Command3"_c, "circle-three-points"},
    {"Command4"_c, "arc-two-points"},
    {"Command5"_c, "arc-three-points"},
    {"Command6"_c, "curve"},
    {"Command7"_c, "ellipse"},
    {"Command8"_c, "point"},
    {"Command9"_c, "polygon"},
    {"Command10"_c, "multiple-lines"},
    {"Command11"_c, "dimension-linear"},
    {"Command12"_c, "dimension-radial"},
    {"Command13"_c, "dimension-angular"},
    {"Command14"_c, "leader"},
    {"Command15"_c, "text"},
    {"Command16"_c, "text-edit"},
    {"Command17"_c, "select-last"},
    {"Command18"_c, "select-window-filtered"},
    {"Command19"_c, "select-window"},
    {"Command20"_c, "select-object"},
    {"Command21"_c, "snap-midpoint"},
    {"Command35"_c, "snap-point"},
    {"Command36"_c, "snap-object"},
    {"Command37"_c, "snap-intersection"},
    {"Command38"_c, "snap-percentage"},
    {"Command39"_c, "snap-perpendicular"},
    {"Command40"_c, "snap-tangent"},
    {"Command42"_c, "zoom-all"},
    {"Command43"_c, "zoom-window"},
    {"Command44"_c, "zoom-out"},
}};

QIcon iconOf(ControlId id)
{
    const auto row =
        std::find_if(icons.begin(), icons.end(), [id](const IconRow& one) { return one.button == id; });
    return row == icons.end() ? QIcon()
                              : QIcon(QStringLiteral(":/icons/%1.svg").arg(QLatin1String(row->file)));
}

// One group: its name over a grid of buttons. A button with a caption is twice as wide as one with an icon.
class Group : public QWidget {
  public:
    Group(std::string_view name, QWidget* parent) : QWidget(parent), grid_(childOf<QGridLayout>(*this))
    {
        QLabel& heading = childOf<QLabel>(*this);
        heading.setText(QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()))); // a short word
        heading.setObjectName(QStringLiteral("heading"));
        grid_.setContentsMargins(0, 0, 0, 0);
        grid_.setSpacing(3);
        grid_.addWidget(&heading, 0, 0, 1, columns);
    }

    void add(StripButton& button, const QIcon& icon)
    {
        const int width = icon.isNull() ? columns / 2 : 1;
        button.setIcon(icon);
        button.setIconSize({iconSide, iconSide});
        button.setFixedHeight(icon.isNull() ? buttonSide - 4 : buttonSide);
        button.setFixedWidth(buttonSide * width + grid_.spacing() * (width - 1));
        grid_.addWidget(&button, 1 + filled_ / columns, filled_ % columns, 1, width);
        filled_ += width;
    }

  private:
    QGridLayout& grid_;
    int filled_ = 0; // places of the grid
};

} // namespace

ToolStrip::ToolStrip(EventGate& gate, ControlViews& views, QWidget* parent) : QWidget(parent)
{
    QVBoxLayout& column = childOf<QVBoxLayout>(*this);
    column.setContentsMargins(10, 8, 10, 8);
    column.setSpacing(8);
    std::string_view name;
    Group* group = nullptr; // belongs to this widget
    for (std::uint16_t i = 0; i < controlCount; ++i) {
        const ControlId id{i};
        const ControlRow& row = id.row();
        const bool button = row.kind == ControlKind::button || row.kind == ControlKind::toggle;
        if (!button || row.parent.empty()) continue;
        if (row.parent != name) {
            name = row.parent;
            group = &childOf<Group>(*this, name);
            column.addWidget(group);
        }
        StripButton& view = childOf<StripButton>(*group, gate, id);
        group->add(view, iconOf(id));
        views.add(id, view);
    }
    column.addStretch();
}

} // namespace mirtane
