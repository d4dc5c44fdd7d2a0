#include "platform/qt/window/spoken_roles.h"

#include "platform/qt/window/file_picture.h"
#include "platform/qt/window/notice_strip.h"
#include "platform/qt/window/page_picture.h"
#include "platform/qt/window/surface_widget.h"

#include <QAccessibleWidget>

namespace mirtane {
namespace {

template <class Widget> bool isA(const QObject* object)
{
    return dynamic_cast<const Widget*>(object) != nullptr;
}

struct RoleRow {
    bool (*fits)(const QObject* object);
    QAccessible::Role role;
};

constexpr RoleRow roles[] = {
    {isA<SurfaceWidget>, QAccessible::Graphic},
    {isA<PagePicture>, QAccessible::Graphic},
    {isA<FilePicture>, QAccessible::Graphic},
    {isA<NoticeStrip>, QAccessible::AlertMessage},
};

// The toolkit takes what is given here and deletes it. Nothing leaves the widget to the toolkit's own.
QAccessibleInterface* interfaceOf(const QString&, QObject* object)
{
    auto* const widget = qobject_cast<QWidget*>(object);
    if (widget == nullptr) return nullptr;
    for (const RoleRow& row : roles) {
        if (row.fits(object)) return new QAccessibleWidget(widget, row.role, widget->accessibleName());
    }
    return nullptr;
}

} // namespace

void tellRoles()
{
    QAccessible::installFactory(interfaceOf);
}

} // namespace mirtane
