// Fonts need an application of the toolkit, and none of these tests a screen.

#include <QGuiApplication>
#include <QTemporaryDir>

#include <gtest/gtest.h>

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QTemporaryDir state; // the user's own stays as it is
    qputenv("XDG_STATE_HOME", state.path().toUtf8());
    testing::InitGoogleTest(&argc, argv);
    const QGuiApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
