#include "platform/qt/window/label_view.h"

#include <QMouseEvent>

namespace mirtane {

LabelView::LabelView(EventGate& gate, ControlId id, QWidget* parent) : QLabel(parent), gate_(gate), id_(id)
{
    setTextFormat(Qt::PlainText);
    setToolTip(tipOf(id));
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void LabelView::show(const Control& now)
{
    setText(QString::fromStdString(now.caption));
    setEnabled(now.enabled);
    setVisible(now.visible);
}

void LabelView::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) return;
    gate_.send([this](Shell& shell) { shell.click(id_); });
}

} // namespace mirtane
