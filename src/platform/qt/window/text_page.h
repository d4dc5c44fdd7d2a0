#pragma once

#include "platform/qt/window/control_view.h"
#include "platform/qt/window/event_gate.h"

#include <QPlainTextEdit>

namespace mirtane {

// A long text that is read and not edited.
class TextPage : public QPlainTextEdit, public ControlView {
  public:
    TextPage(EventGate& gate, ControlId id, QWidget* parent);

    void show(const Control& now) override;
    QWidget* focusWidget() override { return this; }
};

} // namespace mirtane
