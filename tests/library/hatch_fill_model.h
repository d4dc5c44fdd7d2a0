#pragma once

// What a fill ought to be, worked out the slow way and by none of the program's own geometry: each row of the
// tile in each cell by itself, cut wherever it meets the boundary, and the parts between kept by parity.
// Coordinates are those of the tile: from the first point of the boundary, along the tile's sides.

#include "library/hatch_fill.h"

#include <vector>

namespace mirtane::fake {

struct Vec {
    double x, y;
};

// A part of a curve, 0 at its start to 1 at its end.
struct Part {
    double from, to;
};

struct Curve {
    Kind kind;
    int style;
    Vec a{}, b{}; // the ends of a line; a alone is a point, or the centre of a circle or arc
    double radius = 0;
    double start = 0,
           sweep = 0; // of an arc, radians, counter-clockwise on the screen; a circle's turn is full

    Vec at(double t) const;     // 0 to 1
    double length() const;      // world units; of a point 1, so that a part of it is something
    double partAt(Vec p) const; // of a line, where p comes closest to it; not held to 0 to 1
};

struct Expected {
    Curve curve;
    std::vector<Part> inside;
    bool doubtful = false; // so near to the boundary that rounding decides
};

class FillModel {
  public:
    explicit FillModel(const HatchFill& fill);

    // In the order in which they are drawn.
    std::vector<Expected> curves() const;

    // Whether rounding decides which cells are filled: a corner of the grid on the boundary or a corner of
    // the boundary on the grid, but for the first.
    bool isDoubtful() const;

    Vec toTile(Point p) const;

  private:
    struct Side {
        Vec a, b;
    };
    struct Cell {
        int column, row;
    };

    std::vector<Cell> cells() const;
    bool isReached(Cell cell) const;
    bool sideIsReached(Vec a, Vec b) const;
    bool liesAlong(Vec a, Vec b, Vec p) const;
    bool isInside(Vec p) const;
    Curve placed(const HatchRow& row, Cell cell) const;
    Expected clipped(const Curve& curve) const;
    std::vector<double> cutsOf(const Curve& curve) const;
    void addCutsOfCircle(const Side& side, const Curve& curve, std::vector<double>& cuts) const;
    bool isDoubtful(const Curve& curve) const;

    const HatchFill& fill_;
    double width_, height_;
    std::vector<Side> sides_;
    Vec low_{}, high_{}; // the box of the boundary
};

} // namespace mirtane::fake
