#include "memory_work.h"

namespace mirtane::fake {

MemoryWork::MemoryWork() = default;
MemoryWork::MemoryWork(std::map<std::string, Bytes> left) : leftBehind(std::move(left)) {}
MemoryWork::MemoryWork(const MemoryWork&) = default;
MemoryWork::~MemoryWork() = default;

void MemoryWork::keep(Bytes work)
{
    ++keeps;
    onItsWay_ = std::move(work);
    if (!isSlow) flush();
}

bool MemoryWork::fails() const
{
    return failed_;
}

bool MemoryWork::isUnderWay() const
{
    return onItsWay_.has_value();
}

void MemoryWork::flush()
{
    if (!onItsWay_) return;
    failed_ = refuses;
    if (!refuses) kept = std::move(onItsWay_);
    onItsWay_.reset();
}

void MemoryWork::forget()
{
    onItsWay_.reset();
    failed_ = false;
    kept.reset();
}

void MemoryWork::leave()
{
    flush();
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
