// The program with its window: mirtane [drawing].

#include "app/shell.h"
#include "platform/posix/disk.h"
#include "platform/posix/end_signals.h"
#include "platform/posix/keeper_thread.h"
#include "platform/posix/kept_files.h"
#include "platform/posix/open_marks.h"
#include "platform/posix/size_limit.h"
#include "platform/posix/wall_clock.h"
#include "platform/qt/folders.h"
#include "platform/qt/fonts.h"
#include "platform/qt/places.h"
#include "platform/qt/settings.h"
#include "platform/qt/surface.h"
#include "platform/qt/window/main_window.h"
#include "platform/qt/window/system_printer.h"
#include "platform/qt/window/theme.h"

#include <QApplication>
#include <QDir>
#include <QScreen>
#include <QSocketNotifier>

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string_view>

namespace {

using namespace mirtane;

constexpr float unitsPerPixel = 4; // of the window system: a fine screen shows the same part of the world

// Of any size: the window brings it to its own, at the same units to the pixel.
Surface firstSurface()
{
    constexpr int side = 512;
    const double ratio = QGuiApplication::primaryScreen()->devicePixelRatio();
    Surface surface(side, side, ratio);
    const auto units = static_cast<float>(side * unitsPerPixel / ratio); // the surface's scale is 32-bit
    surface.setScale({0, 0, units, units});
    return surface;
}

// Work that is not saved is kept before the program ends by what it has no say in.
std::function<void()> keepWork;

void keepWorkAtExit()
{
    if (keepWork) keepWork();
}

// Signals, the end of the desktop's session, and the display that goes away, upon which the toolkit calls
// exit().
void keepWorkAtTheLastMoment(QApplication& application, const EndSignals& endSignals)
{
    const auto* const notifier =
        new QSocketNotifier(endSignals.descriptor(), QSocketNotifier::Read, &application);
    QObject::connect(notifier, &QSocketNotifier::activated, [] {
        keepWork();
        EndSignals::endBy(EndSignals::came());
    });
    QObject::connect(&application, &QGuiApplication::commitDataRequest, [] { keepWork(); });
    static_cast<void>(std::atexit(keepWorkAtExit)); // it fails for the thirty-third at the earliest
}

// Empty for an empty name.
std::string absolutePath(const char* argument)
{
    const QString name = QFile::decodeName(argument);
    return name.isEmpty() ? std::string() : QDir::cleanPath(QDir().absoluteFilePath(name)).toStdString();
}

// What is printed for the one word that is no name of a drawing; nothing for others.
const char* answerTo(std::string_view word)
{
    if (word == "--version") return "Mirtane 4.00\n";
    if (word != "--help") return nullptr;
    return "Usage: mirtane [DRAWING]\n"
           "Draws plans in two dimensions. With the name of a drawing (.mtd) or of a DXF file (.dxf)\n"
           "that is opened.\n"
           "\n"
           "  --help     print this and exit\n"
           "  --version  print the version and exit\n"
           "\n"
           "The manual is in the menu Help of the window; a drawing of such a name is ./--help.\n";
}

} // namespace

int main(int argc, char* argv[])
{
    outliveSizeLimit();
    if (const char* const answer = argc == 2 ? answerTo(argv[1]) : nullptr)
        return std::fputs(answer, stdout) >= 0 && std::fflush(stdout) == 0 ? 0 : 1;
    int toolkitArguments = 1; // the toolkit's own options would be names of drawings
    QApplication application(toolkitArguments, argv);
    QGuiApplication::setDesktopFileName(QStringLiteral("mirtane")); // which tells a desktop the window's icon
    QApplication::setQuitOnLastWindowClosed(false);                 // the shell says when it ends
    applyTheme(application);

    const EndSignals endSignals;
    const StateFolder state = StateFolder::ofUser();
    PosixDisk disk(state);
    KeptFiles kept(state, disk);
    KeeperThread keeper(kept);
    WallClock clock;
    PosixOpenMarks marks(state);
    QtFolders folders;
    QtSettings settings;
    QtFonts fonts;
    Session session;
    Surface surface = firstSurface();
    const std::unique_ptr<Printer> printer = systemPrinter(settings);
    const Places places = placesOf(QCoreApplication::applicationDirPath());
    Shell shell(session, surface,
                {disk, folders, settings, places.program, printer.get(), &fonts, places.ownFiles, &keeper,
                 &clock, &marks, QDir::homePath().toStdString(), places.program + "/libraries"});
    shell.start();
    keepWork = [&] {
        shell.rest();
        keeper.flush();
    };
    keepWorkAtTheLastMoment(application, endSignals);

    MainWindow window(shell, surface);
    window.takeFirstSize();
    if (argc > 1) window.openWhenShown(absolutePath(argv[1]));
    window.show();
    const int status = QApplication::exec();
    keepWork = {}; // the shell goes before what runs at the exit
    return status;
}
