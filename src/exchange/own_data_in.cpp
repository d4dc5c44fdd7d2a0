// exchange/own_data_in.cpp: what own_data.cpp wrote, read again.

#include "exchange/own_data.h"

#include "exchange/dimension_variables.h"
#include "exchange/faces.h"
#include "exchange/own_data_codes.h"
#include "exchange/words_out.h"
#include "geometry/fault.h"
#include "tables/kinds.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <numbers>

namespace mirtane {
namespace {

// Takes the data of a record one by one. What is not there, or something else, makes all of it bad.
class DataReader {
  public:
    DataReader(const DxfRecord& record, const DxfList& list) : list_(list)
    {
        const auto named = [](const DxfGroup& group) {
            return group.code == data::application && trimmed(group.value) == applicationName;
        };
        const auto first = std::ranges::find_if(record.groups, named);
        good_ = first != record.groups.end();
        if (!good_) return;
        const auto behind = [](const DxfGroup& group) { return group.code == data::application; };
        rest_ = {std::next(first), std::find_if(std::next(first), record.groups.end(), behind)};
    }

    bool good() const { return good_; }

    int whole() { return dxfWhole(next(data::whole)); }
    double number() { return dxfNumber(next(data::number)); }
    Vec point()
    {
        const double x = number();
        return {x, number()};
    }
    std::string words()
    {
        std::string all;
        next(data::brace);
        while (!rest_.empty() && rest_.front().code == data::words) all += list_.text(next(data::words));
        next(data::brace);
        return all;
    }

  private:
    std::string_view next(int code)
    {
        good_ = good_ && !rest_.empty() && rest_.front().code == code;
        if (!good_) return {};
        const std::string_view value = rest_.front().value;
        rest_ = rest_.subspan(1);
        return value;
    }

    const DxfList& list_;
    DxfGroups rest_;
    bool good_ = false;
};

// Other programs write numbers with more digits or fewer.
bool isAsKept(double found, double value)
{
    constexpr double allowance = 1e-8;
    return std::abs(found - value) <= allowance * std::max(1.0, std::abs(value));
}

// The groups of a record by their codes, those of one code in the order of the record.
class GroupsInOrder {
  public:
    explicit GroupsInOrder(DxfGroups groups) : groups_(groups) {}

    // The next one of the code, or null.
    const DxfGroup* next(int code)
    {
        std::size_t& at = begun_[code];
        while (at < groups_.size() && groups_[at].code != code) ++at;
        return at < groups_.size() ? &groups_[at++] : nullptr;
    }

  private:
    DxfGroups groups_;
    std::map<int, std::size_t> begun_;
};

// What a group stands for that a program may leave out: an angle of nothing, and the way of a paragraph.
std::optional<double> valueLeftOut(const DxfRecord& record, int code)
{
    constexpr int turn = 50, turnOfDimensionText = 53, lengthOfRadialLeader = 40, wayX = 11, wayY = 21;
    if (isSameName(record.type, "MTEXT") && (code == wayX || code == wayY)) {
        const Vec way = wayAt(record.number(turn) * exactRadiansPerDegree);
        return code == wayX ? way.x : way.y;
    }
    const bool isDimension = isSameName(record.type, "DIMENSION");
    const bool isOptional =
        code == turn || (isDimension && (code == turnOfDimensionText || code == lengthOfRadialLeader));
    return isOptional ? std::optional(0.0) : std::nullopt;
}

// The kind that is named, if all the groups stand as they were written.
std::optional<int> unchangedKind(DataReader& in, const DxfRecord& record)
{
    const int kind = in.whole();
    bool same = true;
    GroupsInOrder groups(record.groups);
    for (int left = in.whole(); left > 0 && in.good(); --left) {
        const int code = in.whole();
        const DxfGroup* const group = groups.next(code);
        const std::optional<double> found =
            group != nullptr ? dxfNumber(group->value) : valueLeftOut(record, code);
        const double value = in.number();
        same = same && found && isAsKept(*found, value);
    }
    if (!in.good() || !same) return std::nullopt;
    return kind;
}

Made objectIn(DataReader& in)
{
    Made made;
    for (Vec& p : made.p) p = in.point();
    for (double* const value :
         {&made.radius, &made.from, &made.to, &made.ratio, &made.size, &made.rotation}) {
        *value = in.number();
    }
    keep(made.arrow, in.whole());
    keep(made.text.justification, in.whole());
    made.text.underlined = in.whole() == 1;
    made.text.face = in.words();
    made.text.words = in.words();
    return made;
}

// The words that a record shows, in one piece or several, are those that were written.
bool showsWords(const DxfRecord& record, const std::string& written, const DxfList& list)
{
    std::string shown;
    for (const DxfGroup& group : record.groups) {
        if (group.code == 1 || (group.code == 3 && record.type == "MTEXT")) shown += group.value;
    }
    return list.text(shown) == list.text(written);
}

bool isSeenFromAbove(const DxfRecord& record)
{
    const Vec3 normal = record.point(210, {0, 0, 1});
    return normal.x == 0 && normal.y == 0 && normal.z > 0;
}

bool hasFace(const DxfRecord& record, const Made& made, const DxfList& list)
{
    const auto style = list.styles.find(record.name(7));
    return style != list.styles.end() &&
           isSameName(faceOfStyle(list, style->second), list.text(dxfFirstPiece(made.text.face)));
}

// Whether the style that it is drawn by still has its sizes. The arrows of leaders and angles may be of
// another size than their text, which is not told.
bool hasSizes(const DxfRecord& record, const Made& made, const DxfList& list)
{
    const DimensionVariables now = dimensionVariables(record, list);
    const bool isOfOneSize = made.kind == Kind::linearDimension || made.kind == Kind::radialDimension;
    return isAsKept(now.text, made.size * capitals) && (!isOfOneSize || isAsKept(now.arrow, made.size));
}

// What others can change of an object besides the numbers that were kept: how it is justified, mirrored and
// seen, and its face.
bool isFormed(const DxfRecord& record, const Made& made, const DxfList& list)
{
    constexpr double little = 1e-6;
    if (!isSeenFromAbove(record)) return false;
    switch (made.kind) {
    case Kind::text:
        return record.whole(71) == 0 && record.whole(73) == 0 && record.number(41, 1) == 1 &&
               record.whole(72) == dxfSideOf(made.text.justification) && hasFace(record, made, list);
    case Kind::ellipse:
        return record.number(41) == 0 && std::abs(record.number(42, wholeTurn) - wholeTurn) < little;
    case Kind::leader:
        return record.whole(71, 1) == 1 && record.whole(72) == 0 && hasSizes(record, made, list);
    case Kind::linearDimension:
    case Kind::radialDimension:
    case Kind::angularDimension:
        return hasSizes(record, made, list);
    default:
        return true;
    }
}

bool isPart(const DxfRecord& record, const Made& leader, const DxfList& list)
{
    DataReader in(record, list);
    return in.good() && unchangedKind(in, record) == partOfAnother && isSeenFromAbove(record) &&
           record.whole(71, 1) == 1 && hasFace(record, leader, list) &&
           showsWords(record, dxfParagraph(leader.text.words), list);
}

} // namespace

std::optional<std::string> ownLayerName(const DxfRecord& record, const DxfList& list)
{
    DataReader in(record, list);
    std::string name = in.words();
    const bool same = in.words() == list.text(record, 2);
    if (!in.good() || !same) return std::nullopt;
    return name;
}

bool isOfOwnText(const DxfRecord& record, const DxfList& list)
{
    return DataReader(record, list).good();
}

std::optional<OwnObject> ownObject(std::span<const DxfRecord> records, const DxfList& list)
{
    const DxfRecord& record = records.front();
    DataReader in(record, list);
    if (!in.good()) return std::nullopt;
    const std::optional<int> kind = unchangedKind(in, record);
    Made made = objectIn(in);
    if (!kind || !in.good()) return std::nullopt;
    std::int16_t number = 0;
    keep(number, *kind);
    made.kind = static_cast<Kind>(number); // any number is a kind, though none that is drawn
    if (!isFormed(record, made, list)) return std::nullopt;
    if (made.kind == Kind::ellipse || made.kind == Kind::arc) return OwnObject{made};
    if (made.kind == Kind::leader && !isAnnotated(made)) return OwnObject{made};
    if (made.kind == Kind::leader) {
        if (records.size() < 2 || !isPart(records[1], made, list)) return std::nullopt;
        return OwnObject{made, 2};
    }
    if (!hasWords(made.kind) || !showsWords(record, wordsShown(made), list)) return std::nullopt;
    return OwnObject{made};
}

} // namespace mirtane
