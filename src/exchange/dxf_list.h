#pragma once

// What a DXF file holds, as a plain list: nothing is resolved, and nothing of it is known to mean anything
// yet.

#include "exchange/code_pages.h"
#include "exchange/dxf_groups.h"
#include "exchange/vec.h"

#include <map>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace mirtane {

// The name under which the program keeps data in files.
inline constexpr std::string_view applicationName = "MIRTANE";

// One record: its type as the file has it ("LWPOLYLINE") and its groups, and for a POLYLINE its VERTEX
// records, for an INSERT its ATTRIB records. Where a code stands more than once, number(), point() and so on
// take the first.
struct DxfRecord {
    std::string_view type;
    DxfGroups groups;
    std::vector<DxfRecord> parts;

    bool has(int code) const { return findGroup(groups, code) != nullptr; }
    double number(int code, double fallback = 0) const;
    int whole(int code, int fallback = 0) const;
    std::string_view name(int code) const; // without blanks around it; empty where there is none
    Vec3 point(int code) const;            // of three codes: 10, 20, 30
    Vec3 point(int code, Vec3 fallback) const;
};

struct DxfBlock {
    std::string_view name;
    Vec3 base;
    std::vector<DxfRecord> records;
    bool isElsewhere = false; // what it shows is in another file
};

// Names are compared without regard to case.
struct LessWithoutCase {
    using is_transparent = void;
    bool operator()(std::string_view a, std::string_view b) const;
};
template <class Value> using ByName = std::map<std::string_view, Value, LessWithoutCase>;

inline bool isSameName(std::string_view a, std::string_view b)
{
    return isSameButForCase(a, b);
}

struct DxfList {
    ByName<DxfGroups> header;      // of each variable, its groups
    std::vector<DxfRecord> layers; // in the order of the file
    ByName<DxfRecord> lineTypes, styles, dimensionStyles;
    ByName<DxfBlock> blocks;
    std::vector<DxfRecord> entities;
    ByName<std::string_view> namesByHandle; // of the rows of tables
    ByName<DxfRecord> objects;              // by handle, of the section of that name
    bool isDxf = false;                     // a section or a record was found
    bool isCut = false;                     // no end was found
    std::string_view cutOff; // type of the record that it broke off in, which is not in the list
    // Written by our own Save DXF, which has numbers for the colours, heights and points of texts of its own.
    bool isOurs = false;

    bool hasOurApplication = false; // what we write for others is in it, or was put into it

    TextCoding coding;

    // A value as UTF-8; \U+XXXX and \M+NXXXX are resolved, other codes are not.
    std::string text(std::string_view value) const { return coding.utf8(value); }
    // The first group of code as such a text.
    std::string text(const DxfRecord& record, int code) const;
    // The name of a style, a block and so on by its handle; empty for none.
    std::string_view nameByHandle(std::string_view handle) const;
    double variable(std::string_view name, int code, double fallback) const;
    std::string_view variableName(std::string_view name, int code) const;

    // What the values are views into, together with the bytes of the file.
    std::unique_ptr<std::string> spelledOut;
    std::vector<DxfGroup> groups;
};

// bytes must outlive the list. Takes text of any line end and padding, and binary files of all releases; what
// can't be read is passed over. Anything else gives an empty list.
DxfList dxfListOf(std::string_view bytes);

} // namespace mirtane
