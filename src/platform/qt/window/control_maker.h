#pragma once

#include "platform/qt/window/control_views.h"
#include "platform/qt/window/event_gate.h"

namespace mirtane {

// Makes the widget that shows a control, by the control's kind, and enters it into the views.
class ControlMaker {
  public:
    ControlMaker(EventGate& gate, ControlViews& views) : gate_(gate), views_(views) {}

    // A label, text box, list or button; the widget belongs to the parent.
    QWidget& make(ControlId id, QWidget& parent) const;
    // A label by whose caption what it names goes for those who don't see it.
    QWidget& makeLabel(ControlId label, QWidget& named, QWidget& parent) const;
    // A label and under it what it names, as one widget.
    QWidget& makeLabelled(ControlId label, ControlId named, QWidget& parent) const;

    EventGate& gate() const { return gate_; }
    ControlViews& views() const { return views_; }

  private:
    template <class View> QWidget& entered(ControlId id, QWidget& parent) const;

    EventGate& gate_;
    ControlViews& views_;
};

} // namespace mirtane
