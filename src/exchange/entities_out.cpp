#include "exchange/entities_out.h"

#include "exchange/ellipse_arc.h"
#include "exchange/made_of.h"
#include "exchange/pens_out.h"
#include "exchange/words_out.h"
#include "geometry/arc.h"
#include "geometry/fault.h"
#include "render/dimension_strokes.h"
#include "tables/kinds.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace mirtane {
namespace {

// How far below its upper corner a line of text stands, and how far above that its capitals have their
// middle.
Vec down(const Lettering& text, double sizes)
{
    const double angle = text.degrees * exactRadiansPerDegree;
    return -(toInches(text.size) * sizes) * turnedLeft(wayAt(angle));
}

struct DimensionKind {
    int number;
    const char* marker;
};

constexpr DimensionKind dimensionKinds(Kind kind)
{
    if (kind == Kind::radialDimension) return {4, "AcDbRadialDimension"};
    if (kind == Kind::angularDimension) return {5, "AcDb3PointAngularDimension"};
    return {0, "AcDbAlignedDimension"};
}

double degreesBetween(Vec a, Vec b)
{
    return a == b ? 0 : directionOf(b - a) / exactRadiansPerDegree;
}

// Whether a reader of the record has the arc again, to the bit. There are angles that no number of degrees
// comes to, and of little of a turn a reader makes a line.
bool comesBackByItself(const Made& arc)
{
    const auto isExact = [](double angle) { return degreesOf(angle) * exactRadiansPerDegree == angle; };
    return isExact(arc.from) && isExact(arc.to) && turnOf(arc) > 2 * leastTurnOfArc;
}

} // namespace

Vec baselineOf(const Lettering& text, Vec corner)
{
    return corner + down(text, 1);
}

// reactor: what is told when the record changes, if anything.
void EntitiesOut::begin(const char* type, const EntityRecord& r, DxfHandle reactor)
{
    kept_.clear();
    handle_ = following_ != 0 ? std::exchange(following_, 0) : plan_.newHandle();
    out_.text(0, type);
    out_.handle(5, handle_);
    if (reactor != 0) {
        out_.text(102, "{ACAD_REACTORS");
        out_.handle(330, reactor);
        out_.text(102, "}");
    }
    out_.handle(330, fixed::model);
    out_.text(100, "AcDbEntity");
    look(r);
}

// What an object shares with its layer it does not name, so that it follows when others change the layer.
void EntitiesOut::look(const EntityRecord& r)
{
    const LayerOut& layer = plan_.layerOf(r.layer);
    const PenOut& pen = penOut(r.color);
    const bool dashed = hasLineStyle(r.kind) && &lineTypeOut(r.style) != &lineTypeOut(pen::solid);
    out_.text(8, layer.name);
    if (dashed) out_.text(6, lineTypeOut(r.style).name);
    if (pen.color == layer.color) return;
    out_.whole(62, pen.number);
    out_.whole(370, pen.hundredths);
}

void EntitiesOut::kept(int code, double value)
{
    out_.number(code, value);
    kept_.push_back({code, value});
}

void EntitiesOut::kept(int code, Vec p)
{
    constexpr int step = 10;
    out_.point(code, p);
    kept_.push_back({code, p.x});
    kept_.push_back({code + step, p.y});
}

void EntitiesOut::keptDegrees(int code, double radians)
{
    out_.degrees(code, radians);
    kept_.push_back({code, degreesOf(radians)});
}

void EntitiesOut::write(std::int32_t slot)
{
    const EntityRecord r = drawing_.store.record(slot);
    const Made made = madeOf(r);
    switch (r.kind) {
    case Kind::line:
        begin("LINE", r);
        out_.text(100, "AcDbLine");
        out_.point(10, made.p[0]);
        return out_.point(11, made.p[1]);
    case Kind::circle:
        begin("CIRCLE", r);
        return round(made);
    case Kind::arc:
        return arc(r, made);
    case Kind::ellipse:
        begin("ELLIPSE", r);
        return ellipse(made);
    case Kind::point:
        begin("POINT", r);
        out_.text(100, "AcDbPoint");
        return out_.point(10, made.p[0]);
    case Kind::text:
        begin("TEXT", r);
        return text(r, made);
    case Kind::linearDimension:
    case Kind::radialDimension:
    case Kind::angularDimension:
        begin("DIMENSION", r);
        return dimension(slot, r, made);
    case Kind::leader:
        return leader(r, made);
    }
}

void EntitiesOut::round(const Made& made)
{
    out_.text(100, "AcDbCircle");
    kept(10, made.p[0]);
    kept(40, made.radius);
}

// One that comes to a whole turn but for rounding is a circle to the eye. To a reader its ends would be one.
void EntitiesOut::arc(const EntityRecord& r, const Made& made)
{
    constexpr double nearlyWhole = wholeTurn - 1e-9;
    const bool isWhole = sweepSeen(r.a1, r.a2) >= nearlyWhole;
    begin(isWhole ? "CIRCLE" : "ARC", r);
    round(made);
    if (isWhole) return;
    out_.text(100, "AcDbArc");
    keptDegrees(50, made.from);
    keptDegrees(51, made.to);
    if (!comesBackByItself(made)) writeOwnData(out_, made, kept_);
}

// The first axis of the format is the longer one, and its ratio has a least value; what is flatter is a line
// to the eye.
void EntitiesOut::ellipse(const Made& made)
{
    constexpr double leastRatio = 1e-6;
    const Vec first = made.p[0] - made.p[1];
    const double ratio = std::abs(made.ratio);
    const bool swapped = ratio > 1;
    out_.text(100, "AcDbEllipse");
    kept(10, made.p[1]);
    kept(11, swapped ? ratio * turnedLeft(first) : first);
    kept(40, std::max(swapped ? 1 / ratio : ratio, leastRatio));
    out_.number(41, 0);
    out_.exact(42, 2 * std::numbers::pi);
    writeOwnData(out_, made, kept_); // one that is round would come back as a circle
}

void EntitiesOut::text(const EntityRecord& r, const Made& made)
{
    const Lettering words = letteringOf(r);
    const int side = dxfSideOf(made.text.justification);
    out_.text(100, "AcDbText");
    kept(10, baselineOf(words, toInches(r.p4)));
    kept(40, made.size * capitals);
    out_.text(1, wordsShown(made));
    kept(50, made.rotation);
    out_.text(7, plan_.faces().at(r.t2).name);
    if (side != 0) {
        out_.whole(72, side);
        kept(11, baselineOf(words, made.p[0]));
    }
    out_.text(100, "AcDbText");
    writeOwnData(out_, made, kept_);
}

// Its picture is a block; what it measures is told besides, for programs that draw it anew.
void EntitiesOut::dimension(std::int32_t slot, const EntityRecord& r, const Made& made)
{
    constexpr int hasOwnBlock = 32;
    constexpr int textWasPlaced = 128;
    constexpr int middleOfMiddle = 5;
    const Lettering words = letteringOf(r);
    float width = 0;
    keep(width, drawing_.widthOf(r));
    const Vec half = toInches(double{width}) / 2 * wayAt(words.degrees * exactRadiansPerDegree);
    const DimensionKind kind = dimensionKinds(r.kind);
    const Vec middle = made.p[4] + half + down(words, 1 - capitals / 2);
    out_.text(100, "AcDbDimension");
    out_.text(2, plan_.pictures().at(slot).name);
    const double angle = middleAngle(r.a1, r.a2);
    const bool angular = r.kind == Kind::angularDimension;
    const bool radial = r.kind == Kind::radialDimension;
    kept(10, angular ? made.p[0] + made.radius * wayAt(angle) : made.p[radial ? 0 : 2]);
    kept(11, middle);
    out_.whole(70, kind.number + hasOwnBlock + textWasPlaced);
    out_.whole(71, middleOfMiddle);
    out_.text(1, wordsShown(made));
    kept(53, made.rotation);
    out_.text(3, plan_.arrowStyles().at(*arrowLookOf(r)).name);
    out_.text(100, kind.marker);
    measured(r, made);
    writeOwnData(out_, made, kept_);
}

void EntitiesOut::measured(const EntityRecord& r, const Made& made)
{
    if (r.kind == Kind::radialDimension) {
        kept(15, made.p[3]);
        return kept(40, length(made.p[1] - made.p[3]));
    }
    kept(13, made.p[r.kind == Kind::linearDimension ? 0 : 1]);
    kept(14, made.p[r.kind == Kind::linearDimension ? 1 : 2]);
    if (r.kind == Kind::angularDimension) return kept(15, made.p[0]);
    kept(50, degreesBetween(made.p[3], made.p[2]));
    out_.text(100, "AcDbRotatedDimension");
}

void EntitiesOut::leader(const EntityRecord& r, const Made& made)
{
    constexpr int ofParagraph = 0;
    constexpr int ofNothing = 3;
    const bool hasText = isAnnotated(made);
    begin("LEADER", r);
    const DxfHandle own = handle_;
    if (hasText) following_ = plan_.newHandle();
    out_.text(100, "AcDbLeader");
    out_.text(3, plan_.arrowStyles().at(*arrowLookOf(r)).name);
    out_.whole(71, 1); // with an arrow
    out_.whole(72, 0); // of straight lines
    out_.whole(73, hasText ? ofParagraph : ofNothing);
    out_.whole(76, 3);
    for (int i = 0; i < 3; ++i) kept(10, made.p[static_cast<std::size_t>(i)]); // 0 to 2
    if (hasText) out_.handle(340, following_);
    writeOwnData(out_, made, kept_);
    if (hasText) annotation(r, made, own);
}

// In pieces, of which the last has a code of its own.
void EntitiesOut::paragraph(std::string_view words)
{
    constexpr std::size_t longest = 250;
    for (; words.size() > longest; words.remove_prefix(longest)) out_.text(3, words.substr(0, longest));
    out_.text(1, words);
}

// A paragraph's upper corner is at the top of its capitals.
void EntitiesOut::annotation(const EntityRecord& r, const Made& made, DxfHandle leader)
{
    constexpr int upperLeft = 1;
    constexpr int leftToRight = 1;
    begin("MTEXT", r, leader);
    out_.text(100, "AcDbMText");
    kept(10, made.p[4] + down(letteringOf(r), 1 - capitals));
    kept(40, made.size * capitals);
    out_.number(41, 0); // it is never wrapped
    out_.whole(71, upperLeft);
    out_.whole(72, leftToRight);
    paragraph(dxfParagraph(r.t1));
    out_.text(7, plan_.faces().at(r.t2).name);
    kept(11, wayAt(made.rotation * exactRadiansPerDegree));
    writeOwnPart(out_, kept_);
}

} // namespace mirtane
