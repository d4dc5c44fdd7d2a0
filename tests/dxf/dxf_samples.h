#pragma once

// Records as the file holds them, line by line, and drawings to write and read.

#include "dxf/dxf_reader.h"
#include "dxf/dxf_writer.h"
#include "dxf/scanner.h"
#include "records.h"

#include <cmath>
#include <cstdio>
#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>

namespace mirtane::samples {

inline std::string lines(std::initializer_list<std::string_view> all)
{
    std::string text;
    for (const std::string_view line : all) text.append(line).append("\r\n");
    return text;
}

// All lines up to the objects.
inline std::string head()
{
    return lines({"  0", "SECTION", "  2", "HEADER"}) +
           lines({"  9", "$ACADVER", "  1", "AC1009", "  9", "$TEXTSIZE", " 40", "4.0"}) +
           lines({"  9", "$DIMSCALE", " 40", "1.0", "  9", "$DIMRND", " 40", "0.0"}) +
           lines({"  9", "$BLIPMODE", " 70", "     0", "  9", "$COORDS", " 70", "     2"}) +
           lines({"  0", "ENDSEC", "  0", "SECTION", "  2", "TABLES"}) +
           lines({"  0", "TABLE", "  2", "LTYPE", " 70", "     8"}) +
           lines({"  0", "LTYPE", "  2", "CONTINUOUS", " 70", "     0", "  3", "____________"}) +
           lines({" 72", "    65", " 73", "     0", " 40", "0.0"}) +
           lines({"  0", "LTYPE", "  2", "DASHED", " 70", "    64", "  3", "__ __ __ __ __ __"}) +
           lines({" 72", "    65", " 73", "     2", " 40", "8.0", " 49", "7.0", " 49", "-1.0"}) +
           lines({"  0", "LTYPE", "  2", "DASHDOT", " 70", "    64", "  3", "__ . __ . __ . __"}) +
           lines({" 72", "    65", " 73", "     4", " 40", "10.0"}) +
           lines({" 49", "8.0", " 49", "-1.0", " 49", "0.0", " 49", "-1.0"}) +
           lines({"  0", "LTYPE", "  2", "PHANTOM", " 70", "    64", "  3", "___ . . ___ . . ___"}) +
           lines({" 72", "    65", " 73", "     6", " 40", "12.0", " 49", "9.0", " 49", "-1.0"}) +
           lines({" 49", "0.0", " 49", "-1.0", " 49", "0.0", " 49", "-1.0"}) +
           lines({"  0", "LTYPE", "  2", "DOT", " 70", "    64", "  3", ". . . . . . . ."}) +
           lines({" 72", "    65", " 73", "     2", " 40", "0.5", " 49", "0.0", " 49", "-0.5"}) +
           lines({"  0", "ENDTAB", "  0", "ENDSEC", "  0", "SECTION", "  2", "ENTITIES", "  0"});
}

inline std::string tail()
{
    return lines({"ENDSEC", "  0", "EOF"});
}

struct Looks {
    std::string_view lineType = "CONTINUOUS";
    std::string_view color = "     8";
};

inline std::string line(std::string_view x1, std::string_view y1, std::string_view x2, std::string_view y2,
                        Looks looks = {})
{
    return lines({"LINE", "  8", "clay", "  6", looks.lineType, " 62", looks.color, " 10", x1,   " 20", y1,
                  " 30",  "0.0", " 11",  x2,    " 21",          y2,    " 31",       "0.0", "  0"});
}

inline std::string circle(std::string_view x, std::string_view y, std::string_view radius, Looks looks = {})
{
    return lines({"CIRCLE", "  8", "clay", "  6", looks.lineType, " 62", looks.color, " 10", x, " 20", y,
                  " 30", "0.0", " 40", radius, " 0"});
}

inline std::string arc(std::string_view x, std::string_view y, std::string_view radius, std::string_view a1,
                       std::string_view a2, Looks looks = {})
{
    return lines({"ARC", "  8", "clay", "  6", looks.lineType, " 62", looks.color, " 10", x,  " 20",
                  y,     " 30", "0.0",  " 40", radius,         " 50", a1,          " 51", a2, " 0"});
}

struct Words {
    std::string_view x, y, secondX, secondY, height, angle, words;
    std::string_view justification = "     0";
    std::string_view color = "     8";
};

inline std::string text(const Words& t)
{
    return lines({"TEXT",    "  8", "clay",  "  6", "CONTINUOUS", " 62", t.color,         " 10",
                  t.x,       " 20", t.y,     " 30", "0.0",        " 11", t.secondX,       " 21",
                  t.secondY, " 31", "0.0",   " 40", t.height,     " 41", "1.0",           " 50",
                  t.angle,   "  1", t.words, "  7", "ROMANC",     " 72", t.justification, "  0"});
}

// World coordinates of a point given in file units.
inline Point world(float x, float y)
{
    return {x * 12, y * -12};
}

inline EntityRecord object(Kind kind)
{
    return fake::ofLooks(fake::record(kind), 0xFFFFFF);
}

inline EntityRecord lineObject(float x1, float y1, float x2, float y2)
{
    return fake::ofLooks(fake::line(world(x1, y1), world(x2, y2)), 0xFFFFFF);
}

// A drawing of selected objects, and what the writer makes of it.
class Drawing {
  public:
    Drawing() = default;
    Drawing(std::initializer_list<EntityRecord> records)
    {
        for (const EntityRecord& r : records) add(r);
    }

    std::int32_t add(const EntityRecord& r, Stat stat = Stat::sel)
    {
        const std::int32_t slot = store->entCount++;
        store->setRecord(slot, r);
        store->setStat(slot, stat);
        return slot;
    }

    std::string file(char decimalPoint = '.')
    {
        const DxfFile made = dxfFile(*store, scratch, decimalPoint);
        whole = made.whole;
        return std::string(textOf(made.bytes));
    }

    // The lines between head and tail; all behind the head of a file that has no tail.
    std::string objects()
    {
        std::string made = file();
        made.erase(0, head().size());
        if (made.ends_with(tail())) made.resize(made.size() - tail().size());
        return made;
    }

    std::unique_ptr<EntityStore> store = std::make_unique<EntityStore>();
    DxfScratch scratch;
    bool whole = false;
};

// Every character is ten units wide.
inline float plainWidth(const EntityRecord& r)
{
    return 10.0F * static_cast<float>(r.t1.size()); // short texts
}

inline std::string single(double value)
{
    char text[64];
    std::snprintf(text, sizeof text, "%.7G", value);
    return text;
}

// Of radius 1 about the origin, half as high.
inline EntityRecord levelEllipse()
{
    return fake::ofLooks(fake::ellipse(world(1, 0), world(0, 0), 0.5F), 0xFFFFFF);
}

// What it is exploded into: each line runs from the later point back to the one before.
inline std::string levelEllipseLines()
{
    std::string all;
    std::string x = "1";
    std::string y = "0";
    for (const double side : {1.0, -1.0}) {
        double a = 0;
        for (int i = 0; i < 18; ++i) {
            a += 0.1745329;
            const auto nextX = static_cast<float>(side * std::cos(a));        // as the file rounds it
            const auto nextY = static_cast<float>(side * -0.5 * std::sin(a)); // as above
            const std::string newX = single(nextX);
            const std::string newY = single(nextY);
            all += line(newX, newY, x, y);
            x = newX;
            y = newY;
        }
    }
    return all;
}

// A session into which a file has been read.
class Opened {
  public:
    explicit Opened(std::string_view file) { read(file); }

    void read(std::string_view file, char decimalPoint = '.')
    {
        readDxf(*session, file, plainWidth, decimalPoint);
    }

    Session& s() { return *session; }
    EntityStore& store() { return session->store; }
    EntityRecord at(std::int32_t slot) { return session->store.record(slot); }
    Stat stat(std::int32_t slot) { return session->store.stat[EntityStore::at(slot)]; }
    std::int32_t count() { return session->store.entCount; }

    std::unique_ptr<Session> session = std::make_unique<Session>();
};

} // namespace mirtane::samples
