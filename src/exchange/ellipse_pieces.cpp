#include "exchange/ellipse_pieces.h"

#include <algorithm>

namespace mirtane {

std::vector<Piece> piecesOf(const EllipseArc& arc, double tolerance)
{
    const double size = std::max(length(arc.u), length(arc.v));
    const double step = std::clamp(std::sqrt(8 * tolerance / size), 0.01, 0.5);
    const int count = static_cast<int>(std::ceil((arc.to - arc.from) / step)); // at most 629
    std::vector<Piece> pieces;
    for (int i = 0; i < count; ++i) {
        const double part = (arc.to - arc.from) / count;
        pieces.push_back({arc.at(arc.from + i * part), arc.at(arc.from + (i + 1) * part)});
    }
    return pieces;
}

} // namespace mirtane
