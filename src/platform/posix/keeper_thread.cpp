#include "platform/posix/keeper_thread.h"

#include <utility>

namespace mirtane {

KeeperThread::KeeperThread(WorkKeeper& keeper) : keeper_(keeper), thread_([this] { run(); }) {}

KeeperThread::~KeeperThread()
{
    {
        const std::scoped_lock lock(mutex_);
        ending_ = true;
    }
    changed_.notify_all();
    thread_.join();
}

void KeeperThread::ask(Wanted wanted, Bytes work)
{
    {
        const std::scoped_lock lock(mutex_);
        wanted_ = wanted;
        work_ = std::move(work);
    }
    changed_.notify_all();
}

void KeeperThread::keep(Bytes work)
{
    ask(Wanted::keep, std::move(work));
}

void KeeperThread::forget()
{
    ask(Wanted::forget, {});
}

bool KeeperThread::isUnderWay() const
{
    const std::scoped_lock lock(mutex_);
    return !isIdle();
}

void KeeperThread::flush()
{
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return isIdle(); });
}

// What is still wanted is done before the end.
void KeeperThread::run()
{
    std::unique_lock lock(mutex_);
    for (;;) {
        changed_.wait(lock, [this] { return wanted_ != Wanted::nothing || ending_; });
        if (wanted_ == Wanted::nothing) return;
        const Wanted wanted = std::exchange(wanted_, Wanted::nothing);
        Bytes work = std::exchange(work_, {});
        busy_ = true;
        lock.unlock();
        if (wanted == Wanted::keep)
            keeper_.keep(std::move(work));
        else
            keeper_.forget();
        lock.lock();
        busy_ = false;
        changed_.notify_all();
    }
}

void KeeperThread::leave()
{
    flush();
    keeper_.leave();
}

std::vector<std::string> KeeperThread::left()
{
    flush();
    return keeper_.left();
}

std::optional<Bytes> KeeperThread::read(const std::string& name)
{
    flush();
    return keeper_.read(name);
}

bool KeeperThread::adopt(const std::string& name)
{
    flush();
    return keeper_.adopt(name);
}

void KeeperThread::remove(const std::string& name)
{
    flush();
    keeper_.remove(name);
}

} // namespace mirtane
