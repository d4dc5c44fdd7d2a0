#include "render/type_case.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace mirtane {

namespace {

struct Direction {
    double cos, sin;
};

int turnOf(int degrees)
{
    return (degrees % 360 + 360) % 360;
}

using Directions = std::array<Direction, 360>;

// The right angles are exact, so that their letters stand upright and lie level.
Directions everyDirection()
{
    constexpr Direction right[] = {{1, 0}, {0, 1}, {-1, 0}, {0, -1}};
    Directions all;
    for (std::size_t degrees = 0; degrees < all.size(); ++degrees) {
        const double angle = static_cast<double>(degrees) * std::numbers::pi / 180; // small numbers
        all[degrees] = degrees % 90 == 0 ? right[degrees / 90] : Direction{std::cos(angle), std::sin(angle)};
    }
    return all;
}

Direction directionOf(int degrees)
{
    static const Directions all = everyDirection();
    return all[static_cast<std::size_t>(turnOf(degrees))]; // not negative
}

std::size_t placeOf(int quarter)
{
    return static_cast<std::size_t>(quarter); // 0 to 3
}

std::uint64_t pairOf(std::int64_t a, std::int64_t b)
{
    // Bits, not numbers: both fit 32.
    return static_cast<std::uint64_t>(a) << 32 | (static_cast<std::uint64_t>(b) & 0xFFFFFFFFU);
}

} // namespace

PixelPoint LinePlace::at(double along, double below) const
{
    const Direction d = directionOf(degrees);
    return {corner.x + along * d.cos + below * d.sin, corner.y - along * d.sin + below * d.cos};
}

TypeCase::TypeCase(Cast cast, std::size_t mostBytes) : cast_(std::move(cast)), mostBytes_(mostBytes) {}

void TypeCase::write(Raster& image, std::span<const SetLetter> line, const LinePlace& place,
                     std::uint32_t color)
{
    if (imageWidth_ != image.width()) empty();
    imageWidth_ = image.width();
    Hand& hand = handOf(place.em, place.degrees);
    const PixelPoint from = place.at(0, place.ascent);
    for (const SetLetter& l : line) {
        const double x = from.x + l.x * hand.along + l.y * hand.across;
        const double y = from.y + l.y * hand.along - l.x * hand.across;
        const double column = std::floor(x);
        const int quarter = static_cast<int>((x - column) * quarters); // below 1 times four
        // A line is no longer than some thousand letters, and begins near the picture.
        image.lay(sort(hand, l.letter, quarter), static_cast<std::int64_t>(column),
                  static_cast<std::int64_t>(std::floor(y + 0.5)), color);
    }
}

void TypeCase::empty()
{
    hands_.clear();
    bytes_ = 0;
}

const Coverage* TypeCase::Hand::found(std::uint32_t letter, int quarter) const
{
    if (letter >= letters.size() || letters[letter] == nullptr) return nullptr;
    return (*letters[letter])[placeOf(quarter)].get();
}

TypeCase::Hand& TypeCase::handOf(int em, int degrees)
{
    const int within = turnOf(degrees);
    const auto [found, isNew] = hands_.try_emplace(pairOf(em, within));
    Hand& hand = found->second;
    if (isNew) {
        const Direction d = directionOf(within);
        hand = {em, within, em * d.cos, em * d.sin};
        makeRoom(hand, sizeof(Hand));
    }
    hand.used = ++lines_;
    return hand;
}

const Coverage& TypeCase::sort(Hand& hand, std::uint32_t letter, int quarter)
{
    if (const Coverage* const known = hand.found(letter, quarter)) return *known;
    auto fresh = std::make_unique<Coverage>(cast_({letter, hand.em, hand.degrees, quarter, imageWidth_}));
    fresh->inked.shrink_to_fit();
    // As if it were the first of its letter, so that too much is counted rather than too little.
    const std::size_t longer = letter < hand.letters.size() ? 0 : letter + 1 - hand.letters.size();
    makeRoom(hand, longer * sizeof(void*) + sizeof(Sorts) + sizeof(Coverage) +
                       fresh->inked.size() * sizeof(std::uint32_t));
    if (letter >= hand.letters.size()) hand.letters.resize(letter + std::size_t{1});
    std::unique_ptr<Sorts>& sorts = hand.letters[letter];
    if (sorts == nullptr) sorts = std::make_unique<Sorts>();
    std::unique_ptr<Coverage>& kept = (*sorts)[placeOf(quarter)];
    kept = std::move(fresh);
    return *kept;
}

// Down to three quarters at once, so that the oldest are not looked for with every letter.
void TypeCase::makeRoom(Hand& current, std::size_t more)
{
    if (bytes_ + more > mostBytes_) {
        std::vector<const Hand*> oldest;
        for (const auto& [key, hand] : hands_) {
            if (&hand != &current) oldest.push_back(&hand);
        }
        std::ranges::sort(oldest, {}, &Hand::used);
        for (const Hand* hand : oldest) {
            if (bytes_ + more <= mostBytes_ / 4 * 3) break;
            bytes_ -= hand->bytes;
            hands_.erase(pairOf(hand->em, hand->degrees));
        }
        if (bytes_ + more > mostBytes_) {
            current.letters.clear();
            current.bytes = bytes_ = 0;
        }
    }
    current.bytes += more;
    bytes_ += more;
}

} // namespace mirtane
