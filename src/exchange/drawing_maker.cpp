#include "exchange/drawing_maker.h"

#include "exchange/bounds.h"
#include "exchange/curve_strokes.h"
#include "exchange/faces.h"
#include "exchange/upright_text.h"
#include "geometry/fault.h"
#include "model/entity_store.h"
#include "text/code_page.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>

namespace mirtane {
namespace {

struct LinePart {
    double first, last;
};

// From where to where a line through a point runs within a box, in lengths of its way; nowhere if last is
// before first.
LinePart rangeWithin(Vec from, Vec way, Vec low, Vec high)
{
    constexpr double endless = std::numeric_limits<double>::infinity();
    LinePart range{-endless, endless};
    const auto clip = [&range](double at, double step, double least, double most) {
        const double a = quotient(least - at, step), b = quotient(most - at, step);
        const bool isIn = at >= least && at <= most;
        if (step == 0) return isIn ? range : LinePart{0, -1};
        return LinePart{std::max(range.first, std::min(a, b)), std::min(range.last, std::max(a, b))};
    };
    range = clip(from.x, way.x, low.x, high.x);
    range = clip(from.y, way.y, low.y, high.y);
    return std::isfinite(range.first) && std::isfinite(range.last) ? range : LinePart{0, -1};
}

constexpr std::int64_t stepsOfStroke = 4; // of a curve, since it has to be fitted to it
constexpr std::size_t deepest = 32;       // blocks within blocks
constexpr std::size_t roomForPatterns =
    58'000; // the rest of the table is for names of layers, and for whoever draws on
constexpr std::size_t mostPatternLines =
    400'000; // of all hatches, before it is known which of them have room
constexpr std::size_t mostOutlineStrokes = 400'000; // likewise
constexpr std::string_view noLines = "the lines, for want of room";
constexpr std::string_view lettersLost = "letters that drawings can't keep";
constexpr std::size_t mostObjects = EntityStore::slotCount - 1;

bool isFinite(const Made& made)
{
    constexpr double farthest = 1e30; // what a coordinate holds in any unit
    const auto near = [](Vec p) { return std::abs(p.x) < farthest && std::abs(p.y) < farthest; };
    return std::ranges::all_of(made.p, near) && made.radius < farthest && made.size < farthest &&
           std::isfinite(made.from + made.to + made.ratio + made.rotation + made.radius + made.size);
}

// A value that lasts until the end of a block of code, which puts the old one back.
template <class Value> class Lent {
  public:
    Lent(Value& target, Value value) : target_(target), kept_(std::exchange(target, std::move(value))) {}
    ~Lent() { target_ = std::move(kept_); }
    Lent(const Lent&) = delete;
    Lent& operator=(const Lent&) = delete;

  private:
    Value& target_;
    Value kept_;
};

} // namespace

DrawingMaker::DrawingMaker(const DxfList& list, double tolerance,
                           const RecordHandler* (*handlerOf)(std::string_view type), std::int64_t mostSteps)
    : list_(list), tolerance_(tolerance), handlerOf_(handlerOf), looks_(list),
      stepsLeft_(mostSteps + static_cast<std::int64_t>(list.groups.size())) // of a file
{
    made_.objects.reserve(std::min(list.entities.size(), mostObjects));
}

Vec DrawingMaker::flat(Vec3 point) const
{
    const Vec3 p = place_(point);
    return {p.x, p.y};
}

Vec DrawingMaker::flatWay(Vec3 way) const
{
    const Vec3 w = place_.way(way);
    return {w.x, w.y};
}

Transform2 DrawingMaker::plane(const DxfRecord& record) const
{
    constexpr int elevation = 38;
    return plane(record.point(210, {0, 0, 1}), record.number(elevation, record.number(30)));
}

Transform2 DrawingMaker::plane(Vec3 extrusion, double elevation) const
{
    return seenFromAbove(then(planeOfNormal(extrusion), place_), elevation);
}

std::int32_t DrawingMaker::penOf(int colorNumber)
{
    return record_ == nullptr ? look.color : looks_.penOf(colorNumber, *record_, insert_);
}

void DrawingMaker::add(Made made)
{
    --stepsLeft_;
    if (!isFinite(made)) return leftOut(record_ == nullptr ? "" : record_->type, "no place to be found");
    if (made_.objects.size() >= mostObjects) {
        ++made_.withoutRoom;
        return;
    }
    // Objects of our own files, with no record under way, have their letters as they were.
    if (record_ != nullptr && !firstBeyondCodePage(made.text.words).empty()) leftOut("TEXT", lettersLost);
    made.look = look;
    made_.objects.push_back(std::move(made));
}

void DrawingMaker::line(Vec a, Vec b)
{
    add({.kind = Kind::line, .p = {a, b}});
}

void DrawingMaker::polyline(std::span<const Vec> points, bool closed)
{
    for (std::size_t i = 1; i < points.size(); ++i) line(points[i - 1], points[i]);
    if (closed && points.size() > 2) line(points.back(), points.front());
}

void DrawingMaker::point(Vec p)
{
    add({.kind = Kind::point, .p = {p}});
}

void DrawingMaker::arc(const EllipseArc& arc)
{
    if (arc.isCircular()) return circular(arc);
    if (!arc.isWhole()) return pieces(piecesOf(arc, tolerance_));
    constexpr double flattest = 1e-6; // seen from its edge
    const PrincipalAxes axes = principalAxes(arc);
    if (axes.ratio < flattest) return line(arc.centre - axes.major, arc.centre + axes.major);
    add({.kind = Kind::ellipse, .p = {arc.centre + axes.major, arc.centre}, .ratio = axes.ratio});
}

void DrawingMaker::circular(const EllipseArc& arc)
{
    const double radius = length(arc.u);
    if (arc.isWhole()) return add({.kind = Kind::circle, .p = {arc.centre}, .radius = radius});
    if (arc.to - arc.from < leastTurnOfArc) return line(arc.at(arc.from), arc.at(arc.to));
    const double start = directionOf(arc.u);
    const bool mirrored = cross(arc.u, arc.v) < 0;
    const double from = mirrored ? start - arc.to : start + arc.from;
    const double to = mirrored ? start - arc.from : start + arc.to;
    add({.kind = Kind::arc, .p = {arc.centre}, .radius = radius, .from = from, .to = to});
}

void DrawingMaker::piece(const Piece& piece)
{
    constexpr double leastBulge = 1e-9;
    if (std::abs(piece.bulge) < leastBulge || piece.from == piece.to) return line(piece.from, piece.to);
    circular(arcOfBulge(piece.from, piece.to, piece.bulge));
}

void DrawingMaker::pieces(std::span<const Piece> pieces)
{
    stepsLeft_ -= (stepsOfStroke - 1) * static_cast<std::int64_t>(pieces.size()); // bounded
    for (const Piece& one : pieces) piece(one);
}

void DrawingMaker::strokes(std::span<const Stroke> strokes)
{
    stepsLeft_ -= (stepsOfStroke - 1) * static_cast<std::int64_t>(strokes.size()); // bounded
    for (const Stroke& one : strokes) {
        if (one.isArc())
            arc(arcOf(one));
        else
            line(one.from, one.to);
    }
}

void DrawingMaker::text(const MadeText& text, Vec baseline, Vec along, Vec up)
{
    if (trimmed(text.words).empty()) return;
    add(uprightText(text, baseline, along, up));
}

void DrawingMaker::endless(Vec from, Vec way, bool bothWays)
{
    endless_.push_back({from, way, bothWays, look});
}

bool DrawingMaker::block(std::string_view name, const Transform3& at)
{
    const auto found = list_.blocks.find(name);
    if (found == list_.blocks.end() || underWay_.size() >= deepest || !takesStep()) return false;
    const auto isIt = [name](std::string_view one) { return isSameName(one, name); };
    if (std::ranges::any_of(underWay_, isIt)) return false;
    drawBlock(found->second, at);
    return true;
}

bool DrawingMaker::picture(std::string_view name, const Transform3& at)
{
    const Lent asPicture(isPicture_, true);
    return block(name, at);
}

void DrawingMaker::drawBlock(const DxfBlock& block, const Transform3& at)
{
    const Lent inserted(insert_, record_ == nullptr ? insert_ : looks_.passedOn(*record_, insert_));
    const Lent placed(place_, then(then(moved(-1 * block.base), at), place_));
    underWay_.push_back(block.name);
    for (const DxfRecord& one : block.records) record(one);
    underWay_.pop_back();
}

void DrawingMaker::attributes(const DxfRecord& insert, Vec3 moved)
{
    if (insert.parts.empty()) return;
    const Lent inserted(insert_, std::optional(looks_.passedOn(insert, insert_)));
    const Lent placed(place_, then(mirtane::moved(moved), place_));
    for (const DxfRecord& one : insert.parts) record(one);
}

bool DrawingMaker::takesStep(std::int64_t cost)
{
    stepsLeft_ -= cost;
    return stepsLeft_ >= 0;
}

void DrawingMaker::record(const DxfRecord& record)
{
    constexpr int invisible = 60;
    if (isPicture_ && isSameName(record.type, "POINT")) return;
    if (!takesStep(costOf(record))) return leftOut(record.type, "too many");
    if (record.whole(invisible) == 1) return leftOut(record.type, "invisible");
    const RecordHandler* const row = handlerOf_(record.type);
    if (row == nullptr) return leftOut(record.type);
    if (!isWhole(record, row->shownBy, row->numbers)) return leftOut(record.type, "not whole");
    if (losesLetters(record, list_)) leftOut("TEXT", lettersLost);
    const Lent lookKept(look, looks_.of(record, insert_));
    const Lent recordKept(record_, &record);
    row->take(record, *this);
}

void DrawingMaker::own(const DxfRecord& record, Made made)
{
    if (!takesStep()) return leftOut(record.type, "too many");
    const Lent lookKept(look, looks_.of(record, insert_));
    add(std::move(made));
}

void DrawingMaker::leftOut(std::string_view type, std::string_view why)
{
    constexpr std::size_t mostReasons = 1000; // a file may name its types as it likes
    if (made_.leftOut.size() >= mostReasons) type = "OTHER";
    ++made_.leftOut[{list_.text(type), std::string(why)}];
}

std::string DrawingMaker::faceOf(std::string_view style) const
{
    const auto row = list_.styles.find(style);
    return row == list_.styles.end() ? std::string() : faceOfStyle(list_, row->second);
}

// As far beyond the drawing as half its size: a view of all of it still shows the drawing, and not a dot on a
// line.
void DrawingMaker::cutEndless()
{
    Bounds bounds = boundsOf(made_.objects);
    for (const Endless& one : endless_) {
        if (made_.objects.empty()) bounds.feed(one.from);
    }
    const double beyond = bounds.size() > 0 ? bounds.size() / 2 : 1;
    const Vec low = bounds.low - Vec{beyond, beyond}, high = bounds.high + Vec{beyond, beyond};
    for (const Endless& one : endless_) {
        look = one.look;
        const auto [first, last] = rangeWithin(one.from, one.way, low, high);
        const double start = one.bothWays ? first : std::max(first, 0.0);
        if (start < last)
            line(one.from + start * one.way, one.from + last * one.way);
        else
            leftOut(one.bothWays ? "XLINE" : "RAY", "beside the drawing");
    }
}

bool DrawingMaker::takesPatterns() const
{
    return patternLines_ <= mostPatternLines && outlineStrokes_ <= mostOutlineStrokes;
}

void DrawingMaker::pattern(Pattern pattern)
{
    pattern.look = look;
    stepsLeft_ -=
        static_cast<std::int64_t>(stepsOfStroke * pattern.outline.size() + pattern.lines.size()); // bounded
    outlineStrokes_ += pattern.outline.size();
    if (outlineStrokes_ > mostOutlineStrokes) return leftOut("HATCH", "no room");
    patternLines_ += pattern.lines.size();
    if (patternLines_ > mostPatternLines) {
        leftOut("HATCH", noLines);
        pattern.hasOutline = true;
        pattern.lines = {};
    }
    patterns_.push_back(std::move(pattern));
}

// Those of few lines first, so that most of them come whole.
void DrawingMaker::drawPatterns()
{
    std::ranges::stable_sort(patterns_, {}, [](const Pattern& one) { return one.lines.size(); });
    std::size_t outlines = 0;
    for (const Pattern& one : patterns_) outlines += one.outline.size();
    for (const Pattern& one : patterns_) {
        look = one.look;
        const bool fits = made_.objects.size() + one.lines.size() + outlines <= roomForPatterns;
        if (fits) drawLines(one.lines);
        if (!fits) leftOut("HATCH", noLines);
        if (!fits || one.hasOutline) strokes(one.outline);
        outlines -= one.outline.size();
    }
    patterns_.clear();
}

void DrawingMaker::drawLines(std::span<const PatternLine> lines)
{
    for (const PatternLine& one : lines) {
        if (one.from == one.to)
            point(one.from);
        else
            line(one.from, one.to);
    }
}

void DrawingMaker::leaveOutUnusedLayers()
{
    std::vector<bool> stays(made_.layers.size());
    for (std::size_t i = 0; i < stays.size(); ++i) {
        const MadeLayer& layer = made_.layers[i];
        stays[i] = layer.isOwn || !isLayerOfEveryFile(layer.name);
    }
    for (const Made& one : made_.objects) stays[static_cast<std::size_t>(one.look.layer)] = true; // a row
    const bool allGo = std::ranges::none_of(stays, std::identity());
    if (!allGo && !std::ranges::all_of(stays, std::identity())) keepLayers(stays);
}

void DrawingMaker::keepLayers(const std::vector<bool>& stays)
{
    std::vector<std::int16_t> numbers;
    std::vector<MadeLayer> kept;
    for (std::size_t i = 0; i < stays.size(); ++i) {
        numbers.push_back(static_cast<std::int16_t>(kept.size())); // at most 1,000 of them
        if (stays[i]) kept.push_back(made_.layers[i]);
    }
    for (Made& one : made_.objects)
        one.look.layer = numbers[static_cast<std::size_t>(one.look.layer)]; // a row
    made_.workLayer = std::min(numbers[static_cast<std::size_t>(made_.workLayer)],
                               static_cast<std::int16_t>(kept.size() - 1)); // as above
    made_.layers = std::move(kept);
}

MadeDrawing DrawingMaker::finish()
{
    drawPatterns();
    cutEndless();
    made_.workLayer = looks_.workLayer();
    made_.layers = looks_.layers();
    if (const std::size_t more = looks_.layersWithoutRoom(); more > 0)
        made_.leftOut[{"LAYER", "what is on them is on the last one"}] =
            static_cast<std::int64_t>(more); // of a file
    leaveOutUnusedLayers();
    return std::move(made_);
}

} // namespace mirtane
