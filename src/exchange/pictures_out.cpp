#include "exchange/pictures_out.h"

#include "exchange/entities_out.h"
#include "render/dimension_strokes.h"
#include "tables/kinds.h"

namespace mirtane {
namespace {

constexpr int anonymous = 1;

// What stands in one block.
class BlockStrokes final : public StrokeSink {
  public:
    BlockStrokes(PairsOut& out, FilePlan& plan, DxfHandle block) : out_(out), plan_(plan), block_(block) {}

    void line(Point a, Point b) override { line(toInches(a), toInches(b)); }
    void line(Vec a, Vec b)
    {
        begin("LINE");
        out_.text(100, "AcDbLine");
        out_.point(10, a);
        out_.point(11, b);
    }

    void arc(Point centre, Point, float r, double a1, double a2) override
    {
        if (!(r > 0) || !hasSweep(a1, a2)) return;
        begin("ARC");
        out_.text(100, "AcDbCircle");
        out_.point(10, toInches(centre));
        out_.number(40, toInches(double{r}));
        out_.text(100, "AcDbArc");
        out_.degrees(50, a1);
        out_.degrees(51, a2);
    }

    void text(const Lettering& text)
    {
        if (!(text.size > 0) || text.words.empty()) return;
        begin("TEXT");
        out_.text(100, "AcDbText");
        out_.point(10, baselineOf(text, toInches(text.at)));
        out_.number(40, toInches(double{text.size}) * capitals);
        out_.text(1, dxfLineOfText(text.words));
        out_.number(50, text.degrees);
        out_.text(7, plan_.faces().at(std::string(text.font)).name);
        out_.text(100, "AcDbText");
    }

  private:
    // In the pen of what shows the block, on its layer.
    void begin(const char* type)
    {
        constexpr int byBlock = 0;
        constexpr int widthByBlock = -2;
        out_.text(0, type);
        out_.handle(5, plan_.newHandle());
        out_.handle(330, block_);
        out_.text(100, "AcDbEntity");
        out_.text(8, "0");
        out_.whole(62, byBlock);
        out_.whole(370, widthByBlock);
    }

    PairsOut& out_;
    FilePlan& plan_;
    DxfHandle block_;
};

void beginBlock(PairsOut& out, FilePlan& plan, const BlockOut& block)
{
    out.text(0, "BLOCK");
    out.handle(5, plan.newHandle());
    out.handle(330, block.handle);
    out.text(100, "AcDbEntity");
    out.text(8, "0");
    out.text(100, "AcDbBlockBegin");
    out.text(2, block.name);
    out.whole(70, block.name.starts_with("*D") ? anonymous : 0);
    out.point(10, {});
    out.text(3, block.name);
    out.text(1, "");
}

void endBlock(PairsOut& out, FilePlan& plan, const BlockOut& block)
{
    out.text(0, "ENDBLK");
    out.handle(5, plan.newHandle());
    out.handle(330, block.handle);
    out.text(100, "AcDbEntity");
    out.text(8, "0");
    out.text(100, "AcDbBlockEnd");
}

// Of size 1, its tip at the origin, the line that it ends at its left.
void writeArrow(PairsOut& out, FilePlan& plan, std::int16_t arrow)
{
    constexpr double half = 0.25;
    const BlockOut& block = plan.arrowBlock(arrow);
    beginBlock(out, plan, block);
    BlockStrokes strokes(out, plan, block.handle);
    if (arrow == arrow::slash) {
        strokes.line(Vec{-half, -half}, Vec{half, half});
    } else {
        strokes.line(Vec{}, Vec{-1, half});
        strokes.line(Vec{}, Vec{-1, -half});
    }
    if (arrow == arrow::closed)
        strokes.line(Vec{-1, half}, Vec{-1, -half});
    else
        strokes.line(Vec{}, Vec{-1, 0});
    endBlock(out, plan, block);
}

} // namespace

void writeBlocks(PairsOut& out, FilePlan& plan, const DrawingOut& drawing)
{
    for (const BlockOut& block :
         {BlockOut{"*Model_Space", fixed::model}, BlockOut{"*Paper_Space", fixed::paper}}) {
        beginBlock(out, plan, block);
        endBlock(out, plan, block);
    }
    for (std::int16_t arrow = 1; arrow <= arrows; ++arrow) writeArrow(out, plan, arrow);
    for (const auto& [slot, block] : plan.pictures()) {
        const EntityRecord r = drawing.store.record(slot);
        beginBlock(out, plan, block);
        BlockStrokes strokes(out, plan, block.handle);
        dimensionStrokes(shapeOf(r), strokes);
        strokes.text(dimLettering(r));
        endBlock(out, plan, block);
    }
}

} // namespace mirtane
