#pragma once

// A session and a surface that records what is drawn on it: what every desk stands on. Its view is 4800 by
// 3200 unless told otherwise. The width of a string is 0.6 of its size a character.

#include "model/session.h"
#include "ops_text.h"
#include "records.h"
#include "render/redraw.h"

#include <memory>
#include <string>
#include <vector>

namespace mirtane::fake {

inline constexpr int ctrlKey = 17; // as the drawing is told; while it is held clicks are snapped to points

class DrawingDesk {
  public:
    explicit DrawingDesk(const Scale& view = {0, 0, 4800, 3200}, Size surface = {1200, 800});
    ~DrawingDesk();
    DrawingDesk(const DrawingDesk&) = delete;
    DrawingDesk& operator=(const DrawingDesk&) = delete;

    void look(const Scale& view);

    // An object in the next slot, as a file brings it: it can't be undone.
    std::int32_t add(const EntityRecord& r, Stat stat = Stat::on);
    // The same as an action that was done.
    std::int32_t draw(const EntityRecord& r, Stat stat = Stat::on);

    EntityRecord slot(std::int32_t number) const;
    EntityRecord last() const;
    Stat stat(std::int32_t slot) const;

    std::vector<EntityRecord> objectsFrom(std::int32_t first) const;
    // The objects that the picture is made of.
    std::vector<EntityRecord> shown() const;

    const std::string& text(ControlId id) const;
    const std::string& caption(ControlId id) const;
    const std::vector<std::string>& rows(ControlId id) const;
    bool visible(ControlId id) const;
    bool enabled(ControlId id) const;

    // All operations since the last call.
    Ops ops();

    std::unique_ptr<Session> session = std::make_unique<Session>();
    Session& s = *session;
    RecordingCanvas pic1;
};

} // namespace mirtane::fake
