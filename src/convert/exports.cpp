#include "convert/exports.h"

#include "dxf/dxf_writer.h"
#include "exchange/dxf_drawing.h"
#include "files/drawing_file.h"
#include "files/drawing_text.h"
#include "platform/qt/page_painter.h"
#include "print/page.h"
#include "render/view.h"
#include "text/numbers.h"

#include <QBuffer>
#include <QSvgGenerator>

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <iostream>

namespace mirtane::convert {
namespace {

using Fault = std::optional<std::string>;

constexpr double twipsPerInch = 1440;
constexpr double twipsPerPoint = 20;
constexpr int dotsPerInch = 600; // those of a PDF file, so that lines are as thin

Fault put(App& app, const std::string& out, const Bytes& bytes)
{
    if (app.ports.disk.writeWhole(out, bytes)) return std::nullopt;
    return "can't be written: " + out;
}

Fault put(App& app, const std::string& out, const QByteArray& bytes)
{
    return put(app, out, Bytes(bytes.begin(), bytes.end()));
}

// One layer is what the menus save as a selection: other objects stay out.
Fault writeMtd(App& app, const std::string& out, const Wishes& wishes)
{
    return put(app, out, drawingBytes(app.s, wishes.layer ? SaveWhat::selected : SaveWhat::drawing));
}

Fault put(App& app, const std::string& out, const std::string& bytes)
{
    return put(app, out, Bytes(bytes.begin(), bytes.end()));
}

// For other programs.
Fault writeDxf(App& app, const std::string& out, const Wishes& wishes, Outcome& outcome)
{
    const DxfDrawing file =
        dxfDrawing({app.s.store, app.s.layerTable, app.s, wishes.layer, textWidthOn(app.pic1)});
    if (file.leftOut > 0) {
        outcome.leftOut = true;
        outcome.remarks.push_back(withThousands(file.leftOut) +
                                  (file.leftOut == 1 ? " object that shows" : " objects that show") +
                                  " nothing left out");
    }
    return put(app, out, file.bytes);
}

// As Save DXF does.
Fault writePlainDxf(App& app, const std::string& out)
{
    const DxfFile file = dxfFile(app.s.store, app.dxfScratch);
    if (const Fault fault = put(app, out, file.bytes)) return fault;
    if (file.whole) return std::nullopt;
    return "cut off at a dimension of an unknown arrow style: " + out;
}

std::string shownScale(double drawingUnits)
{
    return "1:" +
           std::to_string(static_cast<std::int64_t>(std::ceil(drawingUnits))); // page and drawing are finite
}

// What keeps the selection from its scale on a page of that size; nothing where it fits.
Fault setUpPage(App& app, const Printer& printer, const Wishes& wishes)
{
    app.s.pageWidth = printer.pageWidth();
    app.s.pageHeight = printer.pageHeight();
    app.s.printFactor = 1;
    const double fitted = fittedScale(app.s, app.s.store); // sets the bounds of the selection
    if (!wishes.scale) return std::nullopt;
    const double wished = static_cast<double>(wishes.scale->drawing) / wishes.scale->paper;
    if (scaleTo(app.s, app.s.store, wished)) return std::nullopt;
    return "does not fit on the paper at this scale; " + shownScale(fitted) + " does";
}

void drawSelection(App& app, Printer& printer)
{
    drawPage(app.s.store, pageMapping(app.s, app.s.store), app.s.pageHeight, printer);
}

Fault writePdf(App& app, const std::string& out, const Wishes& wishes)
{
    PdfPrinter printer(QPageSize(wishes.paper), wishes.way);
    if (const Fault fault = setUpPage(app, printer, wishes)) return fault;
    if (!printer.beginPage({out, {}})) return "can't be drawn as a page";
    drawSelection(app, printer);
    if (printer.endPage()) return std::nullopt;
    return "can't be written: " + out;
}

std::string without(std::string_view utf8, bool (*dropped)(char))
{
    std::string kept(utf8);
    std::erase_if(kept, dropped);
    return kept;
}

bool isControl(char c)
{
    return (c >= 0 && c < ' ') || c == 0x7F;
}

bool endsAnAttribute(char c)
{
    return isControl(c) || c == '"' || c == '<' || c == '>' || c == '&';
}

bool areFinite(std::initializer_list<double> numbers)
{
    return std::all_of(numbers.begin(), numbers.end(), [](double n) { return std::isfinite(n); });
}

// A picture of which every reader of XML can read all: the toolkit puts names of fonts, control characters
// and numbers that are none into the file as they are.
class SvgPrinter : public PicturePrinter {
  public:
    using PicturePrinter::PicturePrinter;

    void font(std::string_view name, double points) override
    {
        PicturePrinter::font(without(name, endsAnAttribute), points);
    }
    void rotatedText(double x, double y, double height, int degrees, bool underline,
                     std::string_view utf8) override
    {
        if (!areFinite({x, y})) return;
        PicturePrinter::rotatedText(x, y, height, degrees, underline, without(utf8, isControl));
    }
    void line(double x1, double y1, double x2, double y2) override
    {
        if (areFinite({x1, y1, x2, y2})) PicturePrinter::line(x1, y1, x2, y2);
    }
    void circle(double x, double y, double r) override
    {
        if (areFinite({x, y, r})) PicturePrinter::circle(x, y, r);
    }
    void arc(double x, double y, double r, double a1, double a2) override
    {
        if (areFinite({x, y, r})) PicturePrinter::arc(x, y, r, a1, a2);
    }
    void point(double x, double y) override
    {
        if (areFinite({x, y})) PicturePrinter::point(x, y);
    }
};

Fault writeSvg(App& app, const std::string& out, const Wishes& wishes)
{
    const QPageLayout layout(QPageSize(wishes.paper), wishes.way, {}, QPageLayout::Point);
    const QSizeF twips = layout.fullRect().size() * twipsPerPoint;
    const QSize dots = (twips * (dotsPerInch / twipsPerInch)).toSize();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QSvgGenerator svg;
    svg.setOutputDevice(&buffer);
    svg.setResolution(dotsPerInch);
    svg.setSize(dots);
    svg.setViewBox(QRect(QPoint(0, 0), dots));
    svg.setTitle(QStringLiteral("Mirtane 4.00"));
    // A page is a few thousand twips wide.
    SvgPrinter printer(svg, static_cast<float>(twips.width()), static_cast<float>(twips.height()),
                       dotsPerInch / twipsPerInch);
    if (const Fault fault = setUpPage(app, printer, wishes)) return fault;
    if (!printer.beginPage({})) return "can't be drawn as a page";
    drawSelection(app, printer);
    if (!printer.endPage()) return "can't be drawn as a page";
    return put(app, out, bytes);
}

// To "-", on standard output.
Fault writeText(App& app, const std::string& out, const Wishes& wishes)
{
    const std::string text = drawingText(app.s, wishes.layer);
    if (out != standardOutput) return put(app, out, text);
    std::cout << text << std::flush;
    if (std::cout) return std::nullopt;
    return "can't be written to standard output";
}

Fault writeSelected(App& app, const std::string& out, const Wishes& wishes, Outcome& outcome)
{
    changeStat(app.s.store, Stat::on, Stat::sel);
    switch (wishes.format) { // no default: a new format is a warning here
    case Format::mtd:
        return writeMtd(app, out, wishes);
    case Format::dxf:
        return wishes.asWindow ? writePlainDxf(app, out) : writeDxf(app, out, wishes, outcome);
    case Format::svg:
        return writeSvg(app, out, wishes);
    case Format::pdf:
        return writePdf(app, out, wishes);
    case Format::txt:
        return writeText(app, out, wishes);
    case Format::png:
        break; // no selection shows in it
    }
    return "can't be written: " + out;
}

} // namespace

Fault writePicture(App& app, const std::string& out, const Surface& surface)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (!surface.shown().save(&buffer, "PNG")) return "can't be made a picture";
    return put(app, out, bytes);
}

void exportTo(const std::string& out, const Wishes& wishes, App& app, const Surface& surface,
              Outcome& outcome)
{
    outcome.fault = wishes.format == Format::png ? writePicture(app, out, surface)
                                                 : writeSelected(app, out, wishes, outcome);
}

} // namespace mirtane::convert
