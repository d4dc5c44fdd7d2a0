#pragma once

// The window of a program that has everything about it in memory.

#include "app/shell.h"
#include "memory_ports.h"
#include "platform/qt/surface.h"
#include "platform/qt/window/main_window.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QMenuBar>

#include <memory>

namespace mirtane::fake {

class WindowDesk {
  public:
    explicit WindowDesk(Printer* printer = nullptr, QSize size = {1024, 700})
        : shell(*session, surface, Ports{disk, folders, settings, "/home/user", printer})
    {
        surface.setScale({0, 0, 2048, 2048});
        folders.folders = {"/", "/home", "/home/user"};
        shell.start();
        window = std::make_unique<MainWindow>(shell, surface);
        window->resize(size);
        window->show();
        window->activateWindow();
        settle();
    }

    // What is under way on the screen comes to its end.
    static void settle()
    {
        for (int i = 0; i < 5; ++i) QApplication::processEvents(QEventLoop::AllEvents, 50);
    }

    // The widget of a control, or null.
    static QWidget* widget(ControlId id)
    {
        const QString name = QString::fromUtf8(id.row().name.data(),
                                               static_cast<qsizetype>(id.row().name.size())); // short
        for (QWidget* one : QApplication::allWidgets()) {
            if (one->objectName() == name) return one;
        }
        return nullptr;
    }

    QAction* entry(ControlId id) const
    {
        const QString name = QString::fromUtf8(id.row().name.data(),
                                               static_cast<qsizetype>(id.row().name.size())); // short
        return window->findChild<QAction*>(name);
    }

    // As the user would by the menu, or on the button.
    void press(ControlId id) const
    {
        if (QAction* const ofMenu = entry(id)) {
            ofMenu->trigger();
        } else {
            dynamic_cast<QAbstractButton&>(*widget(id)).click();
        }
        settle();
    }

    Controls& controls() { return session->controls; }

    MemoryDisk disk;
    MemoryFolders folders{disk};
    MemorySettings settings;
    std::unique_ptr<Session> session = std::make_unique<Session>();
    Surface surface{512, 512, 2};
    Shell shell;
    std::unique_ptr<MainWindow> window;
};

} // namespace mirtane::fake
