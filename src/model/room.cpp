#include "model/room.h"

#include "tables/kinds.h"
#include "text/numbers.h"

#include <algorithm>
#include <string_view>

namespace mirtane {
namespace {

constexpr const char* forgetsAssociates = " Save your associates before: it forgets them.";
constexpr std::string_view roomFor = "Not done: room for ";

bool isPiece(const EntityStore& store, std::int32_t slot)
{
    const std::size_t at = EntityStore::at(slot);
    return isDrawnKind(objectOf(store.kind[at])) && isLiveName(store.ownerName[at]);
}

bool hasPieces(const EntityStore& store)
{
    for (std::int32_t i = 1; i < store.end(); ++i) {
        if (isPiece(store, i)) return true;
    }
    return false;
}

// Behind what is said before it.
void tellHowToMakeRoom(Session& s, const std::string& before)
{
    const std::int32_t slots = slotsToRegain(s.store);
    s.notices.settle(Matter::tableFull);
    if (slots == 0) {
        if (!before.empty()) s.notices.post({Matter::tableFull, before, {{"Close", Offer::goOn}}});
        return;
    }
    const std::string objects =
        withThousands(slots) + (slots == 1 ? " replaced object makes" : " replaced objects make");
    s.notices.post({Matter::tableFull,
                    before + (before.empty() ? "" : " ") + "Save and open again: " + objects + " room." +
                        (hasPieces(s.store) ? forgetsAssociates : ""),
                    {{"Save and open again", Offer::saveAndOpenAgain}, {"Close", Offer::goOn}}});
}

} // namespace

std::int32_t slotsLeft(const EntityStore& store)
{
    return std::max(EntityStore::slotCount - store.entCount, 0);
}

std::int32_t slotsToRegain(const EntityStore& store)
{
    std::int32_t slots = 0;
    for (std::int32_t i = 1; i < store.end(); ++i) {
        if (store.stat[EntityStore::at(i)] == Stat::out && !isPiece(store, i)) ++slots;
    }
    return slots;
}

bool hasRoomFor(Session& s, std::int64_t objects)
{
    const std::int64_t missing = objects - slotsLeft(s.store);
    if (objects == 0 || missing <= 0) return true;
    refuseForRoom(s, missing);
    return false;
}

void refuseForRoom(Session& s, std::int64_t missing)
{
    s.roomMissing = missing;
    setText(s.controls[ids::entry], noRoomText(missing));
    tellHowToMakeRoom(s, "");
}

void tellNotStored(Session& s)
{
    if (!s.notices.tells(Matter::tableFull)) {
        tellHowToMakeRoom(s, "The table is full: what is drawn now is not kept.");
    }
}

std::string noRoomText(std::int64_t missing)
{
    return std::string(roomFor) + withThousands(missing) + (missing == 1 ? " more object" : " more objects") +
           " is missing";
}

bool tellsNoRoom(const Controls& controls)
{
    return controls[ids::entry].text.starts_with(roomFor);
}

} // namespace mirtane
