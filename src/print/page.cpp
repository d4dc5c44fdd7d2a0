#include "print/page.h"

#include "geometry/angle.h"
#include "geometry/ellipse.h"
#include "geometry/fault.h"
#include "render/dimension_strokes.h"
#include "render/text_painter.h"
#include "tables/kinds.h"
#include "tables/pens.h"

#include <algorithm>
#include <cmath>

namespace mirtane {
namespace {

constexpr double twipsPerInch = 1440;
constexpr double twipsPerPoint = 20;
constexpr double marginTwips = 720; // half an inch, off each dimension of the page
constexpr double marginInches = 0.5;
constexpr double unitsPerInch = 12;

struct Bounds {
    bool fed = false;
    Point least, most;

    void feed(Point p)
    {
        if (!std::isfinite(p.x) || !std::isfinite(p.y)) return;
        if (!fed) least = most = p;
        fed = true;
        least = {std::min(least.x, p.x), std::min(least.y, p.y)};
        most = {std::max(most.x, p.x), std::max(most.y, p.y)};
    }
};

void feedEllipse(Bounds& box, const EntityRecord& r)
{
    for (const Point end : axisEnds({r.p1, r.p2, r.p3.x})) box.feed(end);
}

void feedRound(Bounds& box, const EntityRecord& r)
{
    box.feed({r.p1.x - r.rad, r.p1.y - r.rad});
    box.feed({r.p1.x + r.rad, r.p1.y + r.rad});
}

template <class... Pairs> void feedAll(Bounds& box, const EntityRecord& r, Pairs... pairs)
{
    (box.feed(r.*pairs), ...);
}

void feedRecord(Bounds& box, const EntityRecord& r)
{
    using R = EntityRecord;
    switch (r.kind) {
    case Kind::line:
        return feedAll(box, r, &R::p1, &R::p2);
    case Kind::circle:
    case Kind::arc:
        return feedRound(box, r);
    case Kind::ellipse:
        return feedEllipse(box, r);
    case Kind::point:
        return feedAll(box, r, &R::p1);
    case Kind::text:
        return feedAll(box, r, &R::p1, &R::p4);
    case Kind::linearDimension:
        return feedAll(box, r, &R::p1, &R::p2, &R::p3, &R::p4, &R::p5);
    case Kind::radialDimension:
    case Kind::leader:
    case Kind::angularDimension:
        return feedAll(box, r, &R::p1, &R::p2, &R::p3, &R::p5);
    }
}

template <class Take> void forEachSelected(const EntityStore& store, Take take)
{
    for (std::int32_t i = 1; i < store.end(); ++i) {
        const std::size_t at = EntityStore::at(i);
        if (store.stat[at] == Stat::sel && isDrawnKind(store.kind[at])) take(store.record(i));
    }
}

void measureSelection(PrintState& page, const EntityStore& store)
{
    Bounds box;
    forEachSelected(store, [&](const EntityRecord& r) { feedRecord(box, r); });
    page.printMinX = box.least.x;
    page.printMinY = box.least.y;
    page.printMaxX = box.most.x;
    page.printMaxY = box.most.y;
}

// An object's colour is its pen. One that is none keeps the width of the object before it.
void takeWidth(int& width, std::int32_t color)
{
    const auto* const found = std::ranges::find(pens, color, &Pen::color);
    if (found != std::end(pens)) width = found->paperWidth;
}

// Strokes of a dimension go to the page as they go to the surface.
class PageStrokes : public StrokeSink {
  public:
    PageStrokes(const PageMapping& mapping, Printer& printer) : mapping_(mapping), printer_(printer) {}

    void line(Point a, Point b) override
    {
        printer_.line(mapping_.x(a.x), mapping_.y(a.y), mapping_.x(b.x), mapping_.y(b.y));
    }

    void arc(Point centre, Point, float r, double a1, double a2) override
    {
        printer_.arc(mapping_.x(centre.x), mapping_.y(centre.y), mapping_.scale * r, a1, a2);
    }

  private:
    const PageMapping& mapping_;
    Printer& printer_;
};

// In as many chords as the surface would take were it as high as the page.
void drawEllipse(const EntityRecord& r, double pageHeight, const PageMapping& mapping, PageStrokes& strokes)
{
    constexpr std::int32_t leastChords = 36;
    const double radius = distance(r.p1, r.p2);
    const double ux = quotient(r.p1.x - r.p2.x, radius);
    const double uy = quotient(r.p2.y - r.p1.y, radius);
    if (!std::isfinite(ux * uy * r.p3.x)) return;
    std::int16_t counted = 0;
    keep(counted, quotient(2 * radius * mapping.scale * halfTurn, pageHeight / 6));
    const std::int32_t count = std::max<std::int32_t>(counted, leastChords);
    Point previous = r.p1;
    for (std::int32_t k = 1; k <= count; ++k) {
        const double angle = k * (fullTurn / count);
        const double along = radius * std::cos(angle);
        const double across = radius * std::sin(angle) * r.p3.x;
        Point next = previous;
        keep(next.x, r.p2.x + along * ux - across * uy);
        keep(next.y, r.p2.y - along * uy - across * ux);
        strokes.line(previous, next);
        previous = next;
    }
}

void drawGeometry(const EntityRecord& r, double pageHeight, const PageMapping& mapping, Printer& printer)
{
    PageStrokes strokes(mapping, printer);
    const double x = mapping.x(r.p1.x);
    const double y = mapping.y(r.p1.y);
    switch (r.kind) {
    case Kind::line:
        return strokes.line(r.p1, r.p2);
    case Kind::circle:
        return printer.circle(x, y, mapping.scale * r.rad);
    case Kind::arc:
        return printer.arc(x, y, mapping.scale * r.rad, r.a1, r.a2);
    case Kind::ellipse:
        return drawEllipse(r, pageHeight, mapping, strokes);
    case Kind::point:
        return printer.point(x, y);
    case Kind::text:
    case Kind::linearDimension:
    case Kind::radialDimension:
    case Kind::leader:
    case Kind::angularDimension:
        return dimensionStrokes(shapeOf(r), strokes);
    }
}

void printWords(const EntityRecord& r, const PageMapping& mapping, Printer& printer)
{
    const Lettering words = letteringOf(r);
    std::int32_t degrees = 0;
    keep(degrees, words.degrees);
    const double height = words.size * mapping.scale;
    printer.font(words.font, height / twipsPerPoint);
    printer.rotatedText(mapping.x(words.at.x), mapping.y(words.at.y), height, degrees, words.underlined,
                        words.words);
}

} // namespace

float fittedScale(PrintState& page, const EntityStore& store)
{
    measureSelection(page, store);
    const double w = (static_cast<double>(page.printMaxX) - page.printMinX) /
                     unitsPerInch; // widened before the difference
    const double h = (static_cast<double>(page.printMaxY) - page.printMinY) / unitsPerInch; // likewise
    const double pageW = page.pageWidth / twipsPerInch - marginInches;
    const double pageH = page.pageHeight / twipsPerInch - marginInches;
    float fitted = 0;
    keep(fitted, h * quotient(pageW, pageH) > w ? quotient(h, pageH) : quotient(w, pageW));
    return fitted;
}

PageMapping pageMapping(PrintState& page, const EntityStore& store)
{
    measureSelection(page, store);
    const double dx = static_cast<double>(page.printMaxX) - page.printMinX; // widened before the difference
    const double dy = static_cast<double>(page.printMaxY) - page.printMinY; // likewise
    const bool byHeight = dy * quotient(page.pageWidth, page.pageHeight) > dx;
    keep(page.printScale,
         byHeight ? quotient(page.pageHeight - marginTwips, dy) : quotient(page.pageWidth - marginTwips, dx));
    keep(page.printScale,
         static_cast<double>(page.printScale) * page.printFactor); // widened before the product
    const double scale = page.printScale;
    keep(page.printOriginX, page.printMinX * scale - (page.pageWidth - scale * dx) / 2);
    keep(page.printOriginY, page.printMinY * scale - (page.pageHeight - scale * dy) / 2);
    return {scale, page.printOriginX, page.printOriginY};
}

bool scaleTo(PrintState& page, const EntityStore& store, double drawingUnits)
{
    constexpr double rounding = 1.000001; // a selection that just fits is no larger than the page
    const double wished = quotient(twipsPerInch, unitsPerInch * drawingUnits);
    const double width = (static_cast<double>(page.printMaxX) - page.printMinX) * wished;
    const double height = (static_cast<double>(page.printMaxY) - page.printMinY) * wished;
    const bool fits = width <= (page.pageWidth - marginTwips) * rounding &&
                      height <= (page.pageHeight - marginTwips) * rounding;
    if (!fits) return false;
    page.printFactor = 1;
    keep(page.printFactor, quotient(wished, pageMapping(page, store).scale));
    return true;
}

void drawPage(const EntityStore& store, const PageMapping& mapping, double pageHeight, Printer& printer)
{
    printer.font("Garamond", 8);
    printer.text(0, 0, "Mirtane 4.00");
    forEachSelected(store, [&](const EntityRecord& r) {
        if (hasWords(r.kind)) printWords(r, mapping, printer);
    });
    int width = 1;
    forEachSelected(store, [&](const EntityRecord& r) {
        if (r.kind == Kind::text) return;
        takeWidth(width, r.color);
        printer.pen(hasLineStyle(r.kind) ? r.style : std::int16_t{0}, width);
        drawGeometry(r, pageHeight, mapping, printer);
    });
}

} // namespace mirtane
