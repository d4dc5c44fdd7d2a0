#pragma once

#include "platform/qt/window/control_view.h"
#include "platform/qt/window/event_gate.h"

#include <QLabel>

namespace mirtane {

// A line of text. A caption that is too long for its place is cut on the right and never widens the window.
class LabelView : public QLabel, public ControlView {
  public:
    LabelView(EventGate& gate, ControlId id, QWidget* parent);

    void show(const Control& now) override;
    // From now on the widget, which must live as long as this, goes by the caption.
    void names(QWidget& widget) { named_ = &widget; }

  protected:
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    EventGate& gate_;
    ControlId id_;
    QWidget* named_ = nullptr; // not owned
};

} // namespace mirtane
