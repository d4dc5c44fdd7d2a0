#include "drawing_desk.h"

#include "model/insertion.h"

namespace mirtane::fake {

DrawingDesk::DrawingDesk(const Scale& view, Size surface) : pic1(surface)
{
    resetLayers(s.layerTable);
    look(view);
}

DrawingDesk::~DrawingDesk() = default;

void DrawingDesk::look(const Scale& view)
{
    pic1.setScale(view);
    readViewLimits(s, pic1);
    pic1.takeOps();
}

std::int32_t DrawingDesk::add(const EntityRecord& r, Stat stat)
{
    const std::int32_t slot = s.store.entCount++;
    s.store.setRecord(slot, r);
    s.store.setStat(slot, stat);
    return slot;
}

std::int32_t DrawingDesk::draw(const EntityRecord& r, Stat stat)
{
    const std::int32_t slot = s.store.entCount;
    s.store.setRecord(slot, r);
    commitSlot(s);
    s.store.setStat(slot, stat);
    return slot;
}

EntityRecord DrawingDesk::slot(std::int32_t number) const
{
    return session->store.record(number);
}

EntityRecord DrawingDesk::last() const
{
    return slot(session->store.entCount - 1);
}

Stat DrawingDesk::stat(std::int32_t slot) const
{
    return session->store.stat[EntityStore::at(slot)];
}

std::vector<EntityRecord> DrawingDesk::objectsFrom(std::int32_t first) const
{
    std::vector<EntityRecord> all;
    for (std::int32_t i = first; i < session->store.end(); ++i) all.push_back(slot(i));
    return all;
}

std::vector<EntityRecord> DrawingDesk::shown() const
{
    std::vector<EntityRecord> all;
    for (std::int32_t i = 1; i < session->store.end(); ++i) {
        if (session->store.isShown(i)) all.push_back(slot(i));
    }
    return all;
}

const std::string& DrawingDesk::text(ControlId id) const
{
    return session->controls[id].text;
}

const std::string& DrawingDesk::caption(ControlId id) const
{
    return session->controls[id].caption;
}

const std::vector<std::string>& DrawingDesk::rows(ControlId id) const
{
    return session->controls[id].rows;
}

bool DrawingDesk::visible(ControlId id) const
{
    return session->controls[id].visible;
}

bool DrawingDesk::enabled(ControlId id) const
{
    return session->controls[id].enabled;
}

Ops DrawingDesk::ops()
{
    return opsOn(pic1);
}

} // namespace mirtane::fake
