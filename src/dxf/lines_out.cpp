#include "dxf/lines_out.h"

#include <cstring>
#include <utility>

namespace mirtane {

void DxfLines::room(std::size_t count)
{
    if (bytes_.size() - used_ < count) bytes_.resize(2 * bytes_.size() + count);
}

void DxfLines::line(std::string_view text)
{
    room(text.size() + 2);
    std::uint8_t* const to = bytes_.data() + used_;
    if (!text.empty()) std::memcpy(to, text.data(), text.size());
    to[text.size()] = '\r';
    to[text.size() + 1] = '\n';
    used_ += text.size() + 2;
}

void DxfLines::pair(std::string_view code, float value)
{
    NumberBuffer buffer;
    pair(code, dxfNumber(buffer, value, point_));
}

void DxfLines::pair(std::string_view code, double value)
{
    NumberBuffer buffer;
    pair(code, dxfNumber(buffer, value, point_));
}

std::vector<std::uint8_t> DxfLines::take()
{
    bytes_.resize(used_);
    used_ = 0;
    return std::exchange(bytes_, {});
}

} // namespace mirtane
