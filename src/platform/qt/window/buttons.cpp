#include "platform/qt/window/buttons.h"

#include "platform/qt/window/typed_keys.h"

#include <QStyleOptionToolButton>
#include <QStylePainter>

namespace mirtane {

StripButton::StripButton(EventGate& gate, ControlId id, QWidget* parent)
    : QToolButton(parent), gate_(gate), id_(id)
{
    setToolTip(tipOf(id));
    setAccessibleName(tipOf(id));
    setCheckable(true);
    setFocusPolicy(Qt::TabFocus);
    connect(this, &QToolButton::clicked, this,
            [this] { gate_.send([this](Shell& shell) { shell.click(id_); }); });
}

void StripButton::show(const Control& now)
{
    if (icon().isNull()) setText(captionOf(now));
    setChecked(now.checked);
    setEnabled(now.enabled);
    setVisible(now.visible);
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
