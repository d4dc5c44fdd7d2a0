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

bool isBeingPlaced(const FunctionState& s, const LibraryRow& row)
{
    return row.library == Library::hatches && s.baseFunc == row.function;
}

} // namespace mirtane
