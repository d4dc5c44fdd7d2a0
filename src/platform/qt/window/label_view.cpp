#include "platform/qt/window/label_view.h"

#include <QMouseEvent>

namespace mirtane {
namespace {

// The path of a file may go on in the next line behind each of its folders.
QString breakable(QString text)
{
    constexpr QChar noWidth(0x200B);
    return text.replace(u'/', QString(u'/') + noWidth);
}

} // namespace

LabelView::LabelView(EventGate& gate, ControlId id, QWidget* parent) : QLabel(parent), gate_(gate), id_(id)
{
    setTextFormat(Qt::PlainText);
    setToolTip(tipOf(id));
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void LabelView::show(const Control& now)
{
    const QString caption = QString::fromStdString(now.caption);
    setText(wordWrap() ? breakable(caption) : caption);
    if (named_ != nullptr && !caption.isEmpty()) named_->setAccessibleName(caption);
    setEnabled(now.enabled);
    setVisible(now.visible);
}

void LabelView::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) return;
    gate_.send([this](Shell& shell) { shell.click(id_); });
}

} // namespace mirtane
