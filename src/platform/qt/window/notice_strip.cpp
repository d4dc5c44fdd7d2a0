#include "platform/qt/window/notice_strip.h"

#include "platform/qt/window/child.h"

#include <QAccessible>
#include <QHBoxLayout>

namespace mirtane {
namespace {

QLabel& sentenceIn(QWidget& strip)
{
    QLabel& label = childOf<QLabel>(strip);
    label.setObjectName(QStringLiteral("sentence"));
    label.setTextFormat(Qt::PlainText);
    label.setWordWrap(true); // on a narrow screen nothing of it is cut off
    return label;
}

} // namespace

NoticeStrip::NoticeStrip(const ControlMaker& maker, QWidget* parent)
    : QWidget(parent), sentence_(sentenceIn(*this))
{
    setObjectName(QStringLiteral("notice"));
    setAttribute(Qt::WA_StyledBackground);
    QHBoxLayout& row = childOf<QHBoxLayout>(*this);
    row.setContentsMargins(12, 5, 12, 5);
    row.setSpacing(12);
    row.addWidget(&sentence_, 1);
    for (const ControlId button : {ControlId(ids::noticeFirst), ControlId(ids::noticeSecond)}) {
        QWidget& widget = maker.make(button, *this);
        widget.setFocusPolicy(Qt::TabFocus); // a click leaves the keys where they were
        widget.installEventFilter(this);
        row.addWidget(&widget);
    }
    maker.views().add(ids::notice, *this);
}

// The first click may have brought up another matter, for which the second was not meant.
bool NoticeStrip::eventFilter(QObject* watched, QEvent* event)
{
    return event->type() == QEvent::MouseButtonDblClick || QWidget::eventFilter(watched, event);
}

void NoticeStrip::show(const Control& now)
{
    sentence_.setText(QString::fromStdString(now.caption));
    setAccessibleName(sentence_.text());
    setVisible(now.visible);
    if (!now.visible) return;
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

} // namespace mirtane
