#include "platform/qt/window/control_views.h"

#include <QApplication>

#include <algorithm>
#include <utility>

namespace mirtane {
namespace {

bool anotherIsInFront(const QWidget& window)
{
    const QWidget* const active = QApplication::activeWindow();
    return active != nullptr && active != &window; // null: it is another program's
}

} // namespace

void ControlViews::add(ControlId id, ControlView& view)
{
    entries_.push_back({id, &view, std::nullopt});
}

void ControlViews::copy(const Controls& controls)
{
    for (Entry& entry : entries_) {
        const Control& now = controls[entry.id];
        if (entry.shown == now) continue;
        entry.shown = now;
        entry.view->show(now);
    }
    moveFocus(controls.focus);
}

void ControlViews::moveFocus(ControlId id)
{
    const auto entry =
        std::find_if(entries_.begin(), entries_.end(), [id](const Entry& one) { return one.id == id; });
    if (entry == entries_.end()) return;
    QWidget* widget = entry->view->focusWidget();
    if (widget == nullptr || !widget->isVisible() || !widget->isEnabled()) return;
    QWidget* window = widget->window();
    const bool went = std::exchange(focused_, id) != id;
    // The window that the user has brought to the front stays there until the focus goes to another.
    if (went && anotherIsInFront(*window)) window->activateWindow();
    if (window->focusWidget() != widget) widget->setFocus(Qt::OtherFocusReason);
}

} // namespace mirtane
