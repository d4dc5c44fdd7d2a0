#pragma once

#include "files/work_keeper.h"

#include <condition_variable>
#include <mutex>
#include <thread>

namespace mirtane {

// A keeper whose writing goes on beside the program, so that no event waits for the disk. Of works that come
// faster than the disk takes them, the last one is written.
class KeeperThread : public WorkKeeper {
  public:
    // The keeper must outlive this, and is used by nobody else. It can be asked whether it fails while it
    // keeps.
    explicit KeeperThread(WorkKeeper& keeper);
    ~KeeperThread() override; // once all is written
    KeeperThread(const KeeperThread&) = delete;
    KeeperThread& operator=(const KeeperThread&) = delete;
    KeeperThread(KeeperThread&&) = delete;
    KeeperThread& operator=(KeeperThread&&) = delete;

    void keep(Bytes work) override;
    bool fails() const override { return keeper_.fails(); }
    bool isUnderWay() const override;
    void forget() override;
    void flush() override;

    // These wait for what is on its way.
    void leave() override;
    std::vector<std::string> left() override;
    std::optional<Bytes> read(const std::string& name) override;
    bool adopt(const std::string& name) override;
    void remove(const std::string& name) override;

  private:
    enum class Wanted { nothing, keep, forget };

    bool isIdle() const { return wanted_ == Wanted::nothing && !busy_; } // for who holds the mutex
    void ask(Wanted wanted, Bytes work);
    void run();

    WorkKeeper& keeper_;
    mutable std::mutex mutex_;
    std::condition_variable changed_;
    Wanted wanted_ = Wanted::nothing;
    Bytes work_;
    bool busy_ = false;
    bool ending_ = false;
    std::thread thread_; // last, as it uses the others
};

} // namespace mirtane
