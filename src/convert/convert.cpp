#include "convert/convert.h"

#include "app/files/open_drawing.h"
#include "app/shell.h"
#include "convert/exports.h"
#include "dxf/scanner.h"
#include "platform/posix/disk.h"
#include "platform/qt/folders.h"
#include "platform/qt/surface.h"
#include "render/view.h"
#include "tables/kinds.h"
#include "text/numbers.h"

#include <memory>
#include <new>

namespace mirtane::convert {
namespace {

// Every file starts with the defaults, whatever the user has chosen in the window.
class NoSettings : public SettingsStore {
  public:
    std::map<std::string, std::string> read() override { return {}; }
    void write(const std::map<std::string, std::string>&) override {}
};

// The picture that no one looks at when a file of another kind is made: small, since it costs memory and
// time.
constexpr Size unseen{12, 8};

// A program of its own for each file, so that none of them sees what another one left behind.
struct Desk {
    explicit Desk(Size size) : surface(size.width, size.height, 1)
    {
        constexpr float unitsPerPixel = 4;
        surface.setScale({0, 0, static_cast<float>(size.width) * unitsPerPixel,
                          static_cast<float>(size.height) * unitsPerPixel}); // at most 20,000 pixels
        shell.start();
    }

    PosixDisk disk;
    QtFolders folders;
    NoSettings settings;
    Surface surface;
    std::unique_ptr<Session> session = std::make_unique<Session>();
    Ports ports{disk, folders, settings, {}, nullptr, nullptr};
    DxfScratch scratch;
    Shell shell{*session, surface, ports};
    App app{*session, surface, ports, scratch};
};

// What a reading in full has to say of itself.
void tell(const FullReport& report, Outcome& outcome)
{
    outcome.leftOut = !report.isWhole();
    std::string left = sentenceOfLeftOut(report);
    if (!report.isDxf) left = "no DXF file";
    if (report.isDxf && report.isCut) left += (left.empty() ? "" : ", ") + std::string("the file is cut off");
    const std::string came = sentenceOfWhatCame(report);
    if (!left.empty()) outcome.remarks.push_back(left + (came.empty() ? "" : "; " + came + " came"));
    if (const std::string moved = sentenceOfMove(report); !moved.empty()) outcome.remarks.push_back(moved);
}

void open(App& app, const Job& job, const Wishes& wishes, Outcome& outcome)
{
    const std::optional<Format> format = formatOf(job.in);
    if (format != Format::mtd && format != Format::dxf) {
        outcome.fault = "no .mtd or .dxf file";
        return;
    }
    const std::optional<Bytes> file = app.ports.disk.read(job.in);
    if (!file) {
        outcome.fault = "can't be read";
        return;
    }
    forgetOwners(app.s.store);
    if (format == Format::mtd)
        openDrawing(app, *file);
    else if (wishes.asWindow)
        openDxf(app, *file);
    else
        tell(takeDxfInFull(app, readInFull(textOf(*file))), outcome);
}

// A drawing does not keep what is hidden: who opens it would see it.
void leaveOutHidden(EntityStore& store, Outcome& outcome)
{
    const std::int32_t hidden = changeStat(store, Stat::off, Stat::out);
    if (hidden == 0) return;
    outcome.leftOut = true;
    outcome.remarks.push_back(withThousands(hidden) + (hidden == 1 ? " object" : " objects") +
                              " on hidden layers left out");
}

void hideOtherLayers(EntityStore& store, std::int16_t layer)
{
    for (std::int32_t i = 1; i < store.end(); ++i) {
        if (store.layer[EntityStore::at(i)] != layer) store.setStat(i, Stat::off);
    }
}

bool showsAnything(const EntityStore& store)
{
    for (std::int32_t i = 1; i < store.end(); ++i) {
        if (store.isShown(i) && isDrawnKind(store.kind[EntityStore::at(i)])) return true;
    }
    return false;
}

std::string nothingThere(const Job& job, const Wishes& wishes)
{
    if (wishes.layer) return "no objects on layer " + std::to_string(*wishes.layer);
    if (formatOf(job.in) == Format::dxf && wishes.asWindow)
        return "no objects in it (a DXF file of another program needs to be read without --as-window)";
    return "no objects in it";
}

void convertOn(Desk& desk, const Job& job, const Wishes& wishes, Outcome& outcome)
{
    open(desk.app, job, wishes, outcome);
    if (outcome.fault) return;
    EntityStore& store = desk.session->store;
    if (wishes.layer) {
        hideOtherLayers(store, *wishes.layer);
        zoomAll(*desk.session, desk.surface);
    } else if (wishes.format == Format::mtd && formatOf(job.in) == Format::dxf) {
        leaveOutHidden(store, outcome);
    }
    if (!showsAnything(store))
        outcome.fault = nothingThere(job, wishes);
    else
        outcome.fault = exportTo(job.out, wishes, desk.app, desk.surface);
    if (!outcome.fault && store.entCount > EntityStore::slotCount)
        outcome.fault = "more than 60,000 objects: the rest of them is lost in " + job.out;
}

} // namespace

Outcome convert(const Job& job, const Wishes& wishes)
{
    Outcome outcome;
    try {
        Desk desk(wishes.format == Format::png ? wishes.size : unseen);
        convertOn(desk, job, wishes, outcome);
    } catch (const std::bad_alloc&) {
        outcome.fault = "not enough memory";
    }
    return outcome;
}

} // namespace mirtane::convert
