#include "model/work_mark.h"

#include <algorithm>
#include <functional>

namespace mirtane {
namespace {

std::size_t namesOf(const LayerTable& table)
{
    std::size_t sum = 0;
    const std::int32_t rows = std::min(table.layerCount, LayerTable::rowLimit);
    for (std::int32_t i = 0; i < rows; ++i) {
        sum = sum * 31 + std::hash<std::string>{}(table.find(i)->layerName);
    }
    return sum;
}

} // namespace

WorkMark workMark(const Session& s)
{
    return {s.store.entCount, s.log.undoGroupNext, s.log.undoLogCount, namesOf(s.layerTable)};
}

std::vector<bool> livingSlots(const EntityStore& store)
{
    std::vector<bool> living;
    for (std::int32_t i = 1; i < store.end(); ++i) {
        const std::size_t at = EntityStore::at(i);
        if (store.stat[at] == Stat::out) continue;
        living.resize(at + 1);
        living[at] = true;
    }
    return living;
}

} // namespace mirtane
