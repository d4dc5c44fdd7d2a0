#include "exchange/record_checks.h"

#include <algorithm>

namespace mirtane {
namespace {

// By its letters, as numbers cost them: those of texts are laid out one by one.
std::size_t lettersOf(const DxfRecord& record)
{
    constexpr std::size_t ofCode = 8, ofTextLetter = 32;
    std::size_t letters = 0;
    for (const DxfGroup& group : record.groups) {
        const bool isText = group.code == 1 || group.code == 3;
        letters += group.value.size() * (isText ? ofTextLetter : 1) + ofCode;
    }
    for (const DxfRecord& part : record.parts) letters += lettersOf(part);
    return letters;
}

bool hasAny(const DxfRecord& record, std::span<const int> codes)
{
    const auto isThere = [&record](int code) { return code != 0 && record.has(code); };
    return codes.empty() || codes[0] == 0 || std::ranges::any_of(codes, isThere);
}

// Of places x and y: how high a point lies is seldom seen.
constexpr CodeSet placeCodes =
    codes({10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20, 21, 22, 23, 24, 25, 26, 27, 28, 29});

bool isReadable(const DxfRecord& record, CodeSet numbers)
{
    const auto isBad = [numbers](const DxfGroup& group) {
        return group.code >= 10 && group.code < 60 && (numbers >> group.code & 1) != 0 &&
               isNoNumber(group.value);
    };
    if (std::ranges::any_of(record.groups, isBad)) return false;
    const bool hasVertices = isSameName(record.type, "POLYLINE"); // other parts are records of their own
    return !hasVertices || std::ranges::all_of(record.parts, [&](const DxfRecord& part) {
        return isReadable(part, numbers);
    });
}

} // namespace

std::int64_t costOf(const DxfRecord& record)
{
    constexpr std::size_t lettersOfShort = 256;
    return 1 + static_cast<std::int64_t>(lettersOf(record) / lettersOfShort); // far below what it holds
}

bool isWhole(const DxfRecord& record, std::span<const int> shownBy, CodeSet numbers)
{
    return hasAny(record, shownBy) && isReadable(record, placeCodes | numbers);
}

bool losesLetters(const DxfRecord& record, const DxfList& list)
{
    constexpr int words = 1, pieceOfWords = 3, wordsOfLeader = 304;
    return std::ranges::any_of(record.groups, [&list](const DxfGroup& group) {
        const bool isText = group.code == words || group.code == pieceOfWords || group.code == wordsOfLeader;
        return isText && list.coding.losesLettersOf(group.value);
    });
}

} // namespace mirtane
