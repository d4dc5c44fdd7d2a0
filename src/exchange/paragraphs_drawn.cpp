#include "exchange/paragraphs_drawn.h"

#include "exchange/percent_codes.h"

namespace mirtane {
namespace {

std::int32_t penOf(const ParagraphLine& line, DrawingMaker& maker)
{
    if (line.trueColor) return penOfTrueColor(*line.trueColor);
    return line.color ? maker.penOf(*line.color) : maker.look.color;
}

void drawLine(const ParagraphLine& line, const ParagraphPlace& place, DrawingMaker& maker)
{
    MadeText text = plainLine(line.words);
    text.face = line.face.empty() ? maker.faceOf(place.style) : line.face;
    text.justification = line.justification;
    text.underlined = text.underlined || line.underlined;
    maker.text(text, maker.flat(place.at + line.at.x * place.along + line.at.y * place.up),
               maker.flatWay(place.along), maker.flatWay(line.height * place.up));
}

} // namespace

void drawParagraphs(std::string_view words, const ParagraphForm& form, const ParagraphPlace& place,
                    DrawingMaker& maker)
{
    const Look own = maker.look;
    for (const ParagraphLine& line : paragraphLines(words, form)) {
        maker.look.color = penOf(line, maker);
        drawLine(line, place, maker);
        maker.look = own;
    }
}

double widthFactorOf(std::string_view style, const DxfList& list)
{
    const auto row = list.styles.find(style);
    const double factor = row == list.styles.end() ? 1 : row->second.number(41, 1);
    return factor > 0 ? factor : 1;
}

} // namespace mirtane
