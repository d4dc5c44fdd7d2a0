// exchange/mtexts.cpp: paragraphs become lines of text, each with a place of its own.

#include "exchange/curve_records.h"
#include "exchange/group_run.h"
#include "exchange/own_data.h"
#include "exchange/paragraphs_drawn.h"

#include <algorithm>
#include <numbers>

namespace mirtane {
namespace {

// A long text stands in several groups, the last with a code of its own. They are cut anywhere, so that a
// character may begin in one and end in the next.
std::string wordsOf(const DxfRecord& record, const DxfList& list)
{
    std::string words;
    for (const DxfGroup& group : record.groups) {
        if (group.code == 3 || group.code == 1) words += group.value;
    }
    return list.text(words);
}

// In files of a late release, in a record within the record.
ParagraphColumns columnsIn(DxfGroups groups)
{
    if (groups.empty() || DxfRecord{"", groups, {}}.whole(71) == 0) return {};
    const DxfRecord inner{"", groups, {}};
    constexpr int most = 100;
    return {std::clamp(inner.whole(72), 1, most), inner.number(44), inner.number(45), numbersOf(groups, 46)};
}

// Of length 1; the other where it has no length.
Vec3 unit(Vec3 way, Vec3 other)
{
    const double size = length(way);
    return size > 0 && std::isfinite(size) ? 1 / size * way : other;
}

// The way of the line; of an angle and a way given, the later one counts. The angle is one in the plane.
Vec3 alongOf(const DxfRecord& record, const Transform3& plane)
{
    Vec3 along = plane.x;
    for (const DxfGroup& group : record.groups) {
        const Vec way = wayAt(dxfNumber(group.value) * exactRadiansPerDegree);
        if (group.code == 50) along = plane.way({way.x, way.y, 0});
        if (group.code == 11) along = record.point(11);
    }
    return unit(along, plane.x);
}

// Seen from below a paragraph is mirrored.
ParagraphPlace placeOf(const DxfRecord& record)
{
    const Transform3 plane = planeOfNormal(record.point(210, {0, 0, 1}));
    const Vec3 along = alongOf(record, plane);
    return {record.point(10), along, unit(cross(plane.z, along), plane.y), record.name(7)};
}

} // namespace

void takeParagraphs(const DxfRecord& record, DrawingMaker& maker)
{
    const DividedGroups parts = dividedAt(record.groups, 101, "Embedded Object");
    const DxfRecord own{record.type, parts.before, {}};
    ParagraphForm form;
    form.height = own.number(40, 1);
    form.width = own.number(41);
    form.attachment = own.whole(71, 1);
    form.lineSpacing = own.number(44, 1);
    form.exactSpacing = own.whole(73, 1) == 2;
    form.widthFactor = widthFactorOf(own.name(7), maker.list());
    form.columns = columnsIn(parts.from);
    ParagraphPlace place = placeOf(own);
    if (isOfOwnText(record, maker.list())) {
        form.height /= capitals;
        place.at = place.at + (1 - capitals) * form.height * place.up; // from the top of the capitals
    }
    const std::string words = wordsOf(own, maker.list());
    if (form.height == 0 && !words.empty()) return maker.leftOut(record.type, "of no height");
    drawParagraphs(words, form, place, maker);
}

} // namespace mirtane
