#pragma once

// What can be said of a record before anything is drawn of it.

#include "exchange/dxf_list.h"

#include <cstdint>
#include <initializer_list>
#include <span>

namespace mirtane {

// Codes below 64, a bit each.
using CodeSet = std::uint64_t;

constexpr CodeSet codes(std::initializer_list<int> all)
{
    CodeSet set = 0;
    for (const int code : all) set |= CodeSet{1} << code;
    return set;
}

// Whether it has one of the codes by which it is shown (none, or a 0 in front: by any), and each of its
// places and of the numbers that are named is a number.
bool isWhole(const DxfRecord& record, std::span<const int> shownBy, CodeSet numbers);

// Whether there are letters in its words that the file's code page doesn't tell.
bool losesLetters(const DxfRecord& record, const DxfList& list);

// What it costs to go through a record, besides what is drawn of it; 1 for a short one.
std::int64_t costOf(const DxfRecord& record);

} // namespace mirtane
