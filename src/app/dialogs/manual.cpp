#include "app/dialogs/manual.h"

#include "text/ascii.h"
#include "text/utf8.h"

#include <algorithm>
#include <charconv>

namespace mirtane {
namespace {

bool sameLetters(char a, char b)
{
    return smallLetter(a) == smallLetter(b);
}

struct Line {
    std::string_view text; // without its end
    std::size_t place = 0;
};

std::vector<Line> linesOf(std::string_view manual)
{
    std::vector<Line> lines;
    for (std::size_t place = 0; place <= manual.size();) {
        const std::size_t end = std::min(manual.find("\r\n", place), manual.size());
        lines.push_back({manual.substr(place, end - place), place});
        place = end + 2;
    }
    return lines;
}

bool isOfDashes(std::string_view line)
{
    constexpr std::size_t shortest = 10;
    return line.size() >= shortest && line.find_first_not_of('-') == std::string_view::npos;
}

// 0 for a line that begins with none.
int numberBefore(std::string_view line)
{
    int number = 0;
    std::from_chars(line.data(), line.data() + line.size(), number);
    return number;
}

// The heading as the list of contents has it, which does not shout.
std::string titleOf(const std::vector<Line>& lines, std::string_view heading)
{
    for (const Line& line : lines) {
        const std::string_view listed = trimmed(line.text);
        if (isSameButForCase(listed, heading)) return std::string(listed);
    }
    return std::string(heading);
}

} // namespace

std::string joinedLines(const Bytes& file)
{
    std::string joined;
    for (std::size_t i = 0; i < file.size(); ++i) {
        const auto c = static_cast<char>(file[i]); // a byte of text
        const bool endsLine = c == '\n' || c == '\r';
        if (!endsLine) joined += c;
        if (c == '\r' && i + 1 < file.size() && file[i + 1] == '\n') ++i;
        if (endsLine && i + 1 < file.size()) joined += "\r\n";
    }
    return joined;
}

std::vector<Chapter> chaptersOf(std::string_view manual)
{
    const std::vector<Line> lines = linesOf(manual);
    std::vector<Chapter> chapters;
    for (std::size_t i = 0; i + 1 < lines.size(); ++i) {
        const int number = numberBefore(lines[i].text);
        if (number == 0 || !isOfDashes(lines[i + 1].text)) continue;
        chapters.push_back({number, titleOf(lines, lines[i].text), lines[i].place});
    }
    return chapters;
}

int chapterAt(const std::vector<Chapter>& chapters, std::size_t place)
{
    const auto after = std::ranges::upper_bound(chapters, place, {}, &Chapter::place);
    return static_cast<int>(after - chapters.begin()) - 1; // there are few
}

std::size_t placeInManual(std::string_view manual, int chapter, std::string_view heading)
{
    const std::vector<Chapter> chapters = chaptersOf(manual);
    const auto found = std::ranges::find(chapters, chapter, &Chapter::number);
    if (found == chapters.end()) return 0;
    const std::size_t end = found + 1 == chapters.end() ? manual.size() : (found + 1)->place;
    for (const Line& line : linesOf(manual)) {
        if (line.place > found->place && line.place < end && line.text == heading) return line.place;
    }
    return found->place;
}

std::size_t findInManual(std::string_view manual, std::string_view word, std::size_t from)
{
    if (word.empty()) return std::string::npos;
    const auto found = [&](std::size_t start) {
        const auto rest = manual.substr(start);
        const auto hit = std::search(rest.begin(), rest.end(), word.begin(), word.end(), sameLetters);
        if (hit == rest.end()) return std::string::npos;
        return start + static_cast<std::size_t>(hit - rest.begin()); // found behind the beginning
    };
    const std::size_t next = found(std::min(from, manual.size()));
    return next == std::string::npos ? found(0) : next;
}

int characterAt(std::string_view manual, std::size_t place)
{
    return static_cast<int>(utf8Length(manual.substr(0, place))); // no manual has that many letters
}

std::size_t byteAt(std::string_view manual, int character)
{
    std::size_t place = 0;
    for (int i = 0; i < character && place < manual.size(); ++i)
        place += firstCharacter(manual.substr(place)).size;
    return place;
}

} // namespace mirtane
