#pragma once

// What is left of a tile's lines, circles, arcs and points where they are cut at a boundary.

#include "library/hatch_grid.h"

namespace mirtane {

// An object of a fill.
struct HatchPiece {
    Kind kind{}; // line, circle, arc or point
    std::int16_t style = 0;
    Point from, to;        // the ends of a line; from alone is a point, or the centre of a circle or arc
    float radius = 0;      // world units
    double a1 = 0, a2 = 0; // of an arc, radians
};

class HatchClip {
  public:
    // The polygon, and the box of its grid: what lies wholly beyond the box is passed over.
    HatchClip(const Polygon& polygon, const HatchGrid& grid);

    // Room for that many pieces, which saves moving them about.
    void expect(std::size_t pieces) { pieces_.reserve(pieces < hatchTableRows ? pieces : hatchTableRows); }

    // Each cuts an object at the polygon and keeps the pieces whose middle lies inside. A number that is
    // none, and a radius below 0, make no piece.
    void line(Point a, Point b, std::int16_t style);
    void circle(Point centre, float radius, std::int16_t style);
    void arc(Point centre, float radius, double a1, double a2, std::int16_t style);
    void point(Point p, std::int16_t style);

    // From now on pieces are only counted.
    void close() { isClosed_ = true; }

    // No further piece would be taken, or counted. Pieces outside count too.
    bool isSpent() const { return tried_ >= hatchRowsCounted; }

    // How many pieces inside were not taken.
    std::int64_t dropped() const { return dropped_; }

    std::vector<HatchPiece> take() { return std::move(pieces_); }

  private:
    struct Edge {
        Side side;
        Place low, high; // its box
        Place unit;      // from a to b; none if it has no length
        double length;
    };

    // Where the line at hand is cut.
    struct Cut {
        double part; // of the line before it, 0 to 1
        Place at;

        bool operator==(const Cut& other) const { return part == other.part; }
        auto operator<=>(const Cut& other) const { return part <=> other.part; }
    };

    void add(const HatchPiece& piece, Place middle);
    void addStretch(Point centre, float radius, double a1, double a2, std::int16_t style);
    void findCuts(Place a, Place b);
    void cut(const Edge& edge, Place a, Place b);
    void addCut(const Edge& edge, Place a, Place b, double part);
    void findCrossings(Point centre, float radius);
    void crossCircle(const Edge& edge, Point centre, float radius);
    bool isBeyondGrid(Place low, Place high) const;

    Polygon polygon_;
    std::vector<Edge> edges_;
    Place low_, high_; // the box of the grid
    std::vector<HatchPiece> pieces_;
    std::size_t tried_ = 0;
    std::int64_t dropped_ = 0;
    bool isClosed_ = false;
    std::vector<Cut> cuts_;
    std::vector<double> angles_; // of the crossings of the circle at hand
};

} // namespace mirtane
