#pragma once

// Kept work and the clock, in memory.

#include "app/ports.h"

namespace mirtane::fake {

class MemoryWork : public WorkKeeper {
  public:
    MemoryWork();
    explicit MemoryWork(std::map<std::string, Bytes> left);
    MemoryWork(const MemoryWork&);
    MemoryWork& operator=(const MemoryWork&) = delete;
    ~MemoryWork() override;

    void keep(Bytes work) override;
    bool fails() const override;
    bool isUnderWay() const override;
    void flush() override;
    void forget() override;
    void leave() override;
    std::vector<std::string> left() override;
    std::optional<Bytes> read(const std::string& name) override;
    bool adopt(const std::string& name) override;
    void remove(const std::string& name) override;

    std::optional<Bytes> kept;
    std::map<std::string, Bytes> leftBehind; // by name
    int keeps = 0;
    bool refuses = false;
    bool isSlow = false; // what is to be kept is on its way until it is flushed
    bool refusesAdoption = false;

  private:
    std::optional<Bytes> onItsWay_;
    bool failed_ = false;
};

class MemoryClock : public Clock {
  public:
    std::string now() override;

    std::string time = "2026-11-22 14:32";
};

} // namespace mirtane::fake
