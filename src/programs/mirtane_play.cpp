// The program without its window: reads commands, does what a user would have done, and answers questions.

#include "platform/posix/disk.h"
#include "platform/posix/end_signals.h"
#include "platform/posix/kept_files.h"
#include "platform/posix/open_marks.h"
#include "platform/posix/size_limit.h"
#include "platform/posix/wall_clock.h"
#include "platform/qt/folders.h"
#include "platform/qt/fonts.h"
#include "platform/qt/settings.h"
#include "play/player.h"
#include "play/words.h"

#include <QDir>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <filesystem>
#include <fstream>
#include <iostream>
#include <memory>
#include <optional>
#include <sstream>

namespace {

using namespace mirtane;

struct Options {
    Size size{1200, 800};
    std::string home; // a fresh folder if empty
    std::string file; // standard input if empty or "-"

    bool isTyped() const { return file.empty() || file == "-"; }
};

int complain(const std::string& what)
{
    std::cerr << what << '\n';
    return 2;
}

Size sizeOf(const std::string& text)
{
    const auto cross = text.find('x');
    if (cross == std::string::npos) throw play::Refusal{"not a size: " + text};
    Size size;
    play::Words width(std::string_view(text).substr(0, cross));
    play::Words height(std::string_view(text).substr(cross + 1));
    size = {width.whole(), height.whole()};
    constexpr int largest = 20000;
    const bool fits = size.width > 0 && size.height > 0 && size.width <= largest && size.height <= largest;
    if (!fits) throw play::Refusal{"not a size: " + text};
    return size;
}

Options optionsOf(const std::vector<std::string>& words)
{
    Options options;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const bool takesValue = words[i] == "--size" || words[i] == "--home";
        if (takesValue && i + 1 == words.size()) throw play::Refusal{words[i] + " without its value"};
        if (words[i] == "--size")
            options.size = sizeOf(words[++i]);
        else if (words[i] == "--home")
            options.home = words[++i];
        else if (words[i].size() > 1 && words[i].starts_with('-'))
            throw play::Refusal{"no such option: " + words[i]};
        else if (!options.file.empty())
            throw play::Refusal{"one file of commands is enough: " + words[i]};
        else
            options.file = words[i];
    }
    return options;
}

// Read once and whole, since a pipe can't be read twice. Nothing where that fails.
std::optional<std::string> contentOf(const std::string& name)
{
    if (std::filesystem::is_directory(name)) return std::nullopt; // a stream would open it, and read nothing
    std::ifstream file(name, std::ios::binary);
    std::ostringstream content;
    if (file) content << file.rdbuf();
    if (!file.is_open() || content.bad()) return std::nullopt;
    return std::move(content).str();
}

// A signal does not end the program before work that is not saved has been kept.
void endIfAsked(Shell& shell)
{
    if (EndSignals::came() == 0) return;
    shell.rest();
    EndSignals::endBy(EndSignals::came());
}

int playAll(play::Stage& stage, std::istream& script, const std::string& name)
{
    int number = 0;
    for (std::string line; std::getline(script, line);) {
        ++number;
        if (line.ends_with('\r')) line.pop_back();
        try {
            if (const auto answer = play::play(stage, line)) std::cout << *answer << std::endl;
            if (!std::cout) return complain("an answer can't be written");
            endIfAsked(stage.shell);
        } catch (const play::Refusal& refusal) {
            std::cerr << name << ':' << number << ": " << refusal.reason << '\n';
            return refusal.status;
        }
    }
    return 0;
}

int run(const Options& options)
{
    constexpr float unitsPerPixel = 4;
    const std::optional<std::string> content = options.isTyped() ? std::string() : contentOf(options.file);
    if (!content) return complain("can't be read: " + options.file);
    QTemporaryDir fresh;
    const QString folder = options.home.empty() ? fresh.path() : QString::fromStdString(options.home);
    if (!QDir().mkpath(folder)) return complain("can't be made: " + options.home);
    const std::string home = QDir(folder).canonicalPath().toStdString();

    const EndSignals endSignals;
    const StateFolder state(home + "/state");
    PosixDisk disk(state);
    KeptFiles work(state, disk);
    WallClock clock;
    PosixOpenMarks marks(state);
    QtFolders folders;
    QtSettings settings(home + "/settings.ini", disk);
    const auto session = std::make_unique<Session>();
    Surface surface(options.size.width, options.size.height, 1);
    surface.setScale({0, 0, static_cast<float>(options.size.width) * unitsPerPixel,
                      static_cast<float>(options.size.height) * unitsPerPixel}); // below 20,000 pixels
    RecordingCanvas pic1(&surface);
    // A script in a file tells beforehand whether it asks for operations; one that is typed might at any
    // time.
    pic1.record(options.isTyped() || content->find("ops") != std::string::npos);
    RecordingPrinter printer;
    QtFonts fonts;
    Shell shell(*session, pic1,
                {disk, folders, settings, home, &printer, &fonts, {}, &work, &clock, &marks, home});
    shell.start();
    play::Stage stage{shell, surface, pic1, printer};
    std::istringstream script(*content);
    const int status =
        options.isTyped() ? playAll(stage, std::cin, "-") : playAll(stage, script, options.file);
    endIfAsked(shell); // the signal may have come while a line was waited for
    return status;
}

constexpr const char* helpText =
    "Usage: mirtane-play [--size WxH] [--home DIR] [FILE]\n"
    "Runs Mirtane without its window: reads one command a line from FILE or from standard\n"
    "input, does what a user would have done, and answers questions.\n"
    "\n"
    "  --size WxH  pixels of the drawing surface, 1200x800 by default\n"
    "  --home DIR  where files begin; a fresh folder, removed at the end, by default\n"
    "  --help      print this and exit\n"
    "  --version   print the version and exit\n";

// The exit status for a word that asks of the program itself; nothing for others.
std::optional<int> answered(const std::string& word)
{
    if (word != "--help" && word != "--version") return std::nullopt;
    std::cout << (word == "--help" ? helpText : "mirtane-play 4.00\n") << std::flush;
    return std::cout ? 0 : 1;
}

} // namespace

int main(int argc, char* argv[])
{
    outliveSizeLimit();
    if (argc == 2) {
        if (const auto status = answered(argv[1])) return *status;
    }
    // No window is ever opened, so none of the machine's displays is asked for.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    try {
        return run(optionsOf(std::vector<std::string>(argv + 1, argv + argc)));
    } catch (const play::Refusal& refusal) {
        return complain(refusal.reason);
    }
}
