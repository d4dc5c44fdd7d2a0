#include "app/files/library_rows.h"
#include "tables/list_modes.h"

#include <algorithm>
#include <iterator>

namespace mirtane {
namespace {

constexpr LibraryRow libraryRows[] = {
    {Library::multipleLines, "Multiple Lines", "Create Multiple Lines", ".mtm", "*.mtm",
     list_mode::selectMultipleLines, list_mode::removeMultipleLines, list_mode::saveMultipleLines},
    {Library::hatches, "Place Hatch", "Create Hatch", ".mth", "*.mth", list_mode::selectHatch,
     list_mode::removeHatch, list_mode::saveHatch},
    {Library::associates, "Place Associate", "Create Associate", ".mta", "*.mta", list_mode::selectAssociate,
     list_mode::removeAssociate, list_mode::saveAssociate},
};

} // namespace

const LibraryRow* rowWith(std::string_view LibraryRow::*field, std::string_view value)
{
    const auto* const found = std::ranges::find(libraryRows, value, field);
    return found == std::end(libraryRows) ? nullptr : found;
}

const LibraryRow& rowOf(Library library)
{
    return *std::ranges::find(libraryRows, library, &LibraryRow::library); // each has one
}

Bytes fileOf(const Session& s, Library library, const std::string& name)
{
    if (library == Library::multipleLines) return multipleLinesBytes(s.multipleLinesLibrary, name);
    if (library == Library::hatches) return hatchBytes(s.hatchLibrary, name);
    return associateBytes(s.store, name);
}

Untaken addFile(Session& s, Library library, const Bytes& file, const std::string& name)
{
    if (library == Library::multipleLines) return addMultipleLines(s.multipleLinesLibrary, file);
    if (library == Library::hatches) return addHatch(s.hatchLibrary, file);
    return addAssociate(s, file, name);
}

bool isBeingPlaced(const FunctionState& s, const LibraryRow& row)
{
    return row.library == Library::hatches && s.baseFunc == row.function;
}

} // namespace mirtane
