#include "exchange/full_reading.h"

#include "exchange/far_drawings.h"
#include "exchange/handlers.h"
#include "exchange/own_data.h"
#include "geometry/angle.h"
#include "geometry/fault.h"

#include <algorithm>

namespace mirtane {
namespace {

constexpr double surveyFoot = 1200.0 / 3937 / 0.0254; // in inches

struct UnitRow {
    int number;
    double inches;
};

// By the number that $INSUNITS has.
constexpr UnitRow units[] = {
    {1, 1},
    {2, 12},
    {3, 63360},
    {4, 1 / 25.4},
    {5, 1 / 2.54},
    {6, 1 / 0.0254},
    {7, 1000 / 0.0254},
    {8, 1e-6},
    {9, 1e-3},
    {10, 36},
    {11, 1e-10 / 0.0254},
    {12, 1e-9 / 0.0254},
    {13, 1e-6 / 0.0254},
    {14, 0.1 / 0.0254},
    {15, 10 / 0.0254},
    {16, 100 / 0.0254},
    {17, 1e9 / 0.0254},
    {18, 149'597'870'700 / 0.0254},       // from the earth to the sun
    {19, 9.4607304725808e15 / 0.0254},    // a year of light
    {20, 3.0856775814913673e16 / 0.0254}, // a parsec
    {21, surveyFoot},
    {22, surveyFoot / 12},
    {23, surveyFoot * 3},
    {24, surveyFoot * 5280},
};

const UnitRow* unitsOf(const DxfList& list)
{
    const double number = list.variable("$INSUNITS", 70, 0);
    const auto* const row =
        std::ranges::find_if(units, [number](const UnitRow& one) { return one.number == number; });
    return row == std::end(units) ? nullptr : row;
}

bool isOfPaper(const DxfRecord& record)
{
    constexpr int space = 67;
    return record.whole(space) == 1;
}

// Draws the first of the records, and gives how many that took.
std::size_t drawFirst(std::span<const DxfRecord> records, const DxfList& list, DrawingMaker& maker)
{
    constexpr int invisible = 60;
    const DxfRecord& first = records.front();
    const std::optional<OwnObject> own = first.has(invisible) ? std::nullopt : ownObject(records, list);
    if (!own) {
        maker.record(first);
        return 1;
    }
    maker.own(first, own->made);
    return own->records;
}

// Blocks that hold what is on the sheets that were not in view: "*Paper_Space0", "$PAPER_SPACE".
bool isOfSheet(const DxfBlock& block)
{
    constexpr std::string_view sheet = "PAPER_SPACE";
    const std::string_view name = block.name;
    const bool isMarked = name.starts_with('*') || name.starts_with('$');
    return isMarked && isSameName(name.substr(1, sheet.size()), sheet);
}

void drawOnPaper(const DxfRecord& record, bool isSeen, DrawingMaker& maker)
{
    if (isSeen)
        maker.record(record);
    else if (!isSameName(record.type, "VIEWPORT"))
        maker.leftOut(record.type, "on paper");
}

// What is on paper is seen only where the model has nothing.
void drawEntities(const DxfList& list, DrawingMaker& maker)
{
    if (!list.cutOff.empty()) maker.leftOut(list.cutOff, "cut off");
    bool modelIsEmpty = true;
    const std::span<const DxfRecord> all = list.entities;
    for (std::size_t i = 0; i < all.size();) {
        const bool isShown = !isOfPaper(all[i]);
        i += isShown ? drawFirst(all.subspan(i), list, maker) : 1;
        if (isShown) modelIsEmpty = false;
    }
    for (const DxfRecord& one : list.entities) {
        if (isOfPaper(one)) drawOnPaper(one, modelIsEmpty, maker);
    }
    for (const auto& [name, block] : list.blocks) {
        if (!isOfSheet(block)) continue;
        for (const DxfRecord& one : block.records) drawOnPaper(one, modelIsEmpty, maker);
    }
}

// As exact as the drawing shows it, in the file's units.
double toleranceOf(double worldPerFile)
{
    constexpr double hundredth = 0.01;
    return hundredth / worldPerFile;
}

// Whether it is a drawing of ours, whatever others did to a few of its objects. It lies where it was drawn,
// and no move would give it digits that it never had.
bool isOfOurPlaces(const DxfList& list, const FullReading& reading)
{
    const double worldPerFile = reading.placing.worldPerFile;
    if (!list.hasOurApplication || worldPerFile != worldPerInch) return false;
    const auto& objects = reading.drawing.objects;
    const auto held = std::ranges::count_if(
        objects, [worldPerFile](const Made& one) { return isHeldAsItStands(one, worldPerFile); });
    return 2 * held > std::ssize(objects);
}

void placeFarDrawing(const DxfList& list, FullReading& reading)
{
    const auto& objects = reading.drawing.objects;
    const double worldPerFile = reading.placing.worldPerFile;
    if (!isFar(objects, worldPerFile)) return;
    if (!isOfOurPlaces(list, reading)) reading.placing.move = moveToOrigin(objects, worldPerFile);
    reading.inexact = countOfInexact(objects, reading.placing);
}

void takeLayers(LayerTable& table, const MadeDrawing& drawing)
{
    table.layerCount = 0;
    for (const MadeLayer& one : drawing.layers) {
        const std::int32_t number = table.layerCount++;
        table.resetRow(number, drawing.workLayer);
        Layer* const row = table.find(number);
        if (row == nullptr) continue;
        row->layerName = one.name;
        if (one.hidden) row->layerShown = layer::hidden;
    }
}

// A text that was turned round is held by its middle, which is where it was in any face.
void holdByMiddle(EntityRecord& r, double width)
{
    constexpr float right = 1, centre = 2;
    if (r.p2.y == centre) return;
    const double half = (r.p2.y == right ? -width : width) / 2;
    r.p1 = polarPoint(r.p1, half, r.a1 * radiansPerDegree);
    r.p2.y = centre;
}

void takeObject(Session& s, const Made& made, const Placing& placing, const TextWidthOf& widthOf)
{
    constexpr double clippingRoom = 1.2;
    EntityRecord r = recordOf(made, placing);
    if (r.t2.empty()) r.t2 = s.textFont;
    const double width = r.kind == Kind::text ? widthOf(r) : 0;
    if (r.kind == Kind::text) keep(r.rad, clippingRoom * width);
    if (made.turnedRound) holdByMiddle(r, width);
    const std::int32_t slot = s.store.entCount++;
    s.store.setRecord(slot, r);
    s.store.setStat(slot, made.look.hidden ? Stat::off : Stat::on);
    s.store.dxfTag[EntityStore::at(slot)] = noName;
    markUsed(s.layerTable, made.look.layer);
}

} // namespace

FullReading readInFull(std::string_view bytes, UnitsIfNone unitsIfNone)
{
    const DxfList list = dxfListOf(bytes);
    const UnitRow* const unit = unitsOf(list);
    FullReading reading;
    reading.isDxf = list.isDxf;
    reading.isCut = list.isCut;
    reading.hasUnits = unit != nullptr || list.isOurs;
    reading.placing.worldPerFile = worldPerInch * (unit != nullptr ? unit->inches : unitsIfNone.inches);
    DrawingMaker maker(list, toleranceOf(reading.placing.worldPerFile), handlerOf);
    drawEntities(list, maker);
    reading.drawing = maker.finish();
    placeFarDrawing(list, reading);
    return reading;
}

TakenReading takeReading(Session& s, const FullReading& reading, const TextWidthOf& widthOf)
{
    const MadeDrawing& drawing = reading.drawing;
    clearRecords(s.log);
    takeLayers(s.layerTable, drawing);
    s.workLayer = drawing.workLayer;
    s.store.entCount = 1;
    const std::size_t room = EntityStore::slotCount - 1 - drawing.layers.size();
    const std::size_t taken = std::min(drawing.objects.size(), room);
    for (std::size_t i = 0; i < taken; ++i) takeObject(s, drawing.objects[i], reading.placing, widthOf);
    return {taken,
            drawing.withoutRoom + static_cast<std::int64_t>(drawing.objects.size() - taken)}; // not negative
}

} // namespace mirtane
