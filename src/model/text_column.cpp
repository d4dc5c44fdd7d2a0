#include "model/text_column.h"

namespace mirtane {

TextColumn::TextColumn(std::size_t size) : size_(size), pieces_((size + pieceSize - 1) / pieceSize) {}

TextColumn::TextColumn(const TextColumn& other)
    : size_(other.size_), elsewhere_(other.elsewhere_), pieces_(other.pieces_.size())
{
    for (std::size_t i = 0; i < pieces_.size(); ++i) {
        if (other.pieces_[i]) pieces_[i] = std::make_unique<Piece>(*other.pieces_[i]);
    }
}

TextColumn& TextColumn::operator=(const TextColumn& other)
{
    if (this != &other) *this = TextColumn(other);
    return *this;
}

std::string& TextColumn::operator[](std::size_t slot)
{
    auto& piece = pieces_[slot / pieceSize];
    if (!piece) {
        piece = std::make_unique<Piece>();
        piece->fill(elsewhere_);
    }
    return (*piece)[slot % pieceSize];
}

void TextColumn::set(std::size_t slot, const std::string& text)
{
    if (pieces_[slot / pieceSize] || text != elsewhere_) (*this)[slot] = text;
}

void TextColumn::setAll(std::string_view text)
{
    for (auto& piece : pieces_) piece.reset();
    elsewhere_ = text;
}

bool operator==(const TextColumn& a, const TextColumn& b)
{
    if (a.size_ != b.size_) return false;
    for (std::size_t slot = 0; slot < a.size_; ++slot) {
        if (a[slot] != b[slot]) return false;
    }
    return true;
}

} // namespace mirtane
