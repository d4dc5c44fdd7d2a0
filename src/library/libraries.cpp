#include "library/libraries.h"

#include <algorithm>

namespace mirtane {
namespace {

template <class Row> bool tableHas(const LibraryTable<Row>& table, std::string_view name)
{
    return std::ranges::any_of(table.used(), [name](const Row& row) { return nameOf(row) == name; });
}

template <class Row> void removeFrom(LibraryTable<Row>& table, std::string_view name)
{
    for (Row& row : table.used()) {
        if (nameOf(row) == name) nameOf(row) = noName;
    }
}

bool hasOwner(const EntityStore& store, std::string_view name)
{
    for (std::int32_t i = 1; i < store.end(); ++i) {
        if (store.ownerName[EntityStore::at(i)] == name) return true;
    }
    return false;
}

// Other slots may have an owner, too: whatever was in a file that was opened as an associate.
bool hasPieces(const EntityStore& store)
{
    for (std::int32_t i = 1; i < store.end(); ++i) {
        const std::size_t at = EntityStore::at(i);
        if (isDrawnKind(objectOf(store.kind[at])) && isLiveName(store.ownerName[at])) return true;
    }
    return false;
}

void removeOwner(EntityStore& store, std::string_view name)
{
    for (std::int32_t i = 1; i < store.end(); ++i) {
        std::string& owner = store.ownerName[EntityStore::at(i)];
        if (owner == name) owner = noName;
    }
}

} // namespace

std::string& currentName(Attributes& s, Library library)
{
    switch (library) {
    case Library::multipleLines:
        return s.multipleLinesName;
    case Library::hatches:
        return s.hatchName;
    case Library::associates:
        break;
    }
    return s.associateName;
}

bool hasLiveName(const Session& s, Library library)
{
    if (library == Library::associates) return hasPieces(s.store);
    return !listedNames(s, library).empty();
}

bool hasName(const Session& s, Library library, std::string_view name)
{
    switch (library) {
    case Library::multipleLines:
        return tableHas(s.multipleLinesLibrary, name);
    case Library::hatches:
        return tableHas(s.hatchLibrary, name);
    case Library::associates:
        break;
    }
    return hasOwner(s.store, name);
}

std::vector<std::string> listedNames(const Session& s, Library library)
{
    switch (library) {
    case Library::multipleLines:
        return listedNames(s.multipleLinesLibrary);
    case Library::hatches:
        return listedNames(s.hatchLibrary);
    case Library::associates:
        break;
    }
    return listedNames(s.store);
}

bool offerNames(Session& s, Library library, std::string_view caption)
{
    if (!hasLiveName(s, library)) return false;
    refillNames(s, library, caption);
    return true;
}

void refillNames(Session& s, Library library, std::string_view caption)
{
    if (library == Library::associates) {
        s.stepNo = 0;
        s.associateName = noName;
    }
    showNames(s.controls, caption, listedNames(s, library));
}

void removeName(Session& s, Library library, std::string_view name)
{
    if (!isLiveName(name)) return;
    switch (library) {
    case Library::multipleLines:
        return removeFrom(s.multipleLinesLibrary, name);
    case Library::hatches:
        return removeFrom(s.hatchLibrary, name);
    case Library::associates:
        return removeOwner(s.store, name);
    }
}

} // namespace mirtane
