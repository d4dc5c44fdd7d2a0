#include "commands/linear_dimension_text.h"
#include "model/record_moves.h"

#include "dimension_desk.h"

namespace mirtane {
namespace {

using fake::expectNear;
using fake::onTurn;

// Text turns a little past the vertical: 91 degrees still reads upright, 92 and 271 do not, 272 does.
TEST(LinearDimensionLabel, IsTurnedOverWhereItWouldStandOnItsHead)
{
    struct Turn {
        double line, text;
    };
    const Turn turns[] = {{0, 0},    {1, 1},     {45, 45},   {89, 89},   {90, 90},   {91, 91},
                          {92, 272}, {135, 315}, {179, 359}, {180, 0},   {181, 1},   {225, 45},
                          {269, 89}, {270, 90},  {271, 91},  {272, 272}, {315, 315}, {359, 359}};
    for (const Turn& turn : turns) {
        for (const double length : {12.0, 100.0, 5000.0}) {
            const Point p4{700, 300};
            const Point along = onTurn(turn.line, length);
            const DimensionLabel label = labelOfLine({p4.x + along.x, p4.y + along.y}, p4, 48, 0);
            const double got = std::remainder(label.degrees - turn.text, 360);
            EXPECT_NEAR(got, 0, 0.01) << turn.line << " degrees, " << length << " long";
            EXPECT_GE(label.degrees, 0) << turn.line;
            EXPECT_LT(label.degrees, 360.001) << turn.line;
        }
    }
}

TEST(LinearDimensionLabel, StandsOverTheMiddleOfTheLineByOneAndAHalfSizes)
{
    for (int degrees = 0; degrees < 360; degrees += 7) {
        const Point p4{700, 300};
        const Point whole = onTurn(degrees, 600);
        const Point p3{p4.x + whole.x, p4.y + whole.y};
        const DimensionLabel label = labelOfLine(p3, p4, 40, 200);
        // Three quarters of the width are centred: the middle of these lies off the middle of the line.
        const Point half = onTurn(label.degrees, 75);
        const Point off = onTurn(label.degrees + 90, 60);
        const Point middle{(p3.x + p4.x) / 2, (p3.y + p4.y) / 2};
        expectNear({label.at.x + half.x, label.at.y + half.y}, {middle.x + off.x, middle.y + off.y},
                   std::to_string(degrees) + " degrees");
    }
}

} // namespace
} // namespace mirtane
