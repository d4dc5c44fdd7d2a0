#pragma once

// A session and a surface with one function running: clicks go to its step, and moves to its band, as the
// drawing would send them.

#include "kind_print.h"
#include "model/insertion.h"
#include "model/session.h"
#include "ops_text.h"

#include <memory>
#include <vector>

namespace mirtane::fake {

class LibraryDesk {
  public:
    using Routine = void (*)(Session&, Canvas&);

    LibraryDesk(std::string_view function, Routine step, Routine band = nullptr) : step_(step), band_(band)
    {
        pic1.setScale({0, 0, 4800, 3200});
        s.viewRight = 4800;
        s.viewBottom = 3200;
        s.curFunc = function;
        resetLayers(s.layerTable);
        ops();
    }

    void click(float x, float y)
    {
        countStep(s);
        (s.stepNo == 1 ? s.pickFirst : s.pickLast) = {x, y};
        step_(s, pic1);
    }
    void move(float x, float y)
    {
        s.pickLast = {x, y};
        if (band_ != nullptr) band_(s, pic1);
    }

    // An object in the next slot.
    std::int32_t add(const EntityRecord& r, Stat stat = Stat::sel)
    {
        s.store.setRecord(s.store.entCount, r);
        s.store.setStat(s.store.entCount, stat);
        return s.store.entCount++;
    }

    EntityRecord slot(std::int32_t i) const { return session->store.record(i); }
    std::vector<EntityRecord> objectsFrom(std::int32_t first) const
    {
        std::vector<EntityRecord> all;
        for (std::int32_t i = first; i < session->store.end(); ++i) all.push_back(slot(i));
        return all;
    }
    Stat stat(std::int32_t i) const { return session->store.stat[EntityStore::at(i)]; }
    const std::string& owner(std::int32_t i) const { return session->store.ownerName[EntityStore::at(i)]; }
    const std::string& text(ControlId id) const { return session->controls[id].text; }
    const std::string& caption(ControlId id) const { return session->controls[id].caption; }
    const std::vector<std::string>& list() const { return session->controls["List1"_c].rows; }
    std::string_view used(std::int32_t layer) const { return session->layerTable.find(layer)->layerUsed; }
    Ops ops() { return opsOn(pic1); }

    std::unique_ptr<Session> session = std::make_unique<Session>();
    Session& s = *session;
    RecordingCanvas pic1{Size{1200, 800}};

  private:
    Routine step_, band_;
};

inline EntityRecord line(Point a, Point b)
{
    EntityRecord r;
    r.kind = Kind::line;
    r.p1 = a;
    r.p2 = b;
    return r;
}

inline EntityRecord circle(Point centre, float radius)
{
    EntityRecord r;
    r.kind = Kind::circle;
    r.p1 = centre;
    r.rad = radius;
    return r;
}

// Every pair, number and string has a value of its own.
inline EntityRecord sampleOf(Kind kind)
{
    EntityRecord r;
    r.kind = kind;
    r.p1 = {1, 2};
    r.p2 = {3, 4};
    r.p3 = {5, 6};
    r.p4 = {7, 8};
    r.p5 = {9, 10};
    r.s1 = 11;
    r.s2 = 12;
    r.rad = 13;
    r.a1 = 0.25;
    r.a2 = 0.5;
    r.a3 = 0.75;
    r.color = 0x00FF00;
    r.layer = 7;
    r.style = 3;
    r.t1 = "words";
    r.t2 = "Garamond";
    return r;
}

inline HatchRow hatchLine(std::string name, Point a, Point b, float width, float height)
{
    HatchRow row;
    row.hatchName = std::move(name);
    row.h1 = a;
    row.h2 = b;
    row.hatchTileW = width;
    row.hatchTileH = height;
    row.hatchKind = Kind::line;
    return row;
}

inline HatchRow hatchCircle(std::string name, Point centre, float radius, float width, float height)
{
    HatchRow row = hatchLine(std::move(name), centre, {}, width, height);
    row.hatchRad = radius;
    row.hatchKind = Kind::circle;
    return row;
}

// The legs of a closed boundary by way of the corners.
inline std::vector<BoundaryLeg> legsThrough(const std::vector<Point>& corners)
{
    std::vector<BoundaryLeg> legs;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        legs.push_back({corners[i], corners[(i + 1) % corners.size()]});
    }
    return legs;
}

} // namespace mirtane::fake
