#pragma once

#include "model/controls.h"

#include <QFocusEvent>
#include <QWidget>

namespace mirtane {

// What shows one control on the screen.
class ControlView {
  public:
    virtual ~ControlView() = default;

    // Copies the control's values to the widget. It is called when one of them has changed.
    virtual void show(const Control& now) = 0;
    // The widget that takes the keyboard focus for the control; none for a menu entry.
    virtual QWidget* focusWidget() { return nullptr; }
};

// A caption as the toolkit wants it: "&" is a character of its own and no mnemonic.
inline QString captionOf(const Control& control)
{
    return QString::fromStdString(control.caption).replace(QLatin1Char('&'), QLatin1String("&&"));
}

inline QString nameOf(ControlId id)
{
    return QString::fromUtf8(id.row().name.data(), static_cast<qsizetype>(id.row().name.size())); // short
}

inline QString tipOf(ControlId id)
{
    return QString::fromUtf8(id.row().tip.data(), static_cast<qsizetype>(id.row().tip.size())); // short
}

// Whether the user moved the focus, by pointer or key; a window that comes to the front moves none.
inline bool byUser(const QFocusEvent& event)
{
    const Qt::FocusReason reason = event.reason();
    return reason == Qt::MouseFocusReason || reason == Qt::TabFocusReason ||
           reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason;
}

} // namespace mirtane
