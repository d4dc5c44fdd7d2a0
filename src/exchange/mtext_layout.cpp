// exchange/mtext_layout.cpp: runs of letters become lines, broken where the text says so and where they would
// be wider than the paragraph, and the lines get their places, column by column.

#include "exchange/mtext_layout.h"

#include "exchange/mtext_codes.h"
#include "text/utf8.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace mirtane {
namespace {

// Of a common face, in heights of a capital letter: what a line would be by another face is near enough to
// break it.
double widthOf(char32_t c)
{
    constexpr std::string_view narrow = "iljtfr.,:;'|!()[]-/\\I\" ";
    constexpr std::string_view wide = "mwMW@%";
    constexpr char32_t firstOfSquareOnes = 0x2E80;
    if (c >= firstOfSquareOnes) return 1.4;
    if (c >= 0x80) return 0.78;
    const char sign = static_cast<char>(c); // ASCII
    if (narrow.find(sign) != std::string_view::npos) return 0.42;
    if (wide.find(sign) != std::string_view::npos) return 1.2;
    return sign >= 'A' && sign <= 'Z' ? 0.95 : 0.78;
}

// A line on its way: its first letter says what it looks like.
struct Line {
    std::string words;
    LetterForm form;
    double high = 0; // its highest letters
    double wide = 0;
    std::int16_t justification = 0;
    Break after = Break::line;
};

class Breaker {
  public:
    Breaker(const ParagraphForm& form, std::int16_t justification)
        : form_(form), justification_(justification)
    {
    }

    std::vector<Line> lines(std::span<const LetterRun> runs);

  private:
    void take(const LetterRun& run);
    void addWord(std::string_view word, const LetterForm& form);
    void endLine(Break after, const LetterForm& form);
    bool mayBreakBehind(const std::string& sign) const { return sign == " " || sign.size() > 2; }

    const ParagraphForm& form_;
    std::int16_t justification_;
    std::vector<Line> lines_;
    Line line_;
    double width_ = 0;
};

std::vector<Line> Breaker::lines(std::span<const LetterRun> runs)
{
    for (const LetterRun& run : runs) take(run);
    if (!line_.words.empty()) endLine(Break::line, line_.form);
    return std::move(lines_);
}

void Breaker::take(const LetterRun& run)
{
    line_.justification = run.justification.value_or(justification_);
    std::string word;
    for (const std::string& sign : utf8Characters(run.words)) {
        word += sign;
        if (!mayBreakBehind(sign)) continue;
        addWord(word, run.form);
        word.clear();
    }
    if (!word.empty()) addWord(word, run.form);
    if (run.after != Break::none) endLine(run.after, run.form);
}

// The blank behind the last word of a line may stand out.
void Breaker::addWord(std::string_view word, const LetterForm& form)
{
    double width = 0;
    double blank = 0;
    for (const std::string& sign : utf8Characters(word)) {
        blank = sign == " " ? widthOf(U' ') : 0;
        width += widthOf(firstCharacter(sign).code);
    }
    const double factor = form.height * form.widthFactor;
    const bool isBlank = width == blank;
    const bool isTooWide = form_.width > 0 && !isBlank && width_ + (width - blank) * factor > form_.width;
    if (isTooWide && !line_.words.empty()) endLine(Break::line, form);
    if (line_.words.empty()) line_.form = form;
    line_.words += word;
    line_.high = std::max(line_.high, form.height);
    width_ += width * factor;
}

void Breaker::endLine(Break after, const LetterForm& form)
{
    if (line_.high == 0) line_.high = form.height;
    line_.after = after;
    line_.wide = width_;
    line_.words.erase(line_.words.find_last_not_of(' ') + 1);
    const std::int16_t justification = line_.justification;
    lines_.push_back(std::move(line_));
    line_ = {};
    line_.justification = justification;
    width_ = 0;
}

// Lines one below the other: how far below the top the line of each is.
std::vector<double> depthsOf(std::span<const Line> lines, const ParagraphForm& form)
{
    constexpr double spacing = 5.0 / 3;
    std::vector<double> depths;
    double depth = 0;
    for (const Line& line : lines) {
        const double high = form.exactSpacing ? form.height : line.high;
        depth += depths.empty() ? line.high : high * spacing * form.lineSpacing;
        depths.push_back(depth);
    }
    return depths;
}

// How many lines stand in a column of that height; at least one.
std::size_t linesOfColumn(std::span<const Line> lines, const ParagraphForm& form, double height)
{
    const auto depths = depthsOf(lines, form);
    std::size_t count = 0;
    while (count < lines.size()) {
        if (count > 0 && height > 0 && depths[count] > height * (1 + 1e-6)) break;
        if (lines[count++].after == Break::column) break;
    }
    return count;
}

class Placer {
  public:
    explicit Placer(const ParagraphForm& form) : form_(form) {}

    std::vector<ParagraphLine> placed(std::span<const Line> lines);

  private:
    void column(std::span<const Line> lines, double left);
    double aside(std::int16_t justification) const;
    double wholeWidth() const;

    const ParagraphForm& form_;
    double width_ = 0; // of a column
    std::vector<ParagraphLine> out_;
};

double Placer::wholeWidth() const
{
    const ParagraphColumns& c = form_.columns;
    return c.count > 1 ? c.count * c.width + (c.count - 1) * c.gutter : width_;
}

// How far from the left edge of a column its lines begin, end or have their middle.
double Placer::aside(std::int16_t justification) const
{
    if (justification == 1) return width_;
    return justification == 2 ? width_ / 2 : 0;
}

void Placer::column(std::span<const Line> lines, double left)
{
    const auto depths = depthsOf(lines, form_);
    const double whole = depths.empty() ? 0 : depths.back();
    const double parts[] = {0, 0.5, 1};
    const double top = whole * parts[std::clamp((form_.attachment - 1) / 3, 0, 2)];
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const Line& line = lines[i];
        if (line.words.empty()) continue;
        const Vec at{left + aside(line.justification), top - depths[i]};
        out_.push_back({line.words, at, line.justification, line.form.height, line.form.underlined,
                        line.form.face, line.form.color, line.form.trueColor});
    }
}

std::vector<ParagraphLine> Placer::placed(std::span<const Line> lines)
{
    const ParagraphColumns& c = form_.columns;
    width_ = form_.width;
    if (!(width_ > 0)) { // a paragraph that is not wrapped is as wide as its widest line
        for (const Line& line : lines) width_ = std::max(width_, line.wide);
    }
    const double parts[] = {0, 0.5, 1};
    double left = -wholeWidth() * parts[std::clamp((form_.attachment - 1) % 3, 0, 2)];
    for (std::size_t i = 0; !lines.empty(); ++i) {
        const bool isLast = i + 1 >= static_cast<std::size_t>(std::max(c.count, 1));
        const double height = i < c.heights.size() ? c.heights[i] : 0;
        const std::size_t count = isLast ? lines.size() : linesOfColumn(lines, form_, height);
        column(lines.first(count), left);
        lines = lines.subspan(count);
        left += c.width + c.gutter;
    }
    return std::move(out_);
}

} // namespace

std::vector<ParagraphLine> paragraphLines(std::string_view text, const ParagraphForm& form)
{
    constexpr std::int16_t ofColumn[] = {0, 2, 1};
    const std::int16_t justification = ofColumn[std::clamp((form.attachment - 1) % 3, 0, 2)];
    ParagraphForm wrapped = form;
    if (form.columns.count > 1) wrapped.width = form.columns.width;
    const LetterForm letters{.height = form.height, .widthFactor = form.widthFactor};
    const auto runs = letterRuns(text, letters);
    return Placer(wrapped).placed(Breaker(wrapped, justification).lines(runs));
}

} // namespace mirtane
