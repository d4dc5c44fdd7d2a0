// exchange/texts_in_place.cpp: single lines of text, and the attributes of blocks, which are such lines as
// well.

#include "exchange/own_data.h"
#include "exchange/percent_codes.h"
#include "exchange/simple_records.h"

#include <cmath>
#include <numbers>

namespace mirtane {
namespace {

namespace across {
constexpr int left = 0, centre = 1, right = 2, aligned = 3, middle = 4, fitted = 5;
}

// How far the line is below the point that the text is placed by, in heights.
double belowPoint(int horizontal, int vertical)
{
    constexpr double descent = 0.2;
    constexpr int bottom = 1, middle = 2, top = 3;
    if (horizontal == across::middle || vertical == middle) return 0.5;
    if (vertical == top) return 1;
    return vertical == bottom ? -descent : 0;
}

std::int16_t justificationOf(int horizontal)
{
    if (horizontal == across::right) return 1;
    return horizontal == across::centre || horizontal == across::middle ? std::int16_t{2} : std::int16_t{0};
}

// What is fitted between two points runs from the one to the other, whatever angle is said.
Vec wayOf(const DxfRecord& record, bool betweenPoints)
{
    const Vec3 a = record.point(10), b = record.point(11);
    const Vec along{b.x - a.x, b.y - a.y};
    const double size = length(along);
    const bool isThere = betweenPoints && record.has(11) && size > 0 && std::isfinite(size);
    return isThere ? 1 / size * along : wayAt(record.number(50) * exactRadiansPerDegree);
}

void takeLineOfText(const DxfRecord& record, int verticalCode, DrawingMaker& maker)
{
    constexpr int backward = 2, upsideDown = 4;
    const int horizontal = record.whole(72);
    const int vertical = record.whole(verticalCode);
    const bool betweenPoints = horizontal == across::aligned || horizontal == across::fitted;
    // Our own files have the point that is meant first, and heights of two thirds.
    const bool ours = maker.list().isOurs;
    const bool bySecond =
        !ours && (horizontal != across::left || vertical != 0) && !betweenPoints && record.has(11);
    const Transform2 plane = maker.plane(record);
    const int mirrors = record.whole(71);
    const bool isBackward = (mirrors & backward) != 0;
    const bool fromSecond = bySecond || (isBackward && betweenPoints && record.has(11));
    const Vec3 point = record.point(fromSecond ? 11 : 10);
    const Vec way = wayOf(record, betweenPoints);
    const Vec along = isBackward ? -way : way;
    const bool hasOurHeight = ours || isOfOwnText(record, maker.list());
    const double height = (hasOurHeight ? 1 / capitals : 1) * record.number(40, 1);
    const Vec up = ((mirrors & upsideDown) != 0 ? -height : height) * turnedLeft(way);
    MadeText text = plainLine(maker.list().text(record, 1));
    if (height == 0 && !trimmed(text.words).empty()) return maker.leftOut(record.type, "of no height");
    text.face = maker.faceOf(record.name(7));
    text.justification = bySecond || ours ? justificationOf(horizontal) : std::int16_t{0};
    const double below = bySecond ? belowPoint(horizontal, vertical) : 0;
    maker.text(text, plane(Vec{point.x, point.y} - below * up), plane.way(along), plane.way(up));
}

} // namespace

void takeText(const DxfRecord& record, DrawingMaker& maker)
{
    takeLineOfText(record, 73, maker);
}

// It stands for the attributes of the inserts, but for one that is the same in all of them.
void takeAttributeDefinition(const DxfRecord& record, DrawingMaker& maker)
{
    constexpr int constant = 2;
    if ((record.whole(70) & constant) != 0) return takeAttribute(record, maker);
    if (!maker.isInBlock()) maker.leftOut(record.type);
}

void takeAttribute(const DxfRecord& record, DrawingMaker& maker)
{
    constexpr int unseen = 1;
    if ((record.whole(70) & unseen) == 0) takeLineOfText(record, 74, maker);
}

} // namespace mirtane
