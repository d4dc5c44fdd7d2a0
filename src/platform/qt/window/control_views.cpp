#include "platform/qt/window/control_views.h"

#include <QApplication>

#include <algorithm>
#include <utility>

namespace mirtane {
namespace {

// Of two windows that stand by themselves the one that the user brings to the front stays there, until the
// focus goes to the other.
bool callsKeys(const QWidget& window, bool focusWent)
{
    const QWidget* const active = QApplication::activeWindow();
    if (active == nullptr || active == &window)
        return false; // no window of the program is in front, or that one
    const bool areEqual = window.parentWidget() == nullptr && active->parentWidget() == nullptr;
    return focusWent || !areEqual;
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
    if (callsKeys(*window, went)) window->activateWindow();
    if (window->focusWidget() != widget) widget->setFocus(Qt::OtherFocusReason);
}

} // namespace mirtane
