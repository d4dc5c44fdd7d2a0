#pragma once

// A session and a surface that records what is drawn on it: what every desk stands on. Its view is 4800 by
// 3200 unless told otherwise. The width of a string is 0.6 of its size a character.

#include "model/insertion.h"
#include "ops_text.h"
#include "records.h"
#include "render/redraw.h"

#include <memory>
#include <string>
#include <vector>

namespace mirtane::fake {

class DrawingDesk {
  public:
    explicit DrawingDesk(const Scale& view = {0, 0, 4800, 3200}, Size surface = {1200, 800}) : pic1(surface)
    {
        resetLayers(s.layerTable);
        look(view);
    }

    void look(const Scale& view)
    {
        pic1.setScale(view);
        readViewLimits(s, pic1);
        pic1.takeOps();
    }

    // An object in the next slot, as a file brings it: it can't be undone.
    std::int32_t add(const EntityRecord& r, Stat stat = Stat::on)
    {
        const std::int32_t slot = s.store.entCount++;
        s.store.setRecord(slot, r);
        s.store.setStat(slot, stat);
        return slot;
    }
    // The same as an action that was done.
    std::int32_t draw(const EntityRecord& r, Stat stat = Stat::on)
    {
        const std::int32_t slot = s.store.entCount;
        s.store.setRecord(slot, r);
        commitSlot(s);
        s.store.setStat(slot, stat);
        return slot;
    }

    EntityRecord slot(std::int32_t number) const { return session->store.record(number); }
    EntityRecord last() const { return slot(session->store.entCount - 1); }
    Stat stat(std::int32_t slot) const { return session->store.stat[EntityStore::at(slot)]; }

    std::vector<EntityRecord> objectsFrom(std::int32_t first) const
    {
        std::vector<EntityRecord> all;
        for (std::int32_t i = first; i < session->store.end(); ++i) all.push_back(slot(i));
        return all;
    }
    // The objects that the picture is made of.
    std::vector<EntityRecord> shown() const
    {
        std::vector<EntityRecord> all;
        for (std::int32_t i = 1; i < session->store.end(); ++i) {
            if (session->store.isShown(i)) all.push_back(slot(i));
        }
        return all;
    }

    const std::string& text(ControlId id) const { return session->controls[id].text; }
    const std::string& caption(ControlId id) const { return session->controls[id].caption; }
    const std::vector<std::string>& rows(ControlId id) const { return session->controls[id].rows; }
    bool visible(ControlId id) const { return session->controls[id].visible; }
    bool enabled(ControlId id) const { return session->controls[id].enabled; }

    // All operations since the last call.
    Ops ops() { return opsOn(pic1); }

    std::unique_ptr<Session> session = std::make_unique<Session>();
    Session& s = *session;
    RecordingCanvas pic1;
};

} // namespace mirtane::fake
