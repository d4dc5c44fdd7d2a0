#pragma once

#include "platform/qt/window/control_view.h"
#include "platform/qt/window/event_gate.h"

namespace mirtane {

// The page as it would come out of the printer, drawn by the same operations.
class PagePicture : public QWidget, public ControlView {
  public:
    PagePicture(EventGate& gate, QWidget* parent);

    void show(const Control& now) override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    EventGate& gate_;
};

} // namespace mirtane
