#pragma once

// A drawing of three lines, to select from, and what a selection shows in the list.

#include "desk.h"

#include <gtest/gtest.h>

namespace mirtane::fake {

// Three lines one below the other: slots 1 to 3, from x 1000 to 2000 at y 1000, 1200 and 1400.
class SelectionLines : public testing::Test {
  protected:
    SelectionLines()
    {
        for (const float y : {1000.0F, 1200.0F, 1400.0F}) desk.drawLine(1000, y, 2000, y);
        desk.ops();
    }

    void pick(std::int32_t slot) { desk.click(1500, 800.0F + 200.0F * static_cast<float>(slot)); } // 1 to 3

    // "1 3" where slots 1 and 3 are selected.
    std::string selected() const
    {
        std::string slots;
        for (std::int32_t i = 1; i < desk.s.store.entCount; ++i) {
            if (desk.stat(i) == Stat::sel) slots += (slots.empty() ? "" : " ") + std::to_string(i);
        }
        return slots;
    }

    // Selects line 1 and brings the Edits form up.
    void offerEditsOfLine1()
    {
        desk.press("Command20"_c);
        pick(1);
        desk.cancel();
    }

    Desk desk;
};

} // namespace mirtane::fake
