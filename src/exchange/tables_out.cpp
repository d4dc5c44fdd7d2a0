#include "exchange/tables_out.h"

#include "exchange/looks.h"
#include "exchange/own_data.h"
#include "exchange/pens_out.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace mirtane {
namespace {

struct TableRow {
    const char* type;
    DxfHandle table;
    const char* marker;
};

constexpr TableRow windows{"VPORT", fixed::windowTable, "AcDbViewportTableRecord"};
constexpr TableRow lineTypes{"LTYPE", fixed::lineTypeTable, "AcDbLinetypeTableRecord"};
constexpr TableRow layers{"LAYER", fixed::layerTable, "AcDbLayerTableRecord"};
constexpr TableRow styles{"STYLE", fixed::styleTable, "AcDbTextStyleTableRecord"};
constexpr TableRow views{"VIEW", fixed::viewTable, "AcDbViewTableRecord"};
constexpr TableRow systems{"UCS", fixed::coordinateTable, "AcDbUCSTableRecord"};
constexpr TableRow applications{"APPID", fixed::applicationTable, "AcDbRegAppTableRecord"};
constexpr TableRow dimensions{"DIMSTYLE", fixed::dimensionTable, "AcDbDimStyleTableRecord"};
constexpr TableRow blocks{"BLOCK_RECORD", fixed::blockTable, "AcDbBlockTableRecord"};

// Of what a dimension style sets; lengths are inches.
struct Sizes {
    double arrow, text;
};

class Tables {
  public:
    Tables(PairsOut& out, FilePlan& plan, const DrawingOut& drawing)
        : out_(out), plan_(plan), drawing_(drawing)
    {
    }

    void writeAll();

  private:
    void begin(const TableRow& table, std::size_t rows);
    void end() { out_.text(0, "ENDTAB"); }
    void row(const TableRow& table, std::string_view name, DxfHandle handle);
    void row(const TableRow& table, std::string_view name) { row(table, name, plan_.newHandle()); }
    void empty(const TableRow& table);

    void writeWindow();
    void writeLineTypes();
    void writeLineType(const LineTypeOut& type);
    void writeLayers();
    void writeStyles();
    void writeStyle(const FaceOut& face);
    void writeApplications();
    void writeDimensionStyles();
    void writeDimensionStyle(const Sizes& sizes, DxfHandle style, DxfHandle arrow);
    void writeBlockRow(const BlockOut& block, DxfHandle layout = 0);
    void writeBlockRows();

    PairsOut& out_;
    FilePlan& plan_;
    const DrawingOut& drawing_;
};

void Tables::begin(const TableRow& table, std::size_t rows)
{
    out_.text(0, "TABLE");
    out_.text(2, table.type);
    out_.handle(5, table.table);
    out_.handle(330, 0);
    out_.text(100, "AcDbSymbolTable");
    out_.whole(70, static_cast<std::int64_t>(rows)); // no more than slots
    if (table.table == fixed::dimensionTable) out_.text(100, "AcDbDimStyleTable");
}

// The handle of a dimension style has a code of its own.
void Tables::row(const TableRow& table, std::string_view name, DxfHandle handle)
{
    out_.text(0, table.type);
    out_.handle(table.table == fixed::dimensionTable ? 105 : 5, handle);
    out_.handle(330, table.table);
    out_.text(100, "AcDbSymbolTableRecord");
    out_.text(100, table.marker);
    out_.text(2, name);
}

void Tables::empty(const TableRow& table)
{
    begin(table, 0);
    end();
}

// What is seen when the file is opened: all of it.
void Tables::writeWindow()
{
    constexpr double aspect = 1.5;
    constexpr double room = 1.05;
    const Extents all = extentsOf(plan_);
    const Vec size = all.most - all.least;
    const double height = std::max(size.y, size.x / aspect) * room;
    begin(windows, 1);
    row(windows, "*Active");
    out_.whole(70, 0);
    constexpr int toY = 10;
    const std::pair<int, Vec> points[] = {{10, {0, 0}}, {11, {1, 1}}, {12, 0.5 * (all.least + all.most)},
                                          {13, {0, 0}}, {14, {1, 1}}, {15, {1, 1}}};
    for (const auto& [code, p] : points) {
        out_.number(code, p.x);
        out_.number(code + toY, p.y);
    }
    out_.number(16, 0);
    out_.number(26, 0);
    out_.number(36, 1);
    out_.point(17, {});
    out_.number(40, height > 0 ? height : 1);
    out_.number(41, aspect);
    out_.number(42, 50);
    for (const int code : {43, 44, 50, 51}) out_.number(code, 0);
    const std::pair<int, int> switches[] = {{71, 0}, {72, 1000}, {73, 1}, {74, 3},
                                            {75, 0}, {76, 0},    {77, 0}, {78, 0}};
    for (const auto& [code, value] : switches) out_.whole(code, value);
    end();
}

void Tables::writeLineType(const LineTypeOut& type)
{
    constexpr int alignment = 65;
    double total = 0;
    for (const double dash : type.dashes) total += std::abs(dash);
    row(lineTypes, type.name);
    out_.whole(70, 0);
    out_.text(3, type.description);
    out_.whole(72, alignment);
    out_.whole(73, std::ssize(type.dashes));
    out_.number(40, total);
    for (const double dash : type.dashes) {
        out_.number(49, dash);
        out_.whole(74, 0);
    }
}

void Tables::writeLineTypes()
{
    begin(lineTypes, lineTypesOut().size() + 2);
    writeLineType({"ByBlock", "", {}});
    writeLineType({"ByLayer", "", {}});
    for (const LineTypeOut& type : lineTypesOut()) writeLineType(type);
    end();
}

// The colour of a layer that is off is below zero.
void Tables::writeLayers()
{
    begin(layers, plan_.layers().size());
    for (const LayerOut& layer : plan_.layers()) {
        const PenOut& pen = penOut(layer.color);
        row(layers, layer.name);
        out_.whole(70, 0);
        out_.whole(62, layer.hidden ? -pen.number : pen.number);
        out_.text(6, lineTypesOut().front().name);
        out_.whole(370, pen.hundredths);
        out_.handle(390, fixed::plotStyle);
        if (layer.own && (*layer.own != layer.name || isLayerOfEveryFile(layer.name)))
            writeOwnLayer(out_, *layer.own, nameAsRead(layer.name));
    }
    end();
}

// The face is that of its file's name for some readers, and for others what the data behind it says.
void Tables::writeStyle(const FaceOut& face)
{
    row(styles, face.name, face.handle);
    out_.whole(70, 0);
    out_.number(40, 0);
    out_.number(41, 1);
    out_.number(50, 0);
    out_.whole(71, 0);
    out_.number(42, 1);
    out_.text(3, DxfNames().add(face.face) + ".ttf");
    out_.text(4, "");
    out_.text(1001, "ACAD");
    out_.text(1000, dxfFirstPiece(face.face));
    out_.whole(1071, 0);
}

void Tables::writeStyles()
{
    begin(styles, plan_.faces().size() + 1);
    writeStyle({"Standard", drawing_.attributes.textFont, plan_.newHandle()});
    for (const auto& [name, face] : plan_.faces()) writeStyle(face);
    end();
}

void Tables::writeApplications()
{
    begin(applications, 2);
    for (const std::string_view name : {std::string_view("ACAD"), applicationName}) {
        row(applications, name);
        out_.whole(70, 0);
    }
    end();
}

// As ours are drawn: extension lines begin two thirds of an arrow off what is measured and overshoot by as
// much; figures follow the line, above it, in inches.
void Tables::writeDimensionStyle(const Sizes& sizes, DxfHandle style, DxfHandle arrow)
{
    constexpr double extension = 0.666;
    constexpr int above = 1;
    const std::pair<int, double> lengths[] = {{40, 1},
                                              {41, sizes.arrow},
                                              {42, extension * sizes.arrow},
                                              {44, extension * sizes.arrow},
                                              {140, sizes.text * 2 / 3},
                                              {141, sizes.arrow},
                                              {147, sizes.text / 6}};
    out_.whole(70, 0);
    for (const auto& [code, value] : lengths) out_.number(code, value);
    for (const int code : {73, 74}) out_.whole(code, 0);
    out_.whole(77, above);
    out_.handle(340, style);
    if (arrow == 0) return;
    for (const int code : {341, 342, 343, 344}) out_.handle(code, arrow);
}

void Tables::writeDimensionStyles()
{
    const Attributes& now = drawing_.attributes;
    begin(dimensions, plan_.arrowStyles().size() + 1);
    row(dimensions, "Standard");
    writeDimensionStyle({toInches(double{now.arrowSize}), toInches(double{now.arrowSize})},
                        plan_.faces().at(now.textFont).handle, plan_.arrowBlock(1).handle);
    for (const auto& [look, style] : plan_.arrowStyles()) {
        row(dimensions, style.name, style.handle);
        writeDimensionStyle({toInches(double{look.arrowSize}), toInches(double{look.textSize})},
                            plan_.faces().at(look.face).handle, plan_.arrowBlock(look.arrow).handle);
    }
    end();
}

void Tables::writeBlockRow(const BlockOut& block, DxfHandle layout)
{
    row(blocks, block.name, block.handle);
    out_.handle(340, layout);
}

void Tables::writeBlockRows()
{
    begin(blocks, plan_.pictures().size() + arrows + 2);
    writeBlockRow({"*Model_Space", fixed::model}, fixed::modelLayout);
    writeBlockRow({"*Paper_Space", fixed::paper}, fixed::paperLayout);
    for (std::int16_t arrow = 1; arrow <= arrows; ++arrow) writeBlockRow(plan_.arrowBlock(arrow));
    for (const auto& [slot, block] : plan_.pictures()) writeBlockRow(block);
    end();
}

void Tables::writeAll()
{
    writeWindow();
    writeLineTypes();
    writeLayers();
    writeStyles();
    empty(views);
    empty(systems);
    writeApplications();
    writeDimensionStyles();
    writeBlockRows();
}

} // namespace

Extents extentsOf(const FilePlan& plan)
{
    const IntegerBox& box = plan.box();
    if (!box.fed()) return {};
    const auto inches = [](std::int64_t world) {
        return toInches(static_cast<double>(world)); // of 32 bits: exact
    };
    return {{inches(box.x.low), inches(-std::int64_t{box.y.high})},
            {inches(box.x.high), inches(-std::int64_t{box.y.low})}};
}

void writeTables(PairsOut& out, FilePlan& plan, const DrawingOut& drawing)
{
    Tables(out, plan, drawing).writeAll();
}

} // namespace mirtane
