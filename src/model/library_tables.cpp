#include "model/library_tables.h"

namespace mirtane {

bool isLiveName(std::string_view name)
{
    return !name.empty() && name != noName;
}

bool bearsName(std::string_view rowName, std::string_view wanted)
{
    return wanted != noName && rowName == wanted;
}

void NameList::add(std::string_view name)
{
    if (!isLiveName(name)) return;
    if (!names_.empty() && names_.back() == name) return;
    names_.emplace_back(name);
}

std::vector<std::string> listedNames(const EntityStore& store)
{
    NameList list;
    for (std::int32_t i = 1; i < store.end(); ++i) list.add(store.ownerName[EntityStore::at(i)]);
    return list.take();
}

void showNames(Controls& controls, std::string_view caption, std::vector<std::string> names)
{
    controls[ids::listMode].caption = caption;
    controls[ids::selectionList].rows = std::move(names);
    controls[ids::selectionList].row = -1;
}

} // namespace mirtane
