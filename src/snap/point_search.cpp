#include "snap/point_search.h"

#include "geometry/nearest.h"
#include "tables/functions.h"

#include <algorithm>

namespace mirtane {
namespace {

class PointScan {
  public:
    PointScan(Point from, float limit) : from_(from), least_(limit), leastSquared_(squareOf(limit)) {}

    std::optional<ObjectPoint> best() const { return best_; }

    void offer(Point p, std::int32_t slot = -1)
    {
        const double dx = p.x - from_.x;
        const double dy = p.y - from_.y;
        if (!(dx * dx + dy * dy < leastSquared_)) return;
        const float d = reach(from_, p);
        if (!(d < least_)) return;
        best_ = {p, slot};
        least_ = d;
        leastSquared_ = squareOf(d);
    }

    void offerObject(const EntityStore& store, std::size_t i)
    {
        const auto slot = static_cast<std::int32_t>(i); // below the table's end
        switch (store.kind[i]) {
        case Kind::line:
        case Kind::text: // its second pair is its size and justification, and is offered as it stands
            offer(store.p1[i], slot);
            return offer(store.p2[i], slot);
        case Kind::circle:
        case Kind::point:
            return offer(store.p1[i], slot);
        case Kind::arc:
            offer(store.p1[i], slot);
            offer(store.p2[i], slot);
            return offer(store.p3[i], slot);
        case Kind::ellipse:
            return offerEllipse(store, i);
        case Kind::leader:
            offer(store.p5[i], slot);
            offer(store.p1[i], slot);
            return offer(store.p2[i], slot);
        case Kind::linearDimension:
        case Kind::radialDimension:
        case Kind::angularDimension:
            return;
        }
    }

  private:
    static double squareOf(double d) { return d * d; }

    void offerEllipse(const EntityStore& store, std::size_t i)
    {
        const auto slot = static_cast<std::int32_t>(i); // below the table's end
        for (const Point p : axisEnds({store.p1[i], store.p2[i], store.p3[i].x})) offer(p, slot);
    }

    Point from_;
    float least_;
    double leastSquared_; // what is not below it is not below least_ either
    std::optional<ObjectPoint> best_;
};

} // namespace

std::optional<ObjectPoint> nearestObjectPoint(const Session& s, float limit)
{
    PointScan scan(s.mousePos, limit);
    const auto end = EntityStore::at(s.store.end());
    for (std::size_t i = 1; i < end; ++i) {
        const Stat stat = s.store.stat[i];
        if (stat == Stat::on || stat == Stat::sel) scan.offerObject(s.store, i);
    }
    if (functionRow(s.curFunc).snaps.ownLegs != OwnLegs::none) {
        for (std::size_t i = 0; i < boundaryLegs(s); ++i) {
            scan.offer(s.boundary[i].from);
            scan.offer(s.boundary[i].to);
        }
    }
    return scan.best();
}

std::size_t boundaryLegs(const Session& s)
{
    const auto most = static_cast<std::int32_t>(s.boundary.size());        // 100
    return static_cast<std::size_t>(std::clamp(s.boundaryCount, 0, most)); // not negative
}

} // namespace mirtane
