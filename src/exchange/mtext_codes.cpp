#include "exchange/mtext_codes.h"

#include "text/ascii.h"
#include "text/utf8.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace mirtane {
namespace {

// A number at the start of text; what follows it is left there.
std::optional<double> takeNumber(std::string_view& text)
{
    double number = 0;
    const auto [stop, fault] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (fault != std::errc{} || !std::isfinite(number)) return std::nullopt;
    text.remove_prefix(static_cast<std::size_t>(stop - text.data())); // stop is within text
    return number;
}

// "Arial|b0|i0|c0|p34": the face stands first.
std::string faceIn(std::string_view argument)
{
    return std::string(argument.substr(0, argument.find('|')));
}

// "7.5" is a size, "0.7x" a part of the one that holds.
void setSize(double& size, std::string_view argument)
{
    const auto number = takeNumber(argument);
    if (!number || *number <= 0) return;
    size = !argument.empty() && (argument[0] == 'x' || argument[0] == 'X') ? size * *number : *number;
}

std::optional<int> wholeIn(std::string_view argument)
{
    const auto number = takeNumber(argument);
    constexpr double most = 0xFFFFFF;
    if (!number || *number < 0 || *number > most) return std::nullopt;
    return static_cast<int>(*number); // within 24 bits
}

void setColor(LetterForm& form, std::string_view argument)
{
    form.color = wholeIn(argument);
    form.trueColor.reset();
}

// The colour is given as blue, green, red.
void setTrueColor(LetterForm& form, std::string_view argument)
{
    const auto bgr = wholeIn(argument);
    if (!bgr) return;
    form.trueColor = (*bgr & 0xFF) << 16 | (*bgr & 0xFF00) | *bgr >> 16;
    form.color.reset();
}

enum class Argument { words, number, factor };

struct FormCode {
    char letter;
    Argument argument;
    void (*set)(LetterForm& form, std::string_view argument);
};

// Codes with an argument that ends with a semicolon, which some programs leave out behind a number.
constexpr FormCode formCodes[] = {
    {'f', Argument::words, [](LetterForm& form, std::string_view a) { form.face = faceIn(a); }},
    {'F', Argument::words, [](LetterForm& form, std::string_view a) { form.face = faceIn(a); }},
    {'H', Argument::factor, [](LetterForm& form, std::string_view a) { setSize(form.height, a); }},
    {'W', Argument::factor, [](LetterForm& form, std::string_view a) { setSize(form.widthFactor, a); }},
    {'C', Argument::number, setColor},
    {'c', Argument::number, setTrueColor},
    {'A', Argument::number, [](LetterForm&, std::string_view) {}}, // on what height small letters stand
    {'Q', Argument::number, [](LetterForm&, std::string_view) {}}, // slanted
    {'T', Argument::number, [](LetterForm&, std::string_view) {}}, // letters apart
};

// "xqc" and the like: of all that a paragraph is, where its lines stand.
std::optional<std::int16_t> justificationIn(std::string_view argument)
{
    const std::size_t at = argument.find('q');
    if (at == std::string_view::npos || at + 1 >= argument.size()) return std::nullopt;
    constexpr std::string_view letters = "lrc"; // as ours count
    const std::size_t found = letters.find(argument[at + 1]);
    return found == std::string_view::npos ? std::int16_t{0} : static_cast<std::int16_t>(found); // below 3
}

class CodeReader {
  public:
    CodeReader(std::string_view text, const LetterForm& form) : rest_(text), form_(form) {}

    std::vector<LetterRun> run();

  private:
    void code();
    void caret();
    void formed(char letter);
    void stacked();
    std::string_view argument();
    std::string_view argument(Argument sort);
    void put(std::string_view words) { words_.append(words); }
    void endRun(Break after = Break::none);
    void setLine(bool underlined);

    std::string_view rest_;
    LetterForm form_;
    std::vector<LetterForm> outer_; // the forms that hold again behind a brace
    std::string words_;
    std::vector<LetterRun> runs_;
    std::optional<std::int16_t> justification_;
};

std::vector<LetterRun> CodeReader::run()
{
    constexpr std::size_t deepest = 200;
    while (!rest_.empty()) {
        const char c = rest_[0];
        rest_.remove_prefix(1);
        if (c == '\\') {
            code();
        } else if (c == '^') {
            caret();
        } else if (c == '{') {
            endRun();
            if (outer_.size() < deepest) outer_.push_back(form_);
        } else if (c == '}' && !outer_.empty()) {
            endRun();
            form_ = std::move(outer_.back());
            outer_.pop_back();
        } else if (c == '\n') {
            endRun(Break::line);
        } else if (c != '}' && c != '\r') {
            words_ += c;
        }
    }
    endRun();
    return std::move(runs_);
}

// A run without letters is one only for its break.
void CodeReader::endRun(Break after)
{
    if (words_.empty() && after == Break::none) return;
    runs_.push_back({std::move(words_), form_, after, justification_});
    words_.clear();
}

std::string_view CodeReader::argument()
{
    const std::size_t end = rest_.find(';');
    const std::string_view found = rest_.substr(0, end);
    rest_.remove_prefix(end == std::string_view::npos ? rest_.size() : end + 1);
    return found;
}

std::string_view CodeReader::argument(Argument sort)
{
    std::size_t end = std::min(rest_.find_first_not_of("+-.0123456789"), rest_.size());
    if (sort == Argument::words || end == 0) return argument();
    const std::string_view behind = rest_.substr(end);
    if (sort == Argument::factor && (behind.starts_with('x') || behind.starts_with('X'))) ++end;
    const std::string_view found = rest_.substr(0, end);
    rest_.remove_prefix(end);
    if (rest_.starts_with(';')) rest_.remove_prefix(1);
    return found;
}

// A caret and a letter are a control sign; what stands for a blank or a tab stays.
void CodeReader::caret()
{
    const char sign = rest_.empty() ? '\0' : rest_[0];
    if (sign != 'J' && sign != 'M') return put("^");
    rest_.remove_prefix(1);
    if (sign == 'J') endRun(Break::line);
}

void CodeReader::setLine(bool underlined)
{
    endRun();
    form_.underlined = underlined;
}

void CodeReader::formed(char letter)
{
    for (const FormCode& row : formCodes) {
        if (row.letter != letter) continue;
        endRun();
        row.set(form_, argument(row.argument));
        return;
    }
    put("\\"); // no code
    words_ += letter;
}

void CodeReader::code()
{
    if (rest_.empty()) return put("\\");
    const char letter = rest_[0];
    rest_.remove_prefix(1);
    switch (letter) {
    case 'P':
    case 'X':
        return endRun(Break::line);
    case 'N':
        return endRun(Break::column);
    case '~':
        return put("\u00A0");
    case '\\':
    case '{':
    case '}':
        words_ += letter;
        return;
    case 'L':
    case 'l':
        return setLine(letter == 'L');
    case 'O': // a line above or through the letters we have not
    case 'o':
    case 'K':
    case 'k':
        return;
    case 'S':
        return stacked();
    case 'p':
        if (const auto found = justificationIn(argument())) justification_ = found;
        return;
    default:
        return formed(letter);
    }
}

// One above the other comes as a fraction; with nothing on one side it is raised or lowered letters. Behind a
// whole number there is a blank: "3 1/2".
void CodeReader::stacked()
{
    std::string upper;
    std::string lower;
    bool isLower = false;
    while (!rest_.empty() && rest_[0] != ';') {
        const bool isEscaped = rest_[0] == '\\' && rest_.size() > 1;
        if (isEscaped) rest_.remove_prefix(1);
        const char c = rest_[0];
        rest_.remove_prefix(1);
        constexpr std::string_view dividers = "/#^";
        if (!isEscaped && !isLower && dividers.find(c) != std::string_view::npos)
            isLower = true;
        else
            (isLower ? lower : upper) += c;
    }
    if (!rest_.empty()) rest_.remove_prefix(1);
    const std::string_view top = trimmed(upper, " ");
    const std::string_view bottom = trimmed(lower, " ");
    const bool isFraction = !top.empty() && !bottom.empty();
    const std::string_view before = !words_.empty() ? words_
                                    : runs_.empty() ? ""
                                                    : std::string_view(runs_.back().words);
    if (isFraction && !before.empty() && isDigit(static_cast<unsigned char>(before.back()))) put(" ");
    put(top);
    if (isFraction) put("/");
    put(bottom);
}

} // namespace

std::vector<LetterRun> letterRuns(std::string_view text, const LetterForm& form)
{
    return CodeReader(text, form).run();
}

} // namespace mirtane
