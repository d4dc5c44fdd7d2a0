// Draws a picture in the sizes that a desktop wants: render_icon PICTURE.svg [PIXELS PICTURE.png]...

#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <iostream>

namespace {

int complain(const char* what, const char* name)
{
    std::cerr << what << ": " << name << '\n';
    return 1;
}

QImage drawn(QSvgRenderer& picture, int side)
{
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    picture.render(&painter);
    return image;
}

} // namespace

int main(int argc, char* argv[])
{
    constexpr int largest = 4096;
    if (argc < 2) return complain("wanted", "a picture, and then pixels and a file for each size");
    QSvgRenderer picture(QFile::decodeName(argv[1]));
    if (!picture.isValid()) return complain("can't be read", argv[1]);
    for (int i = 2; i + 1 < argc; i += 2) {
        const int side = QByteArray(argv[i]).toInt();
        if (side < 1 || side > largest) return complain("not a size", argv[i]);
        if (!drawn(picture, side).save(QFile::decodeName(argv[i + 1]), "PNG"))
            return complain("can't be written", argv[i + 1]);
    }
    return 0;
}
