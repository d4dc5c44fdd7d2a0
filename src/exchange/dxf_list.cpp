#include "exchange/dxf_list.h"

#include "exchange/pairs.h"
#include "text/ascii.h"

#include <algorithm>

namespace mirtane {
namespace {

// Puts the records into the list, one behind the other.
class Lister {
  public:
    explicit Lister(DxfList& list) : list_(list) {}

    void run();

  private:
    void take(DxfRecord&& record);
    void takeHeader(DxfGroups groups);
    void takeRow(DxfRecord&& record);
    void takeOfBlock(DxfRecord&& record);
    void takeObject(DxfRecord&& record);
    void addDrawn(std::vector<DxfRecord>& to, DxfRecord&& record);
    void dropHalf();

    DxfList& list_;
    std::string_view section_;
    DxfBlock* block_ = nullptr;
    bool partsFollow_ = false; // of the record that was added last
    bool ended_ = false;
};

bool isType(const DxfRecord& record, std::string_view type)
{
    return isSameName(record.type, type);
}

void Lister::run()
{
    const DxfGroups all(list_.groups);
    const auto starts = [](const DxfGroup& group) { return group.code == 0; };
    auto from = std::ranges::find_if(all, starts);
    while (from != all.end() && !ended_) {
        const auto to = std::find_if(from + 1, all.end(), starts);
        take({trimmed(from->value), DxfGroups(from + 1, to), {}});
        from = to;
    }
    list_.isCut = !ended_;
    if (list_.isCut) dropHalf();
}

// Of the last record before a file breaks off it can't be known what is missing.
void Lister::dropHalf()
{
    const bool isInBlock = isSameName(section_, "BLOCKS") && block_ != nullptr;
    if (!isInBlock && !isSameName(section_, "ENTITIES")) return;
    std::vector<DxfRecord>& last = isInBlock ? block_->records : list_.entities;
    if (last.empty()) return;
    std::vector<DxfRecord>& parts = last.back().parts;
    std::vector<DxfRecord>& half = partsFollow_ && !parts.empty() ? parts : last;
    list_.cutOff = half.back().type;
    half.pop_back();
}

void Lister::take(DxfRecord&& record)
{
    if (isType(record, "EOF")) {
        ended_ = true;
    } else if (isType(record, "SECTION")) {
        section_ = record.name(2);
        block_ = nullptr;
        partsFollow_ = false;
        list_.isDxf = true;
        if (isSameName(section_, "HEADER")) takeHeader(record.groups);
    } else if (isType(record, "ENDSEC")) {
        section_ = {};
        partsFollow_ = false;
    } else if (isSameName(section_, "TABLES")) {
        takeRow(std::move(record));
    } else if (isSameName(section_, "BLOCKS")) {
        takeOfBlock(std::move(record));
    } else if (isSameName(section_, "OBJECTS")) {
        takeObject(std::move(record));
    } else if (section_.empty() || isSameName(section_, "ENTITIES")) {
        addDrawn(list_.entities, std::move(record));
    }
}

void Lister::takeHeader(DxfGroups groups)
{
    constexpr int variable = 9;
    const auto starts = [](const DxfGroup& group) { return group.code == variable; };
    auto from = std::ranges::find_if(groups, starts);
    while (from != groups.end()) {
        const auto to = std::find_if(from + 1, groups.end(), starts);
        list_.header.insert_or_assign(trimmed(from->value), DxfGroups(from + 1, to));
        from = to;
    }
}

void Lister::takeRow(DxfRecord&& record)
{
    const std::string_view name = record.name(2);
    if (const auto handle = record.name(5); !handle.empty()) list_.namesByHandle.emplace(handle, name);
    if (isType(record, "APPID") && name == applicationName) list_.hasOurApplication = true;
    if (isType(record, "LAYER") && !name.empty()) list_.layers.push_back(std::move(record));
    if (isType(record, "LTYPE")) list_.lineTypes.emplace(name, std::move(record));
    if (isType(record, "STYLE")) list_.styles.emplace(name, std::move(record));
    if (isType(record, "DIMSTYLE")) list_.dimensionStyles.emplace(name, std::move(record));
}

void Lister::takeOfBlock(DxfRecord&& record)
{
    if (isType(record, "BLOCK")) {
        block_ = &list_.blocks[record.name(2)];
        constexpr int attached = 4, overlaid = 8;
        const bool isElsewhere = (record.whole(70) & (attached | overlaid)) != 0;
        *block_ = {record.name(2), record.point(10), {}, isElsewhere};
        partsFollow_ = false;
    } else if (isType(record, "ENDBLK")) {
        block_ = nullptr;
        partsFollow_ = false;
    } else if (block_ != nullptr) {
        addDrawn(block_->records, std::move(record));
    }
}

void Lister::takeObject(DxfRecord&& record)
{
    const std::string_view handle = record.name(5);
    if (!handle.empty()) list_.objects.emplace(handle, std::move(record));
}

bool isPartOf(const DxfRecord& part, const DxfRecord& whole)
{
    return isType(part, "VERTEX") ? isType(whole, "POLYLINE")
                                  : isType(part, "ATTRIB") && isType(whole, "INSERT");
}

void Lister::addDrawn(std::vector<DxfRecord>& to, DxfRecord&& record)
{
    list_.isDxf = true;
    if (isType(record, "SEQEND")) {
        partsFollow_ = false;
    } else if (partsFollow_ && isPartOf(record, to.back())) {
        to.back().parts.push_back(std::move(record));
    } else {
        partsFollow_ = isType(record, "POLYLINE") || isType(record, "INSERT");
        to.push_back(std::move(record));
    }
}

// By what no other program's header and line types say together.
bool isOurOwn(const DxfList& list)
{
    const auto phantom = list.lineTypes.find("PHANTOM");
    return list.layers.empty() && list.variableName("$ACADVER", 1) == "AC1009" &&
           list.variable("$COORDS", 70, 0) == 2 && list.header.contains("$BLIPMODE") &&
           phantom != list.lineTypes.end() && phantom->second.name(3) == "___ . . ___ . . ___";
}
} // namespace

double DxfRecord::number(int code, double fallback) const
{
    const DxfGroup* const group = findGroup(groups, code);
    return group == nullptr ? fallback : dxfNumber(group->value, fallback);
}

int DxfRecord::whole(int code, int fallback) const
{
    const DxfGroup* const group = findGroup(groups, code);
    return group == nullptr ? fallback : dxfWhole(group->value, fallback);
}

std::string_view DxfRecord::name(int code) const
{
    const DxfGroup* const group = findGroup(groups, code);
    return group == nullptr ? std::string_view() : trimmed(group->value);
}

Vec3 DxfRecord::point(int code) const
{
    return point(code, {});
}

Vec3 DxfRecord::point(int code, Vec3 fallback) const
{
    return {number(code, fallback.x), number(code + 10, fallback.y), number(code + 20, fallback.z)};
}

bool LessWithoutCase::operator()(std::string_view a, std::string_view b) const
{
    return std::ranges::lexicographical_compare(a, b, {}, capitalLetter, capitalLetter);
}

std::string DxfList::text(const DxfRecord& record, int code) const
{
    const DxfGroup* const group = findGroup(record.groups, code);
    return group == nullptr ? std::string() : text(group->value);
}

std::string_view DxfList::nameByHandle(std::string_view handle) const
{
    const auto row = namesByHandle.find(handle);
    return row == namesByHandle.end() ? std::string_view() : row->second;
}

double DxfList::variable(std::string_view name, int code, double fallback) const
{
    const auto row = header.find(name);
    const DxfGroup* const group = row == header.end() ? nullptr : findGroup(row->second, code);
    return group == nullptr ? fallback : dxfNumber(group->value, fallback);
}

std::string_view DxfList::variableName(std::string_view name, int code) const
{
    const auto row = header.find(name);
    const DxfGroup* const group = row == header.end() ? nullptr : findGroup(row->second, code);
    return group == nullptr ? std::string_view() : trimmed(group->value);
}

DxfList dxfListOf(std::string_view bytes)
{
    DxfList list;
    if (isBinaryDxf(bytes)) {
        list.spelledOut = std::make_unique<std::string>(textOfBinaryDxf(bytes));
        bytes = *list.spelledOut;
    }
    list.groups = dxfPairs(bytes);
    Lister(list).run();
    list.isOurs = isOurOwn(list);
    list.coding = {list.variableName("$DWGCODEPAGE", 3), list.variableName("$ACADVER", 1)};
    return list;
}

} // namespace mirtane
