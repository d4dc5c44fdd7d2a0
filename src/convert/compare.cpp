#include "convert/compare.h"

#include "convert/desk.h"
#include "convert/exports.h"
#include "files/drawing_text.h"
#include "render/entity_bounds.h"
#include "render/entity_painter.h"
#include "render/redraw.h"
#include "render/view.h"
#include "tables/kinds.h"
#include "text/numbers.h"

#include <algorithm>
#include <map>
#include <new>
#include <vector>

namespace mirtane::convert {
namespace {

constexpr std::int32_t grey = 0x808080;
constexpr std::int32_t red = 0x0000FF;
constexpr std::int32_t green = 0x00FF00;

// Of one drawing the objects that show, and the box round them.
struct Shown {
    std::vector<EntityRecord> objects;
    IntegerBox box;
};

Shown shownOf(const Job& job, const Wishes& wishes, Outcome& outcome)
{
    Desk desk(unseen);
    Shown shown;
    open(desk.app, job, wishes.asWindow, outcome);
    if (outcome.fault) outcome.fault = job.named + ": " + *outcome.fault;
    EntityStore& store = desk.session->store;
    for (std::int32_t i = 1; i < store.end(); ++i) {
        const bool isWished = !wishes.layer || store.layer[EntityStore::at(i)] == *wishes.layer;
        if (!isWished) store.setStat(i, Stat::out);
        if (store.isShown(i) && isDrawnKind(store.kind[EntityStore::at(i)]))
            shown.objects.push_back(store.record(i));
    }
    shown.box = drawingBounds(store, textWidthOn(desk.surface));
    return shown;
}

// What two drawings have in common, and what only one of them has.
struct Difference {
    std::vector<EntityRecord> same, went, came;
};

Difference differenceOf(const Shown& before, const Shown& after)
{
    std::map<std::string, std::int32_t> left; // of the old ones that the new drawing may still have
    for (const EntityRecord& r : before.objects) ++left[objectText(r)];
    Difference found;
    for (const EntityRecord& r : after.objects) {
        const auto like = left.find(objectText(r));
        const bool wasThere = like != left.end() && like->second > 0;
        if (wasThere) --like->second;
        (wasThere ? found.same : found.came).push_back(r);
    }
    for (const EntityRecord& r : before.objects) {
        if (left[objectText(r)]-- > 0) found.went.push_back(r);
    }
    return found;
}

IntegerBox boxRound(const IntegerBox& a, const IntegerBox& b)
{
    IntegerBox box = a;
    if (!b.fed()) return box;
    box.feed(b.x.low, b.y.low);
    box.feed(b.x.high, b.y.high);
    return box;
}

void paint(Desk& desk, const std::vector<EntityRecord>& objects, std::int32_t color)
{
    for (const EntityRecord& r : objects) {
        desk.surface.setColor(color);
        desk.surface.setStyle(hasLineStyle(r.kind) ? r.style : pen::solid);
        paintEntity(desk.surface, *desk.session, r);
    }
}

void draw(Desk& desk, const Difference& difference, const IntegerBox& box)
{
    const Size size = desk.surface.getPixelSize();
    Scale scale = desk.surface.getScale();
    fitScaleOrMove(box, static_cast<double>(size.width) / size.height, scale);
    desk.surface.setScale(scale);
    computePixelMapping(*desk.session, desk.surface);
    readViewLimits(*desk.session, desk.surface);
    desk.surface.clear();
    paint(desk, difference.same, grey);
    paint(desk, difference.went, red);
    paint(desk, difference.came, green);
}

std::string counted(const Difference& d)
{
    return withThousands(std::ssize(d.went)) + " went, " + withThousands(std::ssize(d.came)) + " came, " +
           withThousands(std::ssize(d.same)) + " the same";
}

void compareOn(const Job& oldOne, const Job& newOne, const Wishes& wishes, Outcome& outcome)
{
    const Shown before = shownOf(oldOne, wishes, outcome);
    const Shown after = outcome.fault ? Shown{} : shownOf(newOne, wishes, outcome);
    if (outcome.fault) return;
    const Difference difference = differenceOf(before, after);
    Desk desk(wishes.size);
    draw(desk, difference, boxRound(before.box, after.box));
    outcome.fault = writePicture(desk.app, oldOne.out, desk.surface);
    if (!outcome.fault) outcome.remarks.push_back(counted(difference));
}

} // namespace

Outcome compare(const Job& oldOne, const Job& newOne, const Wishes& wishes)
{
    Outcome outcome;
    try {
        compareOn(oldOne, newOne, wishes, outcome);
    } catch (const std::bad_alloc&) {
        outcome.fault = "not enough memory";
    }
    return outcome;
}

} // namespace mirtane::convert
