#pragma once

#include "platform/qt/window/control_maker.h"

#include <QLabel>

namespace mirtane {

// The line across the foot of the drawing: a sentence and up to two buttons. It takes no focus by itself; Tab
// leads to its buttons, and a screen reader reads it when it comes up.
class NoticeStrip : public QWidget, public ControlView {
  public:
    NoticeStrip(const ControlMaker& maker, QWidget* parent);

    void show(const Control& now) override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QLabel& sentence_; // belongs to this
};

} // namespace mirtane
