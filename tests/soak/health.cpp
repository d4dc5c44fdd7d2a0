#include "health.h"

#include "files/kept_work.h"
#include "tables/functions.h"
#include "text/utf8.h"

#include <cmath>

namespace mirtane::soak {
namespace {

// The first fault of several checks.
class Faults {
  public:
    void unless(bool holds, const std::string& what)
    {
        if (!holds && first_.empty()) first_ = what;
    }
    const std::string& first() const { return first_; }
    bool none() const { return first_.empty(); }

  private:
    std::string first_;
};

bool finite(Point p)
{
    return std::isfinite(p.x) && std::isfinite(p.y);
}

template <class... Number> bool allFinite(Number... number)
{
    return (std::isfinite(number) && ...);
}

bool hasFiniteNumbers(const EntityRecord& r)
{
    return finite(r.p1) && finite(r.p2) && finite(r.p3) && finite(r.p4) && finite(r.p5) &&
           allFinite(r.s1, r.s2, r.rad, r.a1, r.a2, r.a3);
}

// An insertion of a DXF file ends as a dead slot of its own kind.
bool isKnownKind(Kind kind)
{
    constexpr Kind deadInsert{35};
    return isDrawnKind(kind) || isDrawnKind(objectOf(kind)) || kind == headerKind || kind == layerNameKind ||
           kind == deadInsert;
}

std::string at(const char* what, std::int32_t slot)
{
    return std::string(what) + " of slot " + std::to_string(slot);
}

void checkStore(const Session& s, Manner manner, Faults& faults)
{
    faults.unless(s.store.entCount >= 1, "entCount is below 1");
    for (std::int32_t i = 1; i < s.store.end() && faults.none(); ++i) {
        faults.unless(s.store.stat[EntityStore::at(i)] != Stat::none, at("no stat", i));
        if (manner != Manner::tame) continue;
        const EntityRecord r = s.store.record(i);
        faults.unless(isKnownKind(r.kind), at("kind", i) + ": " + std::to_string(numberOf(r.kind)));
        faults.unless(hasFiniteNumbers(r), at("a number that is none", i));
        faults.unless(r.layer >= 0, at("layer", i));
    }
}

void checkLog(const UndoLog& log, const EntityStore& store, Faults& faults)
{
    faults.unless(log.undoLogCount >= 0 && log.undoLogCount < UndoLog::wrapAt, "undoLogCount");
    const std::int32_t top = std::max(log.undoGroupNext, UndoLog::wrapAt);
    for (const std::int32_t group : {log.undoGroupNext, log.undoGroupTop, log.redoGroupTop})
        faults.unless(group >= 0 && group <= top, "a group's serial");
    for (std::int32_t i = 0; i < log.undoLogCount && faults.none(); ++i) {
        const std::size_t row = EntityStore::at(i);
        faults.unless(log.logSlot[row] >= 0 && log.logSlot[row] < store.entCount, "slot of the log");
        faults.unless(log.logStat[row] != Stat::none, "stat of the log");
        faults.unless(log.logGroup[row] >= 0 && log.logGroup[row] <= log.undoGroupNext, "group of the log");
        if (i > 0) faults.unless(log.logGroup[row - 1] <= log.logGroup[row], "groups out of order");
    }
}

void checkLayers(const Session& s, Manner manner, Faults& faults)
{
    constexpr std::string_view shown[] = {layer::on, layer::hidden, layer::working};
    faults.unless(s.layerTable.layerCount >= 0, "layerCount");
    const bool hasRow = s.layerTable.find(s.workLayer) != nullptr;
    faults.unless(manner == Manner::wild || hasRow, "workLayer");
    for (const Layer& row : s.layerTable.layers) {
        if (row.layerName.empty() && row.layerShown.empty()) continue;
        faults.unless(row.layerUsed == layer::inUse || row.layerUsed == layer::unused, "used of a layer");
        faults.unless(std::ranges::find(shown, row.layerShown) != std::end(shown), "shown of a layer");
    }
}

void checkLibraries(const Session& s, Manner manner, Faults& faults)
{
    faults.unless(s.hatchLibrary.count >= 0 && s.multipleLinesLibrary.count >= 0, "count of a library");
    if (manner != Manner::tame) return;
    for (const HatchRow& row : s.hatchLibrary.used()) {
        const bool good = finite(row.h1) && finite(row.h2) && finite(row.h3) && finite(row.h4) &&
                          allFinite(row.hatchTileW, row.hatchTileH, row.hatchRad, row.hatchA1, row.hatchA2);
        faults.unless(good, "a number of a hatch");
        faults.unless(row.hatchKind >= Kind::line && row.hatchKind <= Kind::point, "kind of a hatch row");
    }
    for (const MultipleLine& row : s.multipleLinesLibrary.used()) {
        const bool good = allFinite(row.m1) && finite(row.legStart) && finite(row.legEnd);
        faults.unless(good, "a number of multiple lines");
    }
}

bool isWellFormed(std::string_view text)
{
    while (!text.empty()) {
        const Utf8Step step = firstCharacter(text);
        if (!step.wellFormed) return false;
        text.remove_prefix(step.size);
    }
    return true;
}

void checkControl(const Control& control, std::string_view name, Faults& faults)
{
    const auto length = static_cast<int>(utf8Length(control.text)); // texts are short
    const std::string where = " of " + std::string(name);
    faults.unless(control.caret >= 0 && control.caret <= length, "caret" + where);
    faults.unless(control.anchor >= 0 && control.anchor <= length, "anchor" + where);
    faults.unless(control.row >= -1 && control.row < std::ssize(control.rows), "row" + where);
    faults.unless(isWellFormed(control.text) && isWellFormed(control.caption), "text" + where);
}

void checkControls(const Session& s, Faults& faults)
{
    for (std::size_t i = 0; i < controlCount; ++i) {
        const ControlId id = controlTable[i].id;
        checkControl(s.controls[id], id.row().name, faults);
    }
    const ControlId focus = s.controls.focus;
    const bool seen = s.controls[focus].visible && s.controls[formOf(focus)].visible;
    faults.unless(s.ended || seen, "focus on what is not seen: " + std::string(focus.row().name));
    faults.unless(s.controls["frmMain"_c].visible, "the main window is hidden");
}

bool isFunction(const std::string& name)
{
    return findFunction(name) != nullptr;
}

// One prompt, wherever it is shown.
void checkPrompt(const Session& s, Faults& faults)
{
    faults.unless(s.controls["promptlab"_c].caption == s.promptText, "the prompt shown");
    faults.unless(s.controls["frmMain"_c].caption.ends_with(s.promptText), "the prompt in the title");
}

// What the controls tell of what is under way.
void checkUnderWay(const Session& s, Faults& faults)
{
    const bool blankIsOff = s.controls["blank"_c].caption == "Blank/Off";
    faults.unless(blankIsOff == (s.curFunc != "Blank Line"), "the caption of blank");
    const bool asksForCorner = s.promptText == "(Enter opposite corner of window:)";
    const bool zooms = s.controls["snaplab"_c].caption == "Zoom Window is on:";
    faults.unless(zooms || asksForCorner == (s.windowStep > 0),
                  "windowStep " + std::to_string(s.windowStep) + " of " + s.curFunc + " " + s.promptText);
    const bool borrowsOrtho = s.curFunc == "Ellipse" || s.curFunc == "Blank Line";
    faults.unless(borrowsOrtho || s.controls["freecurs"_c].caption == s.orthoCaption,
                  "ortho is not given back");
}

void checkState(const Session& s, Faults& faults)
{
    constexpr std::string_view styles[] = {"us", "2f", "3i", "br"};
    faults.unless(isFunction(s.curFunc), "curFunc is " + s.curFunc);
    faults.unless(isFunction(s.baseFunc), "baseFunc is " + s.baseFunc);
    faults.unless(s.stepNo >= 0, "stepNo");
    faults.unless(s.textLength >= 0, "textLength");
    faults.unless(s.windowStep >= 0 && s.windowStep <= 2, "windowStep");
    faults.unless(s.boundaryCount >= 0 && s.boundaryCount < std::ssize(s.boundary), "boundaryCount");
    faults.unless(std::ranges::find(styles, s.numStyle) != std::end(styles), "numStyle is " + s.numStyle);
}

void checkNumbers(const Session& s, Faults& faults)
{
    faults.unless(
        allFinite(s.textSize, s.arrowSize, s.dimTol, s.snapPercentage, s.filletRadius, s.hatchScale),
        "a size");
    faults.unless(allFinite(s.textRotation, s.hatchRotation, s.associateRotation, s.orthoAngle), "an angle");
    for (const Point& p :
         {s.pickFirst, s.pickLast, s.mousePos, s.ptA, s.ptB, s.ptC, s.ptD, s.ptE, s.ptF, s.ptG, s.ptH})
        faults.unless(finite(p), "a scratch point");
    faults.unless(allFinite(s.workRadius, s.workAngle, s.arcStart, s.arcEnd, s.dimAngle), "a scratch number");
}

void checkView(const Stage& stage, Faults& faults)
{
    const Scale scale = stage.pic1.getScale();
    faults.unless(allFinite(scale.left, scale.top, scale.width, scale.height),
                  "the world window is no number");
    faults.unless(scale.width > 0 && scale.height > 0, "the world window is empty");
}

void checkKeptWork(const Stage& stage, Faults& faults)
{
    if (stage.work.kept) faults.unless(readKeptWork(*stage.work.kept).has_value(), "kept work can't be read");
}

std::vector<bool> alive(const EntityStore& store)
{
    std::vector<bool> live;
    for (std::int32_t i = 0; i < store.end(); ++i)
        live.push_back(store.stat[EntityStore::at(i)] != Stat::out);
    return live;
}

// Whether undoing all that can be undone and redoing it gives the same drawing. The session stays as it is.
std::string faultOfUndo(const Session& s)
{
    static EntityStore store; // undo turns states alone, so the other fields need no copy
    UndoLog log = s.log;
    store.entCount = s.store.entCount;
    store.stat = s.store.stat;
    const std::vector<bool> before = alive(store);
    // An undo with nothing left to undo goes on at the highest serial, below which tens of thousands are
    // empty.
    const std::ptrdiff_t mostGroups =
        std::ranges::count_if(log.logSlot, [](std::int32_t slot) { return slot != 0; });
    std::ptrdiff_t undone = 0;
    while (undone <= mostGroups && log.undoGroupTop > 0 && undo(store, log) == Flipped::group) ++undone;
    for (std::ptrdiff_t i = 0; i < undone; ++i) redo(store, log);
    const std::vector<bool> after = alive(store);
    const auto [first, _] = std::ranges::mismatch(before, after);
    if (first == before.end()) return "";
    return at("undoing and redoing all turns the state",
              static_cast<std::int32_t>(first - before.begin())); // a slot
}

} // namespace

std::string faultOf(const Stage& stage, Manner manner)
{
    const Session& s = stage.s;
    Faults faults;
    checkStore(s, manner, faults);
    checkLog(s.log, s.store, faults);
    checkLayers(s, manner, faults);
    checkLibraries(s, manner, faults);
    checkControls(s, faults);
    checkState(s, faults);
    checkPrompt(s, faults);
    checkUnderWay(s, faults);
    checkView(stage, faults);
    checkKeptWork(stage, faults);
    if (manner != Manner::tame) return faults.first();
    checkNumbers(s, faults);
    return faults.none() ? faultOfUndo(s) : faults.first();
}

} // namespace mirtane::soak
