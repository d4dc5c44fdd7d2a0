#include "platform/qt/room_on_screen.h"

#include <gtest/gtest.h>

#include <ostream>

namespace mirtane {
namespace {

TEST(RoomOnScreen, AWindowKeepsAllOfItsFrameWithinIt)
{
    struct Row {
        const char* what;
        QRect wished;
        QMargins frame;
        QRect room;
        QRect given;
    };
    const QMargins frame(6, 34, 6, 6);
    const Row rows[] = {
        {"room enough", {100, 100, 1280, 800}, frame, {0, 0, 1920, 1080}, {100, 100, 1280, 800}},
        {"an old screen", {0, 0, 1280, 800}, frame, {0, 0, 1024, 768}, {6, 34, 1012, 728}},
        {"as large as the screen", {0, 0, 1280, 800}, frame, {0, 0, 1280, 800}, {6, 34, 1268, 760}},
        {"a flat screen", {0, 0, 1280, 800}, frame, {0, 0, 1366, 768}, {6, 34, 1280, 728}},
        {"a bar above and beside", {0, 0, 1280, 800}, frame, {64, 40, 1302, 728}, {70, 74, 1280, 688}},
        {"enlarged by two", {0, 0, 1280, 800}, frame, {0, 0, 960, 540}, {6, 34, 948, 500}},
        {"no frame", {0, 0, 1280, 800}, {}, {0, 0, 1024, 768}, {0, 0, 1024, 768}},
        {"over the right edge", {1000, 50, 600, 400}, frame, {0, 0, 1366, 768}, {760, 50, 600, 400}},
        {"over the lower edge", {50, 500, 600, 400}, frame, {0, 0, 1366, 768}, {50, 362, 600, 400}},
        {"above the upper edge", {50, -20, 600, 400}, frame, {0, 0, 1366, 768}, {50, 34, 600, 400}},
        {"left of a second screen", {1900, 50, 600, 400}, frame, {1920, 0, 1280, 1024}, {1926, 50, 600, 400}},
    };
    for (const Row& row : rows) EXPECT_TRUE(within(row.wished, row.frame, row.room) == row.given) << row.what;
}

} // namespace
} // namespace mirtane
