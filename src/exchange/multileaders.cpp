// exchange/multileaders.cpp: one text or block and the lines that point from it. The record nests: a context,
// in it branches, and in a branch lines.

#include "exchange/arrows.h"
#include "exchange/curve_records.h"
#include "exchange/curve_strokes.h"
#include "exchange/group_run.h"
#include "exchange/paragraphs_drawn.h"
#include "exchange/spline.h"

#include <algorithm>
#include <numbers>

namespace mirtane {
namespace {

struct Branch {
    DxfGroups groups;             // of its own
    std::vector<DxfGroups> lines; // those of each of its lines
};

struct LeaderParts {
    DxfGroups context, behind;
    std::vector<Branch> branches;
};

// Up to the group that opens or closes a part, which is passed.
DxfGroups takeUntil(GroupRun& run, int opens, int closes, bool& opened)
{
    const DxfGroups all = run.rest();
    std::size_t count = 0;
    opened = false;
    while (!run.isEnd()) {
        const DxfGroup& group = run.next();
        opened = group.code == opens && trimmed(group.value).ends_with('{');
        if (opened || group.code == closes) break;
        ++count;
    }
    return all.first(count);
}

Branch takeBranch(GroupRun& run)
{
    constexpr int opens = 304, closes = 303, closesLine = 305;
    Branch branch;
    bool opened = false;
    branch.groups = takeUntil(run, opens, closes, opened);
    while (opened) {
        bool none = false;
        branch.lines.push_back(takeUntil(run, -1, closesLine, none));
        takeUntil(run, opens, closes, opened);
    }
    return branch;
}

LeaderParts leaderPartsOf(const DxfRecord& record)
{
    constexpr int begins = 300, opens = 302, closes = 301;
    LeaderParts parts;
    GroupRun run(record.groups);
    if (!run.find(begins)) return parts;
    run.next();
    bool opened = false;
    parts.context = takeUntil(run, opens, closes, opened);
    while (opened) {
        parts.branches.push_back(takeBranch(run));
        takeUntil(run, opens, closes, opened);
    }
    parts.behind = run.rest();
    return parts;
}

DxfRecord recordOf(DxfGroups groups)
{
    return {"MULTILEADER", groups, {}};
}

// A colour of this record has in its highest byte how it is meant.
std::int32_t penOf(int raw, DrawingMaker& maker)
{
    constexpr unsigned trueColor = 0xC2, number = 0xC3;
    const auto bits = static_cast<unsigned>(raw); // as the file means it
    if (bits >> 24 == trueColor) return penOfTrueColor(raw & 0xFFFFFF);
    return bits >> 24 == number ? maker.penOf(raw & 0xFF) : maker.look.color;
}

struct LeaderLines {
    Arrow arrow;
    bool isBent = false;
    bool hasLanding = true;
};

void drawLine(std::vector<Vec3> points, const LeaderLines& lines, DrawingMaker& maker)
{
    drawArrow(points, lines.arrow, maker);
    const std::vector<Vec> line = flatPoints(points, maker);
    if (lines.isBent && line.size() > 2)
        maker.strokes(strokesOf(curvesThrough(line, {}), maker.tolerance()));
    else
        maker.polyline(line, false);
}

void drawBranch(const Branch& branch, const LeaderLines& lines, DrawingMaker& maker)
{
    const DxfRecord own = recordOf(branch.groups);
    const Vec3 last = own.point(10);
    for (const DxfGroups& groups : branch.lines) {
        std::vector<Vec3> line = pointsOf(groups, 10);
        if (own.whole(290, 1) != 0) line.push_back(last);
        drawLine(std::move(line), lines, maker);
    }
    const double landing = own.number(40);
    if (lines.hasLanding && own.whole(291, 1) != 0 && landing != 0)
        maker.line(maker.flat(last), maker.flat(last + landing * own.point(11)));
}

void drawWords(const DxfRecord& context, DrawingMaker& maker)
{
    const Vec3 way = context.point(13, {1, 0, 0});
    const double size = length(Vec{way.x, way.y});
    ParagraphForm form;
    form.height = context.number(41, 1);
    form.width = context.number(43);
    form.attachment = std::clamp(context.whole(171, 1), 1, 3);
    form.lineSpacing = context.number(45, 1);
    form.exactSpacing = context.whole(170, 1) == 2;
    const std::string_view style = maker.list().nameByHandle(context.name(340));
    form.widthFactor = widthFactorOf(style, maker.list());
    const Look own = maker.look;
    maker.look.color = penOf(context.whole(90), maker);
    const Vec along = size > 0 ? 1 / size * Vec{way.x, way.y} : Vec{1, 0};
    drawParagraphs(maker.list().text(context, 304), form,
                   {context.point(12), {along.x, along.y, 0}, {-along.y, along.x, 0}, style}, maker);
    maker.look = own;
}

void drawBlock(const DxfRecord& context, DrawingMaker& maker)
{
    const Vec3 scale = context.point(16, {1, 1, 1});
    const Transform3 sized{{scale.x, 0, 0}, {0, scale.y, 0}, {0, 0, scale.z}, {}};
    const Transform3 at = then(then(sized, turned(context.number(46))), moved(context.point(15)));
    const std::string_view name = maker.list().nameByHandle(context.name(341));
    if (!maker.block(name, at)) maker.leftOut("MULTILEADER", "without a block");
}

} // namespace

void takeMultileader(const DxfRecord& record, DrawingMaker& maker)
{
    constexpr int bent = 2;
    const LeaderParts parts = leaderPartsOf(record);
    const DxfRecord context = recordOf(parts.context);
    const DxfRecord behind = recordOf(parts.behind);
    if (parts.context.empty()) return maker.leftOut(record.type, "not whole");
    const LeaderLines lines{{context.number(140), behind.name(342)},
                            behind.whole(170, 1) == bent,
                            behind.whole(290, 1) != 0 && behind.whole(291, 1) != 0};
    const Look own = maker.look;
    maker.look.color = penOf(behind.whole(91), maker);
    if (behind.whole(170, 1) != 0) {
        for (const Branch& branch : parts.branches) drawBranch(branch, lines, maker);
    }
    maker.look = own;
    if (context.whole(290) != 0) drawWords(context, maker);
    if (context.whole(296) != 0) drawBlock(context, maker);
}

} // namespace mirtane
