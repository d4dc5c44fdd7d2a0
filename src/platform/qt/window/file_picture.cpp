#include "platform/qt/window/file_picture.h"

#include "platform/qt/whole.h"

#include <QPainter>

namespace mirtane {
namespace {

constexpr int pictureHeight = 120;

} // namespace

FilePicture::FilePicture(EventGate& gate, QWidget* parent) : QWidget(parent), gate_(gate)
{
    setObjectName(nameOf(ids::filePicture));
    setAccessibleName(QStringLiteral("Picture of the file"));
    setFixedHeight(pictureHeight);
    hide();
}

void FilePicture::show(const Control& now)
{
    const int across = std::max(1, parentWidget()->width());
    const double ratio = devicePixelRatioF();
    surface_.emplace(wholeSize(QSizeF(across, pictureHeight) * ratio).width(),
                     wholeSize(QSizeF(across, pictureHeight) * ratio).height(), ratio);
    surface_->clear();
    const bool drawn = now.visible && !now.text.empty() && gate_.shell().previewFile(*surface_);
    if (!drawn) surface_.reset();
    setVisible(drawn);
    update();
}

void FilePicture::paintEvent(QPaintEvent*)
{
    if (!surface_) return;
    QImage image = surface_->shown();
    image.setDevicePixelRatio(devicePixelRatioF());
    QPainter(this).drawImage(QPoint(0, 0), image);
}

} // namespace mirtane
