#include "commands/text_edit.h"

#include "commands/prompt.h"
#include "commands/typed_text.h"
#include "model/insertion.h"
#include "model/room.h"
#include "render/redraw.h"
#include "render/text_painter.h"
#include "snap/pick.h"
#include "tables/kinds.h"

namespace mirtane {
namespace {

// The picked slot may have gone while its text was typed: undone, or with another drawing.
bool stillThere(const Session& s)
{
    const std::int32_t slot = s.pickedIndex;
    if (slot < 1 || slot >= s.store.end()) return false;
    const std::size_t at = EntityStore::at(slot);
    const Kind kind = s.store.kind[at];
    const Stat stat = s.store.stat[at];
    return hasWords(kind) && stat != Stat::out && stat != Stat::none;
}

EntityRecord editedRecord(Session& s, Canvas& pic1)
{
    constexpr float clippingFactor = 1.2F; // of the width, as for a new text
    EntityRecord r = s.store.record(s.pickedIndex);
    r.t1 = s.controls[ids::workText].text;
    if (r.kind != Kind::angularDimension) r.style = 0;
    if (r.kind == Kind::text) r.rad = clippingFactor * textWidthIn(pic1, r.t2, r.p2.x, r.t1);
    return r;
}

void replacePicked(Session& s, Canvas& pic1)
{
    const std::int32_t slot = s.store.entCount;
    const std::int32_t old = s.pickedIndex;
    const bool isHidden = s.store.stat[EntityStore::at(old)] == Stat::off; // with its layer, meanwhile
    s.store.setRecord(slot, editedRecord(s, pic1));
    s.store.setStat(slot, isHidden ? Stat::off : Stat::on);
    updateGauge(s);
    commitInGroup(s);
    s.store.setStat(old, Stat::out);
    logFlip(s.log, old, Stat::out);
    endGroup(s.log);
}

void beginTyping(Session& s)
{
    const EntityRecord r = s.store.record(s.pickedIndex);
    s.store.setStat(s.pickedIndex, Stat::sel);
    loadTypedText(s, r.t1);
    s.ptA = r.p1;
}

} // namespace

void textEditStep(Session& s, Canvas& pic1)
{
    if (s.stepNo < 1) return; // no click of the left button, and no text would be typed
    setPrompt(s, pic1);
    changeStat(s.store, Stat::sel, Stat::on);
    s.textLength = 0;
    const bool found = pickObject(s, pic1) >= 0;
    if (found) beginTyping(s);
    redrawAll(s, pic1);
    if (found) {
        repaintPreview(s, pic1, textEditPreview);
        return;
    }
    s.stepNo = 0;
    setPrompt(s, pic1);
}

void textEditPreview(Session& s, Canvas& pic1)
{
    if (!stillThere(s)) return;
    const EntityRecord r = s.store.record(s.pickedIndex);
    Lettering lettering = letteringOf(r);
    lettering.words = s.controls[ids::workText].text;
    if (r.kind == Kind::text) {
        paintText(pic1, lettering);
    } else {
        paintDimText(pic1, lettering);
    }
}

void finishTextEdit(Session& s, Canvas& pic1)
{
    if (stillThere(s)) {
        if (!hasRoomFor(s, 1)) return textEditPreview(s, pic1); // what was typed can still be had
        replacePicked(s, pic1);
    }
    redrawAll(s, pic1);
    clearTypedText(s);
    s.stepNo = 0;
    setPrompt(s, pic1);
    s.controls.focus = ids::drawing;
}

} // namespace mirtane
