#include "platform/qt/window/tool_strip.h"

#include "platform/qt/window/buttons.h"
#include "platform/qt/window/child.h"

#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <numeric>

namespace mirtane {
namespace {

constexpr int buttonsInRow = 4;
constexpr int buttonSide = 34;
constexpr int iconSide = 24;
constexpr int groupSpacing = 3;

struct IconRow {
    ControlId button;
    const char* file; // in the folder of icons, without its ending
};

constexpr std::array<IconRow, 30> icons{{
    {ids::drawLine, "line"},
    {ids::drawCircleTwo, "circle-two-points"},
    {ids::drawCircleThree, "circle-three-points"},
    {ids::drawArcTwo, "arc-two-points"},
    {ids::drawArcThree, "arc-three-points"},
    {ids::drawCurve, "curve"},
    {ids::drawEllipse, "ellipse"},
    {ids::drawPoint, "point"},
    {ids::drawPolygon, "polygon"},
    {ids::drawMultipleLines, "multiple-lines"},
    {ids::drawLinearDimension, "dimension-linear"},
    {ids::drawRadialDimension, "dimension-radial"},
    {ids::drawAngularDimension, "dimension-angular"},
    {ids::drawLeader, "leader"},
    {ids::placeText, "text"},
    {ids::editText, "text-edit"},
    {ids::selectLast, "select-last"},
    {ids::selectWindowFiltered, "select-window-filtered"},
    {ids::selectWindow, "select-window"},
    {ids::selectObjects, "select-object"},
    {ids::snapToMidpoint, "snap-midpoint"},
    {ids::snapToPoint, "snap-point"},
    {ids::snapToObject, "snap-object"},
    {ids::snapToIntersection, "snap-intersection"},
    {ids::snapToPercentage, "snap-percentage"},
    {ids::snapPerpendicular, "snap-perpendicular"},
    {ids::snapTangent, "snap-tangent"},
    {ids::zoomAll, "zoom-all"},
    {ids::zoomWindow, "zoom-window"},
    {ids::zoomOut, "zoom-out"},
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
    Group(std::string_view name, QWidget* parent)
        : QWidget(parent), grid_(childOf<QGridLayout>(*this)), heading_(childOf<QLabel>(*this))
    {
        heading_.setText(QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()))); // a short word
        heading_.setObjectName(QStringLiteral("heading"));
        setAccessibleName(heading_.text());
        grid_.setContentsMargins(0, 0, 0, 0);
        grid_.setSpacing(groupSpacing);
        grid_.addWidget(&heading_, 0, 0, 1, buttonsInRow);
    }

    QWidget& heading() { return heading_; }

    void add(StripButton& button, const QIcon& icon)
    {
        const int width = icon.isNull() ? buttonsInRow / 2 : 1;
        button.setIcon(icon);
        button.setIconSize({iconSide, iconSide});
        button.setFixedHeight(icon.isNull() ? buttonSide - 4 : buttonSide);
        button.setFixedWidth(buttonSide * width + grid_.spacing() * (width - 1));
        grid_.addWidget(&button, 1 + filled_ / buttonsInRow, filled_ % buttonsInRow, 1, width);
        filled_ += width;
    }

  private:
    QGridLayout& grid_;
    QLabel& heading_;
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
    for (const ControlRow& row : controlTable) {
        const ControlId id = row.id;
        const bool button = row.kind == ControlKind::button || row.kind == ControlKind::toggle;
        if (!button || row.parent.empty()) continue;
        if (row.parent != name) {
            name = row.parent;
            group = &childOf<Group>(*this, name);
            column.addWidget(group);
            names_.push_back(&group->heading());
        }
        StripButton& view = childOf<StripButton>(*group, gate, id);
        group->add(view, iconOf(id));
        views.add(id, view);
    }
    column.addStretch();
}

int ToolStrip::heightOfNames() const
{
    return std::accumulate(names_.begin(), names_.end(), 0, [](int sum, const QWidget* name) {
        return sum + name->sizeHint().height() + groupSpacing;
    });
}

QSize ToolStrip::minimumSizeHint() const
{
    const QSize now = QWidget::minimumSizeHint();
    return names_.front()->isHidden() ? now : now - QSize(0, heightOfNames());
}

void ToolStrip::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    const bool hasRoom = height() >= minimumSizeHint().height() + heightOfNames();
    for (QWidget* name : names_) name->setVisible(hasRoom);
}

} // namespace mirtane
