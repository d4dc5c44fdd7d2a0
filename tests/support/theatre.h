#pragma once

// The program as mirtane-play runs it, with the disk and the surface of the real one, line by line.

#include "platform/posix/disk.h"
#include "platform/qt/folders.h"
#include "platform/qt/settings.h"
#include "play/player.h"
#include "play/words.h"

#include <QTemporaryDir>

#include <memory>
#include <string>

namespace mirtane::fake {

class Theatre {
  public:
    // Pages go to the recording printer unless another is given.
    explicit Theatre(Printer* other = nullptr)
        : shell(*session, pic1,
                Ports{disk, folders, settings, folder.path().toStdString(),
                      other == nullptr ? &printer : other})
    {
        surface.setScale({0, 0, 4800, 3200});
        shell.start();
    }

    // The answer of a question; "" of a command.
    std::string play(const std::string& line) { return play::play(stage, line).value_or(""); }

    // The exit status that a line ends the run with, 0 where it goes on.
    int statusOf(const std::string& line)
    {
        try {
            play::play(stage, line);
        } catch (const play::Refusal& refusal) {
            return refusal.reason.empty() ? -1 : refusal.status; // every refusal has a reason
        }
        return 0;
    }

    // The first line that is refused, with the reason; "" where none is.
    std::string playAll(const std::string& lines)
    {
        for (std::size_t from = 0; from < lines.size();) {
            const std::size_t end = std::min(lines.find('\n', from), lines.size());
            const std::string line = lines.substr(from, end - from);
            try {
                play::play(stage, line);
            } catch (const play::Refusal& refusal) {
                return line + ": " + refusal.reason;
            }
            from = end + 1;
        }
        return "";
    }

    std::string home() const { return folder.path().toStdString(); }

    QTemporaryDir folder;
    PosixDisk disk{StateFolder(folder.path().toStdString() + "/state")};
    QtFolders folders;
    QtSettings settings{folder.path().toStdString() + "/settings.ini", disk};
    std::unique_ptr<Session> session = std::make_unique<Session>();
    Surface surface{1200, 800, 1};
    RecordingCanvas pic1{&surface};
    RecordingPrinter printer;
    Shell shell;
    play::Stage stage{shell, surface, pic1, printer};
};

} // namespace mirtane::fake
