#pragma once

// A drawing and its surface for one function whose text is typed onto it, without the routing of events.

#include "commands/live_text.h"
#include "kind_print.h"
#include "ops_text.h"
#include "render/redraw.h"
#include "text/utf8.h"

#include <memory>

namespace mirtane::fake {

class TextDesk {
  public:
    using Routine = void (*)(Session&, Canvas&);

    explicit TextDesk(const std::string& function, Routine step = nullptr, Routine band = nullptr)
        : step_(step), band_(band)
    {
        s.curFunc = s.baseFunc = s.lastFunc = function;
        pic1.setScale({0, 0, 4800, 3200});
        readViewLimits(s, pic1);
        pic1.takeOps();
    }

    void click(float x, float y)
    {
        countStep(s);
        if (s.stepNo == 1) s.pickFirst = {x, y};
        if (s.stepNo > 1) s.pickLast = {x, y};
        s.mousePos = {x, y};
        step_(s, pic1);
    }
    void move(float x, float y)
    {
        s.pickLast = {x, y};
        band_(s, pic1);
    }
    void key(char32_t code) { liveTextKey(s, pic1, code); }
    void type(std::string_view text)
    {
        for (const std::string& c : utf8Characters(text)) key(firstCharacter(c).code);
    }
    void enter() { key(13); }
    void backspace() { key(8); }

    std::int32_t add(const EntityRecord& r, Stat stat = Stat::on)
    {
        s.store.setRecord(s.store.entCount, r);
        s.store.setStat(s.store.entCount, stat);
        return s.store.entCount++;
    }

    Ops ops() { return opsOn(pic1); }
    Ops texts() { return only(ops(), "text"); }
    std::string text3() const { return s.controls["Text3"_c].text; }
    EntityRecord slot(std::int32_t i) const { return s.store.record(i); }
    Stat stat(std::int32_t i) const { return s.store.stat[EntityStore::at(i)]; }

    std::unique_ptr<Session> session = std::make_unique<Session>();
    Session& s = *session;
    RecordingCanvas pic1{Size{1200, 800}}; // a character is 0.6 of its size wide

  private:
    Routine step_;
    Routine band_;
};

} // namespace mirtane::fake
