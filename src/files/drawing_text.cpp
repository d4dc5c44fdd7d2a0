#include "files/drawing_text.h"

#include "tables/kinds.h"
#include "text/utf8.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>
#include <tuple>
#include <vector>

namespace mirtane {
namespace {

constexpr std::string_view kindNames[] = {
    "line",   "circle",           "arc", "ellipse", "point", "text", "linear-dimension", "radial-dimension",
    "leader", "angular-dimension"};
static_assert(std::size(kindNames) == drawnKinds);

// A line as it grows, of names and values.
class Words {
  public:
    explicit Words(std::string_view first) : line_(first) {}

    // The fewest digits that give the number back.
    template <class Number> void number(std::string_view name, Number value)
    {
        begin(name);
        addNumber(value);
    }
    void point(std::string_view name, Point p)
    {
        begin(name);
        addNumber(p.x);
        line_ += ',';
        addNumber(p.y);
    }
    void word(std::string_view name, std::string_view value)
    {
        begin(name);
        line_ += value;
    }
    void quoted(std::string_view name, std::string_view utf8);

    std::string take() { return std::move(line_); }

  private:
    void begin(std::string_view name)
    {
        line_ += ' ';
        line_ += name;
        line_ += '=';
    }
    template <class Number> void addNumber(Number value)
    {
        std::array<char, 32> digits{}; // the shortest text of a double has 24 at the most
        if (value == 0) value = 0;     // of either sign
        line_.append(digits.data(), std::to_chars(digits.begin(), digits.end(), value).ptr);
    }
    void addHex(unsigned byte)
    {
        constexpr std::string_view digits = "0123456789ABCDEF";
        line_ += "\\x";
        line_ += digits[byte >> 4 & 0xF];
        line_ += digits[byte & 0xF];
    }

    std::string line_;
};

// On one line whatever it holds, and well-formed.
void Words::quoted(std::string_view name, std::string_view utf8)
{
    begin(name);
    line_ += '"';
    while (!utf8.empty()) {
        const Utf8Step step = firstCharacter(utf8);
        const bool isControl = step.code < U' ' || step.code == 0x7F;
        if (step.code == U'"' || step.code == U'\\') line_ += '\\';
        if (isControl || !step.wellFormed)
            addHex(step.code);
        else
            line_ += utf8.substr(0, step.size);
        utf8.remove_prefix(step.size);
    }
    line_ += '"';
}

std::string colourText(std::int32_t color) // 0xBBGGRR as #RRGGBB
{
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string text = "#";
    for (const int shift : {4, 0, 12, 8, 20, 16})
        text += digits[static_cast<std::size_t>(color >> shift & 0xF)];
    return text;
}

std::string_view styleText(std::int16_t style)
{
    constexpr std::string_view names[] = {"solid", "dash", "dot", "dash-dot", "dash-dot-dot"};
    return style >= 0 && style < std::ssize(names) ? names[style] : "solid";
}

std::string_view sideText(float justification)
{
    if (justification == 1) return "right";
    return justification == 2 ? "centre" : "left";
}

void addLettering(Words& words, const EntityRecord& r)
{
    words.number("size", textSizeOf(r));
    words.number("turned", r.*kindRow(r.kind)->rotation);
    words.quoted("font", r.t2);
    words.quoted("text", r.t1);
}

void addArrow(Words& words, const EntityRecord& r)
{
    const bool angular = r.kind == Kind::angularDimension;
    words.number("arrow", angular ? static_cast<float>(r.style) : r.s1); // of 16 bits
    words.number("arrow-size", angular ? double{r.s1} : r.a2);
}

void addDimension(Words& words, const EntityRecord& r)
{
    const std::pair<const char*, Point> points[] = {
        {"p1", r.p1}, {"p2", r.p2}, {"p3", r.p3}, {"p4", r.p4}, {"words-at", r.p5}};
    for (const auto& [name, p] : points) {
        if (r.kind != Kind::leader || std::string_view(name) != "p4") words.point(name, p);
    }
    if (r.kind == Kind::angularDimension) {
        words.number("radius", r.rad);
        words.number("from", r.a1);
        words.number("to", r.a2);
    }
    addArrow(words, r);
    addLettering(words, r);
}

void addShape(Words& words, const EntityRecord& r)
{
    switch (r.kind) { // no default: a new kind is a warning here
    case Kind::line:
        words.point("from", r.p1);
        return words.point("to", r.p2);
    case Kind::circle:
        words.point("centre", r.p1);
        return words.number("radius", r.rad);
    case Kind::arc:
        words.point("centre", r.p1);
        words.number("radius", r.rad);
        words.number("from", r.a1);
        return words.number("to", r.a2);
    case Kind::ellipse:
        words.point("centre", r.p2);
        words.point("axis-end", r.p1);
        return words.number("ratio", r.p3.x);
    case Kind::point:
        return words.point("at", r.p1);
    case Kind::text:
        words.point("at", r.p1);
        words.word("side", sideText(r.p2.y));
        if (r.p3.x == 1) words.word("underlined", "yes");
        return addLettering(words, r);
    case Kind::linearDimension:
    case Kind::radialDimension:
    case Kind::leader:
    case Kind::angularDimension:
        return addDimension(words, r);
    }
}

std::string attributesText(const Attributes& now)
{
    Words words("drawing");
    words.number("text-size", now.textSize);
    words.number("arrow-size", now.arrowSize);
    words.number("arrow", now.dimStyle);
    words.word("side", sideText(now.textJust));
    words.number("fraction", now.dimTol);
    words.number("comma", now.numComma);
    words.number("angles", now.angFormat);
    words.quoted("numbers", now.numStyle);
    words.quoted("font", now.textFont);
    words.number("layer", now.workLayer);
    words.word("colour", colourText(now.curColor));
    words.word("style", styleText(now.curStyle));
    return words.take();
}

// A layer that has no name but its number says nothing.
void addLayers(std::string& text, const LayerTable& table)
{
    const std::int32_t count = std::clamp(table.layerCount, 0, LayerTable::rowLimit);
    for (std::int32_t i = 0; i < count; ++i) {
        const std::string& name = table.find(i)->layerName;
        if (name == std::to_string(i)) continue;
        Words words("layer");
        words.number("number", i);
        words.quoted("name", name);
        text += words.take() + '\n';
    }
}

struct Line {
    std::int16_t layer;
    Kind kind;
    std::string text;

    friend bool operator<(const Line& a, const Line& b)
    {
        return std::tie(a.layer, a.kind, a.text) < std::tie(b.layer, b.kind, b.text);
    }
};

} // namespace

std::string objectText(const EntityRecord& r)
{
    if (!isDrawnKind(r.kind)) return {};
    Words words(kindNames[placeOf(r.kind)]);
    words.number("layer", r.layer);
    words.word("colour", colourText(r.color));
    if (hasLineStyle(r.kind)) words.word("style", styleText(r.style));
    addShape(words, r);
    return words.take();
}

std::string drawingText(const Session& s, std::optional<std::int16_t> layer)
{
    std::vector<Line> lines;
    for (std::int32_t i = 1; i < s.store.end(); ++i) {
        const std::size_t at = EntityStore::at(i);
        const bool isThere = s.store.stat[at] != Stat::out && isDrawnKind(s.store.kind[at]);
        if (!isThere || (layer && s.store.layer[at] != *layer)) continue;
        lines.push_back({s.store.layer[at], s.store.kind[at], objectText(s.store.record(i))});
    }
    std::ranges::sort(lines, std::less<>{});
    std::string text = attributesText(s) + '\n';
    addLayers(text, s.layerTable);
    for (const Line& line : lines) text += line.text + '\n';
    return text;
}

} // namespace mirtane
