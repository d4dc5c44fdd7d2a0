#include "dxf/scanner.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace mirtane {
namespace {

std::vector<std::string> linesOf(std::string_view text)
{
    std::vector<std::string> all;
    LineScanner scanner(text);
    std::string_view line;
    while (scanner.next(line)) all.emplace_back(line);
    return all;
}

TEST(LineScanner, AnyLineEndEndsALine)
{
    using Lines = std::vector<std::string>;
    const struct {
        const char* text;
        Lines lines;
    } rows[] = {
        {"", {}},
        {"a", {"a"}},
        {"a\n", {"a"}},
        {"a\r\nb\r\n", {"a", "b"}},
        {"a\nb\nc", {"a", "b", "c"}},
        {"a\rb\r", {"a", "b"}},
        {"a\r\n\r\nb", {"a", "", "b"}},
        {"a\n\nb", {"a", "", "b"}},
        {"a\r\rb", {"a", "", "b"}},
        {"\n\r\n", {"", ""}},
        {"  0 \n LINE", {"  0 ", " LINE"}},
    };
    for (const auto& row : rows) EXPECT_EQ(linesOf(row.text), row.lines) << row.text;
}

TEST(GroupCode, OnlyCodesPaddedToThreeCharacters)
{
    const struct {
        const char* line;
        int code;
    } rows[] = {
        {"  0", 0},  {"  8", 8},   {" 62", 62}, {" 10", 10},  {"0", -1},    {" 0", -1},
        {"10", -1},  {"   0", -1}, {"100", -1}, {" 0 ", -1},  {"  0 ", -1}, {" 08", -1},
        {"  a", -1}, {" a1", -1},  {"", -1},    {"\t10", -1}, {"   ", -1},
    };
    for (const auto& row : rows) EXPECT_EQ(groupCode(row.line), row.code) << '"' << row.line << '"';
}

TEST(LeadingNumber, TakesWhatATextBeginsWith)
{
    const struct {
        const char* text;
        std::optional<double> value;
    } rows[] = {
        {"12", 12.0},    {"  -1.5", -1.5}, {"+3", 3.0},     {".5", 0.5},      {"5.", 5.0},
        {"1e3", 1000.0}, {"1E-2", 0.01},   {"7 feet", 7.0}, {"1.2.3", 1.2},   {"2e", 2.0},
        {"", {}},        {"   ", {}},      {"abc", {}},     {"-", {}},        {".", {}},
        {"nan", {}},     {"inf", {}},      {"-inf", {}},    {"+-1", {}},      {"1e999", {}},
        {"1e-999", 0.0}, {"0x10", 0.0},    {"\t4", 4.0},    {"infinity", {}}, {"1,5", 1.0},
    };
    for (const auto& row : rows) EXPECT_EQ(leadingNumber(row.text, '.'), row.value) << row.text;
}

TEST(LeadingNumber, TakesTheCommaOfASystemBesideThePoint)
{
    EXPECT_EQ(leadingNumber("1,5", ','), 1.5);
    EXPECT_EQ(leadingNumber("1.5", ','), 1.5);
}

TEST(LeadingNumber, OneOfManyDigitsIsTooLargeOrTooSmall)
{
    EXPECT_EQ(leadingNumber(std::string(500, '9'), '.'), std::nullopt);
    EXPECT_EQ(leadingNumber("0." + std::string(500, '0') + "1", '.'), 0.0);
    EXPECT_EQ(leadingNumber("-0000" + std::string(500, '9'), '.'), std::nullopt);
}

} // namespace
} // namespace mirtane
