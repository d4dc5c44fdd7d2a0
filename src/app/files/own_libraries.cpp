#include "app/files/own_libraries.h"

#include "app/files/library_rows.h"

#include <algorithm>
#include <utility>

namespace mirtane {
namespace {

struct Shelf {
    Library library;
    std::set<std::string> LibraryNames::*names;
    std::string_view one, many;
};

constexpr Shelf shelves[] = {
    {Library::associates, &LibraryNames::associates, "associate", "associates"},
    {Library::hatches, &LibraryNames::hatches, "hatch", "hatches"},
    {Library::multipleLines, &LibraryNames::multipleLines, "set of multiple lines", "sets of multiple lines"},
};

std::set<std::string>& namesOf(LibraryNames& names, Library library)
{
    return names.*std::ranges::find(shelves, library, &Shelf::library)->names; // each library has one
}

// "1 associate, 2 hatches and 1 set of multiple lines"
std::string listOf(const std::vector<std::string>& parts)
{
    std::string list;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        if (i > 0) list += i + 1 < parts.size() ? ", " : " and ";
        list += parts[i];
    }
    return list;
}

} // namespace

void takeAsNew(FileState& s, Library library, const std::string& name)
{
    namesOf(s.namedHere, library).insert(name);
}

void takeAsInFile(FileState& s, Library library, const std::string& name)
{
    namesOf(s.namedHere, library).erase(name);
}

LibraryNames inNoFile(const Session& s)
{
    LibraryNames names = s.namedHere;
    for (const Shelf& shelf : shelves) {
        std::erase_if(names.*shelf.names,
                      [&](const std::string& name) { return !hasName(s, shelf.library, name); });
    }
    return names;
}

LibraryNames lostWith(Goes goes, LibraryNames names)
{
    if (goes == Goes::program) return names;
    return {std::move(names.associates), {}, {}};
}

bool isNone(const LibraryNames& names)
{
    return names == LibraryNames{};
}

std::string sentenceOfNoFile(const LibraryNames& names)
{
    std::vector<std::string> parts;
    std::size_t all = 0;
    for (const Shelf& shelf : shelves) {
        const std::size_t count = (names.*shelf.names).size();
        all += count;
        if (count > 0)
            parts.push_back(std::to_string(count) + " " + std::string(count == 1 ? shelf.one : shelf.many));
    }
    if (all == 0) return {};
    return listOf(parts) + (all == 1 ? " is in no file: save it from its menu."
                                     : " are in no file: save them from their menus.");
}

std::vector<KeptLibrary> librariesOf(const Session& s, const LibraryNames& names)
{
    std::vector<KeptLibrary> all;
    for (const Shelf& shelf : shelves) {
        for (const std::string& name : names.*shelf.names)
            all.push_back(
                {std::string(rowOf(shelf.library).extension), name, fileOf(s, shelf.library, name)});
    }
    return all;
}

LibraryNames namesOf(const std::vector<KeptLibrary>& libraries)
{
    LibraryNames names;
    for (const KeptLibrary& kept : libraries) {
        const LibraryRow* const row = rowWith(&LibraryRow::extension, kept.extension);
        if (row != nullptr) namesOf(names, row->library).insert(kept.name);
    }
    return names;
}

void giveBack(Session& s, const std::vector<KeptLibrary>& libraries)
{
    for (const KeptLibrary& kept : libraries) {
        const LibraryRow* const row = rowWith(&LibraryRow::extension, kept.extension);
        if (row == nullptr || hasName(s, row->library, kept.name)) continue;
        addFile(s, row->library, kept.file, kept.name);
        takeAsNew(s, row->library, kept.name);
    }
}

} // namespace mirtane
