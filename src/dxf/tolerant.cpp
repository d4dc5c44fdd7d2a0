// dxf/tolerant.cpp: reads the pairs of codes and values that a DXF file is meant to be, and writes again what
// the line reader would find, in an order and form in which it can't be led astray.

#include "dxf/tolerant.h"

#include "dxf/scanner.h"
#include "text/code_page.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <map>
#include <set>
#include <span>
#include <vector>

namespace mirtane {
namespace {

struct Group {
    int code = 0;
    std::string_view value;
};

std::string_view trimmed(std::string_view text)
{
    constexpr std::string_view blanks = " \t";
    text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
    return text.substr(0, text.find_last_not_of(blanks) + 1);
}

bool isWhole(std::string_view text, int& number)
{
    const char* const end = text.data() + text.size();
    const auto [stop, fault] = std::from_chars(text.data(), end, number);
    return fault == std::errc{} && stop == end;
}

// A line that should be a code and is no number is passed over.
bool nextGroup(LineScanner& lines, Group& group)
{
    std::string_view line;
    while (lines.next(line)) {
        if (isWhole(trimmed(line), group.code)) return lines.next(group.value);
    }
    return false;
}

constexpr int textCode = 1;
constexpr int nameCode = 2;
constexpr int lineTypeCode = 6;
constexpr int layerCode = 8;
constexpr int variableCode = 9;
constexpr int flagCode = 70;
constexpr int justificationCode = 72;

// The records that the reader knows, with their groups in the order in which they are written.
struct RecordForm {
    std::string_view name;
    std::array<int, 11> codes; // 0 where there are fewer
};

constexpr RecordForm recordForms[] = {
    {"LINE", {8, 6, 62, 10, 20, 11, 21}},
    {"CIRCLE", {8, 6, 62, 10, 20, 40}},
    {"ARC", {8, 6, 62, 10, 20, 40, 50, 51}},
    {"TEXT", {8, 6, 62, 10, 20, 40, 1, 50, 72, 11, 21}},
    {"INSERT", {2, 10, 20, 41, 42, 50}},
    {"POLYLINE", {8, 6, 62, 70}},
    {"VERTEX", {8, 6, 62, 10, 20, 42}},
    {"SEQEND", {}},
    {"ENDBLK", {}},
};
constexpr RecordForm lightVertex{"VERTEX", {8, 6, 62, 10, 20, 42}};

// What a vertex takes from its polyline if it has none of its own.
constexpr int looks[] = {8, 6, 62};

template <class Range> bool contains(const Range& range, int code)
{
    return std::ranges::find(range, code) != std::ranges::end(range);
}

const Group* lastOf(std::span<const Group> groups, int code)
{
    const Group* found = nullptr;
    for (const Group& group : groups) {
        if (group.code == code) found = &group;
    }
    return found;
}

bool isSectionRead(std::string_view name)
{
    return name == "TABLES" || name == "BLOCKS" || name == "ENTITIES";
}

class Rewriter {
  public:
    explicit Rewriter(std::string_view text) : lines_(text) { out_.reserve(text.size() + text.size() / 4); }

    std::string run();

  private:
    void takeVariable(const Group& group);
    void endRecord();
    void table();
    void object();
    void polyline();
    void lightPolyline();
    void block();
    void record(const RecordForm& form, std::span<const Group> groups);
    void named(std::string_view record, std::string_view name);
    std::string inCodePage(std::string_view text) const;
    const std::string& blockName(std::string_view name);
    const std::string& layerName(std::string_view name);
    std::string valueOf(int code, std::string_view value);
    void group(int code, std::string_view value); // as valueOf() gives it
    void plain(int code, std::string_view value);
    void line(std::string_view text) { out_.append(text).append("\r\n"); }

    LineScanner lines_;
    std::string out_;
    std::string_view name_;     // of the record that is being read
    std::vector<Group> groups_; // and its groups
    std::string_view section_;
    std::string_view variable_;
    std::vector<Group> polylineLooks_;
    std::map<std::string_view, std::string> blockNames_;
    std::map<std::string_view, std::string> layerNames_;
    std::set<std::string> takenLayerNames_;
    bool inLayerTable_ = false;
    bool utf8_ = false;
    bool isCut_ = false; // by the end of the file, in the middle of a record
};

std::string Rewriter::run()
{
    Group next;
    while (nextGroup(lines_, next)) {
        if (next.code == 0) {
            endRecord();
            name_ = trimmed(next.value);
            groups_.clear();
            continue;
        }
        takeVariable(next);
        groups_.push_back(next);
        if (name_ == "SECTION" && next.code == nameCode) section_ = trimmed(next.value);
    }
    isCut_ = true;
    if (!groups_.empty()) endRecord();
    group(0, "EOF");
    return std::move(out_);
}

// From this release on files are UTF-8.
void Rewriter::takeVariable(const Group& group)
{
    constexpr std::string_view firstInUtf8 = "AC1021";
    if (group.code == variableCode) variable_ = trimmed(group.value);
    if (group.code == textCode && section_ == "HEADER" && variable_ == "$ACADVER")
        utf8_ = trimmed(group.value) >= firstInUtf8;
}

void Rewriter::endRecord()
{
    if (name_ == "SECTION") {
        if (isSectionRead(section_)) named(name_, section_);
    } else if (name_ == "ENDSEC") {
        if (isSectionRead(section_)) group(0, name_);
        section_ = {};
    } else if (section_ == "TABLES") {
        table();
    } else if (section_.empty() || isSectionRead(section_)) {
        object();
    }
}

// Of the tables only that of the layers is kept.
void Rewriter::table()
{
    const Group* const name = lastOf(groups_, nameCode);
    if (name_ == "TABLE") {
        inLayerTable_ = name != nullptr && trimmed(name->value) == "LAYER";
        if (inLayerTable_) named(name_, "LAYER");
    } else if (name_ == "LAYER") {
        if (inLayerTable_ && name != nullptr) named(name_, layerName(trimmed(name->value)));
    } else if (name_ == "ENDTAB" && inLayerTable_) {
        group(0, name_);
        inLayerTable_ = false;
    }
}

void Rewriter::named(std::string_view record, std::string_view name)
{
    plain(0, record);
    plain(nameCode, name);
}

void Rewriter::object()
{
    if (name_ == "POLYLINE") polyline();
    if (name_ == "LWPOLYLINE") lightPolyline();
    if (name_ == "BLOCK") block();
    for (const RecordForm& form : recordForms) {
        if (form.name == name_) record(form, groups_);
    }
    if (name_ == "SEQEND") polylineLooks_.clear();
}

// The reader goes by the last flag that it sees, in whatever record: one that says no more than whether the
// figure is closed.
void Rewriter::polyline()
{
    for (Group& group : groups_) {
        int flag = 0;
        if (group.code != flagCode || !isWhole(trimmed(group.value), flag)) continue;
        group.value = (flag & 1) != 0 ? "1" : "0";
    }
    polylineLooks_.clear();
    for (const int code : looks) {
        if (const Group* const found = lastOf(groups_, code)) polylineLooks_.push_back(*found);
    }
}

// All vertices stand in the one record, each from its group 10 on.
void Rewriter::lightPolyline()
{
    polyline();
    constexpr int firstOfVertex = 10;
    const std::span<const Group> all(groups_);
    const auto isFirst = [](const Group& g) { return g.code == firstOfVertex; };
    auto from = std::ranges::find_if(all, isFirst);
    const auto headEnd = from;
    record({"POLYLINE", {8, 6, 62, 70}}, {all.begin(), headEnd});
    while (from != all.end()) {
        const auto to = std::find_if(from + 1, all.end(), isFirst);
        record(lightVertex, {from, to});
        from = to;
    }
    if (!isCut_) group(0, "SEQEND"); // one that was cut is not closed
    polylineLooks_.clear();
}

// The picture of a dimension and the spaces themselves are never inserted: what is in them is seen as it
// stands.
bool isSeenInPlace(std::string_view block)
{
    constexpr std::string_view kinds = "DdMmPp";
    return block.size() > 1 && block[0] == '*' && kinds.find(block[1]) != std::string_view::npos;
}

void Rewriter::block()
{
    group(0, "BLOCK");
    const Group* const name = lastOf(groups_, nameCode);
    if (name != nullptr && !isSeenInPlace(trimmed(name->value))) group(nameCode, name->value);
}

// The reader takes for blocks only those whose names start with these letters, and any other name in that
// place may read like a record's.
const std::string& Rewriter::blockName(std::string_view name)
{
    return blockNames_.try_emplace(name, "HC" + std::to_string(blockNames_.size() + 1)).first->second;
}

// Two names that differ only in characters which Windows-1252 lacks stay two names.
const std::string& Rewriter::layerName(std::string_view name)
{
    const auto [row, isNew] = layerNames_.try_emplace(name, inCodePage(name));
    while (isNew && !takenLayerNames_.insert(row->second).second) row->second += '?';
    return row->second;
}

// The left point of a text is good for every justification but a text fitted between two points.
bool isLeftOut(const RecordForm& form, int code, std::span<const Group> groups)
{
    constexpr std::string_view fitted = "5";
    if (form.name != "TEXT" || (code != justificationCode && code != 11 && code != 21)) return false;
    const Group* const justification = lastOf(groups, justificationCode);
    return justification == nullptr || trimmed(justification->value) != fitted;
}

void Rewriter::record(const RecordForm& form, std::span<const Group> groups)
{
    group(0, form.name);
    for (const int code : form.codes) {
        if (code == 0) return;
        const Group* found = lastOf(groups, code);
        if (found == nullptr && form.name == "VERTEX" && contains(looks, code))
            found = lastOf(polylineLooks_, code);
        if (found != nullptr && !isLeftOut(form, code, groups)) group(code, found->value);
    }
}

std::string Rewriter::inCodePage(std::string_view text) const
{
    return utf8_ ? toCodePage(text) : std::string(text);
}

std::string inCapitals(std::string text)
{
    std::ranges::transform(text, text.begin(), [](char c) {
        return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; // ASCII stays ASCII
    });
    return text;
}

// Blanks count in the string of a text alone.
std::string Rewriter::valueOf(int code, std::string_view value)
{
    switch (code) {
    case textCode:
        return inCodePage(value);
    case nameCode:
        return blockName(trimmed(value));
    case layerCode:
        return layerName(trimmed(value));
    case lineTypeCode:
        return inCapitals(inCodePage(trimmed(value)));
    default:
        return std::string(trimmed(value));
    }
}

void Rewriter::group(int code, std::string_view value)
{
    plain(code, valueOf(code, value));
}

void Rewriter::plain(int code, std::string_view value)
{
    std::string number = std::to_string(code);
    line(number.insert(0, 3 - number.size(), ' '));
    line(value);
}

} // namespace

std::string tolerantDxf(std::string_view text)
{
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (text.starts_with(byteOrderMark)) text.remove_prefix(byteOrderMark.size());
    return Rewriter(text).run();
}

} // namespace mirtane
