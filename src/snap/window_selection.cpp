#include "snap/window_selection.h"

#include "geometry/ellipse.h"
#include "render/canvas.h"
#include "render/view.h"

#include <algorithm>

namespace mirtane {
namespace {

constexpr std::int16_t any = -1;

struct Window {
    Point from, to; // the left upper and the right lower corner

    bool holds(Point p) const { return (p.x >= from.x) & (p.x <= to.x) & (p.y >= from.y) & (p.y <= to.y); }

    bool holdsCircle(Point centre, float radius) const
    {
        return holds({centre.x - radius, centre.y - radius}) && holds({centre.x + radius, centre.y + radius});
    }

    bool holdsEllipse(const Ellipse& e) const
    {
        return holds(e.axisEnd) && std::ranges::all_of(axisEnds(e), [this](Point p) { return holds(p); });
    }
};

bool liesIn(const Window& w, const EntityStore& store, std::size_t i)
{
    switch (store.kind[i]) {
    case Kind::line:
        return w.holds(store.p1[i]) && w.holds(store.p2[i]);
    case Kind::circle:
        return w.holdsCircle(store.p1[i], store.rad[i]);
    case Kind::arc: // its centre counts for nothing
        return w.holds(store.p2[i]) && w.holds(store.p3[i]) && w.holds(store.p4[i]);
    case Kind::ellipse:
        return w.holdsEllipse({store.p1[i], store.p2[i], store.p3[i].x});
    case Kind::point:
    case Kind::text:
        return w.holds(store.p1[i]);
    case Kind::linearDimension:
        return w.holds(store.p3[i]) && w.holds(store.p4[i]) && w.holds(store.p5[i]);
    case Kind::radialDimension:
        return w.holds(store.p2[i]) && w.holds(store.p5[i]);
    case Kind::leader:
        return w.holds(store.p2[i]) && w.holds(store.p3[i]);
    case Kind::angularDimension:
        return w.holds(store.p4[i]) && w.holds(store.p5[i]);

        return false;
    }
    return false;
}

// The criterion for linear dimensions stands for all of them.
bool isOfKind(Kind kind, std::int16_t wanted)
{
    return wanted == numberOf(Kind::linearDimension) ? isDimension(kind) : numberOf(kind) == wanted;
}

bool passes(const FilterValues& f, const EntityStore& store, std::size_t i)
{
    if (f.filterLayer != any && store.layer[i] != f.filterLayer) return false;
    if (f.filterKind != any && !isOfKind(store.kind[i], f.filterKind)) return false;
    if (f.filterColor != black && store.color[i] != f.filterColor) return false; // black as the surface: any
    return f.filterStyle == any || store.style[i] == f.filterStyle;
}

template <class IsMeant> void mark(Session& s, bool filtered, IsMeant isMeant)
{
    EntityStore& store = s.store;
    const auto end = EntityStore::at(store.end());
    for (std::size_t i = 1; i < end; ++i) {
        if (store.stat[i] != Stat::on) continue;
        if (filtered && !passes(s, store, i)) continue;
        if (isMeant(i)) store.stat[i] = Stat::sel;
    }
}

} // namespace

void selectInWindow(Session& s, bool filtered)
{
    sortWindowCorners(s);
    const Window window{s.window1, s.window2};
    mark(s, filtered, [&](std::size_t i) { return liesIn(window, s.store, i); });
}

void selectAll(Session& s, bool filtered)
{
    mark(s, filtered, [&](std::size_t i) { return isDrawnKind(s.store.kind[i]); });
}

} // namespace mirtane
