// A hatch file whose end is also a boundary: whatever tiles and boundaries there are, filling them is
// bounded, and what comes of it can be shown.

#include "files/library_files.h"
#include "fuzz_session.h"
#include "library/hatch_fill.h"

#include <bit>

using namespace mirtane;
using namespace mirtane::fuzz;

namespace {

// Numbers taken from the end of a file backwards; 0 once it is used up.
class Tail {
  public:
    explicit Tail(std::span<const std::uint8_t> bytes) : left_(bytes) {}

    std::uint32_t next(std::size_t bytes)
    {
        std::uint32_t value = 0;
        for (; bytes > 0 && !left_.empty(); --bytes) {
            value = value << 8 | left_.back();
            left_ = left_.first(left_.size() - 1);
        }
        return value;
    }

    // A number of a drawing's size, or one of any bits.
    float number()
    {
        const std::uint32_t bits = next(2);
        if (bits % 16 == 0) return std::bit_cast<float>(next(4));
        return static_cast<float>(bits) / 16 - 2048; // exact
    }

  private:
    std::span<const std::uint8_t> left_;
};

std::vector<BoundaryLeg> boundaryOf(Tail& tail)
{
    const std::uint32_t count = 2 + tail.next(1) % 20;
    std::vector<BoundaryLeg> legs;
    const Point first{tail.number(), tail.number()};
    Point from = first;
    for (std::uint32_t i = 0; i < count; ++i) {
        const Point to{tail.number(), tail.number()};
        legs.push_back({from, to});
        from = to;
    }
    legs.push_back({from, first});
    return legs;
}

void place(Session& s, const std::vector<HatchPiece>& pieces, const HatchFill& fill)
{
    constexpr std::size_t some = 100;
    for (const HatchPiece& piece : std::span(pieces).first(std::min(pieces.size(), some))) {
        s.store.setRecord(s.store.entCount, hatchObject(piece, fill));
        s.store.setStat(s.store.entCount, Stat::on);
        ++s.store.entCount;
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Session& s = freshSession();
    addHatch(s.hatchLibrary, Bytes(data, data + size));
    Tail tail({data, size});
    const std::vector<BoundaryLeg> boundary = boundaryOf(tail);
    const float scale = tail.next(1) % 4 == 0 ? tail.number() : 1;
    const double rotation = tail.next(1) % 2 == 0 ? 0 : tail.number();
    for (const std::string& name : listedNames(s.hatchLibrary)) {
        const HatchFill fill{boundary, s.hatchLibrary.used(), name, scale, rotation};
        Missing missing;
        const std::vector<HatchPiece> pieces = fillHatch(fill, missing);
        require(pieces.size() <= hatchTableRows, "pieces of a fill");
        require(missing.pieces >= 0, "pieces that had no room");
        place(s, pieces, fill);
        break; // the first of them will do
    }
    show(s);
    return 0;
}
