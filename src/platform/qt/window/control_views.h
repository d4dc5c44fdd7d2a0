#pragma once

#include "platform/qt/window/control_view.h"

#include <optional>
#include <vector>

namespace mirtane {

// All views of the window, and what they show at present.
class ControlViews {
  public:
    // The view must live as long as this.
    void add(ControlId id, ControlView& view);

    // Copies to the screen what has changed since the last call, and moves the keyboard focus if it is to be
    // elsewhere.
    void copy(const Controls& controls);

  private:
    struct Entry {
        ControlId id;
        ControlView* view; // belongs to its parent widget
        std::optional<Control> shown;
    };

    void moveFocus(ControlId id);

    std::vector<Entry> entries_;
    std::optional<ControlId> focused_; // as it was last shown
};

} // namespace mirtane
