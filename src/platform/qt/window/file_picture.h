#pragma once

#include "platform/qt/surface.h"
#include "platform/qt/window/control_view.h"
#include "platform/qt/window/event_gate.h"

#include <optional>

namespace mirtane {

// A small picture of what the file holds that is lit in the file dialog. While there is none it takes no
// room.
class FilePicture : public QWidget, public ControlView {
  public:
    FilePicture(EventGate& gate, QWidget* parent);

    void show(const Control& now) override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    EventGate& gate_;
    std::optional<Surface> surface_; // with the picture on it
};

} // namespace mirtane
