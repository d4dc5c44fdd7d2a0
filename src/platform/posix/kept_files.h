#pragma once

#include "files/work_keeper.h"
#include "platform/posix/held_file.h"
#include "platform/posix/state_folder.h"

#include <mutex>

namespace mirtane {

// Kept work as files in the state folder. Beside that of each run stands a file which the run holds while it
// lives, so that others leave the work of a living one alone.
class KeptFiles : public WorkKeeper {
  public:
    // The disk must outlive this.
    KeptFiles(StateFolder state, Disk& disk) : state_(std::move(state)), disk_(disk) {}
    ~KeptFiles() override;
    KeptFiles(const KeptFiles&) = delete;
    KeptFiles& operator=(const KeptFiles&) = delete;
    KeptFiles(KeptFiles&&) = delete;
    KeptFiles& operator=(KeptFiles&&) = delete;

    void keep(Bytes work) override;
    bool fails() const override;
    bool isUnderWay() const override { return false; }
    void flush() override {}
    void forget() override;
    void leave() override;
    std::vector<std::string> left() override;
    std::optional<Bytes> read(const std::string& name) override;
    bool adopt(const std::string& name) override;
    void remove(const std::string& name) override;

  private:
    // The file of this run, which from now on is known to be alive; nothing where the folder can't be used.
    // What sweeps old files away may have taken the one by which it was known.
    std::optional<std::string> own();
    std::string pathOf(const std::string& name) const;

    StateFolder state_;
    Disk& disk_;
    HeldFile holder_;
    mutable std::mutex mutex_; // what stands below is asked while another thread keeps
    bool failed_ = false;
    std::string kept_; // the path, while something is kept
};

} // namespace mirtane
