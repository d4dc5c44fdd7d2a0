// exchange/objects_out.cpp: what nobody sees, and without which some programs refuse a file.

#include "exchange/tables_out.h"

namespace mirtane {
namespace {

struct Entry {
    const char* name;
    DxfHandle handle;
};

void begin(PairsOut& out, const char* type, DxfHandle handle, DxfHandle owner)
{
    out.text(0, type);
    out.handle(5, handle);
    out.handle(330, owner);
}

void writeDictionary(PairsOut& out, DxfHandle handle, DxfHandle owner, std::initializer_list<Entry> entries)
{
    constexpr int keepWhatIsThere = 1;
    begin(out, "DICTIONARY", handle, owner);
    out.text(100, "AcDbDictionary");
    out.whole(281, keepWhatIsThere);
    for (const Entry& entry : entries) {
        out.text(3, entry.name);
        out.handle(350, entry.handle);
    }
}

void writePlotStyles(PairsOut& out)
{
    constexpr int keepWhatIsThere = 1;
    begin(out, "ACDBDICTIONARYWDFLT", fixed::plotStyles, fixed::root);
    out.text(100, "AcDbDictionary");
    out.whole(281, keepWhatIsThere);
    out.text(3, "Normal");
    out.handle(350, fixed::plotStyle);
    out.text(100, "AcDbDictionaryWithDefault");
    out.handle(340, fixed::plotStyle);
    begin(out, "ACDBPLACEHOLDER", fixed::plotStyle, fixed::plotStyles);
}

void writePlotSettings(PairsOut& out, bool isModel)
{
    constexpr int modelFlags = 1712;
    constexpr int paperFlags = 688;
    constexpr int fitsThePaper = 0;
    constexpr int layoutAtOneToOne = 16;
    constexpr int whole = 5;
    out.text(100, "AcDbPlotSettings");
    for (const int code : {1, 2, 4, 6}) out.text(code, "");
    for (const int code : {40, 41, 42, 43, 44, 45, 46, 47, 48, 49, 140, 141}) out.number(code, 0);
    for (const int code : {142, 143}) out.number(code, 1);
    out.whole(70, isModel ? modelFlags : paperFlags);
    for (const int code : {72, 73}) out.whole(code, 0);
    out.whole(74, whole);
    out.text(7, "");
    out.whole(75, isModel ? fitsThePaper : layoutAtOneToOne);
    out.number(147, 1);
    for (const int code : {148, 149}) out.number(code, 0);
}

void writeLayout(PairsOut& out, const Entry& layout, DxfHandle block, const Extents& all)
{
    const bool isModel = block == fixed::model;
    begin(out, "LAYOUT", layout.handle, fixed::layouts);
    writePlotSettings(out, isModel);
    out.text(100, "AcDbLayout");
    out.text(1, layout.name);
    out.whole(70, 1);
    out.whole(71, isModel ? 0 : 1);
    for (const int code : {10, 20, 11, 21}) out.number(code, 0);
    out.point(12, {});
    out.point(14, all.least);
    out.point(15, all.most);
    out.number(146, 0);
    out.point(13, {});
    out.point(16, {1, 0});
    out.point(17, {0, 1});
    out.whole(76, 0);
    out.handle(330, block);
}

} // namespace

void writeObjects(PairsOut& out, FilePlan& plan)
{
    const Entry model{"Model", fixed::modelLayout};
    const Entry paper{"Layout1", fixed::paperLayout};
    writeDictionary(out, fixed::root, 0,
                    {{"ACAD_GROUP", fixed::groups},
                     {"ACAD_LAYOUT", fixed::layouts},
                     {"ACAD_PLOTSTYLENAME", fixed::plotStyles}});
    writeDictionary(out, fixed::groups, fixed::root, {});
    writeDictionary(out, fixed::layouts, fixed::root, {model, paper});
    writePlotStyles(out);
    writeLayout(out, model, fixed::model, extentsOf(plan));
    writeLayout(out, paper, fixed::paper, {});
}

} // namespace mirtane
