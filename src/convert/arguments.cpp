#include "convert/arguments.h"

#include "text/ascii.h"

#include <QDir>
#include <QFileInfo>
#include <QThread>

#include <algorithm>
#include <charconv>
#include <set>
#include <string_view>

namespace mirtane::convert {

const char* const helpText =
    "Usage: mirtane-convert [OPTION]... IN... -o OUT\n"
    "   or: mirtane-convert --compare OLD NEW -o PICTURE.png\n"
    "Converts drawings (.mtd) and DXF files (.dxf) into .mtd, .dxf, .png, .svg, .pdf or\n"
    ".txt.\n"
    "\n"
    "  -o OUT          the file to write; its extension is the format. In its name %\n"
    "                  stands for the name of the input without its extension, and %%\n"
    "                  for a percent sign: \"-o plots/%.pdf\" takes any number of inputs.\n"
    "                  OUT may also be a folder, together with --to\n"
    "      --to FORMAT mtd, dxf, png, svg, pdf or txt, whatever the extension of OUT;\n"
    "                  with \"--to txt -o -\" the lines of one drawing go to standard output\n"
    "      --compare   draws what went from OLD in red, what came in NEW in green, and\n"
    "                  the rest in grey\n"
    "  -j N            N files at a time, 0 as many as the machine has cores; a table of\n"
    "                  them all at the end\n"
    "      --size WxH  pixels of a .png, 1200x800 by default\n"
    "      --paper P   paper of a .pdf or .svg: a0 to a6, letter, legal or tabloid;\n"
    "                  a4 by default\n"
    "      --landscape the paper lies across\n"
    "      --scale P:D so many units of paper for so many of the drawing: 1:50. The\n"
    "                  largest scale that fits by default\n"
    "      --layer N   only what is on layer N\n"
    "      --as-window take DXF files as Open DXF in the window does, which leaves out\n"
    "                  most of what other programs write, and write them as Save DXF\n"
    "  -h, --help      print this and exit\n"
    "      --version   print the version and exit\n"
    "  --              what follows is no option\n"
    "\n"
    "Exit status: 0 all files were converted, 1 some were not, 2 wrong usage, 3 all\n"
    "were, and of some of them a part was left out.\n";

namespace {

struct FormatRow {
    std::string_view name;
    Format format;
};

constexpr FormatRow formats[] = {{"mtd", Format::mtd}, {"dxf", Format::dxf}, {"png", Format::png},
                                 {"svg", Format::svg}, {"pdf", Format::pdf}, {"txt", Format::txt}};

struct PaperRow {
    std::string_view name;
    QPageSize::PageSizeId paper;
};

constexpr PaperRow papers[] = {{"a0", QPageSize::A0},       {"a1", QPageSize::A1},
                               {"a2", QPageSize::A2},       {"a3", QPageSize::A3},
                               {"a4", QPageSize::A4},       {"a5", QPageSize::A5},
                               {"a6", QPageSize::A6},       {"letter", QPageSize::Letter},
                               {"legal", QPageSize::Legal}, {"tabloid", QPageSize::Tabloid}};

// The words as given; what they mean together is found out once all are known.
struct Given {
    Wishes wishes;
    std::optional<Format> to;
    std::vector<std::string> inputs;
    std::string out;
    bool help = false, version = false;
    bool compare = false;
    std::optional<int> workers; // 0 for as many as there are cores
};

std::optional<Format> formatNamed(const std::string& name)
{
    for (const FormatRow& row : formats) {
        if (row.name == inSmallLetters(name)) return row.format;
    }
    return std::nullopt;
}

// The whole of text as a number from low to high.
std::optional<int> wholeNumber(std::string_view text, int low, int high)
{
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool read = error == std::errc{} && end == text.data() + text.size();
    if (!read || number < low || number > high) return std::nullopt;
    return number;
}

void takeOut(Given& given, const std::string& value)
{
    if (value.empty()) throw WrongUsage{"-o without a name"};
    if (!given.out.empty()) throw WrongUsage{"-o is given twice"};
    given.out = value;
}

void takeFormat(Given& given, const std::string& value)
{
    given.to = formatNamed(value);
    if (!given.to) throw WrongUsage{"no such format: " + value};
}

struct Pair {
    int first, second;
};

// Two whole numbers from 1 on, as in 800x600 and 1:50.
std::optional<Pair> pairIn(std::string_view text, char between, int largest)
{
    const std::size_t at = std::min(text.find(between), text.size());
    const auto first = wholeNumber(text.substr(0, at), 1, largest);
    const auto second = wholeNumber(text.substr(std::min(at + 1, text.size())), 1, largest);
    return first && second ? std::optional(Pair{*first, *second}) : std::nullopt;
}

void takeSize(Given& given, const std::string& value)
{
    constexpr int largest = 20000;
    const auto size = pairIn(value, 'x', largest);
    if (!size) throw WrongUsage{"not a size of 1x1 to 20000x20000: " + value};
    given.wishes.size = {size->first, size->second};
}

void takePaper(Given& given, const std::string& value)
{
    for (const PaperRow& row : papers) {
        if (row.name != inSmallLetters(value)) continue;
        given.wishes.paper = row.paper;
        return;
    }
    throw WrongUsage{"no such paper: " + value};
}

void takeScale(Given& given, const std::string& value)
{
    constexpr int largest = 100000;
    const auto scale = pairIn(value, ':', largest);
    if (!scale) throw WrongUsage{"not a scale such as 1:50: " + value};
    given.wishes.scale = PaperScale{scale->first, scale->second};
}

void takeLayer(Given& given, const std::string& value)
{
    constexpr int highest = 32767;
    const auto number = wholeNumber(value, 0, highest);
    if (!number) throw WrongUsage{"not a layer number: " + value};
    given.wishes.layer = static_cast<std::int16_t>(*number); // within the limit just tested
}

void takeWorkers(Given& given, const std::string& value)
{
    constexpr int most = 1024;
    given.workers = wholeNumber(value, 0, most);
    if (!given.workers) throw WrongUsage{"not a number of workers: " + value};
}

struct OptionRow {
    std::string_view name;
    void (*take)(Given& given, const std::string& value);
};

constexpr OptionRow optionsWithValue[] = {
    {"-o", takeOut},        {"--to", takeFormat}, {"--size", takeSize},   {"--paper", takePaper},
    {"--layer", takeLayer}, {"-j", takeWorkers},  {"--scale", takeScale},
};

const OptionRow* optionWithValue(const std::string& word)
{
    for (const OptionRow& row : optionsWithValue) {
        if (word == row.name) return &row;
    }
    return nullptr;
}

void takeFlag(Given& given, const std::string& word)
{
    if (word == "--as-window")
        given.wishes.asWindow = true;
    else if (word == "--compare")
        given.compare = true;
    else if (word == "--landscape")
        given.wishes.way = QPageLayout::Landscape;
    else if (word == "--version")
        given.version = true;
    else if (word == "--help" || word == "-h")
        given.help = true;
    else
        throw WrongUsage{"no such option: " + word};
}

Given givenIn(const std::vector<std::string>& words)
{
    Given given;
    bool optionsEnded = false;
    for (std::size_t i = 0; i < words.size() && !given.help && !given.version; ++i) {
        const OptionRow* row = optionsEnded ? nullptr : optionWithValue(words[i]);
        if (row) {
            if (++i == words.size()) throw WrongUsage{std::string(row->name) + " without its value"};
            row->take(given, words[i]);
        } else if (!optionsEnded && words[i] == "--") {
            optionsEnded = true;
        } else if (!optionsEnded && words[i].starts_with('-')) {
            takeFlag(given, words[i]);
        } else {
            given.inputs.push_back(words[i]);
        }
    }
    return given;
}

bool isFolder(const std::string& path)
{
    return path.ends_with('/') || QFileInfo(QString::fromStdString(path)).isDir();
}

std::string absolute(const std::string& path)
{
    return QDir::cleanPath(QFileInfo(QString::fromStdString(path)).absoluteFilePath()).toStdString();
}

// The file itself, whatever path led to it: two names of one file are one.
std::string identityOf(const std::string& path)
{
    const QFileInfo file(QString::fromStdString(path));
    if (file.exists()) return file.canonicalFilePath().toStdString();
    const QString folder = QFileInfo(file.absolutePath()).canonicalFilePath();
    return (folder.isEmpty() ? file.absoluteFilePath() : folder + "/" + file.fileName()).toStdString();
}

std::string baseName(const std::string& path)
{
    return QFileInfo(QString::fromStdString(path)).completeBaseName().toStdString();
}

std::string nameOf(Format format)
{
    for (const FormatRow& row : formats) {
        if (row.format == format) return std::string(row.name);
    }
    return {};
}

// The pattern with the input's name in the place of each "%".
std::string filledIn(const std::string& pattern, const std::string& base)
{
    std::string filled;
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        const bool twice = pattern[i] == '%' && i + 1 < pattern.size() && pattern[i + 1] == '%';
        if (pattern[i] != '%' || twice)
            filled += pattern[i];
        else
            filled += base;
        if (twice) ++i;
    }
    return filled;
}

// Only the last part of OUT is a pattern: the folders before it exist already, and may be called anything.
std::string outputOf(const Given& given, const std::string& input, Format format)
{
    if (isFolder(given.out)) return given.out + "/" + baseName(input) + "." + nameOf(format);
    const std::size_t slash = given.out.rfind('/');
    const std::size_t name = slash == std::string::npos ? 0 : slash + 1;
    return given.out.substr(0, name) + filledIn(given.out.substr(name), baseName(input));
}

Format formatWished(const Given& given)
{
    if (given.to) return *given.to;
    if (isFolder(given.out)) throw WrongUsage{given.out + " is a folder: --to must name the format"};
    if (const auto format = formatOf(given.out)) return *format;
    throw WrongUsage{"not a .mtd, .dxf, .png, .svg, .pdf or .txt: " + given.out};
}

// Two files into one picture.
void refuseComparison(const Given& given, Format format)
{
    if (given.inputs.size() != 2) throw WrongUsage{"--compare takes two files"};
    if (format != Format::png) throw WrongUsage{"--compare makes a .png"};
    for (const std::string& input : given.inputs) {
        if (identityOf(input) == identityOf(given.out))
            throw WrongUsage{"would be written over, as an input: " + given.out};
    }
}

void refuseStandardOutput(const Given& given, Format format)
{
    if (format != Format::txt || given.inputs.size() != 1 || given.workers)
        throw WrongUsage{"only one drawing as txt goes to standard output"};
}

// One file must not be lost to another, so all outputs differ, and none of them is an input.
void refuseCollisions(const std::vector<Job>& jobs)
{
    std::set<std::string> taken;
    for (const Job& job : jobs) taken.insert(identityOf(job.in));
    for (const Job& job : jobs) {
        if (taken.insert(identityOf(job.out)).second) continue;
        throw WrongUsage{"would be written over, as an input or by another one: " + job.out};
    }
}

int workersFor(int wished)
{
    constexpr int least = 1;
    return wished > 0 ? wished : std::max(QThread::idealThreadCount(), least);
}

} // namespace

std::optional<Format> formatOf(const std::string& path)
{
    return formatNamed(QFileInfo(QString::fromStdString(path)).suffix().toStdString());
}

Arguments argumentsOf(const std::vector<std::string>& words)
{
    const Given given = givenIn(words);
    Arguments arguments;
    arguments.help = given.help;
    arguments.version = given.version;
    if (given.help || given.version) return arguments;
    if (given.inputs.empty()) throw WrongUsage{"no file to convert"};
    if (given.out.empty()) throw WrongUsage{"no -o OUT"};
    arguments.wishes = given.wishes;
    arguments.wishes.format = formatWished(given);
    arguments.compare = given.compare;
    if (given.workers) arguments.workers = workersFor(*given.workers);
    const bool toStandardOutput = given.out == standardOutput;
    if (given.compare) refuseComparison(given, arguments.wishes.format);
    if (toStandardOutput) refuseStandardOutput(given, arguments.wishes.format);
    for (const std::string& input : given.inputs) {
        const std::string out = outputOf(given, input, arguments.wishes.format);
        arguments.jobs.push_back({input, absolute(input), toStandardOutput ? out : absolute(out)});
    }
    if (!given.compare && !toStandardOutput) refuseCollisions(arguments.jobs);
    return arguments;
}

} // namespace mirtane::convert
