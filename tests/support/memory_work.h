#pragma once

// Kept work and the clock, in memory.

#include "app/ports.h"

namespace mirtane::fake {

class MemoryWork : public WorkKeeper {
  public:
    MemoryWork() = default;
    explicit MemoryWork(std::map<std::string, Bytes> left) : leftBehind(std::move(left)) {}

    void keep(Bytes work) override
    {
        ++keeps;
        if (!refuses) kept = std::move(work);
    }
    bool fails() const override { return refuses && keeps > 0; }
    void forget() override { kept.reset(); }
    std::vector<std::string> left() override
    {
        std::vector<std::string> names;
        for (const auto& [name, bytes] : leftBehind) names.push_back(name);
        return names;
    }
    std::optional<Bytes> read(const std::string& name) override
    {
        const auto found = leftBehind.find(name);
        return found == leftBehind.end() ? std::nullopt : std::optional(found->second);
    }
    bool adopt(const std::string& name) override
    {
        const auto found = leftBehind.find(name);
        if (found == leftBehind.end()) return false;
        kept = found->second;
        leftBehind.erase(found);
        return true;
    }
    void remove(const std::string& name) override { leftBehind.erase(name); }

    std::optional<Bytes> kept;
    std::map<std::string, Bytes> leftBehind; // by name
    int keeps = 0;
    bool refuses = false;
};

class MemoryClock : public Clock {
  public:
    std::string now() override { return time; }

    std::string time = "2026-11-22 14:32";
};

} // namespace mirtane::fake
