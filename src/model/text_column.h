#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace mirtane {

// A text for each slot. Few slots of a drawing have one, so the texts stand in pieces, and a piece is made
// when the first text in it is written: 60,001 strings that nobody has filled would be most of what an empty
// drawing weighs.
class TextColumn {
  public:
    explicit TextColumn(std::size_t size);
    TextColumn(const TextColumn& other);
    TextColumn& operator=(const TextColumn& other);
    TextColumn(TextColumn&&) noexcept = default;
    TextColumn& operator=(TextColumn&&) noexcept = default;
    ~TextColumn() = default;

    std::size_t size() const { return size_; }

    const std::string& operator[](std::size_t slot) const
    {
        const auto& piece = pieces_[slot / pieceSize];
        return piece ? (*piece)[slot % pieceSize] : elsewhere_;
    }
    // To be written to; what only reads takes a const column, or makes room for nothing.
    std::string& operator[](std::size_t slot);

    void set(std::size_t slot, const std::string& text);
    // Every slot gets that text.
    void setAll(std::string_view text);

    friend bool operator==(const TextColumn& a, const TextColumn& b);

  private:
    static constexpr std::size_t pieceSize = 256;
    using Piece = std::array<std::string, pieceSize>;

    std::size_t size_;
    std::string elsewhere_; // what the slots of a piece hold that has not been made
    std::vector<std::unique_ptr<Piece>> pieces_;
};

} // namespace mirtane
