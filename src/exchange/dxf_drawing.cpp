#include "exchange/dxf_drawing.h"

#include "exchange/entities_out.h"
#include "exchange/pictures_out.h"
#include "exchange/tables_out.h"
#include "exchange/words_out.h"

#include <algorithm>

namespace mirtane {
namespace {

void begin(PairsOut& out, std::string_view section)
{
    out.text(0, "SECTION");
    out.text(2, section);
}

void end(PairsOut& out)
{
    out.text(0, "ENDSEC");
}

// How lengths are shown, as the format counts the ways.
int lengthUnits(const Attributes& now)
{
    constexpr int decimal = 2;
    constexpr int feetAndInches = 4;
    return now.numStyle == "us" ? feetAndInches : decimal;
}

// A dash of a line type has half an inch; it is to have about a hundredth of the drawing.
double lineTypeScale(const Extents& all)
{
    constexpr double share = 50;
    const Vec size = all.most - all.least;
    const double scale = std::max(size.x, size.y) / share;
    return scale > 0 ? scale : 1;
}

// A variable of the file, each of which has the group code of its own.
template <class Value> struct Variable {
    std::string_view name;
    int code;
    Value value;
};

void writeWords(PairsOut& out, const FilePlan& plan, const DrawingOut& drawing)
{
    const Attributes& now = drawing.attributes;
    const std::string_view face = plan.faces().at(now.textFont).name;
    const Variable<std::string_view> variables[] = {
        {"$ACADVER", 1, writtenRelease},  {"$DWGCODEPAGE", 3, writtenCodePage},
        {"$CLAYER", 8, plan.workLayer()}, {"$CELTYPE", 6, "ByLayer"},
        {"$TEXTSTYLE", 7, face},          {"$DIMSTYLE", 2, "Standard"},
    };
    for (const auto& [name, code, value] : variables) {
        out.text(9, name);
        out.text(code, value);
    }
}

void writeSwitches(PairsOut& out, const Attributes& now)
{
    constexpr int inches = 1;
    constexpr int byLayer = 256;
    constexpr int minutes = 1;
    const Variable<int> variables[] = {
        {"$CECOLOR", 62, byLayer}, {"$LUNITS", 70, lengthUnits(now)},
        {"$LUPREC", 70, 4},        {"$AUNITS", 70, now.angFormat == 1 ? minutes : 0},
        {"$AUPREC", 70, 3},        {"$INSUNITS", 70, inches},
        {"$MEASUREMENT", 70, 0},   {"$PDMODE", 70, 0},
        {"$CELWEIGHT", 370, -1},   {"$PSTYLEMODE", 290, 1},
    };
    for (const auto& [name, code, value] : variables) {
        out.text(9, name);
        out.whole(code, value);
    }
}

void writeSizes(PairsOut& out, const Extents& all, const Attributes& now)
{
    const Variable<double> variables[] = {
        {"$LTSCALE", 40, lineTypeScale(all)},
        {"$TEXTSIZE", 40, toInches(double{now.textSize}) * capitals},
        {"$DIMSCALE", 40, 1},
        {"$DIMASZ", 40, toInches(double{now.arrowSize})},
        {"$DIMTXT", 40, toInches(double{now.arrowSize}) * capitals},
    };
    for (const auto& [name, code, value] : variables) {
        out.text(9, name);
        out.number(code, value);
    }
}

void writeHeader(PairsOut& out, const FilePlan& plan, const DrawingOut& drawing, DxfHandle nextHandle)
{
    const Extents all = extentsOf(plan);
    begin(out, "HEADER");
    writeWords(out, plan, drawing);
    out.text(9, "$HANDSEED");
    out.handle(5, nextHandle);
    writeSwitches(out, drawing.attributes);
    writeSizes(out, all, drawing.attributes);
    for (const auto& [name, corner] : {std::pair{"$EXTMIN", all.least}, std::pair{"$EXTMAX", all.most}}) {
        out.text(9, name);
        out.point(10, corner);
    }
    end(out);
}

void writeBody(PairsOut& out, FilePlan& plan, const DrawingOut& drawing)
{
    begin(out, "CLASSES");
    end(out);
    begin(out, "TABLES");
    writeTables(out, plan, drawing);
    end(out);
    begin(out, "BLOCKS");
    writeBlocks(out, plan, drawing);
    end(out);
    begin(out, "ENTITIES");
    EntitiesOut entities(out, plan, drawing);
    for (const std::int32_t slot : plan.written()) entities.write(slot);
    end(out);
    begin(out, "OBJECTS");
    writeObjects(out, plan);
    end(out);
    out.text(0, "EOF");
}

} // namespace

// The head tells a handle above all those of the body, and so is written last.
DxfDrawing dxfDrawing(const DrawingOut& drawing)
{
    FilePlan plan(drawing);
    PairsOut body;
    writeBody(body, plan, drawing);
    PairsOut head;
    writeHeader(head, plan, drawing, plan.newHandle());
    return {head.take() + body.take(), plan.leftOut()};
}

} // namespace mirtane
