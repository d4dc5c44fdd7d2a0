#include "memory_work.h"

namespace mirtane::fake {

MemoryWork::MemoryWork() = default;
MemoryWork::MemoryWork(std::map<std::string, Bytes> left) : leftBehind(std::move(left)) {}
MemoryWork::MemoryWork(const MemoryWork&) = default;
MemoryWork::~MemoryWork() = default;

void MemoryWork::keep(Bytes work)
{
    ++keeps;
    if (!refuses) kept = std::move(work);
}

bool MemoryWork::fails() const
{
    return refuses && keeps > 0;
}

void MemoryWork::flush() {}

void MemoryWork::forget()
{
    kept.reset();
}

void MemoryWork::leave()
{
    if (kept) leftBehind["run " + std::to_string(leftBehind.size() + 1)] = *kept;
    kept.reset();
}

std::vector<std::string> MemoryWork::left()
{
    std::vector<std::string> names;
    for (const auto& [name, bytes] : leftBehind) names.push_back(name);
    return names;
}

std::optional<Bytes> MemoryWork::read(const std::string& name)
{
    const auto found = leftBehind.find(name);
    return found == leftBehind.end() ? std::nullopt : std::optional(found->second);
}

bool MemoryWork::adopt(const std::string& name)
{
    const auto found = leftBehind.find(name);
    if (found == leftBehind.end() || refusesAdoption) return false;
    kept = found->second;
    leftBehind.erase(found);
    return true;
}

void MemoryWork::remove(const std::string& name)
{
    leftBehind.erase(name);
}

std::string MemoryClock::now()
{
    return time;
}

} // namespace mirtane::fake
