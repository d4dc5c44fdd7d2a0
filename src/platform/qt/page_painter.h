#pragma once

#include "print/printer.h"

#include <QIODevice>
#include <QPageLayout>
#include <QPagedPaintDevice>
#include <QPainter>

#include <compare>
#include <map>
#include <memory>
#include <optional>

namespace mirtane {

// A page on one of the toolkit's paged devices: a PDF file or a printer.
class PagePainter : public Printer {
  public:
    // The printable area in twips.
    PagePainter(float width, float height) : width_(width), height_(height) {}

    float pageWidth() const override { return width_; }
    float pageHeight() const override { return height_; }
    void font(std::string_view name, double points) override;
    void text(double x, double y, std::string_view utf8) override;
    void pen(std::int16_t style, int width) override;
    void line(double x1, double y1, double x2, double y2) override;
    void circle(double x, double y, double r) override;
    void arc(double x, double y, double r, double a1, double a2) override;
    void point(double x, double y) override;
    void rotatedText(double x, double y, double height, int degrees, bool underline,
                     std::string_view utf8) override;
    bool endPage() override;

  protected:
    // Draws on a device from now on, with so many of its units to the twip, and to the dot that a pen's width
    // is counted in.
    bool beginOn(QPaintDevice& device, double unitsPerTwip, double unitsPerDot = 1);
    QPainter& painter() { return painter_; }
    QPointF at(double x, double y) const { return {x * unitsPerTwip_, y * unitsPerTwip_}; }

  private:
    double leastWidth() const;

    float width_;
    float height_;
    double unitsPerTwip_ = 1;
    double unitsPerDot_ = 1;
    QString fontName_;
    double fontPoints_ = 8;
    QPainter painter_;
};

// The pointer is an hourglass while one of these lives.
class WaitPointer {
  public:
    WaitPointer();
    ~WaitPointer();
    WaitPointer(const WaitPointer&) = delete;
    WaitPointer& operator=(const WaitPointer&) = delete;
};

// The page as a PDF file. Its lines are kept by pen until the page ends, so that the file says each pen once:
// all is black, and nobody sees which was drawn first.
class PdfPrinter : public PagePainter {
  public:
    explicit PdfPrinter(const QPageSize& paper, QPageLayout::Orientation way = QPageLayout::Portrait);

    bool printsToFile() const override { return true; }
    std::string setup(const PageName&) override { return {}; }
    bool beginPage(const PageName& name) override;
    void pen(std::int16_t style, int width) override;
    void line(double x1, double y1, double x2, double y2) override;
    bool endPage() override;

  private:
    struct Pen {
        std::int16_t style = -1; // none yet
        int width = 0;
        friend auto operator<=>(const Pen&, const Pen&) = default;
    };

    QPageLayout layout_;
    Pen pen_;
    std::map<Pen, QList<QLineF>> lines_;
    std::string file_;
    QByteArray bytes_;
    std::unique_ptr<QPagedPaintDevice> device_;
    std::unique_ptr<QIODevice> buffer_;
    std::optional<WaitPointer> wait_;
};

// The page as a picture, on whatever the painter stands on.
class PicturePrinter : public PagePainter {
  public:
    // The device shows width x height twips on pixels.
    PicturePrinter(QPaintDevice& device, float width, float height, double pixelsPerTwip);

    bool printsToFile() const override { return false; }
    std::string setup(const PageName&) override { return {}; }
    bool beginPage(const PageName& name) override;

  private:
    QPaintDevice& device_;
    double pixelsPerTwip_;
};

} // namespace mirtane
