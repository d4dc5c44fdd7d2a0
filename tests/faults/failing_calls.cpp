#include "failing_calls.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdarg>
#include <string_view>

namespace mirtane::fake {
namespace {

struct Watch {
    bool on = false;
    std::string folder;
    Failing failing;
    std::vector<std::string> calls;
    std::array<const char*, 1024> opened{}; // by descriptor: "" for a file, " folder" for the folder itself
};

Watch watch;

template <class Function> Function* next(const char* name)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name)); // what dlsym is for
}

bool takesRoom(std::string_view call)
{
    return call == "open" || call == "mkdir" || call.starts_with("write") || call.starts_with("fsync") ||
           call == "ftruncate";
}

// Counts a call. What it fails with; 0 if it does not.
int faultOf(const std::string& call)
{
    watch.calls.push_back(call);
    const auto count = static_cast<int>(watch.calls.size()); // a save makes about ten
    const Failing& f = watch.failing;
    const bool follows = f.lasting && f.number > 0 && count > f.number && takesRoom(call);
    return count == f.number || follows ? f.error : 0;
}

bool isWatched(int descriptor)
{
    return watch.on && descriptor >= 0 && descriptor < static_cast<int>(watch.opened.size()) &&
           watch.opened.at(static_cast<std::size_t>(descriptor)) != nullptr; // not negative
}

const char*& openedAs(int descriptor)
{
    return watch.opened.at(static_cast<std::size_t>(descriptor)); // isWatched() or just opened
}

bool isWithin(const char* path)
{
    return watch.on && path != nullptr && std::string_view(path).starts_with(watch.folder + "/");
}

bool isFolder(const char* path, int flags)
{
    const bool itself = watch.on && path != nullptr && path == watch.folder;
    return itself || (isWithin(path) && (flags & O_DIRECTORY) != 0);
}

bool changes(int flags)
{
    return (flags & (O_WRONLY | O_RDWR | O_CREAT)) != 0;
}

// The answer of a call on a path or a descriptor that is to be counted.
template <class Call> auto counted(const std::string& name, Call call) -> decltype(call())
{
    if (const int fault = faultOf(name); fault != 0) {
        errno = fault;
        return -1;
    }
    return call();
}

template <class Call> int opened(const char* path, int flags, Call call)
{
    const bool folder = isFolder(path, flags);
    if (!folder && !(isWithin(path) && changes(flags))) return call();
    const char* const as = folder ? " folder" : "";
    const char* const there = !folder && (flags & O_CREAT) == 0 ? " what is there" : "";
    const int descriptor = counted(std::string("open") + as + there, call);
    if (descriptor >= 0 && descriptor < static_cast<int>(watch.opened.size())) openedAs(descriptor) = as;
    return descriptor;
}

template <class Call> int onDescriptor(const char* name, int descriptor, Call call)
{
    return isWatched(descriptor) ? counted(std::string(name) + openedAs(descriptor), call) : call();
}

template <class Call> int onPath(const char* name, const char* path, Call call)
{
    return isWithin(path) ? counted(name, call) : call();
}

// call(n) writes the first n bytes.
template <class Call> ssize_t written(int descriptor, std::size_t size, Call call)
{
    if (!isWatched(descriptor)) return call(size);
    const auto number = static_cast<int>(watch.calls.size()) + 1; // of this call
    const bool half = watch.failing.number == number && watch.failing.error == 0 && size > 1;
    return counted("write", [&] { return call(half ? size / 2 : size); });
}

mode_t modeOf(int flags, va_list rest)
{
    return (flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE ? va_arg(rest, mode_t) : 0;
}

} // namespace

FailingCalls::FailingCalls(const std::string& folder, const Failing& failing)
{
    watch = {true, folder, failing, {}, {}};
}

FailingCalls::~FailingCalls()
{
    watch = {};
}

const std::vector<std::string>& FailingCalls::calls() const
{
    return watch.calls;
}

std::string FailingCalls::failed() const
{
    const auto number = static_cast<std::size_t>(watch.failing.number); // not negative
    return number > 0 && number <= watch.calls.size() ? watch.calls[number - 1] : "";
}

} // namespace mirtane::fake

using namespace mirtane::fake;

extern "C" {

int open(const char* path, int flags, ...)
{
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = modeOf(flags, rest);
    va_end(rest);
    static auto* const real = next<int(const char*, int, ...)>("open");
    return opened(path, flags, [&] { return real(path, flags, mode); });
}

int open64(const char* path, int flags, ...)
{
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = modeOf(flags, rest);
    va_end(rest);
    static auto* const real = next<int(const char*, int, ...)>("open64");
    return opened(path, flags, [&] { return real(path, flags, mode); });
}

ssize_t write(int descriptor, const void* bytes, size_t size)
{
    static auto* const real = next<ssize_t(int, const void*, size_t)>("write");
    return written(descriptor, size, [&](size_t n) { return real(descriptor, bytes, n); });
}

ssize_t pwrite(int descriptor, const void* bytes, size_t size, off_t at)
{
    static auto* const real = next<ssize_t(int, const void*, size_t, off_t)>("pwrite");
    return written(descriptor, size, [&](size_t n) { return real(descriptor, bytes, n, at); });
}

int fsync(int descriptor)
{
    static auto* const real = next<int(int)>("fsync");
    return onDescriptor("fsync", descriptor, [&] { return real(descriptor); });
}

int fdatasync(int descriptor)
{
    static auto* const real = next<int(int)>("fdatasync");
    return onDescriptor("fsync", descriptor, [&] { return real(descriptor); });
}

int ftruncate64(int descriptor, off64_t size) noexcept
{
    static auto* const real = next<int(int, off64_t)>("ftruncate64");
    return onDescriptor("ftruncate", descriptor, [&] { return real(descriptor, size); });
}

int ftruncate(int descriptor, off_t size) noexcept
{
    static auto* const real = next<int(int, off_t)>("ftruncate");
    return onDescriptor("ftruncate", descriptor, [&] { return real(descriptor, size); });
}

int flock(int descriptor, int how) noexcept
{
    static auto* const real = next<int(int, int)>("flock");
    return onDescriptor("flock", descriptor, [&] { return real(descriptor, how); });
}

int fchown(int descriptor, uid_t user, gid_t group) noexcept
{
    static auto* const real = next<int(int, uid_t, gid_t)>("fchown");
    return onDescriptor("fchown", descriptor, [&] { return real(descriptor, user, group); });
}

int lsetxattr(const char* path, const char* name, const void* value, size_t size, int flags) noexcept
{
    static auto* const real = next<int(const char*, const char*, const void*, size_t, int)>("lsetxattr");
    return onPath("lsetxattr", path, [&] { return real(path, name, value, size, flags); });
}

int mkdir(const char* path, mode_t mode) noexcept
{
    static auto* const real = next<int(const char*, mode_t)>("mkdir");
    return onPath("mkdir", path, [&] { return real(path, mode); });
}

int fchmod(int descriptor, mode_t mode) noexcept
{
    static auto* const real = next<int(int, mode_t)>("fchmod");
    return onDescriptor("fchmod", descriptor, [&] { return real(descriptor, mode); });
}

int close(int descriptor)
{
    static auto* const real = next<int(int)>("close");
    if (!isWatched(descriptor)) return real(descriptor);
    const int fault = faultOf(std::string("close") + openedAs(descriptor));
    openedAs(descriptor) = nullptr;
    const int closed = real(descriptor);
    if (fault != 0) errno = fault;
    return fault != 0 ? -1 : closed;
}

int rename(const char* from, const char* to) noexcept
{
    static auto* const real = next<int(const char*, const char*)>("rename");
    return onPath("rename", to, [&] { return real(from, to); });
}

int renameat2(int fromFolder, const char* from, int toFolder, const char* to, unsigned flags) noexcept
{
    static auto* const real = next<int(int, const char*, int, const char*, unsigned)>("renameat2");
    return onPath("rename", to, [&] { return real(fromFolder, from, toFolder, to, flags); });
}

int linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags) noexcept
{
    static auto* const real = next<int(int, const char*, int, const char*, int)>("linkat");
    return onPath("link", to, [&] { return real(fromFolder, from, toFolder, to, flags); });
}
}
