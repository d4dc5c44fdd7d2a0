#pragma once

// What the fuzzers have in common: a session that is as new before each file, and what ends a run.

#include "files/drawing_file.h"
#include "model/session.h"
#include "print/page.h"
#include "print/recording_printer.h"
#include "render/entity_bounds.h"
#include "render/raster_canvas.h"
#include "render/redraw.h"
#include "text/utf8.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string_view>
#include <utility>

namespace mirtane::fuzz {

// Ends the program, whereupon the file that led here is kept.
inline void require(bool holds, std::string_view what)
{
    if (holds) return;
    std::cerr << "not as it should be: " << what << std::endl;
    std::abort();
}

// The slots are many, so only those that the last file may have touched are emptied.
inline Session& freshSession()
{
    static Session s;
    static const Attributes attributes;
    for (std::int32_t i = 0; i <= s.store.end() && EntityStore::holds(i); ++i) {
        s.store.setRecord(i, {});
        s.store.setStat(i, Stat::none);
        s.store.ownerName[EntityStore::at(i)].clear();
        s.store.dxfTag[EntityStore::at(i)].clear();
    }
    s.store.entCount = 1;
    clearRecords(s.log);
    resetLayers(s.layerTable);
    static_cast<Attributes&>(s) = attributes; // the part of the session that files set
    s.hatchLibrary.count = 0;
    s.multipleLinesLibrary.count = 0;
    return s;
}

// A small surface that really paints, and counts what it is asked to; each character of a text is a box.
class SmallCanvas : public RasterCanvas {
  public:
    SmallCanvas() : RasterCanvas(60, 40) {}

    void line(float x1, float y1, float x2, float y2) override
    {
        ++strokes_;
        RasterCanvas::line(x1, y1, x2, y2);
    }
    std::int64_t takeStrokes() { return std::exchange(strokes_, 0); }

    void setFontName(std::string_view) override {}
    void setFontSize(float size) override { size_ = size; }
    void setUnderline(bool) override {}
    float textWidth(std::string_view utf8) const override
    {
        return 0.6F * size_ * static_cast<float>(utf8Length(utf8)); // texts are below 16 million characters
    }
    void text(float x, float y, int, std::string_view utf8) override
    {
        line(x, y, x + textWidth(utf8), y + size_);
    }

  private:
    float size_ = 0;
    std::int64_t strokes_ = 0;
};

inline float widthOf(const EntityRecord& r)
{
    return 0.6F * r.p2.x * static_cast<float>(utf8Length(r.t1)); // as above
}

// No object may ask for more than a bounded number of strokes, whatever it holds and wherever one looks.
inline void showFrom(Session& s, SmallCanvas& pic1, const Scale& scale)
{
    constexpr std::int64_t mostStrokes = 12000;
    pic1.setScale(scale);
    readViewLimits(s, pic1);
    pic1.takeStrokes();
    redrawAll(s, pic1);
    require(pic1.takeStrokes() <= mostStrokes * s.store.end(), "strokes of a redraw");
}

// From far out, from between two numbers of 32 bits, and from so near that a point fills the window.
inline void showAround(Session& s, SmallCanvas& pic1)
{
    showFrom(s, pic1, {-1.5e38F, -1e38F, 3e38F, 2e38F});
    showFrom(s, pic1, {2e9F, -2e9F, 0.3F, 0.2F});
    for (std::int32_t i = 1; i < std::min(s.store.end(), 4); ++i) {
        const Point p = s.store.p1[EntityStore::at(i)];
        const float rad = s.store.rad[EntityStore::at(i)];
        for (const Point at : {p, Point{p.x + rad, p.y}, s.store.p2[EntityStore::at(i)]})
            if (std::isfinite(at.x) && std::isfinite(at.y)) showFrom(s, pic1, {at.x, at.y, 0.003F, 0.002F});
    }
}

inline void showOnPage(Session& s)
{
    constexpr float pageWidth = 12240, pageHeight = 15840;
    constexpr std::size_t mostMarks = 400;
    changeStat(s.store, Stat::on, Stat::sel);
    s.pageWidth = pageWidth;
    s.pageHeight = pageHeight;
    s.printFactor = 1;
    fittedScale(s, s.store);
    RecordingPrinter printer;
    drawPage(s.store, pageMapping(s, s.store), s.pageHeight, printer);
    require(printer.printed().size() <= mostMarks * EntityStore::at(s.store.end()), "marks on a page");
    changeStat(s.store, Stat::sel, Stat::on);
}

// Fits the view to the drawing and paints it, as opening a drawing does.
inline void show(Session& s)
{
    static SmallCanvas pic1;
    setTextAnchors(s.store, widthOf);
    Scale scale{0, 0, 240, 160};
    fitScaleOrMove(drawingBounds(s.store, widthOf), 1.5, scale);
    pic1.setScale(scale);
    readViewLimits(s, pic1);
    redrawAll(s, pic1);
    showAround(s, pic1);
    fixUpLinesAndCircles(s.store);
}

// What holds between any two events, whatever file has been read.
inline void requireTables(const Session& s)
{
    require(s.store.entCount >= 1, "entCount");
    require(s.layerTable.layerCount >= 0, "layerCount");
    require(s.log.undoLogCount == 0, "undoLogCount");
    for (std::int32_t i = 1; i < s.store.end(); ++i)
        require(s.store.stat[EntityStore::at(i)] != Stat::none, "stat of a slot");
}

} // namespace mirtane::fuzz
