#include "platform/qt/window/buttons.h"

#include "platform/qt/window/typed_keys.h"

#include <QStyleOptionToolButton>
#include <QStylePainter>

#include <algorithm>

namespace mirtane {
namespace {

// What does its work at once and leaves nothing on.
constexpr ControlId neverOn[] = {ids::selectLast, ids::zoomAll, ids::zoomOut};

} // namespace

StripButton::StripButton(EventGate& gate, ControlId id, QWidget* parent)
    : QToolButton(parent), gate_(gate), id_(id)
{
    setObjectName(nameOf(id));
    setToolTip(tipOf(id));
    setAccessibleName(tipOf(id));
    setCheckable(std::ranges::find(neverOn, id) == std::end(neverOn));
    setFocusPolicy(Qt::TabFocus);
    connect(this, &QToolButton::clicked, this,
            [this] { gate_.send([this](Shell& shell) { shell.click(id_); }); });
}

void StripButton::show(const Control& now)
{
    if (icon().isNull()) showCaption(now);
    setChecked(now.checked);
    setEnabled(now.enabled);
    setVisible(now.visible);
}

// A caption says what is on, and so goes before the tip.
void StripButton::showCaption(const Control& now)
{
    setText(captionOf(now));
    setAccessibleName(QString::fromStdString(now.caption));
    setAccessibleDescription(tipOf(id_));
}

// The toolkit's own greyed icon is nearly as bright as one that can be pressed.
void StripButton::paintEvent(QPaintEvent*)
{
    constexpr double greyed = 0.4;
    QStylePainter painter(this);
    QStyleOptionToolButton option;
    initStyleOption(&option);
    if (!isEnabled()) painter.setOpacity(greyed);
    painter.drawComplexControl(QStyle::CC_ToolButton, option);
}

void StripButton::focusInEvent(QFocusEvent* event)
{
    QToolButton::focusInEvent(event);
    if (byUser(*event)) gate_.send([this](Shell& shell) { shell.giveFocus(id_); });
}

FormButton::FormButton(EventGate& gate, ControlId id, QWidget* parent)
    : QPushButton(parent), gate_(gate), id_(id)
{
    setToolTip(tipOf(id));
    connect(this, &QPushButton::clicked, this,
            [this] { gate_.send([this](Shell& shell) { shell.click(id_); }); });
}

void FormButton::show(const Control& now)
{
    setText(captionOf(now));
    setEnabled(now.enabled);
    setVisible(now.visible);
}

void FormButton::focusInEvent(QFocusEvent* event)
{
    QPushButton::focusInEvent(event);
    if (byUser(*event)) gate_.send([this](Shell& shell) { shell.giveFocus(id_); });
}

void FormButton::keyPressEvent(QKeyEvent* event)
{
    if (codeOf(*event) == key::enter) {
        click();
    } else {
        QPushButton::keyPressEvent(event);
    }
}

} // namespace mirtane
