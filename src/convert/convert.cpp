#include "convert/convert.h"

#include "app/files/open_drawing.h"
#include "app/shell.h"
#include "convert/exports.h"
#include "dxf/tolerant.h"
#include "platform/posix/disk.h"
#include "platform/qt/folders.h"
#include "platform/qt/surface.h"
#include "render/view.h"
#include "tables/kinds.h"

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

Bytes made(const Bytes& foreign)
{
    // Bytes of a file seen as its characters.
    const std::string dxf = tolerantDxf({reinterpret_cast<const char*>(foreign.data()), foreign.size()});
    return {dxf.begin(), dxf.end()};
}

std::optional<std::string> open(App& app, const Job& job, bool tolerant)
{
    const std::optional<Format> format = formatOf(job.in);
    if (format != Format::mtd && format != Format::dxf) return "no .mtd or .dxf file";
    const std::optional<Bytes> file = app.ports.disk.read(job.in);
    if (!file) return "can't be read";
    forgetOwners(app.s.store);
    if (format == Format::mtd)
        openDrawing(app, *file);
    else
        openDxf(app, tolerant ? made(*file) : *file);
    return std::nullopt;
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
    if (formatOf(job.in) == Format::dxf && !wishes.tolerant)
        return "no objects in it (a DXF file of another program may need --tolerant)";
    return "no objects in it";
}

std::optional<std::string> convertOn(Desk& desk, const Job& job, const Wishes& wishes)
{
    if (const auto fault = open(desk.app, job, wishes.tolerant)) return fault;
    EntityStore& store = desk.session->store;
    if (wishes.layer) {
        hideOtherLayers(store, *wishes.layer);
        zoomAll(*desk.session, desk.surface);
    }
    if (!showsAnything(store)) return nothingThere(job, wishes);
    if (const auto fault = exportTo(job.out, wishes, desk.app, desk.surface)) return fault;
    if (store.entCount > EntityStore::slotCount)
        return "more than 60,000 objects: the rest of them is lost in " + job.out;
    return std::nullopt;
}

} // namespace

std::optional<std::string> convert(const Job& job, const Wishes& wishes)
{
    try {
        Desk desk(wishes.format == Format::png ? wishes.size : unseen);
        return convertOn(desk, job, wishes);
    } catch (const std::bad_alloc&) {
        return "not enough memory";
    }
}

} // namespace mirtane::convert
