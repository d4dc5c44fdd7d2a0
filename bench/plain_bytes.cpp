#include "plain.h"

#include <fcntl.h>
#include <unistd.h>

#include <cstring>

namespace mirtane::bench {
namespace {

// A file of the system, closed when it goes.
class File {
  public:
    File(const std::filesystem::path& path, int flags) : handle_(::open(path.c_str(), flags, 0644)) {}
    ~File() { ::close(handle_); }
    File(const File&) = delete;
    File& operator=(const File&) = delete;

    int handle() const { return handle_; }

  private:
    int handle_;
};

template <class... Number> void take(const std::uint8_t*& from, Number&... field)
{
    ((std::memcpy(&field, from, sizeof(Number)), from += sizeof(Number)), ...);
}

void takeText(const std::uint8_t*& from, std::string& text)
{
    std::uint16_t length = 0;
    take(from, length);
    text.assign(from, from + length);
    from += length;
}

} // namespace

void copyPart(std::span<const std::uint32_t> from, Image to, const PixelRect& part)
{
    // No part of an image has a negative side.
    const auto bytes = static_cast<std::size_t>(part.right - part.left) * sizeof(std::uint32_t);
    for (int y = part.top; y < part.bottom; ++y) {
        const auto first = static_cast<std::size_t>(y * to.width + part.left);
        std::memcpy(&to.pixels[first], &from[first], bytes);
    }
}

bool writeFile(const std::filesystem::path& target, std::span<const std::uint8_t> bytes)
{
    std::filesystem::path beside = target;
    beside += ".new";
    {
        const File file(beside, O_WRONLY | O_CREAT | O_TRUNC);
        if (::write(file.handle(), bytes.data(), bytes.size()) != std::ssize(bytes)) return false;
        if (::fsync(file.handle()) != 0) return false;
    }
    std::error_code fault;
    std::filesystem::rename(beside, target, fault);
    return !fault;
}

Bytes readFile(const std::filesystem::path& path)
{
    std::error_code fault;
    const auto size = std::filesystem::file_size(path, fault);
    if (fault) return {};
    Bytes bytes(size);
    const File file(path, O_RDONLY);
    if (::read(file.handle(), bytes.data(), bytes.size()) != std::ssize(bytes)) return {};
    return bytes;
}

void takeRecords(std::span<const std::uint8_t> file, EntityStore& store)
{
    const std::uint8_t* from = file.data();
    const std::uint8_t* const end = from + file.size();
    for (std::size_t i = 0; from < end; ++i) {
        take(from, store.p1[i], store.p2[i], store.p3[i], store.p4[i], store.p5[i]);
        take(from, store.s1[i], store.s2[i], store.rad[i], store.a1[i], store.a2[i], store.a3[i]);
        take(from, store.color[i], store.layer[i], store.style[i], store.kind[i]);
        takeText(from, store.t1[i]);
        takeText(from, store.t2[i]);
        store.stat[i] = Stat::on;
    }
}

} // namespace mirtane::bench
