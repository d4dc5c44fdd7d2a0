#pragma once

// The text of the manual: its chapters, and what stands where. A chapter is a line with its number and its
// title over a line of dashes. Places are counted in bytes of UTF-8.

#include "files/disk.h"

#include <string>
#include <string_view>
#include <vector>

namespace mirtane {

struct Chapter {
    int number = 0;
    std::string title; // number and words, as the manual's own list of contents writes them
    std::size_t place = 0;
};

// The file as the page shows it: lines may end in LF, CR LF or CR; they are joined with CR LF, the last one
// without.
std::string joinedLines(const Bytes& file);

std::vector<Chapter> chaptersOf(std::string_view manual);

// The chapter that a place lies in, counted from 0; -1 before the first.
int chapterAt(const std::vector<Chapter>& chapters, std::size_t place);

// Where a paragraph of a chapter begins; the chapter's own place if it has none of that heading, and the
// beginning if there is no such chapter.
std::size_t placeInManual(std::string_view manual, int chapter, std::string_view heading);

// Where a word stands next, in upper or lower case, from a place on and then from the beginning; npos if it
// stands nowhere. An empty word stands nowhere.
std::size_t findInManual(std::string_view manual, std::string_view word, std::size_t from);

// Characters before a place, and the place before a character.
int characterAt(std::string_view manual, std::size_t place);
std::size_t byteAt(std::string_view manual, int character);

} // namespace mirtane
