#include "render/text_painter.h"

#include "geometry/fault.h"

namespace mirtane {
namespace {

bool isUnderlined(float field)
{
    return field == 1.0F;
}

// An angle's kind 10 keeps the sweep of its arc in the first two fields.
double dimTextAngle(Kind kind, double a1, double a3)
{
    return kind == Kind::angularDimension ? a3 : a1;
}

void write(Canvas& pic1, const Lettering& text, bool underlined)
{
    pic1.setUnderline(underlined);
    pic1.setFontName(text.font);
    pic1.setFontSize(text.size);
    pic1.setStyle(pen::solid);
    std::int16_t degrees = 0;
    keep(degrees, text.degrees);
    pic1.text(text.at.x, text.at.y, degrees, text.words);
    pic1.setStyle(pen::dot);
}

} // namespace

Lettering textLettering(const EntityRecord& r)
{
    return {r.p4, r.p2.x, r.a1, isUnderlined(r.p3.x), r.t2, r.t1};
}

Lettering textLetteringAt(const EntityStore& store, std::size_t at)
{
    return {store.p4[at], store.p2[at].x, store.a1[at], isUnderlined(store.p3[at].x),
            store.t2[at], store.t1[at]};
}

Lettering dimLettering(const EntityRecord& r)
{
    return {r.p5, r.s2, dimTextAngle(r.kind, r.a1, r.a3), false, r.t2, r.t1};
}

Lettering dimLetteringAt(const EntityStore& store, std::size_t at)
{
    const double degrees = dimTextAngle(store.kind[at], store.a1[at], store.a3[at]);
    return {store.p5[at], store.s2[at], degrees, false, store.t2[at], store.t1[at]};
}

Lettering letteringOf(const EntityRecord& r)
{
    return r.kind == Kind::text ? textLettering(r) : dimLettering(r);
}

void paintText(Canvas& pic1, const Lettering& text)
{
    write(pic1, text, text.underlined);
}

void paintDimText(Canvas& pic1, const Lettering& text)
{
    write(pic1, text, false);
}

float textWidthIn(Canvas& pic1, std::string_view font, float size, std::string_view words)
{
    pic1.setFontName(font);
    pic1.setFontSize(size);
    return pic1.textWidth(words);
}

} // namespace mirtane
