// The nineteen values that outlive a run: what is written, what is taken back, and what nonsense leaves
// alone.

#include "desk.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using fake::Desk;
using Values = std::map<std::string, std::string>;

// A value of each key that is none of the defaults.
Values changedValues()
{
    return {{"tnam", "Courier New"}, {"tsize", "36.5"}, {"asize", "24.25"}, {"dstyle", "3"},  {"tjust", "2"},
            {"ntol", "0.0625"},      {"ncom", "1"},     {"acom", "1"},      {"nstyle", "br"}, {"wkd", "/d"},
            {"wkmtad", "/e"},        {"wkmthd", "/f"},  {"wkmtmd", "/g"},   {"wkdxfd", "/h"}, {"wkp", "/i"},
            {"wkmtap", "/j"},        {"wkmthp", "/k"},  {"wkmtmp", "/l"},   {"wkdxfp", "/m"}};
}

Values defaultValues()
{
    return {{"tnam", "Garamond"},   {"tsize", "48"},        {"asize", "48"},        {"dstyle", "1"},
            {"tjust", "0"},         {"ntol", "0.125"},      {"ncom", "0"},          {"acom", "0"},
            {"nstyle", "us"},       {"wkd", fake::home},    {"wkmtad", fake::home}, {"wkmthd", fake::home},
            {"wkmtmd", fake::home}, {"wkdxfd", fake::home}, {"wkp", fake::home},    {"wkmtap", fake::home},
            {"wkmthp", fake::home}, {"wkmtmp", fake::home}, {"wkdxfp", fake::home}};
}

// What a program that found these values writes when it ends at once.
Values handedOn(const Values& stored)
{
    Desk desk(stored);
    desk.press("fil14"_c);
    EXPECT_EQ(desk.settings.writes, 1);
    return desk.settings.values;
}

std::string checkedAmong(const Desk& desk, const std::vector<ControlId>& entries)
{
    std::string checked;
    for (const ControlId id : entries) {
        if (desk.s.controls[id].checked) checked += std::string(id.row().name) + " ";
    }
    return checked;
}

TEST(Settings, AreHandedOnAsTheyWereFound)
{
    EXPECT_EQ(handedOn(changedValues()), changedValues());
    EXPECT_EQ(handedOn({}), defaultValues());
}

TEST(Settings, OfOneKeyLeaveTheOthersAtTheirDefaults)
{
    for (const auto& [key, value] : changedValues()) {
        Values expected = defaultValues();
        expected[key] = value;
        EXPECT_EQ(handedOn({{key, value}}), expected) << key;
    }
}

TEST(Settings, MissingOneKeyGiveItsDefaultAlone)
{
    for (const auto& [key, value] : defaultValues()) {
        Values stored = changedValues();
        Values expected = stored;
        stored.erase(key);
        expected[key] = value;
        EXPECT_EQ(handedOn(stored), expected) << key;
    }
}

constexpr const char* numberKeys[] = {"tsize", "asize", "dstyle", "tjust", "ntol", "ncom", "acom"};

// The keys for which a value is taken instead of the default, or that change another key.
std::string keysThatTake(const std::string& value)
{
    std::string taken;
    for (const char* const key : numberKeys) {
        Values stored = changedValues();
        Values expected = stored;
        stored[key] = value;
        expected[key] = defaultValues()[key];
        const Values got = handedOn(stored);
        if (got != expected) taken += std::string(key) + "=" + got.at(key) + " ";
    }
    return taken;
}

TEST(Settings, ThatAreNoNumbersGiveTheDefaultOfTheirKeyAlone)
{
    for (const char* const value :
         {"",     " ",     "abc",    "-",    "+",    ".", "--5", "+-5",    "..5", "nan", "inf",
          "-inf", "1e999", "-1e999", "true", "\xC3", "#", "\"",  "einige", ",25", "(5)", "$5"}) {
        EXPECT_EQ(keysThatTake(value), "") << "stored as \"" << value << '"';
    }
}

TEST(Settings, ThatOnlyBeginLikeANumberGiveTheDefaultOfTheirKeyAlone)
{
    for (const char* const value : {"0,25", "12abc", "1 2", "0x", "1.2.3", "1/8", "5%", "12\""}) {
        EXPECT_EQ(keysThatTake(value), "") << "stored as \"" << value << '"';
    }
}

TEST(Settings, ThatDoNotFitTheirTypeGiveTheDefault)
{
    const std::pair<const char*, const char*> rows[] = {
        {"dstyle", "32768"}, {"dstyle", "-32769"}, {"tjust", "99999999999"}, {"ncom", "1e10"},
        {"acom", "-1e10"},   {"tsize", "1e39"},    {"asize", "-1e39"},       {"ntol", "1e308"}};
    for (const auto& [key, value] : rows) {
        EXPECT_EQ(handedOn({{key, value}}), defaultValues()) << key << " stored as " << value;
    }
}

TEST(Settings, OfWholeNumbersAreRoundedToTheNearestAndTiesToEven)
{
    const std::pair<const char*, const char*> rows[] = {{"1.4", "1"}, {"1.5", "2"},   {"2.5", "2"},
                                                        {"2.6", "3"}, {"-1.5", "-2"}, {"32767", "32767"}};
    for (const auto& [stored, taken] : rows) {
        EXPECT_EQ(handedOn({{"dstyle", stored}})["dstyle"], taken) << stored;
    }
}

TEST(Settings, WithoutATextGiveTheDefaultFontStyleAndFolders)
{
    Values stored = changedValues();
    for (auto& [key, value] : stored) value.clear();
    EXPECT_EQ(handedOn(stored), defaultValues());
}

TEST(Settings, TextsAreHandedOnLetterByLetter)
{
    const char* const names[] = {
        "A, B; \"C\" = 'D'", "\xC3\xA9t\xC3\xA9 \xE2\x82\xAC", " blanks ", "[x]", "%41\\n", "@Invalid()"};
    for (const char* const name : names) EXPECT_EQ(handedOn({{"tnam", name}})["tnam"], name);
}

TEST(Settings, UnderOtherKeysAreNotTaken)
{
    EXPECT_EQ(handedOn({{"TSIZE", "5"}, {"size", "5"}, {"", "5"}, {"wk", "/x"}}), defaultValues());
}

TEST(Settings, CheckTheMenusOfTheirValues)
{
    struct Row {
        const char* key;
        const char* value;
        const char* checked;
    };
    const Row rows[] = {{"dstyle", "1", "dim5 "},
                        {"dstyle", "2", "dim4 "},
                        {"dstyle", "3", "dim3 "},
                        {"dstyle", "0", ""},
                        {"dstyle", "4", ""},
                        {"tjust", "0", "tk7 "},
                        {"tjust", "1", "tk9 "},
                        {"tjust", "2", "tk8 "},
                        {"tjust", "3", ""},
                        {"tjust", "-1", ""},
                        {"ntol", "0.25", "dtol2 "},
                        {"ntol", "0.125", "dtol3 "},
                        {"ntol", "0.0625", "dtol4 "},
                        {"ntol", "0.03125", "dtol5 "},
                        {"ntol", "0.015625", "dtol6 "},
                        {"ntol", "0.5", ""},
                        {"ntol", "0", ""},
                        {"nstyle", "us", "num1 "},
                        {"nstyle", "2f", "num2 "},
                        {"nstyle", "3i", "num3 "},
                        {"nstyle", "br", "num4 "},
                        {"nstyle", "US", ""},
                        {"acom", "0", "ang1 "},
                        {"acom", "1", "ang2 "},
                        {"acom", "2", ""}};
    const std::map<std::string, std::vector<ControlId>> menus = {
        {"dstyle", {"dim3"_c, "dim4"_c, "dim5"_c}},
        {"tjust", {"tk7"_c, "tk8"_c, "tk9"_c}},
        {"ntol", {"dtol2"_c, "dtol3"_c, "dtol4"_c, "dtol5"_c, "dtol6"_c}},
        {"nstyle", {"num1"_c, "num2"_c, "num3"_c, "num4"_c, "num5"_c}},
        {"acom", {"ang1"_c, "ang2"_c}}};
    for (const Row& row : rows) {
        const Desk desk(Values{{row.key, row.value}});
        EXPECT_EQ(checkedAmong(desk, menus.at(row.key)), row.checked) << row.key << " " << row.value;
    }
}

TEST(Settings, OfMetricWithACommaCheckCommaMetric)
{
    const Desk desk(Values{{"nstyle", "br"}, {"ncom", "1"}});
    EXPECT_EQ(checkedAmong(desk, {"num1"_c, "num2"_c, "num3"_c, "num4"_c, "num5"_c}), "num5 ");
}

TEST(Settings, AreNotSavedByAnythingButTheEnd)
{
    Desk desk;
    for (std::size_t i = 0; i < controlCount; ++i) {
        const ControlId id = controlTable[i].id;
        if (id.row().kind == ControlKind::checkedEntry) desk.press(id);
    }
    desk.drawLine(100, 100, 400, 100);
    desk.saveAs("house");
    desk.press("fil5"_c);
    desk.open("house");
    EXPECT_EQ(desk.settings.writes, 0);
    desk.shell.closeForm("frmMain"_c);
    EXPECT_EQ(desk.settings.writes, 1);
    desk.shell.closeForm("frmMain"_c);
    EXPECT_EQ(desk.settings.writes, 1); // the program has ended
}

TEST(Settings, AreWrittenWhenWorkIsGivenUpAtTheEnd)
{
    Desk desk(Values{{"tsize", "60"}});
    desk.drawLine(100, 100, 400, 100);
    desk.shell.closeForm("frmMain"_c);
    EXPECT_EQ(desk.settings.writes, 0);
    desk.press("frmfile.Command2"_c);
    EXPECT_TRUE(desk.shell.ended());
    EXPECT_EQ(desk.settings.writes, 1);
    EXPECT_EQ(desk.settings.values["tsize"], "60");
}

TEST(Settings, HaveNoFormLeftOnTheScreenAtTheEnd)
{
    Desk desk;
    desk.press("hlp3"_c);
    desk.press("flt1"_c);
    desk.drawLine(100, 100, 400, 100);
    desk.shell.closeForm("frmMain"_c);
    desk.press("frmfile.Command2"_c);
    EXPECT_TRUE(desk.shell.ended());
    for (const ControlId form : {"frmfile"_c, "frmfilter"_c, "frmedit"_c, "frmprintset"_c, "frmhelp"_c}) {
        EXPECT_FALSE(desk.visible(form)) << form.row().name;
    }
}

} // namespace
} // namespace mirtane
