#include "text/measure.h"

#include <cstddef>
#include <gtest/gtest.h>

namespace mirtane {
namespace {

// Lengths are in world units, twelve to the inch and 144 to the foot.
struct Row {
    const char* what;
    float length;
    const char* text;
};

template <std::size_t count> void expectLengths(const Row (&rows)[count], NumStyle style)
{
    for (const Row& row : rows) EXPECT_EQ(formatMeasure({row.length, {style}}), row.text) << row.what;
}

template <std::size_t count> void expectAreas(const Row (&rows)[count], NumStyle style)
{
    for (const Row& row : rows) EXPECT_EQ(formatMeasure({row.length, {style}, true}), row.text) << row.what;
}

TEST(DecimalInchesMeasure, AreCutBehindTheThousandthAndRaisedByAnythingAboveAFive)
{
    const Row rows[] = {
        {"nothing has no zero before the point", 0.0F, R"(.000")"},
        {"an inch", 12.0F, R"(1.000")"},
        {"half an inch", 6.0F, R"(.500")"},
        {"a thousandth", 0.012F, R"(.001")"},
        {"three places need no rounding", 14.808F, R"(1.234")"},
        {"a 6 behind is raised", 12.0072F, R"(1.001")"},
        {"a 5 behind is dropped", 12.006F, R"(1.000")"},
        {"a 4 behind is dropped", 12.0048F, R"(1.000")"},
        {"a 1 behind is dropped", 12.0012F, R"(1.000")"},
        {"a 7 behind is raised", 12.0084F, R"(1.001")"},
        {"an 8 behind is raised", 12.0096F, R"(1.001")"},
        {"a 9 behind is raised", 12.0108F, R"(1.001")"},
        {"a 5 with more behind it is dropped too", 12.00708F, R"(1.000")"},
        {"a 5 with nines behind it", 12.007188F, R"(1.000")"},
        {"a 4 with nines behind it", 12.005988F, R"(1.000")"},
        {"a 6 with nothing behind it", 28.1472F, R"(2.346")"},
        {"the raise carries into the tenths", 13.1952F, R"(1.100")"},
        {"the raise carries into the inch", 23.9952F, R"(2.000")"},
        {"and into the tens", 119.9952F, R"(10.000")"},
        {"and into the hundreds", 1199.9952F, R"(100.000")"},
        {"and into the thousands", 11999.995F, R"(1000.000")"},
        {"999.9995 keeps its nines", 11999.994F, R"(999.999")"},
        {"below an inch, raised", 0.0072F, R"(.001")"},
        {"below an inch, dropped", 0.006F, R"(.000")"},
        {"the least with no exponent", 0.0012F, R"(.000")"},
        {"with an exponent, nothing", 0.0006F, R"(.000")"},
        {"with an exponent and digits behind the point", 0.0008136F, R"(.000")"},
        {"seven digits leave three places", 14814.804F, R"(1234.567")"},
        {"seven digits leave two places", 148148.05F, R"(12345.670")"},
        {"seven digits leave one", 1481480.4F, R"(123456.700")"},
        {"seven digits leave none", 14814804.0F, R"(1234567.000")"},
        {"ten million has an exponent", 120000000.0F, R"(10000000.000")"},
        {"a hundred and twenty three million", 1481481500.0F, R"(123456800.000")"},
        {"four places with three before", 1481.4803F, R"(123.457")"},
        {"a third of an inch", 4.0F, R"(.333")"},
        {"two thirds", 8.0F, R"(.667")"},
        {"a sixty-fourth", 0.1875F, R"(.016")"},
        {"three sixty-fourths", 0.5625F, R"(.047")"},
        {"a thirty-second is cut at the 2", 0.375F, R"(.031")"},
        {"a sixteenth is cut at the 5", 0.75F, R"(.062")"},
        {"three sixteenths", 2.25F, R"(.187")"},
        {"an eighth", 1.5F, R"(.125")"},
        {"a foot", 144.0F, R"(12.000")"},
        {"ten feet", 1440.0F, R"(120.000")"},
        {"a hundred feet", 14400.0F, R"(1200.000")"},
        {"twelve feet three and a half", 1770.0F, R"(147.500")"},
        {"15 11/16", 188.25F, R"(15.687")"},
        {"an 8 seen at the fourth place", 37.7016F, R"(3.142")"},
        {"a 5 seen at the fourth place", 37.698F, R"(3.141")"},
        {"a mile", 760320.0F, R"(63360.000")"},
    };
    expectLengths(rows, NumStyle::decimalInches);
}

TEST(DecimalFeetMeasure, AreCutBehindTheHundredthAndRaisedByAnythingAboveAFive)
{
    const Row rows[] = {
        {"nothing", 0.0F, R"(.00')"},
        {"a foot", 144.0F, R"(1.00')"},
        {"half a foot", 72.0F, R"(.50')"},
        {"a hundredth", 1.44F, R"(.01')"},
        {"two places need no rounding", 177.12F, R"(1.23')"},
        {"a 6 behind is raised", 144.864F, R"(1.01')"},
        {"a 5 behind is dropped", 144.72F, R"(1.00')"},
        {"a 5 with more behind it", 144.8496F, R"(1.00')"},
        {"a 4 behind is dropped", 144.576F, R"(1.00')"},
        {"a 9 behind is raised", 145.296F, R"(1.01')"},
        {"a 7 behind is raised", 145.008F, R"(1.01')"},
        {"an 8 behind is raised", 145.152F, R"(1.01')"},
        {"a 1 behind is dropped", 144.144F, R"(1.00')"},
        {"the raise carries into the foot", 287.424F, R"(2.00')"},
        {"and into the tens", 1439.568F, R"(10.00')"},
        {"9.996 is 9.995999 in a float", 1439.424F, R"(9.99')"},
        {"and into the hundreds", 14399.424F, R"(100.00')"},
        {"and into the thousands", 143999.42F, R"(1000.00')"},
        {"and into the ten thousands", 1439999.4F, R"(10000.00')"},
        {"9999.995 keeps its nines", 1439999.2F, R"(9999.99')"},
        {"an inch is a twelfth", 12.0F, R"(.08')"},
        {"a third of a foot", 48.0F, R"(.33')"},
        {"two thirds", 96.00001F, R"(.67')"},
        {"half an inch", 6.0F, R"(.04')"},
        {"six hundredths of an inch", 0.72F, R"(.00')"},
        {"less than half a hundredth", 0.576F, R"(.00')"},
        {"more than half a hundredth", 0.864F, R"(.01')"},
        {"the least with no exponent", 0.0144F, R"(.00')"},
        {"with an exponent, nothing", 0.01296F, R"(.00')"},
        {"a hundred and a bit", 17776.8F, R"(123.45')"},
        {"seven digits leave two places", 1777776.5F, R"(12345.67')"},
        {"seven digits leave one", 17777764.0F, R"(123456.70')"},
        {"seven digits leave none", 177777650.0F, R"(1234567.00')"},
        {"ten million has an exponent", 1440000000.0F, R"(10000000.00')"},
        {"a mile", 760320.0F, R"(5280.00')"},
        {"twelve feet three and a half inches", 1770.0F, R"(12.29')"},
        {"an eighth of a foot is cut at the 5", 18.0F, R"(.12')"},
        {"three eighths", 54.0F, R"(.37')"},
        {"a sixteenth", 9.0F, R"(.06')"},
        {"seven eighths", 126.0F, R"(.87')"},
        {"a thousand and a third", 144048.0F, R"(1000.33')"},
    };
    expectLengths(rows, NumStyle::decimalFeet);
}

TEST(AreaMeasure, IsInFeetInEveryStyleButMetric)
{
    const Row rows[] = {
        {"nothing", 0.0F, R"(.00')"},
        {"a square foot", 144.0F, R"(1.00')"},
        {"a room", 17776.8F, R"(123.45')"},
        {"a 5 behind is dropped", 1440.72F, R"(10.00')"},
        {"a 6 behind is raised", 1440.864F, R"(10.01')"},
        {"the raise carries", 2879.424F, R"(20.00')"},
        {"half", 72.0F, R"(.50')"},
        {"a lot", 6272640.0F, R"(43560.00')"},
        {"a third", 48.0F, R"(.33')"},
        {"a twelfth", 12.0F, R"(.08')"},
    };
    for (const NumStyle style : {NumStyle::feetAndInches, NumStyle::decimalFeet, NumStyle::decimalInches}) {
        expectAreas(rows, style);
    }
}

TEST(AreaMeasure, IsInMetresWhenMetric)
{
    const Row rows[] = {
        {"nothing", 0.0F, R"(.00m)"},
        {"a square metre", 1546.5715F, R"(1.00m)"},
        {"a room", 17785.572F, R"(11.50m)"},
        {"a 5 behind is dropped", 15473.758F, R"(10.00m)"},
        {"a 6 behind is raised", 15475.613F, R"(10.01m)"},
        {"the raise carries", 30925.709F, R"(20.00m)"},
        {"half", 773.28577F, R"(.50m)"},
        {"a field", 15465715.0F, R"(10000.00m)"},
        {"a third", 515.52386F, R"(.33m)"},
        {"a hundred and a bit", 190925.8F, R"(123.45m)"},
        {"with an exponent, nothing", 0.07732858F, R"(.00m)"},
        {"a square foot", 144.0F, R"(.09m)"},
    };
    expectAreas(rows, NumStyle::metric);
}

TEST(MetricMeasure, MetresStandInFrontWhenThereAreAny)
{
    const Row rows[] = {
        {"nothing", 0.0F, R"(0.000cm)"},
        {"a millimetre", 0.4720778F, R"(0.100cm)"},
        {"a centimetre", 4.720778F, R"(1.000cm)"},
        {"ten", 47.20778F, R"(10.000cm)"},
        {"twelve and a half", 59.009724F, R"(12.500cm)"},
        {"three places", 58.278004F, R"(12.345cm)"},
        {"a fourth place below 5", 58.27942F, R"(12.345cm)"},
        {"a fourth place above 5", 58.281307F, R"(12.346cm)"},
        {"half a metre", 236.0389F, R"(50.000cm)"},
        {"just above half a metre is no metre yet", 238.39928F, R"(50.500cm)"},
        {"nearly a metre", 467.357F, R"(99.000cm)"},
        {"a little more", 471.6057F, R"(99.900cm)"},
        {"99.99 is a hundredth short", 472.03058F, R"(99.990cm)"},
        {"six thousandths short is no metre", 472.04947F, R"(99.994cm)"},
        {"four thousandths short is the metre, less", 472.0589F, R"(1m -0.004cm)"},
        {"one thousandth short", 472.07306F, R"(1m -0.001cm)"},
        {"a metre", 472.0778F, R"(1m 0.000cm)"},
        {"a metre and a thousandth", 472.0825F, R"(1m 0.001cm)"},
        {"a metre and a centimetre", 476.79855F, R"(1m 1.000cm)"},
        {"a metre and a half is rounded to two first", 708.1167F, R"(1m 50.000cm)"},
        {"a metre and 49", 703.3959F, R"(1m 49.000cm)"},
        {"a metre and 51", 712.83746F, R"(1m 51.000cm)"},
        {"a metre and 99", 939.43475F, R"(1m 99.000cm)"},
        {"two metres less six thousandths", 944.12726F, R"(1m 99.994cm)"},
        {"two metres less four thousandths", 944.13666F, R"(2m -0.004cm)"},
        {"two metres", 944.1556F, R"(2m 0.000cm)"},
        {"two and a half: the even two", 1180.1945F, R"(2m 50.000cm)"},
        {"two metres and 60", 1227.4022F, R"(2m 60.000cm)"},
        {"three metres twelve and a half", 1475.243F, R"(3m 12.500cm)"},
        {"three metres and a half: four first", 1652.2722F, R"(3m 50.000cm)"},
        {"nearly ten metres", 4720.7305F, R"(9m 99.990cm)"},
        {"ten metres", 4720.778F, R"(10m 0.000cm)"},
        {"ten metres and a bit", 4778.6074F, R"(10m 12.250cm)"},
        {"a hundred metres", 47207.777F, R"(100m 0.000cm)"},
        {"a hundred and a bit", 47446.176F, R"(100m 50.500cm)"},
        {"a kilometre", 472077.78F, R"(1000m 0.000cm)"},
        {"less than half a thousandth is nothing", 0.0018883111F, R"(0.000cm)"},
        {"more than half a thousandth", 0.0028324667F, R"(0.001cm)"},
        {"a tenth of a millimetre", 0.047207776F, R"(0.010cm)"},
        {"one thousandth", 0.0047207777F, R"(0.001cm)"},
        {"a unit", 1.0F, R"(0.212cm)"},
        {"an inch", 12.0F, R"(2.542cm)"},
        {"a foot", 144.0F, R"(30.503cm)"},
        {"ten feet", 1440.0F, R"(3m 5.034cm)"},
        {"a hundred feet", 14400.0F, R"(30m 50.345cm)"},
        {"a mile", 760320.0F, R"(1610m 58.203cm)"},
    };
    expectLengths(rows, NumStyle::metric);
}

TEST(MetricMeasure, NoToleranceMatters)
{
    EXPECT_EQ(formatMeasure({1475.243F, {NumStyle::metric, 0.25F}}), "3m 12.500cm");
    EXPECT_EQ(formatMeasure({1475.243F, {NumStyle::metric, 0.0F}}), "3m 12.500cm");
}

TEST(MeasureComma, StandsForThePointInMetricDecimalFeetAndAreas)
{
    struct CommaRow {
        const char* what;
        Measure measure;
        const char* text;
    };
    constexpr float step = 0.125F;
    const CommaRow rows[] = {
        {"centimetres", {59.009724F, {NumStyle::metric, step, true}}, "12,500cm"},
        {"metres and centimetres", {1475.243F, {NumStyle::metric, step, true}}, "3m 12,500cm"},
        {"a metre less a little", {472.0589F, {NumStyle::metric, step, true}}, "1m -0,004cm"},
        {"feet", {17776.8F, {NumStyle::decimalFeet, step, true}}, "123,45'"},
        {"no feet", {0.0F, {NumStyle::decimalFeet, step, true}}, ",00'"},
        {"square metres", {17785.572F, {NumStyle::metric, step, true}, true}, "11,50m"},
        {"square feet", {17776.8F, {NumStyle::decimalFeet, step, true}, true}, "123,45'"},
        {"square feet in another style", {17776.8F, {NumStyle::decimalInches, step, true}, true}, "123,45'"},
        {"inches keep their point", {12.0072F, {NumStyle::decimalInches, step, true}}, "1.001\""},
    };
    for (const CommaRow& row : rows) EXPECT_EQ(formatMeasure(row.measure), row.text) << row.what;
}

} // namespace
} // namespace mirtane
