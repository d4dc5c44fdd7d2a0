#include "app/files/own_libraries.h"

#include "app/files/library_rows.h"
#include "model/room.h"

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

struct Counted {
    std::size_t all = 0;
    std::string text;
};

Counted countOf(const LibraryNames& names)
{
    std::vector<std::string> parts;
    std::size_t all = 0;
    for (const Shelf& shelf : shelves) {
        const std::size_t count = (names.*shelf.names).size();
        all += count;
        if (count > 0)
            parts.push_back(std::to_string(count) + " " + std::string(count == 1 ? shelf.one : shelf.many));
    }
    return {all, listOf(parts)};
}

// Where the last legs ended that were drawn with a set is no part of it, though its file tells it.
Bytes withoutLegs(const Bytes& file, const std::string& name)
{
    MultipleLinesLibrary lines;
    addMultipleLines(lines, file);
    for (MultipleLine& line : lines.used()) line.legStart = line.legEnd = {};
    return multipleLinesBytes(lines, name);
}

bool isThere(const Session& s, Library library, const KeptLibrary& kept)
{
    if (!hasName(s, library, kept.name)) return false;
    const Bytes file = fileOf(s, library, kept.name);
    if (library != Library::multipleLines) return file == kept.file;
    return withoutLegs(file, kept.name) == withoutLegs(kept.file, kept.name);
}

// The names of those that come back beside it are not free either.
std::string freeName(const Session& s, Library library, const std::string& name,
                     const std::set<std::string>& comingBack)
{
    std::string free = name;
    for (int number = 2; hasName(s, library, free) || (free != name && comingBack.contains(free)); ++number)
        free = name + "-" + std::to_string(number);
    return free;
}

template <class Row> bool addRows(LibraryTable<Row>& table, LibraryTable<Row> rows, const std::string& name)
{
    if (table.end() + rows.end() > table.rows.size()) return false;
    for (Row& row : rows.used()) {
        nameOf(row) = name;
        table.add(std::move(row));
    }
    return true;
}

template <class Row>
LibraryTable<Row> rowsOf(Untaken (*add)(LibraryTable<Row>&, const Bytes&), const Bytes& file)
{
    LibraryTable<Row> rows;
    add(rows, file);
    return rows;
}

// All of it, or nothing where the table has no room for all.
bool addWhole(Session& s, Library library, const Bytes& file, const std::string& name)
{
    switch (library) {
    case Library::multipleLines:
        return addRows(s.multipleLinesLibrary, rowsOf(addMultipleLines, file), name);
    case Library::hatches:
        return addRows(s.hatchLibrary, rowsOf(addHatch, file), name);
    case Library::associates:
        break;
    }
    if (piecesIn(file) > slotsLeft(s.store)) return false;
    addAssociate(s, file, name);
    return true;
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
    const Counted counted = countOf(names);
    if (counted.all == 0) return {};
    return counted.text + (counted.all == 1 ? " is in no file: save it from its menu."
                                            : " are in no file: save them from their menus.");
}

std::string sentenceOfNoRoom(const LibraryNames& names)
{
    if (isNone(names)) return {};
    return "There is no room for " + countOf(names).text + ": the next start offers this work again.";
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

LibraryNames giveBack(Session& s, const std::vector<KeptLibrary>& libraries)
{
    LibraryNames comingBack = namesOf(libraries);
    LibraryNames withoutRoom;
    for (const KeptLibrary& kept : libraries) {
        const LibraryRow* const row = rowWith(&LibraryRow::extension, kept.extension);
        if (row == nullptr || isThere(s, row->library, kept)) continue;
        const std::string name = freeName(s, row->library, kept.name, namesOf(comingBack, row->library));
        if (addWhole(s, row->library, kept.file, name))
            takeAsNew(s, row->library, name);
        else
            namesOf(withoutRoom, row->library).insert(kept.name);
    }
    return withoutRoom;
}

} // namespace mirtane
