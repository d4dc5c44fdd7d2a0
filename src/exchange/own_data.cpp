#include "exchange/own_data.h"

#include "exchange/own_data_codes.h"
#include "exchange/words_out.h"

namespace mirtane {
namespace {

void writeKept(PairsOut& out, int kind, const KeptGroups& kept)
{
    out.text(data::application, applicationName);
    out.whole(data::whole, kind);
    out.whole(data::whole, std::ssize(kept));
    for (const KeptGroup& group : kept) {
        out.whole(data::whole, group.code);
        out.number(data::number, group.value);
    }
}

void writeWords(PairsOut& out, const std::string& utf8)
{
    out.text(data::brace, "{");
    for (const std::string& piece : dxfPieces(utf8)) out.text(data::words, piece);
    out.text(data::brace, "}");
}

} // namespace

bool isAnnotated(const Made& leader)
{
    return leader.size > 0 && !leader.text.words.empty();
}

void writeOwnData(PairsOut& out, const Made& made, const KeptGroups& kept)
{
    writeKept(out, numberOf(made.kind), kept);
    for (const Vec p : made.p) {
        out.number(data::number, p.x);
        out.number(data::number, p.y);
    }
    for (const double value : {made.radius, made.from, made.to, made.ratio, made.size, made.rotation})
        out.exact(data::number, value);
    for (const int value : {int{made.arrow}, int{made.text.justification}, made.text.underlined ? 1 : 0})
        out.whole(data::whole, value);
    writeWords(out, made.text.face);
    writeWords(out, made.text.words);
}

void writeOwnPart(PairsOut& out, const KeptGroups& kept)
{
    writeKept(out, partOfAnother, kept);
}

void writeOwnLayer(PairsOut& out, const std::string& name, const std::string& written)
{
    out.text(data::application, applicationName);
    writeWords(out, name);
    writeWords(out, written);
}

std::string wordsShown(const Made& made)
{
    if (made.kind == Kind::text) return (made.text.underlined ? "%%u" : "") + dxfLineOfText(made.text.words);
    return made.text.words.empty() ? " " : dxfLineOfText(made.text.words);
}

} // namespace mirtane
