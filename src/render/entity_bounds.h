#pragma once

// The box round a drawing, built of whole numbers, and the view that shows it.

#include "model/entity_store.h"
#include "render/canvas.h"

#include <functional>

namespace mirtane {

// The limits of one coordinate.
struct IntegerRange {
    std::int32_t low = 0, high = 0;
    bool fed = false;

    // Widens to value, rounded to the nearest whole number, ties to even. A value that does not fit 32 bits
    // (NaN, infinite, too large) is passed over.
    void feed(double value);

    double length() const { return static_cast<double>(high) - low; }
    friend bool operator==(const IntegerRange&, const IntegerRange&) = default;
};

struct IntegerBox {
    IntegerRange x, y;

    void feed(double px, double py)
    {
        x.feed(px);
        y.feed(py);
    }
    bool fed() const { return x.fed && y.fed; }
    friend bool operator==(const IntegerBox&, const IntegerBox&) = default;
};

// Widens box by the reference points of one slot. Kinds other than 1 to 10 have none, and stat is not looked
// at. textWidth is the width of the string of a kind 6 in its own font and size, world units; of no use for
// others.
void feedBounds(IntegerBox& box, const EntityStore& store, std::int32_t slot, float textWidth);

// Gives the width of the text t1 of an object in its font t2 at its size (p2.x of a kind 6), world units.
using TextWidthOf = std::function<float(const EntityRecord&)>;

// The box round all objects that are shown; not fed when there is none.
IntegerBox drawingBounds(const EntityStore& store, const TextWidthOf& widthOf);

// Makes scale show the box in a window of aspect (width / height), a twentieth larger, the spare room at the
// right or below. False, and scale as it was, for a box that was not fed or has neither width nor height, and
// when no window comes of it.
bool fitScale(const IntegerBox& box, double aspect, Scale& scale);

// The same for a drawing just opened: a box that is one point takes the left upper corner there and keeps the
// size of the window. False, and scale as it was, only for a box that was not fed or gives no window.
bool fitScaleOrMove(const IntegerBox& box, double aspect, Scale& scale);

} // namespace mirtane
