// The window in the test's own process, on a screen that nobody sees.

#include "platform/qt/window/theme.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

int main(int argc, char* argv[])
{
    const QTemporaryDir folder;
    QFile screen(folder.filePath(QStringLiteral("screen.json")));
    if (!screen.open(QIODevice::WriteOnly)) return 1;
    screen.write(R"({"screens": [{"name": "large", "x": 0, "y": 0, "width": 4000, "height": 3000,
                                  "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})");
    screen.close();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + screen.fileName().toUtf8());
    qputenv("QT_SCALE_FACTOR", "2"); // strokes of letters are as wide as their colour needs to be seen whole
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    mirtane::applyTheme(application);
    return RUN_ALL_TESTS();
}
