// Random sessions of small and large actions, undos and redos, with many a wrap of the log.

#include "model/undo_log.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>

namespace mirtane {
namespace {

class RandomSession {
  public:
    explicit RandomSession(std::uint32_t seed) : random_(seed)
    {
        log_.undoLogCount = within(0, UndoLog::wrapAt - 1);
        log_.undoGroupNext = log_.undoGroupTop = 5; // unused records carry 0
    }

    void work(int actions)
    {
        for (int i = 0; i < actions; ++i) {
            act();
            const int undos = within(0, 4) == 0 ? within(1, 5) : 0;
            for (int u = 0; u < undos; ++u) undoOnce();
            for (int r = within(0, undos); r > 0; --r) redoOnce();
        }
    }

    // Gives how many undos flipped something.
    int undoAllAndRedoIt()
    {
        const std::vector<Stat> before = stats();
        int undone = 0;
        int flips = 0;
        std::vector<Stat> last = before;
        while (log_.undoGroupTop > 0 && undoOnce()) {
            ++undone;
            flips += last == store_.stat ? 0 : 1;
            last = stats();
        }
        for (int i = 0; i < undone; ++i) EXPECT_TRUE(redoOnce());
        EXPECT_TRUE(before == store_.stat);
        return flips;
    }

    bool undoOnce() { return step(log_.undoGroupTop, undo); }
    bool redoOnce() { return step(log_.redoGroupTop, redo); }

  private:
    int within(int low, int high)
    {
        // By the remainder, which is the same with every library.
        return low + static_cast<int>(random_() % static_cast<std::uint32_t>(high - low + 1)); // not negative
    }

    void flip(std::int32_t slot, Stat stat)
    {
        store_.setStat(slot, stat);
        logFlip(log_, slot, stat);
        groups_[log_.undoGroupNext].push_back({slot, stat});
    }

    // Some objects go out, some come.
    void act()
    {
        const int size = within(0, 9) == 0 ? within(0, 9) * within(0, 2500) : within(0, 40);
        const int gone = within(0, 1) * within(0, size);
        for (int slot = within(1, store_.entCount), left = gone; slot < store_.end() && left > 0; ++slot) {
            if (store_.stat[EntityStore::at(slot)] != Stat::on) continue;
            flip(slot, Stat::out);
            --left;
        }
        for (int i = gone; i < size && EntityStore::holds(store_.entCount); ++i)
            flip(store_.entCount++, Stat::on);
        endGroup(log_);
    }

    // False if it was refused. What it changes is the whole of its group.
    bool step(const std::int32_t& top, Flipped (*press)(EntityStore&, UndoLog&))
    {
        const std::vector<Stat> before = stats();
        const std::int32_t serial = log_.undoGroupNext;
        const Flipped flipped = press(store_, log_);
        EXPECT_EQ(log_.undoGroupNext, flipped == Flipped::group ? serial + 1 : serial);
        if (before == store_.stat) return flipped == Flipped::group;
        EXPECT_EQ(flipped, Flipped::group);
        for (const LoggedFlip& record : groups_[top]) {
            const Stat other = record.stat == Stat::out ? Stat::on : Stat::out;
            EXPECT_EQ(store_.stat[EntityStore::at(record.slot)], other);
            groups_[serial].push_back({record.slot, other});
        }
        return true;
    }

    std::vector<Stat> stats() const { return store_.stat; }

    std::mt19937 random_;
    EntityStore store_;
    UndoLog log_;
    std::map<std::int32_t, Flips> groups_; // all that was ever flipped
};

TEST(UndoRandom, OfAllThatCanBeUndoneAndRedoOfItGiveTheSameDrawing)
{
    int flips = 0;
    for (std::uint32_t seed = 1; seed <= 12; ++seed) {
        SCOPED_TRACE(seed);
        RandomSession session(seed);
        for (int part = 0; part < 3; ++part) {
            session.work(15);
            flips += session.undoAllAndRedoIt();
        }
        if (testing::Test::HasFailure()) return;
    }
    EXPECT_GT(flips, 12 * 3 * 5);
}

} // namespace
} // namespace mirtane
