#include "circles.h"
#include "floors.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace mirtane::architecture {

namespace {

struct Row {
    const char* what;
    const char* path;
    const char* source;
    std::size_t faults;
};

void check(const Row& row)
{
    const auto found = faults(row.path, row.source);
    EXPECT_EQ(found.size(), row.faults) << row.what;
    for (const std::string& fault : found) EXPECT_NE(fault.find(row.path), std::string::npos) << fault;
}

std::string contentOf(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

bool isSource(const std::filesystem::path& path)
{
    return path.extension() == ".h" || path.extension() == ".cpp";
}

} // namespace

TEST(Architecture, AnArrowThatRunsUpIsSeen)
{
    const Row rows[] = {
        {"the drawing asks the surface", "model/store.cpp", "#include \"render/canvas.h\"\n", 1},
        {"geometry asks the model", "geometry/arc.h", "#pragma once\n#include \"model/session.h\"", 1},
        {"a function asks the shell", "commands/line.cpp", "#include \"app/shell.h\"\n", 1},
        {"a snap asks a function", "snap/near.cpp", "  #  include  \"commands/line.h\"\n", 1},
        {"the shell asks the toolkit's side", "app/shell.cpp", "#include \"platform/qt/surface.h\"\n", 1},
        {"the surface asks the window", "platform/qt/surface.cpp", "#include \"platform/qt/window/main.h\"\n",
         1},
        {"the disk asks the toolkit's side", "platform/posix/disk.cpp",
         "#include \"platform/qt/folders.h\"\n", 1},
        {"the window asks the player", "platform/qt/window/main.cpp", "#include \"play/player.h\"\n", 1},
        {"a neighbour on the floor", "edit/trim.cpp", "#include \"library/hatch.h\"\n", 1},
        {"geometry asks for text", "geometry/arc.cpp", "#include \"text/number.h\"\n", 1},
        {"a format asks a function", "files/drawing.cpp", "#include \"edit/trim.h\"\n", 1},
        {"the nouns ask the drawing", "tables/kinds.h", "#include \"model/session.h\"\n", 1},
        {"a snap asks a format", "snap/near.cpp", "#include \"files/bytes.h\"\n", 1},
        {"two in one file", "model/a.h", "#include \"snap/a.h\"\r\n#include \"app/b.h\"\r\n", 2},
    };
    for (const Row& row : rows) check(row);
}

TEST(Architecture, AnArrowThatRunsDownIsTaken)
{
    const Row rows[] = {
        {"its own folder", "model/store.cpp", "#include \"model/store.h\"\n", 0},
        {"a lower floor", "render/painters.cpp", "#include \"model/session.h\"\n#include <vector>\n", 0},
        {"text under the fault rule", "text/number.cpp", "#include \"geometry/fault.h\"\n", 0},
        {"a format asks the tables", "files/hatch.cpp", "#include \"model/library_tables.h\"\n", 0},
        {"a function asks a format", "library/hatch.cpp", "#include \"files/bytes.h\"\n", 0},
        {"the toolkit on its own floor", "platform/qt/surface.cpp", "#include <QImage>\n#include <chrono>\n",
         0},
        {"the toolkit's side asks the disk", "platform/qt/settings.cpp",
         "#include \"platform/posix/disk.h\"\n#include <unistd.h>\n", 0},
        {"what moc writes", "platform/qt/window/main.cpp", "#include \"main.moc\"\n", 0},
        {"the window asks the surface", "platform/qt/window/main.cpp", "#include \"platform/qt/surface.h\"\n",
         0},
        {"a name in a comment", "model/store.cpp", "// not #include \"app/shell.h\"\n", 0},
        {"a program", "programs/mirtane.cpp", "#include \"platform/qt/window/main.h\"\n", 0},
    };
    for (const Row& row : rows) check(row);
}

TEST(Architecture, BelowThePlatformOnlyTheStandardLibraryIsTaken)
{
    const Row rows[] = {
        {"the toolkit", "render/view.cpp", "#include <QPainter>\n", 1},
        {"the toolkit, by its folder", "app/shell.cpp", "#include <QtGui/QImage>\n", 1},
        {"the toolkit, in quotes", "app/shell.cpp", "#include \"QString\"\n", 1},
        {"a thread", "files/saver.cpp", "#include <thread>\n", 1},
        {"a lock", "model/store.h", "#include <mutex>\n", 1},
        {"a clock", "app/shell.cpp", "#include <chrono>\n", 1},
        {"the older clock", "app/shell.cpp", "#include <ctime>\n", 1},
        {"the environment", "app/start.cpp", "#include <cstdlib>\n", 1},
        {"the environment, as C has it", "app/start.cpp", "#include <stdlib.h>\n", 1},
        {"the system", "files/disk.cpp", "#include <unistd.h>\n", 1},
        {"a locale", "text/number.cpp", "#include <locale>\n", 1},
        {"the disk, past its port", "files/drawing.cpp", "#include <fstream>\n", 1},
    };
    for (const Row& row : rows) check(row);
}

TEST(Architecture, AFileOutsideTheHouseIsSeen)
{
    const Row rows[] = {
        {"a folder of no floor", "util/misc.cpp", "", 1},
        {"no folder", "misc.cpp", "", 1},
        {"an include with no folder", "model/store.cpp", "#include \"store.h\"\n", 1},
        {"an include that climbs", "model/store.cpp", "#include \"../geometry/point.h\"\n", 1},
    };
    for (const Row& row : rows) check(row);
}

TEST(Architecture, AFunctionIsAskedForByNameInTheShellAlone)
{
    const Row rows[] = {
        {"a snap", "snap/near.cpp", "    if (s.curFunc == \"Line\") return;\n", 1},
        {"the redraw", "render/redraw.cpp", "const bool edits = s.curFunc != \"Text Edit\";", 1},
        {"the other way round", "edit/trim.cpp", "if (\"Trim\" == s.curFunc) {", 1},
        {"the shell", "app/canvas_input.cpp", "if (s.curFunc == \"Blank Line\") {", 0},
        {"a column", "snap/near.cpp", "if (functionRow(s.curFunc).editsText) {", 0},
        {"a name that is set", "commands/match.cpp", "s.curFunc = s.baseFunc;", 0},
        {"a comment", "snap/near.cpp", "// once curFunc == \"Line\"\n", 0},
    };
    for (const Row& row : rows) check(row);
}

TEST(Architecture, OnThePlatformNumbersBecomeWholeInOnePlaceAlone)
{
    const Row rows[] = {
        {"a cast", "platform/qt/surface.cpp", "int size = static_cast<int>(height * share);\n", 1},
        {"a cast to a fixed size", "platform/posix/clock.cpp", "static_cast<std::int32_t>(seconds * 1e3)", 1},
        {"a narrower number", "platform/qt/window/page.cpp", "return static_cast<float>(points * 20);", 1},
        {"a rounding", "platform/qt/page_painter.cpp", "const auto n = std::lround(radians);\n", 1},
        {"the toolkit's rounding", "platform/qt/window/box.cpp", "move(qRound(x), 0);", 1},
        {"a point of the toolkit", "platform/qt/window/box.cpp", "rect().contains(at.toPoint())", 1},
        {"a size of the toolkit", "platform/qt/window/box.cpp", "QSizeF(w, h).toSize().width()", 1},
        {"the one place", "platform/qt/whole.h", "return static_cast<int>(std::round(value));", 0},
        {"a count", "platform/qt/folders.cpp", "all.reserve(static_cast<std::size_t>(list.size()));", 0},
        {"a wider number", "platform/qt/surface.cpp", "static_cast<double>(height) / 2", 0},
        {"another floor, where doors are", "render/raster.cpp", "static_cast<int>(x)", 0},
        {"a comment", "platform/qt/surface.cpp", "// static_cast<int>(x) would not do\n", 0},
    };
    for (const Row& row : rows) check(row);
}

TEST(Architecture, ACircleOfFilesIsSeen)
{
    EXPECT_EQ(circles({{"app/a.h", ""},
                       {"app/a.cpp", "#include \"app/b.h\"\n"},
                       {"app/b.h", "#include \"app/a.h\"\n"}}),
              std::vector<std::string>{"a circle: app/a app/b"});
    const std::map<std::string, std::string> three = {{"app/a.cpp", "#include \"app/b.h\"\n"},
                                                      {"app/b.cpp", "#include \"app/c.h\"\n"},
                                                      {"app/c.cpp", "#include \"app/a.h\"\n"},
                                                      {"app/d.cpp", "#include \"app/a.h\"\n"}};
    EXPECT_EQ(circles(three), std::vector<std::string>{"a circle: app/a app/b app/c"});
    EXPECT_TRUE(
        circles({{"app/a.cpp", "#include \"app/a.h\"\n#include \"app/b.h\"\n"}, {"app/b.h", ""}}).empty());
    EXPECT_TRUE(circles({{"app/a.h", "#include \"model/b.h\"\n"}, {"model/b.h", ""}}).empty());
}

TEST(Architecture, TheHouseStands)
{
    const std::filesystem::path src = std::filesystem::path(MIRTANE_SOURCE_DIR) / "src";
    std::size_t files = 0;
    std::map<std::string, std::string> sources;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(src)) {
        if (!entry.is_regular_file() || !isSource(entry.path())) continue;
        ++files;
        const std::string path = entry.path().lexically_relative(src).generic_string();
        sources[path] = contentOf(entry.path());
        for (const std::string& fault : faults(path, sources[path])) ADD_FAILURE() << fault;
    }
    for (const std::string& circle : circles(sources)) ADD_FAILURE() << circle;
    EXPECT_GT(files, 10U) << "too few sources were found in " << src;
}

} // namespace mirtane::architecture
