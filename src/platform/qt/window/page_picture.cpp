#include "platform/qt/window/page_picture.h"

#include "app/dialogs/print_dialog.h"
#include "platform/qt/page_painter.h"
#include "platform/qt/whole.h"

#include <QPainter>

#include <algorithm>

namespace mirtane {

PagePicture::PagePicture(EventGate& gate, QWidget* parent) : QWidget(parent), gate_(gate)
{
    setMinimumSize(240, 300);
    setObjectName(nameOf(ids::pagePicture));
    setAccessibleName(QStringLiteral("Picture of the page"));
}

void PagePicture::show(const Control&)
{
    update();
}

void PagePicture::paintEvent(QPaintEvent*)
{
    const Session& s = gate_.shell().session();
    if (!(s.pageWidth > 0 && s.pageHeight > 0)) return;
    const double ratio = devicePixelRatioF();
    const double scale = std::min(width() * ratio / s.pageWidth, height() * ratio / s.pageHeight);
    QImage page(wholeSize({s.pageWidth * scale, s.pageHeight * scale}).expandedTo(QSize(1, 1)),
                QImage::Format_RGB32);
    page.fill(Qt::white);
    PicturePrinter printer(page, s.pageWidth, s.pageHeight, scale);
    if (printer.beginPage({})) {
        replay(pagePreview(s), printer);
        printer.endPage();
    }
    page.setDevicePixelRatio(ratio);
    const QSizeF shown = page.deviceIndependentSize();
    QPainter(this).drawImage(QPointF((width() - shown.width()) / 2, (height() - shown.height()) / 2), page);
}

} // namespace mirtane
