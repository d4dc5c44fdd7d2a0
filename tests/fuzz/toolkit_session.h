#pragma once

// For the fuzzers of what stands on the toolkit.

#include <QGuiApplication>

#include <cstdlib>

namespace mirtane::fuzz {

// Fonts need an application of the toolkit, and none of this a screen.
inline void startToolkit()
{
    static int count = 1;
    static char name[] = "fuzz";
    static char* words[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    static const QGuiApplication application(count, words);
}

} // namespace mirtane::fuzz
