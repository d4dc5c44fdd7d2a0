#pragma once

#include "app/shell.h"

#include <functional>

namespace mirtane {

// The one way from the widgets to the shell. After each event what the controls hold is copied to the screen;
// what the widgets report while that goes on is the copying's own doing, and is no event.
class EventGate {
  public:
    explicit EventGate(Shell& shell) : shell_(shell) {}

    // What copies the controls to the screen.
    void setCopying(std::function<void()> copy) { copy_ = std::move(copy); }

    bool closed() const { return closed_; }
    Shell& shell() { return shell_; }

    // Hands an event to the shell and shows what came of it; nothing while the gate is closed.
    template <class Event> void send(Event&& event)
    {
        if (closed_ || shell_.ended()) return;
        closed_ = true;
        event(shell_);
        if (copy_) copy_();
        closed_ = false;
    }

  private:
    Shell& shell_;
    std::function<void()> copy_;
    bool closed_ = false;
};

} // namespace mirtane
