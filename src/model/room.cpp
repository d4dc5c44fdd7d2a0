#include "model/room.h"

#include "tables/kinds.h"
#include "text/numbers.h"

#include <algorithm>
#include <string_view>

namespace mirtane {
namespace {

constexpr std::string_view roomFor = "Not done: room for ";

} // namespace

std::int32_t slotsLeft(const EntityStore& store)
{
    return std::max(EntityStore::slotCount - store.entCount, 0);
}

std::int32_t slotsToRegain(const EntityStore& store)
{
    std::int32_t slots = 0;
    for (std::int32_t i = 1; i < store.end(); ++i) {
        const std::size_t at = EntityStore::at(i);
        const bool isPiece = isDrawnKind(objectOf(store.kind[at])) && isLiveName(store.ownerName[at]);
        if (store.stat[at] == Stat::out && !isPiece) ++slots;
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
