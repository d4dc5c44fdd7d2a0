#include "exchange/code_pages.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

TEST(TextCoding, BytesAreThoseOfTheFilesCodePage)
{
    struct Row {
        const char* codePage;
        const char* release;
        const char* bytes;
        const char* utf8;
    };
    const Row rows[] = {
        {"ANSI_1252", "AC1015",
         "Gr\xF6\xDF"
         "e 3\xB2 \x80",
         "Größe 3² €"},
        {"ansi_1252", "AC1015", "na\xEFve", "naïve"},
        {"ANSI_1250", "AC1018", "\xE8\x9Ek\xFD", "čžký"},
        {"ANSI_1251", "AC1015", "\xCF\xEB\xE0\xED", "План"},
        {"ANSI_1253", "AC1012", "\xF0", "π"},
        {"dos850", "AC1009", "\x84\x94\x81\xE1", "äöüß"},
        {"DOS437", "AC1009", "\xF8 \xF1", "° ±"},
        {"ISO8859_2", "AC1009", "\xB1", "ą"},
        {"mac-roman", "AC1009", "\x8A", "ä"},
        {"unheard of", "AC1009", "a\xE9", "a?"}, // a question mark, and not a wrong letter
        {"ANSI_9999", "AC1027", "\xE9t", "?t"},
        {"ascii", "AC1009", "\xE9", "é"},
        {"dos861", "AC1009", "\x8D\x95", "Þþ"},
        {"dos869", "AC1009", "\xF0", "\u00AD"},
        {"dos864", "AC1009", "\xB0", "٠"},
        {"ISO8859_3", "AC1009", "\xA1\xB1", "Ħħ"},
        {"ISO8859_4", "AC1009", "\xA5\xB5", "Ĩĩ"},
        {"ISO8859_6", "AC1009", "\xC7", "ا"},
        {"ISO8859_8", "AC1009", "\xE0\xA1", "א?"},
        {"ANSI_932", "AC1015",
         "a\x83\x5C"
         "b",
         "a?b"}, // whose second byte is a backslash in any other page
        {"ANSI_932", "AC1015",
         "\xB1\xDF"
         "9",
         "??9"}, // letters of one byte
        {"ANSI_936", "AC1015",
         "\xB1\xDF"
         "9",
         "?9"},
        {"ANSI_1252", "AC1021",
         "Gr\xC3\xB6\xC3\x9F"
         "e",
         "Größe"},
        {"ANSI_1252", "AC1027", "\xE9t\xE9", "été"}, // no UTF-8, although the release has it
        {"ISO8859-1", "AC1015", "\xE9\xDF\xC4\xB5\xF8", "éßÄµø"},
        {"iso_8859_1", "AC1009", "\xBD\x85", "½?"},
        {"ISO8859-15", "AC1015", "\xA4\xBD\xFC", "€œü"},
        {"dos737", "AC1009", "\x80\xE3", "Αή"},
        {"UTF-8", "AC1015", "\xC3\xA9\xCE\xA9", "éΩ"},
        {"utf8", "AC1009", "\xE9t\xE9", "été"}, // none, although the file says so
        {"undefined", "AC1009", "\xE9", "é"},
        {"", "", "\xC3\xA9", "é"},
        {"", "AC1009", "\xE9", "é"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(TextCoding(row.codePage, row.release).utf8(row.bytes), row.utf8)
            << row.codePage << row.bytes;
}

TEST(TextCoding, CharactersByTheirNumbers)
{
    struct Row {
        const char* bytes;
        const char* utf8;
    };
    const Row rows[] = {
        {"\\U+00D8 20", "Ø 20"},
        {"a\\u+20ACb\\U+03B1", "a€bα"},
        {"\\U+00G0", "\\U+00G0"},
        {"\\U+00D", "\\U+00D"},
        {"\\M+182A0x", "?x"},
        {"\\M+1", "\\M+1"},
        {"\\\\U+00E9", "\\é"},
        {"C:\\plans\\", "C:\\plans\\"},
        {"\\U+D800", "?"},
        {"a\\U+D83D\\U+DE00b", "a\U0001F600b"},
        {"\\U+dbff\\u+dfff", "\U0010FFFF"},
        {"\\U+D800\\U+DC00", "\U00010000"},
        {"\\U+D83D\\U+00E9", "?é"},
        {"\\U+DE00\\U+D83D", "??"},
        {"\\U+0007bell", "bell"},
        {"\\U+220520 \\U+2300", "Ø20 Ø"},
        {"6\\U+20332", "6\"2"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(TextCoding("ANSI_1252", "AC1015").utf8(row.bytes), row.utf8) << row.bytes;
}

} // namespace
} // namespace mirtane
