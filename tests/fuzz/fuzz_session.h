#pragma once

// What the fuzzers have in common: a session that is as new before each file, and what ends a run.

#include "files/drawing_file.h"
#include "model/session.h"
#include "render/entity_bounds.h"
#include "render/raster_canvas.h"
#include "render/redraw.h"
#include "text/utf8.h"

#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string_view>

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

// A small surface that really paints; each character of a text is a box.
class SmallCanvas : public RasterCanvas {
  public:
    SmallCanvas() : RasterCanvas(60, 40) {}

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
};

// Fits the view to the drawing and paints it, as opening a drawing does.
inline void show(Session& s)
{
    static SmallCanvas pic1;
    const TextWidthOf widthOf = [](const EntityRecord& r) {
        return 0.6F * r.p2.x * static_cast<float>(utf8Length(r.t1)); // as above
    };
    setTextAnchors(s.store, widthOf);
    Scale scale{0, 0, 240, 160};
    fitScaleOrMove(drawingBounds(s.store, widthOf), 1.5, scale);
    pic1.setScale(scale);
    readViewLimits(s, pic1);
    redrawAll(s, pic1);
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
