#pragma once

#include <string>
#include <string_view>

namespace mirtane {

// How the texts of a DXF file are coded.
class TextCoding {
  public:
    TextCoding() = default;
    // codePage as $DWGCODEPAGE names it ("ANSI_1250", "dos850"); release as $ACADVER does ("AC1015").
    TextCoding(std::string_view codePage, std::string_view release);

    // A character that can't be had becomes "?". Diameter signs and the like become those that our drawings
    // can keep.
    std::string utf8(std::string_view bytes) const;
    // Whether it has characters that can't be had.
    bool losesLettersOf(std::string_view bytes) const;

  private:
    void append(std::string& out, std::string_view bytes) const;

    const char16_t* upperHalf_ =
        nullptr; // the characters 80 to FF; none for what takes two bytes a character
    bool isUtf8_ = false;
    bool isGuess_ = true; // no code page is named, so that what is well-formed UTF-8 is taken as such
    bool isDouble_ = false;
    bool isJapanese_ = false; // of two bytes, with letters of one among them
};

} // namespace mirtane
