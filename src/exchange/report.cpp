#include "exchange/report.h"

#include "text/ascii.h"
#include "text/numbers.h"

#include <algorithm>
#include <initializer_list>

namespace mirtane {
namespace {

struct KindName {
    Kind kind;
    std::string_view one, many;
};

constexpr KindName kindNames[] = {
    {Kind::circle, "circle", "circles"},
    {Kind::arc, "arc", "arcs"},
    {Kind::ellipse, "ellipse", "ellipses"},
    {Kind::line, "line", "lines"},
    {Kind::text, "text", "texts"},
    {Kind::point, "point", "points"},
    {Kind::linearDimension, "linear dimension", "linear dimensions"},
    {Kind::radialDimension, "radial dimension", "radial dimensions"},
    {Kind::angularDimension, "angular dimension", "angular dimensions"},
    {Kind::leader, "leader", "leaders"},
};

struct TypeName {
    std::string_view type, one, many;
};

// Types whose name with an "s" behind it would not do.
constexpr TypeName typeNames[] = {
    {"", "object", "objects"},
    {"3DFACE", "face", "faces"},
    {"3DSOLID", "solid body", "solid bodies"},
    {"ACAD_PROXY_ENTITY", "object of another program", "objects of other programs"},
    {"ACAD_TABLE", "table", "tables"},
    {"ATTDEF", "attribute definition", "attribute definitions"},
    {"ATTRIB", "attribute", "attributes"},
    {"BODY", "body", "bodies"},
    {"HATCH", "hatch", "hatches"},
    {"INSERT", "block", "blocks"},
    {"LWPOLYLINE", "polyline", "polylines"},
    {"MESH", "mesh", "meshes"},
    {"MLINE", "multiple line", "multiple lines"},
    {"MTEXT", "paragraph", "paragraphs"},
    {"MULTILEADER", "leader", "leaders"},
    {"OLE2FRAME", "embedded object", "embedded objects"},
    {"OLEFRAME", "embedded object", "embedded objects"},
    {"PDFUNDERLAY", "underlay", "underlays"},
    {"TOLERANCE", "tolerance frame", "tolerance frames"},
};

std::string withName(std::int64_t count, std::string_view one, std::string_view many)
{
    return withThousands(count) + " " + std::string(count == 1 ? one : many);
}

void append(std::string& sentence, const std::string& part)
{
    if (!sentence.empty()) sentence += ", ";
    sentence += part;
}

} // namespace

FullReport reportOf(const FullReading& reading, const TakenReading& taken)
{
    FullReport report{reading.drawing.leftOut, taken.withoutRoom, {},
                      reading.placing.move,    reading.inexact,   reading.hasUnits,
                      reading.isDxf,           reading.isCut};
    for (const Made& one : std::span(reading.drawing.objects).first(taken.objects)) ++report.came[one.kind];
    return report;
}

std::string counted(std::int64_t count, Kind kind)
{
    const auto* const row = std::ranges::find(kindNames, kind, &KindName::kind);
    return row == std::end(kindNames) ? std::string() : withName(count, row->one, row->many);
}

std::string counted(std::int64_t count, std::string_view type)
{
    const auto* const row = std::ranges::find(typeNames, type, &TypeName::type);
    if (row != std::end(typeNames)) return withName(count, row->one, row->many);
    const std::string name = inSmallLetters(type);
    return withName(count, name, name + "s");
}

std::string sentenceOfWhatCame(const FullReport& report)
{
    std::string sentence;
    for (const KindName& row : kindNames) {
        const auto found = report.came.find(row.kind);
        if (found != report.came.end()) append(sentence, counted(found->second, row.kind));
    }
    return sentence;
}

std::string sentenceOfLeftOut(const FullReport& report)
{
    std::string sentence;
    for (const auto& [what, count] : report.leftOut) {
        const auto& [type, why] = what;
        append(sentence, counted(count, type) + (why.empty() ? "" : " (" + why + ")"));
    }
    if (!sentence.empty()) sentence += " left out";
    if (report.withoutRoom > 0)
        append(sentence, "no room for " + withName(report.withoutRoom, "object", "objects"));
    return sentence;
}

std::string sentenceOfMove(const FullReport& report)
{
    if (report.moved == Vec{}) return {};
    return "moved by " + plainNumber(report.moved.x) + ", " + plainNumber(report.moved.y);
}

std::string sentenceOfPlace(const FullReport& report)
{
    std::string sentence = sentenceOfMove(report);
    if (report.inexact == 0) return sentence;
    if (!sentence.empty()) sentence += "; ";
    return sentence + withName(report.inexact, "object", "objects") + " too far off to be exact";
}

} // namespace mirtane
